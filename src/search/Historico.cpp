#include "search/Historico.h"

#include <algorithm>
#include <cassert>
#include <cstring>

#include "board/Puntuacion.h"

int           Historico_Bueno[CODIGOS][64];
int           Max_Historico = 0;
int           Min_Historico = 0;
std::uint32_t Historico_Killer[PLIES_MAX][KILLERS];
std::uint32_t Historico_Killer_Mate[PLIES_MAX][KILLERS];
std::uint32_t Historico_Rechazado[64][64];

void LimpiarHistorico() {
    std::memset(Historico_Bueno, 0, sizeof Historico_Bueno);
    std::memset(Historico_Killer, 0, sizeof Historico_Killer);
    std::memset(Historico_Killer_Mate, 0, sizeof Historico_Killer_Mate);
    std::memset(Historico_Rechazado, 0, sizeof Historico_Rechazado);
    Max_Historico = 0;
    Min_Historico = 0;
}

// Adds to the history value of a move and returns the new one. A step is a small multiple of a squared depth, so
// the sum is clamped long before it could overflow.
static int SumarHistorico(std::uint32_t movimiento, int paso) {
    int& valor = Historico_Bueno[PiezaMovida(movimiento)][Hasta(movimiento)];
    valor      = std::clamp(valor + paso, -HISTORICO_LIMITE, HISTORICO_LIMITE);
    return valor;
}

static void InsertarKiller(std::uint32_t (&killers)[KILLERS], std::uint32_t movimiento) {
    if (killers[0] == movimiento) return;
    killers[1] = killers[0];
    killers[0] = movimiento;
}

static void ActualizarRechazado(std::uint32_t previo, std::uint32_t movimiento) {
    if (previo != 0) Historico_Rechazado[Desde(previo)][Hasta(previo)] = movimiento;
}

// Debits the first places of the list. The cut-off move stands among them unless illegal moves were met before it;
// it then loses half of what it has just gained.
static void HistoricoMalaPuntuacion(int profundidad, const ListaMovimientos& lista, int legales) {
    for (int i = 0; i < legales; ++i)
        Min_Historico =
            std::min(Min_Historico, SumarHistorico(lista.Entradas[i].Movimiento, -profundidad * profundidad));
}

void HistoricoActualizar(int profundidad, int puntos, std::uint32_t movimiento, std::uint32_t previo,
                         const ListaMovimientos& lista, int legales) {
    Max_Historico = std::max(Max_Historico, SumarHistorico(movimiento, 2 * profundidad * profundidad));
    const int ply = TableroGlobal.Ply;
    assert(EsTranquilo(movimiento) && ply < PLIES_MAX - 1 && legales >= 0 && legales <= MOVIMIENTOS_MAX);
    InsertarKiller(EsPuntuacionMate(puntos) ? Historico_Killer_Mate[ply] : Historico_Killer[ply], movimiento);
    ActualizarRechazado(previo, movimiento);
    HistoricoMalaPuntuacion(profundidad, lista, legales);
}
