// Endings that material alone overrates: fortresses of the weaker side and opposite-coloured bishops.
#include <algorithm>
#include <cstddef>

#include "eval/Espejo.h"
#include "eval/Pesos.h"
#include "eval/finales/Evaluadores.h"

constexpr int DIFERENCIA_MAX = 2;  // of pawns, with opposite-coloured bishops

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

// No pawn of the other side can stop this one or take it on its way.
static bool EsPasado(const RegistroFinal& pos, int codigo, int peon) {
    const int rival   = codigo == PEON_B ? PEON_N : PEON_B;
    const int sentido = codigo == PEON_B ? -1 : 1;
    for (int i = 0; i < pos.Numero[rival]; ++i) {
        const int otro = pos.Casillas[rival][i];
        if (Absoluto(Columna(otro) - Columna(peon)) <= 1 && (Fila(otro) - Fila(peon)) * sentido > 0) return false;
    }
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

// Worth of one side's pawns; a passed one counts half when the enemy bishop covers the square before it.
static int PeonesConAlfiles(const RegistroFinal& pos, int codigo, int valorPeon) {
    const bool fuerte     = codigo == PEON_B;
    const int  alfilRival = Una(pos, fuerte ? ALFIL_N : ALFIL_B);
    int        suma       = 0;
    for (int i = 0; i < pos.Numero[codigo]; ++i) {
        const int peon = pos.Casillas[codigo][i];
        suma += valorPeon;
        if (!EsPasado(pos, codigo, peon)) continue;
        const int pasos   = PasosHastaCoronar(fuerte ? peon : Reflejada(peon));
        const int bloqueo = MismoColor(peon, alfilRival) ? 1 : 2;  // the next square has the other colour
        suma += PESOS.ALFILES_PASADO[pasos] * bloqueo / 2;
    }
    return suma;
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

int EvaluarAlfilesDistintoColor(const RegistroFinal& pos) {
    const int diferencia = Absoluto(pos.Numero[PEON_B] - pos.Numero[PEON_N]);
    if (MismoColor(Una(pos, ALFIL_B), Una(pos, ALFIL_N)) || diferencia > DIFERENCIA_MAX) return NO_RECONOCIDO;
    const int valorPeon = diferencia == DIFERENCIA_MAX ? PESOS.ALFILES_PEON_DOS_MAS : PESOS.ALFILES_PEON;
    return PeonesConAlfiles(pos, PEON_B, valorPeon) - PeonesConAlfiles(pos, PEON_N, valorPeon) +
           PESOS.ALFILES_CENTRO * (LejosDelCentro(Una(pos, REY_N)) - LejosDelCentro(Una(pos, REY_B)));
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
