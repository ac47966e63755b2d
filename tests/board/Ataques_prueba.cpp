#include "board/Ataques.h"

#include "board/Ayudas.h"

using Ataques = Tablero;

// An oracle that knows files and ranks instead of square differences.
static bool AtacadaIngenua(int casilla, bool por_blancas) {
    const auto pieza_en = [](int columna, int fila) {
        return columna < 0 || columna > 7 || fila < 0 || fila > 7 ? -1 : TableroGlobal.Casillas[fila * 8 + columna];
    };
    const int base    = por_blancas ? 0 : DESFASE_NEGRO;
    const int columna = casilla % 8, fila = casilla / 8;
    for (int dc = -2; dc <= 2; ++dc)
        for (int df = -2; df <= 2; ++df) {
            const int pieza = pieza_en(columna + dc, fila + df);
            if (dc * dc + df * df == 5 && pieza == base + CABALLO_B) return true;
            if (dc * dc <= 1 && df * df <= 1 && (dc != 0 || df != 0)) {
                if (pieza == base + REY_B) return true;
                if (pieza == base + PEON_B && dc != 0 && df == (por_blancas ? 1 : -1)) return true;
                for (int n = 1; n < 8; ++n) {
                    const int vista = pieza_en(columna + n * dc, fila + n * df);
                    if (vista == VACIO) continue;
                    if (vista == base + DAMA_B || vista == base + (dc * df != 0 ? ALFIL_B : TORRE_B)) return true;
                    break;
                }
            }
        }
    return false;
}

TEST_F(Ataques, CoincidenConUnOraculoIngenuo) {
    for (const char* posicion : POSICIONES) {
        Fen(posicion);
        PartidasAlAzar(6, 60, [](const std::vector<std::uint32_t>&) {
            for (int casilla = 0; casilla < 64; ++casilla) {
                ASSERT_EQ(JaqueNegras(casilla), AtacadaIngenua(casilla, true)) << casilla;
                ASSERT_EQ(JaqueBlancas(casilla), AtacadaIngenua(casilla, false)) << casilla;
                ASSERT_EQ(Jaque2(casilla), TableroGlobal.Turno == 1 ? JaqueBlancas(casilla) : JaqueNegras(casilla));
            }
        });
    }
}

TEST_F(Ataques, PeonesYTurnoImposible) {
    Fen("k6K/8/8/3p4/P6p/8/8/8 w - - 0 1");
    EXPECT_TRUE(AmenazadoPorPeonNegro(34) && AmenazadoPorPeonNegro(36) && AmenazadoPorPeonNegro(46));
    EXPECT_FALSE(AmenazadoPorPeonNegro(48) || AmenazadoPorPeonNegro(35));  // not from h4 round the edge
    EXPECT_TRUE(AmenazadoPorPeonBlanco(25));
    EXPECT_FALSE(AmenazadoPorPeonBlanco(23) || AmenazadoPorPeonBlanco(24));
    EXPECT_EQ(Peon_Asalvo(34, 1), 1);
    EXPECT_EQ(Peon_Asalvo(34, 0), 0);
    EXPECT_EQ(Salir, 0);
    TableroGlobal.Turno = 2;
    EXPECT_EQ(Jaque2(34), 0);
    EXPECT_EQ(Salir, 1);
}
