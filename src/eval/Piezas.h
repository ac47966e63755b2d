// The pass over all pieces: it comes first in an evaluation, because every later part reads what it leaves.
#pragma once

// Fills Defensa and Objetivos of both (cleared) side records and the sets of eval/Listas.h, and adds the terms of
// knights, bishops and queens. Defensa and Objetivos hold the attacks of pawns, knights, bishops, queens and king; the
// rook evaluation adds those of the rooks. The sets already include them.
void EvaluarPiezasTableroJuego();
