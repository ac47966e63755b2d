// Late-move reductions: how much shallower a quiet move is searched that stands late in the list.
#pragma once

constexpr int LMR_FILAS    = 64;
constexpr int LMR_COLUMNAS = 256;

// Plies; [remaining depth][number of the legal move, the first being 1]. Filled by IniciarLmr.
extern int lmr[LMR_FILAS][LMR_COLUMNAS];

void IniciarLmr();

// The entry for a depth and move number of the search, both of which may pass the edge of the table by a little.
int ReduccionLmr(int profundidad, int numero);
