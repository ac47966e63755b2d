#include "board/Ataques.h"

#include "board/Color.h"
#include "board/Conjunto.h"
#include "board/EstadoMotor.h"

// The squares from which a pawn of colour C attacks casilla are those that an enemy pawn there would attack.
template <int C>
static bool AtacaPeon(int casilla) {
    return (AtaquesDePeones<RIVAL<C>>(Bit(casilla)) & CasillasCon(PEON<C>)) != 0;
}

// The lines are looked at from the target, and only when a piece stands on them that could use them.
template <int C>
static int AtacadaPor(int casilla) {
    const auto     indice = static_cast<std::size_t>(casilla);
    const Conjunto saltadores =
        (ATAQUES_CABALLO[indice] & CasillasCon(CABALLO<C>)) | (ATAQUES_REY[indice] & CasillasCon(REY<C>));
    const Conjunto en_diagonal = LINEAS_ALFIL[indice] & (CasillasCon(ALFIL<C>) | CasillasCon(DAMA<C>));
    const Conjunto en_recta    = LINEAS_TORRE[indice] & (CasillasCon(TORRE<C>) | CasillasCon(DAMA<C>));
    return saltadores != 0 || AtacaPeon<C>(casilla) ||
           (en_diagonal != 0 && (AtaquesDiagonales(casilla, CasillasOcupadas()) & en_diagonal) != 0) ||
           (en_recta != 0 && (AtaquesRectos(casilla, CasillasOcupadas()) & en_recta) != 0);
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
