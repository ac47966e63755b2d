#include <fstream>

#include "book/CarpetaLibro.h"

using VerificarLibro = CarpetaLibro;

static const std::string ANALIZANDO = "Analizando libro de aperturas...\n";
static const std::string CORRECTO   = ANALIZANDO + "Libro de apertura correcto.\n";
static const std::string CORRUPTO   = ANALIZANDO + "Error: Libro de aperturas corrupto.\n";
static const std::string CERRADO    = "Libro de apertura cargado: No.\n";

static std::string Error(int codigo) {
    return "Error en el libro de apertura.\nC\363digo de error: " + std::to_string(codigo) + "\n";
}

// Where the move parser prints its diagnosis, the output begins and ends so.
TEST_F(VerificarLibro, SoloLaPrimeraJugadaDelLibroPuedeFallar) {
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

// Each file is tried with a look-up of one game and with the command.
TEST_F(VerificarLibro, FicherosQueNoSonUnLibro) {
    const struct {
        const char*           nombre;
        std::function<void()> preparar;
        std::string           consulta;
        std::string           verificacion;
    } casos[] = {
        {"missing", [] {}, "", CORRUPTO},
        {"folder", [] { std::filesystem::create_directory("Book.db"); }, CERRADO, ANALIZANDO + CERRADO},
        {"garbage", [] { std::ofstream("Book.db") << std::string(5000, '#'); }, "", CORRUPTO},
        {"cut short",
         [] {
             EscribirLibro({"'e2e4 e7e5'"});
             std::filesystem::resize_file("Book.db", 1000);
         },
         "", CORRUPTO},
        {"other table", [] { CrearBook("VIEW Book AS SELECT 'e2e4 e7e5' AS Linea"); }, "", CORRUPTO},
        {"endless view",
         [] {
             CrearBook(
                 "VIEW Book AS WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n) "
                 "SELECT 'e2e4 e7e5' AS Partida FROM n WHERE x < 0");
         },
         "", CORRUPTO},
        {"computed column", [] { CrearBook("TABLE Book (x, Partida TEXT AS ('e2e4 e7e5'))"); }, "", CORRUPTO},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        std::filesystem::remove_all("Book.db");
        caso.preparar();
        LibroSql.Terminado = 0;
        MandarPosicion("startpos moves e2e4");
        EXPECT_EQ(Capturar([] { EXPECT_EQ(BuscarJugadaLibro(), 0); }), caso.consulta);
        EXPECT_EQ(LibroSql.Terminado, 1);
        EXPECT_EQ(Capturar(VerificarLibroApertura), caso.verificacion);
    }
}

// The inner pages of this table name the next one 600 times each: a small file, and rows without end.
TEST_F(VerificarLibro, FilasSinFin) {
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
    for (const char* posicion : {"startpos moves e2e4", "startpos"}) {
        LibroSql.Terminado = 0;
        LimpiarLineaLibro();
        Position_Fen_Startpos(posicion);
        EXPECT_EQ(Capturar([] { EXPECT_EQ(BuscarJugadaLibro(), 0); }), error) << posicion;
        EXPECT_EQ(LibroSql.Terminado, 1);
    }
    EXPECT_EQ(Capturar(VerificarLibroApertura), ANALIZANDO + error + "Apertura incorrecta en: d2d4 d7d5\n");
}

TEST_F(VerificarLibro, NoEsperaPorUnLibroBloqueado) {
    EscribirLibro({"'e2e4 e7e5'"});
    sqlite3* otro = nullptr;
    ASSERT_EQ(sqlite3_open("Book.db", &otro), SQLITE_OK);
    EjecutarSql(otro, "BEGIN EXCLUSIVE");
    MandarPosicion("startpos moves e2e4");
    EXPECT_EQ(Capturar([] { EXPECT_EQ(BuscarJugadaLibro(), 0); }), "");
    EXPECT_EQ(Capturar(VerificarLibroApertura), ANALIZANDO + Error(SQLITE_BUSY) + "Apertura incorrecta en: \n");
    EjecutarSql(otro, "ROLLBACK");
    sqlite3_close(otro);
    EXPECT_EQ(Capturar(VerificarLibroApertura), CORRECTO);
}
