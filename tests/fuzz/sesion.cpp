// Whole sessions. The first byte chooses full UCI (bit 0) and, from 128 on, a reader who goes away.
#include "fuzz/Entorno.h"

void Ejecutar(Bytes bytes) {
    const int modo = bytes.Sacar();
    Empezar(modo % 2 == 1, modo < 128 ? INT_MAX : modo - 128);
    Dialogar(bytes.Resto);
}
