#include <fcntl.h>
#include <sys/resource.h>

#include "plataforma/Descriptores.h"

int HayDescriptores(int numero) {
    rlimit limite;
    if (getrlimit(RLIMIT_NOFILE, &limite) != 0) return 0;
    const rlimit subido{limite.rlim_max, limite.rlim_max};
    if (setrlimit(RLIMIT_NOFILE, &subido) == 0) limite = subido;
    for (int descriptor = 0; numero > 0 && static_cast<rlim_t>(descriptor) < limite.rlim_cur; ++descriptor)
        if (fcntl(descriptor, F_GETFD) == -1) --numero;
    return numero <= 0 ? 1 : 0;
}
