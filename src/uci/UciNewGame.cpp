#include "uci/UciNewGame.h"

#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Posicion.h"
#include "board/Tablero.h"
#include "book/LibroSql.h"
#include "search/Buscar.h"

static void LimpiarLimites() {
    TipoJuego.TiempoAsignado     = 0;
    TipoJuego.TiempoInicio       = 0;
    TipoJuego.LimiteTiempo       = 0;
    TipoJuego.Infinito           = 0;
    TipoJuego.ProfundidadLimite  = PROFUNDIDAD_SIN_LIMITE;
    TipoJuego.MovimientosJugados = 0;
}

void UciNewGame() {
    CrearTablaCasillas();
    TableroGlobal.Turno      = 1;
    TableroGlobal.NumeroKeys = 0;
    std::memset(TableroGlobal.HistorialKeys, 0, sizeof TableroGlobal.HistorialKeys);
    LibroSql.Terminado = 0;
    LimpiarLineaLibro();
    TipoJuego.Parar = 0;
    TipoJuego.Nodos = 0;
    LimpiarBusqueda();
    LimpiarLimites();
    Position_Fen_Startpos(FEN_INICIAL);
}
