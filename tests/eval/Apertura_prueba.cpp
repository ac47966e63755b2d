#include "eval/Terminos.h"

#include "eval/PosicionPrueba.h"

namespace {

struct CasoApertura {
    const char* nombre;
    const char* fen;
    int         puntos;  // White's
};

constexpr CasoApertura CASOS[] = {
    {"start", "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1", 0},
    {"e2 blocked by its own piece", "4k3/8/8/8/8/4N3/4P3/4K3 w - - 0 1", -20},
    {"d2 blocked by an enemy piece", "4k3/8/8/8/8/3n4/3P4/4K3 w - - 0 1", -20},
    {"bishop c1 shut in", "4k3/8/8/8/8/3N4/3P4/2B1K3 w - - 0 1", -70},
    {"bishop f1 shut in", "4k3/8/8/8/8/4N3/4P3/4KB2 w - - 0 1", -70},
    {"bishop f1 is no affair of d2", "4k3/8/8/8/8/3N4/3P4/4KB2 w - - 0 1", -20},
    {"knight before the c pawn", "4k3/8/8/8/3P4/2N5/2P5/4K3 w - - 0 1", -20},
    {"... not with e4 taken", "4k3/8/8/8/3PP3/2N5/2P5/4K3 w - - 0 1", 0},
    {"... not without d4", "4k3/8/8/8/8/2N5/2P5/4K3 w - - 0 1", 0},
    {"knight before the f pawn", "4k3/8/8/8/4P3/5N2/5P2/4K3 w - - 0 1", -20},
    {"... not with d4 taken", "4k3/8/8/8/3pP3/5N2/5P2/4K3 w - - 0 1", 0},
    {"bishop f4 beside d4", "4k3/8/8/8/3P1B2/8/8/4K3 w - - 0 1", 10},
    {"bishop h2 beside d4", "4k3/8/8/8/3P4/8/7B/4K3 w - - 0 1", 10},
    {"two bishops count once", "4k3/8/8/6B1/3P1B2/8/8/4K3 w - - 0 1", 10},
    {"bishop a4 beside e4", "4k3/8/8/8/B3P3/8/8/4K3 w - - 0 1", 10},
    {"bishop b5 does not help d4", "4k3/8/8/1B6/3P4/8/8/4K3 w - - 0 1", 0},
    {"both", "4k3/8/8/6B1/2BPP3/8/8/4K3 w - - 0 1", 20},
    {"several add up", "4k3/8/8/8/3P1B2/2N1n3/2P1P3/4KB2 w - - 0 1", -20 - 70 + 10},
};

class Apertura : public Evaluacion {};

TEST_F(Apertura, ReglasDeDesarrollo) {
    for (const CasoApertura& caso : CASOS)
        for (const bool reflejada : {false, true}) {
            SCOPED_TRACE(caso.nombre);
            CargarPosicion(caso.fen, reflejada);
            LimpiarPuntuacion(0);
            EvaluarApertura();
            EXPECT_EQ(reflejada ? Negras.Puntos_OP : Blancas.Puntos_OP, caso.puntos);
            EXPECT_EQ(reflejada ? Blancas.Puntos_OP : Negras.Puntos_OP, 0);
            EXPECT_EQ(Blancas.Puntos_EG + Negras.Puntos_EG, 0);
        }
}

}  // namespace
