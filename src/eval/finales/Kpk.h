// King and pawn against king, solved: a table with one bit a position, computed at start-up.
#pragma once

// Fills the table by retrograde iteration, from the pawns on the seventh rank back to those on the second; a set of
// 64 squares of the weaker king is treated at a time (the method of Thompson, 1986, on bitboards). To be called once.
void IniciarKpk();

// 1 when the side with the pawn wins, 0 when the position is drawn or cannot occur. The squares are those of a
// white pawn: for a black one the caller mirrors the ranks. mueveFuerte: the side with the pawn is to move.
int KpkGana(int reyFuerte, int peon, int reyDebil, bool mueveFuerte);
