#include <windows.h>

#include "plataforma/Reloj.h"

// The performance counter, because the system's tick count advances in steps of up to 16 ms.
std::uint64_t ObtenerMilisegundos() {
    LARGE_INTEGER frecuencia;
    LARGE_INTEGER ahora;
    QueryPerformanceFrequency(&frecuencia);
    QueryPerformanceCounter(&ahora);
    const auto porSegundo = static_cast<std::uint64_t>(frecuencia.QuadPart);
    const auto cuenta     = static_cast<std::uint64_t>(ahora.QuadPart);
    return cuenta / porSegundo * 1000 + cuenta % porSegundo * 1000 / porSegundo;
}
