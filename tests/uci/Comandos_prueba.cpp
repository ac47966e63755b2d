// What an interface reads from the real program, byte for byte, while no search runs.
#include <gtest/gtest.h>

#include "comun/Motor.h"

// clang-format off
static std::string RespuestaUci(const char* hash, const char* libro, const char* limite, const char* pv,
                                const char* ruta, const char* cache, const char* esquema) {
    return std::string("id name Tamrek 0.6 x64\nid author Ferlo Quent, Spain.\n")
        + "option name Hash type spin default " + hash + " min 1 max 2048\n"
        + "option name OwnBook type check default " + libro + "\n"
        + "option name OwnBookLimit type spin default " + limite + " min 2 max 10\n"
        + "option name ShowPv type combo default " + pv + " var None var Middle var Full\n"
        + "option name GaviotaTbUse type check default false\n"
        + "option name GaviotaTbPath type string default " + ruta + "\n"
        + "option name GaviotaTbCache type spin default " + cache + " min 8 max 1024\n"
        + "option name GaviotaTbCompression type spin default " + esquema + " min 0 max 9\nuciok\n";
}
static const std::string FIJAR =
    "setoption name Hash value 40\nsetoption name OwnBook value true\nsetoption name OwnBookLimit value 3\n"
    "setoption name ShowPv value Full\nsetoption name GaviotaTbPath value C:\\tb\\my files\n"
    "setoption name GaviotaTbCache value 0\nsetoption name GaviotaTbCompression value 0\n";
// clang-format on

TEST(Comandos, RespuestasExactas) {
    const struct {
        const char* nombre;
        std::string entrada, salida;
    } casos[] = {
        {"no input", "", ""},
        {"uci, without line end", "uci", RespuestaUci("128", "false", "8", "Middle", "empty", "32", "4")},
        {"uci, options set; isready keeps the sum of Hash", FIJAR + "isready\nisready\nuci\n",
         "readyok\nreadyok\n" + RespuestaUci("40", "true", "3", "Full", "C:\\tb\\my files", "0", "0")},
        {"leading spaces, further words, CR", "   isready now\r\nisready\r\n", "readyok\nreadyok\n"},
        {"other words", "\tuci\nUCI\nucix\nquitnow\nstop\nponderhit\n\n\r\nisready\n", "readyok\n"},
        {"quit with further words", "quit now\nuci\n", ""},
        {"bytes that end a word", "isready\200x\nisready\240\nisready\303\240\n", "readyok\nreadyok\n"},
        {"NUL bytes", std::string(300, '\0') + "\n" + std::string("isready\0quit\nisready\n", 21),
         "readyok\nreadyok\n"},
        {"a long line comes in pieces", std::string(65535, ' ') + "isready\n" + std::string(70000, 'x') + "\nisready\n",
         "readyok\nreadyok\n"},
        {"over-long value ends", "setoption name A value " + std::string(252, 'b') + "\nuci\n", ""},
        {"malformed FEN, illegal later move, illegal first move",
         "position fen \351\351\nposition startpos moves e2e4 e7e4 e7e5\nisready\nposition startpos moves e2e5\nuci\n",
         "info string Formato FEN incorrecto.\nreadyok\ninfo string Movimiento ilegal: e2e5\n"
         "info string Enroque Blancas: 3\ninfo string Enroque Negras: 3\ninfo string Ficha al Paso: 0\n"
         "info string Posici\363n Rey Blanco: 60\ninfo string Posici\363n Rey Negro: 4\n"},
        {"perft and go without a usable limit", "perft\nperft -1\ngo\ngo wtime 1000\ngo depth x\nisready\n",
         "readyok\n"},
    };
    for (const auto& caso : casos) EXPECT_EQ(Dialogar(caso.entrada), caso.salida) << caso.nombre;
}

TEST(Comandos, Argumentos) {
    EXPECT_EQ(Dialogar("uci\n", {"--version"}), "Tamrek 0.6\n");
    EXPECT_TRUE(Dialogar("uci\n", {"--help"}).starts_with("usage: tamrek "));
    for (const std::vector<std::string>& argumentos : {std::vector<std::string>{"-h"},
                                                       {"bench", "0"},
                                                       {"bench", "33"},
                                                       {"bench", "x"},
                                                       {"--semilla"},
                                                       {"--version", "x"}})
        EXPECT_EQ(Dialogar("uci\n", argumentos), "wait status 512") << argumentos.front();
}

// The count must not depend on the run nor on what waits in the input.
TEST(Comandos, ElBancoSeRepite) {
    const std::string salida = Dialogar("", {"bench", "4"});
    ASSERT_TRUE(TieneForma(salida, "( *[0-9]+ +[0-9]+  fen [^\n]+\n)+[0-9]+ nodes [0-9]+ nps\n")) << salida;
    const std::string cuenta = salida.substr(0, salida.rfind(" nodes"));
    EXPECT_TRUE(Dialogar("stop\nstop\nstop\n", {"bench", "4"}).starts_with(cuenta + " nodes"));
}
