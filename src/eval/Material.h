// Material: what the pieces of a side are worth by themselves, together and against the opponent's.
#pragma once

// Centipawns by the white piece code, pawn to queen, alike in the opening and the endgame. Exchanges are counted with
// values of their own.
constexpr int MATERIAL[] = {0, 100, 325, 335, 500, 1000};

constexpr int FASE_MAX = 24;  // game phase with all pieces on the board

// What so many pieces add to the game phase.
constexpr int FaseDePiezas(int menores, int torres, int damas) {
    return menores + 2 * torres + 4 * damas;
}

// Puts the material of each side, with its adjustments, into Puntos_OP and Puntos_EG, over whatever they held.
void Material_Imbalance();

// Centipawns for White where heavy pieces stand against light ones, such as a queen against three minors.
int DesequilibrioPiezas();

// Game phase from the pieces of both sides, 0 (pawns and kings) .. FASE_MAX.
int CalcularFase();

// No pawn nor piece but the kings.
bool SoloReyes();

// No pawns, rooks or queens, and at most one minor piece a side.
bool Material_Insuficiente();
