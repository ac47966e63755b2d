#include "plataforma/NombreGaviota.h"

// The versioned name of the shared object: packages for users install it without the bare one.
const char* const NOMBRE_INSTALADO_GAVIOTA = "libgaviotatb.so.1";
