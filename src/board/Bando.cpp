#include "board/Bando.h"

#include <cstddef>
#include <cstring>

RegistroBando Blancas;
RegistroBando Negras;

// From the first accumulator to the end everything is a plain value that starts at 0.
static void LimpiarEvaluacion(RegistroBando& bando) {
    constexpr std::size_t PRIMERO = offsetof(RegistroBando, Puntos_OP);
    std::memset(reinterpret_cast<unsigned char*>(&bando) + PRIMERO, 0, sizeof bando - PRIMERO);
}

static void LimpiarContadores(RegistroBando& bando) {
    bando.Peones = bando.Caballos = bando.Alfiles = bando.Torres = bando.Damas = 0;
}

void LimpiarPuntuacion(int con_contadores) {
    LimpiarEvaluacion(Blancas);
    LimpiarEvaluacion(Negras);
    if (con_contadores == 0) return;
    LimpiarContadores(Blancas);
    LimpiarContadores(Negras);
}
