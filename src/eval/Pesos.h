// The weights that are ours: every number of the evaluation that tuning may change, and nothing else. What is settled
// (material, imbalance, pawns, rooks, opening rules, the tempo, hanging pieces, the king attack curve) stands in the
// source of its term.
//
// A program reads and rewrites this file, so it keeps a form: between the two marks each number outside comments is one
// weight, in the order of the members; bounds are names, and no weight is computed. Centipawns unless stated otherwise.
// BONUS, PUESTO and PST values are added, PENALIZACION values are subtracted.
#pragma once

#include "eval/Par.h"

// clang-format off
struct RegistroPesos {
    static constexpr int CASILLAS        = 64;
    static constexpr int CUENTAS_CABALLO = 9;   // squares that a knight reaches, from none on
    static constexpr int CUENTAS_ALFIL   = 14;
    static constexpr int CUENTAS_DAMA    = 28;
    static constexpr int FILAS           = 8;
    static constexpr int BORDES          = 4;  // distances of a file from the edge of the board
    static constexpr int FILAS_PUESTO    = 4;  // seventh to fourth rank
    static constexpr int ESTADOS_ENROQUE = 6;
    static constexpr int VENTAJAS        = 5;

    // ==== first weight ====

    // ---- Placement, by square as White sees the board.
    int PST_N_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
      -60, -30, -18, -14, -14, -18, -30, -60,   // 8
      -24, -12,   4,   8,   8,   4, -12, -24,   // 7
      -10,   4,  16,  20,  20,  16,   4, -10,   // 6
       -8,   6,  18,  22,  22,  18,   6,  -8,   // 5
      -10,   4,  14,  18,  18,  14,   4, -10,   // 4
      -14,   0,  11,  12,  12,  11,   0, -14,   // 3
      -22, -14,  -2,   3,   3,  -2, -14, -22,   // 2
      -38, -24, -18, -14, -14, -18, -24, -38};  // 1
    int PST_N_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -56, -39, -25, -17, -17, -25, -39, -56,   // 8
      -34, -17,  -3,   6,   6,  -3, -17, -34,   // 7
      -20,   0,  11,  17,  17,  11,   0, -20,   // 6
      -14,   6,  17,  22,  22,  17,   6, -14,   // 5
      -14,   6,  17,  22,  22,  17,   6, -14,   // 4
      -22,  -3,   8,  14,  14,   8,  -3, -22,   // 3
      -34, -20,  -6,   3,   3,  -6, -20, -34,   // 2
      -56, -39, -28, -20, -20, -28, -39, -56};  // 1
    int PST_B_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
      -12,  -8, -10, -10, -10, -10,  -8, -12,   // 8
       -8,  -2,  -2,   0,   0,  -2,  -2,  -8,   // 7
       -4,   4,   6,   6,   6,   6,   4,  -4,   // 6
       -2,   6,   8,  12,  12,   8,   6,  -2,   // 5
       -2,   4,  10,  12,  12,  10,   4,  -2,   // 4
        0,   8,   8,   8,   8,   8,   8,   0,   // 3
       -2,  10,   5,   6,   6,   5,  10,  -2,   // 2
      -12,  -8, -14, -10, -10, -14,  -8, -12};  // 1
    int PST_B_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -21, -15,  -9,  -6,  -6,  -9, -15, -21,   // 8
      -12,  -3,   0,   3,   3,   0,  -3, -12,   // 7
       -6,   3,   6,   9,   9,   6,   3,  -6,   // 6
       -3,   6,   9,  14,  14,   9,   6,  -3,   // 5
       -3,   6,   9,  14,  14,   9,   6,  -3,   // 4
       -6,   3,   6,   9,   9,   6,   3,  -6,   // 3
      -12,  -3,   0,   3,   3,   0,  -3, -12,   // 2
      -21, -15,  -9,  -6,  -6,  -9, -15, -21};  // 1
    int PST_Q_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
       -4,   0,   2,   2,   2,   2,   0,  -4,   // 8
       -4,  -2,   0,   0,   0,   0,  -2,  -4,   // 7
       -4,   0,   2,   2,   2,   2,   0,  -4,   // 6
       -4,   0,   2,   2,   2,   2,   0,  -4,   // 5
       -4,   2,   2,   2,   2,   2,   2,  -4,   // 4
       -4,   2,   3,   2,   2,   3,   2,  -4,   // 3
       -6,   0,   4,   4,   4,   2,   0,  -6,   // 2
      -10,  -8,  -2,   2,  -2,  -6,  -8, -10};  // 1
    int PST_Q_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -16,  -8,  -4,   0,   0,  -4,  -8, -16,   // 8
       -8,   0,   4,   8,   8,   4,   0,  -8,   // 7
       -4,   4,   8,  12,  12,   8,   4,  -4,   // 6
        0,   8,  12,  16,  16,  12,   8,   0,   // 5
        0,   8,  12,  16,  16,  12,   8,   0,   // 4
       -4,   4,   8,  12,  12,   8,   4,  -4,   // 3
      -10,  -4,   0,   4,   4,   0,  -4, -10,   // 2
      -20, -14, -10,  -6,  -6, -10, -14, -20};  // 1
    int PST_K_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
      -36, -40, -44, -48, -48, -44, -40, -36,   // 8
      -34, -38, -42, -46, -46, -42, -38, -34,   // 7
      -32, -36, -40, -44, -44, -40, -36, -32,   // 6
      -28, -32, -36, -40, -40, -36, -32, -28,   // 5
      -22, -26, -30, -36, -36, -30, -26, -22,   // 4
      -10, -14, -20, -28, -28, -20, -14, -10,   // 3
        6,   6,  -6, -14, -14,  -8,   6,   6,   // 2
       16,  20,   8,  -6,   0,  -4,  20,  16};  // 1
    int PST_K_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -42, -26, -14,  -8,  -8, -14, -26, -42,   // 8
      -22,  -4,   8,  14,  14,   8,  -4, -22,   // 7
      -10,   8,  20,  26,  26,  20,   8, -10,   // 6
       -8,  10,  24,  30,  30,  24,  10,  -8,   // 5
      -12,   6,  20,  26,  26,  20,   6, -12,   // 4
      -18,  -2,  10,  16,  16,  10,  -2, -18,   // 3
      -28, -12,  -2,   4,   4,  -2, -12, -28,   // 2
      -48, -32, -22, -18, -18, -22, -32, -48};  // 1

    // ---- Mobility, by the number of squares reached.
    Par BONUS_CABALLO_MOVILIDAD[CUENTAS_CABALLO] = {  // knight
        {-32, -24}, {-23, -17}, {-14, -10}, { -5,  -3}, {  0,   0}, {  5,   3}, { 10,   6},  // 0..6
        { 15,   9}, { 20,  12}};  // 7..8
    Par BONUS_ALFIL_MOVILIDAD[CUENTAS_ALFIL] = {  // bishop
        {-48, -36}, {-38, -28}, {-28, -20}, {-18, -12}, {-12,  -8}, { -6,  -4}, {  0,   0},  // 0..6
        {  6,   4}, { 12,   8}, { 18,  12}, { 24,  16}, { 30,  20}, { 36,  24}, { 42,  28}};  // 7..13
    Par BONUS_DAMA_MOVILIDAD[CUENTAS_DAMA] = {  // queen
        {-35, -61}, {-30, -54}, {-25, -47}, {-20, -40}, {-18, -36}, {-16, -32}, {-14, -28},  // 0..6
        {-12, -24}, {-10, -20}, { -8, -16}, { -6, -12}, { -4,  -8}, { -2,  -4}, {  0,   0},  // 7..13
        {  2,   4}, {  4,   8}, {  6,  12}, {  8,  16}, { 10,  20}, { 12,  24}, { 14,  28},  // 14..20
        { 16,  32}, { 18,  36}, { 20,  40}, { 22,  44}, { 24,  48}, { 26,  52}, { 28,  56}};  // 21..27

    // ---- Nearness to the enemy king, for each step less; on the scale of Tropismo_OP and Tropismo_EG.
    Par TROPISMO_CABALLO = {4, 4};
    Par TROPISMO_ALFIL   = {2, 1};
    Par TROPISMO_DAMA    = {3, 4};

    // ---- Outposts, by rank and by the distance of the file from the edge.
    int PUESTO_CABALLO_OP[FILAS_PUESTO][BORDES] = {  // knight
    //   a,h  b,g  c,f  d,e
        {  0,   0,   2,   4},   // 7
        {  0,   6,  12,  16},   // 6
        {  0,   7,  14,  18},   // 5
        {  0,   3,   8,  12}};  // 4
    int PUESTO_CABALLO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        {  0,   0,   1,   2},   // 7
        {  0,   3,   6,   8},   // 6
        {  0,   3,   7,   9},   // 5
        {  0,   1,   4,   6}};  // 4
    int PUESTO_CABALLO_SEGURO_OP[FILAS_PUESTO][BORDES] = {  // added when no enemy minor piece can ever take there
    //   a,h  b,g  c,f  d,e
        {  0,   0,   1,   2},   // 7
        {  0,   3,   6,   8},   // 6
        {  0,   3,   7,   9},   // 5
        {  0,   1,   4,   6}};  // 4
    int PUESTO_CABALLO_SEGURO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        {  0,   0,   0,   1},   // 7
        {  0,   1,   3,   4},   // 6
        {  0,   2,   3,   4},   // 5
        {  0,   1,   2,   3}};  // 4
    int PUESTO_ALFIL_OP[FILAS_PUESTO][BORDES] = {  // bishop
    //   a,h  b,g  c,f  d,e
        {  0,   0,   1,   2},   // 7
        {  0,   3,   6,   8},   // 6
        {  0,   3,   7,   9},   // 5
        {  0,   1,   4,   6}};  // 4
    int PUESTO_ALFIL_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        {  0,   0,   0,   1},   // 7
        {  0,   1,   3,   4},   // 6
        {  0,   1,   3,   4},   // 5
        {  0,   0,   2,   3}};  // 4
    int PUESTO_ALFIL_SEGURO_OP[FILAS_PUESTO][BORDES] = {  // added, as for the knight
    //   a,h  b,g  c,f  d,e
        {  0,   0,   0,   1},   // 7
        {  0,   1,   3,   4},   // 6
        {  0,   2,   3,   4},   // 5
        {  0,   1,   2,   3}};  // 4
    int PUESTO_ALFIL_SEGURO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        {  0,   0,   0,   0},   // 7
        {  0,   1,   1,   2},   // 6
        {  0,   1,   2,   2},   // 5
        {  0,   1,   1,   1}};  // 4

    // ---- Cages.
    Par PENALIZACION_CABALLO_RINCON = { 60,  60};
    Par PENALIZACION_CABALLO_BORDE  = { 35,  35};
    Par PENALIZACION_ALFIL_ATRAPADO = {110, 110};  // has taken the rook pawn, lost in most cases
    Par PENALIZACION_ALFIL_RINCON   = { 80,  80};  // shut in the corner, no attacker at hand
    Par PENALIZACION_ALFIL_DESVIADO = { 50,  50};  // one square too far, one retreat left

    // ---- Minor pieces and queens.
    Par PENALIZACION_ALFIL_MALO         = {1,  6};  // for each own pawn on a square of the bishop's colour
    Par PENALIZACION_ALFIL_MALO_BLOQUEO = {1,  1};  // ... once more for each stopped own pawn of the files c to f
    Par BONUS_MENOR_TRAS_PEON           = {5,  2};  // sheltered by an own pawn right in front of it
    Par BONUS_DAMA_SEPTIMA              = {6, 14};
    int PENALIZACION_DAMA_PRECOZ_OP     = 6;         // for each minor piece still at home

    // ---- Threats.
    Par PEON_A_MENOR   = {24, 22};
    Par PEON_A_TORRE   = {34, 28};
    Par PEON_A_DAMA    = {38, 34};
    Par MENOR_A_TORRE  = {26, 26};
    Par MENOR_A_DAMA   = {28, 28};
    Par TORRE_A_DAMA   = {14, 14};
    Par ASEDIO_A_PIEZA = {24, 24};  // more attackers than defenders
    Par AVANCE_A_PIEZA = { 7,  5};  // a pawn step that nothing punishes would attack the piece

    // ---- King shelter, opening. Ranks as the king's side counts them; the place of the eighth, where no pawn of a
    // real game stands, holds the value of "no pawn from the king's rank on".

    // The own pawn of the file that is nearest to home, by the distance of the file from the edge of the board.
    int ESCUDO_OP[BORDES][FILAS] = {
    //  rank 1    2    3    4    5    6    7  none
        {  0,  12,  10,   0,  -6,  -8,  -8, -14},    // files a and h
        {  0,  22,  12,  -6, -12, -14, -14, -26},    // files b and g
        {  0,  15,   5,  -2,  -6,  -8,  -8, -14},    // files c and f
        {  0,   8,   3,  -1,  -4,  -6,  -6, -10}};   // files d and e

    // The enemy pawn of the file that has come nearest, free to go on or stopped by an own pawn right in front of it.
    int TORMENTA_OP[FILAS]           = {0,  -3,  -9,  -6,  -2,   0,   0,   0};
    int TORMENTA_BLOQUEADA_OP[FILAS] = {0,   0,  -4,  -1,   0,   0,   0,   0};

    // A file beside the king for the enemy's rooks and queens, on top of the missing shield.
    int PENALIZACION_COLUMNA_ABIERTA_OP     = 14;  // no pawn on it
    int PENALIZACION_COLUMNA_SEMIABIERTA_OP = 6;   // no own pawn on it

    // By castling state (Enroque). A king that has walked to a wing on foot pays nothing.
    int BONUS_ENROQUE_OP[ESTADOS_ENROQUE] = {0, 0, 0, 4, 12, 16};
    int PENALIZACION_SIN_ENROQUE_OP       = 24;  // no right left, king on the files c to f

    // ---- Attack on the enemy king, in units of Ataque_Valor: the sum is the index of KING_ATTACK_MULTI, where a
    // hundred is worth about a pawn.

    // Each square of the king zone that the piece attacks; a rook's weight is of the same scale (see Torres).
    int PESO_ZONA_CABALLO  = 9;
    int PESO_ZONA_ALFIL    = 8;
    int PESO_ZONA_DAMA     = 13;
    int PESO_ZONA_EXTERIOR = 3;   // a square in front of the zone, by whatever piece
    int PESO_ZONA_DEBIL    = 5;   // an attacked square of the zone that only the king guards

    // A square from which the piece may check without being taken.
    int PESO_JAQUE_CABALLO = 12;
    int PESO_JAQUE_ALFIL   = 7;
    int PESO_JAQUE_TORRE   = 14;
    int PESO_JAQUE_DAMA    = 11;

    // ---- Endings recognised by their material: percentage of the normal score, stronger side first. Never 0, which
    // would make a dead draw of them.
    // A minor piece ahead without pawns, and equal pieces.
    int FACTOR_R_R   = 10;
    int FACTOR_Q_Q   = 10;
    int FACTOR_BN_B  = 10;
    int FACTOR_BB_B  = 10;
    int FACTOR_RN_R  = 10;
    int FACTOR_R_BB  = 10;
    int FACTOR_R_BN  = 10;
    int FACTOR_R_NN  = 10;
    int FACTOR_Q_RR  = 10;
    int FACTOR_R_B   = 20;
    int FACTOR_R_N   = 20;
    int FACTOR_BN_N  = 20;
    int FACTOR_Q_RB  = 20;
    int FACTOR_Q_RN  = 20;
    int FACTOR_Q_NN  = 20;
    int FACTOR_QB_Q  = 20;
    int FACTOR_QN_Q  = 20;
    int FACTOR_RB_R  = 25;
    // Won in theory, but slowly: fifty moves are often not enough.
    int FACTOR_BB_N  = 60;
    int FACTOR_Q_BB  = 60;
    int FACTOR_Q_BN  = 60;
    // The defender gives up its piece for the last pawn.
    int FACTOR_BP_B  = 45;
    int FACTOR_BP_N  = 55;
    int FACTOR_NP_B  = 55;
    int FACTOR_NP_N  = 55;
    int FACTOR_RP_R  = 70;
    int FACTOR_QP_Q  = 60;
    int FACTOR_RPP_R = 85;
    int FACTOR_QPP_Q = 85;
    // Only the pawns can win, or the piece has nothing to win with.
    int FACTOR_N_P   = 10;
    int FACTOR_B_P   = 10;
    int FACTOR_N_PP  = 25;
    int FACTOR_B_PP  = 25;
    int FACTOR_NN_P  = 40;  // mates while the pawn is blockaded far enough back (Troitsky)
    int FACTOR_Q_RP  = 75;
    // Any other: a minor piece ahead without a pawn to promote.
    int FACTOR_MENOR = 30;

    // ---- Endings judged by the places of the pieces, for the stronger side.
    int BASE_VENTAJA = 150;  // what a decisive advantage without pawns is worth beyond its material

    // Queen against pawn: won, drawn by stalemate, and each step of the king towards the pawn.
    int DAMA_PEON_GANADA   = 800;
    int DAMA_PEON_TABLAS   = 20;
    int DAMA_PEON_CERCANIA = 10;

    // Rook against pawn, by the tempi that the stronger king is ahead, from none to four or more.
    int TORRE_PEON_CARRERA[VENTAJAS] = {20, 100, 220, 340, 400};
    int TORRE_PEON_CERCANIA         = 5;

    // Rook and pawn against rook.
    int TORRE_PEON_TORRE_TABLAS = 10;
    int TORRE_PEON_TORRE_LUCENA = 400;

    int FORTALEZA = 25;  // drawn, but the side that may try keeps trying

    // Opposite-coloured bishops. A pawn counts for less than half of its worth while the other bishop and king can stop
    // it, and for more once there are two more of them than they can watch.
    int ALFILES_PEON          = 35;
    int ALFILES_PEON_DOS_MAS  = 65;
    int ALFILES_PASADO[FILAS] = {0, 80, 50, 30, 15, 8, 4, 0};  // by steps to promotion
    int ALFILES_CENTRO        = 3;   // for each step of a king from the centre

    // ==== last weight ====
};
// clang-format on

static_assert(sizeof(RegistroPesos) % sizeof(int) == 0 && alignof(RegistroPesos) == alignof(int));

// The tuner of the weights compiles the sources with TAMREK_AFINAR and may write them; the engine may not.
#ifdef TAMREK_AFINAR
inline RegistroPesos PESOS;
#else
inline constexpr RegistroPesos PESOS;
#endif
