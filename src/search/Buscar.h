// The search driver: iterative deepening with aspiration windows.
#pragma once

// Clears the per-game state of the search: lines, history, killers, transposition table and evaluation cache.
void LimpiarBusqueda();

// Searches TableroGlobal within the limits of TipoJuego (set by "go"), printing "info" lines and "bestmove", and
// clears the per-search state. TableroGlobal is left as it was.
void Buscar();

// The iterations of a search without its answer: prints the "info" lines that ShowPv allows and returns the score
// of the last iteration that counts, centipawns for the side to move; 0 when no iteration was allowed. The nodes
// stay in TipoJuego.Nodos until TerminarBusqueda.
int BuscarIterativo();

// Prints "bestmove" with the move of the last finished iteration, before it the "info" line when there was none yet.
// puntos: what BuscarIterativo has returned.
void ImprimirMejorJugada(int puntos);

// Clears what belongs to one search (stop flag, counters, lines, history, killers) and ages the table.
void TerminarBusqueda();

// Fills the tables that the search computes at start-up. To be called once, before the first search.
void Iniciar_Busqueda();
