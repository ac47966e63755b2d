#include "eval/Listas.h"

ConjuntosBando Conjuntos[2];
Conjunto       Ocupadas;

namespace {

// Pawns are listed the most advanced first, pieces in generation order, which begins at the side's own back rank.
template <int C>
void LlenarLista(ListaCasillas& lista, Conjunto piezas) {
    int n = 0;
    while (piezas != 0) lista.Casillas[n++] = static_cast<std::uint8_t>(SacarCasillaEnOrden<C>(piezas));
    lista.Numero = n;
}

template <int C>
void ReunirPiezas(const CodigosTablero& codigos) {
    ConjuntosBando& propios = Conjuntos[C];
    propios.Peones          = CasillasCon(codigos, PEON<C>);
    propios.Caballos        = CasillasCon(codigos, CABALLO<C>);
    propios.Alfiles         = CasillasCon(codigos, ALFIL<C>);
    propios.Torres          = CasillasCon(codigos, TORRE<C>);
    propios.Damas           = CasillasCon(codigos, DAMA<C>);
    propios.Rey             = CasillasCon(codigos, REY<C>);
    propios.Todas = propios.Peones | propios.Caballos | propios.Alfiles | propios.Torres | propios.Damas | propios.Rey;

    RegistroBando& bando = BandoDe<C>();
    LlenarLista<RIVAL<C>>(bando.ListaPeones, propios.Peones);
    LlenarLista<C>(bando.ListaCaballos, propios.Caballos);
    LlenarLista<C>(bando.ListaAlfiles, propios.Alfiles);
    LlenarLista<C>(bando.ListaTorres, propios.Torres);
    LlenarLista<C>(bando.ListaDamas, propios.Damas);
}

template <int C>
void EvaluarControlPeones() {
    ConjuntosBando& propios = Conjuntos[C];
    RegistroBando&  bando   = BandoDe<C>();
    const Conjunto  hacia_a = Avanzar<C>(HaciaA(propios.Peones));
    const Conjunto  hacia_h = Avanzar<C>(HaciaH(propios.Peones));
    for (int columna = 0; columna < 8; ++columna)
        bando.Peones_Columna[columna + 1] = Cuantas(propios.Peones & ColumnaEntera(columna));
    bando.Peones_Septima = Cuantas(propios.Peones & FilaEntera<C>(6));

    propios.Ataque_Peones = hacia_a | hacia_h;
    propios.Alcance_Peon  = AtaquesDePeones<C>(HastaElFinal<C>(propios.Peones));
    propios.Ataques       = Cuenta{{hacia_a ^ hacia_h, hacia_a & hacia_h, 0, 0}};
    EscribirCuenta(propios.Ataques, ~Conjunto{0}, bando.Ataque_Peon);
}

template <int C>
void DelimitarZonaRey() {
    ConjuntosBando& propios = Conjuntos[C];
    const int       rey     = PosicionReyDe<C>();
    propios.Zona_Rey        = ATAQUES_REY[static_cast<std::size_t>(rey)] | Bit(rey);
    propios.Zona_Exterior   = Avanzar<C>(propios.Zona_Rey) & ~propios.Zona_Rey & ~propios.Ataque_Peones;
    propios.Ataque_Caballos = propios.Ataque_Alfiles = propios.Ataque_Torres = propios.Ataque_Damas = 0;
    propios.Ataque_Rey                                                                              = 0;
}

}  // namespace

void ListarPiezas() {
    const CodigosTablero codigos = LeerTablero();
    ReunirPiezas<BLANCO>(codigos);
    ReunirPiezas<NEGRO>(codigos);
    Ocupadas = Conjuntos[BLANCO].Todas | Conjuntos[NEGRO].Todas;
    EvaluarControlPeones<BLANCO>();
    EvaluarControlPeones<NEGRO>();
    DelimitarZonaRey<BLANCO>();
    DelimitarZonaRey<NEGRO>();
}
