#include "uci/Banco.h"

#include <cinttypes>
#include <cstdint>

#include "board/EstadoMotor.h"
#include "board/Posicion.h"
#include "plataforma/Entrada.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "search/Buscar.h"
#include "uci/Arranque.h"

// Arguments of "position". Changing one changes the signature of every build.
static const char* const POSICIONES[] = {
    // Openings.
    "fen r1bqk2r/2ppbppp/p1n2n2/1p2p3/4P3/1B3N2/PPPP1PPP/RNBQR1K1 b kq - 1 7",
    "fen rnbqkb1r/1p2pppp/p2p1n2/8/3NP3/2N5/PPP2PPP/R1BQKB1R w KQkq - 0 6",
    "fen rnbq1rk1/ppp1ppbp/3p1np1/8/2PPP3/2N2N2/PP3PPP/R1BQKB1R w KQ - 2 6",
    "fen rnbqk2r/ppp1bppp/4pn2/3p2B1/2PP4/2N1P3/PP3PPP/R2QKBNR b KQkq - 0 5",
    "fen r1b1kbnr/pp3ppp/1qn1p3/2ppP3/3P4/2P2N2/PP3PPP/RNBQKB1R w KQkq - 3 6",
    "fen rn1qkbnr/pp2ppp1/2p3bp/8/3P3P/6N1/PPP2PP1/R1BQKBNR w KQkq - 0 7",
    "fen r1bqkbnr/pp3ppp/2n5/2ppp3/8/5NP1/PPPPPPBP/RNBQ1RK1 w kq - 0 5",
    "fen rnbqkbnr/pppp1p1p/8/6p1/4Pp2/5N2/PPPP2PP/RNBQKB1R w KQkq - 0 4",
    "fen rnbq1rk1/pppp1ppp/4pn2/8/2PP4/P1Q5/1P2PPPP/R1B1KBNR b KQ - 0 6",
    // Middlegames.
    "fen r1q1k2r/1bpnbpp1/p2p3p/1p2p3/1P2P3/2PPBN1P/1P3PP1/RN1QR1K1 w kq - 1 14",
    "fen r3k2r/1p2b2p/pqbppnp1/8/4P1B1/2N5/PPP3PP/R1BQ1RK1 w kq - 2 14",
    "fen 2kr3r/1p1b2B1/p3p3/3pP2p/1b6/2NQ4/PqP3PP/R4R1K w - - 2 21",
    "fen r1br2k1/1p1n1pbp/p1n1p1pB/q1p5/2P1P3/2NB1N1P/PP3PP1/R1QR2K1 w - - 2 14",
    "fen r1bq2kb/1p1n1p1p/p5pB/2pN4/2Ppr3/P5QP/1P2BPP1/R2R2K1 w - - 0 21",
    "fen r1bn1rk1/pp2qpp1/2p2n1p/3p4/3P1N2/2N1P3/PP3PPP/2RQKB1R w K - 0 14",
    "fen 3r4/1p2qpk1/p1p3p1/3p1n2/P2Pr2p/1PQ1P2P/5PP1/4RRNK w - - 1 31",
    "fen r1bq1rk1/pp3ppp/2n1p3/3pP3/N2P2Pb/4B3/PP2BP1P/R2Q1RK1 w - - 0 14",
    "fen rn3rk1/ppq2ppn/2pbp2p/7P/3PN3/2P2N2/PPQ2PP1/R1B1K2R w KQ - 4 14",
    "fen r5k1/pp1n1rPn/2p5/3q1p1P/3p4/2P2N1R/PPQB1P2/R3K3 w Q - 0 21",
    "fen r1bqk2r/1pp3b1/1n3pp1/p2np2p/7P/1PNPBNP1/PQ2PPB1/R3K2R w KQkq - 2 14",
    "fen 1rbq1rk1/1pb1npp1/2n4p/p1p1p3/P1N5/3P2P1/1PPN1PBP/R1BQ1RK1 w - - 3 14",
    "fen 5r1k/1p4p1/5r1p/p6Q/P1PpBP2/3P2P1/1qP3K1/R7 w - - 7 31",
    "fen r2qr1k1/pppn1ppp/8/2PP3b/2n1P3/2PQ1N1P/P4PP1/RNB1R1K1 w - - 3 14",
    "fen r1b1qrk1/6pp/1ppb4/p3p3/8/PP1QP1P1/1BP2P1P/R3R1K1 w - - 0 21",
    "fen rnb1k1r1/ppp2p2/1b1p3p/3N2p1/1P2Pp2/5NnP/PBPP3R/R3KB2 w Qq - 2 14",
    "fen 1rq1r1k1/5ppp/2n5/ppP5/2b1p3/P3Q1P1/1P1B1PBP/R3R1K1 w - - 0 21",
    // Endgames.
    "fen 5R2/6pk/p3q2p/1p6/1P2p3/2P5/bP1K1Q2/8 b - - 19 43",
    "fen 8/5pk1/pQr3p1/P1q5/7p/5P1P/6PK/1R6 w - - 3 56",
    "fen 2Rb4/1p1k3p/p3p3/3pPr2/3B1p2/5K2/PP5P/8 w - - 8 31",
    "fen 8/1p2R3/p1k5/3p4/4p2P/7r/PP1K4/8 b - - 5 43",
    "fen 5n1k/pp4r1/8/2p2N1R/8/1PP5/1P3P2/2K5 b - - 5 43",
    "fen 5n2/8/1pN5/p1p5/2P1KP2/1P4k1/1P6/8 w - - 8 56",
    "fen r3Nk2/p3R2p/1p4p1/2nP4/8/2P2P1P/P5P1/1R4K1 w - - 2 31",
    "fen 8/1rB5/1Pb5/2P3p1/p3p2p/P2kP2P/5PK1/1R6 w - - 1 56",
    "fen 3r4/1pp3k1/1n2p2p/pP2p3/P3B1pP/2P3p1/3P1b2/R1B2K2 w - - 7 31",
    "fen 1r6/3k1b2/8/6np/1p5R/6P1/1P2BP1P/5K2 w - - 2 56",
    "fen 8/8/1p6/p6R/P2p4/3kpr2/1P6/4K3 w - - 0 56",
    "fen 8/pp3k2/2p2p2/3p1Pp1/1P1P2P1/P1P2K2/8/8 w - - 0 1",
    "fen 1K1k4/1P6/8/8/8/8/r7/2R5 w - - 0 1",
    "fen 8/8/8/4k3/8/2K5/3R4/7r b - - 0 1",
};

// Limits of "go depth" without its clocks, options and replies.
static void LimitarBanco(int profundidad) {
    TipoJuego.ShowPv            = SHOWPV_NONE;
    TipoJuego.Infinito          = 0;
    TipoJuego.LimiteTiempo      = 0;
    TipoJuego.ProfundidadLimite = profundidad + 1;
    TipoJuego.TiempoInicio      = ObtenerMilisegundos();
}

struct Recuento {
    std::uint64_t Nodos;
    std::uint64_t Tiempo;  // milliseconds of searching; emptying the tables is not counted
};

static Recuento BuscarPosicion(const char* posicion, int profundidad) {
    UciNewGame();
    Position_Fen_Startpos(posicion);
    LimitarBanco(profundidad);
    BuscarIterativo();
    const Recuento recuento{TipoJuego.Nodos, ObtenerMilisegundos() - TipoJuego.TiempoInicio};
    TerminarBusqueda();
    return recuento;
}

int EjecutarBanco(int profundidad) {
    AbandonarEntrada();  // a line that waits must not stop a search
    Recuento total{0, 1};
    int      numero = 0;
    for (const char* posicion : POSICIONES) {
        const Recuento recuento = BuscarPosicion(posicion, profundidad);
        Imprimir("%2d %10" PRIu64 "  %s\n", ++numero, recuento.Nodos, posicion);
        total.Nodos += recuento.Nodos;
        total.Tiempo += recuento.Tiempo;
        if (Salir != 0) return 0;
    }
    Imprimir("%" PRIu64 " nodes %" PRIu64 " nps\n", total.Nodos, total.Nodos * 1000 / total.Tiempo);
    return 1;
}
