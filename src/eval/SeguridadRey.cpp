#include "eval/SeguridadRey.h"

#include <algorithm>

#include "eval/Espejo.h"
#include "eval/Listas.h"

int KING_ATTACK_MULTI[ATAQUE_MAX];

namespace {

// clang-format off
constexpr TablaEspejo PST_K_OP = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -36, -40, -44, -48, -48, -44, -40, -36,    // 8
    -34, -38, -42, -46, -46, -42, -38, -34,    // 7
    -32, -36, -40, -44, -44, -40, -36, -32,    // 6
    -28, -32, -36, -40, -40, -36, -32, -28,    // 5
    -22, -26, -30, -36, -36, -30, -26, -22,    // 4
    -10, -14, -20, -28, -28, -20, -14, -10,    // 3
      6,   6,  -6, -14, -14,  -8,   6,   6,    // 2
     16,  20,   8,  -6,   0,  -4,  20,  16 }); // 1

constexpr TablaEspejo PST_K_EG = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -42, -26, -14,  -8,  -8, -14, -26, -42,    // 8
    -22,  -4,   8,  14,  14,   8,  -4, -22,    // 7
    -10,   8,  20,  26,  26,  20,   8, -10,    // 6
     -8,  10,  24,  30,  30,  24,  10,  -8,    // 5
    -12,   6,  20,  26,  26,  20,   6, -12,    // 4
    -18,  -2,  10,  16,  16,  10,  -2, -18,    // 3
    -28, -12,  -2,   4,   4,  -2, -12, -28,    // 2
    -48, -32, -22, -18, -18, -22, -32, -48 }); // 1
// clang-format on

// Shelter, opening centipawns. Ranks as the king's side counts them; the place of the eighth, where no pawn of a real
// game stands, holds the value of "no pawn from the king's rank on".

// The own pawn of the file that is nearest to home, by the distance of the file from the edge of the board.
// clang-format off
constexpr int ESCUDO_OP[4][8] = {
//  rank  1    2    3    4    5    6    7  none
    {     0,  12,  10,   0,  -6,  -8,  -8, -14},    // files a and h
    {     0,  22,  12,  -6, -12, -14, -14, -26},    // files b and g
    {     0,  15,   5,  -2,  -6,  -8,  -8, -14},    // files c and f
    {     0,   8,   3,  -1,  -4,  -6,  -6, -10}};   // files d and e

// The enemy pawn of the file that has come nearest, free to go on or stopped by an own pawn right in front of it.
//  rank               1    2    3    4    5    6    7  none
constexpr int TORMENTA_OP[8]           = {0,  -3,  -9,  -6,  -2,   0,   0,   0};
constexpr int TORMENTA_BLOQUEADA_OP[8] = {0,   0,  -4,  -1,   0,   0,   0,   0};
// clang-format on

// A file beside the king for the enemy's rooks and queens, on top of the missing shield.
constexpr int PENALIZACION_COLUMNA_ABIERTA_OP     = 14;  // no pawn on it
constexpr int PENALIZACION_COLUMNA_SEMIABIERTA_OP = 6;   // no own pawn on it

// Opening centipawns by castling state (Enroque). A king that has walked to a wing on foot pays nothing.
constexpr int BONUS_ENROQUE_OP[6]         = {0, 0, 0, 4, 12, 16};
constexpr int PENALIZACION_SIN_ENROQUE_OP = 24;  // no right left, king on the files c to f

// Weights in Ataque_Valor, on the scale of eval/AtaqueRey.h.
constexpr int PESO_JAQUE_CABALLO = 12;  // a square from which the piece may check without being taken
constexpr int PESO_JAQUE_ALFIL   = 7;
constexpr int PESO_JAQUE_TORRE   = 14;
constexpr int PESO_JAQUE_DAMA    = 11;
constexpr int PESO_ZONA_DEBIL    = 5;  // an attacked square of the zone that only the king guards

// Relative rank of the pawn nearest to the back rank of C; that of the eighth for none.
template <int C>
int FilaMasAtrasada(Conjunto peones) {
    return C == BLANCO ? FilaRelativa<C>(Ultima(peones | Bit(0))) : FilaRelativa<C>(Primera(peones | Bit(63)));
}

template <int C>
int PenalizacionColumna(Conjunto columna) {
    const ConjuntosBando& rival = Conjuntos[RIVAL<C>];
    if ((Conjuntos[C].Peones & columna) != 0 || (rival.Torres | rival.Damas) == 0) return 0;
    return (rival.Peones & columna) != 0 ? PENALIZACION_COLUMNA_SEMIABIERTA_OP : PENALIZACION_COLUMNA_ABIERTA_OP;
}

// Shelter of a king of colour C on the given square: its own file and the two beside it.
template <int C>
int EvaluarRefugio(int rey) {
    const Conjunto delante = HastaElFinal<C>(FilaEntera<C>(FilaRelativa<C>(rey)));
    const Conjunto propios = Conjuntos[C].Peones & delante;
    const Conjunto ajenos  = Conjuntos[RIVAL<C>].Peones & delante;
    const int      centro  = std::clamp(Columna(rey), 1, 6);  // at the edge the third file is the next but one
    int            puntos  = 0;
    for (int columna = centro - 1; columna <= centro + 1; ++columna) {
        const Conjunto entera = ColumnaEntera(columna);
        const int      propio = FilaMasAtrasada<C>(propios & entera);
        const int      ajeno  = FilaMasAtrasada<C>(ajenos & entera);
        const int      borde  = std::min(columna, 7 - columna);
        const int*     tabla  = ajeno == propio + 1 ? TORMENTA_BLOQUEADA_OP : TORMENTA_OP;
        puntos += ESCUDO_OP[borde][propio] + tabla[ajeno] - PenalizacionColumna<C>(entera);
    }
    return puntos;
}

// While the right to castle lasts, the pawns of that wing are worth keeping: a better shelter there counts half.
template <int C>
int EvaluarRefugioConEnroque(int rey) {
    const int estado   = EnroqueDe<C>();
    const int presente = EvaluarRefugio<C>(rey);
    int       mejor    = presente;
    if (estado == ENROQUE_CORTO || estado == ENROQUE_AMBOS) mejor = std::max(mejor, EvaluarRefugio<C>(En<C>("g1")));
    if (estado == ENROQUE_LARGO || estado == ENROQUE_AMBOS) mejor = std::max(mejor, EvaluarRefugio<C>(En<C>("c1")));
    return presente + (mejor - presente) / 2;
}

template <int C>
int EvaluarEstadoEnroque(int rey) {
    const int  estado    = std::clamp(EnroqueDe<C>(), 0, 5);
    const bool en_centro = Columna(rey) >= 2 && Columna(rey) <= 5;
    return estado == SIN_ENROQUE && en_centro ? -PENALIZACION_SIN_ENROQUE_OP : BONUS_ENROQUE_OP[estado];
}

// Squares that the king of C guards and no other piece of his.
template <int C>
Conjunto SoloDelRey() {
    return Conjuntos[C].Ataque_Rey & ~ConDosOMas(Conjuntos[C].Ataques);
}

// Squares on which a piece of C may land next to the king of its enemy: nothing guards them, or only the king does
// and a second attacker stands by.
template <int C>
Conjunto CasillasSeguras() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        solas   = ~ConUnoOMas(rival.Ataques);
    return ~propios.Todas & (solas | (SoloDelRey<RIVAL<C>>() & ConDosOMas(propios.Ataques)));
}

// Pressure on the enemy king. Without a queen, or with one attacker alone, the weight counts for nothing anyway.
template <int C>
void EvaluarAsalto() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    RegistroBando&        bando   = BandoDe<C>();
    if (propios.Damas == 0 || bando.Ataque_Numero < 2 || rival.Rey == 0) return;
    const int      rey        = PosicionReyDe<RIVAL<C>>();
    const Conjunto seguras    = CasillasSeguras<C>();
    const Conjunto rectas     = AtaquesRectos(rey, Ocupadas) & seguras;
    const Conjunto diagonales = AtaquesDiagonales(rey, Ocupadas) & seguras;
    const Conjunto saltos     = ATAQUES_CABALLO[static_cast<std::size_t>(rey)] & seguras;
    const Conjunto debiles    = SoloDelRey<RIVAL<C>>() & ConUnoOMas(propios.Ataques);
    bando.Ataque_Valor += PESO_JAQUE_CABALLO * Cuantas(saltos & propios.Ataque_Caballos) +
                          PESO_JAQUE_ALFIL * Cuantas(diagonales & propios.Ataque_Alfiles) +
                          PESO_JAQUE_TORRE * Cuantas(rectas & propios.Ataque_Torres) +
                          PESO_JAQUE_DAMA * Cuantas((rectas | diagonales) & propios.Ataque_Damas) +
                          PESO_ZONA_DEBIL * Cuantas(debiles);
}

template <int C>
void EvaluarRey() {
    RegistroBando& bando = BandoDe<C>();
    const int      rey   = PosicionReyDe<C>();
    bando.Puntos_OP += PST_K_OP[MITAD<C> + rey] + EvaluarRefugioConEnroque<C>(rey) + EvaluarEstadoEnroque<C>(rey);
    bando.Puntos_EG += PST_K_EG[MITAD<C> + rey];
    EvaluarAsalto<RIVAL<C>>();
}

// The curve of KING_ATTACK_MULTI: a parabola with a dead start up to its joint, then three centipawns a step and a
// fourth at every eighth.
constexpr int ATAQUE_MUERTO  = 10;  // below, nothing threatens yet
constexpr int ATAQUE_EMPALME = 150;
constexpr int VALOR_EMPALME  = 240;
constexpr int VALOR_ATAQUE   = 500;  // the most that an attack is worth

constexpr int ValorAtaque(int peso) {
    if (peso < ATAQUE_MUERTO) return 0;
    constexpr int CUADRADO = ATAQUE_EMPALME * ATAQUE_EMPALME;
    if (peso <= ATAQUE_EMPALME) return (peso * peso * VALOR_EMPALME + CUADRADO / 2) / CUADRADO;
    const int pasos = peso - ATAQUE_EMPALME;
    return std::min(VALOR_EMPALME + 3 * pasos + pasos / 8, VALOR_ATAQUE);
}

}  // namespace

void Iniciar_SeguridadRey() {
    for (int peso = 0; peso < ATAQUE_MAX; ++peso) KING_ATTACK_MULTI[peso] = ValorAtaque(peso);
}

void EvaluarReyes() {
    EvaluarRey<BLANCO>();
    EvaluarRey<NEGRO>();
}
