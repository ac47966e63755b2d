#include "search/See.h"

#include <algorithm>
#include <cassert>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Geometria.h"
#include "board/Movimiento.h"

constexpr int CAPTURAS_BANDO = 20;  // captures of one side in an exchange; a board holds fewer attackers of a square

// The exchange is played out on the squares of the board itself. Nothing else of the position is touched (no key, no
// counters, no history), so making and taking back a capture costs a few stores, and the attack tests of the board work
// as they are. Whoever reads more than squares and kings between SeeHacerMovimiento and SeeDeshacerMovimiento reads
// what stood before.
//
// A capture of the exchange and what it destroys beside the squares that its word names.
struct MovimientoSee {
    std::uint32_t Movimiento;
    int           PosicionReyBlanco;
    int           PosicionReyNegro;
};

static struct {
    int           Numero;
    MovimientoSee Entradas[2 * CAPTURAS_BANDO];
} SeeMove;

void IniciarSee() {
    SeeMove.Numero = 0;
}

static void SeeDeshacerMovimiento() {
    const MovimientoSee& entrada    = SeeMove.Entradas[--SeeMove.Numero];
    const std::uint32_t  movimiento = entrada.Movimiento;

    QuitarPieza(Hasta(movimiento));
    PonerPieza(Desde(movimiento), PiezaMovida(movimiento));
    if (EsCaptura(movimiento)) PonerPieza(Hasta(movimiento), PiezaCapturada(movimiento));
    TableroGlobal.PosicionReyBlanco = entrada.PosicionReyBlanco;
    TableroGlobal.PosicionReyNegro  = entrada.PosicionReyNegro;
}

// Makes a capture of the colour on the squares alone. Returns 0 when its king is then attacked; the caller undoes it.
// The test is made at every step because the exchange itself opens lines: a piece may be pinned now that was free when
// the exchange began, and a king may join in once the last defender is gone.
template <int C>
static int SeeHacerMovimiento(std::uint32_t movimiento) {
    assert(SeeMove.Numero < 2 * CAPTURAS_BANDO);
    SeeMove.Entradas[SeeMove.Numero++] = {movimiento, TableroGlobal.PosicionReyBlanco, TableroGlobal.PosicionReyNegro};

    const int pieza = PiezaMovida(movimiento);
    QuitarPieza(Desde(movimiento));
    if (EsCaptura(movimiento)) QuitarPieza(Hasta(movimiento));
    PonerPieza(Hasta(movimiento), EsCoronacion(movimiento) ? PiezaCoronada(movimiento) : pieza);
    if (pieza == REY<C>) PosicionReyDe<C>() = Hasta(movimiento);
    return C == BLANCO ? !JaqueBlancas(TableroGlobal.PosicionReyBlanco) : !JaqueNegras(TableroGlobal.PosicionReyNegro);
}

// Captures with the piece on origen. Returns the move word, or 0 with the board untouched when the king forbids it.
template <int C>
static std::uint32_t Capturar(int origen, int casilla) {
    const int           pieza      = TableroGlobal.Casillas[origen];
    const bool          corona     = pieza == PEON<C> && FilaRelativa<C>(casilla) == 7;
    const std::uint32_t movimiento = CrearMovimiento(origen, casilla, pieza, TableroGlobal.Casillas[casilla],
                                                     corona ? static_cast<int>(DAMA<C>) : static_cast<int>(NINGUNA));
    if (SeeHacerMovimiento<C>(movimiento)) return movimiento;
    SeeDeshacerMovimiento();
    return 0;
}

template <int C>
static std::uint32_t CapturarConPeon(int casilla) {
    // A pawn stands one diagonal step behind its target. Such a step keeps the colour of the square; when it
    // changes, the step has wrapped round the edge.
    for (const int paso : {7, 9}) {
        const int origen = C == BLANCO ? casilla + paso : casilla - paso;
        if (!EnTablero(origen) || !MismoColor(origen, casilla) || TableroGlobal.Casillas[origen] != PEON<C>) continue;
        if (const std::uint32_t movimiento = Capturar<C>(origen, casilla)) return movimiento;
    }
    return 0;
}

// Captures with a knight or with the king.
template <int C>
static std::uint32_t CapturarConSalto(int pieza, const Saltos& saltos, int casilla) {
    for (int i = 0; i < saltos.Numero; ++i) {
        const int origen = saltos.Casillas[i];
        if (TableroGlobal.Casillas[origen] != pieza) continue;
        if (const std::uint32_t movimiento = Capturar<C>(origen, casilla)) return movimiento;
    }
    return 0;
}

// Looked along anew for each capture: the piece that has just captured may have uncovered another one behind it.
// Where a look from a square ends in each direction: at the first piece, at the edge, or on the square itself when
// it lies on that edge.
struct Rayos {
    int Casillas[DIRECCIONES];
};

static Rayos TrazarRayos(int casilla) {
    Rayos rayos;
    for (int dir = 0; dir < DIRECCIONES; ++dir) {
        int fin = casilla;
        for (int pasos = ALCANCE[static_cast<std::size_t>(casilla)][static_cast<std::size_t>(dir)]; pasos > 0;
             --pasos) {
            fin += PASO[dir];
            if (TableroGlobal.Casillas[fin] != VACIO) break;
        }
        rayos.Casillas[dir] = fin;
    }
    return rayos;
}

template <int C>
static std::uint32_t CapturarConRayo(int pieza, const Rayos& rayos, int primera, int ultima, int casilla) {
    for (int dir = primera; dir <= ultima; ++dir) {
        const int origen = rayos.Casillas[dir];
        if (origen == casilla || TableroGlobal.Casillas[origen] != pieza) continue;
        if (const std::uint32_t movimiento = Capturar<C>(origen, casilla)) return movimiento;
    }
    return 0;
}

// From the cheapest piece to the dearest, since whoever recaptures risks least with the cheapest: with any other order
// the sum of See would tell of an exchange that nobody plays. Within a kind the first one found serves. Bishops are
// asked before rooks, and both before the queen, although one look has found them all.
template <int C>
static std::uint32_t AtaqueMenor(int casilla) {
    if (const auto peon = CapturarConPeon<C>(casilla)) return peon;
    const auto indice = static_cast<std::size_t>(casilla);
    if (const auto caballo = CapturarConSalto<C>(CABALLO<C>, SALTOS_CABALLO[indice], casilla)) return caballo;

    const Rayos   rayos  = TrazarRayos(casilla);
    constexpr int ULTIMA = DIRECCIONES - 1;
    if (const auto alfil = CapturarConRayo<C>(ALFIL<C>, rayos, 0, PRIMERA_RECTA - 1, casilla)) return alfil;
    if (const auto torre = CapturarConRayo<C>(TORRE<C>, rayos, PRIMERA_RECTA, ULTIMA, casilla)) return torre;
    if (const auto dama = CapturarConRayo<C>(DAMA<C>, rayos, 0, ULTIMA, casilla)) return dama;
    return CapturarConSalto<C>(REY<C>, SALTOS_REY[indice], casilla);
}

std::uint32_t Obtener_Ataques_Menores(int casilla, int bando) {
    return bando == BLANCO ? AtaqueMenor<BLANCO>(casilla) : AtaqueMenor<NEGRO>(casilla);
}

int See(std::uint32_t movimiento, int bando) {
    if (!EsCaptura(movimiento)) return 0;
    assert(TableroGlobal.Casillas[Hasta(movimiento)] != VACIO && TableroGlobal.Casillas[Desde(movimiento)] == VACIO);
    assert(bando == (EsBlanca(PiezaMovida(movimiento)) ? NEGRO : BLANCO));
    IniciarSee();

    // Value of the first captured piece, then by turns of the piece that bando takes and of the one retaken.
    int ganancias[2 * CAPTURAS_BANDO + 1];
    int numero          = 0;
    ganancias[numero++] = VALOR_PIEZA[static_cast<std::size_t>(PiezaCapturada(movimiento))];

    const int casilla    = Hasta(movimiento);
    int       recapturas = 0;
    for (int turno = 0; turno < CAPTURAS_BANDO; ++turno) {
        const std::uint32_t captura = Obtener_Ataques_Menores(casilla, bando);
        if (captura == 0) break;
        ganancias[numero++] = -VALOR_PIEZA[static_cast<std::size_t>(PiezaCapturada(captura))];

        const std::uint32_t recaptura = Obtener_Ataques_Menores(casilla, bando == BLANCO ? NEGRO : BLANCO);
        if (recaptura == 0) break;
        ganancias[numero++] = VALOR_PIEZA[static_cast<std::size_t>(PiezaCapturada(recaptura))];
        ++recapturas;
    }
    // Last made, first undone: the same square changes hands each time.
    while (SeeMove.Numero > 0) SeeDeshacerMovimiento();

    // Both sides are taken to go on as long as they can; nobody stops early, as a full exchange evaluation would let
    // them. In return only as many gains count, beside the first one, as there were recaptures: a long exchange is
    // judged by its first half, and without a recapture the first gain stands alone. The two errors offset one another,
    // and the callers' thresholds at 0 are made for this sum.
    int suma = 0;
    for (int i = 0; i <= recapturas; ++i) suma += ganancias[i];
    return suma;
}
