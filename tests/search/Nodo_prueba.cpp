// Single nodes of both searches, entered as the search itself enters them: with moves made since the root.
#include "board/Puntuacion.h"
#include "board/Tablero.h"
#include "search/AlphaBeta.h"
#include "search/Ayudas.h"
#include "search/LineaPrincipal.h"
#include "search/Quiescencia.h"

class NodoDeBusqueda : public Busqueda {
protected:
    static int Pv(int profundidad, int en_jaque = 0) {
        return AlphaBeta_Pv(profundidad, -VALOR_INFINITO, VALOR_INFINITO, en_jaque, 0, 0);
    }
    static int Qs(int en_jaque, int ventana_nula, int primer_nivel) {
        return AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, en_jaque, ventana_nula, primer_nivel);
    }
    // Both kinds of node, and quiescence.
    static void EsperarPuntos(int puntos, int en_jaque = 0) {
        EXPECT_EQ(Pv(3, en_jaque), puntos);
        EXPECT_EQ(AlphaBeta_Pv(3, puntos - 1, puntos, en_jaque, 0, 0), puntos);
        EXPECT_EQ(Qs(en_jaque, 0, 1), puntos);
    }
};

TEST_F(NodoDeBusqueda, TablasPorRegla) {
    Fen("7k/8/8/8/8/8/1R6/K7 w - - 99 80");
    Jugar({"b2c2"});
    EXPECT_LT(Qs(0, 0, 1), -300);
    Jugar({"h8h7"});  // the 101st ply
    EsperarPuntos(VALOR_TABLAS);

    Fen("7k/8/8/8/8/7P/1R6/K7 w - - 0 1");
    Jugar({"h3h4", "h8h7", "b2c2", "h7h8", "c2b2"});
    EXPECT_EQ(Es_Tabla_Repeticion(), 0);  // what the pawn move itself reached lies just outside the window
    Jugar({"h8h7"});
    EsperarPuntos(VALOR_TABLAS);

    // Moves before the root stand twice in the key history, so the window of the halfmove clock sees half as far.
    const std::string vuelta = " g1f3 g8f6 f3g1 f6g8";
    for (const auto& [moves, repite] : {std::pair{vuelta, 0}, {vuelta + vuelta, 1}}) {
        Position_Fen_Startpos(("startpos moves" + moves).c_str());
        Jugar({"g1f3"});
        EXPECT_EQ(Es_Tabla_Repeticion(), repite);
    }
    TableroGlobal.Regla50 = 3;  // too few reversible moves for any repetition
    EXPECT_EQ(Es_Tabla_Repeticion(), 0);
}

TEST_F(NodoDeBusqueda, MateYAhogadoNoSeGuardanYPuntuanDesdeLaRaiz) {
    Fen("7k/5K2/8/8/8/8/8/6R1 w - - 0 1");
    Jugar({"g1h1"});
    EsperarPuntos(1 - VALOR_MATE, 1);
    EXPECT_EQ(MovimientoDeTabla(), 0U);
    Fen("7k/8/5KQ1/8/8/8/8/8 w - - 0 1");
    Jugar({"f6f7"});
    EXPECT_EQ(Pv(3), VALOR_TABLAS);
    EXPECT_EQ(MovimientoDeTabla(), 0U);

    Fen("6k1/5ppp/8/8/8/8/8/R6K b - - 0 1");
    Jugar({"g8h8"});
    EXPECT_EQ(Pv(2), VALOR_MATE - 2);
    // No window beyond the shortest possible mate is searched at all.
    const std::uint64_t nodos = TipoJuego.Nodos;
    EXPECT_EQ(AlphaBeta_Pv(2, VALOR_MATE - 1, VALOR_MATE, 0, 0, 0), VALOR_MATE - 1);
    EXPECT_EQ(TipoJuego.Nodos, nodos + 1);
}

TEST_F(NodoDeBusqueda, EnElUltimoPlyNoSeMueve) {
    Fen("7k/1p6/8/8/8/8/8/KR6 b - - 0 1");
    const char* const VUELTA[] = {"h8h7", "a1a2", "h7h8", "a2a1"};
    while (TableroGlobal.Ply < PLIES_MAX - 1) {
        Jugar({VUELTA[TableroGlobal.Ply % 4]});
        TableroGlobal.Regla50 = 0;
    }
    EXPECT_EQ(Pv(5), Evaluar());  // with a pawn to be taken
    EXPECT_EQ(TableroGlobal.Ply, PLIES_MAX - 1);
}

TEST_F(NodoDeBusqueda, LaParadaNoDejaHuella) {
    Fen(POSICIONES[1]);
    Jugar({"e2a6"});
    const std::uint64_t key     = TableroGlobal.Key;
    TipoJuego.Nodos             = 2046;  // the second node polls
    TipoJuego.LimiteTiempo      = 1;
    TipoJuego.ProfundidadActual = 2;
    pv_line_fin[0]              = 1;
    EXPECT_EQ(Pv(6), 0);
    EXPECT_EQ(TipoJuego.Nodos, 2048U);
    EXPECT_EQ(TableroGlobal.Key, key);
    EXPECT_EQ(MovimientoDeTabla(), 0U);
}

TEST_F(NodoDeBusqueda, LaLineaSiempreTermina) {
    std::fill_n(pv_line[1], PLIES_MAX, 1U);  // a full row without its end
    Actualizar_Pv(0, 1);
    EXPECT_EQ(pv_line[0][PLIES_MAX - 2], 1U);
    EXPECT_EQ(pv_line[0][PLIES_MAX - 1] + pv_line[1][0], 0U);
}
