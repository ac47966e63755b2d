#include "eval/finales/Reconocidos.h"

#include <array>
#include <bit>
#include <cstdlib>
#include <sstream>

#include "board/Ataques.h"
#include "board/Puntuacion.h"
#include "eval/Evaluacion.h"
#include "eval/finales/Dificiles.h"
#include "eval/finales/Evaluadores.h"
#include "eval/finales/Kbnk.h"
#include "eval/finales/Kpk.h"
#include "eval/finales/Kqkp.h"
#include "search/Buscar.h"
#include "uci/Arranque.h"

using Finales = Evaluacion;

using Cuentas = std::array<int, 5>;  // pawns, knights, bishops, rooks, queens

static int Factor(const Cuentas& b, const Cuentas& n) {
    return FinalesReconocidos(b[0], b[1], b[2], b[3], b[4], n[0], n[1], n[2], n[3], n[4]);
}
static Cuentas Contar(std::string_view letras) {
    Cuentas cuentas;
    for (std::size_t i = 0; i < 5; ++i) cuentas[i] = static_cast<int>(std::ranges::count(letras, "PNBRQ"[i]));
    return cuentas;
}

TEST_F(Finales, FactorPorMaterial) {
    for (const auto& [minimo, maximo, materiales] :
         {std::tuple{0, 0, "- B-N NN- NN-B"},  // dead draws
          {100, 100, "Q-R BN- BB- RR-R Q-N P- P-PP PPP-PPPP QPP-Q QP-QP QRRBBNNPPP-QRRBBNNPPP"},
          {80, 99, "RP-B R-BPP RR-RBPP RPP-R"},  // few pawns, many pawns
          {101, 130, "N-PPPP RPPPP-RPPPP BPPPPP-NPPPP"},
          {1, 40, "RB-R R-N Q-RB Q-NN RR-RB B-P RB-RP RB-RN R-BP NP-B RP-RP"},  // drawn as a rule
          {20, 99, "NN-P BP-N RP-R BB-N BNP-R BP-P BN-P R-PP RPP-RP"}}) {       // harder than it looks
        std::istringstream lista(materiales);
        for (std::string m; lista >> m;) {
            const Cuentas unas = Contar(m.substr(0, m.find('-'))), otras = Contar(m.substr(m.find('-')));
            EXPECT_GE(Factor(unas, otras), minimo) << m;
            EXPECT_LE(Factor(unas, otras), maximo) << m;
            EXPECT_EQ(Factor(otras, unas), Factor(unas, otras)) << m;
        }
    }
    std::mt19937 azar(11);
    for (int i = 0; i < 20000; ++i) {  // any counts
        Cuentas b, n;
        for (int& cuenta : b) cuenta = static_cast<int>(azar() % (i % 2 == 0 ? 3 : 65));
        for (int& cuenta : n) cuenta = static_cast<int>(azar() % 3);
        ASSERT_TRUE(Factor(b, n) >= 0 && Factor(b, n) <= 130 && Factor(b, n) == Factor(n, b));
    }
}

enum Juicio { TABLAS, POCO, VENTAJA, GANADA, NADA, OTRO };  // 0; less than a pawn; 300 to 2000; VICTORIA on; silent

static Juicio Juzgar(int puntos) {
    if (puntos == NO_RECONOCIDO) return NADA;
    if (puntos == 0) return TABLAS;
    if (std::abs(puntos) < 100) return POCO;
    if (puntos >= 300 && puntos <= 2000) return VENTAJA;
    return puntos >= VICTORIA && puntos <= VICTORIA_MAXIMA ? GANADA : OTRO;
}

// As the side sees it that fen shows as White.
static int Puntos(const char* fen, bool reflejada = false) {
    Fen(fen, reflejada);
    const int puntos = EvaluarFinalesDificiles();
    return puntos == NO_RECONOCIDO || TableroGlobal.Turno == (reflejada ? NEGRO : BLANCO) ? puntos : -puntos;
}

TEST_F(Finales, PosicionesConocidas) {
    struct {
        const char* nombre;
        const char* fen;
        Juicio      juicio;
    } constexpr CASOS[] = {
        {"wrong bishop", "k7/8/1K6/P7/8/4B3/8/8 w - - 0 1", TABLAS},
        {"right bishop", "k7/8/1K6/P7/8/5B2/8/8 w - - 0 1", NADA},
        {"wrong bishop, king far away", "8/8/P7/8/2K5/4B3/8/7k w - - 0 1", GANADA},
        {"knight tied to the rook pawn", "8/Pk6/8/1N6/8/8/8/K7 w - - 0 1", TABLAS},
        {"knight on the corner", "8/Pk6/1N6/8/8/4K3/8/8 w - - 0 1", NADA},
        {"Philidor", "4k3/8/r7/3KP3/8/8/8/7R b - - 0 1", POCO},
        {"back rank, knight pawn", "1k1r4/8/1P6/K7/8/8/8/6R1 w - - 0 1", POCO},
        {"back rank, centre pawn", "3k3r/8/3PK3/8/8/8/8/6R1 w - - 0 1", NADA},
        {"Vancura", "R7/6k1/P4r2/1K6/8/8/8/8 w - - 0 1", NADA},
        {"Vancura, king far", "R7/6k1/P4r2/8/3K4/8/8/8 w - - 0 1", POCO},
        {"Lucena", "1K1k4/1P6/8/8/8/8/r7/2R5 w - - 0 1", VENTAJA},
        {"rook stops the pawn", "8/8/8/8/8/4k3/4p3/R3K3 w - - 0 1", VENTAJA},
        {"pawn too far", "8/8/8/8/K7/6p1/5k2/1R6 b - - 0 1", POCO},
        {"queen against b-pawn", "8/8/8/8/4K2Q/8/1p6/k7 w - - 0 1", VENTAJA},
        {"queen against f-pawn", "1K6/8/8/8/Q7/8/5p2/6k1 w - - 0 1", POCO},
        {"queen against c-pawn, king near", "8/8/8/8/7Q/3K4/2p5/1k6 w - - 0 1", VENTAJA},
        {"king in front of its a-pawn", "8/8/8/8/8/7Q/p6K/k7 w - - 0 1", POCO},
        {"king two files from its c-pawn", "3Q4/6K1/8/8/8/8/2p1k3/8 w - - 0 1", POCO},
        {"promotion lets the king mate", "8/8/8/8/1K6/8/p2Q4/1k6 b - - 0 1", VENTAJA},
        {"promotion saves a d-pawn", "8/8/8/8/Q7/8/3p4/2k4K b - - 0 1", POCO},
        {"third-rank fortress", "8/1kp5/3r4/8/3K4/8/8/7Q w - - 0 1", POCO},
        {"king before the pawn, like bishops", "8/8/3k4/3P4/4K3/8/6B1/7b w - - 0 1", TABLAS},
        {"opposite bishops, a pawn more", "8/3k4/8/3P4/3K4/8/6B1/b7 w - - 0 1", POCO},
        {"opposite bishops, two side by side", "k7/8/5PP1/8/4K3/8/6B1/b7 w - - 0 1", VENTAJA},
        {"queen against rook", "8/8/8/4k3/3r4/8/8/KQ6 b - - 0 1", VENTAJA},
    };
    for (const auto& caso : CASOS) {
        SCOPED_TRACE(caso.nombre);
        const int puntos = Puntos(caso.fen);
        EXPECT_EQ(Juzgar(puntos), caso.juicio) << puntos;
        EXPECT_EQ(Puntos(caso.fen, true), puntos);
    }
}

// Totals of a brute force that includes queen against queen, for files a to d. The table may leave out a long win
// against the new queen; it may not invent any.
TEST_F(Finales, GanadasDeDamaContraPeonEnSeptima) {
    for (int columna = 0; columna < 8; ++columna) {
        int ganadas = 0;
        for (int i = 0; i < 64 * 64 * 64; ++i) ganadas += KqkpGana(i >> 12, i >> 6 & 63, i & 63, 48 + columna, true);
        const int exactas =
            std::array{132000, 139794, 125422, 140402}.at(static_cast<std::size_t>(std::min(columna, 7 - columna)));
        EXPECT_LE(ganadas, exactas) << columna;
        EXPECT_GE(ganadas, exactas - 40) << columna;
    }
}

TEST_F(Finales, LoMejorValeMas) {
    for (const auto& [peor, mejor] :
         {std::pair{"8/8/8/4k3/8/8/8/KR6 w - - 0 1", "4k3/8/8/8/8/8/8/KR6 w - - 0 1"},  // the edge
          {"k7/8/2K5/8/8/8/8/2B1N3 w - - 0 1", "7k/8/5K2/8/8/8/8/2B1N3 w - - 0 1"},     // dark bishop: h8
          {"7k/8/5K2/8/8/8/8/3N1B2 w - - 0 1", "k7/8/2K5/8/8/8/8/3N1B2 w - - 0 1"},     // light bishop: a8
          {"4k3/8/4K3/4P3/8/8/8/8 b - - 0 1", "4k3/8/4K3/8/8/8/8/1R6 w - - 0 1"},       // promotion pays
          // Opposite-coloured bishops: pawns far apart; no king before them; a square that the bishop leaves free.
          {"8/3k4/8/2P1P3/3K4/8/6B1/b7 w - - 0 1", "8/3k4/8/P5P1/3K4/8/6B1/b7 w - - 0 1"},
          {"5k2/8/5PP1/8/4K3/8/6B1/b7 w - - 0 1", "k7/8/5PP1/8/4K3/8/6B1/b7 w - - 0 1"},
          {"1k6/8/4P3/p7/P7/4K3/6B1/b7 w - - 0 1", "1k6/8/4P3/p7/P7/4K3/7B/1b6 w - - 0 1"}})
        EXPECT_LT(Puntos(peor), Puntos(mejor)) << mejor;
}

// The total is that of the tablebases, which are asked about each position where they are at hand.
TEST_F(Finales, GanadasDeReyYPeon) {
    int ganadas = 0;
    for (int i = 0; i < 2 * 64 * 64 * 64; ++i) ganadas += KpkGana(i >> 12 & 63, i >> 6 & 63, i & 63, i >> 18 == 1);
    EXPECT_EQ(ganadas, 222564);
}

static int JugadasDeAlfilYCaballo() {
    const auto casilla = [](int pieza) { return std::countr_zero(TableroGlobal.Piezas[pieza]); };
    if (casilla(ALFIL_B) == 64 || casilla(CABALLO_B) == 64) return KBNK_SIN_MATE;
    return KbnkJugadas(casilla(REY_B), casilla(ALFIL_B), casilla(CABALLO_B), casilla(REY_N),
                       TableroGlobal.Turno == BLANCO);
}

// Each distance against those after all legal moves; the longest one is a published figure.
TEST_F(Finales, DistanciasDeAlfilYCaballo) {
    std::mt19937 azar(5);
    for (int i = 0; i < 6000; ++i) {
        std::string casillas(64, '1');
        for (const char pieza : {'K', 'B', 'N', 'k'}) casillas[azar() % 64] = pieza;
        if (std::ranges::count(casillas, '1') != 60) continue;
        Fen(EscribirFen(casillas, i % 2 == 0 ? 'w' : 'b'));
        const bool fuerte = TableroGlobal.Turno == BLANCO;
        if (fuerte ? JaqueNegras(TableroGlobal.PosicionReyNegro) : JaqueBlancas(TableroGlobal.PosicionReyBlanco))
            continue;
        std::vector<int> siguientes;
        for (const std::uint32_t mov : Generar()) {
            if (HacerMovimiento(mov)) siguientes.push_back(JugadasDeAlfilYCaballo());
            DeshacerMovimiento();
        }
        int esperadas = KBNK_SIN_MATE;
        if (fuerte) {
            std::erase(siguientes, KBNK_SIN_MATE);
            if (!siguientes.empty()) esperadas = std::ranges::min(siguientes) + 1;
        } else if (siguientes.empty()) {
            esperadas = TurnoEnJaque() ? 0 : KBNK_SIN_MATE;
        } else if (std::ranges::count(siguientes, KBNK_SIN_MATE) == 0) {
            esperadas = std::ranges::max(siguientes);
        }
        ASSERT_EQ(JugadasDeAlfilYCaballo(), esperadas) << casillas << (fuerte ? " w" : " b");
    }
    int maximo = 0;
    for (int i = 0; i < 64 * 64 * 64; ++i)
        maximo = std::max(maximo, KbnkJugadas(i >> 12, 2, i >> 6 & 63, i & 63, true));
    EXPECT_EQ(maximo, KBNK_JUGADAS_MAX);
}

// The engine against itself, from a fixed start each; the fifty-move rule would end a game that makes no progress.
TEST_F(Finales, ElMotorDaMateAlReySolo) {
    Arrancar(1);
    TipoJuego.ShowPv = SHOWPV_NONE;
    for (const auto& [fen, plies] :
         {std::pair{"8/8/8/3k4/8/8/8/KQ6 w - - 0 1", 100}, std::pair{"kr6/8/8/8/4K3/8/8/8 b - - 0 1", 100},
          std::pair{"8/8/8/3k4/8/8/8/KBB5 w - - 0 1", 100},
          std::pair{"knb5/8/8/8/4K3/8/8/8 b - - 0 1", 2 * KBNK_JUGADAS_MAX}}) {
        Fen(fen);
        LimpiarBusqueda();
        int puntos = 0;
        for (int ply = 0; ply < plies && puntos != -VALOR_MATE; ++ply) {
            TipoJuego.ProfundidadLimite = 8;
            puntos                      = BuscarIterativo();
            if (TipoJuego.MejorMovimiento != 0) HacerMovimiento(TipoJuego.MejorMovimiento);
            TerminarBusqueda();
        }
        EXPECT_EQ(puntos, -VALOR_MATE) << fen;
    }
    Apagar();
}
