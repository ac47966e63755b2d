// Micro-benchmarks of what the search does most, each over the same middlegame position or a handful of them.

#include <benchmark/benchmark.h>

#include "board/Ataques.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Posicion.h"
#include "board/Tablero.h"
#include "board/Zobrist.h"
#include "eval/Evaluar.h"
#include "search/Buscar.h"
#include "search/See.h"
#include "search/Transposicion.h"

constexpr char MEDIO_JUEGO[] = "fen r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1";

static void Generacion(benchmark::State& estado) {
    const auto       modo = static_cast<int>(estado.range(0));
    ListaMovimientos lista;
    for (auto _ : estado) benchmark::DoNotOptimize(GenerarMovimientos(modo, lista));
}
BENCHMARK(Generacion)->Arg(GENERAR_TODOS)->Arg(GENERAR_CAPTURAS);

static void HacerYDeshacer(benchmark::State& estado) {
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_TODOS, lista);
    for (auto _ : estado)
        for (int i = 0; i < numero; ++i) {
            benchmark::DoNotOptimize(HacerMovimientoConJaque(lista.Entradas[i].Movimiento, 0));
            DeshacerMovimiento();
        }
    estado.SetItemsProcessed(estado.iterations() * numero);
}
BENCHMARK(HacerYDeshacer);

static void Ataque(benchmark::State& estado) {
    int casilla = 0;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(JaqueNegras(casilla));
        casilla = (casilla + 1) & 63;
    }
}
BENCHMARK(Ataque);

static void Evaluacion(benchmark::State& estado) {
    for (auto _ : estado) benchmark::DoNotOptimize(Evaluar());
}
BENCHMARK(Evaluacion);

// Every capture of the position, made and weighed.
static void Intercambio(benchmark::State& estado) {
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_CAPTURAS, lista);
    for (auto _ : estado)
        for (int i = 0; i < numero; ++i) {
            const std::uint32_t mov = lista.Entradas[i].Movimiento;
            HacerMovimiento(mov);
            benchmark::DoNotOptimize(See(mov, TableroGlobal.Turno));
            DeshacerMovimiento();
        }
    estado.SetItemsProcessed(estado.iterations() * numero);
}
BENCHMARK(Intercambio);

static void SondaDeTabla(benchmark::State& estado) {
    const std::uint64_t key = TableroGlobal.Key;
    int                 puntos;
    std::uint32_t       mov;
    for (auto _ : estado) {
        TableroGlobal.Key = TableroGlobal.Key * 6364136223846793005U + 1442695040888963407U;
        benchmark::DoNotOptimize(RecuperarPosicion(-1, 0, 3, &puntos, &mov));
    }
    TableroGlobal.Key = key;
}
BENCHMARK(SondaDeTabla);

int main(int argc, char** argv) {
    constexpr int SIN_CACHE = 16;  // megabytes; below 32 there is no evaluation cache, so every call evaluates
    CrearTablaCasillas();
    Iniciar_Evaluacion();
    Iniciar_Busqueda();
    InicializarZobrist(1);
    CrearTransposicion(SIN_CACHE);
    Position_Fen_Startpos(MEDIO_JUEGO);
    Iniciar_Asimetrico();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
