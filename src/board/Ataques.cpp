#include "board/Ataques.h"

#include "board/Color.h"
#include "board/EstadoMotor.h"
#include "board/Geometria.h"

// A pawn of colour C attacks casilla from one rank behind it, as C counts ranks.
template <int C>
static bool AtacaPeon(int casilla) {
    const int detras = casilla - ADELANTE<C>;
    if (!EnTablero(detras)) return false;
    const int* casillas = TableroGlobal.Casillas;
    return (Columna(casilla) != 0 && casillas[detras - 1] == PEON<C>) ||
           (Columna(casilla) != 7 && casillas[detras + 1] == PEON<C>);
}

static bool AtacaSaltador(const Saltos& saltos, int pieza) {
    for (int i = 0; i < saltos.Numero; ++i)
        if (TableroGlobal.Casillas[saltos.Casillas[i]] == pieza) return true;
    return false;
}

// The first piece on one of the rays from primera to ultima is pieza or a queen.
static bool AtacaLinea(int casilla, int primera, int ultima, int pieza, int dama) {
    for (int dir = primera; dir <= ultima; ++dir) {
        int actual = casilla;
        for (int pasos = ALCANCE[static_cast<unsigned>(casilla)][static_cast<unsigned>(dir)]; pasos > 0; --pasos) {
            actual += PASO[dir];
            const int encontrada = TableroGlobal.Casillas[actual];
            if (encontrada == VACIO) continue;
            if (encontrada == pieza || encontrada == dama) return true;
            break;
        }
    }
    return false;
}

template <int C>
static int AtacadaPor(int casilla) {
    const auto indice = static_cast<unsigned>(casilla);
    return AtacaPeon<C>(casilla) || AtacaSaltador(SALTOS_CABALLO[indice], CABALLO<C>) ||
           AtacaLinea(casilla, 0, PRIMERA_RECTA - 1, ALFIL<C>, DAMA<C>) ||
           AtacaLinea(casilla, PRIMERA_RECTA, DIRECCIONES - 1, TORRE<C>, DAMA<C>) ||
           AtacaSaltador(SALTOS_REY[indice], REY<C>);
}

int JaqueNegras(int casilla) {
    return AtacadaPor<BLANCO>(casilla);
}
int JaqueBlancas(int casilla) {
    return AtacadaPor<NEGRO>(casilla);
}

int Peon_Asalvo(int casilla, int color) {
    if (color == NEGRO) return JaqueNegras(casilla);
    if (color == BLANCO) return JaqueBlancas(casilla);
    Salir = 1;
    return 0;
}

int Jaque2(int casilla) {
    return Peon_Asalvo(casilla, TableroGlobal.Turno);
}

int TurnoEnJaque() {
    return Jaque2(TableroGlobal.Turno == BLANCO ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro);
}

int AmenazadoPorPeonNegro(int casilla) {
    return AtacaPeon<NEGRO>(casilla);
}
int AmenazadoPorPeonBlanco(int casilla) {
    return AtacaPeon<BLANCO>(casilla);
}
