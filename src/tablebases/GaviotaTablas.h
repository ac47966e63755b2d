// Whether the table files can be handed to the probing library.
#pragma once

constexpr int HOMBRES_TABLA_MAX = 5;    // both kings included
constexpr int RUTA_MAX          = 255;  // characters of a list of directories, the option GaviotaTbPath

// Looks at the head of every table file that the library would read. The library itself trusts the block index of
// a file and reads wild memory when it is cut or damaged, so such tables must never be probed. Prints a line for
// each of them and returns the number of men up to which no table is damaged, 2 .. 5. The contents of the blocks
// are not checked.
// rutas: directories separated by semicolons, up to RUTA_MAX characters; compresion: the scheme, which is part of
// the file names.
int ComprobarTablasGaviota(const char* rutas, int compresion);
