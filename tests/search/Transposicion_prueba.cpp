#include "search/Transposicion.h"

#include "board/Puntuacion.h"
#include "search/Ayudas.h"

// What is read: whether it decides, score and move.
static std::vector<int> Leer(int alfa, int beta, int profundidad) {
    int           puntos     = 0;
    std::uint32_t movimiento = 0;
    const int     decide     = RecuperarPosicion(alfa, beta, profundidad, &puntos, &movimiento);
    return {decide, puntos, static_cast<int>(movimiento)};
}

class Transposicion : public Busqueda {
protected:
    // The nth key of one bucket.
    static void IrAClave(std::uint64_t n) { TableroGlobal.Key = 2 + n * TT_Opciones.NumeroCubos; }
    // Which of the first keys are there: "10111".
    static std::string Estan() {
        std::string estan;
        for (std::uint64_t n = 0; n < 5; ++n) {
            IrAClave(n);
            estan += MovimientoDeTabla() != 0 ? '1' : '0';
        }
        return estan;
    }
    static void Llenar(std::initializer_list<int> profundidades, std::uint64_t n = 0) {
        for (const int profundidad : profundidades) {
            IrAClave(n++);
            AlmacenarPosicion(profundidad, 0, COTA_EXACTA, 1);
        }
    }
};

TEST_F(Transposicion, ElTamanoSigueALaOpcionHash) {
    constexpr unsigned CASOS[][5] = {{0, 1, 0, 16384, 0},
                                     {31, 31, 0, 507904, 0},
                                     {32, 28, 4, 458752, 262144},
                                     {36, 31, 5, 507904, 327680},
                                     {64, 56, 8, 917504, 524288}};
    for (const auto& [hash, megas, cache, cubos, entradas] : CASOS) {
        CrearTransposicion(static_cast<int>(hash));
        const RegistroTT_Opciones& t = TT_Opciones;
        EXPECT_TRUE(t.Megas == static_cast<int>(megas) && t.MegasCache == static_cast<int>(cache)) << hash;
        EXPECT_TRUE(t.NumeroCubos == cubos && t.NumeroCache == entradas && (TT_Cache != nullptr) == (cache != 0))
            << hash;
        EXPECT_EQ(DesempaquetarPuntos(TT_Datos[cubos].Vias[VIAS_CUBO - 1].Puntos), -VALOR_INFINITO);
    }
}

TEST_F(Transposicion, UnMateSeGuardaPorSuDistanciaAlNodo) {
    // The last two are of a tablebase, which counts from its own node.
    for (const auto& [ply, puntos, otro_ply, leidos] :
         {std::tuple{4, 31995, 0, 31999}, {4, 31995, 2, 31997}, {10, 31996, 10, 31996}, {10, 31996, 2, 32000}})
        for (const int signo : {+1, -1}) {
            IrAClave(0);
            TableroGlobal.Ply = ply;
            AlmacenarPosicion(5, signo * puntos, COTA_EXACTA, 1);
            TableroGlobal.Ply = otro_ply;
            EXPECT_EQ(Leer(-1, 1, 5)[1], signo * leidos) << ply << " " << puntos;
        }
}

TEST_F(Transposicion, LaCotaYLaProfundidadDecidenSiCorta) {
    constexpr int CASOS[][5] = {{COTA_EXACTA, -500, 500, 6, 1},
                                {COTA_EXACTA, -500, 500, 7, 0},
                                {COTA_SUPERIOR, 100, 200, 6, 1},
                                {COTA_SUPERIOR, 99, 200, 6, 0},
                                {COTA_INFERIOR, 0, 100, 6, 1},
                                {COTA_INFERIOR, 0, 101, 6, 0},
                                {4, -500, 500, 6, 0}};
    for (const auto& [cota, alfa, beta, profundidad, decide] : CASOS) {
        AlmacenarPosicion(6, 100, cota, 7);
        EXPECT_EQ(Leer(alfa, beta, profundidad), std::vector({decide, 100, 7})) << cota << " " << alfa << " " << beta;
    }
    for (const std::uint64_t key : {TableroGlobal.Key ^ 2, std::uint64_t{0}}) {  // 0 meets an empty way
        TableroGlobal.Key = key;
        EXPECT_EQ(Leer(-1, 1, 0), std::vector({0, -VALOR_INFINITO, 0}));
    }
}

TEST_F(Transposicion, SinMovimientoConservaElQueHabia) {
    AlmacenarPosicion(3, 10, COTA_EXACTA, 77);
    AlmacenarPosicion(200, 20, COTA_SUPERIOR, 0);
    EXPECT_EQ(MovimientoDeTabla(), 77U);
    EXPECT_EQ(Leer(-1, 1, 126)[1], 20);  // deeper depths are kept as 126
    EXPECT_EQ(TT_Opciones.Sobrescrituras, 1);
    EXPECT_EQ(TT_Opciones.Usadas, 1U);
}

TEST_F(Transposicion, SaleLaMasProfundaDeLasMasViejas) {
    Llenar({3, 9, 1, 9, 5});
    EXPECT_EQ(Estan(), "10111");
    EXPECT_EQ(TT_Opciones.Usadas, 4U);
    LimpiarTransposicion();
    Llenar({9, 2});
    ++TT_Opciones.Edad;
    Llenar({9});  // the first position again, now of the new age
    Llenar({9, 9, 1}, 2);
    EXPECT_EQ(Estan(), "10111");
    EXPECT_EQ(TT_Opciones.Usadas, 5U);
}

TEST_F(Transposicion, CadaBusquedaEnvejeceLaTablaYLaUltimaEdadLaVacia) {
    for (int edad = 1; edad <= 126; ++edad) {
        EXPECT_EQ(TT_Opciones.Edad, edad);
        AlmacenarPosicion(1, 0, COTA_EXACTA, 1);
        TerminarBusqueda();
    }
    EXPECT_EQ(TT_Opciones.Edad, 1);
    EXPECT_EQ(MovimientoDeTabla(), 0U);
    EXPECT_EQ(Hashfull(), 0);
    TT_Opciones.Usadas = 4 * TT_Opciones.NumeroCubos / 8;
    EXPECT_EQ(Hashfull(), 125);
}
