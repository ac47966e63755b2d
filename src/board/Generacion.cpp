#include "board/Generacion.h"

#include <array>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Conjunto.h"
#include "board/EstadoMotor.h"
#include "board/Geometria.h"

// A queen in the middle of an empty board makes 27 moves, no piece makes more; and a ray writes up to 7 entries of
// which the later ones may not count.
constexpr int MOVIMIENTOS_PIEZA_MAX = 27 + 7;

// Where the next move is written, and the occupied squares. A pointer of its own keeps IndexMove out of the innermost
// loops. Most moves are written before it is known whether they count and kept by advancing the pointer: which squares
// are occupied is beyond any branch predictor.
struct SalidaLista {
    EntradaMovimiento* Siguiente;
    Conjunto           Propias;
    Conjunto           Rivales;
};

// The captured field of a move to a square that holds each code.
static constexpr std::array<std::uint32_t, 16> CalcularCamposCaptura() {
    std::array<std::uint32_t, 16> tabla{};
    for (unsigned pieza = 0; pieza < 16; ++pieza) tabla[pieza] = pieza << DESPLAZA_CAPTURA;
    tabla[VACIO] = SIN_CAPTURA;
    return tabla;
}
constexpr auto CAMPO_CAPTURA = CalcularCamposCaptura();

static void Anadir(SalidaLista& salida, std::uint32_t mov) {
    (salida.Siguiente++)->Movimiento = mov;
}

// A plain move whose target has been looked at already: a pawn's.
static void AddMoveNormal(int desde, int hasta, int pieza, int captura, SalidaLista& salida) {
    Anadir(salida, CrearMovimiento(desde, hasta, pieza, captura, NINGUNA));
}

// The plain moves of every piece but pawns: a capture when the target is occupied, else a quiet move (not in captures
// mode). The target holds no piece of the mover's side, or the move does not count.
template <int MODO>
static void AddMoveRey(std::uint32_t base, int hasta, SalidaLista& salida) {
    const int      ocupante = TableroGlobal.Casillas[hasta];
    const Conjunto cuentan  = MODO == GENERAR_CAPTURAS ? salida.Rivales : ~salida.Propias;
    salida.Siguiente->Movimiento =
        base | static_cast<std::uint32_t>(hasta << DESPLAZA_HASTA) | CAMPO_CAPTURA[static_cast<unsigned>(ocupante)];
    salida.Siguiente += Contiene(cuentan, hasta);
}

// The four promotions, queen first; in both modes.
template <int C>
static void AddMoveCoronacion(int desde, int hasta, SalidaLista& salida) {
    const int ocupante = TableroGlobal.Casillas[hasta];
    const int captura  = ocupante == VACIO ? NINGUNA : ocupante;
    for (const int coronada : {DAMA<C>, TORRE<C>, ALFIL<C>, CABALLO<C>})
        Anadir(salida, CrearMovimiento(desde, hasta, PEON<C>, captura, coronada));
}

static void AddMoveEnroque(int desde, int hasta, int pieza, SalidaLista& salida) {
    Anadir(salida, CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA) | BIT_ENROQUE);
}

static void AddMoveCapturaAlPaso(int desde, int hasta, int pieza, SalidaLista& salida) {
    Anadir(salida, CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA) | BIT_AL_PASO);
}

static void AddMovePosicionFichaAlPaso(int desde, int hasta, int pieza, SalidaLista& salida) {
    Anadir(salida, CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA) | BIT_DOBLE_AVANCE);
}

// The two squares that a pawn attacks, the neighbour file that keeps the mover's order first: for both colours it
// is the one on the side from which the colour's pieces are scanned.
template <int C>
struct Diagonal {
    int Desvio;      // -1 or +1 file
    int SinColumna;  // file on which the step would wrap round the edge
};
template <int C>
constexpr Diagonal<C> DIAGONALES[2] = {{C == BLANCO ? +1 : -1, C == BLANCO ? 7 : 0},
                                       {C == BLANCO ? -1 : +1, C == BLANCO ? 0 : 7}};

template <int C>
static void CapturaAlPaso(int desde, SalidaLista& salida) {
    const int peon = TableroGlobal.FichaAlPaso;
    if (TableroGlobal.Casillas[peon] != PEON<RIVAL<C>>) return;
    for (const auto& diagonal : DIAGONALES<C>) {
        if (Columna(desde) == diagonal.SinColumna || peon != desde + diagonal.Desvio) continue;
        const int hasta = peon + ADELANTE<C>;
        if (TableroGlobal.Casillas[hasta] == VACIO) AddMoveCapturaAlPaso(desde, hasta, PEON<C>, salida);
    }
}

template <int C, int MODO>
static void ObtenerMovimientoPeon(int desde, SalidaLista& salida) {
    constexpr int FILA_SALIDA     = 1;
    constexpr int FILA_SEPTIMA    = 6;
    constexpr int FILA_CORONACION = 7;
    const int*    casillas        = TableroGlobal.Casillas;
    const int     fila            = FilaRelativa<C>(desde);
    if (TableroGlobal.FichaAlPaso != 0) CapturaAlPaso<C>(desde, salida);
    if (fila == FILA_CORONACION) return;  // only a foolish FEN puts a pawn there

    const int delante = desde + ADELANTE<C>;
    for (const auto& diagonal : DIAGONALES<C>) {
        if (Columna(desde) == diagonal.SinColumna) continue;
        const int hasta = delante + diagonal.Desvio;
        if (!EsRival<C>(casillas[hasta])) continue;
        if (fila == FILA_SEPTIMA)
            AddMoveCoronacion<C>(desde, hasta, salida);
        else
            AddMoveNormal(desde, hasta, PEON<C>, casillas[hasta], salida);
    }
    if (casillas[delante] != VACIO) return;
    if (fila == FILA_SEPTIMA) {
        AddMoveCoronacion<C>(desde, delante, salida);
        return;
    }
    if constexpr (MODO == GENERAR_CAPTURAS) return;
    AddMoveNormal(desde, delante, PEON<C>, NINGUNA, salida);
    const int doble = delante + ADELANTE<C>;
    if (fila == FILA_SALIDA && casillas[doble] == VACIO) AddMovePosicionFichaAlPaso(desde, doble, PEON<C>, salida);
}

// In captures mode most pieces attack one enemy or none, and then there is no order to keep: the move is written from
// the set of attacked squares. Returns false when there are more, which the caller has to write in their order.
template <int MODO>
static bool AddMoveUnico(Conjunto ataques, std::uint32_t base, SalidaLista& salida) {
    if constexpr (MODO != GENERAR_CAPTURAS) return false;
    const Conjunto presas = ataques & salida.Rivales;
    if ((presas & (presas - 1)) != 0) return false;
    if (presas != 0) AddMoveRey<GENERAR_CAPTURAS>(base, Primera(presas), salida);
    return true;
}

template <int MODO>
static void Saltar(int desde, int pieza, const Saltos& saltos, Conjunto ataques, SalidaLista& salida) {
    const std::uint32_t base = CrearMovimiento(desde, 0, pieza, 0, NINGUNA);
    if (AddMoveUnico<MODO>(ataques, base, salida)) return;
    for (int i = 0; i < saltos.Numero; ++i) AddMoveRey<MODO>(base, saltos.Casillas[i], salida);
}

template <int C, int MODO>
static void ObtenerMovimientoCaballo(int desde, SalidaLista& salida) {
    const auto indice = static_cast<unsigned>(desde);
    Saltar<MODO>(desde, CABALLO<C>, SALTOS_CABALLO[indice], ATAQUES_CABALLO[indice], salida);
}

// One ray: over empty squares up to the first piece, which is taken if it is the enemy's.
template <int DIR, int MODO>
static void DeslizarRayo(int desde, std::uint32_t base, SalidaLista& salida) {
    constexpr int  SALTO    = PASO[DIR];
    const auto     indice   = static_cast<unsigned>(desde);
    const Conjunto ocupadas = RAYOS[indice][DIR] & (salida.Propias | salida.Rivales);
    // Without a piece on the ray the blocker is the square itself, which the mover's own piece occupies.
    const int tope = PrimerObstaculo<DIR>(ocupadas != 0 ? ocupadas : Bit(desde));
    if (MODO != GENERAR_CAPTURAS) {
        constexpr int MAXIMO = 7;
        const int     libres = ocupadas != 0 ? (tope - desde) / SALTO - 1 : ALCANCE[indice][DIR];
        const auto    paso   = static_cast<std::uint32_t>(SALTO) << DESPLAZA_HASTA;
        std::uint32_t mov    = base + (static_cast<std::uint32_t>(desde) << DESPLAZA_HASTA) + SIN_CAPTURA;
        for (int i = 0; i < MAXIMO; ++i) salida.Siguiente[i].Movimiento = mov += paso;
        salida.Siguiente += libres;
    }
    AddMoveRey<GENERAR_CAPTURAS>(base, tope, salida);
}

template <int MODO>
static void ObtenerMovimientoAlfil(int desde, int pieza, SalidaLista& salida) {
    const std::uint32_t base = CrearMovimiento(desde, 0, pieza, 0, NINGUNA);
    if (AddMoveUnico<MODO>(AtaquesDiagonales(desde, salida.Propias | salida.Rivales), base, salida)) return;
    DeslizarRayo<DIR_MAS_9, MODO>(desde, base, salida);
    DeslizarRayo<DIR_MAS_7, MODO>(desde, base, salida);
    DeslizarRayo<DIR_MENOS_7, MODO>(desde, base, salida);
    DeslizarRayo<DIR_MENOS_9, MODO>(desde, base, salida);
}

template <int MODO>
static void ObtenerMovimientoTorre(int desde, int pieza, SalidaLista& salida) {
    const std::uint32_t base = CrearMovimiento(desde, 0, pieza, 0, NINGUNA);
    if (AddMoveUnico<MODO>(AtaquesRectos(desde, salida.Propias | salida.Rivales), base, salida)) return;
    DeslizarRayo<DIR_MAS_8, MODO>(desde, base, salida);
    DeslizarRayo<DIR_MENOS_8, MODO>(desde, base, salida);
    DeslizarRayo<DIR_MENOS_1, MODO>(desde, base, salida);
    DeslizarRayo<DIR_MAS_1, MODO>(desde, base, salida);
}

// All squares strictly between the king and the corner are empty and the corner holds the rook.
template <int C>
static bool CaminoLibre(int rey, int esquina) {
    const int paso = esquina > rey ? +1 : -1;
    for (int casilla = rey + paso; casilla != esquina; casilla += paso)
        if (TableroGlobal.Casillas[casilla] != VACIO) return false;
    return TableroGlobal.Casillas[esquina] == TORRE<C>;
}

template <int C>
static void ObtenerEnroques(int desde, SalidaLista& salida) {
    constexpr int CASA   = CASA_REY<C>;
    const int     estado = EnroqueDe<C>();
    if (desde != CASA) return;
    const bool corto = (estado & ~ENROQUE_LARGO) == ENROQUE_CORTO && CaminoLibre<C>(CASA, ESQUINA_CORTA<C>);
    const bool largo = (estado == ENROQUE_LARGO || estado == ENROQUE_AMBOS) && CaminoLibre<C>(CASA, ESQUINA_LARGA<C>);
    if ((!corto && !largo) || Jaque2(CASA)) return;
    if (corto && !Jaque2(CASA + 1)) AddMoveEnroque(CASA, CASA + 2, REY<C>, salida);
    if (largo && !Jaque2(CASA - 1)) AddMoveEnroque(CASA, CASA - 2, REY<C>, salida);
}

template <int C, int MODO>
static void ObtenerMovimientoRey(int desde, SalidaLista& salida) {
    if (MODO != GENERAR_CAPTURAS && EnroqueDe<C>() != SIN_ENROQUE) ObtenerEnroques<C>(desde, salida);
    const auto indice = static_cast<unsigned>(desde);
    Saltar<MODO>(desde, REY<C>, SALTOS_REY[indice], ATAQUES_REY[indice], salida);
}

template <int C, int MODO>
static void GenerarPieza(int desde, SalidaLista& salida) {
    switch (TableroGlobal.Casillas[desde]) {
        case PEON<C>:
            ObtenerMovimientoPeon<C, MODO>(desde, salida);
            break;
        case CABALLO<C>:
            ObtenerMovimientoCaballo<C, MODO>(desde, salida);
            break;
        case ALFIL<C>:
            ObtenerMovimientoAlfil<MODO>(desde, ALFIL<C>, salida);
            break;
        case TORRE<C>:
            ObtenerMovimientoTorre<MODO>(desde, TORRE<C>, salida);
            break;
        case DAMA<C>:
            ObtenerMovimientoTorre<MODO>(desde, DAMA<C>, salida);
            ObtenerMovimientoAlfil<MODO>(desde, DAMA<C>, salida);
            break;
        case REY<C>:
            ObtenerMovimientoRey<C, MODO>(desde, salida);
            break;
        default:
            Salir = 1;
    }
}

// The moves of one piece when the list might not hold them all: through a list of its own, copying what fits.
template <int C, int MODO>
static void GenerarPiezaConCuidado(int desde, SalidaLista& salida, const EntradaMovimiento* fin) {
    EntradaMovimiento propias[MOVIMIENTOS_PIEZA_MAX];
    SalidaLista       aparte{propias, salida.Propias, salida.Rivales};
    GenerarPieza<C, MODO>(desde, aparte);
    for (const EntradaMovimiento* entrada = propias; entrada != aparte.Siguiente; ++entrada) {
        if (salida.Siguiente == fin) {
            Salir = 1;
            return;
        }
        *salida.Siguiente++ = *entrada;
    }
}

// The pieces to visit: in captures mode without the pawns that can neither take nor promote.
template <int C, int MODO>
static Conjunto PiezasQueMueven(const SalidaLista& salida) {
    if constexpr (MODO != GENERAR_CAPTURAS) return salida.Propias;
    constexpr int  FILA_SEPTIMA = 6;
    const int      al_paso      = TableroGlobal.FichaAlPaso;
    const Conjunto vecinas      = al_paso != 0 ? Lados(Bit(al_paso)) : 0;
    const Conjunto activos      = AtaquesDePeones<RIVAL<C>>(salida.Rivales) | FilaEntera<C>(FILA_SEPTIMA) | vecinas;
    return salida.Propias & (~CasillasCon(PEON<C>) | activos);
}

template <int C, int MODO>
static int Generar(ListaMovimientos& lista) {
    const EntradaMovimiento* const fin = lista.Entradas + MOVIMIENTOS_MAX;
    SalidaLista                    salida{lista.Entradas, CasillasDe<C>(), CasillasDe<RIVAL<C>>()};
    for (Conjunto piezas = PiezasQueMueven<C, MODO>(salida); piezas != 0;) {
        const int desde = SacarCasillaEnOrden<C>(piezas);
        if (fin - salida.Siguiente >= MOVIMIENTOS_PIEZA_MAX)
            GenerarPieza<C, MODO>(desde, salida);
        else
            GenerarPiezaConCuidado<C, MODO>(desde, salida, fin);
    }
    IndexMove = static_cast<int>(salida.Siguiente - lista.Entradas);
    if (IndexMove >= MOVIMIENTOS_MAX) Salir = 1;
    return IndexMove;
}

template <int C>
static int Generar(int modo, ListaMovimientos& lista) {
    return modo == GENERAR_CAPTURAS ? Generar<C, GENERAR_CAPTURAS>(lista) : Generar<C, GENERAR_TODOS>(lista);
}

int GenerarMovimientos(int modo, ListaMovimientos& lista) {
    IndexMove = 0;
    if (TableroGlobal.Turno == BLANCO) return Generar<BLANCO>(modo, lista);
    if (TableroGlobal.Turno == NEGRO) return Generar<NEGRO>(modo, lista);
    Salir = 1;
    return 0;
}
