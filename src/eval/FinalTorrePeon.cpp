#include "eval/FinalTorrePeon.h"

#include <algorithm>

#include "eval/FinalesDificiles.h"
#include "eval/Pesos.h"

namespace {

constexpr int VENTAJA_MAX      = RegistroPesos::VENTAJAS - 1;
constexpr int PASOS_PEON_ATRAS = 5;  // a pawn that has this far to go, or more, loses

int Rango(int casilla) {
    return 8 - Fila(casilla);
}

// Squares of rook and pawn against rook with the pawn on the left half.
struct TorrePeon {
    int  Rey, Torre, Peon, ReyDebil, TorreDebil, Meta;
    bool MueveFuerte;
};

TorrePeon LeerTorrePeon(const RegistroFinal& pos) {
    const int espejo = Columna(Una(pos, PEON_B)) < 4 ? 0 : 7;
    const int peon   = Una(pos, PEON_B) ^ espejo;
    return {Una(pos, REY_B) ^ espejo,   Una(pos, TORRE_B) ^ espejo, peon,           Una(pos, REY_N) ^ espejo,
            Una(pos, TORRE_N) ^ espejo, Coronacion(peon),           pos.MueveFuerte};
}

// The rook on the sixth rank keeps the king out until the pawn steps there, then checks from behind.
bool EsTerceraFila(const TorrePeon& t) {
    return DistanciaRey(t.ReyDebil, t.Meta) <= 1 && Rango(t.Peon) <= 5 && Rango(t.Rey) <= 5 && Rango(t.TorreDebil) == 6;
}

bool EsJaquesPorDetras(const TorrePeon& t) {
    return DistanciaRey(t.ReyDebil, t.Meta) <= 1 && Rango(t.Peon) == 6 && Rango(t.TorreDebil) == 1 &&
           (!t.MueveFuerte || DistanciaRey(t.Rey, t.Peon) > 1);
}

// A rook on the back rank is enough against a rook or knight pawn: the other side has no room to go round.
bool EsUltimaFila(const TorrePeon& t) {
    return Columna(t.Peon) <= 1 && t.ReyDebil == t.Meta && Rango(t.TorreDebil) == 8 && Rango(t.Peon) <= 6;
}

// A rook pawn with its rook before it, attacked from the side.
bool EsAtaqueLateral(const TorrePeon& t) {
    return Columna(t.Peon) == 0 && Columna(t.Torre) == 0 && Fila(t.Torre) < Fila(t.Peon) && Rango(t.Peon) <= 6 &&
           Rango(t.TorreDebil) == Rango(t.Peon) && Columna(t.TorreDebil) >= 4 && Columna(t.ReyDebil) >= 6 &&
           Rango(t.ReyDebil) == 7 && Columna(t.Rey) > 1;
}

// The same with the pawn on the seventh: the rook before it can never leave.
bool EsTorreAtadaAlPeon(const TorrePeon& t) {
    return Columna(t.Peon) == 0 && t.Torre == t.Meta && Rango(t.Peon) == 7 && Columna(t.TorreDebil) == 0 &&
           Rango(t.TorreDebil) <= 3 && Columna(t.ReyDebil) >= 6 && Rango(t.ReyDebil) == 7;
}

// The king before its pawn leaves by a bridge, because the rook on the next file keeps the other king away.
bool EsLucena(const TorrePeon& t) {
    const int lado = Columna(t.ReyDebil) > Columna(t.Peon) ? 1 : -1;
    return Rango(t.Peon) == 7 && Columna(t.Peon) != 0 && t.Rey == t.Meta &&
           (Columna(t.ReyDebil) - Columna(t.Peon)) * lado >= 2 && Columna(t.Torre) == Columna(t.Peon) + lado;
}

}  // namespace

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

int EvaluarTorrePeonContraTorre(const RegistroFinal& pos) {
    const TorrePeon t = LeerTorrePeon(pos);
    if (EsTerceraFila(t) || EsJaquesPorDetras(t) || EsUltimaFila(t) || EsAtaqueLateral(t) || EsTorreAtadaAlPeon(t))
        return PESOS.TORRE_PEON_TORRE_TABLAS;
    return EsLucena(t) ? PESOS.TORRE_PEON_TORRE_LUCENA : NO_RECONOCIDO;
}
