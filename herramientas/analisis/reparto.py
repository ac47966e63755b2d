"""Has positions analysed on all cores and hosts by GNU parallel, and keeps every result in a journal.

The journal is a text of JSON lines that only grows: first the settings, then a result a line. Whatever ends a run,
the next one with the same settings goes on from the results that stand there.
"""

import base64
import fcntl
import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile
import time
import zlib

TANDA_MAX = 64          # positions of one job; an engine starts for each job
TANDAS_POR_PUESTO = 8   # as many jobs for each core, so that none is left with much when the others have ended
SEGURO = 1              # seconds of results that a power cut may cost
ANCHO = 30              # characters of the progress bar
SIN_EFECTO = {"seconds"}   # settings that a later run may change: no result depends on them


class Error(Exception):
    """What keeps the run from beginning or from going on."""


class Diario:
    """The journal: its results by FEN. Only one run at a time may hold it."""

    def __init__(self, nombre, ajustes, repetir_fallos):
        self.fichero = open(nombre, "a+b", buffering=0)     # pylint: disable=consider-using-with
        try:
            fcntl.flock(self.fichero, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except OSError:
            raise Error(f"{nombre}: another run is writing here") from None
        self.guardado = time.monotonic()
        self.fichero.seek(0)
        crudo = self.fichero.read()
        entero = crudo.rfind(b"\n") + 1
        self.fichero.truncate(entero)   # a line cut by a kill or a full disk
        try:
            lineas = [json.loads(linea) for linea in crudo[:entero].splitlines()]
        except ValueError:
            raise Error(f"{nombre}: damaged; move it away to begin anew") from None
        if not lineas:
            self.apuntar(ajustes)
        else:
            claves = sorted((lineas[0].keys() | ajustes.keys()) - SIN_EFECTO)
            otros = ", ".join(f"{clave} {lineas[0].get(clave)}" for clave in claves
                              if lineas[0].get(clave) != ajustes.get(clave))
            if otros:
                raise Error(f"{nombre}: made with other settings ({otros}); choose another folder with -o, "
                            "or use --fresh")
        self.resultados = {linea["fen"]: linea for linea in lineas[1:]
                           if not (repetir_fallos and "error" in linea)}

    def apuntar(self, linea):
        self.fichero.write(json.dumps(linea).encode() + b"\n")
        if time.monotonic() - self.guardado > SEGURO:
            self.guardar()

    def guardar(self):
        os.fsync(self.fichero.fileno())
        self.guardado = time.monotonic()

    def anotar(self, resultado):
        self.resultados[resultado["fen"]] = resultado
        self.apuntar(resultado)


def duracion(segundos):
    minutos, segundos = divmod(int(segundos + 0.5), 60)
    horas, minutos = divmod(minutos, 60)
    return f"{horas}:{minutos:02}:{segundos:02}" if horas else f"{minutos}:{segundos:02}"


class Avance:
    """A bar with the time left on a terminal, else a line at each tenth."""

    def __init__(self, hechas, total):
        self.antes, self.hechas, self.total = hechas, hechas, total
        self.inicio = self.visto = time.monotonic()
        self.decimo = hechas * 10 // max(total, 1)
        self.terminal = sys.stderr.isatty()

    def texto(self):
        pasado = time.monotonic() - self.inicio
        ritmo = (self.hechas - self.antes) / pasado if pasado else 0
        queda = duracion((self.total - self.hechas) / ritmo) if ritmo else "?"
        return f"{self.hechas}/{self.total} ({100 * self.hechas // self.total} %), {ritmo:.1f}/s, {queda} left"

    def otra(self):
        self.hechas += 1
        if self.terminal:
            if time.monotonic() - self.visto > 0.2 or self.hechas == self.total:
                self.visto = time.monotonic()
                lleno = ANCHO * self.hechas // self.total
                print(f"\r[{'#' * lleno}{'.' * (ANCHO - lleno)}] {self.texto()} \x1b[K", end="", file=sys.stderr)
        elif self.hechas * 10 // self.total > self.decimo:
            self.decimo = self.hechas * 10 // self.total
            print(self.texto(), file=sys.stderr)

    def acabar(self):
        if self.terminal and self.hechas > self.antes:
            print(file=sys.stderr)


def orden_parallel(ajustes, args, numero):
    """The command line of GNU parallel. The worker travels in it, so a host needs Python and the engine only."""
    fuente = pathlib.Path(__file__).with_name("trabajador.py").read_bytes()
    programa = base64.b64encode(zlib.compress(fuente)).decode()
    codigo = f'import base64,zlib;exec(zlib.decompress(base64.b64decode("{programa}")))'
    datos = base64.b64encode(json.dumps(ajustes).encode()).decode()
    puestos = (os.cpu_count() or 1) * max(len(args.sshlogin), 1)
    tanda = args.chunk or min(TANDA_MAX, max(1, numero // (puestos * TANDAS_POR_PUESTO)))
    orden = ["parallel", "--will-cite", "--line-buffer", "-N", str(tanda)]
    orden += ["--jobs", args.jobs] if args.jobs else []
    orden += ["--nice", str(args.nice)] if args.nice else []
    for host in args.sshlogin:
        orden += ["--sshlogin", host]
    if args.sshlogin:
        orden += ["--retries", "3"]     # a host may be lost: another takes its jobs
    return orden + shlex.split(args.parallel) + [f"exec python3 -c {shlex.quote(codigo)} {datos} {{}}"]


def parar(proceso):
    """Ends parallel and its jobs: the first signal tells it to begin no more, the second to end those that run."""
    for _ in range(2):
        proceso.terminate()
        time.sleep(0.1)
    try:
        proceso.wait(10)
    except subprocess.TimeoutExpired:
        proceso.kill()


def repartir(fens, diario, ajustes, args):
    """Analyses the positions that the journal does not hold. Interrupted, it leaves nothing running behind."""
    faltan = [fen for fen in fens if fen not in diario.resultados]
    avance = Avance(len(fens) - len(faltan), len(fens))
    if not faltan:
        return
    if avance.antes:
        print(f"{avance.antes} of {len(fens)} positions are in the journal", file=sys.stderr)
    # A session of its own, because an interrupt typed at the terminal shall come here only.
    with tempfile.TemporaryFile() as lista:
        lista.write("\n".join(faltan).encode() + b"\n")
        lista.seek(0)
        with subprocess.Popen(orden_parallel(ajustes, args, len(faltan)), stdin=lista, stdout=subprocess.PIPE,
                              start_new_session=True) as proceso:
            try:
                recoger(proceso, set(faltan), diario, avance)
            except BaseException:
                parar(proceso)
                raise
            finally:
                diario.guardar()
                avance.acabar()


def recoger(proceso, esperadas, diario, avance):
    """Writes parallel's answers to the journal as they come."""
    for linea in proceso.stdout:
        try:
            resultado = json.loads(linea)
            esperadas.remove(resultado["fen"])      # twice, when a host was lost after it had answered
        except (ValueError, TypeError, KeyError):
            continue
        diario.anotar(resultado)
        avance.otra()
    if proceso.wait() and avance.hechas == avance.antes:
        raise Error(f"no position could be analysed: parallel ended with status {proceso.returncode}")
