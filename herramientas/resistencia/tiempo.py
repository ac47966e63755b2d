"""Real time over budget of timed searches, from the line "go" sent to "bestmove" received. Argument: searches.

A table is cleared as interfaces do it: "ucinewgame" or a new option, then "isready" and its "readyok", then the search
that is timed. The clearing itself is in no figure.
"""

import os
import random
import subprocess
import sys

from motor import COMPLETO, TAMREK, Colgado, Motor, Muerto
import ajedrez
import reloj

SEMILLA = 5
MEGAS = (64, 256, 1024, 2048)       # Hash
PARTIDA = 40                        # searches between two clearings of the table
PRESUPUESTOS = (10, 20, 50, 100)    # milliseconds
PACIENCIA = 60                      # seconds
LIMPIEZAS = ("ucinewgame", "setoption name Clear Hash", "setoption name Hash value 32", "")
OCUPADO = "import os\npadre = os.getppid()\nwhile os.getppid() == padre:\n    for _ in range(10 ** 6): pass"


def posiciones(azar):
    """Positions of random games, so that all kinds of trees are searched."""
    partida, jugadas = ajedrez.Posicion.de_fen(ajedrez.INICIAL), []
    for _ in range(azar.randrange(4, 40)):
        legales = list(partida.legales())
        if not legales:
            break
        jugadas.append(azar.choice(legales))
        partida = partida.jugar(jugadas[-1])
    if partida.terminada():
        return posiciones(azar)
    return "position startpos moves " + " ".join(jugadas)


def limite(azar, completo):
    """A limit that gives a budget of one of PRESUPUESTOS, and the "go" that says it."""
    plan = azar.choice(PRESUPUESTOS)
    if azar.random() < 0.5:
        movetime = (plan + min(plan, reloj.MARGEN)) if completo else plan + reloj.RESERVA
        return reloj.Limite(movetime), f"go movetime {movetime}"
    if completo:
        tiempo = plan * 30 + reloj.MARGEN
        return reloj.Limite(None, tiempo), f"go wtime {tiempo} btime {tiempo}"
    return reloj.Limite(None, 5000, plan), f"go wtime 5000 btime 5000 winc {plan} binc {plan}"


def limpiar(motor, azar, megas):
    """Between games: clears or makes the table, and waits for the engine as interfaces do."""
    limpieza = azar.choice(LIMPIEZAS)
    if limpieza:
        motor.decir(limpieza)
    if "Hash value" in limpieza:
        motor.listo()
        motor.decir(f"setoption name Hash value {megas}")
    motor.listo()


def sesion(azar, completo, megas, busquedas):
    """What so many searches of one engine took beyond their budgets, in milliseconds: pairs of the real time and of
    the time of a processor, which the other programs of the machine have little part in; those that followed a
    clearing in a second list."""
    excesos, primeras = [], []
    motor = Motor([TAMREK] + [COMPLETO] * completo, {"Hash": megas})
    for numero in range(busquedas):
        if numero % PARTIDA == 0:
            limpiar(motor, azar, megas)
        motor.decir(posiciones(azar))
        limites, orden = limite(azar, completo)
        _, presupuesto = reloj.presupuesto_completo(limites) if completo else reloj.presupuesto(limites, 0)
        antes = motor.trabajo()
        _, gastados, _ = motor.jugar(orden, PACIENCIA)
        excesos.append((gastados - presupuesto, motor.trabajo() - antes - presupuesto))
        if numero % PARTIDA == 0:
            primeras.append(excesos[-1])
    fallo = motor.cerrar()
    if fallo:
        raise Muerto(fallo)
    return excesos, primeras


def cuantiles(excesos):
    """Median, 99 %, 99.9 % and maximum. Searches that ended early, by a mate or the last depth, count as 0 over."""
    ordenados = sorted(max(0.0, exceso) for exceso in excesos)
    return [ordenados[min(len(ordenados) - 1, int(len(ordenados) * parte))] for parte in (0.5, 0.99, 0.999, 1)]


def resumir(nombre, excesos):
    """Prints a row of the table; returns the real time over budget that 99.9 % keep to."""
    reales, propios = (cuantiles(lista) for lista in zip(*excesos))
    print(f"{nombre:22} {len(excesos):8}", *(f"{valor:8.1f}" for valor in reales + propios), flush=True)
    return reales[2]


def medir(nombre, busquedas):
    """Measures every size in both modes; returns the 99.9 % of all."""
    azar, todos, todas_primeras = random.Random(SEMILLA), [], []
    for megas in MEGAS:
        de_estos, primeras = [], []
        for completo in (False, True):
            excesos, iniciales = sesion(azar, completo, megas, busquedas // (2 * len(MEGAS)))
            de_estos += excesos
            primeras += iniciales
        resumir(f"{nombre}, Hash {megas}", de_estos)
        todos += de_estos
        todas_primeras += primeras
    resumir(f"{nombre}, after clearing", todas_primeras)
    return resumir(f"{nombre}, all", todos)


def main():
    busquedas = int(sys.argv[1]) if len(sys.argv) > 1 else 5000
    print(f"{'':31} {'real time over budget, ms':>35} {'processor time over budget, ms':>35}")
    print(f"{'':22} {'searches':>8}", *(f"{titulo:>8}" for titulo in ("median", "99 %", "99.9 %", "maximum") * 2))
    ocupados = []
    try:
        quieto = medir("quiet", busquedas)
        ocupados = [subprocess.Popen([sys.executable, "-c", OCUPADO]) for _ in range(os.cpu_count() or 1)]
        medir("busy", busquedas)
    except (Muerto, Colgado) as error:
        print(f"the engine failed: {error}")
        return 1
    finally:
        for ocupado in ocupados:
            ocupado.kill()
    print("after clearing: the first search behind ucinewgame or a new option, isready and its readyok; "
          "one sent without isready waits for the clearing, and is not timed here")
    print(f"goal, 99.9 % within {reloj.META} ms on a quiet machine: {'met' if quieto <= reloj.META else 'missed'}")
    return 0 if quieto <= reloj.META else 1


if __name__ == "__main__":
    sys.exit(main())
