// Pawn structure and passed pawns: what each property that Conjuntos knows, and some more, are worth.
#include "eval/Conjuntos.h"
#include "eval/Espejo.h"
#include "eval/Par.h"
#include "eval/Terminos.h"
#include "eval/Tropismo.h"

// One row of eight equal values a rank, rank 8 first.
static constexpr TablaEspejo PorFilas(const int (&filas)[8]) {
    int tablero[64] = {};
    for (int casilla = 0; casilla < 64; ++casilla) tablero[casilla] = filas[Fila(casilla)];
    return ConEspejo(tablero);
}

// clang-format off
constexpr TablaEspejo PST_P_OP = ConEspejo({   // centipawns
//    a    b    c    d    e    f    g    h
      0,   0,   0,   0,   0,   0,   0,   0,    // 8
    -15,  -5,   5,   5,   5,   5,  -5, -15,    // 7
    -15,  -5,   5,  15,  15,   5,  -5, -15,    // 6
    -15,  -5,   5,  15,  15,   5,  -5, -15,    // 5
    -15,  -5,   5,  15,  15,   5,  -5, -15,    // 4
    -15,  -5,   5,   5,   5,   5,  -5, -15,    // 3
    -15,  -5,   5,   5,   5,   5,  -5, -15,    // 2
      0,   0,   0,   0,   0,   0,   0,   0 }); // 1

constexpr TablaEspejo PST_P_EG = ConEspejo({   // the same for both colours
//    a    b    c    d    e    f    g    h
      0,   0,   0,   0,   0,   0,   0,   0,    // 8
      3,   1,  -1,  -3,  -3,  -1,   1,   3,    // 7
      3,   1,  -1,  -3,  -3,  -1,   1,   3,    // 6
      3,   1,  -1,  -3,  -3,  -1,   1,   3,    // 5
      3,   1,  -1,  -3,  -3,  -1,   1,   3,    // 4
      3,   1,  -1,  -3,  -3,  -1,   1,   3,    // 3
      3,   1,  -1,  -3,  -3,  -1,   1,   3,    // 2
      0,   0,   0,   0,   0,   0,   0,   0 }); // 1

// Pawns side by side.
constexpr TablaEspejo PST_BONUS_FALANGE_OP = ConEspejo({
//    a    b    c    d    e    f    g    h
      0,   0,   0,   0,   0,   0,   0,   0,    // 8
     24,  24,  24,  24,  24,  24,  24,  24,    // 7
     16,  16,  16,  16,  16,  16,  16,  16,    // 6
     10,  10,  10,  15,  15,  10,  10,  10,    // 5
      6,   6,   8,  13,  13,   8,   6,   6,    // 4
      2,   2,   2,   5,   5,   2,   2,   2,    // 3
      2,   2,   2,   2,   2,   2,   2,   2,    // 2
      0,   0,   0,   0,   0,   0,   0,   0 }); // 1

constexpr TablaEspejo PST_BONUS_FALANGE_EG = ConEspejo({
//    a    b    c    d    e    f    g    h
      0,   0,   0,   0,   0,   0,   0,   0,    // 8
      5,   6,   6,   6,   6,   6,   6,   5,    // 7
      3,   4,   5,   5,   5,   5,   4,   3,    // 6
      2,   3,   3,   4,   4,   3,   3,   2,    // 5
      1,   2,   2,   3,   3,   2,   2,   1,    // 4
      1,   1,   1,   2,   2,   1,   1,   1,    // 3
      1,   1,   1,   0,   0,   1,   1,   1,    // 2
      0,   0,   0,   0,   0,   0,   0,   0 }); // 1

// Pawns defended by a pawn.               rank  8   7   6   5   4   3   2   1
constexpr TablaEspejo PST_BONUS_DEFENDED_OP = PorFilas({ 0, 12,  8,  5,  3,  1,  0,  0 });
constexpr TablaEspejo PST_BONUS_DEFENDED_EG = PorFilas({ 0,  5,  4,  3,  2,  1,  0,  0 });

// By the pawn's rank as its side counts it, 0 = own back rank.
constexpr int BONUS_PASSED[16] = { 0, 12, 12, 30,  50,  80, 130, 0,     // opening
                                   0, 24, 24, 60, 100, 160, 260, 0 };   // endgame
constexpr int BONUS_PEON_IMPARABLE[8] = { 0, 150, 200, 250, 300, 350, 400, 0 };

// Backward pawn, opening, by file a to h; added, unlike the penalties below.
constexpr int PENALIZACION_PEON_RETRASADO_MALUS[8] = { -5, -7, -9, -11, -11, -9, -7, -5 };
// clang-format on
static_assert(PST_P_OP[64 + 48] == PST_P_OP[8]);  // a2 is to Black what a7 is to White

constexpr Par PENALIZACION_PEON_DOUBLED   = {12, 24};  // for each pawn of a file but one
constexpr Par PENALIZACION_PEON_ISOLATED  = {10, 20};  // the opening half twice with an open file in front
constexpr Par PENALIZACION_PEON_RETRASADO = {8, 8};    // the opening half only with an open file in front
constexpr int BONUS_PEON_CENTRAL_AVANZADO = 5;         // opening

constexpr float UN_TERCIO       = 0.33333334F;   // a candidate's part of the passed pawn's bonus
constexpr float UN_TREINTAVO    = 0.033333335F;  // what each unit of the king's nearness takes off the bonus
constexpr int   LIBRE           = 100;           // percent of the bonus of a passed pawn that can step ahead
constexpr int   BLOQUEADO       = 80;            // ... with an enemy piece in front of it
constexpr int   PASADO_EG       = 8;             // start of the endgame half of BONUS_PASSED
constexpr int   FILA_CORONACION = 7;             // as the side counts it

constexpr Conjunto ALA_DAMA = COLUMNA_A * 0x0F;  // files a to d
constexpr Conjunto ALA_REY  = ALA_DAMA << 4;     // files e to h

template <int C>
static constexpr Conjunto CENTRO_AVANZADO = Bit(En<C>("d5")) | Bit(En<C>("e5")) | Bit(En<C>("d6")) | Bit(En<C>("e6"));

// Candidate: a pawn with a neighbour beside it and an enemy pawn two squares ahead, the usual lever, when no other
// enemy pawn can join in: none ahead on the adjacent files and, the wing's majority being what counts, none
// ahead on the file two away towards the near edge (the c and d files look at a and b, the e and f files at g and h).
// Two squares ahead are on the board only below the seventh rank.
template <int C>
static Conjunto BuscarCandidatos(Conjunto falange) {
    const Conjunto rivales      = Conjuntos[RIVAL<C>].Peones;
    const Conjunto detras_rival = Detras<C>(rivales);
    const Conjunto palanca      = falange & ~Conjuntos[C].Abiertos & Retroceder<C>(Retroceder<C>(rivales));
    const Conjunto a_dos        = (HaciaH(HaciaH(detras_rival)) & ALA_DAMA) | (HaciaA(HaciaA(detras_rival)) & ALA_REY);
    return palanca & ~Lados(detras_rival) & ~a_dos;
}

template <int C>
static bool SinPiezas() {
    const RegistroBando& bando = BandoDe<C>();
    return (bando.Caballos | bando.Alfiles | bando.Torres | bando.Damas) == 0;
}

// Rule of the square: the enemy king cannot catch the pawn. The double step is not taken into account.
template <int C>
static bool EsImparable(int casilla, int rey_rival) {
    const int pasos    = FILA_CORONACION - FilaRelativa<C>(casilla);
    const int promover = casilla + pasos * ADELANTE<C>;
    const int cedido   = TableroGlobal.Turno == RIVAL<C> ? 1 : 0;
    return pasos + cedido < DistanciaRey(rey_rival, promover);
}

template <int C>
static void EvaluarPasado(int casilla, bool rival_sin_piezas) {
    const int  rey_rival = PosicionReyDe<RIVAL<C>>();
    const int  fila      = FilaRelativa<C>(casilla);
    const int  delante   = casilla + ADELANTE<C>;
    const bool bloqueado = EnTablero(delante) && EsRival<C>(TableroGlobal.Casillas[delante]);
    const int  factor    = bloqueado ? BLOQUEADO : LIBRE;
    const int  final     = BONUS_PASSED[PASADO_EG + fila];
    const int  frenado   = Truncar(TROPISMO_DISTANCIA[casilla][rey_rival] * final, UN_TREINTAVO);
    Sumar<C>(Porcentaje(BONUS_PASSED[fila], factor), Porcentaje(final - frenado, factor));
    if (rival_sin_piezas && EsImparable<C>(casilla, rey_rival))
        Sumar<C>(BONUS_PEON_IMPARABLE[fila], BONUS_PEON_IMPARABLE[fila]);
}

template <int C>
static void SumarTabla(Conjunto conjunto, const TablaEspejo& tabla_op, const TablaEspejo& tabla_eg) {
    while (conjunto != 0) {
        const int casilla = SacarCasilla(conjunto) + MITAD<C>;
        Sumar<C>(tabla_op[casilla], tabla_eg[casilla]);
    }
}

template <int C>
static void EvaluarDebilidades() {
    const ConjuntosBando& propios = Conjuntos[C];
    Sumar<C>(PENALIZACION_PEON_DOUBLED, -Cuantas(propios.Doblados));
    SumarApertura<C>(PENALIZACION_PEON_ISOLATED.OP,
                     -Cuantas(propios.Aislados) - Cuantas(propios.Aislados & propios.Abiertos));
    SumarFinal<C>(PENALIZACION_PEON_ISOLATED.EG, -Cuantas(propios.Aislados));
    SumarApertura<C>(PENALIZACION_PEON_RETRASADO.OP, -Cuantas(propios.Retrasados & propios.Abiertos));
    SumarFinal<C>(PENALIZACION_PEON_RETRASADO.EG, -Cuantas(propios.Retrasados));
    for (Conjunto resto = propios.Retrasados; resto != 0;)
        SumarApertura<C>(PENALIZACION_PEON_RETRASADO_MALUS[Columna(SacarCasilla(resto))]);
}

template <int C>
static void EvaluarPeones() {
    const ConjuntosBando& propios    = Conjuntos[C];
    const Conjunto        falange    = propios.Peones & Lados(propios.Peones);
    const Conjunto        defendidos = propios.Peones & propios.Ataque_Peones;

    EvaluarDebilidades<C>();
    SumarTabla<C>(falange, PST_BONUS_FALANGE_OP, PST_BONUS_FALANGE_EG);
    SumarTabla<C>(defendidos & ~falange, PST_BONUS_DEFENDED_OP, PST_BONUS_DEFENDED_EG);
    for (Conjunto resto = BuscarCandidatos<C>(falange); resto != 0;) {
        const int fila = FilaRelativa<C>(SacarCasilla(resto));
        Sumar<C>(Truncar(BONUS_PASSED[fila], UN_TERCIO), Truncar(BONUS_PASSED[PASADO_EG + fila], UN_TERCIO));
    }
    const bool rival_sin_piezas = SinPiezas<RIVAL<C>>();
    for (Conjunto resto = propios.Pasados; resto != 0;) EvaluarPasado<C>(SacarCasilla(resto), rival_sin_piezas);

    SumarTabla<C>(propios.Peones, PST_P_OP, PST_P_EG);
    SumarApertura<C>(BONUS_PEON_CENTRAL_AVANZADO, Cuantas(propios.Peones & CENTRO_AVANZADO<C>));
}

void EvaluarPeonesB() {
    EvaluarPeones<BLANCO>();
}
void EvaluarPeonesN() {
    EvaluarPeones<NEGRO>();
}
