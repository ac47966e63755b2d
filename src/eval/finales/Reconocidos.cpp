#include "eval/finales/Reconocidos.h"

#include <algorithm>
#include <cstddef>

#include "eval/Material.h"
#include "eval/Pesos.h"

constexpr int TABLAS_MUERTAS   = 0;
constexpr int PIEZAS_CON_REGLA = 5;  // no rule names more pieces, or more pawns, than these on the board
constexpr int PEONES_CON_REGLA = 3;

// The number of pawns counts up to this phase, by the pieces on the board (24 = all); before, pieces decide.
constexpr int FASE_CON_PEONES = 7;
constexpr int PEONES_MAX      = 16;

// In pawns, for leads in pieces: a minor piece, a rook, a queen.
constexpr int VENTAJA_MENOR = 3;
constexpr int VENTAJA_TORRE = 5;
constexpr int VENTAJA_DAMA  = 9;

constexpr int PEONES_COMPENSAN = 2;  // they make up for a lead as large; for a single one the defender gives a piece

// What the material of two sides given in this order deserves, or no weight. After the practice and statistics of
// pawnless endings (Fine; Nunn): what is drawn with best play, yet holds chances, keeps a part of its score.
static const int* FactorOrdenado(std::uint64_t enfrentadas) {
    // clang-format off
    switch (enfrentadas) {
        // Nobody can force a mate.
        case Enfrentadas("", ""):
        case Enfrentadas("N", ""):
        case Enfrentadas("B", ""):
        case Enfrentadas("NN", ""):
        case Enfrentadas("N", "N"):
        case Enfrentadas("B", "N"):
        case Enfrentadas("B", "B"):
        case Enfrentadas("NN", "N"):
        case Enfrentadas("NN", "B"):   return &TABLAS_MUERTAS;

        case Enfrentadas("BB", "N"):   return &PESOS.FACTOR_BB_N;
        case Enfrentadas("Q", "BB"):   return &PESOS.FACTOR_Q_BB;
        case Enfrentadas("Q", "BN"):   return &PESOS.FACTOR_Q_BN;
        case Enfrentadas("BP", "B"):   return &PESOS.FACTOR_BP_B;
        case Enfrentadas("NP", "B"):   return &PESOS.FACTOR_NP_B;
        case Enfrentadas("BP", "P"):   return &PESOS.FACTOR_BP_P;
        case Enfrentadas("BN", "P"):   return &PESOS.FACTOR_BN_P;
        case Enfrentadas("R", "PP"):   return &PESOS.FACTOR_R_PP;
        case Enfrentadas("Q", "RP"):   return &PESOS.FACTOR_Q_RP;
        case Enfrentadas("N", "PP"):   return &PESOS.FACTOR_N_PP;
        case Enfrentadas("B", "PP"):   return &PESOS.FACTOR_B_PP;
        case Enfrentadas("NN", "P"):   return &PESOS.FACTOR_NN_P;
        default:                       return nullptr;
    }
    // clang-format on
}

// The same for materials without a case of their own. ventaja: lead in pieces, in pawns, of the side whose pawns are
// given first.
static const int* FactorComun(int ventaja, int peones, int peonesRival, bool damas) {
    if (ventaja < 0 || ventaja > VENTAJA_MENOR) return nullptr;
    if (peones == 0 && (ventaja > 0 || peonesRival == 0)) {
        // A minor piece ahead hardly ever wins by itself. Where the other side's pawns make up for the lead, it is
        // those pawns that play for the win, and nothing says that they will not.
        const int insuficientes = ventaja > PEONES_COMPENSAN ? PEONES_COMPENSAN : PEONES_COMPENSAN - 1;
        return peonesRival <= insuficientes ? &PESOS.FACTOR_MENOR : nullptr;
    }
    if (peones == 1 && peonesRival == 0 && ventaja <= 1) return &PESOS.FACTOR_ULTIMO_PEON;
    if (ventaja > 0 || peonesRival != 1) return nullptr;
    if (peones == 1) return damas ? nullptr : &PESOS.FACTOR_UNO_A_UNO;
    return peones == 2 ? &PESOS.FACTOR_DOS_A_UNO : nullptr;
}

// Any other ending: the more pawns there are, the likelier that one of them promotes, and the fewer, the more is drawn
// by giving up a piece for the last of them. Endings without pawns have an evaluation of their own.
static const int* FactorPorPeones(int peones, int fase) {
    if (peones == 0 || fase == 0 || fase > FASE_CON_PEONES) return nullptr;
    return &PESOS.FACTOR_PEONES[static_cast<std::size_t>(std::min(peones, PEONES_MAX))];
}

int FinalesReconocidos(int pb, int cb, int ab, int tb, int db, int pn, int cn, int an, int tn, int dn) {
    const int  piezas = cb + ab + tb + db + cn + an + tn + dn;
    const int* factor = nullptr;
    if (pb + pn <= PEONES_CON_REGLA && piezas <= PIEZAS_CON_REGLA) {
        const std::uint64_t blancas = ClaveMaterial(pb, cb, ab, tb, db);
        const std::uint64_t negras  = ClaveMaterial(pn, cn, an, tn, dn);
        const int ventaja = VENTAJA_MENOR * (cb + ab - cn - an) + VENTAJA_TORRE * (tb - tn) + VENTAJA_DAMA * (db - dn);
        factor            = FactorOrdenado(Enfrentadas(blancas, negras));
        if (factor == nullptr) factor = FactorOrdenado(Enfrentadas(negras, blancas));
        if (factor == nullptr && piezas == 0) return SIN_CAMBIO;  // pawns against pawns
        if (factor == nullptr) factor = FactorComun(ventaja, pb, pn, db + dn > 0);
        if (factor == nullptr) factor = FactorComun(-ventaja, pn, pb, db + dn > 0);
    }
    if (factor == nullptr) factor = FactorPorPeones(pb + pn, FaseDePiezas(cb + ab + cn + an, tb + tn, db + dn));
    if (factor == nullptr) return SIN_CAMBIO;
    Trazar(*factor, 1, BLANCO, Acumulador::Factor);
    return *factor;
}

int FactorFinal() {
    return FinalesReconocidos(Blancas.Peones, Blancas.Caballos, Blancas.Alfiles, Blancas.Torres, Blancas.Damas,
                              Negras.Peones, Negras.Caballos, Negras.Alfiles, Negras.Torres, Negras.Damas);
}
