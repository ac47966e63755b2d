#include "plataforma/Biblioteca.h"

#include <gtest/gtest.h>

TEST(Biblioteca, CargaBuscaYLibera) {
    EXPECT_EQ(CargarBiblioteca("no_such_library.dll"), nullptr);
    void* const biblioteca = CargarBiblioteca("libm.so.6");
    ASSERT_NE(biblioteca, nullptr);
    EXPECT_NE(BuscarSimbolo(biblioteca, "cos"), nullptr);
    EXPECT_EQ(BuscarSimbolo(biblioteca, "no_such_entry"), nullptr);
    EXPECT_EQ(LiberarBiblioteca(biblioteca), 1);
}
