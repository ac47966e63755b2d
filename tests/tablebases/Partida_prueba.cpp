// Playing with the tablebases, seen from an interface: the real program on pipes.
#include "comun/Motor.h"
#include "comun/Tablero.h"
#include "tablebases/Biblioteca.h"

static const std::string SIN_BIBLIOTECA = "info string Error loading dll library gtbprobe_x64.dll.\n";
static const std::string USAR           = "setoption name GaviotaTbUse value true\nisready\n";

struct Partida : Tablero {
    std::optional<Motor> M;
    // Starts the program where it finds the library in this folder.
    void Empezar(const std::string& carpeta, unsigned descriptores = 0) {
        setenv("LD_LIBRARY_PATH", carpeta.c_str(), 1);
        M.emplace(std::vector<std::string>(), descriptores);
    }
    bool EmpezarConTablas() {
        if (!std::filesystem::exists(BIBLIOTECA_REAL)) return false;
        Empezar(std::filesystem::path(BIBLIOTECA_REAL).parent_path());
        M->Enviar("setoption name ShowPv value Full\nsetoption name GaviotaTbPath value " + TABLAS_REALES + "4\n" +
                  USAR);
        return M->LeerHasta("readyok").find("3-pc TBs complete") != std::string::npos;
    }
    std::string Buscar(const std::string& posicion) {
        M->Enviar("position " + posicion + "\ngo depth 8\n");
        return M->LeerHasta("bestmove");
    }
};

TEST_F(Partida, SinBibliotecaSigueJugando) {
    Empezar("/nowhere");
    M->Enviar(USAR + "isready\nposition startpos\ngo depth 2\n");
    const std::string salida = M->Terminar();
    if (salida.starts_with("\nGTB")) GTEST_SKIP() << "a probing library is installed on this system";
    EXPECT_TRUE(TieneForma(salida, "(" + SIN_BIBLIOTECA + "readyok\n){2}(info .*\n)*bestmove [^\n]*\n")) << salida;
}

// The library forgets a descriptor of each table at every reload, which must not add up.
TEST_F(Partida, SinDescriptoresSigueJugando) {
    if (!std::filesystem::exists(BIBLIOTECA_REAL)) GTEST_SKIP() << SIN_PAQUETES;
    std::string ordenes = "setoption name GaviotaTbPath value " + TABLAS_REALES + "4\n";
    for (int i = 0; i < 20; ++i) ordenes += "setoption name GaviotaTbUse value false\nisready\n" + USAR;
    for (const char* pieza : {"P", "B", "N"})
        ordenes += std::string("position fen 7k/8/6K1/8/8/1") + pieza + "6/8/8 w - - 0 1\ngo depth 6\n";
    for (const unsigned limite : {8U, 64U}) {
        Empezar(std::filesystem::path(BIBLIOTECA_REAL).parent_path(), limite);
        M->Enviar(ordenes);
        const std::string salida = M->Terminar();
        EXPECT_EQ(salida.find("Error: Demasiados ficheros abiertos") != std::string::npos, limite == 8) << salida;
        EXPECT_EQ(salida.find("3-pc TBs complete") == std::string::npos, limite == 8);
        EXPECT_TRUE(TieneForma(salida, "(.*\n)*bestmove [^\n]*\n"));
    }
}

TEST_F(Partida, GanaYAnunciaSinPerderUnaJugada) {
    if (!EmpezarConTablas()) GTEST_SKIP() << SIN_PAQUETES;
    const BibliotecaPuesta biblioteca{BIBLIOTECA_REAL};
    IniciarOpcionesGaviota();
    Recargar(TABLAS_REALES + "4");
    TipoJuego.ProfundidadActual = 1;
    const auto Plies            = [] {
        const int ply     = std::exchange(TableroGlobal.Ply, 1);  // where the tables are read from the files
        const int puntos  = SondearActual().value_or(0);
        TableroGlobal.Ply = ply;
        return VALOR_TB - std::abs(puntos);
    };
    for (const std::string fen :
         {"8/8/8/3k4/8/8/8/KQ6 w - - 0 1", "kr6/8/8/8/4K3/8/8/8 b - - 0 1", "8/8/8/4k3/8/8/3PK3/8 w - - 0 1"}) {
        std::string jugadas;
        Fen(fen);
        for (int n = Plies(); n > 0; n -= 2) {
            const std::string salida = Buscar("fen " + fen + (jugadas.empty() ? "" : " moves") + jugadas);
            SCOPED_TRACE(fen + jugadas + "\n" + salida);
            ASSERT_EQ(Tras(salida, "score mate"), std::to_string((n + 1) / 2));
            EXPECT_NE(Tras(salida, "tbhits"), "0");
            std::string jugada = Tras(salida, "bestmove");
            Jugar({jugada});
            jugadas += " " + jugada;
            ASSERT_EQ(Plies(), n - 1);
            for (const std::uint32_t mov : Generar()) {  // the longest defence
                const bool larga = HacerMovimiento(mov) != 0 && Plies() == n - 2;
                DeshacerMovimiento();
                if (larga) jugada = Texto(mov);
            }
            if (n == 1) break;
            Jugar({jugada});
            jugadas += " " + jugada;
            TableroGlobal.Ply = 0;
        }
    }
    // The capture leads into the tables.
    EXPECT_EQ(Tras(Buscar("fen 8/6k1/8/2Kp4/4P3/8/8/8 w - - 0 1"), "bestmove"), "e4d5");
    Actualizar(0);
}

TEST_F(Partida, ConMuchasPiezasBuscaLoMismo) {
    if (!EmpezarConTablas()) GTEST_SKIP() << SIN_PAQUETES;
    const std::string con = Tras(Buscar("startpos"), "nodes");
    M->Enviar("setoption name GaviotaTbUse value false\nisready\nucinewgame\n");
    EXPECT_EQ(Tras(Buscar("startpos"), "nodes"), con);
}
