// What every test of the search needs: a started engine, moves by their text, and a search with its output.
#pragma once

#include <sstream>

#include "board/Ayudas.h"
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

// The pseudo-legal move with this text, 0 = none.
inline std::uint32_t Buscado(const std::string& texto) {
    for (const std::uint32_t mov : Generar(GENERAR_TODOS))
        if (Texto(mov) == texto) return mov;
    return 0;
}

// Plays moves in the search's own way, one ply each.
inline void Jugar(const std::vector<std::string>& jugadas) {
    for (const std::string& texto : jugadas) {
        const std::uint32_t mov = Buscado(texto);
        ASSERT_NE(mov, 0U) << texto;
        ASSERT_EQ(HacerMovimiento(mov), 1) << texto;
    }
}

// Text between a word of a line and the next blank.
inline std::string Tras(const std::string& linea, const std::string& palabra) {
    const std::size_t lugar = linea.find(palabra + " ");
    if (lugar == std::string::npos) return "";
    const std::size_t inicio = lugar + palabra.size() + 1;
    return linea.substr(inicio, linea.find_first_of(" \n", inicio) - inicio);
}

struct Salida {
    std::vector<std::string> Iteraciones;  // "info depth" lines
    std::vector<int>         Intentos;     // searches of the root that each of them took
    int                      Currmoves = 0;
    std::string              Respuesta;  // the "bestmove" line
    std::string              Puntos;     // "cp 12" or "mate 3" of the last iteration
};

// Runs Buscar from fen with this depth limit (iterations + 1) and the other limits as TipoJuego has them.
inline Salida Correr(const std::string& fen, int limite) {
    Fen(fen);
    TipoJuego.ProfundidadLimite = limite;
    testing::internal::CaptureStdout();
    Buscar();
    std::istringstream texto(testing::internal::GetCapturedStdout());
    Salida             salida;
    int                intentos = 0;
    for (std::string linea; std::getline(texto, linea);) {
        if (linea.rfind("info currmove ", 0) == 0) ++salida.Currmoves;
        if (Tras(linea, "currmovenumber") == "1") ++intentos;
        if (linea.rfind("info depth ", 0) == 0) {
            salida.Iteraciones.push_back(linea);
            salida.Intentos.push_back(intentos);
            intentos = 0;
        }
        if (linea.rfind("bestmove ", 0) == 0) salida.Respuesta = linea;
    }
    if (!salida.Iteraciones.empty()) {
        const std::string& ultima = salida.Iteraciones.back();
        salida.Puntos             = Tras(ultima, "score") + " " + Tras(ultima, Tras(ultima, "score"));
    }
    return salida;
}
