#include "uci/Opciones.h"

#include "book/LibroSql.h"
#include "comun/Tablero.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"

static std::string Fijar(const std::string& texto) {
    return Capturar([&texto] { ParseSetoption(texto.c_str()); });
}

TEST(Opciones, ValoresAdmitidosSustituidosYRechazados) {
    int* const hash    = &TT_Opciones.Megas;
    int* const limite  = &LibroSql.OwnBookLimit;
    int* const cache   = &tbprobe_Gaviota.Cache;
    int* const esquema = &tbprobe_Gaviota.Compresion;
    const struct {
        std::string texto;
        int*        opcion;
        int         antes, despues;
        std::string rechazada;  // option named in the rejection line, "" = none is printed
    } casos[] = {
        {" name Hash value 4294967295", hash, 112, 2048, ""},
        {" name Hash value -1", hash, 112, 112, "Hash"},
        {" name Hash value 64 ", hash, 112, 112, "Hash"},
        {"  x   Hash   y  \t 64", hash, 112, 64, ""},
        {" name OwnBookLimit value 11", limite, 5, 8, ""},
        {" name GaviotaTbCache value 1014", cache, 16, 1014, ""},
        {" name GaviotaTbCache value 1015", cache, 16, 32, ""},
        {" name GaviotaTbCompression value 12", esquema, 1, 4, ""},
        {" name GaviotaTbCompression value " + std::string(79, '0') + "3", esquema, 1, 3, ""},
        {" name GaviotaTbCompression value " + std::string(80, '0') + "3", esquema, 1, 1, "GaviotaTbCompression"},
        {" name ShowPv value full", &TipoJuego.ShowPv, 1, 1, "ShowPv"},
        {" name OwnBook value TRUE", &LibroSql.OwnBook, 0, 0, "OwnBook"},
        {" name GaviotaTbUse value true", &tbprobe_Gaviota.Usar, 0, 1, ""},
    };
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.texto);
        *caso.opcion = caso.antes;
        EXPECT_EQ(Fijar(caso.texto),
                  caso.rechazada.empty() ? "" : "info string Valor incorrecto para " + caso.rechazada + ".\n");
        EXPECT_EQ(*caso.opcion, caso.despues);
    }
}

TEST(Opciones, LaRutaEsElRestoDeLaLinea) {
    const std::string larga(VALOR_MAX - 1, 'x');  // and the blank before it
    for (const std::string& ruta : {std::string("/tb"), std::string("a b"), larga}) {
        Fijar(" name GaviotaTbPath value " + ruta);
        EXPECT_EQ(tbprobe_Gaviota.Ruta, ruta);
    }
    Fijar(" name GaviotaTbPath value ");
    EXPECT_STREQ(tbprobe_Gaviota.Ruta, "empty");
    EXPECT_EQ(Salir, 0);
    EXPECT_EQ(Fijar(" name Nada value " + larga + "x"), "");
    EXPECT_EQ(Salir, 1);
}
