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
    static constexpr int EXPOSICIONES      = 14;
    static constexpr int VENTAJAS        = 5;

    // ==== first weight ====

    // ---- Placement, by square as White sees the board.
    int PST_N_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
      -57, -25, -20,  -12,  -10, -19, -28, -58,   // 8
      -23, -14,  0, 11,   6, 11,   -9,  -17,   // 7
          6, -13,   -1,    10,     13,    20,   26,     5,   // 6
        5,   4,   11,  15,  18,    8, 14,  21,   // 5
       14,   4,    3,  18,    9,  17,   6,  17,   // 4
        -17,  -15, -10,   11,     5,  -8,  -17,   -20,   // 3
       -20,  -16, -21, -18, -16, -11,  -23,  -32,   // 2
      -34, -13, -20,   -7, -16, -39, -23, -38};  // 1
    int PST_N_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -50, -34,  -19,   -10,    -7, -23, -37, -55,   // 8
       -25,  -10,   6,  5,   7,    5, -17, -27,   // 7
          0, -6,    3,    9,    12,   2, -4,  -14,   // 6
        -8,  3,   14,   15,  10,   13,  3, -18,   // 5
         -6,  2,   9,  4,  21, -3,   9,    -6,   // 4
        -30,    -2,  -7,    3,    1, -10,   -4,   -18,   // 3
       -33,  -20, -17, -7, -3,  -6,  -17,  -28,   // 2
      -50, -30,  -18,  -11,    -9,   -15, -28, -57};  // 1
    int PST_B_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
       -15,   -4, -10, -10,  -9,  -9,  -9,  -19,   // 8
          -3,   -4,    9,    1,     4,   -1, -13,  -14,   // 7
        -4,   3,   5,  16,  21, 10,  4,  20,   // 6
        -1,   7,   19,   24,   22,   17,  12,   2,   // 5
       6,  8,  20,  28,  24,  25,  7,  4,   // 4
       14,   19,   11,   12,   29,  -9,     7,    7,   // 3
       9,   8,  16,   2, -3,   1,    8,  9,   // 2
        4,  22,    3,  -4,  -5,  -7,   9,  -9};  // 1
    int PST_B_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -23,   -5,   -6,   -5,   -2,  -9, -14, -18,   // 8
       -11,  -7,    3,    2,    3,  -2, -16,  -18,   // 7
       -8, -2,  3, 13,  14,  4,   3,    5,   // 6
        -6, -13,   16,     12,    22,   12,   23,   -9,   // 5
      -11,    4,   15,   17,   17,    6,    6,    1,   // 4
      -18,    7,   12,   17,   13,   1,    4,     1,   // 3
          -1, -12, -6,   10, -7,   -3, -27,  -12,   // 2
       -20,  -14, -11, -10, -15,   -3,  -18,  -28};  // 1
    int PST_Q_OP[CASILLAS] = {  // opening
    //    a     b     c     d     e     f     g     h
       -28,    0,     4,    8,   10,    7,     4,  -18,   // 8
       -7,  -5,    2,  -3,  -1,    3,     3,  -8,   // 7
       -9,   3,   2,    4,   6,    0,   0,    7,   // 6
         -3,   -4,   -2, -12,  -6,     2,    1,     9,   // 5
        11,    4,    4,  -6,  -3,  -5,   8,   10,   // 4
         3,  19,  10,   6,  -3,   8,   7,    5,   // 3
         2,  10,   9,   3,  10,  13,   -4,    9,   // 2
        11,    0,    -6,    -2,  -14,  -11, -16,  -10};  // 1
    int PST_Q_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
        -16,  -8,    1,   2,  6,   -1,  -9,  -16,   // 8
        0, -3,  3,   7,   6,   2,   1,   -4,   // 7
        3, 12, 10,  19,  11,   5, 10,   3,   // 6
        -1,  13,    9,   19,   17,   14,   9, -8,   // 5
         5,  12,   20,   24,   25,   12,    3, -3,   // 4
          3,  2,   10,   17,   16,    8, -3,    0,   // 3
       -16,  -2,  -5,   7, -6, -16, -10,  -10,   // 2
       -18,  -17,  -17, -24, -18,  -25,  -22,  -25};  // 1
    int PST_K_OP[CASILLAS] = {  // opening
    //   a    b    c    d    e    f    g    h
      -35, -40, -41, -47, -47, -42, -40, -37,   // 8
      -33, -38, -40, -45, -46, -40, -38, -34,   // 7
      -29, -34, -37, -41, -42, -38, -35, -32,   // 6
      -30, -30, -36, -38, -42, -37, -33, -32,   // 5
      -20, -25, -31, -41, -39, -38, -29, -34,   // 4
         -5, -17, -21, -29, -22, -31, -23, -29,   // 3
         4,  20,    -4,     4,      1, -17,    5,   8,   // 2
        16,   34,   26, -12, -16, -13,   16,   17};  // 1
    int PST_K_EG[CASILLAS] = {  // endgame
    //   a    b    c    d    e    f    g    h
      -38, -24,   -7,  -3,  -3,   -5, -26, -48,   // 8
       -17,   -2, 12,  20,  16, 18,   -1, -24,   // 7
        4, 18,  26,  34,  29,  26, 19,   -6,   // 6
        -7,   12,   27,   32,   20,    14,   14, -12,   // 5
      -11,   7,   10,   13,  24,    7,   4, -15,   // 4
      -26, -6,  3,    9,   12,   6,  -6, -21,   // 3
       -31,  -17, -12, -1,   3,  -5,  -15,  -34,   // 2
      -46, -44, -19,   -5, -10, -10, -33, -62};  // 1

    // ---- Mobility, by the number of squares reached.
    Par BONUS_CABALLO_MOVILIDAD[CUENTAS_CABALLO] = {  // knight
        { -65, -44}, { -36,  -26}, { -25,    2}, { -20,    7}, {   -7,   8}, {    0,  14}, {   5,  16},  // 0..6
        { 14,   5}, {  22,    -5}};  // 7..8
    Par BONUS_ALFIL_MOVILIDAD[CUENTAS_ALFIL] = {  // bishop
        {  -12, -54}, {  0, -27}, {10, -23}, {15, -7}, { 25,   8}, { 27,  14}, { 34,  10},  // 0..6
        { 27,  12}, { 31,  12}, { 33,   9}, { 28,   11}, { 37, -2}, { 47,   17}, { 48,  2}};  // 7..13
    Par BONUS_DAMA_MOVILIDAD[CUENTAS_DAMA] = {  // queen
        {-26, -66}, {-19, -61}, {   -8, -56}, { -16, -54}, {  -9, -47}, {   -7, -49}, {  -6, -47},  // 0..6
        {  -4, -36}, {  -4, -22}, {   0, -20}, {  -2,   -1}, {  -1,  13}, {  6, 13}, {  5, 19},  // 7..13
        {10,  16}, { 1,  30}, { 0,  29}, { 9,  24}, {15,  23}, { 9,  27}, { 12,  22},  // 14..20
        { 18,  25}, { 17,  31}, { 14,  33}, { 19,  38}, { 22,  45}, { 24,  49}, { 26,  54}};  // 21..27

    // ---- Nearness to the enemy king, for each step less; on the scale of Tropismo_OP and Tropismo_EG.
    Par TROPISMO_CABALLO = {12, -6};
    Par TROPISMO_ALFIL   = {-3, -9};
    Par TROPISMO_DAMA    = {7, 16};

    // ---- Outposts, by rank and by the distance of the file from the edge.
    int PUESTO_CABALLO_OP[FILAS_PUESTO][BORDES] = {  // knight
    //   a,h  b,g  c,f  d,e
        { 3, 13,  6, 12},   // 7
        { 15, -1,    7,  5},   // 6
        { 22,  20,  15,  36},   // 5
        {    9, -2,    9,  -2}};  // 4
    int PUESTO_CABALLO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        { 6, 15,  2,  16},   // 7
        {  9, -3,   13,    5},   // 6
        { 1, -3,  12, -1},   // 5
        {-21, -4,   6, 11}};  // 4
    int PUESTO_CABALLO_SEGURO_OP[FILAS_PUESTO][BORDES] = {  // added when no enemy minor piece can ever take there
    //   a,h  b,g  c,f  d,e
        {  2,   2,  0, -4},   // 7
        {  2,  8,  16,   8},   // 6
        { 5,  9,   5,  12},   // 5
        { 3,  5, 13,  27}};  // 4
    int PUESTO_CABALLO_SEGURO_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        { 4,  4, -6,   2},   // 7
        {  3, 12,  2,  18},   // 6
        { 8,  9,  8, 13},   // 5
        {-12,   1,    5,   15}};  // 4
    int PUESTO_ALFIL_OP[FILAS_PUESTO][BORDES] = {  // bishop
    //   a,h  b,g  c,f  d,e
        { -2, 10,  34, 11},   // 7
        {-10,   18,   41,   32},   // 6
        {  1,  24, -2,    8},   // 5
        {11,   6,  16,  26}};  // 4
    int PUESTO_ALFIL_EG[FILAS_PUESTO][BORDES] = {
    //   a,h  b,g  c,f  d,e
        { -2,  18,  12,   3},   // 7
        { -8, -2,   24,   21},   // 6
        { -1,  28,  3,   4},   // 5
        { 19,  9,  3,   13}};  // 4
    int PUESTO_ALFIL_SEGURO_OP[FILAS_PUESTO][BORDES] = {  // added, as for the knight
    //   a,h  b,g  c,f  d,e
        {  0, -8,  9,  8},   // 7
        {  2,  7,   8,  7},   // 6
        {  2,  16, -5,  18},   // 5
        { -2,  5, 10,  20}};  // 4
    int PUESTO_ALFIL_SEGURO_EG[FILAS_PUESTO][BORDES] = {
    //    a,h   b,g   c,f   d,e
        {   0, -12,   6,    1},   // 7
        {  1,  8,  17, -8},   // 6
        { 7,  23, -20,  5},   // 5
        { 7,  6,  22,   8}};  // 4

    // ---- Cages.
    Par PENALIZACION_CABALLO_RINCON = { 58,  60};
    Par PENALIZACION_CABALLO_BORDE  = { 27,  26};
    Par PENALIZACION_ALFIL_ATRAPADO = {108,  102};  // has taken the rook pawn, lost in most cases
    Par PENALIZACION_ALFIL_RINCON   = { 80,  80};  // shut in the corner, no attacker at hand
    Par PENALIZACION_ALFIL_DESVIADO = { 58,  48};  // one square too far, one retreat left

    // ---- Minor pieces and queens.
    Par PENALIZACION_ALFIL_MALO         = {  5,    1};  // for each own pawn on a square of the bishop's colour
    Par PENALIZACION_ALFIL_MALO_BLOQUEO = {  1,    2};  // ... once more for each stopped own pawn of the files c to f
    Par BONUS_MENOR_TRAS_PEON           = { 13,   -2};  // sheltered by an own pawn right in front of it
    Par BONUS_DAMA_SEPTIMA              = {-10,   31};
    int PENALIZACION_DAMA_PRECOZ_OP     = 11;        // for each minor piece still at home

    Par BONUS_CABALLO_HACIA_PUESTO      = { 23,   4};  // an outpost within one jump
    Par BONUS_ALFIL_DIAGONAL_LARGA      = { 17,  14};  // no pawn keeps it from seeing two squares of the centre
    Par PENALIZACION_ALFIL_RAYOS_X      = {  6,   9};  // for each enemy pawn on its diagonals
    Par BONUS_PAREJA_ABIERTA            = {  1, -48};  // two bishops, beyond what the material counts
    Par BONUS_PAREJA_PEON               = { -1,   6};  // ... for each pawn on the board
    Par PENALIZACION_CABALLO_LEJOS      = {  3,   5};  // for each king move between the knight and its king
    Par PENALIZACION_ALFIL_LEJOS        = {  2,   0};  // ... the bishop
    Par BONUS_TORRE_CASILLA_SEGURA      = {  4,   3};  // each attacked square that no lesser enemy piece attacks
    Par BONUS_DAMA_CASILLA_SEGURA       = {  4,  -5};
    Par PENALIZACION_TORRE_ENCERRADA    = { 18,  17};  // shut in by its king: for each square short of four

    // ---- Threats.
    Par PEON_A_MENOR   = { 56,  42};
    Par PEON_A_TORRE   = { 45,   21};
    Par PEON_A_DAMA    = { 37,  30};
    Par MENOR_A_TORRE  = { 45,   5};
    Par MENOR_A_DAMA   = { 29,  40};
    Par TORRE_A_DAMA   = { 59, 7};
    Par ASEDIO_A_PIEZA = { 32,  46};  // more attackers than defenders
    Par AVANCE_A_PIEZA = { 16,  18};  // a pawn step that nothing punishes would attack the piece

    Par TORRE_A_MENOR     = { 29,  25};  // that no pawn guards, as in the next two
    Par MENOR_A_MENOR     = { 16,  27};
    Par PIEZA_A_PEON      = {  2,  18};  // attacked by a knight, bishop or rook
    Par REY_A_PEON        = { 50,   5};  // that nothing guards
    Par REY_A_PIEZA       = { 29,  -3};
    Par PENALIZACION_PIEZA_SUELTA = {  9,   4};  // an own piece that nothing guards, attacked or not
    Par CLAVADA           = { 19,  43};  // an enemy piece between its king and a line piece
    Par DESCUBIERTA       = { 91,  46};  // an own piece there: its move gives check
    Par DAMA_TRAS_PIEZA   = { 36,  -2};  // the enemy queen behind another piece on the line of a rook or bishop

    // ---- Support of passed pawns, by rank as their side counts it, from its back rank on.
    Par PASADO_BASE[FILAS]       = {{   0,    0}, {    9,   22}, {-4,  -1}, { -77,   17}, {-67,   -13}, {  0,  -19}, {   4,   24}, {   0,    0}};
    Par PASADO_REY_PROPIO[FILAS] = {{   0,    0}, {   7,   -2}, {  14,  -10}, { 10,  -12}, {  5,  -12}, { -13,  -13}, { -10,  -14}, {   0,    0}};  // a king move to the square before it
    Par PASADO_REY_RIVAL[FILAS]  = {{   0,    0}, { -12,   -3}, { -18,    8}, {   4,    5}, {    1,   14}, {   8,   19}, {  21,   14}, {   0,    0}};
    Par PASADO_LIBRE[FILAS]      = {{   0,    0}, {  -5,    6}, {   7,   -3}, {  -10,    12}, {  -10,   22}, {    1,   30}, {   8,   55}, {   0,    0}};  // nothing stands before it
    Par PASADO_SEGURO[FILAS]     = {{   0,    0}, {   2,   14}, {  -7,   15}, { -23,   14}, {   0,   18}, {  30,   32}, {-13,   26}, {   0,    0}};  // no enemy attacks the square before it
    Par PASADO_CAMINO[FILAS]     = {{   0,    0}, { -13,   14}, {  -5,  11}, { -59,   30}, { -15,   39}, { -27,   48}, {  24,   69}, {   0,    0}};  // ... nor stands on or attacks its whole way
    Par PASADO_APOYADO[FILAS]    = {{   0,    0}, {   9,   -5}, {   1,   18}, {  -3,   14}, {  15,   13}, {  31,   16}, {  69,   91}, {   0,    0}};  // the square before it is guarded
    Par PASADO_UNIDO[FILAS]      = {{   0,    0}, { -24,    2}, {  -7,    2}, {  6,    9}, { -11,   35}, {  45,   37}, { -1,   13}, {   0,    0}};  // another one beside it or a rank apart
    Par PASADO_TORRE_PROPIA      = {  3,  35};  // behind it
    Par PASADO_TORRE_RIVAL       = {  -4, -69};

    // ---- King shelter, opening. Ranks as the king's side counts them; the place of the eighth, where no pawn of a
    // real game stands, holds the value of "no pawn from the king's rank on".

    // The own pawn of the file that is nearest to home, by the distance of the file from the edge of the board.
    int ESCUDO_OP[BORDES][FILAS] = {
    //  rank 1    2    3    4    5    6    7  none
        {  0, 12,  32, 10,   -2,  4, -20, 22},    // files a and h
        {  0,  37,  18, -26, -23,   3, -19, 15},    // files b and g
        {   0,    14, -13,  -19,   -8,    7,    -4,     5},    // files c and f
        {  0, -21, -21, -26, -18, -50,  8,   -3}};   // files d and e

    // The enemy pawn of the file that has come nearest, free to go on or stopped by an own pawn right in front of it.
    int TORMENTA_OP[FILAS]           = {0,  43, -20, -16, -1,  1,   2, -1};
    int TORMENTA_BLOQUEADA_OP[FILAS] = { 0,    0,  -27,  -12,   2, -11,    12,  -1};

    // A file beside the king for the enemy's rooks and queens, on top of the missing shield.
    int PENALIZACION_COLUMNA_ABIERTA_OP     = 46;  // no pawn on it
    int PENALIZACION_COLUMNA_SEMIABIERTA_OP = 42;  // no own pawn on it

    // By castling state (Enroque). A king that has walked to a wing on foot pays nothing.
    int BONUS_ENROQUE_OP[ESTADOS_ENROQUE] = {-16,    7,   -16,     4,    12,    16};
    int PENALIZACION_SIN_ENROQUE_OP       = -1;  // no right left, king on the files c to f

    // ---- Attack on the enemy king, in units of Ataque_Valor: the sum is the index of KING_ATTACK_MULTI, where a
    // hundred is worth about a pawn.

    // Each square of the king zone that the piece attacks; a rook's weight is of the same scale (see Torres).
    int PESO_ZONA_CABALLO  = 16;
    int PESO_ZONA_ALFIL    = 4;
    int PESO_ZONA_DAMA     = 0;
    int PESO_ZONA_EXTERIOR = 17;  // a square in front of the zone, by whatever piece
    int PESO_ZONA_DEBIL    = 2;   // an attacked square of the zone that only the king guards

    // A square from which the piece may check without being taken.
    int PESO_JAQUE_CABALLO = 1;
    int PESO_JAQUE_ALFIL   = 11;
    int PESO_JAQUE_TORRE   = 13;
    int PESO_JAQUE_DAMA    = 4;

    // ---- Pressure on the enemy king that counts by itself, with or without an attack as above.
    Par JAQUE_SEGURO_CABALLO = { 64,  0};  // the piece may check without being taken
    Par JAQUE_SEGURO_ALFIL   = {  8,  21};
    Par JAQUE_SEGURO_TORRE   = { 46,  0};
    Par JAQUE_SEGURO_DAMA    = {   1,  39};
    Par JAQUE_CON_RIESGO     = {   1,   0};  // each square of another check by a knight, bishop or rook
    Par ZONA_ATACADA         = { -9,  -4};  // each attacked square of the king zone
    Par ZONA_SIN_DEFENSA     = {  8,  -2};  // ... that only the king guards
    Par FLANCO_ATACADO       = { -1,  -1};  // each attacked square of the king's flank, on his half of the board
    Par FLANCO_DOS_VECES     = {  2,   2};  // ... attacked twice
    Par FLANCO_SIN_PEONES    = {-19,  50};  // no pawn of either side on it

    // With an enemy queen on the board: half of the squares from which she would see the king, more counting as the last.
    Par REY_EXPUESTO[EXPOSICIONES] = {
        {  -5, -23}, {  -4, -20}, {  -4,  -9}, {   -7,   7}, {   -8,  14}, {  -4,  21}, { 7, 14},  // 0..6
        { 31, -23}, { 41, -13}, { 43, -6}, { 45, -7}, { 15,  5}, { -5,   12}, { 0,   13}};  // 7..13

    // ---- Danger of the enemy king, in units of Peligro, whose square counts (see PuntosPeligro).
    int PELIGRO_JAQUE_CABALLO    = 1;  // the piece may check without being taken
    int PELIGRO_JAQUE_ALFIL      = 30;
    int PELIGRO_JAQUE_TORRE      = 47;
    int PELIGRO_JAQUE_DAMA       = 55;
    int PELIGRO_JAQUE_RIESGO     = 35;  // each square of another check by a knight, bishop or rook
    int PELIGRO_ZONA_PEON        = 42;  // each square of the king zone that a pawn attacks
    int PELIGRO_ZONA_CABALLO     = 35;  // ... knights, and so on
    int PELIGRO_ZONA_ALFIL       = 36;
    int PELIGRO_ZONA_TORRE       = 15;
    int PELIGRO_ZONA_DAMA        = 28;
    int PELIGRO_ZONA_DEBIL       = -1;  // each attacked square of it that only the king guards
    int PELIGRO_ATACANTE         = -7;  // each piece that attacks the zone
    int PELIGRO_CLAVADA          = 75;
    int PELIGRO_FLANCO_ATACADO   = 11;  // each attacked square of the king's flank, on his half of the board
    int PELIGRO_FLANCO_DOS_VECES = 9;  // ... attacked twice
    int PELIGRO_FLANCO_SUYO      = -4;  // ... that his own side attacks
    int PELIGRO_EXPUESTO         = 1;  // each square from which a queen would see him
    int PELIGRO_PEON_SUYO        = -6;   // each own pawn beside or in front of him
    int PELIGRO_CABALLO_SUYO     = -32;  // an own knight guards his zone
    int PELIGRO_ALFIL_SUYO       = -29;
    int PELIGRO_CON_DAMA         = 17;  // to begin with, by whether the attacker has a queen
    int PELIGRO_SIN_DAMA         = -75;

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

    // Opposite-coloured bishops: what pawns are worth, by steps to promotion where it says so; of two pawns the one that
    // has more of them decides.
    int ALFILES_PEON             = 20;
    int ALFILES_PASADO[FILAS]    = {0, 70, 35, 25, 5, 0, 0, 0};        // passed, on top; it needs no more than a blockade
    int ALFILES_CERCANIA         = 11;                                 // for each step that its own king is nearer to it
    int ALFILES_UNIDOS[FILAS]    = {0, 170, 170, 110, 40, 0, 0, 0};    // two passed pawns side by side
    int ALFILES_SEPARADOS[FILAS] = {0, 180, 180, 180, 65, 20, 0, 0};   // ... far apart
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
