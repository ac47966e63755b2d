#include <unistd.h>

#include <csignal>
#include <cstring>

#include "plataforma/Programa.h"

void PrepararPrograma() {
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

int CarpetaDelPrograma(char* carpeta, int capacidad) {
    const ssize_t letras       = readlink("/proc/self/exe", carpeta, static_cast<std::size_t>(capacidad));
    const bool    cabe         = letras > 0 && letras < capacidad;
    carpeta[cabe ? letras : 0] = '\0';
    char* const barra          = std::strrchr(carpeta, '/');
    if (barra == nullptr) return 0;
    *barra = '\0';
    return 1;
}
