#include <windows.h>

#include <cstring>

#include "plataforma/Programa.h"

constexpr DWORD RUTA_PROGRAMA = 1024;  // characters

// There are no such signals here, but windows.
void PrepararPrograma() {
    SetErrorMode(GetErrorMode() | SEM_FAILCRITICALERRORS);
}

int CarpetaDelPrograma(char* carpeta, int capacidad) {
    wchar_t     ruta[RUTA_PROGRAMA];
    const DWORD letras = GetModuleFileNameW(nullptr, ruta, RUTA_PROGRAMA);
    carpeta[0]         = '\0';
    if (letras == 0 || letras == RUTA_PROGRAMA) return 0;
    if (WideCharToMultiByte(CP_UTF8, 0, ruta, -1, carpeta, capacidad, nullptr, nullptr) == 0) carpeta[0] = '\0';
    char* const barra = std::strrchr(carpeta, '\\');
    if (barra == nullptr) return 0;
    *barra = '\0';
    return 1;
}
