#include "eval/Material.h"

#include "eval/PosicionPrueba.h"

namespace {

struct Piezas {
    int Peones, Caballos, Alfiles, Torres, Damas;
};

void Contar(RegistroBando& bando, const Piezas& p) {
    bando.Peones   = p.Peones;
    bando.Caballos = p.Caballos;
    bando.Alfiles  = p.Alfiles;
    bando.Torres   = p.Torres;
    bando.Damas    = p.Damas;
}

struct CasoMaterial {
    const char* nombre;
    Piezas      propias;
    Piezas      rivales;
    Mitades     puntos;
};

constexpr CasoMaterial CASOS[] = {
    {"full side", {8, 2, 2, 2, 1}, {8, 2, 2, 2, 1}, {4120 + 50 - 11, 4120 + 60 - 11}},
    {"no pawns: rook gains, knight loses", {0, 1, 0, 1, 0}, {0, 0, 0, 0, 0}, {825 - 12, 825 - 12}},
    {"eight pawns: knight gains", {8, 1, 0, 0, 0}, {}, {1125 + 24, 1125 + 24}},
    {"two knights, four pawns", {4, 2, 0, 0, 0}, {}, {1050 - 10, 1050 - 10}},
    {"two queens pay once for the minors", {0, 0, 0, 0, 2}, {0, 2, 1, 0, 0}, {2000 - 15, 2000 - 15}},
    {"three bishops are one pair", {4, 0, 3, 0, 0}, {}, {1405 + 50, 1405 + 60}},
    {"nine pawns adjust nothing", {9, 1, 0, 1, 0}, {}, {1725, 1725}},
    {"more pawns than any table has", {60, 1, 0, 1, 0}, {}, {6825, 6825}},
};

TEST(Material, ValorYAjustes) {
    for (const CasoMaterial& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        Contar(Blancas, caso.propias);
        Contar(Negras, caso.rivales);
        Material_Imbalance();
        EXPECT_EQ((Mitades{Blancas.Puntos_OP, Blancas.Puntos_EG}), caso.puntos);
        std::swap(Blancas, Negras);
        Material_Imbalance();
        EXPECT_EQ((Mitades{Negras.Puntos_OP, Negras.Puntos_EG}), caso.puntos) << "mirrored";
    }
}

struct CasoDesequilibrio {
    const char* nombre;
    Piezas      blancas;
    Piezas      negras;
    int         puntos;
};

constexpr CasoDesequilibrio DESEQUILIBRIOS[] = {
    {"level", {8, 2, 2, 2, 1}, {8, 1, 3, 2, 1}, 0},
    {"minor up", {0, 1, 2, 1, 0}, {0, 1, 1, 1, 0}, 45},
    {"rook up", {0, 0, 0, 1, 0}, {0, 0, 0, 0, 0}, 60},
    {"rook for a minor", {0, 0, 0, 2, 0}, {0, 1, 0, 1, 0}, 0},
    {"rook for two minors", {0, 0, 0, 2, 0}, {0, 1, 1, 1, 0}, -60},
    {"rook for three minors", {0, 0, 0, 1, 0}, {0, 2, 1, 0, 0}, 0},
    {"queen for three minors", {0, 0, 0, 0, 1}, {0, 2, 1, 0, 0}, 0},
    {"queen for two rooks", {0, 0, 0, 0, 1}, {0, 0, 0, 2, 0}, 0},
    {"everything against nothing", {8, 2, 2, 2, 9}, {0, 0, 0, 0, 0}, 80},
};

TEST(Material, DesequilibrioDesdeLosDosBandos) {
    for (const CasoDesequilibrio& caso : DESEQUILIBRIOS) {
        SCOPED_TRACE(caso.nombre);
        Contar(Blancas, caso.blancas);
        Contar(Negras, caso.negras);
        EXPECT_EQ(DesequilibrioPiezas(), caso.puntos);
        std::swap(Blancas, Negras);
        EXPECT_EQ(DesequilibrioPiezas(), -caso.puntos) << "mirrored";
    }
}

struct CasoFase {
    Piezas blancas;
    Piezas negras;
    int    fase;
    bool   insuficiente;
};

constexpr CasoFase FASES[] = {
    {{8, 2, 2, 2, 1}, {8, 2, 2, 2, 1}, 24, false}, {{8, 2, 2, 2, 2}, {8, 2, 2, 2, 1}, 24, false},
    {{8, 1, 2, 2, 1}, {8, 2, 2, 2, 1}, 23, false}, {{5, 0, 0, 1, 1}, {5, 1, 0, 1, 0}, 9, false},
    {{1, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, 0, false},  {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, 0, true},
    {{0, 1, 0, 0, 0}, {0, 0, 1, 0, 0}, 2, true},   {{0, 0, 1, 0, 0}, {0, 0, 0, 0, 0}, 1, true},
    {{0, 2, 0, 0, 0}, {0, 0, 0, 0, 0}, 2, false},  {{0, 1, 1, 0, 0}, {0, 0, 0, 0, 0}, 2, false},
    {{0, 0, 0, 1, 0}, {0, 0, 0, 0, 0}, 2, false},  {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 1}, 4, false},
};

TEST(Material, FaseYMaterialInsuficiente) {
    for (const CasoFase& caso : FASES) {
        SCOPED_TRACE(&caso - FASES);
        Contar(Blancas, caso.blancas);
        Contar(Negras, caso.negras);
        EXPECT_EQ(CalcularFase(), caso.fase);
        EXPECT_EQ(Material_Insuficiente(), caso.insuficiente);
        EXPECT_EQ(SoloReyes(), caso.insuficiente && caso.fase == 0);
    }
}

}  // namespace
