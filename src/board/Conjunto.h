// Sets of squares: a 64-bit word whose bit n is square n. The board itself stays an array; generation and evaluation
// read sets off it, and then a question about many squares (which of them does this bishop reach that no pawn covers?)
// is one operation instead of a loop.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#if defined(__AVX512F__) || defined(__AVX2__)
#include <immintrin.h>
#endif

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

// The squares with the lowest and the highest number of a set that is not empty.
constexpr int Primera(Conjunto conjunto) {
    return std::countr_zero(conjunto);
}
constexpr int Ultima(Conjunto conjunto) {
    return 63 - std::countl_zero(conjunto);
}

// Takes the square with the lowest number off a set that is not empty.
constexpr int SacarCasilla(Conjunto& conjunto) {
    const int casilla = Primera(conjunto);
    conjunto &= conjunto - 1;
    return casilla;
}

// The same in the generation order of colour C: White from h1 to a8, Black from a8 to h1.
template <int C>
constexpr int SacarCasillaEnOrden(Conjunto& conjunto) {
    const int casilla = C == BLANCO ? Ultima(conjunto) : Primera(conjunto);
    conjunto ^= Bit(casilla);
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

template <int C>
constexpr Conjunto Retroceder(Conjunto conjunto) {
    return Avanzar<RIVAL<C>>(conjunto);
}

// One step sideways; what leaves the board is dropped, never wrapped.
constexpr Conjunto HaciaA(Conjunto conjunto) {
    return (conjunto & ~COLUMNA_A) >> 1;
}
constexpr Conjunto HaciaH(Conjunto conjunto) {
    return (conjunto & ~COLUMNA_H) << 1;
}
constexpr Conjunto Lados(Conjunto conjunto) {
    return HaciaA(conjunto) | HaciaH(conjunto);
}

// All squares a king move away from some square of the set.
constexpr Conjunto Vecinas(Conjunto conjunto) {
    const Conjunto fila = conjunto | Lados(conjunto);
    return Lados(conjunto) | (fila << 8) | (fila >> 8);
}

// Squares attacked by pawns of colour C.
template <int C>
constexpr Conjunto AtaquesDePeones(Conjunto peones) {
    return Avanzar<C>(Lados(peones));
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

// The squares that have a square of the set ahead of them on their file, as colour C looks.
template <int C>
constexpr Conjunto Detras(Conjunto conjunto) {
    return Retroceder<C>(HastaElFinal<RIVAL<C>>(conjunto));
}
// All squares of the files on which the set has one.
constexpr Conjunto RellenarColumnas(Conjunto conjunto) {
    return HastaElFinal<BLANCO>(conjunto) | HastaElFinal<NEGRO>(conjunto);
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

// The first blocker: of the occupied squares of a ray, at least one, that which a look in the direction meets first.
template <int DIR>
constexpr int PrimerObstaculo(Conjunto ocupadas) {
    return PASO[DIR] > 0 ? Primera(ocupadas) : Ultima(ocupadas);
}

// The squares that a line piece sees in one direction, the first occupied one included. No branch: where nothing
// stands on the ray, the search for the first piece ends on the corner whose own ray in that direction is empty.
template <int DIR>
inline Conjunto VistaEnDireccion(std::size_t casilla, Conjunto ocupadas) {
    constexpr Conjunto ESQUINA = Bit(PASO[DIR] > 0 ? 63 : 0);
    const Conjunto     rayo    = RAYOS[casilla][DIR];
    const int          tope    = PrimerObstaculo<DIR>((rayo & ocupadas) | ESQUINA);
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

// The squares that the pieces of colour C occupy. A handful of vector comparisons read them off the board.
template <int C>
inline Conjunto CasillasDe() {
    const int* casillas = TableroGlobal.Casillas;
    Conjunto   propias  = 0;
#if defined(__AVX512F__)
    for (int i = 0; i < 64; i += 16) {
        const __m512i   grupo  = _mm512_load_si512(casillas + i);
        const __m512i   vacias = _mm512_set1_epi32(VACIO);
        const __mmask16 bits =
            C == BLANCO ? _mm512_cmplt_epi32_mask(grupo, vacias) : _mm512_cmpgt_epi32_mask(grupo, vacias);
        propias |= Conjunto{bits} << i;
    }
#elif defined(__AVX2__)
    for (int i = 0; i < 64; i += 8) {
        const __m256i grupo  = _mm256_load_si256(reinterpret_cast<const __m256i*>(casillas + i));
        const __m256i vacias = _mm256_set1_epi32(VACIO);
        const __m256i suyas  = C == BLANCO ? _mm256_cmpgt_epi32(vacias, grupo) : _mm256_cmpgt_epi32(grupo, vacias);
        const auto    bits   = static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(suyas)));
        propias |= Conjunto{bits} << i;
    }
#else
    for (int i = 0; i < 64; ++i) propias |= Conjunto{EsPropia<C>(casillas[i])} << i;
#endif
    return propias;
}

// The board with one byte a square, so that few vector comparisons find all squares of a piece code.
struct CodigosTablero {
    alignas(64) std::uint8_t Casillas[64];
};

inline CodigosTablero LeerTablero() {
    CodigosTablero codigos;
    for (int i = 0; i < 64; ++i) codigos.Casillas[i] = static_cast<std::uint8_t>(TableroGlobal.Casillas[i]);
    return codigos;
}

inline Conjunto CasillasCon(const CodigosTablero& codigos, int pieza) {
#if defined(__AVX2__)
    const auto*   mitades = reinterpret_cast<const __m256i*>(codigos.Casillas);
    const __m256i buscada = _mm256_set1_epi8(static_cast<char>(pieza));
    const auto    baja    = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(mitades[0], buscada)));
    const auto    alta    = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(mitades[1], buscada)));
    return Conjunto{alta} << 32 | baja;
#else
    Conjunto conjunto = 0;
    for (int i = 0; i < 64; ++i) conjunto |= Conjunto{codigos.Casillas[i] == pieza} << i;
    return conjunto;
#endif
}
