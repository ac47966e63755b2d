// Pseudo-legal move generation for the side to move.
#pragma once

#include "board/Movimiento.h"

enum ModoGeneracion : int {
    GENERAR_TODOS    = 1,
    GENERAR_CAPTURAS = 2,  // captures, en passant and every promotion
};

// Fills lista and returns the number of moves, 0..256. White's pieces are visited from h1 to a8, Black's from a8
// to h1; the order of the list is part of the engine's play, since ordering keeps it between equal scores.
// Raises Salir and keeps what fits when a board yields 256 moves or more, and when Turno is neither 0 nor 1.
int GenerarMovimientos(int modo, ListaMovimientos& lista);
