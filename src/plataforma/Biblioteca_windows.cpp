#include <windows.h>

#include "plataforma/Biblioteca.h"

// Nobody installs libraries under other names here.
void* CargarBiblioteca(const char* nombre, const char* /*instalada*/) {
    return LoadLibraryA(nombre);
}

void* BuscarSimbolo(void* biblioteca, const char* nombre) {
    return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(biblioteca), nombre));
}

int LiberarBiblioteca(void* biblioteca) {
    return FreeLibrary(static_cast<HMODULE>(biblioteca)) != 0 ? 1 : 0;
}
