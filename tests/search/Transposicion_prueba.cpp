#include "search/Transposicion.h"

#include "board/Puntuacion.h"
#include "search/Ayudas.h"

struct Leida {
    int           Decide     = 0;
    int           Puntos     = 0;
    std::uint32_t Movimiento = 0;
};
static Leida Leer(int alfa, int beta, int profundidad) {
    Leida leida;
    leida.Decide = RecuperarPosicion(alfa, beta, profundidad, &leida.Puntos, &leida.Movimiento);
    return leida;
}

class Transposicion : public Busqueda {
protected:
    // The nth key of one bucket.
    static void IrAClave(std::uint64_t n) { TableroGlobal.Key = 2 + n * TT_Opciones.NumeroCubos; }
    static bool Esta(std::uint64_t n) {
        IrAClave(n);
        return MovimientoDeTabla() != 0;
    }
    static void Llenar(std::initializer_list<int> profundidades) {
        std::uint64_t n = 0;
        for (const int profundidad : profundidades) {
            IrAClave(n++);
            AlmacenarPosicion(profundidad, 0, COTA_EXACTA, 1);
        }
    }
};

TEST_F(Transposicion, ElTamanoSigueALaOpcionHash) {
    struct {
        int           Hash, Megas, Cache;
        std::uint64_t Cubos, Entradas;
    } constexpr CASOS[] = {{0, 1, 0, 16384, 0},         {16, 16, 0, 262144, 0},      {31, 31, 0, 507904, 0},
                           {32, 28, 4, 458752, 262144}, {36, 31, 5, 507904, 327680}, {64, 56, 8, 917504, 524288}};
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.Hash);
        CrearTransposicion(caso.Hash);
        EXPECT_EQ(TT_Opciones.Megas, caso.Megas);
        EXPECT_EQ(TT_Opciones.MegasCache, caso.Cache);
        EXPECT_EQ(TT_Opciones.NumeroCubos, caso.Cubos);
        EXPECT_EQ(TT_Opciones.NumeroCache, caso.Entradas);
        EXPECT_EQ(TT_Cache != nullptr, caso.Cache != 0);
        EXPECT_EQ(DesempaquetarPuntos(TT_Datos[caso.Cubos].Vias[VIAS_CUBO - 1].Puntos), -VALOR_INFINITO);
        if (TT_Cache == nullptr) continue;
        EXPECT_EQ(DesempaquetarPuntos(TT_Cache[caso.Entradas].Puntos), -VALOR_INFINITO);
    }
}

TEST_F(Transposicion, UnMateSeGuardaPorSuDistanciaAlNodo) {
    for (const int signo : {+1, -1}) {
        IrAClave(0);
        TableroGlobal.Ply = 4;
        AlmacenarPosicion(5, signo * 31995, COTA_EXACTA, 1);
        TableroGlobal.Ply = 0;
        EXPECT_EQ(Leer(-1, 1, 5).Puntos, signo * 31999);
        TableroGlobal.Ply = 2;
        EXPECT_EQ(Leer(-1, 1, 5).Puntos, signo * 31997);
    }
}

TEST_F(Transposicion, LaCotaYLaProfundidadDecidenSiCorta) {
    struct {
        int Cota, Alfa, Beta, Profundidad, Decide;
    } constexpr CASOS[] = {{COTA_EXACTA, -500, 500, 6, 1},
                           {COTA_EXACTA, -500, 500, 7, 0},
                           {COTA_SUPERIOR, 100, 200, 6, 1},
                           {COTA_SUPERIOR, 99, 200, 6, 0},
                           {COTA_INFERIOR, 0, 100, 6, 1},
                           {COTA_INFERIOR, 0, 101, 6, 0},
                           {4, -500, 500, 6, 0}};
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(testing::Message() << caso.Cota << " " << caso.Alfa << " " << caso.Beta);
        AlmacenarPosicion(6, 100, caso.Cota, 7);
        const Leida leida = Leer(caso.Alfa, caso.Beta, caso.Profundidad);
        EXPECT_EQ(leida.Decide, caso.Decide);
        EXPECT_EQ(leida.Puntos, 100);
        EXPECT_EQ(leida.Movimiento, 7U);
    }
    for (const std::uint64_t key : {TableroGlobal.Key ^ 2, std::uint64_t{0}}) {  // 0 meets an empty way
        TableroGlobal.Key = key;
        const Leida ajena = Leer(-1, 1, 0);
        EXPECT_EQ(ajena.Decide, 0);
        EXPECT_EQ(ajena.Puntos, -VALOR_INFINITO);
        EXPECT_EQ(ajena.Movimiento, 0U);
    }
}

TEST_F(Transposicion, SinMovimientoConservaElQueHabia) {
    AlmacenarPosicion(3, 10, COTA_EXACTA, 77);
    AlmacenarPosicion(200, 20, COTA_SUPERIOR, 0);
    EXPECT_EQ(MovimientoDeTabla(), 77U);
    EXPECT_EQ(Leer(-1, 1, 126).Puntos, 20);  // deeper depths are kept as 126
    EXPECT_EQ(TT_Opciones.Sobrescrituras, 1);
    EXPECT_EQ(TT_Opciones.Usadas, 1U);
}

TEST_F(Transposicion, DeLaMismaEdadSaleLaMasProfunda) {
    Llenar({3, 9, 1, 9, 5});
    EXPECT_TRUE(Esta(0) && !Esta(1) && Esta(2) && Esta(3) && Esta(4));
    EXPECT_EQ(TT_Opciones.Usadas, 4U);
}

TEST_F(Transposicion, LaMasViejaSaleAntesQueLaMasProfunda) {
    Llenar({9, 2});
    ++TT_Opciones.Edad;
    Llenar({9});  // the first position again, now of the new age
    IrAClave(2);
    AlmacenarPosicion(9, 0, COTA_EXACTA, 1);
    IrAClave(3);
    AlmacenarPosicion(9, 0, COTA_EXACTA, 1);
    IrAClave(4);
    AlmacenarPosicion(1, 0, COTA_EXACTA, 1);
    EXPECT_TRUE(Esta(0) && !Esta(1) && Esta(2) && Esta(3) && Esta(4));
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
