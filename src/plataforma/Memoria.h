// Large zeroed blocks of memory for the hash tables, in large pages where the system grants them.
#pragma once

#include <cstddef>

constexpr std::size_t PAGINA_GRANDE = std::size_t{2} << 20;  // bytes; alignment of every block on POSIX systems

// A block of at least this many bytes, all 0, aligned to 64 bytes or better. nullptr when memory runs out or bytes
// is 0. Pages are not touched: memory is only taken from the system where it is first used.
void* ReservarMemoria(std::size_t bytes);

// Frees a block with the size that was asked for. nullptr is allowed.
void LiberarMemoria(void* memoria, std::size_t bytes);
