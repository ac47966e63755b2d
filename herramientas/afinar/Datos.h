// The rows that the tuner learns from: positions with the judgement of a strong engine and the result of the game.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

struct Fila {
    std::string_view           Fen;  // within Datos::Texto
    int                        Linea;
    int                        Centipeones;   // of the strong engine, White's view
    double                     Resultado;     // for White: 1, 0.5 or 0
    int                        Fase;          // n, b = 1, r = 2, q = 4 over both sides; 24 and more = all pieces
    bool                       Prueba;        // kept apart for testing
    std::vector<std::uint32_t> Jugadas = {};  // from Fen to the position that is evaluated
};

struct Datos {
    std::string       Texto;
    std::vector<Fila> Filas;
    std::size_t       Malas = 0;  // rows that could not be used
};

// Reads lines "FEN;centipawns;result" from a plain or .xz file. Each bad row is named on standard error with its line
// and left out. Throws std::runtime_error when the file cannot be read.
Datos LeerDatos(const std::string& ruta);

// What is wrong with a FEN, nullptr when nothing is: eight ranks of eight squares, one king a side, pawns on ranks 2
// to 7 only, no more men than a side can have, a side to move. Whether the other king is in check it does not see.
const char* DefectoFen(std::string_view fen);
