#include "eval/SeguridadRey.h"

#include <algorithm>
#include <bit>
#include <cstddef>

#include "eval/Conjuntos.h"
#include "eval/Espejo.h"
#include "eval/Pesos.h"
#include "eval/Terminos.h"

// The curve of KING_ATTACK_MULTI: a parabola with a dead start up to its joint, then three centipawns a step and a
// fourth at every eighth.
constexpr int ATAQUE_MUERTO  = 10;  // below, nothing threatens yet
constexpr int ATAQUE_EMPALME = 150;
constexpr int VALOR_EMPALME  = 240;
constexpr int VALOR_ATAQUE   = 500;  // the most that an attack is worth

static constexpr int ValorAtaque(int peso) {
    if (peso < ATAQUE_MUERTO) return 0;
    constexpr int CUADRADO = ATAQUE_EMPALME * ATAQUE_EMPALME;
    if (peso <= ATAQUE_EMPALME) return (peso * peso * VALOR_EMPALME + CUADRADO / 2) / CUADRADO;
    const int pasos = peso - ATAQUE_EMPALME;
    return std::min(VALOR_EMPALME + 3 * pasos + pasos / 8, VALOR_ATAQUE);
}

static constexpr TablaAtaque CalcularAtaques() {
    TablaAtaque tabla{};
    for (int peso = 0; peso <= ATAQUE_MAX; ++peso) tabla.Valores[peso] = ValorAtaque(peso);
    return tabla;
}

constexpr TablaAtaque KING_ATTACK_MULTI = CalcularAtaques();

// Relative rank of the pawn nearest to the back rank of C, of pawns on the a file; that of the eighth for none.
template <int C>
static int FilaMasAtrasada(Conjunto peones) {
    return (C == BLANCO ? std::countl_zero(peones | Bit(En<BLANCO>("a8")))
                        : std::countr_zero(peones | Bit(En<BLANCO>("a1")))) >>
           3;
}

// Shelter of a king of colour C on the given square: its own file and the two beside it. Hands each weight that counts
// to recibir(weight, times).
template <int C, class Recibir>
static void RecorrerRefugio(int rey, Recibir recibir) {
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        delante = HastaElFinal<C>(FilaEntera<C>(FilaRelativa<C>(rey)));
    const Conjunto        propios = Conjuntos[C].Peones & delante;
    const Conjunto        ajenos  = rival.Peones & delante;
    const bool            pesadas = (rival.Torres | rival.Damas) != 0;
    const int             centro  = std::clamp(Columna(rey), 1, 6);  // at the edge the third file is the next but one
    for (int columna = centro - 1; columna <= centro + 1; ++columna) {
        const int propio = FilaMasAtrasada<C>((propios >> columna) & COLUMNA_A);
        const int ajeno  = FilaMasAtrasada<C>((ajenos >> columna) & COLUMNA_A);
        const int borde  = std::min(columna, 7 - columna);
        recibir(PESOS.ESCUDO_OP[borde][propio], 1);
        recibir(ajeno == propio + 1 ? PESOS.TORMENTA_BLOQUEADA_OP[ajeno] : PESOS.TORMENTA_OP[ajeno], 1);
        const Conjunto entera = ColumnaEntera(columna);
        if (pesadas && (Conjuntos[C].Peones & entera) == 0)
            recibir((rival.Peones & entera) != 0 ? PESOS.PENALIZACION_COLUMNA_SEMIABIERTA_OP
                                                 : PESOS.PENALIZACION_COLUMNA_ABIERTA_OP,
                    -1);
    }
}

template <int C>
static int PuntosRefugio(int rey) {
    int puntos = 0;
    RecorrerRefugio<C>(rey, [&puntos](const int& peso, int veces) { puntos += peso * veces; });
    return puntos;
}

// While the right to castle lasts, the pawns of that wing are worth keeping: a better shelter there counts half.
template <int C>
static void EvaluarRefugio(int rey) {
    const int  estado   = EnroqueDe<C>();
    const int  presente = PuntosRefugio<C>(rey);
    int        mejor    = presente;
    int        casilla  = rey;
    const auto comparar = [&mejor, &casilla](int destino) {
        const int puntos = PuntosRefugio<C>(destino);
        if (puntos <= mejor) return;
        mejor   = puntos;
        casilla = destino;
    };
    if (estado == ENROQUE_CORTO || estado == ENROQUE_AMBOS) comparar(En<C>("g1"));
    if (estado == ENROQUE_LARGO || estado == ENROQUE_AMBOS) comparar(En<C>("c1"));
    SumarRefugio<C>(presente + mejor);
    if constexpr (TRAZANDO)
        for (const int lugar : {rey, casilla})
            RecorrerRefugio<C>(lugar,
                               [](const int& peso, int veces) { Trazar(peso, veces, C, Acumulador::Refugio_OP); });
}

template <int C>
static void EvaluarEstadoEnroque(int rey) {
    const int  estado    = std::clamp(EnroqueDe<C>(), 0, 5);
    const bool en_centro = Columna(rey) >= 2 && Columna(rey) <= 5;
    if (estado == SIN_ENROQUE && en_centro)
        SumarApertura<C>(PESOS.PENALIZACION_SIN_ENROQUE_OP, -1);
    else
        SumarApertura<C>(PESOS.BONUS_ENROQUE_OP[estado]);
}

// Squares that the king of C guards and no other piece of his.
template <int C>
static Conjunto SoloDelRey() {
    return Conjuntos[C].Ataque_Rey & ~ConDosOMas(Conjuntos[C].Ataques);
}

// The half of the board's width on which a king on each file lives.
constexpr Conjunto FLANCO_DAMA   = COLUMNA_A * 0x0F;
constexpr Conjunto FLANCO_CENTRO = FLANCO_DAMA << 2;
constexpr Conjunto FLANCO_REY    = FLANCO_DAMA << 4;
constexpr Conjunto FLANCO[8]     = {FLANCO_DAMA,   FLANCO_DAMA, FLANCO_DAMA, FLANCO_CENTRO,
                                    FLANCO_CENTRO, FLANCO_REY,  FLANCO_REY,  FLANCO_REY};

// What C sees when it looks at the king of its enemy.
struct Cerco {
    int      Rey;
    Conjunto Rectas;  // the lines that lead to him, the first pieces on them included
    Conjunto Diagonales;
    Conjunto JaquesCaballo;  // squares from which a piece that attacks them would check him
    Conjunto JaquesAlfil;
    Conjunto JaquesTorre;
    Conjunto JaquesDama;
    Conjunto Seguras;  // where a piece may land: nothing guards it, or only the king and a second attacker stands by
    Conjunto Debiles;  // attacked, and only the king guards it
    Conjunto Flanco;
};

template <int C>
static Cerco MirarCerco() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        suyas   = SoloDelRey<RIVAL<C>>();
    Cerco                 cerco;
    cerco.Rey           = PosicionReyDe<RIVAL<C>>();
    cerco.Rectas        = AtaquesRectos(cerco.Rey, Ocupadas);
    cerco.Diagonales    = AtaquesDiagonales(cerco.Rey, Ocupadas);
    cerco.JaquesCaballo = ATAQUES_CABALLO[static_cast<std::size_t>(cerco.Rey)] & propios.Ataque_Caballos;
    cerco.JaquesAlfil   = cerco.Diagonales & propios.Ataque_Alfiles;
    cerco.JaquesTorre   = cerco.Rectas & propios.Ataque_Torres;
    cerco.JaquesDama    = (cerco.Rectas | cerco.Diagonales) & propios.Ataque_Damas;
    cerco.Seguras       = ~propios.Todas & (~ConUnoOMas(rival.Ataques) | (suyas & ConDosOMas(propios.Ataques)));
    cerco.Debiles       = suyas & ConUnoOMas(propios.Ataques);
    cerco.Flanco        = FLANCO[Columna(cerco.Rey)];
    return cerco;
}

// A pressure counts by itself, and once more as danger: where several meet, they are worth more than their sum.
template <int C>
static void Presionar(const Par& peso, const int& peligro, int veces) {
    Sumar<C>(peso, veces);
    SumarPeligro<C>(peligro, veces);
}

// The attack counts for nothing without a queen or with one attacker alone.
template <int C>
static void EvaluarAtaque(const Cerco& cerco) {
    if (Conjuntos[C].Damas == 0 || BandoDe<C>().Ataque_Numero < 2) return;
    SumarAtaque<C>(PESOS.PESO_JAQUE_CABALLO, Cuantas(cerco.JaquesCaballo & cerco.Seguras));
    SumarAtaque<C>(PESOS.PESO_JAQUE_ALFIL, Cuantas(cerco.JaquesAlfil & cerco.Seguras));
    SumarAtaque<C>(PESOS.PESO_JAQUE_TORRE, Cuantas(cerco.JaquesTorre & cerco.Seguras));
    SumarAtaque<C>(PESOS.PESO_JAQUE_DAMA, Cuantas(cerco.JaquesDama & cerco.Seguras));
    SumarAtaque<C>(PESOS.PESO_ZONA_DEBIL, Cuantas(cerco.Debiles));
}

// 1 when one of these checks costs nothing.
static int HayJaqueSeguro(const Cerco& cerco, Conjunto jaques) {
    return (jaques & cerco.Seguras) != 0 ? 1 : 0;
}

template <int C>
static void EvaluarJaques(const Cerco& cerco) {
    const Conjunto menores    = cerco.JaquesCaballo | cerco.JaquesAlfil | cerco.JaquesTorre;
    const Conjunto arriesgado = menores & ~Conjuntos[C].Todas & ~cerco.Seguras;
    Presionar<C>(PESOS.JAQUE_SEGURO_CABALLO, PESOS.PELIGRO_JAQUE_CABALLO, HayJaqueSeguro(cerco, cerco.JaquesCaballo));
    Presionar<C>(PESOS.JAQUE_SEGURO_ALFIL, PESOS.PELIGRO_JAQUE_ALFIL, HayJaqueSeguro(cerco, cerco.JaquesAlfil));
    Presionar<C>(PESOS.JAQUE_SEGURO_TORRE, PESOS.PELIGRO_JAQUE_TORRE, HayJaqueSeguro(cerco, cerco.JaquesTorre));
    Presionar<C>(PESOS.JAQUE_SEGURO_DAMA, PESOS.PELIGRO_JAQUE_DAMA, HayJaqueSeguro(cerco, cerco.JaquesDama));
    Presionar<C>(PESOS.JAQUE_CON_RIESGO, PESOS.PELIGRO_JAQUE_RIESGO, Cuantas(arriesgado));
}

// With the move, dangers become facts sooner.
template <int C>
static void EvaluarTurno(const Cerco& cerco) {
    if (!TieneElTurno<C>()) return;
    SumarPeligro<C>(PESOS.PELIGRO_TURNO);
    SumarPeligro<C>(PESOS.PELIGRO_TURNO_JAQUE,
                    HayJaqueSeguro(cerco, cerco.JaquesCaballo) + HayJaqueSeguro(cerco, cerco.JaquesAlfil) +
                        HayJaqueSeguro(cerco, cerco.JaquesTorre) + HayJaqueSeguro(cerco, cerco.JaquesDama));
    SumarPeligro<C>(PESOS.PELIGRO_TURNO_ATACANTE, BandoDe<C>().Ataque_Numero);
}

// The king's zone: what attacks it, and what of his own stands or looks there.
template <int C>
static void EvaluarZona(const Cerco& cerco) {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        zona    = rival.Zona_Rey;
    Sumar<C>(PESOS.ZONA_ATACADA, Cuantas(ConUnoOMas(propios.Ataques) & zona));
    Presionar<C>(PESOS.ZONA_SIN_DEFENSA, PESOS.PELIGRO_ZONA_DEBIL, Cuantas(cerco.Debiles));
    SumarPeligro<C>(PESOS.PELIGRO_ZONA_PEON, Cuantas(propios.Ataque_Peones & zona));
    SumarPeligro<C>(PESOS.PELIGRO_ZONA_CABALLO, Cuantas(propios.Ataque_Caballos & zona));
    SumarPeligro<C>(PESOS.PELIGRO_ZONA_ALFIL, Cuantas(propios.Ataque_Alfiles & zona));
    SumarPeligro<C>(PESOS.PELIGRO_ZONA_TORRE, Cuantas(propios.Ataque_Torres & zona));
    SumarPeligro<C>(PESOS.PELIGRO_ZONA_DAMA, Cuantas(propios.Ataque_Damas & zona));
    SumarPeligro<C>(PESOS.PELIGRO_ATACANTE, BandoDe<C>().Ataque_Numero);
    SumarPeligro<C>(PESOS.PELIGRO_PEON_SUYO, Cuantas(rival.Peones & (zona | rival.Zona_Exterior)));
    if ((rival.Ataque_Caballos & zona) != 0) SumarPeligro<C>(PESOS.PELIGRO_CABALLO_SUYO);
    if ((rival.Ataque_Alfiles & zona) != 0) SumarPeligro<C>(PESOS.PELIGRO_ALFIL_SUYO);
}

// How many of the pieces of C that stand behind others on the king's lines would see him if the nearest piece on their
// line were gone. Only cuales may go.
static int PiezasTras(const Cerco& cerco, Conjunto torres, Conjunto alfiles, Conjunto cuales) {
    const Conjunto vistas = (cerco.Rectas | cerco.Diagonales) & cuales;
    if (vistas == 0) return 0;
    return Cuantas(AtaquesRectos(cerco.Rey, Ocupadas ^ vistas) & torres) +
           Cuantas(AtaquesDiagonales(cerco.Rey, Ocupadas ^ vistas) & alfiles);
}

// Pieces of either side that stand between the king and a line piece. A pawn there holds fast or opens its line slowly.
template <int C>
static void EvaluarClavadas(const Cerco& cerco) {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const auto            rey     = static_cast<std::size_t>(cerco.Rey);
    const Conjunto        torres  = LINEAS_TORRE[rey] & (propios.Torres | propios.Damas) & ~cerco.Rectas;
    const Conjunto        alfiles = LINEAS_ALFIL[rey] & (propios.Alfiles | propios.Damas) & ~cerco.Diagonales;
    if ((torres | alfiles) == 0) return;
    Presionar<C>(PESOS.CLAVADA, PESOS.PELIGRO_CLAVADA, PiezasTras(cerco, torres, alfiles, rival.Todas ^ rival.Peones));
    const int descubiertas = PiezasTras(cerco, torres, alfiles, propios.Todas ^ propios.Peones);
    Sumar<C>(PESOS.DESCUBIERTA, descubiertas);
    if (TieneElTurno<C>()) Sumar<C>(PESOS.DESCUBIERTA_CON_TURNO, descubiertas);
}

// The king's flank on his half of the board, and how openly he stands.
template <int C>
static void EvaluarFlanco(const Cerco& cerco) {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        suyo    = cerco.Flanco & Filas<RIVAL<C>>(0, 4);
    const int             vistas  = Cuantas((cerco.Rectas | cerco.Diagonales) & ~rival.Todas);
    Presionar<C>(PESOS.FLANCO_ATACADO, PESOS.PELIGRO_FLANCO_ATACADO, Cuantas(ConUnoOMas(propios.Ataques) & suyo));
    Presionar<C>(PESOS.FLANCO_DOS_VECES, PESOS.PELIGRO_FLANCO_DOS_VECES, Cuantas(ConDosOMas(propios.Ataques) & suyo));
    SumarPeligro<C>(PESOS.PELIGRO_FLANCO_SUYO, Cuantas(ConUnoOMas(rival.Ataques) & suyo));
    SumarPeligro<C>(PESOS.PELIGRO_EXPUESTO, vistas);
    SumarPeligro<C>(propios.Damas == 0 ? PESOS.PELIGRO_SIN_DAMA : PESOS.PELIGRO_CON_DAMA);
    if (((propios.Peones | rival.Peones) & cerco.Flanco) == 0) Sumar<C>(PESOS.FLANCO_SIN_PEONES);
    if (propios.Damas != 0) Sumar<C>(PESOS.REY_EXPUESTO[std::min(vistas / 2, RegistroPesos::EXPOSICIONES - 1)]);
}

// What C has against the king of its enemy; a board without one promises nothing.
template <int C>
static void EvaluarAsalto() {
    if (Conjuntos[RIVAL<C>].Rey == 0) return;
    const Cerco cerco = MirarCerco<C>();
    EvaluarAtaque<C>(cerco);
    EvaluarJaques<C>(cerco);
    EvaluarTurno<C>(cerco);
    EvaluarZona<C>(cerco);
    EvaluarClavadas<C>(cerco);
    EvaluarFlanco<C>(cerco);
}

template <int C>
static void EvaluarRey() {
    const int rey = PosicionReyDe<C>();
    Sumar<C>(PESOS.PST_K_OP[Relativa<C>(rey)], PESOS.PST_K_EG[Relativa<C>(rey)]);
    EvaluarRefugio<C>(rey);
    EvaluarEstadoEnroque<C>(rey);
    EvaluarAsalto<RIVAL<C>>();
}

void EvaluarReyes() {
    EvaluarRey<BLANCO>();
    EvaluarRey<NEGRO>();
}
