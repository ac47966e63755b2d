// The command loop of the Universal Chess Interface on standard input and output.
#pragma once

// Reads and carries out commands, one line at a time, until "quit", the end of the input or Salir. A search runs
// inside its "go"; what arrives meanwhile is seen by ComprobarTiempo alone. Unknown commands are ignored.
void LeerComandos();
