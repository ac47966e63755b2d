#include <sys/mman.h>

#include <cstdint>
#include <cstring>

#include "plataforma/Memoria.h"

static std::size_t RedondearAPaginas(std::size_t bytes) {
    return (bytes + PAGINA_GRANDE - 1) / PAGINA_GRANDE * PAGINA_GRANDE;
}

// One page more than needed is mapped, and what lies before and behind the aligned block is given back.
void* ReservarMemoria(std::size_t bytes) {
    if (bytes == 0 || bytes > SIZE_MAX - 2 * PAGINA_GRANDE) return nullptr;
    const std::size_t longitud = RedondearAPaginas(bytes);
    void* const       zona =
        mmap(nullptr, longitud + PAGINA_GRANDE, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (zona == MAP_FAILED) return nullptr;

    const std::size_t sobra  = reinterpret_cast<std::uintptr_t>(zona) % PAGINA_GRANDE;
    const std::size_t antes  = sobra == 0 ? 0 : PAGINA_GRANDE - sobra;
    char* const       bloque = static_cast<char*>(zona) + antes;
    if (antes != 0) munmap(zona, antes);
    munmap(bloque + longitud, PAGINA_GRANDE - antes);
#ifdef MADV_HUGEPAGE
    madvise(bloque, longitud, MADV_HUGEPAGE);  // a wish: without large pages the block serves just as well
#endif
    return bloque;
}

// Only on Linux does the advice promise zeros, and only for memory that is not locked.
int VaciarMemoria(void* memoria, std::size_t bytes) {
    if (memoria == nullptr) return 1;
#ifdef __linux__
    if (bytes > BLOQUE_ESCRITO && madvise(memoria, RedondearAPaginas(bytes), MADV_DONTNEED) == 0) return 1;
#endif
    std::memset(memoria, 0, bytes);
    return 1;
}

void LiberarMemoria(void* memoria, std::size_t bytes) {
    if (memoria != nullptr) munmap(memoria, RedondearAPaginas(bytes));
}
