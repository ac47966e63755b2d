#include "tablebases/Gaviota.h"

#include <cstdio>
#include <cstring>

#include "board/EstadoMotor.h"
#include "plataforma/Biblioteca.h"
#include "plataforma/Descriptores.h"
#include "plataforma/Memoria.h"
#include "plataforma/Salida.h"
#include "tablebases/GaviotaEntradas.h"
#include "tablebases/GaviotaTablas.h"

constexpr char NOMBRE_BIBLIOTECA[]   = "gtbprobe_x64.dll";   // the name of every message, whichever file was found
constexpr char NOMBRE_INSTALADO[]    = "libgaviotatb.so.1";  // as packages for users install it, without the bare name
constexpr int  VERBOSIDAD            = 1;
constexpr int  FRACCION_WDL          = 16;
constexpr int  DESCRIPTORES_MOTOR    = 3;                     // kept free for the book with its journal, and one more
constexpr std::size_t MEMORIA_MINIMA = std::size_t{8} << 20;  // bytes beside the cache

RegistroGaviota tbprobe_Gaviota;

static void* gtb_hmod;  // the loaded library; stays set when it lacks a function

void IniciarOpcionesGaviota() {
    RegistroGaviota& g = tbprobe_Gaviota;
    g.Usar             = 0;
    std::memcpy(g.Ruta, TB_RUTA_VALOR, sizeof TB_RUTA_VALOR);
    g.Compresion  = TB_COMPRESION_VALOR;
    g.Verbosidad  = VERBOSIDAD;
    g.Cache       = TB_CACHE_VALOR;
    g.FraccionWdl = FRACCION_WDL;
}

void ActualizarGaviota() {
    RegistroGaviota& g = tbprobe_Gaviota;
    if (g.Usar == 0 && g.Cargada == 1) {
        Descargar_gtbgaviota_dll();
        g.Cargada = 0;  // even when the system keeps the library: it has been shut down
    }
    if (g.Usar == 1 && g.Cargada == 0) Cargar_gtbgaviota_dll();
}

// A library that is still loaded, incomplete or not freed, is taken as it is: loading it again would only pile up
// references.
static void CargarFichero() {
    if (gtb_hmod == nullptr) gtb_hmod = CargarBiblioteca(NOMBRE_BIBLIOTECA, NOMBRE_INSTALADO);
}

static bool CabeEnMemoria(std::size_t octetos) {
    void* const memoria = ReservarMemoria(octetos);
    LiberarMemoria(memoria, octetos);
    return memoria != nullptr;
}

// What keeps the library from being started, nullptr for nothing. It opens every table at "restart" and again at "init"
// and never closes the first ones, which is done for it when it is unloaded. Of a table that it failed to open, and of
// a cache without memory, it says that they are well, and then crashes: in a probe, at the latest when it is shut down.
static const char* RecursoQueFalta() {
    const RegistroGaviota& g      = tbprobe_Gaviota;
    const int              tablas = NumeroTablasGaviota(g.Ruta, g.Compresion);
    if (tablas < 0) return "Fichero ilegible";
    if (HayDescriptores(2 * tablas + DESCRIPTORES_MOTOR) == 0) return "Demasiados ficheros abiertos";
    const std::size_t cache_octetos = static_cast<std::size_t>(g.Cache) << 20;
    return CabeEnMemoria(cache_octetos + cache_octetos / 64 + MEMORIA_MINIMA) ? nullptr : "Memoria insuficiente";
}

// Both calls of each pair are made: "restart" puts right a library that has been used before, "init" starts it.
static void IniciarBiblioteca() {
    RegistroGaviota&  g             = tbprobe_Gaviota;
    const std::size_t cache_octetos = static_cast<std::size_t>(g.Cache) << 20;
    g.ListaRutas                    = gtb::tbpaths_done(g.ListaRutas);
    g.ListaRutas                    = gtb::tbpaths_init();
    g.ListaRutas                    = gtb::tbpaths_add(g.ListaRutas, g.Ruta);
    gtb::tb_restart(g.Verbosidad, g.Compresion, g.ListaRutas);
    gtb::tbcache_restart(cache_octetos, g.FraccionWdl);
    const char* const mensaje = gtb::tb_init(g.Verbosidad, g.Compresion, g.ListaRutas);
    if (mensaje != nullptr) Imprimir("%s\n", mensaje);
    gtb::tbcache_init(cache_octetos, g.FraccionWdl);
    gtb::tbstats_reset();
}

static void ImprimirEstado() {
    Imprimir("Initialized: %s\n\n", gtb::tb_is_initialized() != 0 ? "Ok" : "FAILED");
    Imprimir("State cache: %s\n\n", gtb::tbcache_is_on() != 0 ? "Ok" : "FAILED");
}

static void ImprimirDisponibilidad(int hombres, int hay, int todas) {
    if ((tbprobe_Gaviota.Disponibilidad & hay) == 0) {
        Imprimir("No %d-pc TBs available\n", hombres);
        return;
    }
    Imprimir("%d-pc TBs available\n", hombres);
    if ((tbprobe_Gaviota.Disponibilidad & todas) != 0) Imprimir("%d-pc TBs complete\n", hombres);
}

// Full UCI tells which schemes the folders hold when none of the files is of the scheme that was set.
static void SugerirEsquema() {
    const RegistroGaviota& g = tbprobe_Gaviota;
    if (UciCompleto.Activo == 0 || NumeroTablasGaviota(g.Ruta, g.Compresion) != 0) return;
    char otros[2 * (COMPRESION_MAX + 1) + 1] = "";
    int  letras                              = 0;
    for (int esquema = 0; esquema <= COMPRESION_MAX; ++esquema)
        if (NumeroTablasGaviota(g.Ruta, esquema) != 0)
            letras += std::snprintf(otros + letras, sizeof otros - static_cast<std::size_t>(letras), " %d", esquema);
    Imprimir("info string No hay tablas de finales gaviota del esquema %d en %s%s%s.\n", g.Compresion, g.Ruta,
             letras != 0 ? "; las hay del esquema" : "", otros);
}

void Cargar_gtbgaviota_dll() {
    RegistroGaviota& g = tbprobe_Gaviota;
    CargarFichero();
    g.Cargada = gtb_hmod != nullptr && BuscarEntradas(gtb_hmod) == 1 ? 1 : 0;
    if (g.Cargada == 0) {
        Imprimir("info string Error loading dll library %s.\n", NOMBRE_BIBLIOTECA);
        return;
    }
    if (const char* const falta = RecursoQueFalta()) {
        g.Cargada = 0;
        Imprimir("info string Error: %s para la tabla de finales gaviota.\n", falta);
        return;
    }
    AnotarDescriptores();
    IniciarBiblioteca();
    ImprimirEstado();
    g.Disponibilidad = static_cast<int>(gtb::tb_availability());
    ImprimirDisponibilidad(3, HAY_3_PIEZAS, TODAS_3_PIEZAS);
    ImprimirDisponibilidad(4, HAY_4_PIEZAS, TODAS_4_PIEZAS);
    ImprimirDisponibilidad(5, HAY_5_PIEZAS, TODAS_5_PIEZAS);
    SugerirEsquema();
    g.HombresSanos = ComprobarTablasGaviota(g.Ruta, g.Compresion);
}

int Descargar_gtbgaviota_dll() {
    RegistroGaviota& g = tbprobe_Gaviota;
    if (gtb_hmod == nullptr) return 1;
    if (g.Cargada == 1) {  // the library does not bear being shut down twice, nor before it was started
        gtb::tbcache_flush();
        gtb::tbcache_done();
        gtb::tb_done();
        g.ListaRutas = gtb::tbpaths_done(g.ListaRutas);
        CerrarDescriptoresNuevos();
    }
    if (LiberarBiblioteca(gtb_hmod) == 0) {
        Imprimir("info string Error: Liberar tabla de finales gaviota.\n");
        return 0;
    }
    gtb_hmod = nullptr;
    LimpiarEntradas();
    g.Cargada = 0;
    return 1;
}
