// Input and limits of a search in full UCI. "isready" is answered, "stop", "ponderhit" and "quit" act at once; every
// other line waits until the search is over. What stands behind a waiting "go" belongs to that one and waits too,
// unless the present search has no end of its own. Once the search is stopped, nothing behind that is looked at.
#pragma once

// Carries out what has arrived. Returns false when nothing more can arrive, and then ends a search without end.
bool AtenderEntrada();

// True when time or nodes are used up.
bool LimiteCompletoAlcanzado();

// To be called when a search has nothing left to do: the answer to "go infinite" and "go ponder" waits here for "stop",
// "ponderhit", "quit" or the end of the input.
void EsperarFinDeAnalisis();
