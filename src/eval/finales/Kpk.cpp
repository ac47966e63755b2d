#include "eval/finales/Kpk.h"

#include "board/Conjunto.h"

// Pawns stand on files a to d and ranks 2 to 7. A board mirrored left to right is the same game, so the other files
// need no table.
constexpr int COLUMNAS_KPK = 4;
constexpr int FILA_SEPTIMA = 1;  // as Fila() counts
constexpr int FILA_SEGUNDA = 6;
constexpr int PEONES_KPK   = COLUMNAS_KPK * (FILA_SEGUNDA - FILA_SEPTIMA + 1);

// Squares of the weaker king, one bit a square, from which the pawn wins: [pawn][stronger king]. A bit is set once its
// win is proved; what is never proved stays 0, a draw, so perpetual manoeuvres need no rule of their own.
struct TablaKpk {
    Conjunto MueveFuerte[PEONES_KPK][64];
    Conjunto MueveDebil[PEONES_KPK][64];
};
static TablaKpk Ganadas;

static constexpr int IndicePeon(int peon) {
    return (Fila(peon) - FILA_SEPTIMA) * COLUMNAS_KPK + Columna(peon);
}

// The weaker king's squares for which some advance of the pawn wins. On the last rank it wins unless it can be taken at
// once, by a king beside it that the stronger one does not hold off; where a queen would stalemate, a rook wins as
// well. Any other advance asks the table of the square it reaches, which is complete: the pawns nearer to promotion
// come first. That table has no weaker king on its pawn, so only the square that a double step jumps over must be cut
// here.
static Conjunto GanaAvanzando(int peon, int rey) {
    const int paso = peon - 8;
    if (paso == rey) return 0;
    if (Fila(peon) == FILA_SEPTIMA) {
        const bool defendida = DistanciaRey(rey, paso) == 1;
        return ~Bit(paso) & (defendida ? ~Conjunto{0} : ~Vecinas(Bit(paso)));
    }
    Conjunto ganadas = Ganadas.MueveDebil[IndicePeon(paso)][rey];
    if (Fila(peon) == FILA_SEGUNDA && paso - 8 != rey)
        ganadas |= Ganadas.MueveDebil[IndicePeon(paso - 8)][rey] & ~Bit(paso);
    return ganadas;
}

// The same for the king moves, by what is known so far. A step beside the weaker king finds nothing: the table holds no
// positions with the kings side by side.
static Conjunto GanaConElRey(int peon, int rey) {
    Conjunto      ganadas = 0;
    const Saltos& pasos   = SALTOS_REY[static_cast<unsigned>(rey)];
    for (int i = 0; i < pasos.Numero; ++i)
        if (pasos.Casillas[i] != peon) ganadas |= Ganadas.MueveDebil[IndicePeon(peon)][pasos.Casillas[i]];
    return ganadas;
}

// One sweep over the squares of the stronger king; says whether a new win was found.
static bool Barrer(int peon) {
    const Conjunto ataque = AtaquesDePeones<BLANCO>(Bit(peon));
    const int      indice = IndicePeon(peon);
    bool           cambio = false;
    for (int rey = 0; rey < 64; ++rey) {
        if (rey == peon) continue;
        const Conjunto zona    = Vecinas(Bit(rey)) | Bit(rey);
        const Conjunto legales = ~(zona | Bit(peon));
        // Where the weaker king may go. The pawn's own square is one of them when the stronger king does not guard it:
        // no table calls that square won, so that taking the pawn is a way to the draw like any other.
        const Conjunto destinos = ~(zona | ataque);

        // The weaker side loses when it can move and every move leads to a position won for the other: there is a
        // destination beside it, and none that is not won. Without a move it is stalemate: king and pawn by themselves
        // cannot mate. What is lost stays lost, because the wins of the stronger side only ever grow.
        Conjunto&      fuerte       = Ganadas.MueveFuerte[indice][rey];
        Conjunto&      debil        = Ganadas.MueveDebil[indice][rey];
        const Conjunto antes_fuerte = fuerte;
        const Conjunto antes_debil  = debil;

        debil = legales & Vecinas(destinos) & ~Vecinas(destinos & ~fuerte);
        // A weaker king in check cannot have the stronger side to move.
        fuerte = legales & ~ataque & (fuerte | GanaAvanzando(peon, rey) | GanaConElRey(peon, rey));
        cambio |= debil != antes_debil || fuerte != antes_fuerte;
    }
    return cambio;
}

// A pawn never goes back, so each pawn square waits only for those ahead of it: one pass from the seventh rank,
// sweeping each square until nothing is new, is enough.
void IniciarKpk() {
    Ganadas = {};
    for (int fila = FILA_SEPTIMA; fila <= FILA_SEGUNDA; ++fila)
        for (int columna = 0; columna < COLUMNAS_KPK; ++columna)
            while (Barrer(fila * 8 + columna)) {
            }
}

int KpkGana(int reyFuerte, int peon, int reyDebil, bool mueveFuerte) {
    if (Fila(peon) < FILA_SEPTIMA || Fila(peon) > FILA_SEGUNDA) return 0;
    const int   espejo = Columna(peon) < COLUMNAS_KPK ? 0 : 7;
    const int   indice = IndicePeon(peon ^ espejo);
    const auto& ganan  = mueveFuerte ? Ganadas.MueveFuerte[indice] : Ganadas.MueveDebil[indice];
    return Contiene(ganan[reyFuerte ^ espejo], reyDebil ^ espejo) ? 1 : 0;
}
