// What every test of the book needs: a working directory of its own, with an SQLite file written for the test.
#pragma once

#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>

#include "book/Libro.h"
#include "book/LibroSql.h"
#include "comun/Tablero.h"

inline void EjecutarSql(sqlite3* base, const std::string& sql) {
    ASSERT_EQ(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(base);
}

// Makes Book.db anew. definicion: what follows CREATE; each row is an SQL literal.
inline void CrearBook(const std::string& definicion, const std::vector<std::string>& filas = {}) {
    std::filesystem::remove_all("Book.db");
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open("Book.db", &base), SQLITE_OK);
    EjecutarSql(base, "CREATE " + definicion);
    for (const std::string& fila : filas) EjecutarSql(base, "INSERT INTO Book VALUES (" + fila + ")");
    sqlite3_close(base);
}
inline void EscribirLibro(const std::vector<std::string>& filas) {
    CrearBook("TABLE Book (Partida TEXT)", filas);
}

// The "position" command with this text behind it.
inline void MandarPosicion(const std::string& texto) {
    SeguirPartida(texto.c_str());
    Position_Fen_Startpos(texto.c_str());
}

class CarpetaLibro : public Tablero {
protected:
    void SetUp() override {
        Tablero::SetUp();
        char plantilla[] = "/tmp/tamrek_libro_XXXXXX";
        Carpeta          = mkdtemp(plantilla);
        std::filesystem::current_path(Carpeta);
        LibroSql.OwnBook = 1;
    }
    void TearDown() override {
        std::filesystem::current_path("/");
        std::filesystem::remove_all(Carpeta);
    }

private:
    std::string Carpeta;
};
