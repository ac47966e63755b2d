// Operations on sets of squares. The board itself is an array that keeps its sets beside it; with them a question about
// many squares (which of them does this bishop reach that no pawn covers?) is one operation instead of a loop.
#pragma once

#include <array>
#include <bit>
#include <cstddef>

#include "board/Color.h"
#include "board/Geometria.h"

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

// A whole line, both directions at once, without a walk (the "kindergarten" method of Isenberg, 2006). A multiplication
// gathers the occupied squares of the line on one rank; a rank or a diagonal has at most one square on each file, so no
// two of them meet and nothing carries. The six inner squares of that rank are the index of a small table: a square at
// the edge ends the view whether it is occupied or not.
namespace conjunto {

constexpr int INTERIORES = 64;  // sets of inner squares of a line of eight

using FilaVistas = std::array<Conjunto, INTERIORES>;

// Eight places in a row, bit n = place n: those seen from one of them, with the given inner places occupied.
constexpr Conjunto VistaEnFila(int lugar, unsigned interiores) {
    const Conjunto ocupados = Conjunto{interiores} << 1;
    Conjunto       vista    = 0;
    for (const int paso : {-1, +1})
        for (int otro = lugar + paso; otro >= 0 && otro < 8; otro += paso) {
            vista |= Bit(otro);
            if ((ocupados & Bit(otro)) != 0) break;
        }
    return vista;
}

// The same upright: place n is the n-th square of the a file, from a8 down.
constexpr Conjunto VistaEnColumna(int lugar, unsigned interiores) {
    const Conjunto fila    = VistaEnFila(lugar, interiores);
    Conjunto       columna = 0;
    for (int otro = 0; otro < 8; ++otro)
        if ((fila & Bit(otro)) != 0) columna |= Bit(8 * otro);
    return columna;
}

constexpr std::array<FilaVistas, 8> CalcularVistas(bool en_columna) {
    std::array<FilaVistas, 8> tabla{};
    for (int lugar = 0; lugar < 8; ++lugar)
        for (unsigned interiores = 0; interiores < INTERIORES; ++interiores)
            tabla[static_cast<std::size_t>(lugar)][interiores] =
                en_columna ? VistaEnColumna(lugar, interiores) : VistaEnFila(lugar, interiores) * COLUMNA_A;
    return tabla;
}

// [file of the square][inner squares]: the view along a rank, on all ranks alike, so that any line cuts its own out.
inline constexpr std::array<FilaVistas, 8> VISTAS_FILA = CalcularVistas(false);
// [rank of the square, 0 = 8][inner squares]: the view along the a file.
inline constexpr std::array<FilaVistas, 8> VISTAS_COLUMNA = CalcularVistas(true);

// The lines through a square but its file, without the square itself.
struct Lineas {
    Conjunto Fila;
    Conjunto Diagonal;
    Conjunto Antidiagonal;
};

constexpr std::array<Lineas, 64> CalcularLineas() {
    std::array<Lineas, 64> tabla{};
    for (std::size_t casilla = 0; casilla < 64; ++casilla) {
        const FilaRayos& rayos = RAYOS[casilla];
        tabla[casilla]         = {rayos[DIR_MAS_1] | rayos[DIR_MENOS_1], rayos[DIR_MAS_9] | rayos[DIR_MENOS_9],
                                  rayos[DIR_MAS_7] | rayos[DIR_MENOS_7]};
    }
    return tabla;
}
inline constexpr std::array<Lineas, 64> LINEAS = CalcularLineas();

inline Conjunto VistaEnLinea(Conjunto linea, int columna, Conjunto ocupadas) {
    const Conjunto interiores = ((ocupadas & linea) * (COLUMNA_A << 1)) >> 58;
    return linea & VISTAS_FILA[static_cast<std::size_t>(columna)][interiores];
}

constexpr std::array<Conjunto, 64> UnirRayos(int primera, int ultima) {
    std::array<Conjunto, 64> tabla{};
    for (std::size_t casilla = 0; casilla < 64; ++casilla)
        for (int dir = primera; dir <= ultima; ++dir) tabla[casilla] |= RAYOS[casilla][static_cast<std::size_t>(dir)];
    return tabla;
}

}  // namespace conjunto

// The lines through a square: what a bishop and a rook would see on an empty board.
inline constexpr std::array<Conjunto, 64> LINEAS_ALFIL = conjunto::UnirRayos(0, PRIMERA_RECTA - 1);
inline constexpr std::array<Conjunto, 64> LINEAS_TORRE = conjunto::UnirRayos(PRIMERA_RECTA, DIRECCIONES - 1);

// What a line piece on a square sees, the first occupied square of each direction included.
inline Conjunto AtaquesDiagonales(int desde, Conjunto ocupadas) {
    const conjunto::Lineas& lineas = conjunto::LINEAS[static_cast<std::size_t>(desde)];
    return conjunto::VistaEnLinea(lineas.Diagonal, Columna(desde), ocupadas) |
           conjunto::VistaEnLinea(lineas.Antidiagonal, Columna(desde), ocupadas);
}

inline Conjunto AtaquesHorizontales(int desde, Conjunto ocupadas) {
    return conjunto::VistaEnLinea(conjunto::LINEAS[static_cast<std::size_t>(desde)].Fila, Columna(desde), ocupadas);
}

// The factor has a bit for each inner square of the file: it takes the square to its place among the upper six bits,
// and everything else below them or off the end.
inline Conjunto AtaquesVerticales(int desde, Conjunto ocupadas) {
    constexpr Conjunto GIRO       = Bit(50) | Bit(43) | Bit(36) | Bit(29) | Bit(22) | Bit(15);
    const int          columna    = Columna(desde);
    const Conjunto     interiores = (((ocupadas >> columna) & COLUMNA_A) * GIRO) >> 58;
    return conjunto::VISTAS_COLUMNA[static_cast<std::size_t>(Fila(desde))][interiores] << columna;
}

inline Conjunto AtaquesRectos(int desde, Conjunto ocupadas) {
    return AtaquesHorizontales(desde, ocupadas) | AtaquesVerticales(desde, ocupadas);
}

// The squares that the pieces of colour C occupy, and those with any piece.
template <int C>
inline Conjunto CasillasDe() {
    return TableroGlobal.Bandos[C];
}
inline Conjunto CasillasOcupadas() {
    return TableroGlobal.Bandos[BLANCO] | TableroGlobal.Bandos[NEGRO];
}
// The squares that hold a piece code.
inline Conjunto CasillasCon(int pieza) {
    return TableroGlobal.Piezas[pieza];
}
