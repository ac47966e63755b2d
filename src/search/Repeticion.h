// Draws by rule inside the search: the fifty-move rule and repetition.
#pragma once

// 1 when the current position stood on the board before within the reversible moves. One earlier occurrence is
// enough: what could be repeated once more can be repeated again.
int Es_Tabla_Repeticion();

// 1 when the node is drawn by either rule. Not asked at the root, which must answer a move.
int EsTablasPorRegla();
