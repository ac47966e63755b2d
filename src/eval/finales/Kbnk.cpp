#include "eval/finales/Kbnk.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "board/Conjunto.h"

// The bishop is light-squared: a board mirrored left to right is the same game with a dark-squared one. Turning the
// board and mirroring it on the diagonal of a8 keep the colours of the squares, so the weaker king need only stand on
// the 20 squares of a triangle with the corners a8, h8 and d5.
constexpr int REYES_KBNK   = 20;
constexpr int ALFILES_KBNK = 32;  // squares of one colour, two neighbours of a rank holding one of them

// [weaker king][stronger king][bishop]
template <class Valor>
using TablaKbnk = Valor[REYES_KBNK][64][ALFILES_KBNK];

// Moves to mate by square of the knight, the stronger side to move; 0 where it does not win. Of its
// 2.6 megabytes the system gives out none before they are written.
static TablaKbnk<std::uint8_t[64]> Jugadas;

// Work space: the wins known so far, as sets of knight squares.
static TablaKbnk<Conjunto> MueveFuerte;
static TablaKbnk<Conjunto> MueveDebil;

// The board turned, and then mirrored, so that the weaker king stands in its triangle.
struct Vuelta {
    bool Girar;
    bool Trasponer;
};

static Vuelta VueltaDe(int debil) {
    const bool girar = Fila(debil) + Columna(debil) > 7;
    const int  otra  = girar ? debil ^ 63 : debil;
    return {girar, Fila(otra) > Columna(otra)};
}

static int Llevar(int casilla, Vuelta vuelta) {
    const int girada = vuelta.Girar ? casilla ^ 63 : casilla;
    return vuelta.Trasponer ? Columna(girada) * 8 + Fila(girada) : girada;
}

// Exchanges the bits of mascara with those so many places further up.
static Conjunto Cruzar(Conjunto conjunto, Conjunto mascara, int lugares) {
    const Conjunto distintos = (conjunto ^ (conjunto >> lugares)) & mascara;
    return conjunto ^ distintos ^ (distintos << lugares);
}

// The squares of the set on the board as it was before.
static Conjunto Devolver(Conjunto conjunto, Vuelta vuelta) {
    if (vuelta.Trasponer) {
        conjunto = Cruzar(conjunto, 0x00AA00AA00AA00AA, 7);
        conjunto = Cruzar(conjunto, 0x0000CCCC0000CCCC, 14);
        conjunto = Cruzar(conjunto, 0x00000000F0F0F0F0, 28);
    }
    if (vuelta.Girar) {
        conjunto = Cruzar(conjunto, 0x5555555555555555, 1);
        conjunto = Cruzar(conjunto, 0x3333333333333333, 2);
        conjunto = Cruzar(conjunto, 0x0F0F0F0F0F0F0F0F, 4);
        conjunto = Cruzar(conjunto, 0x00FF00FF00FF00FF, 8);
        conjunto = Cruzar(conjunto, 0x0000FFFF0000FFFF, 16);
        conjunto = conjunto >> 32 | conjunto << 32;
    }
    return conjunto;
}

// Place of a weaker king of the triangle: the rows have 8, 6, 4 and 2 squares.
static int IndiceRey(int debil) {
    return Fila(debil) * (8 - Fila(debil)) + Columna(debil);
}
static std::size_t IndiceAlfil(int alfil) {
    return static_cast<std::size_t>(alfil) / 2;
}

template <class Valor>
static Valor& Lugar(TablaKbnk<Valor>& tabla, int debil, int rey, int alfil) {
    return tabla[IndiceRey(debil)][rey][IndiceAlfil(alfil)];
}

// The same for a weaker king anywhere.
static Conjunto GanadasCon(int debil, int rey, int alfil) {
    const Vuelta vuelta = VueltaDe(debil);
    return Devolver(Lugar(MueveFuerte, Llevar(debil, vuelta), Llevar(rey, vuelta), Llevar(alfil, vuelta)), vuelta);
}

// Where the knight keeps the bishop from a square: between them on a diagonal, anywhere when they share none.
static std::array<std::array<Conjunto, 64>, ALFILES_KBNK> CalcularCortes() {
    std::array<std::array<Conjunto, 64>, ALFILES_KBNK> cortes{};
    for (int alfil = 0; alfil < 64; ++alfil) {
        if (ColorCasilla(alfil) != ColorCasilla(0)) continue;
        for (int casilla = 0; casilla < 64; ++casilla)
            cortes[IndiceAlfil(alfil)][static_cast<std::size_t>(casilla)] =
                Contiene(LINEAS_ALFIL[static_cast<std::size_t>(alfil)], casilla)
                    ? AtaquesDiagonales(alfil, Bit(casilla)) & AtaquesDiagonales(casilla, Bit(alfil))
                    : ~Conjunto{0};
    }
    return cortes;
}
static std::array<std::array<Conjunto, 64>, ALFILES_KBNK> Cortes;

// Where the knight lets the weaker king stand on a square: the other pieces do not attack it, and neither does the
// knight. A piece on that square is taken.
static Conjunto DejanPaso(int casilla, int rey, int alfil) {
    if (DistanciaRey(casilla, rey) <= 1) return 0;
    const Conjunto corte = Cortes[IndiceAlfil(alfil)][static_cast<std::size_t>(casilla)];
    return ~ATAQUES_CABALLO[static_cast<std::size_t>(casilla)] & (Contiene(corte, rey) ? ~Conjunto{0} : corte);
}

static Conjunto Libres(int debil, int rey, int alfil) {
    return DistanciaRey(debil, rey) <= 1 || debil == alfil || rey == alfil ? 0 : ~(Bit(debil) | Bit(rey) | Bit(alfil));
}

static Conjunto AtaquesDeCaballos(Conjunto caballos) {
    const Conjunto uno = Lados(caballos);
    const Conjunto dos = HaciaA(HaciaA(caballos)) | HaciaH(HaciaH(caballos));
    return uno << 16 | uno >> 16 | dos << 8 | dos >> 8;
}

// The weaker side, to move, is mated, or every move of its king leads to a win of the other.
static Conjunto PierdeElDebil(int debil, int rey, int alfil) {
    Conjunto pasos  = 0;
    Conjunto salvan = 0;
    for (Conjunto vecinas = ATAQUES_REY[static_cast<std::size_t>(debil)]; vecinas != 0;) {
        const int      casilla = SacarCasilla(vecinas);
        const Conjunto paso    = DejanPaso(casilla, rey, alfil);
        pasos |= paso;
        if ((paso & ~salvan) != 0) salvan |= paso & ~GanadasCon(casilla, rey, alfil);
    }
    return Libres(debil, rey, alfil) & ~salvan & (pasos | ~DejanPaso(debil, rey, alfil));
}

// The stronger side, to move, comes to such a position.
static Conjunto GanaElFuerte(int debil, int rey, int alfil) {
    Conjunto ganan = AtaquesDeCaballos(Lugar(MueveDebil, debil, rey, alfil));
    for (Conjunto vecinas = ATAQUES_REY[static_cast<std::size_t>(rey)]; vecinas != 0;)
        ganan |= Lugar(MueveDebil, debil, SacarCasilla(vecinas), alfil);
    for (Conjunto metas = AtaquesDiagonales(alfil, Bit(debil) | Bit(rey)); metas != 0;) {
        const int meta = SacarCasilla(metas);
        ganan |= Lugar(MueveDebil, debil, rey, meta) & ~Cortes[IndiceAlfil(alfil)][static_cast<std::size_t>(meta)];
    }
    // A weaker king in check cannot have the other side to move.
    return ganan & DejanPaso(debil, rey, alfil) & Libres(debil, rey, alfil);
}

// Calls visitar(weaker king, stronger king, bishop) for all their squares.
template <class Visitar>
static void Recorrer(Visitar visitar) {
    for (int debil = 0; debil < 64; ++debil) {
        const Vuelta vuelta = VueltaDe(debil);
        if (vuelta.Girar || vuelta.Trasponer) continue;
        for (int rey = 0; rey < 64; ++rey)
            for (int alfil = 0; alfil < 64; ++alfil)
                if (ColorCasilla(alfil) == ColorCasilla(0)) visitar(debil, rey, alfil);
    }
}

// One move back a round: what is won in so many moves asks only what is lost in fewer.
static void Resolver() {
    Cortes      = CalcularCortes();
    bool cambio = true;
    for (std::uint8_t jugadas = 1; cambio; ++jugadas) {
        cambio = false;
        Recorrer([](int debil, int rey, int alfil) {
            Lugar(MueveDebil, debil, rey, alfil) = PierdeElDebil(debil, rey, alfil);
        });
        Recorrer([jugadas, &cambio](int debil, int rey, int alfil) {
            Conjunto& ganadas = Lugar(MueveFuerte, debil, rey, alfil);
            Conjunto  nuevas  = GanaElFuerte(debil, rey, alfil) & ~ganadas;
            cambio |= nuevas != 0;
            ganadas |= nuevas;
            while (nuevas != 0) Lugar(Jugadas, debil, rey, alfil)[SacarCasilla(nuevas)] = jugadas;
        });
    }
}

static int JugadasDelFuerte(int rey, int alfil, int caballo, int debil) {
    const Vuelta vuelta  = VueltaDe(debil);
    const auto&  jugadas = Lugar(Jugadas, Llevar(debil, vuelta), Llevar(rey, vuelta), Llevar(alfil, vuelta));
    const int    numero  = jugadas[Llevar(caballo, vuelta)];
    return numero == 0 ? KBNK_SIN_MATE : numero;
}

void PrepararKbnk() {
    static bool resuelto = false;
    if (!resuelto) Resolver();
    resuelto = true;
}

int KbnkJugadas(int rey, int alfil, int caballo, int reyDebil, bool mueveFuerte) {
    PrepararKbnk();
    const int espejo = ColorCasilla(alfil) == ColorCasilla(0) ? 0 : 7;
    rey ^= espejo, alfil ^= espejo, caballo ^= espejo, reyDebil ^= espejo;
    if (!Contiene(Libres(reyDebil, rey, alfil), caballo)) return KBNK_SIN_MATE;
    if (mueveFuerte) return JugadasDelFuerte(rey, alfil, caballo, reyDebil);

    int maximo = Contiene(DejanPaso(reyDebil, rey, alfil), caballo) ? KBNK_SIN_MATE : 0;  // stalemate or mate
    for (Conjunto vecinas = ATAQUES_REY[static_cast<std::size_t>(reyDebil)]; vecinas != 0;) {
        const int casilla = SacarCasilla(vecinas);
        if (!Contiene(DejanPaso(casilla, rey, alfil), caballo)) continue;
        const int jugadas =
            casilla == alfil || casilla == caballo ? KBNK_SIN_MATE : JugadasDelFuerte(rey, alfil, caballo, casilla);
        if (jugadas == KBNK_SIN_MATE) return KBNK_SIN_MATE;
        maximo = std::max(maximo, jugadas);
    }
    return maximo;
}
