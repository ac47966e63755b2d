#include "eval/finales/Kpk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "board/Geometria.h"

// White king and one man against the black king, solved position by position from the rules of the moves alone.
// Queen and rook are solved first; the pawn promotes into them.
namespace {

constexpr int ESTADOS = 64 * 64 * 64;

std::size_t Indice(int blanco, int pieza, int negro) {
    return static_cast<std::size_t>((blanco * 64 + pieza) * 64 + negro);
}

// Whether the man (P, R or Q) on casilla attacks otra, with the white king as the only obstacle.
bool Ataca(char tipo, int casilla, int otra, int blanco) {
    const int columnas = Columna(otra) - Columna(casilla);
    const int filas    = Fila(otra) - Fila(casilla);
    if (tipo == 'P') return filas == -1 && Absoluto(columnas) == 1;
    const bool recta    = (columnas == 0) != (filas == 0);
    const bool diagonal = columnas != 0 && Absoluto(columnas) == Absoluto(filas);
    if (!recta && !(diagonal && tipo == 'Q')) return false;
    const int paso = (columnas > 0) - (columnas < 0) + 8 * ((filas > 0) - (filas < 0));
    for (int actual = casilla + paso; actual != otra; actual += paso)
        if (actual == blanco) return false;
    return true;
}

struct Solucion {
    char              Tipo;
    std::vector<char> GananBlancas  = std::vector<char>(ESTADOS);  // White to move
    std::vector<char> PierdenNegras = std::vector<char>(ESTADOS);  // Black to move
};

bool Posible(int blanco, int pieza, int negro) {
    return blanco != pieza && negro != pieza && DistanciaRey(blanco, negro) > 1;
}

// Targets of the man's moves; a pawn's promotions are not among them.
std::vector<int> Destinos(char tipo, int casilla, int blanco, int negro) {
    std::vector<int> destinos;
    const auto       libre = [&](int otra) { return otra != blanco && otra != negro; };
    if (tipo == 'P') {
        if (casilla < 16 || !libre(casilla - 8)) return destinos;
        destinos.push_back(casilla - 8);
        if (Fila(casilla) == 6 && libre(casilla - 16)) destinos.push_back(casilla - 16);
        return destinos;
    }
    // With White to move the black king is not attacked, so it never stands in the way.
    for (int otra = 0; otra < 64; ++otra)
        if (libre(otra) && Ataca(tipo, casilla, otra, blanco)) destinos.push_back(otra);
    return destinos;
}

bool PierdenNegras(const Solucion& s, int blanco, int pieza, int negro) {
    bool hayJugada = false;
    for (const int paso : PASO_REY) {
        const int otra = negro + paso;
        if (!EnTablero(otra) || DistanciaRey(negro, otra) != 1 || DistanciaRey(otra, blanco) <= 1) continue;
        if (otra == pieza) return false;
        if (Ataca(s.Tipo, pieza, otra, blanco)) continue;
        if (!s.GananBlancas[Indice(blanco, pieza, otra)]) return false;
        hayJugada = true;
    }
    return hayJugada || Ataca(s.Tipo, pieza, negro, blanco);
}

bool GananBlancas(const Solucion& s, const std::vector<const Solucion*>& promociones, int blanco, int pieza,
                  int negro) {
    for (const int paso : PASO_REY) {
        const int otra = blanco + paso;
        if (EnTablero(otra) && DistanciaRey(blanco, otra) == 1 && Posible(otra, pieza, negro) &&
            s.PierdenNegras[Indice(otra, pieza, negro)])
            return true;
    }
    for (const int otra : Destinos(s.Tipo, pieza, blanco, negro))
        if (s.PierdenNegras[Indice(blanco, otra, negro)]) return true;
    if (s.Tipo != 'P' || Fila(pieza) != 1 || pieza - 8 == blanco || pieza - 8 == negro) return false;
    return std::any_of(promociones.begin(), promociones.end(), [&](const Solucion* promocion) {
        return promocion->PierdenNegras[Indice(blanco, pieza - 8, negro)];
    });
}

bool Mejorar(Solucion& s, const std::vector<const Solucion*>& promociones, int blanco, int pieza, int negro) {
    const auto indice = Indice(blanco, pieza, negro);
    const bool ganan  = !s.GananBlancas[indice] && !Ataca(s.Tipo, pieza, negro, blanco) &&
                       GananBlancas(s, promociones, blanco, pieza, negro);
    const bool pierden = !s.PierdenNegras[indice] && PierdenNegras(s, blanco, pieza, negro);
    if (ganan) s.GananBlancas[indice] = 1;
    if (pierden) s.PierdenNegras[indice] = 1;
    return ganan || pierden;
}

Solucion Resolver(char tipo, const std::vector<const Solucion*>& promociones) {
    Solucion  s{tipo};
    const int primera = tipo == 'P' ? 8 : 0;
    const int ultima  = tipo == 'P' ? 55 : 63;
    for (bool cambio = true; cambio;) {
        cambio = false;
        for (int pieza = primera; pieza <= ultima; ++pieza)
            for (int blanco = 0; blanco < 64; ++blanco)
                for (int negro = 0; negro < 64; ++negro)
                    if (Posible(blanco, pieza, negro)) cambio |= Mejorar(s, promociones, blanco, pieza, negro);
    }
    return s;
}

int CasillaDe(const std::string& nombre) {
    return (nombre[0] - 'a') + 8 * ('8' - nombre[1]);
}

}  // namespace

TEST(FinalKpk, CoincideConLaFuerzaBrutaEnTodasLasPosiciones) {
    IniciarKpk();
    const Solucion dama        = Resolver('Q', {});
    const Solucion torre       = Resolver('R', {});
    const Solucion peon        = Resolver('P', {&dama, &torre});
    int            diferencias = 0;
    for (int casilla = 8; casilla < 56; ++casilla)
        for (int blanco = 0; blanco < 64; ++blanco)
            for (int negro = 0; negro < 64; ++negro) {
                const auto indice = Indice(blanco, casilla, negro);
                diferencias += KpkGana(blanco, casilla, negro, true) != static_cast<int>(peon.GananBlancas[indice]);
                diferencias += KpkGana(blanco, casilla, negro, false) != static_cast<int>(peon.PierdenNegras[indice]);
            }
    EXPECT_EQ(diferencias, 0);
}

TEST(FinalKpk, PosicionesDeLosManuales) {
    struct Caso {
        const char* rey;
        const char* peon;
        const char* rival;
        int         conTurno, sinTurno;  // result with the stronger side to move, and with the weaker
    };
    const Caso CASOS[] = {
        {"e6", "e5", "e8", 1, 1},  // king on the sixth rank before its pawn: won whoever moves
        {"e5", "e4", "e7", 0, 1},  // opposition
        {"a6", "a5", "a8", 0, 0},  // rook pawn, king in the corner
        {"c7", "a6", "a8", 0, 0}, {"b6", "b5", "b8", 1, 1}, {"a1", "h4", "c5", 1, 0},  // square of the pawn
        {"e1", "e2", "e8", 1, 0}, {"e6", "e7", "e8", 1, 0},  // zugzwang of the king against stalemate
    };
    IniciarKpk();
    for (const Caso& caso : CASOS) {
        SCOPED_TRACE(std::string(caso.rey) + caso.peon + caso.rival);
        const int rey = CasillaDe(caso.rey), peon = CasillaDe(caso.peon), rival = CasillaDe(caso.rival);
        for (const int espejo : {0, 7}) {
            EXPECT_EQ(KpkGana(rey ^ espejo, peon ^ espejo, rival ^ espejo, true), caso.conTurno);
            EXPECT_EQ(KpkGana(rey ^ espejo, peon ^ espejo, rival ^ espejo, false), caso.sinTurno);
        }
    }
}

TEST(FinalKpk, UnPeonEnLaPrimeraOUltimaFilaNoGana) {
    IniciarKpk();
    for (int rey = 0; rey < 64; ++rey)
        for (const int peon : {0, 7, 56, 63}) EXPECT_EQ(KpkGana(rey, peon, 63 - rey, true), 0);
}
