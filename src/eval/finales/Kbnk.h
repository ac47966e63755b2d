// Bishop and knight against a bare king, solved: a table with the moves to mate, computed when it is asked for or when
// the first such ending is met.
#pragma once

constexpr int KBNK_JUGADAS_MAX = 33;  // to mate, from the worst start
constexpr int KBNK_SIN_MATE    = -1;

// Fills the table (retrograde iteration over sets of 64 knight squares) unless it is filled: a tenth of a second, which
// a short search has not got and the start of a program that only searches cannot spare.
void PrepararKbnk();

// Moves that the side with the pieces needs to mate with best play of both, 0..KBNK_JUGADAS_MAX, 0 when it has mated;
// KBNK_SIN_MATE when a piece is lost or it is stalemate, and for positions that cannot occur. mueveFuerte: the side
// with the pieces is to move. The first call fills the table if nobody has.
int KbnkJugadas(int rey, int alfil, int caballo, int reyDebil, bool mueveFuerte);
