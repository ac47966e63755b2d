#include "uci/SondeoCompleto.h"

#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "plataforma/Entrada.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "search/LineaPrincipal.h"

// Nodes beyond the limit that the first iteration may take to find a move. Only freakish boards need more.
constexpr std::uint64_t NODOS_PRIMERA_ITERACION = 1'000'000;

static std::uint64_t Transcurrido() {
    return ObtenerMilisegundos() - TipoJuego.TiempoInicio;
}

// The clock starts now: what was pondered is a gift.
static void EmpezarATenerPrisa() {
    if (UciCompleto.Ponderando == 0) return;
    UciCompleto.Ponderando = 0;
    UciCompleto.SinFin     = TipoJuego.Infinito;
    TipoJuego.TiempoAsignado += Transcurrido();
    UciCompleto.TiempoTope += Transcurrido();
}

static DestinoLinea AtenderLinea(const char* principio) {
    if (TipoJuego.Parar != 0) return LINEA_ULTIMA;
    char palabra[PALABRA_MAX];
    Split_String(principio, palabra);
    const auto es = [&palabra](const char* orden) { return std::strcmp(palabra, orden) == 0; };
    if (es("go")) return UciCompleto.SinFin != 0 ? LINEA_ESPERA : LINEA_ULTIMA;
    if (es("isready"))
        Imprimir("readyok\n");
    else if (es("ponderhit"))
        EmpezarATenerPrisa();
    else if (es("stop") || es("quit")) {
        TipoJuego.Parar = 1;
        if (es("quit")) Salir = 1;
    } else
        return LINEA_ESPERA;
    return LINEA_TOMADA;
}

static bool RevisarEntrada(int esperar) {
    if (RevisarLineas(AtenderLinea, esperar) != 0) return true;
    if (UciCompleto.SinFin != 0) TipoJuego.Parar = 1;
    return false;
}

bool AtenderEntrada() {
    return RevisarEntrada(0);
}

static bool SeAcaboElTiempo(bool hay_jugada) {
    if (TipoJuego.LimiteTiempo != 1 || UciCompleto.Ponderando != 0) return false;
    return Transcurrido() >= (hay_jugada ? TipoJuego.TiempoAsignado : UciCompleto.TiempoTope);
}

static bool SeAcabaronLosNodos(bool hay_jugada) {
    if (UciCompleto.LimiteNodos == 0 || UciCompleto.Ponderando != 0) return false;
    return TipoJuego.Nodos >= UciCompleto.LimiteNodos + (hay_jugada ? 0 : NODOS_PRIMERA_ITERACION);
}

bool LimiteCompletoAlcanzado() {
    const bool hay_jugada = pv_line_fin[0] != 0;
    return SeAcaboElTiempo(hay_jugada) || SeAcabaronLosNodos(hay_jugada);
}

void EsperarFinDeAnalisis() {
    for (int esperar = 0; UciCompleto.SinFin != 0 && TipoJuego.Parar == 0 && Salir == 0; esperar = 1)
        RevisarEntrada(esperar);
}
