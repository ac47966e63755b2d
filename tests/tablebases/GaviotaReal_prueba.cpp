// The real library and its tables: what is printed at loading, odd folders and damaged tables.
#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <fstream>
#include <sstream>

#include "board/Ataques.h"
#include "board/Geometria.h"
#include "eval/finales/Kpk.h"
#include "tablebases/Biblioteca.h"

namespace fs = std::filesystem;

static const std::string SIN_TABLAS = "No 3-pc TBs available\nNo 4-pc TBs available\nNo 5-pc TBs available\n";
static const std::string TRES = "3-pc TBs available\n3-pc TBs complete\nNo 4-pc TBs available\nNo 5-pc TBs available\n";
static const std::string ILEGIBLE = "info string Error: Tabla de finales gaviota ilegible: ";
static const std::string ESTADO   = "Initialized: Ok\n\nState cache: Ok\n\n";
constexpr char           KQK[]    = "7k/8/6K1/8/8/8/8/1Q6 w - - 0 1";
constexpr int            MATE_KQK = 31998;  // in one ply: Qb8

struct Real : Tablero {
    BibliotecaPuesta Biblioteca{BIBLIOTECA_REAL};
    fs::path         Carpeta = testing::TempDir() + "/tamrek_tablas_" + std::to_string(getpid());

    void SetUp() override {
        if (Biblioteca.Mango == nullptr) GTEST_SKIP() << SIN_PAQUETES;
        Tablero::SetUp();
        fs::create_directory(Carpeta);
        IniciarOpcionesGaviota();
    }
    ~Real() override {
        Actualizar(0);
        fs::remove_all(Carpeta);
    }
    fs::path CopiarTablas(const std::string& nombre, int compresion = 4) {
        fs::remove_all(Carpeta / nombre);
        fs::create_directories(Carpeta / nombre);
        fs::copy(TABLAS_REALES + std::to_string(compresion), Carpeta / nombre);
        return Carpeta / nombre;
    }
};

static std::string Informe(const std::string& ruta, int compresion) {
    return "\nGTB PATHS\n  main: " + ruta +
           "\n\nGTB initialization\n  Compression  Scheme = " + std::to_string(compresion) +
           "\n  Compression Indexes (3-pc) = PASSED\n" +
           "  Compression Indexes (4-pc) = **FAILED**\n  Compression Indexes (5-pc) = **FAILED**\n\n\n" + ESTADO + TRES;
}

TEST_F(Real, EsquemasCachesYCarpetas) {
    for (const auto& [compresion, cache] : {std::pair{1, 0}, {2, 1}, {3, 32}, {4, 1014}}) {
        const std::string ruta = TABLAS_REALES + std::to_string(compresion);
        EXPECT_EQ(Recargar(ruta, compresion, cache), Informe(ruta, compresion));
        EXPECT_EQ(Sondear(KQK), MATE_KQK) << compresion;
    }
    const std::string larga = CopiarTablas(std::string(200, 'a')).string() + "/";
    const fs::path    hasta = larga + std::string(RUTA_MAX - larga.size(), 'b');
    fs::rename(CopiarTablas("c"), hasta);
    for (const std::string& ruta : {hasta.string(), CopiarTablas("dos  blancos \361\303\261 %s").string()}) {
        EXPECT_EQ(Recargar(ruta), Informe(ruta, 4));
        EXPECT_EQ(Sondear(KQK), MATE_KQK) << ruta;
    }

    const fs::path cerrada = CopiarTablas("cerrada");
    fs::permissions(cerrada, fs::perms::none);
    const bool administrador = geteuid() == 0 && seteuid(65534) == 0;  // who may read everything
    for (const std::string& ruta : {cerrada.string(), std::string("empty"), std::string(RUTA_MAX, 'x')}) {
        EXPECT_TRUE(Recargar(ruta).ends_with(SIN_TABLAS + (ruta == cerrada ? ILEGIBLE + "kpk.gtb.cp4\n" : "")));
        EXPECT_EQ(Sondear(KQK), std::nullopt) << ruta;
    }
    for (const int compresion : {0, 5}) EXPECT_TRUE(Recargar(TABLAS_REALES + "4", compresion).ends_with(SIN_TABLAS));
    UciCompleto.Activo      = 1;
    const std::string pista = "info string No hay tablas de finales gaviota del esquema 3 en ";
    for (const auto& [ruta, hay] : {std::pair{TABLAS_REALES + "4;" + TABLAS_REALES + "1", "; las hay del esquema 1 4"},
                                    {std::string("empty"), ""}})
        EXPECT_TRUE(Recargar(ruta, 3).ends_with(SIN_TABLAS + pista + ruta + hay + ".\n"));
    EXPECT_TRUE(Recargar(TABLAS_REALES + "3", 3).ends_with(TRES));
    EXPECT_EQ(administrador ? seteuid(0) : 0, 0);
    fs::permissions(cerrada, fs::perms::owner_all);
}

// The table without its last block: head, index and size agree.
static std::string QuitarBloque(std::string tabla) {
    auto* const         palabras = reinterpret_cast<std::uint32_t*>(tabla.data());
    const std::uint32_t fin      = palabras[8] / 4;  // of the index, which begins behind ten words
    tabla.resize(palabras[fin - 2]);
    for (std::uint32_t i = 10; i < fin; ++i) palabras[i] -= 4;
    palabras[8] -= 4;
    return tabla.erase(4 * (fin - 1), 4);
}

TEST_F(Real, TablasDanadas) {
    std::ostringstream fichero;
    fichero << std::ifstream(TABLAS_REALES + "4/kqk.gtb.cp4", std::ios::binary).rdbuf();
    const std::string sana      = fichero.str();
    const auto        Sustituir = [&sana](std::size_t lugar, const char* octetos) {
        return std::string(sana).replace(lugar, std::strlen(octetos), octetos);
    };
    // Cut, too long, overwritten, a block missing, the end of the index lost or odd, an index that does not rise.
    const std::string danadas[] = {"",
                                   sana.substr(0, 20),
                                   sana.substr(0, 50),
                                   sana.substr(0, sana.size() / 2),
                                   sana.substr(0, sana.size() - 1),
                                   sana + "x",
                                   std::string(sana.size(), '\377'),
                                   QuitarBloque(sana),
                                   Sustituir(32, "\377\377\377\377"),
                                   Sustituir(32, "\075"),
                                   Sustituir(46, "\001")};
    for (const std::string& danada : danadas) {
        SCOPED_TRACE(&danada - danadas);
        const fs::path ruta = CopiarTablas("d");
        std::ofstream(ruta / "kqk.gtb.cp4", std::ios::binary) << danada;
        EXPECT_TRUE(Recargar("/nowhere/;" + ruta.string()).ends_with(TRES + ILEGIBLE + "kqk.gtb.cp4\n"));
        EXPECT_EQ(Sondear(KQK), std::nullopt);
    }
    const fs::path tuberia = CopiarTablas("d") / "kqk.gtb.cp4";
    fs::remove(tuberia);
    ASSERT_EQ(mkfifo(tuberia.c_str(), 0600), 0);
    EXPECT_EQ(Recargar(tuberia.parent_path()),
              "info string Error: Fichero ilegible para la tabla de finales gaviota.\n");
}

// Every position of king and pawn against king, the pawn White's and Black's: squares, side to move and result, and
// beside them the evaluation's own knowledge of this ending.
TEST_F(Real, ReyYPeonComoElEvaluador) {
    IniciarKpk();
    Recargar(TABLAS_REALES + "4");
    int diferencias = 0;
    for (const bool reflejada : {false, true}) {
        Fen("8/8/8/8/P7/1k6/8/K7 w - - 0 1", reflejada);  // sets the piece counters
        TableroGlobal.Ply           = 1;
        TipoJuego.ProfundidadActual = 1;
        int* const t                = TableroGlobal.Casillas;
        for (int i = 0; i < 2 * 64 * 64 * 64; ++i) {
            const int mueve = i >> 18, rey = i >> 12 & 63, peon = i >> 6 & 63, solo = i & 63;
            if (peon < 8 || peon > 55 || rey == peon || solo == peon || DistanciaRey(rey, solo) < 2) continue;
            std::fill_n(t, 64, static_cast<int>(VACIO));
            const int espejo = reflejada ? 56 : 0, desfase = reflejada ? DESFASE_NEGRO : 0;
            t[rey ^ espejo]     = REY_B + desfase;
            t[peon ^ espejo]    = PEON_B + desfase;
            t[solo ^ espejo]    = REY_N - desfase;
            TableroGlobal.Turno = reflejada ? 1 - mueve : mueve;
            if (mueve == 1 && (reflejada ? AmenazadoPorPeonNegro : AmenazadoPorPeonBlanco)(solo ^ espejo)) continue;
            const int puntos = SondearActual().value_or(1) * (mueve == 1 ? 1 : -1);
            diferencias += KpkGana(rey, peon, solo, mueve == 1) == 1 ? puntos <= UMBRAL_MATE : puntos != 0;
        }
    }
    EXPECT_EQ(diferencias, 0);
}
