#include "eval/finales/Dificiles.h"

#include <cstdint>

#include "board/Color.h"
#include "board/Conjunto.h"
#include "eval/Espejo.h"
#include "eval/finales/Reconocidos.h"

using Evaluador = int (*)(const RegistroFinal&);

// Pieces without pawns: the lead that wins against defenders, in centipawns; a rook or about as much.
constexpr int VENTAJA_DECISIVA = 450;

template <int C>
static std::uint64_t ClaveDe() {
    const RegistroBando& bando = BandoDe<C>();
    return ClaveMaterial(bando.Peones, bando.Caballos, bando.Alfiles, bando.Torres, bando.Damas);
}

template <int C, int FUERTE>
static void AgregarPiezas(RegistroFinal& pos) {
    constexpr int RECODIFICA = (C == FUERTE ? 0 : DESFASE_NEGRO) - CODIGO_BASE<C>;
    Conjunto      propias    = CasillasDe<C>();
    while (propias != 0) {
        const int casilla = SacarCasillaEnOrden<C>(propias);
        const int codigo  = TableroGlobal.Casillas[casilla] + RECODIFICA;
        if (codigo <= 0 || codigo >= CODIGOS) continue;
        pos.Casillas[codigo][pos.Numero[codigo]++] = static_cast<std::uint8_t>(Relativa<FUERTE>(casilla));
    }
}

template <int FUERTE>
static void Orientar(RegistroFinal& pos) {
    pos.MueveFuerte = TableroGlobal.Turno == FUERTE;
    AgregarPiezas<FUERTE, FUERTE>(pos);
    AgregarPiezas<RIVAL<FUERTE>, FUERTE>(pos);
}

// Fills the record from TableroGlobal with the given colour as the stronger side.
static void OrientarFinal(int fuerte, RegistroFinal& pos) {
    pos = {};
    if (fuerte == BLANCO)
        Orientar<BLANCO>(pos);
    else
        Orientar<NEGRO>(pos);
}

// Material decides alone that nothing but the advance of the mate is left to judge.
static int EvaluarSinPeones(const RegistroFinal& pos) {
    return ValorMaterial(pos, PEON_B) - ValorMaterial(pos, PEON_N) < VENTAJA_DECISIVA ? NO_RECONOCIDO
                                                                                      : EvaluarVentajaSinPeones(pos);
}

static Evaluador ElegirEvaluador(std::uint64_t fuerte, std::uint64_t debil) {
    if (debil == 0) return EvaluarReySolo;
    switch (Enfrentadas(fuerte, debil)) {
        case Enfrentadas("R", "P"):
            return EvaluarTorreContraPeon;
        case Enfrentadas("RP", "R"):
            return EvaluarTorrePeonContraTorre;
        case Enfrentadas("Q", "P"):
            return EvaluarDamaContraPeon;
        case Enfrentadas("Q", "RP"):
            return EvaluarDamaContraTorrePeon;
        case Enfrentadas("BP", "B"):
        case Enfrentadas("BP", "N"):
            return EvaluarAlfilPeonContraMenor;
        default:
            return nullptr;
    }
}

static int Consultar(Evaluador evaluador, int fuerte) {
    if (evaluador == nullptr) return NO_RECONOCIDO;
    RegistroFinal pos;
    OrientarFinal(fuerte, pos);
    const int puntos = evaluador(pos);
    if (puntos == NO_RECONOCIDO) return NO_RECONOCIDO;
    return pos.MueveFuerte ? puntos : -puntos;
}

int EvaluarFinalesDificiles() {
    const std::uint64_t blancas = ClaveDe<BLANCO>();
    const std::uint64_t negras  = ClaveDe<NEGRO>();

    int puntos = Consultar(ElegirEvaluador(blancas, negras), BLANCO);
    if (puntos == NO_RECONOCIDO) puntos = Consultar(ElegirEvaluador(negras, blancas), NEGRO);
    if (puntos != NO_RECONOCIDO) return puntos;

    if (SinPeones(blancas) == Fuerzas("B") && SinPeones(negras) == Fuerzas("B"))
        return Consultar(EvaluarAlfilesDistintoColor, BLANCO);
    if (PeonesDe(blancas) != 0 || PeonesDe(negras) != 0 || FactorFinal() != SIN_CAMBIO) return NO_RECONOCIDO;
    puntos = Consultar(EvaluarSinPeones, BLANCO);
    return puntos != NO_RECONOCIDO ? puntos : Consultar(EvaluarSinPeones, NEGRO);
}
