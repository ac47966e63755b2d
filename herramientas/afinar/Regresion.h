// Logistic regression on sparse rows: losses, scales and the Newton step. Knows nothing of chess.
//
// A row's score is Puntos at the present weights and changes by Coeficiente for each unit of a weight; the probability
// that White wins is 1 / (1 + exp(-escala * score)). Where a row's target is no 0 or 1 but something between, the loss
// is the cross entropy.
#pragma once

#include <Eigen/Dense>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

struct Coeficiente {
    std::uint32_t Peso;   // index of the weight
    float         Valor;  // centipawns of the score, White's view, for one unit of it
};

struct Muestra {
    double      Puntos;    // score at the present weights, centipawns, White's view
    double      Objetivo;  // 0 .. 1
    std::size_t Primero;   // its coefficients: [Primero, Primero + Numero) of Muestras::Coeficientes
    std::size_t Numero;
};

struct Muestras {
    std::vector<Muestra>     Filas;
    std::vector<Coeficiente> Coeficientes;  // of a row, by ascending weight
};

// What pulls weights: "Fuerza * (difference)^2 / 2" is added to the summed loss, where difference is that of weight A
// from its starting value, less that of weight B from its own when there is a B.
struct Muelle {
    std::size_t A;
    std::size_t B;  // SIN_PAREJA: none
    double      Fuerza;
};
inline constexpr std::size_t SIN_PAREJA = static_cast<std::size_t>(-1);

// Mean loss of the scores against the targets.
double Perdida(std::span<const double> puntos, std::span<const double> objetivos, double escala);

// The scale with the least mean loss, by golden section: the loss is convex in it.
double MejorEscala(std::span<const double> puntos, std::span<const double> objetivos);

double Sigmoide(double x);

// The change of the weights that minimises the second-order expansion of summed loss and springs, for muestras at the
// present weights. desvio: present minus starting weights. Only weights with libres true move. Uses `hilos` threads.
Eigen::VectorXd PasoDeNewton(const Muestras& muestras, double escala, const Eigen::VectorXd& desvio,
                             const std::vector<Muelle>& muelles, const std::vector<bool>& libres, int hilos);

// The part of the springs in the summed loss.
double EnergiaMuelles(const std::vector<Muelle>& muelles, const Eigen::VectorXd& desvio);
