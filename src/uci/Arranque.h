// Start-up and shutdown of the whole engine, and the start of a new game.
#pragma once

// Computes every table, draws the Zobrist keys from the seed, sets the options to their start values, creates the
// hash tables and sets up the start position. The order of the steps is part of the engine's behaviour: tables
// before keys, keys before the first position. When memory runs out Salir is 1 afterwards.
void Arrancar(unsigned semilla);

// Clears all that belongs to one game (key history, search tables, transposition table, limits, what is known of
// the book line) and sets up the start position. Options and the tablebase library persist.
void UciNewGame();

// Frees the hash tables and the tablebase library.
void Apagar();
