#include "board/Posicion.h"

#include "board/Fen.h"
#include "board/Palabras.h"
#include "comun/Tablero.h"

using Posicion = Tablero;

static std::string Mandar(const std::string& texto) {
    return Capturar([&texto] { Position_Fen_Startpos(texto.c_str()); });
}

TEST_F(Posicion, CamposDelFen) {
    struct {
        const char* fen;
        int         turno, blancas, negras, al_paso, regla50;
    } constexpr CASOS[] = {
        {"rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 3 9", 1, 3, 3, 0, 3},
        {"4k3/8/8/8/8/8/8/4K3 b qk - 0 1", 0, 0, 2, 0, 0},      // letters out of their order are lost
        {"4k3/8/8/8/8/8/8/4K3 x Kq e3 5", 0, 1, 2, 36, 5},      // any other letter is Black
        {"4k3/8/8/8/8/8/8/4K3 w - e6 0 1", 1, 0, 0, 28, 0},     // the side to move is not consulted
        {"4k3/8/8/8/8/8/8/4K3 w - e4 150 1", 1, 0, 0, 0, 100},  // no square of an advance; the clock is capped
        {"4k3/8/8/8/8/8/8/4K3", 1, 0, 0, 0, 0},                 // the side to move stays as it was
        {"4k3x8x8x8x8x8x8x4K3 w - - 4 1", 1, 0, 0, 0, 4},       // the separator is not examined
        {"4k8/3/8/8/8/8/8/4K3 w - - 4 1", 1, 0, 0, 0, 4},       // digits may run on into the next rank
    };
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.fen);
        Mandar("startpos");
        EXPECT_EQ(Mandar(std::string("fen ") + caso.fen), "");
        const RegistroTablero& t = TableroGlobal;
        EXPECT_EQ(std::vector({t.Turno, t.EnroqueBlancas, t.EnroqueNegras, t.FichaAlPaso, t.Regla50, t.NumeroKeys}),
                  std::vector({caso.turno, caso.blancas, caso.negras, caso.al_paso, caso.regla50, caso.regla50}));
        EXPECT_TRUE(t.PosicionReyNegro == 4 && t.PosicionReyBlanco == 60 && t.TurnoRaiz == t.Turno);
        EXPECT_EQ(t.Key, ObtenerKey());
    }
}

TEST_F(Posicion, FenMalFormadoDejaLaInicial) {
    for (const char* fen : {"", "8/8/8/8/8/8/8 w - - 0 1", "rnbqkbnr/ppppXppp/8/8/8/8/8/8 w - - 0 1",
                            "8/8/8/8/8/8/8/18 w - - 0 1", "9/8/8/8/8/8/8/8 w", "4k3/8/8/8/8/8/8/4K2 w - - 0 1"}) {
        SCOPED_TRACE(fen);
        EXPECT_EQ(Mandar(std::string("fen ") + fen + " moves e2e4"), "info string Formato FEN incorrecto.\n");
        EXPECT_TRUE(TableroGlobal.Casillas[52] == PEON_B && Blancas.Peones == 8 && Negras.Damas == 1);
        EXPECT_EQ(TipoJuego.MovimientosJugados, 0);
    }
}

TEST_F(Posicion, ListaDeMovimientos) {
    const RegistroTablero& t = TableroGlobal;
    EXPECT_EQ(Mandar(" startpos moves e2e4 e7e5"), "");
    EXPECT_TRUE(t.FichaAlPaso == 28 && t.NumeroKeys == 4 && t.TurnoRaiz == 1);
    EXPECT_EQ(t.HistorialKeys[2], t.HistorialKeys[3]);
    Mandar("anything moves e2e4 e7e4 e7e5 e7e8Q");  // unknown moves after the first are skipped
    EXPECT_EQ(TipoJuego.MovimientosJugados, 2);
    Mandar("fen 4k3/8/8/8/8/8/4q3/4K3 w - - 0 1 moves e1d1");  // into check: played all the same
    EXPECT_EQ(t.PosicionReyBlanco + Salir, 59);
    EXPECT_TRUE(Mandar("startpos moves e2e5").starts_with("info string Movimiento ilegal: e2e5\n"));
    EXPECT_EQ(Salir, 1);
}

// The history never overflows: however long the game, the last positions stand in it twice each.
TEST_F(Posicion, PartidaMuyLarga) {
    std::string partida = "startpos moves";
    for (int i = 0; i < 200; ++i) partida += " g1f3 g8f6 f3g1 f6g8";
    EXPECT_EQ(Mandar(partida), "");
    const RegistroTablero& t = TableroGlobal;
    EXPECT_EQ(TipoJuego.MovimientosJugados, 800);
    EXPECT_EQ(t.Regla50, 800);
    ASSERT_LE(t.NumeroKeys + PLIES_MAX, KEYS_MAX);
    for (int i = 1; i <= 200; ++i) {
        const int actual = t.NumeroKeys - i;
        ASSERT_EQ(t.HistorialKeys[actual] == t.Key, (i - 1) / 2 % 4 == 0) << i;
    }
}

TEST_F(Posicion, Palabras) {
    const std::string larga(200, 'a');
    for (const auto& [texto, esperada, resto] : {std::tuple{"  go\tx infinite", "go\tx", " infinite"},
                                                 {"abc\240def", "abc", "\240def"},
                                                 {"\200x", "", "\200x"},
                                                 {larga.c_str(), larga.c_str() + 122, ""}}) {
        char palabra[PALABRA_MAX];
        EXPECT_STREQ(Split_String(texto, palabra), resto);
        EXPECT_STREQ(palabra, esperada);
    }
    EXPECT_TRUE(Es_Numero("007") && !Es_Numero("") && !Es_Numero("-1") && !Es_Numero("1.5") && !Es_Numero("5 "));
    EXPECT_EQ(NumeroDe32Bits("4294967297") - NumeroDe32Bits("99999999999999999999"), 2);
    EXPECT_EQ(NumeroAcotado("4294967297", 32), 32);
}
