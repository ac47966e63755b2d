// Attack and check tests on the global board. All squares are 0..63 and all answers 1 or 0.
#pragma once

int JaqueNegras(int casilla);   // attacked by a white piece: check to Black when it is Black's king square
int JaqueBlancas(int casilla);  // attacked by a black piece

// Attacked by the side not to move. Raises Salir and answers 0 when Turno is neither 0 nor 1.
int Jaque2(int casilla);

enum EstadoJaque : int { SIN_JAQUE = 0, EN_JAQUE = 1 };

// Is the side to move in check? Answers as Jaque2 for the square of its king.
int TurnoEnJaque();

// As Jaque2 with the colour of the square's owner given: 0 = black, 1 = white.
int Peon_Asalvo(int casilla, int color);

int AmenazadoPorPeonNegro(int casilla);   // attacked by a black pawn
int AmenazadoPorPeonBlanco(int casilla);  // attacked by a white pawn
