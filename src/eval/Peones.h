// Pawn structure and passed pawns.
#pragma once

// Add to Puntos_OP and Puntos_EG of White (B) and Black (N). Both read the sets of pawns that the piece
// evaluation finds, so they run after it.
void EvaluarPeonesB();
void EvaluarPeonesN();
