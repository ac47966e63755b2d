// Endings that are judged by the places of the pieces instead of by the general evaluation.
#pragma once

#include "eval/finales/Evaluadores.h"

// Score of TableroGlobal in centipawns for the side to move, or NO_RECONOCIDO. Meant for endings: a side without
// pieces, or little material on both sides. A known win scores VICTORIA and more, below any mate score; known draws
// score 0 or little. Reads the board and the piece counters only. IniciarKpk and IniciarKqkp must have run.
int EvaluarFinalesDificiles();
