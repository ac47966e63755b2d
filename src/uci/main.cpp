// Entry point: reads the command line, then runs the command loop or the bench.

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "plataforma/Programa.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "uci/Arranque.h"
#include "uci/Banco.h"
#include "uci/LeerComandos.h"
#include "uci/UciCompleto.h"

constexpr int ERROR_DE_USO = 2;  // exit status

// A build for a program that can give the engine no arguments.
#ifdef TAMREK_UCI_COMPLETO
constexpr int UCI_COMPLETO_DE_SERIE = 1;
#else
constexpr int UCI_COMPLETO_DE_SERIE = 0;
#endif

constexpr char USO[] =
    "usage: tamrek [--uci-completo] [--semilla N] [bench [depth]]\n"
    "  --uci-completo full UCI for today's interfaces: every \"go\" is answered, output in UTF-8\n"
    "  --semilla N    seed of the hash keys and of the choice of book moves\n"
    "  bench [depth]  searches fixed positions 1 to 32 plies deep, prints \"N nodes M nps\" at last and ends\n"
    "  --help, --version\n"
    "Without bench, Tamrek speaks the Universal Chess Interface on standard input and output.\n";

struct Argumentos {
    int      HaySemilla;
    unsigned Semilla;
    int      Banco;  // depth of the bench, 0 = play
    int      UciCompleto;
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
        } else if (std::strcmp(argv[i], "--uci-completo") == 0)
            argumentos.UciCompleto = 1;
        else
            return 0;
    }
    return 1;
}

static unsigned ElegirSemilla(const Argumentos& argumentos) {
    if (argumentos.HaySemilla != 0) return argumentos.Semilla;
    return argumentos.Banco != 0 ? SEMILLA_BANCO : static_cast<unsigned>(ObtenerMilisegundos());
}

// Answers an argument that asks for a text only. Returns 0 when there is none.
static int ResponderInformacion(int argc, char** argv) {
    if (argc != 2) return 0;
    const bool ayuda = std::strcmp(argv[1], "--help") == 0;
    if (!ayuda && std::strcmp(argv[1], "--version") != 0) return 0;
    Imprimir("%s", ayuda ? USO : "Tamrek 0.6\n");
    return 1;
}

int main(int argc, char** argv) {
    PrepararPrograma();
    if (ResponderInformacion(argc, argv) != 0) return EXIT_SUCCESS;
    Argumentos argumentos{};
    argumentos.UciCompleto = UCI_COMPLETO_DE_SERIE;
    if (LeerArgumentos(argc, argv, argumentos) == 0) {
        std::fputs(USO, stderr);
        return ERROR_DE_USO;
    }

    int estado = EXIT_SUCCESS;
    Arrancar(ElegirSemilla(argumentos));
    if (argumentos.UciCompleto != 0 && argumentos.Banco == 0) ActivarUciCompleto();
    if (argumentos.Banco == 0)
        LeerComandos();
    else if (EjecutarBanco(argumentos.Banco) == 0)
        estado = EXIT_FAILURE;
    Apagar();
    return estado;
}
