// Rook against pawn, and rook and pawn against rook.
#pragma once

#include "eval/RegistroFinal.h"

// Centipawns for the rook's side, from a race of tempi: how much sooner its king reaches the promotion square than
// the pawn and the king that leads it.
int EvaluarTorreContraPeon(const RegistroFinal& pos);

// Centipawns for the side with the pawn where a method is known: little for the defences (third rank and checks from
// behind, after Philidor; back rank; from the side, after Vancura), the worth of a rook for Lucena's bridge. Else
// NO_RECONOCIDO.
int EvaluarTorrePeonContraTorre(const RegistroFinal& pos);
