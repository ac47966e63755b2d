// Playing with the tablebases, seen from an interface: the real program on pipes.
#include <cstdlib>
#include <fstream>
#include <random>

#include "tablebases/Analisis.h"
#include "tablebases/Biblioteca.h"
#include "uci/Motor.h"

static const std::string SIN_BIBLIOTECA = "info string Error loading dll library gtbprobe_x64.dll.\n";
static const std::string USAR           = "setoption name GaviotaTbUse value true\nisready\n";

struct Partida : testing::Test {
    std::optional<Motor> M;
    // Starts the program where it finds the library in this folder.
    void Empezar(const std::string& carpeta) {
        setenv("LD_LIBRARY_PATH", carpeta.c_str(), 1);
        M.emplace();
    }
    bool EmpezarConTablas() {
        if (!std::filesystem::exists(BIBLIOTECA_REAL)) return false;
        Empezar(std::filesystem::path(BIBLIOTECA_REAL).parent_path());
        M->Enviar("setoption name ShowPv value Full\nsetoption name GaviotaTbPath value " + TABLAS_REALES + "4\n" +
                  USAR);
        return M->LeerHasta("readyok").find("3-pc TBs complete") != std::string::npos;
    }
    std::string Buscar(const std::string& fen, const std::string& limite = "depth 8") {
        M->Enviar("position fen " + fen + "\ngo " + limite + "\n");
        return M->LeerHasta("bestmove");
    }
};

TEST_F(Partida, SinBibliotecaSigueJugando) {
    Empezar("/nowhere");
    M->Enviar(USAR + "isready\nposition startpos\ngo depth 2\n");
    const std::string salida = M->Terminar();
    if (salida.starts_with("\nGTB")) GTEST_SKIP() << "a probing library is installed on this system";
    EXPECT_TRUE(salida.starts_with(SIN_BIBLIOTECA + "readyok\n" + SIN_BIBLIOTECA + "readyok\n")) << salida;
    EXPECT_NE(salida.find("\nbestmove "), std::string::npos);
    EXPECT_EQ(salida.find("wait status"), std::string::npos) << salida;
}

// Every reload leaves descriptors open in the library.
TEST_F(Partida, SinDescriptoresSigueJugando) {
    if (!std::filesystem::exists(BIBLIOTECA_REAL)) GTEST_SKIP() << SIN_PAQUETES;
    const std::string fichero = testing::TempDir() + "/tamrek_ordenes_" + std::to_string(getpid());
    {
        std::ofstream ordenes(fichero);
        ordenes << "setoption name GaviotaTbPath value " << TABLAS_REALES << "4\n";
        for (int i = 0; i < 20; ++i) ordenes << "setoption name GaviotaTbUse value false\nisready\n" << USAR;
        for (const char* pieza : {"P", "B", "N"})
            ordenes << "position fen 7k/8/6K1/8/8/1" << pieza << "6/8/8 w - - 0 1\ngo depth 6\n";
    }
    for (const char* limite : {"8", "64"}) {
        const std::string salida = fichero + limite;
        const std::string orden  = "(export LD_LIBRARY_PATH=" GAVIOTA_REAL "/biblioteca; ulimit -n " +
                                  std::string(limite) + "; exec " TAMREK_PROGRAMA ") < " + fichero + " > " + salida;
        EXPECT_EQ(std::system(orden.c_str()), 0);
        std::string texto;
        std::getline(std::ifstream(salida), texto, '\0');
        EXPECT_NE(texto.find("Error: Demasiados ficheros abiertos"), std::string::npos) << texto;
        EXPECT_EQ(texto.find("3-pc TBs complete") == std::string::npos, limite == std::string("8"));
        EXPECT_NE(texto.find("\nbestmove"), std::string::npos);
        std::filesystem::remove(salida);
    }
    std::filesystem::remove(fichero);
}

// The number behind "score mate", 0 when the last line announces none.
static int MateAnunciado(const std::string& salida) {
    const std::size_t mate = salida.rfind(" score mate ");
    return mate == std::string::npos || salida.find(" score ", mate + 1) != std::string::npos
               ? 0
               : std::atoi(salida.c_str() + mate + 12);
}

static const char* Jugada(const std::string& salida) {
    return salida.c_str() + salida.rfind("bestmove ") + 9;
}
static int Casilla(const std::string& salida, int letra) {
    return (Jugada(salida)[letra] - 'a') + 8 * ('8' - Jugada(salida)[letra + 1]);
}
static char Corona(const std::string& salida) {
    return Jugada(salida)[4];
}

static std::string Fen(const std::vector<std::pair<int, char>>& piezas, char mueve) {
    std::string fen;
    for (int casilla = 0; casilla < 64; ++casilla) {
        char letra = '1';
        for (const auto& [donde, pieza] : piezas)
            if (donde == casilla) letra = pieza;
        fen += letra;
        if (casilla % 8 == 7 && casilla < 63) fen += '/';
    }
    return fen + ' ' + mueve + " - - 0 1";
}

TEST_F(Partida, GanaYAnunciaSinPerderUnaJugada) {
    if (!EmpezarConTablas()) GTEST_SKIP() << SIN_PAQUETES;
    Analisis dama{'Q'}, torre{'R'}, peon{'P', {&dama, &torre}};
    for (Analisis* a : {&dama, &torre, &peon}) a->Calcular();
    std::mt19937 azar(1);
    for (int partida = 0; partida < 60; ++partida) {
        const Analisis* a   = partida < 20 ? &dama : partida < 40 ? &torre : &peon;
        int             rey = 0, figura = 0, solo = 0, n = SIN_DECIDIR;
        for (; n == SIN_DECIDIR; n = a->De(1, rey, figura, solo)) {
            const auto numero = static_cast<int>(azar() >> 8);
            rey = numero & 63, figura = numero >> 6 & 63, solo = numero >> 12 & 63;
        }
        while (n > 0) {
            const std::string fen    = Fen({{rey, 'K'}, {figura, a->Pieza}, {solo, 'k'}}, 'w');
            const std::string salida = Buscar(fen);
            SCOPED_TRACE(fen + "\n" + salida);
            ASSERT_EQ(MateAnunciado(salida), (n + 1) / 2);
            EXPECT_EQ(salida.find(" tbhits 0 "), std::string::npos);
            (Casilla(salida, 0) == rey ? rey : figura) = Casilla(salida, 2);
            if (a == &peon && figura < 8) a = Corona(salida) == 'q' ? &dama : &torre;
            ASSERT_EQ(a->De(0, rey, figura, solo), n - 1);
            n -= 2;
            for (int b = 0, de = solo; b < 64 && n > 0; ++b)  // the longest defence
                if (Analisis::Distancia(de, b) == 1 && a->De(1, rey, figura, b) == n) solo = b;
        }
    }

    enum { G7 = 14, D5 = 27, C5 = 26, E4 = 36 };
    const int con_rey = peon.De(0, D5, E4, G7), con_peon = peon.De(0, C5, D5, G7);
    ASSERT_LT(con_peon, con_rey);
    ASSERT_LT(con_rey, SIN_DECIDIR);
    const std::string salida = Buscar("8/6k1/8/2Kp4/4P3/8/8/8 w - - 0 1");
    EXPECT_EQ(MateAnunciado(salida), (con_peon + 2) / 2);
    EXPECT_NE(salida.find("\nbestmove e4d5"), std::string::npos) << salida;
}

TEST_F(Partida, ConMuchasPiezasBuscaLoMismo) {
    if (!EmpezarConTablas()) GTEST_SKIP() << SIN_PAQUETES;
    const std::string fen   = "r1bqkb1r/pppp1ppp/2n2n2/4p3/2B1P3/5N2/PPPP1PPP/RNBQK2R w KQkq - 4 4";
    const auto        Nodos = [&](const std::string& salida) {
        const std::size_t linea = salida.rfind("info depth");
        return salida.substr(salida.find(" nodes ", linea),
                                    salida.find(" nps ", linea) - salida.find(" nodes ", linea));
    };
    const std::string con = Nodos(Buscar(fen));
    M->Enviar("setoption name GaviotaTbUse value false\nisready\nucinewgame\n");
    EXPECT_EQ(M->LeerHasta("readyok"), "readyok\n");
    EXPECT_EQ(Nodos(Buscar(fen)), con);
    M->Enviar(USAR);  // the program ends with the library loaded
    EXPECT_TRUE(M->Terminar().ends_with("readyok\n"));
}
