#include "plataforma/Descriptores.h"

#include <cstdio>

constexpr int FLUJOS_ESTANDAR = 3;

// What limits here is the C library's table of streams, which a library built with the same tools shares. It holds all
// tablebases twice.
int HayDescriptores(int numero) {
    return FLUJOS_ESTANDAR + numero <= _getmaxstdio() ? 1 : 0;
}

// Pipes have a place of their own here and do not lie in folders.
int EsTuberia(const char* /*ruta*/) {
    return 0;
}

// Nobody else keeps streams open, so there is nothing to note. Those of a library with a C library of its own are out
// of reach.
void AnotarDescriptores() {}

void CerrarDescriptoresNuevos() {
    _fcloseall();
}
