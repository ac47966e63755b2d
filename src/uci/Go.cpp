#include "uci/Go.h"

#include <cstdlib>
#include <cstring>

#include "board/Color.h"
#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "board/Tablero.h"
#include "book/Libro.h"
#include "book/LibroSql.h"
#include "plataforma/Reloj.h"
#include "plataforma/Salida.h"
#include "search/Buscar.h"

constexpr int JUGADAS_PREVISTAS = 130;  // plies after which a game on one clock is expected to end
constexpr int DIVISOR_MIN       = 2;

// Sudden death: own clock in milliseconds below which the budget shrinks, and what is spent then.
constexpr std::int32_t RELOJ_ESCASO     = 20000;
constexpr std::int32_t RELOJ_APURADO    = 10000;
constexpr std::int64_t TIEMPO_UTIL      = 1000;  // with a scarce clock a smaller share is not used as it is
constexpr std::int64_t TIEMPO_ESCASO    = 1000;  // then spent without an increment
constexpr std::int64_t TIEMPO_APURADO   = 500;
constexpr double       MARGEN_RELOJ     = 250;  // milliseconds added to a share of an ample clock
constexpr double       PARTE_INCREMENTO = 0.6;  // of the increment, with moves to go

// --- Parameters ---

// Reads the word of a value; *valor stays as it is when the word is no number.
static const char* LeerValor(const char* texto, std::int32_t* valor) {
    char        palabra[PALABRA_MAX];
    const char* resto = Split_String(texto, palabra);
    if (Es_Numero(palabra) != 0) *valor = NumeroDe32Bits(palabra);
    return resto;
}

static const char* LeerProfundidad(const char* texto, int* profundidad) {
    char        palabra[PALABRA_MAX];
    const char* resto = Split_String(texto, palabra);
    if (Es_Numero(palabra) == 0) return resto;
    *profundidad = NumeroAcotado(palabra, PROFUNDIDAD_MAX) + 1;
    return resto;
}

// A number of any size: it is read as floating point, so that a huge one stays huge.
static const char* LeerMovimientosPorControl(const char* texto, std::int32_t* movimientos) {
    char        palabra[PALABRA_MAX];
    const char* resto = Split_String(texto, palabra);
    if (Es_Numero(palabra) == 0) return resto;
    const double valor = std::strtod(palabra, nullptr);
    *movimientos       = valor >= INT32_MAX ? INT32_MAX : static_cast<std::int32_t>(valor);
    return resto;
}

ParametrosGo LeerParametrosGo(const char* texto) {
    ParametrosGo p{};
    char         palabra[PALABRA_MAX];
    const auto   es = [&palabra](const char* clave) { return std::strcmp(palabra, clave) == 0; };
    for (const char* resto = Split_String(texto, palabra); palabra[0] != '\0'; resto = Split_String(resto, palabra)) {
        if (es("wtime"))
            resto = LeerValor(resto, &p.RelojBlancas);
        else if (es("btime"))
            resto = LeerValor(resto, &p.RelojNegras);
        else if (es("winc"))
            resto = LeerValor(resto, &p.IncrementoBlancas);
        else if (es("binc"))
            resto = LeerValor(resto, &p.IncrementoNegras);
        else if (es("infinite")) {
            p.Infinito    = 1;
            p.Profundidad = PROFUNDIDAD_SIN_LIMITE;
        } else if (es("depth"))
            resto = LeerProfundidad(resto, &p.Profundidad);
        else if (es("movestogo"))
            resto = LeerMovimientosPorControl(resto, &p.MovimientosPorControl);
        else if (es("movetime"))
            resto = LeerValor(resto, &p.TiempoFijo);
    }
    return p;
}

// --- Budget ---

// One share of the clock plus a margin, truncated to milliseconds. The quotient has single precision.
static std::int64_t PorcionReloj(std::int32_t tiempo, int divisor, double margen) {
    const float cociente = static_cast<float>(tiempo) / static_cast<float>(divisor);
    return static_cast<std::int64_t>(static_cast<double>(cociente) + margen + 0.5);
}

static std::int64_t TiempoConControl(std::int32_t tiempo, std::int32_t incremento, int divisor) {
    return PorcionReloj(tiempo, divisor, 0) + static_cast<std::int64_t>(incremento * PARTE_INCREMENTO);
}

// Exactly RELOJ_APURADO falls under the last rule, which is the generous one.
static std::int64_t TiempoMuerteSubita(std::int32_t tiempo, std::int32_t incremento, int divisor) {
    if (tiempo < RELOJ_APURADO) return incremento != 0 ? incremento : TIEMPO_APURADO;
    if (tiempo > RELOJ_APURADO && tiempo < RELOJ_ESCASO) {
        const std::int64_t asignado = PorcionReloj(tiempo, divisor, 0) + incremento;
        if (asignado >= TIEMPO_UTIL) return asignado;
        return incremento != 0 ? incremento : TIEMPO_ESCASO;
    }
    return PorcionReloj(tiempo, divisor, MARGEN_RELOJ) + incremento;
}

static int DivisorMuerteSubita(int jugadas) {
    const int divisor = JUGADAS_PREVISTAS - jugadas;
    return divisor < DIVISOR_MIN ? DIVISOR_MIN : divisor;
}

// A budget lifts the depth limit, also one that was asked for.
static void AsignarTiempo(LimitesBusqueda& limites, std::int64_t tiempo) {
    limites.HayBusqueda    = 1;
    limites.Profundidad    = PROFUNDIDAD_SIN_LIMITE;
    limites.LimiteTiempo   = 1;
    limites.TiempoAsignado = static_cast<std::uint64_t>(tiempo);
}

LimitesBusqueda CalcularLimites(const ParametrosGo& p, int turno, int jugadas) {
    const std::int32_t tiempo     = turno == BLANCO ? p.RelojBlancas : p.RelojNegras;
    const std::int32_t incremento = turno == BLANCO ? p.IncrementoBlancas : p.IncrementoNegras;

    LimitesBusqueda limites{p.Profundidad != 0 ? 1 : 0, p.Profundidad, 0, 0, jugadas};
    if (p.TiempoFijo != 0) AsignarTiempo(limites, std::int64_t{p.TiempoFijo} - RESERVA_TIEMPO_FIJO);
    if (p.RelojBlancas == 0 || p.RelojNegras == 0) return limites;

    // Both clocks win over a fixed time and over a depth.
    if (p.MovimientosPorControl != 0) {
        limites.Divisor = p.MovimientosPorControl;
        AsignarTiempo(limites, TiempoConControl(tiempo, incremento, limites.Divisor));
    } else {
        limites.Divisor = DivisorMuerteSubita(jugadas);
        AsignarTiempo(limites, TiempoMuerteSubita(tiempo, incremento, limites.Divisor));
    }
    return limites;
}

// --- The command ---

static int ResponderConLibro() {
    if (LibroSql.Terminado != 0 || LibroSql.OwnBook == 0 || BuscarJugadaLibro() == 0) return 0;
    Imprimir("bestmove %s\n", LibroSql.Movimiento);
    Imprimir("info string Libro de aperturas.\n");
    return 1;
}

static void EmpezarBusqueda() {
    if (TableroGlobal.Turno != BLANCO && TableroGlobal.Turno != NEGRO) {
        Salir = 1;
        return;
    }
    TableroGlobal.Ply           = 0;
    TipoJuego.TiempoInicio      = ObtenerMilisegundos();
    TipoJuego.ProfundidadActual = 1;
    Buscar();
}

void Go(const char* texto) {
    if (ResponderConLibro() != 0) return;

    const ParametrosGo    parametros = LeerParametrosGo(texto);
    const LimitesBusqueda limites    = CalcularLimites(parametros, TableroGlobal.Turno, TipoJuego.MovimientosJugados);
    TipoJuego.Infinito               = parametros.Infinito;
    TipoJuego.ProfundidadLimite      = limites.Profundidad;
    TipoJuego.LimiteTiempo           = limites.LimiteTiempo;
    TipoJuego.TiempoAsignado         = limites.TiempoAsignado;
    TipoJuego.MovimientosJugados     = limites.Divisor;
    if (limites.HayBusqueda != 0) EmpezarBusqueda();
}
