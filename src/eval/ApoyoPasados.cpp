#include "eval/Conjuntos.h"
#include "eval/Pesos.h"
#include "eval/Terminos.h"

// Kings count by their distance from the square before the pawn, where the one helps and the other stops it.
template <int C>
static void EvaluarReyesAnte(int fila, int delante) {
    Sumar<C>(PESOS.PASADO_REY_PROPIO[fila], DistanciaRey(PosicionReyDe<C>(), delante));
    Sumar<C>(PESOS.PASADO_REY_RIVAL[fila], DistanciaRey(PosicionReyDe<RIVAL<C>>(), delante));
}

template <int C>
static void EvaluarCamino(int fila, int delante) {
    const ConjuntosBando& rival    = Conjuntos[RIVAL<C>];
    const Conjunto        paso     = Bit(delante);
    const Conjunto        atacadas = ConUnoOMas(rival.Ataques);
    if ((paso & Ocupadas) == 0) {
        Sumar<C>(PESOS.PASADO_LIBRE[fila]);
        if (TieneElTurno<C>()) Sumar<C>(PESOS.PASADO_TURNO[fila]);
    }
    if ((paso & atacadas) == 0) Sumar<C>(PESOS.PASADO_SEGURO[fila]);
    if ((HastaElFinal<C>(paso) & (atacadas | rival.Todas)) == 0) {
        Sumar<C>(PESOS.PASADO_CAMINO[fila]);
        if (TieneElTurno<C>()) Sumar<C>(PESOS.PASADO_TURNO_CAMINO[fila]);
    }
    if ((paso & ConUnoOMas(Conjuntos[C].Ataques)) != 0) Sumar<C>(PESOS.PASADO_APOYADO[fila]);
}

// The first piece behind the pawn, if it is a rook.
template <int C>
static void EvaluarTorreDetras(int peon) {
    constexpr int  ATRAS = C == BLANCO ? DIR_MAS_8 : DIR_MENOS_8;
    const Conjunto vista = VistaEnDireccion<ATRAS>(static_cast<std::size_t>(peon), Ocupadas);
    if ((vista & Conjuntos[C].Torres) != 0) Sumar<C>(PESOS.PASADO_TORRE_PROPIA);
    if ((vista & Conjuntos[RIVAL<C>].Torres) != 0) Sumar<C>(PESOS.PASADO_TORRE_RIVAL);
}

// Of two on a file the one in front counts.
template <int C>
static void EvaluarApoyo() {
    const Conjunto pasados = Conjuntos[C].Pasados & ~Conjuntos[C].Doblados & Filas<C>(1, 6);
    for (Conjunto resto = pasados; resto != 0;) {
        const int peon    = SacarCasilla(resto);
        const int fila    = FilaRelativa<C>(peon);
        const int delante = peon + ADELANTE<C>;
        Sumar<C>(PESOS.PASADO_BASE[fila]);
        EvaluarReyesAnte<C>(fila, delante);
        EvaluarCamino<C>(fila, delante);
        if ((Vecinas(Bit(peon)) & ~ColumnaEntera(Columna(peon)) & pasados) != 0) Sumar<C>(PESOS.PASADO_UNIDO[fila]);
        EvaluarTorreDetras<C>(peon);
    }
}

void EvaluarApoyoPasados() {
    EvaluarApoyo<BLANCO>();
    EvaluarApoyo<NEGRO>();
}
