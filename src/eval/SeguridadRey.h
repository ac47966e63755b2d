// Kings: placement, pawn shelter, castling, and the attack that the enemy's pieces have built up.
#pragma once

constexpr int ATAQUE_MAX = 400;  // places of KING_ATTACK_MULTI; the weight that indexes it is capped below

// Centipawns for a king attack by its weight Ataque_Valor: convex up to a weight of 150, nearly straight beyond,
// and constant once it is worth a rook. Non-decreasing.
extern int KING_ATTACK_MULTI[ATAQUE_MAX];

// Fills KING_ATTACK_MULTI. To be called once at start-up.
void Iniciar_SeguridadRey();

// Adds placement, shelter and castling of both kings to Puntos_OP and Puntos_EG, and to Ataque_Valor what each side
// gains from safe checks and from squares that only the enemy king guards. After pieces and rooks.
void EvaluarReyes();
