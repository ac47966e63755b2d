#include "plataforma/Salida.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>

#include "plataforma/EntradaSalida.h"

static int          Perdida = 0;
static FiltroSalida Filtro  = nullptr;

static void Enviar(const char* bytes, int numero) {
    if (Perdida == 0 && EscribirBytes(bytes, numero) == 0) Perdida = 1;
}

static void EnviarFiltrado(const char* texto, int letras) {
    const char* const fin = texto + letras;
    while (texto < fin) {
        const void* const salto = std::memchr(texto, '\n', static_cast<std::size_t>(fin - texto));
        const char* const tras  = salto != nullptr ? static_cast<const char*>(salto) + 1 : fin;
        char              linea[FILTRADA_MAX];
        Enviar(linea, Filtro(texto, static_cast<int>(tras - texto), linea));
        texto = tras;
    }
}

void Imprimir(const char* formato, ...) {
    char         texto[SALIDA_MAX];
    std::va_list datos;
    va_start(datos, formato);
    const int letras = std::vsnprintf(texto, sizeof texto, formato, datos);
    va_end(datos);
    if (letras <= 0) return;
    if (letras >= SALIDA_MAX) texto[SALIDA_MAX - 2] = '\n';
    const int enviadas = std::min(letras, SALIDA_MAX - 1);
    if (Filtro == nullptr)
        Enviar(texto, enviadas);
    else
        EnviarFiltrado(texto, enviadas);
}

void FiltrarSalida(FiltroSalida filtro) {
    Filtro = filtro;
}

int SalidaPerdida() {
    return Perdida;
}
