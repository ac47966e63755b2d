// Threats.
#include "eval/Conjuntos.h"
#include "eval/Pesos.h"
#include "eval/Terminos.h"

// Centipawns for each attacked and undefended enemy piece, by its piece code (either colour).
// clang-format off
//                               --   P   N   B   R   Q   K  --   P   N   B   R   Q   K  --  --
constexpr int att_on_hang_mg[16] = {0, 11, 15, 15, 17, 25,  0,  0, 11, 15, 15, 17, 25,  0,  0,  0};
constexpr int att_on_hang_eg[16] = {0, 19, 23, 23, 25, 33,  0,  0, 19, 23, 23, 25, 33,  0,  0,  0};
// clang-format on

static Conjunto Piezas(const ConjuntosBando& bando) {
    return bando.Todas ^ bando.Peones ^ bando.Rey;
}

// Attacked pieces that nothing defends. Each counts once, however many attack it.
template <int C>
static void EvaluarColgadas() {
    const ConjuntosBando& rival    = Conjuntos[RIVAL<C>];
    const Conjunto        colgadas = BandoDe<C>().Objetivos & ~BandoDe<RIVAL<C>>().Defensa;
    if (colgadas == 0) return;
    const auto sumar = [colgadas](Conjunto piezas, int codigo) {
        Sumar<C>(att_on_hang_mg[codigo], att_on_hang_eg[codigo], Cuantas(colgadas & piezas));
    };
    sumar(rival.Peones, PEON<RIVAL<C>>);
    sumar(rival.Caballos, CABALLO<RIVAL<C>>);
    sumar(rival.Alfiles, ALFIL<RIVAL<C>>);
    sumar(rival.Torres, TORRE<RIVAL<C>>);
    sumar(rival.Damas, DAMA<RIVAL<C>>);
}

// A piece that more enemies attack than own pieces defend, although it is no loose piece.
template <int C>
static void EvaluarAsediadas() {
    const ConjuntosBando& propios   = Conjuntos[C];
    const ConjuntosBando& rival     = Conjuntos[RIVAL<C>];
    const Conjunto        una_vez   = ConUnoOMas(rival.Ataques) & ~ConDosOMas(rival.Ataques) & ~rival.Ataque_Peones;
    const int             asediadas = Cuantas(ConDosOMas(propios.Ataques) & una_vez & Piezas(rival));
    Sumar<C>(PESOS.ASEDIO_A_PIEZA, asediadas);
    if (TieneElTurno<C>()) Sumar<C>(PESOS.ASEDIO_CON_TURNO, asediadas);
}

template <int C>
static void EvaluarAvances() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        un_paso = Avanzar<C>(propios.Peones) & ~Ocupadas;
    const Conjunto        avances = un_paso | (Avanzar<C>(un_paso & FilaEntera<C>(2)) & ~Ocupadas);
    const Conjunto        seguros =
        avances & ~rival.Ataque_Peones & (ConUnoOMas(propios.Ataques) | ~ConUnoOMas(rival.Ataques));
    const Conjunto piezas   = Piezas(rival) & ~propios.Ataque_Peones;
    const int      amenazas = Cuantas(AtaquesDePeones<C>(seguros) & piezas);
    Sumar<C>(PESOS.AVANCE_A_PIEZA, amenazas);
    if (TieneElTurno<C>()) Sumar<C>(PESOS.AVANCE_CON_TURNO, amenazas);
}

// The enemy queen with one piece between her and a rook or bishop: the piece is tied to its place, or leaves it with a
// blow. A pawn of the side's own would have to be taken first, so it does not count.
template <int C>
static void EvaluarDamasTrasPieza() {
    const ConjuntosBando& propios = Conjuntos[C];
    const Conjunto        quitar  = Ocupadas & ~propios.Peones;
    for (Conjunto damas = Conjuntos[RIVAL<C>].Damas; damas != 0;) {
        const int      dama    = SacarCasilla(damas);
        const auto     casilla = static_cast<std::size_t>(dama);
        const Conjunto vistas  = AtaquesDePieza[dama];
        // Only pieces on her lines and out of her sight can be behind another one.
        const Conjunto torres  = propios.Torres & LINEAS_TORRE[casilla] & ~vistas;
        const Conjunto alfiles = propios.Alfiles & LINEAS_ALFIL[casilla] & ~vistas;
        if ((torres | alfiles) == 0) continue;
        const Conjunto restantes = Ocupadas ^ (vistas & quitar);
        Sumar<C>(PESOS.DAMA_TRAS_PIEZA, Cuantas(AtaquesRectos(dama, restantes) & torres) +
                                            Cuantas(AtaquesDiagonales(dama, restantes) & alfiles));
    }
}

// Attacks on what no pawn guards, or nothing, and the own pieces that nothing guards.
template <int C>
static void EvaluarDesprotegidas() {
    const ConjuntosBando& propios  = Conjuntos[C];
    const ConjuntosBando& rival    = Conjuntos[RIVAL<C>];
    const Conjunto        menores  = propios.Ataque_Caballos | propios.Ataque_Alfiles;
    const Conjunto        sin_peon = ~rival.Ataque_Peones;
    const Conjunto        sin_nada = ~ConUnoOMas(rival.Ataques);
    const Conjunto        presas   = rival.Caballos | rival.Alfiles;
    Sumar<C>(PESOS.TORRE_A_MENOR, Cuantas(propios.Ataque_Torres & presas & sin_peon));
    Sumar<C>(PESOS.MENOR_A_MENOR, Cuantas(menores & presas & sin_peon));
    Sumar<C>(PESOS.PIEZA_A_PEON, Cuantas((menores | propios.Ataque_Torres) & rival.Peones & sin_peon));
    Sumar<C>(PESOS.REY_A_PEON, Cuantas(propios.Ataque_Rey & rival.Peones & sin_nada));
    Sumar<C>(PESOS.REY_A_PIEZA, Cuantas(propios.Ataque_Rey & (presas | rival.Torres) & sin_nada));
    Sumar<C>(PESOS.PENALIZACION_PIEZA_SUELTA, -Cuantas(Piezas(propios) & ~ConUnoOMas(propios.Ataques)));
}

template <int C>
static void EvaluarAmenazasDe() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        menores = propios.Ataque_Caballos | propios.Ataque_Alfiles;
    Sumar<C>(PESOS.PEON_A_MENOR, Cuantas(propios.Ataque_Peones & (rival.Caballos | rival.Alfiles)));
    Sumar<C>(PESOS.PEON_A_TORRE, Cuantas(propios.Ataque_Peones & rival.Torres));
    Sumar<C>(PESOS.PEON_A_DAMA, Cuantas(propios.Ataque_Peones & rival.Damas));
    Sumar<C>(PESOS.MENOR_A_TORRE, Cuantas(menores & rival.Torres));
    Sumar<C>(PESOS.MENOR_A_DAMA, Cuantas(menores & rival.Damas));
    Sumar<C>(PESOS.TORRE_A_DAMA, Cuantas(propios.Ataque_Torres & rival.Damas));
    EvaluarAsediadas<C>();
    EvaluarAvances<C>();
    EvaluarColgadas<C>();
    EvaluarDesprotegidas<C>();
    EvaluarDamasTrasPieza<C>();
}

// Enemy pieces that C would win something by taking: worth more than an attacker of theirs, or guarded by nothing.
template <int C>
static Conjunto Amenazadas() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        menores = propios.Ataque_Caballos | propios.Ataque_Alfiles;
    return Piezas(rival) &
           (propios.Ataque_Peones | (menores & (rival.Torres | rival.Damas)) | (propios.Ataque_Torres & rival.Damas) |
            (ConUnoOMas(propios.Ataques) & ~ConUnoOMas(rival.Ataques)));
}

// What threats are worth because C is to move: it parries one of the enemy's but not two, and may attack what is loose.
template <int C>
static void EvaluarTurno() {
    const ConjuntosBando& rival     = Conjuntos[RIVAL<C>];
    const Conjunto        presas    = rival.Caballos | rival.Alfiles | rival.Damas;
    const int             recibidas = Cuantas(Amenazadas<RIVAL<C>>());
    if (recibidas > 1) Sumar<C>(PESOS.PENALIZACION_OTRA_AMENAZA, 1 - recibidas);
    Sumar<C>(PESOS.SUELTA_CON_TURNO, Cuantas(presas & ~ConUnoOMas(rival.Ataques)));
}

void EvaluarAmenazas() {
    EvaluarAmenazasDe<BLANCO>();
    EvaluarAmenazasDe<NEGRO>();
    if (TieneElTurno<BLANCO>())
        EvaluarTurno<BLANCO>();
    else
        EvaluarTurno<NEGRO>();
}
