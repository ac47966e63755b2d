// "go" of full UCI: every limit of the protocol, alone and together, and always an answer.
#pragma once

#include <cstdint>

// What the words of a "go" line ask for. Times in milliseconds.
struct ParametrosGoCompleto {
    static constexpr std::int64_t NO_DADO = INT64_MIN;

    std::int64_t RelojBlancas          = NO_DADO;  // 0 and less: the flag is about to fall
    std::int64_t RelojNegras           = NO_DADO;
    std::int64_t IncrementoBlancas     = 0;
    std::int64_t IncrementoNegras      = 0;
    std::int64_t MovimientosPorControl = 0;  // moves to the next time control, 0 = none
    std::int64_t TiempoFijo            = NO_DADO;
    std::int64_t Profundidad           = NO_DADO;  // iterations
    std::int64_t Nodos                 = NO_DADO;
    std::int64_t MateEn                = 0;  // moves, 0 = none is looked for
    int          Infinito              = 0;
    int          Ponder                = 0;
    const char*  Raiz                  = nullptr;  // what follows "searchmoves"
};

// Reads the words that follow "go". Unknown words are skipped, values that are not numbers are ignored.
ParametrosGoCompleto LeerParametrosCompletos(const char* texto);

// Time of one search in milliseconds, at least 1 each.
struct Presupuesto {
    int          HayLimite;
    std::int64_t Asignado;  // the search ends then
    std::int64_t Tope;      // and then even if its first iteration has not found a move
};

// Divides the clock of the side to move (1 white, 0 black), or the only one given, keeping margen for the way to the
// interface. Nothing at all given: a few seconds, since whoever sets no limit still waits for a move.
Presupuesto CalcularPresupuesto(const ParametrosGoCompleto& parametros, int turno, int margen);

// texto: what follows the word "go". Answers "bestmove" in every case, "0000" when there is no legal move.
void GoCompleto(const char* texto);
