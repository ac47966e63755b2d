// What the fuzz targets share: the engine with its input and output in memory, its clock a counter and its searches
// short, so that an execution takes milliseconds and always runs alike. A wrong answer is reported when it is printed.
#pragma once

#include <climits>
#include <cstdint>
#include <string>
#include <string_view>

// Reports a finding unless cierto.
void Exigir(bool cierto, const char* que);

// Sets the engine back to its start, with the smallest hash table; completo: in full UCI. After so many answers nobody
// reads its output any more.
void Empezar(bool completo = false, int respuestas = INT_MAX);

// Gives the command loop this input, '~' standing for one look at it that finds nothing new, and shuts the engine down.
void Dialogar(std::string_view entrada);

// What is left of an execution's input; behind its end come zeros and empty lines.
struct Bytes {
    std::string_view Resto;

    int         Sacar();
    std::string Linea();
    // A FEN of any line. In its first word letters are men, digits skip squares, and nothing else counts.
    std::string Fen(int hombres_max = 64);
};

// One execution of the target.
void Ejecutar(Bytes bytes);
