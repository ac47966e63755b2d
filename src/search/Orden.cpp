#include "search/Orden.h"

#include <cassert>
#include <utility>

#include "search/Historico.h"

// An en-passant capture is a pawn taking a pawn.
constexpr int ORDEN_AL_PASO = valor_captura[PEON_B][PEON_N];

// How a band of quiet moves maps history to scores. Deliberate oddities: among killers a lower history ranks
// higher, and a move never tried ranks behind the moves that failed.
struct BandaTranquila {
    int Base[3];  // for a history below 0, for none, and for one above
    int Signo;    // +1 when the percentage is added to the base, -1 when it is taken off
};
constexpr BandaTranquila BANDA_KILLER_MATE = {{2000001, 2000102, 2000000}, -1};
constexpr BandaTranquila BANDA_KILLER      = {{1000001, 1000102, 1000000}, -1};
constexpr BandaTranquila BANDA_REFUTACION  = {{499999, 499898, 500000}, +1};
constexpr BandaTranquila BANDA_RESTO       = {{-1, -102, 0}, +1};

// Reciprocals of the sizes of the extreme history values above 0 and below, computed once a list; 0 while there is no
// such value.
struct EscalaHistorico {
    float Inversos[2];
};

static EscalaHistorico ObtenerEscala() {
    return {{Max_Historico > 0 ? 1.0F / static_cast<float>(Max_Historico) : 0.0F,
             Min_Historico < 0 ? 1.0F / static_cast<float>(-Min_Historico) : 0.0F}};
}

// The quiet moves that something speaks for at this ply, read once a list: the tables that hold them could, for all the
// compiler knows, be written by each score.
struct Recomendados {
    std::uint32_t KillerMate[KILLERS];
    std::uint32_t Killer[KILLERS];
    std::uint32_t Refutacion;
    Conjunto      Destinos;  // where they go: most moves of a list go elsewhere, and need no further look
};

static Recomendados ObtenerRecomendados(int ply, std::uint32_t refutacion) {
    const auto& mates   = Historico_Killer_Mate[ply];
    const auto& killers = Historico_Killer[ply];
    return {{mates[0], mates[1]},
            {killers[0], killers[1]},
            refutacion,
            Bit(Hasta(mates[0])) | Bit(Hasta(mates[1])) | Bit(Hasta(killers[0])) | Bit(Hasta(killers[1])) |
                Bit(Hasta(refutacion))};
}

static const BandaTranquila& BandaDe(std::uint32_t movimiento, const Recomendados& recomendados) {
    const auto esta = [movimiento](const std::uint32_t(&en)[KILLERS]) {
        return movimiento == en[0] || movimiento == en[1];
    };
    if ((recomendados.Destinos & Bit(Hasta(movimiento))) == 0) return BANDA_RESTO;
    if (esta(recomendados.KillerMate)) return BANDA_KILLER_MATE;
    if (esta(recomendados.Killer)) return BANDA_KILLER;
    return movimiento == recomendados.Refutacion ? BANDA_REFUTACION : BANDA_RESTO;
}

// History as a percentage of the extreme value on its side: 0..100 or -100..0. Single precision, in this order of
// operations, so that every build orders alike. Nothing branches on the sign of the history, which is beyond any
// predictor.
static int PuntosTranquilo(std::uint32_t movimiento, const BandaTranquila& banda, const EscalaHistorico& escala) {
    const int   historico  = Historico_Bueno[PiezaMovida(movimiento)][Hasta(movimiento)];
    const int   signo      = (historico > 0) - (historico < 0);
    const float porcentaje = static_cast<float>(historico) * 100.0F * escala.Inversos[historico < 0];
    return banda.Base[signo + 1] + banda.Signo * static_cast<int>(porcentaje);
}

static int PuntosCaptura(std::uint32_t movimiento) {
    const auto captura = static_cast<std::size_t>(PiezaCapturada(movimiento));
    if (EsCoronacion(movimiento))
        return valor_captura_coronacion[static_cast<std::size_t>(PiezaCoronada(movimiento))][captura];
    return valor_captura[static_cast<std::size_t>(PiezaMovida(movimiento))][captura];
}

void OrdenarMovimientosTodos(int numero, std::uint32_t tabla, ListaMovimientos& lista, std::uint32_t refutacion) {
    const EscalaHistorico escala       = ObtenerEscala();
    const Recomendados    recomendados = ObtenerRecomendados(TableroGlobal.Ply, refutacion);
    for (int i = 0; i < numero; ++i) {
        const std::uint32_t movimiento = lista.Entradas[i].Movimiento;
        std::int32_t&       puntos     = lista.Entradas[i].Puntos;
        if (movimiento == tabla)
            puntos = ORDEN_TABLA;
        else if (EsTranquilo(movimiento))
            puntos = PuntosTranquilo(movimiento, BandaDe(movimiento, recomendados), escala);
        else if (EsAlPaso(movimiento))
            puntos = ORDEN_AL_PASO;
        else if (EsCaptura(movimiento))
            puntos = PuntosCaptura(movimiento);
        else
            puntos = valor_coronacion[static_cast<std::size_t>(PiezaCoronada(movimiento))];
    }
}

std::uint32_t SiguienteMovimiento(ListaMovimientos& lista, int indice, int numero) {
    assert(indice >= 0 && indice < numero && numero <= MOVIMIENTOS_MAX);
    int mejor = indice;
    for (int i = indice + 1; i < numero; ++i)
        if (lista.Entradas[i].Puntos > lista.Entradas[mejor].Puntos) mejor = i;
    std::swap(lista.Entradas[indice], lista.Entradas[mejor]);
    return lista.Entradas[indice].Movimiento;
}
