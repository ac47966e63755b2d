// What holds the weights back where the data say little.
#pragma once

#include <vector>

#include "afinar/FicheroPesos.h"
#include "afinar/Regresion.h"

struct TiranteMuelles {
    double Sigma    = 60;  // centipawns by which a weight is expected to leave its starting value
    double Suavidad = 5;   // centipawns by which neighbours of a table are expected to leave it differently; 0: any
};

// One spring a weight, and one between neighbours: squares of a board that share an edge or mirror each other from
// wing to wing, and the successive values of a mobility table.
std::vector<Muelle> CrearMuelles(const std::vector<Miembro>& miembros, const TiranteMuelles& tirante);
