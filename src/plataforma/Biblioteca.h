// Shared libraries loaded at run time.
#pragma once

// Loads a library by file name, found in the working directory or where the system looks for libraries; otherwise,
// on systems whose packages install it under another name, the library instalada, which has to be where they put it.
// Returns its handle, or nullptr when neither can be loaded.
void* CargarBiblioteca(const char* nombre, const char* instalada);

// Address of an exported symbol of a loaded library, nullptr when it has none of that name.
void* BuscarSimbolo(void* biblioteca, const char* nombre);

// Gives a loaded library back to the system. Returns 1, or 0 when the system refused; the handle is dead either way.
int LiberarBiblioteca(void* biblioteca);
