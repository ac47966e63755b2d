// Quiescence search: resolves captures, and checks against the side to move, below the horizon, so that only quiet
// positions are evaluated.
#pragma once

enum TipoVentana : int { VENTANA_ABIERTA = 0, VENTANA_NULA = 1 };
enum NivelQs : int { NIVEL_HONDO = 0, PRIMER_NIVEL = 1 };

// Score of TableroGlobal for the side to move, in centipawns, or 0 once TipoJuego.Parar is 1. en_jaque: EstadoJaque of
// the side to move. ventana_nula: VENTANA_NULA when the full-width node above had a null window or the call only
// verifies a bound; it lets the table cut and leaves the principal variation alone. primer_nivel: PRIMER_NIVEL from
// the full-width search; such a node uses the table, and prunes no capture.
int AlphaBeta_Qs(int alfa, int beta, int en_jaque, int ventana_nula, int primer_nivel);
