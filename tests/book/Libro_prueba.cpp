#include <fstream>
#include <set>
#include <sstream>

#include "book/CarpetaLibro.h"

using Textos = std::vector<std::string>;

using Libro = CarpetaLibro;

static void PartidaNueva() {
    LibroSql.Terminado = 0;
    LimpiarLineaLibro();
}

// The reply of the book, "" for none.
static std::string Responder(const Textos& posiciones) {
    for (const std::string& posicion : posiciones) MandarPosicion(posicion);
    return BuscarJugadaLibro() != 0 ? LibroSql.Movimiento : "";
}

struct CasoLibro {
    const char*           nombre;
    Textos                filas;
    Textos                posiciones;  // "position" commands before "go"
    std::set<std::string> respuestas;  // all that the seeds of rand() reach
    int                   limite = LIMITE_LIBRO_VALOR;
};

// clang-format off
static const CasoLibro CASOS[] = {
    {"one row at the start: the offset may lie behind it", {"'d2d4 d7d5'"}, {"startpos"}, {"d2d4", ""}},
    {"empty table", {}, {"startpos"}, {""}},
    {"every continuation", {"'e2e4 e7e5 g1f3'", "'e2e4 c7c5'", "'d2d4 d7d5'"}, {"startpos moves e2e4"}, {"e7e5", "c7c5"}},
    {"a row that ends here beside others", {"'e2e4'", "'e2e4 e7e6'"}, {"startpos moves e2e4"}, {"", "e7e6"}},
    {"line that no row continues", {"'e2e4 e7e5'"}, {"startpos moves g1f3"}, {""}},
    {"move list with a blank at its end", {"'e2e4 e7e5'"}, {"startpos moves e2e4 "}, {"e7e5"}},
    {"rows that are no lines", {"NULL", "x'65326534'", "''", "'e2e4'||char(0)||'e7e5'"}, {"startpos"}, {"", "e2e4"}},
    {"very long rows", {"printf('e2e4 e7e5 %.*c', 1100000, 'x')", "printf('%.*c', 1100000, 'x')", "'e2e4 c7c5'"},
     {"startpos moves e2e4"}, {"e7e5", "c7c5"}},
    {"capital letters match LIKE, but are no move", {"'E2E4 E7E5'"}, {"startpos moves e2e4"}, {""}},
    {"illegal moves", {"'e2e4 e7e4'", "'e2e4 e8e7'", "'e2e4 e7e5q'"}, {"startpos moves e2e4"}, {"", "e7e5"}},
    {"a king left in check", {"'e2e4 e7e5 d1h5 f7f6'"}, {"startpos moves e2e4 e7e5 d1h5"}, {""}},
    {"a promotion has five characters", {"'h2h4 g7g5 h4g5 h7h6 g5h6 g8f6 h6h7 f6g8 h7g8q'"},
     {"startpos moves h2h4 g7g5 h4g5 h7h6 g5h6 g8f6 h6h7 f6g8"}, {""}},
    {"four plies with limit 2", {"'e2e4 e7e5 g1f3 b8c6 f1b5'"}, {"startpos moves e2e4 e7e5 g1f3 b8c6"}, {"f1b5"}, 2},
    {"twenty characters", {"'e2e4 e7e5 g1f3 b8c6 d2d4'"}, {"startpos moves e2e4 e7e5 g1f3 b8c6 "}, {""}, 2},
    {"FEN", {"'e2e4 e7e5'"}, {"fen rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1"}, {""}},
    {"line of another game", {"'e2e4 e7e5'"}, {"startpos moves e2e4", "startpos"}, {""}},
    {"quotes never reach the query", {"'e2e4 e7e5'"}, {"startpos moves e2e4 ' OR 1 OR '"}, {""}},
    {"wild card", {"'e2e4 e7e5 g1f3'"}, {"startpos moves e2e4 %"}, {""}},
};
// clang-format on

TEST_F(Libro, RespondeConCadaContinuacionYNadaMas) {
    for (const CasoLibro& caso : CASOS) {
        EscribirLibro(caso.filas);
        LibroSql.OwnBookLimit = caso.limite;
        std::set<std::string> respuestas;
        for (unsigned semilla = 1; semilla <= 40; ++semilla) {
            PartidaNueva();
            std::srand(semilla);
            respuestas.insert(Responder(caso.posiciones));
        }
        EXPECT_EQ(respuestas, caso.respuestas) << caso.nombre;
    }
}

TEST_F(Libro, EligeEntreQuinceFilas) {
    Textos                filas;
    std::set<std::string> primeras;
    Fen("rnbqkbnr/pppppppp/8/8/4P3/8/PPPP1PPP/RNBQKBNR b KQkq - 0 1");
    for (const std::uint32_t mov : Generar()) {
        filas.push_back("'e2e4 " + Texto(mov) + "'");
        if (filas.size() <= 15) primeras.insert(Texto(mov));
    }
    EscribirLibro(filas);
    std::set<std::string> respuestas;
    for (int i = 0; i < 1000; ++i) {
        PartidaNueva();
        respuestas.insert(Responder({"startpos moves e2e4"}));
    }
    EXPECT_EQ(respuestas, primeras);
}

TEST_F(Libro, QuedaTerminadoHastaLaPartidaSiguiente) {
    EscribirLibro({"'e2e4 e7e5 g1f3'"});
    EXPECT_EQ(Responder({"startpos moves e2e4"}), "e7e5");
    EXPECT_EQ(Responder({"startpos moves e2e4 e7e5"}), "g1f3");
    EXPECT_EQ(Responder({"startpos moves e2e4 c7c5"}), "");
    EXPECT_EQ(Responder({"startpos moves e2e4"}), "");
    PartidaNueva();
    EXPECT_EQ(Responder({"startpos moves e2e4"}), "e7e5");
    LibroSql.OwnBook = 0;
    MandarPosicion("startpos moves e2e4");
    LibroSql.OwnBook = 1;
    EXPECT_EQ(BuscarJugadaLibro(), 0) << "\"position\" found the option off";
}

TEST_F(Libro, NoPierdeMemoriaEnMuchasConsultas) {
    EscribirLibro({"'e2e4 e7e5'"});
    sqlite3_int64 antes = 0;
    for (int i = 0; i < 2000; ++i) {
        PartidaNueva();
        Responder({"startpos moves e2e4"});
        ComprobarAccesoLibro();
        if (i == 0) antes = sqlite3_memory_used();
    }
    EXPECT_EQ(sqlite3_memory_used(), antes);
    EXPECT_TRUE(LibroSql.Conexion == nullptr && LibroSql.Sentencia == nullptr);
}

TEST_F(Libro, ElProgramaContestaConDosLineas) {
    EscribirLibro({"'e2e4 c7c5'"});
    std::ofstream("ordenes") << "setoption name OwnBook value true\nposition startpos moves e2e4\ngo infinite\n";
    ASSERT_EQ(std::system(TAMREK_PROGRAMA " < ordenes > salida"), 0);
    std::string salida;
    std::getline(std::ifstream("salida"), salida, '\0');
    EXPECT_EQ(salida, "bestmove c7c5\ninfo string Libro de aperturas.\n");
}

// The lines of the book that comes with the engine.
TEST_F(Libro, CadaLineaDelMotorSeJuegaEntera) {
    std::ifstream         fichero(TAMREK_APERTURAS);
    std::set<std::string> lineas;
    for (std::string linea; std::getline(fichero, linea);) {
        if (linea.empty() || linea.starts_with('#')) continue;
        SCOPED_TRACE(linea);
        EXPECT_TRUE(lineas.insert(linea).second) << "twice";
        EXPECT_TRUE(linea.size() % 5 == 4 && linea.size() <= LINEA_LIBRO_MAX);
        Fen(FEN_INICIAL);
        std::istringstream jugadas(linea);
        for (std::string jugada; jugadas >> jugada;) Jugar({jugada});
    }
    EXPECT_GE(lineas.size(), 600U);
}
