#include "board/Generacion.h"

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/EstadoMotor.h"
#include "board/Geometria.h"
#include "board/Ocupacion.h"

// A queen in the middle of an empty board makes 27 moves; no piece makes more.
constexpr int MOVIMIENTOS_PIEZA_MAX = 32;

namespace {

// Where the next move is written. A pointer of its own keeps IndexMove out of the innermost loops.
struct Salida {
    EntradaMovimiento* Siguiente;
    int                Modo;
};

void Anadir(Salida& salida, std::uint32_t mov) {
    (salida.Siguiente++)->Movimiento = mov;
}

// Every move that is not special: a capture when the target is occupied, else a quiet move (not in captures mode).
void AddMoveRey(int desde, int hasta, int pieza, Salida& salida) {
    const int captura = TableroGlobal.Casillas[hasta];
    if (captura != VACIO)
        Anadir(salida, CrearMovimiento(desde, hasta, pieza, captura, NINGUNA));
    else if (salida.Modo != GENERAR_CAPTURAS)
        Anadir(salida, CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA));
}

// The four promotions, queen first; in both modes.
template <int C>
void AddMoveCoronacion(int desde, int hasta, Salida& salida) {
    const int ocupante = TableroGlobal.Casillas[hasta];
    const int captura  = ocupante == VACIO ? NINGUNA : ocupante;
    for (const int coronada : {DAMA<C>, TORRE<C>, ALFIL<C>, CABALLO<C>})
        Anadir(salida, CrearMovimiento(desde, hasta, PEON<C>, captura, coronada));
}

void AddMoveEnroque(int desde, int hasta, int pieza, Salida& salida) {
    Anadir(salida, CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA) | BIT_ENROQUE);
}

void AddMoveCapturaAlPaso(int desde, int hasta, int pieza, Salida& salida) {
    Anadir(salida, CrearMovimiento(desde, hasta, pieza, NINGUNA, NINGUNA) | BIT_AL_PASO);
}

void AddMovePosicionFichaAlPaso(int desde, int hasta, int pieza, Salida& salida) {
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
void CapturaAlPaso(int desde, Salida& salida) {
    const int peon = TableroGlobal.FichaAlPaso;
    if (TableroGlobal.Casillas[peon] != PEON<RIVAL<C>>) return;
    for (const auto& diagonal : DIAGONALES<C>) {
        if (Columna(desde) == diagonal.SinColumna || peon != desde + diagonal.Desvio) continue;
        const int hasta = peon + ADELANTE<C>;
        if (TableroGlobal.Casillas[hasta] == VACIO) AddMoveCapturaAlPaso(desde, hasta, PEON<C>, salida);
    }
}

template <int C>
void ObtenerMovimientoPeon(int desde, Salida& salida) {
    constexpr int FILA_SALIDA   = 1;
    constexpr int FILA_SEPTIMA  = 6;
    constexpr int FILA_CORONADA = 7;
    const int*    casillas      = TableroGlobal.Casillas;
    const int     fila          = FilaRelativa<C>(desde);
    if (TableroGlobal.FichaAlPaso != 0) CapturaAlPaso<C>(desde, salida);
    if (fila == FILA_CORONADA) return;  // only a foolish FEN puts a pawn there

    const int delante = desde + ADELANTE<C>;
    for (const auto& diagonal : DIAGONALES<C>) {
        if (Columna(desde) == diagonal.SinColumna) continue;
        const int hasta = delante + diagonal.Desvio;
        if (!EsRival<C>(casillas[hasta])) continue;
        if (fila == FILA_SEPTIMA)
            AddMoveCoronacion<C>(desde, hasta, salida);
        else
            Anadir(salida, CrearMovimiento(desde, hasta, PEON<C>, casillas[hasta], NINGUNA));
    }
    if (casillas[delante] != VACIO) return;
    if (fila == FILA_SEPTIMA) {
        AddMoveCoronacion<C>(desde, delante, salida);
        return;
    }
    if (salida.Modo == GENERAR_CAPTURAS) return;
    AddMoveRey(desde, delante, PEON<C>, salida);
    const int doble = delante + ADELANTE<C>;
    if (fila == FILA_SALIDA && casillas[doble] == VACIO) AddMovePosicionFichaAlPaso(desde, doble, PEON<C>, salida);
}

template <int C>
void Saltar(int desde, int pieza, const Saltos& saltos, Salida& salida) {
    for (int i = 0; i < saltos.Numero; ++i)
        if (!EsPropia<C>(TableroGlobal.Casillas[saltos.Casillas[i]]))
            AddMoveRey(desde, saltos.Casillas[i], pieza, salida);
}

template <int C>
void ObtenerMovimientoCaballo(int desde, Salida& salida) {
    Saltar<C>(desde, CABALLO<C>, SALTOS_CABALLO[static_cast<unsigned>(desde)], salida);
}

// The rays from primera to ultima: over empty squares up to the first piece, which is taken if it is the enemy's.
template <int C>
void Deslizar(int desde, int pieza, int primera, int ultima, Salida& salida) {
    const int*          casillas = TableroGlobal.Casillas;
    const std::uint32_t base     = CrearMovimiento(desde, 0, pieza, 0, NINGUNA);
    for (int dir = primera; dir <= ultima; ++dir) {
        int hasta = desde;
        for (int pasos = ALCANCE[static_cast<unsigned>(desde)][static_cast<unsigned>(dir)]; pasos > 0; --pasos) {
            hasta += PASO[dir];
            const int           ocupante = casillas[hasta];
            const std::uint32_t destino  = base | static_cast<std::uint32_t>(hasta << DESPLAZA_HASTA);
            if (ocupante == VACIO) {
                if (salida.Modo != GENERAR_CAPTURAS) Anadir(salida, destino | SIN_CAPTURA);
                continue;
            }
            if (EsRival<C>(ocupante))
                Anadir(salida, destino | static_cast<std::uint32_t>(ocupante << DESPLAZA_CAPTURA));
            break;
        }
    }
}

template <int C>
void ObtenerMovimientoAlfil(int desde, int pieza, Salida& salida) {
    Deslizar<C>(desde, pieza, 0, PRIMERA_RECTA - 1, salida);
}

template <int C>
void ObtenerMovimientoTorre(int desde, int pieza, Salida& salida) {
    Deslizar<C>(desde, pieza, PRIMERA_RECTA, DIRECCIONES - 1, salida);
}

// All squares strictly between the king and the corner are empty and the corner holds the rook.
template <int C>
bool CaminoLibre(int rey, int esquina) {
    const int paso = esquina > rey ? +1 : -1;
    for (int casilla = rey + paso; casilla != esquina; casilla += paso)
        if (TableroGlobal.Casillas[casilla] != VACIO) return false;
    return TableroGlobal.Casillas[esquina] == TORRE<C>;
}

template <int C>
void ObtenerEnroques(int desde, Salida& salida) {
    constexpr int CASA          = C == BLANCO ? 60 : 4;
    constexpr int ESQUINA_CORTA = CASA + 3;
    constexpr int ESQUINA_LARGA = CASA - 4;
    const int     estado        = EnroqueDe<C>();
    if (desde != CASA) return;
    const bool corto = (estado & ~ENROQUE_LARGO) == ENROQUE_CORTO && CaminoLibre<C>(CASA, ESQUINA_CORTA);
    const bool largo = (estado == ENROQUE_LARGO || estado == ENROQUE_AMBOS) && CaminoLibre<C>(CASA, ESQUINA_LARGA);
    if ((!corto && !largo) || Jaque2(CASA)) return;
    if (corto && !Jaque2(CASA + 1)) AddMoveEnroque(CASA, CASA + 2, REY<C>, salida);
    if (largo && !Jaque2(CASA - 1)) AddMoveEnroque(CASA, CASA - 2, REY<C>, salida);
}

template <int C>
void ObtenerMovimientoRey(int desde, Salida& salida) {
    if (salida.Modo != GENERAR_CAPTURAS && EnroqueDe<C>() != SIN_ENROQUE) ObtenerEnroques<C>(desde, salida);
    Saltar<C>(desde, REY<C>, SALTOS_REY[static_cast<unsigned>(desde)], salida);
}

template <int C>
void GenerarPieza(int desde, Salida& salida) {
    switch (TableroGlobal.Casillas[desde]) {
        case PEON<C>:
            ObtenerMovimientoPeon<C>(desde, salida);
            break;
        case CABALLO<C>:
            ObtenerMovimientoCaballo<C>(desde, salida);
            break;
        case ALFIL<C>:
            ObtenerMovimientoAlfil<C>(desde, ALFIL<C>, salida);
            break;
        case TORRE<C>:
            ObtenerMovimientoTorre<C>(desde, TORRE<C>, salida);
            break;
        case DAMA<C>:
            ObtenerMovimientoTorre<C>(desde, DAMA<C>, salida);
            ObtenerMovimientoAlfil<C>(desde, DAMA<C>, salida);
            break;
        case REY<C>:
            ObtenerMovimientoRey<C>(desde, salida);
            break;
        default:
            Salir = 1;
    }
}

// The moves of one piece when the list might not hold them all: through a list of its own, copying what fits.
template <int C>
void GenerarPiezaConCuidado(int desde, Salida& salida, const EntradaMovimiento* fin) {
    EntradaMovimiento propias[MOVIMIENTOS_PIEZA_MAX];
    Salida            aparte{propias, salida.Modo};
    GenerarPieza<C>(desde, aparte);
    for (const EntradaMovimiento* entrada = propias; entrada != aparte.Siguiente; ++entrada) {
        if (salida.Siguiente == fin) {
            Salir = 1;
            return;
        }
        *salida.Siguiente++ = *entrada;
    }
}

template <int C>
int Generar(int modo, ListaMovimientos& lista) {
    const EntradaMovimiento* const fin = lista.Entradas + MOVIMIENTOS_MAX;
    Salida                         salida{lista.Entradas, modo};
    for (std::uint64_t propias = MascaraPropias<C>(); propias != 0;) {
        const int desde = TomarCasilla<C>(propias);
        if (fin - salida.Siguiente >= MOVIMIENTOS_PIEZA_MAX)
            GenerarPieza<C>(desde, salida);
        else
            GenerarPiezaConCuidado<C>(desde, salida, fin);
    }
    IndexMove = static_cast<int>(salida.Siguiente - lista.Entradas);
    if (IndexMove >= MOVIMIENTOS_MAX) Salir = 1;
    return IndexMove;
}

}  // namespace

int GenerarMovimientos(int modo, ListaMovimientos& lista) {
    IndexMove = 0;
    if (TableroGlobal.Turno == BLANCO) return Generar<BLANCO>(modo, lista);
    if (TableroGlobal.Turno == NEGRO) return Generar<NEGRO>(modo, lista);
    Salir = 1;
    return 0;
}
