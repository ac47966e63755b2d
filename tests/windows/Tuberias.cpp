// Runs a program on pipes made by Windows, as an interface there does, and passes them on: under Wine the engine can
// then look into its input, which it could not if that were a pipe of the host. Line ends become LF on the way out.
// Usage: tuberias.exe PROGRAM [ARGUMENT ...]; the exit status is that of the program.
#include <windows.h>

#include <string>

static HANDLE HaciaPrograma, DesdePrograma;

static bool Escribir(HANDLE destino, const char* bytes, DWORD numero) {
    DWORD escritos = 0;
    for (; numero > 0; bytes += escritos, numero -= escritos)
        if (WriteFile(destino, bytes, numero, &escritos, nullptr) == 0 || escritos == 0) return false;
    return true;
}

static DWORD Leer(HANDLE origen, char (&bloque)[4096]) {
    DWORD leidos = 0;
    return ReadFile(origen, bloque, sizeof bloque, &leidos, nullptr) != 0 ? leidos : 0;
}

// The end of our input, or a program that reads no more, ends the program's input.
static DWORD WINAPI PasarEntrada(void* /*nada*/) {
    char bloque[4096];
    for (DWORD n = 1; n != 0 && (n = Leer(GetStdHandle(STD_INPUT_HANDLE), bloque)) != 0;)
        if (!Escribir(HaciaPrograma, bloque, n)) break;
    CloseHandle(HaciaPrograma);
    return 0;
}

// A reader that has gone away takes both pipes of the program with it.
static void PasarSalida() {
    char bloque[4096];
    bool retorno = false;  // a CR is kept back until the next byte
    for (DWORD n = Leer(DesdePrograma, bloque); n != 0; n = Leer(DesdePrograma, bloque)) {
        std::string texto;
        for (DWORD i = 0; i < n; ++i) {
            if (retorno && bloque[i] != '\n') texto += '\r';
            retorno = bloque[i] == '\r';
            if (!retorno) texto += bloque[i];
        }
        if (!Escribir(GetStdHandle(STD_OUTPUT_HANDLE), texto.data(), static_cast<DWORD>(texto.size()))) break;
    }
    CloseHandle(DesdePrograma);
    CloseHandle(HaciaPrograma);
}

int main(int argc, char** argv) {
    std::string orden;
    for (int i = 1; i < argc; ++i) orden += std::string(i > 1 ? " \"" : "\"") + argv[i] + "\"";
    SECURITY_ATTRIBUTES heredable{sizeof heredable, nullptr, TRUE};
    STARTUPINFOA        inicio{};
    PROCESS_INFORMATION programa{};
    inicio.cb         = sizeof inicio;
    inicio.dwFlags    = STARTF_USESTDHANDLES;
    inicio.hStdError  = GetStdHandle(STD_ERROR_HANDLE);
    const bool listas = CreatePipe(&inicio.hStdInput, &HaciaPrograma, &heredable, 0) != 0 &&
                        CreatePipe(&DesdePrograma, &inicio.hStdOutput, &heredable, 0) != 0;
    SetHandleInformation(HaciaPrograma, HANDLE_FLAG_INHERIT, 0);
    SetHandleInformation(DesdePrograma, HANDLE_FLAG_INHERIT, 0);
    if (!listas ||
        CreateProcessA(nullptr, orden.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &inicio, &programa) == 0)
        return 127;
    CloseHandle(inicio.hStdInput);
    CloseHandle(inicio.hStdOutput);
    CreateThread(nullptr, 0, PasarEntrada, nullptr, 0, nullptr);
    PasarSalida();
    DWORD estado = 127;
    WaitForSingleObject(programa.hProcess, INFINITE);
    GetExitCodeProcess(programa.hProcess, &estado);
    ExitProcess(estado);
}
