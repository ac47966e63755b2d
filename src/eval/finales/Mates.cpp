// Mating a bare king, and the wins of heavy pieces that start with driving the king to the edge.
#include <algorithm>
#include <cstddef>

#include "eval/Pesos.h"
#include "eval/finales/Evaluadores.h"
#include "eval/finales/Kpk.h"

// Centipawns a step, in the way a win is made: king to the edge, kings together, pawns forward.
constexpr int PESO_BORDE  = 10;
constexpr int PESO_REYES  = 6;
constexpr int PESO_AVANCE = 8;

constexpr int PESO_CABALLO = 2;  // the knight towards the king, when it mates with the bishop

constexpr int DISTANCIA_MAX = 7;

// Bishop and knight mate only in a corner of the bishop's colour. The value falls along the edge from those corners,
// so that a king in a wrong corner is worth driving out, and stays lower away from the edge. Light-squared bishop;
// for a dark-squared one the files are mirrored.
// clang-format off
constexpr int RINCON_CABALLO_ALFIL[64] = {  // centipawns
//    a    b    c    d    e    f    g    h
    100,  90,  80,  70,  60,  50,  45,  40,   // 8
     90,  80,  65,  55,  45,  35,  30,  45,   // 7
     80,  65,  40,  30,  25,  20,  35,  50,   // 6
     70,  55,  30,  10,   5,  25,  45,  60,   // 5
     60,  45,  25,   5,  10,  30,  55,  70,   // 4
     50,  35,  20,  25,  30,  40,  65,  80,   // 3
     45,  30,  35,  45,  55,  65,  80,  90,   // 2
     40,  45,  50,  60,  70,  80,  90, 100};  // 1
// clang-format on

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

static int ProgresoCaballoAlfil(const RegistroFinal& pos) {
    const int rey    = Una(pos, REY_B);
    const int debil  = Una(pos, REY_N);
    const int espejo = ColorCasilla(Una(pos, ALFIL_B)) == ColorCasilla(0) ? 0 : 7;
    return RINCON_CABALLO_ALFIL[static_cast<std::size_t>(debil ^ espejo)] +
           PESO_REYES * (DISTANCIA_MAX - DistanciaRey(rey, debil)) - LejosDelCentro(rey) -
           PESO_CABALLO * DistanciaRey(Una(pos, CABALLO_B), debil);
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
        return PuntosVictoria(pos, caballoAlfil ? ProgresoCaballoAlfil(pos) : Acoso(pos));
    }
    if (fuerzas.Peones == 0 || EsFortalezaPeonTorre(pos)) return TABLAS_SEGURAS;
    if (GanaAlgunPeon(pos)) return PuntosVictoria(pos, 0);
    const bool soloUnPeon = fuerzas.Peones == 1 && fuerzas.Caballos + fuerzas.Alfiles == 0;
    return soloUnPeon ? TABLAS_SEGURAS : NO_RECONOCIDO;
}

int EvaluarVentajaSinPeones(const RegistroFinal& pos) {
    return PESOS.BASE_VENTAJA + ValorMaterial(pos, PEON_B) - ValorMaterial(pos, PEON_N) + Acoso(pos);
}
