// Files beside standard input and output: how many may be open, which ones are, and which must not be opened.
#pragma once

// Raises the limit as far as the system grants. Returns 1 when so many more files can then be opened at once, else 0.
int HayDescriptores(int numero);

// 1 when opening the file of this name would wait for another program to write to it: a pipe with a name.
int EsTuberia(const char* ruta);

// Closes what has been opened after the last call of AnotarDescriptores and is still open, for libraries that forget
// their files. Whoever calls it knows that nobody uses those any more.
void AnotarDescriptores();
void CerrarDescriptoresNuevos();
