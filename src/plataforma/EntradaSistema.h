// The raw bytes of standard input, as the system delivers them. For Entrada alone.
#pragma once

// Waits until bytes arrive and copies up to capacidad of them to destino. Returns their number, 0 at end of input
// or when it cannot be read.
int LeerBytes(char* destino, int capacidad);

// 1 when LeerBytes would not wait: bytes are there, or the input has ended or failed.
int HayBytes();
