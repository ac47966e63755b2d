// A stand-in for the probing library: answers what it is told and writes down every call.
#pragma once

struct DobleGaviota {
    char        Registro[4096];            // the calls in order, "name(arguments) "
    const char* Mensaje;                   // answer of tb_init
    unsigned    Iniciada, Disponibilidad;  // the first of tb_is_initialized and tbcache_is_on
    int         Responde;                  // answer of a probe
    unsigned    Resultado, Plies;
    void (*AntesDeSondear)() = nullptr;  // called before a probe is answered, nullptr = nothing
};
