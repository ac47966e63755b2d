#include "board/HacerMovimiento.h"

#include <array>

#include "board/Ataques.h"
#include "board/Color.h"
#include "board/Comprobacion.h"
#include "board/Conjunto.h"
#include "board/EstadoMotor.h"
#include "board/Geometria.h"
#include "board/Movimiento.h"
#include "board/Zobrist.h"

constexpr std::uint8_t SIN_LINEA = DIRECCIONES;

// LINEAS[king][square]: the direction from the king towards the square when both share a line, else SIN_LINEA.
static constexpr std::array<std::array<std::uint8_t, 64>, 64> CalcularLineas() {
    std::array<std::array<std::uint8_t, 64>, 64> tabla{};
    for (unsigned rey = 0; rey < 64; ++rey) {
        tabla[rey].fill(SIN_LINEA);
        for (unsigned dir = 0; dir < DIRECCIONES; ++dir)
            for (int paso = 1; paso <= ALCANCE[rey][dir]; ++paso)
                tabla[rey][static_cast<unsigned>(static_cast<int>(rey) + paso * PASO[dir])] =
                    static_cast<std::uint8_t>(dir);
    }
    return tabla;
}
constexpr auto LINEAS = CalcularLineas();

// The move of the rook that belongs to a king's castling move.
struct SaltoTorre {
    int Desde;
    int Hasta;
};
template <int C>
static SaltoTorre TorreDelEnroque(int hasta_rey) {
    if (hasta_rey == CASA_REY<C> + 2) return {ESQUINA_CORTA<C>, CASA_REY<C> + 1};
    if (hasta_rey == CASA_REY<C> - 2) return {ESQUINA_LARGA<C>, CASA_REY<C> - 1};
    Salir = 1;
    return {hasta_rey, hasta_rey};
}

template <int C>
static std::uint64_t ClaveEnroque(int estado) {
    return zobrist_Tablero[FILA_ENROQUE][C == BLANCO ? 63 - estado : estado];
}

// Sets the castling state and adds its key. The key of the old state stays in, so Key tells paths apart that lose their
// rights in another order: positions that look alike may then miss one another in the table, but never be confused.
// Unmaking takes the saved key, since no arithmetic could find it again.
template <int C>
static void CambiarEnroque(int estado, std::uint64_t& key) {
    EnroqueDe<C>() = estado;
    key ^= ClaveEnroque<C>(estado);
}

template <int C>
static void Enrocar(int hasta, std::uint64_t& key) {
    const SaltoTorre torre = TorreDelEnroque<C>(hasta);
    const int        pieza = TableroGlobal.Casillas[torre.Desde];
    PosicionReyDe<C>()     = hasta;
    MoverPieza(torre.Desde, torre.Hasta);
    key ^= zobrist_Tablero[pieza][torre.Desde] ^ zobrist_Tablero[pieza][torre.Hasta];
    CambiarEnroque<C>(hasta > CASA_REY<C> ? ENROCADO_CORTO : ENROCADO_LARGO, key);
}

// A king or rook that moves gives up rights; the states after castling are left alone, because the evaluation asks them
// for the rest of the game. A rook that is captured in its corner takes no right along: generation asks whether the
// corner holds a rook, and another rook that comes there is, deliberately, let castle.
template <int C>
static void PerderEnroque(int desde, int pieza, std::uint64_t& key) {
    const int estado = EnroqueDe<C>();
    if (estado < ENROQUE_CORTO || estado > ENROQUE_AMBOS) return;
    if (pieza == REY<C>) {
        CambiarEnroque<C>(SIN_ENROQUE, key);
    } else if (pieza == TORRE<C>) {
        const int perdido = desde == ESQUINA_CORTA<C> ? ENROQUE_CORTO : desde == ESQUINA_LARGA<C> ? ENROQUE_LARGO : 0;
        if ((estado & perdido) != 0) CambiarEnroque<C>(estado & ~perdido, key);
    }
}

template <int C>
static void Coronar(int hasta, int coronada, std::uint64_t& key) {
    if (coronada < CABALLO<C> || coronada > DAMA<C>) {
        Salir = 1;
        return;
    }
    key ^= zobrist_Tablero[PEON<C>][hasta] ^ zobrist_Tablero[coronada][hasta];
    QuitarPieza(hasta);
    PonerPieza(hasta, coronada);
    --BandoDe<C>().Peones;
    ++(BandoDe<C>().*CONTADOR[coronada]);
}

// What no reverse step can rebuild is saved before the move, the word of the move with it.
static void GuardarEstado(std::uint32_t mov) {
    RegistroTablero& t  = TableroGlobal;
    EstadoDeshacer&  e  = t.Deshacer[t.Ply];
    e.Key               = t.Key;
    e.Movimiento        = mov;
    e.PosicionReyBlanco = t.PosicionReyBlanco;
    e.PosicionReyNegro  = t.PosicionReyNegro;
    e.EnroqueBlancas    = t.EnroqueBlancas;
    e.EnroqueNegras     = t.EnroqueNegras;
    e.FichaAlPaso       = t.FichaAlPaso;
    e.Regla50           = t.Regla50;
}

static void RestaurarEstado(const EstadoDeshacer& e) {
    RegistroTablero& t  = TableroGlobal;
    t.Key               = e.Key;
    t.PosicionReyBlanco = e.PosicionReyBlanco;
    t.PosicionReyNegro  = e.PosicionReyNegro;
    t.EnroqueBlancas    = e.EnroqueBlancas;
    t.EnroqueNegras     = e.EnroqueNegras;
    t.FichaAlPaso       = e.FichaAlPaso;
    t.Regla50           = e.Regla50;
}

// At the edge of the stacks the counters stop: the top entry is then written over, and unmaking is exact only below it.
// "position" and the search keep away from both edges.
static void CerrarMovimiento(std::uint64_t key) {
    RegistroTablero& t = TableroGlobal;
    t.Key              = key;
    if (t.NumeroKeys < KEYS_MAX) t.HistorialKeys[t.NumeroKeys++] = key;
    if (t.Ply < PLIES_MAX - 1) ++t.Ply;
    t.Turno ^= 1;
}

static void AbrirDeshacer() {
    RegistroTablero& t = TableroGlobal;
    if (t.NumeroKeys > 0) --t.NumeroKeys;
    if (t.Ply > 0) --t.Ply;
    t.Turno ^= 1;
}

template <int C>
static int ReyAtacado() {
    return C == BLANCO ? JaqueBlancas(PosicionReyDe<C>()) : JaqueNegras(PosicionReyDe<C>());
}

// A king that was safe can only be exposed along the line that a piece has left.
template <int C>
static bool LineaAbierta(int desde) {
    constexpr int R   = RIVAL<C>;
    const auto    rey = static_cast<unsigned>(PosicionReyDe<C>());
    const auto    dir = LINEAS[rey][static_cast<unsigned>(desde)];
    if (dir == SIN_LINEA) return false;
    const Conjunto rayo      = RAYOS[rey][dir];
    const Conjunto tiradores = rayo & (CasillasCon(DAMA<R>) | CasillasCon(dir < PRIMERA_RECTA ? ALFIL<R> : TORRE<R>));
    if (tiradores == 0) return false;
    const Conjunto ocupadas = rayo & CasillasOcupadas();
    return Contiene(tiradores, PASO[dir] > 0 ? Primera(ocupadas) : Ultima(ocupadas));
}

template <int C>
static int Hacer(std::uint32_t mov, int en_jaque) {
    RegistroTablero& t     = TableroGlobal;
    const int        desde = Desde(mov);
    const int        hasta = Hasta(mov);
    const int        pieza = t.Casillas[desde];
    std::uint64_t    key   = t.Key;
    GuardarEstado(mov);

    // The king of a castling move travels below like any other piece; here go the rook and the state.
    if (EsEnroque(mov)) {
        Enrocar<C>(hasta, key);
    } else {
        PerderEnroque<C>(desde, pieza, key);
        if (pieza == REY<C>) PosicionReyDe<C>() = hasta;
    }
    if (EsCaptura(mov)) QuitarPieza(hasta);
    MoverPieza(desde, hasta);
    key ^= zobrist_Tablero[pieza][desde] ^ zobrist_Tablero[pieza][hasta];

    // After any other move the chance to capture en passant is gone. A double push in answer to a double push leaves
    // the older key in, with the same effect as that of castling states.
    if ((mov & (BIT_AL_PASO | BIT_DOBLE_AVANCE)) != 0) {
        if (EsAlPaso(mov)) {
            key ^= zobrist_Tablero[PEON<RIVAL<C>>][t.FichaAlPaso];
            QuitarPieza(t.FichaAlPaso);
            --BandoDe<RIVAL<C>>().Peones;
            t.FichaAlPaso = 0;
        } else {
            key ^= zobrist_Tablero[FILA_AL_PASO][hasta];
            t.FichaAlPaso = hasta;
        }
    } else if (t.FichaAlPaso != 0) {
        key ^= zobrist_Tablero[FILA_AL_PASO][t.FichaAlPaso];
        t.FichaAlPaso = 0;
    }

    // The captured piece has been written over already; its key, its counter and the clock are left.
    ++t.Regla50;
    if (pieza == PEON<C>) t.Regla50 = 0;
    if (EsCaptura(mov)) {
        const int capturada = PiezaCapturada(mov);
        t.Regla50           = 0;
        if (CONTADOR[capturada] != nullptr) {
            key ^= zobrist_Tablero[capturada][hasta];
            --(BandoDe<RIVAL<C>>().*CONTADOR[capturada]);
        } else {
            Salir = 1;
        }
    }
    if (EsCoronacion(mov)) Coronar<C>(hasta, PiezaCoronada(mov), key);

    CerrarMovimiento(key ^ zobrist_Turno);
    // In check every reply must be looked at in full: it has to parry the check besides exposing nothing. Out of check
    // only three kinds of move can expose the king: its own, the en-passant capture, which empties two squares of a
    // rank at once, and a piece that leaves a line to it. Dropping one of them lets illegal moves into the search.
    if (en_jaque != 0 || pieza == REY<C> || EsAlPaso(mov)) return ReyAtacado<C>() ^ 1;
    return LineaAbierta<C>(desde) ? 0 : 1;
}

// The steps of Hacer backwards. Which piece moved is read off the board, not off the word: a promoted pawn is put right
// last, and whatever stood on the target comes back only after the mover has left it.
template <int C>
static void Deshacer(const EstadoDeshacer& estado) {
    const std::uint32_t mov   = estado.Movimiento;
    const int           desde = Desde(mov);
    const int           hasta = Hasta(mov);
    if (EsEnroque(mov)) {
        const SaltoTorre torre = TorreDelEnroque<C>(hasta);
        MoverPieza(torre.Hasta, torre.Desde);
    }
    if (EsCoronacion(mov)) {
        QuitarPieza(hasta);
        PonerPieza(hasta, PEON<C>);
        ++BandoDe<C>().Peones;
        --(BandoDe<C>().*CONTADOR[PiezaCoronada(mov)]);
    }
    MoverPieza(hasta, desde);
    if (EsAlPaso(mov)) {
        PonerPieza(estado.FichaAlPaso, PEON<RIVAL<C>>);
        ++BandoDe<RIVAL<C>>().Peones;
    } else if (EsCaptura(mov)) {
        const int capturada = PiezaCapturada(mov);
        PonerPieza(hasta, capturada);
        if (CONTADOR[capturada] != nullptr)
            ++(BandoDe<RIVAL<C>>().*CONTADOR[capturada]);
        else
            Salir = 1;
    }
    RestaurarEstado(estado);
}

int HacerMovimientoConJaque(std::uint32_t movimiento, int en_jaque) {
    COMPROBAR_ANTES_DE_HACER(movimiento, en_jaque);
    const int legal =
        EsBlanca(PiezaMovida(movimiento)) ? Hacer<BLANCO>(movimiento, en_jaque) : Hacer<NEGRO>(movimiento, en_jaque);
    COMPROBAR_DESPUES_DE_HACER(legal);
    return legal;
}

int HacerMovimiento(std::uint32_t movimiento) {
    return HacerMovimientoConJaque(movimiento, 1);
}

void DeshacerMovimiento() {
    AbrirDeshacer();
    const EstadoDeshacer& estado = TableroGlobal.Deshacer[TableroGlobal.Ply];
    if (EsBlanca(PiezaMovida(estado.Movimiento)))
        Deshacer<BLANCO>(estado);
    else
        Deshacer<NEGRO>(estado);
    COMPROBAR_DESPUES_DE_DESHACER();
}

int EsLegal(std::uint32_t movimiento) {
    const int legal = HacerMovimiento(movimiento);
    DeshacerMovimiento();
    return legal;
}

void HacerMovimientoNull() {
    RegistroTablero& t   = TableroGlobal;
    std::uint64_t    key = t.Key ^ zobrist_Turno;
    COMPROBAR_ANTES_DE_NULO();
    GuardarEstado(t.Deshacer[t.Ply].Movimiento);
    if (t.FichaAlPaso != 0) {
        key ^= zobrist_Tablero[FILA_AL_PASO][t.FichaAlPaso];
        t.FichaAlPaso = 0;
    }
    ++t.Regla50;
    CerrarMovimiento(key);
}

void DeshacerMovimientoNull() {
    AbrirDeshacer();
    RestaurarEstado(TableroGlobal.Deshacer[TableroGlobal.Ply]);
    COMPROBAR_DESPUES_DE_DESHACER();
}
