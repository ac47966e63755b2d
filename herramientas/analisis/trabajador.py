"""Analyses positions with an engine: what GNU parallel runs on each core of each host.

Needs nothing but Python, and no other file of this program: its text travels in the command. Arguments: the settings
(JSON in base64: argv, options, go, seconds) and FENs. Prints one JSON line a position as soon as it is known.
"""

import base64
import json
import os
import select
import signal
import subprocess
import sys
import time

ARRANQUE = 60    # seconds for an engine to get ready: large tables, slow disks
LATIDO = 1       # seconds between two looks at whether the program that started us still lives


class Muerto(Exception):
    """The engine ended or went silent; the message says how."""


class Motor:
    def __init__(self, ajustes):
        self.ajustes = ajustes
        self.resto = b""
        self.proceso = subprocess.Popen(ajustes["argv"], stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                        stderr=subprocess.DEVNULL, bufsize=0)
        try:
            self.preparar()
        except Muerto:
            self.cerrar()
            raise

    def preparar(self):
        self.decir("uci")
        lineas = self.esperar("uciok", ARRANQUE)
        self.nombre = next((linea[8:] for linea in lineas if linea.startswith("id name ")), "?")
        self.opciones = [linea.partition(" name ")[2].partition(" type ")[0] for linea in lineas
                         if linea.startswith("option ")]
        for nombre, valor in self.ajustes["options"].items():
            self.decir(f"setoption name {nombre} value {valor}")
        self.decir("isready")
        self.esperar("readyok", ARRANQUE)

    def decir(self, texto):
        try:
            self.proceso.stdin.write(texto.encode() + b"\n")
        except OSError:
            raise Muerto(self.causa()) from None

    def causa(self):
        """How the engine ended."""
        try:
            codigo = self.proceso.wait(5)
        except subprocess.TimeoutExpired:
            return "the engine closed its output"
        return f"the engine ended by signal {-codigo}" if codigo < 0 else f"the engine ended with status {codigo}"

    def esperar(self, palabra, segundos):
        """The lines up to the first one that begins with a word."""
        lineas, limite = [], time.monotonic() + segundos
        while True:
            while b"\n" in self.resto:
                linea, _, self.resto = self.resto.partition(b"\n")
                lineas.append(linea.decode("utf-8", "replace").strip())
                if lineas[-1].split(" ", 1)[0] == palabra:
                    return lineas
            queda = limite - time.monotonic()
            if queda <= 0:
                raise Muerto(f"no {palabra} within {segundos} s")
            if select.select([self.proceso.stdout], [], [], min(queda, LATIDO))[0]:
                leido = os.read(self.proceso.stdout.fileno(), 65536)
                if not leido:
                    raise Muerto(self.causa())
                self.resto += leido
            elif os.getppid() != PADRE:
                raise SystemExit    # nobody would read the answer

    def analizar(self, fen):
        self.decir("ucinewgame")    # each position from a clean table: its result depends on nothing before it
        self.decir(f"position fen {fen}")
        self.decir(f"go {self.ajustes['go']}")
        return resumir(self.esperar("bestmove", self.ajustes["seconds"]))

    def cerrar(self):
        self.proceso.kill()
        self.proceso.wait()


def leer_info(linea):
    """The numbers, score and line of an "info" line; None when it is not about the first line of play."""
    palabras = linea.split()
    if palabras[:1] != ["info"] or "score" not in palabras or "string" in palabras:
        return None
    info = {"pv": []}
    for lugar, palabra in enumerate(palabras):
        if palabra in ("depth", "seldepth", "nodes", "time", "cp", "mate", "multipv") and lugar + 1 < len(palabras):
            info[palabra] = int(palabras[lugar + 1])
        elif palabra in ("lowerbound", "upperbound"):
            info["bound"] = palabra
        elif palabra == "pv":
            info["pv"] = palabras[lugar + 1:]
            break
    return info if info.pop("multipv", 1) == 1 else None


def resumir(lineas):
    """The result of a search: its last exact line about the move played, and where the first move changed."""
    jugada = (lineas[-1].split() + ["", ""])[1]
    infos = []
    for linea in lineas:
        try:
            infos.append(leer_info(linea))
        except ValueError:
            pass    # a number that is none: the line says nothing
    infos = [info for info in infos if info]
    con_pv = [info for info in infos if info["pv"]]
    buenas = [info for info in con_pv if info["pv"][0] == jugada]
    ultima = ([info for info in buenas if "bound" not in info] or buenas or infos or [{}])[-1]
    camino = []
    for info in con_pv:
        if not camino or camino[-1][3] != info["pv"][0]:
            camino.append([info.get("depth"), info.get("time"), info.get("nodes"), info["pv"][0]])
    resultado = {clave: ultima[clave] for clave in ("cp", "mate", "depth", "seldepth", "bound") if clave in ultima}
    for clave in ("nodes", "time"):    # of the whole search, not of the line
        resultado[clave] = max((info[clave] for info in infos if clave in info), default=None)
    return {"move": jugada, **resultado, "pv": ultima.get("pv") or [jugada], "trail": camino}


def main():
    ajustes = json.loads(base64.b64decode(sys.argv[1]))
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    motor = None
    try:
        motor = Motor(ajustes)
        for fen in sys.argv[2:]:
            for intento in (1, 2):
                try:
                    motor = motor or Motor(ajustes)
                    resultado = {"fen": fen, **motor.analizar(fen)}
                    if intento == 2:
                        resultado["retried"] = True
                    break
                except Muerto as error:
                    resultado = {"fen": fen, "error": f"{error}, twice"}
                    if motor:
                        motor.cerrar()
                    motor = None
            print(json.dumps(resultado), flush=True)
    except (Muerto, OSError) as error:
        sys.exit(f"{ajustes['argv'][0]} on {os.uname().nodename}: {error}")
    finally:
        if motor:
            motor.cerrar()


PADRE = os.getppid()
if __name__ == "__main__":
    main()
