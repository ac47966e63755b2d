#include "plataforma/Memoria.h"

#include <gtest/gtest.h>
#include <sys/mman.h>

#include <cstdint>

TEST(Memoria, EntregaYVaciaBloquesAlineadosYDevuelveLosGrandes) {
    for (const std::size_t bytes :
         {std::size_t{1}, PAGINA_GRANDE, PAGINA_GRANDE + 1, BLOQUE_ESCRITO, BLOQUE_ESCRITO + 1}) {
        SCOPED_TRACE(bytes);
        char* const bloque = static_cast<char*>(ReservarMemoria(bytes));
        ASSERT_NE(bloque, nullptr);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(bloque) % 64, 0U);
        for (const int vez : {0, 1}) {
            EXPECT_EQ(bloque[0] | bloque[bytes / 2] | bloque[bytes - 1], 0) << vez;
            OcuparMemoria(bloque, bytes);
            unsigned char presente = 0;
            char* const   sin_leer = bloque + bytes / 4 / PAGINA_GRANDE * PAGINA_GRANDE;  // in the large blocks
            ASSERT_EQ(mincore(sin_leer, 1, &presente), 0);
            EXPECT_EQ(presente & 1, 1);
            bloque[0] = bloque[bytes / 2] = bloque[bytes - 1] = 1;
            EXPECT_EQ(VaciarMemoria(bloque, bytes), 1);
            ASSERT_EQ(mincore(bloque, 1, &presente), 0);
            EXPECT_EQ(presente & 1, bytes > BLOQUE_ESCRITO ? 0 : 1);
        }
        LiberarMemoria(bloque, bytes);
    }
    EXPECT_EQ(VaciarMemoria(nullptr, 0), 1);
    for (const std::size_t imposible : {std::size_t{0}, SIZE_MAX / 4, SIZE_MAX})
        EXPECT_EQ(ReservarMemoria(imposible), nullptr);
}
