// What one pass over the board finds out for the rest of the evaluation: where the pieces stand, what the pawns control
// and which of them are strong or weak.
#pragma once

#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

#include "board/Conjunto.h"

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

// Fills the sets of both sides, those of the pieces' attacks with nothing, and Peones_Septima of the side records.
void ReunirConjuntos();
