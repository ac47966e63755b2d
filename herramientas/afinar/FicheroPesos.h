// The source file where the weights of the evaluation live, as text: its members by name, and the way back into it.
//
// Between its two marker comments every number outside comments and brackets is one weight, in the order of the record.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct Miembro {
    std::string Nombre;
    std::size_t Primero;  // index of its first weight
    std::size_t Numero;   // weights in it
    bool        EsPar;    // opening and endgame values in turn
};

struct Literal {
    std::size_t Lugar;  // in FicheroPesos::Texto
    std::size_t Largo;
    int         Valor;
};

struct FicheroPesos {
    std::string          Texto;
    std::vector<Literal> Literales;  // one a weight
    std::vector<Miembro> Miembros;
};

// Throws std::runtime_error for a text without the markers, or with a member that has no name or no value.
FicheroPesos InterpretarPesos(std::string texto);

// The text with other values. Numbers that stand in columns stay so, as narrow as the widest value allows, and the
// words of a comment line above them move along; everything else stays as it is.
std::string TextoConPesos(const FicheroPesos& fichero, const std::vector<int>& pesos);
