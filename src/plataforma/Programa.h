// The program as the system runs it.
#pragma once

// From now on what fails is told to the caller: no signal ends the program for want of a reader or of room in a file,
// and no window that nobody sees asks about a damaged library or an empty drive. To be called before the first line of
// output, and before anything else writes to a file.
void PrepararPrograma();

// Writes the folder of the running program, without a separator at its end, as UTF-8. Returns 1, or 0 with an empty
// text when it cannot be told or does not fit into capacidad bytes.
int CarpetaDelPrograma(char* carpeta, int capacidad);
