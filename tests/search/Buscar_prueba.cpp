#include "search/Buscar.h"

#include "plataforma/Reloj.h"
#include "search/Ayudas.h"
#include "search/Informe.h"
#include "search/LineaPrincipal.h"

using Conductor = Busqueda;

TEST_F(Conductor, EncuentraMatesYTablas) {
    for (const auto& [fen, iteraciones, puntos, jugada] : {
             std::tuple{"6k1/5ppp/8/8/8/8/8/R5K1 w - - 0 1", 2, "mate 1", "a1a8"},
             {"r5k1/8/8/8/8/8/5PPP/6K1 b - - 0 1", 2, "mate 1", "a8a1"},
             {"7k/5K2/8/8/8/8/8/6R1 b - - 0 1", 4, "mate -1", "h8h7"},
             {"r5rk/5p1p/5R2/4B3/8/8/7P/7K w - - 0 1", 8, "mate 3", "f6a6"},
             {"8/4k3/8/8/8/8/R7/1R4K1 w - - 0 1", 8, "mate 4", "b1b6"},
             {"8/8/8/8/8/5k2/5p2/5K2 w - - 0 1", 4, "cp 0", ""},    // every move is stalemate or loses nothing
             {"7k/8/6K1/8/8/8/8/6Q1 w - - 100 90", 4, "cp 0", ""},  // fifty moves are over before the mate in two
             {"k7/8/8/8/8/8/qr6/7K w - - 99 90", 4, "cp 0", ""},    // and save the lost side
         }) {
        LimpiarBusqueda();
        const Salida salida = Correr(fen, iteraciones + 1);
        EXPECT_EQ(salida.Puntos, puntos) << fen;
        EXPECT_TRUE(salida.Respuesta.starts_with(std::string("bestmove ") + jugada)) << fen << salida.Respuesta;
    }
}

TEST_F(Conductor, ElMateDosVecesTerminaSalvoSinLimite) {
    constexpr char MATE_EN_UNO[] = "6k1/5ppp/8/8/8/8/8/R5K1 w - - 0 1";
    EXPECT_LE(Correr(MATE_EN_UNO, PROFUNDIDAD_SIN_LIMITE).Iteraciones.size(), 2U);
    TipoJuego.Infinito = 1;
    EXPECT_EQ(Correr(MATE_EN_UNO, PROFUNDIDAD_SIN_LIMITE).Iteraciones.size(), 32U);
}

TEST_F(Conductor, LaLineaFinalEsLaDelMateQueAnuncia) {
    TipoJuego.ShowPv  = SHOWPV_NONE;
    const Salida mate = Correr("r2qkb1r/pp2nppp/3p4/2pNN1B1/2BnP3/3P4/PPP2PPP/R2bK2R w KQkq - 1 1", 9);
    ASSERT_EQ(mate.Iteraciones.size(), 1U);
    EXPECT_TRUE(mate.Iteraciones[0].ends_with(" score mate 2 pv d5f6 g7f6 c4f7 ")) << mate.Iteraciones[0];
}

TEST_F(Conductor, SinIteracionAcabadaRespondeLaPrimeraLegal) {
    EXPECT_EQ(Correr(POSICIONES[0], 1).Respuesta, "bestmove g1h3");
    TipoJuego.Parar = 1;
    EXPECT_EQ(Correr(POSICIONES[0], 9).Respuesta, "bestmove g1h3");
    EXPECT_EQ(TipoJuego.Parar, 0);
    EXPECT_EQ(Correr("4k3/8/8/8/7b/8/8/r2NK3 w - - 0 1", 0).Respuesta, "bestmove e1e2");  // others are illegal
    for (const char* fen : {"7k/5KQ1/8/8/8/8/8/8 b - - 0 1", "7k/5K2/6Q1/8/8/8/8/8 b - - 0 1"})
        EXPECT_EQ(Correr(fen, 4).Respuesta, "bestmove 0000") << fen;
}

TEST_F(Conductor, ShowPvDecideQueLineasSeVen) {
    for (const auto& [nivel, lineas, primera, currmoves] :
         {std::tuple{SHOWPV_NONE, 1U, "10", 0}, {SHOWPV_MIDDLE, 5U, "5", 0}, {SHOWPV_FULL, 9U, "1", 1}}) {
        TipoJuego.ShowPv    = nivel;
        const Salida salida = Correr("8/pp3k2/2p5/3p4/3P4/2P5/PP3K2/8 w - - 0 1", 10);
        ASSERT_EQ(salida.Iteraciones.size(), lineas);
        EXPECT_EQ(Tras(salida.Iteraciones[0], "info depth"), primera);
        EXPECT_EQ(salida.Intentos[0], currmoves);
        EXPECT_EQ(TipoJuego.Infinito, 0);
    }
}

static std::string LineaInformativa(int puntos, int etiqueta) {
    int               impresa = 0;
    const std::string linea   = Capturar([&] { ImprimirPv(3, &impresa, puntos, etiqueta); });
    EXPECT_EQ(impresa == 1, !linea.empty());
    return linea;
}

TEST_F(Conductor, LineaInformativa) {
    // clang-format off
    for (const auto& [puntos, etiqueta, texto] :
         {std::tuple{200, 1, "cp 200 lowerbound"}, {-200, -1, "cp -200 upperbound"}, {31936, 0, "cp 31936"},
          {31937, 1, "mate 32"}, {31997, 0, "mate 2"}, {-31998, -1, "mate -1"}, {-31996, 0, "mate -2"}}) {
        // clang-format on
        const std::string linea = LineaInformativa(puntos, etiqueta);
        EXPECT_TRUE(linea.starts_with("info depth 3 seldepth 0 time "));
        EXPECT_TRUE(linea.ends_with(std::string(" hashfull 0 score ") + texto + " pv \n")) << linea;
    }
    TipoJuego.ShowPv         = SHOWPV_MIDDLE;  // shows what comes after a third of the time
    TipoJuego.LimiteTiempo   = 1;
    TipoJuego.TiempoAsignado = 30000;
    TipoJuego.TiempoInicio   = ObtenerMilisegundos() - 9000;
    EXPECT_EQ(LineaInformativa(10, 0), "");
    TipoJuego.TiempoInicio -= 1001;
    EXPECT_NE(LineaInformativa(10, 0), "");
}

// Its moves are legal in turn and as many as announced.
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
    return iteracion < 7 || salto < 25 ? 1 : salto < 100 ? 2 : salto < 400 ? 3 : 4;
}

TEST_F(Conductor, TodaLineaSePuedeJugarYSuSaltoSeNombraYAbreLaVentana) {
    std::vector<const char*> posiciones(std::begin(POSICIONES), std::end(POSICIONES));
    posiciones.push_back("8/6k1/R7/8/8/8/p4K2/r7 b - - 0 1");  // the rook leaves the corner, and skewers whoever takes
    int ampliadas = 0;
    for (const char* fen : posiciones) {
        const Salida salida = Correr(fen, 9);
        ASSERT_EQ(salida.Iteraciones.size(), 8U);
        for (std::size_t i = 0; i < 8; ++i) {
            const std::string& linea = salida.Iteraciones[i];
            SCOPED_TRACE(std::string(fen) + "\n" + linea);
            ComprobarLinea(linea);
            const std::string& anterior = salida.Iteraciones[i == 0 ? 0 : i - 1];
            const int          salto    = std::stoi(Tras(linea, "cp")) - std::stoi(Tras(anterior, "cp"));
            EXPECT_EQ(linea.find(" lowerbound") != std::string::npos, salto > 100);
            EXPECT_EQ(linea.find(" upperbound") != std::string::npos, salto < -100);
            const int minimo = IntentosMinimos(i + 1, std::abs(salto));
            EXPECT_GE(salida.Intentos[i], minimo);
            EXPECT_LE(salida.Intentos[i], i + 1 < 7 ? 1 : 4);
            ampliadas += minimo > 1;
        }
        const std::string& r = salida.Respuesta;
        EXPECT_NE(salida.Iteraciones[7].find(" pv " + Tras(r, "bestmove") + " " + Tras(r, "ponder") + " "),
                  std::string::npos);
    }
    EXPECT_GT(ampliadas, 0);
}

TEST_F(Conductor, LaBusquedaDejaElTableroYElEstadoComoEstaban) {
    const Salida una = Correr(POSICIONES[1], 6);
    EXPECT_EQ(TableroGlobal.Key, ObtenerKey());
    EXPECT_EQ(TableroGlobal.NumeroKeys + TableroGlobal.Ply, 0);
    EXPECT_EQ(TipoJuego.Nodos + pv_line_fin[0] + pv_line[0][0], 0U);
    EXPECT_EQ(TT_Opciones.Edad, 2);
    LimpiarBusqueda();  // a cleared engine repeats itself to the node
    const Salida otra = Correr(POSICIONES[1], 6);
    EXPECT_EQ(Tras(una.Iteraciones.back(), "nodes"), Tras(otra.Iteraciones.back(), "nodes"));
}
