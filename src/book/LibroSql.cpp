#include "book/LibroSql.h"

#include <cstring>

#include "board/Palabras.h"

RegistroLibroSql LibroSql{.Conexion     = nullptr,
                          .Sentencia    = nullptr,
                          .Terminado    = 0,
                          .OwnBook      = 0,
                          .OwnBookLimit = LIMITE_LIBRO_VALOR,
                          .Linea        = {},
                          .Movimiento   = {},
                          .Consulta     = {}};

static_assert(LIMITE_LIBRO_MAX * LETRAS_POR_LIMITE <= LINEA_LIBRO_MAX);  // every line within the limit fits

void AbandonarLibro() {
    LibroSql.Terminado = 1;
}

void LimpiarLineaLibro() {
    std::memset(LibroSql.Linea, 0, sizeof LibroSql.Linea);
}

// movimientos: what follows "moves" and one space, as it stands.
static void FijarLineaLibro(const char* movimientos) {
    if (LibroSql.OwnBook == 0) {
        AbandonarLibro();
        return;
    }
    LimpiarLineaLibro();
    const std::size_t letras = std::strlen(movimientos);
    const int         limite = LibroSql.OwnBookLimit * LETRAS_POR_LIMITE;
    if (letras < static_cast<std::size_t>(limite) && letras <= LINEA_LIBRO_MAX)
        std::memcpy(LibroSql.Linea, movimientos, letras);
    else
        AbandonarLibro();
}

void SeguirPartida(const char* texto) {
    char palabra[PALABRA_MAX];
    texto = Split_String(texto, palabra);
    if (std::strcmp(palabra, "fen") == 0) {
        AbandonarLibro();
        return;
    }
    texto = Split_String(texto, palabra);
    if (std::strcmp(palabra, "moves") == 0) FijarLineaLibro(*texto == ' ' ? texto + 1 : texto);
}
