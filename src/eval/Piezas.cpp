#include "eval/Piezas.h"

#include "eval/Alfiles.h"
#include "eval/Caballos.h"
#include "eval/Damas.h"
#include "eval/Listas.h"
#include "eval/Movilidad.h"

namespace {

// A minor piece sheltered by an own pawn right in front of it, once it has left its back rank. Centipawns.
constexpr int BONUS_MENOR_TRAS_PEON_OP = 5;
constexpr int BONUS_MENOR_TRAS_PEON_EG = 2;

template <int C>
void EvaluarMenoresTrasPeon() {
    const ConjuntosBando& propios = Conjuntos[C];
    const Conjunto        detras  = Avanzar<RIVAL<C>>(propios.Peones) & Filas<C>(1, 4);
    const int             numero  = Cuantas((propios.Caballos | propios.Alfiles) & detras);
    BandoDe<C>().Puntos_OP += BONUS_MENOR_TRAS_PEON_OP * numero;
    BandoDe<C>().Puntos_EG += BONUS_MENOR_TRAS_PEON_EG * numero;
}

template <int C>
void AnotarAtaquesRey() {
    ConjuntosBando& propios = Conjuntos[C];
    if (propios.Rey == 0) return;
    propios.Ataque_Rey = ATAQUES_REY[static_cast<std::size_t>(PosicionReyDe<C>())];
    SumarAtaques(propios.Ataques, propios.Ataque_Rey);
}

// Only the sets: the rook evaluation scores the rooks and enters them in the record.
template <int C>
void AnotarAtaquesTorres() {
    ConjuntosBando& propios = Conjuntos[C];
    for (Conjunto torres = propios.Torres; torres != 0;) {
        const Conjunto ataques = AtaquesRectos(SacarCasilla(torres), Ocupadas);
        propios.Ataque_Torres |= ataques;
        SumarAtaques(propios.Ataques, ataques);
    }
}

template <int C>
void AnotarObjetivos(Conjunto casillas, int veces) {
    RegistroBando& bando  = BandoDe<C>();
    int            numero = bando.Numero_Objetivos;
    while (casillas != 0) {
        const int casilla = SacarCasilla(casillas);
        for (int vez = 0; vez < veces && numero < OBJETIVOS_MAX; ++vez)
            bando.Objetivos[numero++] = static_cast<std::uint8_t>(casilla);
    }
    bando.Numero_Objetivos = numero;
}

// One entry an attack: a square whose count has the digit of 2^n goes in 2^n times.
template <int C>
void LlenarObjetivos() {
    const Cuenta&  suma   = Conjuntos[C].Ataques;
    const Conjunto piezas = Conjuntos[RIVAL<C>].Todas;
    AnotarObjetivos<C>(suma.Digitos[0] & piezas, 1);
    AnotarObjetivos<C>(suma.Digitos[1] & piezas, 2);
    AnotarObjetivos<C>(suma.Digitos[2] & piezas, 4);
    AnotarObjetivos<C>(suma.Digitos[3] & piezas, 8);
}

template <int C>
void LlenarMapas() {
    AnotarAtaquesRey<C>();
    EscribirCuenta(Conjuntos[C].Ataques, Conjuntos[C].Todas, BandoDe<C>().Defensa);
    LlenarObjetivos<C>();
    AnotarAtaquesTorres<C>();
}

}  // namespace

void EvaluarPiezasTableroJuego() {
    ListarPiezas();
    EvaluarCaballosB();
    EvaluarCaballosN();
    EvaluarAlfilesB();
    EvaluarAlfilesN();
    EvaluarDamasB();
    EvaluarDamasN();
    EvaluarMenoresTrasPeon<BLANCO>();
    EvaluarMenoresTrasPeon<NEGRO>();
    LlenarMapas<BLANCO>();
    LlenarMapas<NEGRO>();
}

void Iniciar_Piezas() {
    Iniciar_Movilidad();
}
