// The Gaviota endgame tablebases (3, 4 and 5 men), reached through their probing library, which is loaded at run
// time. The options are only recorded here; they act when the library is loaded.
#pragma once

#include <cstdint>

#include "tablebases/GaviotaTablas.h"

// The options: start values and limits.
constexpr char TB_RUTA_VALOR[]     = "empty";
constexpr int  TB_CACHE_VALOR      = 32;    // megabytes
constexpr int  TB_CACHE_TOPE       = 1015;  // from here on the start value is taken instead
constexpr int  TB_COMPRESION_VALOR = 4;
constexpr int  TB_COMPRESION_MAX   = 9;

// Bits of RegistroGaviota::Disponibilidad. "Some" tables of a set are enough to probe it: a position whose table
// is missing gets no answer.
enum DisponibilidadGaviota : int {
    HAY_3_PIEZAS   = 1,
    TODAS_3_PIEZAS = 2,
    HAY_4_PIEZAS   = 4,
    TODAS_4_PIEZAS = 8,
    HAY_5_PIEZAS   = 16,
    TODAS_5_PIEZAS = 32,
};

struct RegistroGaviota {
    int           Usar;                // option GaviotaTbUse
    std::uint64_t tbhits;              // successful probes of this search
    int           Cargada;             // 1 while the library is loaded and initialised
    int           Disponibilidad;      // DisponibilidadGaviota
    char          Ruta[RUTA_MAX + 1];  // option GaviotaTbPath
    int           Compresion;          // option GaviotaTbCompression: which files are read, kqk.gtb.cp4 for 4
    int           Verbosidad;
    int           Cache;         // megabytes, option GaviotaTbCache
    int           FraccionWdl;   // share of the cache for win-draw-loss blocks, in the library's own unit
    const char**  ListaRutas;    // the library's handle of its path list; nullptr = none
    int           HombresSanos;  // positions of up to so many men are probed: no damaged table is in reach
};
extern RegistroGaviota tbprobe_Gaviota;

// Start values of the options.
void IniciarOpcionesGaviota();

// The tablebase step of "isready": unloads the library when the option is off, loads and initialises it when it is
// on and not loaded. Changes of path, cache and compression wait for the next loading.
void ActualizarGaviota();

// Loads and initialises the library and prints what it found; Cargada tells whether it can be used. Without the file
// descriptors or the memory that it needs it is not started: a line tells it.
void Cargar_gtbgaviota_dll();

// Returns 1 when the library has been given back or none is loaded, 0 when the system did not free it.
int Descargar_gtbgaviota_dll();

// Probes the current position; only to be called while Cargada is 1. Returns 1 and the score from the side to
// move's point of view in *puntos: VALOR_TB - n for a win in n plies counted from this position, n - VALOR_TB for
// a loss, else 0. Returns 0 when the tables do not cover the position or do not answer. profundidad: remaining
// depth in plies.
int Probar_gtbgaviota(int profundidad, int* puntos);
