#include <windows.h>

#include <io.h>

#include "plataforma/SalidaSistema.h"

constexpr int SALIDA_ESTANDAR = 1;  // descriptor

// Through the descriptor of the C library, which ends lines as this system does. It blocks, so a call that takes
// nothing has failed.
int EscribirBytes(const char* bytes, int numero) {
    while (numero > 0) {
        const int escritos = _write(SALIDA_ESTANDAR, bytes, static_cast<unsigned>(numero));
        if (escritos <= 0) return GetLastError() == ERROR_DISK_FULL ? 1 : 0;
        bytes += escritos;
        numero -= escritos;
    }
    return 1;
}
