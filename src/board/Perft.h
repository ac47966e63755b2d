// The "perft" command: counts the leaves of the legal move tree, to verify generation and make/unmake.
#pragma once

#include <cstdint>

#include "board/Movimiento.h"

// Leaves below one legal root move.
struct JugadaPerft {
    std::uint32_t Movimiento;
    int           Hojas;
};

// Counts of one perft. Every counter stops at the largest value of its type.
struct RegistroPerft {
    std::uint64_t Nodos;     // leaves
    int           Capturas;  // of the last moves; en passant included
    int           CapturasAlPaso;
    int           Enroques;
    int           Coronaciones;
    int           PosicionesPorJugada;  // leaves below the root move being examined
    int           NumeroJugadas;
    JugadaPerft   Jugadas[MOVIMIENTOS_MAX];  // legal root moves in generation order
};
extern RegistroPerft ContadorPerft;

// Counts the current position's tree into ContadorPerft, root move by root move. profundidad in plies, 0..32; 0 counts
// nothing.
void ListaJugadas(int profundidad);

// texto: what follows the word "perft". Prints the counts, time, speed and the "Divide" list of root moves; prints
// nothing when the depth is not a number. The depth is capped at 32.
void Perft(const char* texto);
