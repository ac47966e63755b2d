#include "search/Lmr.h"

#include <algorithm>
#include <cmath>

int lmr[LMR_FILAS][LMR_COLUMNAS];

constexpr int NUMERO_CRECE = 63;  // from this move number on the reduction no longer grows

static int CalcularReduccion(int profundidad, int numero) {
    const double valor = std::log(profundidad) * std::log(std::min(numero, NUMERO_CRECE)) * 0.5;
    if (!std::isfinite(valor) || valor < 1.0) return 0;
    return static_cast<int>(std::min(valor, profundidad - 1.0));  // at least one ply is left to search
}

void IniciarLmr() {
    for (int profundidad = 0; profundidad < LMR_FILAS; ++profundidad)
        for (int numero = 0; numero < LMR_COLUMNAS; ++numero)
            lmr[profundidad][numero] = CalcularReduccion(profundidad, numero);
}

int ReduccionLmr(int profundidad, int numero) {
    return lmr[std::min(profundidad, LMR_FILAS - 1)][std::min(numero, LMR_COLUMNAS - 1)];
}
