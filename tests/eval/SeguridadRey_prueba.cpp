#include "eval/SeguridadRey.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "eval/PosicionPrueba.h"
#include "eval/Terminos.h"

namespace {

class SeguridadRey : public Evaluacion {};

TEST_F(SeguridadRey, LaCurvaPasaPorSusPuntos) {
    constexpr int PUNTOS[][2] = {{0, 0},     {9, 0},     {10, 1},    {25, 7},    {50, 27},   {75, 60},
                                 {100, 107}, {125, 167}, {150, 240}, {151, 243}, {157, 261}, {158, 265},
                                 {175, 318}, {200, 396}, {225, 474}, {233, 499}, {234, 500}, {399, 500}};
    for (const auto& [peso, valor] : PUNTOS) EXPECT_EQ(KING_ATTACK_MULTI[peso], valor) << "weight " << peso;
    EXPECT_TRUE(std::is_sorted(std::begin(KING_ATTACK_MULTI.Valores), std::end(KING_ATTACK_MULTI.Valores)));
}

struct CasoPareja {
    const char* Nombre;
    const char* Mejor;  // for White's king
    const char* Peor;
};

void CompararParejas(const CasoPareja& caso, int Mitades::*fase) {
    for (const bool reflejada : {false, true}) {
        SCOPED_TRACE(caso.Nombre);
        const auto Puntos = [&](const char* fen) {
            CargarPosicion(fen, reflejada);
            return PuntosDe(EvaluarReyes, reflejada ? Negras : Blancas).*fase;
        };
        EXPECT_GT(Puntos(caso.Mejor), Puntos(caso.Peor));
    }
}

TEST_F(SeguridadRey, RefugioEnLaApertura) {
    constexpr CasoPareja CASOS[] = {
        {"shield in place", "3qk3/8/8/8/8/8/5PPP/6K1 w - - 0 1", "3qk3/8/8/8/8/6P1/5P1P/6K1 w - - 0 1"},
        {"luft with the rook pawn, not with two steps", "3qk3/8/8/8/8/7P/5PP1/6K1 w - - 0 1",
         "3qk3/8/8/8/7P/8/5PP1/6K1 w - - 0 1"},
        {"shield without a gap", "3qk3/8/8/8/8/8/5PPP/6K1 w - - 0 1", "3qk3/8/8/8/8/8/5P1P/6K1 w - - 0 1"},
        {"a pawn behind the king is no shield", "3qk3/8/8/8/8/6PP/6K1/8 w - - 0 1", "3qk3/8/8/8/6K1/6PP/8/8 w - - 0 1"},
        {"half-open is better than open", "3qk3/6p1/8/8/8/8/5P1P/6K1 w - - 0 1", "3qk3/8/8/8/8/8/5P1P/6K1 w - - 0 1"},
        {"an open file hurts only before heavy pieces", "3bk3/8/8/8/8/8/5P1P/6K1 w - - 0 1",
         "3rk3/8/8/8/8/8/5P1P/6K1 w - - 0 1"},
        {"storm far away", "3qk3/6p1/8/8/8/8/5PPP/6K1 w - - 0 1", "3qk3/8/8/8/6p1/8/5PPP/6K1 w - - 0 1"},
        {"storm stopped at the shield", "3qk3/8/8/8/8/6p1/5PPP/6K1 w - - 0 1", "3qk3/8/8/8/6p1/8/5PPP/6K1 w - - 0 1"},
        {"behind the corner pawns, three files count", "3qk3/8/8/8/8/8/PPP5/K7 w - - 0 1",
         "3qk3/8/8/8/8/8/PP6/K7 w - - 0 1"},
        {"home is better than the centre", "3qk3/8/8/8/8/8/8/6K1 w - - 0 1", "3qk3/8/8/3K4/8/8/8/8 w - - 0 1"},
    };
    for (const CasoPareja& caso : CASOS) CompararParejas(caso, &Mitades::OP);
}

TEST_F(SeguridadRey, EnElFinalElReyVaAlCentro) {
    CompararParejas({"centre", "7k/8/8/8/4K3/8/8/8 w - - 0 1", "7k/8/8/8/8/8/8/6K1 w - - 0 1"}, &Mitades::EG);
}

TEST_F(SeguridadRey, ElEnroqueYSusDerechos) {
    const auto Puntos = [](const char* fen, int estado) {
        CargarPosicion(fen);
        TableroGlobal.EnroqueBlancas = estado;
        return PuntosDe(EvaluarReyes, Blancas).OP;
    };
    constexpr char EN_CASA[]  = "4k3/8/8/8/8/8/PPPPPPPP/R3K2R w - - 0 1";
    constexpr char ENROCADO[] = "4k3/8/8/8/8/8/PPPPPPPP/R4RK1 w - - 0 1";
    constexpr char SIN_ALA[]  = "3qk3/8/8/8/6P1/8/PPPPP3/R3K2R w - - 0 1";
    constexpr char DOS_ALAS[] = "3qk3/8/8/8/1P4P1/8/P2PP3/R3K2R w - - 0 1";
    EXPECT_LT(Puntos(EN_CASA, SIN_ENROQUE), Puntos(EN_CASA, ENROQUE_CORTO));
    EXPECT_LT(Puntos(EN_CASA, ENROQUE_LARGO), Puntos(EN_CASA, ENROQUE_AMBOS));
    EXPECT_LT(Puntos(EN_CASA, ENROQUE_AMBOS), Puntos(ENROCADO, ENROCADO_CORTO));
    EXPECT_LT(Puntos(ENROCADO, SIN_ENROQUE), Puntos(ENROCADO, ENROCADO_LARGO));
    // The wing to which the king may still go decides.
    EXPECT_LT(Puntos(SIN_ALA, ENROQUE_CORTO), Puntos(SIN_ALA, ENROQUE_LARGO));
    EXPECT_LT(Puntos(DOS_ALAS, ENROQUE_LARGO), Puntos(SIN_ALA, ENROQUE_LARGO));
}

TEST_F(SeguridadRey, JaquesSegurosYCasillasDebiles) {
    const auto Peso = [](const char* fen, bool reflejada) {
        CargarPosicion(fen, reflejada);
        PuntosDe(EvaluarReyes, Blancas);
        return (reflejada ? Negras : Blancas).Ataque_Valor;
    };
    constexpr CasoPareja CASOS[] = {
        {"check on the open back rank", "6k1/5ppp/8/6N1/8/3B4/8/1K2Q3 w - - 0 1",
         "r5k1/5ppp/8/6N1/8/3B4/8/1K2Q3 w - - 0 1"},
        {"weak square with a second attacker", "6k1/5ppp/8/6N1/8/3B4/8/1K1Q4 w - - 0 1",
         "5rk1/5ppp/8/6N1/8/3B4/8/1K1Q4 w - - 0 1"},
        {"knight check", "6k1/5p1p/8/3N2N1/8/3Q4/8/1K6 w - - 0 1", "6k1/4pp1p/8/3N2N1/8/3Q4/8/1K6 w - - 0 1"},
    };
    for (const CasoPareja& caso : CASOS)
        for (const bool reflejada : {false, true})
            EXPECT_GT(Peso(caso.Mejor, reflejada), Peso(caso.Peor, reflejada)) << caso.Nombre;
}

}  // namespace
