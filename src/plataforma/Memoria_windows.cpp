#include <windows.h>

#include <cstring>

#include "plataforma/Memoria.h"

void* ReservarMemoria(std::size_t bytes) {
    return bytes == 0 ? nullptr : VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

int VaciarMemoria(void* memoria, std::size_t bytes) {
    if (memoria == nullptr) return 1;
    if (bytes <= BLOQUE_ESCRITO) {
        std::memset(memoria, 0, bytes);
        return 1;
    }
    return VirtualFree(memoria, bytes, MEM_DECOMMIT) != 0 &&
           VirtualAlloc(memoria, bytes, MEM_COMMIT, PAGE_READWRITE) != nullptr;
}

// The system knows the size of the block.
void LiberarMemoria(void* memoria, std::size_t /*bytes*/) {
    if (memoria != nullptr) VirtualFree(memoria, 0, MEM_RELEASE);
}
