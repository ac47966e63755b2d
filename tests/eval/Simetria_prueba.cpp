// A position and its mirror image (colours and ranks exchanged) score the same for the side to move, in total and
// in every accumulator. The one exception that is meant, the side weights, follows the side to move at the root and is
// mirrored with it. The first pawn of a file and the first rook of a side are chosen by each colour's own view of
// the board, and the lone cells of the imbalance table stand mirrored in it, so they need no exception.
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "eval/PosicionPrueba.h"

namespace {

constexpr const char* POSICIONES[] = {
    "r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1",
    "r3k2r/Pppp1ppp/1b3nbN/nP6/BBP1P3/q4N2/Pp1P2PP/R2Q1RK1 w kq - 0 1",
    "rnbq1k1r/pp1Pbppp/2p5/8/2B5/8/PPP1NnPP/RNBQK2R w KQ - 1 8",
    "r4rk1/1pp1qppp/p1np1n2/2b1p1B1/2B1P1b1/P1NP1N2/1PP1QPPP/R4RK1 w - - 0 10",
    "rnbqk2r/ppp1bppp/4pn2/3p4/2PP4/5NP1/PP2PPBP/RNBQK2R b KQkq - 1 5",
    "r2q1rk1/pb1nbppp/1p2pn2/2pp4/3P1B2/2PBPN2/PP1N1PPP/R2Q1RK1 w - - 2 10",
    "2kr3r/pppq1ppp/2npbn2/2b1p3/2B1P3/2NPBN2/PPPQ1PPP/2KR3R w - - 8 9",
    "r1bq1rk1/1p2bppp/p1nppn2/8/3NPP2/2N1B3/PPP1B1PP/R2Q1RK1 b - - 0 10",
    "3r2k1/1p3ppp/p1q1pn2/8/2P5/1P2Q1P1/PB3P1P/3R2K1 b - - 0 20",
    "6k1/5ppp/8/3Q4/8/4q3/6PP/5R1K w - - 0 1",
    "1k1r4/pp1b1R2/3q2pp/4p3/2B5/4Q3/PPP2B2/2K5 b - - 0 1",
    "2r3k1/pppR1pp1/4p3/4P1P1/5P2/1P4K1/P1P5/8 w - - 0 1",
    "4b3/p3kp2/6p1/3pP2p/2pP1P2/4K1P1/P3N2P/8 w - - 0 1",
    "8/2p5/3p4/KP5r/1R3p1k/8/4P1P1/8 w - - 0 1",
    "r1r3k1/1R2pp1p/6p1/8/8/6P1/1R2PP1P/6K1 w - - 0 1",
    "8/8/4k3/8/2p5/8/B2K4/8 w - - 0 1",
    "8/8/1p1k4/8/1P6/2K5/8/8 w - - 0 1",
    "8/1P6/8/8/8/k7/8/K7 w - - 0 1",
    "4k3/8/8/8/8/8/4P3/4K3 b - - 0 1",
    "8/P7/1K6/8/8/8/8/k7 b - - 0 1",
    "8/8/8/8/8/1k6/p7/K7 w - - 0 1",
    "8/8/8/8/5B2/6KP/8/7k w - - 0 1",
    "7k/7P/6K1/8/3B4/8/8/8 b - - 0 1",
    "4k3/8/8/8/8/8/8/Q3K3 w - - 0 1",
    "4k3/8/8/8/8/8/8/R3K3 b - - 0 1",
    "8/8/8/3k4/8/8/8/2B1KB2 w - - 0 1",
    "7k/8/5K2/8/3N4/8/8/5B2 w - - 0 1",
    "4k3/8/8/8/8/8/8/1N2K1N1 w - - 0 1",
    "1K1k4/1P6/8/8/8/8/r7/2R5 w - - 0 1",
    "3k4/8/8/1PK5/r7/8/8/7R b - - 0 1",
    "8/1r6/4k3/8/4KP2/8/8/6R1 w - - 0 1",
    "8/8/8/8/4k3/4p3/8/3RK3 w - - 0 1",
    "8/8/8/8/7k/1p6/8/2R4K b - - 0 1",
    "8/8/8/8/8/2Q2K2/p7/k7 w - - 0 1",
    "8/8/2Q5/8/8/5K2/2p5/1k6 w - - 0 1",
    "8/5k2/4p3/3bP3/3P1K2/4B3/8/8 w - - 0 1",
    "8/5k2/3bp3/3pP3/3P1K2/4B3/8/8 b - - 0 1",
    "5k2/8/8/8/3q4/8/3R4/4KB2 w - - 0 1",
    "8/8/3k4/8/8/1r6/3N4/3RK3 w - - 0 1",
    "8/k7/P7/K7/8/8/8/8 w - - 0 1",
    "k7/8/P7/1K6/8/8/8/2B5 w - - 0 1",
    "q7/8/8/8/8/2k5/8/1RBK4 w - - 0 1",
    "8/pp3k2/2p5/3p4/3P4/2P5/PP3K2/8 w - - 0 1",
    "8/5pk1/6p1/P2n3p/7P/6P1/3N1PK1/8 b - - 0 1",
    "rnbqkb1r/pp2pppp/3p1n2/8/3pP3/5N2/PPP2PPP/RNBQKB1R w KQkq - 0 5",
    "r1b1k2r/ppppqppp/2n2n2/8/1bP2B2/2N2N2/PP2PPPP/R2QKB1R b KQkq - 0 7",
    "rn3rk1/pbppq1pp/1p2pb2/4N2Q/3PN3/3B4/PPP2PPP/R3K2R w KQ - 0 1",
    "r3r1k1/ppqb1ppp/8/4p1NQ/8/2P5/PP3PPP/R3R1K1 b - - 0 1",
    "8/8/p1p5/1p5p/1P5p/8/PPP2K1p/4R1rk w - - 0 1",
    "1nk1r1r1/pp2n1pp/4p3/q2pPp1N/b1pP1P2/B1P2R2/2P1B1PP/R2Q2K1 w - - 0 1",
    "4k2r/1pb2ppp/1p2p3/1R1p4/3P4/2r1PN2/P4PPP/1R4K1 b - - 0 22",
    "8/1b4kp/6p1/p1q5/2P1p3/1P2Q1P1/P3PPKP/3R4 b - - 0 1",
    "2q1rr1k/3bbnnp/p2p1pp1/2pPp3/PpP1P1P1/1P2BNNP/2BQ1PRK/7R b - - 0 1",
    "7r/BP3k2/P7/7p/6pP/7R/bp4r1/RN4K1 w - - 0 1",
};

constexpr std::pair<const char*, int RegistroBando::*> CAMPOS[] = {
    {"Puntos_OP", &RegistroBando::Puntos_OP},           {"Puntos_EG", &RegistroBando::Puntos_EG},
    {"Movilidad_OP", &RegistroBando::Movilidad_OP},     {"Movilidad_EG", &RegistroBando::Movilidad_EG},
    {"Tropismo_OP", &RegistroBando::Tropismo_OP},       {"Tropismo_EG", &RegistroBando::Tropismo_EG},
    {"Ataque_Valor", &RegistroBando::Ataque_Valor},     {"Ataque_Numero", &RegistroBando::Ataque_Numero},
    {"Peones_Septima", &RegistroBando::Peones_Septima},
};

std::string Fen() {
    std::string fen;
    for (int casilla = 0; casilla < 64; ++casilla) {
        const int pieza = TableroGlobal.Casillas[casilla];
        fen += pieza == VACIO ? '1' : "PNBRQK pnbrqk"[pieza - 1];
        if (casilla % 8 == 7) fen += casilla == 63 ? ' ' : '/';
    }
    return fen + (TableroGlobal.Turno == BLANCO ? 'w' : 'b');
}

void CompararConReflejo() {
    SCOPED_TRACE(Fen());
    Iniciar_Asimetrico();
    const int           puntos  = Evaluar();
    const RegistroBando blancas = Blancas;
    const RegistroBando negras  = Negras;

    ReflejarPosicion();
    Iniciar_Asimetrico();
    ASSERT_EQ(Evaluar(), puntos);
    for (const auto& [nombre, campo] : CAMPOS) {
        EXPECT_EQ(Negras.*campo, blancas.*campo) << nombre << " of White";
        EXPECT_EQ(Blancas.*campo, negras.*campo) << nombre << " of Black";
    }
    // A rank is a byte of a set.
    EXPECT_EQ(__builtin_bswap64(Negras.Objetivos), blancas.Objetivos);
    EXPECT_EQ(__builtin_bswap64(Blancas.Objetivos), negras.Objetivos);
    ReflejarPosicion();
}

class Simetria : public Evaluacion {};

TEST_F(Simetria, PosicionesElegidas) {
    for (const char* fen : POSICIONES)
        for (const int turno : {BLANCO, NEGRO}) {
            CargarPosicion(fen);
            TableroGlobal.Turno = turno;
            CompararConReflejo();
        }
}

// Plays one of the legal moves at random; false when there is none.
bool JugarAlAzar(std::mt19937& azar) {
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_TODOS, lista);
    std::shuffle(lista.Entradas, lista.Entradas + numero, azar);
    for (int i = 0; i < numero; ++i) {
        TableroGlobal.Ply = 0;
        if (HacerMovimiento(lista.Entradas[i].Movimiento) != 0) return true;
        DeshacerMovimiento();
    }
    return false;
}

TEST_F(Simetria, PartidasAlAzar) {
    std::mt19937 azar(5);
    for (int partida = 0; partida < 60; ++partida) {
        CargarPosicion(FEN_INICIAL);
        for (int ply = 0; ply < 250 && JugarAlAzar(azar); ++ply)
            if (ply % 7 == 3) {
                TableroGlobal.Ply = ply % PLIES_MAX;
                CompararConReflejo();
                if (HasFailure()) return;
            }
    }
}

}  // namespace
