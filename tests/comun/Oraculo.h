// Attacks found step by step on files and ranks, without anything of the engine but the board itself.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

#include "board/Tablero.h"

inline bool EsDe(int color, int pieza) {
    return color == 1 ? pieza < VACIO : pieza > VACIO;
}

// Squares attacked by the piece that stands on the given one.
inline std::vector<int> AtaquesDesde(int desde) {
    const int        pieza = TableroGlobal.Casillas[desde];
    const int        clase = pieza > VACIO ? pieza - DESFASE_NEGRO : pieza;
    std::vector<int> ataques;
    for (int filas = -2; filas <= 2; ++filas)
        for (int columnas = -2; columnas <= 2; ++columnas) {
            const bool vecina   = std::max(std::abs(filas), std::abs(columnas)) == 1;
            const bool recta    = vecina && filas * columnas == 0;
            const bool diagonal = vecina && !recta;
            const bool valido   = clase == PEON_B      ? diagonal && filas == (pieza == PEON_B ? -1 : 1)
                                  : clase == CABALLO_B ? std::abs(filas * columnas) == 2
                                  : clase == ALFIL_B   ? diagonal
                                  : clase == TORRE_B   ? recta
                                                       : vecina;
            const int  alcance  = clase == ALFIL_B || clase == TORRE_B || clase == DAMA_B ? 7 : 1;
            for (int paso = 1; valido && paso <= alcance; ++paso) {
                const int fila = desde / 8 + paso * filas, columna = desde % 8 + paso * columnas;
                if (fila < 0 || fila > 7 || columna < 0 || columna > 7) break;
                ataques.push_back(8 * fila + columna);
                if (TableroGlobal.Casillas[ataques.back()] != VACIO) break;
            }
        }
    return ataques;
}

// How often the colour (1 = White) attacks each square.
inline std::vector<int> AtaquesDe(int color) {
    std::vector<int> veces(64, 0);
    for (int desde = 0; desde < 64; ++desde)
        if (EsDe(color, TableroGlobal.Casillas[desde]))
            for (const int hasta : AtaquesDesde(desde)) ++veces[static_cast<std::size_t>(hasta)];
    return veces;
}
