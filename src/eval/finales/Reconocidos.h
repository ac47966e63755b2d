// What the piece counts alone tell about an ending.
#pragma once

#include <cstdint>

constexpr int SIN_CAMBIO = 100;  // percentage of a score that leaves it as it is

// Arguments: white pawns, knights, bishops, rooks and queens, then Black's. Returns the percentage of the normal
// score that the material deserves, whoever stands better: 0 = dead draw, SIN_CAMBIO = no special knowledge, more than
// that in endings of many pawns. It is 0 only where neither side can force a win, and exchanging the colours returns
// the same. Any counts of 0 or more are accepted.
int FinalesReconocidos(int pb, int cb, int ab, int tb, int db, int pn, int cn, int an, int tn, int dn);

// The same for the pieces of Blancas and Negras.
int FactorFinal();

// The material of a side as one number, for telling endings apart with a single comparison.
constexpr int CUENTA_MAX = 15;  // larger counts are kept as this one; no ending that has a rule comes near it

constexpr std::uint64_t CuentaEnClave(int cuenta, int lugar) {
    return static_cast<std::uint64_t>(cuenta < CUENTA_MAX ? cuenta : CUENTA_MAX) << (4 * lugar);
}

constexpr std::uint64_t ClaveMaterial(int peones, int caballos, int alfiles, int torres, int damas) {
    return CuentaEnClave(peones, 0) | CuentaEnClave(caballos, 1) | CuentaEnClave(alfiles, 2) |
           CuentaEnClave(torres, 3) | CuentaEnClave(damas, 4);
}

// One side given in letters, as endings are named: "RP" is rook and pawn, "" a bare king.
constexpr std::uint64_t Fuerzas(const char* letras) {
    std::uint64_t clave = 0;
    for (; *letras != '\0'; ++letras)
        for (int lugar = 0; lugar < 5; ++lugar)
            if (*letras == "PNBRQ"[lugar]) clave += std::uint64_t{1} << (4 * lugar);
    return clave;
}

constexpr std::uint64_t Enfrentadas(std::uint64_t unas, std::uint64_t otras) {
    return unas << 20 | otras;
}
constexpr std::uint64_t Enfrentadas(const char* unas, const char* otras) {
    return Enfrentadas(Fuerzas(unas), Fuerzas(otras));
}

constexpr std::uint64_t PEONES_EN_CLAVE = CUENTA_MAX;
constexpr std::uint64_t SinPeones(std::uint64_t clave) {
    return clave & ~PEONES_EN_CLAVE;
}
constexpr int PeonesDe(std::uint64_t clave) {
    return static_cast<int>(clave & PEONES_EN_CLAVE);
}
