// The "go" command: book move, or search limits and search.
#pragma once

#include <cstdint>

// What the words of a "go" line ask for; 0 = not given. Times in milliseconds, kept as 32 bits.
struct ParametrosGo {
    std::int32_t RelojBlancas;
    std::int32_t RelojNegras;
    std::int32_t IncrementoBlancas;
    std::int32_t IncrementoNegras;
    std::int32_t MovimientosPorControl;  // moves to the next time control
    std::int32_t TiempoFijo;             // "movetime"
    int          Profundidad;            // as a limit: iterations run while depth < limit, 33 = no limit
    int          Infinito;
};

// How a search is bounded.
struct LimitesBusqueda {
    int           HayBusqueda;     // 0 when the line gives no usable limit: no search and no reply
    int           Profundidad;     // limit as above
    int           LimiteTiempo;    // 1 when the budget applies
    std::uint64_t TiempoAsignado;  // milliseconds; a negative budget becomes enormous and so bounds nothing
    int           Divisor;         // moves among which the clock was divided; what came in when it was not
};

constexpr std::int32_t RESERVA_TIEMPO_FIJO = 250;  // milliseconds kept back from a fixed time per move

// Reads the words that follow "go". Unknown words are skipped, values that are not numbers are ignored.
ParametrosGo LeerParametrosGo(const char* texto);

// The limits for the side to move (1 white, 0 black). jugadas: moves played so far, or the divisor that the last
// search on a clock has left. Changes nothing.
LimitesBusqueda CalcularLimites(const ParametrosGo& parametros, int turno, int jugadas);

// texto: what follows the word "go". Answers "bestmove", from the book or by a search; without a usable limit
// answers nothing.
void Go(const char* texto);
