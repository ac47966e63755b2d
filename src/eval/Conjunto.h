// Sets of squares: a 64-bit word whose bit n is square n. The board itself stays an array; the evaluation reads these
// sets off it once, and then a question about many squares (which of them does this bishop reach that no pawn
// covers?) is one operation instead of a loop.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "board/Color.h"
#include "board/Geometria.h"

using Conjunto = std::uint64_t;

constexpr Conjunto Bit(int casilla) {
    return Conjunto{1} << casilla;
}
constexpr bool Contiene(Conjunto conjunto, int casilla) {
    return ((conjunto >> casilla) & 1U) != 0;
}
constexpr int Cuantas(Conjunto conjunto) {
    return std::popcount(conjunto);
}

// Takes the square with the lowest number off a set that is not empty.
inline int SacarCasilla(Conjunto& conjunto) {
    const int casilla = std::countr_zero(conjunto);
    conjunto &= conjunto - 1;
    return casilla;
}

constexpr Conjunto COLUMNA_A       = 0x0101010101010101;
constexpr Conjunto COLUMNA_H       = COLUMNA_A << 7;
constexpr Conjunto CASILLAS_CLARAS = 0xAA55AA55AA55AA55 ^ ~Conjunto{0};  // as a8 and h1

constexpr Conjunto ColumnaEntera(int columna) {
    return COLUMNA_A << columna;
}

// Rank as colour C counts it: 0 = its own back rank.
template <int C>
constexpr Conjunto FilaEntera(int fila) {
    return Conjunto{0xFF} << (8 * (C == BLANCO ? 7 - fila : fila));
}

// The ranks from primera to ultima, both included, as colour C counts them.
template <int C>
constexpr Conjunto Filas(int primera, int ultima) {
    Conjunto conjunto = 0;
    for (int fila = primera; fila <= ultima; ++fila) conjunto |= FilaEntera<C>(fila);
    return conjunto;
}

// Every square moved one rank towards the promotion rank of C; what leaves the board is dropped.
template <int C>
constexpr Conjunto Avanzar(Conjunto conjunto) {
    return C == BLANCO ? conjunto >> 8 : conjunto << 8;
}

// Squares attacked by pawns of colour C towards file a and towards file h.
template <int C>
constexpr Conjunto AtaquesHaciaA(Conjunto peones) {
    return Avanzar<C>((peones & ~COLUMNA_A) >> 1);
}
template <int C>
constexpr Conjunto AtaquesHaciaH(Conjunto peones) {
    return Avanzar<C>((peones & ~COLUMNA_H) << 1);
}

// The squares themselves and all those ahead of them on their files.
template <int C>
constexpr Conjunto HastaElFinal(Conjunto conjunto) {
    if constexpr (C == BLANCO) {
        conjunto |= conjunto >> 8;
        conjunto |= conjunto >> 16;
        conjunto |= conjunto >> 32;
    } else {
        conjunto |= conjunto << 8;
        conjunto |= conjunto << 16;
        conjunto |= conjunto << 32;
    }
    return conjunto;
}

namespace conjunto {

constexpr std::array<Conjunto, 64> CalcularSaltos(const std::array<Saltos, 64>& saltos) {
    std::array<Conjunto, 64> tabla{};
    for (std::size_t casilla = 0; casilla < 64; ++casilla)
        for (int n = 0; n < saltos[casilla].Numero; ++n) tabla[casilla] |= Bit(saltos[casilla].Casillas[n]);
    return tabla;
}

using FilaRayos = std::array<Conjunto, DIRECCIONES>;

constexpr std::array<FilaRayos, 64> CalcularRayos() {
    std::array<FilaRayos, 64> tabla{};
    for (std::size_t casilla = 0; casilla < 64; ++casilla)
        for (std::size_t dir = 0; dir < DIRECCIONES; ++dir)
            for (int paso = 1; paso <= ALCANCE[casilla][dir]; ++paso)
                tabla[casilla][dir] |= Bit(static_cast<int>(casilla) + paso * PASO[dir]);
    return tabla;
}

}  // namespace conjunto

inline constexpr std::array<Conjunto, 64> ATAQUES_CABALLO = conjunto::CalcularSaltos(SALTOS_CABALLO);
inline constexpr std::array<Conjunto, 64> ATAQUES_REY     = conjunto::CalcularSaltos(SALTOS_REY);

// RAYOS[square][Direccion]: the squares from the neighbour of the square to the edge of the board.
alignas(64) inline constexpr std::array<conjunto::FilaRayos, 64> RAYOS = conjunto::CalcularRayos();

// The squares that a line piece sees in one direction, the first occupied one included. No branch: where nothing
// stands on the ray, the search for the first piece ends on the corner whose own ray in that direction is empty.
template <int DIR>
inline Conjunto VistaEnDireccion(std::size_t casilla, Conjunto ocupadas) {
    const Conjunto rayo = RAYOS[casilla][DIR];
    const int      tope = PASO[DIR] > 0 ? std::countr_zero((rayo & ocupadas) | Bit(63))
                                        : 63 - std::countl_zero((rayo & ocupadas) | Bit(0));
    return rayo ^ RAYOS[static_cast<std::size_t>(tope)][DIR];
}

inline Conjunto AtaquesDiagonales(int desde, Conjunto ocupadas) {
    const auto casilla = static_cast<std::size_t>(desde);
    return VistaEnDireccion<DIR_MAS_9>(casilla, ocupadas) | VistaEnDireccion<DIR_MAS_7>(casilla, ocupadas) |
           VistaEnDireccion<DIR_MENOS_7>(casilla, ocupadas) | VistaEnDireccion<DIR_MENOS_9>(casilla, ocupadas);
}

inline Conjunto AtaquesRectos(int desde, Conjunto ocupadas) {
    const auto casilla = static_cast<std::size_t>(desde);
    return VistaEnDireccion<DIR_MAS_8>(casilla, ocupadas) | VistaEnDireccion<DIR_MENOS_8>(casilla, ocupadas) |
           VistaEnDireccion<DIR_MENOS_1>(casilla, ocupadas) | VistaEnDireccion<DIR_MAS_1>(casilla, ocupadas);
}

// How many attacks fall on each square, for all squares at once: the binary digits of the 64 counts, one set a digit.
// Exact up to 15; beyond, a count never falls back to 0.
struct Cuenta {
    Conjunto Digitos[4];
};

inline void SumarAtaques(Cuenta& cuenta, Conjunto ataques) {
    Conjunto acarreo = ataques;
    for (int digito = 0; digito < 3; ++digito) {
        const Conjunto anterior = cuenta.Digitos[digito];
        cuenta.Digitos[digito]  = anterior ^ acarreo;
        acarreo &= anterior;
    }
    cuenta.Digitos[3] |= acarreo;
}

constexpr Conjunto ConDosOMas(const Cuenta& cuenta) {
    return cuenta.Digitos[1] | cuenta.Digitos[2] | cuenta.Digitos[3];
}
constexpr Conjunto ConUnoOMas(const Cuenta& cuenta) {
    return cuenta.Digitos[0] | ConDosOMas(cuenta);
}

namespace conjunto {

// For a row of eight squares, one bit each: eight bytes, 1 for each square of the row.
constexpr std::array<std::uint64_t, 256> CalcularDespliegue() {
    std::array<std::uint64_t, 256> tabla{};
    for (std::size_t fila = 0; fila < 256; ++fila) {
        std::array<std::uint8_t, 8> bytes{};
        for (std::size_t columna = 0; columna < 8; ++columna)
            bytes[columna] = static_cast<std::uint8_t>((fila >> columna) & 1U);
        tabla[fila] = std::bit_cast<std::uint64_t>(bytes);
    }
    return tabla;
}
inline constexpr std::array<std::uint64_t, 256> DESPLIEGUE = CalcularDespliegue();

}  // namespace conjunto

// Writes the counts of the squares of cuales into a map of the board, and 0 for the others. Eight squares at a time.
inline void EscribirCuenta(const Cuenta& cuenta, Conjunto cuales, std::uint8_t (&mapa)[64]) {
    std::uint64_t filas[8] = {};
    for (int digito = 0; digito < 4; ++digito) {
        const Conjunto parte = cuenta.Digitos[digito] & cuales;
        if (parte == 0) continue;
        for (int fila = 0; fila < 8; ++fila)
            filas[fila] += conjunto::DESPLIEGUE[(parte >> (8 * fila)) & 0xFF] << digito;
    }
    std::memcpy(mapa, filas, sizeof filas);
}
