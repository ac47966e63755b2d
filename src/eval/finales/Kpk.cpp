#include "eval/finales/Kpk.h"

#include "board/Conjunto.h"

// Pawns stand on files a to d (the others are mirrored) and ranks 2 to 7: 4 x 6 squares.
constexpr int COLUMNAS_KPK = 4;
constexpr int PEONES_KPK   = 24;
constexpr int FILA_SEPTIMA = 1;  // as Fila() counts
constexpr int FILA_SEGUNDA = 6;

// Squares of the weaker king, one bit a square, from which the pawn wins: [pawn][stronger king].
struct TablaKpk {
    Conjunto MueveFuerte[PEONES_KPK][64];
    Conjunto MueveDebil[PEONES_KPK][64];
};
static TablaKpk Ganadas;

static constexpr int IndicePeon(int peon) {
    return (Fila(peon) - FILA_SEPTIMA) * COLUMNAS_KPK + Columna(peon);
}

// The weaker king's squares for which some advance of the pawn wins. A pawn that reaches the last rank wins unless it
// is taken there at once: a queen, or a rook where the queen would stalemate.
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

// The same for the king moves, by what is known so far.
static Conjunto GanaConElRey(int peon, int rey) {
    Conjunto      ganadas = 0;
    const Saltos& pasos   = SALTOS_REY[static_cast<unsigned>(rey)];
    for (int i = 0; i < pasos.Numero; ++i)
        if (pasos.Casillas[i] != peon) ganadas |= Ganadas.MueveDebil[IndicePeon(peon)][pasos.Casillas[i]];
    return ganadas;
}

// One sweep over the squares of the stronger king; says whether a new win was found.
static bool Barrer(int peon) {
    bool      cambio = false;
    const int fila   = IndicePeon(peon);
    for (int rey = 0; rey < 64; ++rey) {
        if (rey == peon) continue;
        const Conjunto zona    = Vecinas(Bit(rey)) | Bit(rey);
        const Conjunto legales = ~(zona | Bit(peon));
        const Conjunto destinos =
            ~(zona | AtaquesDePeones<BLANCO>(Bit(peon)));  // with the pawn's own square: taking it draws

        // The weaker side loses when it can move and every move leads to a won position.
        Conjunto&  debil    = Ganadas.MueveDebil[fila][rey];
        Conjunto&  fuerte   = Ganadas.MueveFuerte[fila][rey];
        const auto antes    = debil;
        const auto anterior = fuerte;
        debil               = legales & Vecinas(destinos) & ~Vecinas(destinos & ~fuerte);
        fuerte              = legales & ~AtaquesDePeones<BLANCO>(Bit(peon)) &
                 (fuerte | GanaAvanzando(peon, rey) | GanaConElRey(peon, rey));
        cambio |= debil != antes || fuerte != anterior;
    }
    return cambio;
}

void IniciarKpk() {
    Ganadas = {};
    for (int fila = FILA_SEPTIMA; fila <= FILA_SEGUNDA; ++fila)
        for (int columna = 0; columna < COLUMNAS_KPK; ++columna)
            while (Barrer(fila * 8 + columna)) {
            }
}

int KpkGana(int reyFuerte, int peon, int reyDebil, bool mueveFuerte) {
    if (Fila(peon) < FILA_SEPTIMA || Fila(peon) > FILA_SEGUNDA) return 0;
    const int      espejo = Columna(peon) < COLUMNAS_KPK ? 0 : 7;
    const int      indice = IndicePeon(peon ^ espejo);
    const Conjunto ganan =
        mueveFuerte ? Ganadas.MueveFuerte[indice][reyFuerte ^ espejo] : Ganadas.MueveDebil[indice][reyFuerte ^ espejo];
    return static_cast<int>((ganan >> (reyDebil ^ espejo)) & 1U);
}
