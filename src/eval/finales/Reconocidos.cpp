#include "eval/finales/Reconocidos.h"

#include "eval/Pesos.h"

constexpr int TABLAS_MUERTAS   = 0;
constexpr int PIEZAS_CON_REGLA = 5;  // no rule names more pieces, or more pawns, than these on the board
constexpr int PEONES_CON_REGLA = 2;

constexpr int VENTAJA_MENOR    = 3;  // pawns that a minor piece is worth
constexpr int PEONES_COMPENSAN = 2;  // that many pawns make up for a lead as large; the defender gives a piece for one

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

        case Enfrentadas("R", "R"):    return &PESOS.FACTOR_R_R;
        case Enfrentadas("Q", "Q"):    return &PESOS.FACTOR_Q_Q;
        case Enfrentadas("BN", "B"):   return &PESOS.FACTOR_BN_B;
        case Enfrentadas("BB", "B"):   return &PESOS.FACTOR_BB_B;
        case Enfrentadas("RN", "R"):   return &PESOS.FACTOR_RN_R;
        case Enfrentadas("R", "BB"):   return &PESOS.FACTOR_R_BB;
        case Enfrentadas("R", "BN"):   return &PESOS.FACTOR_R_BN;
        case Enfrentadas("R", "NN"):   return &PESOS.FACTOR_R_NN;
        case Enfrentadas("Q", "RR"):   return &PESOS.FACTOR_Q_RR;
        case Enfrentadas("R", "B"):    return &PESOS.FACTOR_R_B;
        case Enfrentadas("R", "N"):    return &PESOS.FACTOR_R_N;
        case Enfrentadas("BN", "N"):   return &PESOS.FACTOR_BN_N;
        case Enfrentadas("Q", "RB"):   return &PESOS.FACTOR_Q_RB;
        case Enfrentadas("Q", "RN"):   return &PESOS.FACTOR_Q_RN;
        case Enfrentadas("Q", "NN"):   return &PESOS.FACTOR_Q_NN;
        case Enfrentadas("QB", "Q"):   return &PESOS.FACTOR_QB_Q;
        case Enfrentadas("QN", "Q"):   return &PESOS.FACTOR_QN_Q;
        case Enfrentadas("RB", "R"):   return &PESOS.FACTOR_RB_R;
        case Enfrentadas("BB", "N"):   return &PESOS.FACTOR_BB_N;
        case Enfrentadas("Q", "BB"):   return &PESOS.FACTOR_Q_BB;
        case Enfrentadas("Q", "BN"):   return &PESOS.FACTOR_Q_BN;
        case Enfrentadas("BP", "B"):   return &PESOS.FACTOR_BP_B;
        case Enfrentadas("BP", "N"):   return &PESOS.FACTOR_BP_N;
        case Enfrentadas("NP", "B"):   return &PESOS.FACTOR_NP_B;
        case Enfrentadas("NP", "N"):   return &PESOS.FACTOR_NP_N;
        case Enfrentadas("RP", "R"):   return &PESOS.FACTOR_RP_R;
        case Enfrentadas("QP", "Q"):   return &PESOS.FACTOR_QP_Q;
        case Enfrentadas("RPP", "R"):  return &PESOS.FACTOR_RPP_R;
        case Enfrentadas("QPP", "Q"):  return &PESOS.FACTOR_QPP_Q;
        case Enfrentadas("N", "P"):    return &PESOS.FACTOR_N_P;
        case Enfrentadas("B", "P"):    return &PESOS.FACTOR_B_P;
        case Enfrentadas("N", "PP"):   return &PESOS.FACTOR_N_PP;
        case Enfrentadas("B", "PP"):   return &PESOS.FACTOR_B_PP;
        case Enfrentadas("NN", "P"):   return &PESOS.FACTOR_NN_P;
        case Enfrentadas("Q", "RP"):   return &PESOS.FACTOR_Q_RP;
        default:                       return nullptr;
    }
    // clang-format on
}

// A side that leads by at most a minor piece and has no pawn left hardly ever wins. Where the other side's pawns make
// up for the lead, it is those pawns that play for the win, and nothing says that they will not.
static bool SoloUnMenorDeMas(int ventaja, int peones, int peonesRival) {
    if (peones > 0 || ventaja <= 0 || ventaja > VENTAJA_MENOR) return false;
    return peonesRival < PEONES_COMPENSAN || ventaja > PEONES_COMPENSAN;
}

int FinalesReconocidos(int pb, int cb, int ab, int tb, int db, int pn, int cn, int an, int tn, int dn) {
    if (pb + pn > PEONES_CON_REGLA || cb + ab + tb + db + cn + an + tn + dn > PIEZAS_CON_REGLA) return SIN_CAMBIO;

    const std::uint64_t blancas = ClaveMaterial(pb, cb, ab, tb, db);
    const std::uint64_t negras  = ClaveMaterial(pn, cn, an, tn, dn);
    const int*          factor  = FactorOrdenado(Enfrentadas(blancas, negras));
    if (factor == nullptr) factor = FactorOrdenado(Enfrentadas(negras, blancas));

    const int ventaja = 3 * (cb + ab - cn - an) + 5 * (tb - tn) + 9 * (db - dn);
    if (factor == nullptr && (SoloUnMenorDeMas(ventaja, pb, pn) || SoloUnMenorDeMas(-ventaja, pn, pb)))
        factor = &PESOS.FACTOR_MENOR;
    if (factor == nullptr) return SIN_CAMBIO;
    Trazar(*factor, 1, BLANCO, Acumulador::Factor);
    return *factor;
}

int FactorFinal() {
    return FinalesReconocidos(Blancas.Peones, Blancas.Caballos, Blancas.Alfiles, Blancas.Torres, Blancas.Damas,
                              Negras.Peones, Negras.Caballos, Negras.Alfiles, Negras.Torres, Negras.Damas);
}
