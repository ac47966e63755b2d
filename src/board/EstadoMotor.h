// The engine's global state that every subsystem may touch: the quit flag and the game-control record.
#pragma once

#include <cstdint>

constexpr int PROFUNDIDAD_MAX        = 32;                   // deepest iteration, in plies
constexpr int PROFUNDIDAD_SIN_LIMITE = PROFUNDIDAD_MAX + 1;  // "no depth limit" in ProfundidadLimite

enum NivelShowPv : int { SHOWPV_NONE = 0, SHOWPV_MIDDLE = 1, SHOWPV_FULL = 2 };

struct RegistroTipoJuego {
    int           Parar;               // 1 ends the running search; set by the polling, read by every node
    std::uint64_t TiempoAsignado;      // budget of this search in milliseconds; applies when LimiteTiempo is 1
    std::uint64_t TiempoInicio;        // tick count at the start of the search, milliseconds
    std::uint64_t TiempoTranscurrido;  // milliseconds since TiempoInicio, refreshed by the output
    int           LimiteTiempo;        // 1 when the budget applies
    int           Infinito;            // 1 for "go infinite"
    int           ProfundidadLimite;   // iterations run while depth < limit; 33 = no limit. Perft: its depth
    int           ProfundidadActual;   // current iteration
    std::uint64_t Nodos;               // nodes of this search, quiescence included
    int           MovimientosJugados;  // moves applied by the last "position"; "go" then keeps its divisor here
    std::uint32_t MejorMovimiento;     // move word of the reply, 0 = none
    std::uint32_t MovimientoPonder;    // second move of the line, 0 = none
    int           ShowPv;              // NivelShowPv
};

extern RegistroTipoJuego TipoJuego;
extern int               Salir;  // 1 ends the program at the next return to the command loop
