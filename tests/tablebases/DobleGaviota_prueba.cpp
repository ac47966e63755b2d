// What the engine asks of the probing library, seen from a stand-in that writes down every call.
#include "tablebases/DobleGaviota.h"

#include <climits>
#include <fstream>
#include <sstream>

#include "board/Puntuacion.h"
#include "tablebases/Biblioteca.h"

static const std::string FICHERO = GAVIOTA_DOBLE "/gtbprobe_x64.dll";
static const std::string ERROR   = "info string Error loading dll library gtbprobe_x64.dll.\n";

constexpr char FEN_3[] = "8/8/8/4k3/8/8/8/4KQ2 w - - 0 1";
constexpr char FEN_4[] = "8/8/8/4k3/8/8/4p3/4KQ2 w - - 0 1";
constexpr char FEN_5[] = "8/8/8/4k3/8/8/4p1p1/4KQ2 w - - 0 1";

struct Doble : testing::Test {
    BibliotecaPuesta Biblioteca{FICHERO};
    DobleGaviota&    D = *static_cast<DobleGaviota*>(dlsym(Biblioteca.Mango, "doble"));

    Doble() {
        IniciarOpcionesGaviota();
        D = {"", nullptr, 1, 63, 1, 0, 0};
    }
    std::string Llamadas() {
        const std::string llamadas = D.Registro;
        D.Registro[0]              = '\0';
        return llamadas;
    }
};

TEST_F(Doble, CargaYDescargaEnSuOrden) {
    D.Mensaje = "report";
    EXPECT_EQ(Recargar("/tb", 3, 1014),
              "report\nInitialized: Ok\n\nState cache: Ok\n\n3-pc TBs available\n3-pc TBs complete\n"
              "4-pc TBs available\n4-pc TBs complete\n5-pc TBs available\n5-pc TBs complete\n");
    const std::string carga =
        "tbpaths_done(null) tbpaths_init() tbpaths_add(init /tb) tb_restart(1 3 add) tbcache_restart(1063256064 16) "
        "tb_init(1 3 add) tbcache_init(1063256064 16) tbstats_reset() ";
    EXPECT_EQ(Llamadas(), carga);
    tbprobe_Gaviota.Compresion = 2;
    EXPECT_EQ(Actualizar(1), "");  // loaded already: nothing happens
    EXPECT_EQ(Llamadas(), "");
    EXPECT_EQ(Actualizar(0), "");
    EXPECT_EQ(Llamadas(), "tbcache_flush() tbcache_done() tb_done() tbpaths_done(add) ");
    EXPECT_EQ(tbprobe_Gaviota.Cargada, 0);
    EXPECT_EQ(Descargar_gtbgaviota_dll(), 1);
    EXPECT_EQ(Llamadas(), "");

    D.Mensaje        = nullptr;
    D.Iniciada       = 0;
    D.Disponibilidad = 1 + 16;
    EXPECT_EQ(Actualizar(1),
              "Initialized: FAILED\n\nState cache: FAILED\n\n3-pc TBs available\nNo 4-pc TBs available\n"
              "5-pc TBs available\n");
    EXPECT_NE(Llamadas().find("tb_init(1 2 add)"), std::string::npos);
    EXPECT_EQ(Descargar_gtbgaviota_dll(), 1);
    Llamadas();
    EXPECT_EQ(Recargar("/tb", 4, INT_MAX),
              "info string Error: Memoria insuficiente para la tabla de finales gaviota.\n");
    EXPECT_EQ(Actualizar(0), "");
    EXPECT_EQ(Llamadas(), "");
}

TEST_F(Doble, BibliotecaIncompletaNoSeLlama) {
    dlclose(std::exchange(Biblioteca.Mango, nullptr));
    if (Actualizar(1) != ERROR) GTEST_SKIP() << "a probing library is installed on this system";
    std::ostringstream original;
    original << std::ifstream(FICHERO, std::ios::binary).rdbuf();
    for (const std::string nombre :
         {"tb_init",           "tb_restart",        "tb_done",           "tb_probe_hard",   "tb_probe_soft",
          "tb_probe_WDL_hard", "tb_probe_WDL_soft", "tb_is_initialized", "tb_availability", "tb_indexmemory",
          "tbcache_init",      "tbcache_restart",   "tbcache_done",      "tbcache_is_on",   "tbcache_flush",
          "tbstats_reset",     "tbpaths_init",      "tbpaths_add",       "tbpaths_done",    "tbpaths_getmain"}) {
        SCOPED_TRACE(nombre);
        std::string       octetos = original.str();
        const std::string entero  = std::string(1, '\0') + nombre + std::string(1, '\0');
        for (std::size_t i = 0; (i = octetos.find(entero, i)) != std::string::npos; ++i) octetos[i + 1] = 'x';
        const std::string copia = testing::TempDir() + "/sin_" + nombre;
        std::ofstream(copia, std::ios::binary) << octetos;
        const BibliotecaPuesta incompleta{copia};
        ASSERT_NE(incompleta.Mango, nullptr);
        EXPECT_EQ(Actualizar(1) + Actualizar(1), ERROR + ERROR);
        EXPECT_EQ(tbprobe_Gaviota.Cargada, 0);
        EXPECT_EQ(Descargar_gtbgaviota_dll(), 1);
        EXPECT_STREQ(static_cast<DobleGaviota*>(dlsym(incompleta.Mango, "doble"))->Registro, "");
        std::filesystem::remove(copia);
    }
}

TEST_F(Doble, ElSistemaNoLiberaLaBiblioteca) {
    // Held by the anchor alone, the library stays in memory, and the engine's handle is refused.
    const BibliotecaPuesta ancla{GAVIOTA_DOBLE "/libancla_gaviota.so"};
    Recargar("/tb");
    dlclose(Biblioteca.Mango);
    dlclose(std::exchange(Biblioteca.Mango, nullptr));
    Llamadas();
    EXPECT_EQ(Actualizar(0), "info string Error: Liberar tabla de finales gaviota.\n");
    EXPECT_EQ(Llamadas(), "tbcache_flush() tbcache_done() tb_done() tbpaths_done(add) ");
    EXPECT_EQ(tbprobe_Gaviota.Cargada, 0);
    EXPECT_EQ(Descargar_gtbgaviota_dll(), 0);
    EXPECT_EQ(Llamadas(), "");  // already shut down
}

TEST_F(Doble, ArgumentosDeLaSonda) {
    struct {
        const char* nombre;
        const char* fen;
        int         ply, iteracion;
        const char* llamada;
    } const casos[] = {
        {"hard", FEN_3, 1, 1, "hard(0 64 0 | 6@4 5@5 0@64 | 6@36 0@64 | 7) "},
        {"soft at ply 2", FEN_3, 2, 1, "soft(0 64 0 | 6@4 5@5 0@64 | 6@36 0@64 | 7) "},
        {"soft later", FEN_3, 1, 2, "soft(0 64 0 | 6@4 5@5 0@64 | 6@36 0@64 | 7) "},
        {"black, 4 men", "b6k/8/8/8/8/8/8/KN6 b - - 0 1", 1, 1, "hard(1 64 0 | 6@0 2@1 0@64 | 3@56 6@63 0@64 | 7) "},
        {"5 men", "7k/r7/8/8/8/8/P7/KB6 w - - 0 1", 3, 3, "soft(0 64 0 | 1@8 6@0 3@1 0@64 | 6@63 4@48 0@64 | 7) "},
        {"e7e5", "4k3/8/8/3Pp3/8/8/8/4K3 w - e6 0 1", 1, 1, "hard(0 44 0 | 1@35 6@4 0@64 | 6@60 1@36 0@64 | 7) "},
        {"a2a4", "4k3/8/8/8/Pp6/8/8/4K3 b - a3 0 1", 1, 1, "hard(1 16 0 | 1@24 6@4 0@64 | 6@60 1@25 0@64 | 7) "},
    };
    Recargar("/tb");
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Llamadas();
        EXPECT_TRUE(Sondear(caso.fen, 0, caso.ply, caso.iteracion).has_value());
        EXPECT_EQ(Llamadas(), caso.llamada);
    }
    constexpr int MASCARAS[6][2] = {{0, 0}, {8, 2}, {4, 1}, {12, 3}, {0, 0}, {0, 0}};
    for (int b = 0; b < 6; ++b)
        for (int n = 0; n < 6; ++n) {
            Sondear(FEN_3);
            TableroGlobal.EnroqueBlancas = b;
            TableroGlobal.EnroqueNegras  = n;
            Llamadas();
            int puntos;
            EXPECT_EQ(Probar_gtbgaviota(0, &puntos), 1);
            EXPECT_TRUE(Llamadas().starts_with("hard(0 64 " + std::to_string(MASCARAS[b][0] + MASCARAS[n][1]) + " |"));
        }
    Actualizar(0);
}

TEST_F(Doble, ResultadosYCondiciones) {
    using Puntos = std::optional<int>;
    struct {
        int      responde;
        unsigned resultado, plies;
        Puntos   blancas, negras;
    } const resultados[] = {
        {1, 0, 9, 0, 0}, {1, 1, 9, 31990, -31990},  {1, 2, 0, -31999, 31999}, {1, 3, 9, 0, 0},
        {1, 7, 9, 0, 0}, {1, 1, 4000000000U, 0, 0}, {0, 1, 9, {}, {}},
    };
    Recargar("/tb");
    for (const auto& r : resultados) {
        SCOPED_TRACE(testing::Message() << r.responde << " " << r.resultado);
        D.Responde             = r.responde;
        D.Resultado            = r.resultado;
        D.Plies                = r.plies;
        tbprobe_Gaviota.tbhits = 5;
        EXPECT_EQ(Sondear(FEN_3), r.blancas);
        EXPECT_EQ(Sondear("8/8/8/4k3/8/8/8/4KQ2 b - - 0 1"), r.negras);
        EXPECT_EQ(tbprobe_Gaviota.tbhits, r.responde == 1 ? 7U : 5U);
    }

    struct {
        int         disponibilidad, profundidad;
        const char* fen;
        bool        sondea;
    } const condiciones[] = {
        {1, 3, FEN_3, true},
        {1, 4, FEN_3, false},
        {1, -2, FEN_3, true},
        {2, 0, FEN_3, false},
        {0, 0, FEN_3, false},
        {1, 0, FEN_4, false},
        {4, 0, FEN_4, true},
        {4, 0, FEN_3, true},
        {4, 0, FEN_5, false},
        {16, 3, FEN_5, true},
        {16, 3, FEN_3, true},
        {8 + 32, 0, FEN_3, false},
        {63, 0, "8/8/8/4k3/8/8/4p1p1/3NKQ2 w - - 0 1", false},
        {63, 0, "KKKKKKKK/KKKKKKKK/8/8/8/8/8/k7 w - - 0 1", false},
        {63, 0, "8/8/8/8/8/8/8/7Q w - - 0 1", false},
    };
    D.Responde = 1;
    for (const auto& c : condiciones) {
        SCOPED_TRACE(testing::Message() << c.disponibilidad << " " << c.profundidad << " " << c.fen);
        tbprobe_Gaviota.Disponibilidad = c.disponibilidad;
        Llamadas();
        EXPECT_EQ(Sondear(c.fen, c.profundidad).has_value(), c.sondea);
        EXPECT_EQ(!Llamadas().empty(), c.sondea);
    }
    Actualizar(0);
}
