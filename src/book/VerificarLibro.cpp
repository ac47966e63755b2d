#include <sqlite3.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

#include "board/EstadoMotor.h"
#include "board/Posicion.h"
#include "book/BaseDeDatos.h"
#include "book/Libro.h"
#include "book/LibroSql.h"
#include "plataforma/Salida.h"

constexpr std::uint32_t FILAS_VERIFICADAS = 2147483649;
constexpr std::size_t   PRIMERA_JUGADA    = 4;    // characters taken of the first move of a row
constexpr int           LINEA_INCORRECTA  = 100;  // reported where no code of SQLite applies; also its SQLITE_ROW

static void ImprimirError(int codigo, const char* fila) {
    Imprimir("Error en el libro de apertura.\n");
    Imprimir("C\363digo de error: %d\n", codigo);
    Imprimir("Apertura incorrecta en: %s\n", fila);
}

// Plays the first letras characters of the text and returns what follows the character behind them.
static const char* JugarTexto(const char* texto, std::size_t letras, int* aplicado) {
    std::memset(LibroSql.Movimiento, 0, sizeof LibroSql.Movimiento);
    std::memcpy(LibroSql.Movimiento, texto, std::min<std::size_t>(letras, JUGADA_LIBRO_MAX));
    Movimiento(LibroSql.Movimiento, aplicado);
    return texto[letras] == '\0' ? texto + letras : texto + letras + 1;
}

// *aplicado is shared by all rows: 1 once any move has been played. Until then nothing behind the first move of a
// row is tried.
static void JugarFila(const char* fila, int* aplicado) {
    Position_Fen_Startpos(FEN_INICIAL);
    fila = JugarTexto(fila, std::min(std::strlen(fila), PRIMERA_JUGADA), aplicado);
    while (*aplicado != 0 && *fila != '\0') fila = JugarTexto(fila, std::strcspn(fila, " "), aplicado);
}

static void VerificarFilas() {
    std::uint32_t restantes = FILAS_VERIFICADAS;
    int           aplicado  = 0;
    int           codigo;
    char          copia[LINEA_LIBRO_MAX + 1] = "";
    while ((codigo = SiguienteFila()) == SQLITE_ROW) {
        const char* fila = TextoDeFila();
        std::snprintf(copia, sizeof copia, "%s", std::strlen(fila) <= LINEA_LIBRO_MAX ? fila : "");
        if (--restantes == 0) return ImprimirError(LINEA_INCORRECTA, copia);
        JugarFila(fila, &aplicado);
        if (aplicado != 0) continue;
        // Only the first row comes here. The failed move has raised the quit flag; without a further row it passes.
        Salir  = 0;
        codigo = SiguienteFila();
        if (codigo == SQLITE_ROW) return ImprimirError(LINEA_INCORRECTA, copia);
        break;
    }
    if (codigo == SQLITE_DONE)
        Imprimir("Libro de apertura correcto.\n");
    else
        ImprimirError(codigo, copia);
}

void VerificarLibroApertura() {
    Imprimir("Analizando libro de aperturas...\n");
    if (AbrirBaseDeDatos() == 0) {
        Imprimir("Libro de apertura cargado: No.\n");
        AbandonarLibro();
        CerrarBaseDeDatos();
        return;
    }
    const int codigo = PrepararConsulta("SELECT Partida FROM Book;");
    if (codigo == SQLITE_OK)
        VerificarFilas();
    else if (codigo == SQLITE_ERROR || codigo == SQLITE_NOTADB || codigo == SQLITE_CORRUPT)
        Imprimir("Error: Libro de aperturas corrupto.\n");
    else
        ImprimirError(codigo, "");
    CerrarBaseDeDatos();
}
