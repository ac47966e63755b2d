// What the free weights are for: of two positions that differ in one trait the better one scores more.
#include "eval/Evaluacion.h"
#include "eval/SeguridadRey.h"
#include "eval/Terminos.h"

using Rasgos = Evaluacion;

struct Pareja {
    const char* nombre;
    const char* mejor;  // for White
    const char* peor;
};

template <std::size_t N>
static void CompararParejas(const Pareja (&parejas)[N], int Aporte::*campo, std::initializer_list<Parte> partes) {
    for (const Pareja& pareja : parejas)
        for (const bool reflejada : {false, true})
            EXPECT_GT(AporteDe(pareja.mejor, reflejada, partes).*campo, AporteDe(pareja.peor, reflejada, partes).*campo)
                << pareja.nombre << (reflejada ? ", mirrored" : "");
}

// clang-format off
constexpr Pareja PIEZAS[] = {
    {"outpost that no minor takes", "5bk1/8/8/3N4/4P3/8/8/6K1 w - - 0 1", "4b1k1/8/8/3N4/4P3/8/8/6K1 w - - 0 1"},
    {"bishop outpost", "6k1/8/8/3B4/2P5/8/8/6K1 w - - 0 1", "6k1/8/8/3B4/8/2P5/8/6K1 w - - 0 1"},
    {"free bishop on a7", "6k1/B1p5/8/1p6/8/8/8/6K1 w - - 0 1", "6k1/B1p5/1p6/8/8/8/8/6K1 w - - 0 1"},
    {"free knight in the corner", "N5k1/1p6/8/8/8/8/8/6K1 w - - 0 1", "N5k1/p7/8/8/8/8/8/6K1 w - - 0 1"},
    {"queen stays at home", "6k1/8/8/8/8/8/3Q4/1NB2BNK w - - 0 1", "6k1/8/8/8/3Q4/8/8/1NB2BNK w - - 0 1"},
};
constexpr Pareja CERCANIA[] = {
    {"knight near the enemy king", "4k3/8/2N5/8/8/8/8/K7 w - - 0 1", "K7/8/2N5/8/8/8/8/4k3 w - - 0 1"},
};
constexpr Pareja ASALTO[] = {
    {"open back rank", "6k1/5ppp/8/6N1/8/3B4/8/1K2Q3 w - - 0 1", "r5k1/5ppp/8/6N1/8/3B4/8/1K2Q3 w - - 0 1"},
    {"knight check", "6k1/5p1p/8/3N2N1/8/3Q4/8/1K6 w - - 0 1", "6k1/4pp1p/8/3N2N1/8/3Q4/8/1K6 w - - 0 1"},
};
constexpr Pareja AMENAZAS[] = {
    {"pawn on a rook", "6k1/8/4p3/3r4/4P3/8/8/6K1 w - - 0 1", "6k1/8/4p3/3r4/3P4/8/8/6K1 w - - 0 1"},
    {"bishop on a queen", "6k1/8/4p3/3q4/8/1B6/8/6K1 w - - 0 1", "6k1/8/4p3/3b4/8/1B6/8/6K1 w - - 0 1"},
    {"rook on a queen", "6k1/8/4p3/3q4/8/8/8/3RK3 w - - 0 1", "6k1/8/4p3/3r4/8/8/8/3RK3 w - - 0 1"},
    {"two attackers, one defender", "8/8/4k3/3n4/8/1B6/8/3R2K1 w - - 0 1", "8/8/2b1k3/3n4/8/1B6/8/3R2K1 w - - 0 1"},
    {"one threat to parry, not two", "1k6/8/4p1p1/3N4/7R/8/8/6K1 w - - 0 1", "1k6/8/4p3/3N2p1/7R/8/8/6K1 w - - 0 1"},
    {"a step about to attack", "6k1/8/4p3/3n4/8/4P3/8/6K1 w - - 0 1", "6k1/8/4p3/3n4/4p3/4P3/8/6K1 w - - 0 1"},
};
constexpr Pareja REFUGIO[] = {
    {"open before heavy pieces", "3bk3/8/8/8/8/8/5P1P/6K1 w - - 0 1", "3rk3/8/8/8/8/8/5P1P/6K1 w - - 0 1"},
    {"right to castle", "4k3/8/8/8/8/8/PPPPPPPP/R3K2R w K - 0 1", "4k3/8/8/8/8/8/PPPPPPPP/R3K2R w - - 0 1"},
    {"the better wing", "3qk3/8/8/8/6P1/8/PPPPP3/R3K2R w Q - 0 1", "3qk3/8/8/8/6P1/8/PPPPP3/R3K2R w K - 0 1"},
};
constexpr Pareja APOYO[] = {
    {"own king before it", "7k/8/4K3/4P3/8/8/8/8 w - - 0 1", "7k/8/8/4P3/8/8/8/K7 w - - 0 1"},
    {"enemy king far away", "k7/8/8/4P3/8/8/8/K7 w - - 0 1", "8/4k3/8/4P3/8/8/8/K7 w - - 0 1"},
    {"own rook behind it", "k7/8/8/4P3/8/8/8/K3R3 w - - 0 1", "k7/8/8/4P3/8/8/8/K3r3 w - - 0 1"},
    {"way clear", "k7/8/8/4P3/8/8/8/K7 w - - 0 1", "k7/4n3/8/4P3/8/8/8/K7 w - - 0 1"},
};
constexpr Pareja REY_FINAL[] = {{"centre", "7k/8/8/8/4K3/8/8/8 w - - 0 1", "7k/8/8/8/8/8/8/6K1 w - - 0 1"}};
// clang-format on

TEST_F(Rasgos, CadaUnoSeNota) {
    CompararParejas(PIEZAS, &Aporte::OP, {EvaluarPiezasTableroJuego});
    CompararParejas(CERCANIA, &Aporte::TropismoOP, {EvaluarPiezasTableroJuego});
    CompararParejas(ASALTO, &Aporte::Ataque, {EvaluarPiezasTableroJuego, EvaluarReyes});
    CompararParejas(REFUGIO, &Aporte::OP, {EvaluarPiezasTableroJuego, EvaluarReyes});
    CompararParejas(APOYO, &Aporte::EG, {EvaluarPiezasTableroJuego, EvaluarApoyoPasados});
    CompararParejas(REY_FINAL, &Aporte::EG, {EvaluarPiezasTableroJuego, EvaluarReyes});
    for (const auto campo : {&Aporte::OP, &Aporte::EG})
        CompararParejas(AMENAZAS, campo, {EvaluarPiezasTableroJuego, EvaluarTorreB, EvaluarTorreN, EvaluarAmenazas});
    for (const auto& [fen, atacantes] :
         {std::pair{"6k1/8/8/8/8/8/8/N1B3K1 w - - 0 1", 0}, {"6k1/8/8/6NQ/8/8/8/1K6 w - - 0 1", 2}})
        EXPECT_EQ(AporteDe(fen, true, {EvaluarPiezasTableroJuego}).Atacantes, atacantes) << fen;
}
