// The position. There is one, global, for the whole run; nobody passes it around.
#pragma once

#include <cstdint>

// Piece codes. A black piece is the white code + DESFASE_NEGRO.
enum Pieza : int {
    PEON_B    = 1,
    CABALLO_B = 2,
    ALFIL_B   = 3,
    TORRE_B   = 4,
    DAMA_B    = 5,
    REY_B     = 6,
    VACIO     = 7,  // empty square
    PEON_N    = 8,
    CABALLO_N = 9,
    ALFIL_N   = 10,
    TORRE_N   = 11,
    DAMA_N    = 12,
    REY_N     = 13,
    NINGUNA   = 15,  // "no piece" inside a move word; never stands on the board
};
constexpr int DESFASE_NEGRO = 7;
constexpr int CODIGOS       = 14;  // rows of a table indexed by piece code

constexpr int PLIES_MAX   = 64;   // rows of every per-ply table; Ply stays in 0..63
constexpr int KEYS_MAX    = 600;  // capacity of HistorialKeys
constexpr int REGLA50_MAX = 100;  // plies without capture or pawn move; beyond it the game is drawn

// Castling state of a side. The last two grant no right: they tell the evaluation that the side has castled.
enum Enroque : int {
    SIN_ENROQUE    = 0,
    ENROQUE_CORTO  = 1,  // king side, bit value
    ENROQUE_LARGO  = 2,  // queen side, bit value
    ENROQUE_AMBOS  = 3,
    ENROCADO_LARGO = 4,
    ENROCADO_CORTO = 5,
};

// A set of squares: bit n is square n.
using Conjunto = std::uint64_t;
constexpr Conjunto Bit(int casilla) {
    return Conjunto{1} << casilla;
}

// What a move destroys; entry k belongs to the move made at Ply k.
struct EstadoDeshacer {
    std::uint64_t Key;
    std::uint32_t Movimiento;
    int           PosicionReyBlanco;
    int           PosicionReyNegro;
    int           EnroqueBlancas;
    int           EnroqueNegras;
    int           FichaAlPaso;
    int           Regla50;
};

struct RegistroTablero {
    int            PosicionReyBlanco;
    int            PosicionReyNegro;
    int            EnroqueBlancas;  // Enroque
    int            EnroqueNegras;
    int            FichaAlPaso;  // square of the pawn that has just advanced two squares; 0 = none
    int            Ply;          // moves made since the root = next free entry of Deshacer
    int            Turno;        // side to move: 1 = white, 0 = black
    int            TurnoRaiz;    // side to move after the last "position": the engine's own side
    int            Regla50;      // plies since the last capture or pawn move
    int            Fase;         // game phase 0 (pawn ending) .. 24 (opening); written by Evaluar
    EstadoDeshacer Deshacer[PLIES_MAX];
    std::uint64_t  HistorialKeys[KEYS_MAX];  // key after each move played, for repetitions
    int            NumeroKeys;               // used entries of HistorialKeys
    std::uint64_t  Key;                      // Zobrist key; only making and unmaking moves and set-up write it
    int            TablaCasillas[64];        // colour of a square: 1 for a8 and h1, 0 for a1
    alignas(64) int Casillas[64];            // piece codes; 0 = a8, 7 = h8, 56 = a1, 63 = h1

    // The shadow of Casillas, for questions about many squares at once. Debug builds recount it around every move.
    Conjunto Piezas[CODIGOS];  // squares by piece code
    Conjunto Bandos[2];        // occupied squares by colour, [Turno]
};
extern RegistroTablero TableroGlobal;

// The only ways to change a square, so that Casillas and its shadow stay alike. A piece arrives on an empty square.
inline void CambiarSombra(int pieza, Conjunto casillas) {
    TableroGlobal.Piezas[pieza] ^= casillas;
    TableroGlobal.Bandos[pieza < VACIO ? 1 : 0] ^= casillas;
}
inline void PonerPieza(int casilla, int pieza) {
    TableroGlobal.Casillas[casilla] = pieza;
    CambiarSombra(pieza, Bit(casilla));
}
inline void QuitarPieza(int casilla) {
    CambiarSombra(TableroGlobal.Casillas[casilla], Bit(casilla));
    TableroGlobal.Casillas[casilla] = VACIO;
}
inline void MoverPieza(int desde, int hasta) {
    const int pieza               = TableroGlobal.Casillas[desde];
    TableroGlobal.Casillas[desde] = VACIO;
    TableroGlobal.Casillas[hasta] = pieza;
    CambiarSombra(pieza, Bit(desde) ^ Bit(hasta));
}
void VaciarTablero();

// Fills TablaCasillas. To be called before any position is set up.
void CrearTablaCasillas();

// 1 when the current position stood on the board before within the reversible moves. One earlier occurrence is
// enough: what could be repeated once more can be repeated again.
int Es_Tabla_Repeticion();

// 1 when the position is drawn by the fifty-move rule or by repetition. The search does not ask it at the root, where
// a move must be answered.
int EsTablasPorRegla();
