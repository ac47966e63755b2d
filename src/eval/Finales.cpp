#include "eval/Finales.h"

#include <cstdint>

#include "eval/ClaveMaterial.h"

namespace {

constexpr int SIN_CAMBIO       = 100;
constexpr int SIN_REGLA        = -1;
constexpr int PIEZAS_CON_REGLA = 5;  // no rule names more pieces, or more pawns, than these on the board
constexpr int PEONES_CON_REGLA = 2;

constexpr int VENTAJA_MENOR = 3;   // pawns that a minor piece is worth
constexpr int FACTOR_MENOR  = 30;  // a minor piece ahead without a pawn to promote

// Percentage for an ending whose two sides are given in this order, or SIN_REGLA. After the practice and statistics of
// pawnless endings (Fine; Nunn): what is drawn with best play, yet holds chances, keeps a part of its score.
int FactorOrdenado(std::uint64_t enfrentadas) {
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
        case Enfrentadas("NN", "B"):
            return 0;

        // A minor piece ahead without pawns, and equal pieces.
        case Enfrentadas("R", "R"):
        case Enfrentadas("Q", "Q"):
        case Enfrentadas("BN", "B"):
        case Enfrentadas("BB", "B"):
        case Enfrentadas("RN", "R"):
        case Enfrentadas("R", "BB"):
        case Enfrentadas("R", "BN"):
        case Enfrentadas("R", "NN"):
        case Enfrentadas("Q", "RR"):
            return 10;
        case Enfrentadas("R", "B"):
        case Enfrentadas("R", "N"):
        case Enfrentadas("BN", "N"):
        case Enfrentadas("Q", "RB"):
        case Enfrentadas("Q", "RN"):
        case Enfrentadas("Q", "NN"):
        case Enfrentadas("QB", "Q"):
        case Enfrentadas("QN", "Q"):
            return 20;
        case Enfrentadas("RB", "R"):
            return 25;

        // Won in theory, but slowly: fifty moves are often not enough.
        case Enfrentadas("BB", "N"):
        case Enfrentadas("Q", "BB"):
        case Enfrentadas("Q", "BN"):
            return 60;

        // The defender gives up its piece for the last pawn.
        case Enfrentadas("BP", "B"):
            return 45;
        case Enfrentadas("BP", "N"):
        case Enfrentadas("NP", "B"):
        case Enfrentadas("NP", "N"):
            return 55;
        case Enfrentadas("RP", "R"):
            return 70;
        case Enfrentadas("QP", "Q"):
            return 60;
        case Enfrentadas("RPP", "R"):
        case Enfrentadas("QPP", "Q"):
            return 85;

        // Only the pawns can win, or the piece has nothing to win with.
        case Enfrentadas("N", "P"):
        case Enfrentadas("B", "P"):
            return 10;
        case Enfrentadas("N", "PP"):
        case Enfrentadas("B", "PP"):
            return 25;
        case Enfrentadas("NN", "P"):  // mates while the pawn is blockaded far enough back (Troitsky)
            return 40;
        case Enfrentadas("Q", "RP"):
            return 75;
        default:
            return SIN_REGLA;
    }
}

// A side that leads by at most a minor piece and has no pawn left hardly ever wins.
bool SoloUnMenorDeMas(int peones, int valor, int valorRival) {
    return peones == 0 && valor > valorRival && valor - valorRival <= VENTAJA_MENOR;
}

}  // namespace

int FinalesReconocidos(int pb, int cb, int ab, int tb, int db, int pn, int cn, int an, int tn, int dn) {
    if (pb + pn > PEONES_CON_REGLA || cb + ab + tb + db + cn + an + tn + dn > PIEZAS_CON_REGLA) return SIN_CAMBIO;

    const std::uint64_t blancas = ClaveMaterial(pb, cb, ab, tb, db);
    const std::uint64_t negras  = ClaveMaterial(pn, cn, an, tn, dn);
    int                 factor  = FactorOrdenado(Enfrentadas(blancas, negras));
    if (factor == SIN_REGLA) factor = FactorOrdenado(Enfrentadas(negras, blancas));
    if (factor != SIN_REGLA) return factor;

    const int valorB = 3 * (cb + ab) + 5 * tb + 9 * db;
    const int valorN = 3 * (cn + an) + 5 * tn + 9 * dn;
    return SoloUnMenorDeMas(pb, valorB, valorN) || SoloUnMenorDeMas(pn, valorN, valorB) ? FACTOR_MENOR : SIN_CAMBIO;
}
