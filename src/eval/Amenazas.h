// Threats: enemy pieces that stand attacked and are not, or not well enough, defended.
#pragma once

// Centipawns for each attacked and undefended enemy piece, by its piece code (either colour); 0 for other codes.
extern const int att_on_hang_mg[16];  // opening half
extern const int att_on_hang_eg[16];  // endgame half

// Adds the threats of both sides to Puntos_OP and Puntos_EG. After pieces and rooks, whose Defensa, Objetivos and
// sets it reads.
void EvaluarAmenazas();
