// The opening book: move choice from Book.db in the working directory, opened for each look-up and closed again.
//
// Table Book, text column Partida: a row is a game from the start position, four-character moves separated by
// single spaces. The book is never written.
#pragma once

// Looks the current line up. Returns 1 when the book has a legal move: it is in LibroSql.Movimiento and the caller
// answers with it. Returns 0 when the search has to run.
int BuscarJugadaLibro();

// 1 when Book.db can be opened (it is created when missing). Nothing stays open and the book's texts are emptied.
int ComprobarAccesoLibro();

// The "book" command: replays every line of the book and prints whether it is usable. It sets up positions of its
// own, so a "position" has to follow. Moves that do not fit are skipped once any move has been played: what it
// tells is whether the file can be read and holds lines at all.
void VerificarLibroApertura();
