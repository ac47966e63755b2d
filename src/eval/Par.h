// Tapered values, the one place where they reach the accumulators of a side, and the arithmetic of the terms.
#pragma once

#include "board/Color.h"

// Centipawns in the opening and in the endgame.
struct Par {
    int OP;
    int EG;
};

// Where a weight goes: a field of the side record, or one of the two places with a rule of their own.
enum class Acumulador : int {
    Puntos_OP,
    Puntos_EG,
    Movilidad_OP,
    Movilidad_EG,
    Tropismo_OP,
    Tropismo_EG,
    Ataque_Valor,
    Peligro,     // of its sum the square counts, see PuntosPeligro
    Refugio_OP,  // of its sum a half, rounded down, goes to Puntos_OP
    Factor,      // percentage of a recognised ending; belongs to no side, and the last one counts
};

// When the sources are compiled with TAMREK_AFINAR, as the tuner of the weights compiles them, PESOS may be written and
// every weight that counts is reported to the tuner's own Trazar; in the engine there is nothing of it.
// peso: the weight in its place in PESOS, or a settled value anywhere else. veces: how many times it counts, negative
// for a penalty. color: whose it is.
#ifdef TAMREK_AFINAR
constexpr bool TRAZANDO = true;
void           Trazar(const int& peso, int veces, int color, Acumulador acumulador);
#else
constexpr bool TRAZANDO = false;
inline void    Trazar(const int&, int, int, Acumulador) {}
#endif

// All terms come through here. The weights are passed by reference to their place, so that Trazar knows which one it
// is.
template <int C, Acumulador A>
inline void Acumular(const int& peso, int veces) {
    constexpr int RegistroBando::*CAMPOS[] = {&RegistroBando::Puntos_OP,    &RegistroBando::Puntos_EG,
                                              &RegistroBando::Movilidad_OP, &RegistroBando::Movilidad_EG,
                                              &RegistroBando::Tropismo_OP,  &RegistroBando::Tropismo_EG,
                                              &RegistroBando::Ataque_Valor, &RegistroBando::Peligro};
    BandoDe<C>().*CAMPOS[static_cast<int>(A)] += peso * veces;
    Trazar(peso, veces, C, A);
}

template <int C>
inline void SumarApertura(const int& op, int veces = 1) {
    Acumular<C, Acumulador::Puntos_OP>(op, veces);
}
template <int C>
inline void SumarFinal(const int& eg, int veces = 1) {
    Acumular<C, Acumulador::Puntos_EG>(eg, veces);
}
// Both halves, when they stand in tables of their own.
template <int C>
inline void Sumar(const int& op, const int& eg, int veces = 1) {
    SumarApertura<C>(op, veces);
    SumarFinal<C>(eg, veces);
}
template <int C>
inline void Sumar(const Par& peso, int veces = 1) {
    Sumar<C>(peso.OP, peso.EG, veces);
}

// Twice the worth of the king's shelter; its weights are reported apart.
template <int C>
inline void SumarRefugio(int doble) {
    BandoDe<C>().Puntos_OP += doble >> 1;
}

template <int C>
inline void SumarMovilidad(const int& op, const int& eg) {
    Acumular<C, Acumulador::Movilidad_OP>(op, 1);
    Acumular<C, Acumulador::Movilidad_EG>(eg, 1);
}
template <int C>
inline void SumarMovilidad(const Par& peso) {
    SumarMovilidad<C>(peso.OP, peso.EG);
}
template <int C>
inline void SumarTropismo(const Par& peso, int cercania) {
    Acumular<C, Acumulador::Tropismo_OP>(peso.OP, cercania);
    Acumular<C, Acumulador::Tropismo_EG>(peso.EG, cercania);
}
template <int C>
inline void SumarPeligro(const int& peso, int veces = 1) {
    Acumular<C, Acumulador::Peligro>(peso, veces);
}
template <int C>
inline void SumarAtaque(const int& peso, int veces) {
    Acumular<C, Acumulador::Ataque_Valor>(peso, veces);
}

// Fractions are single precision and cut toward zero, so that a score does not depend on the compiler; the sources are
// built without fused multiply-add for the same reason.
constexpr float POR_CIENTO = 0.01F;

// producto * factor without its fraction.
constexpr int Truncar(int producto, float factor) {
    return static_cast<int>(static_cast<float>(producto) * factor);
}

// valor * porcentaje / 100 without its fraction.
constexpr int Porcentaje(int valor, int porcentaje) {
    return Truncar(valor * porcentaje, POR_CIENTO);
}
