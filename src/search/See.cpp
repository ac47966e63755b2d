#include "search/See.h"

#include <algorithm>
#include <cassert>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Conjunto.h"
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

// Captures with one of the pawns that attack casilla: seven squares away before nine.
template <int C>
static std::uint32_t CapturarConPeon(Conjunto peones, int casilla) {
    while (peones != 0)
        if (const std::uint32_t movimiento = Capturar<C>(SacarCasillaEnOrden<RIVAL<C>>(peones), casilla))
            return movimiento;
    return 0;
}

// Captures with one of the knights, or the king, that attack casilla, in the order of their jumps.
template <int C>
static std::uint32_t CapturarConSalto(Conjunto piezas, const Saltos& saltos, int casilla) {
    if (piezas == 0) return 0;
    for (int i = 0; i < saltos.Numero; ++i) {
        const int origen = saltos.Casillas[i];
        if (!Contiene(piezas, origen)) continue;
        if (const std::uint32_t movimiento = Capturar<C>(origen, casilla)) return movimiento;
    }
    return 0;
}

// Captures with one of the pieces that casilla sees along its lines, at most one in each direction, in the order of the
// directions.
template <int C>
static std::uint32_t CapturarConRayo(Conjunto piezas, int casilla) {
    for (std::size_t dir = 0; piezas != 0; ++dir) {
        const Conjunto en_rayo = piezas & RAYOS[static_cast<std::size_t>(casilla)][dir];
        if (en_rayo == 0) continue;
        piezas ^= en_rayo;
        if (const std::uint32_t movimiento = Capturar<C>(Primera(en_rayo), casilla)) return movimiento;
    }
    return 0;
}

// From the cheapest piece to the dearest, since whoever recaptures risks least with the cheapest: with any other order
// the sum of See would tell of an exchange that nobody plays. Within a kind the first one found serves. Bishops are
// asked before rooks, and both before the queen. The lines are looked along anew for each capture, for the piece that
// has just captured may have uncovered another one behind it; but only those on which a piece stands that could use
// them.
template <int C>
static std::uint32_t AtaqueMenor(int casilla) {
    const auto     indice = static_cast<std::size_t>(casilla);
    const Conjunto peones = AtaquesDePeones<RIVAL<C>>(Bit(casilla)) & CasillasCon(PEON<C>);
    if (const auto peon = CapturarConPeon<C>(peones, casilla)) return peon;
    const Conjunto caballos = ATAQUES_CABALLO[indice] & CasillasCon(CABALLO<C>);
    if (const auto caballo = CapturarConSalto<C>(caballos, SALTOS_CABALLO[indice], casilla)) return caballo;

    const Conjunto ocupadas    = CasillasOcupadas();
    Conjunto       en_diagonal = LINEAS_ALFIL[indice] & (CasillasCon(ALFIL<C>) | CasillasCon(DAMA<C>));
    Conjunto       en_recta    = LINEAS_TORRE[indice] & (CasillasCon(TORRE<C>) | CasillasCon(DAMA<C>));
    if (en_diagonal != 0) en_diagonal &= AtaquesDiagonales(casilla, ocupadas);
    if (en_recta != 0) en_recta &= AtaquesRectos(casilla, ocupadas);
    if (const auto alfil = CapturarConRayo<C>(en_diagonal & CasillasCon(ALFIL<C>), casilla)) return alfil;
    if (const auto torre = CapturarConRayo<C>(en_recta & CasillasCon(TORRE<C>), casilla)) return torre;
    if (const auto dama = CapturarConRayo<C>((en_diagonal | en_recta) & CasillasCon(DAMA<C>), casilla)) return dama;
    return CapturarConSalto<C>(ATAQUES_REY[indice] & CasillasCon(REY<C>), SALTOS_REY[indice], casilla);
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
