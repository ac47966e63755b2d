// What every test of the evaluation needs: the computed tables, and what one part of the evaluation adds to a side.
#pragma once

#include "comun/Tablero.h"
#include "eval/Evaluar.h"
#include "eval/Terminos.h"

class Evaluacion : public Tablero {
protected:
    void SetUp() override {
        Tablero::SetUp();
        Iniciar_Evaluacion();
    }
};

using Parte = void (*)();

// The side that fen shows as White.
inline RegistroBando& Propio(bool reflejada) {
    return reflejada ? Negras : Blancas;
}

struct Aporte {
    int OP, EG;
    int MovilidadOP = 0, MovilidadEG = 0, TropismoOP = 0, TropismoEG = 0, Ataque = 0, Atacantes = 0;

    bool operator==(const Aporte&) const = default;
};
inline std::ostream& operator<<(std::ostream& salida, const Aporte& a) {
    return salida << a.OP << '/' << a.EG << " mobility " << a.MovilidadOP << '/' << a.MovilidadEG << " tropism "
                  << a.TropismoOP << '/' << a.TropismoEG << " attack " << a.Ataque << " by " << a.Atacantes;
}

// What the last of these parts adds to that side when all of them run in turn.
inline Aporte AporteDe(const char* fen, bool reflejada, std::initializer_list<Parte> partes) {
    Fen(fen, reflejada);
    LimpiarPuntuacion(0);
    const RegistroBando& b     = Propio(reflejada);
    RegistroBando        antes = b;
    for (const Parte parte : partes) {
        antes = b;
        parte();
    }
    return {b.Puntos_OP - antes.Puntos_OP,       b.Puntos_EG - antes.Puntos_EG,
            b.Movilidad_OP - antes.Movilidad_OP, b.Movilidad_EG - antes.Movilidad_EG,
            b.Tropismo_OP - antes.Tropismo_OP,   b.Tropismo_EG - antes.Tropismo_EG,
            b.Ataque_Valor - antes.Ataque_Valor, b.Ataque_Numero - antes.Ataque_Numero};
}
