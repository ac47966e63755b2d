#include "board/Perft.h"

#include <algorithm>
#include <cinttypes>
#include <limits>

#include "board/Ataques.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Palabras.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"

RegistroPerft ContadorPerft;

template <typename T>
static void SumarUno(T& contador) {
    if (contador < std::numeric_limits<T>::max()) ++contador;
}

// One leaf, by the move that led to it.
static void ContarHoja(std::uint32_t mov) {
    RegistroPerft& c = ContadorPerft;
    if (EsCaptura(mov)) SumarUno(c.Capturas);
    if (EsAlPaso(mov)) {
        SumarUno(c.CapturasAlPaso);
        SumarUno(c.Capturas);
    }
    if (EsEnroque(mov)) SumarUno(c.Enroques);
    if (EsCoronacion(mov)) SumarUno(c.Coronaciones);
    SumarUno(c.Nodos);
    SumarUno(c.PosicionesPorJugada);
}

// Counts the leaves below a position in which restantes plies are still to be played, 1 or more.
static void MiniMax(int restantes) {
    if (TipoJuego.Parar) return;
    ListaMovimientos lista;
    const int        en_jaque = TurnoEnJaque();
    const int        numero   = GenerarMovimientos(GENERAR_TODOS, lista);
    for (int i = 0; i < numero; ++i) {
        const std::uint32_t mov = lista.Entradas[i].Movimiento;
        if (HacerMovimientoConJaque(mov, en_jaque)) {
            if (restantes == 1)
                ContarHoja(mov);
            else
                MiniMax(restantes - 1);
        }
        DeshacerMovimiento();
    }
}

void ListaJugadas(int profundidad) {
    RegistroPerft& c = ContadorPerft;
    c                = {};
    if (profundidad < 1) return;
    TableroGlobal.Ply = 0;
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_TODOS, lista);
    for (int i = 0; i < numero; ++i) {
        const std::uint32_t mov = lista.Entradas[i].Movimiento;
        c.PosicionesPorJugada   = 0;
        if (HacerMovimiento(mov)) {
            if (profundidad == 1)
                ContarHoja(mov);
            else
                MiniMax(profundidad - 1);
            c.Jugadas[c.NumeroJugadas++] = {mov, c.PosicionesPorJugada};
        }
        DeshacerMovimiento();
    }
}

// Nodes a second, in single precision.
static int NodosPorSegundo(std::uint64_t nodos, std::uint64_t milisegundos) {
    const auto  total = static_cast<float>(nodos);
    const float valor = nodos == 0 || milisegundos == 0 ? total : total / (static_cast<float>(milisegundos) * 0.001F);
    return static_cast<int>(std::min(valor + 0.5F, 2147483520.0F));  // the largest float that an int holds
}

// One line of the "Divide" list.
static void ImprimirMovimientoCoordenadas(const JugadaPerft& jugada) {
    char coordenadas[COORDENADAS_MAX];
    MovimientoCoordenadas(jugada.Movimiento, coordenadas);
    Imprimir("%s: %d\n", coordenadas, jugada.Hojas);
}

void Perft(const char* texto) {
    char palabra[PALABRA_MAX];
    Split_String(texto, palabra);
    if (!Es_Numero(palabra)) return;
    TipoJuego.ProfundidadLimite = NumeroAcotado(palabra, PROFUNDIDAD_MAX);

    const RegistroPerft& c      = ContadorPerft;
    const std::uint64_t  inicio = ObtenerMilisegundos();
    ListaJugadas(TipoJuego.ProfundidadLimite);
    TipoJuego.TiempoTranscurrido = ObtenerMilisegundos() - inicio + 1;

    Imprimir("Nodos: %" PRIu64 "\n", c.Nodos);
    Imprimir("Capturas: %d\n", c.Capturas);
    Imprimir("Captura Ep: %d\n", c.CapturasAlPaso);
    Imprimir("Coronacion: %d\n", c.Coronaciones);
    Imprimir("Enroques: %d\n", c.Enroques);
    Imprimir("Tiempo(ms): %" PRIu64 "\n", ObtenerMilisegundos() - inicio);
    Imprimir("Nps: %d\n", NodosPorSegundo(c.Nodos, TipoJuego.TiempoTranscurrido));
    Imprimir("Divide\n------------------------------\n");
    for (int i = 0; i < c.NumeroJugadas; ++i) {
        if (c.Jugadas[i].Hojas != 0) ImprimirMovimientoCoordenadas(c.Jugadas[i]);
    }
}
