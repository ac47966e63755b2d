// Static exchange evaluation: what a capture that has just been made is worth after all recaptures.
#pragma once

#include <array>
#include <cstdint>

#include "board/Tablero.h"

// Values for exchanges and for delta pruning, centipawns, by piece code; 0 for codes that name no piece.
inline constexpr std::array<int, 16> VALOR_PIEZA = {0,   100, 325, 325, 500,  1000,  10000, 0,
                                                    100, 325, 325, 500, 1000, 10000, 0,     0};

// movimiento: the capture just made on TableroGlobal. bando: the side now to move (1 white, 0 black), which
// recaptures first. Returns centipawns from the capturer's point of view; 0 for a move that captures nothing, en
// passant included. The sum deliberately leaves out the gain of the last recapture. The board is left as it was.
int See(std::uint32_t movimiento, int bando);

// Finds the least valuable piece of bando that can capture on casilla without leaving its king in check, makes that
// capture on the squares and king squares alone, keeps it for undoing by See and returns its word, 0 = none. Pawns
// that arrive on the last rank become queens.
std::uint32_t Obtener_Ataques_Menores(int casilla, int bando);

// Empties the store of exchange moves.
void IniciarSee();
