#include "search/Orden.h"

#include <gtest/gtest.h>

#include "board/Puntuacion.h"
#include "search/AlphaBeta.h"
#include "search/Historico.h"

static std::uint32_t Callada(int pieza, int desde, int hasta) {
    return CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA);
}

class Orden : public testing::Test {
protected:
    ListaMovimientos lista;

    void SetUp() override {
        LimpiarHistorico();
        TableroGlobal.Ply = 3;
    }
    int Puntuar(std::uint32_t movimiento, std::uint32_t tabla = 0, std::uint32_t refutacion = 0) {
        lista.Entradas[0].Movimiento = movimiento;
        OrdenarMovimientosTodos(1, tabla, lista, refutacion);
        return lista.Entradas[0].Puntos;
    }
};

TEST_F(Orden, Bandas) {
    for (const auto& [movimiento, puntos] : {std::pair{CrearMovimiento(36, 27, PEON_B, DAMA_N, NINGUNA), 5000319},
                                             {CrearMovimiento(3, 51, DAMA_N, PEON_B, NINGUNA), 5000059},
                                             {CrearMovimiento(60, 52, REY_B, TORRE_N, NINGUNA), 5000250},
                                             {CrearMovimiento(8, 1, PEON_B, TORRE_N, DAMA_B), 4000251},
                                             {CrearMovimiento(48, 57, PEON_N, CABALLO_B, CABALLO_N), 4000126},
                                             {CrearMovimiento(8, 0, PEON_B, NINGUNA, DAMA_B), 3501000},
                                             {CrearMovimiento(48, 56, PEON_N, NINGUNA, CABALLO_N), 3500325},
                                             {Callada(PEON_B, 27, 18) | BIT_AL_PASO, 5000063}}) {
        EXPECT_EQ(Puntuar(movimiento), puntos);
        EXPECT_EQ(Puntuar(movimiento, movimiento), 6000000);
    }
    const std::uint32_t mov = Callada(CABALLO_B, 62, 45);
    struct {
        int Historico, Mate, Killer, Refutacion, Resto;
    } constexpr CASOS[] = {{500, 1999950, 999950, 500050, 50},     {1000, 1999900, 999900, 500100, 100},
                           {0, 2000102, 1000102, 499898, -102},    {-100, 2000026, 1000026, 499974, -26},
                           {-400, 2000101, 1000101, 499899, -101}, {1, 2000000, 1000000, 500000, 0}};
    Max_Historico       = 1000;
    Min_Historico       = -400;
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.Historico);
        Historico_Bueno[CABALLO_B][45] = caso.Historico;
        EXPECT_EQ(Puntuar(mov), caso.Resto);
        EXPECT_EQ(Puntuar(mov, 0, mov), caso.Refutacion);
        for (const int hueco : {0, 1}) {
            Historico_Killer[3][hueco] = mov;
            EXPECT_EQ(Puntuar(mov, 0, mov), caso.Killer);
            Historico_Killer_Mate[3][hueco] = mov;
            EXPECT_EQ(Puntuar(mov), caso.Mate);
            Historico_Killer[3][hueco] = Historico_Killer_Mate[3][hueco] = 0;
        }
    }
}

TEST_F(Orden, UnCortePremiaSuJugadaYCastigaLasQueFallaron) {
    const std::uint32_t corte = Callada(ALFIL_N, 5, 26), otra = Callada(DAMA_N, 3, 19),
                        previa   = Callada(PEON_B, 52, 36);
    lista.Entradas[0].Movimiento = otra;
    lista.Entradas[1].Movimiento = corte;
    HistoricoActualizar(4, 50, corte, previa, lista, 2);
    EXPECT_EQ(Historico_Bueno[ALFIL_N][26], 16);     // + 2 * 16, and - 16 for standing in the list itself
    HistoricoActualizar(4, 50, corte, 0, lista, 1);  // with an illegal move before it, it lies behind those places
    EXPECT_EQ(Historico_Bueno[ALFIL_N][26], 48);
    EXPECT_TRUE(Historico_Bueno[DAMA_N][19] == -32 && Max_Historico == 48 && Min_Historico == -32);
    EXPECT_EQ(ObtenerRechazado(previa), corte);

    HistoricoActualizar(1, 50, otra, 0, lista, 0);
    EXPECT_TRUE(Historico_Killer[3][0] == otra && Historico_Killer[3][1] == corte);
    for (const int mate : {UMBRAL_MATE + 1, -UMBRAL_MATE - 1}) {
        HistoricoActualizar(1, mate, corte, 0, lista, 0);
        EXPECT_EQ(std::exchange(Historico_Killer_Mate[3][0], 0), corte);
    }
    EXPECT_EQ(Historico_Killer[3][0], otra);
}

TEST(Lmr, CreceConProfundidadYNumero) {
    IniciarLmr();
    for (const auto& [profundidad, numero, plies] : {std::tuple{1, 255, 0}, {10, 2, 0}, {10, 6, 2}, {63, 255, 8}})
        EXPECT_EQ(ReduccionLmr(profundidad, numero), plies) << profundidad << " " << numero;
    EXPECT_EQ(ReduccionLmr(64, 256), 8);
}
