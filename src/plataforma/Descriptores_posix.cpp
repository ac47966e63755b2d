#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "plataforma/Descriptores.h"

constexpr int ANOTADOS_MAX = 1024;  // twice what all tablebases and a wasteful parent take; the lowest come first

static bool Anotados[ANOTADOS_MAX];  // was it open?

static bool EstaAbierto(int descriptor) {
    return fcntl(descriptor, F_GETFD) != -1;
}

int HayDescriptores(int numero) {
    rlimit limite;
    if (getrlimit(RLIMIT_NOFILE, &limite) != 0) return 0;
    const rlimit subido{limite.rlim_max, limite.rlim_max};
    if (setrlimit(RLIMIT_NOFILE, &subido) == 0) limite = subido;
    for (int descriptor = 0; numero > 0 && static_cast<rlim_t>(descriptor) < limite.rlim_cur; ++descriptor)
        if (!EstaAbierto(descriptor)) --numero;
    return numero <= 0 ? 1 : 0;
}

int EsTuberia(const char* ruta) {
    struct stat datos;
    return stat(ruta, &datos) == 0 && S_ISFIFO(datos.st_mode) ? 1 : 0;
}

void AnotarDescriptores() {
    for (int descriptor = 0; descriptor < ANOTADOS_MAX; ++descriptor) Anotados[descriptor] = EstaAbierto(descriptor);
}

void CerrarDescriptoresNuevos() {
    for (int descriptor = 0; descriptor < ANOTADOS_MAX; ++descriptor)
        if (!Anotados[descriptor]) close(descriptor);
}
