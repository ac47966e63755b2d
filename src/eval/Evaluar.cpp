#include "eval/Evaluar.h"

#include <algorithm>
#include <cstdint>

#include "board/Comprobacion.h"
#include "board/Puntuacion.h"
#include "eval/Material.h"
#include "eval/Par.h"
#include "eval/SeguridadRey.h"
#include "eval/Terminos.h"
#include "eval/finales/Dificiles.h"
#include "eval/finales/Kbnk.h"
#include "eval/finales/Kpk.h"
#include "eval/finales/Kqkp.h"
#include "eval/finales/Reconocidos.h"
#include "search/Transposicion.h"

int AJUSTE_MOB[2];
int AJUSTE_ATT[2];

constexpr int   PESO_PROPIO      = 100;  // percent
constexpr int   PESO_RIVAL       = 104;
constexpr int   PESO_TROPISMO    = 20;
constexpr Par   BONUS_TURNO      = {5, 10};  // for the right to move
constexpr int   FASE_FINAL       = 9;        // the recognisers of endings are asked up to this phase
constexpr int   FINAL_TABLAS     = 0;
constexpr float INVERSO_FASE_MAX = 0.041666668F;

// A score as the side to move sees it, from White's view, and the other way round.
static int DesdeTurno(int puntos) {
    return TableroGlobal.Turno == BLANCO ? puntos : -puntos;
}

static EntradaCache* EntradaDeCache() {
    if (TT_Cache == nullptr || TT_Opciones.MegasCache == 0) return nullptr;
    return &EntradaCacheDe(TableroGlobal.Key);
}

// What the endgame knowledge answers by itself, for the side to move, or NO_RECONOCIDO.
static int PuntosFinalReconocido() {
    if (SoloReyes() || Material_Insuficiente() || FactorFinal() == FINAL_TABLAS) return VALOR_TABLAS;
    return EvaluarFinalesDificiles();
}

// The attack on the enemy king needs two pieces and a queen on the attacking side.
static int PuntosAtaque(RegistroBando& bando, int peso) {
    if (bando.Ataque_Numero <= 1) return 0;
    bando.Ataque_Valor = bando.Damas == 0 ? 0 : std::min(bando.Ataque_Valor, ATAQUE_MAX);
    return Porcentaje(KING_ATTACK_MULTI[bando.Ataque_Valor], peso);
}

template <int C>
static void SumarEscalados() {
    RegistroBando& bando  = BandoDe<C>();
    const int      ataque = PuntosAtaque(bando, AJUSTE_ATT[C]);
    bando.Puntos_OP += Porcentaje(bando.Movilidad_OP, AJUSTE_MOB[C]) + Porcentaje(bando.Tropismo_OP, PESO_TROPISMO);
    bando.Puntos_EG += Porcentaje(bando.Movilidad_EG, AJUSTE_MOB[C]) + Porcentaje(bando.Tropismo_EG, PESO_TROPISMO);
    const Par peligro = PuntosPeligro(bando.Peligro);
    bando.Puntos_OP += ataque + peligro.OP;
    bando.Puntos_EG += ataque + peligro.EG;
}

static void SumarTurno() {
    if (TableroGlobal.Turno == BLANCO)
        Sumar<BLANCO>(BONUS_TURNO);
    else
        Sumar<NEGRO>(BONUS_TURNO);
}

// The accumulated terms of both sides as one score from White's view.
static int Reunir() {
    int puntos =
        Interpolate(Blancas.Puntos_OP - Negras.Puntos_OP, Blancas.Puntos_EG - Negras.Puntos_EG, TableroGlobal.Fase) +
        DesequilibrioPiezas();
    // A dead draw is left to the recognisers' own gate: outside it the score stands.
    const int factor = FactorFinal();
    if (factor != SIN_CAMBIO && factor != FINAL_TABLAS) puntos = Porcentaje(puntos, factor);
    return std::clamp(puntos, -UMBRAL_MATE, UMBRAL_MATE);
}

int Interpolate(int puntos_op, int puntos_eg, int fase) {
    const int opening = std::min(fase, FASE_MAX);
    return Truncar(puntos_op * opening + puntos_eg * (FASE_MAX - fase), INVERSO_FASE_MAX);
}

int Evaluar() {
    COMPROBAR_POSICION();
    EntradaCache* const entrada = EntradaDeCache();
    if (entrada != nullptr && entrada->Key == TableroGlobal.Key)
        return DesdeTurno(DesempaquetarPuntos(entrada->Puntos));

    LimpiarPuntuacion(0);
    Material_Imbalance();
    TableroGlobal.Fase = CalcularFase();
    EvaluarApertura();
    EvaluarPiezasTableroJuego();  // before the endings, which use the attacks that it finds
    if (TableroGlobal.Fase <= FASE_FINAL) {
        const int puntos = PuntosFinalReconocido();
        if (puntos != NO_RECONOCIDO) return puntos;
    }
    EvaluarPeonesB();
    EvaluarPeonesN();
    EvaluarTorreB();
    EvaluarTorreN();
    EvaluarReyes();
    EvaluarApoyoPasados();
    EvaluarAmenazas();
    SumarEscalados<BLANCO>();
    SumarEscalados<NEGRO>();
    SumarTurno();

    const int puntos = Reunir();
    if (entrada != nullptr) *entrada = {TableroGlobal.Key, EmpaquetarPuntos(puntos)};
    return DesdeTurno(puntos);
}

void Iniciar_Asimetrico() {
    const int propio   = TableroGlobal.Turno == BLANCO ? BLANCO : NEGRO;
    const int rival    = 1 - propio;
    AJUSTE_MOB[propio] = AJUSTE_ATT[propio] = PESO_PROPIO;
    AJUSTE_MOB[rival] = AJUSTE_ATT[rival] = PESO_RIVAL;
}

void Iniciar_Evaluacion() {
    IniciarKpk();
    IniciarKqkp();
}

void Preparar_Evaluacion() {
    PrepararKbnk();
}
