// The published functions of the Gaviota probing library, as pointers that are found at run time.
#pragma once

#include <cstddef>

// Result codes of a probe, and the values that close or stand for an empty piece list.
constexpr unsigned      TB_TABLAS       = 0;
constexpr unsigned      TB_MATE_BLANCAS = 1;
constexpr unsigned      TB_MATE_NEGRAS  = 2;
constexpr unsigned      TB_DESCONOCIDO  = 7;
constexpr unsigned      TB_SIN_CASILLA  = 64;
constexpr unsigned char TB_SIN_PIEZA    = 0;

// Side to move and castling rights as the library takes them.
constexpr unsigned TB_MUEVEN_BLANCAS       = 0;
constexpr unsigned TB_MUEVEN_NEGRAS        = 1;
constexpr unsigned TB_ENROQUE_BLANCO_CORTO = 8;
constexpr unsigned TB_ENROQUE_BLANCO_LARGO = 4;
constexpr unsigned TB_ENROQUE_NEGRO_CORTO  = 2;
constexpr unsigned TB_ENROQUE_NEGRO_LARGO  = 1;

// Side to move, en-passant square, castling rights, squares of White and of Black (closed by TB_SIN_CASILLA), their
// kinds 1 pawn .. 6 king (closed by TB_SIN_PIEZA); out: result code, plies to mate. 1 = answered.
using FuncionSonda = int(unsigned, unsigned, unsigned, const unsigned*, const unsigned*, const unsigned char*,
                         const unsigned char*, unsigned*, unsigned*);
// Same input; out: result code only.
using FuncionSondaWdl = int(unsigned, unsigned, unsigned, const unsigned*, const unsigned*, const unsigned char*,
                            const unsigned char*, unsigned*);
using FuncionInicio   = const char*(int, int, const char**);  // verbosity, compression, paths; a report or nullptr
using FuncionCache    = int(std::size_t, int);                // bytes, WDL fraction; 1 = done
using FuncionPregunta = int();                                // 1 = yes
using FuncionSimple   = void();

// In a namespace, because the library exports these very names: a program that exported them too would take their
// place inside the library.
namespace gtb {
extern FuncionInicio*   tb_init;
extern FuncionInicio*   tb_restart;
extern FuncionSimple*   tb_done;
extern FuncionSonda*    tb_probe_hard;  // reads the table file when the block is not in the cache
extern FuncionSonda*    tb_probe_soft;  // answers from the cache only
extern FuncionSondaWdl* tb_probe_WDL_hard;
extern FuncionSondaWdl* tb_probe_WDL_soft;
extern FuncionPregunta* tb_is_initialized;
extern unsigned (*tb_availability)();  // DisponibilidadGaviota
extern std::size_t (*tb_indexmemory)();
extern FuncionCache*    tbcache_init;
extern FuncionCache*    tbcache_restart;
extern FuncionSimple*   tbcache_done;
extern FuncionPregunta* tbcache_is_on;
extern FuncionSimple*   tbcache_flush;
extern FuncionSimple*   tbstats_reset;
extern const char** (*tbpaths_init)();
extern const char** (*tbpaths_add)(const char**, const char*);
extern const char** (*tbpaths_done)(const char**);
extern const char* (*tbpaths_getmain)();
}  // namespace gtb

// Finds every function in the library. Returns 1, or 0 when one is missing; then no pointer is set.
int BuscarEntradas(void* biblioteca);

// Clears every pointer.
void LimpiarEntradas();
