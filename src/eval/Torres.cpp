#include "eval/Torres.h"

#include <array>

#include "board/Color.h"
#include "board/Geometria.h"
#include "board/HacerMovimiento.h"
#include "board/Jugada.h"
#include "eval/Espejo.h"
#include "eval/Listas.h"
#include "eval/Tropismo.h"
#include "search/See.h"

namespace {

// clang-format off
constexpr TablaEspejo PST_R_OP = ConEspejo({   // centipawns; the seventh rank has a bonus of its own
//    a    b    c    d    e    f    g    h
      4,   4,   4,   4,   4,   4,   4,   4,    // 8
     -4,  -2,   0,   2,   2,   0,  -2,  -4,    // 7
     -4,  -2,   0,   2,   2,   0,  -2,  -4,    // 6
     -4,  -2,   0,   2,   2,   0,  -2,  -4,    // 5
     -4,  -2,   0,   2,   2,   0,  -2,  -4,    // 4
     -4,  -2,   0,   2,   2,   0,  -2,  -4,    // 3
     -4,  -2,   0,   2,   2,   0,  -2,  -4,    // 2
      0,   0,   2,   4,   4,   2,   0,   0 }); // 1
// clang-format on
constexpr int PST_R_EG[64] = {};  // in the endgame no square is better than another by itself

constexpr int MOVILIDAD_EG                 = 16;  // start of the endgame half of BONUS_TORRE_MOVILIDAD
constexpr int MOVILIDAD_MAX                = 14;  // squares a rook can reach
constexpr int BONUS_TORRE_ABIERTO          = 14;  // both phases, as all bonuses without _OP and _EG
constexpr int BONUS_FRENTE_A_DAMA          = 5;   // the first piece on the rook's file is the enemy queen
constexpr int BONUS_TORRE_SEMI_ABIERTA     = 7;   // half-open file: for an enemy pawn in sight
constexpr int BONUS_TORRE_SEMI_DEFENDIDA   = 5;   // ... that a pawn protects
constexpr int BONUS_TORRE_SEPTIMA_OP       = 16;
constexpr int BONUS_TORRE_SEPTIMA_EG       = 32;
constexpr int BONUS_DOSTORRE_SEPTIMA_OP    = 8;  // for the pair
constexpr int BONUS_DOSTORRE_SEPTIMA_EG    = 16;
constexpr int PENALIZACION_TORRE_ATRAPADA  = 100;  // shut in by a bishop
constexpr int PENALIZACION_TORRE_ATRAPADA2 = 180;  // shut in by a pawn

// Attack on the enemy king, in units of Ataque_Valor.
constexpr int PESO_ZONA_REY     = 9;   // for each square of the king's zone; a check counts once more
constexpr int PESO_JAQUE_ATAQUE = 24;  // a check that also attacks a piece worth taking

// Opening values by squares reached, then the endgame values.
constexpr std::array<int, 32> CalcularMovilidad() {
    std::array<int, 32> tabla{};
    for (std::size_t m = 0; m <= MOVILIDAD_MAX; ++m) {
        tabla[m]                = 2 * static_cast<int>(m) - 14;
        tabla[MOVILIDAD_EG + m] = 4 * static_cast<int>(m) - 28;
    }
    return tabla;
}
constexpr std::array<int, 32> BONUS_TORRE_MOVILIDAD = CalcularMovilidad();

// What one rook sees: the squares of its rays, the first occupied ones included.
struct Vista {
    int      Torre;  // the rook's square
    Conjunto Vertical;
    Conjunto Todas;
};

Vista Mirar(int torre) {
    const auto     casilla = static_cast<std::size_t>(torre);
    const Conjunto vertical =
        VistaEnDireccion<DIR_MENOS_8>(casilla, Ocupadas) | VistaEnDireccion<DIR_MAS_8>(casilla, Ocupadas);
    const Conjunto horizontal =
        VistaEnDireccion<DIR_MAS_1>(casilla, Ocupadas) | VistaEnDireccion<DIR_MENOS_1>(casilla, Ocupadas);
    return {torre, vertical, vertical | horizontal};
}

// Defended own pieces and attacked enemy ones, for the other terms.
template <int C>
void AnotarContactos(const Vista& vista, RegistroBando& propio) {
    for (Conjunto propias = vista.Todas & Conjuntos[C].Todas; propias != 0;) ++propio.Defensa[SacarCasilla(propias)];
    for (Conjunto atacadas = vista.Todas & Conjuntos[RIVAL<C>].Todas; atacadas != 0;) {
        const int casilla = SacarCasilla(atacadas);
        if (propio.Numero_Objetivos < OBJETIVOS_MAX)
            propio.Objetivos[propio.Numero_Objetivos++] = static_cast<std::uint8_t>(casilla);
    }
}

// Is there a piece that the rook, were it its turn, would win or exchange? Each capture is tried on the board.
template <int C>
bool GanaAlgo(int torre, Conjunto presas) {
    const int turno = TableroGlobal.Turno;
    bool      gana  = false;
    while (presas != 0 && !gana) {
        const int           presa   = SacarCasilla(presas);
        const std::uint32_t captura = CrearMovimiento(torre, presa, TORRE<C>, TableroGlobal.Casillas[presa], NINGUNA);
        TableroGlobal.Turno         = C;
        gana                        = HacerMovimiento(captura) == 1 && See(captura, RIVAL<C>) >= 0;
        DeshacerMovimiento();
        TableroGlobal.Turno = turno;
    }
    return gana;
}

// A check that attacks a second piece, with an own queen to follow it up. A move made with Ply at the last row of the
// undo stack could not be taken back, so there nothing is tried.
template <int C>
bool JaqueConAtaque(const Vista& vista, const RegistroBando& propio) {
    const ConjuntosBando& rivales = Conjuntos[RIVAL<C>];
    const Conjunto        presas  = vista.Todas & rivales.Todas & ~rivales.Rey;
    return (vista.Todas & rivales.Rey) != 0 && presas != 0 && propio.Damas != 0 && TableroGlobal.Ply < PLIES_MAX - 1 &&
           GanaAlgo<C>(vista.Torre, presas);
}

// Attacked squares beside the enemy king and the king itself, which counts twice.
template <int C>
void AnotarAtaqueTorre(const Vista& vista, RegistroBando& propio) {
    const int      rey    = PosicionReyDe<RIVAL<C>>();
    const Conjunto zona   = ATAQUES_REY[static_cast<std::size_t>(rey)] | (Bit(rey) & Ocupadas);
    const int      numero = Cuantas(vista.Todas & zona);
    propio.Ataque_Valor += PESO_ZONA_REY * (numero + Cuantas(vista.Todas & Conjuntos[RIVAL<C>].Rey));
    propio.Ataque_Numero += numero != 0 ? 1 : 0;
    if (JaqueConAtaque<C>(vista, propio)) propio.Ataque_Valor += PESO_JAQUE_ATAQUE;
}

template <int C>
int PuntosPeonALaVista(int peon) {
    return Contiene(Conjuntos[RIVAL<C>].Ataque_Peones, peon) ? BONUS_TORRE_SEMI_DEFENDIDA : BONUS_TORRE_SEMI_ABIERTA;
}

// Open and half-open files. On a half-open one the first enemy pawn in each direction counts, whatever stands between.
template <int C>
int PuntosColumna(int torre) {
    const auto     casilla = static_cast<std::size_t>(torre);
    const Conjunto columna = ColumnaEntera(Columna(torre));
    const Conjunto rivales = Conjuntos[RIVAL<C>].Peones & columna;
    if ((Conjuntos[C].Peones & columna) != 0) return 0;
    if (rivales == 0) return BONUS_TORRE_ABIERTO;

    const Conjunto hacia_8 = rivales & RAYOS[casilla][DIR_MENOS_8];
    const Conjunto hacia_1 = rivales & RAYOS[casilla][DIR_MAS_8];
    return (hacia_8 != 0 ? PuntosPeonALaVista<C>(PrimerObstaculo<DIR_MENOS_8>(hacia_8)) : 0) +
           (hacia_1 != 0 ? PuntosPeonALaVista<C>(PrimerObstaculo<DIR_MAS_8>(hacia_1)) : 0);
}

// A rook that has strayed in front of an enemy rook's pawn and cannot leave along its rank.
template <int C>
int PuntosAtrapada(int torre) {
    int carcelero = VACIO;
    if (torre == En<C>("h2") && TableroGlobal.Casillas[En<C>("h3")] == PEON<RIVAL<C>>)
        carcelero = TableroGlobal.Casillas[En<C>("g2")];
    if (torre == En<C>("a2") && TableroGlobal.Casillas[En<C>("a3")] == PEON<RIVAL<C>>)
        carcelero = TableroGlobal.Casillas[En<C>("b2")];
    if (carcelero == ALFIL<RIVAL<C>>) return -PENALIZACION_TORRE_ATRAPADA;
    if (carcelero == PEON<RIVAL<C>>) return -PENALIZACION_TORRE_ATRAPADA2;
    return 0;
}

// On the seventh rank the rook cuts the enemy king off, or waits for the pawns that will promote behind it: the
// pawns that count are those on the enemy's own seventh rank.
template <int C>
bool DominaSeptima(int torre, const RegistroBando& rival) {
    return FilaRelativa<C>(torre) == 6 && (FilaRelativa<C>(PosicionReyDe<RIVAL<C>>()) == 7 || rival.Peones_Septima > 0);
}

// Returns whether the rook counts for the pair on the seventh rank.
template <int C>
bool EvaluarUnaTorre(int torre, RegistroBando& propio, const RegistroBando& rival) {
    const Vista vista = Mirar(torre);
    AnotarContactos<C>(vista, propio);
    AnotarAtaqueTorre<C>(vista, propio);

    const auto movilidad = static_cast<std::size_t>(Cuantas(vista.Todas & ~Conjuntos[C].Peones));
    propio.Movilidad_OP += BONUS_TORRE_MOVILIDAD[movilidad];
    propio.Movilidad_EG += BONUS_TORRE_MOVILIDAD[MOVILIDAD_EG + movilidad];
    const int tropismo = TROPISMO_DISTANCIA[torre][PosicionReyDe<RIVAL<C>>()];
    propio.Tropismo_OP += 2 * tropismo;
    propio.Tropismo_EG += tropismo;

    const bool septima     = DominaSeptima<C>(torre, rival);
    const int  ambas_fases = PuntosColumna<C>(torre) + PuntosAtrapada<C>(torre) +
                            BONUS_FRENTE_A_DAMA * Cuantas(vista.Vertical & Conjuntos[RIVAL<C>].Damas);
    propio.Puntos_OP += PST_R_OP[torre + MITAD<C>] + ambas_fases + (septima ? BONUS_TORRE_SEPTIMA_OP : 0);
    propio.Puntos_EG += PST_R_EG[torre] + ambas_fases + (septima ? BONUS_TORRE_SEPTIMA_EG : 0);
    return septima;
}

template <int C>
void EvaluarTorres(RegistroBando& propio, const RegistroBando& rival) {
    int en_septima = 0;
    for (int i = 0; i < propio.ListaTorres.Numero; ++i)
        if (EvaluarUnaTorre<C>(propio.ListaTorres.Casillas[i], propio, rival)) ++en_septima;
    if (en_septima >= 2) {
        propio.Puntos_OP += BONUS_DOSTORRE_SEPTIMA_OP;
        propio.Puntos_EG += BONUS_DOSTORRE_SEPTIMA_EG;
    }
}

}  // namespace

void EvaluarTorreB() {
    EvaluarTorres<BLANCO>(Blancas, Negras);
}
void EvaluarTorreN() {
    EvaluarTorres<NEGRO>(Negras, Blancas);
}
