// The lines of the book that comes with the engine.
#include <fstream>
#include <set>
#include <sstream>

#include "book/CarpetaLibro.h"

class Aperturas : public CarpetaLibro {};

TEST_F(Aperturas, CadaLineaSeJuegaEntera) {
    std::ifstream         fichero(TAMREK_APERTURAS);
    std::set<std::string> lineas;
    for (std::string linea; std::getline(fichero, linea);) {
        if (linea.empty() || linea.starts_with('#')) continue;
        SCOPED_TRACE(linea);
        EXPECT_TRUE(lineas.insert(linea).second) << "twice";
        EXPECT_EQ(linea.size() % 5, 4U) << "moves of four characters and single spaces";
        EXPECT_LE(linea.size(), static_cast<std::size_t>(LINEA_LIBRO_MAX));
        Position_Fen_Startpos(("startpos moves " + linea).c_str());
        EXPECT_EQ(static_cast<std::size_t>(TipoJuego.MovimientosJugados), (linea.size() + 1) / 5);
    }
    EXPECT_GE(lineas.size(), 600U);
}
