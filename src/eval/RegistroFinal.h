// An ending as its stronger side sees it: ranks and colours are exchanged so that the stronger side is White and its
// pawns move towards square 0. Every ending is thereby written once.
#pragma once

#include <cstdint>

#include "board/Geometria.h"
#include "board/Tablero.h"

// A known win scores from VICTORIA to VICTORIA_MAXIMA: beyond any general evaluation, so that the search steers
// towards it from whatever else it has, and below every mate score, so that a mate found is preferred to it.
constexpr int VICTORIA        = 10000;
constexpr int VICTORIA_MAXIMA = 20000;

constexpr int TABLAS_SEGURAS = 0;

struct RegistroFinal {
    bool         MueveFuerte;            // the stronger side is to move
    int          Numero[CODIGOS];        // pieces by code; 1..6 belong to the stronger side, 8..13 to the weaker
    std::uint8_t Casillas[CODIGOS][64];  // their squares; a place without a piece holds 0
};

// Fills the record from TableroGlobal with the given colour (0 black, 1 white) as the stronger side.
void OrientarFinal(int fuerte, RegistroFinal& pos);

// Square of the only piece of a code, of the last one scanned when there are more, 0 when there is none.
inline int Una(const RegistroFinal& pos, int codigo) {
    return pos.Casillas[codigo][0];
}

// Value of one side's pieces and pawns in centipawns; peon: the code of its pawns.
int ValorMaterial(const RegistroFinal& pos, int peon);

// Where a pawn of the stronger side promotes, and how many steps it has to go (a double step counts as two).
constexpr int Coronacion(int peon) {
    return Columna(peon);
}
constexpr int PasosHastaCoronar(int peon) {
    return Fila(peon);
}
constexpr bool EsColumnaTorre(int casilla) {
    return Columna(casilla) == 0 || Columna(casilla) == 7;
}

// 0 in the four middle squares .. 6 in a corner.
constexpr int LejosDelCentro(int casilla) {
    const int columna = Columna(casilla);
    const int fila    = Fila(casilla);
    return (columna < 4 ? 3 - columna : columna - 4) + (fila < 4 ? 3 - fila : fila - 4);
}
