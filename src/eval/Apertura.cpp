// Development rules of the opening.
#include "eval/Espejo.h"
#include "eval/Par.h"
#include "eval/Terminos.h"

constexpr int PENALIZACION_PEON_CENTRAL_BLOQUEADO = 20;  // centipawns, opening
constexpr int PENALIZACION_CABALLO_BLOQUEA_PEON   = 20;
constexpr int PENALIZACION_ALFIL_BLOQUEADO        = 50;  // on top of that of the pawn that shuts the bishop in
constexpr int BONUS_ALFIL_ACOMPANA_PEON           = 10;

template <int... CASILLAS>
static bool AlgunoEn(int pieza) {
    return ((TableroGlobal.Casillas[CASILLAS] == pieza) || ...);
}

template <int C>
static bool PeonEn(int casilla) {
    return TableroGlobal.Casillas[casilla] == PEON<C>;
}

static bool Ocupada(int casilla) {
    return TableroGlobal.Casillas[casilla] != VACIO;
}

// A centre pawn at home with a piece in front of it, and the bishop that it would let out.
template <int C>
static int PeonBloqueado(int peon, int alfil) {
    if (!PeonEn<C>(peon) || !Ocupada(peon + ADELANTE<C>)) return 0;
    const bool encerrado = TableroGlobal.Casillas[alfil] == ALFIL<C>;
    return -PENALIZACION_PEON_CENTRAL_BLOQUEADO - (encerrado ? PENALIZACION_ALFIL_BLOQUEADO : 0);
}

// A knight before its c or f pawn, when the pawn should support its advanced neighbour in the centre and the
// square beside that neighbour is still free.
template <int C>
static int CaballoBloquea(int peon, int centro_libre) {
    const bool bloquea =
        PeonEn<C>(peon) && TableroGlobal.Casillas[peon + ADELANTE<C>] == CABALLO<C> && !Ocupada(centro_libre);
    return bloquea ? -PENALIZACION_CABALLO_BLOQUEA_PEON : 0;
}

template <int C>
static int PuntosApertura() {
    int puntos = PeonBloqueado<C>(En<C>("e2"), En<C>("f1")) + PeonBloqueado<C>(En<C>("d2"), En<C>("c1"));
    if (PeonEn<C>(En<C>("d4"))) {
        puntos += CaballoBloquea<C>(En<C>("c2"), En<C>("e4"));
        if (AlgunoEn<En<C>("h2"), En<C>("g3"), En<C>("f4"), En<C>("g5"), En<C>("h4")>(ALFIL<C>))
            puntos += BONUS_ALFIL_ACOMPANA_PEON;
    }
    if (PeonEn<C>(En<C>("e4"))) {
        puntos += CaballoBloquea<C>(En<C>("f2"), En<C>("d4"));
        if (AlgunoEn<En<C>("a2"), En<C>("b3"), En<C>("c4"), En<C>("b5"), En<C>("a4")>(ALFIL<C>))
            puntos += BONUS_ALFIL_ACOMPANA_PEON;
    }
    return puntos;
}

void EvaluarApertura() {
    SumarApertura<BLANCO>(PuntosApertura<BLANCO>());
    SumarApertura<NEGRO>(PuntosApertura<NEGRO>());
}
