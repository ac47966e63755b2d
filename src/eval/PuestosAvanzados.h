// Outposts: squares from which no enemy pawn can ever drive a knight or a bishop away.
#pragma once

#include "eval/Espejo.h"
#include "eval/Listas.h"

// clang-format off
inline constexpr TablaEspejo PUESTO_AVANZADO = ConEspejo({   // centipawns of a knight in the opening
//    a    b    c    d    e    f    g    h
      0,   0,   0,   0,   0,   0,   0,   0,    // 8
      0,   0,   2,   4,   4,   2,   0,   0,    // 7
      0,   6,  12,  16,  16,  12,   6,   0,    // 6
      0,   7,  14,  18,  18,  14,   7,   0,    // 5
      0,   3,   8,  12,  12,   8,   3,   0,    // 4
      0,   0,   0,   0,   0,   0,   0,   0,    // 3
      0,   0,   0,   0,   0,   0,   0,   0,    // 2
      0,   0,   0,   0,   0,   0,   0,   0 }); // 1
// clang-format on

// The outposts of colour C: on its fourth to seventh rank, held by an own pawn, out of reach of the enemy's pawns.
template <int C>
inline Conjunto PuestosAvanzados() {
    return Filas<C>(3, 6) & Conjuntos[C].Ataque_Peones & ~Conjuntos[RIVAL<C>].Alcance_Peon;
}

// Opening value of the outpost on the given square: half as much again when the enemy has no minor piece that could
// ever take there. A bishop is worth half of it, and either piece half in the endgame.
template <int C>
inline int ValorPuesto(int casilla) {
    const ConjuntosBando& rival  = Conjuntos[RIVAL<C>];
    const Conjunto        color  = Contiene(CASILLAS_CLARAS, casilla) ? CASILLAS_CLARAS : ~CASILLAS_CLARAS;
    const int             valor  = PUESTO_AVANZADO[MITAD<C> + casilla];
    const bool            seguro = rival.Caballos == 0 && (rival.Alfiles & color) == 0;
    return seguro ? valor + valor / 2 : valor;
}
