#include "board/Perft.h"

#include "comun/Tablero.h"

using Perft_ = Tablero;

TEST_F(Perft_, CoincideConLosTotalesPublicados) {
    struct {
        int           posicion;  // of POSICIONES
        int           profundidad;
        std::uint64_t hojas;
        int           capturas, al_paso, enroques, coronaciones;  // -1 = not published
    } constexpr CASOS[] = {
        {0, 1, 20, 0, 0, 0, 0},
        {0, 5, 4865609, 82719, 258, 0, 0},
        {1, 3, 97862, 17102, 45, 3162, 0},
        {1, 4, 4085603, 757163, 1929, 128013, 15172},
        {2, 5, 674624, 52051, 1165, 0, 0},
        {3, 4, 422333, 131393, 0, 7795, 60032},
        {4, 3, 62379, -1, -1, -1, -1},
        {5, 3, 89890, -1, -1, -1, -1},
    };
    const RegistroPerft& c = ContadorPerft;
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(testing::Message() << POSICIONES[caso.posicion] << " depth " << caso.profundidad);
        Fen(POSICIONES[caso.posicion]);
        ListaJugadas(caso.profundidad);
        EXPECT_EQ(c.Nodos, caso.hojas);
        if (caso.capturas < 0) continue;
        EXPECT_EQ(std::vector({c.Capturas, c.CapturasAlPaso, c.Enroques, c.Coronaciones}),
                  std::vector({caso.capturas, caso.al_paso, caso.enroques, caso.coronaciones}));
    }
}

TEST_F(Perft_, ImprimeLosRecuentosYElReparto) {
    const auto Salida = [](const char* orden) { return Capturar([orden] { Perft(orden); }); };
    EXPECT_EQ(Salida(" x") + Salida(""), "");
    Fen("4k3/P7/8/8/8/8/8/K7 w - - 0 1");
    EXPECT_TRUE(
        Salida(" 1").starts_with("Nodos: 7\nCapturas: 0\nCaptura Ep: 0\nCoronacion: 4\nEnroques: 0\nTiempo(ms): "));
    EXPECT_TRUE(
        Salida(" 1").ends_with("Divide\n------------------------------\na1a2: 1\na1b1: 1\na1b2: 1\n"
                               "a7a8q: 1\na7a8r: 1\na7a8b: 1\na7a8n: 1\n"));
    Fen("k7/8/1K6/8/8/8/8/7R w - - 0 1");  // legal moves without leaves below them are left out of the list
    EXPECT_EQ(Salida(" 2").find("h1h8"), std::string::npos);
    Fen("k7/8/8/8/8/8/8/8 w - - 0 1");
    Salida(" 99999999999999999999");
    EXPECT_EQ(TipoJuego.ProfundidadLimite, PROFUNDIDAD_MAX);
}
