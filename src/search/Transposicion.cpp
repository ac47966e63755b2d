#include "search/Transposicion.h"

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <limits>

#include "board/EstadoMotor.h"
#include "board/Puntuacion.h"
#include "plataforma/Memoria.h"
#include "plataforma/Salida.h"

RegistroTT_Opciones TT_Opciones;
CuboTransposicion*  TT_Datos = nullptr;
EntradaCache*       TT_Cache = nullptr;
DivisorFijo         DivisorCubos;
DivisorFijo         DivisorCache;

constexpr int           MEGAS_MIN       = 1;
constexpr int           MEGAS_MAX       = 2048;
constexpr int           MEGAS_CON_CACHE = 32;  // from this size on the cache gets its share
constexpr int           PARTE_CACHE     = 8;   // one part in so many, to the nearest megabyte
constexpr std::uint64_t MEGA            = 1U << 20;
constexpr int           EDAD_MIN        = 1;    // 0 is the age of an empty way
constexpr int           PROFUNDIDAD_TT  = 126;  // deepest depth that is kept
constexpr int           BITS_CAMPO      = 7;
constexpr int           MASCARA_CAMPO   = (1 << BITS_CAMPO) - 1;

// Sizes of the blocks in use. The option fields cannot tell them: "setoption" changes those at any time.
static std::size_t BytesDatos = 0;
static std::size_t BytesCache = 0;

static int ProfundidadDe(const EntradaTransposicion& via) {
    return via.Info & MASCARA_CAMPO;
}
static int EdadDe(const EntradaTransposicion& via) {
    return (via.Info >> BITS_CAMPO) & MASCARA_CAMPO;
}
static int CotaDe(const EntradaTransposicion& via) {
    return via.Info >> (2 * BITS_CAMPO);
}

// The fields end at their largest value instead of running into one another. What is no bound never decides a node.
static std::uint16_t CrearInfo(int profundidad, int cota) {
    const int edad = std::clamp(TT_Opciones.Edad, EDAD_MIN, EDAD_MAX);
    const int tipo = cota > COTA_INFERIOR ? 0 : cota;
    return static_cast<std::uint16_t>(std::clamp(profundidad, 0, PROFUNDIDAD_TT) | (edad << BITS_CAMPO) |
                                      (tipo << (2 * BITS_CAMPO)));
}

// A mate is stored by its distance from the node and read back by its distance from the root, since the same
// position is reached at different plies. Scores of the tablebases leave the ply out: read nearer to the root than they
// were stored, they would pass the mate limit, beyond which no score may go.
static int PuntosDesdeNodo(int puntos) {
    if (puntos > UMBRAL_MATE) return puntos + TableroGlobal.Ply;
    if (puntos < -UMBRAL_MATE) return puntos - TableroGlobal.Ply;
    return puntos;
}
static int PuntosDesdeRaiz(int puntos) {
    if (puntos > UMBRAL_MATE) return std::min(puntos - TableroGlobal.Ply, VALOR_MATE);
    if (puntos < -UMBRAL_MATE) return std::max(puntos + TableroGlobal.Ply, -VALOR_MATE);
    return puntos;
}

// One bucket is one cache line: a probe waits for memory once, however many ways it looks at. The remainder uses every
// bit of the key, and lets the table have any number of buckets instead of a power of two.
static CuboTransposicion& CuboActual() {
    return CuboDe(TableroGlobal.Key);
}

// The way that holds the current position, nullptr = none. Whole keys are compared, so that only positions whose 64
// bits collide are confused. A store takes the way of its own key before any other, therefore a key stands in one way
// at most and the first match is the only one.
static const EntradaTransposicion* BuscarVia() {
    if (TT_Datos == nullptr) return nullptr;
    for (const EntradaTransposicion& via : CuboActual().Vias)
        if (via.Key == TableroGlobal.Key) return &via;
    return nullptr;
}

// Evaluating a position costs far more than a probe, and the entries of the cache are small: an eighth of the memory
// spares most repeated evaluations. A small table needs all it has.
static void RepartirMemoria(int megas) {
    const int total         = std::clamp(megas, MEGAS_MIN, MEGAS_MAX);
    TT_Opciones.MegasCache  = total < MEGAS_CON_CACHE ? 0 : (total + PARTE_CACHE / 2) / PARTE_CACHE;
    TT_Opciones.Megas       = total - TT_Opciones.MegasCache;
    TT_Opciones.NumeroCubos = static_cast<std::uint64_t>(TT_Opciones.Megas) * (MEGA / sizeof(CuboTransposicion));
    TT_Opciones.NumeroCache = static_cast<std::uint64_t>(TT_Opciones.MegasCache) * (MEGA / sizeof(EntradaCache));
    DivisorCubos            = CrearDivisor(TT_Opciones.NumeroCubos);
    DivisorCache            = CrearDivisor(TT_Opciones.NumeroCache);
}

void LiberarTransposicion() {
    LiberarMemoria(TT_Datos, BytesDatos);
    LiberarMemoria(TT_Cache, BytesCache);
    TT_Datos = nullptr;
    TT_Cache = nullptr;
}

static void QuedarseSinMemoria() {
    Imprimir("info string Memoria insuficiente para la tabla hash.\n");
    LiberarTransposicion();
    Salir = 1;
}

static void IniciarContadores() {
    TT_Opciones.Edad           = EDAD_MIN;
    TT_Opciones.Usadas         = 0;
    TT_Opciones.Sobrescrituras = 0;
}

void CrearTransposicion(int megas) {
    LiberarTransposicion();
    RepartirMemoria(megas);
    BytesDatos = (TT_Opciones.NumeroCubos + 1) * sizeof(CuboTransposicion);
    BytesCache = TT_Opciones.MegasCache == 0 ? 0 : (TT_Opciones.NumeroCache + 1) * sizeof(EntradaCache);

    TT_Datos = static_cast<CuboTransposicion*>(ReservarMemoria(BytesDatos));
    if (BytesCache != 0) TT_Cache = static_cast<EntradaCache*>(ReservarMemoria(BytesCache));
    if (TT_Datos == nullptr || (BytesCache != 0 && TT_Cache == nullptr)) QuedarseSinMemoria();
    IniciarContadores();  // the memory itself comes empty
}

void OcuparTransposicion() {
    OcuparMemoria(TT_Datos, BytesDatos);
    OcuparMemoria(TT_Cache, BytesCache);
}

void LimpiarTransposicion() {
    if (VaciarMemoria(TT_Datos, BytesDatos) == 0) QuedarseSinMemoria();
    LimpiarCache();
    IniciarContadores();
}

void LimpiarCache() {
    if (VaciarMemoria(TT_Cache, BytesCache) == 0) QuedarseSinMemoria();
}

static void ContarUsada() {
    if (TT_Opciones.Usadas < VIAS_CUBO * TT_Opciones.NumeroCubos) ++TT_Opciones.Usadas;
}

// The way that a new position takes in a full bucket. Older entries go first: their searches are over. Of two of the
// same age the deeper one goes, deliberately: shallow ones are what a search keeps meeting, and a deep one is found
// again by the move that its parent holds. Each step to an older candidate counts as used by this search, so that
// "hashfull" also grows in a table that earlier searches have filled.
static EntradaTransposicion& ElegirVictima(CuboTransposicion& cubo) {
    EntradaTransposicion* victima = &cubo.Vias[0];
    for (EntradaTransposicion& via : cubo.Vias) {
        if (EdadDe(via) < EdadDe(*victima)) {
            ContarUsada();
            victima = &via;
        } else if (EdadDe(via) == EdadDe(*victima) && ProfundidadDe(via) > ProfundidadDe(*victima)) {
            victima = &via;
        }
    }
    return *victima;
}

// The way to write: that of the same key, an empty one, or the victim. Ways fill from the first one and are only
// emptied all together, so no way behind an empty one can hold the key.
static EntradaTransposicion& ElegirVia(CuboTransposicion& cubo) {
    for (EntradaTransposicion& via : cubo.Vias) {
        if (via.Key == TableroGlobal.Key) {
            if (TT_Opciones.Sobrescrituras < std::numeric_limits<int>::max()) ++TT_Opciones.Sobrescrituras;
            return via;
        }
        if (via.Key == 0) {
            ContarUsada();
            return via;
        }
    }
    return ElegirVictima(cubo);
}

void AlmacenarPosicion(int profundidad, int puntos, int cota, std::uint32_t movimiento) {
    assert(profundidad >= 0 && puntos >= -VALOR_INFINITO && puntos <= VALOR_INFINITO);
    if (TT_Datos == nullptr) return;
    EntradaTransposicion& via = ElegirVia(CuboActual());
    // A node that failed low knows no best move; that of an earlier visit is still the one to begin with.
    if (movimiento != 0 || via.Key != TableroGlobal.Key) via.Movimiento = movimiento;
    via.Key    = TableroGlobal.Key;
    via.Puntos = EmpaquetarPuntos(PuntosDesdeNodo(puntos));
    via.Info   = CrearInfo(profundidad, cota);
}

int RecuperarPosicion(int alfa, int beta, int profundidad, int* puntos, std::uint32_t* movimiento) {
    if (TT_Datos == nullptr) return 0;
    *puntos                         = -VALOR_INFINITO;
    *movimiento                     = 0;
    const EntradaTransposicion* via = BuscarVia();
    if (via == nullptr) return 0;

    *puntos     = DesempaquetarPuntos(via->Puntos);
    *movimiento = via->Movimiento;
    // A shallower search proves nothing, though its move is still welcome; nor does what is no bound.
    const int cota = CotaDe(*via);
    if (ProfundidadDe(*via) < profundidad || cota == 0) return 0;

    *puntos = PuntosDesdeRaiz(*puntos);
    switch (cota) {
        case COTA_EXACTA:
            return 1;
        case COTA_SUPERIOR:  // decides only when what the score can be at most is not above alfa
            return alfa >= std::min(beta, *puntos);
        default:  // COTA_INFERIOR: only when what it is at least reaches beta
            return std::max(alfa, *puntos) >= beta;
    }
}

std::uint32_t MovimientoDeTabla() {
    const EntradaTransposicion* via = BuscarVia();
    return via == nullptr ? 0 : via->Movimiento;
}

// The stored bound is compared as it is, a mate counted from the node included: this only saves a search that would
// fail, and proves nothing.
int DesaconsejaNulo(int alfa, int beta, int profundidad) {
    const EntradaTransposicion* via = BuscarVia();
    if (via == nullptr || CotaDe(*via) != COTA_SUPERIOR || ProfundidadDe(*via) < profundidad) return 0;
    const int puntos = DesempaquetarPuntos(via->Puntos);
    return puntos < beta && puntos <= alfa;
}

int Hashfull() {
    if (TT_Opciones.NumeroCubos == 0) return 0;
    const auto usadas = static_cast<float>(TT_Opciones.Usadas);
    return static_cast<int>(usadas / static_cast<float>(VIAS_CUBO * TT_Opciones.NumeroCubos) * 1000.0F);
}
