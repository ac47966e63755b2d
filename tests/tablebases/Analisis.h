// Plies to mate of a pawn, a rook or a queen with their king against a bare king, worked out without any table.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <vector>

constexpr int SIN_DECIDIR = 255;

// By value iteration, one ply a pass. The piece's side comes up the board; mueve: 1 = it is to move. Squares as on our
// board; 64 = none.
struct Analisis {
    char             Pieza;
    const Analisis*  Coronas[2]{};  // what a pawn becomes; minor pieces do not win
    std::vector<int> Plies = std::vector<int>(2 * 64 * 64 * 64, SIN_DECIDIR);

    int& De(int mueve, int rey, int pieza, int solo) {
        return Plies[static_cast<std::size_t>(((mueve * 64 + rey) * 64 + pieza) * 64 + solo)];
    }
    int De(int mueve, int rey, int pieza, int solo) const {
        return Plies[static_cast<std::size_t>(((mueve * 64 + rey) * 64 + pieza) * 64 + solo)];
    }
    static int Distancia(int a, int b) { return std::max(std::abs(a % 8 - b % 8), std::abs(a / 8 - b / 8)); }

    // The piece attacks the square; the two kings stand in its way.
    bool Ataca(int pieza, int rey, int solo, int casilla) const {
        const int dc = casilla % 8 - pieza % 8, df = casilla / 8 - pieza / 8;
        if (Pieza == 'P') return df == -1 && std::abs(dc) == 1;
        const bool recta = dc == 0 || df == 0, diagonal = std::abs(dc) == std::abs(df);
        if (casilla == pieza || !(recta || (diagonal && Pieza == 'Q'))) return false;
        const int paso = (dc > 0) - (dc < 0) + 8 * ((df > 0) - (df < 0));
        for (int c = pieza + paso; c != casilla; c += paso)
            if (c == rey || c == solo) return false;
        return true;
    }
    bool EsLegal(int mueve, int rey, int pieza, int solo) const {
        if (rey == pieza || rey == solo || pieza == solo || Distancia(rey, solo) < 2) return false;
        if (Pieza == 'P' && (pieza < 8 || pieza > 55)) return false;
        return mueve == 0 || !Ataca(pieza, rey, 64, solo);
    }
    bool GanaEn(int rey, int pieza, int solo, int plies) const {
        for (int a = 0; a < 64; ++a) {
            if (Distancia(rey, a) == 1 && De(0, a, pieza, solo) == plies - 1) return true;
            if (Pieza != 'P' && Ataca(pieza, rey, solo, a) && De(0, rey, a, solo) == plies - 1) return true;
        }
        if (Pieza != 'P') return false;
        for (int a = pieza - 8; a >= pieza - (pieza / 8 == 6 ? 16 : 8) && a != rey && a != solo; a -= 8) {
            if (a >= 8 && De(0, rey, a, solo) == plies - 1) return true;
            for (const Analisis* corona : Coronas)
                if (a < 8 && corona->De(0, rey, a, solo) == plies - 1) return true;
        }
        return false;
    }
    // Known once every move is decided; a capture never is, and no move is mate only in check.
    bool PierdeEn(int rey, int pieza, int solo, int plies) const {
        int resistencia = Ataca(pieza, rey, 64, solo) ? 0 : SIN_DECIDIR;
        for (int a = 0, jugadas = 0; a < 64; ++a) {
            if (Distancia(solo, a) != 1 || Distancia(rey, a) < 2 || Ataca(pieza, rey, 64, a)) continue;
            if (a == pieza || De(1, rey, pieza, a) == SIN_DECIDIR) return false;
            resistencia = std::max(jugadas++ == 0 ? 0 : resistencia, De(1, rey, pieza, a) + 1);
        }
        return resistencia == plies;
    }
    // Illegal positions are never decided, so no move leads to them. Returns the longest win.
    int Calcular() {
        int mas_larga = 0;
        for (int plies = 0, vacias = 0; vacias < 4; ++plies, ++vacias)
            for (int i = 0; i < 64 * 64 * 64; ++i) {
                const int mueve = plies % 2, rey = i >> 12, pieza = i >> 6 & 63, solo = i & 63;
                if (De(mueve, rey, pieza, solo) != SIN_DECIDIR || !EsLegal(mueve, rey, pieza, solo)) continue;
                if (!(mueve == 1 ? GanaEn(rey, pieza, solo, plies) : PierdeEn(rey, pieza, solo, plies))) continue;
                De(mueve, rey, pieza, solo) = plies;
                vacias                      = 0;
                if (mueve == 1) mas_larga = plies;
            }
        return mas_larga;
    }
};
