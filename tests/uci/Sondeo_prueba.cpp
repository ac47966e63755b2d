// The real program while it searches: clock, "stop", and what becomes of other input.
#include <gtest/gtest.h>

#include <chrono>

#include "comun/Motor.h"

// An open position that no search exhausts within a test's time.
static const std::string LARGA = "position fen r3k2r/1p2b2p/pqbppnp1/8/4P1B1/2N5/PPP3PP/R1BQ1RK1 w kq - 2 14\n";

static const std::string MOVIMIENTO = "([a-h][1-8]){2}[nbrq]?";
static const std::string RESPUESTA  = "(info .*\n)*bestmove " + MOVIMIENTO + "( ponder " + MOVIMIENTO + ")?\n";

TEST(Sondeo, StopParaYNingunByteSePierde) {
    Motor motor;
    for (const char* principio : {"", "quit\nisready\nst"}) {  // lines that are lost, and half a line
        motor.Enviar(LARGA + "go infinite\n" + principio);
        EXPECT_EQ(motor.LeerHasta("bestmove", 400).find("bestmove"), std::string::npos);
        motor.Enviar(*principio == '\0' ? "stop\nisready\n" : "op\r\nisready\n");
        EXPECT_TRUE(TieneForma(motor.LeerHasta("readyok"), RESPUESTA + "readyok\n"));
    }
    EXPECT_EQ(motor.Terminar(), "");
}

// The parent has left SIGPIPE ignored, as the program inherits it from this one.
TEST(Sondeo, SinLectorTermina) {
    for (const char* orden : {"go infinite\n", "uci\n"}) {
        Motor motor;
        motor.Enviar(LARGA + orden);
        EXPECT_TRUE(motor.TerminaSinLector()) << orden;
    }
}

TEST(Sondeo, ElPresupuestoSeGasta) {
    Motor motor;
    motor.Enviar(LARGA);
    for (const auto& [texto, minimo] : {std::pair{"go movetime 650\nSTOP\nstop \nstop", 395},
                                        {"\ngo wtime 5000 btime 5000\n", 495},
                                        {"go depth 1\n", 0}}) {
        SCOPED_TRACE(texto);
        const auto inicio = std::chrono::steady_clock::now();
        motor.Enviar(texto);
        EXPECT_TRUE(TieneForma(motor.LeerHasta("bestmove"), RESPUESTA));
        const auto pasado = std::chrono::steady_clock::now() - inicio;
        EXPECT_GE(pasado, std::chrono::milliseconds(minimo));
        EXPECT_LE(pasado, std::chrono::milliseconds(6000)) << "generous: sanitizers on a busy machine";
    }
}

TEST(Sondeo, SinJugadasOSinIteraciones) {
    EXPECT_EQ(Dialogar("position fen 8/8/8/8/8/8/7r/K6k w - - 0 1\ngo depth 0\n"), "bestmove a1b1\n");
    EXPECT_TRUE(Dialogar("position fen R5k1/5ppp/8/8/8/8/8/6K1 b - - 0 1\ngo depth 3\n").ends_with("bestmove 0000\n"));
}
