// What every test of the book needs: a working directory of its own, with an SQLite file written for the test.
#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "board/EstadoMotor.h"
#include "board/Posicion.h"
#include "board/Tablero.h"
#include "board/Zobrist.h"
#include "book/Libro.h"
#include "book/LibroSql.h"

inline void EjecutarSql(sqlite3* base, const std::string& sql) {
    ASSERT_EQ(sqlite3_exec(base, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(base);
}

// Makes Book.db anew; each row is an SQL literal.
inline void EscribirLibro(const std::vector<std::string>& filas) {
    std::filesystem::remove_all("Book.db");
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open("Book.db", &base), SQLITE_OK);
    EjecutarSql(base, "CREATE TABLE Book (Partida TEXT)");
    for (const std::string& fila : filas) EjecutarSql(base, "INSERT INTO Book VALUES (" + fila + ")");
    sqlite3_close(base);
}

// definicion: what follows CREATE.
inline void CrearBook(const std::string& definicion) {
    sqlite3* base = nullptr;
    ASSERT_EQ(sqlite3_open("Book.db", &base), SQLITE_OK);
    EjecutarSql(base, "CREATE " + definicion);
    sqlite3_close(base);
}

// The "position" command with this text behind it.
inline void MandarPosicion(const std::string& texto) {
    SeguirPartida(texto.c_str());
    Position_Fen_Startpos(texto.c_str());
}

inline std::string Capturar(const std::function<void()>& accion) {
    testing::internal::CaptureStdout();
    accion();
    return testing::internal::GetCapturedStdout();
}

class CarpetaLibro : public testing::Test {
protected:
    void SetUp() override {
        char plantilla[] = "/tmp/tamrek_libro_XXXXXX";
        Carpeta          = mkdtemp(plantilla);
        std::filesystem::current_path(Carpeta);
        CrearTablaCasillas();
        InicializarZobrist(1);
        Position_Fen_Startpos("startpos");
        LibroSql.OwnBook = 1;
    }
    void TearDown() override {
        std::filesystem::current_path("/");
        std::filesystem::remove_all(Carpeta);
    }

private:
    std::string Carpeta;
};
