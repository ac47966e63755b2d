// Score conventions of the whole engine: centipawns from the side to move's point of view, 32 bits signed.
#pragma once

#include "board/Tablero.h"

constexpr int VALOR_INFINITO = 32001;                   // window bound at the root; "no move searched yet"
constexpr int VALOR_MATE     = 32000;                   // mating at ply p scores VALOR_MATE - p
constexpr int UMBRAL_MATE    = VALOR_MATE - PLIES_MAX;  // beyond it, on either side, a score announces mate
constexpr int VALOR_TABLAS   = 0;                       // repetition, fifty moves, stalemate
constexpr int VALOR_TB       = VALOR_MATE - 1;          // a tablebase win in n plies scores VALOR_TB - n

constexpr bool EsMateGanado(int puntos) {
    return puntos > UMBRAL_MATE && puntos != VALOR_INFINITO;
}
constexpr bool EsMatePerdido(int puntos) {
    return puntos < -UMBRAL_MATE && puntos != -VALOR_INFINITO;
}
constexpr bool EsPuntuacionMate(int puntos) {
    return EsMateGanado(puntos) || EsMatePerdido(puntos);
}
