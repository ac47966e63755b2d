#include "eval/Damas.h"

#include "eval/Espejo.h"
#include "eval/SumaPiezas.h"

namespace {

// clang-format off
constexpr TablaEspejo PST_Q_OP = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
     -4,   0,   2,   2,   2,   2,   0,  -4,    // 8
     -4,  -2,   0,   0,   0,   0,  -2,  -4,    // 7
     -4,   0,   2,   2,   2,   2,   0,  -4,    // 6
     -4,   0,   2,   2,   2,   2,   0,  -4,    // 5
     -4,   2,   2,   2,   2,   2,   2,  -4,    // 4
     -4,   2,   3,   2,   2,   3,   2,  -4,    // 3
     -6,   0,   4,   4,   4,   2,   0,  -6,    // 2
    -10,  -8,  -2,   2,  -2,  -6,  -8, -10 }); // 1

constexpr TablaEspejo PST_Q_EG = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -16,  -8,  -4,   0,   0,  -4,  -8, -16,    // 8
     -8,   0,   4,   8,   8,   4,   0,  -8,    // 7
     -4,   4,   8,  12,  12,   8,   4,  -4,    // 6
      0,   8,  12,  16,  16,  12,   8,   0,    // 5
      0,   8,  12,  16,  16,  12,   8,   0,    // 4
     -4,   4,   8,  12,  12,   8,   4,  -4,    // 3
    -10,  -4,   0,   4,   4,   0,  -4, -10,    // 2
    -20, -14, -10,  -6,  -6, -10, -14, -20 }); // 1
// clang-format on

// Weight of the nearness to the enemy king.
constexpr int TROPISMO_DAMA_OP = 3;
constexpr int TROPISMO_DAMA_EG = 4;

// On the seventh rank, with the enemy king behind it or enemy pawns along it.
constexpr int BONUS_DAMA_SEPTIMA_OP = 6;
constexpr int BONUS_DAMA_SEPTIMA_EG = 14;

// Centipawns of the opening for each minor piece still at home while the queen is beyond its second rank.
constexpr int PENALIZACION_DAMA_PRECOZ = 6;

template <int C>
constexpr Conjunto CABALLOS_EN_CASA = Bit(En<C>("b1")) | Bit(En<C>("g1"));
template <int C>
constexpr Conjunto ALFILES_EN_CASA = Bit(En<C>("c1")) | Bit(En<C>("f1"));

template <int C>
bool SeptimaUtil() {
    return ((Conjuntos[RIVAL<C>].Rey & FilaEntera<C>(7)) | (Conjuntos[RIVAL<C>].Peones & FilaEntera<C>(6))) != 0;
}

template <int C>
void EvaluarSalidas() {
    const ConjuntosBando& propios = Conjuntos[C];
    RegistroBando&        bando   = BandoDe<C>();
    if ((propios.Damas & ~Filas<C>(0, 1)) != 0)
        bando.Puntos_OP -= PENALIZACION_DAMA_PRECOZ *
                           Cuantas((propios.Caballos & CABALLOS_EN_CASA<C>) | (propios.Alfiles & ALFILES_EN_CASA<C>));
    if ((propios.Damas & FilaEntera<C>(6)) != 0 && SeptimaUtil<C>()) {
        bando.Puntos_OP += BONUS_DAMA_SEPTIMA_OP;
        bando.Puntos_EG += BONUS_DAMA_SEPTIMA_EG;
    }
}

constexpr RasgosPieza RASGOS_DAMA = {PST_Q_OP,       PST_Q_EG,         BONUS_DAMA_MOVILIDAD, MITAD_DAMA,
                                     PESO_ZONA_DAMA, TROPISMO_DAMA_OP, TROPISMO_DAMA_EG};

template <int C>
void EvaluarDamas() {
    ConjuntosBando& propios = Conjuntos[C];
    if (propios.Damas == 0) return;
    propios.Ataque_Damas = SumarPiezas<C>(BandoDe<C>().ListaDamas, RASGOS_DAMA, [](int casilla) {
        return AtaquesDiagonales(casilla, Ocupadas) | AtaquesRectos(casilla, Ocupadas);
    });
    EvaluarSalidas<C>();
}

}  // namespace

void EvaluarDamasB() {
    EvaluarDamas<BLANCO>();
}
void EvaluarDamasN() {
    EvaluarDamas<NEGRO>();
}
