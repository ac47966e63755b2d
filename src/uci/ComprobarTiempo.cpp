#include "uci/ComprobarTiempo.h"

#include <cstring>

#include "board/EstadoMotor.h"
#include "plataforma/Entrada.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "search/LineaPrincipal.h"
#include "uci/SondeoCompleto.h"

constexpr int LINEA_SONDEO = 80;  // longest line a poll reads, terminating '\0' included

// Boards full of queens hardly ever end their first iteration, which neither the clock nor the end of the input may
// cut. "stop" does; when the input has ended nobody can send it, and after so many nodes (minutes) the search gives up.
constexpr std::uint64_t NODOS_SIN_MANDO = 1'000'000'000;

// The first iteration always ends, and no search is cut before it has a move to play.
static bool SeAcaboElTiempo() {
    return TipoJuego.ProfundidadActual >= 2 && TipoJuego.LimiteTiempo == 1 &&
           ObtenerMilisegundos() - TipoJuego.TiempoInicio >= TipoJuego.TiempoAsignado && pv_line_fin[0] != 0;
}

static bool NoTieneFin() {
    return TipoJuego.ProfundidadActual == 1 && TipoJuego.Nodos >= NODOS_SIN_MANDO;
}

// Consumes one waiting line. Only "stop" means anything during a search. Returns false when the input has ended.
static bool Entrada_StdIn() {
    char linea[LINEA_SONDEO];
    if (HayLinea(LINEA_SONDEO) == 0) return true;
    if (LeerLinea(linea, LINEA_SONDEO) == 0) return false;
    if (std::strcmp(linea, "stop") == 0) TipoJuego.Parar = 1;
    return true;
}

// Called at every node, so the common path is this one test; clock and input wait for one node in 2048.
void ComprobarTiempo() {
    if ((TipoJuego.Nodos & UciCompleto.MascaraSondeo) != 0) return;
    const bool completo = UciCompleto.Activo != 0;
    if (SalidaPerdida() != 0) Salir = 1;
    if (Salir != 0 || (completo ? LimiteCompletoAlcanzado() : SeAcaboElTiempo())) TipoJuego.Parar = 1;
    if (!(completo ? AtenderEntrada() : Entrada_StdIn()) && NoTieneFin()) TipoJuego.Parar = 1;
}
