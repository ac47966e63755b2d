// What debug builds check around every move and before each evaluation: the board recounted, and the record bit for bit
// the same after a make/unmake pair. Release builds compile none of it.
#pragma once

#ifdef NDEBUG
#define COMPROBAR_ANTES_DE_HACER() static_cast<void>(0)
#define COMPROBAR_DESPUES_DE_HACER(legal) static_cast<void>(0)
#define COMPROBAR_DESPUES_DE_DESHACER() static_cast<void>(0)
#define COMPROBAR_POSICION() static_cast<void>(0)
#else
#define COMPROBAR_ANTES_DE_HACER() GuardarCopiaTablero()
#define COMPROBAR_DESPUES_DE_HACER(legal) ComprobarHecho(legal)
#define COMPROBAR_DESPUES_DE_DESHACER() CompararCopiaTablero()
#define COMPROBAR_POSICION() ComprobarPosicion()

// Keeps a copy of the position at its Ply, to be compared when the move made there is taken back.
void GuardarCopiaTablero();
// Recounts pieces and kings, and tests the mover's king in full against the answer of making the move.
void ComprobarHecho(int legal);
// Recounts, and compares the position with its copy.
void CompararCopiaTablero();
// Recounts, and tests that the side that has just moved has not left its king in check. Nobody vouches for the root.
void ComprobarPosicion();
#endif
