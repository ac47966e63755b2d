// What the quiet moves of this search have shown: history values, killers and refutations. All of it is empty at
// the start of a search.
#pragma once

#include <cstdint>

#include "board/Movimiento.h"
#include "board/Tablero.h"

constexpr int KILLERS = 2;  // slots a ply; slot 0 is the newest

// History heuristic (Schaeffer, 1983): credit of a piece on a target square, for cut-offs it made and against
// moves that were tried in vain. Saturates at +-HISTORICO_LIMITE.
constexpr int HISTORICO_LIMITE = 1 << 30;
extern int    Historico_Bueno[CODIGOS][64];
extern int    Max_Historico;  // largest value reached in this search, never below 0
extern int    Min_Historico;  // smallest value reached, never above 0

// Killer heuristic (Akl and Newborn, 1977): quiet moves that cut off at the same ply; those that announced a mate
// are kept apart.
extern std::uint32_t Historico_Killer[PLIES_MAX][KILLERS];
extern std::uint32_t Historico_Killer_Mate[PLIES_MAX][KILLERS];

// Refutations (Uiterwijk, 1992): the quiet move that answered a move between two squares, [from][to].
extern std::uint32_t Historico_Rechazado[64][64];

void LimpiarHistorico();

inline bool EsKiller(int ply, std::uint32_t movimiento) {
    return movimiento == Historico_Killer[ply][0] || movimiento == Historico_Killer[ply][1];
}
inline bool EsKillerMate(int ply, std::uint32_t movimiento) {
    return movimiento == Historico_Killer_Mate[ply][0] || movimiento == Historico_Killer_Mate[ply][1];
}

// The refutation kept for the squares of a move; 0 when there is none or movimiento is 0.
inline std::uint32_t ObtenerRechazado(std::uint32_t movimiento) {
    return movimiento == 0 ? 0 : Historico_Rechazado[Desde(movimiento)][Hasta(movimiento)];
}

// A quiet move has cut off the current node. previo: the move that led to the node, 0 = none. lista: the node's
// moves as far as they have been picked; legales: legal moves tried, the cut-off move included.
void HistoricoActualizar(int profundidad, int puntos, std::uint32_t movimiento, std::uint32_t previo,
                         const ListaMovimientos& lista, int legales);
