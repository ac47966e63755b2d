#include "board/Perft.h"

#include "board/Ayudas.h"

struct CasoPerft {
    int           posicion;  // of POSICIONES
    int           profundidad;
    std::uint64_t hojas;
    int           capturas, al_paso, enroques, coronaciones;
};

// Published totals.
constexpr CasoPerft CASOS[] = {
    {0, 1, 20, 0, 0, 0, 0},
    {0, 3, 8902, 34, 0, 0, 0},
    {0, 5, 4865609, 82719, 258, 0, 0},
    {1, 3, 97862, 17102, 45, 3162, 0},
    {1, 4, 4085603, 757163, 1929, 128013, 15172},
    {2, 5, 674624, 52051, 1165, 0, 0},
    {3, 4, 422333, 131393, 0, 7795, 60032},
};

using Perft_ = Tablero;

TEST_F(Perft_, CoincideConLosTotalesPublicados) {
    for (const CasoPerft& caso : CASOS) {
        SCOPED_TRACE(testing::Message() << POSICIONES[caso.posicion] << " depth " << caso.profundidad);
        Fen(POSICIONES[caso.posicion]);
        ListaJugadas(caso.profundidad);
        EXPECT_EQ(ContadorPerft.Nodos, caso.hojas);
        EXPECT_EQ(ContadorPerft.Capturas, caso.capturas);
        EXPECT_EQ(ContadorPerft.CapturasAlPaso, caso.al_paso);
        EXPECT_EQ(ContadorPerft.Enroques, caso.enroques);
        EXPECT_EQ(ContadorPerft.Coronaciones, caso.coronaciones);
    }
    constexpr CasoPerft SOLO_HOJAS[] = {{4, 3, 62379, 0, 0, 0, 0}, {5, 3, 89890, 0, 0, 0, 0}};
    for (const CasoPerft& caso : SOLO_HOJAS) {
        Fen(POSICIONES[caso.posicion]);
        ListaJugadas(caso.profundidad);
        EXPECT_EQ(ContadorPerft.Nodos, caso.hojas);
    }
}

static std::string Salida(const char* orden) {
    testing::internal::CaptureStdout();
    Perft(orden);
    return testing::internal::GetCapturedStdout();
}

TEST_F(Perft_, ImprimeLosRecuentosYElReparto) {
    Fen("4k3/P7/8/8/8/8/8/K7 w - - 0 1");
    const std::string salida = Salida(" 1");
    EXPECT_EQ(salida.find("Nodos: 7\nCapturas: 0\nCaptura Ep: 0\nCoronacion: 4\nEnroques: 0\nTiempo(ms): "), 0U);
    const std::size_t reparto = salida.find("Divide\n------------------------------\n");
    ASSERT_NE(reparto, std::string::npos);
    EXPECT_EQ(salida.substr(reparto + 38), "a1a2: 1\na1b1: 1\na1b2: 1\na7a8q: 1\na7a8r: 1\na7a8b: 1\na7a8n: 1\n");
}

TEST_F(Perft_, ProfundidadesRaras) {
    EXPECT_EQ(Salida(" x"), "");
    EXPECT_EQ(Salida(""), "");
    EXPECT_EQ(Salida(" 0").find("Nodos: 0\n"), 0U);
    // Mates and legal moves without leaves below them are left out of the list.
    Fen("k7/8/1K6/8/8/8/8/7R w - - 0 1");
    const std::string salida = Salida(" 2");
    EXPECT_EQ(salida.find("h1h8"), std::string::npos);
    EXPECT_NE(salida.find("h1h7: 1\n"), std::string::npos);
    Fen("k7/8/8/8/8/8/8/8 w - - 0 1");
    Salida(" 99999999999999999999");
    EXPECT_EQ(TipoJuego.ProfundidadLimite, PROFUNDIDAD_MAX);
}
