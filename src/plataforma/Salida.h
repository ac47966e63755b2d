// Standard output by whole lines. Each line is handed to the system at once and complete: a full pipe is waited for
// even when the descriptor does not block, and what a full disk does not take is dropped. Nothing else may write to
// standard output.
#pragma once

constexpr int SALIDA_MAX = 8192;  // bytes of one call; what is longer is cut, its line end kept

// Prints one or more whole lines, with the format of printf.
[[gnu::format(printf, 1, 2)]] void Imprimir(const char* formato, ...);

// A rewriting of lines on their way out. linea: letras bytes with the line end; destino: room for FILTRADA_MAX bytes,
// for the rewritten line with its line end. Returns their number; 0 drops the line.
using FiltroSalida         = int (*)(const char* linea, int letras, char* destino);
constexpr int FILTRADA_MAX = 2 * SALIDA_MAX + 16;

// From now on every line passes through filtro; nullptr = none, as at the start.
void FiltrarSalida(FiltroSalida filtro);

// 1 once a line could not be delivered because nobody reads any more. Then the engine has to end.
int SalidaPerdida();
