// Under which name the system installs the Gaviota probing library.
#pragma once

// File name tried after the library's own one; nullptr where the system has no other.
extern const char* const NOMBRE_INSTALADO_GAVIOTA;
