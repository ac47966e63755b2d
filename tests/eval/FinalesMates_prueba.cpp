#include <gtest/gtest.h>

#include <random>
#include <string>

#include "board/Ataques.h"
#include "board/EstadoMotor.h"
#include "board/Generacion.h"
#include "board/Geometria.h"
#include "board/HacerMovimiento.h"
#include "board/Posicion.h"
#include "board/Tablero.h"
#include "plataforma/Reloj.h"
#include "search/Buscar.h"
#include "uci/Arranque.h"

// The engine mates a bare king against itself, in games that the fifty-move rule would otherwise end.
namespace {

constexpr int JUGADAS_MAX = 50;

struct Caso {
    const char* piezas;
    int         profundidad, partidas;
};

bool HayMovimientoLegal() {
    ListaMovimientos lista;
    bool             legal = false;
    for (int i = 0, numero = GenerarMovimientos(GENERAR_TODOS, lista); i < numero && !legal; ++i) {
        legal = HacerMovimiento(lista.Entradas[i].Movimiento) != 0;
        DeshacerMovimiento();
    }
    return legal;
}

bool EnJaque() {
    return Jaque2(TableroGlobal.Turno == 1 ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro) != 0;
}

std::uint32_t ElegirMovimiento(int profundidad) {
    TipoJuego.ShowPv            = SHOWPV_NONE;
    TipoJuego.Infinito          = 0;
    TipoJuego.LimiteTiempo      = 0;
    TipoJuego.ProfundidadLimite = profundidad + 1;
    TipoJuego.TiempoInicio      = ObtenerMilisegundos();
    BuscarIterativo();
    const std::uint32_t movimiento = TipoJuego.MejorMovimiento;
    TerminarBusqueda();
    return movimiento;
}

// Random squares with the stronger side (either colour) to move, no two pieces to be forked at once.
std::string PosicionAlAzar(const std::string& piezas, std::mt19937& azar) {
    for (;;) {
        std::string tablero(64, '1');
        int         casillas[8];
        int         puestas  = 0;
        int         atacadas = 0;
        for (const char pieza : "Kk" + piezas) {
            const int casilla = static_cast<int>(azar() % 64);
            if (tablero[static_cast<std::size_t>(casilla)] != '1') break;
            tablero[static_cast<std::size_t>(casilla)] = pieza;
            casillas[puestas++]                        = casilla;
            if (puestas > 2) atacadas += DistanciaRey(casilla, casillas[1]) <= 1;
        }
        if (puestas != static_cast<int>(piezas.size()) + 2 || atacadas > 1) continue;
        if (DistanciaRey(casillas[0], casillas[1]) <= 1) continue;
        if (piezas == "BB" && MismoColor(casillas[2], casillas[3])) continue;
        const bool negras = azar() % 2 == 0;
        if (negras)
            for (char& letra : tablero) letra = letra == '1' ? letra : static_cast<char>(letra ^ 32);
        for (int fila = 7; fila > 0; --fila) tablero.insert(static_cast<std::size_t>(fila * 8), "/");
        const std::string fen = tablero + (negras ? " b" : " w") + " - - 0 1";
        UciNewGame();
        Position_Fen_Startpos((" fen " + fen).c_str());
        const int rival = negras ? TableroGlobal.PosicionReyBlanco : TableroGlobal.PosicionReyNegro;
        if ((negras ? JaqueBlancas(rival) : JaqueNegras(rival)) == 0) return fen;
    }
}

// Moves of the stronger side until mate, JUGADAS_MAX + 1 when there was none in time.
int JugadasHastaMate(int profundidad) {
    for (int ply = 0; ply <= 2 * JUGADAS_MAX - 1; ++ply) {
        if (!HayMovimientoLegal()) return EnJaque() ? (ply + 1) / 2 : JUGADAS_MAX + 1;
        HacerMovimiento(ElegirMovimiento(profundidad));
        TableroGlobal.Ply = 0;
    }
    return !HayMovimientoLegal() && EnJaque() ? JUGADAS_MAX : JUGADAS_MAX + 1;
}

}  // namespace

TEST(FinalesMates, ElMotorDaMateAlReySolo) {
    const Caso CASOS[] = {{"Q", 5, 5}, {"R", 5, 5}, {"BB", 6, 3}, {"BN", 7, 3}};
    Arrancar(1);
    std::mt19937 azar(5);
    for (const Caso& caso : CASOS)
        for (int partida = 0; partida < caso.partidas; ++partida) {
            const std::string fen = PosicionAlAzar(caso.piezas, azar);
            SCOPED_TRACE(std::string(caso.piezas) + ": " + fen);
            EXPECT_LE(JugadasHastaMate(caso.profundidad), JUGADAS_MAX);
        }
    Apagar();
}
