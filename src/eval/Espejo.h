// Square tables for both colours: the white half is typed as a board, the black half is its mirror.
#pragma once

#include <cstddef>

#include "board/Color.h"

// 0..63 as White reads it, 64..127 as Black reads it: the same board turned top to bottom.
struct TablaEspejo {
    int Valores[128];

    constexpr int operator[](int indice) const { return Valores[indice]; }
};

// The square that is to Black what casilla is to White, and the other way round.
constexpr int Reflejada(int casilla) {
    return casilla ^ 56;
}

// Builds the table from a board of exactly 64 values printed with rank 8 first and file a on the left.
template <std::size_t N>
constexpr TablaEspejo ConEspejo(const int (&blancas)[N]) {
    static_assert(N == 64, "a square table has 64 values");
    TablaEspejo tabla{};
    for (int casilla = 0; casilla < 64; ++casilla) {
        tabla.Valores[casilla]                 = blancas[casilla];
        tabla.Valores[64 + Reflejada(casilla)] = blancas[casilla];
    }
    return tabla;
}

// Where the half of a colour begins.
template <int C>
constexpr int MITAD = (C == BLANCO) ? 0 : 64;

// The square of colour C that a rule states for White.
template <int C>
constexpr int Relativa(int casilla) {
    return C == BLANCO ? casilla : Reflejada(casilla);
}

// The square of colour C that a rule names for White, by its name in White's coordinates.
template <int C>
consteval int En(const char (&nombre)[3]) {
    return Relativa<C>((nombre[0] - 'a') + 8 * ('8' - nombre[1]));
}
