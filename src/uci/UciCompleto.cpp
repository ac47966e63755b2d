#include "uci/UciCompleto.h"

#include <strings.h>

#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "book/BaseDeDatos.h"
#include "book/LibroSql.h"
#include "plataforma/Programa.h"
#include "plataforma/Salida.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"
#include "uci/GoCompleto.h"
#include "uci/Opciones.h"

constexpr int MARGEN_VALOR = 30;    // milliseconds, start value of Move Overhead
constexpr int MARGEN_MAX   = 5000;  // milliseconds

constexpr int CARPETA_MAX    = 1024;              // bytes of a path
constexpr int RUTA_LIBRO_MAX = CARPETA_MAX + 32;  // with the name of a book behind it

// --- Output ---

// Bytes of the well-formed UTF-8 character at the start of texto, 0 when there is none.
static int LongitudUtf8(const char* texto, int letras) {
    const auto byte     = [texto](int i) { return static_cast<unsigned char>(texto[i]); };
    const int  longitud = byte(0) < 0x80                       ? 1
                          : byte(0) >= 0xC2 && byte(0) <= 0xDF ? 2
                          : byte(0) >= 0xE0 && byte(0) <= 0xEF ? 3
                          : byte(0) >= 0xF0 && byte(0) <= 0xF4 ? 4
                                                               : 0;
    if (longitud > letras) return 0;
    for (int i = 1; i < longitud; ++i)
        if ((byte(i) & 0xC0U) != 0x80) return 0;
    // Longer than needed, a surrogate, beyond the last character.
    const bool excluido = (byte(0) == 0xE0 && byte(1) < 0xA0) || (byte(0) == 0xED && byte(1) > 0x9F) ||
                          (byte(0) == 0xF0 && byte(1) < 0x90) || (byte(0) == 0xF4 && byte(1) > 0x8F);
    return excluido ? 0 : longitud;
}

static bool EsDelProtocolo(const char* linea, int letras) {
    for (const char* palabra : {"info ", "bestmove ", "readyok\n", "uciok\n", "id ", "option "}) {
        const int largo = static_cast<int>(std::strlen(palabra));
        if (letras >= largo && std::memcmp(linea, palabra, static_cast<std::size_t>(largo)) == 0) return true;
    }
    return false;
}

// What is UTF-8 already, such as a path that the interface has sent, stays; any other byte is taken for
// one of Latin-1, as are all letters of our own texts in Windows-1252.
static int EscribirUtf8(const char* linea, int letras, char* destino) {
    int escritos = 0;
    while (letras > 0) {
        int longitud = LongitudUtf8(linea, letras);
        if (longitud == 0) {
            const auto byte     = static_cast<unsigned char>(*linea);
            destino[escritos++] = static_cast<char>(0xC0U | (byte >> 6U));
            destino[escritos++] = static_cast<char>(0x80U | (byte & 0x3FU));
            longitud            = 1;
        } else {
            std::memcpy(destino + escritos, linea, static_cast<std::size_t>(longitud));
            escritos += longitud;
        }
        linea += longitud;
        letras -= longitud;
    }
    return escritos;
}

static int FiltrarLinea(const char* linea, int letras, char* destino) {
    if (*linea == '\n') return 0;
    if (EsDelProtocolo(linea, letras)) return EscribirUtf8(linea, letras, destino);
    constexpr char PREFIJO[] = "info string ";
    constexpr int  LARGO     = sizeof PREFIJO - 1;
    std::memcpy(destino, PREFIJO, LARGO);
    return LARGO + EscribirUtf8(linea, letras, destino + LARGO);
}

// --- Book ---

static char RutaLibro[VALOR_MAX + 1];  // option BookFile, "" = look for it
static char JuntoAlPrograma[RUTA_LIBRO_MAX];
static char Instalado[RUTA_LIBRO_MAX];  // where an installation beside a folder "bin" puts it

static void BuscarLibro() {
    char              carpeta[CARPETA_MAX];
    const char* const rutas[]  = {"Book.db", JuntoAlPrograma, Instalado};
    const bool        conocida = CarpetaDelPrograma(carpeta, CARPETA_MAX) != 0;
    std::snprintf(JuntoAlPrograma, sizeof JuntoAlPrograma, "%s/Book.db", carpeta);
    std::snprintf(Instalado, sizeof Instalado, "%s/../share/tamrek/Book.db", carpeta);
    FijarRutasLibro(rutas, conocida ? 3 : 1);
}

// --- Options; setters as in Opciones ---

static int FijarMoveOverhead(const char* valor) {
    if (Es_Numero(valor) == 0) return 0;
    UciCompleto.MargenReloj = NumeroAcotado(valor, MARGEN_MAX);
    return 1;
}

static int FijarBookFile(const char* valor) {
    static const char* const ruta[] = {RutaLibro};
    std::snprintf(RutaLibro, sizeof RutaLibro, "%s", std::strcmp(valor, VALOR_VACIO) == 0 ? "" : valor);
    if (RutaLibro[0] == '\0')
        BuscarLibro();
    else
        FijarRutasLibro(ruta, 1);
    return 1;
}

// The engine ponders whenever it is told to; the option tells the interface that it can.
static int FijarPonder(const char* valor) {
    return std::strcmp(valor, "true") == 0 || std::strcmp(valor, "false") == 0 ? 1 : 0;
}

static int FijarThreads(const char* valor) {
    return std::strcmp(valor, "1") == 0 ? 1 : 0;
}

static int PulsarClearHash(const char* /*valor*/) {
    LimpiarTransposicion();
    return 1;
}

static const EntradaOpcion OPCIONES_COMPLETAS[] = {
    {"Move Overhead", FijarMoveOverhead},
    {"BookFile", FijarBookFile},
    {"Ponder", FijarPonder},
    {"Threads", FijarThreads},
    {"Clear Hash", PulsarClearHash},
};

void ImprimirOpcionesCompletas() {
    if (UciCompleto.Activo == 0) return;
    Imprimir("option name Move Overhead type spin default %d min 0 max %d\n", UciCompleto.MargenReloj, MARGEN_MAX);
    Imprimir("option name BookFile type string default %s\n", RutaLibro[0] != '\0' ? RutaLibro : "<empty>");
    Imprimir("option name Ponder type check default false\n");
    Imprimir("option name Threads type spin default 1 min 1 max 1\n");
    Imprimir("option name Clear Hash type button\n");
}

// Collects the words between "name" and "value" into nombre, one blank between them; returns the text behind "value".
static const char* LeerNombre(const char* texto, char (&nombre)[PALABRA_MAX]) {
    char        palabra[PALABRA_MAX];
    std::size_t letras = 0;
    texto              = Split_String(texto, palabra);
    for (;;) {
        texto                   = Split_String(texto, palabra);
        const std::size_t largo = std::strlen(palabra);
        if (largo == 0 || std::strcmp(palabra, "value") == 0) break;
        if (letras + 1 + largo >= sizeof nombre) continue;
        if (letras != 0) nombre[letras++] = ' ';
        std::memcpy(nombre + letras, palabra, largo);
        letras += largo;
    }
    nombre[letras] = '\0';
    return texto;
}

// Copies the value without the blanks around it. Returns false when it does not fit.
static bool LeerValor(const char* texto, char (&valor)[VALOR_MAX + 1]) {
    constexpr char BLANCOS[] = " \t\r\v\f";
    constexpr char VACIO[]   = "<empty>";  // the protocol's word for no text
    texto += std::strspn(texto, BLANCOS);
    std::size_t letras = std::strlen(texto);
    while (letras > 0 && std::strchr(BLANCOS, texto[letras - 1]) != nullptr) --letras;
    if (letras > VALOR_MAX) return false;
    const bool vacio = letras == 0 || (letras == sizeof VACIO - 1 && std::memcmp(texto, VACIO, letras) == 0);
    std::snprintf(valor, sizeof valor, "%.*s", vacio ? VALOR_MAX : static_cast<int>(letras),
                  vacio ? VALOR_VACIO : texto);
    return true;
}

static const EntradaOpcion* BuscarOpcion(const char* nombre) {
    for (const EntradaOpcion& opcion : OPCIONES)
        if (strcasecmp(opcion.Nombre, nombre) == 0) return &opcion;
    for (const EntradaOpcion& opcion : OPCIONES_COMPLETAS)
        if (strcasecmp(opcion.Nombre, nombre) == 0) return &opcion;
    return nullptr;
}

static void SetoptionCompleto(const char* texto) {
    char                       nombre[PALABRA_MAX];
    char                       valor[VALOR_MAX + 1];
    const char* const          resto  = LeerNombre(texto, nombre);
    const EntradaOpcion* const opcion = BuscarOpcion(nombre);
    if (opcion == nullptr)
        Imprimir("info string Opci\363n desconocida: %s.\n", nombre);
    else if (!LeerValor(resto, valor) || opcion->Fijar(valor) == 0)
        Imprimir("info string Valor incorrecto para %s.\n", opcion->Nombre);
}

// --- Commands ---

int EjecutarCompleto(const char* palabra, const char* resto) {
    if (UciCompleto.Activo == 0) return 0;
    const auto es = [palabra](const char* orden) { return std::strcmp(palabra, orden) == 0; };
    if (es("setoption"))
        SetoptionCompleto(resto);
    else if (es("go"))
        GoCompleto(resto);
    else
        return 0;
    return 1;
}

void ActivarUciCompleto() {
    UciCompleto.Activo         = 1;
    UciCompleto.MargenReloj    = MARGEN_VALOR;
    tbprobe_Gaviota.Verbosidad = 0;  // the library would print lines of its own
    FiltrarSalida(FiltrarLinea);
    BuscarLibro();
}
