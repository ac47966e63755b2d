// Full UCI, from the real program.
#include <gtest/gtest.h>

#include <chrono>

#include "comun/Motor.h"

// clang-format off
static const std::string INFO     = "(info depth [^\n]*\n)*";
static const std::string JUGADA   = "bestmove ([a-h][1-8]){2}[nbrq]?( ponder [^\n]*)?\n";
static const std::string LARGA    = "position fen r3k2r/1p2b2p/pqbppnp1/8/4P1B1/2N5/PPP3PP/R1BQ1RK1 w kq - 2 14\n";
static const std::string ZUGZWANG = "position fen kbK5/pp6/1P6/8/8/8/8/R7 w - - 0 1\n";
static const std::string MATE     = "position fen R5k1/5ppp/8/8/8/8/8/6K1 b - - 0 1\n";
static const std::string AHOGADO  = "position fen 7k/5Q2/6K1/8/8/8/8/8 b - - 0 1\n";

static const std::string ILEGAL   = "info string Movimiento ilegal: ";
static const std::string TEXTOS   = "(info string [^\n]*\n)*";

// Longer than needed, a surrogate, beyond the last character: each byte by itself.
static const std::string NO_UTF8 = "\340\200\200\355\240\200\364\220\200\200";
static const std::string EN_UTF8 = "\303\240(\302\200){2}\303\255\302\240\302\200\303\264\302\220(\302\200){2}";

struct CasoCompleto {
    const char* nombre;
    std::string entrada;
    std::string forma;  // of the whole output
};

static const CasoCompleto CASOS[] = {
    {"every go is answered", LARGA + "go movetime 20\ngo nodes 3000\ngo wtime 60\ngo btime -5\ngo mate 1\ngo depth 0\n"
     "go depth 33 movetime 20\ngo nodes 0\ngo wtime 100 btime 100 movestogo 1\n", "(" + INFO + JUGADA + "){9}"},
    {"the end of the input ends what has no end", LARGA + "go infinite\ngo ponder\n", "(" + INFO + JUGADA + "){2}"},
    {"root moves", "go searchmoves a2a3 e9 h2h3 depth 5\n", INFO + "bestmove (a2a3|h2h3) ponder [^\n]*\n"},
    {"none of them legal", "go searchmoves e2e5 depth 2\n", INFO + JUGADA},
    {"mate by zugzwang", ZUGZWANG + "go mate 2\n", INFO + "info [^\n]* score mate 2 pv a1a6 [^\n]*\nbestmove a1a6[^\n]*\n"},
    {"commands wait for their turn", LARGA + "go depth 5\nposition startpos\nisready\ngo depth 5\nisready\nquit\nuci\n",
     INFO + "readyok\n" + INFO + JUGADA + INFO + "(readyok\n" + INFO + JUGADA + "|" + JUGADA + "readyok\n)"},
    {"quit and stop pass a go behind a search without end", LARGA + "go infinite\ngo depth 1\nquit\n", INFO + JUGADA},
    {"what stands behind a stop waits for its turn", LARGA + "go infinite\nstop\ngo depth 2\nquit\n", "(" + INFO + JUGADA + "){2}"},
    {"a list ends at its first illegal move", "position startpos moves e2e4 e7e5 e4e6 d2d4\ngo depth 1 searchmoves a2a3\n"
     "position fen 4k3/8/8/8/8/4r3/4B3/4K3 w - - 0 1 moves e2d3 e8e7\ngo depth 1 searchmoves e1d1\n",
     ILEGAL + "e4e6\n" + TEXTOS + INFO + "bestmove a2a3[^\n]*\n" + ILEGAL + "e2d3\n" + TEXTOS + INFO + "bestmove e1d1[^\n]*\n"},
    {"mated, stalemated", MATE + "go movetime 9\n" + AHOGADO + "go infinite\nstop\n",
     "info depth 0 score mate 0\nbestmove 0000\ninfo depth 0 score cp 0\nbestmove 0000\n"},
    {"UTF-8, and nothing ends", "position startpos moves e2e5\nisready\n", "info string Movimiento ilegal: e2e5\n"
     "info string Enroque Blancas: 3\ninfo string Enroque Negras: 3\ninfo string Ficha al Paso: 0\n"
     "info string Posici\303\263n Rey Blanco: 60\ninfo string Posici\303\263n Rey Negro: 4\nreadyok\n"},
    {"options", "setoption name MOVE overhead value 70 \nsetoption name BookFile value /\303\263 \363" + NO_UTF8 + "\342\202\254.db\nsetoption name\n"
     "setoption name Hash value 9\nsetoption name Clear Hash\nsetoption name GaviotaTbPath value <empty>\n"
     "setoption name Threads value 2\nsetoption name A value " + std::string(300, 'x') + "\nuci\n",
     "info string Opci\303\263n desconocida: .\ninfo string Valor incorrecto para Threads.\n"
     "info string Opci\303\263n desconocida: A.\nid name [^\n]*\nid author [^\n]*\noption name Hash type spin default 9 [^\n]*\n"
     "(option [^\n]*\n){4}option name GaviotaTbPath type string default empty\n(option [^\n]*\n){2}"
     "option name Move Overhead type spin default 70 [^\n]*\n"
     "option name BookFile type string default /\303\263 \303\263" + EN_UTF8 + "\342\202\254.db\n(option [^\n]*\n){3}uciok\n"},
    {"no such book", "setoption name BookFile value none.db\nsetoption name OwnBook value true\ngo depth 1\n",
     "info string Libro de apertura cargado: No.\n" + INFO + JUGADA},
};
// clang-format on

TEST(UciCompleto, Dialogos) {
    for (const CasoCompleto& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        const std::string salida = Dialogar(caso.entrada, {"--uci-completo"});
        EXPECT_TRUE(TieneForma(salida, caso.forma)) << salida;
    }
}

// Up to the last time or speed that is printed: node counts, best move.
static std::string Juego(const std::string& entrada, const std::vector<std::string>& orden, bool completo) {
    std::vector<std::string> argumentos{"--semilla", "1"};
    if (completo) argumentos.push_back("--uci-completo");
    argumentos.insert(argumentos.end(), orden.begin(), orden.end());
    const std::string salida = Dialogar(entrada, argumentos);
    return orden.empty() ? salida.substr(salida.rfind("bestmove")) : salida.substr(0, salida.rfind(" nodes"));
}

TEST(UciCompleto, JuegaComoSiempre) {
    EXPECT_EQ(Juego("", {"bench", "3"}, true), Juego("", {"bench", "3"}, false));
    for (const std::string limite : {"go depth 0\n", "go depth 6\n"})
        EXPECT_EQ(Juego(LARGA + limite, {}, true), Juego(LARGA + limite, {}, false));
}

TEST(UciCompleto, AtiendeMientrasBusca) {
    Motor motor({"--uci-completo"});
    motor.Enviar(LARGA + "go ponder wtime 300 btime 300\n");
    EXPECT_EQ(motor.LeerHasta("bestmove", 700).find("bestmove"), std::string::npos) << "before ponderhit";
    motor.Enviar("isready\n");
    EXPECT_TRUE(motor.LeerHasta("readyok").ends_with("readyok\n"));
    motor.Enviar("ponderhit\n");
    EXPECT_TRUE(TieneForma(motor.LeerHasta("bestmove"), INFO + JUGADA));
    motor.Enviar(LARGA + "go infinite nodes 100\n");
    EXPECT_EQ(motor.LeerHasta("bestmove", 300).find("bestmove"), std::string::npos) << "before stop";
    motor.Enviar("stop\n");
    EXPECT_TRUE(TieneForma(motor.LeerHasta("bestmove"), INFO + JUGADA));
    motor.Enviar(AHOGADO + "go infinite\n");
    EXPECT_EQ(motor.LeerHasta("bestmove", 300).find("bestmove"), std::string::npos) << "before stop";
    motor.Enviar("quit\n");
    EXPECT_EQ(motor.LeerHasta("bestmove"), "bestmove 0000\n");
    EXPECT_EQ(motor.LeerHasta("nothing", 20000), "");
}
