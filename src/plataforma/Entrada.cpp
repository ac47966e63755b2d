#include "plataforma/Entrada.h"

#include <algorithm>
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

// Room for new bytes; none when unread ones fill the buffer.
static bool HayHueco() {
    return Fin - Inicio < LINEA_MAX;
}

// The unread bytes from desde on move up to inicio.
static void Retirar(int inicio, int desde) {
    std::memmove(Bufer + inicio, Bufer + desde, static_cast<std::size_t>(Fin - desde));
    Fin -= desde - inicio;
}

// The end of the whole line that starts at inicio, behind its LF; 0 while it has none. The last line may lack it.
static int FinDeLinea(int inicio) {
    const void* const salto = std::memchr(Bufer + inicio, '\n', static_cast<std::size_t>(Fin - inicio));
    if (salto != nullptr) return static_cast<int>(static_cast<const char*>(salto) - Bufer) + 1;
    return FinDeEntrada != 0 && inicio < Fin ? Fin : 0;
}

static void CopiarPrincipio(int inicio, int fin, char (&principio)[PRINCIPIO_MAX]) {
    while (fin > inicio && (Bufer[fin - 1] == '\n' || Bufer[fin - 1] == '\r')) --fin;
    const int letras = std::min(fin - inicio, PRINCIPIO_MAX - 1);
    std::memcpy(principio, Bufer + inicio, static_cast<std::size_t>(letras));
    principio[letras] = '\0';
}

int RevisarLineas(DestinoLinea (*tratar)(const char* principio), int esperar) {
    if (esperar != 0 && FinDeEntrada == 0 && HayHueco()) Rellenar();
    while (FinDeEntrada == 0 && HayHueco() && HayBytes() != 0) Rellenar();
    for (int inicio = Inicio, fin = FinDeLinea(inicio); fin != 0; fin = FinDeLinea(inicio)) {
        char principio[PRINCIPIO_MAX];
        CopiarPrincipio(inicio, fin, principio);
        const DestinoLinea destino = tratar(principio);
        if (destino == LINEA_ULTIMA) break;
        if (destino == LINEA_TOMADA)
            Retirar(inicio, fin);
        else
            inicio = fin;
    }
    return FinDeEntrada == 0 && HayHueco() ? 1 : 0;
}

void AbandonarEntrada() {
    Inicio       = Fin;
    FinDeEntrada = 1;
}
