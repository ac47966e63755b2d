// Zobrist keys: hashing of positions by XOR of random numbers (Zobrist, 1970).
#pragma once

#include <cstdint>

#include "board/Tablero.h"

// Row = piece code, column = square. Row 0: en passant, by the square of the pawn that may be taken. Row 7:
// castling, column 63 - state for White and column state for Black.
extern std::uint64_t zobrist_Tablero[CODIGOS][64];
extern std::uint64_t zobrist_Turno;  // present when White is to move

constexpr int FILA_AL_PASO = 0;
constexpr int FILA_ENROQUE = VACIO;

// Seeds the C library's generator and draws all keys. Keys are even: bit 0 is never drawn.
void InicializarZobrist(unsigned semilla);

// A new key that is acceptable beside all those in zobrist_Tablero.
std::uint64_t rand64();

// The key of the current position from scratch.
std::uint64_t ObtenerKey();
