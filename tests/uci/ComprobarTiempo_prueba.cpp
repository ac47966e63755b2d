#include "uci/ComprobarTiempo.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <string>

#include "board/EstadoMotor.h"
#include "plataforma/Reloj.h"
#include "search/LineaPrincipal.h"

static int Tubo = -1;

// A search whose budget is spent and which has a move to play, on an open and silent input.
static void PrepararBusqueda() {
    int extremos[2] = {-1, -1};
    ASSERT_EQ(pipe(extremos), 0);
    dup2(extremos[0], STDIN_FILENO);
    Tubo                        = extremos[1];
    TipoJuego.LimiteTiempo      = 1;
    TipoJuego.TiempoAsignado    = 500;
    TipoJuego.TiempoInicio      = ObtenerMilisegundos() - 500;
    TipoJuego.ProfundidadActual = 2;
    TipoJuego.Nodos             = 2048;
    pv_line_fin[0]              = 1;
}

static int Sondear(const std::string& entrada = "") {
    EXPECT_EQ(write(Tubo, entrada.data(), entrada.size()), static_cast<ssize_t>(entrada.size()));
    TipoJuego.Parar = 0;
    ComprobarTiempo();
    return TipoJuego.Parar;
}

TEST(ComprobarTiempo, ParaConTodasLasCondiciones) {
    struct {
        const char*   nombre;
        std::uint64_t nodos, asignado;
        int           iteracion, salir, para;
        std::uint32_t linea;
    } constexpr CASOS[] = {{"time is over", 2048, 500, 2, 0, 1, 1},
                           {"between polls", 2049, 500, 2, 0, 0, 1},
                           {"first iteration, however long it takes", 1U << 31, 500, 1, 0, 0, 1},
                           {"no move yet", 4096, 500, 2, 0, 0, 0},
                           {"negative budget", 4096, 0ULL - 150, 2, 0, 0, 1},
                           {"internal inconsistency", 4096, 0ULL - 150, 2, 1, 1, 1}};
    PrepararBusqueda();
    for (const auto& caso : CASOS) {
        TipoJuego.Nodos             = caso.nodos;
        TipoJuego.TiempoAsignado    = caso.asignado;
        TipoJuego.ProfundidadActual = caso.iteracion;
        Salir                       = caso.salir;
        pv_line_fin[0]              = caso.linea;
        EXPECT_EQ(Sondear(), caso.para) << caso.nombre;
    }
}

TEST(ComprobarTiempo, SoloStopParaYCadaSondeoConsumeUnaLinea) {
    PrepararBusqueda();
    TipoJuego.LimiteTiempo = 0;
    for (const char* otra : {"", "quit\n", "STOP\n", "stop \n", " stop\n", "stopp\n", "\n", "uci\nstop\nuci\nst"})
        EXPECT_EQ(Sondear(otra), 0) << otra;
    EXPECT_EQ(Sondear(), 1);
    EXPECT_EQ(Sondear(), 0) << "uci";
    EXPECT_EQ(Sondear(), 0) << "half a line";
    EXPECT_EQ(Sondear("op\r\n"), 1);
}

TEST(ComprobarTiempo, SinEntradaSoloCedeLaPrimeraIteracionSinFin) {
    PrepararBusqueda();
    close(Tubo);
    TipoJuego.LimiteTiempo = 0;
    for (const auto& [iteracion, nodos, para] : {std::tuple{2, 1U << 31, 0}, {1, 1U << 29, 0}, {1, 1U << 31, 1}}) {
        TipoJuego.ProfundidadActual = iteracion;
        TipoJuego.Nodos             = nodos;
        ComprobarTiempo();
        EXPECT_EQ(TipoJuego.Parar, para);
    }
    EXPECT_EQ(Salir, 0);
}
