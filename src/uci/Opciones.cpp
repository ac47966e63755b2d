#include "uci/Opciones.h"

#include <cstdint>
#include <cstdio>
#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "book/LibroSql.h"
#include "plataforma/Salida.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"

constexpr std::size_t DIGITOS_MAX = 80;  // a longer number is refused

static const char* const NOMBRE_SHOWPV[] = {"None", "Middle", "Full"};  // by NivelShowPv

void IniciarConfiguracion() {
    TT_Opciones.Megas      = HASH_VALOR;
    TT_Opciones.MegasCache = 0;
    CrearTransposicion(HASH_VALOR);
}

void Cargar_Opciones() {
    LibroSql.OwnBook      = 0;
    LibroSql.OwnBookLimit = LIMITE_LIBRO_VALOR;
    TipoJuego.ShowPv      = SHOWPV_MIDDLE;
    IniciarOpcionesGaviota();
}

int HashTotal() {
    return TT_Opciones.Megas + TT_Opciones.MegasCache;
}

// --- The "uci" reply ---

static const char* TextoLogico(int valor) {
    return valor != 0 ? "true" : "false";
}

void ImprimirOpciones() {
    Imprimir("option name Hash type spin default %d min 1 max %d\n", HashTotal(), HASH_MAX);
    Imprimir("option name OwnBook type check default %s\n", TextoLogico(LibroSql.OwnBook));
    Imprimir("option name OwnBookLimit type spin default %d min %d max %d\n", LibroSql.OwnBookLimit, LIMITE_LIBRO_MIN,
             LIMITE_LIBRO_MAX);
    Imprimir("option name ShowPv type combo default %s var None var Middle var Full\n",
             NOMBRE_SHOWPV[TipoJuego.ShowPv]);
    Imprimir("option name GaviotaTbUse type check default %s\n", TextoLogico(tbprobe_Gaviota.Usar));
    Imprimir("option name GaviotaTbPath type string default %s\n", tbprobe_Gaviota.Ruta);
    Imprimir("option name GaviotaTbCache type spin default %d min 8 max 1024\n", tbprobe_Gaviota.Cache);
    Imprimir("option name GaviotaTbCompression type spin default %d min 0 max %d\n", tbprobe_Gaviota.Compresion,
             TB_COMPRESION_MAX);
}

// --- "setoption" ---

// Unsigned, so that a number beyond 31 bits counts as too large, never as negative.
static int LeerNumero(const char* valor, std::uint32_t* numero) {
    if (std::strlen(valor) > DIGITOS_MAX || Es_Numero(valor) == 0) return 0;
    *numero = static_cast<std::uint32_t>(NumeroDe32Bits(valor));
    return 1;
}

static int LeerLogico(const char* valor, int* opcion) {
    const int verdadero = std::strcmp(valor, "true") == 0 ? 1 : 0;
    if (verdadero == 0 && std::strcmp(valor, "false") != 0) return 0;
    *opcion = verdadero;
    return 1;
}

// The whole amount stands in the first field until "isready" divides it again.
static int FijarHash(const char* valor) {
    std::uint32_t megas = 0;
    if (LeerNumero(valor, &megas) == 0) return 0;
    TT_Opciones.Megas      = megas > HASH_MAX ? HASH_MAX : static_cast<int>(megas);
    TT_Opciones.MegasCache = 0;
    return 1;
}

static int FijarShowPv(const char* valor) {
    for (int nivel = SHOWPV_NONE; nivel <= SHOWPV_FULL; ++nivel)
        if (std::strcmp(valor, NOMBRE_SHOWPV[nivel]) == 0) {
            TipoJuego.ShowPv = nivel;
            return 1;
        }
    return 0;
}

static int FijarOwnBook(const char* valor) {
    return LeerLogico(valor, &LibroSql.OwnBook);
}

static int FijarOwnBookLimit(const char* valor) {
    std::uint32_t limite = 0;
    if (LeerNumero(valor, &limite) == 0) return 0;
    const bool admitido   = limite >= LIMITE_LIBRO_MIN && limite <= LIMITE_LIBRO_MAX;
    LibroSql.OwnBookLimit = admitido ? static_cast<int>(limite) : LIMITE_LIBRO_VALOR;
    return 1;
}

static int FijarGaviotaTbUse(const char* valor) {
    return LeerLogico(valor, &tbprobe_Gaviota.Usar);
}

// Accepts less and refuses more than the advertised range says; interfaces rely on it.
static int FijarGaviotaTbCache(const char* valor) {
    std::uint32_t megas = 0;
    if (LeerNumero(valor, &megas) == 0) return 0;
    tbprobe_Gaviota.Cache = megas >= TB_CACHE_TOPE ? TB_CACHE_VALOR : static_cast<int>(megas);
    return 1;
}

static int FijarGaviotaTbCompression(const char* valor) {
    std::uint32_t esquema = 0;
    if (LeerNumero(valor, &esquema) == 0) return 0;
    tbprobe_Gaviota.Compresion = esquema > TB_COMPRESION_MAX ? TB_COMPRESION_VALOR : static_cast<int>(esquema);
    return 1;
}

static int FijarGaviotaTbPath(const char* valor) {
    std::memset(tbprobe_Gaviota.Ruta, 0, sizeof tbprobe_Gaviota.Ruta);
    std::snprintf(tbprobe_Gaviota.Ruta, sizeof tbprobe_Gaviota.Ruta, "%s", valor);
    return 1;
}

const EntradaOpcion OPCIONES[NUMERO_OPCIONES] = {
    {"Hash", FijarHash},
    {"ShowPv", FijarShowPv},
    {"OwnBook", FijarOwnBook},
    {"OwnBookLimit", FijarOwnBookLimit},
    {"GaviotaTbUse", FijarGaviotaTbUse},
    {"GaviotaTbCache", FijarGaviotaTbCache},
    {"GaviotaTbCompression", FijarGaviotaTbCompression},
    {"GaviotaTbPath", FijarGaviotaTbPath},
};

void ParseSetoption(const char* texto) {
    char        ignorada[PALABRA_MAX];  // the words "name" and "value", whatever they are
    char        nombre[PALABRA_MAX];
    const char* resto = Split_String(texto, ignorada);
    resto             = Split_String(resto, nombre);
    resto             = Split_String(resto, ignorada);
    if (std::strlen(resto) > VALOR_MAX) {
        Salir = 1;
        return;
    }

    const char* valor = resto + std::strspn(resto, " \t\r\v\f");
    if (*valor == '\0') valor = VALOR_VACIO;
    for (const EntradaOpcion& opcion : OPCIONES)
        if (std::strcmp(nombre, opcion.Nombre) == 0 && opcion.Fijar(valor) == 0)
            Imprimir("info string Valor incorrecto para %s.\n", opcion.Nombre);
}
