#include "eval/FinalDamaPeon.h"

#include "eval/Pesos.h"

namespace {

constexpr int FILA_SEPTIMA    = 6;  // of the weaker side, as Fila() counts
constexpr int COLUMNA_ALFIL_C = 2;

// The stronger king reaches the mating net around a1 or c1 in time. The pawn is on the left half of the board; all
// squares are given as Fila() and Columna() count. On the bishop file the defender's long side needs a wider zone,
// because there its king can leave the stalemate corner.
bool ReyALaVista(int rey, int peon, int reyDebil) {
    if (Columna(peon) == 0) return Columna(rey) <= 3 && Fila(rey) >= 5;
    const bool ladoCorto = Columna(reyDebil) < COLUMNA_ALFIL_C;
    return ladoCorto ? Columna(rey) <= 4 && Fila(rey) >= 5 : Columna(rey) <= 5 && Fila(rey) >= 4;
}

bool EsTablas(const RegistroFinal& pos) {
    const int espejo = Columna(Una(pos, PEON_N)) < 4 ? 0 : 7;
    const int peon   = Una(pos, PEON_N) ^ espejo;
    const int debil  = Una(pos, REY_N) ^ espejo;
    const int meta   = peon + 8;
    if (Fila(peon) != FILA_SEPTIMA || (Columna(peon) != 0 && Columna(peon) != COLUMNA_ALFIL_C)) return false;
    // In front of its own rook pawn the king may be shut in; a move later it stands beside it or is lost.
    if (DistanciaRey(debil, meta) > 1 || (Columna(peon) == 0 && debil == meta)) return false;
    return !ReyALaVista(Una(pos, REY_B) ^ espejo, peon, debil);
}

}  // namespace

int EvaluarDamaContraPeon(const RegistroFinal& pos) {
    const int cercania = PESOS.DAMA_PEON_CERCANIA * (7 - DistanciaRey(Una(pos, REY_B), Una(pos, PEON_N)));
    return EsTablas(pos) ? PESOS.DAMA_PEON_TABLAS : PESOS.DAMA_PEON_GANADA + cercania;
}
