#include "eval/Evaluar.h"

#include "board/Puntuacion.h"
#include "eval/Evaluacion.h"
#include "eval/Material.h"
#include "eval/SeguridadRey.h"
#include "eval/Terminos.h"
#include "eval/finales/Dificiles.h"
#include "eval/finales/Evaluadores.h"
#include "eval/finales/Reconocidos.h"
#include "search/Transposicion.h"

constexpr char APERTURA_N[] = "r1bqkbnr/pppp1ppp/2n5/4p3/2B1P3/5N2/PPPP1PPP/RNBQK2R b KQkq - 3 3";

class Evaluador : public Evaluacion {
protected:
    void TearDown() override { LiberarTransposicion(); }

    static EntradaCache& Entrada() { return TT_Cache[TableroGlobal.Key % TT_Opciones.NumeroCache]; }
};

TEST_F(Evaluador, InterpolaYCortaHaciaCero) {
    constexpr int CASOS[][4] = {{100, 0, 24, 100}, {100, 0, 12, 50}, {0, 100, 0, 100}, {7, 3, 10, 4},
                                {-7, -3, 10, -4},  {-1, 0, 12, 0},   {24, 0, 1, 1},    {25, 0, 23, 23}};
    for (const auto& [op, eg, fase, puntos] : CASOS) EXPECT_EQ(Interpolate(op, eg, fase), puntos) << op << ' ' << fase;
}

TEST_F(Evaluador, LaAperturaValeElTurnoHastaQueHayPesos) {
    std::fill_n(AJUSTE_MOB, 2, 0);
    EXPECT_EQ(Evaluar(), 5);
    for (const auto& [fen, propio] : {std::pair{FEN_INICIAL, BLANCO}, {APERTURA_N, NEGRO}}) {
        Fen(fen);
        Iniciar_Asimetrico();
        EXPECT_EQ(AJUSTE_MOB[propio] * 1000 + AJUSTE_MOB[1 - propio], 100104) << fen;
        EXPECT_EQ(AJUSTE_ATT[propio] * 1000 + AJUSTE_ATT[1 - propio], 100104) << fen;
    }
}

TEST_F(Evaluador, LaCacheGuardaDesdeElBlanco) {
    CrearTransposicion(32);
    Fen(APERTURA_N);
    const int puntos = Evaluar();
    EXPECT_EQ(Entrada().Key, TableroGlobal.Key);
    EXPECT_EQ(DesempaquetarPuntos(Entrada().Puntos), -puntos);
    Entrada().Puntos     = EmpaquetarPuntos(-1234);
    Blancas.Movilidad_OP = 777;
    for (const int turno : {NEGRO, BLANCO}) {  // a second call answers from the cache and evaluates nothing
        TableroGlobal.Turno = turno;
        EXPECT_EQ(Evaluar(), turno == NEGRO ? 1234 : -1234);
        EXPECT_EQ(Blancas.Movilidad_OP, 777);
    }
    TableroGlobal.Turno = NEGRO;
    Entrada().Key ^= 2;  // another position in the slot is replaced
    EXPECT_EQ(Evaluar(), puntos);
    EXPECT_EQ(DesempaquetarPuntos(Entrada().Puntos), -puntos);
    Fen("4k1n1/8/8/8/8/8/8/4KB2 b - - 0 1");  // a sure draw is not kept
    EXPECT_EQ(Evaluar(), 0);
    EXPECT_NE(Entrada().Key, TableroGlobal.Key);
}

// The endings' own answers end at a phase: two queens and a knight against the bare king are asked about, two queens
// and a rook are not.
TEST_F(Evaluador, LosFinalesRespondenHastaSuFase) {
    for (const auto& [fen, fase] :
         {std::pair{"4k3/8/8/8/8/8/8/QQN1K3 w - - 0 1", 9}, {"4k3/8/8/8/8/8/8/QQR1K3 b - - 0 1", 10}}) {
        Fen(fen);
        const int puntos = Evaluar();
        EXPECT_EQ(TableroGlobal.Fase, fase);
        EXPECT_EQ(puntos == EvaluarFinalesDificiles(), fase == 9);
    }
}

// The side's score, opening and endgame, with the scaled terms in whole numbers.
static std::pair<int, int> Sumar(const RegistroBando& b, int color) {
    const bool cuenta = b.Ataque_Numero > 1 && b.Damas > 0;
    const int  ataque = cuenta ? KING_ATTACK_MULTI[std::min(b.Ataque_Valor, 399)] * AJUSTE_ATT[color] / 100 : 0;
    const int  turno  = TableroGlobal.Turno == color ? 1 : 0;
    const int  p      = std::clamp(b.Peligro, 0, PELIGRO_MAX);
    return {
        b.Puntos_OP + b.Movilidad_OP * AJUSTE_MOB[color] / 100 + b.Tropismo_OP / 5 + ataque + p * p / 512 + 5 * turno,
        b.Puntos_EG + b.Movilidad_EG * AJUSTE_MOB[color] / 100 + b.Tropismo_EG / 5 + ataque + p / 8 + 10 * turno};
}

// The score is what its parts add up to, also where a side attacks with one piece only, without a queen, or where the
// ending is scaled.
TEST_F(Evaluador, EsLaSumaDeSusPartes) {
    for (const char* fen : {FEN_INICIAL, APERTURA_N, "6k1/5ppp/8/6NQ/8/8/6PP/5RK1 w - - 0 1",
                            "r5k1/5ppp/7q/8/8/8/5PPP/R5K1 b - - 0 1", "5rk1/5ppp/4N3/7R/8/3B4/5PPP/6K1 w - - 0 1",
                            "r1bq1rk1/pppp1Npp/2n2n2/2b1p2Q/2B1P3/8/PPPP1PPP/RNB1K2R b KQ - 0 1",
                            "r1bqkb1r/pppp1ppp/2n2n2/4p2Q/2BPP1B1/2N2N2/2P1PPPP/R3K2R w KQkq - 0 1",
                            "8/5k2/3r4/8/4N3/3K4/3R4/8 w - - 0 1", "8/3q1k2/8/8/3QP3/8/4K3/8 b - - 0 1"}) {
        SCOPED_TRACE(fen);
        Fen(fen);
        Iniciar_Asimetrico();
        LimpiarPuntuacion(0);
        for (const Parte parte :
             {Material_Imbalance, EvaluarApertura, EvaluarPiezasTableroJuego, EvaluarPeonesB, EvaluarPeonesN,
              EvaluarTorreB, EvaluarTorreN, EvaluarReyes, EvaluarApoyoPasados, EvaluarAmenazas})
            parte();
        const auto [bop, beg] = Sumar(Blancas, BLANCO);
        const auto [nop, neg] = Sumar(Negras, NEGRO);
        const int fase        = CalcularFase();
        const int factor =
            FinalesReconocidos(Blancas.Peones, Blancas.Caballos, Blancas.Alfiles, Blancas.Torres, Blancas.Damas,
                               Negras.Peones, Negras.Caballos, Negras.Alfiles, Negras.Torres, Negras.Damas);
        const int puntos =
            (((bop - nop) * fase + (beg - neg) * (24 - fase)) / 24 + DesequilibrioPiezas()) * factor / 100;
        EXPECT_EQ(Evaluar(), TableroGlobal.Turno == BLANCO ? puntos : -puntos);
    }
}

// Boards that no game reaches: any piece anywhere, kings missing or many. Run under the sanitizers this watches every
// table index.
TEST_F(Evaluador, TablerosImposiblesQuedanEnElRango) {
    std::mt19937      azar(11);
    const std::string clases = "PNBRQKpnbrqk";
    for (int n = 0; n < 8000; ++n) {  // few or many men, of one kind up to all
        const std::string fen = TableroAlAzar(azar, azar() % (n % 2 == 0 ? 6 : 100), clases.substr(azar() % 12));
        Fen(fen);
        ASSERT_LE(std::abs(Evaluar()), VALOR_MATE) << fen;
        const int puntos = EvaluarFinalesDificiles();
        ASSERT_TRUE(puntos == NO_RECONOCIDO || std::abs(puntos) <= VICTORIA_MAXIMA) << fen;
        // With several kings of a colour there is no telling which one is meant.
        if (std::ranges::count(fen, 'K') > 1 || std::ranges::count(fen, 'k') > 1) continue;
        Reflejar();
        ASSERT_EQ(EvaluarFinalesDificiles(), puntos) << fen;
    }
    Fen("QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ b - - 0 1");
    EXPECT_EQ(Evaluar(), -UMBRAL_MATE);
}
