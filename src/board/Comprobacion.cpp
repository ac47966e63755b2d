#include "board/Comprobacion.h"

#ifndef NDEBUG

#include <cassert>
#include <cstring>

#include "board/Ataques.h"
#include "board/Bando.h"
#include "board/Color.h"
#include "board/EstadoMotor.h"
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

// Counters and king squares against the board. A position without exactly one king a side came from a foolish FEN
// and promises nothing; then the answer is false.
static bool Recontar() {
    const RegistroTablero& t          = TableroGlobal;
    int                    numero[16] = {};
    for (const int pieza : t.Casillas) ++numero[pieza & 15];
    if (Salir || numero[REY_B] != 1 || numero[REY_N] != 1) return false;
    assert(t.Casillas[t.PosicionReyBlanco] == REY_B);
    assert(t.Casillas[t.PosicionReyNegro] == REY_N);
    for (int pieza = PEON_B; pieza <= DAMA_B; ++pieza) {
        assert(Blancas.*CONTADOR[pieza] == numero[pieza]);
        assert(Negras.*CONTADOR[pieza] == numero[pieza + DESFASE_NEGRO]);
    }
    return true;
}

static bool MismosBytes(const void* a, const void* b, std::size_t bytes) {
    return std::memcmp(a, b, bytes) == 0;
}

void GuardarCopiaTablero() {
    Copia& copia  = copias[TableroGlobal.Ply];
    copia.Tablero = TableroGlobal;
    CopiarContadores(Negras, copia.Contadores[NEGRO]);
    CopiarContadores(Blancas, copia.Contadores[BLANCO]);
}

void ComprobarHecho(int legal) {
    Recontar();
    const RegistroTablero& t = TableroGlobal;
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
    assert(t.Turno == BLANCO || t.Turno == NEGRO);
    if (!Recontar() || t.Ply == 0) return;
    assert(t.Turno == BLANCO ? !JaqueNegras(t.PosicionReyNegro) : !JaqueBlancas(t.PosicionReyBlanco));
}

#endif
