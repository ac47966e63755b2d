// The principal-variation search: full-width, fail-soft alpha-beta (Marsland and Campbell, 1982).
#pragma once

#include <cstdint>

// Score of TableroGlobal for the side to move, in centipawns, or 0 once TipoJuego.Parar is 1; the caller then
// discards it. The board is left as it was, and so is Ply, which is 0 at the root and never passes 63.
// profundidad: remaining plies; alfa < beta: the window, a null-window node being one with beta - 1 == alfa.
// en_jaque: 1 when the side to move is in check. sin_nulo: 1 forbids the null move and razoring here. previo: the
// move that led to this node; 0 at the root, behind a null move and where the node searches itself.
int AlphaBeta_Pv(int profundidad, int alfa, int beta, int en_jaque, int sin_nulo, std::uint32_t previo);
