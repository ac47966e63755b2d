// The "position" command: sets up TableroGlobal from a FEN or the start position and plays a list of moves.
#pragma once

#include <cstdint>

constexpr char FEN_INICIAL[] = "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1";

// texto: what follows the word "position". Returns the side to move (1 white, 0 black). A malformed board prints
// a line and sets up the start position without moves; an unknown first move prints its diagnosis and raises Salir.
// In full UCI a list ends at its first illegal move, which prints its diagnosis and raises nothing.
int Position_Fen_Startpos(const char* texto);

// The legal move with this text in coordinate notation, 0 when there is none.
std::uint32_t BuscarMovimientoLegal(const char* texto);

// Finds texto (coordinate notation) among the pseudo-legal moves and plays it, legal or not. *aplicado belongs to
// the caller, starts at 0 and becomes 1 with the first move played; from then on an unknown move is skipped in
// silence, before that it prints its diagnosis and raises Salir.
void Movimiento(const char* texto, int* aplicado);
