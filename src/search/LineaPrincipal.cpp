#include "search/LineaPrincipal.h"

#include <cassert>
#include <cstring>

std::uint32_t pv_line[PLIES_MAX][PLIES_MAX];
std::uint32_t pv_line_fin[PLIES_MAX];
std::uint32_t pv_line_Root[MOVIMIENTOS_MAX][PLIES_MAX];
int           IndiceMejorRaiz = -1;

void LimpiarLineas() {
    std::memset(pv_line, 0, sizeof pv_line);
    std::memset(pv_line_fin, 0, sizeof pv_line_fin);
    std::memset(pv_line_Root, 0, sizeof pv_line_Root);
}

void Actualizar_Pv(int ply, std::uint32_t movimiento) {
    assert(ply >= 0 && ply < ULTIMO_PLY);
    std::uint32_t* const linea    = pv_line[ply];
    std::uint32_t* const detras   = pv_line[ply + 1];
    int                  longitud = 0;
    linea[0]                      = movimiento;
    // The last word of a row is never a move, so every row ends at a 0.
    while (longitud < ULTIMO_PLY - 1 && detras[longitud] != 0) {
        linea[longitud + 1] = detras[longitud];
        ++longitud;
    }
    linea[longitud + 1] = 0;
    detras[0]           = 0;
}

void Actualizar_Pv_Terminada(int indice) {
    IndiceMejorRaiz = indice;
    std::memcpy(pv_line_Root[indice], pv_line[0], sizeof pv_line[0]);
}

void RecuperarMejorRaiz() {
    if (IndiceMejorRaiz < 0) return;
    std::memcpy(pv_line[0], pv_line_Root[IndiceMejorRaiz], sizeof pv_line[0]);
}
