// Arithmetic shared by the terms. Fractions are single precision and cut toward zero, so that a score does not
// depend on the compiler; the sources are built without fused multiply-add for the same reason.
#pragma once

constexpr float POR_CIENTO = 0.01F;

// producto * factor without its fraction.
constexpr int Truncar(int producto, float factor) {
    return static_cast<int>(static_cast<float>(producto) * factor);
}

// valor * porcentaje / 100 without its fraction.
constexpr int Porcentaje(int valor, int porcentaje) {
    return Truncar(valor * porcentaje, POR_CIENTO);
}
