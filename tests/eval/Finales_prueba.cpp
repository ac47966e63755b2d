#include "eval/finales/Reconocidos.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace {

struct Cuentas {
    int Peones, Caballos, Alfiles, Torres, Damas;
};

Cuentas Leer(const std::string& letras) {
    Cuentas cuentas{};
    for (const char letra : letras) {
        cuentas.Peones += letra == 'P';
        cuentas.Caballos += letra == 'N';
        cuentas.Alfiles += letra == 'B';
        cuentas.Torres += letra == 'R';
        cuentas.Damas += letra == 'Q';
    }
    return cuentas;
}

int Factor(const Cuentas& b, const Cuentas& n) {
    return FinalesReconocidos(b.Peones, b.Caballos, b.Alfiles, b.Torres, b.Damas, n.Peones, n.Caballos, n.Alfiles,
                              n.Torres, n.Damas);
}

}  // namespace

TEST(Finales, FactorPorMaterial) {
    struct Caso {
        const char* unas;
        const char* otras;
        int         minimo, maximo;
    };
    const Caso CASOS[] = {
        // Dead draws.
        {"", "", 0, 0},
        {"B", "N", 0, 0},
        {"NN", "", 0, 0},
        {"NN", "B", 0, 0},
        // Real wins keep their whole score.
        {"Q", "R", 100, 100},
        {"BN", "", 100, 100},
        {"BB", "", 100, 100},
        {"RR", "R", 100, 100},
        {"Q", "N", 100, 100},
        {"P", "", 100, 100},
        {"RP", "B", 100, 100},
        {"QRRBBNNPPPPPPPP", "QRRBBNNPPPPPPPP", 100, 100},
        // Drawn as a rule, never forbidden to win.
        {"RB", "R", 1, 40},
        {"R", "N", 1, 40},
        {"Q", "RB", 1, 40},
        {"Q", "NN", 1, 40},
        {"RR", "RB", 1, 40},
        {"B", "P", 1, 40},
        {"RB", "RP", 1, 40},
        // Harder than the material says.
        {"NN", "P", 20, 99},
        {"BP", "N", 20, 99},
        {"RP", "R", 20, 99},
        {"BB", "N", 20, 99},
        // The side without pawns must not be read as the better one when many pawns run.
        {"N", "PPPP", 100, 100},
    };
    for (const Caso& caso : CASOS) {
        SCOPED_TRACE(std::string(caso.unas) + " v " + caso.otras);
        const int factor = Factor(Leer(caso.unas), Leer(caso.otras));
        EXPECT_GE(factor, caso.minimo);
        EXPECT_LE(factor, caso.maximo);
    }
}

TEST(Finales, CualquierMaterialDaUnPorcentajeIgualParaLosDosColores) {
    std::mt19937 azar(11);
    for (int i = 0; i < 200000; ++i) {
        const int     tope  = i % 2 == 0 ? 3 : 65;  // small endings, and boards that no game reaches
        const auto    tirar = [&] { return static_cast<int>(azar() % static_cast<unsigned>(tope)); };
        const Cuentas b{tirar(), tirar(), tirar(), tirar(), tirar()};
        const Cuentas n{tirar(), tirar(), tirar(), tirar(), tirar()};
        const int     factor = Factor(b, n);
        ASSERT_TRUE(factor >= 0 && factor <= 100);
        ASSERT_EQ(factor, Factor(n, b));
        // A pawn or a heavy piece on the board can always win.
        if (b.Peones + n.Peones + b.Torres + n.Torres + b.Damas + n.Damas > 0) {
            ASSERT_NE(factor, 0);
        }
    }
}
