// The tuner: what it accepts as a row, its way into and out of the source of the weights, the trace and the method.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "afinar/Datos.h"
#include "afinar/FicheroPesos.h"
#include "afinar/Motor.h"
#include "afinar/Regresion.h"

namespace {

std::string LeerFichero(const char* ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

std::vector<int> ValoresDe(const FicheroPesos& fichero) {
    std::vector<int> valores;
    for (const Literal& literal : fichero.Literales) valores.push_back(literal.Valor);
    return valores;
}

TEST(Afinar, RechazaFenQueElMotorNoDebeVer) {
    EXPECT_EQ(DefectoFen("8/p7/1p6/8/7N/P2K1p2/5k2/8 b - - 1 47"), nullptr);
    EXPECT_EQ(DefectoFen("8/p7/1p6/8/7N/P2K1p2/5k2/8 b"), nullptr);
    for (const char* fen : {"8/p7/1p6/8/7N/P2K1p2/5k2/8 - - - 1 47",         // nobody to move
                            "8/p7/1p6/8/7N/P2K1p2/5k2/7 b - - 1 47",         // seven squares
                            "8/p7/1p6/8/7N/P2K1p2/5k3/8 b - - 1 47",         // nine
                            "8/p7/1p6/8/7N/P2K1p2/5k2/8/8 b - - 1 47",       // nine ranks
                            "8/p7/1p6/8/7N/P4p2/5k2/8 b - - 1 47",           // no white king
                            "8/p7/1p6/8/7N/P2KKp2/5k2/8 b - - 1 47",         // two
                            "p7/8/1p6/8/7N/P2K1p2/5k2/8 b - - 1 47",         // pawn on the eighth
                            "8/x7/1p6/8/7N/P2K1p2/5k2/8 b - - 1 47",         // unknown piece
                            "NNNNNNNN/NNNNNNNN/N7/8/8/3K4/5k2/8 w - - 1 47"  // eighteen men
                            ,
                            ""})
        EXPECT_NE(DefectoFen(fen), nullptr) << fen;
}

constexpr char PESOS_DE_EJEMPLO[] =
    "constexpr int ANTES = 7;\n"
    "struct R {\n"
    "    // ==== first weight ====\n"
    "    // 12 is no weight\n"
    "    Par UNO = {24, -22};   // 5 neither\n"
    "    int PST[8] = {   // centipawns\n"
    "//    a    b    c    d\n"
    "     -1,   2,   3,  40,    // 8\n"
    "     10,   2,   3,   4 };  // 7\n"
    "    int SUELTO = 9;   // nine\n"
    "    // ==== last weight ====\n"
    "};\n";

TEST(Afinar, EscribeLosPesosEnSuSitio) {
    const FicheroPesos fichero = InterpretarPesos(PESOS_DE_EJEMPLO);
    ASSERT_EQ(fichero.Miembros.size(), 3U);
    EXPECT_TRUE(fichero.Miembros[0].Nombre == "UNO" && fichero.Miembros[0].EsPar && !fichero.Miembros[2].EsPar);
    EXPECT_TRUE(fichero.Miembros[1].Primero == 2 && fichero.Miembros[1].Numero == 8);
    EXPECT_EQ(ValoresDe(fichero), (std::vector<int>{24, -22, -1, 2, 3, 40, 10, 2, 3, 4, 9}));
    EXPECT_EQ(TextoConPesos(fichero, ValoresDe(fichero)), PESOS_DE_EJEMPLO);

    const std::vector<int> nuevos = {5, -122, -1, -200, 3, 40, 10, 2, 3, 4, 10};
    const std::string      texto  = TextoConPesos(fichero, nuevos);
    EXPECT_NE(texto.find("{5, -122};   // 5 neither\n"), std::string::npos) << texto;
    EXPECT_NE(texto.find("//     a     b     c     d\n"
                         "      -1, -200,    3,   40,    // 8\n"
                         "      10,    2,    3,    4 };  // 7\n"
                         "    int SUELTO = 10;  // nine\n"),
              std::string::npos)
        << texto;
}

// The source of the weights is read as the record is laid out, and written back unchanged.
TEST(Afinar, ConoceElFicheroDeLosPesos) {
    const FicheroPesos fichero = InterpretarPesos(LeerFichero(RUTA_PESOS));
    EXPECT_EQ(ValoresDe(fichero), LeerPesos());
    EXPECT_EQ(TextoConPesos(fichero, ValoresDe(fichero)), fichero.Texto);
}

// The coefficients say what really happens when a weight changes by one. Only the attack on the king and his danger
// are no straight lines, and come in whole centipawns.
TEST(Afinar, LosCoeficientesSonLosDeLaEvaluacion) {
    constexpr const char* POSICIONES[] = {
        "r1bq1rk1/pp3ppp/2n1p3/3pP3/N2P2Pb/4B3/PP2BP1P/R2Q1RK1 w - - 0 14",
        "5r1k/1p4p1/5r1p/p6Q/P1PpBP2/3P2P1/1qP3K1/R7 w - - 7 31",
        "8/1p2R3/p1k5/3p4/4p2P/7r/PP1K4/8 b - - 5 43",
        "8/5pk1/8/5n2/8/2R5/5PK1/8 w - - 0 1",
    };
    ArrancarMotor();
    const std::vector<Miembro> miembros = InterpretarPesos(LeerFichero(RUTA_PESOS)).Miembros;
    const std::vector<int>     pesos    = LeerPesos();
    for (const char* fen : POSICIONES) {
        std::vector<Coeficiente> coeficientes, otros;
        PonerPesos(pesos);
        const double        puntos = Observar(fen, {}, coeficientes);
        std::vector<double> cambios(pesos.size());
        for (const Coeficiente& c : coeficientes) cambios[c.Peso] = static_cast<double>(c.Valor);
        for (const Miembro& miembro : miembros)
            for (std::size_t i = miembro.Primero; i < miembro.Primero + miembro.Numero; ++i) {
                std::vector<int> nuevos = pesos;
                ++nuevos[i];
                PonerPesos(nuevos);
                const bool   curvo      = miembro.Nombre.starts_with("PESO_") || miembro.Nombre.starts_with("PELIGRO_");
                const double tolerancia = curvo ? 3 : 0.001;
                EXPECT_NEAR(Observar(fen, {}, otros), puntos + cambios[i], tolerancia) << fen << ' ' << miembro.Nombre;
            }
    }
}

// The line that is followed ends where the search of one ply has judged: behind the captures, not before them.
TEST(Afinar, BajaHastaDondeAcabaLaBusqueda) {
    const struct {
        const char* Fen;
        std::size_t Jugadas;                                    // to the end of the line; 0 = none
    } casos[] = {{"4k3/pp6/8/3q4/4P3/8/PP6/4K3 w - - 0 1", 1},  // takes the queen
                 {"4k3/pp6/8/4p3/3Q4/8/PP6/4K3 b - - 0 1", 1},
                 {"6k1/5ppp/8/8/8/8/5PPP/R5K1 w - - 0 1", 0},  // mates
                 {"4k3/8/8/8/4q3/8/4R3/4K3 w - - 0 1", 0}};    // an ending that is known remains
    ArrancarMotor();
    for (const auto& caso : casos) {
        std::vector<std::uint32_t> jugadas;
        std::vector<Coeficiente>   coeficientes;
        EXPECT_EQ(BuscarHoja(caso.Fen, jugadas), caso.Jugadas != 0) << caso.Fen;
        if (caso.Jugadas == 0) continue;
        EXPECT_EQ(jugadas.size(), caso.Jugadas) << caso.Fen;
        EXPECT_LT(std::abs(Observar(caso.Fen, jugadas, coeficientes)), 300) << caso.Fen;
    }
}

// Rows made from known weights: the method finds them, leaves what is not free, and a spring holds what no row shows.
TEST(Afinar, HallaLosPesosDeDatosInventados) {
    constexpr double          ESCALA       = 0.01;
    constexpr double          VERDADEROS[] = {40, -25, 0};
    const std::vector<Muelle> muelles      = {{2, SIN_PAREJA, 1.0}};
    std::mt19937              azar(1);
    Muestras                  muestras;
    Eigen::VectorXd           desvio = Eigen::VectorXd::Zero(3);
    for (std::size_t i = 0; i < 2000; ++i) {
        double puntos = 0;
        for (std::uint32_t p = 0; p < 2; ++p) {
            const int veces = static_cast<int>(azar() % 7) - 3;
            puntos += veces * VERDADEROS[p];
            muestras.Coeficientes.push_back({p, static_cast<float>(veces)});
        }
        muestras.Filas.push_back({0, Sigmoide(ESCALA * puntos), 2 * i, 2});
    }
    const auto mover = [&](const std::vector<bool>& libres) {
        const Eigen::VectorXd paso = PasoDeNewton(muestras, ESCALA, desvio, muelles, libres, 2);
        desvio += paso;
        for (Muestra& muestra : muestras.Filas)
            for (std::size_t k = muestra.Primero; k < muestra.Primero + 2; ++k)
                muestra.Puntos += static_cast<double>(muestras.Coeficientes[k].Valor) *
                                  paso[static_cast<Eigen::Index>(muestras.Coeficientes[k].Peso)];
    };
    mover({false, true, true});
    EXPECT_EQ(desvio[0], 0);
    for (int i = 0; i < 8; ++i) mover({true, true, true});
    for (int p = 0; p < 3; ++p) EXPECT_NEAR(desvio[p], VERDADEROS[p], 1e-6) << p;
}

}  // namespace
