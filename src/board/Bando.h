// The side records: piece counters kept by make/unmake, and what one evaluation accumulates for a side.
#pragma once

#include "board/Tablero.h"

// Piece counters, and from Puntos_OP on the values of one evaluation.
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

    int Peligro;  // how much the enemy king is in danger; its square counts

    int Peones_Septima;  // own pawns on the side's seventh rank

    // Nobody asks how often a square is in them.
    Conjunto Defensa;    // own pieces that an own piece defends
    Conjunto Objetivos;  // enemy pieces, king included, that an own piece attacks
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
