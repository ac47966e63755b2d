// Attacks on the enemy king: what each attacker puts into Ataque_Valor and Ataque_Numero. The sum is the index of
// KING_ATTACK_MULTI, where a hundred is worth about a pawn, so a weight is no centipawn value.
#pragma once

#include "eval/Listas.h"

// Weight of each square of the king zone that the piece attacks; a rook's is of the same scale (see Torres).
constexpr int PESO_ZONA_CABALLO  = 9;
constexpr int PESO_ZONA_ALFIL    = 8;
constexpr int PESO_ZONA_DAMA     = 13;
constexpr int PESO_ZONA_EXTERIOR = 3;  // a square in front of the zone, by whatever piece

struct SumaAtaque {
    int Valor;   // for Ataque_Valor
    int Numero;  // for Ataque_Numero
};

// Adds a piece of colour C that attacks the given squares. A check counts its square once more.
template <int C>
inline void SumarAtaqueRey(SumaAtaque& suma, Conjunto ataques, int peso) {
    const ConjuntosBando& rival = Conjuntos[RIVAL<C>];
    const int             zona  = Cuantas(ataques & rival.Zona_Rey);
    suma.Valor +=
        peso * (zona + Cuantas(ataques & rival.Rey)) + PESO_ZONA_EXTERIOR * Cuantas(ataques & rival.Zona_Exterior);
    suma.Numero += zona != 0 ? 1 : 0;
}
