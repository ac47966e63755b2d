// The engine's global state that every subsystem may touch: the quit flag and the game-control record.
#pragma once

#include <cstdint>

#include "board/Movimiento.h"

constexpr int PROFUNDIDAD_MAX        = 32;                   // deepest iteration, in plies
constexpr int PROFUNDIDAD_SIN_LIMITE = PROFUNDIDAD_MAX + 1;  // "no depth limit" in ProfundidadLimite

constexpr std::uint64_t MASCARA_SONDEO = 2047;  // one node in 2048

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

// Full UCI, asked for by "--uci-completo": the switches and limits that it adds. While Activo is 0 all others have
// their start values, and the engine answers as if the record did not exist.
struct RegistroUciCompleto {
    int           Activo;
    int           MargenReloj;                     // option Move Overhead, milliseconds
    std::uint64_t MascaraSondeo = MASCARA_SONDEO;  // nodes without any of these bits see to clock and input
    std::uint64_t LimiteNodos;                     // nodes of this search, 0 = no limit
    std::uint64_t TiempoTope;             // milliseconds after which a search ends even without a move of its own
    int           MateBuscado;            // a mate in so many moves ends the search, 0 = none is looked for
    int           SinFin;                 // 1 while only "stop", or "ponderhit", may bring the answer
    int           Ponderando;             // 1 while the move of "go ponder" is not played yet
    int           NumeroRaiz;             // root moves that are searched, 0 = all
    std::uint32_t Raiz[MOVIMIENTOS_MAX];  // these moves
};

extern RegistroTipoJuego   TipoJuego;
extern RegistroUciCompleto UciCompleto;
extern int                 Salir;  // 1 ends the program at the next return to the command loop
