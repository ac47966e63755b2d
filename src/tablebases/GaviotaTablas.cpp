#include "tablebases/GaviotaTablas.h"

#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "plataforma/Salida.h"

// A compressed table starts with ten words of 32 bits, low byte first. Right behind them stands the index: where
// each compressed block begins, then where the last one ends, which is the end of the file. The eighth word, from
// zero, tells where the index ends and the first block begins.
constexpr std::uint32_t CABECERA_OCTETOS    = 40;
constexpr long          POSICION_FIN_INDICE = 32;
constexpr std::uint32_t PALABRA_OCTETOS     = 4;
constexpr std::uint32_t BLOQUE_MAX          = 0x10000;  // the library reads a block into a buffer of this size

constexpr int COMPRESION_MIN = 1;  // scheme 0 reads plain files, which have no index
constexpr int COMPRESION_MAX = 4;  // the library has no decoder for the rest, and calls it all the same

constexpr char LETRAS_PIEZAS[] = "pnbrq";  // from low to high; a table's name has the higher piece first

static bool LeerPalabra(std::FILE* tabla, std::uint32_t& palabra) {
    unsigned char octetos[PALABRA_OCTETOS];
    if (std::fread(octetos, 1, sizeof octetos, tabla) != sizeof octetos) return false;
    palabra = 0;
    for (unsigned i = PALABRA_OCTETOS; i-- > 0;) palabra = palabra << 8 | octetos[i];
    return true;
}

static bool EsTamanoDeFichero(std::FILE* tabla, std::uint32_t octetos) {
    if (octetos > static_cast<std::uint32_t>(INT_MAX)) return false;  // beyond what fseek reaches everywhere
    return std::fseek(tabla, static_cast<long>(octetos) - 1, SEEK_SET) == 0 && std::fgetc(tabla) != EOF &&
           std::fgetc(tabla) == EOF;
}

// The index begins and ends where the header and the file say, and its blocks follow one another.
static bool EsIndiceSano(std::FILE* tabla) {
    std::uint32_t fin_indice, bloque;
    if (std::fseek(tabla, POSICION_FIN_INDICE, SEEK_SET) != 0 || !LeerPalabra(tabla, fin_indice)) return false;
    if (fin_indice < CABECERA_OCTETOS + 2 * PALABRA_OCTETOS || fin_indice % PALABRA_OCTETOS != 0) return false;
    if (std::fseek(tabla, CABECERA_OCTETOS, SEEK_SET) != 0 || !LeerPalabra(tabla, bloque)) return false;
    if (bloque != fin_indice) return false;
    for (std::uint32_t i = CABECERA_OCTETOS + PALABRA_OCTETOS; i < fin_indice; i += PALABRA_OCTETOS) {
        const std::uint32_t anterior = bloque;
        // A step back wraps round to a huge one.
        if (!LeerPalabra(tabla, bloque) || bloque - anterior > BLOQUE_MAX) return false;
    }
    return EsTamanoDeFichero(tabla, bloque);
}

// Opens the file in the first directory that has it, as the library does. nullptr = in none.
static std::FILE* AbrirTabla(const char* rutas, const char* nombre) {
    for (const char* ruta = rutas; *ruta != '\0';) {
        const int letras = static_cast<int>(std::strcspn(ruta, ";"));
        char      fichero[RUTA_MAX + 32];
        std::snprintf(fichero, sizeof fichero, "%.*s/%s", letras, ruta, nombre);
        if (letras > 0)
            if (std::FILE* const tabla = std::fopen(fichero, "rb")) return tabla;
        ruta += letras;
        if (*ruta == ';') ++ruta;
    }
    return nullptr;
}

struct BusquedaTablas {
    const char* Rutas;
    int         Compresion;
    int         HombresSanos;
};

// piezas: the letters of the table's name, one a man.
static void ComprobarTabla(BusquedaTablas& b, std::initializer_list<char> piezas) {
    const int hombres = static_cast<int>(piezas.size());
    char      nombre[32];
    std::snprintf(nombre, sizeof nombre, "%.*s.gtb.cp%d", hombres, piezas.begin(), b.Compresion);
    std::FILE* const tabla = AbrirTabla(b.Rutas, nombre);
    if (tabla == nullptr) return;
    if (b.Compresion > COMPRESION_MAX || !EsIndiceSano(tabla)) {
        Imprimir("info string Error: Tabla de finales gaviota ilegible: %s\n", nombre);
        if (b.HombresSanos >= hombres) b.HombresSanos = hombres - 1;
    }
    std::fclose(tabla);
}

// Tables with one, two and three pieces besides the kings; the side with more or higher pieces is named first.
int ComprobarTablasGaviota(const char* rutas, int compresion) {
    BusquedaTablas b{rutas, compresion, HOMBRES_TABLA_MAX};
    if (compresion < COMPRESION_MIN) return b.HombresSanos;
    for (const char* x = LETRAS_PIEZAS; *x != '\0'; ++x) {
        ComprobarTabla(b, {'k', *x, 'k'});
        for (const char* y = LETRAS_PIEZAS; y <= x; ++y) {
            ComprobarTabla(b, {'k', *x, *y, 'k'});
            ComprobarTabla(b, {'k', *x, 'k', *y});
            for (const char* z = LETRAS_PIEZAS; *z != '\0'; ++z) {
                ComprobarTabla(b, {'k', *x, *y, 'k', *z});
                if (z <= y) ComprobarTabla(b, {'k', *x, *y, *z, 'k'});
            }
        }
    }
    return b.HombresSanos;
}
