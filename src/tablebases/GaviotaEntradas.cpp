#include "tablebases/GaviotaEntradas.h"

#include "plataforma/Biblioteca.h"

namespace gtb {
FuncionInicio*   tb_init;
FuncionInicio*   tb_restart;
FuncionSimple*   tb_done;
FuncionSonda*    tb_probe_hard;
FuncionSonda*    tb_probe_soft;
FuncionSondaWdl* tb_probe_WDL_hard;
FuncionSondaWdl* tb_probe_WDL_soft;
FuncionPregunta* tb_is_initialized;
unsigned (*tb_availability)();
std::size_t (*tb_indexmemory)();
FuncionCache*    tbcache_init;
FuncionCache*    tbcache_restart;
FuncionSimple*   tbcache_done;
FuncionPregunta* tbcache_is_on;
FuncionSimple*   tbcache_flush;
FuncionSimple*   tbstats_reset;
const char** (*tbpaths_init)();
const char** (*tbpaths_add)(const char**, const char*);
const char** (*tbpaths_done)(const char**);
const char* (*tbpaths_getmain)();
}  // namespace gtb

template <typename Funcion>
static bool Buscar(void* biblioteca, const char* nombre, Funcion*& entrada) {
    entrada = reinterpret_cast<Funcion*>(BuscarSimbolo(biblioteca, nombre));
    return entrada != nullptr;
}

// All twenty are demanded, those that are never called too: a library without them is another version.
int BuscarEntradas(void* biblioteca) {
    const bool completa =
        Buscar(biblioteca, "tb_init", gtb::tb_init) && Buscar(biblioteca, "tb_restart", gtb::tb_restart) &&
        Buscar(biblioteca, "tb_done", gtb::tb_done) && Buscar(biblioteca, "tb_probe_hard", gtb::tb_probe_hard) &&
        Buscar(biblioteca, "tb_probe_soft", gtb::tb_probe_soft) &&
        Buscar(biblioteca, "tb_probe_WDL_hard", gtb::tb_probe_WDL_hard) &&
        Buscar(biblioteca, "tb_probe_WDL_soft", gtb::tb_probe_WDL_soft) &&
        Buscar(biblioteca, "tb_is_initialized", gtb::tb_is_initialized) &&
        Buscar(biblioteca, "tb_availability", gtb::tb_availability) &&
        Buscar(biblioteca, "tb_indexmemory", gtb::tb_indexmemory) &&
        Buscar(biblioteca, "tbcache_init", gtb::tbcache_init) &&
        Buscar(biblioteca, "tbcache_restart", gtb::tbcache_restart) &&
        Buscar(biblioteca, "tbcache_done", gtb::tbcache_done) &&
        Buscar(biblioteca, "tbcache_is_on", gtb::tbcache_is_on) &&
        Buscar(biblioteca, "tbcache_flush", gtb::tbcache_flush) &&
        Buscar(biblioteca, "tbstats_reset", gtb::tbstats_reset) &&
        Buscar(biblioteca, "tbpaths_init", gtb::tbpaths_init) && Buscar(biblioteca, "tbpaths_add", gtb::tbpaths_add) &&
        Buscar(biblioteca, "tbpaths_done", gtb::tbpaths_done) &&
        Buscar(biblioteca, "tbpaths_getmain", gtb::tbpaths_getmain);
    if (!completa) LimpiarEntradas();
    return completa ? 1 : 0;
}

void LimpiarEntradas() {
    gtb::tb_init           = nullptr;
    gtb::tb_restart        = nullptr;
    gtb::tb_done           = nullptr;
    gtb::tb_probe_hard     = nullptr;
    gtb::tb_probe_soft     = nullptr;
    gtb::tb_probe_WDL_hard = nullptr;
    gtb::tb_probe_WDL_soft = nullptr;
    gtb::tb_is_initialized = nullptr;
    gtb::tb_availability   = nullptr;
    gtb::tb_indexmemory    = nullptr;
    gtb::tbcache_init      = nullptr;
    gtb::tbcache_restart   = nullptr;
    gtb::tbcache_done      = nullptr;
    gtb::tbcache_is_on     = nullptr;
    gtb::tbcache_flush     = nullptr;
    gtb::tbstats_reset     = nullptr;
    gtb::tbpaths_init      = nullptr;
    gtb::tbpaths_add       = nullptr;
    gtb::tbpaths_done      = nullptr;
    gtb::tbpaths_getmain   = nullptr;
}
