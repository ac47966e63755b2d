// A position, its evaluation and a search: a FEN in the first line, then a byte for each move that is played. That
// taking back restores the board is asserted by the engine at every move.
#include "board/Puntuacion.h"
#include "comun/Tablero.h"
#include "eval/Evaluar.h"
#include "fuzz/Entorno.h"
#include "search/Buscar.h"

static int EvaluarEnRaiz() {
    Iniciar_Asimetrico();
    const int puntos = Evaluar();
    Exigir(std::abs(puntos) <= VALOR_MATE, "evaluation beyond a mate");
    return puntos;
}

// Of several kings of a colour the last one found counts, in the mirror that is another one.
static void CompararConReflejo() {
    const int puntos = EvaluarEnRaiz();
    if (std::popcount(TableroGlobal.Piezas[REY_B]) != 1 || std::popcount(TableroGlobal.Piezas[REY_N]) != 1) return;
    Reflejar();
    Exigir(EvaluarEnRaiz() == puntos, "the mirrored position has another evaluation");
    Reflejar();
}

void Ejecutar(Bytes bytes) {
    Empezar();
    Fen(bytes.Fen());
    for (int aplicado = 0; !bytes.Resto.empty();)
        if (const auto movimientos = Generar(); !movimientos.empty())
            Movimiento(Texto(movimientos[static_cast<std::size_t>(bytes.Sacar()) % movimientos.size()]).c_str(),
                       &aplicado);
        else
            bytes.Resto = {};
    for (const std::uint32_t movimiento : Generar()) {
        HacerMovimiento(movimiento);
        DeshacerMovimiento();
    }
    if (Salir != 0) return;  // more moves than a list holds
    CompararConReflejo();
    TipoJuego.ProfundidadLimite = 3;
    const int puntos            = BuscarIterativo();
    Exigir(std::abs(puntos) <= VALOR_MATE, "score beyond a mate");
    ImprimirMejorJugada(puntos);
    TerminarBusqueda();
}
