// What knights, bishops and queens have in common: placement, mobility, nearness to the enemy king and attack on him.
#pragma once

#include "eval/AtaqueRey.h"
#include "eval/Espejo.h"
#include "eval/Listas.h"
#include "eval/Movilidad.h"
#include "eval/Tropismo.h"

// How one kind of piece is valued.
struct RasgosPieza {
    const TablaEspejo& Tablero_OP;  // centipawns by square
    const TablaEspejo& Tablero_EG;
    const int*         Movilidad;  // centipawns by squares reached: opening half, then endgame half
    int                Mitad;      // where the endgame half of Movilidad begins
    int                PesoZona;   // weight of an attacked square of the enemy king's zone
    int                Tropismo_OP;
    int                Tropismo_EG;
};

// Adds the common terms of all pieces of one kind of colour C to the side's record and counts their attacks in
// Conjuntos. ataques_desde(square) is the set a piece attacks from there. Returns the squares that they attack.
// The sums live in locals until the end: each read of a list would otherwise force them back to memory.
template <int C, class AtaquesDesde>
inline Conjunto SumarPiezas(const ListaCasillas& lista, const RasgosPieza& rasgos, AtaquesDesde ataques_desde) {
    const Conjunto libres   = CasillasLibres<C>();
    const auto*    cercania = TROPISMO_DISTANCIA[PosicionReyDe<RIVAL<C>>()];
    Cuenta         cuenta   = Conjuntos[C].Ataques;
    SumaAtaque     ataque   = {0, 0};
    Conjunto       atacadas = 0;
    int            op = 0, eg = 0, movilidad_op = 0, movilidad_eg = 0, cerca = 0;
    for (int i = 0; i < lista.Numero; ++i) {
        const int      casilla   = lista.Casillas[i];
        const Conjunto ataques   = ataques_desde(casilla);
        const int      movilidad = Cuantas(ataques & libres);
        atacadas |= ataques;
        SumarAtaques(cuenta, ataques);
        SumarAtaqueRey<C>(ataque, ataques, rasgos.PesoZona);
        op += rasgos.Tablero_OP[MITAD<C> + casilla];
        eg += rasgos.Tablero_EG[MITAD<C> + casilla];
        movilidad_op += rasgos.Movilidad[movilidad];
        movilidad_eg += rasgos.Movilidad[rasgos.Mitad + movilidad];
        cerca += cercania[casilla];
    }
    RegistroBando& bando = BandoDe<C>();
    bando.Puntos_OP += op;
    bando.Puntos_EG += eg;
    bando.Movilidad_OP += movilidad_op;
    bando.Movilidad_EG += movilidad_eg;
    bando.Tropismo_OP += rasgos.Tropismo_OP * cerca;
    bando.Tropismo_EG += rasgos.Tropismo_EG * cerca;
    bando.Ataque_Valor += ataque.Valor;
    bando.Ataque_Numero += ataque.Numero;
    Conjuntos[C].Ataques = cuenta;
    return atacadas;
}
