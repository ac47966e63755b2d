"""Games of the engine against itself and against Debian's engines at mixed limits. Argument: games.

The rules of chess that judge each move are those of herramientas/analisis, which know nothing of the engine.
"""

import collections
import concurrent.futures
import contextlib
import multiprocessing
import os
import random
import shutil
import signal
import sys
import time
from typing import NamedTuple

from motor import COMPLETO, SANEADO, TAMREK, Colgado, Motor, Muerto
import ajedrez
import reloj

SEMILLA = 11
LOTE = 10               # games that two processes play before they are asked to end
PLIES_MAX = 300         # a longer game counts as drawn
PACIENCIA = 30          # seconds beyond its limit after which an engine counts as hanging
TABLAS = "/usr/share/gaviotatb/gtb4"
FINALES = ("KPk", "KPkp", "KRPkr", "KBNk", "KQkp", "KRkn", "KPPkp", "KQkr", "KBPkb", "KNPkp")
ENROQUES_DE = {"e1": "KQ", "h1": "K", "a1": "Q", "e8": "kq", "h8": "k", "a8": "q"}


class Jugador(NamedTuple):
    """An engine. completo: None for engines that are not ours."""
    nombre: str
    argv: tuple
    completo: object = None
    opciones: tuple = (("Hash", "16"),)


class Ritmo(NamedTuple):
    """Limits of a game: a word of "go" with its value, or a clock in milliseconds."""
    nombre: str
    palabra: str = ""
    valor: int = 0
    reloj: int = 0
    incremento: int = 0
    movimientos: int = 0


NORMAL = Jugador("tamrek", (TAMREK,), False)
PLENO = Jugador("tamrek full", (TAMREK, COMPLETO), True)
TABLISTA = Jugador("tamrek tablebases", (TAMREK, COMPLETO), True,
                   (("Hash", "16"), ("GaviotaTbPath", TABLAS), ("GaviotaTbUse", "true")))
REVISADO = Jugador("tamrek sanitized", (SANEADO,), False)
REVISADO_PLENO = Jugador("tamrek full sanitized", (SANEADO, COMPLETO), True)
AJENOS = (Jugador("stockfish", ("stockfish",)), Jugador("toga2", ("toga2",)), Jugador("glaurung", ("glaurung",)),
          Jugador("gnuchess", ("gnuchess", "--uci"), None, ()))

HONDO = Ritmo("depth 3", "depth", 3)
SOMERO = Ritmo("depth 2", "depth", 2)
NODOS = Ritmo("nodes 2000", "nodes", 2000)
FIJO = Ritmo("20 ms a move", "movetime", 20)
BREVE = Ritmo("0.2+0.01", reloj=200, incremento=10)
RAPIDO = Ritmo("5+0.05", reloj=5000, incremento=50)
CONTROL = Ritmo("40 moves in 4 s", reloj=4000, movimientos=40)
CONTROL_LARGO = Ritmo("40 moves in 20 s", reloj=20000, movimientos=40)


def existe(jugador):
    return shutil.which(jugador.argv[0], path=os.environ.get("PATH", "") + ":/usr/games") is not None


def emparejamientos():
    """(share of the games, players, limits, whether it begins with an ending); those whose engines are here."""
    propios = [(12, NORMAL, PLENO, HONDO, False), (8, NORMAL, NORMAL, HONDO, False), (8, NORMAL, PLENO, SOMERO, True),
               (6, PLENO, PLENO, NODOS, False), (4, REVISADO, PLENO, SOMERO, False),
               (4, REVISADO_PLENO, NORMAL, SOMERO, False), (2, REVISADO, REVISADO_PLENO, SOMERO, True),
               (8, PLENO, PLENO, BREVE, False), (4, NORMAL, PLENO, FIJO, False), (2, NORMAL, PLENO, RAPIDO, False),
               (2, NORMAL, PLENO, CONTROL, False), (0.5, NORMAL, PLENO, CONTROL_LARGO, False)]
    if os.path.isdir(TABLAS):
        propios.append((4, TABLISTA, NORMAL, HONDO, True))
    ajenos = [(parte, nuestro, ajeno, ritmo, final) for ajeno in AJENOS for parte, nuestro, ritmo, final in (
        (6, NORMAL, HONDO, False), (5, PLENO, HONDO, False), (2, NORMAL, SOMERO, True), (1, NORMAL, FIJO, False),
        (1, PLENO, FIJO, False), (2, PLENO, BREVE, False), (0.3, NORMAL, RAPIDO, False), (0.3, PLENO, RAPIDO, False),
        (0.3, NORMAL, CONTROL, False), (0.3, PLENO, CONTROL, False))]
    return [fila for fila in propios + ajenos if existe(fila[1]) and existe(fila[2])]


def repartir(partidas):
    """Lots of games of one pairing each, the largest shares first, in all as many games as asked for."""
    filas = emparejamientos()
    total, lotes, falta = sum(fila[0] for fila in filas), [], partidas
    for fila in sorted(filas, key=lambda fila: -fila[0]):
        de_esta = min(falta, max(1, round(partidas * fila[0] / total)))
        falta -= de_esta
        lotes += [(fila[1:], min(LOTE, de_esta - hechas)) for hechas in range(0, de_esta, LOTE)]
    lotes += [(filas[0][1:], min(LOTE, falta - hechas)) for hechas in range(0, falta, LOTE)]
    return lotes


# --- The board of the referee ---

def final_al_azar(azar):
    """A position of few men."""
    while True:
        casillas = ["."] * 64
        for ficha, lugar in zip(azar.choice(FINALES), azar.sample(range(64), 6)):
            casillas[lugar] = ficha
        tablero = ajedrez.Posicion(casillas, azar.random() < 0.5, "", None, (0, 1))
        try:
            if not ajedrez.Posicion.de_fen(tablero.fen()).terminada():
                return ajedrez.Posicion.de_fen(tablero.fen())
        except ajedrez.Error:
            continue


class Partida:
    """A game: the position, how it came about, and the rights that are left when captures of rooks do not count."""

    def __init__(self, azar, final):
        self.posicion = final_al_azar(azar) if final else ajedrez.Posicion.de_fen(ajedrez.INICIAL)
        self.comienzo = "fen " + self.posicion.fen() if final else "startpos"
        self.jugadas, self.vistas = [], collections.Counter()
        self.derechos = set(self.posicion.enroques)
        for _ in range(0 if final else azar.randrange(2, 12)):
            legales = list(self.posicion.legales())
            if not legales:
                break
            self.jugar(azar.choice(legales))

    def orden(self):
        return f"position {self.comienzo}" + (" moves " + " ".join(self.jugadas) if self.jugadas else "")

    def jugar(self, jugada):
        ficha = self.posicion.casillas[ajedrez.NUMEROS[jugada[:2]]]
        self.derechos -= {derecho for derecho in ENROQUES_DE.get(jugada[:2], "")
                          if ficha in ("KR" if derecho.isupper() else "kr")}
        self.jugadas.append(jugada)
        self.posicion = self.posicion.jugar(jugada)
        self.vistas[self.posicion.epd()] += 1

    def es_legal(self, jugada, posicion=None):
        posicion = posicion or self.posicion
        ficha = posicion.casillas[ajedrez.NUMEROS.get(jugada[:2], 0)].upper()
        return ficha != "." and jugada in posicion.legales(ficha, jugada[2:4])

    def enroque_de_mas(self, jugada):
        """Castling that nothing forbids but the capture of the corner's first rook."""
        p = self.posicion
        laxa = ajedrez.Posicion(p.casillas, p.blancas, "".join(self.derechos), p.al_paso, p.reglas)
        return jugada in ajedrez.ENROQUES and laxa._enroque_posible(  # pylint: disable=protected-access
            ajedrez.ENROQUES[jugada][0]) and self.es_legal(jugada, laxa)

    def resultado(self):
        """"1-0", "0-1", "1/2-1/2", or None while the game goes on."""
        final = self.posicion.terminada()
        if final == "mate":
            return "0-1" if self.posicion.blancas else "1-0"
        fichas = sorted(ficha.upper() for ficha in self.posicion.casillas if ficha != ".")
        tablas = (final or self.posicion.reglas[0] >= 100 or max(self.vistas.values(), default=0) >= 3
                  or len(self.jugadas) >= PLIES_MAX or fichas in (["K", "K"], ["B", "K", "K"], ["K", "K", "N"]))
        return "1/2-1/2" if tablas else None


# --- Playing ---

class Bando:
    """One side of a game: its engine and its clock."""

    def __init__(self, jugador, ritmo):
        self.jugador, self.ritmo = jugador, ritmo
        self.reloj, self.movimientos = float(ritmo.reloj), ritmo.movimientos

    def limite(self):
        if self.ritmo.reloj:
            return reloj.Limite(None, max(1, int(self.reloj)), self.ritmo.incremento, self.movimientos)
        reserva = {False: reloj.RESERVA, True: reloj.MARGEN, None: 0}[self.jugador.completo]
        return reloj.Limite(self.ritmo.valor + reserva) if self.ritmo.palabra == "movetime" else None

    def orden(self, otro, blancas):
        limite = self.limite()
        if limite is None:
            return f"go {self.ritmo.palabra} {self.ritmo.valor}"
        if limite.movetime is not None:
            return f"go movetime {limite.movetime}"
        relojes = (limite.reloj, int(otro.reloj)) if blancas else (int(otro.reloj), limite.reloj)
        orden = f"go wtime {relojes[0]} btime {relojes[1]}"
        if self.ritmo.incremento:
            orden += f" winc {self.ritmo.incremento} binc {self.ritmo.incremento}"
        return orden + (f" movestogo {self.movimientos}" if self.movimientos else "")

    def descontar(self, gastados):
        """Takes the time off the clock after a move that was made in time."""
        self.reloj += self.ritmo.incremento - gastados
        if self.movimientos:
            self.movimientos -= 1
            if self.movimientos == 0:
                self.reloj, self.movimientos = self.reloj + self.ritmo.reloj, self.ritmo.movimientos


def jugar_partida(motores, jugadores, ritmo, partida, cuenta, notas):
    """Plays to the end; jugadores and motores: White, Black. Returns the result, "*" when it was broken off."""
    bandos = [Bando(jugador, ritmo) for jugador in jugadores]
    while partida.resultado() is None:
        turno = 0 if partida.posicion.blancas else 1
        bando, motor, jugador = bandos[turno], motores[turno], jugadores[turno]
        limite = bando.limite()
        orden = bando.orden(bandos[1 - turno], turno == 0)
        motor.decir(partida.orden())
        trabajo, espera = motor.trabajo(), motor.espera()
        tiempo = 0 if limite is None else (limite.reloj or limite.movetime) / 1000
        jugada, gastados, _ = motor.jugar(orden, tiempo + PACIENCIA)
        nota = f"{jugador.nombre}, {ritmo.nombre}: {{}}: {partida.orden()} | {orden} | bestmove {jugada}"
        nuestro = jugador.completo is not None
        cuenta["moves judged" if nuestro else "moves of others"] += 1
        if not partida.es_legal(jugada):
            if not partida.enroque_de_mas(jugada):
                cuenta["ILLEGAL MOVES" if nuestro else "illegal moves of others"] += 1
                notas.append(nota.format("illegal move"))
                return "*"
            cuenta["castlings with a right left over"] += 1
            if jugadores[1 - turno].completo is None:
                return "*"      # it would rightly protest
        if limite is not None and reloj.vencido(limite, gastados):
            clase, causa, gastados = (reloj.DE_OTROS, "", 0) if not nuestro else reloj.explicar(
                limite, jugador.completo, len(partida.jugadas), gastados, motor.trabajo() - trabajo,
                motor.espera() - espera)
            cuenta[clase] += 1
            if clase not in (reloj.MAQUINA, reloj.DE_OTROS):
                notas.append(f"{jugador.nombre}, {ritmo.nombre}: {clase}: {causa}: {partida.orden()} | {orden}")
                return "0-1" if turno == 0 else "1-0"
        bando.descontar(gastados)
        partida.jugar(jugada)
    return partida.resultado()


def jugar_lote(lote):
    """Plays a lot of games between two processes. Returns the pairing, counts and notes."""
    semilla, (uno, otro, ritmo, final), partidas = lote
    azar, cuenta, notas, motores = random.Random(semilla), collections.Counter(), [], {}
    hablando = uno
    try:
        for hablando in (uno, otro):
            argv = [shutil.which(hablando.argv[0], path=os.environ["PATH"] + ":/usr/games"), *hablando.argv[1:]]
            motores[len(motores)] = Motor(argv, dict(hablando.opciones))
        for numero in range(partidas):
            orden = (0, 1) if numero % 2 == 0 else (1, 0)
            jugadores = [(uno, otro)[i] for i in orden]
            for i, hablando in enumerate((uno, otro)):
                motores[i].decir("ucinewgame")
                if hablando.completo is None or azar.random() < 0.5:
                    motores[i].listo()
            resultado = jugar_partida([motores[i] for i in orden], jugadores, ritmo, Partida(azar, final), cuenta, notas)
            cuenta["games"] += 1
            if resultado != "*":
                nuestro = {"1-0": jugadores[0] is uno, "0-1": jugadores[1] is uno}.get(resultado)
                cuenta["won" if nuestro else "drawn" if nuestro is None else "lost"] += 1
    except (Muerto, Colgado) as error:
        # Which of the two it was shows in the state of the processes.
        caido = next((i for i in motores if motores[i].proceso.poll() is not None), None)
        quien = hablando if caido is None else (uno, otro)[caido]
        falta = "HANGS" if isinstance(error, Colgado) else "CRASHES"
        ultimas = " | ".join(line for i in motores for line in motores[i].dicho[-2:])
        ajeno = caido is not None and quien.completo is None
        cuenta[falta.lower() + " of others" if ajeno else falta] += 1
        notas.append(f"{uno.nombre} - {otro.nombre}, {ritmo.nombre}, seed {semilla}: {quien.nombre}: {error}: {ultimas}")
    for i in motores:
        fallo = motores[i].cerrar()
        if fallo and (uno, otro)[i].completo is not None:
            cuenta["WRONG ENDS"] += 1
            notas.append(f"{(uno, otro)[i].nombre}, {ritmo.nombre}, seed {semilla}: {fallo}")
    return f"{uno.nombre} - {otro.nombre}, {ritmo.nombre}" + (", endings" if final else ""), cuenta, notas


def main():
    partidas = int(sys.argv[1]) if len(sys.argv) > 1 else 2000
    signal.signal(signal.SIGINT, signal.default_int_handler)    # also in the background
    empezado, lotes = time.monotonic(), repartir(partidas)
    random.Random(SEMILLA).shuffle(lotes)
    por_pareja, total = collections.defaultdict(collections.Counter), collections.Counter()
    # An interrupt typed at the terminal shall come here only.
    with (contextlib.suppress(KeyboardInterrupt), concurrent.futures.ProcessPoolExecutor(
            initializer=signal.signal, initargs=(signal.SIGINT, signal.SIG_IGN)) as trabajadores):
        hechos = [trabajadores.submit(jugar_lote, (SEMILLA + i, *lote)) for i, lote in enumerate(lotes)]
        try:
            for numero, hecho in enumerate(concurrent.futures.as_completed(hechos), 1):
                nombre, cuenta, notas = hecho.result()
                por_pareja[nombre] += cuenta
                total += cuenta
                print(*notas, sep="\n", end="\n" if notas else "", flush=True)
                if numero % 10 == 0:
                    print(f"{total['games']} of {partidas} games", file=sys.stderr, flush=True)
        except concurrent.futures.BrokenExecutor:
            total["LOST WORKERS"] += 1      # killed, as by a system without memory
        except BaseException:
            for trabajador in multiprocessing.active_children():    # else they would play all lots to their end
                trabajador.terminate()
            raise
    for nombre, cuenta in sorted(por_pareja.items()):
        print(f"{nombre:52} {cuenta['games']:5} games +{cuenta['won']} ={cuenta['drawn']} -{cuenta['lost']}")
    print(f"{time.monotonic() - empezado:.0f} s; " + ", ".join(
        f"{total[clave]} {clave}" for clave in sorted(total) if clave not in ("won", "drawn", "lost")))
    faltas = [clave for clave in total if clave.isupper()]
    print("faults: " + (", ".join(faltas) or "none"))
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
