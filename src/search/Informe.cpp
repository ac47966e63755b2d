#include "search/Informe.h"

#include <cinttypes>
#include <cstdio>

#include "board/EstadoMotor.h"
#include "board/Movimiento.h"
#include "board/Puntuacion.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "search/LineaPrincipal.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"

constexpr int TEXTO_PV_MAX = 400;  // characters of the line
constexpr int TEXTO_PUNTOS = 32;   // score with its label

constexpr float TERCIO = 0.33333334F;  // of the allotted time

static std::uint64_t ActualizarTiempo() {
    TipoJuego.TiempoTranscurrido = ObtenerMilisegundos() - TipoJuego.TiempoInicio;
    return TipoJuego.TiempoTranscurrido;
}

// Nodes per second, single precision; 0 before the first millisecond is over.
static std::uint64_t NodosPorSegundo(std::uint64_t milisegundos) {
    if (milisegundos == 0) return 0;
    return static_cast<std::uint64_t>(static_cast<float>(TipoJuego.Nodos) /
                                      (static_cast<float>(milisegundos) * 0.001F));
}

// At the middle level lines come when a third of the time is used, or half of the depth reached.
static bool PermiteImprimir(int profundidad) {
    if (TipoJuego.Infinito == 1 || TipoJuego.ShowPv == SHOWPV_FULL) return true;
    if (TipoJuego.ShowPv != SHOWPV_MIDDLE) return false;
    if (UciCompleto.Activo != 0) return true;
    if (TipoJuego.LimiteTiempo != 1) return 2 * profundidad >= TipoJuego.ProfundidadLimite;
    const std::uint64_t transcurrido = ObtenerMilisegundos() - TipoJuego.TiempoInicio;
    return transcurrido != 0 &&
           static_cast<float>(transcurrido) > static_cast<float>(TipoJuego.TiempoAsignado) * TERCIO;
}

// Writes row 0, each move followed by a blank. Returns the number of moves.
static int TextoPv(char (&texto)[TEXTO_PV_MAX + 1]) {
    int jugadas = 0;
    int usados  = 0;
    texto[0]    = '\0';
    while (jugadas < PLIES_MAX && pv_line[0][jugadas] != 0 && usados + COORDENADAS_MAX <= TEXTO_PV_MAX) {
        char movimiento[COORDENADAS_MAX];
        MovimientoCoordenadas(pv_line[0][jugadas], movimiento);
        usados += std::snprintf(texto + usados, sizeof texto - static_cast<std::size_t>(usados), "%s ", movimiento);
        ++jugadas;
    }
    return jugadas;
}

static void TextoPuntos(int puntos, int etiqueta, char (&texto)[TEXTO_PUNTOS]) {
    // Plies to the mate become moves of the side that mates; a lost side counts its own.
    if (EsMateGanado(puntos))
        std::snprintf(texto, sizeof texto, "mate %d", (VALOR_MATE - puntos + 1) / 2);
    else if (EsMatePerdido(puntos))
        std::snprintf(texto, sizeof texto, "mate %d", (-VALOR_MATE - puntos - 1) / 2);
    else
        std::snprintf(texto, sizeof texto, "cp %d%s", puntos,
                      etiqueta == 1    ? " lowerbound"
                      : etiqueta == -1 ? " upperbound"
                                       : "");
}

void ImprimirPv(int profundidad, int* impresa, int puntos, int etiqueta) {
    if (!PermiteImprimir(profundidad)) return;
    *impresa = 1;

    const std::uint64_t tiempo = ActualizarTiempo();
    char                linea[TEXTO_PV_MAX + 1];
    char                valor[TEXTO_PUNTOS];
    const int           longitud = TextoPv(linea);
    TextoPuntos(puntos, etiqueta, valor);
    Imprimir("info depth %d seldepth %d time %" PRIu64 " nodes %" PRIu64 " nps %" PRIu64 " tbhits %" PRIu64
             " hashfull %d score %s pv %s\n",
             profundidad, longitud, tiempo, TipoJuego.Nodos, NodosPorSegundo(tiempo), tbprobe_Gaviota.tbhits,
             Hashfull(), valor, linea);
}

void ImprimirMovimientoRaiz(std::uint32_t movimiento, int numero) {
    char texto[COORDENADAS_MAX];
    MovimientoCoordenadas(movimiento, texto);
    const std::uint64_t tiempo = ActualizarTiempo();
    Imprimir("info currmove %s currmovenumber %d nodes %" PRIu64 " nps %" PRIu64 " hashfull %d\n", texto, numero,
             TipoJuego.Nodos, NodosPorSegundo(tiempo), Hashfull());
}

void ImprimirMejorMovimiento(std::uint32_t mejor, std::uint32_t ponder) {
    char texto[COORDENADAS_MAX] = "0000";
    char espera[COORDENADAS_MAX];
    if (mejor != 0) MovimientoCoordenadas(mejor, texto);
    if (mejor == 0 || ponder == 0) {
        Imprimir("bestmove %s\n", texto);
        return;
    }
    MovimientoCoordenadas(ponder, espera);
    Imprimir("bestmove %s ponder %s\n", texto, espera);
}
