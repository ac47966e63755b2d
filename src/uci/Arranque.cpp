#include "uci/Arranque.h"

#include <cstdio>

#include "board/EstadoMotor.h"
#include "board/Zobrist.h"
#include "eval/Evaluar.h"
#include "search/Buscar.h"
#include "search/See.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"
#include "uci/Opciones.h"
#include "uci/UciNewGame.h"

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
