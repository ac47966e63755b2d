#include "eval/Terminos.h"

#include <cstring>

#include "eval/Conjuntos.h"
#include "eval/PosicionPrueba.h"

namespace {

class Torres : public Evaluacion {};

// What the white rooks add to their side record.
struct AporteTorres {
    Mitades Puntos;
    Mitades Movilidad;
    int     Ataque_Valor;
    int     Ataque_Numero;
    int     Objetivos;  // pieces that no other piece attacks
};

AporteTorres Medir(void (*evaluar)(), RegistroBando& bando) {
    LimpiarPuntuacion(0);
    EvaluarPiezasTableroJuego();
    const RegistroBando a = bando;
    evaluar();
    return {{bando.Puntos_OP - a.Puntos_OP, bando.Puntos_EG - a.Puntos_EG},
            {bando.Movilidad_OP - a.Movilidad_OP, bando.Movilidad_EG - a.Movilidad_EG},
            bando.Ataque_Valor - a.Ataque_Valor,
            bando.Ataque_Numero - a.Ataque_Numero,
            Cuantas(bando.Objetivos ^ a.Objetivos)};
}

struct CasoTorres {
    const char*  nombre;
    const char*  fen;
    AporteTorres aporte;
};

constexpr CasoTorres CASOS[] = {
    {"empty board", "k7/8/8/8/3R4/8/8/7K w - - 0 1", {{2 + 14, 14}, {14, 28}, 0, 0, 0}},
    {"shut in by pawns", "k7/8/8/3P4/2PRP3/3P4/8/7K w - - 0 1", {{2, 0}, {-14, -28}, 0, 0, 0}},
    {"a knight beside it counts, pawns do not", "k7/8/8/3P4/2PRN3/3P4/8/7K w - - 0 1", {{2, 0}, {-12, -24}, 0, 0, 0}},
    {"no wrap round the edge", "k7/8/8/8/7R/q7/8/K7 w - - 0 1", {{-4 + 14, 14}, {14, 28}, 0, 0, 0}},
    {"half-open file", "k7/8/8/3p4/8/8/8/3R3K w - - 0 1", {{4 + 7, 7}, {8, 16}, 0, 0, 1}},
    {"pawns on both sides, one protected", "k7/8/3p4/8/3R4/2p5/3p4/7K w - - 0 1", {{2 + 7 + 5, 12}, {8, 16}, 0, 0, 2}},
    {"pawn behind a piece", "k7/8/3p4/8/8/3N4/8/3R3K w - - 0 1", {{4 + 7, 7}, {4, 8}, 0, 0, 0}},
    {"pawn behind the queen", "k7/3p4/3q4/8/8/8/8/3R3K w - - 0 1", {{4 + 5 + 7, 12}, {10, 20}, 0, 0, 1}},
    {"own pawn on the file", "k7/3p4/8/8/8/8/3P4/3R3K w - - 0 1", {{4, 0}, {0, 0}, 0, 0, 0}},
    {"faces the queen on a file", "3q3k/8/8/8/8/8/8/K2R4 w - - 0 1", {{4 + 14 + 5, 19}, {14, 28}, 0, 0, 1}},
    {"faces the queen on a rank", "7k/8/8/8/3R3q/8/8/K7 w - - 0 1", {{2 + 14, 14}, {14, 28}, 0, 0, 1}},
    {"seventh, king on the eighth", "6k1/R7/8/8/8/8/8/K7 w - - 0 1", {{-4 + 14 + 16, 46}, {14, 28}, 27, 1, 0}},
    {"seventh, king on it: a check", "8/R5k1/8/8/8/8/8/K7 w - - 0 1", {{-4 + 14, 14}, {12, 24}, 27, 1, 1}},
    {"seventh, pawns about to promote", "8/R5k1/8/8/8/8/7p/K7 w - - 0 1", {{-4 + 14 + 16, 46}, {12, 24}, 27, 1, 1}},
    {"seventh, pawns at home do not count", "8/R5k1/8/8/8/8/8/K6P w - - 0 1", {{-4 + 14, 14}, {12, 24}, 27, 1, 1}},
    {"pair on the seventh", "6k1/RR6/8/8/8/8/8/K7 w - - 0 1", {{-6 + 28 + 40, 28 + 80}, {16, 32}, 27, 1, 0}},
    {"trapped by a bishop", "k7/8/8/8/8/7p/6bR/K7 w - - 0 1", {{-4 + 7 - 100, -93}, {-8, -16}, 0, 0, 2}},
    {"trapped by a pawn", "7k/8/8/8/8/p7/Rp6/7K w - - 0 1", {{-4 + 7 - 180, -173}, {-8, -16}, 0, 0, 2}},
    {"free beside a knight", "k7/8/8/8/8/7p/6nR/K7 w - - 0 1", {{-4 + 7, 7}, {-8, -16}, 0, 0, 2}},
    {"check that wins a knight", "4k3/8/8/8/1n2R3/8/8/K6Q w - - 0 1", {{2 + 14, 14}, {12, 24}, 27 + 24, 1, 2}},
    {"same, without a queen", "4k3/8/8/8/1n2R3/8/8/K7 w - - 0 1", {{2 + 14, 14}, {12, 24}, 27, 1, 2}},
    {"same, the exchange loses", "4k3/8/8/p7/1p2R3/P7/8/K6Q w - - 0 1", {{2 + 14, 14}, {12, 24}, 27, 1, 1}},
    {"same, the rook is pinned", "b3k3/8/8/8/1n2R3/8/8/Q6K w - - 0 1", {{2 + 14, 14}, {12, 24}, 27, 1, 2}},
    {"same, the second piece is loose", "4k3/p7/8/p7/1p2R2n/P7/8/KQ6 b - - 0 1", {{2 + 14, 14}, {12, 24}, 51, 1, 2}},
};

void Comparar(const AporteTorres& visto, const AporteTorres& esperado) {
    EXPECT_EQ(visto.Puntos, esperado.Puntos);
    EXPECT_EQ(visto.Movilidad, esperado.Movilidad);
    EXPECT_EQ(visto.Ataque_Valor, esperado.Ataque_Valor);
    EXPECT_EQ(visto.Ataque_Numero, esperado.Ataque_Numero);
    EXPECT_EQ(visto.Objetivos, esperado.Objetivos);
}

TEST_F(Torres, CasosSumadosAMano) {
    for (const CasoTorres& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        CargarPosicion(caso.fen);
        Comparar(Medir(EvaluarTorreB, Blancas), caso.aporte);
        SCOPED_TRACE("mirrored");
        CargarPosicion(caso.fen, true);
        Comparar(Medir(EvaluarTorreN, Negras), caso.aporte);
    }
}

TEST_F(Torres, TropismoYDefensa) {
    CargarPosicion("k7/8/8/8/3R2R1/8/8/7K w - - 0 1");
    LimpiarPuntuacion(0);
    EvaluarPiezasTableroJuego();
    EvaluarTorreB();
    EXPECT_EQ(Blancas.Tropismo_EG, 7 + 4);
    EXPECT_EQ(Blancas.Tropismo_OP, 2 * (7 + 4));
    EXPECT_TRUE(Contiene(Blancas.Defensa, 35));
    EXPECT_TRUE(Contiene(Blancas.Defensa, 38));
}

// The captures tried by a checking rook leave no trace, and are not tried where they could not be taken back.
TEST_F(Torres, ElJaqueProbadoDejaElTableroComoEstaba) {
    for (const int ply : {0, PLIES_MAX - 2, PLIES_MAX - 1}) {
        SCOPED_TRACE(ply);
        CargarPosicion("4k2r/8/8/p7/1n2R3/8/8/K6Q b k - 5 1");
        TableroGlobal.Ply            = ply;
        const RegistroTablero antes  = TableroGlobal;
        const int             piezas = Negras.Caballos;

        EXPECT_EQ(Medir(EvaluarTorreB, Blancas).Ataque_Valor, ply < PLIES_MAX - 1 ? 27 + 24 : 27);
        EXPECT_EQ(Negras.Caballos, piezas);
        EXPECT_EQ(TableroGlobal.Key, antes.Key);
        EXPECT_EQ(TableroGlobal.Turno, antes.Turno);
        EXPECT_EQ(TableroGlobal.Ply, antes.Ply);
        EXPECT_EQ(TableroGlobal.Regla50, antes.Regla50);
        EXPECT_EQ(TableroGlobal.EnroqueNegras, antes.EnroqueNegras);
        EXPECT_EQ(TableroGlobal.NumeroKeys, antes.NumeroKeys);
        EXPECT_EQ(std::memcmp(TableroGlobal.Casillas, antes.Casillas, sizeof antes.Casillas), 0);
    }
}

}  // namespace
