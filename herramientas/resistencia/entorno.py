"""What goes wrong around the engine: a table of surroundings, each with what is expected. Argument: "todo" for every
size of the limits and every byte of the sessions, else a part of them is tried."""

import contextlib
import os
import resource
import shutil
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

from motor import COMPLETO, RAIZ, TAMREK
from partidas import TABLAS

PLAZO = 60              # seconds after which a run counts as hanging, on a busy machine too
NADIE = 65534           # user without rights
KILO, MEGA = 1 << 10, 1 << 20
LIBRO = "e2e4 e7e5 g1f3 b8c6"
SESION = ("uci\nsetoption name Hash value 32\nsetoption name OwnBook value true\nisready\nucinewgame\n"
          "position startpos\ngo depth 3\nbook\nposition startpos moves a2a3\ngo depth 3\nperft 2\n"
          f"setoption name GaviotaTbPath value {TABLAS}\nsetoption name GaviotaTbUse value true\nisready\n"
          "position fen 8/8/4k3/8/8/3R4/8/4K3 w - - 0 1\ngo depth 4\nquit\n")
PARTIDA = "setoption name OwnBook value true\nisready\nposition startpos\ngo depth 3\nisready\n"
ANALISIS = "position startpos\ngo infinite\n"
MODOS = ((), (COMPLETO,))


class Fallo(Exception):
    """The engine did not do what is expected; the message says what it did."""


class Corrida:
    """A run of the engine: its status (negative: a signal) and what it printed."""

    def __init__(self, argumentos=(), entrada="", *, antes=None, **mas):
        mas.setdefault("stdout", subprocess.PIPE)
        mas.setdefault("stdin", subprocess.PIPE)
        if mas["stdin"] != subprocess.PIPE:
            entrada = None
        datos = entrada.encode() if entrada is not None else None
        with subprocess.Popen([mas.pop("motor", TAMREK), *argumentos], stderr=subprocess.PIPE, preexec_fn=antes,
                              **mas) as proceso:
            try:
                salida, queja = proceso.communicate(datos, PLAZO)
            except subprocess.TimeoutExpired:
                proceso.kill()
                raise Fallo(f"hangs: {argumentos}, {entrada!r:.60}") from None
        self.estado, self.texto = proceso.returncode, (salida or b"").decode("latin-1")
        self.queja = queja.decode("latin-1")

    def exigir(self, *textos, estado=0):
        """The texts in this order, and the status."""
        if self.estado != estado:
            raise Fallo(f"{estado_en_palabras(self.estado)} {self.queja:.200}")
        lugar = 0
        for texto in textos:
            lugar = self.texto.find(texto, lugar)
            if lugar < 0:
                raise Fallo(f"no {texto!r} in its place")
            lugar += len(texto)
        return self


def estado_en_palabras(estado):
    return f"signal {signal.Signals(-estado).name}" if estado < 0 else f"status {estado}"


def limitar(recurso, *valores):
    """For a child: sets a limit of the system, soft and hard."""
    return lambda: resource.setrlimit(recurso, (valores[0], valores[-1]))


def cada(lista, todo, partes):
    """All of a list, or so many of them, evenly spread."""
    return lista if todo else lista[::max(1, len(lista) // partes)]


# --- Output ---

def salida_cerrada(_todo):
    for argumentos in (*MODOS, ("bench", "1"), ("--help",)):
        Corrida(argumentos, SESION, antes=lambda: os.close(1)).exigir()


def salida_llena(_todo):
    with open("/dev/full", "wb") as lleno:
        for argumentos in (*MODOS, ("bench", "1")):
            Corrida(argumentos, SESION, stdout=lleno).exigir()


def salida_limitada(_todo):
    for argumentos in (*MODOS, ("bench", "1")):
        with tempfile.TemporaryFile() as fichero:
            Corrida(argumentos, SESION, stdout=fichero, antes=limitar(resource.RLIMIT_FSIZE, 100)).exigir()


def lector_ido(todo):
    """The reader goes away after so many bytes, while the engine waits for input, searches or writes."""
    for argumentos in MODOS:
        for octetos in cada(list(range(1, 1000, 9)), todo, 12):
            with subprocess.Popen([TAMREK, *argumentos], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as proceso:
                proceso.stdin.write((SESION.replace("quit\n", "") + "position startpos\ngo depth 7\n").encode())
                proceso.stdin.flush()
                os.read(proceso.stdout.fileno(), octetos)
                proceso.stdout.close()
                with contextlib.suppress(BrokenPipeError):
                    proceso.stdin.write(b"uci\n" * 100)
                    proceso.stdin.flush()
                esperar(proceso, 0)


def lector_parado(_todo):
    """Nobody reads for a while, so that the pipe fills."""
    ordenes = "setoption name ShowPv value Full\n" + "position startpos\ngo depth 5\nperft 1\n" * 40 + "isready\n"
    for argumentos in MODOS:
        with subprocess.Popen([TAMREK, *argumentos], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as proceso:
            proceso.stdin.write(ordenes.encode())
            proceso.stdin.close()
            time.sleep(1)
            if b"readyok" not in proceso.stdout.read():
                raise Fallo("lines are lost")
            esperar(proceso, 0)


def esperar(proceso, estado):
    try:
        if proceso.wait(PLAZO) != estado:
            raise Fallo(estado_en_palabras(proceso.returncode))
    except subprocess.TimeoutExpired:
        proceso.kill()
        raise Fallo("hangs") from None


# --- Input ---

def entrada_cortada(todo):
    with carpeta_con_libro() as carpeta:
        for argumentos in MODOS:
            sesion = SESION + ANALISIS if argumentos else SESION
            sesion = sesion.replace("quit\n", "")
            for fin in cada(list(range(len(sesion) + 1)), todo, 25):
                Corrida(argumentos, sesion[:fin], cwd=carpeta).exigir()


def entrada_cerrada(_todo):
    for argumentos in MODOS:
        Corrida(argumentos, antes=lambda: os.close(0)).exigir()
        descriptor = os.open(".", os.O_RDONLY)
        Corrida(argumentos, stdin=descriptor).exigir()      # a folder
        os.close(descriptor)


def ruido(_todo):
    for argumentos in MODOS:
        for octetos in (b"\0" * 200000, b"\xff" * 200000, b"go " * 60000 + b"\n", os.urandom(100000)):
            with tempfile.TemporaryFile() as fichero:
                fichero.write(octetos + b"\nquit\n")
                fichero.seek(0)
                Corrida(argumentos, stdin=fichero).exigir()


# --- Signals ---

def senales(_todo):
    """Whoever ends it by a signal gets what is asked for, at once; a broken pipe is no reason to end by one."""
    for argumentos in MODOS:
        for ordenes in ("isready\n", ANALISIS):
            for senal in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP, signal.SIGPIPE):
                with subprocess.Popen([TAMREK, *argumentos], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as proceso:
                    proceso.stdin.write(ordenes.encode() + b"isready\n")
                    proceso.stdin.flush()
                    os.read(proceso.stdout.fileno(), 1)
                    proceso.send_signal(senal)
                    if senal == signal.SIGPIPE:
                        proceso.stdin.write(b"stop\nquit\n")
                        proceso.stdin.flush()
                        proceso.stdin.write(b"quit\n")
                        proceso.stdin.close()
                        proceso.stdout.read()
                        esperar(proceso, 0)
                    else:
                        esperar(proceso, -senal)


def detenido(_todo):
    """Stopped and continued, as a shell does with its jobs, with a search and with a wait for input."""
    for argumentos in MODOS:
        with subprocess.Popen([TAMREK, *argumentos], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as proceso:
            for ordenes in (b"isready\n", b"position startpos\ngo depth 6\n"):
                proceso.stdin.write(ordenes)
                proceso.stdin.flush()
                proceso.send_signal(signal.SIGSTOP)
                proceso.send_signal(signal.SIGCONT)
            proceso.stdin.close()
            if b"bestmove" not in proceso.stdout.read():
                raise Fallo("no bestmove")
            esperar(proceso, 0)


# --- Limits ---

def sesion_bajo_limite(argumentos, carpeta, recurso, limite):
    """With what is left the engine works or says what is missing. Returns False where the system cannot start it."""
    antes = limitar(recurso, limite)
    corrida = Corrida(argumentos, SESION, cwd=carpeta, antes=antes)
    if corrida.estado != 0 and Corrida(("--version",), antes=antes).estado != 0:
        return False
    if corrida.estado != 0:
        raise Fallo(f"{limite}: {estado_en_palabras(corrida.estado)} {corrida.queja:.200}")
    return True


def bajo_limites(recurso, limites):
    with carpeta_con_libro() as carpeta:
        arrancan = [sesion_bajo_limite(argumentos, carpeta, recurso, limite)
                    for argumentos in MODOS for limite in limites]
    if not any(arrancan):
        raise Fallo("no limit left room to start")


def memoria_limitada(todo):
    bajo_limites(resource.RLIMIT_AS, cada(list(range(4 * MEGA, 320 * MEGA, 128 * KILO)), todo, 25))


def ficheros_limitados(todo):
    bajo_limites(resource.RLIMIT_NOFILE, cada(list(range(32)), todo, 16))


def pila_limitada(_todo):
    for argumentos in (*MODOS, ("bench", "4")):
        Corrida(argumentos, SESION, antes=limitar(resource.RLIMIT_STACK, MEGA)).exigir()


def sin_escribir(_todo):
    """No byte may be written to any file: not even the empty book comes about."""
    for argumentos in MODOS:
        with carpeta_con_libro() as carpeta:
            Corrida(argumentos, SESION, cwd=carpeta, antes=limitar(resource.RLIMIT_FSIZE, 0)).exigir("bestmove e2e4")


# --- Books ---

@contextlib.contextmanager
def carpeta_con_libro(libro=LIBRO):
    """A folder of its own, which every user may enter, with a program and a book."""
    with tempfile.TemporaryDirectory() as carpeta:
        os.chmod(carpeta, 0o777)
        shutil.copy(TAMREK, carpeta)
        if libro:
            escribir_libro(os.path.join(carpeta, "Book.db"), libro)
        yield carpeta
        for lugar, _, _ in os.walk(carpeta):
            os.chmod(lugar, 0o777)


def escribir_libro(ruta, *lineas):
    with contextlib.closing(sqlite3.connect(ruta)) as base, base:
        base.execute("create table Book (Partida text)")
        base.executemany("insert into Book values (?)", [(linea,) for linea in lineas] * 50)
    os.chmod(ruta, 0o666)


def con_libro(preparar, *esperado, libro=LIBRO, usuario=None):
    """A game and "book" in both modes in a folder that preparar(path of the book) has changed. esperado: texts of the
    answer by default."""
    for argumentos in MODOS:
        with carpeta_con_libro(libro) as carpeta:
            ruta = os.path.join(carpeta, "Book.db")
            with preparar(ruta) or contextlib.nullcontext():
                corrida = Corrida(["--semilla", "1", *argumentos], PARTIDA + "book\nisready\n", cwd=carpeta,
                                  motor=os.path.join(carpeta, "tamrek"), user=usuario)
                corrida.exigir("readyok", "bestmove ", "readyok", "readyok")
                if not argumentos:
                    corrida.exigir(*esperado)


def libro_bloqueado(_todo):
    @contextlib.contextmanager
    def bloquear(ruta):
        with contextlib.closing(sqlite3.connect(ruta, isolation_level=None)) as base:
            base.execute("begin exclusive")
            yield
    con_libro(bloquear)


def libro_cambiado(_todo):
    """Replaced, removed and written to between moves of one game and another."""
    for argumentos in MODOS:
        with carpeta_con_libro() as carpeta, subprocess.Popen(
                [os.path.join(carpeta, "tamrek"), "--semilla", "1", *argumentos], stdin=subprocess.PIPE,
                stdout=subprocess.PIPE, cwd=carpeta) as proceso:
            ruta, vistas = os.path.join(carpeta, "Book.db"), []
            for linea in (LIBRO, "d2d4 d7d5", None, "c2c4 e7e5"):
                if os.path.exists(ruta):
                    os.unlink(ruta)
                if linea:
                    escribir_libro(ruta + ".nuevo", linea)
                    os.replace(ruta + ".nuevo", ruta)
                proceso.stdin.write(b"ucinewgame\n" + PARTIDA.encode())
                proceso.stdin.flush()
                texto = b""
                while texto.count(b"readyok") < 2:
                    leido = os.read(proceso.stdout.fileno(), 4096)
                    if not leido:
                        raise Fallo("ends")
                    texto += leido
                vistas.append(texto.partition(b"bestmove ")[2][:4].decode())
            proceso.stdin.close()
            esperar(proceso, 0)
        if [vistas[0], vistas[1], vistas[3]] != ["e2e4", "d2d4", "c2c4"]:
            raise Fallo(f"moves {vistas}")


def sustituir(crear):
    """A preparation that puts something else in the place of the book."""
    def preparar(ruta):
        os.unlink(ruta)
        crear(ruta)
    return lambda _todo: con_libro(preparar)


def escribir(octetos):
    def crear(ruta):
        with open(ruta, "wb") as fichero:
            fichero.write(octetos)
    return crear


def libro_cortado(todo):
    for parte in cada(list(range(0, 8192, 512)), todo, 5):
        con_libro(lambda ruta, parte=parte: os.truncate(ruta, parte))


def libro_ilegible(_todo):
    con_libro(lambda ruta: os.chmod(ruta, 0), "Libro de apertura cargado: No.", usuario=usuario_sin_derechos())


def libro_de_solo_lectura(_todo):
    con_libro(lambda ruta: os.chmod(ruta, 0o444), "bestmove e2e4", usuario=usuario_sin_derechos())


def carpeta_de_solo_lectura(_todo):
    con_libro(lambda ruta: os.chmod(os.path.dirname(ruta), 0o555), "bestmove e2e4", usuario=usuario_sin_derechos())
    con_libro(lambda ruta: os.chmod(os.path.dirname(ruta), 0o555), "Libro de apertura cargado: No.", libro="",
              usuario=usuario_sin_derechos())


def usuario_sin_derechos():
    return NADIE if os.getuid() == 0 else None


def diario_ajeno(_todo):
    """A program that was writing has died and left its journal."""
    con_libro(lambda ruta: escribir(b"\xd9\xd5\x05\xf9\x20\xa1\x63\xd7" + bytes(504))(ruta + "-journal"))
    con_libro(lambda ruta: escribir(os.urandom(4096))(ruta + "-wal"))


def diario_tuberia(_todo):
    con_libro(lambda ruta: os.mkfifo(ruta + "-journal"))


def sistema_de_solo_lectura(_todo):
    """Needs the right to mount."""
    prueba = subprocess.run(["unshare", "-m", "true"], stderr=subprocess.DEVNULL, check=False)
    if prueba.returncode != 0:
        raise Saltado("no right to mount here")
    for argumentos in MODOS:
        with carpeta_con_libro() as carpeta:
            guion = 'mount --bind "$1" "$1" && mount -o remount,ro,bind "$1" && cd "$1" && shift && exec "$@"'
            Corrida(["-m", "sh", "-c", guion, "sh", carpeta, "./tamrek", *argumentos], PARTIDA + "book\n",
                    motor="unshare").exigir("bestmove e2e4")


class Saltado(Exception):
    """The row cannot be tried here."""


FILAS = (   # surroundings, what is expected, procedure
    ("output closed", "ends, status 0", salida_cerrada),
    ("output on a full disk", "goes on, status 0", salida_llena),
    ("output at the file size limit", "ends, status 0", salida_limitada),
    ("reader gone at any point", "ends, status 0", lector_ido),
    ("reader that stops reading", "waits, no line lost", lector_parado),
    ("input ended at any point", "ends, status 0", entrada_cortada),
    ("input closed, or a folder", "ends, status 0", entrada_cerrada),
    ("input of noise", "ignored, status 0", ruido),
    ("TERM, INT, HUP; PIPE", "ends by it at once; ignored", senales),
    ("stopped and continued", "goes on, status 0", detenido),
    ("address space, every size", "works or says what is missing", memoria_limitada),
    ("open files, every number", "works or says what is missing", ficheros_limitados),
    ("stack of 1 MB", "works", pila_limitada),
    ("no file may be written", "plays from the book", sin_escribir),
    ("book locked by a writer", "answers", libro_bloqueado),
    ("book replaced between games", "plays from the new one", libro_cambiado),
    ("book cut anywhere", "answers", libro_cortado),
    ("book empty", "answers", sustituir(escribir(b""))),
    ("book of noise", "answers", sustituir(escribir(os.urandom(20000)))),
    ("book a folder", "answers", sustituir(os.mkdir)),
    ("book a pipe", "answers", sustituir(os.mkfifo)),
    ("book a link to itself", "answers", sustituir(lambda ruta: os.symlink(ruta, ruta))),
    ("book a link to a device", "answers", sustituir(lambda ruta: os.symlink("/dev/zero", ruta))),
    ("book unreadable", "says so and answers", libro_ilegible),
    ("book read-only", "plays from it", libro_de_solo_lectura),
    ("book in a read-only folder", "plays from it", carpeta_de_solo_lectura),
    ("book on a read-only file system", "plays from it", sistema_de_solo_lectura),
    ("journals left by a dead writer", "answers", diario_ajeno),
    ("journal of the book a pipe", "answers", diario_tuberia),
)


def main():
    todo = sys.argv[1:] == ["todo"]
    cuenta = {"passed": 0, "failed": 0, "skipped": 0}
    os.chdir(RAIZ)
    for senal in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
        if signal.getsignal(senal) == signal.SIG_IGN:   # as nohup leaves it, and the engines would inherit
            signal.signal(senal, signal.SIG_DFL)
    for nombre, esperado, fila in FILAS:
        empezado, resultado, causa = time.monotonic(), "passed", ""
        try:
            fila(todo)
        except Fallo as error:
            resultado, causa = "failed", f": {error}"
        except Saltado as error:
            resultado, causa = "skipped", f": {error}"
        cuenta[resultado] += 1
        print(f"{nombre:32} {esperado:30} {time.monotonic() - empezado:5.1f} s  {resultado}{causa}", flush=True)
    saltados = f", {cuenta['skipped']} skipped" if cuenta["skipped"] else ""
    print(f"{cuenta['passed']} passed, {cuenta['failed']} failed{saltados}")
    return 1 if cuenta["failed"] else 0


if __name__ == "__main__":
    sys.exit(main())
