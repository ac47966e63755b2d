#include "plataforma/Descriptores.h"

// A process may open files by the million here.
int HayDescriptores(int /*numero*/) {
    return 1;
}
