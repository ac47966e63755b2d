// Queen against pawn.
#pragma once

#include "eval/RegistroFinal.h"

// Centipawns for the queen's side. A rook or bishop pawn on its seventh rank beside its king draws by stalemate
// unless the stronger king is near; any other loses.
int EvaluarDamaContraPeon(const RegistroFinal& pos);
