// Making and unmaking moves on the global position, with its incremental key and counters.
#pragma once

#include <cstdint>

// Plays a move word of the side to move. Returns 1 when the mover's king is not attacked afterwards, 0 when the
// move was illegal; it is made in either case and the caller must unmake it. The key of a new castling state is
// added without removing that of the old one, so Key depends on the path; unmaking restores it exactly.
int HacerMovimiento(std::uint32_t movimiento);

// The same for a caller who knows that the mover's king is not in check (en_jaque 0): most moves then need no
// attack test, because only a king move, an en-passant capture or a piece that leaves a line to its king can
// expose it. Any other value of en_jaque makes the full test.
int HacerMovimientoConJaque(std::uint32_t movimiento, int en_jaque);

// 1 when a pseudo-legal move of the side to move leaves its own king safe. The position is the same afterwards.
int EsLegal(std::uint32_t movimiento);

// Takes back the move recorded in Deshacer[Ply - 1].
void DeshacerMovimiento();

// Passes the turn.
void HacerMovimientoNull();
void DeshacerMovimientoNull();
