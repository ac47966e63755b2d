#include "eval/finales/Kqkp.h"

#include <cstddef>
#include <utility>

#include "board/Conjunto.h"

// A board mirrored left to right is the same game: files e to h need no table.
constexpr int COLUMNAS_KQKP = 4;
constexpr int FILA_PEON     = 6;  // as Fila() counts

// Sets of squares of the stronger queen: [stronger king][weaker king]. The weaker side's man, the pawn or the queen
// that it became, stands on one square throughout a table.
using TablaDama = Conjunto[64][64];

// The wins. A bit is set once its win is proved; what is never proved stays a draw.
struct TablaKqkp {
    TablaDama MueveFuerte;
    TablaDama MueveDebil;
};
static TablaKqkp Ganadas[COLUMNAS_KQKP];

// Work space, written anew for each of the men.
static TablaKqkp Coronadas;       // the wins with a new queen on the promotion square
static TablaDama DamaSola;        // GanaLaDamaSola of all kings
static TablaDama Pasos;           // DejanPaso of the man, by stronger king and square
static TablaDama Candidatas;      // the weaker side to move: where it has no good move but perhaps one of its king
static Conjunto  Pendientes[64];  // weaker kings, by stronger king, for whom some move has become a loss

static Conjunto AtaquesDama(int casilla, Conjunto ocupadas) {
    return AtaquesDiagonales(casilla, ocupadas) | AtaquesRectos(casilla, ocupadas);
}

// All squares from which a queen comes to one of the set through free squares.
static Conjunto Alcanzan(Conjunto metas, Conjunto libres) {
    const auto extender = [=](auto paso) {
        Conjunto vistas = paso(metas);
        for (Conjunto frente = vistas; (frente &= libres) != 0; vistas |= frente) frente = paso(frente);
        return vistas;
    };
    return extender([](Conjunto s) { return s << 8; }) | extender([](Conjunto s) { return s >> 8; }) |
           extender([](Conjunto s) { return HaciaA(s); }) | extender([](Conjunto s) { return HaciaH(s); }) |
           extender([](Conjunto s) { return HaciaA(s) << 8; }) | extender([](Conjunto s) { return HaciaA(s) >> 8; }) |
           extender([](Conjunto s) { return HaciaH(s) << 8; }) | extender([](Conjunto s) { return HaciaH(s) >> 8; });
}

static bool EsPosible(int rey, int debil, int hombre) {
    return rey != hombre && debil != hombre && DistanciaRey(rey, debil) > 1;
}

static Conjunto Libres(int rey, int debil, int hombre) {
    return ~(Bit(rey) | Bit(debil) | Bit(hombre));
}

// Where the queen gives check.
static Conjunto Jaques(int rey, int debil, int hombre) {
    return AtaquesDama(debil, Bit(rey) | Bit(hombre));
}

// Where the queen lets the weaker king step to a square, or stands on it unguarded. The square that the king leaves
// covers nothing.
static Conjunto DejanPaso(int rey, int hombre, int casilla) {
    if (casilla == hombre || DistanciaRey(rey, casilla) <= 1) return 0;
    return ~AtaquesDama(casilla, Bit(rey) | Bit(hombre));
}

static Conjunto DejanAlgunPaso(int rey, int debil, int hombre) {
    Conjunto dejan = 0;
    for (Conjunto pasos = ATAQUES_REY[static_cast<std::size_t>(debil)]; pasos != 0;)
        dejan |= DejanPaso(rey, hombre, SacarCasilla(pasos));
    return dejan;
}

// The weaker king alone and to move: where the queen is neither taken nor stalemates.
static Conjunto GanaLaDamaSola(int rey, int debil) {
    const Conjunto sueltas = Vecinas(Bit(debil)) & ~Vecinas(Bit(rey));
    return (DejanAlgunPaso(rey, debil, rey) | Jaques(rey, debil, rey)) & ~sueltas & Libres(rey, debil, rey);
}

// The stronger side wins by taking the man.
static Conjunto GanaTomando(int rey, int debil, int hombre) {
    Conjunto ganan = 0;
    if (Contiene(DamaSola[rey][debil], hombre)) ganan |= AtaquesDama(hombre, Bit(rey) | Bit(debil));
    if (DistanciaRey(rey, hombre) == 1 && DistanciaRey(hombre, debil) > 1) ganan |= DamaSola[hombre][debil];
    return ganan & Libres(rey, debil, hombre) & ~Jaques(rey, debil, hombre);
}

// ---- The new queen.

// Checks that it can neither take nor meet by stepping between.
static Conjunto JaquesSinRespuesta(int rey, int debil, int nueva) {
    const Conjunto vista    = AtaquesDama(nueva, Bit(rey) | Bit(debil)) & Libres(rey, debil, nueva);
    const Conjunto ocupadas = Bit(rey) | Bit(nueva);
    const Conjunto cubren   = vista & AtaquesDama(debil, ocupadas);
    // What the king sees no longer when the squares that the new queen reaches are occupied as well.
    return AtaquesDama(debil, ocupadas | cubren) & Libres(rey, debil, nueva) & ~vista;
}

static bool DaJaqueLaNueva(int rey, int debil, int nueva) {
    return Contiene(AtaquesDama(nueva, Bit(debil)), rey);
}

// The stronger side takes the new queen or mates at once.
static Conjunto GanaAlInstante(int rey, int debil, int nueva) {
    const Conjunto ganan = GanaTomando(rey, debil, nueva);
    if (DaJaqueLaNueva(rey, debil, nueva)) return ganan;
    const Conjunto mates = JaquesSinRespuesta(rey, debil, nueva) & ~DejanAlgunPaso(rey, debil, nueva);
    return ganan | Alcanzan(mates, Libres(rey, debil, nueva));
}

// Quiet positions in which every move of the new queen loses at once; only the king in the corner beside it can be shut
// in like that.
static Conjunto EncierranALaNueva(int rey, int debil, int nueva) {
    if (DistanciaRey(debil, nueva) > 1 || DistanciaRey(rey, debil) > 2) return 0;
    Conjunto vista     = AtaquesDama(nueva, Bit(rey) | Bit(debil)) & Libres(rey, debil, nueva);
    Conjunto encierran = Libres(rey, debil, nueva) & ~vista & ~Jaques(rey, debil, nueva);
    if (vista == 0) return 0;
    while (vista != 0 && encierran != 0) encierran &= GanaAlInstante(rey, debil, SacarCasilla(vista));
    return encierran;
}

static Conjunto CandidatasConNueva(int rey, int debil, int nueva) {
    if (DaJaqueLaNueva(rey, debil, nueva)) return 0;  // not the weaker side's move
    return JaquesSinRespuesta(rey, debil, nueva) | EncierranALaNueva(rey, debil, nueva);
}

// ---- The pawn. It promotes, takes the queen, or its king moves.
static Conjunto CandidatasConPeon(int rey, int debil, int peon) {
    const int      meta    = peon + 8;
    const Conjunto tomadas = AtaquesDePeones<NEGRO>(Bit(peon));
    if (Contiene(tomadas, rey)) return 0;  // not the weaker side's move
    Conjunto mueven = 0;
    for (Conjunto pasos = ATAQUES_REY[static_cast<std::size_t>(debil)]; pasos != 0;)
        mueven |= Pasos[rey][SacarCasilla(pasos)];
    Conjunto salvan = tomadas;
    if (rey != meta && debil != meta) {
        const Conjunto coronan = ~Jaques(rey, debil, meta) & ~Bit(meta);
        mueven |= coronan;
        salvan |= coronan & ~Coronadas.MueveFuerte[rey][debil];
    }
    return Libres(rey, debil, peon) & ~salvan & (mueven | Jaques(rey, debil, peon));
}

// ---- Retrograde iteration, the same for both men.
// The stronger side, to move, wins with the queen on these squares as well, as far as they are possible.
static void AgregarGanadas(int rey, int debil, int hombre, Conjunto casillas, TablaDama& ganadas) {
    // Where the weaker king could not have stepped, it is in check; then it is not the stronger side's move.
    const Conjunto nuevas = casillas & Pasos[rey][debil] & Libres(rey, debil, hombre) & ~ganadas[rey][debil];
    if (nuevas == 0) return;
    ganadas[rey][debil] |= nuevas;
    Pendientes[rey] |= ATAQUES_REY[static_cast<std::size_t>(debil)];
}

// The weaker side, to move, loses where it has no good move but those of its king and these lose too. The stronger side
// comes there with its queen, or with its king while the queen stands in place.
static void Revisar(int rey, int debil, int hombre, TablaKqkp& tabla) {
    Conjunto perdidas = Candidatas[rey][debil] & ~tabla.MueveDebil[rey][debil];
    for (Conjunto vecinas = ATAQUES_REY[static_cast<std::size_t>(debil)]; vecinas != 0 && perdidas != 0;) {
        const int casilla = SacarCasilla(vecinas);
        perdidas &= ~Pasos[rey][casilla] | tabla.MueveFuerte[rey][casilla];
    }
    if (perdidas == 0) return;
    tabla.MueveDebil[rey][debil] |= perdidas;
    AgregarGanadas(rey, debil, hombre, Alcanzan(perdidas, Libres(rey, debil, hombre)), tabla.MueveFuerte);
    for (Conjunto vecinas = ATAQUES_REY[static_cast<std::size_t>(rey)] & ~Bit(hombre); vecinas != 0;)
        AgregarGanadas(SacarCasilla(vecinas), debil, hombre, perdidas, tabla.MueveFuerte);
}

static void Resolver(int hombre, TablaKqkp& tabla, Conjunto (*candidatas)(int rey, int debil, int hombre)) {
    tabla = {};
    for (int rey = 0; rey < 64; ++rey) {
        Pendientes[rey] = ~Conjunto{0};
        for (int casilla = 0; casilla < 64; ++casilla) Pasos[rey][casilla] = DejanPaso(rey, hombre, casilla);
        for (int debil = 0; debil < 64; ++debil) {
            Candidatas[rey][debil] = 0;
            if (!EsPosible(rey, debil, hombre)) continue;
            Candidatas[rey][debil]        = candidatas(rey, debil, hombre);
            tabla.MueveFuerte[rey][debil] = GanaTomando(rey, debil, hombre);
        }
    }
    for (bool cambio = true; cambio;) {
        cambio = false;
        for (int rey = 0; rey < 64; ++rey)
            for (Conjunto debiles = std::exchange(Pendientes[rey], 0); debiles != 0; cambio = true)
                Revisar(rey, SacarCasilla(debiles), hombre, tabla);
    }
}

void IniciarKqkp() {
    for (int rey = 0; rey < 64; ++rey)
        for (int debil = 0; debil < 64; ++debil)
            DamaSola[rey][debil] = DistanciaRey(rey, debil) > 1 ? GanaLaDamaSola(rey, debil) : 0;
    for (int columna = 0; columna < COLUMNAS_KQKP; ++columna) {
        const int peon = FILA_PEON * 8 + columna;
        Resolver(peon + 8, Coronadas, CandidatasConNueva);
        Resolver(peon, Ganadas[columna], CandidatasConPeon);
    }
}

int KqkpGana(int rey, int dama, int reyDebil, int peon, bool mueveFuerte) {
    if (Fila(peon) != FILA_PEON) return 0;
    const int        espejo = Columna(peon) < COLUMNAS_KQKP ? 0 : 7;
    const TablaKqkp& tabla  = Ganadas[Columna(peon) ^ espejo];
    const TablaDama& ganan  = mueveFuerte ? tabla.MueveFuerte : tabla.MueveDebil;
    return Contiene(ganan[rey ^ espejo][reyDebil ^ espejo], dama ^ espejo) ? 1 : 0;
}
