"""What the engine plans to spend on a move, reckoned apart from its own code: it tells the forfeits that its rules bring
about from those that are a fault. Milliseconds throughout."""

import math
import struct
from typing import NamedTuple, Optional

RESERVA = 250           # of a movetime, by default
MARGEN = 30             # of each move, in full UCI: Move Overhead
MAQUINA = "late by a busy machine alone"
DE_OTROS = "late moves of others"       # borne, so that the game goes on
DE_REGLA = "forfeits planned by the rule"
CULPA = "FORFEITS BY OWN FAULT"
META = 15               # over budget on a quiet machine: 99.9 % of the searches keep to it


class Limite(NamedTuple):
    """The limit of a search; what does not hold is None or 0."""
    movetime: Optional[int] = None
    reloj: Optional[int] = None     # left for all moves up to the control
    incremento: int = 0
    movimientos: int = 0            # to go up to the control, 0 = all


def simple(valor):
    """Rounded to single precision."""
    return struct.unpack("f", struct.pack("f", valor))[0]


def presupuesto(limite, jugadas):
    """The budget by default, jugadas plies after the start of the game: the rule's name and milliseconds."""
    reloj, incremento = limite.reloj, limite.incremento
    if reloj is None:
        return f"a movetime less {RESERVA}", limite.movetime - RESERVA
    if limite.movimientos:
        return f"clock / {limite.movimientos} + 0.6 increment", (
            int(simple(reloj / limite.movimientos) + 0.5) + int(incremento * 0.6))
    divisor = max(2, 130 - jugadas)
    if reloj < 10000:
        return ("below 10 s: the increment", incremento) if incremento else ("below 10 s: 500", 500)
    porcion = simple(reloj / divisor)
    if 10000 < reloj < 20000:
        parte = int(porcion + 0.5) + incremento
        return "below 20 s: a share and the increment", parte if parte > 999 else incremento or 1000
    return "a share, 250 and the increment", int(porcion + 250.5) + incremento


def presupuesto_completo(limite):
    """The same in full UCI."""
    if limite.reloj is None:
        return "a movetime less the overhead", limite.movetime - min(MARGEN, limite.movetime // 2)
    util = limite.reloj - MARGEN
    partes = min(limite.movimientos or 30, 30)
    return "a share of the clock", max(1, int(min(util / partes + limite.incremento * 0.75, util * 0.6)))


def explicar(limite, completo, jugadas, gastados, trabajo, espera):
    """Why time ran out: the kind of forfeit, its figures, and the time that counts. trabajo: processor time that the
    engine has had; espera: time that it and its referee have waited for a processor. When a busy machine alone made it
    late, the game goes on as if it had kept to its budget; an engine that sleeps or blocks has nobody to blame."""
    regla, plan = presupuesto_completo(limite) if completo else presupuesto(limite, jugadas)
    tenia = limite.reloj if limite.movetime is None else limite.movetime
    datos = (f"clock {tenia}, took {gastados:.0f}, processor {trabajo:.0f}, waited for one {espera:.0f}, "
             f"budget {plan} ({regla})")
    if plan >= tenia:
        return DE_REGLA, datos, gastados
    return (MAQUINA, datos, plan) if max(trabajo, gastados - espera) <= plan + META else (CULPA, datos, gastados)


def vencido(limite, gastados):
    """Whether the limit was missed."""
    return gastados > (limite.reloj if limite.movetime is None else limite.movetime or math.inf)
