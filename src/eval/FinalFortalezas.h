// Endings that material alone overrates: fortresses of the weaker side and opposite-coloured bishops.
#pragma once

#include "eval/RegistroFinal.h"

// The weaker king, alone, holds the corner in which the pawns would promote: all of them stand on one rook file, with
// at most bishops that do not cover the corner, or with one knight that is tied to a pawn on the seventh rank.
bool EsFortalezaPeonTorre(const RegistroFinal& pos);

// Bishop and pawn against a minor piece: a draw when the weaker king stands in the pawn's way on a square that the
// bishop cannot attack. Centipawns for the stronger side or NO_RECONOCIDO.
int EvaluarAlfilPeonContraMenor(const RegistroFinal& pos);

// One bishop a side and pawns. When the bishops run on different colours and the pawns differ by two at most: a
// small score, for the side that the record calls stronger (either may be); else NO_RECONOCIDO.
int EvaluarAlfilesDistintoColor(const RegistroFinal& pos);

// Queen against rook and pawn: little when the rook on its third rank is held by the pawn, behind which the king
// stays; else NO_RECONOCIDO.
int EvaluarDamaContraTorrePeon(const RegistroFinal& pos);
