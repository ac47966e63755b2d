// Mating a bare king, and the wins of heavy pieces that start with driving the king to the edge.
#include <algorithm>

#include "eval/Pesos.h"
#include "eval/finales/Evaluadores.h"
#include "eval/finales/Kbnk.h"
#include "eval/finales/Kpk.h"

// Centipawns a step, in the way a win is made: king to the edge, kings together, pawns forward.
constexpr int PESO_BORDE  = 10;
constexpr int PESO_REYES  = 6;
constexpr int PESO_AVANCE = 8;
constexpr int PESO_JUGADA = 10;  // a move nearer to the mate, where a table knows it

constexpr int DISTANCIA_MAX = 7;

struct RecuentoFuerte {
    int  Peones;
    int  Caballos;
    int  Alfiles;
    int  Pesadas;
    bool AlfilesDistintos;  // bishops on both colours
};

static RecuentoFuerte ContarFuerzas(const RegistroFinal& pos) {
    RecuentoFuerte fuerzas{pos.Numero[PEON_B], pos.Numero[CABALLO_B], pos.Numero[ALFIL_B],
                           pos.Numero[TORRE_B] + pos.Numero[DAMA_B], false};
    for (int i = 1; i < fuerzas.Alfiles; ++i)
        fuerzas.AlfilesDistintos |= !MismoColor(pos.Casillas[ALFIL_B][0], pos.Casillas[ALFIL_B][i]);
    return fuerzas;
}

static bool PuedenDarMate(const RecuentoFuerte& fuerzas) {
    return fuerzas.Pesadas > 0 || fuerzas.AlfilesDistintos || (fuerzas.Alfiles > 0 && fuerzas.Caballos > 0) ||
           fuerzas.Caballos > 2;
}

static int Acoso(const RegistroFinal& pos) {
    const int debil = Una(pos, REY_N);
    return PESO_BORDE * LejosDelCentro(debil) + PESO_REYES * (DISTANCIA_MAX - DistanciaRey(Una(pos, REY_B), debil));
}

static int AvancePeones(const RegistroFinal& pos) {
    int suma = 0;
    for (int i = 0; i < pos.Numero[PEON_B]; ++i)
        suma += PESO_AVANCE * (DISTANCIA_MAX - PasosHastaCoronar(pos.Casillas[PEON_B][i]));
    return suma;
}

static int PuntosVictoria(const RegistroFinal& pos, int progreso) {
    return std::min(VICTORIA + ValorMaterial(pos, PEON_B) + AvancePeones(pos) + progreso, VICTORIA_MAXIMA);
}

// Bishop and knight mate only in a corner of the bishop's colour, and the way there is long and narrow: no measure of
// the places alone leads a search of a few moves through it before the fifty moves are over.
static int EvaluarCaballoAlfil(const RegistroFinal& pos) {
    const int jugadas =
        KbnkJugadas(Una(pos, REY_B), Una(pos, ALFIL_B), Una(pos, CABALLO_B), Una(pos, REY_N), pos.MueveFuerte);
    return jugadas == KBNK_SIN_MATE ? TABLAS_SEGURAS : PuntosVictoria(pos, PESO_JUGADA * (KBNK_JUGADAS_MAX - jugadas));
}

// Some pawn would win if the others and the pieces were not there.
static bool GanaAlgunPeon(const RegistroFinal& pos) {
    for (int i = 0; i < pos.Numero[PEON_B]; ++i)
        if (KpkGana(Una(pos, REY_B), pos.Casillas[PEON_B][i], Una(pos, REY_N), pos.MueveFuerte) == 1) return true;
    return false;
}

int EvaluarReySolo(const RegistroFinal& pos) {
    const RecuentoFuerte fuerzas = ContarFuerzas(pos);
    if (PuedenDarMate(fuerzas)) {
        const bool caballoAlfil =
            fuerzas.Caballos == 1 && fuerzas.Alfiles == 1 && fuerzas.Pesadas + fuerzas.Peones == 0;
        return caballoAlfil ? EvaluarCaballoAlfil(pos) : PuntosVictoria(pos, Acoso(pos));
    }
    if (fuerzas.Peones == 0 || EsFortalezaPeonTorre(pos)) return TABLAS_SEGURAS;
    if (GanaAlgunPeon(pos)) return PuntosVictoria(pos, 0);
    const bool soloUnPeon = fuerzas.Peones == 1 && fuerzas.Caballos + fuerzas.Alfiles == 0;
    return soloUnPeon ? TABLAS_SEGURAS : NO_RECONOCIDO;
}

int EvaluarVentajaSinPeones(const RegistroFinal& pos) {
    return PESOS.BASE_VENTAJA + ValorMaterial(pos, PEON_B) - ValorMaterial(pos, PEON_N) + Acoso(pos);
}
