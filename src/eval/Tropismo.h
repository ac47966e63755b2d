// Nearness of two squares, for terms that reward a piece for standing close to a king.
#pragma once

#include <cstdint>

#include "board/Geometria.h"

constexpr int TROPISMO_MAX = 14;  // a square's nearness to itself; opposite corners have 0

// TROPISMO_DISTANCIA[a][b], 0..TROPISMO_MAX: falls by 1 with each file and each rank between the two squares.
struct TablaTropismo {
    std::int16_t Valores[64][64];

    constexpr const std::int16_t* operator[](int casilla) const { return Valores[casilla]; }
};

constexpr TablaTropismo CalcularTropismo() {
    TablaTropismo tabla{};
    for (int a = 0; a < 64; ++a)
        for (int b = 0; b < 64; ++b)
            tabla.Valores[a][b] = static_cast<std::int16_t>(TROPISMO_MAX - Absoluto(Columna(a) - Columna(b)) -
                                                            Absoluto(Fila(a) - Fila(b)));
    return tabla;
}

inline constexpr TablaTropismo TROPISMO_DISTANCIA = CalcularTropismo();
