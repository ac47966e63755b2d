"""A UCI engine as a child process, every wait of which has an end."""

import os
import select
import signal
import subprocess
import sys
import tempfile
import time

sys.dont_write_bytecode = True      # nothing of ours beside the sources
RAIZ = os.path.dirname(os.path.dirname(os.path.dirname(os.path.realpath(__file__))))
sys.path.insert(0, os.path.join(RAIZ, "herramientas", "analisis"))
TAMREK = os.path.join(RAIZ, "build", "release", "tamrek")
SANEADO = os.path.join(RAIZ, "build", "asan", "tamrek")     # recounts after each move, with sanitizers
COMPLETO = "--uci-completo"
ARRANQUE = 60       # seconds for an engine to get ready: large tables, busy machines
DESPEDIDA = 10      # seconds to end after "quit"


class Muerto(Exception):
    """The engine ended."""


class Colgado(Exception):
    """The engine has not answered in time."""


def procesador(proceso="self"):
    """Milliseconds that a process (by its number) has had a processor, and has waited for one while ready to run."""
    with open(f"/proc/{proceso}/schedstat", encoding="ascii") as datos:
        trabajo, espera, _ = datos.read().split()
    return int(trabajo) / 1e6, int(espera) / 1e6


class Motor:
    """argv: program and arguments; opciones: UCI options by name; carpeta: where it runs, None = here."""

    def __init__(self, argv, opciones=None, carpeta=None):
        self.argv = argv
        self.resto = b""
        self.dicho = []     # what it was told, for a report
        self.quejas = tempfile.TemporaryFile()      # its standard error
        self.proceso = subprocess.Popen(argv, stdin=subprocess.PIPE, stdout=subprocess.PIPE, cwd=carpeta,
                                        stderr=self.quejas, bufsize=0, start_new_session=True)
        try:
            self.decir("uci")
            self.esperar("uciok", ARRANQUE)
            for nombre, valor in (opciones or {}).items():
                self.decir(f"setoption name {nombre} value {valor}")
            self.listo()
        except (Muerto, Colgado):
            self.matar()
            raise

    def decir(self, texto):
        self.dicho.append(texto)
        try:
            self.proceso.stdin.write(texto.encode() + b"\n")
        except OSError:
            raise Muerto(self.causa()) from None

    def esperar(self, palabra, segundos):
        """The lines up to the first one that begins with a word."""
        lineas, limite = [], time.monotonic() + segundos
        while True:
            while b"\n" in self.resto:
                linea, _, self.resto = self.resto.partition(b"\n")
                lineas.append(linea.decode("utf-8", "replace").rstrip())
                if lineas[-1].split(" ", 1)[0] == palabra:
                    return lineas
            queda = limite - time.monotonic()
            if queda <= 0 or not select.select([self.proceso.stdout], [], [], queda)[0]:
                raise Colgado(f"no {palabra} within {segundos:g} s")
            leido = os.read(self.proceso.stdout.fileno(), 65536)
            if not leido:
                raise Muerto(self.causa())
            self.resto += leido

    def listo(self):
        self.decir("isready")
        return self.esperar("readyok", ARRANQUE)

    def jugar(self, orden, segundos):
        """The move it answers a "go" with, the milliseconds from sending the line to its answer, and its lines."""
        empezado = time.monotonic()
        self.decir(orden)
        lineas = self.esperar("bestmove", segundos)
        gastados = (time.monotonic() - empezado) * 1000
        palabras = lineas[-1].split()
        return palabras[1] if len(palabras) > 1 else "", gastados, lineas

    def causa(self):
        """How it ended, with the last words of a sanitizer or an assertion."""
        try:
            codigo = self.proceso.wait(DESPEDIDA)
        except subprocess.TimeoutExpired:
            return "closed its output"
        self.quejas.seek(0)
        queja = self.quejas.read(2000).decode("utf-8", "replace").strip()
        return (f"signal {signal.Signals(-codigo).name}" if codigo < 0 else f"status {codigo}") + (
            f": {queja}" if queja else "")

    def cerrar(self):
        """Says "quit" and returns what was wrong with its end, "" for nothing."""
        try:
            self.decir("quit")
            self.proceso.stdin.close()
            return self.causa() if self.proceso.wait(DESPEDIDA) != 0 else ""
        except Muerto as error:
            return str(error)
        except subprocess.TimeoutExpired:
            return "does not end after quit"
        finally:
            self.matar()

    def matar(self):
        """Ends the process and its children, which a front end may have."""
        try:
            os.killpg(self.proceso.pid, signal.SIGKILL)
        except (ProcessLookupError, PermissionError):
            pass
        self.proceso.wait()
        for tubo in (self.proceso.stdin, self.proceso.stdout, self.quejas):
            tubo.close()

    def trabajo(self):
        """Milliseconds of a processor that it has had."""
        return procesador(self.proceso.pid)[0]

    def espera(self):
        """Milliseconds that it and we, who read its answer, have waited for a processor."""
        return procesador(self.proceso.pid)[1] + procesador()[1]

    def uso(self):
        """Resident kilobytes and open descriptors."""
        with open(f"/proc/{self.proceso.pid}/status", encoding="ascii") as estado:
            kilos = next(int(linea.split()[1]) for linea in estado if linea.startswith("VmRSS:"))
        return kilos, len(os.listdir(f"/proc/{self.proceso.pid}/fd"))
