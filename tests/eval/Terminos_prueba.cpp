// The terms whose values are settled: each position and its mirror image, added up by hand.
#include <cstring>

#include "eval/Evaluacion.h"
#include "eval/SeguridadRey.h"
#include "eval/Terminos.h"

using Terminos = Evaluacion;

static void TorresDeAmbos() {
    EvaluarTorreB();
    EvaluarTorreN();
}

struct Caso {
    const char* nombre;
    const char* fen;
    Aporte      esperado;
};

template <std::size_t N>
static void CompararCasos(const Caso (&casos)[N], std::initializer_list<Parte> partes) {
    for (const Caso& caso : casos)
        for (const bool reflejada : {false, true})
            EXPECT_EQ(AporteDe(caso.fen, reflejada, partes), caso.esperado)
                << caso.nombre << (reflejada ? ", mirrored" : "");
}

// clang-format off
constexpr Caso APERTURA[] = {
    {"e2 blocked by its own piece", "4k3/8/8/8/8/4N3/4P3/4K3 w - - 0 1", {-20, 0}},
    {"bishop f1 shut in", "4k3/8/8/8/8/4N3/4P3/4KB2 w - - 0 1", {-70, 0}},
    {"knight before the c pawn", "4k3/8/8/8/3P4/2N5/2P5/4K3 w - - 0 1", {-20, 0}},
    {"... not with e4 taken", "4k3/8/8/8/3PP3/2N5/2P5/4K3 w - - 0 1", {0, 0}},
    {"two bishops count once", "4k3/8/8/6B1/3P1B2/8/8/4K3 w - - 0 1", {10, 0}},
    {"bishop a4 beside e4", "4k3/8/8/8/B3P3/8/8/4K3 w - - 0 1", {10, 0}},
    {"bishop b5 does not help d4", "4k3/8/8/1B6/3P4/8/8/4K3 w - - 0 1", {0, 0}},
    {"several add up", "4k3/8/8/8/3P1B2/2N1n3/2P1P3/4KB2 w - - 0 1", {-20 - 70 + 10, 0}},
};

// Doubled, isolated, backward, phalanx, defended, candidate, passed, unstoppable, squares, centre. A knight of some
// positions keeps the rule of the square out.
constexpr Caso PEONES[] = {
    {"doubled, both passed", "4k2n/8/8/8/8/P7/P7/4K3 w - - 0 1", {-12 - 40 + 24 - 30, -24 - 40 + 20 + 21 + 6}},
    {"runs alone", "8/P7/8/8/8/8/8/k6K w - - 0 1", {-20 + 130 + 400 - 15, -20 + 191 + 400 + 3}},
    {"the move decides, won", "8/8/4k3/P7/8/8/8/7K w - - 0 1", {-20 + 50 + 300 - 15, -20 + 70 + 300 + 3}},
    {"no double step for the rule", "8/8/4k3/8/8/8/P7/7K w - - 0 1", {-20 + 12 - 15, -20 + 20 + 3}},
    {"blocked by a piece", "k7/8/4n3/4P3/8/8/8/7K w - - 0 1", {-20 + 40 + 15 + 5, -20 + 61 - 3}},
    {"enemy pawn beside it", "4k1n1/8/8/3Pp3/8/8/8/4K3 w - - 0 1", {-20 + 50 + 15 + 5, -20 + 67 - 3}},
    {"a pawn behind both shuts the follower", "4k1n1/8/8/3P4/3P4/3p4/8/4K3 w - - 0 1",
     {-12 - 20 - 10 + 50 + 15 + 15 + 5, -24 - 20 - 20 + 67 - 3 - 3}},
    {"backward on an open file", "4k3/1p1pp3/8/8/3PP3/2P5/8/4K3 w - - 0 1", {-9 - 8 + 26 + 35, -8 + 6 - 7}},
    {"never backward on the edge", "4k3/6pp/8/8/6P1/7P/8/4K3 w - - 0 1", {3 - 20, 2 + 4}},
    {"phalanx before defence", "4k3/1ppp4/8/8/2PP4/1P6/8/4K3 w - - 0 1",
     {-7 + 8 + 13 - 5 + 5 + 15, -8 + 2 + 3 + 1 - 1 - 3}},
    {"candidate, a far pawn joins too late", "4k3/4p3/2p5/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8 + 10, 4 + 20}},
    {"denied from two files away", "4k3/p7/2p5/8/1PP5/8/8/4K3 w - - 0 1", {6 + 8, 4}},
    {"denied from the h file", "4k3/7p/5p2/8/5PP1/8/8/4K3 w - - 0 1", {6 + 8, 4}},
};

// Score, mobility, tropism, attack on the king and its number.
constexpr Caso TORRES[] = {
    {"empty board", "k7/8/8/8/3R4/8/8/7K w - - 0 1", {2 + 14, 14, 14, 28, 14, 7}},
    {"a knight beside it counts", "k7/8/8/3P4/2PRN3/3P4/8/7K w - - 0 1", {2, 0, -12, -24, 14, 7}},
    {"no wrap round the edge", "k7/8/8/8/7R/q7/8/K7 w - - 0 1", {-4 + 14, 14, 14, 28, 6, 3}},
    {"pawns on both sides, one protected", "k7/8/3p4/8/3R4/2p5/3p4/7K w - - 0 1", {2 + 7 + 5, 12, 8, 16, 14, 7}},
    {"pawn behind the queen", "k7/3p4/3q4/8/8/8/8/3R3K w - - 0 1", {4 + 5 + 7, 12, 10, 20, 8, 4}},
    {"faces the queen on a file", "3q3k/8/8/8/8/8/8/K2R4 w - - 0 1", {4 + 14 + 5, 19, 14, 28, 6, 3}},
    {"seventh, king on the eighth", "6k1/R7/8/8/8/8/8/K7 w - - 0 1", {-4 + 30, 46, 14, 28, 14, 7, 27, 1}},
    {"seventh, pawns about to promote", "8/R5k1/8/8/8/8/7p/K7 w - - 0 1", {-4 + 30, 46, 12, 24, 16, 8, 27, 1}},
    {"pair on the seventh", "6k1/RR6/8/8/8/8/8/K7 w - - 0 1", {-6 + 68, 28 + 80, 16, 32, 30, 15, 27, 1}},
    {"trapped by a bishop", "k7/8/8/8/8/7p/6bR/K7 w - - 0 1", {-4 + 7 - 100, -93, -8, -16, 2, 1}},
    {"trapped by a pawn", "7k/8/8/8/8/p7/Rp6/7K w - - 0 1", {-4 + 7 - 180, -173, -8, -16, 2, 1}},
    {"free beside a knight", "k7/8/8/8/8/7p/6nR/K7 w - - 0 1", {-4 + 7, 7, -8, -16, 2, 1}},
    {"check that wins a knight", "4k3/8/8/8/1n2R3/8/8/K6Q w - - 0 1", {2 + 14, 14, 12, 24, 20, 10, 27 + 24, 1}},
    {"same, without a queen", "4k3/8/8/8/1n2R3/8/8/K7 w - - 0 1", {2 + 14, 14, 12, 24, 20, 10, 27, 1}},
    {"same, the exchange loses", "4k3/8/8/p7/1p2R3/P7/8/K6Q w - - 0 1", {2 + 14, 14, 12, 24, 20, 10, 27, 1}},
    {"same, the rook is pinned", "b3k3/8/8/8/1n2R3/8/8/Q6K w - - 0 1", {2 + 14, 14, 12, 24, 20, 10, 27, 1}},
    {"same, rook for rook", "4k3/8/3p4/2r5/4R3/8/8/K6Q w - - 0 1", {2 + 14, 14, 14, 28, 20, 10, 27, 1}},
    {"same, the second is loose", "4k3/p7/8/p7/1p2R2n/P7/8/KQ6 b - - 0 1", {2 + 14, 14, 12, 24, 20, 10, 51, 1}},
};

// Queens, because other attackers have terms of their own, and guarded, because loose pieces have one too; Black to
// move, because the turn adds to attacks on loose pieces.
constexpr Caso COLGADAS[] = {
    {"a loose pawn", "6k1/3p4/8/8/8/8/8/3QK3 b - - 0 1", {11, 19}},
    {"knight that a rook defends", "3r2k1/8/8/3n4/8/8/8/3QK3 b - - 0 1", {0, 0}},
    {"two attackers count once", "6k1/8/8/3n4/8/1Q6/2K5/3Q4 b - - 0 1", {15, 23}},
    {"a loose queen", "6k1/8/8/q7/8/8/3Q4/4K3 b - - 0 1", {25, 33}},
    {"a king in check is no hanging piece", "3k4/8/8/8/8/8/8/3QK3 b - - 0 1", {0, 0}},
};
// clang-format on

TEST_F(Terminos, Apertura) {
    CompararCasos(APERTURA, {EvaluarApertura});
}
TEST_F(Terminos, Peones) {
    CompararCasos(PEONES, {EvaluarPiezasTableroJuego, [] {
                               EvaluarPeonesB();
                               EvaluarPeonesN();
                           }});
}
TEST_F(Terminos, Torres) {
    CompararCasos(TORRES, {EvaluarPiezasTableroJuego, TorresDeAmbos});
}
TEST_F(Terminos, PiezasColgadas) {
    CompararCasos(COLGADAS, {EvaluarPiezasTableroJuego, TorresDeAmbos, EvaluarAmenazas});
}

TEST_F(Terminos, CurvaDelAtaque) {
    for (const auto& [peso, valor] : {std::pair{9, 0},
                                      {10, 1},
                                      {25, 7},
                                      {50, 27},
                                      {100, 107},
                                      {150, 240},
                                      {158, 265},
                                      {175, 318},
                                      {225, 474},
                                      {233, 499},
                                      {234, 500},
                                      {399, 500}})
        EXPECT_EQ(KING_ATTACK_MULTI[peso], valor) << "weight " << peso;
    EXPECT_TRUE(std::is_sorted(std::begin(KING_ATTACK_MULTI.Valores), std::end(KING_ATTACK_MULTI.Valores)));
}

// The captures tried by a checking rook leave no trace, and are not tried where they could not be taken back.
TEST_F(Terminos, ElJaqueProbadoDejaElTableroComoEstaba) {
    for (const int ply : {0, PLIES_MAX - 1}) {
        Fen("4k2r/8/8/p7/1n2R3/8/8/K6Q b k - 5 1");
        LimpiarPuntuacion(0);
        EvaluarPiezasTableroJuego();
        TableroGlobal.Ply           = ply;
        const RegistroTablero antes = TableroGlobal;
        const int             peso  = Blancas.Ataque_Valor;
        TorresDeAmbos();
        EXPECT_EQ(Blancas.Ataque_Valor - peso, ply == 0 ? 27 + 24 : 27);
        EXPECT_EQ(Negras.Caballos, 1);
        TableroGlobal.Deshacer[0]      = antes.Deshacer[0];
        TableroGlobal.HistorialKeys[5] = antes.HistorialKeys[5];
        EXPECT_EQ(std::memcmp(&TableroGlobal, &antes, sizeof antes), 0);
    }
}
