// The transposition table and, beside it, the evaluation cache: two hash tables keyed by the Zobrist key.
#pragma once

#include <cstdint>

#include "board/Puntuacion.h"
#include "board/Tablero.h"

constexpr int VIAS_CUBO = 4;
constexpr int EDAD_MAX  = 126;  // largest age that an entry holds; beyond it the table is cleared

enum TipoCota : int { COTA_EXACTA = 1, COTA_SUPERIOR = 2, COTA_INFERIOR = 3 };

// Scores are kept 16 bits wide and shifted, so that zeroed memory is a table of empty entries, whose score is
// -VALOR_INFINITO: emptying a table then writes nothing.
constexpr std::uint16_t EmpaquetarPuntos(int puntos) {
    return static_cast<std::uint16_t>(puntos + VALOR_INFINITO);
}
constexpr int DesempaquetarPuntos(std::uint16_t guardados) {
    return static_cast<std::int16_t>(guardados - VALOR_INFINITO);  // wraps, so that all 16 bits serve
}
static_assert(DesempaquetarPuntos(0) == -VALOR_INFINITO);
static_assert(DesempaquetarPuntos(EmpaquetarPuntos(VALOR_MATE + PLIES_MAX)) == VALOR_MATE + PLIES_MAX);
static_assert(DesempaquetarPuntos(EmpaquetarPuntos(-VALOR_MATE - PLIES_MAX)) == -VALOR_MATE - PLIES_MAX);

struct EntradaTransposicion {
    std::uint64_t Key;         // 0 = empty
    std::uint32_t Movimiento;  // best move, 0 = none
    std::uint16_t Puntos;      // packed; mate scores relative to the node
    std::uint16_t Info;        // bits 0-6 depth, 7-13 age, 14-15 TipoCota
};
static_assert(sizeof(EntradaTransposicion) == 16);

struct alignas(64) CuboTransposicion {
    EntradaTransposicion Vias[VIAS_CUBO];
};
static_assert(sizeof(CuboTransposicion) == 64);

struct EntradaCache {
    std::uint64_t Key;     // 0 = empty
    std::uint16_t Puntos;  // packed; evaluation from White's point of view
};
static_assert(sizeof(EntradaCache) == 16);

struct RegistroTT_Opciones {
    int           Megas;           // table, megabytes
    int           MegasCache;      // evaluation cache, megabytes; 0 = no cache
    std::uint64_t NumeroCubos;     // buckets of the table
    std::uint64_t NumeroCache;     // entries of the cache, never 0 while there is one
    std::uint64_t Usadas;          // entries used by this search, the basis of "hashfull"
    int           Edad;            // 1 after clearing, + 1 after each search
    int           Sobrescrituras;  // stores over the same key, saturating
};
extern RegistroTT_Opciones TT_Opciones;
extern CuboTransposicion*  TT_Datos;  // nullptr = no table
extern EntradaCache*       TT_Cache;  // nullptr = no cache

// What a number is divided by again and again, with its reciprocal, 2^64 - 1 over it.
struct DivisorFijo {
    std::uint64_t Numero;
    std::uint64_t Reciproco;
};
extern DivisorFijo DivisorCubos;  // by TT_Opciones.NumeroCubos
extern DivisorFijo DivisorCache;  // by TT_Opciones.NumeroCache

constexpr DivisorFijo CrearDivisor(std::uint64_t numero) {
    return {numero, numero == 0 ? 0 : ~std::uint64_t{0} / numero};
}

// valor % divisor.Numero, without the division, which a probe would wait for. The reciprocal falls short of 2^64 over
// the number by at most 1, so the upper half of the product is the quotient or one less; never more.
constexpr std::uint64_t Resto(std::uint64_t valor, const DivisorFijo& divisor) {
    __extension__ using Doble    = unsigned __int128;
    const auto          cociente = static_cast<std::uint64_t>((Doble{valor} * divisor.Reciproco) >> 64);
    const std::uint64_t resto    = valor - cociente * divisor.Numero;
    return resto < divisor.Numero ? resto : resto - divisor.Numero;
}
static_assert(Resto(~std::uint64_t{0}, CrearDivisor(1)) == 0 && Resto(6, CrearDivisor(7)) == 6);
static_assert(Resto(~std::uint64_t{0}, CrearDivisor(917504)) == ~std::uint64_t{0} % 917504);

// Where a key belongs in a table that exists.
inline CuboTransposicion& CuboDe(std::uint64_t key) {
    return TT_Datos[Resto(key, DivisorCubos)];
}
inline EntradaCache& EntradaCacheDe(std::uint64_t key) {
    return TT_Cache[Resto(key, DivisorCache)];
}

// (Re)creates both tables, empty. megas: the Hash option; below 1 makes 1, beyond 2048 makes 2048. When memory
// runs out it prints a line and raises Salir.
void CrearTransposicion(int megas);
void LiberarTransposicion();
void OcuparTransposicion();   // takes the memory of both, still empty, from the system before a search has to wait
void LimpiarTransposicion();  // empties the table and the cache, age 1; fails as CrearTransposicion
void LimpiarCache();          // empties the evaluation cache alone

// Stores the current position. profundidad in plies; mate scores are made relative to the node. A move of 0
// keeps the move that the table already holds for the same key.
void AlmacenarPosicion(int profundidad, int puntos, int cota, std::uint32_t movimiento);

// Looks the current position up. Returns 1 when the stored bound decides the node for the window at this depth.
// Always delivers the last matching way's score and move (-VALOR_INFINITO and 0 when none matches), but returns 0
// without touching them when there is no table.
int RecuperarPosicion(int alfa, int beta, int profundidad, int* puntos, std::uint32_t* movimiento);

// The move stored for the current position in any way of its bucket, 0 = none.
std::uint32_t MovimientoDeTabla();

// 1 when the table holds an upper bound of at most alfa, and below beta, for the current position at this depth or
// deeper: a null move searched to it would hardly reach beta.
int DesaconsejaNulo(int alfa, int beta, int profundidad);

// Used entries in thousandths of the table, 0..1000.
int Hashfull();

// Ask the processor to fetch what a probe or an evaluation of this key will read.
inline void PrecargarTransposicion(std::uint64_t key) {
    if (TT_Datos != nullptr) __builtin_prefetch(&CuboDe(key));
}
inline void PrecargarCache(std::uint64_t key) {
    if (TT_Cache != nullptr) __builtin_prefetch(&EntradaCacheDe(key));
}
