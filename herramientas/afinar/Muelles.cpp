#include "afinar/Muelles.h"

#include <string_view>

namespace {

constexpr std::size_t      CASILLAS  = 64;
constexpr std::size_t      COLUMNAS  = 8;
constexpr std::string_view MOVILIDAD = "MOVILIDAD";

struct Tejedor {
    std::vector<Muelle>& Muelles;
    double               Fuerza;
    std::size_t          Primero;
    std::size_t          Paso;  // from one value of a half to the next

    void Unir(std::size_t a, std::size_t b) const {
        Muelles.push_back({.A = Primero + a * Paso, .B = Primero + b * Paso, .Fuerza = Fuerza});
    }
};

void UnirCasillas(const Tejedor& tejedor) {
    for (std::size_t casilla = 0; casilla < CASILLAS; ++casilla) {
        const std::size_t columna = casilla % COLUMNAS;
        const std::size_t gemela  = casilla - columna + (COLUMNAS - 1 - columna);
        if (columna + 1 < COLUMNAS) tejedor.Unir(casilla, casilla + 1);
        if (casilla + COLUMNAS < CASILLAS) tejedor.Unir(casilla, casilla + COLUMNAS);
        if (columna < gemela % COLUMNAS) tejedor.Unir(casilla, gemela);
    }
}

}  // namespace

std::vector<Muelle> CrearMuelles(const std::vector<Miembro>& miembros, const TiranteMuelles& tirante) {
    std::vector<Muelle> muelles;
    for (const Miembro& miembro : miembros) {
        for (std::size_t i = 0; i < miembro.Numero; ++i)
            muelles.push_back(
                {.A = miembro.Primero + i, .B = SIN_PAREJA, .Fuerza = 1 / (tirante.Sigma * tirante.Sigma)});
        if (tirante.Suavidad == 0) continue;
        const std::size_t paso    = miembro.EsPar ? 2 : 1;
        const std::size_t valores = miembro.Numero / paso;
        for (std::size_t mitad = 0; mitad < paso; ++mitad) {
            const Tejedor tejedor{muelles, 1 / (tirante.Suavidad * tirante.Suavidad), miembro.Primero + mitad, paso};
            if (valores == CASILLAS)
                UnirCasillas(tejedor);
            else if (miembro.Nombre.find(MOVILIDAD) != std::string::npos)
                for (std::size_t i = 0; i + 1 < valores; ++i) tejedor.Unir(i, i + 1);
        }
    }
    return muelles;
}
