#include "plataforma/NombreGaviota.h"

const char* const NOMBRE_INSTALADO_GAVIOTA = nullptr;
