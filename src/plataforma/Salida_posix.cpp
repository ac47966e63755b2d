#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "plataforma/SalidaSistema.h"

constexpr int ESPERA_ILIMITADA = -1;  // milliseconds, for poll

int EscribirBytes(const char* bytes, int numero) {
    while (numero > 0) {
        const ssize_t escritos = write(STDOUT_FILENO, bytes, static_cast<std::size_t>(numero));
        if (escritos >= 0) {
            bytes += escritos;
            numero -= static_cast<int>(escritos);
        } else if (errno == EAGAIN) {
            pollfd salida{STDOUT_FILENO, POLLOUT, 0};
            poll(&salida, 1, ESPERA_ILIMITADA);  // whoever started the engine left the descriptor non-blocking
        } else if (errno == ENOSPC || errno == EDQUOT) {
            return 1;
        } else if (errno != EINTR) {
            return 0;
        }
    }
    return 1;
}
