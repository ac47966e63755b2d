// The terms of the evaluation, in the order in which Evaluar asks for them. Each adds to the accumulators of the side
// records; material, which comes before them, has a header of its own.
#pragma once

// Development rules of the opening: centre pawns, and the pieces that get in their way. Applies in every phase; the
// interpolation makes it fade.
void EvaluarApertura();

// The pass over all pieces: it comes before all that follow, because they read what it leaves. Fills the sets of
// eval/Conjuntos.h, Defensa and Objetivos of both (cleared) side records, and adds the terms of knights, bishops and
// queens. Defensa and Objetivos hold the attacks of pawns, knights, bishops, queens and king; the rook evaluation adds
// those of the rooks. The sets already include them.
void EvaluarPiezasTableroJuego();

// Pawn structure and passed pawns.
void EvaluarPeonesB();
void EvaluarPeonesN();

// Rooks: mobility, files, the seventh rank, and their part in the attack on the king. Captures are tried on the board
// and taken back.
void EvaluarTorreB();
void EvaluarTorreN();

// Placement, shelter and castling of both kings; to Ataque_Valor what each side gains from safe checks and from squares
// that only the enemy king guards. After the rooks.
void EvaluarReyes();

// What kings and pieces of both sides do for the passed pawns and against them. After the pieces.
void EvaluarApoyoPasados();

// Threats of both sides: enemy pieces that stand attacked and are not, or not well enough, defended. After the rooks.
void EvaluarAmenazas();
