// What every test of the search needs: a started engine, and a search with its output.
#pragma once

#include <sstream>

#include "comun/Tablero.h"
#include "eval/Evaluar.h"
#include "search/Buscar.h"
#include "search/Transposicion.h"

class Busqueda : public Tablero {
protected:
    void SetUp() override {
        Tablero::SetUp();
        Iniciar_Evaluacion();
        Iniciar_Busqueda();
        CrearTransposicion(16);
        LimpiarBusqueda();
        TipoJuego        = {};
        TipoJuego.ShowPv = SHOWPV_FULL;
    }
    void TearDown() override { LiberarTransposicion(); }
};

struct Salida {
    std::vector<std::string> Iteraciones;  // "info depth" lines
    std::vector<int>         Intentos;     // searches of the root that each of them took
    std::string              Respuesta;    // the "bestmove" line
    std::string              Puntos;       // "cp 12" or "mate 3" of the last iteration
};

// Runs Buscar from fen with this depth limit (iterations + 1) and the other limits as TipoJuego has them.
inline Salida Correr(const std::string& fen, int limite) {
    Fen(fen);
    TipoJuego.ProfundidadLimite = limite;
    std::istringstream texto(Capturar(Buscar));
    Salida             salida;
    int                intentos = 0;
    for (std::string linea; std::getline(texto, linea);) {
        if (Tras(linea, "currmovenumber") == "1") ++intentos;
        if (linea.starts_with("bestmove ")) salida.Respuesta = linea;
        if (!linea.starts_with("info depth ")) continue;
        salida.Iteraciones.push_back(linea);
        salida.Intentos.push_back(std::exchange(intentos, 0));
        salida.Puntos = Tras(linea, "score") + " " + Tras(linea, Tras(linea, "score"));
    }
    return salida;
}
