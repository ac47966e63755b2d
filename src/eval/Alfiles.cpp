#include "eval/Alfiles.h"

#include "eval/Encierros.h"
#include "eval/PuestosAvanzados.h"
#include "eval/SumaPiezas.h"

namespace {

// clang-format off
constexpr TablaEspejo PST_B_OP = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -12,  -8, -10, -10, -10, -10,  -8, -12,    // 8
     -8,  -2,  -2,   0,   0,  -2,  -2,  -8,    // 7
     -4,   4,   6,   6,   6,   6,   4,  -4,    // 6
     -2,   6,   8,  12,  12,   8,   6,  -2,    // 5
     -2,   4,  10,  12,  12,  10,   4,  -2,    // 4
      0,   8,   8,   8,   8,   8,   8,   0,    // 3
     -2,  10,   5,   6,   6,   5,  10,  -2,    // 2
    -12,  -8, -14, -10, -10, -14,  -8, -12 }); // 1

constexpr TablaEspejo PST_B_EG = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -21, -15,  -9,  -6,  -6,  -9, -15, -21,    // 8
    -12,  -3,   0,   3,   3,   0,  -3, -12,    // 7
     -6,   3,   6,   9,   9,   6,   3,  -6,    // 6
     -3,   6,   9,  14,  14,   9,   6,  -3,    // 5
     -3,   6,   9,  14,  14,   9,   6,  -3,    // 4
     -6,   3,   6,   9,   9,   6,   3,  -6,    // 3
    -12,  -3,   0,   3,   3,   0,  -3, -12,    // 2
    -21, -15,  -9,  -6,  -6,  -9, -15, -21 }); // 1
// clang-format on

// Weight of the nearness to the enemy king.
constexpr int TROPISMO_ALFIL_OP = 2;
constexpr int TROPISMO_ALFIL_EG = 1;

// Bad bishop: centipawns for each own pawn on a square of its colour, and for each such pawn once more by every own
// pawn of the files c to f that cannot advance, because then the pawns will not get out of the way.
constexpr int      PENALIZACION_ALFIL_MALO_OP      = 1;
constexpr int      PENALIZACION_ALFIL_MALO_EG      = 6;
constexpr int      PENALIZACION_ALFIL_MALO_BLOQUEO = 1;  // in both phases
constexpr Conjunto COLUMNAS_CENTRALES              = COLUMNA_A << 2 | COLUMNA_A << 3 | COLUMNA_A << 4 | COLUMNA_A << 5;

// The bishop that has taken the rook pawn, or has gone one square too far beside it.
constexpr int PENALIZACION_ALFIL_ATRAPADO = 110;  // lost in most cases
constexpr int PENALIZACION_ALFIL_RINCON   = 80;   // shut in the corner, no attacker at hand
constexpr int PENALIZACION_ALFIL_DESVIADO = 50;   // one retreat left

constexpr Encierro ENCIERROS_ALFIL[] = {
    {En<BLANCO>("a7"), En<BLANCO>("b6"), PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("h7"), En<BLANCO>("g6"), PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("b8"), En<BLANCO>("c7"), PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("g8"), En<BLANCO>("f7"), PENALIZACION_ALFIL_ATRAPADO},
    {En<BLANCO>("a8"), En<BLANCO>("b7"), PENALIZACION_ALFIL_RINCON},
    {En<BLANCO>("h8"), En<BLANCO>("g7"), PENALIZACION_ALFIL_RINCON},
    {En<BLANCO>("a6"), En<BLANCO>("b5"), PENALIZACION_ALFIL_DESVIADO},
    {En<BLANCO>("h6"), En<BLANCO>("g5"), PENALIZACION_ALFIL_DESVIADO},
};

// The squares of those rows, for a quick no.
template <int C>
constexpr Conjunto CASILLAS_DE_ENCIERRO = [] {
    Conjunto casillas = 0;
    for (const Encierro& encierro : ENCIERROS_ALFIL) casillas |= Bit(Relativa<C>(encierro.Casilla));
    return casillas;
}();

template <int C>
void EvaluarAlfilesMalos() {
    const ConjuntosBando& propios    = Conjuntos[C];
    const int             bloqueados = Cuantas(propios.Peones & COLUMNAS_CENTRALES & Avanzar<RIVAL<C>>(Ocupadas));
    const int peones = Cuantas(propios.Alfiles & CASILLAS_CLARAS) * Cuantas(propios.Peones & CASILLAS_CLARAS) +
                       Cuantas(propios.Alfiles & ~CASILLAS_CLARAS) * Cuantas(propios.Peones & ~CASILLAS_CLARAS);
    BandoDe<C>().Puntos_OP -= peones * (PENALIZACION_ALFIL_MALO_OP + PENALIZACION_ALFIL_MALO_BLOQUEO * bloqueados);
    BandoDe<C>().Puntos_EG -= peones * (PENALIZACION_ALFIL_MALO_EG + PENALIZACION_ALFIL_MALO_BLOQUEO * bloqueados);
}

constexpr RasgosPieza RASGOS_ALFIL = {PST_B_OP,        PST_B_EG,          BONUS_ALFIL_MOVILIDAD, MITAD_MENORES,
                                      PESO_ZONA_ALFIL, TROPISMO_ALFIL_OP, TROPISMO_ALFIL_EG};

template <int C>
void EvaluarAlfiles() {
    ConjuntosBando& propios = Conjuntos[C];
    if (propios.Alfiles == 0) return;
    RegistroBando& bando   = BandoDe<C>();
    propios.Ataque_Alfiles = SumarPiezas<C>(bando.ListaAlfiles, RASGOS_ALFIL,
                                            [](int casilla) { return AtaquesDiagonales(casilla, Ocupadas); });
    EvaluarAlfilesMalos<C>();
    for (Conjunto avanzados = propios.Alfiles & PuestosAvanzados<C>(); avanzados != 0;) {
        const int valor = ValorPuesto<C>(SacarCasilla(avanzados)) / 2;
        bando.Puntos_OP += valor;
        bando.Puntos_EG += valor / 2;
    }
    if ((propios.Alfiles & CASILLAS_DE_ENCIERRO<C>) == 0) return;
    const int penalizacion = PenalizacionEncierro<C>(ENCIERROS_ALFIL, propios.Alfiles);
    bando.Puntos_OP -= penalizacion;
    bando.Puntos_EG -= penalizacion;
}

}  // namespace

void EvaluarAlfilesB() {
    EvaluarAlfiles<BLANCO>();
}
void EvaluarAlfilesN() {
    EvaluarAlfiles<NEGRO>();
}
