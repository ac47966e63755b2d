// An ending as its stronger side sees it, and what judges it by the places of the pieces. Ranks and colours are
// exchanged so that the stronger side is White and its pawns move towards square 0. Every ending is thereby written
// once.
#pragma once

#include <cstdint>

#include "board/Geometria.h"
#include "board/Tablero.h"
#include "eval/Material.h"

constexpr int NO_RECONOCIDO  = 32001;  // "no special knowledge"; no score takes this value
constexpr int TABLAS_SEGURAS = 0;

// A known win scores from VICTORIA to VICTORIA_MAXIMA: beyond any general evaluation, so that the search steers
// towards it from whatever else it has, and below every mate score, so that a mate found is preferred to it.
constexpr int VICTORIA        = 10000;
constexpr int VICTORIA_MAXIMA = 20000;

struct RegistroFinal {
    bool         MueveFuerte;            // the stronger side is to move
    int          Numero[CODIGOS];        // pieces by code; 1..6 belong to the stronger side, 8..13 to the weaker
    std::uint8_t Casillas[CODIGOS][64];  // their squares; a place without a piece holds 0
};

// Square of the only piece of a code, of the last one scanned when there are more, 0 when there is none.
inline int Una(const RegistroFinal& pos, int codigo) {
    return pos.Casillas[codigo][0];
}

// Value of one side's pieces and pawns in centipawns; peon: the code of its pawns.
inline int ValorMaterial(const RegistroFinal& pos, int peon) {
    int suma = 0;
    for (int tipo = PEON_B; tipo <= DAMA_B; ++tipo) suma += MATERIAL[tipo] * pos.Numero[peon - PEON_B + tipo];
    return suma;
}

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

// All that follows answers in centipawns for the stronger side, or NO_RECONOCIDO where it is said.

// The weaker side has its king alone: VICTORIA and more when the other wins by force, 0 when nobody does, NO_RECONOCIDO
// where pawns and minor pieces leave the question to the search.
int EvaluarReySolo(const RegistroFinal& pos);

// No pawns on the board and a decisive advantage in pieces: a score of the size of the general evaluation, growing as
// the weaker king is driven back.
int EvaluarVentajaSinPeones(const RegistroFinal& pos);

// Rook against pawn, from a race of tempi: how much sooner the rook's king reaches the promotion square than the pawn
// and the king that leads it.
int EvaluarTorreContraPeon(const RegistroFinal& pos);

// Rook and pawn against rook, where a method is known: little for the defences (third rank and checks from behind,
// after Philidor; back rank; from the side, after Vancura), the worth of a rook for Lucena's bridge. Else
// NO_RECONOCIDO.
int EvaluarTorrePeonContraTorre(const RegistroFinal& pos);

// Queen against pawn. On its seventh rank the pawn, mostly a rook or bishop pawn beside its king, may draw by
// stalemate; further back it loses.
int EvaluarDamaContraPeon(const RegistroFinal& pos);

// Queen against rook and pawn: little when the rook on its third rank is held by the pawn, behind which the king stays;
// else NO_RECONOCIDO.
int EvaluarDamaContraTorrePeon(const RegistroFinal& pos);

// Bishop and pawn against a minor piece: a draw when the weaker king stands in the pawn's way on a square that the
// bishop cannot attack; else NO_RECONOCIDO.
int EvaluarAlfilPeonContraMenor(const RegistroFinal& pos);

// One bishop a side and pawns. When the bishops run on different colours and the pawns differ by two at most: a small
// score, for the side that the record calls stronger (either may be); else NO_RECONOCIDO.
int EvaluarAlfilesDistintoColor(const RegistroFinal& pos);

// The weaker king, alone, holds the corner in which the pawns would promote: all of them stand on one rook file, with
// at most bishops that do not cover the corner, or with one knight that is tied to a pawn on the seventh rank.
bool EsFortalezaPeonTorre(const RegistroFinal& pos);
