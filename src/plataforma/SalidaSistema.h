// The raw bytes of standard output, as the system takes them. For Salida alone.
#pragma once

// Writes every byte, waiting for as long as the reader does not take them. Returns 0 when nobody reads any more, else
// 1, also when there was no room for the rest.
int EscribirBytes(const char* bytes, int numero);
