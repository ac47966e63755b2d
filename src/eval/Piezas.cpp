// Knights, bishops and queens, and the attack maps of all pieces.
#include <algorithm>
#include <cstddef>

#include "eval/Conjuntos.h"
#include "eval/Espejo.h"
#include "eval/Pesos.h"
#include "eval/Terminos.h"
#include "eval/Tropismo.h"

// What knights, bishops and queens have in common: placement, mobility, nearness to the enemy king and attack on him.
struct RasgosPieza {
    const int (&Tablero_OP)[64];  // centipawns by square, as White sees the board
    const int (&Tablero_EG)[64];
    const Par* Movilidad;  // by squares reached
    const Par& Tropismo;
    const int& PesoZona;  // of an attacked square of the enemy king's zone
};
static constexpr RasgosPieza RASGOS_CABALLO = {PESOS.PST_N_OP, PESOS.PST_N_EG, PESOS.BONUS_CABALLO_MOVILIDAD,
                                               PESOS.TROPISMO_CABALLO, PESOS.PESO_ZONA_CABALLO};
static constexpr RasgosPieza RASGOS_ALFIL   = {PESOS.PST_B_OP, PESOS.PST_B_EG, PESOS.BONUS_ALFIL_MOVILIDAD,
                                               PESOS.TROPISMO_ALFIL, PESOS.PESO_ZONA_ALFIL};
static constexpr RasgosPieza RASGOS_DAMA    = {PESOS.PST_Q_OP, PESOS.PST_Q_EG, PESOS.BONUS_DAMA_MOVILIDAD,
                                               PESOS.TROPISMO_DAMA, PESOS.PESO_ZONA_DAMA};

// What a piece of colour C that attacks the given squares adds to the attack on the king. A check counts its square
// once more.
template <int C>
static void AnotarAtaqueZona(Conjunto ataques, const int& peso) {
    const ConjuntosBando& rival = Conjuntos[RIVAL<C>];
    const int             zona  = Cuantas(ataques & rival.Zona_Rey);
    SumarAtaque<C>(peso, zona + Cuantas(ataques & rival.Rey));
    SumarAtaque<C>(PESOS.PESO_ZONA_EXTERIOR, Cuantas(ataques & rival.Zona_Exterior));
    BandoDe<C>().Ataque_Numero += zona != 0 ? 1 : 0;
}

// Adds the common terms of all pieces of one kind of colour C and counts their attacks in Conjuntos and AtaquesDePieza.
// ataques_de(square) is the set a piece attacks from there. Returns the squares that they attack.
template <int C, class AtaquesDe>
static Conjunto SumarPiezas(Conjunto piezas, const RasgosPieza& rasgos, AtaquesDe ataques_de) {
    const Conjunto libres   = Conjuntos[C].Libres;
    const auto*    cercania = TROPISMO_DISTANCIA[PosicionReyDe<RIVAL<C>>()];
    Cuenta         cuenta   = Conjuntos[C].Ataques;
    Conjunto       atacadas = 0;
    while (piezas != 0) {
        const int      casilla  = SacarCasilla(piezas);
        const int      relativa = Relativa<C>(casilla);
        const Conjunto ataques  = ataques_de(casilla);
        AtaquesDePieza[casilla] = ataques;
        atacadas |= ataques;
        SumarAtaques(cuenta, ataques);
        Sumar<C>(rasgos.Tablero_OP[relativa], rasgos.Tablero_EG[relativa]);
        SumarMovilidad<C>(rasgos.Movilidad[Cuantas(ataques & libres)]);
        SumarTropismo<C>(rasgos.Tropismo, cercania[casilla]);
        AnotarAtaqueZona<C>(ataques, rasgos.PesoZona);
    }
    Conjuntos[C].Ataques = cuenta;
    return atacadas;
}

// Outposts: squares on the fourth to the seventh rank, held by an own pawn, from which no enemy pawn can ever drive a
// knight or a bishop away.
struct PesosPuesto {
    const int (&OP)[4][4];  // [rank, the seventh first][distance of the file from the edge]
    const int (&EG)[4][4];
    const int (&Seguro_OP)[4][4];  // added when the enemy has no minor piece that could ever take there
    const int (&Seguro_EG)[4][4];
};
static constexpr PesosPuesto PUESTO_CABALLO = {PESOS.PUESTO_CABALLO_OP, PESOS.PUESTO_CABALLO_EG,
                                               PESOS.PUESTO_CABALLO_SEGURO_OP, PESOS.PUESTO_CABALLO_SEGURO_EG};
static constexpr PesosPuesto PUESTO_ALFIL = {PESOS.PUESTO_ALFIL_OP, PESOS.PUESTO_ALFIL_EG, PESOS.PUESTO_ALFIL_SEGURO_OP,
                                             PESOS.PUESTO_ALFIL_SEGURO_EG};

template <int C>
static Conjunto CasillasDePuesto() {
    return Filas<C>(3, 6) & Conjuntos[C].Ataque_Peones & ~Conjuntos[RIVAL<C>].Alcance_Peon;
}

template <int C>
static void EvaluarPuestosAvanzados(Conjunto piezas, const PesosPuesto& pesos) {
    const ConjuntosBando& rival     = Conjuntos[RIVAL<C>];
    Conjunto              avanzadas = piezas & CasillasDePuesto<C>();
    while (avanzadas != 0) {
        const int      casilla = SacarCasilla(avanzadas);
        const int      fila    = 6 - FilaRelativa<C>(casilla);
        const int      borde   = std::min(Columna(casilla), 7 - Columna(casilla));
        const Conjunto color   = Contiene(CASILLAS_CLARAS, casilla) ? CASILLAS_CLARAS : ~CASILLAS_CLARAS;
        Sumar<C>(pesos.OP[fila][borde], pesos.EG[fila][borde]);
        if (rival.Caballos == 0 && (rival.Alfiles & color) == 0)
            Sumar<C>(pesos.Seguro_OP[fila][borde], pesos.Seguro_EG[fila][borde]);
    }
}

// Minor pieces that have gone in behind the enemy's pawns and do not come out again: a piece on Casilla is shut in by
// an enemy pawn on Peon. Both squares are White's; Black's are the mirrored ones.
struct Encierro {
    int        Casilla;
    int        Peon;
    const Par& Penalizacion;
};

// A knight in the corner has two exits. The pawn takes one of them and the defender's pieces guard the other; on the
// edge of the seventh rank the neighbouring pawn guards both exits towards the centre.
static constexpr Encierro ENCIERROS_CABALLO[] = {
    {En<BLANCO>("a8"), En<BLANCO>("a7"), PESOS.PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("a8"), En<BLANCO>("c7"), PESOS.PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("h8"), En<BLANCO>("h7"), PESOS.PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("h8"), En<BLANCO>("f7"), PESOS.PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("a7"), En<BLANCO>("b7"), PESOS.PENALIZACION_CABALLO_BORDE},
    {En<BLANCO>("h7"), En<BLANCO>("g7"), PESOS.PENALIZACION_CABALLO_BORDE},
};

// The bishop that has taken the rook pawn, or has gone one square too far beside it.
static constexpr Encierro ENCIERROS_ALFIL[] = {
    {En<BLANCO>("a7"), En<BLANCO>("b6"), PESOS.PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("h7"), En<BLANCO>("g6"), PESOS.PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("b8"), En<BLANCO>("c7"), PESOS.PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("g8"), En<BLANCO>("f7"), PESOS.PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("a8"), En<BLANCO>("b7"), PESOS.PENALIZACION_ALFIL_RINCON},
    {En<BLANCO>("h8"), En<BLANCO>("g7"), PESOS.PENALIZACION_ALFIL_RINCON},
    {En<BLANCO>("a6"), En<BLANCO>("b5"), PESOS.PENALIZACION_ALFIL_DESVIADO},
    {En<BLANCO>("h6"), En<BLANCO>("g5"), PESOS.PENALIZACION_ALFIL_DESVIADO},
};

// The squares of the rows, for a quick no.
template <int C, std::size_t N>
static constexpr Conjunto CasillasDeEncierro(const Encierro (&encierros)[N]) {
    Conjunto casillas = 0;
    for (const Encierro& encierro : encierros) casillas |= Bit(Relativa<C>(encierro.Casilla));
    return casillas;
}

// Each row names a cage of its own; of the rows of one square only the first that applies counts, and they stand
// together.
template <int C, std::size_t N>
static void EvaluarEncierros(const Encierro (&encierros)[N], Conjunto piezas) {
    int anterior = -1;
    for (const Encierro& encierro : encierros) {
        if (encierro.Casilla == anterior || !Contiene(piezas, Relativa<C>(encierro.Casilla)) ||
            !Contiene(Conjuntos[RIVAL<C>].Peones, Relativa<C>(encierro.Peon)))
            continue;
        Sumar<C>(encierro.Penalizacion, -1);
        anterior = encierro.Casilla;
    }
}

template <int C>
static void EvaluarCaballos() {
    constexpr Conjunto ENCERRADOS = CasillasDeEncierro<C>(ENCIERROS_CABALLO);
    ConjuntosBando&    propios    = Conjuntos[C];
    if (propios.Caballos == 0) return;
    propios.Ataque_Caballos = SumarPiezas<C>(propios.Caballos, RASGOS_CABALLO, [](int casilla) {
        return ATAQUES_CABALLO[static_cast<std::size_t>(casilla)];
    });
    EvaluarPuestosAvanzados<C>(propios.Caballos, PUESTO_CABALLO);
    if ((propios.Ataque_Caballos & CasillasDePuesto<C>() & ~propios.Todas) != 0)
        Sumar<C>(PESOS.BONUS_CABALLO_HACIA_PUESTO);
    for (Conjunto caballos = propios.Caballos; caballos != 0;)
        Sumar<C>(PESOS.PENALIZACION_CABALLO_LEJOS, -DistanciaRey(SacarCasilla(caballos), PosicionReyDe<C>()));
    if ((propios.Caballos & ENCERRADOS) != 0) EvaluarEncierros<C>(ENCIERROS_CABALLO, propios.Caballos);
}

// A bishop is bad for the own pawns on squares of its colour, and worse when own pawns of the files c to f cannot
// advance, because then the pawns will not get out of its way.
template <int C>
static void EvaluarAlfilesMalos() {
    constexpr Conjunto    CENTRALES  = ColumnaEntera(2) | ColumnaEntera(3) | ColumnaEntera(4) | ColumnaEntera(5);
    const ConjuntosBando& propios    = Conjuntos[C];
    const int             bloqueados = Cuantas(propios.Peones & CENTRALES & Retroceder<C>(Ocupadas));
    const int peones = Cuantas(propios.Alfiles & CASILLAS_CLARAS) * Cuantas(propios.Peones & CASILLAS_CLARAS) +
                       Cuantas(propios.Alfiles & ~CASILLAS_CLARAS) * Cuantas(propios.Peones & ~CASILLAS_CLARAS);
    Sumar<C>(PESOS.PENALIZACION_ALFIL_MALO, -peones);
    Sumar<C>(PESOS.PENALIZACION_ALFIL_MALO_BLOQUEO, -peones * bloqueados);
}

// Bishops and the pawns on their lines, the distance to their king, and the pair of them.
template <int C>
static void EvaluarLineasDeAlfiles() {
    constexpr Conjunto    CENTRO  = Bit(En<C>("d4")) | Bit(En<C>("e4")) | Bit(En<C>("d5")) | Bit(En<C>("e5"));
    const ConjuntosBando& propios = Conjuntos[C];
    const Conjunto        peones  = propios.Peones | Conjuntos[RIVAL<C>].Peones;
    for (Conjunto alfiles = propios.Alfiles; alfiles != 0;) {
        const int      alfil  = SacarCasilla(alfiles);
        const Conjunto lineas = LINEAS_ALFIL[static_cast<std::size_t>(alfil)];
        if (Cuantas(lineas & CENTRO) > 1 && Cuantas(AtaquesDiagonales(alfil, peones) & CENTRO) > 1)
            Sumar<C>(PESOS.BONUS_ALFIL_DIAGONAL_LARGA);
        Sumar<C>(PESOS.PENALIZACION_ALFIL_RAYOS_X, -Cuantas(lineas & Conjuntos[RIVAL<C>].Peones));
        Sumar<C>(PESOS.PENALIZACION_ALFIL_LEJOS, -DistanciaRey(alfil, PosicionReyDe<C>()));
    }
    if (Cuantas(propios.Alfiles) < 2) return;
    Sumar<C>(PESOS.BONUS_PAREJA_ABIERTA);
    Sumar<C>(PESOS.BONUS_PAREJA_PEON, Cuantas(peones));
}

template <int C>
static void EvaluarAlfiles() {
    constexpr Conjunto ENCERRADOS = CasillasDeEncierro<C>(ENCIERROS_ALFIL);
    ConjuntosBando&    propios    = Conjuntos[C];
    if (propios.Alfiles == 0) return;
    propios.Ataque_Alfiles =
        SumarPiezas<C>(propios.Alfiles, RASGOS_ALFIL, [](int casilla) { return AtaquesDiagonales(casilla, Ocupadas); });
    EvaluarAlfilesMalos<C>();
    EvaluarLineasDeAlfiles<C>();
    EvaluarPuestosAvanzados<C>(propios.Alfiles, PUESTO_ALFIL);
    if ((propios.Alfiles & ENCERRADOS) != 0) EvaluarEncierros<C>(ENCIERROS_ALFIL, propios.Alfiles);
}

// On the seventh rank a queen wants the enemy king behind it or enemy pawns along it.
template <int C>
static bool SeptimaUtil() {
    return ((Conjuntos[RIVAL<C>].Rey & FilaEntera<C>(7)) | (Conjuntos[RIVAL<C>].Peones & FilaEntera<C>(6))) != 0;
}

// A queen beyond its second rank with minor pieces still at home, and one on the seventh.
template <int C>
static void EvaluarSalidas() {
    constexpr Conjunto    CABALLOS_EN_CASA = Bit(En<C>("b1")) | Bit(En<C>("g1"));
    constexpr Conjunto    ALFILES_EN_CASA  = Bit(En<C>("c1")) | Bit(En<C>("f1"));
    const ConjuntosBando& propios          = Conjuntos[C];
    if ((propios.Damas & ~Filas<C>(0, 1)) != 0)
        SumarApertura<C>(PESOS.PENALIZACION_DAMA_PRECOZ_OP,
                         -Cuantas((propios.Caballos & CABALLOS_EN_CASA) | (propios.Alfiles & ALFILES_EN_CASA)));
    if ((propios.Damas & FilaEntera<C>(6)) != 0 && SeptimaUtil<C>()) Sumar<C>(PESOS.BONUS_DAMA_SEPTIMA);
}

template <int C>
static void EvaluarDamas() {
    ConjuntosBando& propios = Conjuntos[C];
    if (propios.Damas == 0) return;
    propios.Ataque_Damas = SumarPiezas<C>(propios.Damas, RASGOS_DAMA, [](int casilla) {
        return AtaquesDiagonales(casilla, Ocupadas) | AtaquesRectos(casilla, Ocupadas);
    });
    EvaluarSalidas<C>();
}

// A minor piece sheltered by an own pawn right in front of it, once it has left its back rank.
template <int C>
static void EvaluarMenoresTrasPeon() {
    const ConjuntosBando& propios = Conjuntos[C];
    const Conjunto        detras  = Retroceder<C>(propios.Peones) & Filas<C>(1, 4);
    Sumar<C>(PESOS.BONUS_MENOR_TRAS_PEON, Cuantas((propios.Caballos | propios.Alfiles) & detras));
}

template <int C>
static void AnotarAtaquesRey() {
    ConjuntosBando& propios = Conjuntos[C];
    if (propios.Rey == 0) return;
    propios.Ataque_Rey = ATAQUES_REY[static_cast<std::size_t>(PosicionReyDe<C>())];
    SumarAtaques(propios.Ataques, propios.Ataque_Rey);
}

// Only the sets: the rook evaluation scores the rooks and enters them in the record.
template <int C>
static void AnotarAtaquesTorres() {
    ConjuntosBando& propios = Conjuntos[C];
    for (Conjunto torres = propios.Torres; torres != 0;) {
        const int      torre   = SacarCasilla(torres);
        const Conjunto ataques = AtaquesRectos(torre, Ocupadas);
        AtaquesDePieza[torre]  = ataques;
        propios.Ataque_Torres |= ataques;
        SumarAtaques(propios.Ataques, ataques);
    }
}

template <int C>
static void LlenarMapas() {
    AnotarAtaquesRey<C>();
    BandoDe<C>().Defensa   = ConUnoOMas(Conjuntos[C].Ataques) & Conjuntos[C].Todas;
    BandoDe<C>().Objetivos = ConUnoOMas(Conjuntos[C].Ataques) & Conjuntos[RIVAL<C>].Todas;
    AnotarAtaquesTorres<C>();
}

// Squares that rooks and queens attack and no lesser enemy piece does.
template <int C>
static void EvaluarCasillasSeguras() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        menores = rival.Ataque_Peones | rival.Ataque_Caballos | rival.Ataque_Alfiles;
    Sumar<C>(PESOS.BONUS_TORRE_CASILLA_SEGURA, Cuantas(propios.Ataque_Torres & ~(menores | propios.Todas)));
    Sumar<C>(PESOS.BONUS_DAMA_CASILLA_SEGURA,
             Cuantas(propios.Ataque_Damas & ~(menores | rival.Ataque_Torres | propios.Todas)));
}

// A rook on its first two ranks between its king and the edge, when the king has lost the right to castle: what the
// king and the pawns leave it to move to.
template <int C>
static void EvaluarTorresEncerradas() {
    constexpr int         HOLGURA = 4;
    const ConjuntosBando& propios = Conjuntos[C];
    const int             rey     = PosicionReyDe<C>();
    const int             estado  = EnroqueDe<C>();
    if (estado == ENROQUE_CORTO || estado == ENROQUE_LARGO || estado == ENROQUE_AMBOS || FilaRelativa<C>(rey) > 1)
        return;
    for (Conjunto torres = propios.Torres & Filas<C>(0, 1); torres != 0;) {
        const int torre = SacarCasilla(torres);
        const int lado  = Columna(torre) - Columna(rey);
        if (lado == 0 || (lado < 0) != (Columna(rey) < 4)) continue;
        const int salidas = Cuantas(AtaquesDePieza[torre] & ~(propios.Peones | propios.Rey));
        if (salidas < HOLGURA) Sumar<C>(PESOS.PENALIZACION_TORRE_ENCERRADA, salidas - HOLGURA);
    }
}

void EvaluarPiezasTableroJuego() {
    ReunirConjuntos();
    EvaluarCaballos<BLANCO>();
    EvaluarCaballos<NEGRO>();
    EvaluarAlfiles<BLANCO>();
    EvaluarAlfiles<NEGRO>();
    EvaluarDamas<BLANCO>();
    EvaluarDamas<NEGRO>();
    EvaluarMenoresTrasPeon<BLANCO>();
    EvaluarMenoresTrasPeon<NEGRO>();
    LlenarMapas<BLANCO>();
    LlenarMapas<NEGRO>();
    EvaluarCasillasSeguras<BLANCO>();
    EvaluarCasillasSeguras<NEGRO>();
    EvaluarTorresEncerradas<BLANCO>();
    EvaluarTorresEncerradas<NEGRO>();
}
