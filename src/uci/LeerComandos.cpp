#include "uci/LeerComandos.h"

#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Palabras.h"
#include "board/Perft.h"
#include "board/Posicion.h"
#include "book/Libro.h"
#include "book/LibroSql.h"
#include "eval/Evaluar.h"
#include "plataforma/Entrada.h"
#include "plataforma/Salida.h"
#include "search/Transposicion.h"
#include "tablebases/Gaviota.h"
#include "uci/Arranque.h"
#include "uci/Go.h"
#include "uci/Opciones.h"
#include "uci/UciCompleto.h"

// --- Commands; each takes the text behind its word ---

static void ComandoUciNewGame(const char* /*resto*/) {
    UciNewGame();
}

// OwnBook is only offered as on while the book can be opened.
static void ComandoUci(const char* /*resto*/) {
    Imprimir("id name Tamrek 0.6 x64\n");
    Imprimir("id author Ferlo Quent, Spain.\n");
    if (LibroSql.OwnBook != 0) LibroSql.OwnBook = ComprobarAccesoLibro();
    LimpiarLineaLibro();
    ImprimirOpciones();
    ImprimirOpcionesCompletas();
    Imprimir("uciok\n");
}

// The one moment at which the interface waits for us: what takes long is done here and not on the clock of a search.
static void ComandoIsReady(const char* /*resto*/) {
    ActualizarGaviota();
    CrearTransposicion(HashTotal());
    OcuparTransposicion();
    Preparar_Evaluacion();
    Imprimir("readyok\n");
}

static void ComandoPosition(const char* resto) {
    SeguirPartida(resto);
    Position_Fen_Startpos(resto);
}

static void ComandoBook(const char* /*resto*/) {
    VerificarLibroApertura();
}

static void ComandoQuit(const char* /*resto*/) {
    Salir = 1;
}

struct EntradaComando {
    const char* Palabra;
    void (*Ejecutar)(const char* resto);
};

static const EntradaComando COMANDOS[] = {
    {"ucinewgame", ComandoUciNewGame},
    {"uci", ComandoUci},
    {"isready", ComandoIsReady},
    {"setoption", ParseSetoption},
    {"position", ComandoPosition},
    {"go", Go},
    {"book", ComandoBook},
    {"perft", Perft},
    {"quit", ComandoQuit},
};

static void EjecutarLinea(const char* linea) {
    char              palabra[PALABRA_MAX];
    const char* const resto = Split_String(linea, palabra);
    if (EjecutarCompleto(palabra, resto) != 0) return;
    for (const EntradaComando& comando : COMANDOS)
        if (std::strcmp(palabra, comando.Palabra) == 0) {
            comando.Ejecutar(resto);
            return;
        }
}

void LeerComandos() {
    char linea[LINEA_MAX];
    while (Salir == 0) {
        if (LeerLinea(linea, LINEA_MAX) == 0)
            Salir = 1;
        else
            EjecutarLinea(linea);
        if (SalidaPerdida() != 0) Salir = 1;
    }
}
