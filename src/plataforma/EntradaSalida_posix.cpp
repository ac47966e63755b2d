#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "plataforma/EntradaSalida.h"

constexpr int SIN_ESPERA       = 0;  // milliseconds, for poll
constexpr int ESPERA_ILIMITADA = -1;

// Whoever started the engine may have left a descriptor non-blocking; then reading and writing wait here.
static int Sondear(int descriptor, short suceso, int espera) {
    pollfd sondeo{descriptor, suceso, 0};
    return poll(&sondeo, 1, espera);
}

int LeerBytes(char* destino, int capacidad) {
    for (;;) {
        const ssize_t leidos = read(STDIN_FILENO, destino, static_cast<std::size_t>(capacidad));
        if (leidos >= 0) return static_cast<int>(leidos);
        if (errno == EAGAIN)
            Sondear(STDIN_FILENO, POLLIN, ESPERA_ILIMITADA);
        else if (errno != EINTR)
            return 0;
    }
}

int HayBytes() {
    return Sondear(STDIN_FILENO, POLLIN, SIN_ESPERA) > 0 ? 1 : 0;
}

int EscribirBytes(const char* bytes, int numero) {
    while (numero > 0) {
        const ssize_t escritos = write(STDOUT_FILENO, bytes, static_cast<std::size_t>(numero));
        if (escritos >= 0) {
            bytes += escritos;
            numero -= static_cast<int>(escritos);
        } else if (errno == EAGAIN) {
            Sondear(STDOUT_FILENO, POLLOUT, ESPERA_ILIMITADA);
        } else if (errno == ENOSPC || errno == EDQUOT) {
            return 1;
        } else if (errno != EINTR) {
            return 0;
        }
    }
    return 1;
}
