#include "eval/Terminos.h"

#include <gtest/gtest.h>

#include "eval/PosicionPrueba.h"

namespace {

class Amenazas : public Evaluacion {};

Mitades AmenazasDe(const char* fen, bool reflejada) {
    CargarPosicion(fen, reflejada);
    LimpiarPuntuacion(0);
    EvaluarPiezasTableroJuego();
    EvaluarTorreB();
    EvaluarTorreN();
    RegistroBando& bando = reflejada ? Negras : Blancas;
    const Mitades  antes = {bando.Puntos_OP, bando.Puntos_EG};
    EvaluarAmenazas();
    return {bando.Puntos_OP - antes.OP, bando.Puntos_EG - antes.EG};
}

TEST_F(Amenazas, PiezasAtacadasSinDefensa) {
    struct Caso {
        const char* Nombre;
        const char* Fen;
        Mitades     Esperado;
    };
    constexpr Caso CASOS[] = {
        {"nothing attacked", "6k1/8/8/3n4/8/8/8/R5K1 w - - 0 1", {0, 0}},
        {"rook on a loose pawn", "6k1/3p4/8/8/8/8/8/3R2K1 w - - 0 1", {11, 19}},
        {"rook on a loose knight", "6k1/8/8/3n4/8/8/8/3R2K1 w - - 0 1", {15, 23}},
        {"knight that a pawn defends", "6k1/8/4p3/3n4/8/8/8/3R2K1 w - - 0 1", {0, 0}},
        {"knight that its king defends", "8/8/4k3/3n4/8/8/8/3R2K1 w - - 0 1", {0, 0}},
        {"knight that a rook defends", "3r2k1/8/8/3n4/8/8/8/3R2K1 w - - 0 1", {0, 0}},
        {"two attackers count once", "6k1/8/8/3n4/8/8/Q7/3R2K1 w - - 0 1", {15, 23}},
        {"king on a loose bishop", "6k1/8/8/8/8/8/6b1/6K1 w - - 0 1", {15, 23}},
        {"two loose pieces", "6k1/8/8/b2n4/8/8/8/R2R2K1 w - - 0 1", {30, 46}},
        {"queen on a loose rook", "6k1/8/8/r7/8/8/3Q4/6K1 w - - 0 1", {17, 25}},
        {"a king in check is no hanging piece", "3k4/8/8/8/8/8/8/3R2K1 w - - 0 1", {0, 0}},
    };
    for (const Caso& caso : CASOS)
        for (const bool reflejada : {false, true})
            EXPECT_EQ(AmenazasDe(caso.Fen, reflejada), caso.Esperado) << caso.Nombre;
}

TEST_F(Amenazas, LasPiezasBaratasAtacanALasCaras) {
    struct Caso {
        const char* Nombre;
        const char* Mayor;  // the greater threat of White; all attacked pieces are defended
        const char* Menor;
    };
    constexpr Caso CASOS[] = {
        {"pawn on a knight", "6k1/8/4p3/3n4/4P3/8/8/6K1 w - - 0 1", "6k1/8/4p3/3n4/3P4/8/8/6K1 w - - 0 1"},
        {"pawn on a rook rather than on a knight", "6k1/8/4p3/3r4/4P3/8/8/6K1 w - - 0 1",
         "6k1/8/4p3/3n4/4P3/8/8/6K1 w - - 0 1"},
        {"pawn on a queen rather than on a rook", "6k1/8/4p3/3q4/4P3/8/8/6K1 w - - 0 1",
         "6k1/8/4p3/3r4/4P3/8/8/6K1 w - - 0 1"},
        {"knight on a rook", "6k1/8/4p3/3r4/1N6/8/8/6K1 w - - 0 1", "6k1/8/4p3/3n4/1N6/8/8/6K1 w - - 0 1"},
        {"bishop on a queen", "6k1/8/4p3/3q4/8/1B6/8/6K1 w - - 0 1", "6k1/8/4p3/3b4/8/1B6/8/6K1 w - - 0 1"},
        {"rook on a queen", "6k1/8/4p3/3q4/8/8/8/3R2K1 w - - 0 1", "6k1/8/4p3/3r4/8/8/8/3R2K1 w - - 0 1"},
        {"two attackers, one defender", "8/8/4k3/3n4/8/1B6/8/3R2K1 w - - 0 1", "8/8/4k3/3n4/8/8/1B6/3R2K1 w - - 0 1"},
        {"two attackers, two defenders", "8/8/4k3/3n4/8/1B6/8/3R2K1 w - - 0 1",
         "8/8/2b1k3/3n4/8/1B6/8/3R2K1 w - - 0 1"},
        {"a pawn about to attack", "6k1/8/4p3/3n4/8/4P3/8/6K1 w - - 0 1", "6k1/8/4p3/3n4/4p3/4P3/8/6K1 w - - 0 1"},
        {"a double step about to attack", "6k1/8/4p3/3b4/8/3K4/2P5/8 w - - 0 1",
         "6k1/8/4p3/3b4/8/2BK4/2P5/8 w - - 0 1"},
        {"not where a pawn takes it", "6k1/4p3/8/3n4/8/4PK2/8/8 w - - 0 1", "6k1/8/4p3/3n1p2/8/4PK2/8/8 w - - 0 1"},
    };
    for (const Caso& caso : CASOS)
        for (const bool reflejada : {false, true}) {
            SCOPED_TRACE(caso.Nombre);
            const Mitades mayor = AmenazasDe(caso.Mayor, reflejada);
            const Mitades menor = AmenazasDe(caso.Menor, reflejada);
            EXPECT_GT(mayor.OP, menor.OP);
            EXPECT_GT(mayor.EG, menor.EG);
        }
}

}  // namespace
