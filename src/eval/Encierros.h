// Minor pieces that have gone in behind the enemy's pawns and do not come out again.
#pragma once

#include <cstddef>

#include "eval/Espejo.h"
#include "eval/Listas.h"

// A piece on Casilla is shut in by an enemy pawn on Peon. Both squares are White's; Black's are the mirrored ones.
struct Encierro {
    int Casilla;
    int Peon;
    int Penalizacion;  // centipawns, in both phases
};

// What the given pieces of colour C lose. Each row names a cage of its own; of the rows of one square only the first
// that applies counts, and they stand together.
template <int C, std::size_t N>
inline int PenalizacionEncierro(const Encierro (&encierros)[N], Conjunto piezas) {
    int penalizacion = 0;
    int anterior     = -1;
    for (const Encierro& encierro : encierros) {
        if (encierro.Casilla == anterior || !Contiene(piezas, Relativa<C>(encierro.Casilla)) ||
            !Contiene(Conjuntos[RIVAL<C>].Peones, Relativa<C>(encierro.Peon)))
            continue;
        penalizacion += encierro.Penalizacion;
        anterior = encierro.Casilla;
    }
    return penalizacion;
}
