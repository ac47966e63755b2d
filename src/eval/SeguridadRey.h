// What an attack on the king is worth.
#pragma once

constexpr int ATAQUE_MAX = 399;  // the highest weight that KING_ATTACK_MULTI tells from lower ones

// Centipawns for a king attack by its weight Ataque_Valor, 0..ATAQUE_MAX: convex at first, nearly straight later,
// and constant once it is worth a rook. Non-decreasing.
struct TablaAtaque {
    int Valores[ATAQUE_MAX + 1];

    constexpr int operator[](int peso) const { return Valores[peso]; }
};
extern const TablaAtaque KING_ATTACK_MULTI;
