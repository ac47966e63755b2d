// Sets against a plain walk over the board.
#include "eval/Terminos.h"

#include <map>

#include "board/Ataques.h"
#include "comun/Oraculo.h"
#include "eval/Conjuntos.h"
#include "eval/Evaluacion.h"

using Piezas = Evaluacion;

static Conjunto CasillasDe(int pieza) {
    Conjunto casillas = 0;
    for (int casilla = 0; casilla < 64; ++casilla)
        if (TableroGlobal.Casillas[casilla] == pieza) casillas |= Bit(casilla);
    return casillas;
}

template <int C>
static void CompararConElRecorrido() {
    const RegistroBando&  bando   = BandoDe<C>();
    const ConjuntosBando& propios = Conjuntos[C];
    EXPECT_TRUE(propios.Peones == CasillasDe(PEON<C>) && propios.Caballos == CasillasDe(CABALLO<C>));
    EXPECT_TRUE(propios.Alfiles == CasillasDe(ALFIL<C>) && propios.Torres == CasillasDe(TORRE<C>));
    EXPECT_TRUE(propios.Damas == CasillasDe(DAMA<C>) && propios.Rey == CasillasDe(REY<C>));
    EXPECT_EQ(bando.Peones_Septima, Cuantas(propios.Peones & FilaEntera<C>(6)));

    const std::vector<int> veces = AtaquesDe(C);
    for (int casilla = 0; casilla < 64; ++casilla) {
        SCOPED_TRACE(casilla);
        const int numero = veces[static_cast<std::size_t>(casilla)];
        const int pieza  = TableroGlobal.Casillas[casilla];
        EXPECT_EQ(Contiene(bando.Defensa, casilla), EsPropia<C>(pieza) && numero > 0);
        EXPECT_EQ(Contiene(bando.Objetivos, casilla), EsRival<C>(pieza) && numero > 0);
        EXPECT_EQ(Contiene(ConUnoOMas(propios.Ataques), casilla), numero >= 1);
        EXPECT_EQ(Contiene(ConDosOMas(propios.Ataques), casilla), numero >= 2);
    }
}

TEST_F(Piezas, ConjuntosComoElRecorridoPasoAPaso) {
    std::vector<std::string> posiciones(std::begin(POSICIONES), std::end(POSICIONES));
    posiciones.push_back("R6R/3Q4/1Q4Q1/4Q3/2Q4Q/Q4Q2/pp1Q4/kBNN1KB1 w - - 0 1");
    posiciones.push_back("PPPPPPPP/8/3k4/8/8/4K3/8/pppppppp w - - 0 1");
    posiciones.push_back("QQQQkQQQ/QQQQQQQQ/QQQQQQQQ/QQQQQQQQ/8/8/qqqqqqqq/qqqqKqqq w - - 0 1");
    for (const std::string& fen : posiciones) {
        SCOPED_TRACE(fen);
        Fen(fen);
        LimpiarPuntuacion(0);
        EvaluarPiezasTableroJuego();
        EvaluarTorreB();
        EvaluarTorreN();
        CompararConElRecorrido<BLANCO>();
        CompararConElRecorrido<NEGRO>();
    }
}

// Mobility depends on nothing but the number of attacked squares without own pawns, the own king, and what enemy pawns
// guard.
TEST_F(Piezas, LaMovilidadCuentaLasCasillasQueNoCubrenLosPeones) {
    std::mt19937 azar(3);
    for (const auto& [letra, pieza] : {std::pair{'N', CABALLO_B}, {'B', ALFIL_B}, {'Q', DAMA_B}}) {
        std::map<int, int> valores;
        for (unsigned n = 0; n < 2000; ++n) {
            Fen(TableroAlAzar(azar, 2 + n % 30, std::string("PpPpRK") + letra), n % 2 == 0);
            const int* const t        = TableroGlobal.Casillas;
            const int        desfase  = n % 2 == 0 ? DESFASE_NEGRO : 0;
            const auto       cubierta = n % 2 == 0 ? AmenazadoPorPeonBlanco : AmenazadoPorPeonNegro;
            if (std::count(t, t + 64, pieza + desfase) != 1 || std::count(t, t + 64, REY_B + desfase) != 1) continue;
            int numero = 0;
            for (const int casilla : AtaquesDesde(static_cast<int>(std::find(t, t + 64, pieza + desfase) - t)))
                numero += t[casilla] != PEON_B + desfase && t[casilla] != REY_B + desfase && !cubierta(casilla);
            LimpiarPuntuacion(0);
            EvaluarPiezasTableroJuego();
            const int valor = Propio(n % 2 == 0).Movilidad_OP;
            ASSERT_EQ(valores.try_emplace(numero, valor).first->second, valor) << letra << " " << numero;
        }
        EXPECT_GT(valores.size(), 6U);
        EXPECT_GT(valores.rbegin()->second, valores.begin()->second);
    }
}
