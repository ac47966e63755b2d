#include "tablebases/GaviotaEntradas.h"

#include <type_traits>

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

template <auto& Entrada>
static void Poner(void* simbolo) {
    Entrada = reinterpret_cast<std::remove_reference_t<decltype(Entrada)>>(simbolo);
}

struct EntradaGaviota {
    const char* Nombre;
    void (*Poner)(void* simbolo);
};

// All are demanded, those that are never called too: a library without them is another version.
static const EntradaGaviota ENTRADAS[] = {
    {"tb_init", Poner<gtb::tb_init>},
    {"tb_restart", Poner<gtb::tb_restart>},
    {"tb_done", Poner<gtb::tb_done>},
    {"tb_probe_hard", Poner<gtb::tb_probe_hard>},
    {"tb_probe_soft", Poner<gtb::tb_probe_soft>},
    {"tb_probe_WDL_hard", Poner<gtb::tb_probe_WDL_hard>},
    {"tb_probe_WDL_soft", Poner<gtb::tb_probe_WDL_soft>},
    {"tb_is_initialized", Poner<gtb::tb_is_initialized>},
    {"tb_availability", Poner<gtb::tb_availability>},
    {"tb_indexmemory", Poner<gtb::tb_indexmemory>},
    {"tbcache_init", Poner<gtb::tbcache_init>},
    {"tbcache_restart", Poner<gtb::tbcache_restart>},
    {"tbcache_done", Poner<gtb::tbcache_done>},
    {"tbcache_is_on", Poner<gtb::tbcache_is_on>},
    {"tbcache_flush", Poner<gtb::tbcache_flush>},
    {"tbstats_reset", Poner<gtb::tbstats_reset>},
    {"tbpaths_init", Poner<gtb::tbpaths_init>},
    {"tbpaths_add", Poner<gtb::tbpaths_add>},
    {"tbpaths_done", Poner<gtb::tbpaths_done>},
    {"tbpaths_getmain", Poner<gtb::tbpaths_getmain>},
};

int BuscarEntradas(void* biblioteca) {
    for (const EntradaGaviota& entrada : ENTRADAS) {
        void* const simbolo = BuscarSimbolo(biblioteca, entrada.Nombre);
        if (simbolo == nullptr) {
            LimpiarEntradas();
            return 0;
        }
        entrada.Poner(simbolo);
    }
    return 1;
}

void LimpiarEntradas() {
    for (const EntradaGaviota& entrada : ENTRADAS) entrada.Poner(nullptr);
}
