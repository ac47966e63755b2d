#include "board/EstadoMotor.h"

RegistroTipoJuego TipoJuego;
int               Salir = 0;
