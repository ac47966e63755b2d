#include "afinar/Regresion.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <thread>

namespace {

constexpr double ESCALA_MIN   = 0.1 / 400;  // per centipawn
constexpr double ESCALA_MAX   = 4.0 / 400;
constexpr double RAZON_AUREA  = 0.618;
constexpr int    PASOS_AUREOS = 30;

// Rows of the upper triangle of the matrix are contiguous, in the order in which the coefficients of a row come.
using Matriz = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

struct Sistema {
    Matriz          Curvatura;  // upper triangle only
    Eigen::VectorXd Gradiente;

    explicit Sistema(Eigen::Index n) : Curvatura(Matriz::Zero(n, n)), Gradiente(Eigen::VectorXd::Zero(n)) {}
};

// log(1 + exp(x)) without overflow.
double LogUnoMasExp(double x) {
    return x > 0 ? x + std::log1p(std::exp(-x)) : std::log1p(std::exp(x));
}

void Acumular(const Muestras& muestras, std::size_t desde, std::size_t hasta, double escala, Sistema& sistema) {
    for (std::size_t i = desde; i < hasta; ++i) {
        const Muestra&     muestra   = muestras.Filas[i];
        const Coeficiente* primero   = muestras.Coeficientes.data() + muestra.Primero;
        const Coeficiente* fin       = primero + muestra.Numero;
        const double       p         = Sigmoide(escala * muestra.Puntos);
        const double       pendiente = escala * (p - muestra.Objetivo);
        const double       curvatura = escala * escala * p * (1 - p);
        for (const Coeficiente* a = primero; a != fin; ++a) {
            double* const fila  = sistema.Curvatura.row(a->Peso).data();
            const double  valor = static_cast<double>(a->Valor);
            const double  peso  = curvatura * valor;
            sistema.Gradiente[a->Peso] += pendiente * valor;
            for (const Coeficiente* b = a; b != fin; ++b) fila[b->Peso] += peso * static_cast<double>(b->Valor);
        }
    }
}

void SumarMuelle(const Muelle& muelle, const Eigen::VectorXd& desvio, Sistema& sistema) {
    const auto a = static_cast<Eigen::Index>(muelle.A);
    sistema.Curvatura(a, a) += muelle.Fuerza;
    if (muelle.B == SIN_PAREJA) {
        sistema.Gradiente[a] += muelle.Fuerza * desvio[a];
        return;
    }
    const auto   b     = static_cast<Eigen::Index>(muelle.B);
    const double fuera = muelle.Fuerza * (desvio[a] - desvio[b]);
    sistema.Gradiente[a] += fuera;
    sistema.Gradiente[b] -= fuera;
    sistema.Curvatura(b, b) += muelle.Fuerza;
    sistema.Curvatura(std::min(a, b), std::max(a, b)) -= muelle.Fuerza;
}

// A weight that must not move gets an equation of its own: 1 * step = 0.
void Fijar(Eigen::Index i, Sistema& sistema) {
    sistema.Curvatura.row(i).setZero();
    sistema.Curvatura.col(i).setZero();
    sistema.Curvatura(i, i) = 1;
    sistema.Gradiente[i]    = 0;
}

}  // namespace

double Sigmoide(double x) {
    return 1 / (1 + std::exp(-x));
}

double Perdida(std::span<const double> puntos, std::span<const double> objetivos, double escala) {
    double suma = 0;
    for (std::size_t i = 0; i < puntos.size(); ++i) {
        const double x = escala * puntos[i];
        suma += LogUnoMasExp(x) - objetivos[i] * x;
    }
    return puntos.empty() ? 0 : suma / static_cast<double>(puntos.size());
}

double MejorEscala(std::span<const double> puntos, std::span<const double> objetivos) {
    double baja = ESCALA_MIN, alta = ESCALA_MAX;
    for (int i = 0; i < PASOS_AUREOS; ++i) {
        const double a = alta - RAZON_AUREA * (alta - baja);
        const double b = baja + RAZON_AUREA * (alta - baja);
        if (Perdida(puntos, objetivos, a) < Perdida(puntos, objetivos, b))
            alta = b;
        else
            baja = a;
    }
    return (baja + alta) / 2;
}

double EnergiaMuelles(const std::vector<Muelle>& muelles, const Eigen::VectorXd& desvio) {
    double suma = 0;
    for (const Muelle& muelle : muelles) {
        const double b = muelle.B == SIN_PAREJA ? 0 : desvio[static_cast<Eigen::Index>(muelle.B)];
        const double x = desvio[static_cast<Eigen::Index>(muelle.A)] - b;
        suma += muelle.Fuerza * x * x / 2;
    }
    return suma;
}

Eigen::VectorXd PasoDeNewton(const Muestras& muestras, double escala, const Eigen::VectorXd& desvio,
                             const std::vector<Muelle>& muelles, const std::vector<bool>& libres, int hilos) {
    const Eigen::Index       n = desvio.size();
    std::vector<Sistema>     partes(static_cast<std::size_t>(hilos), Sistema(n));
    std::vector<std::thread> obreros;
    const std::size_t        filas = muestras.Filas.size();
    for (std::size_t h = 0; h < partes.size(); ++h)
        obreros.emplace_back([&, h] {
            Acumular(muestras, filas * h / partes.size(), filas * (h + 1) / partes.size(), escala, partes[h]);
        });
    for (std::thread& obrero : obreros) obrero.join();

    Sistema& sistema = partes[0];
    for (std::size_t h = 1; h < partes.size(); ++h) {
        sistema.Curvatura += partes[h].Curvatura;
        sistema.Gradiente += partes[h].Gradiente;
    }
    for (const Muelle& muelle : muelles) SumarMuelle(muelle, desvio, sistema);
    for (Eigen::Index i = 0; i < n; ++i)
        if (!libres[static_cast<std::size_t>(i)] || sistema.Curvatura(i, i) <= 0) Fijar(i, sistema);

    const Eigen::LLT<Eigen::MatrixXd, Eigen::Upper> factores(sistema.Curvatura);
    if (factores.info() != Eigen::Success)
        throw std::runtime_error("the weights cannot be told apart: pull them towards their values (--sigma)");
    return -factores.solve(sistema.Gradiente);
}
