#include "board/Posicion.h"

#include <algorithm>
#include <cstring>

#include "board/Bando.h"
#include "board/EstadoMotor.h"
#include "board/Fen.h"
#include "board/Generacion.h"
#include "board/HacerMovimiento.h"
#include "board/Palabras.h"
#include "board/Zobrist.h"
#include "plataforma/Salida.h"

constexpr std::size_t FEN_MAX = 79;  // a word that would make the collected FEN this long or longer is dropped

// Room that a search needs in HistorialKeys, and the keys that stay when older ones are dropped: far more than the
// halfmove clock can look back before the fifty-move rule ends the game.
constexpr int KEYS_BUSQUEDA    = PLIES_MAX;
constexpr int KEYS_CONSERVADAS = 300;

static void ImprimirMovimientoIlegal(const char* texto) {
    const RegistroTablero& t = TableroGlobal;
    Imprimir("info string Movimiento ilegal: %s\n", texto);
    Imprimir("info string Enroque Blancas: %d\n", t.EnroqueBlancas);
    Imprimir("info string Enroque Negras: %d\n", t.EnroqueNegras);
    Imprimir("info string Ficha al Paso: %d\n", t.FichaAlPaso);
    Imprimir("info string Posici\363n Rey Blanco: %d\n", t.PosicionReyBlanco);
    Imprimir("info string Posici\363n Rey Negro: %d\n", t.PosicionReyNegro);
}

// The pseudo-legal move with this text, 0 when there is none.
static std::uint32_t BuscarMovimiento(const char* texto) {
    ListaMovimientos lista;
    const int        numero = GenerarMovimientos(GENERAR_TODOS, lista);
    for (int i = 0; i < numero; ++i) {
        const std::uint32_t mov = lista.Entradas[i].Movimiento;
        char                coordenadas[COORDENADAS_MAX];
        MovimientoCoordenadas(mov, coordenadas);
        if (std::strcmp(coordenadas, texto) == 0) return mov;
    }
    return 0;
}

std::uint32_t BuscarMovimientoLegal(const char* texto) {
    const std::uint32_t mov = BuscarMovimiento(texto);
    return mov != 0 && EsLegal(mov) != 0 ? mov : 0;
}

// A long game would fill HistorialKeys, and from then on making and unmaking would no longer balance.
static void DescartarKeysAntiguas() {
    RegistroTablero& t = TableroGlobal;
    if (t.NumeroKeys + 2 + KEYS_BUSQUEDA <= KEYS_MAX) return;
    const int sobran = t.NumeroKeys - KEYS_CONSERVADAS;
    std::copy(t.HistorialKeys + sobran, t.HistorialKeys + t.NumeroKeys, t.HistorialKeys);
    t.NumeroKeys = KEYS_CONSERVADAS;
}

void Movimiento(const char* texto, int* aplicado) {
    RegistroTablero& t      = TableroGlobal;
    t.Ply                   = 0;
    const std::uint32_t mov = BuscarMovimiento(texto);
    if (mov == 0) {
        if (*aplicado == 1) return;
        ImprimirMovimientoIlegal(texto);
        *aplicado = 0;
        Salir     = 1;
        return;
    }
    *aplicado = 1;
    DescartarKeysAntiguas();
    HacerMovimiento(mov);
    t.Ply = 0;
    // Moves of the game stand in the history twice, once from making and once from here.
    t.HistorialKeys[t.NumeroKeys++] = t.Key;
    ++TipoJuego.MovimientosJugados;
}

// Collects the words of a FEN up to "moves" (left in palabra) or the end of the text; returns the text behind.
static const char* ReunirFen(const char* texto, char* palabra, char* fen) {
    std::size_t largo = 0;
    for (;;) {
        texto = Split_String(texto, palabra);
        if (*palabra == '\0' || std::strcmp(palabra, "moves") == 0) return texto;
        const std::size_t letras = std::strlen(palabra);
        if (largo + letras >= FEN_MAX) continue;
        std::memcpy(fen + largo, palabra, letras);
        largo += letras;
        fen[largo++] = ' ';
        fen[largo]   = '\0';
    }
}

// What follows an illegal move belongs to another game: full UCI reports it and stops there.
static bool AcabaLista(const char* palabra) {
    if (UciCompleto.Activo == 0 || BuscarMovimientoLegal(palabra) != 0) return false;
    ImprimirMovimientoIlegal(palabra);
    return true;
}

// Plays the words that follow "moves".
static void JugarLista(const char* texto) {
    char palabra[PALABRA_MAX];
    int  aplicado = 0;
    for (texto = Split_String(texto, palabra); *palabra != '\0'; texto = Split_String(texto, palabra)) {
        if (AcabaLista(palabra)) return;
        Movimiento(palabra, &aplicado);
    }
}

int Position_Fen_Startpos(const char* texto) {
    RegistroTablero& t = TableroGlobal;
    LimpiarPuntuacion(1);
    t.Regla50 = t.NumeroKeys     = 0;
    t.Ply                        = 0;
    TipoJuego.MovimientosJugados = 0;

    char palabra[PALABRA_MAX];
    texto = Split_String(texto, palabra);
    if (std::strcmp(palabra, "fen") == 0) {
        char fen[FEN_MAX + 2] = "";
        texto                 = ReunirFen(texto, palabra, fen);
        if (!CargarFen(fen)) {
            Imprimir("info string Formato FEN incorrecto.\n");
            return Position_Fen_Startpos(FEN_INICIAL);
        }
    } else {
        texto = Split_String(texto, palabra);
        if (!CargarFen(FEN_INICIAL)) {
            Salir = 1;
            return t.Turno;
        }
    }
    // The halfmove clock of a FEN counts moves that nobody has seen: no key may match them.
    std::fill_n(t.HistorialKeys, t.NumeroKeys, 0);
    t.Key = ObtenerKey();

    if (std::strcmp(palabra, "moves") == 0) JugarLista(texto);
    t.TurnoRaiz = t.Turno;
    return t.Turno;
}
