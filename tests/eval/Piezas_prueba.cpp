// Sets against a plain walk over the board.
#include "eval/Terminos.h"

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
