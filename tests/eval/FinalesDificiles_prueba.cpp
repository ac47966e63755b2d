#include "eval/finales/Dificiles.h"

#include <algorithm>
#include <cstdlib>
#include <random>

#include "board/Puntuacion.h"
#include "eval/PosicionPrueba.h"

namespace {

enum Juicio { TABLAS, POCO, VENTAJA, GANADA, NADA, OTRO };  // 0; less than a pawn; 300 to 2000; VICTORIA on; silent

struct Caso {
    const char* nombre;
    const char* fen;  // the stronger side is White
    Juicio      juicio;
};

Juicio Juzgar(int puntos) {
    if (puntos == NO_RECONOCIDO) return NADA;
    if (puntos == 0) return TABLAS;
    if (std::abs(puntos) < 100) return POCO;
    if (puntos >= 300 && puntos <= 2000) return VENTAJA;
    return puntos >= VICTORIA && puntos <= VICTORIA_MAXIMA ? GANADA : OTRO;
}

// White's view of the answer, with the colours exchanged when reflejada.
int Puntos(const char* fen, bool reflejada) {
    CargarPosicion(fen, reflejada);
    const int puntos = EvaluarFinalesDificiles();
    if (puntos == NO_RECONOCIDO) return puntos;
    return TableroGlobal.Turno == (reflejada ? NEGRO : BLANCO) ? puntos : -puntos;
}

}  // namespace

using FinalesDificiles = Evaluacion;

TEST_F(FinalesDificiles, PosicionesConocidas) {
    const Caso CASOS[] = {
        {"bare queen", "8/8/8/4k3/8/8/8/KQ6 b - - 0 1", GANADA},
        {"bishop and knight", "8/8/8/4k3/8/8/8/KBN5 w - - 0 1", GANADA},
        {"unlike bishops", "8/8/8/4k3/8/8/8/KBB5 w - - 0 1", GANADA},
        {"like bishops", "8/8/8/4k3/8/B7/8/K1B5 w - - 0 1", TABLAS},
        {"pawn with the opposition", "4k3/8/4K3/4P3/8/8/8/8 b - - 0 1", GANADA},
        {"pawn without it", "8/4k3/8/4K3/4P3/8/8/8 w - - 0 1", TABLAS},
        {"doubled rook pawns", "k7/8/1K6/P7/P7/8/8/8 w - - 0 1", TABLAS},
        {"wrong bishop", "k7/8/1K6/P7/8/4B3/8/8 w - - 0 1", TABLAS},
        {"right bishop", "k7/8/1K6/P7/8/5B2/8/8 w - - 0 1", NADA},
        {"wrong bishop, king far away", "8/8/P7/8/2K5/4B3/8/7k w - - 0 1", GANADA},
        {"knight tied to the rook pawn", "8/Pk6/8/1N6/8/8/8/K7 w - - 0 1", TABLAS},
        {"knight on the corner", "8/Pk6/1N6/8/8/4K3/8/8 w - - 0 1", NADA},
        {"Philidor", "4k3/8/r7/3KP3/8/8/8/7R b - - 0 1", POCO},
        {"Philidor, checks from behind", "4k3/8/4P3/3K4/8/8/8/R3r3 b - - 0 1", POCO},
        {"back rank, knight pawn", "1k1r4/8/1P6/K7/8/8/8/6R1 w - - 0 1", POCO},
        {"back rank, centre pawn", "3k3r/8/3PK3/8/8/8/8/6R1 w - - 0 1", NADA},
        {"Vancura", "R7/6k1/P4r2/1K6/8/8/8/8 w - - 0 1", NADA},
        {"Vancura, king far", "R7/6k1/P4r2/8/3K4/8/8/8 w - - 0 1", POCO},
        {"Lucena", "1K1k4/1P6/8/8/8/8/r7/2R5 w - - 0 1", VENTAJA},
        {"rook pawn is no Lucena", "K1k5/P7/8/8/8/8/1r6/2R5 w - - 0 1", NADA},
        {"rook stops the pawn", "8/8/8/8/8/4k3/4p3/R3K3 w - - 0 1", VENTAJA},
        {"pawn too far", "8/8/8/8/K7/6p1/5k2/1R6 b - - 0 1", POCO},
        {"queen against a-pawn", "8/8/8/8/4K2Q/8/p7/1k6 w - - 0 1", POCO},
        {"queen against b-pawn", "8/8/8/8/4K2Q/8/1p6/k7 w - - 0 1", VENTAJA},
        {"queen against c-pawn", "6K1/8/8/8/7Q/8/2p5/1k6 w - - 0 1", POCO},
        {"queen against d-pawn", "6K1/8/8/8/7Q/8/3p4/2k5 w - - 0 1", VENTAJA},
        {"queen against f-pawn", "1K6/8/8/8/Q7/8/5p2/6k1 w - - 0 1", POCO},
        {"queen against c-pawn, king near", "8/8/8/8/7Q/3K4/2p5/1k6 w - - 0 1", VENTAJA},
        {"third-rank fortress", "8/1kp5/3r4/8/3K4/8/8/7Q w - - 0 1", POCO},
        {"king before the pawn, like bishops", "8/8/3k4/3P4/4K3/8/6B1/7b w - - 0 1", TABLAS},
        {"king before the pawn, knight", "8/8/3k4/3P4/4K3/8/6B1/n7 w - - 0 1", TABLAS},
        {"king on the bishop's colour", "8/3k4/8/3P4/3K4/8/6B1/7b w - - 0 1", NADA},
        {"opposite bishops, a pawn more", "8/3k4/8/3P4/3K4/8/6B1/b7 w - - 0 1", POCO},
        {"opposite bishops, three pawns more", "8/3k4/8/3P4/3K4/7P/5PB1/b7 w - - 0 1", NADA},
        {"queen against rook", "8/8/8/4k3/3r4/8/8/KQ6 b - - 0 1", VENTAJA},
        {"middlegame", "r3k2r/8/8/8/8/8/8/R3K2R w - - 0 1", NADA},
    };
    for (const Caso& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        const int puntos = Puntos(caso.fen, false);
        EXPECT_EQ(Juzgar(puntos), caso.juicio) << puntos;
        EXPECT_EQ(Puntos(caso.fen, true), puntos);
    }
}

TEST_F(FinalesDificiles, ElGradienteLlevaAlMate) {
    const struct {
        const char* peor;
        const char* mejor;
    } PARES[] = {
        {"8/8/8/4k3/8/8/8/KR6 w - - 0 1", "4k3/8/8/8/8/8/8/KR6 w - - 0 1"},         // the edge
        {"4k3/8/8/8/8/8/8/KR6 w - - 0 1", "4k3/8/4K3/8/8/8/8/1R6 w - - 0 1"},       // the kings together
        {"k7/8/2K5/8/8/8/8/2B1N3 w - - 0 1", "7k/8/5K2/8/8/8/8/2B1N3 w - - 0 1"},   // dark bishop: h8, not a8
        {"7k/8/5K2/8/8/8/8/3N1B2 w - - 0 1", "k7/8/2K5/8/8/8/8/3N1B2 w - - 0 1"},   // light bishop: a8, not h8
        {"k7/8/2K5/8/8/8/8/2B1N3 w - - 0 1", "3k4/8/2K5/8/8/8/8/2B1N3 w - - 0 1"},  // out of the wrong corner
        {"4k3/8/4K3/4P3/8/8/8/8 b - - 0 1", "4k3/8/4K3/8/8/8/8/1R6 w - - 0 1"},     // each promotion pays
        {"4k3/8/4K3/8/8/8/8/1R6 w - - 0 1", "4k3/8/4K3/8/8/8/8/1Q6 w - - 0 1"},
        {"1K1k4/1P6/8/8/8/8/r7/2R5 w - - 0 1", "1Q1k4/8/8/8/8/8/r7/K7 w - - 0 1"},
    };
    for (const auto& par : PARES) {
        SCOPED_TRACE(par.mejor);
        EXPECT_LT(Puntos(par.peor, false), Puntos(par.mejor, false));
    }
}

TEST_F(FinalesDificiles, PosicionesAbsurdasDanUnaPuntuacionAcotada) {
    std::mt19937 azar(3);
    const char   PIEZAS[] = "PNBRQKpnbrqk";
    for (int i = 0; i < 20000; ++i) {
        // Any piece anywhere, kings and pawns on the last ranks included; few or many men.
        std::string tablero(64, '1');
        const auto  hombres = azar() % (i % 2 == 0 ? 6 : 64);
        const auto  clases  = i % 3 == 0 ? 6U : 12U;  // a third has one colour only
        for (unsigned k = 0; k < hombres; ++k) tablero[azar() % 64] = PIEZAS[azar() % clases];
        for (int fila = 7; fila > 0; --fila) tablero.insert(static_cast<std::size_t>(fila * 8), "/");
        const std::string fen = tablero + (azar() % 2 == 0 ? " w - - 0 1" : " b - - 0 1");
        CargarPosicion(fen);
        const int puntos = EvaluarFinalesDificiles();
        ASSERT_TRUE(puntos == NO_RECONOCIDO || std::abs(puntos) <= VICTORIA_MAXIMA) << fen;
        // With several kings of a colour there is no telling which one is meant.
        if (std::count(fen.begin(), fen.end(), 'K') > 1 || std::count(fen.begin(), fen.end(), 'k') > 1) continue;
        ReflejarPosicion();
        ASSERT_EQ(EvaluarFinalesDificiles(), puntos) << fen;
    }
}
