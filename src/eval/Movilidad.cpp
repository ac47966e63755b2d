#include "eval/Movilidad.h"

int BONUS_CABALLO_MOVILIDAD[2 * MITAD_MENORES];
int BONUS_ALFIL_MOVILIDAD[2 * MITAD_MENORES];
int BONUS_DAMA_MOVILIDAD[2 * MITAD_DAMA];

namespace {

// A straight line through 0 at the mobility that is normal for the piece, and below it for a piece with next to no
// squares, which is worse than the line says: it cannot even run away.
struct CurvaMovilidad {
    int Maxima;   // most squares that the piece reaches
    int Normal;   // squares worth 0
    int Paso_OP;  // centipawns a square
    int Paso_EG;
    int Encierro;  // centipawns for each square that is lacking to ENCERRADA
};
constexpr int ENCERRADA = 3;  // with fewer squares a piece is shut in

constexpr CurvaMovilidad CURVA_CABALLO{8, 4, 5, 3, 4};
constexpr CurvaMovilidad CURVA_ALFIL{13, 6, 6, 4, 4};
constexpr CurvaMovilidad CURVA_DAMA{27, 13, 2, 4, 3};

void LlenarCurva(int* tabla, int mitad, const CurvaMovilidad& curva) {
    for (int m = 0; m <= curva.Maxima; ++m) {
        const int encierro = m < ENCERRADA ? (ENCERRADA - m) * curva.Encierro : 0;
        tabla[m]           = (m - curva.Normal) * curva.Paso_OP - encierro;
        tabla[mitad + m]   = (m - curva.Normal) * curva.Paso_EG - encierro;
    }
}

}  // namespace

void Iniciar_Movilidad() {
    LlenarCurva(BONUS_CABALLO_MOVILIDAD, MITAD_MENORES, CURVA_CABALLO);
    LlenarCurva(BONUS_ALFIL_MOVILIDAD, MITAD_MENORES, CURVA_ALFIL);
    LlenarCurva(BONUS_DAMA_MOVILIDAD, MITAD_DAMA, CURVA_DAMA);
}
