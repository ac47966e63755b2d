#include "plataforma/Biblioteca.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <filesystem>

TEST(Biblioteca, CargaBuscaYLibera) {
    EXPECT_EQ(CargarBiblioteca("no_such_library.dll", "no_such_library.so"), nullptr);
    void* const biblioteca = CargarBiblioteca("no_such_library.dll", "libm.so.6");
    ASSERT_NE(biblioteca, nullptr);
    EXPECT_EQ(BuscarSimbolo(biblioteca, "no_such_entry"), nullptr);
    Dl_info donde;
    ASSERT_NE(dladdr(BuscarSimbolo(biblioteca, "cos"), &donde), 0);

    const std::filesystem::path carpeta = testing::TempDir() + "/tamrek_biblioteca";
    std::filesystem::create_directory(carpeta);
    std::filesystem::current_path(carpeta);
    std::filesystem::copy_file(donde.dli_fname, "propia.so", std::filesystem::copy_options::overwrite_existing);
    void* const propia = CargarBiblioteca("propia.so", "no_such_library.so");
    EXPECT_NE(propia, nullptr) << "in the working directory";
    EXPECT_EQ(LiberarBiblioteca(propia), 1);
    EXPECT_EQ(CargarBiblioteca("no_such_library.dll", "propia.so"), nullptr) << "not where the system installs";
    EXPECT_EQ(LiberarBiblioteca(biblioteca), 1);
    std::filesystem::current_path("/");
    std::filesystem::remove_all(carpeta);
}
