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

// What becomes of a waiting line that has been looked at.
enum DestinoLinea : int { LINEA_TOMADA, LINEA_ESPERA, LINEA_ULTIMA };  // taken, left, left as the last one looked at

// Shows the waiting whole lines to tratar, in the order of their arrival, without their line end and cut to
// PRINCIPIO_MAX - 1 characters. Lines that it does not take are left for LeerLinea. esperar: 1 waits until the input
// brings something new, 0 never waits. Returns 0 when nothing new can be seen any more: the input has ended, or lines
// that nobody takes fill the buffer.
int           RevisarLineas(DestinoLinea (*tratar)(const char* principio), int esperar);
constexpr int PRINCIPIO_MAX = 80;

// From now on the input counts as ended and nothing more is read from it.
void AbandonarEntrada();
