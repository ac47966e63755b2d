#include "board/HacerMovimiento.h"

#include <cstring>

#include "board/Ataques.h"
#include "board/Ayudas.h"

using HacerMovimiento_ = Tablero;

// Turno's king is not attacked by the side that does not move.
static int EnJaque() {
    return Jaque2(TableroGlobal.Turno == 1 ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro);
}

static std::uint32_t Jugada(const std::string& texto) {
    for (const std::uint32_t mov : Generar(GENERAR_TODOS))
        if (Texto(mov) == texto) return mov;
    ADD_FAILURE() << texto;
    return 0;
}

// The used parts of the stacks, the rest of the record, and the counters.
struct Foto {
    RegistroTablero tablero;
    RegistroBando   blancas, negras;
    explicit Foto() : tablero(TableroGlobal), blancas(Blancas), negras(Negras) {
        const auto usadas = static_cast<unsigned>(tablero.NumeroKeys);
        std::fill(tablero.HistorialKeys + usadas, tablero.HistorialKeys + KEYS_MAX, 0);
        std::memset(&tablero.Deshacer[tablero.Ply], 0,
                    sizeof(EstadoDeshacer) * static_cast<unsigned>(PLIES_MAX - tablero.Ply));
    }
    bool operator==(const Foto& otra) const {
        return std::memcmp(&tablero, &otra.tablero, sizeof(tablero)) == 0 &&
               std::memcmp(&blancas, &otra.blancas, sizeof(blancas)) == 0 &&
               std::memcmp(&negras, &otra.negras, sizeof(negras)) == 0;
    }
};

TEST_F(HacerMovimiento_, DeshacerDejaTodoComoEstaba) {
    for (const char* posicion : POSICIONES) {
        Fen(posicion);
        PartidasAlAzar(10, 60, [](const std::vector<std::uint32_t>& movimientos) {
            const int  en_jaque = EnJaque();
            const Foto antes;
            for (const std::uint32_t mov : movimientos) {
                const int legal = HacerMovimiento(mov);
                const int rey =
                    PiezaMovida(mov) < VACIO ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro;
                ASSERT_EQ(legal, !Peon_Asalvo(rey, PiezaMovida(mov) < VACIO)) << Texto(mov);
                DeshacerMovimiento();
                ASSERT_EQ(HacerMovimientoConJaque(mov, en_jaque), legal) << Texto(mov);
                DeshacerMovimiento();
                ASSERT_TRUE(antes == Foto()) << Texto(mov);
            }
            if (TableroGlobal.Ply < PLIES_MAX - 1) {
                HacerMovimientoNull();
                ASSERT_EQ(TableroGlobal.FichaAlPaso, 0);
                DeshacerMovimientoNull();
                TableroGlobal.Deshacer[TableroGlobal.Ply] = {};
                ASSERT_TRUE(antes == Foto());
            }
        });
    }
}

// Without castling states in play the incremental key is the key from scratch.
TEST_F(HacerMovimiento_, ClaveIncremental) {
    for (const char* posicion : {"rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w - - 0 1", POSICIONES[2]}) {
        Fen(posicion);
        PartidasAlAzar(20, 60, [](const std::vector<std::uint32_t>&) {
            // A double push that overwrites an earlier one leaves the earlier key in.
            static std::uint64_t   resto = 0;
            const RegistroTablero& t     = TableroGlobal;
            if (t.Ply == 0) resto = 0;
            if (t.Ply > 0) {
                const EstadoDeshacer& ultima = t.Deshacer[t.Ply - 1];
                const bool            pisado =
                    (ultima.Movimiento & (BIT_DOBLE_AVANCE | BIT_AL_PASO)) != 0 && ultima.FichaAlPaso != 0;
                if (pisado) resto ^= zobrist_Tablero[FILA_AL_PASO][ultima.FichaAlPaso];
            }
            ASSERT_EQ(t.Key ^ resto, ObtenerKey());
        });
    }
}

TEST_F(HacerMovimiento_, EstadosDeEnroqueYSusClaves) {
    struct Caso {
        const char* fen;
        const char* jugada;
        int         blancas, negras;
        int         columna;  // of the castling key that is added, -1 = none
    };
    const char* const BLANCAS = "r3k2r/8/8/8/8/8/8/R3K2R w KQkq - 0 1";
    const char* const NEGRAS  = "r3k2r/8/8/8/8/8/8/R3K2R b KQkq - 0 1";
    const Caso        CASOS[] = {
               {BLANCAS, "a1b1", 1, 3, 62},
               {BLANCAS, "h1g1", 2, 3, 61},
               {BLANCAS, "e1e2", 0, 3, 63},
               {BLANCAS, "e1g1", 5, 3, 58},
               {BLANCAS, "e1c1", 4, 3, 59},
               {NEGRAS, "h8g8", 3, 2, 2},
               {NEGRAS, "a8b8", 3, 1, 1},
               {NEGRAS, "e8d7", 3, 0, 0},
               {NEGRAS, "e8g8", 3, 5, 5},
               {NEGRAS, "e8c8", 3, 4, 4},
               {BLANCAS, "a1a8", 1, 3, 62},  // the captured rook's side keeps its state
               {"4k3/8/8/8/8/8/8/R3K2R w K - 0 1", "a1b1", 1, 0, -1},
    };
    for (const Caso& caso : CASOS) {
        SCOPED_TRACE(caso.jugada);
        Fen(caso.fen);
        const std::uint32_t mov   = Jugada(caso.jugada);
        const std::uint64_t antes = TableroGlobal.Key;
        const int           pieza = PiezaMovida(mov);
        HacerMovimiento(mov);
        EXPECT_EQ(TableroGlobal.EnroqueBlancas, caso.blancas);
        EXPECT_EQ(TableroGlobal.EnroqueNegras, caso.negras);
        std::uint64_t cambio = antes ^ TableroGlobal.Key ^ zobrist_Turno ^ zobrist_Tablero[pieza][Desde(mov)] ^
                               zobrist_Tablero[pieza][Hasta(mov)];
        if (EsCaptura(mov)) cambio ^= zobrist_Tablero[PiezaCapturada(mov)][Hasta(mov)];
        if (EsEnroque(mov)) {
            const bool corto = Hasta(mov) > Desde(mov);
            const int  torre = pieza == REY_B ? TORRE_B : TORRE_N;
            cambio ^= zobrist_Tablero[torre][Hasta(mov) + (corto ? 1 : -2)];
            cambio ^= zobrist_Tablero[torre][Hasta(mov) + (corto ? -1 : 1)];
        }
        EXPECT_EQ(cambio, caso.columna < 0 ? 0 : zobrist_Tablero[FILA_ENROQUE][caso.columna]);
    }
}

TEST_F(HacerMovimiento_, RelojAlPasoYCoronacion) {
    Fen("4k3/P6p/8/6P1/8/8/8/RN2K3 b - - 7 1");
    HacerMovimiento(Jugada("h7h5"));
    EXPECT_EQ(TableroGlobal.FichaAlPaso, 31);
    EXPECT_EQ(TableroGlobal.Regla50, 0);
    HacerMovimiento(Jugada("g5h6"));
    EXPECT_EQ(Negras.Peones, 0);
    EXPECT_EQ(TableroGlobal.Casillas[31], VACIO);
    HacerMovimiento(Jugada("e8e7"));
    EXPECT_EQ(TableroGlobal.Regla50, 1);
    HacerMovimiento(Jugada("a7a8r"));
    EXPECT_EQ(Blancas.Peones, 1);
    EXPECT_EQ(Blancas.Torres, 2);
    EXPECT_EQ(TableroGlobal.Casillas[0], TORRE_B);
    for (int i = 0; i < 4; ++i) DeshacerMovimiento();
    EXPECT_EQ(Negras.Peones, 1);
    EXPECT_EQ(TableroGlobal.Regla50, 7);
}
