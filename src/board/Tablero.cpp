#include "board/Tablero.h"

#include "board/Geometria.h"

RegistroTablero TableroGlobal;

void CrearTablaCasillas() {
    for (int casilla = 0; casilla < 64; ++casilla) TableroGlobal.TablaCasillas[casilla] = ColorCasilla(casilla);
}
