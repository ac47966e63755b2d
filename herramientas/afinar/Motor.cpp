#include "afinar/Motor.h"

#include <algorithm>
#include <array>
#include <functional>
#include <stdexcept>
#include <string>
#include <type_traits>

#include "board/Ataques.h"
#include "board/Bando.h"
#include "board/Color.h"
#include "board/Comprobacion.h"
#include "board/Generacion.h"
#include "board/Geometria.h"
#include "board/HacerMovimiento.h"
#include "board/Posicion.h"
#include "board/Puntuacion.h"
#include "board/Tablero.h"
#include "eval/Evaluar.h"
#include "eval/Material.h"
#include "eval/Par.h"
#include "eval/Pesos.h"
#include "eval/SeguridadRey.h"
#include "search/Quiescencia.h"
#include "search/Transposicion.h"
#include "uci/Arranque.h"

namespace {

constexpr unsigned SEMILLA     = 1;
constexpr int      MEGAS       = 1;    // too small for an evaluation cache, which would answer with old weights
constexpr int      JUGADAS_MAX = 24;   // plies of a line of captures
constexpr int      SIN_AJUSTE  = 100;  // percent

// How Evaluar puts the accumulators together. Whoever changes it there is told by the self-check.
constexpr int PESO_TROPISMO    = 20;  // percent
constexpr int PESO_REFUGIO     = 50;
constexpr int ATAQUE_VALOR_MAX = 399;
constexpr int SIN_CAMBIO       = 100;

// Half the width over which the slope of KING_ATTACK_MULTI is taken: its steps are whole centipawns.
constexpr int ANCHO_PENDIENTE = 8;

constexpr std::size_t NUMERO_PESOS = sizeof(RegistroPesos) / sizeof(int);
constexpr std::size_t ACUMULADORES = static_cast<std::size_t>(Acumulador::Factor) + 1;

struct Uso {
    std::size_t Peso;
    int         Veces;
    int         Color;
    Acumulador  Destino;
};

// What the last evaluation has used. Sumas counts settled values too.
struct Rastro {
    bool                                         Activo = false;
    std::vector<Uso>                             Usos;
    std::array<std::array<int, ACUMULADORES>, 2> Sumas;
    const int*                                   Factor = nullptr;  // of the ending; none: the score stands
};
Rastro rastro;

int* PrimerPeso() {
    return reinterpret_cast<int*>(&PESOS);
}

bool EsLibre(const int* peso) {
    const std::less<> antes;
    return !antes(peso, PrimerPeso()) && antes(peso, PrimerPeso() + NUMERO_PESOS);
}
std::size_t Indice(const int* peso) {
    return static_cast<std::size_t>(peso - PrimerPeso());
}

// A FEN does not tell who has castled: a king on his back rank that stands where castling leads to, or further to the
// edge, and has no right left, is taken to have done so. In a game the engine knows, and its evaluation asks.
void SuponerEnroque(int rey, int fila, int& estado) {
    constexpr int ULTIMA_LARGA = 2, PRIMERA_CORTA = 6;  // files c and g
    if (estado != SIN_ENROQUE || Fila(rey) != fila) return;
    if (Columna(rey) <= ULTIMA_LARGA) estado = ENROCADO_LARGO;
    if (Columna(rey) >= PRIMERA_CORTA) estado = ENROCADO_CORTO;
}

void Cargar(std::string_view fen) {
    constexpr int FILA_BLANCAS = 7, FILA_NEGRAS = 0;  // as Fila() counts
    Position_Fen_Startpos((" fen " + std::string(fen)).c_str());
    SuponerEnroque(TableroGlobal.PosicionReyBlanco, FILA_BLANCAS, TableroGlobal.EnroqueBlancas);
    SuponerEnroque(TableroGlobal.PosicionReyNegro, FILA_NEGRAS, TableroGlobal.EnroqueNegras);
}

int Sumado(int color, Acumulador acumulador) {
    return rastro.Sumas[static_cast<std::size_t>(color)][static_cast<std::size_t>(acumulador)];
}

// Evaluar, White's view, with the trace.
int EvaluarConRastro() {
    rastro.Usos.clear();
    rastro.Sumas     = {};
    rastro.Factor    = nullptr;
    rastro.Activo    = true;
    const int puntos = Evaluar();
    rastro.Activo    = false;
    return TableroGlobal.Turno == BLANCO ? puntos : -puntos;
}

// The kings are placed by every full evaluation, and by none that an ending's knowledge has answered before.
bool EsCompleta() {
    const std::size_t primero = Indice(std::begin(PESOS.PST_K_OP));
    const std::size_t fin     = Indice(std::end(PESOS.PST_K_OP));
    return std::any_of(rastro.Usos.begin(), rastro.Usos.end(),
                       [=](const Uso& uso) { return uso.Peso >= primero && uso.Peso < fin; });
}

// One colour's traced sums as the two halves of its score; Numero is exact or cut off as in the engine.
template <class Numero>
struct Mitades {
    Numero OP;
    Numero EG;
};

int ParteDe(int valor, int porcentaje, int) {
    return Porcentaje(valor, porcentaje);
}
double ParteDe(int valor, int porcentaje, double) {
    return valor * porcentaje / 100.0;
}

int Porciento() {
    return rastro.Factor == nullptr ? SIN_CAMBIO : *rastro.Factor;
}

int ValorAtaque(int color) {
    return std::min(Sumado(color, Acumulador::Ataque_Valor), ATAQUE_VALOR_MAX);
}
bool CuentaAtaque(const RegistroBando& bando) {
    return bando.Ataque_Numero > 1 && bando.Damas != 0;
}

template <class Numero>
Mitades<Numero> MitadesDe(int color, const RegistroBando& bando) {
    const auto sumado = [color](Acumulador acumulador) { return Sumado(color, acumulador); };
    const auto parte  = [](int valor, int porcentaje) { return ParteDe(valor, porcentaje, Numero{}); };
    const int  ataque = CuentaAtaque(bando) ? KING_ATTACK_MULTI[ValorAtaque(color)] : 0;
    // The half of the shelter is rounded down, which is exact for the engine only with a shift.
    const int    refugio = sumado(Acumulador::Refugio_OP);
    const Numero escudo =
        std::is_same_v<Numero, int> ? static_cast<Numero>(refugio >> 1) : parte(refugio, PESO_REFUGIO);
    const Par peligro = PuntosPeligro(sumado(Acumulador::Peligro));
    return {
        static_cast<Numero>(sumado(Acumulador::Puntos_OP) + sumado(Acumulador::Movilidad_OP) + ataque + peligro.OP) +
            parte(sumado(Acumulador::Tropismo_OP), PESO_TROPISMO) + escudo,
        static_cast<Numero>(sumado(Acumulador::Puntos_EG) + sumado(Acumulador::Movilidad_EG) + ataque + peligro.EG) +
            parte(sumado(Acumulador::Tropismo_EG), PESO_TROPISMO)};
}

struct Rearmado {
    int    Entero;  // as Evaluar answers
    double Exacto;  // without the fractions that it cuts off
    double Base;    // exact, before the factor of the ending
};

Rearmado Rearmar() {
    const auto b             = MitadesDe<int>(BLANCO, Blancas);
    const auto n             = MitadesDe<int>(NEGRO, Negras);
    const auto be            = MitadesDe<double>(BLANCO, Blancas);
    const auto ne            = MitadesDe<double>(NEGRO, Negras);
    const int  fase          = TableroGlobal.Fase;
    const int  desequilibrio = DesequilibrioPiezas();
    int        entero        = Interpolate(b.OP - n.OP, b.EG - n.EG, fase) + desequilibrio;
    if (Porciento() != SIN_CAMBIO) entero = Porcentaje(entero, Porciento());
    const double base = ((be.OP - ne.OP) * fase + (be.EG - ne.EG) * (FASE_MAX - fase)) / FASE_MAX + desequilibrio;
    return {std::clamp(entero, -UMBRAL_MATE, UMBRAL_MATE), base * Porciento() / SIN_CAMBIO, base};
}

// Centipawns for one unit of Ataque_Valor.
double PendienteAtaque(int color) {
    if (!CuentaAtaque(color == BLANCO ? Blancas : Negras)) return 0;
    const int abajo  = std::max(ValorAtaque(color) - ANCHO_PENDIENTE, 0);
    const int arriba = std::min(ValorAtaque(color) + ANCHO_PENDIENTE, ATAQUE_VALOR_MAX);
    return static_cast<double>(KING_ATTACK_MULTI[arriba] - KING_ATTACK_MULTI[abajo]) / (arriba - abajo);
}

// Centipawns for one unit of Peligro.
double PendientePeligro(int color, double apertura) {
    const int peligro = Sumado(color, Acumulador::Peligro);
    const Par abajo   = PuntosPeligro(peligro - ANCHO_PENDIENTE);
    const Par arriba  = PuntosPeligro(peligro + ANCHO_PENDIENTE);
    return ((arriba.OP - abajo.OP) * apertura + (arriba.EG - abajo.EG) * (1 - apertura)) / (2 * ANCHO_PENDIENTE);
}

// Centipawns of the score before the ending's factor, for one unit in the accumulator of a colour, its own view.
double Pendiente(Acumulador acumulador, int color) {
    const double apertura = static_cast<double>(TableroGlobal.Fase) / FASE_MAX;
    switch (acumulador) {
        case Acumulador::Puntos_OP:
        case Acumulador::Movilidad_OP:
            return apertura;
        case Acumulador::Puntos_EG:
        case Acumulador::Movilidad_EG:
            return 1 - apertura;
        case Acumulador::Tropismo_OP:
            return apertura * PESO_TROPISMO / 100;
        case Acumulador::Tropismo_EG:
            return (1 - apertura) * PESO_TROPISMO / 100;
        case Acumulador::Refugio_OP:
            return apertura * PESO_REFUGIO / 100;
        case Acumulador::Ataque_Valor:
            return PendienteAtaque(color);
        case Acumulador::Peligro:
            return PendientePeligro(color, apertura);
        case Acumulador::Factor:
            break;
    }
    return 0;
}

void AnotarCoeficientes(double base, std::vector<Coeficiente>& coeficientes) {
    static std::array<double, NUMERO_PESOS> suma{};
    static std::vector<std::size_t>         tocados;
    tocados.clear();
    const auto sumar = [](std::size_t peso, double valor) {
        if (suma[peso] == 0) tocados.push_back(peso);
        suma[peso] += valor;
    };
    for (const Uso& uso : rastro.Usos)
        sumar(uso.Peso, Pendiente(uso.Destino, uso.Color) * uso.Veces * (uso.Color == BLANCO ? 1 : -1) * Porciento() /
                            SIN_CAMBIO);
    if (EsLibre(rastro.Factor)) sumar(Indice(rastro.Factor), base / SIN_CAMBIO);
    std::sort(tocados.begin(), tocados.end());
    for (const std::size_t peso : tocados) {
        if (suma[peso] != 0) coeficientes.push_back({static_cast<std::uint32_t>(peso), static_cast<float>(suma[peso])});
        suma[peso] = 0;
    }
}

// Score of the position by quiescence after this move, for the side that made it; the lowest score for an illegal move.
int PuntosTras(std::uint32_t movimiento, int alfa, int beta, NivelQs nivel) {
    const bool legal  = HacerMovimiento(movimiento) != 0;
    const int  puntos = legal ? -AlphaBeta_Qs(-beta, -alfa, TurnoEnJaque(), VENTANA_ABIERTA, nivel) : -VALOR_INFINITO;
    DeshacerMovimiento();
    return puntos;
}

// The score of a search of one ply.
int PuntosDeUnPly() {
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_TODOS, lista);
    int              mejor  = -VALOR_INFINITO;
    for (int i = 0; i < numero; ++i)
        mejor = std::max(mejor, PuntosTras(lista.Entradas[i].Movimiento, mejor, VALOR_INFINITO, PRIMER_NIVEL));
    return mejor;
}

// Plays the moves of the line of best play that is worth valor, until the position is worth it by itself.
bool Bajar(int valor, std::vector<std::uint32_t>& jugadas) {
    for (bool primera = true; TableroGlobal.Ply < JUGADAS_MAX; primera = false, valor = -valor) {
        const int en_jaque = TurnoEnJaque();
        if (!primera && en_jaque == SIN_JAQUE && Evaluar() == valor) return true;
        ListaMovimientos lista;
        const int        numero =
            GenerarMovimientos(primera || en_jaque == EN_JAQUE ? GENERAR_TODOS : GENERAR_CAPTURAS, lista);
        const auto fin   = lista.Entradas + numero;
        const auto mejor = std::find_if(lista.Entradas + 0, fin, [=](const auto& entrada) {
            return PuntosTras(entrada.Movimiento, valor - 1, valor + 1, primera ? PRIMER_NIVEL : NIVEL_HONDO) == valor;
        });
        if (mejor == fin) return false;
        HacerMovimiento(mejor->Movimiento);
        jugadas.push_back(mejor->Movimiento);
    }
    return false;
}

}  // namespace

void Trazar(const int& peso, int veces, int color, Acumulador acumulador) {
    if (!rastro.Activo) return;
    if (acumulador == Acumulador::Factor) {
        rastro.Factor = &peso;
        return;
    }
    if (EsLibre(&peso)) rastro.Usos.push_back({Indice(&peso), veces, color, acumulador});
    rastro.Sumas[static_cast<std::size_t>(color)][static_cast<std::size_t>(acumulador)] += peso * veces;
}

void ArrancarMotor() {
    Arrancar(SEMILLA);
    CrearTransposicion(MEGAS);
    for (const int color : {BLANCO, NEGRO}) AJUSTE_MOB[color] = AJUSTE_ATT[color] = SIN_AJUSTE;
}

std::vector<int> LeerPesos() {
    return {PrimerPeso(), PrimerPeso() + NUMERO_PESOS};
}

void PonerPesos(const std::vector<int>& pesos) {
    if (pesos.size() != NUMERO_PESOS) throw std::runtime_error("another number of weights than the evaluation has");
    std::copy(pesos.begin(), pesos.end(), PrimerPeso());
}

bool EsTranquila(std::string_view fen) {
    Cargar(fen);
    if (JaqueBlancas(TableroGlobal.PosicionReyBlanco) || JaqueNegras(TableroGlobal.PosicionReyNegro)) return false;
    const int puntos = EvaluarConRastro();
    if (!EsCompleta()) return false;
    const int turno = TableroGlobal.Turno == BLANCO ? puntos : -puntos;
    return turno == AlphaBeta_Qs(-VALOR_INFINITO, VALOR_INFINITO, 0, 0, 1);
}

bool BuscarHoja(std::string_view fen, std::vector<std::uint32_t>& jugadas) {
    Cargar(fen);
    const auto rey_contrario = TableroGlobal.Turno == BLANCO ? JaqueNegras(TableroGlobal.PosicionReyNegro)
                                                             : JaqueBlancas(TableroGlobal.PosicionReyBlanco);
    if (rey_contrario != 0) return false;
    if (!Bajar(PuntosDeUnPly(), jugadas)) return false;
    EvaluarConRastro();
    return EsCompleta();
}

double Observar(std::string_view fen, const std::vector<std::uint32_t>& jugadas,
                std::vector<Coeficiente>& coeficientes) {
    Cargar(fen);
    for (const std::uint32_t jugada : jugadas) HacerMovimiento(jugada);
    const int      puntos   = EvaluarConRastro();
    const Rearmado rearmado = Rearmar();
    if (rearmado.Entero != puntos)
        throw std::runtime_error("the trace does not add up in " + std::string(fen) + ": " + std::to_string(puntos) +
                                 " evaluated, " + std::to_string(rearmado.Entero) + " added up");
    AnotarCoeficientes(rearmado.Base, coeficientes);
    return rearmado.Exacto;
}
