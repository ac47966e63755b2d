// Is the side to move in check?
#pragma once

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Tablero.h"

// 1 or 0; raises Salir when Turno names no side.
inline int TurnoEnJaque() {
    return Jaque2(TableroGlobal.Turno == BLANCO ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro);
}
