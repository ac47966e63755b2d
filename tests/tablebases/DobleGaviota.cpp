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

static int Sondear(const char* nombre, unsigned turno, unsigned al_paso, unsigned enroques, const unsigned* casillas_b,
                   const unsigned* casillas_n, const unsigned char* piezas_b, const unsigned char* piezas_n,
                   unsigned* resultado, unsigned* plies) {
    Anotar("%s(%u %u %u", nombre, turno, al_paso, enroques);
    const unsigned*      casillas[] = {casillas_b, casillas_n};
    const unsigned char* piezas[]   = {piezas_b, piezas_n};
    for (int lado = 0; lado < 2; ++lado) {
        Anotar(" |");
        int i = -1;
        do {
            ++i;
            Anotar(" %u@%u", piezas[lado][i], casillas[lado][i]);
        } while (casillas[lado][i] != 64);
    }
    Anotar(" | %u) ", *resultado);
    if (doble.Responde == 1) *resultado = doble.Resultado;
    *plies = doble.Plies;
    return doble.Responde;
}

// The path list is followed by its address: the one of paths_add is the entry behind the one of paths_init.
static const char* lista[2] = {"init", "add"};
static const char* Lista(const char** puntero) {
    return puntero == nullptr ? "null" : *puntero;
}
const char* tb_init(int verbosidad, int compresion, const char** rutas) {
    Anotar("tb_init(%d %d %s) ", verbosidad, compresion, Lista(rutas));
    return doble.Mensaje;
}
const char* tb_restart(int verbosidad, int compresion, const char** rutas) {
    Anotar("tb_restart(%d %d %s) ", verbosidad, compresion, Lista(rutas));
    return "never printed";
}
void tb_done() {
    Anotar("tb_done() ");
}
int tb_probe_hard(unsigned t, unsigned p, unsigned e, const unsigned* cb, const unsigned* cn, const unsigned char* pb,
                  const unsigned char* pn, unsigned* r, unsigned* n) {
    return Sondear("hard", t, p, e, cb, cn, pb, pn, r, n);
}
int tb_probe_soft(unsigned t, unsigned p, unsigned e, const unsigned* cb, const unsigned* cn, const unsigned char* pb,
                  const unsigned char* pn, unsigned* r, unsigned* n) {
    return Sondear("soft", t, p, e, cb, cn, pb, pn, r, n);
}
void tb_probe_WDL_hard() {
    Anotar("WDL() ");
}
void tb_probe_WDL_soft() {
    Anotar("WDL() ");
}
int tb_is_initialized() {
    return doble.Iniciada;
}
unsigned tb_availability() {
    return doble.Disponibilidad;
}
void tb_indexmemory() {
    Anotar("indexmemory() ");
}
int tbcache_init(std::size_t octetos, int wdl) {
    Anotar("tbcache_init(%zu %d) ", octetos, wdl);
    return 1;
}
int tbcache_restart(std::size_t octetos, int wdl) {
    Anotar("tbcache_restart(%zu %d) ", octetos, wdl);
    return 1;
}
void tbcache_done() {
    Anotar("tbcache_done() ");
}
int tbcache_is_on() {
    return doble.Iniciada;
}
void tbcache_flush() {
    Anotar("tbcache_flush() ");
}
void tbstats_reset() {
    Anotar("tbstats_reset() ");
}
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
void tbpaths_getmain() {
    Anotar("getmain() ");
}
}
