#include <dlfcn.h>

#include <cstdio>

#include "plataforma/Biblioteca.h"

// A bare file name is looked for in the working directory first: dlopen alone searches only the system's folders.
static void* CargarDeDirectorioActual(const char* nombre) {
    char      ruta[512];
    const int letras = std::snprintf(ruta, sizeof ruta, "./%s", nombre);
    if (letras < 0 || static_cast<unsigned>(letras) >= sizeof ruta) return nullptr;
    return dlopen(ruta, RTLD_NOW | RTLD_LOCAL);
}

void* CargarBiblioteca(const char* nombre) {
    void* const biblioteca = nombre[0] == '/' ? nullptr : CargarDeDirectorioActual(nombre);
    return biblioteca != nullptr ? biblioteca : dlopen(nombre, RTLD_NOW | RTLD_LOCAL);
}

void* BuscarSimbolo(void* biblioteca, const char* nombre) {
    return dlsym(biblioteca, nombre);
}

int LiberarBiblioteca(void* biblioteca) {
    return dlclose(biblioteca) == 0 ? 1 : 0;
}
