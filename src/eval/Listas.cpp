#include "eval/Listas.h"

#if defined(__AVX2__)
#include <immintrin.h>
#endif

#include "board/Ocupacion.h"

ConjuntosBando Conjuntos[2];
Conjunto       Ocupadas;

namespace {

// The board with one byte a square, so that few vector comparisons cover it.
struct CodigosTablero {
    alignas(64) std::uint8_t Casillas[64];
};

CodigosTablero LeerTablero() {
    CodigosTablero codigos;
    for (int i = 0; i < 64; ++i) codigos.Casillas[i] = static_cast<std::uint8_t>(TableroGlobal.Casillas[i]);
    return codigos;
}

Conjunto CasillasCon(const CodigosTablero& codigos, int pieza) {
#if defined(__AVX2__)
    const auto*   mitades = reinterpret_cast<const __m256i*>(codigos.Casillas);
    const __m256i buscada = _mm256_set1_epi8(static_cast<char>(pieza));
    const auto    baja    = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(mitades[0], buscada)));
    const auto    alta    = static_cast<unsigned>(_mm256_movemask_epi8(_mm256_cmpeq_epi8(mitades[1], buscada)));
    return Conjunto{alta} << 32 | baja;
#else
    Conjunto conjunto = 0;
    for (int i = 0; i < 64; ++i) conjunto |= Conjunto{codigos.Casillas[i] == pieza} << i;
    return conjunto;
#endif
}

// Pawns are listed the most advanced first, pieces in generation order, which begins at the side's own back rank.
template <int C>
void LlenarLista(ListaCasillas& lista, Conjunto piezas) {
    int n = 0;
    while (piezas != 0) lista.Casillas[n++] = static_cast<std::uint8_t>(TomarCasilla<C>(piezas));
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
    const Conjunto  hacia_a = AtaquesHaciaA<C>(propios.Peones);
    const Conjunto  hacia_h = AtaquesHaciaH<C>(propios.Peones);
    for (int columna = 0; columna < 8; ++columna)
        bando.Peones_Columna[columna + 1] = Cuantas(propios.Peones & ColumnaEntera(columna));
    bando.Peones_Septima = Cuantas(propios.Peones & FilaEntera<C>(6));

    const Conjunto estela = HastaElFinal<C>(propios.Peones);
    propios.Ataque_Peones = hacia_a | hacia_h;
    propios.Alcance_Peon  = AtaquesHaciaA<C>(estela) | AtaquesHaciaH<C>(estela);
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
