// The tablebase library's numbering of the squares: a1 = 0, h1 = 7, h8 = 63.
#pragma once

#include <array>

// Flip3[casilla]: a square of ours (a8 = 0) as the library counts it, and the other way round.
constexpr auto Flip3 = [] {
    std::array<int, 64> tabla{};
    for (int casilla = 0; casilla < 64; ++casilla) tabla[static_cast<unsigned>(casilla)] = casilla ^ 56;
    return tabla;
}();
