// Entry point of the tuner: finds the weights of the evaluation that best explain how games ended and what a strong
// engine thought of their positions, and writes them back into the source. docs/afinar.md tells how to use it.

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "afinar/Datos.h"
#include "afinar/FicheroPesos.h"
#include "afinar/Motor.h"
#include "afinar/Muelles.h"
#include "afinar/Regresion.h"

namespace {

constexpr int EXITO        = 0;
constexpr int FALLO        = 1;
constexpr int ERROR_DE_USO = 2;

constexpr char USO[] =
    "usage: afinar [options] FILE\n"
    "Tunes the weights of the evaluation on FILE, plain or .xz: lines FEN;centipawns;result, the centipawns by a\n"
    "strong engine and the result (1, 0.5 or 0) both as White sees them.\n"
    "  --medir         measure the loss by game phase and change nothing\n"
    "  --hojas         learn from where a search of one ply ends, not from the quiet rows as they stand\n"
    "  --pesos PATH    the source file with the weights (" RUTA_PESOS
    ")\n"
    "  --solo A,B,...  tune these members of the record only\n"
    "  --salvo A,B,... leave these members as they are\n"
    "  --mezcla X      share of the game result in the target, 0 to 1; the rest is the strong engine's (0.5)\n"
    "  --sigma X       centipawns by which a weight is expected to change, before any data (60)\n"
    "  --suavidad X    centipawns by which neighbours in a table are expected to change differently; 0: any (5)\n"
    "  --pasadas N     end after so many passes at the latest (20)\n"
    "  --hilos N       threads (2)\n";

// Positions that are as good as decided teach nothing about single weights.
constexpr int PUNTOS_TOPE = 1000;
// In the endings of few men the result says more about the player than about the position.
constexpr int FASE_MIN = 2;
// The strong engine's scores as expectations, for the measurement: 1 / (1 + exp(-centipawns / ESCALA_FUERTE)).
constexpr double ESCALA_FUERTE = 350;
// A pass that lessens the mean loss by less ends the work.
constexpr double GANANCIA_MIN = 1e-6;

struct TramoFase {
    int Desde;
    int Hasta;
};
constexpr TramoFase TRAMOS[] = {{2, 99}, {20, 99}, {14, 19}, {8, 13}, {4, 7}, {2, 3}};

struct Opciones {
    std::string              Fichero;
    std::string              Pesos  = RUTA_PESOS;
    std::vector<std::string> Solo   = {};
    std::vector<std::string> Salvo  = {};
    bool                     Medir  = false;
    bool                     Hojas  = false;
    double                   Mezcla = 0.5;
    TiranteMuelles           Muelles;
    int                      Pasadas = 20;
    int                      Hilos   = 2;
};

struct ErrorDeUso : std::runtime_error {
    using std::runtime_error::runtime_error;
};

template <class T>
T LeerNumero(const std::string& texto, T minimo, T maximo) {
    T numero{};
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    if (error != std::errc{} || fin != texto.data() + texto.size() || !(numero >= minimo && numero <= maximo))
        throw ErrorDeUso("not understood or out of range: " + texto);
    return numero;
}

std::vector<std::string> LeerNombres(const std::string& texto) {
    std::vector<std::string> nombres;
    std::istringstream       flujo(texto);
    for (std::string nombre; std::getline(flujo, nombre, ',');) nombres.push_back(nombre);
    return nombres;
}

Opciones LeerOpciones(const std::vector<std::string>& argumentos) {
    constexpr double CENTIPEONES_MIN = 0.01, CENTIPEONES_MAX = 10000;
    Opciones         opciones;
    for (std::size_t i = 0; i < argumentos.size(); ++i) {
        const std::string& nombre = argumentos[i];
        const auto         valor  = [&]() -> const std::string& {
            if (i + 1 == argumentos.size()) throw ErrorDeUso("nothing behind " + nombre);
            return argumentos[++i];
        };
        if (nombre == "--medir")
            opciones.Medir = true;
        else if (nombre == "--hojas")
            opciones.Hojas = true;
        else if (nombre == "--pesos")
            opciones.Pesos = valor();
        else if (nombre == "--solo")
            opciones.Solo = LeerNombres(valor());
        else if (nombre == "--salvo")
            opciones.Salvo = LeerNombres(valor());
        else if (nombre == "--mezcla")
            opciones.Mezcla = LeerNumero(valor(), 0.0, 1.0);
        else if (nombre == "--sigma")
            opciones.Muelles.Sigma = LeerNumero(valor(), CENTIPEONES_MIN, CENTIPEONES_MAX);
        else if (nombre == "--suavidad")
            opciones.Muelles.Suavidad = LeerNumero(valor(), 0.0, CENTIPEONES_MAX);
        else if (nombre == "--pasadas")
            opciones.Pasadas = LeerNumero(valor(), 1, 1000);
        else if (nombre == "--hilos")
            opciones.Hilos = LeerNumero(valor(), 1, 256);
        else if (nombre.starts_with("--") || !opciones.Fichero.empty())
            throw ErrorDeUso("unknown argument " + nombre);
        else
            opciones.Fichero = nombre;
    }
    if (opciones.Fichero.empty()) throw ErrorDeUso("no file of positions");
    return opciones;
}

// The rows in use, divided: those that train and those that test.
struct Grupo {
    std::vector<Fila>   Filas;
    std::vector<double> Puntos;      // at the present weights
    std::vector<double> Resultados;  // targets, alone and mixed
    std::vector<double> Fuerte;
    std::vector<double> Objetivos;
};

struct Estado {
    Grupo    Entrenamiento;
    Grupo    Prueba;
    Muestras Muestras_;
    double   Escala = 0;  // of the scores, against the mixed target
};

double SegundosDesde(std::chrono::steady_clock::time_point principio) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - principio).count();
}

void Progreso(const char* que, std::size_t hechas, std::size_t todas) {
    constexpr std::size_t CADA = 20000;
    if (hechas % CADA == 0 || hechas == todas)
        std::fprintf(stderr, "\r%s %zu of %zu%s", que, hechas, todas, hechas == todas ? "\n" : "");
}

void Repartir(const Datos& datos, const Opciones& opciones, Estado& estado) {
    std::size_t lejanas = 0, inquietas = 0, hechas = 0;
    for (const Fila& fila : datos.Filas) {
        std::vector<std::uint32_t> jugadas;
        Progreso("reading", ++hechas, datos.Filas.size());
        if (std::abs(fila.Centipeones) >= PUNTOS_TOPE || fila.Fase < FASE_MIN)
            ++lejanas;
        else if (!(opciones.Hojas ? BuscarHoja(fila.Fen, jugadas) : EsTranquila(fila.Fen)))
            ++inquietas;
        else {
            Grupo& grupo = fila.Prueba ? estado.Prueba : estado.Entrenamiento;
            grupo.Filas.push_back(fila);
            grupo.Filas.back().Jugadas = std::move(jugadas);
        }
    }
    std::printf("%zu rows: %zu bad, %zu decided or without pieces, %zu not quiet; %zu to train, %zu to test\n",
                datos.Filas.size() + datos.Malas, datos.Malas, lejanas, inquietas, estado.Entrenamiento.Filas.size(),
                estado.Prueba.Filas.size());
    if (estado.Entrenamiento.Filas.empty() || estado.Prueba.Filas.empty())
        throw std::runtime_error("too few rows are left");
}

// Scores at the weights that the engine has now, and for the training rows their coefficients.
void Observar(Estado& estado) {
    Muestras& muestras = estado.Muestras_;
    muestras.Filas.clear();
    muestras.Coeficientes.clear();
    std::vector<Coeficiente> sueltos;
    estado.Prueba.Puntos.clear();
    for (const Fila& fila : estado.Prueba.Filas) {
        sueltos.clear();
        estado.Prueba.Puntos.push_back(Observar(fila.Fen, fila.Jugadas, sueltos));
    }
    Grupo& grupo = estado.Entrenamiento;
    grupo.Puntos.clear();
    for (std::size_t i = 0; i < grupo.Filas.size(); ++i) {
        const std::size_t primero = muestras.Coeficientes.size();
        grupo.Puntos.push_back(Observar(grupo.Filas[i].Fen, grupo.Filas[i].Jugadas, muestras.Coeficientes));
        muestras.Filas.push_back({.Puntos   = grupo.Puntos.back(),
                                  .Objetivo = grupo.Objetivos.empty() ? 0 : grupo.Objetivos[i],
                                  .Primero  = primero,
                                  .Numero   = muestras.Coeficientes.size() - primero});
    }
}

// The targets. The strong engine's score is turned into an expectation by the scale that explains the results best.
void FijarObjetivos(Estado& estado, double mezcla) {
    std::vector<double> centipeones;
    for (const Fila& fila : estado.Entrenamiento.Filas) {
        centipeones.push_back(fila.Centipeones);
        estado.Entrenamiento.Resultados.push_back(fila.Resultado);
    }
    const double fuerte = MejorEscala(centipeones, estado.Entrenamiento.Resultados);
    for (Grupo* grupo : {&estado.Entrenamiento, &estado.Prueba}) {
        grupo->Resultados.clear();
        for (const Fila& fila : grupo->Filas) {
            grupo->Resultados.push_back(fila.Resultado);
            grupo->Fuerte.push_back(Sigmoide(fuerte * fila.Centipeones));
            grupo->Objetivos.push_back(mezcla * fila.Resultado + (1 - mezcla) * grupo->Fuerte.back());
        }
    }
    for (std::size_t i = 0; i < estado.Muestras_.Filas.size(); ++i)
        estado.Muestras_.Filas[i].Objetivo = estado.Entrenamiento.Objetivos[i];
    estado.Escala = MejorEscala(estado.Entrenamiento.Puntos, estado.Entrenamiento.Objetivos);
    std::printf("scales: strong engine 1/%.0f, evaluation 1/%.0f\n", 1 / fuerte, 1 / estado.Escala);
}

struct Medida {
    double Resultados;
    double Fuerte;
};

// Loss of one phase, each target with the scale that suits the scores best there.
Medida MedirTramo(const Grupo& grupo, const TramoFase& tramo, std::size_t& numero) {
    std::vector<double> puntos, resultados, fuerte;
    for (std::size_t i = 0; i < grupo.Filas.size(); ++i) {
        const Fila& fila = grupo.Filas[i];
        if (fila.Fase < tramo.Desde || fila.Fase > tramo.Hasta) continue;
        puntos.push_back(grupo.Puntos[i]);
        resultados.push_back(fila.Resultado);
        fuerte.push_back(Sigmoide(fila.Centipeones / ESCALA_FUERTE));
    }
    numero = puntos.size();
    return {Perdida(puntos, resultados, MejorEscala(puntos, resultados)),
            Perdida(puntos, fuerte, MejorEscala(puntos, fuerte))};
}

void ImprimirPorFase(const char* titulo, const Grupo& grupo) {
    std::printf("%s\n  phase      rows   results   strong engine\n", titulo);
    for (const TramoFase& tramo : TRAMOS) {
        std::size_t  numero = 0;
        const Medida medida = MedirTramo(grupo, tramo, numero);
        std::printf("  %2d-%-2d  %8zu    %.5f         %.5f\n", tramo.Desde, std::min(tramo.Hasta, 24), numero,
                    medida.Resultados, medida.Fuerte);
    }
}

void ImprimirPasada(int pasada, double segundos, const Estado& estado) {
    const auto perdida = [&](const Grupo& grupo, const std::vector<double>& objetivos) {
        return Perdida(grupo.Puntos, objetivos, estado.Escala);
    };
    const Grupo& a = estado.Entrenamiento;
    const Grupo& p = estado.Prueba;
    std::printf("pass %2d, %4.0f s  train %.5f (results %.5f, strong %.5f)  test %.5f (results %.5f, strong %.5f)\n",
                pasada, segundos, perdida(a, a.Objetivos), perdida(a, a.Resultados), perdida(a, a.Fuerte),
                perdida(p, p.Objetivos), perdida(p, p.Resultados), perdida(p, p.Fuerte));
    std::fflush(stdout);
}

std::vector<bool> ElegirLibres(const FicheroPesos& fichero, const Opciones& opciones) {
    const auto nombrado = [](const std::vector<std::string>& nombres, const Miembro& miembro) {
        return std::find(nombres.begin(), nombres.end(), miembro.Nombre) != nombres.end();
    };
    for (const auto& nombres : {opciones.Solo, opciones.Salvo})
        for (const std::string& nombre : nombres)
            if (std::none_of(fichero.Miembros.begin(), fichero.Miembros.end(),
                             [&](const Miembro& miembro) { return miembro.Nombre == nombre; }))
                throw ErrorDeUso("no member of the record is called " + nombre);
    std::vector<bool> libres;
    for (const Miembro& miembro : fichero.Miembros)
        libres.insert(
            libres.end(), miembro.Numero,
            (opciones.Solo.empty() || nombrado(opciones.Solo, miembro)) && !nombrado(opciones.Salvo, miembro));
    return libres;
}

Eigen::VectorXd Diferencia(const std::vector<int>& a, const std::vector<int>& b) {
    Eigen::VectorXd diferencia(static_cast<Eigen::Index>(a.size()));
    for (std::size_t i = 0; i < a.size(); ++i) diferencia[static_cast<Eigen::Index>(i)] = a[i] - b[i];
    return diferencia;
}

// Values that a weight may take. The attack on the king indexes a table and must not become negative; a factor is a
// percentage of the score: 0 means a dead draw to the engine, and much beyond 100 an ending would outweigh a won one.
struct Margen {
    int Minimo = std::numeric_limits<int>::min();
    int Maximo = std::numeric_limits<int>::max();
};

std::vector<Margen> Margenes(const std::vector<Miembro>& miembros) {
    std::vector<Margen> margenes;
    for (const Miembro& miembro : miembros) {
        Margen margen;
        if (miembro.Nombre.starts_with("PESO_")) margen = {.Minimo = 0};
        if (miembro.Nombre.starts_with("FACTOR_")) margen = {.Minimo = 1, .Maximo = 150};
        margenes.insert(margenes.end(), miembro.Numero, margen);
    }
    return margenes;
}

std::vector<int> Redondear(const std::vector<int>& pesos, const Eigen::VectorXd& paso,
                           const std::vector<Margen>& margenes) {
    std::vector<int> nuevos;
    for (std::size_t i = 0; i < pesos.size(); ++i) {
        const int nuevo = pesos[i] + static_cast<int>(std::lround(paso[static_cast<Eigen::Index>(i)]));
        nuevos.push_back(std::clamp(nuevo, margenes[i].Minimo, margenes[i].Maximo));
    }
    return nuevos;
}

// Newton's method. Each pass evaluates every row anew with whole weights, so that what is not linear in them (the
// attack on the king, the better of two shelters) is seen as it is there; a step that does not help is halved.
std::vector<int> Afinar(Estado& estado, const Opciones& opciones, const FicheroPesos& fichero) {
    constexpr int             MITADES_MAX = 4;
    const auto                principio   = std::chrono::steady_clock::now();
    const auto                filas       = static_cast<double>(estado.Entrenamiento.Filas.size());
    const std::vector<bool>   libres      = ElegirLibres(fichero, opciones);
    const std::vector<Muelle> muelles     = CrearMuelles(fichero.Miembros, opciones.Muelles);
    const std::vector<Margen> margenes    = Margenes(fichero.Miembros);
    const std::vector<int>    iniciales   = LeerPesos();
    std::vector<int>          pesos       = iniciales;
    const auto                total       = [&] {
        return Perdida(estado.Entrenamiento.Puntos, estado.Entrenamiento.Objetivos, estado.Escala) +
               EnergiaMuelles(muelles, Diferencia(pesos, iniciales)) / filas;
    };
    double perdida = total();
    ImprimirPasada(0, SegundosDesde(principio), estado);
    for (int pasada = 1; pasada <= opciones.Pasadas; ++pasada) {
        const std::vector<int> antes = pesos;
        Eigen::VectorXd paso  = PasoDeNewton(estado.Muestras_, estado.Escala, Diferencia(pesos, iniciales), muelles,
                                             libres, opciones.Hilos);
        double          nueva = perdida;
        for (int mitades = 0; mitades <= MITADES_MAX; ++mitades, paso /= 2) {
            pesos = Redondear(antes, paso, margenes);
            PonerPesos(pesos);
            Observar(estado);
            nueva = total();
            if (nueva < perdida) break;
        }
        ImprimirPasada(pasada, SegundosDesde(principio), estado);
        const double ganancia = perdida - nueva;
        if (ganancia < 0) pesos = antes;
        if (ganancia < GANANCIA_MIN) break;
        perdida = nueva;
    }
    PonerPesos(pesos);
    Observar(estado);
    return pesos;
}

std::string LeerFichero(const std::string& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    if (!fichero) throw std::runtime_error("cannot read " + ruta);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

void EscribirFichero(const std::string& ruta, const std::string& texto) {
    std::ofstream fichero(ruta, std::ios::binary);
    fichero << texto;
    fichero.close();
    if (!fichero) throw std::runtime_error("cannot write " + ruta);
}

FicheroPesos LeerFicheroPesos(const std::string& ruta) {
    FicheroPesos           fichero = InterpretarPesos(LeerFichero(ruta));
    const std::vector<int> pesos   = LeerPesos();
    const auto             igual   = [](const Literal& literal, int peso) { return literal.Valor == peso; };
    if (!std::equal(fichero.Literales.begin(), fichero.Literales.end(), pesos.begin(), pesos.end(), igual))
        throw std::runtime_error(ruta + " is not what this program was built from");
    return fichero;
}

void Medir(Estado& estado) {
    Observar(estado);
    ImprimirPorFase("all quiet rows for training", estado.Entrenamiento);
    ImprimirPorFase("all quiet rows for testing", estado.Prueba);
}

void AfinarYEscribir(Estado& estado, const Opciones& opciones) {
    const FicheroPesos fichero = LeerFicheroPesos(opciones.Pesos);
    ElegirLibres(fichero, opciones);  // complains about a wrong name before the work begins
    Observar(estado);
    FijarObjetivos(estado, opciones.Mezcla);
    ImprimirPorFase("test rows before", estado.Prueba);
    const std::vector<int> pesos = Afinar(estado, opciones, fichero);
    ImprimirPorFase("test rows after", estado.Prueba);
    EscribirFichero(opciones.Pesos, TextoConPesos(fichero, pesos));
    std::printf("written: %s\n", opciones.Pesos.c_str());
}

}  // namespace

int main(int argc, char** argv) {
    try {
        const Opciones opciones = LeerOpciones({argv + 1, argv + argc});
        ArrancarMotor();
        const Datos datos = LeerDatos(opciones.Fichero);
        Estado      estado;
        Repartir(datos, opciones, estado);
        if (opciones.Medir)
            Medir(estado);
        else
            AfinarYEscribir(estado, opciones);
        return EXITO;
    } catch (const ErrorDeUso& error) {
        std::fprintf(stderr, "afinar: %s\n%s", error.what(), USO);
        return ERROR_DE_USO;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "afinar: %s\n", error.what());
        return FALLO;
    }
}
