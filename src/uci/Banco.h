// The bench: a fixed search whose node count names the play of a build and whose speed can be compared.
#pragma once

constexpr int      PROFUNDIDAD_BANCO = 11;  // plies, unless the command line asks for others
constexpr unsigned SEMILLA_BANCO     = 1;

// Searches every bench position to a depth of 1..32 plies, with empty tables each, no book, tablebases, clock or
// input. Prints one line a position and at last "N nodes M nps". The engine must have been started with
// SEMILLA_BANCO for the count to be comparable. Returns 1, or 0 when the engine raised Salir on the way.
int EjecutarBanco(int profundidad);
