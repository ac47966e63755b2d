#include "board/EstadoMotor.h"

RegistroTipoJuego   TipoJuego;
RegistroUciCompleto UciCompleto;
int                 Salir = 0;
