// Single nodes of both searches, entered as the search itself enters them: with moves made since the root.
#include "board/Puntuacion.h"
#include "board/Tablero.h"
#include "search/AlphaBeta.h"
#include "search/Ayudas.h"
#include "search/LineaPrincipal.h"
#include "search/Quiescencia.h"

class NodoDeBusqueda : public Busqueda {
protected:
    // Both kinds of node, and quiescence.
    static void EsperarPuntos(int puntos, int en_jaque = 0) {
        EXPECT_EQ(AlphaBeta_Pv(3, -VALOR_INFINITO, VALOR_INFINITO, en_jaque, 0, 0), puntos);
        EXPECT_EQ(AlphaBeta_Pv(3, puntos - 1, puntos, en_jaque, 0, 0), puntos);
        EXPECT_EQ(AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, en_jaque, 0, 1), puntos);
    }
    static bool EnTabla() { return MovimientoDeTabla() != 0; }
};

TEST_F(NodoDeBusqueda, LasCincuentaJugadasEmpatanDesdeElPly101) {
    Fen("7k/8/8/8/8/8/1R6/K7 w - - 99 80");
    Jugar({"b2c2"});
    EXPECT_LT(AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, 0, 0, 1), -300);
    Jugar({"h8h7"});
    EsperarPuntos(VALOR_TABLAS);
}

TEST_F(NodoDeBusqueda, UnaRepeticionBasta) {
    Fen("7k/8/8/8/8/7P/1R6/K7 w - - 0 1");
    Jugar({"h3h4", "h8h7", "b2c2", "h7h8", "c2b2"});
    EXPECT_EQ(Es_Tabla_Repeticion(), 0);  // what the pawn move itself reached lies just outside the window
    Jugar({"h8h7"});
    EsperarPuntos(VALOR_TABLAS);
    Jugar({"b2b3"});
    EXPECT_LT(AlphaBeta_Pv(1, -VALOR_INFINITO, VALOR_INFINITO, 0, 0, 0), -300);
}

// Moves before the root stand twice in the key history, so the window of the halfmove clock sees half as far back.
TEST_F(NodoDeBusqueda, LaVentanaDeRepeticionCuentaClavesNoJugadas) {
    const std::string vuelta = " g1f3 g8f6 f3g1 f6g8";
    Position_Fen_Startpos(("startpos moves" + vuelta).c_str());
    Jugar({"g1f3"});
    EXPECT_EQ(Es_Tabla_Repeticion(), 0);
    Position_Fen_Startpos(("startpos moves" + vuelta + vuelta).c_str());
    Jugar({"g1f3"});
    EXPECT_EQ(Es_Tabla_Repeticion(), 1);
    TableroGlobal.Regla50 = 3;  // too few reversible moves for any repetition
    EXPECT_EQ(Es_Tabla_Repeticion(), 0);
}

TEST_F(NodoDeBusqueda, MateYAhogadoNoSeGuardan) {
    Fen("7k/5K2/8/8/8/8/8/6R1 w - - 0 1");
    Jugar({"g1h1"});
    EsperarPuntos(1 - VALOR_MATE, 1);
    EXPECT_FALSE(EnTabla());

    Fen("7k/8/5KQ1/8/8/8/8/8 w - - 0 1");
    Jugar({"f6f7"});  // mate at the next ply is not stalemate: the black king has no square, but is not attacked
    EXPECT_EQ(AlphaBeta_Pv(3, -VALOR_INFINITO, VALOR_INFINITO, 0, 0, 0), VALOR_TABLAS);
    EXPECT_FALSE(EnTabla());
}

TEST_F(NodoDeBusqueda, UnMatePuntuaSuDistanciaALaRaiz) {
    Fen("6k1/5ppp/8/8/8/8/8/R6K b - - 0 1");
    Jugar({"g8h8"});
    EXPECT_EQ(AlphaBeta_Pv(2, -VALOR_INFINITO, VALOR_INFINITO, 0, 0, 0), VALOR_MATE - 2);
    // No window beyond the shortest possible mate is searched at all.
    const std::uint64_t nodos = TipoJuego.Nodos;
    EXPECT_EQ(AlphaBeta_Pv(2, VALOR_MATE - 1, VALOR_MATE, 0, 0, 0), VALOR_MATE - 1);
    EXPECT_EQ(TipoJuego.Nodos, nodos + 1);
}

TEST_F(NodoDeBusqueda, LaQuiescenciaGuardaSoloEnElPrimerNivelYEnJaque) {
    Fen("4k3/8/8/3q4/4P3/8/8/4K3 w - - 0 1");
    EXPECT_GT(AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, 0, 1, 0), -200);
    EXPECT_GT(AlphaBeta_Qs(-501, -500, 0, 1, 0), -200);  // a cut-off
    EXPECT_FALSE(EnTabla());
    AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, 0, 1, 1);
    EXPECT_EQ(MovimientoDeTabla(), Buscado("e4d5"));
    Fen("4k3/8/8/8/4q3/3P4/8/4K3 w - - 0 1");
    AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, 1, 1, 0);
    EXPECT_EQ(MovimientoDeTabla(), Buscado("d3e4"));
}

TEST_F(NodoDeBusqueda, LaPodaDeltaPideDosPiezasEnemigas) {
    // Rook takes the pawn a7; alpha lies far above. With one enemy piece the capture is still tried.
    struct {
        const char* Fen;
        unsigned    Nodos;
    } constexpr CASOS[] = {{"4k1nn/p7/8/8/8/8/8/R3K3 w - - 0 1", 1}, {"4k2n/p7/8/8/8/8/8/R3K3 w - - 0 1", 2}};
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.Fen);
        Fen(caso.Fen);
        const int alfa  = Evaluar() + 300;
        TipoJuego.Nodos = 0;
        AlphaBeta_Qs(alfa, alfa + 1, 0, 1, 0);
        EXPECT_EQ(TipoJuego.Nodos, caso.Nodos);
        TipoJuego.Nodos = 0;
        AlphaBeta_Qs(alfa, alfa + 1, 0, 1, 1);  // the first level prunes none
        EXPECT_EQ(TipoJuego.Nodos, 2U);
    }
}

TEST_F(NodoDeBusqueda, EnElUltimoPlyNoSeMueve) {
    Fen("7k/1p6/8/8/8/8/8/KR6 b - - 0 1");
    const char* const VUELTA[] = {"h8h7", "a1a2", "h7h8", "a2a1"};
    while (TableroGlobal.Ply < PLIES_MAX - 1) {
        Jugar({VUELTA[TableroGlobal.Ply % 4]});
        TableroGlobal.Regla50 = 0;
    }
    const int evaluacion = Evaluar();  // with a pawn to be taken
    EXPECT_EQ(AlphaBeta_Pv(5, -VALOR_INFINITO, VALOR_INFINITO, 0, 0, 0), evaluacion);
    EXPECT_EQ(TableroGlobal.Ply, PLIES_MAX - 1);
}

TEST_F(NodoDeBusqueda, LaParadaNoDejaHuella) {
    Fen(POSICIONES[1]);
    Jugar({"e2a6"});
    const std::uint64_t key     = TableroGlobal.Key;
    TipoJuego.Nodos             = 2046;  // the second node polls
    TipoJuego.LimiteTiempo      = 1;
    TipoJuego.TiempoAsignado    = 0;
    TipoJuego.ProfundidadActual = 2;
    pv_line_fin[0]              = 1;
    EXPECT_EQ(AlphaBeta_Pv(6, -VALOR_INFINITO, VALOR_INFINITO, 0, 0, 0), 0);
    EXPECT_EQ(TipoJuego.Nodos, 2048U);
    EXPECT_EQ(TableroGlobal.Key, key);
    EXPECT_FALSE(EnTabla());
}

TEST_F(NodoDeBusqueda, LaLineaSiempreTermina) {
    for (int ply = PLIES_MAX - 2; ply >= 0; --ply) Actualizar_Pv(ply, 1);
    EXPECT_EQ(pv_line[0][PLIES_MAX - 2], 1U);
    EXPECT_EQ(pv_line[0][PLIES_MAX - 1], 0U);
    for (int ply = 0; ply < PLIES_MAX; ++ply) pv_line[1][ply] = 1;  // a full row without its end
    Actualizar_Pv(0, 1);
    EXPECT_EQ(pv_line[0][PLIES_MAX - 1], 0U);
    EXPECT_EQ(pv_line[1][0], 0U);
}
