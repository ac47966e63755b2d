#include <windows.h>

#include "plataforma/Memoria.h"

void* ReservarMemoria(std::size_t bytes) {
    return bytes == 0 ? nullptr : VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE);
}

// The system knows the size of the block.
void LiberarMemoria(void* memoria, std::size_t /*bytes*/) {
    if (memoria != nullptr) VirtualFree(memoria, 0, MEM_RELEASE);
}
