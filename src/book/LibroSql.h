// State of the opening book, and how it follows the game.
#pragma once

struct sqlite3;
struct sqlite3_stmt;

constexpr int LINEA_LIBRO_MAX    = 100;  // characters of a book line that are read
constexpr int JUGADA_LIBRO_MAX   = 5;    // characters of a move: four, and a promotion letter that only "book" reads
constexpr int CONSULTA_MAX       = 255;
constexpr int LIMITE_LIBRO_MIN   = 2;
constexpr int LIMITE_LIBRO_MAX   = 10;
constexpr int LIMITE_LIBRO_VALOR = 8;   // start value of OwnBookLimit
constexpr int LETRAS_POR_LIMITE  = 10;  // characters of game line that one unit of OwnBookLimit allows: two plies

struct RegistroLibroSql {
    sqlite3*      Conexion;  // both handles are null unless a command is using the book
    sqlite3_stmt* Sentencia;
    int           Terminado;  // 1 = nothing more in the book for this game; no look-up is made
    int           OwnBook;    // 1 = the option is on
    int           OwnBookLimit;
    char          Linea[LINEA_LIBRO_MAX + 1];        // moves of the current game, as the book writes them
    char          Movimiento[JUGADA_LIBRO_MAX + 1];  // chosen move
    char          Consulta[CONSULTA_MAX];
};
extern RegistroLibroSql LibroSql;

// The book is of no use any more for this game.
void AbandonarLibro();

// texto: what follows the word "position". A FEN leaves the book. A move list from the start position becomes the
// current line when OwnBook is on and the list is short enough for OwnBookLimit, otherwise it leaves the book too;
// without a list the line stays as it is.
void SeguirPartida(const char* texto);

// Empties the current line.
void LimpiarLineaLibro();
