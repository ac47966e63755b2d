// Reading a position in Forsyth-Edwards notation.
#pragma once

// Fills TableroGlobal and adds to the piece counters, which the caller has cleared. Returns 1, or 0 for a
// malformed board text, with the position half filled. Rights, kings and the en-passant square are taken as given.
int CargarFen(const char* texto);
