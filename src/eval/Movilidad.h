// Mobility of knights, bishops and queens.
#pragma once

#include "eval/Listas.h"

// Places from the opening half of a mobility table to its endgame half.
constexpr int MITAD_MENORES = 16;
constexpr int MITAD_DAMA    = 32;

// Centipawns by the number of squares that the piece reaches: opening half, then endgame half.
extern int BONUS_CABALLO_MOVILIDAD[2 * MITAD_MENORES];  // 0..8 squares
extern int BONUS_ALFIL_MOVILIDAD[2 * MITAD_MENORES];    // 0..13
extern int BONUS_DAMA_MOVILIDAD[2 * MITAD_DAMA];        // 0..27

// Fills the three tables. To be called once at start-up.
void Iniciar_Movilidad();

// The squares that count for a piece of colour C: not covered by an enemy pawn, and not blocked for good by an own
// pawn or the own king. A square of another own piece counts: the piece protects it and may change places.
template <int C>
inline Conjunto CasillasLibres() {
    return ~(Conjuntos[C].Peones | Conjuntos[C].Rey | Conjuntos[RIVAL<C>].Ataque_Peones);
}
