#include "book/BaseDeDatos.h"

#include <sqlite3.h>

#include "book/LibroSql.h"
#include "plataforma/Reloj.h"

constexpr char NOMBRE_LIBRO[]   = "file:Book.db";
constexpr int  MODO_APERTURA    = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_URI;
constexpr char CONSULTA_TOTAL[] = "SELECT COUNT(Partida) FROM Book;";

// SQLite looks at the clock between instructions of its machine only, so the texts that one instruction may work on
// are short enough to keep each of them brief.
constexpr int           INSTRUCCIONES_POR_CONTROL = 20;
constexpr int           TEXTO_MAX                 = 1'000'000;           // bytes of a row
constexpr int           PATRON_MAX                = CONSULTA_MAX;        // bytes of a pattern of LIKE
constexpr sqlite3_int64 MEMORIA_MAX               = 64LL * 1024 * 1024;  // bytes; stops views that unfold without end

static std::uint64_t TiempoRestante;  // milliseconds that SQLite may still work
static std::uint64_t InicioPaso;      // tick count at the start of the current step

static int PlazoAgotado(void*) {
    return ObtenerMilisegundos() - InicioPaso > TiempoRestante ? 1 : 0;
}

static void LimitarRecursos() {
    sqlite3* conexion = LibroSql.Conexion;
    sqlite3_hard_heap_limit64(MEMORIA_MAX);
    sqlite3_limit(conexion, SQLITE_LIMIT_LENGTH, TEXTO_MAX);
    sqlite3_limit(conexion, SQLITE_LIMIT_LIKE_PATTERN_LENGTH, PATRON_MAX);
    sqlite3_db_config(conexion, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_progress_handler(conexion, INSTRUCCIONES_POR_CONTROL, PlazoAgotado, nullptr);
}

int AbrirBaseDeDatos(int plazo) {
    TiempoRestante = static_cast<std::uint64_t>(plazo);
    InicioPaso     = ObtenerMilisegundos();
    if (sqlite3_open_v2(NOMBRE_LIBRO, &LibroSql.Conexion, MODO_APERTURA, nullptr) != SQLITE_OK) return 0;
    LimitarRecursos();
    return 1;
}

static void FinalizarSentencia() {
    sqlite3_finalize(LibroSql.Sentencia);
    LibroSql.Sentencia = nullptr;
}

int PrepararConsulta(const char* sql) {
    FinalizarSentencia();
    InicioPaso = ObtenerMilisegundos();
    return sqlite3_prepare_v2(LibroSql.Conexion, sql, -1, &LibroSql.Sentencia, nullptr);
}

int SiguienteFila() {
    InicioPaso                  = ObtenerMilisegundos();
    const int           codigo  = sqlite3_step(LibroSql.Sentencia);
    const std::uint64_t gastado = ObtenerMilisegundos() - InicioPaso;
    TiempoRestante -= gastado < TiempoRestante ? gastado : TiempoRestante;
    return codigo;
}

const char* TextoDeFila() {
    const unsigned char* texto = sqlite3_column_text(LibroSql.Sentencia, 0);
    return texto != nullptr ? reinterpret_cast<const char*>(texto) : "";
}

int ObtenerNumeroAperturas() {
    if (PrepararConsulta(CONSULTA_TOTAL) != SQLITE_OK) return 0;
    int total = 0;
    while (SiguienteFila() == SQLITE_ROW) total = sqlite3_column_int(LibroSql.Sentencia, 0);
    FinalizarSentencia();
    return total;
}

void CerrarBaseDeDatos() {
    FinalizarSentencia();
    sqlite3_close(LibroSql.Conexion);
    LibroSql.Conexion = nullptr;
    LimpiarLineaLibro();
}
