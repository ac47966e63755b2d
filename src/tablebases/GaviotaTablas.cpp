#include "tablebases/GaviotaTablas.h"

#include <cerrno>
#include <climits>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <initializer_list>

#include "plataforma/Descriptores.h"
#include "plataforma/Salida.h"

// A compressed table starts with ten words of 32 bits, low byte first. Right behind them stands the index: where
// each compressed block begins, then where the last one ends, which is the end of the file. The eighth word, from
// zero, tells where the index ends and the first block begins.
constexpr std::uint32_t CABECERA_OCTETOS    = 40;
constexpr long          POSICION_FIN_INDICE = 32;
constexpr std::uint32_t PALABRA_OCTETOS     = 4;
constexpr std::uint32_t BLOQUE_MAX          = 0x10000;  // the library reads a block into a buffer of this size

constexpr int COMPRESION_MIN = 1;  // scheme 0 reads plain files, which have no index

constexpr char LETRAS_PIEZAS[] = "pnbrq";  // from low to high; a table's name has the higher piece first

// Placements that the library's index tells apart, up to the symmetries of the board: mirrored left and right, and
// without pawns also turned and reflected.
constexpr std::uint32_t REYES_SIN_PEONES     = 462;                   // both kings
constexpr std::uint32_t REYES                = 4096;                  // both kings where pawns stand
constexpr std::uint32_t IGUALES[]            = {1, 64, 2016, 41664};  // so many pieces of one kind and side
constexpr std::uint32_t REYES_Y_PEONES[4][2] = {  // by pawns of the side named first and of the other
    {REYES_SIN_PEONES, 24 * REYES},
    {24 * REYES, 24 * 48 * REYES},
    {576 * REYES, 24 * 1128 * REYES},
    {8648 * REYES, 0}};
constexpr std::uint32_t POSICIONES_BLOQUE    = 0x4000;  // of one side to move; its last block may hold fewer

using NombreTabla = std::initializer_list<char>;  // the letters of a table's name, one a man, as k q k

// Blocks of a table: those of both sides to move.
static std::uint32_t NumeroBloques(NombreTabla piezas) {
    std::uint32_t posiciones = 1;
    int           peones[2]{};
    int           bando = -1;
    for (const char* p = piezas.begin(); p != piezas.end();) {
        const char letra   = *p;
        int        iguales = 0;
        for (; p != piezas.end() && *p == letra; ++p) ++iguales;
        if (letra == 'k')
            ++bando;
        else if (letra == 'p')
            peones[bando] = iguales;
        else
            posiciones *= IGUALES[iguales];
    }
    posiciones *= REYES_Y_PEONES[peones[0]][peones[1]];
    return 2 * ((posiciones + POSICIONES_BLOQUE - 1) / POSICIONES_BLOQUE);
}

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

// The index has room for every block, begins and ends where the header and the file say, and its blocks follow one
// another.
static bool EsIndiceSano(std::FILE* tabla, std::uint32_t bloques) {
    std::uint32_t fin_indice, bloque;
    if (std::fseek(tabla, POSICION_FIN_INDICE, SEEK_SET) != 0 || !LeerPalabra(tabla, fin_indice)) return false;
    if (fin_indice < CABECERA_OCTETOS + (bloques + 1) * PALABRA_OCTETOS || fin_indice % PALABRA_OCTETOS != 0)
        return false;
    if (std::fseek(tabla, CABECERA_OCTETOS, SEEK_SET) != 0 || !LeerPalabra(tabla, bloque)) return false;
    if (bloque != fin_indice) return false;
    for (std::uint32_t i = CABECERA_OCTETOS + PALABRA_OCTETOS; i < fin_indice; i += PALABRA_OCTETOS) {
        const std::uint32_t anterior = bloque;
        // A step back wraps round to a huge one.
        if (!LeerPalabra(tabla, bloque) || bloque - anterior > BLOQUE_MAX) return false;
    }
    return EsTamanoDeFichero(tabla, bloque);
}

static bool NoEsta(int error) {
    return error == ENOENT || error == ENOTDIR || error == ENAMETOOLONG;
}

struct BusquedaTablas {
    const char* Rutas;
    int         Compresion;
    int         Numero;        // tables that are there
    int         HombresSanos;  // found so far
    bool        Comprobar;     // false only counts
    bool        Tuberia;       // some table is a pipe
};

// Opens the file in the first directory that has it, as the library does. False when it is in none; *tabla is nullptr
// when it is there and cannot be opened.
static bool AbrirTabla(BusquedaTablas& b, const char* nombre, std::FILE** tabla) {
    bool esta = false;
    *tabla    = nullptr;
    for (const char* ruta = b.Rutas; *ruta != '\0' && *tabla == nullptr;) {
        const int letras = static_cast<int>(std::strcspn(ruta, ";"));
        char      fichero[RUTA_MAX + 32];
        std::snprintf(fichero, sizeof fichero, "%.*s/%s", letras, ruta, nombre);
        if (letras > 0 && EsTuberia(fichero) != 0) {
            esta = b.Tuberia = true;
        } else if (letras > 0) {
            *tabla = std::fopen(fichero, "rb");
            esta   = esta || *tabla != nullptr || !NoEsta(errno);
        }
        ruta += letras;
        if (*ruta == ';') ++ruta;
    }
    return esta;
}

static bool EsTablaSana(int compresion, NombreTabla piezas, std::FILE* tabla) {
    if (tabla == nullptr || compresion > COMPRESION_MAX) return false;
    return compresion < COMPRESION_MIN || EsIndiceSano(tabla, NumeroBloques(piezas));
}

static void VisitarTabla(BusquedaTablas& b, NombreTabla piezas) {
    const int hombres    = static_cast<int>(piezas.size());
    char      sufijo[16] = "";
    char      nombre[32];
    if (b.Compresion >= COMPRESION_MIN) std::snprintf(sufijo, sizeof sufijo, ".cp%d", b.Compresion);
    std::snprintf(nombre, sizeof nombre, "%.*s.gtb%s", hombres, piezas.begin(), sufijo);
    std::FILE* tabla;
    if (!AbrirTabla(b, nombre, &tabla)) return;
    ++b.Numero;
    if (b.Comprobar && hombres <= b.HombresSanos && !EsTablaSana(b.Compresion, piezas, tabla)) {
        Imprimir("info string Error: Tabla de finales gaviota ilegible: %s\n", nombre);
        b.HombresSanos = hombres - 1;
    }
    if (tabla != nullptr) std::fclose(tabla);
}

// Tables with one, two and three pieces besides the kings; the side with more or higher pieces is named first.
static BusquedaTablas VisitarTablas(const char* rutas, int compresion, bool comprobar) {
    BusquedaTablas b{rutas, compresion, 0, HOMBRES_TABLA_MAX, comprobar, false};
    for (const char* x = LETRAS_PIEZAS; *x != '\0'; ++x) {
        VisitarTabla(b, {'k', *x, 'k'});
        for (const char* y = LETRAS_PIEZAS; y <= x; ++y) {
            VisitarTabla(b, {'k', *x, *y, 'k'});
            VisitarTabla(b, {'k', *x, 'k', *y});
            for (const char* z = LETRAS_PIEZAS; *z != '\0'; ++z) {
                VisitarTabla(b, {'k', *x, *y, 'k', *z});
                if (z <= y) VisitarTabla(b, {'k', *x, *y, *z, 'k'});
            }
        }
    }
    return b;
}

int NumeroTablasGaviota(const char* rutas, int compresion) {
    const BusquedaTablas b = VisitarTablas(rutas, compresion, false);
    return b.Tuberia ? -1 : b.Numero;
}

int ComprobarTablasGaviota(const char* rutas, int compresion) {
    return VisitarTablas(rutas, compresion, true).HombresSanos;
}
