#include "board/Movimiento.h"

#include "board/Geometria.h"

int IndexMove = 0;

static char LetraCoronacion(int pieza) {
    switch (pieza) {
        case CABALLO_B:
        case CABALLO_N:
            return 'n';
        case ALFIL_B:
        case ALFIL_N:
            return 'b';
        case TORRE_B:
        case TORRE_N:
            return 'r';
        case DAMA_B:
        case DAMA_N:
            return 'q';
        default:
            return '\0';
    }
}

void MovimientoCoordenadas(int desde, int hasta, int coronacion, char* salida) {
    salida[0] = static_cast<char>('a' + Columna(desde));
    salida[1] = static_cast<char>('8' - Fila(desde));
    salida[2] = static_cast<char>('a' + Columna(hasta));
    salida[3] = static_cast<char>('8' - Fila(hasta));
    salida[4] = LetraCoronacion(coronacion);
    salida[5] = '\0';
}

void MovimientoCoordenadas(std::uint32_t mov, char* salida) {
    MovimientoCoordenadas(Desde(mov), Hasta(mov), PiezaCoronada(mov), salida);
}
