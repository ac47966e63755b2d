// Standard input by lines, through a byte buffer of our own: what has arrived but is not read yet stays there, so
// that the polling of a search and the command loop share it and neither loses a byte of the other's lines.
// Nothing else may read standard input.
#pragma once

constexpr int LINEA_MAX = 65536;  // largest limit of LeerLinea, terminating '\0' included

// Waits for a line and copies it to linea, at most limite - 1 bytes and a terminating '\0'; a longer line arrives
// in pieces, one a call. The line end (LF or CR LF) is cut off; NUL bytes inside are kept and so end the text.
// Returns 1, or 0 at end of input with linea empty.
int LeerLinea(char* linea, int limite);

// 1 when LeerLinea with this limit (2..LINEA_MAX) would answer without waiting, be it with a whole line, with a
// piece as long as the limit or with the end of input; 0 while there is nothing or only half a line. Never waits.
int HayLinea(int limite);

// From now on the input counts as ended and nothing more is read from it.
void AbandonarEntrada();
