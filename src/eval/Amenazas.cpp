#include "eval/Amenazas.h"

#include "eval/Listas.h"

// clang-format off
//                            --   P   N   B   R   Q   K  --   P   N   B   R   Q   K  --  --
const int att_on_hang_mg[16] = {0, 11, 15, 15, 17, 25,  0,  0, 11, 15, 15, 17, 25,  0,  0,  0};
const int att_on_hang_eg[16] = {0, 19, 23, 23, 25, 33,  0,  0, 19, 23, 23, 25, 33,  0,  0,  0};
// clang-format on

namespace {

// Centipawns for each enemy piece under such an attack, defended or not.
struct Amenaza {
    int OP;
    int EG;
};
constexpr Amenaza PEON_A_MENOR   = {24, 22};
constexpr Amenaza PEON_A_TORRE   = {34, 28};
constexpr Amenaza PEON_A_DAMA    = {38, 34};
constexpr Amenaza MENOR_A_TORRE  = {26, 26};
constexpr Amenaza MENOR_A_DAMA   = {28, 28};
constexpr Amenaza TORRE_A_DAMA   = {14, 14};
constexpr Amenaza ASEDIO_A_PIEZA = {24, 24};
constexpr Amenaza AVANCE_A_PIEZA = {7, 5};  // a pawn step that nothing punishes would attack the piece

template <int C>
void Sumar(const Amenaza& amenaza, Conjunto atacadas) {
    const int numero = Cuantas(atacadas);
    BandoDe<C>().Puntos_OP += amenaza.OP * numero;
    BandoDe<C>().Puntos_EG += amenaza.EG * numero;
}

// Each piece counts once, however many attack it.
template <int C>
void EvaluarColgadas() {
    RegistroBando&       bando  = BandoDe<C>();
    const RegistroBando& rival  = BandoDe<RIVAL<C>>();
    Conjunto             vistas = 0;
    for (int i = 0; i < bando.Numero_Objetivos; ++i) {
        const int casilla = bando.Objetivos[i];
        if (rival.Defensa[casilla] != 0 || Contiene(vistas, casilla)) continue;
        vistas |= Bit(casilla);
        bando.Puntos_OP += att_on_hang_mg[TableroGlobal.Casillas[casilla]];
        bando.Puntos_EG += att_on_hang_eg[TableroGlobal.Casillas[casilla]];
    }
}

// A piece that more enemies attack than own pieces defend, although it is no loose piece.
template <int C>
void EvaluarAsediadas() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        una_vez = ConUnoOMas(rival.Ataques) & ~ConDosOMas(rival.Ataques) & ~rival.Ataque_Peones;
    Sumar<C>(ASEDIO_A_PIEZA, ConDosOMas(propios.Ataques) & una_vez & (rival.Todas ^ rival.Peones ^ rival.Rey));
}

template <int C>
void EvaluarAvances() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        un_paso = Avanzar<C>(propios.Peones) & ~Ocupadas;
    const Conjunto        avances = un_paso | (Avanzar<C>(un_paso & FilaEntera<C>(2)) & ~Ocupadas);
    const Conjunto        seguros =
        avances & ~rival.Ataque_Peones & (ConUnoOMas(propios.Ataques) | ~ConUnoOMas(rival.Ataques));
    const Conjunto piezas = (rival.Todas ^ rival.Peones ^ rival.Rey) & ~propios.Ataque_Peones;
    Sumar<C>(AVANCE_A_PIEZA, AtaquesDePeones<C>(seguros) & piezas);
}

template <int C>
void EvaluarAmenazasDe() {
    const ConjuntosBando& propios = Conjuntos[C];
    const ConjuntosBando& rival   = Conjuntos[RIVAL<C>];
    const Conjunto        menores = propios.Ataque_Caballos | propios.Ataque_Alfiles;
    Sumar<C>(PEON_A_MENOR, propios.Ataque_Peones & (rival.Caballos | rival.Alfiles));
    Sumar<C>(PEON_A_TORRE, propios.Ataque_Peones & rival.Torres);
    Sumar<C>(PEON_A_DAMA, propios.Ataque_Peones & rival.Damas);
    Sumar<C>(MENOR_A_TORRE, menores & rival.Torres);
    Sumar<C>(MENOR_A_DAMA, menores & rival.Damas);
    Sumar<C>(TORRE_A_DAMA, propios.Ataque_Torres & rival.Damas);
    EvaluarAsediadas<C>();
    EvaluarAvances<C>();
    EvaluarColgadas<C>();
}

}  // namespace

void EvaluarAmenazas() {
    EvaluarAmenazasDe<BLANCO>();
    EvaluarAmenazasDe<NEGRO>();
}
