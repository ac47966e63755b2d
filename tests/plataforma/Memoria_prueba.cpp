#include "plataforma/Memoria.h"

#include <gtest/gtest.h>

#include <cstdint>

TEST(Memoria, EntregaBloquesAlineadosYACero) {
    for (const std::size_t bytes : {std::size_t{1}, PAGINA_GRANDE, PAGINA_GRANDE + 1, 7 * PAGINA_GRANDE}) {
        char* const bloque = static_cast<char*>(ReservarMemoria(bytes));
        ASSERT_NE(bloque, nullptr) << bytes;
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bloque) % 64, 0U) << bytes;
        EXPECT_EQ(bloque[0] | bloque[bytes - 1], 0) << bytes;
        bloque[0] = bloque[bytes - 1] = 1;
        LiberarMemoria(bloque, bytes);
    }
    for (const std::size_t imposible : {std::size_t{0}, SIZE_MAX / 4, SIZE_MAX})
        EXPECT_EQ(ReservarMemoria(imposible), nullptr);
}
