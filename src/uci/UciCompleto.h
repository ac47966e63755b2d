// Full UCI, asked for by "--uci-completo": the protocol as today's interfaces and test programs expect it. Commands,
// options and output that differ from the plain engine's are here, "go" in GoCompleto, the input of a search in
// SondeoCompleto; the switches are in board/EstadoMotor.h.
#pragma once

// Switches full UCI on, for the rest of the run. To be called after start-up, before the first command. From then on
// output is UTF-8, and every line that is none of the protocol's begins with "info string".
void ActivarUciCompleto();

// Carries out a command that full UCI answers in its own way. Returns 0 for any other, and while it is off.
int EjecutarCompleto(const char* palabra, const char* resto);

// Prints the "option" lines that full UCI adds; nothing while it is off.
void ImprimirOpcionesCompletas();
