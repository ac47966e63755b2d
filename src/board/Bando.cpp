#include "board/Bando.h"

#include <cstddef>
#include <cstring>

RegistroBando Blancas;
RegistroBando Negras;

// From the first accumulator up to the lists everything is a plain value that starts at 0; of the lists only the
// lengths matter.
static void LimpiarEvaluacion(RegistroBando& bando) {
    constexpr std::size_t PRIMERO = offsetof(RegistroBando, Puntos_OP);
    constexpr std::size_t FIN     = offsetof(RegistroBando, ListaPeones);
    std::memset(reinterpret_cast<unsigned char*>(&bando) + PRIMERO, 0, FIN - PRIMERO);
    bando.ListaPeones.Numero = bando.ListaCaballos.Numero = bando.ListaAlfiles.Numero = 0;
    bando.ListaTorres.Numero = bando.ListaDamas.Numero = 0;
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
