// A book of any bytes in look-ups and in "book". The first line: a letter, and the moves that are looked up. "p": a
// sound book with changed bytes, of which place and value follow. Any other letter chooses a table, whose rows follow.
#include <sqlite3.h>

#include <fstream>
#include <iterator>

#include "fuzz/Entorno.h"

static const char* const TABLAS[] = {
    "CREATE TABLE Book (Partida TEXT)",
    "CREATE TABLE Book (Partida TEXT PRIMARY KEY) WITHOUT ROWID",
    "CREATE TABLE Book (n INTEGER PRIMARY KEY, Partida BLOB)",
    "CREATE TABLE Book (n, Partida TEXT AS ('e2e4'))",
    "CREATE VIEW Book AS SELECT 'e2e4' AS Partida",
};

static void CrearLibro(const char* tabla, Bytes filas) {
    sqlite3*      base = nullptr;
    sqlite3_stmt* fila = nullptr;
    sqlite3_open("Book.db", &base);
    sqlite3_exec(base, "PRAGMA page_size = 512; PRAGMA synchronous = OFF; BEGIN", nullptr, nullptr, nullptr);
    sqlite3_exec(base, tabla, nullptr, nullptr, nullptr);
    sqlite3_prepare_v2(base, "INSERT INTO Book (Partida) VALUES (?)", -1, &fila, nullptr);
    while (!filas.Resto.empty()) {
        const std::string texto  = filas.Linea();
        const char* const letras = texto.empty() ? nullptr : texto.data();  // an empty line is NULL
        sqlite3_bind_text(fila, 1, letras, static_cast<int>(texto.size()), SQLITE_TRANSIENT);
        sqlite3_step(fila);
        sqlite3_reset(fila);
    }
    sqlite3_finalize(fila);
    sqlite3_exec(base, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(base);
}

static void EstropearLibro(Bytes cambios) {
    std::string filas;  // of several pages
    for (int i = 0; i < 400; ++i) filas += i % 2 == 0 ? "e2e4 e7e5\n" : "d2d4\n";
    CrearLibro(TABLAS[0], {filas});
    std::fstream fichero("Book.db", std::ios::binary | std::ios::in | std::ios::out);
    while (!cambios.Resto.empty()) {
        const int lugar = 256 * cambios.Sacar();
        fichero.seekp(lugar + cambios.Sacar());
        fichero.put(static_cast<char>(cambios.Sacar()));
    }
}

void Ejecutar(Bytes bytes) {
    const int         letra   = bytes.Sacar();
    const std::string partida = "ucinewgame\nposition startpos moves " + bytes.Linea() + "\ngo depth 1\n";
    Empezar();
    if (letra == 'p')
        EstropearLibro(bytes);
    else
        CrearLibro(TABLAS[static_cast<std::size_t>(letra) % std::size(TABLAS)], bytes);
    Dialogar("setoption name OwnBook value true\nbook\nposition startpos\ngo depth 1\nuci\n" + partida + partida);
}
