// Mating a bare king, and the wins of heavy pieces that start with driving the king to the edge.
#pragma once

#include "eval/RegistroFinal.h"

// The weaker side has its king alone. Centipawns for the stronger side: VICTORIA and more when it wins by force, 0
// when nobody does, NO_RECONOCIDO where pawns and minor pieces leave the question to the search.
int EvaluarReySolo(const RegistroFinal& pos);

// No pawns on the board and a decisive advantage in pieces. Centipawns for the stronger side, of the size of the
// general evaluation, growing as the weaker king is driven back.
int EvaluarVentajaSinPeones(const RegistroFinal& pos);
