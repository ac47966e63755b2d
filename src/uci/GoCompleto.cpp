#include "uci/GoCompleto.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <cstring>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Palabras.h"
#include "board/Tablero.h"
#include "book/Libro.h"
#include "book/LibroSql.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "search/Buscar.h"
#include "search/Informe.h"
#include "uci/SondeoCompleto.h"

constexpr std::int64_t NO_DADO = ParametrosGoCompleto::NO_DADO;

constexpr std::int64_t VALOR_GO_MAX = std::int64_t{1} << 53;  // larger values mean the same

// Shares of a clock.
constexpr std::int64_t JUGADAS_PREVISTAS = 30;    // moves that the rest of a game is expected to last, at any time
constexpr double       PARTE_INCREMENTO  = 0.75;  // of the increment that one move takes
constexpr double       PARTE_MAX         = 0.6;   // of the clock that one move may take
constexpr std::int64_t TIEMPO_SIN_LIMITE = 5000;  // milliseconds, when no limit is given

// Iterations beyond the plies of a mate, which that many find for certain.
constexpr std::int64_t PROFUNDIDAD_MATE = 1;

// A limit of nodes is met within this part of it.
constexpr std::uint64_t PARTES_NODOS = 64;

// --- Parameters ---

// Reads the word of a number into *valor; a word that is none is left to be read as a word of its own.
static const char* LeerEntero(const char* texto, std::int64_t* valor) {
    char              palabra[PALABRA_MAX];
    const char* const resto = Split_String(texto, palabra);
    if (Es_Numero(palabra[0] == '-' ? palabra + 1 : palabra) == 0) return texto;
    *valor = std::clamp<std::int64_t>(std::strtoll(palabra, nullptr, 10), -VALOR_GO_MAX, VALOR_GO_MAX);
    return resto;
}

ParametrosGoCompleto LeerParametrosCompletos(const char* texto) {
    ParametrosGoCompleto p;
    const struct {
        const char*   Palabra;
        std::int64_t* Valor;
    } numeros[] = {
        {"wtime", &p.RelojBlancas},    {"btime", &p.RelojNegras},   {"winc", &p.IncrementoBlancas},
        {"binc", &p.IncrementoNegras}, {"depth", &p.Profundidad},   {"movestogo", &p.MovimientosPorControl},
        {"nodes", &p.Nodos},           {"movetime", &p.TiempoFijo}, {"mate", &p.MateEn},
    };
    char       palabra[PALABRA_MAX];
    const auto es = [&palabra](const char* clave) { return std::strcmp(palabra, clave) == 0; };
    for (const char* resto = Split_String(texto, palabra); palabra[0] != '\0'; resto = Split_String(resto, palabra)) {
        for (const auto& numero : numeros)
            if (es(numero.Palabra)) resto = LeerEntero(resto, numero.Valor);
        if (es("infinite")) p.Infinito = 1;
        if (es("ponder")) p.Ponder = 1;
        if (es("searchmoves")) p.Raiz = resto;
    }
    return p;
}

// --- Budget ---

static std::int64_t RepartirReloj(std::int64_t util, std::int64_t incremento, std::int64_t movimientos) {
    const std::int64_t partes = movimientos > 0 ? std::min(movimientos, JUGADAS_PREVISTAS) : JUGADAS_PREVISTAS;
    const auto         justa  = util / partes;  // whole milliseconds
    const double       parte  = static_cast<double>(justa) + static_cast<double>(incremento) * PARTE_INCREMENTO;
    return static_cast<std::int64_t>(std::min(parte, static_cast<double>(util) * PARTE_MAX));
}

static bool SinLimites(const ParametrosGoCompleto& p) {
    return p.Profundidad == NO_DADO && p.Nodos == NO_DADO && p.MateEn <= 0;
}

Presupuesto CalcularPresupuesto(const ParametrosGoCompleto& p, int turno, int margen) {
    const bool   blancas    = turno == BLANCO ? p.RelojBlancas != NO_DADO : p.RelojNegras == NO_DADO;
    const auto   reloj      = blancas ? p.RelojBlancas : p.RelojNegras;
    const auto   incremento = std::max<std::int64_t>(blancas ? p.IncrementoBlancas : p.IncrementoNegras, 0);
    std::int64_t asignado   = VALOR_GO_MAX;
    std::int64_t tope       = VALOR_GO_MAX;
    if (reloj != NO_DADO) {
        tope     = reloj - margen;
        asignado = RepartirReloj(tope, incremento, p.MovimientosPorControl);
    }
    if (p.TiempoFijo != NO_DADO) {  // a short one cannot spare the whole margin
        tope     = std::min(tope, p.TiempoFijo - std::min<std::int64_t>(margen, p.TiempoFijo / 2));
        asignado = std::min(asignado, tope);
    }
    if (tope == VALOR_GO_MAX && SinLimites(p)) asignado = tope = TIEMPO_SIN_LIMITE;
    const int hay_limite = tope != VALOR_GO_MAX ? 1 : 0;
    return {hay_limite, std::max<std::int64_t>(asignado, 1), std::max<std::int64_t>(tope, 1)};
}

// --- Root moves ---

// Does one of the words name the move?
static bool EstaNombrado(const char* palabras, std::uint32_t movimiento) {
    char coordenadas[COORDENADAS_MAX];
    char palabra[PALABRA_MAX];
    MovimientoCoordenadas(movimiento, coordenadas);
    for (const char* resto = Split_String(palabras, palabra); palabra[0] != '\0'; resto = Split_String(resto, palabra))
        if (std::strcmp(palabra, coordenadas) == 0) return true;
    return false;
}

// Fills the list of root moves with the legal ones among palabras. Returns the number of all legal moves.
static int ElegirRaiz(const char* palabras) {
    ListaMovimientos lista;
    const int        numero  = GenerarMovimientos(GENERAR_TODOS, lista);
    int              legales = 0;
    UciCompleto.NumeroRaiz   = 0;
    for (int i = 0; i < numero; ++i) {
        const std::uint32_t movimiento = lista.Entradas[i].Movimiento;
        if (EsLegal(movimiento) == 0) continue;
        ++legales;
        if (palabras != nullptr && EstaNombrado(palabras, movimiento))
            UciCompleto.Raiz[UciCompleto.NumeroRaiz++] = movimiento;
    }
    return legales;
}

// --- The command ---

// Analysis is no game: the book keeps out of it.
static bool ResponderConLibro(const ParametrosGoCompleto& p) {
    if (p.Infinito != 0 || p.Ponder != 0 || p.MateEn > 0 || p.Raiz != nullptr || BuscarJugadaLibro() == 0) return false;
    Imprimir("info string Libro de aperturas.\n");
    Imprimir("bestmove %s\n", LibroSql.Movimiento);
    return true;
}

static int ElegirProfundidad(const ParametrosGoCompleto& p) {
    std::int64_t profundidad = PROFUNDIDAD_MAX;
    if (p.Profundidad != NO_DADO) profundidad = std::clamp<std::int64_t>(p.Profundidad, 0, profundidad);
    if (p.MateEn > 0) profundidad = std::min(profundidad, 2 * p.MateEn - 1 + PROFUNDIDAD_MATE);
    return static_cast<int>(profundidad) + 1;
}

static void FijarLimites(const ParametrosGoCompleto& p, std::int64_t gastado) {
    const bool        analisis    = p.Infinito != 0;
    const Presupuesto presupuesto = CalcularPresupuesto(p, TableroGlobal.Turno, UciCompleto.MargenReloj);
    const auto        restante    = [gastado](std::int64_t tiempo) {
        return static_cast<std::uint64_t>(std::max<std::int64_t>(tiempo - gastado, 1));
    };
    TipoJuego.Parar             = 0;
    TipoJuego.Infinito          = p.Infinito;
    TipoJuego.ProfundidadLimite = ElegirProfundidad(p);
    TipoJuego.LimiteTiempo      = analisis ? 0 : presupuesto.HayLimite;
    TipoJuego.TiempoAsignado    = restante(presupuesto.Asignado);
    UciCompleto.TiempoTope      = restante(presupuesto.Tope);
    UciCompleto.SinFin          = analisis || p.Ponder != 0 ? 1 : 0;
    UciCompleto.Ponderando      = p.Ponder;
    UciCompleto.MateBuscado     = static_cast<int>(std::clamp<std::int64_t>(p.MateEn, 0, PROFUNDIDAD_MAX));
    UciCompleto.LimiteNodos =
        p.Nodos == NO_DADO || analisis ? 0 : static_cast<std::uint64_t>(std::max<std::int64_t>(p.Nodos, 1));
    UciCompleto.MascaraSondeo = MASCARA_SONDEO;
    if (UciCompleto.LimiteNodos != 0)
        UciCompleto.MascaraSondeo =
            std::min(MASCARA_SONDEO, std::bit_floor(UciCompleto.LimiteNodos / PARTES_NODOS + 1) - 1);
}

static void ResponderSinMovimiento() {
    Imprimir("info depth 0 score %s\n", TurnoEnJaque() == EN_JAQUE ? "mate 0" : "cp 0");
    EsperarFinDeAnalisis();
    ImprimirMejorMovimiento(0, 0);
    TerminarBusqueda();
}

static void BuscarCompleto() {
    const int puntos = BuscarIterativo();
    EsperarFinDeAnalisis();
    ImprimirMejorJugada(puntos);
    TerminarBusqueda();
}

void GoCompleto(const char* texto) {
    const std::uint64_t        recibido = ObtenerMilisegundos();
    const ParametrosGoCompleto p        = LeerParametrosCompletos(texto);
    if (ResponderConLibro(p)) return;
    const int legales = ElegirRaiz(p.Raiz);
    FijarLimites(p, static_cast<std::int64_t>(ObtenerMilisegundos() - recibido));
    if (legales == 0)
        ResponderSinMovimiento();
    else
        BuscarCompleto();
    UciCompleto.NumeroRaiz    = 0;
    UciCompleto.MateBuscado   = 0;
    UciCompleto.MascaraSondeo = MASCARA_SONDEO;
}
