// Start-up and shutdown of the whole engine.
#pragma once

// Computes every table, draws the Zobrist keys from the seed, sets the options to their start values, creates the
// hash tables and sets up the start position. The order of the steps is part of the engine's behaviour: tables
// before keys, keys before the first position. When memory runs out Salir is 1 afterwards.
void Arrancar(unsigned semilla);

// Frees the hash tables and the tablebase library.
void Apagar();
