// Opposite-coloured bishops: king and bishop hold any one point against a pawn or two more, but not two points at once.
// What counts are passed pawns, above all those that cannot be stopped from the same square.
#include <algorithm>

#include "board/Color.h"
#include "board/Conjunto.h"
#include "eval/Pesos.h"
#include "eval/finales/Evaluadores.h"

constexpr int DIFERENCIA_MAX = 2;  // of pawns; a side with more of them wins as a rule
constexpr int CERCANIA_MAX   = 3;  // steps that one king is nearer to a pawn than the other
constexpr int SEPARACION     = 3;  // files between two passed pawns that one king cannot watch
constexpr int FRENTES        = 3;  // that many passed pawns keep the bishop busy as well

template <int C>
static Conjunto ReunirPeones(const RegistroFinal& pos) {
    Conjunto peones = 0;
    for (int i = 0; i < pos.Numero[PEON<C>]; ++i) peones |= Bit(pos.Casillas[PEON<C>][i]);
    return peones;
}

// Nothing can take them on their way; of two on a file the first.
template <int C>
static Conjunto ReunirPasados(const RegistroFinal& pos) {
    const Conjunto peones    = ReunirPeones<C>(pos);
    const Conjunto vigiladas = Detras<C>(ReunirPeones<RIVAL<C>>(pos));
    return peones & ~(vigiladas | Lados(vigiladas) | Detras<C>(peones)) & Filas<C>(1, 6);
}

template <int C>
static int Pasos(int peon) {
    return 7 - FilaRelativa<C>(peon);
}

// It counts half when the enemy bishop covers the square before it.
template <int C>
static int ValorPasado(const RegistroFinal& pos, int peon) {
    const int delante   = peon + ADELANTE<C>;
    const int bloqueado = MismoColor(delante, Una(pos, ALFIL<RIVAL<C>>)) ? 2 : 1;
    const int cercania  = DistanciaRey(Una(pos, REY<RIVAL<C>>), delante) - DistanciaRey(Una(pos, REY<C>), delante);
    return PESOS.ALFILES_PASADO[Pasos<C>(peon)] / bloqueado +
           PESOS.ALFILES_CERCANIA * std::clamp(cercania, -CERCANIA_MAX, CERCANIA_MAX);
}

// Side by side, and the enemy king does not stand before them.
template <int C>
static bool EstanUnidos(const RegistroFinal& pos, int uno, int otro) {
    const int rey = Una(pos, REY<RIVAL<C>>);
    return Absoluto(Columna(uno) - Columna(otro)) == 1 && Absoluto(Fila(uno) - Fila(otro)) <= 1 &&
           DistanciaRey(rey, uno + ADELANTE<C>) > 1 && DistanciaRey(rey, otro + ADELANTE<C>) > 1;
}

// The best two that stand side by side, and the best two that stand far apart.
template <int C>
static int ValorParejas(const RegistroFinal& pos, Conjunto pasados) {
    int unidos    = 0;
    int separados = 0;
    while (pasados != 0) {
        const int uno = SacarCasilla(pasados);
        for (Conjunto otros = pasados; otros != 0;) {
            const int otro  = SacarCasilla(otros);
            const int pasos = std::max(Pasos<C>(uno), Pasos<C>(otro));
            if (EstanUnidos<C>(pos, uno, otro)) unidos = std::max(unidos, PESOS.ALFILES_UNIDOS[pasos]);
            if (Absoluto(Columna(uno) - Columna(otro)) >= SEPARACION)
                separados = std::max(separados, PESOS.ALFILES_SEPARADOS[pasos]);
        }
    }
    return unidos + separados;
}

template <int C>
static int ValorPeones(const RegistroFinal& pos) {
    const Conjunto pasados = ReunirPasados<C>(pos);
    int            suma    = PESOS.ALFILES_PEON * pos.Numero[PEON<C>] + ValorParejas<C>(pos, pasados);
    for (Conjunto resto = pasados; resto != 0;) suma += ValorPasado<C>(pos, SacarCasilla(resto));
    if (Cuantas(pasados) >= FRENTES) suma += PESOS.ALFILES_FRENTES;
    if (pos.Numero[PEON<C>] - pos.Numero[PEON<RIVAL<C>>] == DIFERENCIA_MAX) suma += PESOS.ALFILES_DOS_MAS;
    return suma;
}

int EvaluarAlfilesDistintoColor(const RegistroFinal& pos) {
    const int diferencia = pos.Numero[PEON_B] - pos.Numero[PEON_N];
    if (MismoColor(Una(pos, ALFIL_B), Una(pos, ALFIL_N)) || Absoluto(diferencia) > DIFERENCIA_MAX) return NO_RECONOCIDO;
    const bool ultimo = pos.Numero[PEON_B] + pos.Numero[PEON_N] == 1;
    const int  peones =
        ultimo ? PESOS.ALFILES_ULTIMO_PEON * diferencia : ValorPeones<BLANCO>(pos) - ValorPeones<NEGRO>(pos);
    return peones + PESOS.ALFILES_CENTRO * (LejosDelCentro(Una(pos, REY_N)) - LejosDelCentro(Una(pos, REY_B)));
}
