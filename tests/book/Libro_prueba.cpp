#include "book/Libro.h"

#include <sqlite3.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "book/BaseDeDatos.h"
#include "book/LibroSql.h"
#include "comun/Tablero.h"

using Textos = std::vector<std::string>;

static void EjecutarSql(sqlite3* base, const std::string& sql) {
    ASSERT_EQ(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(base);
}

// Makes Book.db anew. definicion: what follows CREATE; each row is an SQL literal.
static void CrearBook(const std::string& definicion, const std::vector<std::string>& filas = {}) {
    std::filesystem::remove_all("Book.db");
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open("Book.db", &base), SQLITE_OK);
    EjecutarSql(base, "CREATE " + definicion);
    for (const std::string& fila : filas) EjecutarSql(base, "INSERT INTO Book VALUES (" + fila + ")");
    sqlite3_close(base);
}
static void EscribirLibro(const std::vector<std::string>& filas) {
    CrearBook("TABLE Book (Partida TEXT)", filas);
}

// The "position" command with this text behind it.
static void MandarPosicion(const std::string& texto) {
    SeguirPartida(texto.c_str());
    Position_Fen_Startpos(texto.c_str());
}

// A working directory of its own.
class Libro : public Tablero {
protected:
    void SetUp() override {
        Tablero::SetUp();
        char plantilla[] = "/tmp/tamrek_libro_XXXXXX";
        Carpeta          = mkdtemp(plantilla);
        std::filesystem::current_path(Carpeta);
        LibroSql.OwnBook = 1;
    }
    void TearDown() override {
        std::filesystem::current_path("/");
        std::filesystem::remove_all(Carpeta);
    }

private:
    std::string Carpeta;
};

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

// --- The "book" command ---

static const std::string ANALIZANDO = "Analizando libro de aperturas...\n";
static const std::string CORRECTO   = ANALIZANDO + "Libro de apertura correcto.\n";
static const std::string CORRUPTO   = "Error: Libro de aperturas corrupto.\n";
static const std::string CERRADO    = "Libro de apertura cargado: No.\n";

static std::string Error(int codigo) {
    return "Error en el libro de apertura.\nC\363digo de error: " + std::to_string(codigo) + "\n";
}

// Where the move parser prints its diagnosis, the output begins and ends so.
TEST_F(Libro, SoloLaPrimeraJugadaDelLibroPuedeFallar) {
    // clang-format off
    const struct {
        const char*              nombre;
        std::vector<std::string> filas;
        std::string              principio, fin;
    } casos[] = {
        {"legal lines", {"'e2e4 e7e5'", "'d2d4'"}, "", CORRECTO},
        {"empty table", {}, "", CORRECTO},
        {"illegal first move, no further row", {"'e2e5 e7e5'"}, "e2e5", "Libro de apertura correcto.\n"},
        {"illegal first move", {"'e2e5 e7e5'", "'d2d4'"}, "e2e5", Error(100) + "Apertura incorrecta en: e2e5 e7e5\n"},
        {"too long for the report", {"printf('%.*c', 101, 'x')", "'d2d4'"}, "xxxx",
         Error(100) + "Apertura incorrecta en: \n"},
        {"NULL first", {"NULL", "'d2d4'"}, "\n", Error(100) + "Apertura incorrecta en: \n"},
        {"illegal later", {"'e2e4 e7e4'", "'e2e5'", "NULL", "''", "x'ff00ff'", "'e2'", "'e2e4q  e7e5qqqqqqqq'"}, "",
         CORRECTO},
        {"a promotion letter is read", {"'e2e4 e7e5'", "'h2h4 g7g5 h4g5 h7h6 g5h6 g8f6 h6h7 f6g8 h7g8q'"}, "",
         CORRECTO},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        EscribirLibro(caso.filas);
        const std::string salida = Capturar(VerificarLibroApertura);
        EXPECT_TRUE(salida.ends_with(caso.fin)) << salida;
        EXPECT_TRUE(caso.principio.empty()
                        ? salida == caso.fin
                        : salida.starts_with(ANALIZANDO + "info string Movimiento ilegal: " + caso.principio))
            << salida;
        EXPECT_EQ(Salir + LibroSql.Terminado, 0);
    }
    EXPECT_EQ(TipoJuego.MovimientosJugados, 9);
    EXPECT_EQ(TableroGlobal.Casillas[6], DAMA_B);
}

// What a look-up of one game and the command print.
static void ProbarFichero(const std::string& consulta, const std::string& verificacion,
                          const char* posicion = "startpos moves e2e4") {
    PartidaNueva();
    MandarPosicion(posicion);
    EXPECT_EQ(Capturar([] { EXPECT_EQ(BuscarJugadaLibro(), 0); }), consulta);
    EXPECT_EQ(LibroSql.Terminado, 1);
    EXPECT_EQ(Capturar(VerificarLibroApertura), ANALIZANDO + verificacion);
}

TEST_F(Libro, FicherosQueNoSonUnLibro) {
    ProbarFichero("", CORRUPTO);  // missing
    std::filesystem::remove("Book.db");
    std::filesystem::create_directory("Book.db");
    ProbarFichero(CERRADO, CERRADO);
    std::filesystem::remove("Book.db");
    std::ofstream("Book.db") << std::string(5000, '#');
    ProbarFichero("", CORRUPTO);
    EscribirLibro({"'e2e4 e7e5'"});
    std::filesystem::resize_file("Book.db", 1000);
    ProbarFichero("", CORRUPTO);
    for (const char* definicion : {"VIEW Book AS SELECT 'e2e4 e7e5' AS Linea",
                                   "VIEW Book AS WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) "
                                   "SELECT 'e2e4 e7e5' AS Partida FROM n WHERE x < 0",
                                   "TABLE Book (x, Partida TEXT AS ('e2e4 e7e5'))"}) {
        CrearBook(definicion);
        ProbarFichero("", CORRUPTO);
    }
}

// The inner pages of this table name the next one 600 times each: a small file, and rows without end.
TEST_F(Libro, FilasSinFin) {
    EscribirLibro({"'d2d4 d7d5'"});
    constexpr std::size_t PAGINA = 4096, CELDA = PAGINA - 5;
    constexpr char        ULTIMA = 8;
    std::ifstream         fichero("Book.db", std::ios::binary);
    std::string           libro((std::istreambuf_iterator<char>(fichero)), {});
    const std::string     hoja = libro.substr(PAGINA);
    libro.resize(PAGINA);
    libro[31] = ULTIMA;
    for (char hija = 3; hija <= ULTIMA; ++hija) {
        std::string pagina = std::string("\5\0\0\2\130\17\373\0\0\0\0", 11) + hija;
        while (pagina.size() < 12 + 2 * 600) pagina += "\17\373";
        pagina.resize(CELDA);
        libro += pagina + std::string(3, '\0') + hija + '\1';
    }
    std::ofstream("Book.db", std::ios::binary) << libro << hoja;

    const std::string error = Error(SQLITE_INTERRUPT);
    for (const char* posicion : {"startpos moves e2e4", "startpos"})
        ProbarFichero(error, error + "Apertura incorrecta en: d2d4 d7d5\n", posicion);
}

TEST_F(Libro, NoEsperaPorUnLibroBloqueadoNiPorUnaTuberia) {
    EscribirLibro({"'e2e4 e7e5'"});
    sqlite3* otro = nullptr;
    ASSERT_EQ(sqlite3_open("Book.db", &otro), SQLITE_OK);
    EjecutarSql(otro, "BEGIN EXCLUSIVE");
    ProbarFichero("", Error(SQLITE_BUSY) + "Apertura incorrecta en: \n");
    EjecutarSql(otro, "ROLLBACK");
    sqlite3_close(otro);
    EXPECT_EQ(Capturar(VerificarLibroApertura), CORRECTO);
    ASSERT_EQ(mkfifo("Book.db-journal", 0600), 0);
    ProbarFichero(CERRADO, CERRADO);
    const char* const ruta = "Book.db";
    FijarRutasLibro(&ruta, 1);
    ProbarFichero(CERRADO, CERRADO);
}

TEST_F(Libro, RutasPropiasNiSeCreanNiSeEscriben) {
    EscribirLibro({"'e2e4 e7e5'"});
    std::filesystem::rename("Book.db", "otro.db");
    std::filesystem::permissions("otro.db", std::filesystem::perms::owner_read);
    std::ofstream("vacio.db").close();
    const char* const rutas[] = {"falta.db", "vacio.db", "otro.db"};
    FijarRutasLibro(rutas, 3);
    EXPECT_EQ(Responder({"startpos moves e2e4"}), "e7e5");
    FijarRutasLibro(rutas, 1);
    EXPECT_EQ(Capturar([] { EXPECT_EQ(BuscarJugadaLibro(), 0); }), "Libro de apertura cargado: No.\n");
    EXPECT_EQ(std::filesystem::exists("falta.db") || std::filesystem::exists("Book.db"), false);
}
