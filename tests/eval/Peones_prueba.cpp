#include "eval/Terminos.h"

#include "eval/PosicionPrueba.h"

namespace {

struct CasoPeones {
    const char* nombre;
    const char* fen;
    Mitades     puntos;  // of the white pawns; added up by hand in the order of the comment
};

// The knight of some positions keeps the rule of the square out.
constexpr CasoPeones CASOS[] = {
    // doubled + isolated + passed + square
    {"doubled, both passed", "4k2n/8/8/8/8/P7/P7/4K3 w - - 0 1", {-12 - 40 + 24 - 30, -24 - 40 + 20 + 21 + 6}},
    // isolated + passed + unstoppable + square
    {"runs alone", "8/P7/8/8/8/8/8/k6K w - - 0 1", {-20 + 130 + 400 - 15, -20 + 191 + 400 + 3}},
    {"king in the square", "1k6/P7/8/8/8/8/8/7K b - - 0 1", {-20 + 130 - 15, -20 + 156 + 3}},
    {"the move decides, won", "8/8/4k3/P7/8/8/8/7K w - - 0 1", {-20 + 50 + 300 - 15, -20 + 70 + 300 + 3}},
    {"the move decides, lost", "8/8/4k3/P7/8/8/8/7K b - - 0 1", {-20 + 50 - 15, -20 + 70 + 3}},
    {"no double step for the rule", "8/8/4k3/8/8/8/P7/7K w - - 0 1", {-20 + 12 - 15, -20 + 20 + 3}},
    // isolated + passed + square + centre
    {"blocked by a piece", "k7/8/4n3/4P3/8/8/8/7K w - - 0 1", {-20 + 40 + 15 + 5, -20 + 61 - 3}},
    {"blocked by its own king", "k6n/8/4K3/4P3/8/8/8/8 w - - 0 1", {-20 + 50 + 15 + 5, -20 + 77 - 3}},
    {"enemy pawn beside it", "4k1n1/8/8/3Pp3/8/8/8/4K3 w - - 0 1", {-20 + 50 + 15 + 5, -20 + 67 - 3}},
    {"a pawn of the far edge is not beside it", "4k1n1/8/7p/P7/8/8/8/4K3 w - - 0 1", {-20 + 50 - 15, -20 + 77 + 3}},
    // the pawn in front passed, its follower shut: doubled + isolated + passed + squares + centre
    {"enemy pawn behind both",
     "4k1n1/8/8/3P4/3P4/3p4/8/4K3 w - - 0 1",
     {-12 - 20 - 10 + 50 + 15 + 15 + 5, -24 - 20 - 20 + 67 - 3 - 3}},
    // backward + phalanx + squares
    {"backward behind a pawn", "4k3/2ppp3/8/8/3PP3/2P5/8/4K3 w - - 0 1", {-9 + 26 + 35, -8 + 6 - 7}},
    {"backward on an open file", "4k3/1p1pp3/8/8/3PP3/2P5/8/4K3 w - - 0 1", {-9 - 8 + 26 + 35, -8 + 6 - 7}},
    {"never backward on the edge", "4k3/pp6/8/8/1P6/P7/8/4K3 w - - 0 1", {3 - 20, 2 + 4}},
    {"phalanx before defence",
     "4k3/1ppp4/8/8/2PP4/1P6/8/4K3 w - - 0 1",
     {-7 + 8 + 13 - 5 + 5 + 15, -8 + 2 + 3 + 1 - 1 - 3}},
    {"no phalanx round the edge", "4k3/p6p/8/7P/P7/8/8/4K3 w - - 0 1", {-20 - 30, -40 + 6}},
    // phalanx + candidate + squares
    {"candidate", "4k3/8/2p5/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8 + 10, 4 + 20}},
    {"a pawn on the far side joins too late", "4k3/4p3/2p5/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8 + 10, 4 + 20}},
    {"denied from two files away", "4k3/p7/2p5/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8, 4}},
    {"denied from the next file", "4k3/3p4/2p5/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8, 4}},
    {"king's side, denied from the h file", "4k3/7p/5p2/8/5PP1/8/8/4K3 w - - 0 1", {6 + 8, 4}},
    {"lever three squares away is none", "4k3/2p5/8/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8, 4}},
    {"no pawns", "4k3/pppppppp/8/8/8/8/8/4K3 w - - 0 1", {0, 0}},
};

class Peones : public Evaluacion {};

TEST_F(Peones, CasosSumadosAMano) {
    for (const CasoPeones& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        CargarPosicion(caso.fen);
        EXPECT_EQ(PuntosDe(EvaluarPeonesB, Blancas), caso.puntos);
        CargarPosicion(caso.fen, true);
        EXPECT_EQ(PuntosDe(EvaluarPeonesN, Negras), caso.puntos) << "mirrored";
    }
}

}  // namespace
