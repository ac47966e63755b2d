#include "afinar/Datos.h"

#include <lzma.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <limits>
#include <stdexcept>

namespace {

constexpr int         PARTES_PRUEBA    = 10;  // one row in so many is for testing only
constexpr int         MALAS_NOMBRADAS  = 20;  // more bad rows than these are only counted
constexpr int         CENTIPEONES_TOPE = 32000;
constexpr int         HOMBRES_MAX      = 16;  // a side
constexpr std::size_t FEN_LARGO_MAX    = 78;  // what the engine's "position" takes
constexpr char        FIRMA_XZ[] =
    "\xFD"
    "7zXZ";

std::string Descomprimir(const std::string& ruta, const std::string& comprimido) {
    lzma_stream flujo = LZMA_STREAM_INIT;
    if (lzma_stream_decoder(&flujo, std::numeric_limits<std::uint64_t>::max(), LZMA_CONCATENATED) != LZMA_OK)
        throw std::runtime_error("no memory to decompress " + ruta);
    flujo.next_in  = reinterpret_cast<const std::uint8_t*>(comprimido.data());
    flujo.avail_in = comprimido.size();

    std::string       texto;
    std::vector<char> trozo(std::size_t{1} << 20);
    lzma_ret          estado = LZMA_OK;
    while (estado == LZMA_OK) {
        flujo.next_out  = reinterpret_cast<std::uint8_t*>(trozo.data());
        flujo.avail_out = trozo.size();
        estado          = lzma_code(&flujo, LZMA_FINISH);
        texto.append(trozo.data(), trozo.size() - flujo.avail_out);
    }
    lzma_end(&flujo);
    if (estado != LZMA_STREAM_END) throw std::runtime_error(ruta + " is no whole .xz file");
    return texto;
}

std::string LeerTexto(const std::string& ruta) {
    std::ifstream fichero(ruta, std::ios::binary);
    if (!fichero) throw std::runtime_error("cannot read " + ruta);
    std::string texto{std::istreambuf_iterator<char>(fichero), {}};
    return texto.starts_with(FIRMA_XZ) ? Descomprimir(ruta, texto) : texto;
}

// Cuts off and returns what stands before the separator, or everything.
std::string_view Cortar(std::string_view& texto, char separador) {
    const std::size_t      fin   = texto.find(separador);
    const std::string_view parte = texto.substr(0, fin);
    texto.remove_prefix(fin == std::string_view::npos ? texto.size() : fin + 1);
    return parte;
}

template <class T>
bool LeerNumero(std::string_view texto, T& numero) {
    const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
    return error == std::errc{} && fin == texto.data() + texto.size();
}

int FaseDe(std::string_view tablero) {
    int fase = 0;
    for (const char c : tablero) {
        if (c == 'n' || c == 'N' || c == 'b' || c == 'B') fase += 1;
        if (c == 'r' || c == 'R') fase += 2;
        if (c == 'q' || c == 'Q') fase += 4;
    }
    return fase;
}

// By the position alone, so that the same one never stands on both sides (FNV-1a over all fields but the counters).
bool EsDePrueba(std::string_view fen) {
    std::uint64_t suma = 0xCBF29CE484222325U;
    for (int campo = 0; campo < 4; ++campo)
        for (const char c : Cortar(fen, ' ')) suma = (suma ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
    return (suma >> 32) % PARTES_PRUEBA == 0;
}

// Returns what is wrong with the line, nullptr when it has become a row.
const char* LeerFila(std::string_view linea, Fila& fila) {
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    fila.Fen                           = Cortar(linea, ';');
    const std::string_view centipeones = Cortar(linea, ';');
    if (const char* defecto = DefectoFen(fila.Fen)) return defecto;
    if (!LeerNumero(centipeones, fila.Centipeones) || std::abs(fila.Centipeones) > CENTIPEONES_TOPE)
        return "no score in centipawns";
    if (!LeerNumero(linea, fila.Resultado) || (fila.Resultado != 0 && fila.Resultado != 0.5 && fila.Resultado != 1))
        return "the result is not 1, 0.5 or 0";
    fila.Fase   = FaseDe(fila.Fen.substr(0, fila.Fen.find(' ')));
    fila.Prueba = EsDePrueba(fila.Fen);
    return nullptr;
}

}  // namespace

const char* DefectoFen(std::string_view fen) {
    if (fen.size() > FEN_LARGO_MAX) return "the FEN is too long";
    std::string_view tablero  = Cortar(fen, ' ');
    int              reyes[2] = {}, hombres[2] = {};
    for (int numero = 8; numero >= 1; --numero) {
        int casillas = 0;
        for (const char c : Cortar(tablero, '/')) {
            if (c >= '1' && c <= '8') {
                casillas += c - '0';
                continue;
            }
            const bool negra = c >= 'a';
            const char letra = static_cast<char>(negra ? c - 'a' + 'A' : c);
            if (std::string_view("PNBRQK").find(letra) == std::string_view::npos) return "an unknown piece";
            if (letra == 'P' && (numero == 1 || numero == 8)) return "a pawn on the first or last rank";
            ++casillas;
            ++hombres[negra];
            reyes[negra] += letra == 'K' ? 1 : 0;
        }
        if (casillas != 8) return "a rank without eight squares";
    }
    if (!tablero.empty()) return "more than eight ranks";
    if (reyes[0] != 1 || reyes[1] != 1) return "not one king a side";
    if (std::max(hombres[0], hombres[1]) > HOMBRES_MAX) return "more men than a side has";
    const std::string_view turno = Cortar(fen, ' ');
    return turno == "w" || turno == "b" ? nullptr : "no side to move";
}

Datos LeerDatos(const std::string& ruta) {
    Datos datos{.Texto = LeerTexto(ruta), .Filas = {}};
    int   numero = 0;
    for (std::string_view resto = datos.Texto; !resto.empty();) {
        const std::string_view linea = Cortar(resto, '\n');
        Fila        fila{.Fen = {}, .Linea = ++numero, .Centipeones = 0, .Resultado = 0, .Fase = 0, .Prueba = false};
        const char* defecto = LeerFila(linea, fila);
        if (defecto == nullptr) {
            datos.Filas.push_back(fila);
            continue;
        }
        if (++datos.Malas <= MALAS_NOMBRADAS)
            std::fprintf(stderr, "%s:%d: skipped: %s\n", ruta.c_str(), numero, defecto);
    }
    return datos;
}
