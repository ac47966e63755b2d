// The end of the input is final, so a test that reaches it must have a process of its own, as ctest gives it.
#include "plataforma/Entrada.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <string>
#include <thread>
#include <vector>

// Standard input becomes a pipe; the end to write to.
static const int TUBO = [] {
    int extremos[2] = {-1, -1};
    if (pipe(extremos) == 0) dup2(extremos[0], STDIN_FILENO);
    return extremos[1];
}();

static void Escribir(const std::string& texto) {
    EXPECT_EQ(write(TUBO, texto.data(), texto.size()), static_cast<ssize_t>(texto.size()));
}

static std::string Leer(int limite) {
    std::vector<char> linea(LINEA_MAX);
    return LeerLinea(linea.data(), limite) == 1 ? linea.data() : "end of input";
}

TEST(Entrada, EntregaLineasYTrozosSinEsperar) {
    const struct {
        int                      limite;
        std::string              bytes;
        std::vector<std::string> lineas;
    } casos[] = {{80, "stop\nisready\n", {"stop", "isready"}},              // two lines at once
                 {80, "\n\r\na\rb\r\r\n", {"", "", "a\rb\r"}},              // CR goes with LF only
                 {80, std::string("uci\0x\nquit\n", 11), {"uci", "quit"}},  // NUL ends the text, not the line
                 {4, "abcdef\ng\n", {"abc", "def", "", "g"}}};              // pieces of a long line
    for (const auto& caso : casos) {
        EXPECT_EQ(HayLinea(caso.limite), 0);
        Escribir(caso.bytes);
        for (const std::string& linea : caso.lineas) {
            EXPECT_EQ(HayLinea(caso.limite), 1);
            EXPECT_EQ(Leer(caso.limite), linea) << caso.bytes;
        }
    }
    Escribir("quit\r");
    EXPECT_EQ(HayLinea(7), 0) << "half a line";
    EXPECT_EQ(HayLinea(6), 1) << "as long as the limit allows";
    close(TUBO);
    EXPECT_EQ(HayLinea(7), 1) << "nothing more can follow";
    EXPECT_EQ(Leer(80), "quit") << "the last line may lack its LF";
    EXPECT_EQ(HayLinea(80), 1);
    EXPECT_EQ(Leer(80), "end of input");
}

// The descriptor of standard input may have been left non-blocking by whoever started the engine.
TEST(Entrada, EsperaALineasMasLargasQueElBufer) {
    fcntl(STDIN_FILENO, F_SETFL, O_NONBLOCK);
    std::thread escritor([] { Escribir(std::string(70000, 'x') + "\nuci\n"); });
    EXPECT_EQ(Leer(LINEA_MAX), std::string(LINEA_MAX - 1, 'x'));
    EXPECT_EQ(Leer(LINEA_MAX), std::string(70000 - (LINEA_MAX - 1), 'x'));
    EXPECT_EQ(Leer(LINEA_MAX), "uci");
    escritor.join();
}

TEST(Entrada, AbandonadaHaTerminado) {
    Escribir("stop\nstop\n");
    EXPECT_EQ(HayLinea(80), 1);
    AbandonarEntrada();
    EXPECT_EQ(Leer(80), "end of input");
}
