// The move word and the move list.
//
// A move is one 32-bit word that carries all that make and unmake need:
//   bits  0.. 6  from square          bits 22..25  promotion piece, 15 = none
//   bits  7..13  to square            bit  26      en-passant capture (captured piece stays 15)
//   bits 14..17  moving piece         bit  27      double pawn push
//   bits 18..21  captured piece,      bit  28      castling, the king's two-square move
//                15 = none            bits 29..31  0
#pragma once

#include <cstdint>

#include "board/Tablero.h"

constexpr int DESPLAZA_HASTA      = 7;
constexpr int DESPLAZA_PIEZA      = 14;
constexpr int DESPLAZA_CAPTURA    = 18;
constexpr int DESPLAZA_CORONACION = 22;

constexpr std::uint32_t BIT_AL_PASO      = 1U << 26;
constexpr std::uint32_t BIT_DOBLE_AVANCE = 1U << 27;
constexpr std::uint32_t BIT_ENROQUE      = 1U << 28;
constexpr std::uint32_t SIN_CAPTURA      = 15U << DESPLAZA_CAPTURA;
constexpr std::uint32_t SIN_CORONACION   = 15U << DESPLAZA_CORONACION;
constexpr std::uint32_t TRANQUILO        = SIN_CAPTURA | SIN_CORONACION;  // both fields of a quiet move

constexpr int Desde(std::uint32_t mov) {
    return static_cast<int>(mov & 127U);
}
constexpr int Hasta(std::uint32_t mov) {
    return static_cast<int>((mov >> DESPLAZA_HASTA) & 127U);
}
constexpr int PiezaMovida(std::uint32_t mov) {
    return static_cast<int>((mov >> DESPLAZA_PIEZA) & 15U);
}
constexpr int PiezaCapturada(std::uint32_t mov) {
    return static_cast<int>((mov >> DESPLAZA_CAPTURA) & 15U);
}
constexpr int PiezaCoronada(std::uint32_t mov) {
    return static_cast<int>((mov >> DESPLAZA_CORONACION) & 15U);
}
constexpr bool EsCaptura(std::uint32_t mov) {
    return (mov & SIN_CAPTURA) != SIN_CAPTURA;
}  // en passant is not one
constexpr bool EsCoronacion(std::uint32_t mov) {
    return (mov & SIN_CORONACION) != SIN_CORONACION;
}
constexpr bool EsAlPaso(std::uint32_t mov) {
    return (mov & BIT_AL_PASO) != 0;
}
constexpr bool EsDobleAvance(std::uint32_t mov) {
    return (mov & BIT_DOBLE_AVANCE) != 0;
}
constexpr bool EsEnroque(std::uint32_t mov) {
    return (mov & BIT_ENROQUE) != 0;
}

// Neither capture nor en passant nor promotion.
constexpr bool EsTranquilo(std::uint32_t mov) {
    return (mov & (TRANQUILO | BIT_AL_PASO)) == TRANQUILO;
}

constexpr std::uint32_t CrearMovimiento(int desde, int hasta, int pieza, int captura, int coronacion) {
    return static_cast<std::uint32_t>(desde | (hasta << DESPLAZA_HASTA) | (pieza << DESPLAZA_PIEZA) |
                                      (captura << DESPLAZA_CAPTURA) | (coronacion << DESPLAZA_CORONACION));
}

constexpr int MOVIMIENTOS_MAX = 256;

struct EntradaMovimiento {
    std::uint32_t Movimiento;
    std::int32_t  Puntos;  // written by move ordering
};

// Lives in the caller's frame, one a ply. The generator never writes a 257th entry; it raises Salir instead.
struct ListaMovimientos {
    EntradaMovimiento Entradas[MOVIMIENTOS_MAX];
};

// Number of moves in the list being filled; GenerarMovimientos starts it at 0 and returns it.
extern int IndexMove;

constexpr int COORDENADAS_MAX = 6;  // a move with promotion letter and terminator

// Writes a move as coordinate text: four characters, the lower-case promotion letter for a promotion code of
// either colour ('\0' for any other code), and a terminating '\0'. salida holds COORDENADAS_MAX bytes.
void MovimientoCoordenadas(int desde, int hasta, int coronacion, char* salida);

// The same for a move word.
void MovimientoCoordenadas(std::uint32_t mov, char* salida);
