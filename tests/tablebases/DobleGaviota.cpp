#include "DobleGaviota.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <cstring>

extern "C" {
DobleGaviota doble;

static void Anotar(const char* formato, ...) {
    const std::size_t hecho = std::strlen(doble.Registro);
    std::va_list      datos;
    va_start(datos, formato);
    std::vsnprintf(doble.Registro + hecho, sizeof doble.Registro - hecho, formato, datos);
    va_end(datos);
}

// The path list is followed by its address: the one of paths_add is the entry behind the one of paths_init.
static const char* lista[2] = {"init", "add"};
static const char* Lista(const char** puntero) {
    return puntero == nullptr ? "null" : *puntero;
}

#define SONDA(nombre)                                                                                                  \
    int tb_probe_##nombre(unsigned turno, unsigned al_paso, unsigned enroques, const unsigned* cb, const unsigned* cn, \
                          const unsigned char* pb, const unsigned char* pn, unsigned* r, unsigned* plies) {            \
        Anotar(#nombre "(%u %u %u |", turno, al_paso, enroques);                                                       \
        for (int i = 0; i == 0 || cb[i - 1] != 64; ++i) Anotar(" %u@%u", pb[i], cb[i]);                                \
        Anotar(" |");                                                                                                  \
        for (int i = 0; i == 0 || cn[i - 1] != 64; ++i) Anotar(" %u@%u", pn[i], cn[i]);                                \
        Anotar(" | %u) ", *r);                                                                                         \
        if (doble.AntesDeSondear != nullptr) doble.AntesDeSondear();                                                   \
        if (doble.Responde == 1) *r = doble.Resultado;                                                                 \
        *plies = doble.Plies;                                                                                          \
        return doble.Responde;                                                                                         \
    }
#define INICIO(nombre, respuesta)                                            \
    const char* nombre(int verbosidad, int compresion, const char** rutas) { \
        Anotar(#nombre "(%d %d %s) ", verbosidad, compresion, Lista(rutas)); \
        return respuesta;                                                    \
    }
#define CACHE(nombre)                              \
    int nombre(std::size_t octetos, int wdl) {     \
        Anotar(#nombre "(%zu %d) ", octetos, wdl); \
        return 1;                                  \
    }
#define SIMPLE(nombre)         \
    void nombre() {            \
        Anotar(#nombre "() "); \
    }
#define PREGUNTA(nombre, respuesta) \
    unsigned nombre() {             \
        return respuesta;           \
    }
// clang-format off
SONDA(hard) SONDA(soft) INICIO(tb_init, doble.Mensaje) INICIO(tb_restart, "never printed") CACHE(tbcache_init)
CACHE(tbcache_restart) PREGUNTA(tb_is_initialized, doble.Iniciada) PREGUNTA(tbcache_is_on, doble.Iniciada)
PREGUNTA(tb_availability, doble.Disponibilidad) SIMPLE(tb_done) SIMPLE(tb_probe_WDL_hard) SIMPLE(tb_probe_WDL_soft)
SIMPLE(tb_indexmemory) SIMPLE(tbcache_done) SIMPLE(tbcache_flush) SIMPLE(tbstats_reset) SIMPLE(tbpaths_getmain)
    // clang-format on
    const char** tbpaths_init() {
    Anotar("tbpaths_init() ");
    return lista;
}
const char** tbpaths_add(const char** rutas, const char* ruta) {
    Anotar("tbpaths_add(%s %s) ", Lista(rutas), ruta);
    return rutas + 1;
}
const char** tbpaths_done(const char** rutas) {
    Anotar("tbpaths_done(%s) ", Lista(rutas));
    return nullptr;
}
}
