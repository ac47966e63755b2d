#include "plataforma/Salida.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <functional>
#include <string>
#include <thread>

#include "plataforma/Programa.h"

// Standard output goes to this descriptor meanwhile.
static void ConSalida(int descriptor, const std::function<void()>& accion) {
    const int anterior = dup(STDOUT_FILENO);
    dup2(descriptor, STDOUT_FILENO);
    accion();
    dup2(anterior, STDOUT_FILENO);
    close(anterior);
}

TEST(Salida, EsperaAlLectorNoAlDiscoYTerminaSinNinguno) {
    int tubo[2] = {-1, -1};
    ASSERT_EQ(pipe2(tubo, O_NONBLOCK), 0);
    const std::string largo(SALIDA_MAX, 'x');
    std::string       esperado, leido;
    const auto        escribir = [&] {
        for (int i = 0; i < 300; ++i) {
            Imprimir("%d %s\n", i, largo.c_str());
            esperado += (std::to_string(i) + " " + largo).substr(0, SALIDA_MAX - 2) + "\n";
        }
    };
    std::thread escritor([&] { ConSalida(tubo[1], escribir); });
    char        bloque[65536];
    while (leido.size() < 300 * (SALIDA_MAX - 1U)) {
        usleep(1000);  // the pipe is full most of the time
        const ssize_t n = read(tubo[0], bloque, sizeof bloque);
        if (n > 0) leido.append(bloque, static_cast<std::size_t>(n));
    }
    escritor.join();
    EXPECT_EQ(leido == esperado, true);

    std::signal(SIGPIPE, SIG_DFL);
    std::signal(SIGXFSZ, SIG_DFL);
    PrepararPrograma();
    ConSalida(open("/dev/full", O_WRONLY), [] { Imprimir("uciok\n"); });
    EXPECT_EQ(SalidaPerdida(), 0) << "a full disk";
    const rlimit sin_ficheros{0, RLIM_INFINITY};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &sin_ficheros), 0);
    const int fichero = fileno(std::tmpfile());
    EXPECT_EQ((write(fichero, "x", 1), errno), EFBIG);
    close(tubo[0]);
    ConSalida(tubo[1], [] { Imprimir("uciok\n"); });
    EXPECT_EQ(SalidaPerdida(), 1);
}
