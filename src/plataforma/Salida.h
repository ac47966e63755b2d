// Standard output by whole lines. Each line is handed to the system at once and complete: a full pipe is waited for
// even when the descriptor does not block, and what a full disk does not take is dropped. Nothing else may write to
// standard output.
#pragma once

constexpr int SALIDA_MAX = 8192;  // bytes of one call; what is longer is cut, its line end kept

// Prints one or more whole lines, with the format of printf.
[[gnu::format(printf, 1, 2)]] void Imprimir(const char* formato, ...);

// 1 once a line could not be delivered because nobody reads any more. Then the engine has to end.
int SalidaPerdida();
