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
    PrepararBusqueda();
    EXPECT_EQ(Sondear(), 1);
    TipoJuego.Nodos = 2049;
    EXPECT_EQ(Sondear(), 0) << "between polls";
    TipoJuego.Nodos             = 4096;
    TipoJuego.ProfundidadActual = 1;
    EXPECT_EQ(Sondear(), 0) << "first iteration";
    TipoJuego.Nodos = 1U << 31;
    EXPECT_EQ(Sondear(), 0) << "first iteration, however long it takes";
    EXPECT_EQ(Sondear("stop\n"), 1);
    TipoJuego.Nodos             = 4096;
    TipoJuego.ProfundidadActual = 2;
    pv_line_fin[0]              = 0;
    EXPECT_EQ(Sondear(), 0) << "no move yet";
    pv_line_fin[0]           = 1;
    TipoJuego.TiempoAsignado = std::uint64_t{0} - 150;
    EXPECT_EQ(Sondear(), 0) << "negative budget";
    Salir = 1;
    EXPECT_EQ(Sondear(), 1) << "internal inconsistency";
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
    TipoJuego.Nodos        = 1U << 31;
    ComprobarTiempo();
    EXPECT_EQ(TipoJuego.Parar, 0);
    TipoJuego.ProfundidadActual = 1;
    TipoJuego.Nodos             = 1U << 29;
    ComprobarTiempo();
    EXPECT_EQ(TipoJuego.Parar, 0);
    TipoJuego.Nodos = 1U << 31;
    ComprobarTiempo();
    EXPECT_EQ(TipoJuego.Parar, 1);
    EXPECT_EQ(Salir, 0);
}
