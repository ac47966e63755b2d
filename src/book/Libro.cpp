#include "book/Libro.h"

#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "board/Posicion.h"
#include "book/BaseDeDatos.h"
#include "book/LibroSql.h"
#include "plataforma/Salida.h"

constexpr int         FILAS_MAX     = 15;  // lines among which one is chosen
constexpr std::size_t LETRAS_JUGADA = 4;

struct FilaLibro {
    char Texto[LINEA_LIBRO_MAX + 1];
};

static void LimpiarTextos() {
    std::memset(LibroSql.Consulta, 0, sizeof LibroSql.Consulta);
    std::memset(LibroSql.Movimiento, 0, sizeof LibroSql.Movimiento);
}

// --- The query ---

// The line stands unescaped in the query. Any other character matches no book line, and must not reach SQL.
static bool EsLineaDeJugadas(const char* linea) {
    return linea[std::strspn(linea, "abcdefgh12345678nrq ")] == '\0';
}

static void ImprimirErrorLibro(int codigo) {
    Imprimir("Error en el libro de apertura.\n");
    Imprimir("C\363digo de error: %d\n", codigo);
}

// At the start of the game the rows come from a random place of the table. The offset may equal the number of
// rows: then none is read and the book is left at once, now and then with a small book. Returns false after an error,
// which is printed.
static bool ComponerConsultaInicial() {
    const std::int64_t total = ObtenerNumeroAperturas();
    if (total < 0) {
        ImprimirErrorLibro(static_cast<int>(-total));
        return false;
    }
    std::snprintf(LibroSql.Consulta, sizeof LibroSql.Consulta, "SELECT Partida FROM Book LIMIT %lld, 15;",
                  static_cast<long long>(std::rand() % (total + 1)));
    return true;
}

static bool ComponerConsulta() {
    if (LibroSql.Linea[0] == '\0') return ComponerConsultaInicial();
    std::snprintf(LibroSql.Consulta, sizeof LibroSql.Consulta,
                  "SELECT Partida FROM Book WHERE Partida LIKE '%s%%' LIMIT 15;", LibroSql.Linea);
    return true;
}

// Returns the number of rows kept; 0 also after an error, which is printed.
static int LeerFilas(FilaLibro* filas) {
    int numero = 0;
    int codigo;
    while ((codigo = SiguienteFila()) == SQLITE_ROW) {
        if (numero == FILAS_MAX) continue;
        const char* texto = TextoDeFila();
        std::memcpy(filas[numero++].Texto, texto, std::min<std::size_t>(std::strlen(texto), LINEA_LIBRO_MAX));
    }
    if (codigo == SQLITE_DONE) return numero;
    ImprimirErrorLibro(codigo);
    return 0;
}

// --- The move ---

// Copies the move behind the current line of one of the rows; it stays empty when the row ends there.
static void ObtenerJugadaLibro(const FilaLibro* filas, int numero) {
    const char* fila  = filas[std::rand() % numero].Texto;
    const char* linea = LibroSql.Linea;
    for (; *linea != '\0' && *linea == *fila; ++linea) ++fila;
    if (linea != LibroSql.Linea && *fila == ' ') ++fila;  // the space that separates them
    std::memcpy(LibroSql.Movimiento, fila, std::min(std::strlen(fila), LETRAS_JUGADA));
}

// Leaves the chosen move in LibroSql.Movimiento; returns false when there is none.
static bool ElegirJugada() {
    if (!EsLineaDeJugadas(LibroSql.Linea)) return false;
    if (!ComponerConsulta() || PrepararConsulta(LibroSql.Consulta) != SQLITE_OK) return false;
    FilaLibro filas[FILAS_MAX] = {};
    const int numero           = LeerFilas(filas);
    if (numero == 0) return false;
    ObtenerJugadaLibro(filas, numero);
    // The current line can be that of another game, and a row can hold anything.
    return BuscarMovimientoLegal(LibroSql.Movimiento) != 0;
}

int BuscarJugadaLibro() {
    if (LibroSql.Terminado != 0 || LibroSql.OwnBook == 0) return 0;
    LimpiarTextos();
    bool hallada = false;
    if (AbrirBaseDeDatos() != 0)
        hallada = ElegirJugada();
    else
        Imprimir("Libro de apertura cargado: No.\n");
    CerrarBaseDeDatos();
    LibroSql.Terminado = hallada ? 0 : 1;
    return hallada ? 1 : 0;
}

int ComprobarAccesoLibro() {
    const int abierta = AbrirBaseDeDatos();
    CerrarBaseDeDatos();
    LimpiarTextos();
    return abierta;
}
