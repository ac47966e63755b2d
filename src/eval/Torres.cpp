// Rooks.
#include <array>

#include "board/HacerMovimiento.h"
#include "board/Movimiento.h"
#include "eval/Conjuntos.h"
#include "eval/Espejo.h"
#include "eval/Par.h"
#include "eval/Terminos.h"
#include "eval/Tropismo.h"
#include "search/See.h"

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
constexpr Par BONUS_TORRE_ABIERTO          = {14, 14};
constexpr Par BONUS_FRENTE_A_DAMA          = {5, 5};  // the first piece on the rook's file is the enemy queen
constexpr Par BONUS_TORRE_SEMI_ABIERTA     = {7, 7};  // half-open file: for an enemy pawn in sight
constexpr Par BONUS_TORRE_SEMI_DEFENDIDA   = {5, 5};  // ... that a pawn protects
constexpr Par BONUS_TORRE_SEPTIMA          = {16, 32};
constexpr Par BONUS_DOSTORRE_SEPTIMA       = {8, 16};     // for the pair
constexpr Par PENALIZACION_TORRE_ATRAPADA  = {100, 100};  // shut in by a bishop
constexpr Par PENALIZACION_TORRE_ATRAPADA2 = {180, 180};  // shut in by a pawn
constexpr Par TROPISMO_TORRE               = {2, 1};      // weight of the nearness to the enemy king

// Attack on the enemy king, in units of Ataque_Valor.
constexpr int PESO_ZONA_REY     = 9;   // for each square of the king's zone; a check counts once more
constexpr int PESO_JAQUE_ATAQUE = 24;  // a check that also attacks a piece worth taking

// Opening values by squares reached, then the endgame values.
static constexpr std::array<int, 32> CalcularMovilidad() {
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

static Vista Mirar(int torre) {
    const Conjunto todas = AtaquesDePieza[torre];
    return {torre, todas & ColumnaEntera(Columna(torre)), todas};
}

// Defended own pieces and attacked enemy ones, for the other terms.
template <int C>
static void AnotarContactos(const Vista& vista) {
    BandoDe<C>().Defensa |= vista.Todas & Conjuntos[C].Todas;
    BandoDe<C>().Objetivos |= vista.Todas & Conjuntos[RIVAL<C>].Todas;
}

// Is there a piece that the rook, were it its turn, would win or exchange? Each capture is tried on the board.
template <int C>
static bool GanaAlgo(int torre, Conjunto presas) {
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

// A check that attacks a second piece worth taking, with an own queen to follow it up. A move made with Ply at the last
// row of the undo stack could not be taken back, so there nothing is tried.
template <int C>
static void EvaluarTorreExtra(const Vista& vista) {
    const ConjuntosBando& rivales = Conjuntos[RIVAL<C>];
    const Conjunto        presas  = vista.Todas & rivales.Todas & ~rivales.Rey;
    if ((vista.Todas & rivales.Rey) == 0 || presas == 0 || BandoDe<C>().Damas == 0) return;
    if (TableroGlobal.Ply >= PLIES_MAX - 1) return;
    if (GanaAlgo<C>(vista.Torre, presas)) SumarAtaque<C>(PESO_JAQUE_ATAQUE, 1);
}
static void EvaluarTorreBExtra(const Vista& vista) {
    EvaluarTorreExtra<BLANCO>(vista);
}
static void EvaluarTorreNExtra(const Vista& vista) {
    EvaluarTorreExtra<NEGRO>(vista);
}

// Attacked squares beside the enemy king and the king itself, which counts twice.
template <int C>
static void AnotarAtaqueTorre(const Vista& vista) {
    const int      rey    = PosicionReyDe<RIVAL<C>>();
    const Conjunto zona   = ATAQUES_REY[static_cast<std::size_t>(rey)] | (Bit(rey) & Ocupadas);
    const int      numero = Cuantas(vista.Todas & zona);
    SumarAtaque<C>(PESO_ZONA_REY, numero + Cuantas(vista.Todas & Conjuntos[RIVAL<C>].Rey));
    BandoDe<C>().Ataque_Numero += numero != 0 ? 1 : 0;
}

template <int C>
static void EvaluarPeonALaVista(int peon) {
    const bool defendido = Contiene(Conjuntos[RIVAL<C>].Ataque_Peones, peon);
    Sumar<C>(defendido ? BONUS_TORRE_SEMI_DEFENDIDA : BONUS_TORRE_SEMI_ABIERTA);
}

// Open and half-open files. On a half-open one the first enemy pawn in each direction counts, whatever stands between.
template <int C>
static void EvaluarColumna(int torre) {
    const auto     casilla = static_cast<std::size_t>(torre);
    const Conjunto columna = ColumnaEntera(Columna(torre));
    const Conjunto rivales = Conjuntos[RIVAL<C>].Peones & columna;
    if ((Conjuntos[C].Peones & columna) != 0) return;
    if (rivales == 0) {
        Sumar<C>(BONUS_TORRE_ABIERTO);
        return;
    }

    const Conjunto hacia_8 = rivales & RAYOS[casilla][DIR_MENOS_8];
    const Conjunto hacia_1 = rivales & RAYOS[casilla][DIR_MAS_8];
    if (hacia_8 != 0) EvaluarPeonALaVista<C>(PrimerObstaculo<DIR_MENOS_8>(hacia_8));
    if (hacia_1 != 0) EvaluarPeonALaVista<C>(PrimerObstaculo<DIR_MAS_8>(hacia_1));
}

// A rook that has strayed in front of an enemy rook's pawn and cannot leave along its rank.
template <int C>
static void EvaluarAtrapada(int torre) {
    int carcelero = VACIO;
    if (torre == En<C>("h2") && TableroGlobal.Casillas[En<C>("h3")] == PEON<RIVAL<C>>)
        carcelero = TableroGlobal.Casillas[En<C>("g2")];
    if (torre == En<C>("a2") && TableroGlobal.Casillas[En<C>("a3")] == PEON<RIVAL<C>>)
        carcelero = TableroGlobal.Casillas[En<C>("b2")];
    if (carcelero == ALFIL<RIVAL<C>>) Sumar<C>(PENALIZACION_TORRE_ATRAPADA, -1);
    if (carcelero == PEON<RIVAL<C>>) Sumar<C>(PENALIZACION_TORRE_ATRAPADA2, -1);
}

// On the seventh rank the rook cuts the enemy king off, or waits for the pawns that will promote behind it: the
// pawns that count are those on the enemy's own seventh rank.
template <int C>
static bool DominaSeptima(int torre) {
    return FilaRelativa<C>(torre) == 6 &&
           (FilaRelativa<C>(PosicionReyDe<RIVAL<C>>()) == 7 || BandoDe<RIVAL<C>>().Peones_Septima > 0);
}

// Returns whether the rook counts for the pair on the seventh rank.
template <int C>
static bool EvaluarTorre(int torre) {
    const Vista vista = Mirar(torre);
    AnotarContactos<C>(vista);
    AnotarAtaqueTorre<C>(vista);
    if constexpr (C == BLANCO)
        EvaluarTorreBExtra(vista);
    else
        EvaluarTorreNExtra(vista);

    const auto movilidad = static_cast<std::size_t>(Cuantas(vista.Todas & ~Conjuntos[C].Peones));
    SumarMovilidad<C>(BONUS_TORRE_MOVILIDAD[movilidad], BONUS_TORRE_MOVILIDAD[MOVILIDAD_EG + movilidad]);
    SumarTropismo<C>(TROPISMO_TORRE, TROPISMO_DISTANCIA[torre][PosicionReyDe<RIVAL<C>>()]);
    Sumar<C>(PST_R_OP[torre + MITAD<C>], PST_R_EG[torre]);
    Sumar<C>(BONUS_FRENTE_A_DAMA, Cuantas(vista.Vertical & Conjuntos[RIVAL<C>].Damas));
    EvaluarColumna<C>(torre);
    EvaluarAtrapada<C>(torre);

    const bool septima = DominaSeptima<C>(torre);
    if (septima) Sumar<C>(BONUS_TORRE_SEPTIMA);
    return septima;
}

template <int C>
static void EvaluarTorres() {
    int en_septima = 0;
    for (Conjunto torres = Conjuntos[C].Torres; torres != 0;)
        if (EvaluarTorre<C>(SacarCasillaEnOrden<C>(torres))) ++en_septima;
    if (en_septima >= 2) Sumar<C>(BONUS_DOSTORRE_SEPTIMA);
}

void EvaluarTorreB() {
    EvaluarTorres<BLANCO>();
}
void EvaluarTorreN() {
    EvaluarTorres<NEGRO>();
}
