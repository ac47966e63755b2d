// Rook against pawn, rook and pawn against rook, queen against pawn.
#include <algorithm>

#include "board/Color.h"
#include "eval/Pesos.h"
#include "eval/finales/Evaluadores.h"
#include "eval/finales/Kqkp.h"

constexpr int VENTAJA_MAX      = RegistroPesos::VENTAJAS - 1;
constexpr int PASOS_PEON_ATRAS = 5;  // a pawn that has this far to go, or more, loses

int EvaluarTorreContraPeon(const RegistroFinal& pos) {
    const int rey   = Una(pos, REY_B);
    const int peon  = Una(pos, PEON_N);
    const int debil = Una(pos, REY_N);
    const int meta  = 56 + Columna(peon);
    const int pasos = DistanciaRey(peon, meta);

    const int escolta = std::max(DistanciaRey(debil, meta) - 1, 0);
    const int llegada = std::max(DistanciaRey(rey, meta) - 1, 0);
    const int ventaja = pasos + escolta - llegada + (pos.MueveFuerte ? 1 : 0);

    const bool delante = Columna(rey) == Columna(peon) && Fila(rey) > Fila(peon);
    const bool solo    = DistanciaRey(debil, peon) > (pos.MueveFuerte ? 2 : 3);
    const int indice = delante || solo || pasos >= PASOS_PEON_ATRAS ? VENTAJA_MAX : std::clamp(ventaja, 0, VENTAJA_MAX);
    return PESOS.TORRE_PEON_CARRERA[indice] + PESOS.TORRE_PEON_CERCANIA * (7 - DistanciaRey(rey, peon));
}

// Ranks as the stronger side counts them.
constexpr int PRIMERA = 0;
constexpr int TERCERA = 2;
constexpr int QUINTA  = 4;
constexpr int SEXTA   = 5;
constexpr int SEPTIMA = 6;
constexpr int OCTAVA  = 7;

static int FilaFuerte(int casilla) {
    return FilaRelativa<BLANCO>(casilla);
}

// Squares of rook and pawn against rook with the pawn on the left half.
struct TorrePeon {
    int  Rey, Torre, Peon, ReyDebil, TorreDebil, Meta;
    bool MueveFuerte;
};

static TorrePeon LeerTorrePeon(const RegistroFinal& pos) {
    const int espejo = Columna(Una(pos, PEON_B)) < 4 ? 0 : 7;
    const int peon   = Una(pos, PEON_B) ^ espejo;
    return {Una(pos, REY_B) ^ espejo,   Una(pos, TORRE_B) ^ espejo, peon,           Una(pos, REY_N) ^ espejo,
            Una(pos, TORRE_N) ^ espejo, Coronacion(peon),           pos.MueveFuerte};
}

// The rook on the sixth rank keeps the king out until the pawn steps there, then checks from behind.
static bool EsTerceraFila(const TorrePeon& t) {
    return DistanciaRey(t.ReyDebil, t.Meta) <= 1 && FilaFuerte(t.Peon) <= QUINTA && FilaFuerte(t.Rey) <= QUINTA &&
           FilaFuerte(t.TorreDebil) == SEXTA;
}

static bool EsJaquesPorDetras(const TorrePeon& t) {
    return DistanciaRey(t.ReyDebil, t.Meta) <= 1 && FilaFuerte(t.Peon) == SEXTA &&
           FilaFuerte(t.TorreDebil) == PRIMERA && (!t.MueveFuerte || DistanciaRey(t.Rey, t.Peon) > 1);
}

// A rook on the back rank is enough against a rook or knight pawn: the other side has no room to go round.
static bool EsUltimaFila(const TorrePeon& t) {
    return Columna(t.Peon) <= 1 && t.ReyDebil == t.Meta && FilaFuerte(t.TorreDebil) == OCTAVA &&
           FilaFuerte(t.Peon) <= SEXTA;
}

// A rook pawn with its rook before it, attacked from the side.
static bool EsAtaqueLateral(const TorrePeon& t) {
    return Columna(t.Peon) == 0 && Columna(t.Torre) == 0 && Fila(t.Torre) < Fila(t.Peon) &&
           FilaFuerte(t.Peon) <= SEXTA && FilaFuerte(t.TorreDebil) == FilaFuerte(t.Peon) &&
           Columna(t.TorreDebil) >= 4 && Columna(t.ReyDebil) >= 6 && FilaFuerte(t.ReyDebil) == SEPTIMA &&
           Columna(t.Rey) > 1;
}

// The same with the pawn on the seventh: the rook before it can never leave.
static bool EsTorreAtadaAlPeon(const TorrePeon& t) {
    return Columna(t.Peon) == 0 && t.Torre == t.Meta && FilaFuerte(t.Peon) == SEPTIMA && Columna(t.TorreDebil) == 0 &&
           FilaFuerte(t.TorreDebil) <= TERCERA && Columna(t.ReyDebil) >= 6 && FilaFuerte(t.ReyDebil) == SEPTIMA;
}

// The king before its pawn leaves by a bridge, because the rook on the next file keeps the other king away.
static bool EsLucena(const TorrePeon& t) {
    const int lado = Columna(t.ReyDebil) > Columna(t.Peon) ? 1 : -1;
    return FilaFuerte(t.Peon) == SEPTIMA && Columna(t.Peon) != 0 && t.Rey == t.Meta &&
           (Columna(t.ReyDebil) - Columna(t.Peon)) * lado >= 2 && Columna(t.Torre) == Columna(t.Peon) + lado;
}

int EvaluarTorrePeonContraTorre(const RegistroFinal& pos) {
    const TorrePeon t = LeerTorrePeon(pos);
    if (EsTerceraFila(t) || EsJaquesPorDetras(t) || EsUltimaFila(t) || EsAtaqueLateral(t) || EsTorreAtadaAlPeon(t))
        return PESOS.TORRE_PEON_TORRE_TABLAS;
    return EsLucena(t) ? PESOS.TORRE_PEON_TORRE_LUCENA : NO_RECONOCIDO;
}

constexpr int SEPTIMA_DEBIL = 6;  // of the weaker side, as Fila() counts

int EvaluarDamaContraPeon(const RegistroFinal& pos) {
    const int  rey  = Una(pos, REY_B);
    const int  peon = Una(pos, PEON_N);
    const bool gana =
        Fila(peon) != SEPTIMA_DEBIL || KqkpGana(rey, Una(pos, DAMA_B), Una(pos, REY_N), peon, pos.MueveFuerte) == 1;
    const int cerca = PESOS.DAMA_PEON_CERCANIA * (7 - DistanciaRey(rey, peon));
    return gana ? PESOS.DAMA_PEON_GANADA + cerca : PESOS.DAMA_PEON_TABLAS;
}
