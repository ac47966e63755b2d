// A position and its mirror image (colours and ranks exchanged) score the same for the side to move, in total and in
// every accumulator. The one exception that is meant, the side weights, follows the side to move at the root and is
// mirrored with it.
#include "eval/Evaluacion.h"

using Simetria = Evaluacion;

static std::vector<int> Acumuladores(const RegistroBando& b) {
    return {b.Puntos_OP,   b.Puntos_EG,    b.Movilidad_OP,  b.Movilidad_EG,   b.Tropismo_OP,
            b.Tropismo_EG, b.Ataque_Valor, b.Ataque_Numero, b.Peones_Septima, std::popcount(b.Objetivos)};
}

static void CompararConReflejo() {
    Iniciar_Asimetrico();
    const int  puntos  = Evaluar();
    const auto blancas = Acumuladores(Blancas), negras = Acumuladores(Negras);
    Reflejar();
    Iniciar_Asimetrico();
    EXPECT_EQ(Evaluar(), puntos);
    EXPECT_EQ(Acumuladores(Negras), blancas);
    EXPECT_EQ(Acumuladores(Blancas), negras);
    Reflejar();
}

TEST_F(Simetria, PosicionesElegidas) {
    // clang-format off
    for (const char* fen :
         {"2kr3r/pppq1ppp/2npbn2/2b1p3/2B1P3/2NPBN2/PPPQ1PPP/2KR3R w - - 8 9", "8/8/4k3/8/2p5/8/B2K4/8 w - - 0 1",
          "1k1r4/pp1b1R2/3q2pp/4p3/2B5/4Q3/PPP2B2/2K5 b - - 0 1", "8/8/1p1k4/8/1P6/2K5/8/8 w - - 0 1",
          "r1r3k1/1R2pp1p/6p1/8/8/6P1/1R2PP1P/6K1 w - - 0 1", "1K1k4/1P6/8/8/8/8/r7/2R5 w - - 0 1",
          "rn3rk1/pbppq1pp/1p2pb2/4N2Q/3PN3/3B4/PPP2PPP/R3K2R w KQ - 0 1", "7k/8/5K2/8/3N4/8/8/5B2 w - - 0 1",
          "1nk1r1r1/pp2n1pp/4p3/q2pPp1N/b1pP1P2/B1P2R2/2P1B1PP/R2Q2K1 w - - 0 1", "8/8/2Q5/8/8/5K2/2p5/1k6 w - - 0 1",
          "2q1rr1k/3bbnnp/p2p1pp1/2pPp3/PpP1P1P1/1P2BNNP/2BQ1PRK/7R b - - 0 1",
          "7r/BP3k2/P7/7p/6pP/7R/bp4r1/RN4K1 w - - 0 1"})
        // clang-format on
        for (const int turno : {BLANCO, NEGRO}) {
            SCOPED_TRACE(testing::Message() << fen << " with " << turno);
            Fen(fen);
            TableroGlobal.Turno = turno;
            CompararConReflejo();
        }
}

TEST_F(Simetria, PartidasAlAzar) {
    for (const char* fen : POSICIONES) {
        Fen(fen);
        PartidasAlAzar(12, PLIES_MAX - 1, [](const std::vector<std::uint32_t>&) {
            if (!HasFailure() && TableroGlobal.Ply % 5 == 3) CompararConReflejo();
        });
    }
}
