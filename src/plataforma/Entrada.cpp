#include "plataforma/Entrada.h"

#include <cassert>
#include <cstring>

#include "plataforma/EntradaSalida.h"

static char Bufer[LINEA_MAX];
static int  Inicio       = 0;  // the unread bytes are Bufer[Inicio] .. Bufer[Fin - 1]
static int  Fin          = 0;
static int  FinDeEntrada = 0;  // 1 once the system has reported the end; what is in the buffer is still to be read

// Reads more bytes behind the unread ones, of which there are fewer than the buffer holds.
static void Rellenar() {
    std::memmove(Bufer, Bufer + Inicio, static_cast<std::size_t>(Fin - Inicio));
    Fin -= Inicio;
    Inicio           = 0;
    const int leidos = LeerBytes(Bufer + Fin, LINEA_MAX - Fin);
    if (leidos == 0) FinDeEntrada = 1;
    Fin += leidos;
}

// Unread bytes that make up the next line or piece, its LF included; 0 while it is not complete.
static int LongitudDisponible(int limite) {
    const int   examinados = Fin - Inicio < limite - 1 ? Fin - Inicio : limite - 1;
    const void* salto      = std::memchr(Bufer + Inicio, '\n', static_cast<std::size_t>(examinados));
    if (salto != nullptr) return static_cast<int>(static_cast<const char*>(salto) - (Bufer + Inicio)) + 1;
    return examinados == limite - 1 || FinDeEntrada != 0 ? examinados : 0;
}

// The last line of the input may lack its LF, but not its CR.
static void QuitarFinDeLinea(char* linea, int letras) {
    const bool ultima = FinDeEntrada != 0 && Inicio == Fin;
    if (letras > 0 && linea[letras - 1] == '\n')
        linea[--letras] = '\0';
    else if (!ultima)
        return;
    if (letras > 0 && linea[letras - 1] == '\r') linea[letras - 1] = '\0';
}

int LeerLinea(char* linea, int limite) {
    assert(limite >= 2 && limite <= LINEA_MAX);
    int letras = LongitudDisponible(limite);
    while (letras == 0 && FinDeEntrada == 0) {
        Rellenar();
        letras = LongitudDisponible(limite);
    }
    std::memcpy(linea, Bufer + Inicio, static_cast<std::size_t>(letras));
    linea[letras] = '\0';
    Inicio += letras;
    QuitarFinDeLinea(linea, letras);
    return letras > 0 ? 1 : 0;
}

int HayLinea(int limite) {
    assert(limite >= 2 && limite <= LINEA_MAX);
    while (FinDeEntrada == 0 && LongitudDisponible(limite) == 0) {
        if (HayBytes() == 0) return 0;
        Rellenar();
    }
    return 1;
}

void AbandonarEntrada() {
    Inicio       = Fin;
    FinDeEntrada = 1;
}
