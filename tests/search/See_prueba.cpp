#include "search/See.h"

#include <cstring>

#include "search/Ayudas.h"

using Intercambio = Busqueda;

TEST_F(Intercambio, SumaHastaLaUltimaRecapturaSinSuGanancia) {
    struct {
        const char* Nombre;
        const char* Fen;
        const char* Captura;
        int         Puntos;
    } constexpr CASOS[] = {
        {"queen for pawn, no retake", "4k3/8/4p3/3p4/8/8/8/3QK3 w - - 0 1", "d1d5", 100},
        {"queen for pawn, retaken", "4k3/8/4p3/3p4/8/8/6B1/3QK3 w - - 0 1", "d1d5", -900},
        {"rooks through each other", "3r1k2/8/8/3r4/8/8/3R4/3R1K2 w - - 0 1", "d2d5", 0},
        {"en passant", "4k3/8/2p5/3pP3/8/8/8/4K3 w - d6 0 1", "e5d6", 0},
        {"pinned bishop stays", "4k3/8/4b3/3p4/8/8/6B1/3QRK2 w - - 0 1", "d1d5", 100},
        {"bishop without the pin", "4k3/8/4b3/3p4/8/8/6B1/R2Q1K2 w - - 0 1", "d1d5", -900},
        {"queen only behind the rook", "3q2k1/8/3r4/8/3R4/8/8/3QR1K1 w - - 0 1", "d4d6", 0},
        {"pawn recaptures by promoting", "r2R3r/2P1k3/8/8/8/8/8/3R2K1 b - - 0 1", "a8d8", 1000},
        {"pawn across the edge is none", "4k3/7p/8/p7/R7/8/8/R3K3 w - - 0 1", "a4a5", 100},
    };
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.Nombre);
        Fen(caso.Fen);
        Jugar({caso.Captura});
        const RegistroTablero antes = TableroGlobal;
        EXPECT_EQ(See(antes.Deshacer[0].Movimiento, antes.Turno), caso.Puntos);
        EXPECT_EQ(std::memcmp(&antes, &TableroGlobal, sizeof antes), 0);
    }
}

// Every attacker in turn, cheapest first, with the king's own safety respected.
TEST_F(Intercambio, LosAtacantesLleganPorSuValor) {
    Fen("3r4/8/2n2k2/2b1p3/3N4/5N2/3RQB2/3RK3 b - - 0 1");
    const int   d4 = 35;
    std::string vistos;
    for (int bando = 0;; bando ^= 1) {
        const std::uint32_t mov = Obtener_Ataques_Menores(d4, bando);
        if (mov == 0) break;
        vistos += Texto(mov);
        vistos += ' ';
    }
    EXPECT_EQ(vistos, "e5d4 f3d4 c6d4 f2d4 c5d4 d2d4 d8d4 d1d4 ");
    IniciarSee();
}
