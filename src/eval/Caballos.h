// Knights: placement, mobility, outposts, attack on the king, cages.
#pragma once

// Add the terms of the knights of White (B) and Black (N) to the side's record and enter their attacks in Conjuntos.
// After ListarPiezas.
void EvaluarCaballosB();
void EvaluarCaballosN();
