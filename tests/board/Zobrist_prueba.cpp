#include "board/Zobrist.h"

#include <set>

#include "board/Ayudas.h"

using Zobrist = Tablero;

TEST_F(Zobrist, ClavesParesDistintasYRepetibles) {
    std::set<std::uint64_t> claves{zobrist_Turno};
    for (const auto& fila : zobrist_Tablero) claves.insert(std::begin(fila), std::end(fila));
    EXPECT_EQ(claves.size(), 14U * 64U + 1U);
    for (const std::uint64_t clave : claves) {
        EXPECT_EQ(clave & 1, 0U);
        EXPECT_GT(clave, 0x7FFFFFFFU);
    }
    const std::uint64_t primera = zobrist_Tablero[0][0];
    InicializarZobrist(1);
    EXPECT_EQ(zobrist_Tablero[0][0], primera);
    InicializarZobrist(2);
    EXPECT_NE(zobrist_Tablero[0][0], primera);
}

TEST_F(Zobrist, ClaveDeUnaPosicion) {
    Fen("4k3/8/8/8/4P3/8/8/4K3 b - e3 0 1");
    EXPECT_EQ(TableroGlobal.Key, zobrist_Tablero[REY_N][4] ^ zobrist_Tablero[REY_B][60] ^ zobrist_Tablero[PEON_B][36] ^
                                     zobrist_Tablero[FILA_AL_PASO][36] ^ zobrist_Tablero[FILA_ENROQUE][63] ^
                                     zobrist_Tablero[FILA_ENROQUE][0]);
}
