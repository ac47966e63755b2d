// The side records: piece counters kept by make/unmake, and what one evaluation accumulates for a side.
#pragma once

#include <cstdint>

#include "board/Tablero.h"

constexpr int OBJETIVOS_MAX = 112;  // capacity of RegistroBando::Objetivos

// Squares of one kind of piece of a side. Room for a whole board, so that no absurd position overruns it.
struct ListaCasillas {
    int          Numero;
    std::uint8_t Casillas[64];
};

// All values of one evaluation; LimpiarPuntuacion sets every byte but the list contents to 0.
struct RegistroBando {
    // Pieces on the board, kings not counted. Set-up and make/unmake maintain them.
    int Peones;
    int Caballos;
    int Alfiles;
    int Torres;
    int Damas;

    // Centipawns, from the side's own point of view; _OP opening half, _EG endgame half.
    int Puntos_OP;
    int Puntos_EG;
    int Movilidad_OP;  // scaled by AJUSTE_MOB before it counts
    int Movilidad_EG;
    int Tropismo_OP;  // 20 % of it counts
    int Tropismo_EG;
    int Ataque_Valor;   // summed weight of the attacks on the enemy king zone
    int Ataque_Numero;  // pieces of the side that attack the enemy king zone

    int          Peones_Septima;      // own pawns on the side's seventh rank
    int          Peones_Columna[10];  // own pawns by file, [file + 1]; 0 and 9 are empty sentinels
    std::uint8_t Ataque_Peon[64];     // own pawns that attack the square
    std::uint8_t Defensa[64];         // own pieces that defend the (own-occupied) square
    int          Numero_Objetivos;
    std::uint8_t Objetivos[OBJETIVOS_MAX];  // squares of enemy pieces, king included, that own pieces attack;
                                            // one entry an attack, dropped when full

    // Squares of the side's pieces. Pawns: most advanced first. Others: in generation order
    // (White from h1 to a8, Black from a8 to h1).
    ListaCasillas ListaPeones;
    ListaCasillas ListaCaballos;
    ListaCasillas ListaAlfiles;
    ListaCasillas ListaTorres;
    ListaCasillas ListaDamas;
};
extern RegistroBando Blancas;
extern RegistroBando Negras;

// The counter that each piece code belongs to; nullptr for kings and for codes that name no piece.
inline constexpr int RegistroBando::*CONTADOR[16] = {nullptr,
                                                     &RegistroBando::Peones,
                                                     &RegistroBando::Caballos,
                                                     &RegistroBando::Alfiles,
                                                     &RegistroBando::Torres,
                                                     &RegistroBando::Damas,
                                                     nullptr,
                                                     nullptr,
                                                     &RegistroBando::Peones,
                                                     &RegistroBando::Caballos,
                                                     &RegistroBando::Alfiles,
                                                     &RegistroBando::Torres,
                                                     &RegistroBando::Damas,
                                                     nullptr,
                                                     nullptr,
                                                     nullptr};

// Empties the evaluation values of both sides; with con_contadores other than 0 the piece counters too.
void LimpiarPuntuacion(int con_contadores);
