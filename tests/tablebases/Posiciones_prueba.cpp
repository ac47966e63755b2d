// Every 3-men position with a pawn, a rook or a queen, against an analysis of our own.
#include <algorithm>

#include "board/Puntuacion.h"
#include "tablebases/Analisis.h"
#include "tablebases/Biblioteca.h"

// Positions where the tables answer otherwise, with the piece on the side blanco (1 = White).
static int Diferencias(const Analisis& a, int blanco) {
    int        diferencias = 0;
    const int  pieza_b     = a.Pieza == 'P' ? PEON_B : a.Pieza == 'Q' ? DAMA_B : TORRE_B;
    const auto Poner       = [blanco](int casilla, int codigo, int lado) {
        TableroGlobal.Casillas[blanco == 1 ? casilla : casilla ^ 56] = lado == 1 ? codigo : codigo + DESFASE_NEGRO;
    };
    const std::string letra(1, static_cast<char>(blanco == 1 ? a.Pieza : a.Pieza + 'a' - 'A'));
    Sondear(("8/8/8/8/" + letra + "7/1k6/8/K7 b - - 0 1").c_str());  // sets the piece counters
    for (int i = 0; i < 2 * 64 * 64 * 64; ++i) {
        const int mueve = i >> 18, rey = i >> 12 & 63, pieza = i >> 6 & 63, solo = i & 63;
        if (!a.EsLegal(mueve, rey, pieza, solo)) continue;
        std::fill(TableroGlobal.Casillas, TableroGlobal.Casillas + 64, VACIO);
        Poner(rey, REY_B, blanco);
        Poner(pieza, pieza_b, blanco);
        Poner(solo, REY_B, 1 - blanco);
        TableroGlobal.Turno = mueve == 1 ? blanco : 1 - blanco;
        const int n         = a.De(mueve, rey, pieza, solo);
        const int esperados = n == SIN_DECIDIR ? 0 : mueve == 1 ? VALOR_TB - n : n - VALOR_TB;
        int       puntos    = VALOR_INFINITO;
        if (Probar_gtbgaviota(0, &puntos) != 1 || puntos != esperados) ++diferencias;
    }
    return diferencias;
}

TEST(Posiciones, TodasComoElAnalisisPropio) {
    const BibliotecaPuesta biblioteca{BIBLIOTECA_REAL};
    if (biblioteca.Mango == nullptr) GTEST_SKIP() << SIN_PAQUETES;
    Analisis dama{'Q'}, torre{'R'}, peon{'P', {&dama, &torre}};
    EXPECT_EQ(dama.Calcular(), 19);  // mates in 10, 16 and 28 moves at most
    EXPECT_EQ(torre.Calcular(), 31);
    EXPECT_EQ(peon.Calcular(), 55);
    IniciarOpcionesGaviota();
    Recargar(TABLAS_REALES + "4");
    for (const Analisis* a : {&dama, &torre, &peon})
        for (const int blanco : {0, 1}) EXPECT_EQ(Diferencias(*a, blanco), 0) << a->Pieza << " " << blanco;
    Actualizar(0);
}
