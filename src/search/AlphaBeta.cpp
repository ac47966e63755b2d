#include "search/AlphaBeta.h"

#include <algorithm>
#include <cassert>
#include <cmath>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Comprobacion.h"
#include "board/Conjunto.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/Geometria.h"
#include "board/HacerMovimiento.h"
#include "board/Movimiento.h"
#include "board/Puntuacion.h"
#include "board/Tablero.h"
#include "eval/Evaluar.h"
#include "search/Historico.h"
#include "search/Informe.h"
#include "search/LineaPrincipal.h"
#include "search/Orden.h"
#include "search/Quiescencia.h"
#include "search/See.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"
#include "uci/ComprobarTiempo.h"

// Margins in centipawns by remaining depth.
constexpr int RAZOR_MARGIN[]     = {0, 300, 360, 420, 480};
constexpr int STAT_NULL_MARGIN[] = {0, 120, 240, 360};

// Depths in plies.
constexpr int PROFUNDIDAD_RAZOR     = 4;  // razoring up to this depth
constexpr int PROFUNDIDAD_ESTATICA  = 3;  // reverse futility up to this depth
constexpr int PROFUNDIDAD_NULO      = 2;  // null move from this depth on
constexpr int PROFUNDIDAD_INTERNA   = 7;  // internal deepening from this depth on
constexpr int REDUCCION_INTERNA     = 2;
constexpr int ITERACION_CON_TABLA   = 3;  // from this iteration on the root trusts the table for its first move
constexpr int PROFUNDIDAD_SIN_JAQUE = 7;  // null-window nodes this deep do not extend checks
constexpr int PROFUNDIDAD_FUTIL     = 6;  // futility pruning up to this depth
constexpr int PROFUNDIDAD_TARDIA    = 3;  // late-move pruning up to this depth
constexpr int PROFUNDIDAD_LMR       = 3;  // late-move reductions from this depth on
constexpr int PROFUNDIDAD_SEE       = 2;  // exchange reductions from this depth on

constexpr int MARGEN_FUTIL       = 50;  // centipawns, once and for each ply of depth
constexpr int TRANQUILOS_POR_PLY = 3;   // quiet moves for each ply of depth before late ones are pruned
constexpr int JUGADAS_ENTERAS    = 3;   // the first moves are never reduced

constexpr int NUMERO_CRECE = 63;  // from this move number on the late-move reduction no longer grows

int lmr[LMR_FILAS][LMR_COLUMNAS];

// A node as its stations share it.
struct Nodo {
    int           Profundidad;
    int           Alfa;  // raised by the moves of the node
    int           Beta;
    int           EnJaque;  // EstadoJaque
    int           Ply;
    bool          VentanaNula;
    int           Evaluacion;  // static score; -VALOR_INFINITO where none is made
    std::uint32_t MovTabla;    // hash move, 0 = none
    int           Legales;     // legal moves met
    int           Tranquilos;  // of these, quiet ones that nothing recommends
    int           Mejor;
    std::uint32_t MejorMovimiento;
};

// A move just made, as the child's depth depends on it.
struct Jugada {
    std::uint32_t Movimiento;
    int           DaJaque;      // EstadoJaque of the opponent
    int           Profundidad;  // of the child, reduction included
    int           Reduccion;
};

// Pruning and reducing stop where a mate is at stake.
static bool LejosDelMate(const Nodo& nodo) {
    return nodo.Alfa > -UMBRAL_MATE && nodo.Beta < UMBRAL_MATE;
}

// Has the side to move a piece beside king and pawns? Without one, zugzwang makes the null move unsound.
static bool FigurasAdversarioNull() {
    const RegistroBando& propio = TableroGlobal.Turno == BLANCO ? Blancas : Negras;
    return propio.Caballos + propio.Alfiles + propio.Torres + propio.Damas > 0;
}

static bool HayPeonEnSeptima() {
    return TableroGlobal.Turno == BLANCO ? (CasillasCon(PEON_B) & FilaEntera<BLANCO>(6)) != 0
                                         : (CasillasCon(PEON_N) & FilaEntera<NEGRO>(6)) != 0;
}

static bool ExtensionPeonEnSeptima(std::uint32_t movimiento) {
    const int fila = Fila(Hasta(movimiento));
    return (PiezaMovida(movimiento) == PEON_B && fila == 1) || (PiezaMovida(movimiento) == PEON_N && fila == 6);
}

// Depth that a null move leaves. The deeper the node, the larger the share that is saved.
static int ProfundidadTrasNulo(int profundidad) {
    return profundidad - (67 * profundidad + 823) / 256;
}

// Gives the turn back. Nothing but the turn, the en-passant square and the clock has changed, so no move is undone.
static void CancelarNull() {
    DeshacerMovimientoNull();
}

// Searches what follows when the side to move passes, for the side to move.
static int BuscarNulo(const Nodo& nodo, int profundidad) {
    assert(nodo.Ply > 0 && nodo.EnJaque == SIN_JAQUE);  // a side in check that passes loses its king
    HacerMovimientoNull();
    const int puntos = profundidad < 1
                           ? -AlphaBeta_Qs(-nodo.Beta, 1 - nodo.Beta, SIN_JAQUE, VENTANA_NULA, PRIMER_NIVEL)
                           : -AlphaBeta_Pv(profundidad, -nodo.Beta, 1 - nodo.Beta, SIN_JAQUE, SIN_NULO, SIN_PREVIO);
    CancelarNull();
    return puntos;
}

// Null move (Beal, 1989): a position that is good enough although the opponent moves twice needs no full search.
// Returns true when that decides the node, or the search was stopped.
static bool PodaNula(const Nodo& nodo, int* puntos) {
    const int profundidad = ProfundidadTrasNulo(nodo.Profundidad);
    if (DesaconsejaNulo(nodo.Alfa, nodo.Beta, profundidad)) return false;
    *puntos = BuscarNulo(nodo, profundidad);
    if (TipoJuego.Parar == 1) {
        *puntos = 0;
        return true;
    }
    if (*puntos < nodo.Beta) return false;
    if (EsPuntuacionMate(*puntos)) *puntos = nodo.Beta;  // a mate by moving twice proves no mate
    return true;
}

// Razoring (Birmingham and Kent, 1977): far below beta near the horizon, only captures can help; when they do not,
// the node is given up. Returns as PodaNula.
static bool PodaRazor(const Nodo& nodo, int* puntos) {
    const int limite = nodo.Beta - RAZOR_MARGIN[nodo.Profundidad];
    if (nodo.Evaluacion >= limite) return false;
    *puntos = AlphaBeta_Qs(nodo.Alfa, nodo.Beta, SIN_JAQUE, VENTANA_NULA, PRIMER_NIVEL);
    if (TipoJuego.Parar == 1) {
        *puntos = 0;
        return true;
    }
    return *puntos < limite;
}

// The prunings that rest on the static evaluation. Returns true with the node's score in *puntos when one of them
// decides it.
static bool PodaEstatica(const Nodo& nodo, int sin_nulo, int* puntos) {
    const int profundidad = nodo.Profundidad;
    // Reverse futility: so far above beta that no reply near the horizon takes it back.
    if (profundidad <= PROFUNDIDAD_ESTATICA && nodo.Evaluacion - STAT_NULL_MARGIN[profundidad] > nodo.Beta) {
        *puntos = nodo.Evaluacion - STAT_NULL_MARGIN[profundidad];
        return true;
    }
    if (sin_nulo == SIN_NULO) return false;
    if (profundidad >= PROFUNDIDAD_NULO && nodo.Evaluacion >= nodo.Beta && FigurasAdversarioNull() &&
        PodaNula(nodo, puntos))
        return true;
    return profundidad <= PROFUNDIDAD_RAZOR && nodo.MovTabla == 0 && !HayPeonEnSeptima() && PodaRazor(nodo, puntos);
}

// Is there a reason of its own to try this move early?
static bool EsRecomendado(const Nodo& nodo, std::uint32_t movimiento) {
    return movimiento == nodo.MovTabla || EsKiller(nodo.Ply, movimiento) || EsKillerMate(nodo.Ply, movimiento);
}

// A quiet move without recommendation that has failed more often than not.
static bool EsSospechoso(const Nodo& nodo, std::uint32_t movimiento) {
    return EsTranquilo(movimiento) && Historico_Bueno[PiezaMovida(movimiento)][Hasta(movimiento)] < 0 &&
           !EsRecomendado(nodo, movimiento);
}

static int ProfundidadConExtensiones(const Nodo& nodo, const Jugada& jugada) {
    int profundidad = nodo.Profundidad - 1;
    if (nodo.Ply == 0) return profundidad;
    if (jugada.DaJaque == EN_JAQUE && !(nodo.VentanaNula && nodo.Profundidad >= PROFUNDIDAD_SIN_JAQUE)) ++profundidad;
    if (!nodo.VentanaNula && ExtensionPeonEnSeptima(jugada.Movimiento)) ++profundidad;
    return profundidad;
}

// Futility and late-move pruning of a move already made.
static bool EsPodable(const Nodo& nodo, const Jugada& jugada) {
    if (!nodo.VentanaNula || nodo.EnJaque == EN_JAQUE || jugada.DaJaque == EN_JAQUE || !LejosDelMate(nodo))
        return false;
    if (!EsSospechoso(nodo, jugada.Movimiento)) return false;
    if (nodo.Profundidad <= PROFUNDIDAD_FUTIL && nodo.Legales != 1 &&
        nodo.Evaluacion + MARGEN_FUTIL + MARGEN_FUTIL * nodo.Profundidad < nodo.Beta)
        return true;
    return nodo.Profundidad <= PROFUNDIDAD_TARDIA && nodo.Tranquilos > TRANQUILOS_POR_PLY * nodo.Profundidad;
}

// Both late moves and deep nodes bear more; the logarithms let the reduction grow slowly with either.
static int CalcularReduccion(int profundidad, int numero) {
    const double valor = std::log(profundidad) * std::log(std::min(numero, NUMERO_CRECE)) * 0.5;
    if (!std::isfinite(valor) || valor < 1.0) return 0;
    return static_cast<int>(std::min(valor, profundidad - 1.0));  // at least one ply is left to search
}

void IniciarLmr() {
    for (int profundidad = 0; profundidad < LMR_FILAS; ++profundidad)
        for (int numero = 0; numero < LMR_COLUMNAS; ++numero)
            lmr[profundidad][numero] = CalcularReduccion(profundidad, numero);
}

int ReduccionLmr(int profundidad, int numero) {
    return lmr[std::min(profundidad, LMR_FILAS - 1)][std::min(numero, LMR_COLUMNAS - 1)];
}

// Late-move reduction in plies, 0 = none. A child that stays deep enough loses one ply more.
static int HistoricoValorReduccion(const Nodo& nodo, const Jugada& jugada) {
    if (nodo.Profundidad < PROFUNDIDAD_LMR || nodo.EnJaque == EN_JAQUE || jugada.DaJaque == EN_JAQUE ||
        nodo.Legales <= JUGADAS_ENTERAS)
        return 0;
    const int reduccion = ReduccionLmr(nodo.Profundidad, nodo.Legales);
    if (reduccion == 0 || EsEnroque(jugada.Movimiento) || !EsSospechoso(nodo, jugada.Movimiento)) return 0;
    return jugada.Profundidad - reduccion > 2 ? reduccion + 1 : reduccion;
}

// A capture, already made, that the exchange on its square shows to lose material.
static bool EsMalaCaptura(const Nodo& nodo, const Jugada& jugada) {
    return nodo.VentanaNula && nodo.Profundidad >= PROFUNDIDAD_SEE && nodo.EnJaque == SIN_JAQUE &&
           jugada.DaJaque == SIN_JAQUE && nodo.Legales > JUGADAS_ENTERAS && LejosDelMate(nodo) &&
           EsCaptura(jugada.Movimiento) && See(jugada.Movimiento, TableroGlobal.Turno) < 0;
}

static int BuscarHijo(const Jugada& jugada, int profundidad, int alfa, int beta) {
    return -AlphaBeta_Pv(profundidad, -beta, -alfa, jugada.DaJaque, CON_NULO, jugada.Movimiento);
}

// The first move is expected to be the best one: it gets the whole window.
static int BuscarPrimera(const Nodo& nodo, const Jugada& jugada) {
    const int puntos = BuscarHijo(jugada, jugada.Profundidad, nodo.Alfa, nodo.Beta);
    if (TipoJuego.Parar == 1 || jugada.Reduccion == 0 || puntos <= nodo.Alfa) return puntos;
    return BuscarHijo(jugada, jugada.Profundidad + jugada.Reduccion, nodo.Alfa, nodo.Beta);
}

// Later moves must only be refuted: a null window does, and what passes it is searched again, first with the whole
// window and then without its reduction. The last search made gives the score.
static int BuscarSiguiente(const Nodo& nodo, const Jugada& jugada) {
    const int alfa   = nodo.Alfa;
    const int beta   = nodo.Beta;
    const int entera = jugada.Profundidad + jugada.Reduccion;
    // A null-window child writes no line: what an earlier move left must not end up behind this one.
    if (!nodo.VentanaNula) pv_line[nodo.Ply + 1][0] = 0;

    int puntos = BuscarHijo(jugada, jugada.Profundidad, alfa, alfa + 1);
    if (TipoJuego.Parar == 1 || puntos <= alfa) return puntos;
    if (puntos < beta) {
        puntos = BuscarHijo(jugada, jugada.Profundidad, alfa, beta);
        if (TipoJuego.Parar == 1 || puntos <= alfa) return puntos;
    }
    if (jugada.Reduccion == 0) return puntos;
    puntos = BuscarHijo(jugada, entera, alfa, alfa + 1);
    if (TipoJuego.Parar == 1 || puntos <= alfa || puntos >= beta) return puntos;
    return BuscarHijo(jugada, entera, alfa, beta);
}

// A move has raised alpha in a node that keeps a line.
static void GuardarLinea(const Nodo& nodo, int indice) {
    if (nodo.VentanaNula) return;
    Actualizar_Pv(nodo.Ply, nodo.MejorMovimiento);
    if (nodo.Ply == 0) Actualizar_Pv_Terminada(indice);
}

// Leaves the moves of "searchmoves" in the root's list; returns their number.
static int FiltrarRaiz(ListaMovimientos& lista, int numero) {
    if (UciCompleto.NumeroRaiz == 0) return numero;
    int quedan = 0;
    for (int i = 0; i < numero; ++i)
        if (std::count(UciCompleto.Raiz, UciCompleto.Raiz + UciCompleto.NumeroRaiz, lista.Entradas[i].Movimiento) != 0)
            lista.Entradas[quedan++] = lista.Entradas[i];
    return quedan;
}

int AlphaBeta_Pv(int profundidad, int alfa, int beta, int en_jaque, int sin_nulo, std::uint32_t previo) {
    assert(alfa < beta);
    assert(profundidad >= 0 && profundidad < PROFUNDIDAD_SIN_LIMITE + PLIES_MAX);  // extensions may outgrow the limit
    assert(previo == SIN_PREVIO || TableroGlobal.Ply > 0);
    COMPROBAR_NODO(en_jaque);

    // 1. Node count.
    ++TipoJuego.Nodos;
    Nodo nodo        = {};
    nodo.Profundidad = profundidad;
    nodo.Alfa        = alfa;
    nodo.Beta        = beta;
    nodo.EnJaque     = en_jaque;
    nodo.Ply         = TableroGlobal.Ply;
    nodo.VentanaNula = beta - 1 == alfa;
    nodo.Evaluacion  = -VALOR_INFINITO;
    nodo.Mejor       = -VALOR_INFINITO;
    const bool raiz  = nodo.Ply == 0;

    // 2. Entry checks. The root must answer a move, so none of them is made there.
    if (!raiz) {
        if (!nodo.VentanaNula) pv_line[nodo.Ply][0] = 0;
        ComprobarTiempo();
        if (TipoJuego.Parar == 1) return 0;
        if (EsTablasPorRegla()) return VALOR_TABLAS;
        // Mate distance: neither side can do better than to mate at the next ply, nor worse than to be mated here.
        nodo.Alfa = std::max(alfa, nodo.Ply - VALOR_MATE);
        nodo.Beta = std::min(beta, VALOR_MATE - nodo.Ply);
        if (nodo.Beta <= nodo.Alfa) return nodo.Alfa;
    }

    // 3. Transposition table. Nodes of the principal variation never cut on it, so that the line stays whole.
    int puntos = -VALOR_INFINITO;
    if (RecuperarPosicion(nodo.Alfa, nodo.Beta, profundidad, &puntos, &nodo.MovTabla) && nodo.VentanaNula)
        return puntos;

    // 4. Tablebases. The distance to mate counts from this node; the plies from the root are deliberately left out.
    if (!raiz && tbprobe_Gaviota.Cargada == 1 && Probar_gtbgaviota(profundidad, &puntos)) return puntos;

    // 5. Horizon. The per-ply tables end at the last ply, so no move is made there.
    if (profundidad < 1 || nodo.Ply >= ULTIMO_PLY)
        return AlphaBeta_Qs(nodo.Alfa, nodo.Beta, en_jaque, nodo.VentanaNula ? VENTANA_NULA : VENTANA_ABIERTA,
                            PRIMER_NIVEL);

    // 6. Hash move of the root: the first iterations go on with the line just found.
    if (raiz && TipoJuego.ProfundidadActual < ITERACION_CON_TABLA)
        nodo.MovTabla = pv_line[0][0] != 0 ? pv_line[0][0] : MovimientoDeTabla();

    // 7. Static pruning, outside the principal variation and out of check.
    if (!raiz && nodo.VentanaNula && en_jaque == SIN_JAQUE) {
        nodo.Evaluacion = Evaluar();
        if (LejosDelMate(nodo) && PodaEstatica(nodo, sin_nulo, &puntos)) return puntos;
    }

    // 8. Internal iterative deepening: a shallower search of this node finds the move to begin with.
    if (!raiz && !nodo.VentanaNula && en_jaque == SIN_JAQUE && nodo.MovTabla == 0 &&
        profundidad >= PROFUNDIDAD_INTERNA) {
        AlphaBeta_Pv(profundidad - REDUCCION_INTERNA, nodo.Alfa, nodo.Beta, SIN_JAQUE, SIN_NULO, SIN_PREVIO);
        if (TipoJuego.Parar == 1) return 0;
        nodo.MovTabla = MovimientoDeTabla();
    }

    // 9. Generation and ordering. Refutations are kept under the move that led to a node, but deliberately looked up
    // under the hash move.
    ListaMovimientos lista;
    int              numero = GenerarMovimientos(GENERAR_TODOS, lista);
    if (raiz) numero = FiltrarRaiz(lista, numero);
    OrdenarMovimientosTodos(numero, nodo.MovTabla, lista, ObtenerRechazado(nodo.MovTabla));

    // 10. The moves.
    for (int i = 0; i < numero; ++i) {
        Jugada jugada     = {};
        jugada.Movimiento = SiguienteMovimiento(lista, i, numero);
        if (!HacerMovimientoConJaque(jugada.Movimiento, en_jaque)) {
            DeshacerMovimiento();
            continue;
        }
        PrecargarTransposicion(TableroGlobal.Key);
        PrecargarCache(TableroGlobal.Key);
        if (EsTranquilo(jugada.Movimiento) && !EsRecomendado(nodo, jugada.Movimiento)) ++nodo.Tranquilos;
        ++nodo.Legales;
        jugada.DaJaque     = TurnoEnJaque();
        jugada.Profundidad = ProfundidadConExtensiones(nodo, jugada);
        if (raiz && TipoJuego.ShowPv == SHOWPV_FULL) ImprimirMovimientoRaiz(jugada.Movimiento, nodo.Legales);

        if (EsPodable(nodo, jugada)) {
            DeshacerMovimiento();
            continue;
        }
        jugada.Reduccion = EsMalaCaptura(nodo, jugada) ? 1 : HistoricoValorReduccion(nodo, jugada);
        jugada.Profundidad -= jugada.Reduccion;

        puntos = nodo.Mejor == -VALOR_INFINITO ? BuscarPrimera(nodo, jugada) : BuscarSiguiente(nodo, jugada);
        DeshacerMovimiento();
        if (TipoJuego.Parar == 1) return 0;

        nodo.Mejor = std::max(nodo.Mejor, puntos);
        if (puntos <= nodo.Alfa) continue;
        nodo.MejorMovimiento = jugada.Movimiento;
        if (puntos < nodo.Beta) {
            nodo.Alfa = puntos;
            GuardarLinea(nodo, i);
            continue;
        }
        if (en_jaque == SIN_JAQUE && EsTranquilo(jugada.Movimiento))
            HistoricoActualizar(profundidad, puntos, jugada.Movimiento, previo, lista, nodo.Legales);
        GuardarLinea(nodo, i);
        if (raiz) break;
        AlmacenarPosicion(profundidad, puntos, COTA_INFERIOR, jugada.Movimiento);
        return puntos;
    }

    // 11. Mate, stalemate, or the best move's score. Neither of the first two is stored.
    if (nodo.Legales == 0) return en_jaque == EN_JAQUE ? nodo.Ply - VALOR_MATE : VALOR_TABLAS;
    if (raiz) RecuperarMejorRaiz();
    if (raiz && UciCompleto.NumeroRaiz != 0) return nodo.Mejor;  // not the value of the position
    const int cota = nodo.Mejor <= alfa ? COTA_SUPERIOR : nodo.Mejor >= nodo.Beta ? COTA_INFERIOR : COTA_EXACTA;
    AlmacenarPosicion(profundidad, nodo.Mejor, cota, nodo.MejorMovimiento);
    return nodo.Mejor;
}
