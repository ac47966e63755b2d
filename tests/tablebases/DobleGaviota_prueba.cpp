// What the engine asks of the probing library, seen from a stand-in that writes down every call.
#include "tablebases/DobleGaviota.h"

#include <climits>

#include "tablebases/Biblioteca.h"
#include "tablebases/GaviotaEntradas.h"

static const std::string DESCARGA = "tbcache_flush() tbcache_done() tb_done() tbpaths_done(add) ";

constexpr char FEN_3[] = "8/8/8/4k3/8/8/8/4KQ2 w - - 0 1";
constexpr char FEN_4[] = "8/8/8/4k3/8/8/4p3/4KQ2 w - - 0 1";
constexpr char FEN_5[] = "8/8/8/4k3/8/8/4p1p1/4KQ2 w - - 0 1";

struct Doble : Tablero {
    BibliotecaPuesta Biblioteca{GAVIOTA_DOBLE "/gtbprobe_x64.dll"};
    DobleGaviota&    D = *static_cast<DobleGaviota*>(dlsym(Biblioteca.Mango, "doble"));

    void SetUp() override {
        Tablero::SetUp();
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
    EXPECT_EQ(Llamadas(),
              "tbpaths_done(null) tbpaths_init() tbpaths_add(init /tb) tb_restart(1 3 add) "
              "tbcache_restart(1063256064 16) tb_init(1 3 add) tbcache_init(1063256064 16) tbstats_reset() ");
    EXPECT_EQ(Actualizar(1), "");  // loaded already: nothing happens
    EXPECT_EQ(Actualizar(0), "");
    EXPECT_EQ(Llamadas(), DESCARGA);
    EXPECT_EQ(Descargar_gtbgaviota_dll(), 1);
    EXPECT_EQ(Llamadas(), "");

    D.Mensaje        = nullptr;
    D.Iniciada       = 0;
    D.Disponibilidad = 1 + 16;
    EXPECT_EQ(Recargar("/tb", 2),
              "Initialized: FAILED\n\nState cache: FAILED\n\n3-pc TBs available\nNo 4-pc TBs available\n"
              "5-pc TBs available\n");
    EXPECT_EQ(Descargar_gtbgaviota_dll(), 1);
    Llamadas();
    EXPECT_EQ(Recargar("/tb", 4, INT_MAX),
              "info string Error: Memoria insuficiente para la tabla de finales gaviota.\n");
    EXPECT_EQ(Actualizar(0), "");
    EXPECT_EQ(Llamadas(), "");
}

TEST_F(Doble, UnaBibliotecaIncompletaNoSirve) {
    EXPECT_EQ(BuscarEntradas(Biblioteca.Mango), 1);
    const BibliotecaPuesta otra{"libm.so.6"};
    EXPECT_EQ(BuscarEntradas(otra.Mango), 0);
    EXPECT_TRUE(gtb::tb_init == nullptr && gtb::tbpaths_getmain == nullptr);
}

// Held by the anchor alone, the library stays in memory, and the engine's handle is refused.
TEST_F(Doble, ElSistemaNoLiberaLaBiblioteca) {
    const BibliotecaPuesta ancla{GAVIOTA_DOBLE "/libancla_gaviota.so"};
    Recargar("/tb");
    dlclose(Biblioteca.Mango);
    dlclose(std::exchange(Biblioteca.Mango, nullptr));
    Llamadas();
    EXPECT_EQ(Actualizar(0), "info string Error: Liberar tabla de finales gaviota.\n");
    EXPECT_EQ(Llamadas(), DESCARGA);
    EXPECT_EQ(Descargar_gtbgaviota_dll() + tbprobe_Gaviota.Cargada, 0);
    EXPECT_EQ(Llamadas(), "");  // already shut down
}

TEST_F(Doble, ArgumentosDeLaSonda) {
    // clang-format off
    struct {
        const char* fen;
        int         ply, iteracion;
        const char* llamada;
    } const casos[] = {
        {FEN_3, 1, 1, "hard(0 64 0 | 6@4 5@5 0@64 | 6@36 0@64 | 7) "},
        {FEN_3, 2, 1, "soft(0 64 0 | 6@4 5@5 0@64 | 6@36 0@64 | 7) "},
        {FEN_3, 1, 2, "soft(0 64 0 | 6@4 5@5 0@64 | 6@36 0@64 | 7) "},
        {"7k/r7/8/8/8/8/P7/KB6 b - - 0 1", 3, 3, "soft(1 64 0 | 1@8 6@0 3@1 0@64 | 6@63 4@48 0@64 | 7) "},
        {"4k3/8/8/3Pp3/8/8/8/4K3 w - e6 0 1", 1, 1, "hard(0 44 0 | 1@35 6@4 0@64 | 6@60 1@36 0@64 | 7) "},
        {"4k3/8/8/8/Pp6/8/8/4K3 b - a3 0 1", 1, 1, "hard(1 16 0 | 1@24 6@4 0@64 | 6@60 1@25 0@64 | 7) "},
        {"4k2r/8/8/8/8/8/8/R3K3 w Qk - 0 1", 1, 1, "hard(0 64 6 | 4@0 6@4 0@64 | 6@60 4@63 0@64 | 7) "},
        {"r3k3/8/8/8/8/8/8/4K2R b Kq - 0 1", 1, 1, "hard(1 64 9 | 6@4 4@7 0@64 | 4@56 6@60 0@64 | 7) "},
        {"r3k2r/8/8/8/8/8/8/4K3 b kq - 0 1", 1, 1, "hard(1 64 3 | 6@4 0@64 | 4@56 6@60 4@63 0@64 | 7) "},
    };
    // clang-format on
    Recargar("/tb");
    for (const auto& caso : casos) {
        Llamadas();
        EXPECT_TRUE(Sondear(caso.fen, 0, caso.ply, caso.iteracion).has_value());
        EXPECT_EQ(Llamadas(), caso.llamada) << caso.fen;
    }
    Actualizar(0);
}

TEST_F(Doble, ResultadosYCondiciones) {
    using Puntos = std::optional<int>;
    struct {
        int      responde;
        unsigned resultado, plies;
        Puntos   blancas, negras;
    } const resultados[] = {{1, 0, 9, 0, 0}, {1, 1, 9, 31990, -31990},  {1, 2, 0, -31999, 31999},
                            {1, 7, 9, 0, 0}, {1, 1, 4000000000U, 0, 0}, {0, 1, 9, {}, {}}};
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

    D.Responde = 1;
    // clang-format off
    for (const auto& [disponibilidad, profundidad, fen, sondea] :
         {std::tuple{1, 3, FEN_3, true}, {1, 4, FEN_3, false}, {1, -2, FEN_3, true}, {2, 0, FEN_3, false},
          {1, 0, FEN_4, false}, {4, 0, FEN_4, true}, {4, 0, FEN_3, true}, {4, 0, FEN_5, false}, {16, 3, FEN_5, true},
          {8 + 32, 0, FEN_3, false}, {63, 0, "8/8/8/4k3/8/8/4p1p1/3NKQ2 w - - 0 1", false},
          {63, 0, "KKKKKKKK/KKKKKKKK/8/8/8/8/8/k7 w - - 0 1", false}, {63, 0, "8/8/8/8/8/8/8/7Q w - - 0 1", false}}) {
        // clang-format on
        tbprobe_Gaviota.Disponibilidad = disponibilidad;
        Llamadas();
        EXPECT_EQ(Sondear(fen, profundidad).has_value(), sondea) << fen << disponibilidad << " " << profundidad;
        EXPECT_EQ(!Llamadas().empty(), sondea);
    }
    Actualizar(0);
}
