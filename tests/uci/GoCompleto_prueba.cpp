#include "uci/GoCompleto.h"

#include <gtest/gtest.h>

struct CasoPresupuesto {
    const char*  nombre;
    const char*  texto;
    int          turno;
    int          hay_limite;
    std::int64_t asignado;  // with a margin of 30 ms
    std::int64_t tope;
};

// clang-format off
constexpr CasoPresupuesto CASOS[] = {
    {"sudden death",           " wtime 60030 btime 1",                      1, 1,   2000,  60000},
    {"increment",              " wtime 1 btime 60030 winc 9 binc 1000",     0, 1,   2750,  60000},
    {"increment of a bare clock", " wtime 1030 btime 9 winc 5000",          1, 1,    600,   1000},
    {"moves to go",            " wtime 20030 btime 9 movestogo 10",         1, 1,   2000,  20000},
    {"last move of a control", " wtime 1030 btime 9 movestogo 1",           1, 1,    600,   1000},
    {"many moves to go",       " wtime 60030 btime 9 movestogo 9999999999", 1, 1,   2000,  60000},
    {"clock below the margin", " wtime 20 btime 9000",                      1, 1,      1,      1},
    {"fallen clock",           " wtime -5 btime 9000 winc -7",              1, 1,      1,      1},
    {"own clock missing",      " btime 60030",                              1, 1,   2000,  60000},
    {"movetime",               " movetime 100",                             1, 1,     70,     70},
    {"short movetime",         " movetime 20",                              1, 1,     10,     10},
    {"no movetime",            " movetime 0",                               1, 1,      1,      1},
    {"movetime and clock",     " movetime 130 wtime 60030 btime 9",         1, 1,    100,    100},
    {"depth and clock",        " depth 5 wtime 60030 btime 9",              1, 1,   2000,  60000},
    {"depth alone",            " depth 5",                                  1, 0,      0,      0},
    {"nodes alone",            " nodes 5",                                  1, 0,      0,      0},
    {"mate alone",             " mate 5",                                   1, 0,      0,      0},
    {"nothing",                "",                                          1, 1,   5000,   5000},
    {"no value, no number",    " depth nodes x",                            1, 1,   5000,   5000},
    {"behind root moves",      " searchmoves e2e4 d2d4 movetime 130",       1, 1,    100,    100},
};
// clang-format on

TEST(GoCompleto, RepartoDelTiempo) {
    for (const CasoPresupuesto& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        const Presupuesto p = CalcularPresupuesto(LeerParametrosCompletos(caso.texto), caso.turno, 30);
        ASSERT_EQ(p.HayLimite, caso.hay_limite);
        if (p.HayLimite == 0) continue;
        EXPECT_EQ(p.Asignado, caso.asignado);
        EXPECT_EQ(p.Tope, caso.tope);
    }
}
