#include "board/Generacion.h"

#include "board/Ataques.h"
#include "comun/Tablero.h"

using Generacion = Tablero;

static std::string Textos(
    int modo, bool (*cual)(std::uint32_t) = [](std::uint32_t) { return true; }) {
    std::string textos;
    for (const std::uint32_t mov : Generar(modo))
        if (cual(mov)) textos += Texto(mov) + " ";
    return textos;
}

TEST_F(Generacion, OrdenDeLaLista) {
    struct {
        const char* fen;
        int         modo;
        const char* movimientos;
    } constexpr CASOS[] = {
        {POSICIONES[0], GENERAR_TODOS,
         "g1h3 g1f3 b1c3 b1a3 h2h3 h2h4 g2g3 g2g4 f2f3 f2f4 e2e3 e2e4 d2d3 d2d4 c2c3 c2c4 b2b3 b2b4 a2a3 a2a4 "},
        {"rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR b KQkq - 0 1", GENERAR_TODOS,
         "b8c6 b8a6 g8h6 g8f6 a7a6 a7a5 b7b6 b7b5 c7c6 c7c5 d7d6 d7d5 e7e6 e7e5 f7f6 f7f5 g7g6 g7g5 h7h6 h7h5 "},
        // A queen goes as a rook first; en passant comes before the other moves of a pawn; castling before king steps.
        {"8/7k/1p3p2/8/1p1Q1p2/8/1p1p1p2/K7 w - - 0 1", GENERAR_CAPTURAS, "a1b2 d4d2 d4b4 d4f4 d4f2 d4b2 d4f6 d4b6 "},
        {"7k/8/8/2PpP3/8/8/8/K7 w - d6 0 1", GENERAR_CAPTURAS, "e5d6 c5d6 "},
        {"k7/8/8/8/2pPp3/8/8/7K b - d3 0 1", GENERAR_CAPTURAS, "c4d3 e4d3 "},
        {"r3k2r/8/8/8/8/8/8/R3K2R w KQ - 0 1", GENERAR_TODOS,
         "h1h2 h1h3 h1h4 h1h5 h1h6 h1h7 h1h8 h1g1 h1f1 e1g1 e1c1 e1e2 e1f1 e1d1 e1d2 e1f2 a1a2 a1a3 a1a4 a1a5 a1a6 "
         "a1a7 a1a8 a1b1 a1c1 a1d1 "},
        {"2r4k/1P6/8/8/8/8/8/K7 w - - 0 1", GENERAR_CAPTURAS, "b7c8q b7c8r b7c8b b7c8n b7b8q b7b8r b7b8b b7b8n "},
    };
    for (const auto& caso : CASOS) {
        Fen(caso.fen);
        EXPECT_EQ(Textos(caso.modo), caso.movimientos) << caso.fen;
    }
}

TEST_F(Generacion, PalabraDeMovimiento) {
    for (const auto& [fen, texto, palabra] : {std::tuple{POSICIONES[0], "e2e4", 0x0BFC5234U},
                                              {"4k3/8/8/8/8/8/8/4K2R w K - 0 1", "e1g1", 0x13FD9F3CU},
                                              {"r6k/1P6/8/8/8/8/8/K7 w - - 0 1", "b7a8q", 0x016C4009U}}) {
        Fen(fen);
        EXPECT_EQ(Buscado(texto), palabra);
    }
}

// Attacked squares on the king's way; the arrival square is left to the legality test, and b1 may be attacked.
TEST_F(Generacion, Enroques) {
    for (const auto& [fen, enroques] : {std::pair{"r3k2r/8/8/8/8/8/8/R3K2R b KQk - 0 1", "e8g8 "},
                                        {"1r2k1r1/8/8/8/8/8/8/R3K2R w KQ - 0 1", "e1g1 e1c1 "},
                                        {"3rk3/8/8/8/8/8/8/RN2K2R w KQ - 0 1", "e1g1 "},
                                        {"3rk3/8/8/8/8/8/8/R3K2R w KQ - 0 1", "e1g1 "},
                                        {"4kr2/8/8/8/8/8/8/R3K2R w KQ - 0 1", "e1c1 "},
                                        {"4k3/4r3/8/8/8/8/8/R3K2R w KQ - 0 1", ""},
                                        {"4k3/8/8/8/8/8/8/B3K2N w KQ - 0 1", ""},
                                        {"4k3/8/8/8/8/8/4K3/R6R w KQ - 0 1", ""}}) {
        Fen(fen);
        EXPECT_EQ(Textos(GENERAR_TODOS, EsEnroque), enroques) << fen;
    }
}

// Captures mode is all-moves mode without quiet non-promotions, in the same order.
TEST_F(Generacion, CapturasSonUnaSeleccionDeTodos) {
    for (const char* posicion : POSICIONES) {
        Fen(posicion);
        PartidasAlAzar(10, 60, [](std::vector<std::uint32_t> movimientos) {
            std::erase_if(movimientos, EsTranquilo);
            ASSERT_EQ(Generar(GENERAR_CAPTURAS), movimientos);
        });
    }
}

// Boards that no game reaches: nothing is written past the list, and the pawns of the last ranks stand still.
TEST_F(Generacion, PosicionesAbsurdas) {
    Fen("P6P/8/8/8/8/8/8/p6p w - - 0 1");
    EXPECT_EQ(Textos(GENERAR_TODOS), "");
    Fen("8/8/3p4/3Pp3/8/8/8/k1K5 w - e3 0 1");  // the square behind names a white pawn that is not there
    EXPECT_EQ(Textos(GENERAR_CAPTURAS), "");
    Fen("8/8/8/3Pn3/8/8/8/k1K5 w - e6 0 1");  // a knight
    EXPECT_EQ(Textos(GENERAR_CAPTURAS), "");
    Fen("8/8/4n3/3Pp3/8/8/8/k1K5 w - e6 0 1");  // a pawn, but its way was not free
    EXPECT_EQ(Textos(GENERAR_CAPTURAS), "d5e6 ");
    struct {
        ListaMovimientos lista;
        std::uint32_t    centinela[64];
    } memoria;
    std::fill_n(memoria.centinela, 64, 0xA5A5A5A5U);
    Fen("QQQQQQQQ/Q6Q/Q6Q/Q6Q/Q6Q/Q6Q/Q6Q/QQQQQQQQ w - - 0 1");
    EXPECT_EQ(GenerarMovimientos(GENERAR_TODOS, memoria.lista), MOVIMIENTOS_MAX);
    EXPECT_EQ(std::exchange(Salir, 0), 1);
    EXPECT_EQ(std::count(memoria.centinela, memoria.centinela + 64, 0xA5A5A5A5U), 64);
    TableroGlobal.Turno = 2;
    EXPECT_EQ(GenerarMovimientos(GENERAR_TODOS, memoria.lista), 0);
    EXPECT_EQ(std::exchange(Salir, 0), 1);
    EXPECT_EQ(Jaque2(34), 0);
    EXPECT_EQ(Salir, 1);
}

TEST_F(Generacion, PeonesQueAmenazan) {
    Fen("k6K/8/8/3p4/P6p/8/8/8 w - - 0 1");
    EXPECT_TRUE(AmenazadoPorPeonNegro(34) && AmenazadoPorPeonNegro(36) && AmenazadoPorPeonBlanco(25));
    EXPECT_FALSE(AmenazadoPorPeonNegro(48) || AmenazadoPorPeonBlanco(23));  // not round the edge
    EXPECT_EQ(Peon_Asalvo(34, 1) - Peon_Asalvo(34, 0), 1);
}
