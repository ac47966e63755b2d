// Large zeroed blocks of memory for the hash tables, in large pages where the system grants them.
#pragma once

#include <cstddef>

constexpr std::size_t PAGINA_GRANDE = std::size_t{2} << 20;  // bytes; alignment of every block on POSIX systems

// Bytes up to which writing zeros takes no longer than that; the pages then stay, and nobody waits for them later.
constexpr std::size_t BLOQUE_ESCRITO = std::size_t{128} << 20;

// A block of at least this many bytes, all 0, aligned to 64 bytes or better. nullptr when memory runs out or bytes
// is 0. Pages are not touched: memory is only taken from the system where it is first used.
void* ReservarMemoria(std::size_t bytes);

// Takes every page of a zeroed block from the system now, so that nobody waits for one later: a page of 2 MB takes the
// system 0.1 to 2 milliseconds, and a search uses thousands of random places between two looks at the clock.
// nullptr is allowed.
void OcuparMemoria(void* memoria, std::size_t bytes);

// Makes a block that was asked for with this size all 0 again, in a few milliseconds at any size: the pages of a large
// one go back to the system and are taken anew where the block is next used. Returns 0 when the system does not give
// the memory again: the block can then only be freed. nullptr is allowed.
int VaciarMemoria(void* memoria, std::size_t bytes);

// Frees a block with the size that was asked for. nullptr is allowed.
void LiberarMemoria(void* memoria, std::size_t bytes);
