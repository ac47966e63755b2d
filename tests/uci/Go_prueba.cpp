#include "uci/Go.h"

#include <gtest/gtest.h>

struct CasoGo {
    const char*   nombre;
    const char*   texto;
    int           turno, jugadas;
    int           profundidad;  // 0 = no search
    int           limiteTiempo;
    std::uint64_t tiempo;
    int           divisor;
};

// clang-format off
constexpr CasoGo CASOS[] = {
    {"ample clock",                " wtime 60000 btime 60000",                             1,  20, 33, 1,   795, 110},
    {"divisor of the last search", " wtime 60000 btime 60000",                             1, 110, 33, 1,  3250,  20},
    {"long game",                  " wtime 60000 btime 60000",                             1, 129, 33, 1, 30250,   2},
    {"ample from 20000 on",        " wtime 20000 btime 1",                                 1,   0, 33, 1,   404, 130},
    {"19999 is scarce",            " wtime 19999 btime 1",                                 1,   0, 33, 1,  1000, 130},
    {"scarce, total of 1000",      " wtime 19980 btime 1 winc 1",                          1, 110, 33, 1,  1000,  20},
    {"scarce, total of 999",       " wtime 19960 btime 1 winc 1",                          1, 110, 33, 1,     1,  20},
    {"10001 is scarce",            " wtime 10001 btime 1",                                 1,   0, 33, 1,  1000, 130},
    {"exactly 10000 is ample",     " wtime 10000 btime 1",                                 1,   0, 33, 1,   327, 130},
    {"pressed, increment",         " wtime 9999 btime 5000 winc 2000",                     1,   0, 33, 1,  2000, 130},
    {"increment of the other",     " wtime 5000 btime 60000 winc 2000",                    0,  20, 33, 1,   795, 110},
    {"moves to go",                " wtime 60000 btime 60000 movestogo 40 winc 1000",      1,   7, 33, 1,  2100,  40},
    {"each term truncated",        " wtime 1004 btime 1 movestogo 10 winc 6",              1,   7, 33, 1,   103,  10},
    {"huge moves to go",           " wtime 1 btime 1 movestogo 99999999999999999999",      1,   5, 33, 1,     0, 2147483647},
    {"fixed time wins over depth", " depth 3 movetime 1000 wtime 60000",                   1,   5, 33, 1,   750,   5},
    {"clocks win over all",        " movetime 1000 depth 5 wtime 60000 btime 60000",       1,  20, 33, 1,   795, 110},
    {"fixed time below reserve",   " movetime 100",                                        1,   5, 33, 1,  0ULL - 150, 5},
    {"deepest",                    " depth 31",                                            1,   5, 32, 0,     0,   5},
    {"deeper",                     " depth 32",                                            1,   5, 33, 0,     0,   5},
    {"depth beyond 32 bits",       " depth 4294967296",                                    1,   5, 33, 0,     0,   5},
    {"depth beyond 64 bits",       " depth 99999999999999999999",                          1,   5, 33, 0,     0,   5},
    {"unknown words",              "  ponder searchmoves e2e4   depth 4 nodes 9 mate 3",   1,   5,  5, 0,     0,   5},
    {"negative clock is none",     " wtime -5 btime 60000",                                1,   5,  0, 0,     0,   5},
    {"value is consumed",          " depth movetime 1000",                                 1,   5,  0, 0,     0,   5},
};
// clang-format on

TEST(Go, LimitaLaBusqueda) {
    for (const CasoGo& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        const LimitesBusqueda limites = CalcularLimites(LeerParametrosGo(caso.texto), caso.turno, caso.jugadas);
        EXPECT_EQ(limites.HayBusqueda, caso.profundidad != 0 ? 1 : 0);
        EXPECT_EQ(limites.Profundidad, caso.profundidad);
        EXPECT_EQ(limites.LimiteTiempo, caso.limiteTiempo);
        EXPECT_EQ(limites.TiempoAsignado, caso.tiempo);
        EXPECT_EQ(limites.Divisor, caso.divisor);
    }
    EXPECT_EQ(LeerParametrosGo("infinite wtime 1 btime 1").Infinito, 1);
}
