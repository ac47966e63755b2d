// What the search tells the interface while it runs.
#pragma once

#include <cstdint>

// Prints the "info" line of an iteration, when ShowPv and the limits allow it, and then sets *impresa to 1. puntos:
// score of the iteration, with pv_line row 0 as its line. etiqueta: 1 " lowerbound", -1 " upperbound", 0 none.
void ImprimirPv(int profundidad, int* impresa, int puntos, int etiqueta);

// Prints the "info currmove" line of the root move about to be searched; numero counts from 1.
void ImprimirMovimientoRaiz(std::uint32_t movimiento, int numero);

// Prints the answer of a search: the move, "0000" for none, and the expected reply, 0 = none.
void ImprimirMejorMovimiento(std::uint32_t mejor, std::uint32_t ponder);
