#include "eval/Evaluar.h"

#include <algorithm>
#include <random>

#include "board/Puntuacion.h"
#include "eval/Material.h"
#include "eval/PosicionPrueba.h"
#include "eval/SeguridadRey.h"
#include "eval/Terminos.h"
#include "eval/Tropismo.h"
#include "eval/finales/Dificiles.h"
#include "eval/finales/Reconocidos.h"
#include "search/Transposicion.h"

namespace {

constexpr char APERTURA_N[] = "r1bqkbnr/pppp1ppp/2n5/4p3/2B1P3/5N2/PPPP1PPP/RNBQK2R b KQkq - 3 3";

class Evaluador : public Evaluacion {
protected:
    void TearDown() override { LiberarTransposicion(); }

    static EntradaCache& Entrada() { return TT_Cache[TableroGlobal.Key % TT_Opciones.NumeroCache]; }
};

TEST_F(Evaluador, InterpolaYCortaHaciaCero) {
    struct {
        int op, eg, fase, puntos;
    } const casos[] = {{100, 0, 24, 100}, {100, 0, 12, 50}, {0, 100, 0, 100}, {7, 3, 10, 4},
                       {-7, -3, 10, -4},  {-1, 0, 12, 0},   {24, 0, 1, 1},    {25, 0, 23, 23}};
    for (const auto& caso : casos)
        EXPECT_EQ(Interpolate(caso.op, caso.eg, caso.fase), caso.puntos)
            << caso.op << ' ' << caso.eg << ' ' << caso.fase;
}

TEST_F(Evaluador, TropismoPorColumnasYFilas) {
    EXPECT_EQ(TROPISMO_DISTANCIA[27][27], 14);
    EXPECT_EQ(TROPISMO_DISTANCIA[0][63], 0);
    EXPECT_EQ(TROPISMO_DISTANCIA[8][4], 14 - 4 - 1);
}

TEST_F(Evaluador, LaAperturaValeElTurnoHastaQueHayPesos) {
    std::fill_n(AJUSTE_MOB, 2, 0);
    std::fill_n(AJUSTE_ATT, 2, 0);
    CargarPosicion(FEN_INICIAL);
    EXPECT_EQ(Evaluar(), 5);
    EXPECT_EQ(TableroGlobal.Fase, 24);
    Iniciar_Asimetrico();
    EXPECT_EQ(AJUSTE_MOB[BLANCO] * 1000 + AJUSTE_MOB[NEGRO], 100104);
    EXPECT_EQ(AJUSTE_ATT[BLANCO] * 1000 + AJUSTE_ATT[NEGRO], 100104);
    EXPECT_NE(Evaluar(), 5);
    CargarPosicion(APERTURA_N);
    Iniciar_Asimetrico();
    EXPECT_EQ(AJUSTE_MOB[BLANCO] * 1000 + AJUSTE_MOB[NEGRO], 104100);
    EXPECT_EQ(AJUSTE_ATT[BLANCO] * 1000 + AJUSTE_ATT[NEGRO], 104100);
}

TEST_F(Evaluador, LaCacheGuardaDesdeElBlanco) {
    CrearTransposicion(32);
    CargarPosicion(APERTURA_N);
    const int puntos = Evaluar();
    EXPECT_EQ(Entrada().Key, TableroGlobal.Key);
    EXPECT_EQ(DesempaquetarPuntos(Entrada().Puntos), -puntos);
    EXPECT_EQ(Evaluar(), puntos);

    Entrada().Puntos = EmpaquetarPuntos(-1234);  // a second call answers from the cache and evaluates nothing
    EXPECT_EQ(Evaluar(), 1234);
    EXPECT_EQ(Blancas.Movilidad_OP, 0);
    TableroGlobal.Turno = BLANCO;
    EXPECT_EQ(Evaluar(), -1234);

    TableroGlobal.Turno = NEGRO;
    Entrada().Key ^= 2;  // another position in the slot is replaced
    EXPECT_EQ(Evaluar(), puntos);
    EXPECT_EQ(DesempaquetarPuntos(Entrada().Puntos), -puntos);
    CrearTransposicion(16);  // no cache at this size
    EXPECT_EQ(Evaluar(), puntos);
}

TEST_F(Evaluador, LasTablasSegurasNoEntranEnLaCache) {
    CrearTransposicion(32);
    for (const char* fen :
         {"4k3/8/8/8/8/8/8/4K3 w - - 0 1", "4k1n1/8/8/8/8/8/8/4KB2 b - - 0 1", "4k3/8/8/8/8/8/8/4KN2 b - - 0 1"}) {
        SCOPED_TRACE(fen);
        CargarPosicion(fen);
        EXPECT_EQ(Evaluar(), 0);
        EXPECT_NE(Entrada().Key, TableroGlobal.Key);
    }
}

// The endings' own answers end at a phase: two queens and a knight against the bare king are asked about, two queens
// and a rook are not.
TEST_F(Evaluador, LosFinalesRespondenHastaSuFase) {
    for (const auto& [fen, fase] :
         {std::pair{"4k3/8/8/8/8/8/8/QQN1K3 w - - 0 1", 9}, std::pair{"4k3/8/8/8/8/8/8/QQR1K3 b - - 0 1", 10}}) {
        CargarPosicion(fen);
        const int puntos = Evaluar();
        EXPECT_EQ(TableroGlobal.Fase, fase);
        ASSERT_NE(EvaluarFinalesDificiles(), NO_RECONOCIDO);
        EXPECT_EQ(puntos == EvaluarFinalesDificiles(), fase == 9);
    }
}

struct Bando {
    int OP, EG, Ataque;
};

// The side's total, with the scaled terms in whole numbers.
Bando Sumar(const RegistroBando& b, int color) {
    const int ataque = b.Ataque_Numero > 1 && b.Damas > 0
                           ? KING_ATTACK_MULTI[std::min(b.Ataque_Valor, 399)] * AJUSTE_ATT[color] / 100
                           : 0;
    const int turno  = TableroGlobal.Turno == color ? 1 : 0;
    return {b.Puntos_OP + b.Movilidad_OP * AJUSTE_MOB[color] / 100 + b.Tropismo_OP / 5 + ataque + 5 * turno,
            b.Puntos_EG + b.Movilidad_EG * AJUSTE_MOB[color] / 100 + b.Tropismo_EG / 5 + ataque + 10 * turno, ataque};
}

// The score is what its parts add up to, also where a side attacks with one piece only, without a queen, or where
// the ending is scaled.
TEST_F(Evaluador, EsLaSumaDeSusPartes) {
    constexpr const char* POSICIONES[] = {
        FEN_INICIAL,
        APERTURA_N,
        "6k1/5ppp/8/6NQ/8/8/6PP/5RK1 w - - 0 1",
        "r5k1/5ppp/7q/8/8/8/5PPP/R5K1 b - - 0 1",
        "5rk1/5ppp/4N3/7R/8/3B4/5PPP/6K1 w - - 0 1",
        "r1bq1rk1/pppp1Npp/2n2n2/2b1p2Q/2B1P3/8/PPPP1PPP/RNB1K2R b KQ - 0 1",
        "r1bqkb1r/pppp1ppp/2n2n2/4p2Q/2BPP1B1/2N2N2/2P1PPPP/R3K2R w KQkq - 0 1",
        "8/5k2/3r4/8/4N3/3K4/3R4/8 w - - 0 1",
        "8/3q1k2/8/8/3QP3/8/4K3/8 b - - 0 1",
    };
    int con_ataque = 0, sin_dama = 0, solitario = 0, escalados = 0;
    for (const char* fen : POSICIONES) {
        SCOPED_TRACE(fen);
        CargarPosicion(fen);
        Iniciar_Asimetrico();
        LimpiarPuntuacion(0);
        Material_Imbalance();
        EvaluarApertura();
        EvaluarPiezasTableroJuego();
        for (const auto parte :
             {EvaluarPeonesB, EvaluarPeonesN, EvaluarTorreB, EvaluarTorreN, EvaluarReyes, EvaluarAmenazas})
            parte();
        for (const RegistroBando* b : {&Blancas, &Negras}) {
            solitario += b->Ataque_Numero == 1 && b->Damas > 0 && KING_ATTACK_MULTI[b->Ataque_Valor] > 0;
            sin_dama += b->Ataque_Numero > 1 && b->Damas == 0 && KING_ATTACK_MULTI[b->Ataque_Valor] > 0;
        }
        const Bando b = Sumar(Blancas, BLANCO);
        const Bando n = Sumar(Negras, NEGRO);
        con_ataque += (b.Ataque > 0) + (n.Ataque > 0);

        const int fase = CalcularFase();
        const int factor =
            FinalesReconocidos(Blancas.Peones, Blancas.Caballos, Blancas.Alfiles, Blancas.Torres, Blancas.Damas,
                               Negras.Peones, Negras.Caballos, Negras.Alfiles, Negras.Torres, Negras.Damas);
        ASSERT_NE(factor, 0);
        escalados += factor != 100;
        const int puntos =
            (((b.OP - n.OP) * fase + (b.EG - n.EG) * (24 - fase)) / 24 + DesequilibrioPiezas()) * factor / 100;
        ASSERT_TRUE(fase > 9 || EvaluarFinalesDificiles() == NO_RECONOCIDO);
        EXPECT_EQ(Evaluar(), TableroGlobal.Turno == BLANCO ? puntos : -puntos);
    }
    EXPECT_GT(con_ataque, 0);
    EXPECT_GT(sin_dama, 0);
    EXPECT_GT(solitario, 0);
    EXPECT_GT(escalados, 0);
}

// Boards that no game reaches: any piece anywhere, kings missing or many. Run under the sanitizers this watches
// every table index.
TEST_F(Evaluador, TablerosImposiblesQuedanEnElRango) {
    std::mt19937 azar(11);
    for (int n = 0; n < 3000; ++n) {
        const int tope = 1 + n % 14;  // from boards full of one kind to all kinds
        CargarPosicion("4k3/8/8/8/8/8/8/4K3 w - - 0 1");
        std::string fen;
        for (int casilla = 0; casilla < 64; ++casilla) {
            const int sorteo = static_cast<int>(azar() % 20);
            fen += sorteo < tope ? "PpNnBbRrQqKkQp"[azar() % static_cast<unsigned>(tope)] : '1';
            if (casilla % 8 == 7) fen += '/';
        }
        fen.back() = ' ';
        fen += n % 2 == 0 ? "w KQkq - 0 1" : "b KQkq - 0 1";
        CargarPosicion(fen);
        const int puntos = Evaluar();
        ASSERT_LE(puntos, VALOR_MATE) << fen;
        ASSERT_GE(puntos, -VALOR_MATE) << fen;
    }
    CargarPosicion("QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ b - - 0 1");
    EXPECT_EQ(Evaluar(), -UMBRAL_MATE);
}

}  // namespace
