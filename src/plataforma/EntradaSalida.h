// The raw bytes of standard input and output, as the system delivers and takes them. For Entrada and Salida alone.
#pragma once

// Waits until bytes arrive and copies up to capacidad of them to destino. Returns their number, 0 at end of input
// or when it cannot be read.
int LeerBytes(char* destino, int capacidad);

// 1 when LeerBytes would not wait: bytes are there, or the input has ended or failed.
int HayBytes();

// Writes every byte, waiting for as long as the reader does not take them. Returns 0 when nobody reads any more or the
// file may not grow, else 1, also when the disk had no room for the rest.
int EscribirBytes(const char* bytes, int numero);
