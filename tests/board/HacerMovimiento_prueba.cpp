#include "board/HacerMovimiento.h"

#include <cstring>
#include <set>

#include "board/Ataques.h"
#include "comun/Tablero.h"

using Jugadas = Tablero;

// The used parts of the stacks, the rest of the record, and the counters.
struct Foto {
    RegistroTablero tablero;
    RegistroBando   blancas, negras;
    explicit Foto() : tablero(TableroGlobal), blancas(Blancas), negras(Negras) {
        std::fill(tablero.HistorialKeys + tablero.NumeroKeys, tablero.HistorialKeys + KEYS_MAX, 0);
        std::fill(tablero.Deshacer + tablero.Ply, tablero.Deshacer + PLIES_MAX, EstadoDeshacer{});
    }
    bool operator==(const Foto& otra) const {
        return std::memcmp(&tablero, &otra.tablero, sizeof tablero) == 0 &&
               std::memcmp(&blancas, &otra.blancas, sizeof blancas) == 0 &&
               std::memcmp(&negras, &otra.negras, sizeof negras) == 0;
    }
};

// The pawn that is taken stood between the king and the bishop.
TEST_F(Jugadas, CapturaAlPasoQueDescubreAlRey) {
    Fen("8/4b3/8/2pP4/8/K7/8/7k w - c6 0 1");
    EXPECT_EQ(HacerMovimientoConJaque(Buscado("d5c6"), SIN_JAQUE), 0);
}

TEST_F(Jugadas, DeshacerDejaTodoComoEstaba) {
    for (const char* posicion : POSICIONES) {
        Fen(posicion);
        PartidasAlAzar(10, 60, [](const std::vector<std::uint32_t>& movimientos) {
            const RegistroTablero& t        = TableroGlobal;
            const int              en_jaque = Jaque2(t.Turno == 1 ? t.PosicionReyBlanco : t.PosicionReyNegro);
            const Foto             antes;
            for (const std::uint32_t mov : movimientos) {
                const int legal = HacerMovimiento(mov);
                ASSERT_EQ(legal, !Peon_Asalvo(t.Turno == 0 ? t.PosicionReyBlanco : t.PosicionReyNegro, 1 - t.Turno));
                DeshacerMovimiento();
                ASSERT_EQ(HacerMovimientoConJaque(mov, en_jaque), legal) << Texto(mov);
                DeshacerMovimiento();
                ASSERT_TRUE(antes == Foto()) << Texto(mov);
            }
            if (t.Ply == PLIES_MAX - 1) return;
            HacerMovimientoNull();
            ASSERT_EQ(t.FichaAlPaso, 0);
            ASSERT_EQ(t.Regla50, antes.tablero.Regla50 + 1);
            DeshacerMovimientoNull();
            ASSERT_TRUE(antes == Foto());
        });
    }
}

// Without castling states in play the incremental key is the key from scratch.
TEST_F(Jugadas, ClaveIncremental) {
    for (const char* posicion : {"rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w - - 0 1", POSICIONES[2]}) {
        Fen(posicion);
        std::uint64_t resto = 0;  // a double push that overwrites an earlier one leaves the earlier key in
        PartidasAlAzar(20, 60, [&resto](const std::vector<std::uint32_t>&) {
            const RegistroTablero& t = TableroGlobal;
            if (t.Ply == 0) {
                resto = 0;
            } else {
                const EstadoDeshacer& ultima = t.Deshacer[t.Ply - 1];
                if ((ultima.Movimiento & (BIT_DOBLE_AVANCE | BIT_AL_PASO)) != 0 && ultima.FichaAlPaso != 0)
                    resto ^= zobrist_Tablero[FILA_AL_PASO][ultima.FichaAlPaso];
            }
            ASSERT_EQ(t.Key ^ resto, ObtenerKey());
        });
    }
}

// The key of the state that is lost stays in.
TEST_F(Jugadas, EstadosDeEnroqueYSusClaves) {
    constexpr char BLANCAS[] = "r3k2r/8/8/8/8/8/8/R3K2R w KQkq - 0 1";
    constexpr char NEGRAS[]  = "r3k2r/8/8/8/8/8/8/R3K2R b KQkq - 0 1";
    // clang-format off
    for (const auto& [fen, jugada, blancas, negras] :   // and the states afterwards
         {std::tuple{BLANCAS, "a1b1", 1, 3}, {BLANCAS, "h1g1", 2, 3}, {BLANCAS, "e1e2", 0, 3}, {BLANCAS, "e1g1", 5, 3},
          {BLANCAS, "e1c1", 4, 3}, {NEGRAS, "h8g8", 3, 2}, {NEGRAS, "a8b8", 3, 1}, {NEGRAS, "e8g8", 3, 5},
          {NEGRAS, "e8c8", 3, 4}, {BLANCAS, "a1a8", 1, 3}}) {   // a captured rook's side keeps its state
        // clang-format on
        Fen(fen);
        HacerMovimiento(Buscado(jugada));
        EXPECT_EQ(TableroGlobal.EnroqueBlancas * 10 + TableroGlobal.EnroqueNegras, blancas * 10 + negras) << jugada;
        EXPECT_EQ(TableroGlobal.Key ^ ObtenerKey(), zobrist_Tablero[FILA_ENROQUE][blancas == 3 ? 3 : 60]) << jugada;
    }
    Fen("r3k2r/8/8/8/8/8/8/R4RK1 b kq - 0 1");
    TableroGlobal.EnroqueBlancas = ENROCADO_CORTO;
    Jugar({"e8d7", "f1e1", "a8b8", "g1f1"});
    EXPECT_EQ(TableroGlobal.EnroqueBlancas, ENROCADO_CORTO) << "a side that has castled has nothing to lose";
}

TEST_F(Jugadas, RelojAlPasoYCoronacion) {
    Fen("4k3/P6p/8/6P1/8/8/8/RN2K3 b - - 7 1");
    Jugar({"h7h5"});
    EXPECT_EQ(TableroGlobal.FichaAlPaso - TableroGlobal.Regla50, 31);
    Jugar({"g5h6", "e8e7", "a7a8r"});
    EXPECT_TRUE(TableroGlobal.Casillas[31] == VACIO && TableroGlobal.Casillas[0] == TORRE_B);
    EXPECT_EQ(TableroGlobal.Deshacer[3].Regla50, 1);
    EXPECT_TRUE(Negras.Peones == 0 && Blancas.Peones == 1 && Blancas.Torres == 2);
}

TEST_F(Jugadas, ClavesParesDistintasYRepetibles) {
    std::set<std::uint64_t> claves{zobrist_Turno};
    for (const auto& fila : zobrist_Tablero) claves.insert(std::begin(fila), std::end(fila));
    EXPECT_EQ(claves.size(), 14U * 64U + 1U);
    EXPECT_GT(*claves.begin(), 0x7FFFFFFFU);
    EXPECT_TRUE(std::ranges::all_of(claves, [](std::uint64_t clave) { return clave % 2 == 0; }));
    const std::uint64_t primera = zobrist_Tablero[0][0];
    InicializarZobrist(2);
    EXPECT_NE(zobrist_Tablero[0][0], primera);
    InicializarZobrist(1);
    EXPECT_EQ(zobrist_Tablero[0][0], primera);
    Fen("4k3/8/8/8/4P3/8/8/4K3 b - e3 0 1");
    EXPECT_EQ(TableroGlobal.Key, zobrist_Tablero[REY_N][4] ^ zobrist_Tablero[REY_B][60] ^ zobrist_Tablero[PEON_B][36] ^
                                     zobrist_Tablero[FILA_AL_PASO][36] ^ zobrist_Tablero[FILA_ENROQUE][63] ^
                                     zobrist_Tablero[FILA_ENROQUE][0]);
}
