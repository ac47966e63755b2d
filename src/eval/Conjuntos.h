// What one pass over the board finds out for the rest of the evaluation: where the pieces stand, what the pawns control
// and which of them are strong or weak.
#pragma once

#include "board/Conjunto.h"

// The squares that are attacked at all, and those that are attacked more than once.
struct Cuenta {
    Conjunto Una;
    Conjunto Dos;
};

constexpr void SumarAtaques(Cuenta& cuenta, Conjunto ataques) {
    cuenta.Dos |= cuenta.Una & ataques;
    cuenta.Una |= ataques;
}

constexpr Conjunto ConDosOMas(const Cuenta& cuenta) {
    return cuenta.Dos;
}
constexpr Conjunto ConUnoOMas(const Cuenta& cuenta) {
    return cuenta.Una;
}

// Sets of squares of one side. ReunirConjuntos fills the first groups; the piece evaluation adds what the pieces
// attack.
struct ConjuntosBando {
    Conjunto Todas;  // all pieces, king included
    Conjunto Peones;
    Conjunto Caballos;
    Conjunto Alfiles;
    Conjunto Torres;
    Conjunto Damas;
    Conjunto Rey;  // empty on a board without a king

    Conjunto Zona_Rey;       // the king's square and its neighbours
    Conjunto Zona_Exterior;  // the three squares in front of that zone, if no pawn of the side guards them
    Conjunto Alcance_Peon;   // squares that the side's pawns attack now or after any advance

    // The squares that count for the mobility of a knight, bishop or queen: not covered by an enemy pawn, and not
    // blocked for good by an own pawn or the own king. A square of another own piece counts: the piece protects it and
    // may change places.
    Conjunto Libres;

    Conjunto Doblados;    // own pawns with an own pawn ahead on the file: all of a file but the most advanced
    Conjunto Abiertos;    // ... no enemy pawn ahead on the file; a doubled one only where the file has none at all
    Conjunto Pasados;     // ... open, and no enemy pawn ahead on the adjacent files
    Conjunto Aislados;    // ... no own pawn on the adjacent files
    Conjunto Retrasados;  // ... behind a neighbour that has gone ahead, and no own pawn may come to its defence

    Conjunto Ataque_Peones;  // attacked by pawns, and so on
    Conjunto Ataque_Caballos;
    Conjunto Ataque_Alfiles;
    Conjunto Ataque_Torres;
    Conjunto Ataque_Damas;
    Conjunto Ataque_Rey;
    Cuenta   Ataques;  // attacks of the whole side on each square
};
extern ConjuntosBando Conjuntos[2];  // [colour]
extern Conjunto       Ocupadas;      // squares that are not empty

// What the knight, bishop, rook or queen on a square attacks, from the piece evaluation on; stale on other squares.
extern Conjunto AtaquesDePieza[64];

// Fills the sets of both sides, those of the pieces' attacks with nothing, and Peones_Septima of the side records.
void ReunirConjuntos();
