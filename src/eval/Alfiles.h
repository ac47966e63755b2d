// Bishops: placement, mobility, outposts, attack on the king, cages, and bishops bad for their own pawns.
#pragma once

// Add the terms of the bishops of White (B) and Black (N) to the side's record and enter their attacks in Conjuntos.
// After ListarPiezas.
void EvaluarAlfilesB();
void EvaluarAlfilesN();
