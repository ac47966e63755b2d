// Rooks: mobility, files, the seventh rank, and their part in the attack on the king.
#pragma once

// Add to the accumulators, Defensa and Objetivos of White (B) and Black (N). They read what the piece evaluation
// finds (lists, sets of squares, seventh-rank counts), and try captures on the board, taking them back.
void EvaluarTorreB();
void EvaluarTorreN();
