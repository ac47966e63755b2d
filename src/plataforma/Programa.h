// Where the program lies.
#pragma once

// Writes the folder of the running program, without a separator at its end, as UTF-8. Returns 1, or 0 with an empty
// text when it cannot be told or does not fit into capacidad bytes.
int CarpetaDelPrograma(char* carpeta, int capacidad);
