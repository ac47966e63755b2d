#include "uci/Arranque.h"

#include <cstdio>
#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Posicion.h"
#include "board/Tablero.h"
#include "board/Zobrist.h"
#include "book/LibroSql.h"
#include "eval/Evaluar.h"
#include "search/Buscar.h"
#include "search/See.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"
#include "uci/Opciones.h"

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

void Arrancar(unsigned semilla) {
    Salir = 0;
    std::setvbuf(stdout, nullptr, _IONBF, 0);  // for what the tablebase library may print itself
    std::setvbuf(stdin, nullptr, _IONBF, 0);
    Iniciar_Evaluacion();
    Iniciar_Busqueda();
    IniciarSee();
    InicializarZobrist(semilla);
    IniciarConfiguracion();
    Cargar_Opciones();
    UciNewGame();
}

void Apagar() {
    LiberarTransposicion();
    Descargar_gtbgaviota_dll();
}
