#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "plataforma/EntradaSistema.h"

constexpr int SIN_ESPERA       = 0;  // milliseconds, for poll
constexpr int ESPERA_ILIMITADA = -1;

static int Sondear(int espera) {
    pollfd entrada{STDIN_FILENO, POLLIN, 0};
    return poll(&entrada, 1, espera);
}

int LeerBytes(char* destino, int capacidad) {
    for (;;) {
        const ssize_t leidos = read(STDIN_FILENO, destino, static_cast<std::size_t>(capacidad));
        if (leidos >= 0) return static_cast<int>(leidos);
        if (errno == EAGAIN)
            Sondear(ESPERA_ILIMITADA);  // whoever started the engine left the descriptor non-blocking
        else if (errno != EINTR)
            return 0;
    }
}

int HayBytes() {
    return Sondear(SIN_ESPERA) > 0 ? 1 : 0;
}
