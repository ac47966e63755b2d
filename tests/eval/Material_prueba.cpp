#include "eval/Material.h"

#include "eval/Evaluacion.h"

// A side's pieces in letters, "PPN" for two pawns and a knight.
static void Contar(RegistroBando& bando, const std::string& letras) {
    LimpiarPuntuacion(0);
    const auto Numero = [&letras](char letra) {
        return static_cast<int>(std::count(letras.begin(), letras.end(), letra));
    };
    bando.Peones   = Numero('P');
    bando.Caballos = Numero('N');
    bando.Alfiles  = Numero('B');
    bando.Torres   = Numero('R');
    bando.Damas    = Numero('Q');
}

TEST(Material, ValorYAjustes) {
    for (const auto& [propias, rivales, op, eg] :
         {std::tuple{"PPPPPPPPNNBBRRQ", "PPPPPPPPNNBBRRQ", 4120 + 50 - 11, 4120 + 60 - 11},
          {"NR", "", 825 - 12, 825 - 12},  // without pawns the rook gains, the knight loses
          {"PPPPPPPPN", "", 1125 + 24, 1125 + 24},
          {"PPPPNN", "", 1050 - 10, 1050 - 10},
          {"QQ", "NNB", 2000 - 15, 2000 - 15},       // two queens pay once for the minors
          {"PPPPBBB", "", 1405 + 50, 1405 + 60},     // three bishops are one pair
          {"PPPPPPPPPPPPPPPPPNR", "", 2525, 2525}})  // more pawns than any table has
        for (const bool reflejada : {false, true}) {
            SCOPED_TRACE(propias);
            Contar(Propio(reflejada), propias);
            Contar(Propio(!reflejada), rivales);
            Material_Imbalance();
            EXPECT_EQ(Propio(reflejada).Puntos_OP, op);
            EXPECT_EQ(Propio(reflejada).Puntos_EG, eg);
        }
}

TEST(Material, DesequilibrioFaseYMaterialInsuficiente) {
    // clang-format off
    for (const auto& [propias, rivales, desequilibrio, fase, insuficiente] :
         {std::tuple{"PPPPPPPPNNBBRRQ", "PPPPPPPPNBBBRRQ", 0, 24, false}, {"PPPPPPPPNNBBRRQQ", "PPPPPPPPNNBBRRQ", 60, 24, false},
          {"NBBR", "NBR", 45, 9, false}, {"R", "", 60, 2, false}, {"RR", "NR", 0, 7, false}, {"RR", "NBR", -60, 8, false},
          {"Q", "NNB", 0, 7, false}, {"Q", "RR", 0, 8, false}, {"NNBBRRQQQQQQ", "", 80, 24, false}, {"P", "", 0, 0, false},
          {"", "", 0, 0, true}, {"N", "B", 0, 2, true}, {"B", "", 45, 1, true}, {"NB", "", 45, 2, false}})
        for (const bool reflejada : {false, true}) {
            // clang-format on
            SCOPED_TRACE(testing::Message() << propias << " v " << rivales);
            Contar(Propio(reflejada), propias);
            Contar(Propio(!reflejada), rivales);
            EXPECT_EQ(DesequilibrioPiezas(), reflejada ? -desequilibrio : desequilibrio);
            EXPECT_EQ(CalcularFase(), fase);
            EXPECT_EQ(Material_Insuficiente(), insuficiente);
            EXPECT_EQ(SoloReyes(), *propias == '\0');
        }
}
