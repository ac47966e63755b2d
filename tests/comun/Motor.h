// The real program on two pipes, for tests of what an interface sees.
#pragma once

#include <gtest/gtest.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>
#include <vector>

// The program under test: the one just built unless the environment names another, such as a starter of another build.
inline std::string Programa() {
    const char* otro = std::getenv("TAMREK_PROGRAMA");
    return otro != nullptr ? otro : TAMREK_PROGRAMA;
}

class Motor {
public:
    // descriptores: how many the program may have open, 0 = as many as this one.
    explicit Motor(std::vector<std::string> argumentos = {}, unsigned descriptores = 0) {
        std::signal(SIGPIPE, SIG_IGN);
        char plantilla[] = "/tmp/tamrek_prueba_XXXXXX";
        Carpeta          = mkdtemp(plantilla);
        argumentos.insert(argumentos.begin(), Programa());
        std::vector<char*> argv;
        for (std::string& argumento : argumentos) argv.push_back(argumento.data());
        argv.push_back(nullptr);
        int entrada[2];
        int salida[2];
        if (pipe(entrada) != 0 || pipe(salida) != 0) std::abort();
        Proceso = fork();
        if (Proceso == 0) {
            dup2(entrada[0], STDIN_FILENO);
            dup2(salida[1], STDOUT_FILENO);
            for (const int extremo : {entrada[0], entrada[1], salida[0], salida[1]}) close(extremo);
            const rlimit limite{descriptores, descriptores};
            if (descriptores != 0) setrlimit(RLIMIT_NOFILE, &limite);
            if (chdir(Carpeta.c_str()) == 0) execv(argv[0], argv.data());
            _exit(127);
        }
        close(entrada[0]);
        close(salida[1]);
        HaciaMotor = entrada[1];
        DesdeMotor = salida[0];
    }
    ~Motor() {
        kill(Proceso, SIGKILL);
        if (HaciaMotor >= 0) Terminar();
        std::filesystem::remove_all(Carpeta);
    }
    Motor(const Motor&)            = delete;
    Motor& operator=(const Motor&) = delete;

    void Enviar(const std::string& texto) const {
        ssize_t hecho = 0;
        for (std::size_t n = 0; n < texto.size() && hecho >= 0; n += static_cast<std::size_t>(hecho))
            hecho = write(HaciaMotor, texto.data() + n, texto.size() - n);
    }
    // All output up to and including the first line that begins so; what came until then when the output ends or
    // nothing follows for so many milliseconds.
    std::string LeerHasta(const std::string& principio, int espera = 20000) {
        for (std::size_t linea = 0;;) {
            const std::size_t fin = Recibido.find('\n', linea);
            if (fin != std::string::npos && Recibido.compare(linea, principio.size(), principio) == 0)
                return std::exchange(Recibido, Recibido.substr(fin + 1)).substr(0, fin + 1);
            if (fin != std::string::npos)
                linea = fin + 1;
            else if (!Recibir(espera))
                return std::exchange(Recibido, "");
        }
    }
    // Closes the program's input and returns what it still prints, and its exit status in words unless it is 0.
    std::string Terminar() {
        close(std::exchange(HaciaMotor, -1));
        while (Recibir(60000)) continue;
        close(DesdeMotor);
        int estado = 0;
        waitpid(Proceso, &estado, 0);
        return estado == 0 ? Recibido : Recibido + "wait status " + std::to_string(estado);
    }
    // Closes the program's output unread; true when the program then ends although its input stays open.
    bool TerminaSinLector() {
        close(DesdeMotor);
        for (int i = 0; i < 200; ++i, usleep(100000))
            if (waitpid(Proceso, nullptr, WNOHANG) == Proceso) return true;
        return false;
    }

private:
    pid_t       Proceso    = -1;
    int         HaciaMotor = -1;
    int         DesdeMotor = -1;
    std::string Carpeta;  // working directory of the program
    std::string Recibido;

    bool Recibir(int espera) {
        pollfd sondeo{DesdeMotor, POLLIN, 0};
        char   bloque[4096];
        if (poll(&sondeo, 1, espera) <= 0) return false;
        const ssize_t leidos = read(DesdeMotor, bloque, sizeof bloque);
        if (leidos > 0) Recibido.append(bloque, static_cast<std::size_t>(leidos));
        return leidos > 0;
    }
};

// What the program prints for this input, run to its end.
inline std::string Dialogar(const std::string& entrada, const std::vector<std::string>& argumentos = {}) {
    Motor motor(argumentos);
    motor.Enviar(entrada);
    return motor.Terminar();
}

// True when the whole text has the form of a POSIX extended regular expression.
inline bool TieneForma(const std::string& texto, const std::string& expresion) {
    return testing::internal::RE::FullMatch(texto, expresion);
}
