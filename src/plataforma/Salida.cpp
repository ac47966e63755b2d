#include "plataforma/Salida.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

#include "plataforma/EntradaSalida.h"

static int Perdida = 0;

void Imprimir(const char* formato, ...) {
    char         texto[SALIDA_MAX];
    std::va_list datos;
    va_start(datos, formato);
    const int letras = std::vsnprintf(texto, sizeof texto, formato, datos);
    va_end(datos);
    if (letras <= 0 || Perdida != 0) return;
    if (letras >= SALIDA_MAX) texto[SALIDA_MAX - 2] = '\n';
    Perdida = EscribirBytes(texto, std::min(letras, SALIDA_MAX - 1)) == 0 ? 1 : 0;
}

int SalidaPerdida() {
    return Perdida;
}
