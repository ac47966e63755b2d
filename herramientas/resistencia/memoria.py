"""Memory and open files of one engine process over very many searches, and over loadings of the tablebases.

Arguments: searches, loadings.
"""

import random
import sys

from motor import COMPLETO, TAMREK, Colgado, Motor, Muerto
from partidas import TABLAS, Partida

SEMILLA = 7
TOMAS = 10              # rows of the table
KILOS_MAX = 256         # growth between the second row and the last that is none
KILOS_CARGA = 32        # growth of each loading that the library is known for: it forgets a buffer for each table
POSICIONES = 500
PACIENCIA = 60          # seconds


def vigilar(nombre, motor, veces, paso, conocidos=0):
    """Does a step so many times and prints the use of memory and files now and then. Returns whether it is flat but for
    known kilobytes a step."""
    usos = []
    for vez in range(veces):
        paso(vez)
        if (vez + 1) % max(1, veces // TOMAS) == 0:
            usos.append(motor.uso())
            print(f"{nombre:20} {vez + 1:8} {usos[-1][0]:8} kB {usos[-1][1]:4} files", flush=True)
    primero, ultimo = usos[min(1, len(usos) - 1)], usos[-1]
    llano = ultimo[0] - primero[0] <= KILOS_MAX + conocidos * veces and ultimo[1] == primero[1]
    fallo = motor.cerrar()
    print(f"{nombre}: {'flat' if llano else 'GROWS'}" + (f", WRONG END: {fallo}" if fallo else ""))
    return llano and not fallo


def busquedas(nombre, argv, veces):
    """Searches to depth 4, half of them in endings."""
    azar = random.Random(SEMILLA)
    posiciones = [Partida(azar, numero % 2 == 0).orden() for numero in range(POSICIONES)]
    motor = Motor(argv, {"Hash": "16"})

    def paso(vez):
        motor.decir(posiciones[vez % POSICIONES])
        motor.jugar("go depth 4", PACIENCIA)
        motor.dicho.clear()
    return vigilar(nombre, motor, veces, paso)


def cargas(veces):
    """Loads the tablebases, probes them in a search and unloads them."""
    motor = Motor([TAMREK, COMPLETO], {"Hash": "1", "GaviotaTbPath": TABLAS})

    def paso(_):
        motor.decir("setoption name GaviotaTbUse value true")
        if not any("3-pc TBs available" in linea for linea in motor.listo()):
            raise Muerto("no tables")
        motor.decir("position fen 8/8/4k3/8/8/3R4/8/4K3 w - - 0 1")
        motor.jugar("go depth 4", PACIENCIA)
        motor.decir("setoption name GaviotaTbUse value false")
        motor.listo()
    return vigilar("tablebase loadings", motor, veces, paso, KILOS_CARGA)


def main():
    de_busquedas, de_cargas = (int(sys.argv[i]) if len(sys.argv) > i else (200000, 1000)[i - 1] for i in (1, 2))
    try:
        return 0 if all([busquedas("searches", [TAMREK], de_busquedas // 2),
                         busquedas("searches, full UCI", [TAMREK, COMPLETO], de_busquedas // 2),
                         cargas(de_cargas)]) else 1
    except (Muerto, Colgado) as error:
        print(f"the engine failed: {error}")
        return 1


if __name__ == "__main__":
    sys.exit(main())
