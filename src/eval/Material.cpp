#include "eval/Material.h"

#include <algorithm>

#include "eval/Par.h"

constexpr Par BONUS_PAREJA_ALFILES         = {50, 60};
constexpr int PENALIZACION_PAREJA_CABALLOS = 10;
constexpr int PENALIZACION_PAREJA_TORRES   = 5;
constexpr int PENALIZACION_DAMA_MENORES    = 5;  // for each enemy minor piece that can harass the queen

// Knights gain with each own pawn that closes the position, rooks lose; by the number of own pawns. Positions
// set up with more pawns than a side can have read the zeros at the end.
constexpr int PEONES_TOPE                  = 15;
constexpr int CABALLO_ADJ[PEONES_TOPE + 1] = {-24, -18, -12, -6, 0, 6, 12, 18, 24, 0, 0, 0, 0, 0, 0, 0};
constexpr int TORRE_ADJ[PEONES_TOPE + 1]   = {-12, -9, -6, -3, 0, 3, 6, 9, 12, 0, 0, 0, 0, 0, 0, 0};

// White's balance of heavy pieces (row: rooks + 2 * queens) against that of minor pieces (column); 4 is level.
// The 60 and the -60 that stand alone in their rows are the two minors for a rook.
constexpr int NIVELADO   = 4;
constexpr int INDICE_MAX = 8;
// clang-format off
constexpr int imbalance[INDICE_MAX + 1][INDICE_MAX + 1] = {
    { -80, -80, -80, -80, -60,   0,   0,   0,   0 },
    { -80, -80, -80, -80, -60,   0,   0,   0,   0 },
    { -80, -80, -80, -80, -60,   0,   0,   0,   0 },
    { -80, -80, -80, -80, -60,   0,  60,   0,   0 },
    { -45, -45, -45, -45,   0,  45,  45,  45,  45 },
    {   0,   0, -60,   0,  60,  80,  80,  80,  80 },
    {   0,   0,   0,   0,  60,  80,  80,  80,  80 },
    {   0,   0,   0,   0,  60,  80,  80,  80,  80 },
    {   0,   0,   0,   0,  60,  80,  80,  80,  80 } };
// clang-format on

static int Ajuste(const RegistroBando& propio, const RegistroBando& rival) {
    const int peones = std::min(propio.Peones, PEONES_TOPE);

    int ajuste = CABALLO_ADJ[peones] * propio.Caballos - TORRE_ADJ[peones] * propio.Torres;
    if (propio.Caballos >= 2) ajuste -= PENALIZACION_PAREJA_CABALLOS;
    if (propio.Torres >= 2) ajuste -= PENALIZACION_PAREJA_TORRES;
    if (propio.Damas != 0) ajuste -= PENALIZACION_DAMA_MENORES * (rival.Caballos + rival.Alfiles);
    return ajuste;
}

template <int C>
static void MaterialDe() {
    RegistroBando& propio = BandoDe<C>();
    const int      piezas = MATERIAL[PEON_B] * propio.Peones + MATERIAL[CABALLO_B] * propio.Caballos +
                       MATERIAL[ALFIL_B] * propio.Alfiles + MATERIAL[TORRE_B] * propio.Torres +
                       MATERIAL[DAMA_B] * propio.Damas + Ajuste(propio, BandoDe<RIVAL<C>>());
    propio.Puntos_OP = propio.Puntos_EG = 0;
    Sumar<C>(piezas, piezas);
    if (propio.Alfiles > 1) Sumar<C>(BONUS_PAREJA_ALFILES);
}

static int Menores(const RegistroBando& bando) {
    return bando.Caballos + bando.Alfiles;
}

static int FaseDe(const RegistroBando& bando) {
    return FaseDePiezas(Menores(bando), bando.Torres, bando.Damas);
}

void Material_Imbalance() {
    MaterialDe<BLANCO>();
    MaterialDe<NEGRO>();
}

int DesequilibrioPiezas() {
    const int mayores = (Blancas.Torres - Negras.Torres) + 2 * (Blancas.Damas - Negras.Damas) + NIVELADO;
    const int menores = Menores(Blancas) - Menores(Negras) + NIVELADO;
    return imbalance[std::clamp(mayores, 0, INDICE_MAX)][std::clamp(menores, 0, INDICE_MAX)];
}

int CalcularFase() {
    return std::clamp(FaseDe(Blancas) + FaseDe(Negras), 0, FASE_MAX);
}

bool SoloReyes() {
    return (Blancas.Peones | Negras.Peones) == 0 && FaseDe(Blancas) + FaseDe(Negras) == 0;
}

bool Material_Insuficiente() {
    const int otras = Blancas.Peones + Blancas.Torres + Blancas.Damas + Negras.Peones + Negras.Torres + Negras.Damas;
    return otras == 0 && Menores(Blancas) <= 1 && Menores(Negras) <= 1;
}
