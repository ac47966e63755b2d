#include "search/Buscar.h"

#include <algorithm>
#include <cstring>

#include "board/Ataques.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Movimiento.h"
#include "board/Puntuacion.h"
#include "eval/Evaluar.h"
#include "plataforma/Reloj.h"
#include "search/AlphaBeta.h"
#include "search/Historico.h"
#include "search/Informe.h"
#include "search/LineaPrincipal.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"

constexpr int PROFUNDIDAD_ASPIRACION = 7;               // iterations from here on start with a narrow window
constexpr int ASPIRACIONES[]         = {25, 100, 400};  // half-widths of its tries, centipawns
constexpr int SALTO_PUNTOS           = 100;             // a larger change between iterations is labelled

static int LineaImpresa = 0;  // 1 once this search has printed an "info" line

void Iniciar_Busqueda() {
    IniciarLmr();
}

static void LimpiarEstadoBusqueda() {
    LimpiarLineas();
    LimpiarHistorico();
}

void LimpiarBusqueda() {
    LimpiarEstadoBusqueda();
    LimpiarTransposicion();
}

// Returns whether the side to move is in check.
static int InicioBusqueda() {
    TableroGlobal.Ply           = 0;
    TipoJuego.TiempoInicio      = ObtenerMilisegundos();
    TipoJuego.ProfundidadActual = 1;
    TipoJuego.ProfundidadLimite = std::clamp(TipoJuego.ProfundidadLimite, 1, PROFUNDIDAD_SIN_LIMITE);
    TipoJuego.MejorMovimiento   = 0;
    TipoJuego.MovimientoPonder  = 0;
    LineaImpresa                = 0;
    Iniciar_Asimetrico();
    return TurnoEnJaque();
}

static int Iniciar_AlphaBeta(int profundidad, int alfa, int beta, int en_jaque) {
    IndiceMejorRaiz = -1;
    return AlphaBeta_Pv(profundidad, alfa, beta, en_jaque, CON_NULO, SIN_PREVIO);
}

// Aspiration windows: the score is expected near that of the iteration before. The window widens around that score
// while it is missed, and a mate ends the attempt, since its distance lies outside any such window.
static int AspirationWindows(int profundidad, int anterior, int en_jaque) {
    for (const int margen : ASPIRACIONES) {
        const int puntos = Iniciar_AlphaBeta(profundidad, anterior - margen, anterior + margen, en_jaque);
        if (TipoJuego.Parar == 1) return 0;
        if (puntos > anterior - margen && puntos < anterior + margen) return puntos;
        if (EsPuntuacionMate(puntos)) break;
    }
    return Iniciar_AlphaBeta(profundidad, -VALOR_INFINITO, VALOR_INFINITO, en_jaque);
}

static bool MateHallado(int puntos) {
    return UciCompleto.MateBuscado != 0 && puntos > VALOR_MATE - 2 * UciCompleto.MateBuscado;
}

static int BuscarRaiz(int profundidad, int anterior, int en_jaque) {
    // In a window of mates nothing is pruned, and what is longer than the mate asked for is cut off.
    if (UciCompleto.MateBuscado != 0) {
        const int mate =
            Iniciar_AlphaBeta(profundidad, VALOR_MATE - 2 * UciCompleto.MateBuscado, VALOR_INFINITO, en_jaque);
        if (TipoJuego.Parar == 1 || MateHallado(mate)) return mate;
    }
    if (profundidad < PROFUNDIDAD_ASPIRACION || EsPuntuacionMate(anterior))
        return Iniciar_AlphaBeta(profundidad, -VALOR_INFINITO, VALOR_INFINITO, en_jaque);
    return AspirationWindows(profundidad, anterior, en_jaque);
}

// Label of a score that has jumped since the iteration before. It compares iterations; it is no window bound, so a
// reader who takes it for one must not see it.
static int EtiquetaSalto(int puntos, int anterior) {
    if (UciCompleto.Activo != 0) return 0;
    if (puntos > anterior + SALTO_PUNTOS) return 1;
    return puntos < anterior - SALTO_PUNTOS ? -1 : 0;
}

static void GuardarIteracion() {
    TipoJuego.MejorMovimiento  = pv_line[0][0];
    TipoJuego.MovimientoPonder = pv_line[0][1];
    if (pv_line[0][0] != 0) std::memcpy(pv_line_fin, pv_line[0], sizeof pv_line_fin);
}

// Row 0 becomes the line of the last finished iteration again.
static void RecuperarLineaFinal() {
    std::memcpy(pv_line[0], pv_line_fin, sizeof pv_line_fin);
}

// A mate found twice is believed; deepening on could only repeat it, except for who wants a shorter one.
static bool MateRepetido(int puntos, int anterior) {
    return TipoJuego.Infinito == 0 && UciCompleto.MateBuscado == 0 && EsPuntuacionMate(puntos) &&
           EsPuntuacionMate(anterior);
}

int BuscarIterativo() {
    const int en_jaque    = InicioBusqueda();
    int&      profundidad = TipoJuego.ProfundidadActual;
    int       puntos      = 0;
    for (; profundidad < TipoJuego.ProfundidadLimite; ++profundidad) {
        const bool primera = profundidad == 1;
        if (!primera && TipoJuego.Parar == 1) break;

        const int anterior = puntos;
        const int nuevos   = BuscarRaiz(profundidad, anterior, en_jaque);
        if (!primera && TipoJuego.Parar == 1) {  // an unfinished iteration proves nothing
            RecuperarLineaFinal();
            break;
        }
        puntos = nuevos;

        if (!primera && MateRepetido(puntos, anterior)) break;
        if (TipoJuego.Parar == 1) continue;
        GuardarIteracion();
        ImprimirPv(profundidad, &LineaImpresa, puntos, primera ? 0 : EtiquetaSalto(puntos, anterior));
        if (MateHallado(puntos)) break;
    }
    return puntos;
}

// A search that shows no line by the rules of ShowPv still shows its result.
static void ImprimirUltimaLinea(int puntos) {
    if (LineaImpresa == 1 || pv_line_fin[0] == 0) return;
    TipoJuego.MejorMovimiento  = pv_line_fin[0];
    TipoJuego.MovimientoPonder = pv_line_fin[1];
    // A mate found twice has left its own line in row 0; it goes with the score, unless it begins with another move.
    if (pv_line[0][0] != pv_line_fin[0]) RecuperarLineaFinal();
    const int infinito = TipoJuego.Infinito;
    TipoJuego.Infinito = 1;  // passes the filter of the output
    ImprimirPv(TipoJuego.ProfundidadActual, &LineaImpresa, puntos, 0);
    TipoJuego.Infinito = infinito;
}

// The answer of a search without a finished iteration; 0 in mate and stalemate.
static std::uint32_t PrimerMovimientoLegal() {
    if (UciCompleto.NumeroRaiz != 0) return UciCompleto.Raiz[0];
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_TODOS, lista);
    for (int i = 0; i < numero; ++i)
        if (EsLegal(lista.Entradas[i].Movimiento) != 0) return lista.Entradas[i].Movimiento;
    return 0;
}

void ImprimirMejorJugada(int puntos) {
    ImprimirUltimaLinea(puntos);
    if (TipoJuego.MejorMovimiento == 0) TipoJuego.MejorMovimiento = PrimerMovimientoLegal();

    ImprimirMejorMovimiento(TipoJuego.MejorMovimiento, TipoJuego.MovimientoPonder);
}

void TerminarBusqueda() {
    TipoJuego.Parar        = 0;
    TipoJuego.Nodos        = 0;
    tbprobe_Gaviota.tbhits = 0;
    LimpiarEstadoBusqueda();
    TT_Opciones.Usadas = 0;
    if (++TT_Opciones.Edad > EDAD_MAX) LimpiarTransposicion();
}

void Buscar() {
    const int puntos = BuscarIterativo();
    ImprimirMejorJugada(puntos);
    TerminarBusqueda();
}
