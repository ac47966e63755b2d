// Words of a command line: the one word rule of the whole protocol.
#pragma once

#include <cstdint>

constexpr int PALABRA_MAX = 80;  // size of a word buffer; a word is cut at PALABRA_MAX - 2 characters

// Skips spaces (tabs are part of words), copies the next word to palabra (PALABRA_MAX bytes, zero-filled) and
// returns the text behind the whole word. A word ends at '\0', a space, or the bytes 0x80 and 0xA0. Where no
// word starts (end of the text, or one of those two bytes) the word is empty; callers then stop reading.
const char* Split_String(const char* texto, char* palabra);

// 1 for a non-empty text of the digits 0 to 9 only.
int Es_Numero(const char* texto);

// The value of a text of digits read as 64 bits (saturated) and kept as its low 32 bits.
std::int32_t NumeroDe32Bits(const char* texto);

// The value of a text of digits, or tope when it is larger.
int NumeroAcotado(const char* texto, int tope);
