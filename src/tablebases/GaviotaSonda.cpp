#include <algorithm>
#include <array>

#include "board/Bando.h"
#include "board/Color.h"
#include "board/EstadoMotor.h"
#include "board/Puntuacion.h"
#include "tablebases/Gaviota.h"
#include "tablebases/GaviotaEntradas.h"
#include "tablebases/GaviotaTablas.h"

constexpr int PROFUNDIDAD_SONDA = 4;  // plies; from this remaining depth on, searching is left to find the way

// Flip3[casilla]: a square of ours (a8 = 0) as the library counts it (a1 = 0).
constexpr auto Flip3 = [] {
    std::array<int, 64> tabla{};
    for (int casilla = 0; casilla < 64; ++casilla) tabla[static_cast<unsigned>(casilla)] = casilla ^ 56;
    return tabla;
}();

// Men of one side in the library's form: squares and kinds, closed by their empty values.
struct ListaSonda {
    int           Numero;
    unsigned      Casillas[HOMBRES_TABLA_MAX + 1];
    unsigned char Piezas[HOMBRES_TABLA_MAX + 1];
};

static int HombresDeBando(const RegistroBando& bando) {
    return bando.Peones + bando.Caballos + bando.Alfiles + bando.Torres + bando.Damas + 1;
}

static bool CubrenLasTablas(int hombres) {
    const int hay = tbprobe_Gaviota.Disponibilidad;
    return hombres <= tbprobe_Gaviota.HombresSanos &&
           (((hay & HAY_3_PIEZAS) != 0 && hombres < 4) || ((hay & HAY_4_PIEZAS) != 0 && hombres < 5) ||
            ((hay & HAY_5_PIEZAS) != 0 && hombres < 6));
}

static bool AnadirPieza(ListaSonda& lista, int casilla, int tipo) {
    if (lista.Numero == HOMBRES_TABLA_MAX) return false;
    lista.Casillas[lista.Numero] = static_cast<unsigned>(Flip3[static_cast<unsigned>(casilla)]);
    lista.Piezas[lista.Numero]   = static_cast<unsigned char>(tipo);
    ++lista.Numero;
    return true;
}

static void CerrarLista(ListaSonda& lista) {
    lista.Casillas[lista.Numero] = TB_SIN_CASILLA;
    lista.Piezas[lista.Numero]   = TB_SIN_PIEZA;
}

// False when the board does not hold the men that the counters promise, as after a set-up with several kings or none.
static bool ListarPiezas(ListaSonda& blancas, ListaSonda& negras, int hombres) {
    for (int casilla = 0; casilla < 64; ++casilla) {
        const int pieza = TableroGlobal.Casillas[casilla];
        if (pieza >= PEON_B && pieza <= REY_B) {
            if (!AnadirPieza(blancas, casilla, pieza)) return false;
        } else if (pieza >= PEON_N && pieza <= REY_N) {
            if (!AnadirPieza(negras, casilla, pieza - DESFASE_NEGRO)) return false;
        }
    }
    CerrarLista(blancas);
    CerrarLista(negras);
    return blancas.Numero + negras.Numero == hombres;
}

// The square behind the pawn that has just advanced two squares. A set-up can name a pawn on the edge, which has
// none.
static unsigned CasillaAlPaso() {
    if (TableroGlobal.FichaAlPaso == 0) return TB_SIN_CASILLA;
    const int casilla = TableroGlobal.FichaAlPaso + (TableroGlobal.Turno == BLANCO ? -8 : 8);
    if (casilla < 0 || casilla > 63) return TB_SIN_CASILLA;
    return static_cast<unsigned>(Flip3[static_cast<unsigned>(casilla)]);
}

// Rights of one side; the states that only tell that a side has castled give none.
static unsigned Derechos(int enroque, unsigned corto, unsigned largo) {
    switch (enroque) {
        case ENROQUE_CORTO:
            return corto;
        case ENROQUE_LARGO:
            return largo;
        case ENROQUE_AMBOS:
            return corto | largo;
        default:
            return 0;
    }
}

// The first moves of the first iteration fetch their tables from disk; later nodes take only what is in the cache.
static bool EsSondaDura() {
    return TableroGlobal.Ply == 1 && TipoJuego.ProfundidadActual == 1;
}

static int PuntosDeSonda(unsigned resultado, unsigned plies) {
    if (resultado != TB_MATE_BLANCAS && resultado != TB_MATE_NEGRAS) return VALOR_TABLAS;
    const int puntos = VALOR_TB - static_cast<int>(std::min(plies, static_cast<unsigned>(VALOR_TB)));
    return (resultado == TB_MATE_BLANCAS) == (TableroGlobal.Turno == BLANCO) ? puntos : -puntos;
}

int Probar_gtbgaviota(int profundidad, int* puntos) {
    if (profundidad >= PROFUNDIDAD_SONDA) return 0;
    const int hombres = HombresDeBando(Blancas) + HombresDeBando(Negras);
    if (!CubrenLasTablas(hombres)) return 0;
    ListaSonda blancas{}, negras{};
    if (!ListarPiezas(blancas, negras, hombres)) return 0;

    const unsigned turno    = TableroGlobal.Turno == BLANCO ? TB_MUEVEN_BLANCAS : TB_MUEVEN_NEGRAS;
    const unsigned enroques = Derechos(TableroGlobal.EnroqueBlancas, TB_ENROQUE_BLANCO_CORTO, TB_ENROQUE_BLANCO_LARGO) |
                              Derechos(TableroGlobal.EnroqueNegras, TB_ENROQUE_NEGRO_CORTO, TB_ENROQUE_NEGRO_LARGO);
    FuncionSonda* const sonda     = EsSondaDura() ? gtb::tb_probe_hard : gtb::tb_probe_soft;
    unsigned            resultado = TB_DESCONOCIDO, plies = 0;
    if (sonda(turno, CasillaAlPaso(), enroques, blancas.Casillas, negras.Casillas, blancas.Piezas, negras.Piezas,
              &resultado, &plies) != 1)
        return 0;
    ++tbprobe_Gaviota.tbhits;
    *puntos = PuntosDeSonda(resultado, plies);
    return 1;
}
