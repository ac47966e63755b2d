// Queen against a pawn one step from promotion, solved: a table with one bit a position, computed at start-up.
#pragma once

// Fills the table by retrograde iteration over sets of 64 queen squares. The ending with the new queen on the board is
// solved before, as far as the play goes on with checks, takes the new queen at once or shuts its king in for a mate.
// The few wins that need longer against it count as drawn. To be called once.
void IniciarKqkp();

// 1 when the side with the queen wins, 0 when it does not or the position cannot occur. The pawn is Black's, on its
// seventh rank: the caller mirrors the ranks of a white one. mueveFuerte: the side with the queen is to move.
int KqkpGana(int rey, int dama, int reyDebil, int peon, bool mueveFuerte);
