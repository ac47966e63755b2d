#include "search/Quiescencia.h"

#include <algorithm>
#include <cassert>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Comprobacion.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Puntuacion.h"
#include "board/Tablero.h"
#include "eval/Evaluar.h"
#include "search/LineaPrincipal.h"
#include "search/Orden.h"
#include "search/See.h"
#include "search/Transposicion.h"
#include "uci/ComprobarTiempo.h"

constexpr int MARGEN_DELTA   = 150;  // centipawns that a capture may gain beyond the captured piece
constexpr int PIEZAS_DELTA   = 2;    // with fewer enemy pieces an ending may hang on any pawn: nothing is pruned
constexpr int PROFUNDIDAD_QS = 0;    // depth under which the table keeps these results

static int Valor(int pieza) {
    return VALOR_PIEZA[static_cast<std::size_t>(pieza)];
}

static int PiezasDelRival() {
    const RegistroBando& rival = TableroGlobal.Turno == BLANCO ? Negras : Blancas;
    return rival.Caballos + rival.Alfiles + rival.Torres + rival.Damas;
}

// Delta pruning: even with the captured piece and a margin the side to move stays below alfa.
static bool EsCapturaInutil(std::uint32_t movimiento, int evaluacion, int alfa) {
    return Valor(PiezaCapturada(movimiento)) + MARGEN_DELTA + evaluacion < alfa && PiezasDelRival() >= PIEZAS_DELTA;
}

// A capture, already made, that loses material. Only one by a dearer piece can; minor pieces count as equal to
// anything but a pawn.
static bool EsCapturaPerdedora(std::uint32_t movimiento) {
    const int pieza   = PiezaMovida(movimiento);
    const int captura = PiezaCapturada(movimiento);
    switch (pieza) {
        case PEON_B:
        case PEON_N:
            return false;
        case CABALLO_B:
        case CABALLO_N:
        case ALFIL_B:
        case ALFIL_N:
            if (captura != PEON_B && captura != PEON_N) return false;
            break;
        default:
            if (Valor(captura) >= Valor(pieza)) return false;
    }
    return See(movimiento, TableroGlobal.Turno) < 0;
}

int AlphaBeta_Qs(int alfa, int beta, int en_jaque, int ventana_nula, int primer_nivel) {
    assert(alfa < beta);
    COMPROBAR_NODO(en_jaque);

    // 1. Node count; a line of best play ends where quiescence begins.
    ++TipoJuego.Nodos;
    const int ply = TableroGlobal.Ply;
    if (ply > 0 && ventana_nula == VENTANA_ABIERTA) pv_line[ply][0] = 0;

    // 2. Clock and input.
    ComprobarTiempo();
    if (TipoJuego.Parar == 1) return 0;

    // 3. Draws by rule.
    if (EsTablasPorRegla()) return VALOR_TABLAS;

    // 4. Transposition table. Deeper captures are too many and too short-lived for it; evasions are worth keeping at
    // any level.
    const bool    con_tabla     = en_jaque == EN_JAQUE || primer_nivel == PRIMER_NIVEL;
    const bool    poda_capturas = primer_nivel == NIVEL_HONDO && en_jaque == SIN_JAQUE;
    int           puntos_tabla  = -VALOR_INFINITO;
    std::uint32_t mov_tabla     = 0;
    if (con_tabla && RecuperarPosicion(alfa, beta, PROFUNDIDAD_QS, &puntos_tabla, &mov_tabla) &&
        ventana_nula == VENTANA_NULA)
        return puntos_tabla;

    // 5. The per-ply tables end here.
    if (ply >= ULTIMO_PLY) return Evaluar();

    // 6. Stand pat: the side to move is not forced to capture, so the evaluation is a lower bound. In check there is
    // no such choice, and every evasion is tried.
    int evaluacion = 0;
    int mejor      = -VALOR_INFINITO;
    int alfa_nodo  = alfa;
    if (en_jaque == SIN_JAQUE) {
        evaluacion = Evaluar();
        if (evaluacion >= beta) return evaluacion;
        mejor     = evaluacion;
        alfa_nodo = std::max(alfa, evaluacion);
    }
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(en_jaque == SIN_JAQUE ? GENERAR_CAPTURAS : GENERAR_TODOS, lista);
    OrdenarMovimientosTodos(numero, mov_tabla, lista, 0);

    // 7. The moves.
    std::uint32_t mejor_movimiento = 0;
    for (int i = 0; i < numero; ++i) {
        const std::uint32_t movimiento = SiguienteMovimiento(lista, i, numero);
        const bool          podable    = poda_capturas && (EsCaptura(movimiento) || EsAlPaso(movimiento));
        // The bound is the one that this node was given, not the one that its moves have raised since.
        if (podable && EsCapturaInutil(movimiento, evaluacion, alfa)) continue;

        if (!HacerMovimientoConJaque(movimiento, en_jaque) || (podable && EsCapturaPerdedora(movimiento))) {
            DeshacerMovimiento();
            continue;
        }
        PrecargarCache(TableroGlobal.Key);
        const int puntos = -AlphaBeta_Qs(-beta, -alfa_nodo, TurnoEnJaque(), ventana_nula, NIVEL_HONDO);
        DeshacerMovimiento();
        if (TipoJuego.Parar == 1) return 0;

        mejor = std::max(mejor, puntos);
        if (puntos <= alfa_nodo) continue;
        if (puntos >= beta) {
            if (con_tabla) AlmacenarPosicion(PROFUNDIDAD_QS, puntos, COTA_INFERIOR, movimiento);
            return puntos;
        }
        alfa_nodo        = puntos;
        mejor_movimiento = movimiento;
    }

    // 8. Mate, or the best of what was tried.
    if (mejor == -VALOR_INFINITO) return en_jaque == EN_JAQUE ? ply - VALOR_MATE : VALOR_TABLAS;
    if (con_tabla)
        AlmacenarPosicion(PROFUNDIDAD_QS, mejor, mejor_movimiento != 0 ? COTA_EXACTA : COTA_SUPERIOR, mejor_movimiento);
    return mejor;
}
