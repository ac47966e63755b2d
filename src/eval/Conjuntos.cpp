#include "eval/Conjuntos.h"

ConjuntosBando Conjuntos[2];
Conjunto       Ocupadas;
Conjunto       AtaquesDePieza[64];

template <int C>
static void ReunirPiezas() {
    ConjuntosBando& propios = Conjuntos[C];
    propios.Peones          = CasillasCon(PEON<C>);
    propios.Caballos        = CasillasCon(CABALLO<C>);
    propios.Alfiles         = CasillasCon(ALFIL<C>);
    propios.Torres          = CasillasCon(TORRE<C>);
    propios.Damas           = CasillasCon(DAMA<C>);
    propios.Rey             = CasillasCon(REY<C>);
    propios.Todas           = CasillasDe<C>();
}

template <int C>
static void EvaluarControlPeones() {
    ConjuntosBando& propios     = Conjuntos[C];
    const Conjunto  hacia_a     = Avanzar<C>(HaciaA(propios.Peones));
    const Conjunto  hacia_h     = Avanzar<C>(HaciaH(propios.Peones));
    BandoDe<C>().Peones_Septima = Cuantas(propios.Peones & FilaEntera<C>(6));

    propios.Ataque_Peones = hacia_a | hacia_h;
    propios.Alcance_Peon  = AtaquesDePeones<C>(HastaElFinal<C>(propios.Peones));
    propios.Ataques       = Cuenta{hacia_a | hacia_h, hacia_a & hacia_h};
}

// The structure of all pawns at once: a step or a scan is a shift.
template <int C>
static void EvaluarEstructura() {
    ConjuntosBando& propios      = Conjuntos[C];
    const Conjunto  peones       = propios.Peones;
    const Conjunto  rivales      = Conjuntos[RIVAL<C>].Peones;
    const Conjunto  detras_rival = Detras<C>(rivales);
    const Conjunto  apoyables    = ~(COLUMNA_A | COLUMNA_H | FilaEntera<C>(0));  // both squares behind exist

    propios.Doblados = peones & Detras<C>(peones);
    // Behind another own pawn a pawn is open only on a file without enemy pawns, wherever these stand.
    propios.Abiertos   = peones & ~(detras_rival | (propios.Doblados & RellenarColumnas(rivales)));
    propios.Pasados    = propios.Abiertos & ~Lados(detras_rival);
    propios.Aislados   = peones & ~Lados(RellenarColumnas(peones));
    propios.Retrasados = peones & ~propios.Ataque_Peones & apoyables & Retroceder<C>(Lados(peones));
}

template <int C>
static void DelimitarZonas() {
    ConjuntosBando& propios = Conjuntos[C];
    const int       rey     = PosicionReyDe<C>();
    propios.Zona_Rey        = ATAQUES_REY[static_cast<std::size_t>(rey)] | Bit(rey);
    propios.Libres          = ~(propios.Peones | propios.Rey | Conjuntos[RIVAL<C>].Ataque_Peones);
    propios.Zona_Exterior   = Avanzar<C>(propios.Zona_Rey) & ~propios.Zona_Rey & ~propios.Ataque_Peones;
    propios.Ataque_Caballos = propios.Ataque_Alfiles = propios.Ataque_Torres = propios.Ataque_Damas = 0;
    propios.Ataque_Rey                                                                              = 0;
}

void ReunirConjuntos() {
    ReunirPiezas<BLANCO>();
    ReunirPiezas<NEGRO>();
    Ocupadas = Conjuntos[BLANCO].Todas | Conjuntos[NEGRO].Todas;
    EvaluarControlPeones<BLANCO>();
    EvaluarControlPeones<NEGRO>();
    EvaluarEstructura<BLANCO>();
    EvaluarEstructura<NEGRO>();
    DelimitarZonas<BLANCO>();
    DelimitarZonas<NEGRO>();
}
