// Set-up of positions for the tests of the evaluation, and their mirror image.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "board/Color.h"
#include "board/Posicion.h"
#include "board/Zobrist.h"
#include "eval/Espejo.h"
#include "eval/Evaluar.h"
#include "eval/Terminos.h"

class Evaluacion : public testing::Test {
protected:
    static void SetUpTestSuite() {
        CrearTablaCasillas();
        InicializarZobrist(1);
        Iniciar_Evaluacion();
    }
};

// Colours, ranks and side to move exchanged.
inline void ReflejarPosicion() {
    RegistroTablero& t = TableroGlobal;
    for (int arriba = 0; arriba < 32; ++arriba) std::swap(t.Casillas[arriba], t.Casillas[Reflejada(arriba)]);
    for (int& pieza : t.Casillas)
        if (pieza != VACIO) pieza += pieza < VACIO ? DESFASE_NEGRO : -DESFASE_NEGRO;
    std::swap(t.PosicionReyBlanco, t.PosicionReyNegro);
    t.PosicionReyBlanco = Reflejada(t.PosicionReyBlanco);
    t.PosicionReyNegro  = Reflejada(t.PosicionReyNegro);
    std::swap(t.EnroqueBlancas, t.EnroqueNegras);
    if (t.FichaAlPaso != 0) t.FichaAlPaso = Reflejada(t.FichaAlPaso);
    t.Turno     = 1 - t.Turno;
    t.TurnoRaiz = 1 - t.TurnoRaiz;
    t.Key       = ObtenerKey();
    std::swap(Blancas, Negras);
}

inline void CargarPosicion(const std::string& fen, bool reflejada = false) {
    Position_Fen_Startpos((" fen " + fen).c_str());
    if (reflejada) ReflejarPosicion();
}

struct Mitades {
    int OP;
    int EG;

    bool operator==(const Mitades&) const = default;
};

inline std::ostream& operator<<(std::ostream& salida, const Mitades& m) {
    return salida << m.OP << '/' << m.EG;
}

// What evaluar adds to the score of a side once the piece evaluation has filled the side records.
inline Mitades PuntosDe(void (*evaluar)(), RegistroBando& bando) {
    LimpiarPuntuacion(0);
    EvaluarPiezasTableroJuego();
    const Mitades antes = {bando.Puntos_OP, bando.Puntos_EG};
    evaluar();
    return {bando.Puntos_OP - antes.OP, bando.Puntos_EG - antes.EG};
}
