// The engine's options: start values, the lines of the "uci" reply, and "setoption".
#pragma once

constexpr int HASH_VALOR = 128;   // megabytes, evaluation cache included
constexpr int HASH_MAX   = 2048;  // what more is asked for is cut to this

constexpr int VALOR_MAX = 252;  // longest text behind the word "value", its leading blanks included

constexpr char VALOR_VACIO[] = "empty";  // stands for a value that is not given

// A setter takes the value's text and returns 1, or 0 when the value is not acceptable and nothing has changed.
struct EntradaOpcion {
    const char* Nombre;
    int (*Fijar)(const char* valor);
};
constexpr int              NUMERO_OPCIONES = 8;
extern const EntradaOpcion OPCIONES[NUMERO_OPCIONES];

// Sets the Hash option to its start value and creates the hash tables.
void IniciarConfiguracion();

// Sets all other options to their start values. The tablebase library must not be loaded.
void Cargar_Opciones();

// Hash as the user sees it, in megabytes: the transposition table and the evaluation cache together.
int HashTotal();

// Prints the eight "option" lines with the current values as their defaults.
void ImprimirOpciones();

// texto: what follows the word "setoption". Records the new value, which takes effect later, or prints one line
// and keeps the old one. Names and values are case-sensitive; an unknown name is ignored. A text of more than
// VALOR_MAX characters behind "value" raises Salir.
void ParseSetoption(const char* texto);
