// What tests of positions share: a fixed start, FENs and mirror images, moves by their text, random games and boards.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "board/Bando.h"
#include "board/Color.h"
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

// What accion prints.
inline std::string Capturar(const std::function<void()>& accion) {
    testing::internal::CaptureStdout();
    accion();
    std::fflush(stdout);
    return testing::internal::GetCapturedStdout();
}

// Text between the last place of a word in the text and the next blank.
inline std::string Tras(const std::string& texto, const std::string& palabra) {
    const std::size_t lugar = texto.rfind(palabra + " ");
    if (lugar == std::string::npos) return "";
    const std::size_t inicio = lugar + palabra.size() + 1;
    return texto.substr(inicio, texto.find_first_of(" \n", inicio) - inicio);
}

// Exchanges colours, ranks and the side to move.
inline void Reflejar() {
    RegistroTablero&      t     = TableroGlobal;
    const RegistroTablero antes = t;
    VaciarTablero();
    for (int casilla = 0; casilla < 64; ++casilla)
        if (const int pieza = antes.Casillas[casilla]; pieza != VACIO)
            PonerPieza(casilla ^ 56, pieza + (pieza < VACIO ? DESFASE_NEGRO : -DESFASE_NEGRO));
    const int rey_blanco = std::exchange(t.PosicionReyBlanco, t.PosicionReyNegro ^ 56);
    t.PosicionReyNegro   = rey_blanco ^ 56;
    std::swap(t.EnroqueBlancas, t.EnroqueNegras);
    if (t.FichaAlPaso != 0) t.FichaAlPaso ^= 56;
    t.Turno     = 1 - t.Turno;
    t.TurnoRaiz = 1 - t.TurnoRaiz;
    t.Key       = ObtenerKey();
    std::swap(Blancas, Negras);
}

inline void Fen(const std::string& fen, bool reflejada = false) {
    Position_Fen_Startpos((" fen " + fen).c_str());
    if (reflejada) Reflejar();
}

// The FEN of a board given as 64 letters, '1' for an empty square.
inline std::string EscribirFen(std::string casillas, char turno) {
    for (std::size_t fila = 7; fila > 0; --fila) casillas.insert(fila * 8, "/");
    return casillas + ' ' + turno + " - - 0 1";
}

// A board that no game reaches: so many men of the given kinds, anywhere.
inline std::string TableroAlAzar(std::mt19937& azar, std::size_t hombres, const std::string& clases) {
    std::string casillas(64, '1');
    for (std::size_t n = 0; n < hombres; ++n) casillas[azar() % 64] = clases[azar() % clases.size()];
    return EscribirFen(casillas, azar() % 2 == 0 ? 'w' : 'b');
}

inline std::vector<std::uint32_t> Generar(int modo = GENERAR_TODOS) {
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

// The pseudo-legal move with this text, 0 = none.
inline std::uint32_t Buscado(const std::string& texto) {
    for (const std::uint32_t mov : Generar())
        if (Texto(mov) == texto) return mov;
    return 0;
}

// Plays legal moves as a search does, one ply each.
inline void Jugar(const std::vector<std::string>& jugadas) {
    for (const std::string& texto : jugadas) {
        const std::uint32_t mov = Buscado(texto);
        ASSERT_NE(mov, 0U) << texto;
        ASSERT_EQ(HacerMovimiento(mov), 1) << texto;
    }
}

// Calls visitar(move list) in every position of games of random legal moves from the current position. All moves of a
// game are taken back at its end.
template <typename Visita>
void PartidasAlAzar(int partidas, int plies, Visita visitar) {
    std::mt19937 azar(7);
    for (int partida = 0; partida < partidas; ++partida) {
        int hechos = 0;
        for (bool jugado = true; jugado && hechos < plies; hechos += jugado ? 1 : 0) {
            std::vector<std::uint32_t> movimientos = Generar();
            visitar(movimientos);
            std::shuffle(movimientos.begin(), movimientos.end(), azar);
            jugado = std::any_of(movimientos.begin(), movimientos.end(), [](std::uint32_t mov) {
                const bool legal = HacerMovimiento(mov) != 0;
                if (!legal) DeshacerMovimiento();
                return legal;
            });
        }
        while (hechos-- > 0) DeshacerMovimiento();
    }
}

// The six positions whose perft totals are published.
constexpr const char* POSICIONES[] = {
    "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1",
    "r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1",
    "8/2p5/3p4/KP5r/1R3p1k/8/4P1P1/8 w - - 0 1",
    "r3k2r/Pppp1ppp/1b3nbN/nP6/BBP1P3/q4N2/Pp1P2PP/R2Q1RK1 w kq - 0 1",
    "rnbq1k1r/pp1Pbppp/2p5/8/2B5/8/PPP1NnPP/RNBQK2R w KQ - 1 8",
    "r4rk1/1pp1qppp/p1np1n2/2b1p1B1/2B1P1b1/P1NP1N2/1PP1QPPP/R4RK1 w - - 0 10",
};
