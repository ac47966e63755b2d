#include "board/Tablero.h"

#include <algorithm>
#include <iterator>

#include "board/Geometria.h"

RegistroTablero TableroGlobal;

// Shortest reversible play that can bring a position back.
constexpr int PLIES_REPETICION = 4;

void CrearTablaCasillas() {
    for (int casilla = 0; casilla < 64; ++casilla) TableroGlobal.TablaCasillas[casilla] = ColorCasilla(casilla);
}

void VaciarTablero() {
    RegistroTablero& t = TableroGlobal;
    std::fill(std::begin(t.Casillas), std::end(t.Casillas), VACIO);
    std::fill(std::begin(t.Piezas), std::end(t.Piezas), 0);
    std::fill(std::begin(t.Bandos), std::end(t.Bandos), 0);
}

int Es_Tabla_Repeticion() {
    if (TableroGlobal.Regla50 < PLIES_REPETICION) return 0;
    // The last key is that of the current position. Neighbours are compared too, because the moves played before
    // the root stand twice in the history.
    const int ultima  = TableroGlobal.NumeroKeys - 1;
    const int primera = std::max(0, TableroGlobal.NumeroKeys - TableroGlobal.Regla50);
    for (int i = primera; i < ultima; ++i)
        if (TableroGlobal.HistorialKeys[i] == TableroGlobal.Key) return 1;
    return 0;
}

int EsTablasPorRegla() {
    return TableroGlobal.Regla50 > REGLA50_MAX || Es_Tabla_Repeticion() != 0;
}
