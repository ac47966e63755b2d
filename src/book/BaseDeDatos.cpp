#include "book/BaseDeDatos.h"

#include <sqlite3.h>

#include <algorithm>
#include <cassert>
#include <cstdio>

#include "book/LibroSql.h"
#include "plataforma/Descriptores.h"

constexpr char NOMBRE_LIBRO[]   = "file:Book.db";
constexpr char DIARIO_LIBRO[]   = "Book.db-journal";
constexpr int  RUTA_DIARIO_MAX  = 8192;  // bytes; longer than any path that the system opens
constexpr int  MODO_APERTURA    = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI;
constexpr int  MODO_LECTURA     = SQLITE_OPEN_READONLY;
constexpr char CONSULTA_TOTAL[] = "SELECT COUNT(Partida) FROM Book;";

// Work is counted in instructions of SQLite's machine and in bytes, of the pages it fetches and of the texts it
// delivers. Each of the three is about the size of the file when a sane table is read once: the shortest row takes six
// bytes and four instructions.
constexpr sqlite3_int64 TRABAJO_POR_OCTETO        = 32;         // ten times that
constexpr sqlite3_int64 TRABAJO_ESQUEMA           = 1'000'000;  // until the size of the file is known
constexpr int           INSTRUCCIONES_POR_CONTROL = 1000;
constexpr sqlite3_int64 MEMORIA_MAX               = 256LL << 20;  // bytes; room for any row that deserves the name

static sqlite3_int64 Trabajo;  // done for the current statement
static sqlite3_int64 TrabajoMax;
static sqlite3_int64 OctetosPagina;

static sqlite3_int64 PaginasPedidas() {
    int halladas = 0, leidas = 0, maximo = 0;
    sqlite3_db_status(LibroSql.Conexion, SQLITE_DBSTATUS_CACHE_HIT, &halladas, &maximo, 1);
    sqlite3_db_status(LibroSql.Conexion, SQLITE_DBSTATUS_CACHE_MISS, &leidas, &maximo, 1);
    return sqlite3_int64{halladas} + leidas;
}

static int TrabajoAgotado(void*) {
    Trabajo += INSTRUCCIONES_POR_CONTROL + PaginasPedidas() * OctetosPagina;
    return Trabajo > TrabajoMax ? 1 : 0;
}

static const char* Rutas[RUTAS_LIBRO_MAX];
static int         NumeroRutas = 0;

void FijarRutasLibro(const char* const* rutas, int numero) {
    assert(numero <= RUTAS_LIBRO_MAX);
    std::copy(rutas, rutas + numero, Rutas);
    NumeroRutas = numero;
}

// SQLite opens the book and the journal that it finds beside it, and at a pipe it would wait for a writer without end.
static bool HariaEsperar(const char* ruta) {
    char diario[RUTA_DIARIO_MAX];
    std::snprintf(diario, sizeof diario, "%s-journal", ruta);
    return EsTuberia(ruta) != 0 || EsTuberia(diario) != 0;
}

// An empty file is what the plain engine leaves behind where it finds no book.
static bool EstaVacio() {
    sqlite3_stmt* sentencia = nullptr;
    const bool    vacio =
        sqlite3_prepare_v2(LibroSql.Conexion, "PRAGMA page_count", -1, &sentencia, nullptr) == SQLITE_OK &&
        sqlite3_step(sentencia) == SQLITE_ROW && sqlite3_column_int(sentencia, 0) == 0;
    sqlite3_finalize(sentencia);
    return vacio;
}

// A handle is left also by an attempt that failed.
static int AbrirFichero() {
    if (NumeroRutas == 0 && EsTuberia(DIARIO_LIBRO) != 0) return SQLITE_CANTOPEN;
    if (NumeroRutas == 0) return sqlite3_open_v2(NOMBRE_LIBRO, &LibroSql.Conexion, MODO_APERTURA, nullptr);
    int codigo = SQLITE_CANTOPEN;
    for (int i = 0; i < NumeroRutas && codigo != SQLITE_OK; ++i) {
        sqlite3_close(LibroSql.Conexion);
        LibroSql.Conexion = nullptr;
        if (!HariaEsperar(Rutas[i])) codigo = sqlite3_open_v2(Rutas[i], &LibroSql.Conexion, MODO_LECTURA, nullptr);
        if (codigo == SQLITE_OK && EstaVacio()) codigo = SQLITE_CANTOPEN;
    }
    return codigo;
}

int AbrirBaseDeDatos() {
    Trabajo       = 0;
    TrabajoMax    = TRABAJO_ESQUEMA;
    OctetosPagina = 0;
    if (AbrirFichero() != SQLITE_OK) return 0;
    sqlite3_hard_heap_limit64(MEMORIA_MAX);
    sqlite3_progress_handler(LibroSql.Conexion, INSTRUCCIONES_POR_CONTROL, TrabajoAgotado, nullptr);
    return 1;
}

static void FinalizarSentencia() {
    sqlite3_finalize(LibroSql.Sentencia);
    LibroSql.Sentencia = nullptr;
}

// The number that a query of one answers, 0 when it fails.
static sqlite3_int64 LeerNumero(const char* sql) {
    sqlite3_int64 numero = 0;
    if (sqlite3_prepare_v2(LibroSql.Conexion, sql, -1, &LibroSql.Sentencia, nullptr) == SQLITE_OK &&
        sqlite3_step(LibroSql.Sentencia) == SQLITE_ROW)
        numero = sqlite3_column_int64(LibroSql.Sentencia, 0);
    FinalizarSentencia();
    return numero;
}

// What a view or a generated column costs cannot be told from the size of the file, and a book has neither.
static int ComprobarTabla() {
    const int codigo = sqlite3_table_column_metadata(LibroSql.Conexion, nullptr, "Book", "Partida", nullptr, nullptr,
                                                     nullptr, nullptr, nullptr);
    if (codigo != SQLITE_OK) return codigo;
    const bool sencilla = LeerNumero("SELECT COUNT(*) FROM pragma_table_xinfo('Book') WHERE hidden <> 0") == 0;
    return sencilla ? SQLITE_OK : SQLITE_ERROR;
}

int PrepararConsulta(const char* sql) {
    FinalizarSentencia();
    const int codigo = ComprobarTabla();
    if (codigo != SQLITE_OK) return codigo;
    OctetosPagina = LeerNumero("PRAGMA page_size");
    TrabajoMax    = TRABAJO_POR_OCTETO * OctetosPagina * LeerNumero("PRAGMA page_count");
    PaginasPedidas();  // those of other statements do not count
    Trabajo = 0;
    return sqlite3_prepare_v2(LibroSql.Conexion, sql, -1, &LibroSql.Sentencia, nullptr);
}

int SiguienteFila() {
    const int codigo = sqlite3_step(LibroSql.Sentencia);
    if (codigo != SQLITE_ROW) return codigo;
    Trabajo += sqlite3_column_bytes(LibroSql.Sentencia, 0);
    return Trabajo > TrabajoMax ? SQLITE_INTERRUPT : SQLITE_ROW;
}

const char* TextoDeFila() {
    const unsigned char* texto = sqlite3_column_text(LibroSql.Sentencia, 0);
    return texto != nullptr ? reinterpret_cast<const char*>(texto) : "";
}

int ObtenerNumeroAperturas() {
    if (PrepararConsulta(CONSULTA_TOTAL) != SQLITE_OK) return 0;
    int total = 0;
    int codigo;
    while ((codigo = SiguienteFila()) == SQLITE_ROW) total = sqlite3_column_int(LibroSql.Sentencia, 0);
    FinalizarSentencia();
    return codigo == SQLITE_DONE ? total : -codigo;
}

void CerrarBaseDeDatos() {
    FinalizarSentencia();
    sqlite3_close(LibroSql.Conexion);
    LibroSql.Conexion = nullptr;
    LimpiarLineaLibro();
}
