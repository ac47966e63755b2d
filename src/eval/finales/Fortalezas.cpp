// Fortresses of the weaker side, in endings that material alone overrates.
#include <cstddef>

#include "eval/Pesos.h"
#include "eval/finales/Evaluadores.h"

// The files of one colour's pawns are all the given rook file.
static bool PeonesEnColumna(const RegistroFinal& pos, int columna) {
    for (int i = 0; i < pos.Numero[PEON_B]; ++i)
        if (Columna(pos.Casillas[PEON_B][i]) != columna) return false;
    return pos.Numero[PEON_B] > 0;
}

static bool AlfilesFueraDe(const RegistroFinal& pos, int casilla) {
    for (int i = 0; i < pos.Numero[ALFIL_B]; ++i)
        if (MismoColor(pos.Casillas[ALFIL_B][i], casilla)) return false;
    return true;
}

// A single pawn one step from its corner, with a knight that can guard it but does not cover the corner.
static bool EsCaballoAtadoAlPeon(const RegistroFinal& pos, int rincon) {
    const Saltos& saltos = SALTOS_CABALLO[static_cast<std::size_t>(rincon)];
    for (int i = 0; i < saltos.Numero; ++i)
        if (saltos.Casillas[i] == Una(pos, CABALLO_B)) return false;
    return pos.Numero[CABALLO_B] == 1 && pos.Numero[ALFIL_B] == 0 && pos.Numero[PEON_B] == 1 &&
           PasosHastaCoronar(Una(pos, PEON_B)) == 1;
}

bool EsFortalezaPeonTorre(const RegistroFinal& pos) {
    const int peon   = Una(pos, PEON_B);
    const int rincon = Coronacion(peon);
    if (!EsColumnaTorre(peon) || DistanciaRey(Una(pos, REY_N), rincon) > 1) return false;
    if (!PeonesEnColumna(pos, Columna(peon)) || !AlfilesFueraDe(pos, rincon)) return false;
    return pos.Numero[CABALLO_B] == 0 || EsCaballoAtadoAlPeon(pos, rincon);
}

int EvaluarAlfilPeonContraMenor(const RegistroFinal& pos) {
    const int  debil   = Una(pos, REY_N);
    const int  peon    = Una(pos, PEON_B);
    const bool delante = Columna(debil) == Columna(peon) && Fila(debil) < Fila(peon);
    return delante && !MismoColor(debil, Una(pos, ALFIL_B)) ? TABLAS_SEGURAS : NO_RECONOCIDO;
}

int EvaluarDamaContraTorrePeon(const RegistroFinal& pos) {
    const int  torre     = Una(pos, TORRE_N);
    const int  peon      = Una(pos, PEON_N);
    const int  rey       = Una(pos, REY_N);
    const bool sostenida = Fila(peon) == 1 && Fila(torre) == 2 && Absoluto(Columna(peon) - Columna(torre)) == 1;
    const bool encerrada = sostenida && !EsColumnaTorre(peon) && DistanciaRey(rey, peon) == 1 && Fila(rey) < 2 &&
                           Fila(Una(pos, REY_B)) > Fila(torre);
    return encerrada ? PESOS.FORTALEZA : NO_RECONOCIDO;
}
