#include "search/Buscar.h"

#include "board/Ataques.h"
#include "plataforma/Reloj.h"
#include "search/Ayudas.h"
#include "search/Informe.h"
#include "search/LineaPrincipal.h"

class Conductor : public Busqueda {};

TEST_F(Conductor, EncuentraLosMatesConSuDistancia) {
    struct {
        const char* Fen;
        int         Iteraciones;
        const char* Puntos;
        const char* Jugada;  // "" where several moves mate as fast
    } constexpr CASOS[] = {
        {"6k1/5ppp/8/8/8/8/8/R5K1 w - - 0 1", 2, "mate 1", "a1a8"},
        {"r5k1/8/8/8/8/8/5PPP/6K1 b - - 0 1", 2, "mate 1", "a8a1"},
        {"7k/5K2/8/8/8/8/8/6R1 b - - 0 1", 4, "mate -1", "h8h7"},
        {"8/7k/8/8/8/8/R7/1R4K1 w - - 0 1", 6, "mate 3", ""},
        {"r5rk/5p1p/5R2/4B3/8/8/7P/7K w - - 0 1", 8, "mate 3", "f6a6"},
        {"r2qkb1r/pp2nppp/3p4/2pNN1B1/2BnP3/3P4/PPP2PPP/R2bK2R w KQkq - 1 1", 5, "mate 2", "d5f6"},
        {"8/4k3/8/8/8/8/R7/1R4K1 w - - 0 1", 8, "mate 4", "b1b6"},
    };
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.Fen);
        LimpiarBusqueda();
        const Salida salida = Correr(caso.Fen, caso.Iteraciones + 1);
        EXPECT_EQ(salida.Puntos, caso.Puntos);
        EXPECT_EQ(salida.Respuesta.rfind(std::string("bestmove ") + caso.Jugada, 0), 0U) << salida.Respuesta;
    }
}

TEST_F(Conductor, ReconoceLasTablas) {
    constexpr const char* CASOS[] = {
        "8/8/8/8/8/5k2/5p2/5K2 w - - 0 1",    // every move is stalemate or loses nothing
        "7k/8/6K1/8/8/8/8/6Q1 w - - 100 90",  // the fifty-move rule strikes before the mate in two
        "k7/8/8/8/8/8/qr6/7K w - - 99 90",    // and saves the lost side
    };
    for (const char* caso : CASOS) {
        SCOPED_TRACE(caso);
        LimpiarBusqueda();
        EXPECT_EQ(Correr(caso, 5).Puntos, "cp 0");
    }
}

TEST_F(Conductor, ElMateDosVecesTerminaSalvoSinLimite) {
    const char* const MATE_EN_UNO = "6k1/5ppp/8/8/8/8/8/R5K1 w - - 0 1";
    EXPECT_LE(Correr(MATE_EN_UNO, PROFUNDIDAD_SIN_LIMITE).Iteraciones.size(), 2U);
    TipoJuego.Infinito  = 1;
    const Salida salida = Correr(MATE_EN_UNO, PROFUNDIDAD_SIN_LIMITE);
    EXPECT_EQ(salida.Iteraciones.size(), 32U);
    EXPECT_EQ(Tras(salida.Iteraciones.back(), "depth"), "32");
}

TEST_F(Conductor, LaLineaFinalEsLaDelMateQueAnuncia) {
    TipoJuego.ShowPv        = SHOWPV_NONE;
    const Salida      mate  = Correr("r2qkb1r/pp2nppp/3p4/2pNN1B1/2BnP3/3P4/PPP2PPP/R2bK2R w KQkq - 1 1", 9);
    const std::string linea = " score mate 2 pv d5f6 g7f6 c4f7 ";
    ASSERT_EQ(mate.Iteraciones.size(), 1U);
    EXPECT_NE(mate.Iteraciones[0].find(linea), std::string::npos) << mate.Iteraciones[0];
}

TEST_F(Conductor, SinIteracionAcabadaRespondeLaPrimeraLegal) {
    EXPECT_EQ(Correr(POSICIONES[0], 1).Respuesta, "bestmove g1h3");
    TipoJuego.Parar = 1;
    EXPECT_EQ(Correr(POSICIONES[0], 9).Respuesta, "bestmove g1h3");
    EXPECT_EQ(TipoJuego.Parar, 0);
    EXPECT_EQ(Correr("4k3/8/8/8/7b/8/8/r2NK3 w - - 0 1", 0).Respuesta, "bestmove e1e2");  // others are illegal
}

TEST_F(Conductor, SinJugadaLegalResponde0000) {
    for (const char* fen : {"7k/5KQ1/8/8/8/8/8/8 b - - 0 1", "7k/5K2/6Q1/8/8/8/8/8 b - - 0 1"})
        EXPECT_EQ(Correr(fen, 4).Respuesta, "bestmove 0000") << fen;
}

TEST_F(Conductor, ShowPvDecideQueLineasSeVen) {
    struct {
        int         ShowPv;
        std::size_t Lineas;
        const char* Primera;
    } constexpr CASOS[] = {{SHOWPV_NONE, 1, "10"}, {SHOWPV_MIDDLE, 5, "5"}, {SHOWPV_FULL, 9, "1"}};
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.ShowPv);
        TipoJuego.ShowPv    = caso.ShowPv;
        const Salida salida = Correr("8/pp3k2/2p5/3p4/3P4/2P5/PP3K2/8 w - - 0 1", 10);
        ASSERT_EQ(salida.Iteraciones.size(), caso.Lineas);
        EXPECT_EQ(Tras(salida.Iteraciones[0], "depth"), caso.Primera);
        EXPECT_EQ(salida.Currmoves == 0, caso.ShowPv != SHOWPV_FULL);
        EXPECT_EQ(TipoJuego.Infinito, 0);
    }
    EXPECT_EQ(Correr(POSICIONES[0], 2).Currmoves, 20);
}

TEST_F(Conductor, UnTercioDelTiempoAbreLaSalida) {
    TipoJuego.ShowPv         = SHOWPV_MIDDLE;
    TipoJuego.LimiteTiempo   = 1;
    TipoJuego.TiempoAsignado = 30000;
    for (const int transcurrido : {9000, 10001}) {
        TipoJuego.TiempoInicio = ObtenerMilisegundos() - static_cast<std::uint64_t>(transcurrido);
        int impresa            = 0;
        testing::internal::CaptureStdout();
        ImprimirPv(3, &impresa, 10, 0);
        EXPECT_EQ(!testing::internal::GetCapturedStdout().empty(), transcurrido > 10000);
        EXPECT_EQ(impresa == 1, transcurrido > 10000);
    }
}

TEST_F(Conductor, LosPuntosSeEscribenEnCentipeonesOJugadasHastaElMate) {
    struct {
        int         Puntos, Etiqueta;
        const char* Texto;
    } constexpr CASOS[] = {{-15, 0, "cp -15"},     {200, 1, "cp 200 lowerbound"}, {-200, -1, "cp -200 upperbound"},
                           {31936, 0, "cp 31936"}, {31937, 1, "mate 32"},         {31999, 0, "mate 1"},
                           {31997, 0, "mate 2"},   {-31998, -1, "mate -1"},       {-31996, 0, "mate -2"},
                           {32001, 0, "cp 32001"}};
    LimpiarLineas();
    TipoJuego.TiempoInicio = ObtenerMilisegundos() + 1000000;
    for (const auto& caso : CASOS) {
        int impresa = 0;
        testing::internal::CaptureStdout();
        ImprimirPv(3, &impresa, caso.Puntos, caso.Etiqueta);
        const std::string linea = testing::internal::GetCapturedStdout();
        EXPECT_EQ(linea.rfind("info depth 3 seldepth 0 time ", 0), 0U);
        EXPECT_NE(linea.find(std::string(" hashfull 0 score ") + caso.Texto + " pv \n"), std::string::npos) << linea;
    }
}

// Checks one "info" line: its moves are legal in turn and as many as announced.
static void ComprobarLinea(const std::string& linea) {
    std::istringstream       texto(linea.substr(linea.find(" pv ") + 4));
    std::vector<std::string> jugadas;
    for (std::string jugada; texto >> jugada;) jugadas.push_back(jugada);
    EXPECT_EQ(Tras(linea, "seldepth"), std::to_string(jugadas.size()));
    EXPECT_GE(jugadas.size(), 1U);
    Jugar(jugadas);
    while (TableroGlobal.Ply > 0) DeshacerMovimiento();
}

// Searches of the root that a score so far from the one before takes at least: windows of 25, 100 and 400, then the
// whole one; the first six iterations know only that.
static int IntentosMinimos(std::size_t iteracion, int salto) {
    if (iteracion < 7 || salto < 25) return 1;
    return salto < 100 ? 2 : salto < 400 ? 3 : 4;
}

TEST_F(Conductor, TodaLineaSePuedeJugarYSuSaltoSeNombraYAbreLaVentana) {
    int ampliadas = 0;
    for (const char* fen : POSICIONES) {
        const Salida salida = Correr(fen, 9);
        ASSERT_EQ(salida.Iteraciones.size(), 8U);
        for (std::size_t i = 0, anterior = 0; i < 8; anterior = i++) {
            const std::string& linea = salida.Iteraciones[i];
            SCOPED_TRACE(std::string(fen) + "\n" + linea);
            ComprobarLinea(linea);
            const int salto =
                std::atoi(Tras(linea, "cp").c_str()) - std::atoi(Tras(salida.Iteraciones[anterior], "cp").c_str());
            EXPECT_EQ(linea.find(" lowerbound") != std::string::npos, salto > 100);
            EXPECT_EQ(linea.find(" upperbound") != std::string::npos, salto < -100);
            const int minimo = IntentosMinimos(i + 1, std::abs(salto));
            EXPECT_GE(salida.Intentos[i], minimo);
            EXPECT_LE(salida.Intentos[i], i + 1 < 7 ? 1 : 4);
            ampliadas += minimo > 1;
        }
        const std::string fin =
            " pv " + Tras(salida.Respuesta, "bestmove") + " " + Tras(salida.Respuesta, "ponder") + " ";
        EXPECT_NE(salida.Iteraciones.back().find(fin), std::string::npos) << salida.Respuesta;
    }
    EXPECT_GT(ampliadas, 0);
}

TEST_F(Conductor, LaBusquedaDejaElTableroYElEstadoComoEstaban) {
    Fen(POSICIONES[1]);
    const RegistroTablero antes = TableroGlobal;
    const Salida          una   = Correr(POSICIONES[1], 6);
    EXPECT_EQ(TableroGlobal.Key, antes.Key);
    EXPECT_EQ(TableroGlobal.NumeroKeys, antes.NumeroKeys);
    EXPECT_EQ(TableroGlobal.Ply, 0);
    EXPECT_EQ(TipoJuego.Nodos, 0U);
    EXPECT_EQ(pv_line_fin[0] + pv_line[0][0], 0U);
    EXPECT_EQ(TT_Opciones.Edad, 2);

    LimpiarBusqueda();  // a cleared engine repeats itself to the node
    const Salida otra = Correr(POSICIONES[1], 6);
    EXPECT_EQ(Tras(una.Iteraciones.back(), "nodes"), Tras(otra.Iteraciones.back(), "nodes"));
}
