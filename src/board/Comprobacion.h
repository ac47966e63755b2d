// What debug builds check at the doors of search, evaluation and move making, and around every move: the board
// recounted, and the record bit for bit the same after a make/unmake pair. Release builds compile none of it.
//
// Whatever a FEN may set up must pass, since release builds answer there: boards without a king or with several, a king
// left in check by the side that has moved, castling rights without rooks. So kings are compared with those before the
// move, and nothing is asked once Salir is up.
#pragma once

#include <cstdint>

#ifdef NDEBUG
#define COMPROBAR_ANTES_DE_HACER(movimiento, en_jaque) static_cast<void>(0)
#define COMPROBAR_ANTES_DE_NULO() static_cast<void>(0)
#define COMPROBAR_DESPUES_DE_HACER(legal) static_cast<void>(0)
#define COMPROBAR_DESPUES_DE_DESHACER() static_cast<void>(0)
#define COMPROBAR_POSICION() static_cast<void>(0)
#define COMPROBAR_NODO(en_jaque) static_cast<void>(0)
#else
#define COMPROBAR_ANTES_DE_HACER(movimiento, en_jaque) ComprobarAntesDeHacer(movimiento, en_jaque)
#define COMPROBAR_ANTES_DE_NULO() GuardarCopiaTablero()
#define COMPROBAR_DESPUES_DE_HACER(legal) ComprobarHecho(legal)
#define COMPROBAR_DESPUES_DE_DESHACER() CompararCopiaTablero()
#define COMPROBAR_POSICION() ComprobarPosicion()
#define COMPROBAR_NODO(en_jaque) ComprobarNodo(en_jaque)

// Recounts, and keeps a copy of the position at its Ply, to be compared when the move made there is taken back.
void GuardarCopiaTablero();
// The same for a move: its word is one of the side to move on this board, and the caller is right when it says that the
// mover's king is not in check.
void ComprobarAntesDeHacer(std::uint32_t movimiento, int en_jaque);
// Recounts pieces and kings, and tests the mover's king in full against the answer of making the move.
void ComprobarHecho(int legal);
// Recounts, and compares the position with its copy.
void CompararCopiaTablero();
// Recounts, and tests that the side that has just moved has not left its king in check. Nobody vouches for the root.
void ComprobarPosicion();
// A node of the search: the same, and the flag tells the truth about the side to move.
void ComprobarNodo(int en_jaque);
#endif
