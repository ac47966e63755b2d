// Maps and sets against a plain walk over the board, mobility by counted squares, and pairs of positions that
// differ in one trait, of which the better one must score more.
#include "eval/Terminos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <vector>

#include "eval/Conjuntos.h"
#include "eval/Pesos.h"
#include "eval/PosicionPrueba.h"

namespace {

class Piezas : public Evaluacion {};

constexpr const char* POSICIONES[] = {
    "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1",
    "r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1",
    "r3k2r/Pppp1ppp/1b3nbN/nP6/BBP1P3/q4N2/Pp1P2PP/R2Q1RK1 w kq - 0 1",
    "8/PPP4k/8/8/8/8/4Kppp/8 w - - 0 1",
    "R6R/3Q4/1Q4Q1/4Q3/2Q4Q/Q4Q2/pp1Q4/kBNN1KB1 w - - 0 1",
    "PPPPPPPP/8/3k4/8/8/4K3/8/pppppppp w - - 0 1",                                        // pawns where none can be
    "NNNNNNNN/NNNNNNNN/NNNNNNNN/NNNNNNNN/nnnnnnnn/nnnnnnnn/nnnnnnnn/nnnnnnnn w - - 0 1",  // and no king
    "QQQQkQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/8/8/qqqqqqqq/qqqqKqqq w - - 0 1",
};

// Squares attacked from the given one, found step by step.
std::vector<int> AtaquesPasoAPaso(int desde) {
    const int        pieza = TableroGlobal.Casillas[desde];
    const int        clase = pieza > VACIO ? pieza - DESFASE_NEGRO : pieza;
    std::vector<int> ataques;
    for (int fila = -2; fila <= 2; ++fila)
        for (int columna = -2; columna <= 2; ++columna) {
            const int  lejos    = std::max(Absoluto(fila), Absoluto(columna));
            const bool salto    = Absoluto(fila * columna) == 2;
            const bool diagonal = lejos == 1 && fila * columna != 0;
            const bool recto    = lejos == 1 && fila * columna == 0;
            const bool peon     = diagonal && fila == (pieza == PEON_B ? -1 : 1);
            const bool valido   = clase == PEON_B      ? peon
                                  : clase == CABALLO_B ? salto
                                  : clase == ALFIL_B   ? diagonal
                                  : clase == TORRE_B   ? recto
                                                       : diagonal || recto;
            const int  pasos    = clase == ALFIL_B || clase == TORRE_B || clase == DAMA_B ? 7 : 1;
            for (int paso = 1; valido && paso <= pasos; ++paso) {
                const int f = Fila(desde) + paso * fila, c = Columna(desde) + paso * columna;
                if (f < 0 || f > 7 || c < 0 || c > 7) break;
                ataques.push_back(8 * f + c);
                if (TableroGlobal.Casillas[8 * f + c] != VACIO) break;
            }
        }
    return ataques;
}

Conjunto CasillasDePieza(int pieza) {
    Conjunto casillas = 0;
    for (int casilla = 0; casilla < 64; ++casilla)
        if (TableroGlobal.Casillas[casilla] == pieza) casillas |= Bit(casilla);
    return casillas;
}

template <int C>
void CompararConjuntos() {
    const ConjuntosBando& propios = Conjuntos[C];
    EXPECT_EQ(propios.Peones, CasillasDePieza(PEON<C>));
    EXPECT_EQ(propios.Caballos, CasillasDePieza(CABALLO<C>));
    EXPECT_EQ(propios.Alfiles, CasillasDePieza(ALFIL<C>));
    EXPECT_EQ(propios.Torres, CasillasDePieza(TORRE<C>));
    EXPECT_EQ(propios.Damas, CasillasDePieza(DAMA<C>));
    EXPECT_EQ(propios.Rey, CasillasDePieza(REY<C>));
    EXPECT_EQ(BandoDe<C>().Peones_Septima, Cuantas(propios.Peones & FilaEntera<C>(6)));
}

// Rooks enter Defensa and Objetivos in their own evaluation, which has run before this.
template <int C>
void CompararAtaques() {
    int todos[64] = {}, peones[64] = {};
    for (int desde = 0; desde < 64; ++desde) {
        if (!EsPropia<C>(TableroGlobal.Casillas[desde])) continue;
        for (const int hasta : AtaquesPasoAPaso(desde)) {
            ++todos[hasta];
            peones[hasta] += TableroGlobal.Casillas[desde] == PEON<C> ? 1 : 0;
        }
    }
    const RegistroBando& bando = BandoDe<C>();
    for (int casilla = 0; casilla < 64; ++casilla) {
        SCOPED_TRACE(casilla);
        const int pieza = TableroGlobal.Casillas[casilla];
        EXPECT_EQ(Contiene(Conjuntos[C].Ataque_Peones, casilla), peones[casilla] > 0);
        EXPECT_EQ(Contiene(bando.Defensa, casilla), EsPropia<C>(pieza) && todos[casilla] > 0);
        EXPECT_EQ(Contiene(bando.Objetivos, casilla), EsRival<C>(pieza) && todos[casilla] > 0);
        EXPECT_EQ(Contiene(ConUnoOMas(Conjuntos[C].Ataques), casilla), todos[casilla] >= 1);
        EXPECT_EQ(Contiene(ConDosOMas(Conjuntos[C].Ataques), casilla), todos[casilla] >= 2);
    }
}

TEST_F(Piezas, ConjuntosYMapasComoElRecorridoPasoAPaso) {
    for (const char* fen : POSICIONES) {
        SCOPED_TRACE(fen);
        CargarPosicion(fen);
        LimpiarPuntuacion(0);
        EvaluarPiezasTableroJuego();
        EvaluarTorreB();
        EvaluarTorreN();
        CompararConjuntos<BLANCO>();
        CompararConjuntos<NEGRO>();
        CompararAtaques<BLANCO>();
        CompararAtaques<NEGRO>();
    }
}

struct CasoMovilidad {
    const char* Nombre;
    const char* Fen;  // White has the piece alone with its king
    const Par*  Tabla;
    int         Casillas;
};

TEST_F(Piezas, MovilidadPorCasillasQueNoCubrenLosPeones) {
    const Par* const    caballo = PESOS.BONUS_CABALLO_MOVILIDAD;
    const Par* const    alfil   = PESOS.BONUS_ALFIL_MOVILIDAD;
    const Par* const    dama    = PESOS.BONUS_DAMA_MOVILIDAD;
    const CasoMovilidad casos[] = {
        {"knight in the centre", "7k/8/8/8/3N4/8/8/K7 w - - 0 1", caballo, 8},
        {"two jumps covered by a pawn", "7k/3p4/8/8/3N4/8/8/K7 w - - 0 1", caballo, 6},
        {"taking a covered pawn does not count", "7k/3p4/2p5/8/3N4/8/8/K7 w - - 0 1", caballo, 5},
        {"own pawn and own king block", "7k/8/8/8/3N4/5P2/4K3/8 w - - 0 1", caballo, 6},
        {"bishop on the long diagonal", "7k/8/8/8/3B4/8/8/K7 w - - 0 1", alfil, 12},
        {"bishop behind own pawns", "7k/8/8/8/8/1P1P4/2B5/K7 w - - 0 1", alfil, 2},
        {"an own rook counts as a square", "7k/8/8/8/8/1P6/2B5/KR1R4 w - - 0 1", alfil, 7},
        {"queen in the centre", "7k/8/8/8/3Q4/8/8/1K6 w - - 0 1", dama, 27},
        {"queen, a pawn covers a square", "7k/8/4p3/8/3Q4/8/8/1K6 w - - 0 1", dama, 26},
    };
    for (const CasoMovilidad& caso : casos)
        for (const bool reflejada : {false, true}) {
            SCOPED_TRACE(caso.Nombre);
            CargarPosicion(caso.Fen, reflejada);
            LimpiarPuntuacion(0);
            EvaluarPiezasTableroJuego();
            RegistroBando& bando = reflejada ? Negras : Blancas;
            EXPECT_EQ(bando.Movilidad_OP, caso.Tabla[caso.Casillas].OP);
            EXPECT_EQ(bando.Movilidad_EG, caso.Tabla[caso.Casillas].EG);
        }
}

TEST_F(Piezas, LaMovilidadCompletaValeMasQueNinguna) {
    for (const auto& [ninguna, todas] :
         {std::pair{PESOS.BONUS_CABALLO_MOVILIDAD[0], std::end(PESOS.BONUS_CABALLO_MOVILIDAD)[-1]},
          {PESOS.BONUS_ALFIL_MOVILIDAD[0], std::end(PESOS.BONUS_ALFIL_MOVILIDAD)[-1]},
          {PESOS.BONUS_DAMA_MOVILIDAD[0], std::end(PESOS.BONUS_DAMA_MOVILIDAD)[-1]}}) {
        EXPECT_LT(ninguna.OP, todas.OP);
        EXPECT_LT(ninguna.EG, todas.EG);
    }
}

struct CasoPareja {
    const char* Nombre;
    const char* Mejor;  // for White
    const char* Peor;
};

constexpr CasoPareja PAREJAS[] = {
    {"outpost held by a pawn", "6k1/3n4/8/3N4/4P3/8/8/6K1 w - - 0 1", "6k1/3n4/8/3N4/3P4/8/8/6K1 w - - 0 1"},
    {"outpost out of reach of pawns", "6k1/1p6/3p4/3N4/4P3/8/8/6K1 w - - 0 1", "6k1/2p5/3p4/3N4/4P3/8/8/6K1 w - - 0 1"},
    {"outpost that no minor can take", "5bk1/8/8/3N4/4P3/8/8/6K1 w - - 0 1", "4b1k1/8/8/3N4/4P3/8/8/6K1 w - - 0 1"},
    {"bishop outpost", "6k1/8/8/3B4/2P5/8/8/6K1 w - - 0 1", "6k1/8/8/3B4/8/2P5/8/6K1 w - - 0 1"},
    {"good bishop", "6k1/8/8/8/4P3/8/8/2B3K1 w - - 0 1", "6k1/8/8/8/3P4/8/8/2B3K1 w - - 0 1"},
    {"bad bishop, centre not blocked", "6k1/8/8/8/3P4/8/8/2B3K1 w - - 0 1", "6k1/8/8/3p4/3P4/8/8/2B3K1 w - - 0 1"},
    {"free bishop on a7", "6k1/B1p5/8/1p6/8/8/8/6K1 w - - 0 1", "6k1/B1p5/1p6/8/8/8/8/6K1 w - - 0 1"},
    {"free bishop on h6", "k7/8/6pB/8/8/8/8/K7 w - - 0 1", "k7/8/7B/6p1/8/8/8/K7 w - - 0 1"},
    {"free knight in the corner", "N5k1/1p6/8/8/8/8/8/6K1 w - - 0 1", "N5k1/p7/8/8/8/8/8/6K1 w - - 0 1"},
    {"queen stays at home", "6k1/8/8/8/8/8/3Q4/1NB2BNK w - - 0 1", "6k1/8/8/8/3Q4/8/8/1NB2BNK w - - 0 1"},
    {"queen on the seventh", "6k1/Q7/8/8/8/8/8/6K1 w - - 0 1", "8/Q7/6k1/8/8/8/8/6K1 w - - 0 1"},
    {"knight behind its pawn", "6k1/8/8/8/2P5/2N5/8/6K1 w - - 0 1", "6k1/8/8/8/1P6/2N5/8/6K1 w - - 0 1"},
};

TEST_F(Piezas, CadaRasgoSeNota) {
    for (const CasoPareja& caso : PAREJAS)
        for (const bool reflejada : {false, true}) {
            SCOPED_TRACE(caso.Nombre);
            const auto Puntos = [&](const char* fen) {
                CargarPosicion(fen, reflejada);
                LimpiarPuntuacion(0);
                EvaluarPiezasTableroJuego();
                return reflejada ? Negras.Puntos_OP : Blancas.Puntos_OP;
            };
            EXPECT_GT(Puntos(caso.Mejor), Puntos(caso.Peor));
        }
}

TEST_F(Piezas, AtaqueALaZonaDelRey) {
    struct Caso {
        const char* Nombre;
        const char* Fen;
        int         Valor;
        int         Numero;
    };
    // Weights: knight 9, bishop 8, queen 13 a square; 3 for each of the three squares in front of the zone.
    constexpr Caso CASOS[] = {
        {"far away", "6k1/8/8/8/8/8/8/N1B3K1 w - - 0 1", 3, 0},
        {"knight on two squares", "6k1/8/8/6N1/8/8/8/1K6 w - - 0 1", 2 * 9, 1},
        {"knight gives check", "6k1/8/5N2/8/8/8/8/1K6 w - - 0 1", (2 + 1) * 9, 1},
        {"bishop through g6 to h7", "6k1/8/8/8/8/3B4/8/1K6 w - - 0 1", 8 + 3, 1},
        {"... that a pawn guards", "6k1/5p2/8/8/8/3B4/8/1K6 w - - 0 1", 8, 1},
        {"queen and bishop", "6k1/8/8/8/8/3B4/3Q4/1K6 w - - 0 1", 8 + 3 + 3, 1},
        {"queen on h5 and knight", "6k1/8/8/6NQ/8/8/8/1K6 w - - 0 1", 2 * 9 + 3 * 13 + 2 * 3, 2},
    };
    for (const Caso& caso : CASOS)
        for (const bool reflejada : {false, true}) {
            SCOPED_TRACE(caso.Nombre);
            CargarPosicion(caso.Fen, reflejada);
            LimpiarPuntuacion(0);
            EvaluarPiezasTableroJuego();
            EXPECT_EQ((reflejada ? Negras : Blancas).Ataque_Valor, caso.Valor);
            EXPECT_EQ((reflejada ? Negras : Blancas).Ataque_Numero, caso.Numero);
        }
}

}  // namespace
