#include "board/Zobrist.h"

#include <cstdlib>

std::uint64_t zobrist_Tablero[CODIGOS][64];
std::uint64_t zobrist_Turno;

constexpr std::uint64_t MARGEN_CLAVES = 0x7FFFFFFF;

// One drawn key: bits 1 to 63 from the parity of 63 successive random numbers.
static std::uint64_t SortearClave() {
    std::uint64_t clave = 0;
    for (int bit = 1; bit < 64; ++bit)
        if (std::rand() % 2 == 0) clave |= std::uint64_t{1} << bit;
    return clave;
}

// A key closer than the margin to either end of the 64-bit range would make the test below refuse every later key.
static bool CercaDelBorde(std::uint64_t clave) {
    return clave <= MARGEN_CLAVES || clave >= ~MARGEN_CLAVES;
}

// In wrapping arithmetic both comparisons hold only for stored keys within the margin of either end of the range.
static bool ChocaConOtra(std::uint64_t clave) {
    for (const auto& fila : zobrist_Tablero)
        for (const std::uint64_t otra : fila)
            if (otra != 0 && clave <= otra - MARGEN_CLAVES && clave >= otra + MARGEN_CLAVES) return true;
    return false;
}

std::uint64_t rand64() {
    std::uint64_t clave = SortearClave();
    while (CercaDelBorde(clave) || ChocaConOtra(clave)) clave = SortearClave();
    return clave;
}

void InicializarZobrist(unsigned semilla) {
    std::srand(semilla);
    for (auto& fila : zobrist_Tablero)
        for (std::uint64_t& clave : fila) clave = rand64();
    zobrist_Turno = rand64();
}

std::uint64_t ObtenerKey() {
    const RegistroTablero& t   = TableroGlobal;
    std::uint64_t          key = 0;
    for (int casilla = 0; casilla < 64; ++casilla)
        if (t.Casillas[casilla] != VACIO) key ^= zobrist_Tablero[t.Casillas[casilla]][casilla];
    if (t.FichaAlPaso != 0) key ^= zobrist_Tablero[FILA_AL_PASO][t.FichaAlPaso];
    key ^= zobrist_Tablero[FILA_ENROQUE][63 - t.EnroqueBlancas];
    key ^= zobrist_Tablero[FILA_ENROQUE][t.EnroqueNegras];
    if (t.Turno == 1) key ^= zobrist_Turno;
    return key;
}
