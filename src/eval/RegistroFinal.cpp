#include "eval/RegistroFinal.h"

#include "board/Conjunto.h"
#include "eval/Espejo.h"

template <int C, int FUERTE>
static void AgregarPiezas(RegistroFinal& pos) {
    constexpr int RECODIFICA = (C == FUERTE ? 0 : DESFASE_NEGRO) - CODIGO_BASE<C>;
    Conjunto      propias    = CasillasDe<C>();
    while (propias != 0) {
        const int casilla = SacarCasillaEnOrden<C>(propias);
        const int codigo  = TableroGlobal.Casillas[casilla] + RECODIFICA;
        if (codigo <= 0 || codigo >= CODIGOS) continue;
        pos.Casillas[codigo][pos.Numero[codigo]++] = static_cast<std::uint8_t>(Relativa<FUERTE>(casilla));
    }
}

template <int FUERTE>
static void Orientar(RegistroFinal& pos) {
    pos.MueveFuerte = TableroGlobal.Turno == FUERTE;
    AgregarPiezas<FUERTE, FUERTE>(pos);
    AgregarPiezas<RIVAL<FUERTE>, FUERTE>(pos);
}

void OrientarFinal(int fuerte, RegistroFinal& pos) {
    pos = {};
    if (fuerte == BLANCO)
        Orientar<BLANCO>(pos);
    else
        Orientar<NEGRO>(pos);
}

int ValorMaterial(const RegistroFinal& pos, int peon) {
    constexpr int VALORES[] = {100, 325, 335, 500, 1000};  // pawn to queen, in the order of the codes
    int           suma      = 0;
    for (int tipo = 0; tipo < 5; ++tipo) suma += VALORES[tipo] * pos.Numero[peon + tipo];
    return suma;
}
