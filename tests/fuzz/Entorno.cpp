#include "fuzz/Entorno.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "book/BaseDeDatos.h"
#include "comun/Tablero.h"
#include "plataforma/Memoria.h"
#include "plataforma/Reloj.h"
#include "search/Transposicion.h"
#include "tablebases/DobleGaviota.h"
#include "uci/Arranque.h"
#include "uci/LeerComandos.h"
#include "uci/Opciones.h"
#include "uci/UciCompleto.h"

// These end with the input and with a lost output; their own variables are set back here.
#include "plataforma/Entrada.cpp"
#include "plataforma/Salida.cpp"

constexpr int           MOVIMIENTOS_BUSQUEDAS = 2000;  // of all searches of an execution
constexpr std::uint64_t SONDEO                = 127;   // clock and input are looked at more often than by default
constexpr std::size_t   BLOQUE_MAX            = std::size_t{200} << 20;  // bytes

extern "C" DobleGaviota doble;

static std::string_view Entra;
static std::uint64_t    Ahora;        // milliseconds
static int              Movimientos;  // that may still be made
static int              Respuestas;   // that will still be read

void Exigir(bool cierto, const char* que) {
    if (cierto) return;
    std::fprintf(stderr, "finding: %s\n", que);
    std::abort();
}

// --- In the place of the platform ---

std::uint64_t ObtenerMilisegundos() {
    return Ahora += 5;
}

int HayBytes() {
    if (Entra.empty() || Entra.front() != '~') return 1;
    Entra.remove_prefix(1);
    return 0;
}

int LeerBytes(char* destino, int capacidad) {
    Entra.remove_prefix(std::min(Entra.find_first_not_of('~'), Entra.size()));
    const std::size_t leidos = Entra.substr(0, Entra.find('~')).copy(destino, static_cast<std::size_t>(capacidad));
    Entra.remove_prefix(leidos);
    return static_cast<int>(leidos);
}

// From the heap, so that the address sanitizer sees what passes the ends of a block.
void* ReservarMemoria(std::size_t bytes) {
    return bytes == 0 || bytes > BLOQUE_MAX ? nullptr : std::calloc(bytes, 1);
}

void OcuparMemoria(void* /*memoria*/, std::size_t /*bytes*/) {}

int VaciarMemoria(void* memoria, std::size_t bytes) {
    if (memoria != nullptr) std::memset(memoria, 0, bytes);
    return 1;
}

void LiberarMemoria(void* memoria, std::size_t /*bytes*/) {
    std::free(memoria);
}

// --- What is asked of an answer ---

static bool EsJugable(std::uint32_t movimiento) {
    return movimiento != 0 && EsLegal(movimiento) != 0;
}

// The board is that of the search.
static void ComprobarJugada(const std::string& linea) {
    const auto          movimientos = Generar();
    const std::string   jugada = Tras(linea, "bestmove"), ponder = Tras(linea, "ponder");
    const std::uint32_t movimiento = Buscado(jugada);
    if (Salir != 0) return;  // the board has more moves than a list holds
    Exigir(TableroGlobal.Ply == 0, "the search has not taken back its moves");
    Exigir(jugada == "0000" ? std::none_of(movimientos.begin(), movimientos.end(), EsJugable) : EsJugable(movimiento),
           "illegal move");
    if (ponder.empty()) return;
    HacerMovimiento(movimiento);
    Exigir(EsJugable(Buscado(ponder)), "illegal move to ponder on");
    DeshacerMovimiento();
}

int EscribirBytes(const char* bytes, int numero) {
    const std::string linea(bytes, static_cast<std::size_t>(numero));
    if (--Respuestas < 0) return 0;
    Exigir(linea.empty() || linea.back() == '\n', "half a line");
    if (linea.starts_with("bestmove ")) ComprobarJugada(linea);
    return 1;
}

// The linker puts this before the function that every move of a search or of perft passes through.
extern "C" int __real__Z23HacerMovimientoConJaqueji(std::uint32_t movimiento, int en_jaque);
extern "C" int __wrap__Z23HacerMovimientoConJaqueji(std::uint32_t movimiento, int en_jaque) {
    if (--Movimientos < 0) {
        TipoJuego.Parar = 1;
        AbandonarEntrada();
    }
    return __real__Z23HacerMovimientoConJaqueji(movimiento, en_jaque);
}

// --- An execution ---

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
    Arrancar(1);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* datos, std::size_t numero) {
    Ejecutar({std::string_view(reinterpret_cast<const char*>(datos), numero)});
    return 0;
}

void Empezar(bool completo, int respuestas) {
    for (const char* fichero : {"Book.db", "Book.db-journal", "Book.db-wal", "Book.db-shm"}) std::remove(fichero);
    Apagar();
    Inicio = Fin = FinDeEntrada = Perdida = Salir = 0;
    Movimientos                                   = MOVIMIENTOS_BUSQUEDAS;
    Respuestas                                    = respuestas;
    TipoJuego                                     = {};
    UciCompleto                                   = {};
    UciCompleto.MascaraSondeo                     = SONDEO;
    doble                                         = {};
    FiltrarSalida(nullptr);
    FijarRutasLibro(nullptr, 0);
    std::srand(1);
    TT_Opciones.Megas = 1;
    CrearTransposicion(TT_Opciones.Megas);
    Cargar_Opciones();
    UciNewGame();
    if (completo) ActivarUciCompleto();
}

void Dialogar(std::string_view entrada) {
    Entra = entrada;
    LeerComandos();
    Apagar();
}

int Bytes::Sacar() {
    if (Resto.empty()) return 0;
    const int byte = static_cast<unsigned char>(Resto.front());
    Resto.remove_prefix(1);
    return byte;
}

std::string Bytes::Linea() {
    const std::string linea(Resto.substr(0, Resto.find('\n')));
    Resto.remove_prefix(std::min(linea.size() + 1, Resto.size()));
    return linea;
}

std::string Bytes::Fen(int hombres_max) {
    const std::string linea = Linea();
    std::string       fen(64, '1');
    const char*       letra = linea.c_str();
    for (std::size_t casilla = 0; *letra != '\0' && *letra != ' ' && casilla < 64; ++letra)
        if (*letra >= '1' && *letra <= '8')
            casilla += static_cast<std::size_t>(*letra - '0');
        else if (std::strchr("PNBRQKpnbrqk", *letra) != nullptr && hombres_max-- > 0)
            fen[casilla++] = *letra;
    fen = EscribirFen(fen, 'w').substr(0, 71);
    // The engine takes 78 characters at most.
    for (std::size_t n = 8; n > 1; --n)
        for (std::size_t i; (i = fen.find(std::string(n, '1'))) != std::string::npos;)
            fen.replace(i, n, std::to_string(n));
    return fen + linea.substr(std::min(linea.find(' '), linea.size()));
}
