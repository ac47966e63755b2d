// The principal variation: the line of best play found so far, kept in a triangular table.
#pragma once

#include <cstdint>

#include "board/Movimiento.h"
#include "board/Tablero.h"

constexpr int ULTIMO_PLY =
    PLIES_MAX - 1;  // no move is made there: lines, killers and the undo stack have no row beyond

extern std::uint32_t pv_line[PLIES_MAX][PLIES_MAX];             // one row a ply, each ending at the first 0
extern std::uint32_t pv_line_fin[PLIES_MAX];                    // line of the last finished iteration
extern std::uint32_t pv_line_Root[MOVIMIENTOS_MAX][PLIES_MAX];  // line last found for each root move
extern int           IndiceMejorRaiz;                           // root move that last raised alpha, -1 = none

void LimpiarLineas();  // empties the three stores

// The line of a ply becomes movimiento and the line of the next ply, which is emptied. ply: below ULTIMO_PLY.
void Actualizar_Pv(int ply, std::uint32_t movimiento);

// Keeps row 0 as the line of a root move (its place in the root's list) and notes that move as the best one.
void Actualizar_Pv_Terminada(int indice);

// Row 0 becomes the line of the best root move, when there is one.
void RecuperarMejorRaiz();
