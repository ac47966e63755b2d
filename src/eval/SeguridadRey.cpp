#include "eval/SeguridadRey.h"

#include <algorithm>
#include <cstddef>

#include "eval/Conjuntos.h"
#include "eval/Espejo.h"
#include "eval/Pesos.h"
#include "eval/Terminos.h"

// The curve of KING_ATTACK_MULTI: a parabola with a dead start up to its joint, then three centipawns a step and a
// fourth at every eighth.
constexpr int ATAQUE_MUERTO  = 10;  // below, nothing threatens yet
constexpr int ATAQUE_EMPALME = 150;
constexpr int VALOR_EMPALME  = 240;
constexpr int VALOR_ATAQUE   = 500;  // the most that an attack is worth

static constexpr int ValorAtaque(int peso) {
    if (peso < ATAQUE_MUERTO) return 0;
    constexpr int CUADRADO = ATAQUE_EMPALME * ATAQUE_EMPALME;
    if (peso <= ATAQUE_EMPALME) return (peso * peso * VALOR_EMPALME + CUADRADO / 2) / CUADRADO;
    const int pasos = peso - ATAQUE_EMPALME;
    return std::min(VALOR_EMPALME + 3 * pasos + pasos / 8, VALOR_ATAQUE);
}

static constexpr TablaAtaque CalcularAtaques() {
    TablaAtaque tabla{};
    for (int peso = 0; peso <= ATAQUE_MAX; ++peso) tabla.Valores[peso] = ValorAtaque(peso);
    return tabla;
}

constexpr TablaAtaque KING_ATTACK_MULTI = CalcularAtaques();

// Relative rank of the pawn nearest to the back rank of C; that of the eighth for none.
template <int C>
static int FilaMasAtrasada(Conjunto peones) {
    return C == BLANCO ? FilaRelativa<C>(Ultima(peones | Bit(0))) : FilaRelativa<C>(Primera(peones | Bit(63)));
}

// Shelter of a king of colour C on the given square: its own file and the two beside it. Hands each weight that counts
// to recibir(weight, times).
template <int C, class Recibir>
static void RecorrerRefugio(int rey, Recibir recibir) {
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        delante = HastaElFinal<C>(FilaEntera<C>(FilaRelativa<C>(rey)));
    const Conjunto        propios = Conjuntos[C].Peones & delante;
    const Conjunto        ajenos  = rival.Peones & delante;
    const int             centro  = std::clamp(Columna(rey), 1, 6);  // at the edge the third file is the next but one
    for (int columna = centro - 1; columna <= centro + 1; ++columna) {
        const Conjunto entera = ColumnaEntera(columna);
        const int      propio = FilaMasAtrasada<C>(propios & entera);
        const int      ajeno  = FilaMasAtrasada<C>(ajenos & entera);
        const int      borde  = std::min(columna, 7 - columna);
        recibir(PESOS.ESCUDO_OP[borde][propio], 1);
        recibir(ajeno == propio + 1 ? PESOS.TORMENTA_BLOQUEADA_OP[ajeno] : PESOS.TORMENTA_OP[ajeno], 1);
        if ((Conjuntos[C].Peones & entera) == 0 && (rival.Torres | rival.Damas) != 0)
            recibir((rival.Peones & entera) != 0 ? PESOS.PENALIZACION_COLUMNA_SEMIABIERTA_OP
                                                 : PESOS.PENALIZACION_COLUMNA_ABIERTA_OP,
                    -1);
    }
}

template <int C>
static int PuntosRefugio(int rey) {
    int puntos = 0;
    RecorrerRefugio<C>(rey, [&puntos](const int& peso, int veces) { puntos += peso * veces; });
    return puntos;
}

// While the right to castle lasts, the pawns of that wing are worth keeping: a better shelter there counts half.
template <int C>
static void EvaluarRefugio(int rey) {
    const int  estado   = EnroqueDe<C>();
    const int  presente = PuntosRefugio<C>(rey);
    int        mejor    = presente;
    int        casilla  = rey;
    const auto comparar = [&mejor, &casilla](int destino) {
        const int puntos = PuntosRefugio<C>(destino);
        if (puntos <= mejor) return;
        mejor   = puntos;
        casilla = destino;
    };
    if (estado == ENROQUE_CORTO || estado == ENROQUE_AMBOS) comparar(En<C>("g1"));
    if (estado == ENROQUE_LARGO || estado == ENROQUE_AMBOS) comparar(En<C>("c1"));
    SumarRefugio<C>(presente + mejor);
    if constexpr (TRAZANDO)
        for (const int lugar : {rey, casilla})
            RecorrerRefugio<C>(lugar,
                               [](const int& peso, int veces) { Trazar(peso, veces, C, Acumulador::Refugio_OP); });
}

template <int C>
static void EvaluarEstadoEnroque(int rey) {
    const int  estado    = std::clamp(EnroqueDe<C>(), 0, 5);
    const bool en_centro = Columna(rey) >= 2 && Columna(rey) <= 5;
    if (estado == SIN_ENROQUE && en_centro)
        SumarApertura<C>(PESOS.PENALIZACION_SIN_ENROQUE_OP, -1);
    else
        SumarApertura<C>(PESOS.BONUS_ENROQUE_OP[estado]);
}

// Squares that the king of C guards and no other piece of his.
template <int C>
static Conjunto SoloDelRey() {
    return Conjuntos[C].Ataque_Rey & ~ConDosOMas(Conjuntos[C].Ataques);
}

// Squares on which a piece of C may land next to the king of its enemy: nothing guards them, or only the king does
// and a second attacker stands by.
template <int C>
static Conjunto CasillasSeguras() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        solas   = ~ConUnoOMas(rival.Ataques);
    return ~propios.Todas & (solas | (SoloDelRey<RIVAL<C>>() & ConDosOMas(propios.Ataques)));
}

// Pressure on the enemy king. Without a queen, or with one attacker alone, the weight counts for nothing anyway.
template <int C>
static void EvaluarAsalto() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    if (propios.Damas == 0 || BandoDe<C>().Ataque_Numero < 2 || rival.Rey == 0) return;
    const int      rey        = PosicionReyDe<RIVAL<C>>();
    const Conjunto seguras    = CasillasSeguras<C>();
    const Conjunto rectas     = AtaquesRectos(rey, Ocupadas) & seguras;
    const Conjunto diagonales = AtaquesDiagonales(rey, Ocupadas) & seguras;
    const Conjunto saltos     = ATAQUES_CABALLO[static_cast<std::size_t>(rey)] & seguras;
    const Conjunto debiles    = SoloDelRey<RIVAL<C>>() & ConUnoOMas(propios.Ataques);
    SumarAtaque<C>(PESOS.PESO_JAQUE_CABALLO, Cuantas(saltos & propios.Ataque_Caballos));
    SumarAtaque<C>(PESOS.PESO_JAQUE_ALFIL, Cuantas(diagonales & propios.Ataque_Alfiles));
    SumarAtaque<C>(PESOS.PESO_JAQUE_TORRE, Cuantas(rectas & propios.Ataque_Torres));
    SumarAtaque<C>(PESOS.PESO_JAQUE_DAMA, Cuantas((rectas | diagonales) & propios.Ataque_Damas));
    SumarAtaque<C>(PESOS.PESO_ZONA_DEBIL, Cuantas(debiles));
}

template <int C>
static void EvaluarRey() {
    const int rey = PosicionReyDe<C>();
    Sumar<C>(PESOS.PST_K_OP[Relativa<C>(rey)], PESOS.PST_K_EG[Relativa<C>(rey)]);
    EvaluarRefugio<C>(rey);
    EvaluarEstadoEnroque<C>(rey);
    EvaluarAsalto<RIVAL<C>>();
}

void EvaluarReyes() {
    EvaluarRey<BLANCO>();
    EvaluarRey<NEGRO>();
}
