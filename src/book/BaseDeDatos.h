// Book.db as an SQLite database, used through the handles of LibroSql. Each command that needs the book opens it
// and closes it again, so that the file can be replaced while the engine runs.
//
// Book.db comes from anywhere: its schema may hold views that never end or rows of any size. A command therefore
// gives SQLite a budget of time and of memory; a statement that exceeds it fails as on any other error.
#pragma once

// Milliseconds of SQLite's own work in one command. A look-up runs on the engine's clock.
constexpr int PLAZO_CONSULTA     = 500;
constexpr int PLAZO_VERIFICACION = 3000;

// Opens Book.db in the working directory; a missing file is created empty. plazo: the command's budget in
// milliseconds. Returns 1, or 0 when it cannot be opened; to be closed in either case.
int AbrirBaseDeDatos(int plazo);

// Makes sql the current statement. Returns an SQLite result code.
int PrepararConsulta(const char* sql);

// Steps the current statement. Returns SQLITE_ROW, SQLITE_DONE or the code of an error. A file locked by another
// process is an error at once: nobody waits for it.
int SiguienteFila();

// Column 0 of the current row as text, "" for NULL; valid until the next step. It ends at its first zero byte.
const char* TextoDeFila();

// Number of rows in Book; 0 when they cannot be counted.
int ObtenerNumeroAperturas();

// Finalises the statement, closes the connection and empties the current line. Does nothing twice to a handle.
void CerrarBaseDeDatos();
