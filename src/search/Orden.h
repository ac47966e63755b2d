// Move ordering: the score that decides in which order a node tries its moves.
#pragma once

#include <array>
#include <cstdint>

#include "board/Movimiento.h"
#include "board/Tablero.h"
#include "search/See.h"

// Score bands, best first. Captures: most valuable victim, then least valuable attacker (MVV/LVA).
constexpr int ORDEN_TABLA              = 6000000;
constexpr int ORDEN_CAPTURA            = 5000000;
constexpr int ORDEN_CAPTURA_CORONACION = 4000000;
constexpr int ORDEN_CORONACION         = 3500000;
constexpr int PESO_VICTIMA             = 64;  // more than any attacker counts

namespace orden {

using TablaCapturas = std::array<std::array<int, CODIGOS>, CODIGOS>;

constexpr bool EsCodigoPieza(int codigo) {
    return codigo >= PEON_B && codigo <= REY_N && codigo != VACIO;
}

// Kind of a piece whatever its colour: pawn 1 .. king 6.
constexpr int Clase(int codigo) {
    return codigo > VACIO ? codigo - DESFASE_NEGRO : codigo;
}

// [piece that arrives][captured piece]; 0 where a code names no piece.
constexpr TablaCapturas CalcularCapturas(int base) {
    TablaCapturas tabla{};
    for (int pieza = 0; pieza < CODIGOS; ++pieza)
        for (int captura = 0; captura < CODIGOS; ++captura)
            if (EsCodigoPieza(pieza) && EsCodigoPieza(captura))
                tabla[static_cast<std::size_t>(pieza)][static_cast<std::size_t>(captura)] =
                    base + PESO_VICTIMA * Clase(captura) - Clase(pieza);
    return tabla;
}

constexpr std::array<int, CODIGOS> CalcularCoronaciones() {
    std::array<int, CODIGOS> tabla{};
    for (std::size_t pieza = 0; pieza < CODIGOS; ++pieza)
        if (VALOR_PIEZA[pieza] != 0) tabla[pieza] = ORDEN_CORONACION + VALOR_PIEZA[pieza];
    return tabla;
}

}  // namespace orden

inline constexpr orden::TablaCapturas     valor_captura = orden::CalcularCapturas(ORDEN_CAPTURA);  // [mover][captured]
inline constexpr orden::TablaCapturas     valor_captura_coronacion = orden::CalcularCapturas(ORDEN_CAPTURA_CORONACION);
inline constexpr std::array<int, CODIGOS> valor_coronacion = orden::CalcularCoronaciones();  // [promotion piece]

// Gives every move of the list its score at the current ply. tabla: the hash move, refutacion: the move that
// refuted it elsewhere; 0 = none.
void OrdenarMovimientosTodos(int numero, std::uint32_t tabla, ListaMovimientos& lista, std::uint32_t refutacion);

// Brings the best of the moves that stand from indice on to that place and returns it; among equals the first one.
// Nodes that cut off early never sort the rest.
std::uint32_t SiguienteMovimiento(ListaMovimientos& lista, int indice, int numero);
