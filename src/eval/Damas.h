// Queens: placement, mobility, attack on the king, early sorties, seventh rank.
#pragma once

// Add the terms of the queens of White (B) and Black (N) to the side's record and enter their attacks in Conjuntos.
// After ListarPiezas.
void EvaluarDamasB();
void EvaluarDamasN();
