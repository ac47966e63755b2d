// What every test of the board needs: a fixed start and games of random legal moves.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "board/Bando.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Posicion.h"
#include "board/Tablero.h"
#include "board/Zobrist.h"

class Tablero : public testing::Test {
protected:
    void SetUp() override {
        Salir = 0;
        CrearTablaCasillas();
        InicializarZobrist(1);
        Position_Fen_Startpos("startpos");
    }
};

inline void Fen(const std::string& fen) {
    Position_Fen_Startpos((" fen " + fen).c_str());
}

inline std::vector<std::uint32_t> Generar(int modo) {
    ListaMovimientos           lista;
    std::vector<std::uint32_t> movimientos;
    for (int i = 0, numero = GenerarMovimientos(modo, lista); i < numero; ++i)
        movimientos.push_back(lista.Entradas[i].Movimiento);
    return movimientos;
}

inline std::string Texto(std::uint32_t mov) {
    char coordenadas[6];
    MovimientoCoordenadas(mov, coordenadas);
    return coordenadas;
}

// Calls visitar(move list) in every position of games that play random legal moves from the current position. All
// moves of a game are taken back at its end.
template <typename Visita>
void PartidasAlAzar(int partidas, int plies, Visita visitar) {
    std::mt19937 azar(7);
    for (int partida = 0; partida < partidas; ++partida) {
        int hechos = 0;
        while (hechos < plies) {
            std::vector<std::uint32_t> movimientos = Generar(GENERAR_TODOS);
            visitar(movimientos);
            std::shuffle(movimientos.begin(), movimientos.end(), azar);
            bool jugado = false;
            for (const std::uint32_t mov : movimientos) {
                jugado = HacerMovimiento(mov) != 0;
                if (jugado) break;
                DeshacerMovimiento();
            }
            if (!jugado) break;
            ++hechos;
        }
        while (hechos-- > 0) DeshacerMovimiento();
    }
}

constexpr const char* POSICIONES[] = {
    "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1",
    "r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1",
    "8/2p5/3p4/KP5r/1R3p1k/8/4P1P1/8 w - - 0 1",
    "r3k2r/Pppp1ppp/1b3nbN/nP6/BBP1P3/q4N2/Pp1P2PP/R2Q1RK1 w kq - 0 1",
    "rnbq1k1r/pp1Pbppp/2p5/8/2B5/8/PPP1NnPP/RNBQK2R w KQ - 1 8",
    "r4rk1/1pp1qppp/p1np1n2/2b1p1B1/2B1P1b1/P1NP1N2/1PP1QPPP/R4RK1 w - - 0 10",
};
