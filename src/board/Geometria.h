// Geometry of the 64-square board, computed at compile time: files, ranks, distances, jumps and ray lengths.
#pragma once

#include <array>
#include <cstdint>

constexpr int Columna(int casilla) {
    return casilla & 7;
}  // 0 = file a
constexpr int Fila(int casilla) {
    return casilla >> 3;
}  // 0 = rank 8
constexpr bool EnTablero(int casilla) {
    return casilla >= 0 && casilla < 64;
}

// Colour of a square: 1 for a8 and h1, 0 for a1. The same values as TableroGlobal.TablaCasillas.
constexpr int ColorCasilla(int casilla) {
    return 1 - ((Columna(casilla) + Fila(casilla)) & 1);
}
constexpr bool MismoColor(int a, int b) {
    return ColorCasilla(a) == ColorCasilla(b);
}

constexpr int Absoluto(int valor) {
    return valor < 0 ? -valor : valor;
}

// King moves between two squares on an empty board (Chebyshev distance), 0..7.
constexpr int DistanciaRey(int a, int b) {
    const int columnas = Absoluto(Columna(a) - Columna(b));
    const int filas    = Absoluto(Fila(a) - Fila(b));
    return columnas > filas ? columnas : filas;
}

// The eight directions: four diagonal, then four straight, each in the order in which moves are generated.
enum Direccion : int { DIR_MAS_9, DIR_MAS_7, DIR_MENOS_7, DIR_MENOS_9, DIR_MAS_8, DIR_MENOS_8, DIR_MENOS_1, DIR_MAS_1 };
constexpr int DIRECCIONES       = 8;
constexpr int PRIMERA_RECTA     = DIR_MAS_8;
constexpr int PASO[DIRECCIONES] = {+9, +7, -7, -9, +8, -8, -1, +1};
constexpr int SALTO_CABALLO[8]  = {+10, -6, +6, -10, +17, +15, -15, -17};
constexpr int PASO_REY[8]       = {+8, -8, +1, -1, +9, -9, +7, -7};

// Targets of a jumping piece from one square, in generation order.
struct Saltos {
    std::uint8_t Numero;
    std::uint8_t Casillas[8];
};

namespace geometria {

constexpr std::array<Saltos, 64> CalcularSaltos(const int (&saltos)[8]) {
    std::array<Saltos, 64> tabla{};
    for (int casilla = 0; casilla < 64; ++casilla)
        for (const int salto : saltos) {
            const int destino = casilla + salto;
            if (!EnTablero(destino) || DistanciaRey(casilla, destino) > 2) continue;  // off the board or wrapped
            Saltos& fila                 = tabla[static_cast<std::size_t>(casilla)];
            fila.Casillas[fila.Numero++] = static_cast<std::uint8_t>(destino);
        }
    return tabla;
}

// Steps from each square to the edge of the board, by direction.
constexpr std::array<std::array<std::uint8_t, DIRECCIONES>, 64> CalcularAlcances() {
    std::array<std::array<std::uint8_t, DIRECCIONES>, 64> tabla{};
    for (int casilla = 0; casilla < 64; ++casilla)
        for (int dir = 0; dir < DIRECCIONES; ++dir) {
            int actual = casilla;
            int pasos  = 0;
            while (EnTablero(actual + PASO[dir]) && DistanciaRey(actual, actual + PASO[dir]) == 1) {
                actual += PASO[dir];
                ++pasos;
            }
            tabla[static_cast<std::size_t>(casilla)][static_cast<std::size_t>(dir)] = static_cast<std::uint8_t>(pasos);
        }
    return tabla;
}

}  // namespace geometria

inline constexpr std::array<Saltos, 64> SALTOS_CABALLO = geometria::CalcularSaltos(SALTO_CABALLO);
inline constexpr std::array<Saltos, 64> SALTOS_REY     = geometria::CalcularSaltos(PASO_REY);

// ALCANCE[square][Direccion]: steps to the edge of the board, 0..7.
inline constexpr std::array<std::array<std::uint8_t, DIRECCIONES>, 64> ALCANCE = geometria::CalcularAlcances();
