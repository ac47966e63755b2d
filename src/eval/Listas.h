// What one pass over the board finds out for the rest of the evaluation: where the pieces stand and what the pawns
// control, as lists and maps in the side records and as sets of squares here.
#pragma once

#include "eval/Conjunto.h"

// Sets of squares of one side. ListarPiezas fills the first groups; the piece evaluation adds what the pieces attack.
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

// Fills, for both sides, the piece lists, Ataque_Peon, Peones_Columna and Peones_Septima of the (cleared) side
// records, and the sets above but those of the pieces' attacks, which it empties.
void ListarPiezas();
