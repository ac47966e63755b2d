// Helpers of the tablebase tests: a probing library put where the engine finds it, loading, and probing a position.
#pragma once

#include <dlfcn.h>

#include <filesystem>
#include <optional>
#include <string>

#include "board/Fen.h"
#include "board/Puntuacion.h"
#include "comun/Tablero.h"
#include "tablebases/Gaviota.h"

static const std::string BIBLIOTECA_REAL = GAVIOTA_REAL "/biblioteca/libgaviotatb.so.1";
static const std::string TABLAS_REALES   = GAVIOTA_REAL "/usr/share/gaviotatb/gtb";  // and the compression scheme
constexpr char SIN_PAQUETES[] = "the packages libgaviotatb1 and gaviotatb have not been unpacked; ctest does it";

// While it lives, the engine finds this file under its bare name: the system looks among loaded libraries first.
struct BibliotecaPuesta {
    void* Mango;
    explicit BibliotecaPuesta(const std::string& fichero) : Mango(dlopen(fichero.c_str(), RTLD_NOW)) {}
    ~BibliotecaPuesta() {
        if (Mango != nullptr) dlclose(Mango);
    }
    BibliotecaPuesta(const BibliotecaPuesta&)            = delete;
    BibliotecaPuesta& operator=(const BibliotecaPuesta&) = delete;
};

// One "isready" with the option on or off; returns what it prints.
inline std::string Actualizar(int usar) {
    tbprobe_Gaviota.Usar = usar;
    return Capturar(ActualizarGaviota);
}

// Unloads and loads again with these options; returns what the loading prints.
inline std::string Recargar(const std::string& ruta, int compresion = 4, int cache = 1) {
    Actualizar(0);
    tbprobe_Gaviota.Ruta[ruta.copy(tbprobe_Gaviota.Ruta, RUTA_MAX)] = '\0';
    tbprobe_Gaviota.Compresion                                      = compresion;
    tbprobe_Gaviota.Cache                                           = cache;
    return Actualizar(1);
}

// The score of the position on the board, nothing when it is not answered.
inline std::optional<int> SondearActual(int profundidad = 0) {
    int puntos = 0;
    return Probar_gtbgaviota(profundidad, &puntos) == 1 ? std::optional(puntos) : std::nullopt;
}

inline std::optional<int> Sondear(const std::string& fen, int profundidad = 0, int ply = 1, int iteracion = 1) {
    LimpiarPuntuacion(1);
    EXPECT_EQ(CargarFen(fen.c_str()), 1);
    TableroGlobal.Ply           = ply;
    TipoJuego.ProfundidadActual = iteracion;
    return SondearActual(profundidad);
}
