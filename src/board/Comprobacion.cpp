#include "board/Comprobacion.h"

#ifndef NDEBUG

#include <algorithm>
#include <bit>
#include <cassert>
#include <cstring>
#include <iterator>

#include "board/Ataques.h"
#include "board/Bando.h"
#include "board/Color.h"
#include "board/EstadoMotor.h"
#include "board/Geometria.h"
#include "board/Movimiento.h"
#include "board/Tablero.h"

struct Copia {
    RegistroTablero Tablero;
    int             Contadores[2][5];
};
static Copia copias[PLIES_MAX];

static void CopiarContadores(const RegistroBando& bando, int (&contadores)[5]) {
    contadores[0] = bando.Peones;
    contadores[1] = bando.Caballos;
    contadores[2] = bando.Alfiles;
    contadores[3] = bando.Torres;
    contadores[4] = bando.Damas;
}

// The sets against the board that they shadow.
static void ComprobarSombra(const RegistroTablero& t) {
    Conjunto piezas[CODIGOS] = {};
    Conjunto bandos[2]       = {};
    for (int casilla = 0; casilla < 64; ++casilla) {
        const int pieza = t.Casillas[casilla];
        if (pieza == VACIO) continue;
        piezas[pieza] |= Bit(casilla);
        bandos[EsBlanca(pieza) ? BLANCO : NEGRO] |= Bit(casilla);
    }
    assert(std::equal(std::begin(piezas), std::end(piezas), t.Piezas));
    assert(std::equal(std::begin(bandos), std::end(bandos), t.Bandos));
}

// By the sets, once ComprobarSombra has found them right.
static int NumeroDe(int pieza, const RegistroTablero& t) {
    return std::popcount(t.Piezas[pieza]);
}

// Sets, counters, king squares and the fields of the record against the board.
static void Recontar() {
    const RegistroTablero& t = TableroGlobal;
    if (Salir) return;
    ComprobarSombra(t);
    assert(t.Turno == BLANCO || t.Turno == NEGRO);
    assert(t.Ply >= 0 && t.Ply < PLIES_MAX && t.NumeroKeys >= 0 && t.NumeroKeys <= KEYS_MAX && t.Regla50 >= 0);
    assert(t.EnroqueBlancas >= SIN_ENROQUE && t.EnroqueBlancas <= ENROCADO_CORTO);
    assert(t.EnroqueNegras >= SIN_ENROQUE && t.EnroqueNegras <= ENROCADO_CORTO);
    assert(t.FichaAlPaso == 0 || Fila(t.FichaAlPaso) == 3 || Fila(t.FichaAlPaso) == 4);
    assert(NumeroDe(REY_B, t) != 1 || t.Casillas[t.PosicionReyBlanco] == REY_B);
    assert(NumeroDe(REY_N, t) != 1 || t.Casillas[t.PosicionReyNegro] == REY_N);
    for (int pieza = PEON_B; pieza <= DAMA_B; ++pieza) {
        assert(Blancas.*CONTADOR[pieza] == NumeroDe(pieza, t));
        assert(Negras.*CONTADOR[pieza] == NumeroDe(pieza + DESFASE_NEGRO, t));
    }
}

// What the word of a pawn may say, for a pawn of the side to move.
static void ComprobarPeon(std::uint32_t mov) {
    const bool blancas = TableroGlobal.Turno == BLANCO;
    const int  avance  = blancas ? Desde(mov) - Hasta(mov) : Hasta(mov) - Desde(mov);
    const bool recto   = Columna(Desde(mov)) == Columna(Hasta(mov));
    assert(recto ? avance == (EsDobleAvance(mov) ? 16 : 8) : avance == 7 || avance == 9);
    assert(recto != (EsCaptura(mov) || EsAlPaso(mov)));
    assert(EsCoronacion(mov) == (Fila(Hasta(mov)) == (blancas ? 0 : 7)));
    if (EsCoronacion(mov)) {
        const int clase = PiezaCoronada(mov) - (blancas ? 0 : DESFASE_NEGRO);
        assert(clase >= CABALLO_B && clase <= DAMA_B);
    }
    if (EsAlPaso(mov)) {
        assert(!EsCaptura(mov) && TableroGlobal.FichaAlPaso != 0);
        assert(TableroGlobal.Casillas[TableroGlobal.FichaAlPaso] == (blancas ? PEON_N : PEON_B));
    }
}

static void ComprobarMovimiento(std::uint32_t mov) {
    const RegistroTablero& t     = TableroGlobal;
    const int              pieza = PiezaMovida(mov);
    assert(EnTablero(Desde(mov)) && EnTablero(Hasta(mov)) && Desde(mov) != Hasta(mov));
    assert(t.Casillas[Desde(mov)] == pieza && pieza != VACIO && EsBlanca(pieza) == (t.Turno == BLANCO));
    assert(t.Casillas[Hasta(mov)] == (EsCaptura(mov) ? PiezaCapturada(mov) : VACIO));
    assert(!EsCaptura(mov) || EsBlanca(PiezaCapturada(mov)) != EsBlanca(pieza));
    assert(!EsEnroque(mov) || pieza == REY_B || pieza == REY_N);
    if (pieza == PEON_B || pieza == PEON_N)
        ComprobarPeon(mov);
    else
        assert(!EsCoronacion(mov) && !EsAlPaso(mov) && !EsDobleAvance(mov));
}

static bool MismosBytes(const void* a, const void* b, std::size_t bytes) {
    return std::memcmp(a, b, bytes) == 0;
}

void GuardarCopiaTablero() {
    Recontar();
    Copia& copia  = copias[TableroGlobal.Ply];
    copia.Tablero = TableroGlobal;
    CopiarContadores(Negras, copia.Contadores[NEGRO]);
    CopiarContadores(Blancas, copia.Contadores[BLANCO]);
}

void ComprobarAntesDeHacer(std::uint32_t movimiento, int en_jaque) {
    if (!Salir) {
        ComprobarMovimiento(movimiento);
        assert(en_jaque != SIN_JAQUE || TurnoEnJaque() == SIN_JAQUE);
    }
    GuardarCopiaTablero();
}

void ComprobarHecho(int legal) {
    Recontar();
    const RegistroTablero& t     = TableroGlobal;
    const RegistroTablero& antes = copias[t.Ply - 1].Tablero;
    assert(Salir || (NumeroDe(REY_B, t) == NumeroDe(REY_B, antes) && NumeroDe(REY_N, t) == NumeroDe(REY_N, antes)));
    assert(legal == (t.Turno == NEGRO ? !JaqueBlancas(t.PosicionReyBlanco) : !JaqueNegras(t.PosicionReyNegro)));
}

// Everything but what lies above the used parts of the two stacks, which is nobody's.
void CompararCopiaTablero() {
    const RegistroTablero& t = TableroGlobal;
    const Copia&           c = copias[t.Ply];
    const RegistroTablero& a = c.Tablero;
    if (Salir) return;
    assert(t.PosicionReyBlanco == a.PosicionReyBlanco && t.PosicionReyNegro == a.PosicionReyNegro);
    assert(t.EnroqueBlancas == a.EnroqueBlancas && t.EnroqueNegras == a.EnroqueNegras);
    assert(t.FichaAlPaso == a.FichaAlPaso && t.Ply == a.Ply && t.Turno == a.Turno && t.TurnoRaiz == a.TurnoRaiz);
    assert(t.Regla50 == a.Regla50 && t.NumeroKeys == a.NumeroKeys && t.Key == a.Key);
    assert(MismosBytes(t.Deshacer, a.Deshacer, sizeof(EstadoDeshacer) * static_cast<std::size_t>(t.Ply)));
    assert(MismosBytes(t.HistorialKeys, a.HistorialKeys, sizeof(t.Key) * static_cast<std::size_t>(t.NumeroKeys)));
    assert(MismosBytes(t.TablaCasillas, a.TablaCasillas, sizeof(t.TablaCasillas)));
    assert(MismosBytes(t.Casillas, a.Casillas, sizeof(t.Casillas)));
    int contadores[2][5];
    CopiarContadores(Negras, contadores[NEGRO]);
    CopiarContadores(Blancas, contadores[BLANCO]);
    assert(MismosBytes(contadores, c.Contadores, sizeof(contadores)));
    Recontar();
}

void ComprobarPosicion() {
    const RegistroTablero& t = TableroGlobal;
    Recontar();
    if (Salir || t.Ply == 0) return;
    assert(t.Turno == BLANCO ? !JaqueNegras(t.PosicionReyNegro) : !JaqueBlancas(t.PosicionReyBlanco));
}

void ComprobarNodo(int en_jaque) {
    ComprobarPosicion();
    assert(Salir || en_jaque == TurnoEnJaque());
}

#endif
