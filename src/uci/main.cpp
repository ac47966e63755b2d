// Entry point: reads the command line, then runs the command loop or the bench.
//   tamrek [--semilla N] [bench [depth]]

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "plataforma/Reloj.h"
#include "uci/Arranque.h"
#include "uci/Banco.h"
#include "uci/LeerComandos.h"

constexpr int ERROR_DE_USO = 2;  // exit status

struct Argumentos {
    int      HaySemilla;
    unsigned Semilla;
    int      Banco;  // depth of the bench, 0 = play
};

// Depth of the bench, 0 for a text that is none.
static int LeerProfundidadBanco(const char* texto) {
    const int profundidad = Es_Numero(texto) != 0 ? NumeroAcotado(texto, PROFUNDIDAD_MAX + 1) : 0;
    return profundidad <= PROFUNDIDAD_MAX ? profundidad : 0;
}

// Returns 1, or 0 when the command line is not understood.
static int LeerArgumentos(int argc, char** argv, Argumentos& argumentos) {
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--semilla") == 0 && i + 1 < argc && Es_Numero(argv[i + 1]) != 0) {
            argumentos.HaySemilla = 1;
            argumentos.Semilla    = static_cast<unsigned>(NumeroDe32Bits(argv[++i]));
        } else if (std::strcmp(argv[i], "bench") == 0 && argumentos.Banco == 0) {
            const bool hay_profundidad = i + 1 < argc && Es_Numero(argv[i + 1]) != 0;
            argumentos.Banco           = hay_profundidad ? LeerProfundidadBanco(argv[++i]) : PROFUNDIDAD_BANCO;
            if (argumentos.Banco == 0) return 0;
        } else
            return 0;
    }
    return 1;
}

static unsigned ElegirSemilla(const Argumentos& argumentos) {
    if (argumentos.HaySemilla != 0) return argumentos.Semilla;
    return argumentos.Banco != 0 ? SEMILLA_BANCO : static_cast<unsigned>(ObtenerMilisegundos());
}

int main(int argc, char** argv) {
    Argumentos argumentos{};
    if (LeerArgumentos(argc, argv, argumentos) == 0) {
        std::fprintf(stderr, "usage: tamrek [--semilla N] [bench [depth, 1..%d]]\n", PROFUNDIDAD_MAX);
        return ERROR_DE_USO;
    }

    int estado = EXIT_SUCCESS;
    Arrancar(ElegirSemilla(argumentos));
    if (argumentos.Banco == 0)
        LeerComandos();
    else if (EjecutarBanco(argumentos.Banco) == 0)
        estado = EXIT_FAILURE;
    Apagar();
    return estado;
}
