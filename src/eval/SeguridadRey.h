// What an attack on the king is worth.
#pragma once

#include <algorithm>

#include "eval/Par.h"

constexpr int ATAQUE_MAX = 399;  // the highest weight that KING_ATTACK_MULTI tells from lower ones

// Centipawns for a king attack by its weight Ataque_Valor, 0..ATAQUE_MAX: convex at first, nearly straight later,
// and constant once it is worth a rook. Non-decreasing.
struct TablaAtaque {
    int Valores[ATAQUE_MAX + 1];

    constexpr int operator[](int peso) const { return Valores[peso]; }
};
extern const TablaAtaque KING_ATTACK_MULTI;

// What the danger that a side has built up around the enemy king is worth: dangers multiply each other, so it is the
// square that counts in the opening; in the endgame, where few pieces are left to mate with, a part of it.
constexpr int PELIGRO_MAX = 800;

constexpr Par PuntosPeligro(int peligro) {
    const int acotado = std::clamp(peligro, 0, PELIGRO_MAX);
    return {acotado * acotado / 512, acotado / 8};
}
