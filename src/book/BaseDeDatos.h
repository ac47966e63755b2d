// Book.db as an SQLite database, used through the handles of LibroSql. Each command that needs the book opens it
// and closes it again, so that the file can be replaced while the engine runs.
//
// Book.db comes from anywhere, and the pages of a damaged one can lead in circles. SQLite therefore works within a
// multiple of what reading the whole file takes, counted without a clock, so that a sound book of any size is read to
// its end on any machine. A statement that exceeds it fails as on any other error.
#pragma once

constexpr int RUTAS_LIBRO_MAX = 4;

// From now on the book is the first of these files that can be opened and is not empty; none of them is written or
// created. The texts (UTF-8 paths, up to RUTAS_LIBRO_MAX) belong to the caller and must outlive the book. numero 0: as
// at the start.
void FijarRutasLibro(const char* const* rutas, int numero);

// Opens Book.db in the working directory; a missing file is created empty. With paths of its own, see above. Returns 1,
// or 0 when it cannot be opened; to be closed in either case.
int AbrirBaseDeDatos();

// Makes sql, a query of the table Book, the current statement. Returns an SQLite result code; SQLITE_ERROR also when
// Book is no plain table with a column Partida.
int PrepararConsulta(const char* sql);

// Steps the current statement. Returns SQLITE_ROW, SQLITE_DONE or the code of an error. A file locked by another
// process is an error at once: nobody waits for it.
int SiguienteFila();

// Column 0 of the current row as text, "" for NULL; valid until the next step. It ends at its first zero byte.
const char* TextoDeFila();

// Number of rows in Book, 0 when there is no such table. A count that failed on the way is no number: then the negated
// SQLite result code.
int ObtenerNumeroAperturas();

// Finalises the statement, closes the connection and empties the current line. Does nothing twice to a handle.
void CerrarBaseDeDatos();
