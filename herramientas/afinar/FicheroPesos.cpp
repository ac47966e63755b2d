#include "afinar/FicheroPesos.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

namespace {

constexpr std::string_view MARCA_PRINCIPIO = "// ==== first weight ====";
constexpr std::string_view MARCA_FIN       = "// ==== last weight ====";

// So many numbers a line make columns of them, when one line stands alone and when there are several.
constexpr std::size_t COLUMNAS_DE_UNA_LINEA = 4;
constexpr std::size_t COLUMNAS_DE_VARIAS    = 2;

bool EsLetra(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_';
}
bool EsCifra(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) != 0;
}

// What a reader of the record keeps between two pieces of the text.
struct Lectura {
    std::string_view Texto;
    std::size_t      Lugar;
    std::size_t      Fin;
    std::string_view Tipo;  // first and last word of the declaration so far
    std::string_view Palabra;
    bool             Valores;  // behind its name: what comes are values
};

void SaltarHasta(Lectura& lectura, std::string_view fin) {
    lectura.Lugar = std::min(lectura.Texto.find(fin, lectura.Lugar), lectura.Fin);
}

void LeerPalabra(Lectura& lectura) {
    const std::size_t primero = lectura.Lugar;
    while (lectura.Lugar < lectura.Fin && EsLetra(lectura.Texto[lectura.Lugar])) ++lectura.Lugar;
    lectura.Palabra = lectura.Texto.substr(primero, lectura.Lugar - primero);
    if (lectura.Tipo.empty()) lectura.Tipo = lectura.Palabra;
}

void LeerLiteral(Lectura& lectura, FicheroPesos& fichero) {
    const std::size_t primero = lectura.Lugar++;
    while (lectura.Lugar < lectura.Fin && EsCifra(lectura.Texto[lectura.Lugar])) ++lectura.Lugar;
    const std::string cifras(lectura.Texto.substr(primero, lectura.Lugar - primero));
    fichero.Literales.push_back({primero, cifras.size(), std::stoi(cifras)});
}

void AbrirMiembro(Lectura& lectura, FicheroPesos& fichero) {
    if (lectura.Valores) return;
    if (lectura.Palabra.empty()) throw std::runtime_error("a value without a name among the weights");
    fichero.Miembros.push_back({.Nombre  = std::string(lectura.Palabra),
                                .Primero = fichero.Literales.size(),
                                .Numero  = 0,
                                .EsPar   = lectura.Tipo == "Par"});
    lectura.Valores = true;
}

void CerrarMiembro(Lectura& lectura, FicheroPesos& fichero) {
    if (!lectura.Valores) throw std::runtime_error("no values for " + std::string(lectura.Palabra));
    Miembro& miembro = fichero.Miembros.back();
    miembro.Numero   = fichero.Literales.size() - miembro.Primero;
    if (miembro.Numero == 0) throw std::runtime_error("no values for " + miembro.Nombre);
    lectura.Tipo = lectura.Palabra = {};
    lectura.Valores                = false;
}

void LeerTrozo(Lectura& lectura, FicheroPesos& fichero) {
    const char actual    = lectura.Texto[lectura.Lugar];
    const char siguiente = lectura.Lugar + 1 < lectura.Fin ? lectura.Texto[lectura.Lugar + 1] : '\0';
    if (actual == '/' && siguiente == '/') return SaltarHasta(lectura, "\n");
    if (actual == '[') return SaltarHasta(lectura, "]");
    if (lectura.Valores && (EsCifra(actual) || (actual == '-' && EsCifra(siguiente))))
        return LeerLiteral(lectura, fichero);
    if (!lectura.Valores && EsLetra(actual)) return LeerPalabra(lectura);
    if (actual == '=' || actual == '{') AbrirMiembro(lectura, fichero);
    if (actual == ';') CerrarMiembro(lectura, fichero);
    ++lectura.Lugar;
}

// One line of the file with the numbers in it.
struct Renglon {
    std::size_t              Principio;
    std::size_t              Fin;  // behind its last character
    std::vector<std::size_t> Literales;
};

std::vector<Renglon> PartirRenglones(const FicheroPesos& fichero) {
    std::vector<Renglon> renglones;
    std::size_t          literal = 0;
    for (std::size_t lugar = 0; lugar < fichero.Texto.size();) {
        const std::size_t fin = std::min(fichero.Texto.find('\n', lugar), fichero.Texto.size());
        Renglon           renglon{lugar, fin, {}};
        for (; literal < fichero.Literales.size() && fichero.Literales[literal].Lugar < fin; ++literal)
            renglon.Literales.push_back(literal);
        renglones.push_back(renglon);
        lugar = fin + 1;
    }
    return renglones;
}

// Where the numbers of a line end, counted from the line's beginning.
std::vector<std::size_t> Finales(const FicheroPesos& fichero, const Renglon& renglon) {
    std::vector<std::size_t> finales;
    for (const std::size_t i : renglon.Literales)
        finales.push_back(fichero.Literales[i].Lugar + fichero.Literales[i].Largo - renglon.Principio);
    return finales;
}

bool EsPrincipio(const std::vector<std::size_t>& corta, const std::vector<std::size_t>& larga) {
    return corta.size() <= larga.size() && std::equal(corta.begin(), corta.end(), larga.begin());
}

bool EsComentario(const FicheroPesos& fichero, const Renglon& renglon) {
    const std::size_t primero = fichero.Texto.find_first_not_of(' ', renglon.Principio);
    return fichero.Texto.compare(primero, 2, "//") == 0;
}

// A table: lines one below the other whose numbers end in the same columns.
struct Tabla {
    std::size_t              Primero;  // lines [Primero, Fin)
    std::size_t              Fin;
    std::vector<std::size_t> Finales;   // of the first line, which is the longest
    std::size_t              Ensanche;  // of each column
};

Tabla BuscarTabla(const FicheroPesos& fichero, const std::vector<Renglon>& renglones, std::size_t primero) {
    Tabla tabla{primero, primero + 1, Finales(fichero, renglones[primero]), 0};
    while (tabla.Fin < renglones.size() && renglones[tabla.Fin].Literales.size() >= COLUMNAS_DE_VARIAS &&
           EsPrincipio(Finales(fichero, renglones[tabla.Fin]), tabla.Finales))
        ++tabla.Fin;
    return tabla;
}

bool EsTabla(const Tabla& tabla) {
    return tabla.Finales.size() >= (tabla.Fin - tabla.Primero == 1 ? COLUMNAS_DE_UNA_LINEA : COLUMNAS_DE_VARIAS);
}

std::string_view SinBlancosFinales(std::string_view texto) {
    const std::size_t fin = texto.find_last_not_of(' ');
    return texto.substr(0, fin == std::string_view::npos ? 0 : fin + 1);
}

// What stands before the k-th number of a line, up to the number before.
std::string_view TextoAntes(const FicheroPesos& fichero, const Renglon& renglon, std::size_t k) {
    const Literal&    literal = fichero.Literales[renglon.Literales[k]];
    const std::size_t desde =
        k == 0 ? renglon.Principio
               : fichero.Literales[renglon.Literales[k - 1]].Lugar + fichero.Literales[renglon.Literales[k - 1]].Largo;
    return std::string_view(fichero.Texto).substr(desde, literal.Lugar - desde);
}

// Places that the k-th number of a line has: up to a blank behind what stands before it, or as far as the numbers of
// its column reach already.
std::size_t Sitio(const FicheroPesos& fichero, const Renglon& renglon, std::size_t k) {
    const Literal&         literal = fichero.Literales[renglon.Literales[k]];
    const std::string_view antes   = TextoAntes(fichero, renglon, k);
    const std::size_t      blancos = antes.size() - SinBlancosFinales(antes).size();
    const std::size_t      hueco   = antes.ends_with(' ') && k > 0 && SinBlancosFinales(antes).ends_with(',') ? 1 : 0;
    const bool             sangria = SinBlancosFinales(antes).empty();
    return literal.Largo + (sangria ? 0 : blancos - hueco);
}

void Ensanchar(const FicheroPesos& fichero, const std::vector<Renglon>& renglones, const std::vector<int>& pesos,
               Tabla& tabla) {
    for (std::size_t k = 0; k < tabla.Finales.size(); ++k) {
        std::size_t sitio = 0, falta = 0;
        for (std::size_t r = tabla.Primero; r < tabla.Fin && k < renglones[r].Literales.size(); ++r) {
            sitio = std::max(sitio, Sitio(fichero, renglones[r], k));
            falta = std::max(falta, std::to_string(pesos[renglones[r].Literales[k]]).size());
        }
        tabla.Ensanche = std::max(tabla.Ensanche, falta > sitio ? falta - sitio : 0);
    }
}

std::size_t ColumnaNueva(const Tabla& tabla, std::size_t k) {
    return tabla.Finales[k] + tabla.Ensanche * (k + 1);
}

// Writes a piece of text so that it ends in the given column of the line.
void EscribirHasta(std::string& linea, std::size_t columna, std::string_view texto) {
    const std::size_t largo = linea.size() + texto.size();
    linea.append(columna > largo ? columna - largo : 0, ' ').append(texto);
}

// What follows the last number; a comment stays in its column as long as two blanks before it are left.
std::string Cola(std::string_view cola, std::size_t columna_antes, std::size_t columna) {
    const std::size_t comentario = cola.find("//");
    if (comentario == std::string_view::npos) return std::string(cola);
    std::string nueva(SinBlancosFinales(cola.substr(0, comentario)));
    if (nueva.empty()) return std::string(cola);
    const std::size_t lugar = columna_antes + comentario;
    const std::size_t hasta = columna + nueva.size();
    nueva.append(std::max<std::size_t>(lugar > hasta ? lugar - hasta : 0, 2), ' ');
    return nueva.append(cola.substr(comentario));
}

// A line with its new numbers, in the columns of its table or, without one, where the old ones began.
std::string LineaConPesos(const FicheroPesos& fichero, const Renglon& renglon, const std::vector<int>& pesos,
                          const Tabla* tabla) {
    std::string linea;
    std::size_t lugar = renglon.Principio;
    for (std::size_t k = 0; k < renglon.Literales.size(); ++k) {
        const std::size_t      i     = renglon.Literales[k];
        const std::string_view antes = TextoAntes(fichero, renglon, k);
        if (tabla != nullptr)
            EscribirHasta(linea.append(SinBlancosFinales(antes)), ColumnaNueva(*tabla, k), std::to_string(pesos[i]));
        else
            linea.append(antes).append(std::to_string(pesos[i]));
        lugar = fichero.Literales[i].Lugar + fichero.Literales[i].Largo;
    }
    const std::string_view cola = std::string_view(fichero.Texto).substr(lugar, renglon.Fin - lugar);
    const std::size_t      ya   = tabla != nullptr ? tabla->Ensanche * renglon.Literales.size() : 0;
    return linea + Cola(cola, lugar - renglon.Principio + ya, linea.size());
}

// The heading of a table, whose last words stand over its columns and move with them; any other line stays.
std::string CabeceraMovida(std::string_view linea, const Tabla& tabla) {
    constexpr std::size_t                            DESVIO_MAX = 3;
    std::vector<std::pair<std::size_t, std::size_t>> palabras;  // beginning, end
    for (std::size_t lugar = linea.find_first_not_of(' '); lugar < linea.size();) {
        const std::size_t fin = std::min(linea.find(' ', lugar), linea.size());
        palabras.emplace_back(lugar, fin);
        lugar = std::min(linea.find_first_not_of(' ', fin), linea.size());
    }
    const std::size_t columnas = tabla.Finales.size();
    if (palabras.size() <= columnas) return std::string(linea);
    palabras.erase(palabras.begin(), palabras.end() - static_cast<std::ptrdiff_t>(columnas));
    std::string nueva(SinBlancosFinales(linea.substr(0, palabras[0].first)));
    for (std::size_t k = 0; k < columnas; ++k) {
        const auto [principio, fin] = palabras[k];
        if (fin > tabla.Finales[k] + DESVIO_MAX || fin + DESVIO_MAX < tabla.Finales[k]) return std::string(linea);
        EscribirHasta(nueva, ColumnaNueva(tabla, k) + fin - tabla.Finales[k], linea.substr(principio, fin - principio));
    }
    return nueva;
}

}  // namespace

FicheroPesos InterpretarPesos(std::string texto) {
    FicheroPesos      fichero{std::move(texto), {}, {}};
    const std::size_t principio = fichero.Texto.find(MARCA_PRINCIPIO);
    const std::size_t fin       = fichero.Texto.find(MARCA_FIN);
    if (principio == std::string::npos || fin == std::string::npos || fin < principio)
        throw std::runtime_error("the marks of the weights are missing");
    Lectura lectura{fichero.Texto, principio, fin, {}, {}, false};
    while (lectura.Lugar < lectura.Fin) LeerTrozo(lectura, fichero);
    return fichero;
}

std::string TextoConPesos(const FicheroPesos& fichero, const std::vector<int>& pesos) {
    const std::vector<Renglon> renglones = PartirRenglones(fichero);
    std::vector<std::string>   lineas;
    for (std::size_t r = 0; r < renglones.size();) {
        Tabla tabla = BuscarTabla(fichero, renglones, r);
        if (!EsTabla(tabla)) {
            lineas.push_back(LineaConPesos(fichero, renglones[r++], pesos, nullptr));
            continue;
        }
        Ensanchar(fichero, renglones, pesos, tabla);
        if (r > 0 && EsComentario(fichero, renglones[r - 1])) lineas.back() = CabeceraMovida(lineas.back(), tabla);
        for (; r < tabla.Fin; ++r) lineas.push_back(LineaConPesos(fichero, renglones[r], pesos, &tabla));
    }
    std::string texto;
    for (const std::string& linea : lineas) (texto += linea) += '\n';
    return texto;
}
