// The principal-variation search: full-width, fail-soft alpha-beta (Marsland and Campbell, 1982).
#pragma once

#include <cstdint>

// Late-move reductions: how much shallower a quiet move is searched that stands late in the list. Plies; [remaining
// depth][number of the legal move, the first being 1].
constexpr int LMR_FILAS    = 64;
constexpr int LMR_COLUMNAS = 256;
extern int    lmr[LMR_FILAS][LMR_COLUMNAS];

// Fills lmr. To be called once, before the first search.
void IniciarLmr();

// The entry for a depth and move number of the search, both of which may pass the edge of the table by a little.
int ReduccionLmr(int profundidad, int numero);

enum UsoDelNulo : int { CON_NULO = 0, SIN_NULO = 1 };
constexpr std::uint32_t SIN_PREVIO = 0;

// Score of TableroGlobal for the side to move, in centipawns, or 0 once TipoJuego.Parar is 1; the caller then
// discards it. The board is left as it was, and so is Ply, which is 0 at the root and never passes 63.
// profundidad: remaining plies; alfa < beta: the window, a null-window node being one with beta - 1 == alfa.
// en_jaque: EstadoJaque of the side to move. sin_nulo: SIN_NULO forbids the null move and razoring here. previo: the
// move that led to this node; SIN_PREVIO at the root, behind a null move and where the node searches itself.
int AlphaBeta_Pv(int profundidad, int alfa, int beta, int en_jaque, int sin_nulo, std::uint32_t previo);
