// Whether the table files can be handed to the probing library.
#pragma once

constexpr int HOMBRES_TABLA_MAX = 5;    // both kings included
constexpr int RUTA_MAX          = 255;  // characters of a list of directories, the option GaviotaTbPath
constexpr int COMPRESION_MAX    = 4;    // the library has no decoder for higher schemes, and calls it all the same

// In both, rutas: directories separated by semicolons, up to RUTA_MAX characters; compresion: the scheme, which is part
// of the file names.

// Number of table files that are there, readable or not: the library opens as many. -1 when one of them is a pipe, at
// which the library would wait without end.
int NumeroTablasGaviota(const char* rutas, int compresion);

// Looks at the head of every table file that the library would read. The library itself trusts the block index of a
// file and reads wild memory when it is cut or damaged, so such tables must never be probed. Returns the number of men
// up to which no table is damaged or closed to us, 2 .. 5, and prints a line for each table that lowers it. The
// contents of the blocks are not checked.
int ComprobarTablasGaviota(const char* rutas, int compresion);
