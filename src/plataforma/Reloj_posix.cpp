#include <ctime>

#include "plataforma/Reloj.h"

std::uint64_t ObtenerMilisegundos() {
    timespec ahora{};
    clock_gettime(CLOCK_MONOTONIC, &ahora);
    return static_cast<std::uint64_t>(ahora.tv_sec) * 1000 + static_cast<std::uint64_t>(ahora.tv_nsec) / 1000000;
}
