#include <dlfcn.h>

#include <cstdio>

#include "plataforma/Biblioteca.h"

// dlopen looks for a bare name among the system's libraries, for a path just there.
static void* CargarDeDirectorioActual(const char* nombre) {
    char      ruta[512];
    const int letras = std::snprintf(ruta, sizeof ruta, "./%s", nombre);
    if (letras < 0 || static_cast<unsigned>(letras) >= sizeof ruta) return nullptr;
    return dlopen(ruta, RTLD_NOW | RTLD_LOCAL);
}

void* CargarBiblioteca(const char* nombre, const char* instalada) {
    void* biblioteca = CargarDeDirectorioActual(nombre);
    if (biblioteca == nullptr) biblioteca = dlopen(nombre, RTLD_NOW | RTLD_LOCAL);
    return biblioteca != nullptr ? biblioteca : dlopen(instalada, RTLD_NOW | RTLD_LOCAL);
}

void* BuscarSimbolo(void* biblioteca, const char* nombre) {
    return dlsym(biblioteca, nombre);
}

int LiberarBiblioteca(void* biblioteca) {
    return dlclose(biblioteca) == 0 ? 1 : 0;
}
