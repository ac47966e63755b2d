// Static evaluation of TableroGlobal.
//
// Each side gathers an opening and an endgame score, which the game phase blends; material imbalance, the scale
// factor of a recognised ending and a clamp correct the result. There is no lazy evaluation: a call evaluates the
// whole position or answers from TT_Cache.
#pragma once

// Score in centipawns, positive when the side to move stands better. A full evaluation stays within UMBRAL_MATE,
// so that the cache can keep 16 bits; a recognised ending may answer outside it. Reads and fills TT_Cache.
int Evaluar();

// The blend of both halves of a score at the game phase fase, 0 (all endgame) .. FASE_MAX (all opening).
int Interpolate(int puntos_op, int puntos_eg, int fase);

// Weights in percent, [0] for Black's terms and [1] for White's: the opponent's mobility and king attack count a
// little more than the engine's own. 0 until the first search.
extern int AJUSTE_MOB[2];
extern int AJUSTE_ATT[2];

// Sets both weights for a search with the side to move at the root as the engine's own. The cache keeps scores of
// earlier searches with whatever weights they had.
void Iniciar_Asimetrico();

// Solves the endings that are kept in tables. To be called once at start-up, before any evaluation.
void Iniciar_Evaluacion();

// Solves what takes too long for the start and for the clock of a search. Once is enough.
void Preparar_Evaluacion();
