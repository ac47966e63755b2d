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
    static constexpr int EXPOSICIONES    = 14;
    static constexpr int PEONES          = 17;  // of both sides, from none on
    static constexpr int VENTAJAS        = 5;

    // ==== first weight ====

    // ---- Placement, by square as White sees the board.
    int PST_N_OP[CASILLAS] = {  // opening
    //    a    b    c    d    e    f    g    h
        -58, -24, -24, -10,  -8, -18, -25, -56,   // 8
        -20, -13,  -7,  10,   1,   9,  -8, -14,   // 7
         14, -18,  -7,   2,   9,  21,  30,  10,   // 6
          7,   2,   8,  14,  18,   8,  13,  25,   // 5
         18,   4,   3,  17,   7,  18,   6,  20,   // 4
        -14, -16, -10,  10,   4,  -8, -18, -17,   // 3
        -16, -15, -20, -19, -18, -14, -24, -35,   // 2
        -24, -10, -20,  -6, -18, -46, -22, -35};  // 1
    int PST_N_EG[CASILLAS] = {  // endgame
    //    a    b    c    d    e    f    g    h
        -37, -30, -16,  -4,  -4, -23, -34, -51,   // 8
        -18,  -6,   9,   2,   1,   1, -20, -22,   // 7
         11,  -8,  -5,   2,   4, -10, -11, -12,   // 6
         -4,   0,   6,  10,   5,   8,   1, -20,   // 5
         -3,  -2,   2,  -2,  16, -12,   8,   0,   // 4
        -33,  -2, -14,  -6,  -6, -19,  -7, -20,   // 3
        -28, -18, -22, -11,  -8, -10, -16, -22,   // 2
        -40, -26, -12,  -8,  -3,  -8, -25, -55};  // 1
    int PST_B_OP[CASILLAS] = {  // opening
    //    a    b    c    d    e    f    g    h
        -21,  -6, -14, -11, -10, -10, -16, -32,   // 8
          2, -10,  12,   2,   2,   0, -24, -14,   // 7
          1,   4,   4,  20,  28,  12,   4,  31,   // 6
          1,   8,  18,  30,  29,  19,  16,   4,   // 5
          9,   8,  22,  34,  30,  28,   4,   6,   // 4
         20,  20,  12,  13,  30,  -8,   9,   7,   // 3
         12,  10,  19,   2,  -4,   2,   8,  10,   // 2
          4,  36,   6,  -4,  -2,  -8,  18, -14};  // 1
    int PST_B_EG[CASILLAS] = {  // endgame
    //    a    b    c    d    e    f    g    h
        -24,   2,  -1,   0,   3,  -6,  -9, -14,   // 8
         -7, -12,   1,   4,   2,  -3, -24, -22,   // 7
         -6,  -4,  -2,  10,  12,   2,   6,   6,   // 6
         -6, -16,  18,  13,  24,  12,  27, -10,   // 5
        -16,   2,  14,  18,  16,   6,   6,  -3,   // 4
        -22,  10,   6,  16,  12,  -8,   6,  -1,   // 3
          2, -22, -10,  10,  -8,  -2, -34, -16,   // 2
        -23, -17, -15, -11, -18,  -3, -22, -34};  // 1
    int PST_Q_OP[CASILLAS] = {  // opening
    //    a    b    c    d    e    f    g    h
        -52,  -6,   2,  14,  14,   6,   4, -36,   // 8
         -6, -12,  -2,  -8,  -7,   4,   1,  -9,   // 7
        -10,  -4,  -2,   2,   2,  -2,  -2,  16,   // 6
         -3, -10,  -2, -20, -12,   0,   6,  13,   // 5
         17,   0,   9,  -7,  -8,  -4,  13,  18,   // 4
          6,  26,  15,  10,   0,  12,  12,  11,   // 3
         10,  18,  17,  10,  16,  22,   1,  18,   // 2
         23,  11,   2,   6,  -7,  -2, -12,  -6};  // 1
    int PST_Q_EG[CASILLAS] = {  // endgame
    //    a    b    c    d    e    f    g    h
         -8,  -4,   3,   4,   6,  -4,  -8, -14,   // 8
          4,   0,  -2,   3,   2,  -2,   6,   5,   // 7
         12,  18,  14,  26,  12,   6,  18,  10,   // 6
          2,  20,  14,  28,  24,  16,  10, -15,   // 5
          6,  18,  28,  32,  33,  16,   0,  -8,   // 4
          4,  -2,  12,  20,  18,   6, -12,  -5,   // 3
        -26,  -6, -14,   2, -16, -32, -20, -18,   // 2
        -26, -25, -24, -34, -27, -38, -29, -32};  // 1
    int PST_K_OP[CASILLAS] = {  // opening
    //    a    b    c    d    e    f    g    h
        -34, -38, -36, -44, -44, -39, -38, -37,   // 8
        -30, -36, -37, -42, -44, -37, -36, -34,   // 7
        -28, -33, -34, -38, -40, -36, -36, -34,   // 6
        -32, -30, -34, -36, -42, -38, -38, -40,   // 5
        -22, -28, -30, -44, -42, -40, -36, -48,   // 4
         -4, -22, -22, -30, -17, -39, -30, -44,   // 3
          5,  25,  -3,   8,   4, -15,   4,  10,   // 2
         14,  34,  34, -12, -12, -12,  14,  19};  // 1
    int PST_K_EG[CASILLAS] = {  // endgame
    //    a    b    c    d    e    f    g    h
        -34, -18,   6,   8,   6,   8, -21, -52,   // 8
         -6,   6,  19,  27,  22,  29,   7, -24,   // 7
         13,  25,  30,  38,  36,  32,  29,  -5,   // 6
         -4,  14,  30,  32,  20,  13,  13, -17,   // 5
        -10,   4,   7,   8,  21,   5,   0, -17,   // 4
        -32,  -8,   0,   4,   6,   3, -10, -20,   // 3
        -38, -26, -18,  -6,  -3, -10, -22, -40,   // 2
        -53, -56, -28,  -8, -18, -14, -40, -76};  // 1

    // ---- Mobility, by the number of squares reached.
    Par BONUS_CABALLO_MOVILIDAD[CUENTAS_CABALLO] = {  // knight
        {-66, -84}, {-36, -40}, {-24,  -4}, {-18,   2}, { -5,   6}, {  1,  18}, {  6,  20},  // 0..6
        { 14,  12}, { 25,   2}};                                                             // 7..8
    Par BONUS_ALFIL_MOVILIDAD[CUENTAS_ALFIL] = {  // bishop
        { -6, -74}, {  6, -33}, { 16, -28}, { 20, -10}, { 30,   4}, { 32,  10}, { 38,   8},   // 0..6
        { 33,  10}, { 36,  10}, { 36,   7}, { 32,   8}, { 44,  -4}, { 50,  18}, { 52,  -2}};  // 7..13
    Par BONUS_DAMA_MOVILIDAD[CUENTAS_DAMA] = {  // queen
        {-28, -69}, {-20, -67}, { -8, -69}, {-12, -76}, { -7, -68}, { -4, -70}, { -4, -65},   // 0..6
        { -2, -50}, { -2, -26}, {  2, -23}, {  0,   1}, {  2,  17}, {  8,  18}, {  7,  26},   // 7..13
        { 11,  24}, {  8,  36}, {  5,  39}, { 10,  36}, { 18,  36}, { 13,  40}, { 24,  26},   // 14..20
        { 29,  26}, { 26,  36}, { 20,  36}, { 22,  40}, { 22,  44}, { 24,  46}, { 26,  53}};  // 21..27

    // ---- Nearness to the enemy king, for each step less; on the scale of Tropismo_OP and Tropismo_EG.
    Par TROPISMO_CABALLO = { 12,  -6};
    Par TROPISMO_ALFIL   = { -5,  -9};
    Par TROPISMO_DAMA    = { 10,   6};

    // ---- Outposts, by rank and by the distance of the file from the edge.
    int PUESTO_CABALLO_OP[FILAS_PUESTO][BORDES] = {  // knight
    //   a,h  b,g  c,f  d,e
        {  6,  34,  16,  15},   // 7
        { 28,   2,  15,  15},   // 6
        { 32,  24,  18,  44},   // 5
        {  4, -12,  10,   0}};  // 4
    int PUESTO_CABALLO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        { 10,  26,   7,  23},   // 7
        { 12,  -7,  16,   2},   // 6
        { -2,  -4,  15,  -8},   // 5
        {-24,  -8,   8,  11}};  // 4
    int PUESTO_CABALLO_SEGURO_OP[FILAS_PUESTO][BORDES] = {  // added when no enemy minor piece can ever take there
    //   a,h  b,g  c,f  d,e
        {  3,   2,   1, -11},   // 7
        {  2,   8,  25,   3},   // 6
        {  6,  16,  -5,  16},   // 5
        {  6,   6,  12,  41}};  // 4
    int PUESTO_CABALLO_SEGURO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        {  6,   5,  -8,   6},   // 7
        {  2,  20,  -6,  18},   // 6
        { 13,  12,   6,  12},   // 5
        {-17,  -2,  -2,  10}};  // 4
    int PUESTO_ALFIL_OP[FILAS_PUESTO][BORDES] = {  // bishop
    //   a,h  b,g  c,f  d,e
        { -4,  26,  66,  14},   // 7
        {-16,  30,  51,  42},   // 6
        {  9,  30,   6,   8},   // 5
        {  6,   6,  20,  29}};  // 4
    int PUESTO_ALFIL_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        { -6,  27,  17,   4},   // 7
        {-17,  -8,  17,  22},   // 6
        { -2,  26,   5,   3},   // 5
        { 22,   6,  -2,  10}};  // 4
    int PUESTO_ALFIL_SEGURO_OP[FILAS_PUESTO][BORDES] = {  // added, as for the knight
    //   a,h  b,g  c,f  d,e
        {  0, -15,  20,  18},   // 7
        {  6,  12,   6,   9},   // 6
        {  6,  22, -12,  29},   // 5
        { -6,   4,  14,  29}};  // 4
    int PUESTO_ALFIL_SEGURO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        {  0, -24,  12,   4},   // 7
        {  6,  12,  20, -24},   // 6
        { 14,  24, -26,   0},   // 5
        { 12,   8,  30,   3}};  // 4

    // ---- Cages.
    Par PENALIZACION_CABALLO_RINCON = { 59,  52};
    Par PENALIZACION_CABALLO_BORDE  = { 23,  15};
    Par PENALIZACION_ALFIL_ATRAPADO = {102,  94};  // has taken the rook pawn, lost in most cases
    Par PENALIZACION_ALFIL_RINCON   = { 80,  80};  // shut in the corner, no attacker at hand
    Par PENALIZACION_ALFIL_DESVIADO = { 62,  43};  // one square too far, one retreat left

    // ---- Minor pieces and queens.
    Par PENALIZACION_ALFIL_MALO         = {  6,   1};  // for each own pawn on a square of the bishop's colour
    Par PENALIZACION_ALFIL_MALO_BLOQUEO = {  1,   2};  // ... once more for each stopped own pawn of the files c to f
    Par BONUS_MENOR_TRAS_PEON           = { 12,  -2};  // sheltered by an own pawn right in front of it
    Par BONUS_DAMA_SEPTIMA              = {-16,  40};
    int PENALIZACION_DAMA_PRECOZ_OP     = 12;        // for each minor piece still at home

    Par BONUS_CABALLO_HACIA_PUESTO      = { 23,   5};  // an outpost within one jump
    Par BONUS_ALFIL_DIAGONAL_LARGA      = { 17,  20};  // no pawn keeps it from seeing two squares of the centre
    Par PENALIZACION_ALFIL_RAYOS_X      = {  6,   9};  // for each enemy pawn on its diagonals
    Par BONUS_PAREJA_ABIERTA            = { -5, -46};  // two bishops, beyond what the material counts
    Par BONUS_PAREJA_PEON               = {  0,   6};  // ... for each pawn on the board
    Par PENALIZACION_CABALLO_LEJOS      = {  4,   5};  // for each king move between the knight and its king
    Par PENALIZACION_ALFIL_LEJOS        = {  4,   0};  // ... the bishop
    Par BONUS_TORRE_CASILLA_SEGURA      = {  4,   2};  // each attacked square that no lesser enemy piece attacks
    Par BONUS_DAMA_CASILLA_SEGURA       = {  4,  -6};
    Par PENALIZACION_TORRE_ENCERRADA    = { 16,  23};  // shut in by its king: for each square short of four

    // ---- Threats.
    Par PEON_A_MENOR   = { 51,  25};
    Par PEON_A_TORRE   = { 26,   1};
    Par PEON_A_DAMA    = { 12,  17};
    Par MENOR_A_TORRE  = { 31, -20};
    Par MENOR_A_DAMA   = { 15,  33};
    Par TORRE_A_DAMA   = { 49,  20};
    Par ASEDIO_A_PIEZA = { 25,  59};  // more attackers than defenders
    Par AVANCE_A_PIEZA = { 17,  16};  // a pawn step that nothing punishes would attack the piece

    Par TORRE_A_MENOR             = { 29,  25};  // that no pawn guards, as in the next two
    Par MENOR_A_MENOR             = { 16,  24};
    Par PIEZA_A_PEON              = {  4,  17};  // attacked by a knight, bishop or rook
    Par REY_A_PEON                = { 79,  -7};  // that nothing guards
    Par REY_A_PIEZA               = { 51,  -1};
    Par PENALIZACION_PIEZA_SUELTA = {  5,   1};  // an own piece that nothing guards, attacked or not
    Par CLAVADA                   = {  1,  42};  // an enemy piece between its king and a line piece
    Par DESCUBIERTA               = {110,  41};  // an own piece there: its move gives check
    Par DAMA_TRAS_PIEZA           = { 39,  12};  // the enemy queen behind another piece on the line of a rook or bishop

    // ... and what is added to them for the side to move.
    Par PENALIZACION_OTRA_AMENAZA = { 61,  55};  // each own piece but one that the enemy would win something by taking
    Par AVANCE_CON_TURNO          = {  4,   7};
    Par ASEDIO_CON_TURNO          = { 15,  36};
    Par SUELTA_CON_TURNO          = { 10,   7};  // each enemy knight, bishop or queen that nothing guards
    Par DESCUBIERTA_CON_TURNO     = { 98,  33};

    // ---- Support of passed pawns, by rank as their side counts it, from its back rank on.
    Par PASADO_BASE[FILAS]         = {{  0,   0}, {-15,  30}, {-25,   3}, {-91,  20}, {-90,  -7}, { 10, -22}, { 14,  22}, {  0,   0}};
    Par PASADO_REY_PROPIO[FILAS]   = {{  0,   0}, {  7,  -2}, { 10, -11}, { 11, -13}, {  8, -15}, {-16, -14}, { -9, -16}, {  0,   0}};  // a king move to the square before it
    Par PASADO_REY_RIVAL[FILAS]    = {{  0,   0}, { -5,  -6}, {-12,   7}, {  8,   4}, {  3,  15}, { 10,  19}, { 18,  17}, {  0,   0}};
    Par PASADO_LIBRE[FILAS]        = {{  0,   0}, {-15,   5}, { 12,  -4}, {-16,   6}, { -7,  16}, {  0,  24}, {  5,  49}, {  0,   0}};  // nothing stands before it
    Par PASADO_SEGURO[FILAS]       = {{  0,   0}, { -2,  13}, { -9,  12}, {-24,  13}, {  5,  19}, { 30,  27}, { -9,  30}, {  0,   0}};  // no enemy attacks the square before it
    Par PASADO_CAMINO[FILAS]       = {{  0,   0}, {-20,  17}, {-20,  18}, {-98,  41}, {-35,  43}, {-17,  53}, { 44,  68}, {  0,   0}};  // ... nor stands on or attacks its whole way
    Par PASADO_APOYADO[FILAS]      = {{ 0,  0}, { 6, -2}, {10, 13}, {-4, 19}, {16, 14}, {37, 15}, {84, 99}, { 0,  0}};  // the square before it is guarded
    Par PASADO_UNIDO[FILAS]        = {{  0,   0}, {-21,  -4}, {-18,  11}, {  4,   6}, {-14,  34}, { 35,  40}, {  3,  27}, {  0,   0}};  // another one beside it or a rank apart
    Par PASADO_TURNO[FILAS]        = {{  0,   0}, {  9,  -3}, {  8,   4}, {  9,   7}, { 11,   9}, { 14,  30}, {  3,   4}, {  0,   0}};  // nothing stands before it, its side is to move
    Par PASADO_TURNO_CAMINO[FILAS] = {{  0,   0}, {  1,  -1}, {-19,  -3}, {-17,   4}, { -9,  15}, {  5,  26}, {  5,  -8}, {  0,   0}};  // ... and its whole way is safe
    Par PASADO_TORRE_PROPIA        = {  0,  37};  // behind it
    Par PASADO_TORRE_RIVAL         = {  3, -78};

    // ---- King shelter, opening. Ranks as the king's side counts them; the place of the eighth, where no pawn of a
    // real game stands, holds the value of "no pawn from the king's rank on".

    // The own pawn of the file that is nearest to home, by the distance of the file from the edge of the board.
    int ESCUDO_OP[BORDES][FILAS] = {
    // rank 1   2    3    4    5    6    7 none
        {  0,  16,  36,  14,   2,   6, -26,  28},   // files a and h
        {  0,  35,  16, -28, -24,   2, -26,  16},   // files b and g
        {  0,  13, -14, -20, -10,   6,  -1,   8},   // files c and f
        {  0, -23, -22, -28, -20, -52,  10,  -1}};  // files d and e

    // The enemy pawn of the file that has come nearest, free to go on or stopped by an own pawn right in front of it.
    int TORMENTA_OP[FILAS]           = {  0,  54, -22, -16,  -1,   0,   2,  -2};
    int TORMENTA_BLOQUEADA_OP[FILAS] = {  0,   0, -26, -10,   2, -10,  10,  -8};

    // A file beside the king for the enemy's rooks and queens, on top of the missing shield.
    int PENALIZACION_COLUMNA_ABIERTA_OP     = 48;  // no pawn on it
    int PENALIZACION_COLUMNA_SEMIABIERTA_OP = 44;  // no own pawn on it

    // By castling state (Enroque). A king that has walked to a wing on foot pays nothing.
    int BONUS_ENROQUE_OP[ESTADOS_ENROQUE] = {-16,   7, -16,   4,  12,  16};
    int PENALIZACION_SIN_ENROQUE_OP       = -1;  // no right left, king on the files c to f

    // ---- Attack on the enemy king, in units of Ataque_Valor: the sum is the index of KING_ATTACK_MULTI, where a
    // hundred is worth about a pawn.

    // Each square of the king zone that the piece attacks; a rook's weight is of the same scale (see Torres).
    int PESO_ZONA_CABALLO  = 15;
    int PESO_ZONA_ALFIL    = 3;
    int PESO_ZONA_DAMA     = 0;
    int PESO_ZONA_EXTERIOR = 16;  // a square in front of the zone, by whatever piece
    int PESO_ZONA_DEBIL    = 1;   // an attacked square of the zone that only the king guards

    // A square from which the piece may check without being taken.
    int PESO_JAQUE_CABALLO = 10;
    int PESO_JAQUE_ALFIL   = 11;
    int PESO_JAQUE_TORRE   = 18;
    int PESO_JAQUE_DAMA    = 7;

    // ---- Pressure on the enemy king that counts by itself, with or without an attack as above.
    Par JAQUE_SEGURO_CABALLO = { 59,  -6};  // the piece may check without being taken
    Par JAQUE_SEGURO_ALFIL   = {  6,  28};
    Par JAQUE_SEGURO_TORRE   = { 39,   3};
    Par JAQUE_SEGURO_DAMA    = {-12,  28};
    Par JAQUE_CON_RIESGO     = { -6,   0};  // each square of another check by a knight, bishop or rook
    Par ZONA_ATACADA         = {-15,  -6};  // each attacked square of the king zone
    Par ZONA_SIN_DEFENSA     = { 12,  -2};  // ... that only the king guards
    Par FLANCO_ATACADO       = { -3,  -1};  // each attacked square of the king's flank, on his half of the board
    Par FLANCO_DOS_VECES     = {  0,   2};  // ... attacked twice
    Par FLANCO_SIN_PEONES    = {-35,  72};  // no pawn of either side on it

    // With an enemy queen on the board: half of the squares from which she would see the king, more counting as the last.
    Par REY_EXPUESTO[EXPOSICIONES] = {
        { 12, -35}, {  8, -28}, {  5, -14}, {  2,   5}, { -2,  14}, {  5,  17}, { 19,   4},   // 0..6
        { 35, -36}, { 61, -22}, { 67, -31}, { 65, -30}, { 17, -20}, { -7,   7}, {  1,  14}};  // 7..13

    // ---- Danger of the enemy king, in units of Peligro, whose square counts (see PuntosPeligro).
    int PELIGRO_JAQUE_CABALLO    = 14;   // the piece may check without being taken
    int PELIGRO_JAQUE_ALFIL      = 15;
    int PELIGRO_JAQUE_TORRE      = 55;
    int PELIGRO_JAQUE_DAMA       = 63;
    int PELIGRO_JAQUE_RIESGO     = 38;   // each square of another check by a knight, bishop or rook
    int PELIGRO_ZONA_PEON        = 43;   // each square of the king zone that a pawn attacks
    int PELIGRO_ZONA_CABALLO     = 30;   // ... knights, and so on
    int PELIGRO_ZONA_ALFIL       = 36;
    int PELIGRO_ZONA_TORRE       = 11;
    int PELIGRO_ZONA_DAMA        = 20;
    int PELIGRO_ZONA_DEBIL       = 4;    // each attacked square of it that only the king guards
    int PELIGRO_ATACANTE         = -2;   // each piece that attacks the zone
    int PELIGRO_CLAVADA          = 76;
    int PELIGRO_FLANCO_ATACADO   = 12;   // each attacked square of the king's flank, on his half of the board
    int PELIGRO_FLANCO_DOS_VECES = 12;   // ... attacked twice
    int PELIGRO_FLANCO_SUYO      = -5;   // ... that his own side attacks
    int PELIGRO_EXPUESTO         = 0;    // each square from which a queen would see him
    int PELIGRO_PEON_SUYO        = -6;   // each own pawn beside or in front of him
    int PELIGRO_CABALLO_SUYO     = -27;  // an own knight guards his zone
    int PELIGRO_ALFIL_SUYO       = -23;
    int PELIGRO_TURNO            = 67;   // the attacker is to move
    int PELIGRO_TURNO_JAQUE      = 36;   // ... for each kind of piece with a safe check
    int PELIGRO_TURNO_ATACANTE   = -12;  // ... for each piece that attacks the zone
    int PELIGRO_CON_DAMA         = 45;   // to begin with, by whether the attacker has a queen
    int PELIGRO_SIN_DAMA         = -47;

    // ---- Endings recognised by their material: percentage of the normal score. Never 0, which would make a dead draw
    // of them.
    int FACTOR_MENOR       = 10;  // no pawn to promote, and a minor piece ahead at most
    int FACTOR_ULTIMO_PEON = 50;  // one pawn on the board: the defender gives up a piece for it
    int FACTOR_UNO_A_UNO   = 20;  // a pawn each, level pieces without queens
    int FACTOR_DOS_A_UNO   = 70;  // two pawns against one, level pieces
    // Those that are better or worse than their kind, stronger side first.
    int FACTOR_BB_N  = 30;  // won in theory, but slowly: fifty moves are often not enough
    int FACTOR_Q_BB  = 60;
    int FACTOR_Q_BN  = 60;
    int FACTOR_BP_B  = 25;
    int FACTOR_NP_B  = 15;
    int FACTOR_BP_P  = 55;  // the wrong bishop, or the piece goes for the pawn
    int FACTOR_BN_P  = 55;
    int FACTOR_R_PP  = 50;
    int FACTOR_Q_RP  = 55;
    int FACTOR_N_PP  = 50;  // only the pawns can win
    int FACTOR_B_PP  = 25;
    int FACTOR_NN_P  = 25;  // mates while the pawn is blockaded far enough back (Troitsky)

    // Any other ending, by the number of pawns of both sides.
    int FACTOR_PEONES[PEONES] = {100,  89,  95,  97, 103, 103, 107, 109, 110, 112, 115, 116, 116, 116, 116, 116, 116};

    // ---- Endings judged by the places of the pieces, for the stronger side.
    int BASE_VENTAJA = 150;  // what a decisive advantage without pawns is worth beyond its material

    // Queen against pawn: won, drawn by stalemate, and each step of the king towards the pawn.
    int DAMA_PEON_GANADA   = 800;
    int DAMA_PEON_TABLAS   = 20;
    int DAMA_PEON_CERCANIA = 10;

    // Rook against pawn, by the tempi that the stronger king is ahead, from none to four or more.
    int TORRE_PEON_CARRERA[VENTAJAS] = { 20, 100, 220, 340, 400};
    int TORRE_PEON_CERCANIA         = 5;

    // Rook and pawn against rook.
    int TORRE_PEON_TORRE_TABLAS = 10;
    int TORRE_PEON_TORRE_LUCENA = 400;

    int FORTALEZA = 25;  // drawn, but the side that may try keeps trying

    // Opposite-coloured bishops: what pawns are worth, by steps to promotion where it says so; of two pawns the one that
    // has more of them decides.
    int ALFILES_PEON             = 20;
    int ALFILES_PASADO[FILAS]    = { 0, 70, 35, 25,  5,  0,  0,  0};  // passed, on top; it needs no more than a blockade
    int ALFILES_CERCANIA         = 11;                                 // for each step that its own king is nearer to it
    int ALFILES_UNIDOS[FILAS]    = {  0, 170, 170, 110,  40,   0,   0,   0};  // two passed pawns side by side
    int ALFILES_SEPARADOS[FILAS] = {  0, 180, 180, 180,  65,  20,   0,   0};  // ... far apart
    int ALFILES_FRENTES          = 175;                                // three passed pawns
    int ALFILES_DOS_MAS          = 55;                                 // two pawns more than the other side
    int ALFILES_ULTIMO_PEON      = 10;                                 // instead of all that, when there is no other
    int ALFILES_CENTRO           = 3;                                  // for each step of a king from the centre

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
