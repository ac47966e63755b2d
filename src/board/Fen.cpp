#include "board/Fen.h"

#include <cstring>

#include "board/Color.h"
#include "board/Palabras.h"

constexpr char NOMBRES_CASILLAS[64][3] = {
    // clang-format off
    "a8", "b8", "c8", "d8", "e8", "f8", "g8", "h8",
    "a7", "b7", "c7", "d7", "e7", "f7", "g7", "h7",
    "a6", "b6", "c6", "d6", "e6", "f6", "g6", "h6",
    "a5", "b5", "c5", "d5", "e5", "f5", "g5", "h5",
    "a4", "b4", "c4", "d4", "e4", "f4", "g4", "h4",
    "a3", "b3", "c3", "d3", "e3", "f3", "g3", "h3",
    "a2", "b2", "c2", "d2", "e2", "f2", "g2", "h2",
    "a1", "b1", "c1", "d1", "e1", "f1", "g1", "h1",
    // clang-format on
};

// The piece code of a FEN letter, VACIO when it is none.
static int PiezaDeLetra(char letra) {
    constexpr char LETRAS[] = "PNBRQK";
    if (letra == '\0') return VACIO;
    if (const char* blanca = std::strchr(LETRAS, letra)) return PEON_B + static_cast<int>(blanca - LETRAS);
    if (letra < 'a' || letra > 'z') return VACIO;
    if (const char* negra = std::strchr(LETRAS, letra - 'a' + 'A')) return PEON_N + static_cast<int>(negra - LETRAS);
    return VACIO;
}

static void ColocarPieza(int casilla, int pieza) {
    PonerPieza(casilla, pieza);
    if (pieza == REY_B) TableroGlobal.PosicionReyBlanco = casilla;
    if (pieza == REY_N) TableroGlobal.PosicionReyNegro = casilla;
    RegistroBando& bando = EsBlanca(pieza) ? Blancas : Negras;
    if (CONTADOR[pieza] != nullptr) ++(bando.*CONTADOR[pieza]);
}

// Reads the eight ranks. Returns the text behind them, or nullptr when they are malformed. Digits may run on into
// the next rank, but not past the last square.
static const char* LeerCasillas(const char* texto) {
    int casilla = 0;
    for (int fin_fila = 8; fin_fila <= 64; fin_fila += 8) {
        for (; casilla < fin_fila; ++texto) {
            if (*texto >= '1' && *texto <= '8') {
                const int fin = casilla + (*texto - '0');
                if (fin > 64) return nullptr;
                casilla = fin;
                continue;
            }
            const int pieza = PiezaDeLetra(*texto);
            if (pieza == VACIO) {
                if (*texto == ' ') PonerPieza(casilla, 0);
                return nullptr;
            }
            ColocarPieza(casilla++, pieza);
        }
        if (*texto != '\0') ++texto;  // the separator, whatever it is
    }
    return texto;
}

// Side to move and castling rights: letters at fixed places, each followed by one character that is skipped.
static const char* LeerTurnoYEnroques(const char* texto) {
    RegistroTablero& t = TableroGlobal;
    if (*texto != '\0') {
        t.Turno = *texto++ == 'w' ? BLANCO : NEGRO;
        if (*texto != '\0') ++texto;
    }
    if (*texto == '-') {
        ++texto;
    } else {
        if (*texto == 'K') t.EnroqueBlancas += ENROQUE_CORTO, ++texto;
        if (*texto == 'Q') t.EnroqueBlancas += ENROQUE_LARGO, ++texto;
        if (*texto == 'k') t.EnroqueNegras += ENROQUE_CORTO, ++texto;
        if (*texto == 'q') t.EnroqueNegras += ENROQUE_LARGO, ++texto;
    }
    return *texto != '\0' ? texto + 1 : texto;
}

// The pawn that may be taken en passant, from the name of the square behind it; 0 for anything else.
static int PeonAlPaso(const char* nombre) {
    constexpr int FILA_6 = 2;
    constexpr int FILA_3 = 5;
    for (int casilla = 0; casilla < 64; ++casilla) {
        if (std::strcmp(nombre, NOMBRES_CASILLAS[casilla]) != 0) continue;
        if (casilla >> 3 == FILA_3) return casilla - 8;
        if (casilla >> 3 == FILA_6) return casilla + 8;
    }
    return 0;
}

static void LeerRegla50(const char* palabra) {
    RegistroTablero& t = TableroGlobal;
    if (Es_Numero(palabra)) t.Regla50 = t.NumeroKeys = NumeroAcotado(palabra, REGLA50_MAX);
    if (static_cast<unsigned>(t.Regla50) > static_cast<unsigned>(REGLA50_MAX)) t.Regla50 = t.NumeroKeys = 0;
}

int CargarFen(const char* texto) {
    RegistroTablero& t  = TableroGlobal;
    t.PosicionReyBlanco = t.PosicionReyNegro = 0;
    t.EnroqueBlancas = t.EnroqueNegras = SIN_ENROQUE;
    t.FichaAlPaso                      = 0;
    VaciarTablero();

    texto = LeerCasillas(texto);
    if (texto == nullptr) return 0;
    texto = LeerTurnoYEnroques(texto);

    char palabra[PALABRA_MAX];
    texto         = Split_String(texto, palabra);
    t.FichaAlPaso = PeonAlPaso(palabra);
    Split_String(texto, palabra);
    LeerRegla50(palabra);
    return 1;
}
