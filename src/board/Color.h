// The two colours as template arguments: what is mirrored between White and Black, named once.
#pragma once

#include "board/Bando.h"
#include "board/Tablero.h"

constexpr int NEGRO  = 0;  // the values of RegistroTablero::Turno
constexpr int BLANCO = 1;

template <int C>
constexpr int RIVAL = (C == BLANCO) ? NEGRO : BLANCO;
template <int C>
constexpr int ADELANTE = (C == BLANCO) ? -8 : +8;  // one rank towards promotion

// Piece codes of the colour.
template <int C>
constexpr int CODIGO_BASE = (C == BLANCO) ? 0 : DESFASE_NEGRO;
template <int C>
constexpr int PEON = PEON_B + CODIGO_BASE<C>;
template <int C>
constexpr int CABALLO = CABALLO_B + CODIGO_BASE<C>;
template <int C>
constexpr int ALFIL = ALFIL_B + CODIGO_BASE<C>;
template <int C>
constexpr int TORRE = TORRE_B + CODIGO_BASE<C>;
template <int C>
constexpr int DAMA = DAMA_B + CODIGO_BASE<C>;
template <int C>
constexpr int REY = REY_B + CODIGO_BASE<C>;

constexpr bool EsBlanca(int pieza) {
    return pieza < VACIO;
}
constexpr bool EsNegra(int pieza) {
    return pieza > VACIO;
}

template <int C>
constexpr bool EsPropia(int pieza) {
    return C == BLANCO ? EsBlanca(pieza) : EsNegra(pieza);
}
template <int C>
constexpr bool EsRival(int pieza) {
    return EsPropia<RIVAL<C>>(pieza);
}

// Rank as the colour counts it: 0 = its own back rank, 7 = its promotion rank.
template <int C>
constexpr int FilaRelativa(int casilla) {
    return C == BLANCO ? 7 - (casilla >> 3) : casilla >> 3;
}

// Where the king, and from it the rooks of each wing, stand at the start of the game.
template <int C>
constexpr int CASA_REY = (C == BLANCO) ? 60 : 4;
template <int C>
constexpr int ESQUINA_CORTA = CASA_REY<C> + 3;
template <int C>
constexpr int ESQUINA_LARGA = CASA_REY<C> - 4;

template <int C>
inline bool TieneElTurno() {
    return TableroGlobal.Turno == C;
}

template <int C>
inline RegistroBando& BandoDe() {
    return C == BLANCO ? Blancas : Negras;
}
template <int C>
inline int& PosicionReyDe() {
    return C == BLANCO ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro;
}
template <int C>
inline int& EnroqueDe() {
    return C == BLANCO ? TableroGlobal.EnroqueBlancas : TableroGlobal.EnroqueNegras;
}
