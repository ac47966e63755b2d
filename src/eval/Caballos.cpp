#include "eval/Caballos.h"

#include "eval/Encierros.h"
#include "eval/PuestosAvanzados.h"
#include "eval/SumaPiezas.h"

namespace {

// clang-format off
constexpr TablaEspejo PST_N_OP = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -60, -30, -18, -14, -14, -18, -30, -60,    // 8
    -24, -12,   4,   8,   8,   4, -12, -24,    // 7
    -10,   4,  16,  20,  20,  16,   4, -10,    // 6
     -8,   6,  18,  22,  22,  18,   6,  -8,    // 5
    -10,   4,  14,  18,  18,  14,   4, -10,    // 4
    -14,   0,  11,  12,  12,  11,   0, -14,    // 3
    -22, -14,  -2,   3,   3,  -2, -14, -22,    // 2
    -38, -24, -18, -14, -14, -18, -24, -38 }); // 1

constexpr TablaEspejo PST_N_EG = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
    -56, -39, -25, -17, -17, -25, -39, -56,    // 8
    -34, -17,  -3,   6,   6,  -3, -17, -34,    // 7
    -20,   0,  11,  17,  17,  11,   0, -20,    // 6
    -14,   6,  17,  22,  22,  17,   6, -14,    // 5
    -14,   6,  17,  22,  22,  17,   6, -14,    // 4
    -22,  -3,   8,  14,  14,   8,  -3, -22,    // 3
    -34, -20,  -6,   3,   3,  -6, -20, -34,    // 2
    -56, -39, -28, -20, -20, -28, -39, -56 }); // 1
// clang-format on

// Weight of the nearness to the enemy king, in both phases.
constexpr int TROPISMO_CABALLO = 4;

// A knight in the corner has two exits. The pawn takes one of them and the defender's pieces guard the other; on the
// edge of the seventh rank the neighbouring pawn guards both exits towards the centre.
constexpr int PENALIZACION_CABALLO_RINCON = 60;
constexpr int PENALIZACION_CABALLO_BORDE  = 35;

constexpr Encierro ENCIERROS_CABALLO[] = {
    {En<BLANCO>("a8"), En<BLANCO>("a7"), PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("a8"), En<BLANCO>("c7"), PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("h8"), En<BLANCO>("h7"), PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("h8"), En<BLANCO>("f7"), PENALIZACION_CABALLO_RINCON},
    {En<BLANCO>("a7"), En<BLANCO>("b7"), PENALIZACION_CABALLO_BORDE},
    {En<BLANCO>("h7"), En<BLANCO>("g7"), PENALIZACION_CABALLO_BORDE},
};
constexpr Conjunto RINCONES = (COLUMNA_A | COLUMNA_H) & (Filas<BLANCO>(0, 1) | Filas<BLANCO>(6, 7));

constexpr RasgosPieza RASGOS_CABALLO = {PST_N_OP,          PST_N_EG,         BONUS_CABALLO_MOVILIDAD, MITAD_MENORES,
                                        PESO_ZONA_CABALLO, TROPISMO_CABALLO, TROPISMO_CABALLO};

template <int C>
void EvaluarCaballos() {
    ConjuntosBando& propios = Conjuntos[C];
    if (propios.Caballos == 0) return;
    RegistroBando& bando    = BandoDe<C>();
    propios.Ataque_Caballos = SumarPiezas<C>(bando.ListaCaballos, RASGOS_CABALLO, [](int casilla) {
        return ATAQUES_CABALLO[static_cast<std::size_t>(casilla)];
    });
    for (Conjunto avanzados = propios.Caballos & PuestosAvanzados<C>(); avanzados != 0;) {
        const int valor = ValorPuesto<C>(SacarCasilla(avanzados));
        bando.Puntos_OP += valor;
        bando.Puntos_EG += valor / 2;
    }
    if ((propios.Caballos & RINCONES) == 0) return;
    const int penalizacion = PenalizacionEncierro<C>(ENCIERROS_CABALLO, propios.Caballos);
    bando.Puntos_OP -= penalizacion;
    bando.Puntos_EG -= penalizacion;
}

}  // namespace

void EvaluarCaballosB() {
    EvaluarCaballos<BLANCO>();
}
void EvaluarCaballosN() {
    EvaluarCaballos<NEGRO>();
}
