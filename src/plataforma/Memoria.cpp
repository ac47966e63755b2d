#include "plataforma/Memoria.h"

constexpr std::size_t PAGINA = 4096;  // bytes, the smallest in use

void OcuparMemoria(void* memoria, std::size_t bytes) {
    if (memoria == nullptr) return;
    for (std::size_t i = 0; i < bytes; i += PAGINA) static_cast<volatile char*>(memoria)[i] = 0;
}
