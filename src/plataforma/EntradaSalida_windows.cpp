#include <windows.h>

#include <io.h>

#include <cerrno>

#include "plataforma/EntradaSalida.h"

constexpr DWORD EVENTOS_MAX     = 512;  // console events that one test looks at
constexpr int   SALIDA_ESTANDAR = 1;    // descriptor

static int    init = 0;  // 1 once the input has been examined, on the first poll
static HANDLE inh  = nullptr;
static int    pipe = 0;  // 1 for a pipe or a file, 0 for a console

static void ExaminarEntrada() {
    init       = 1;
    inh        = GetStdHandle(STD_INPUT_HANDLE);
    DWORD modo = 0;
    pipe       = GetConsoleMode(inh, &modo) == 0 ? 1 : 0;
    if (pipe != 0) return;
    SetConsoleMode(inh, modo & ~static_cast<DWORD>(ENABLE_WINDOW_INPUT | ENABLE_MOUSE_INPUT));
    FlushConsoleInputBuffer(inh);
}

static bool EsRetorno(const INPUT_RECORD& evento) {
    return evento.EventType == KEY_EVENT && evento.Event.KeyEvent.bKeyDown != 0 &&
           evento.Event.KeyEvent.wVirtualKeyCode == VK_RETURN;
}

// A console delivers whole lines, so reading it waits for the return key, whatever else has been typed.
static int HayLineaDeConsola() {
    DWORD numero = 0;
    if (GetNumberOfConsoleInputEvents(inh, &numero) == 0 || numero < 2) return 0;
    static INPUT_RECORD eventos[EVENTOS_MAX];
    if (PeekConsoleInputA(inh, eventos, EVENTOS_MAX, &numero) == 0) return 0;
    for (DWORD i = 0; i < numero; ++i)
        if (EsRetorno(eventos[i])) return 1;
    return 0;
}

// Only a pipe with a writer can be looked into.
static bool EsTuberiaAbierta(HANDLE fichero, DWORD* esperan) {
    return PeekNamedPipe(fichero, nullptr, 0, nullptr, esperan, nullptr) != 0;
}

// Who writes nothing to a pipe ends a waiting read without bytes; the input goes on.
int LeerBytes(char* destino, int capacidad) {
    const HANDLE entrada = GetStdHandle(STD_INPUT_HANDLE);
    DWORD        leidos  = 0;
    do {
        if (ReadFile(entrada, destino, static_cast<DWORD>(capacidad), &leidos, nullptr) == 0) return 0;
    } while (leidos == 0 && EsTuberiaAbierta(entrada, nullptr));
    return static_cast<int>(leidos);
}

int HayBytes() {
    if (init == 0) ExaminarEntrada();
    if (pipe == 0) return HayLineaDeConsola();
    DWORD esperan = 0;
    if (!EsTuberiaAbierta(inh, &esperan)) return 1;  // a file, or a pipe at its end
    return esperan != 0 ? 1 : 0;
}

// Through the descriptor of the C library, which ends lines as this system does. It blocks, so a call that takes
// nothing has failed; a disk without room answers ENOSPC.
int EscribirBytes(const char* bytes, int numero) {
    while (numero > 0) {
        const int escritos = _write(SALIDA_ESTANDAR, bytes, static_cast<unsigned>(numero));
        if (escritos <= 0) return errno == ENOSPC ? 1 : 0;
        bytes += escritos;
        numero -= escritos;
    }
    return 1;
}
