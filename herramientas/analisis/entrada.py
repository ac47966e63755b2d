"""Reads what is to be analysed: EPD and FEN lines, and the games of PGN collections.

Nothing here stops at bad input: each bad row or game is noted with file, line and reason, and left out.
"""

import bz2
import dataclasses
import gzip
import lzma
import re
import sys
import zlib

import ajedrez

ABRIR = {".gz": gzip.open, ".xz": lzma.open, ".bz2": bz2.open}
FALLOS = (OSError, EOFError, lzma.LZMAError, zlib.error)    # of files that are missing, cut or damaged
SIGNOS = {"!": "$1", "?": "$2", "!!": "$3", "??": "$4", "!?": "$5", "?!": "$6"}
OPERACION = re.compile(r'\s*([A-Za-z_]\w*)((?:\s+(?:"[^"]*"|[^\s;"]+))*)\s*(?:;|$)')
SIGNO_PGN = re.compile(r"""
    (?P<etiqueta>^[ \t]*\[\s*(?P<nombre>\w+)\s+"(?P<valor>(?:[^"\\\n]|\\.)*)"\s*\])
  | (?P<comentario>\{[^}]*\}) | (?P<linea>;[^\n]*) | (?P<escape>^%[^\n]*)
  | (?P<abre>\() | (?P<cierra>\)) | (?P<nag>\$\d+)
  | (?P<resultado>(?:1-0|0-1|1/2-1/2|\*)(?![^\s(){};\[]))
  | (?P<numero>\d+\s*\.[\s.]*|\d+(?=\s|$))
  | (?P<jugada>[^\s(){};$\[\]]+)
  | (?P<ajeno>[^\s])
""", re.VERBOSE | re.MULTILINE)


class Ilegible(Exception):
    """A file that cannot be read; the message names it and says why."""


@dataclasses.dataclass
class Fila:
    """A position by itself: a line of an EPD or FEN file."""
    archivo: str
    linea: int
    fen: str
    nombre: str                     # the id of the row, or file and line
    operaciones: dict               # EPD opcodes as written: name -> text
    buenas: list                    # moves of "bm" and "am" in coordinates
    malas: list


@dataclasses.dataclass
class Jugada:
    """A move of a game's main line."""
    san: str
    coordenadas: str
    fen: str                        # the position after it


@dataclasses.dataclass
class Partida:
    archivo: str
    linea: int
    numero: int                     # of the game in its file, from 1
    etiquetas: dict
    inicial: str = ""               # FEN
    jugadas: list = dataclasses.field(default_factory=list)
    final: str | None = None        # "mate" or "stalemate", when the last position is one
    resultado: str = "*"
    texto: list = dataclasses.field(default_factory=list)   # (kind, text) of everything but tags, in order

    def nombre(self):
        return f"{self.etiquetas.get('White', '?')} - {self.etiquetas.get('Black', '?')}"


@dataclasses.dataclass
class Lectura:
    """All that was read, in order, and what was left out: (file, line, reason)."""
    filas: list = dataclasses.field(default_factory=list)
    partidas: list = dataclasses.field(default_factory=list)
    saltadas: list = dataclasses.field(default_factory=list)

    def posiciones(self):
        """The FEN of each position to search, once each, in order. Ended games need no search at their end."""
        vistas = dict.fromkeys(fila.fen for fila in self.filas)
        for partida in self.partidas:
            fens = [partida.inicial] + [jugada.fen for jugada in partida.jugadas]
            vistas.update(dict.fromkeys(fens[:-1] if partida.final else fens))
        return list(vistas)


def leer_texto(nombre):
    """The text of a file, or of standard input for "-". Old collections are Latin-1, newer files UTF-8."""
    abrir = next((abrir for fin, abrir in ABRIR.items() if nombre.endswith(fin)), open)
    try:
        if nombre == "-":
            crudo = sys.stdin.buffer.read()
        else:
            with abrir(nombre, "rb") as fichero:
                crudo = fichero.read()
    except FALLOS as error:
        raise Ilegible(f"cannot read {nombre}: {getattr(error, 'strerror', None) or error}") from None
    try:
        texto = crudo.decode("utf-8-sig")
    except UnicodeDecodeError:
        texto = crudo.decode("latin-1")
    return texto.replace("\r\n", "\n").replace("\r", "\n")


def leer_fila(archivo, linea, texto):
    campos = texto.split(None, 6)
    contadores = 6 if len(campos) >= 6 and campos[4].isdigit() and campos[5].isdigit() else 4
    resto = texto.split(None, contadores)[contadores:]
    posicion = ajedrez.Posicion.de_fen(" ".join(campos[:contadores]))
    operaciones, lugar = {}, 0
    resto = resto[0].strip() if resto else ""
    while lugar < len(resto):
        operacion = OPERACION.match(resto, lugar)
        if operacion is None:
            raise ajedrez.Error(f"not an EPD operation: {resto[lugar:lugar + 30]}")
        operaciones[operacion[1]] = operacion[2].strip()
        lugar = operacion.end()
    if posicion.terminada():
        raise ajedrez.Error(f"no legal move: {posicion.terminada()}")
    buenas, malas = ([posicion.leer_san(san) for san in operaciones.get(clave, "").split()] for clave in ("bm", "am"))
    nombre = operaciones.get("id", "").strip('"') or f"{archivo}:{linea}"
    return Fila(archivo, linea, posicion.fen(), nombre, operaciones, buenas, malas)


def leer_filas(archivo, texto, lectura):
    for linea, fila in enumerate(texto.split("\n"), 1):
        if fila.strip() and not fila.startswith("#"):
            try:
                lectura.filas.append(leer_fila(archivo, linea, fila))
            except ajedrez.Error as error:
                lectura.saltadas.append((archivo, linea, str(error)))


class LectorPgn:
    """Goes through a collection sign by sign; a game ends at its result, or where the tags of the next begin."""

    def __init__(self, archivo, lectura):
        self.archivo, self.lectura = archivo, lectura
        self.numero = 0
        self.nueva()

    def nueva(self):
        self.partida = None
        self.posicion = None            # before the next move of the main line
        self.error = None               # (line, reason) of the first fault
        self.abiertos = 0               # parentheses
        self.variante = 0               # where the text of the outermost one begins

    def empezar(self, linea):
        if self.partida is None:
            self.numero += 1
            self.partida = Partida(self.archivo, linea, self.numero, {})

    def fallar(self, linea, motivo):
        self.error = self.error or (linea, motivo)

    def colocar(self, linea):
        """Sets the first position up, once the tags are read."""
        variante = self.partida.etiquetas.get("Variant", "Standard").lower()
        if variante not in ("standard", "chess", "normal", "from position", "fromposition"):
            self.fallar(linea, f"variant {variante}")
        try:
            self.posicion = ajedrez.Posicion.de_fen(self.partida.etiquetas.get("FEN", ajedrez.INICIAL))
        except ajedrez.Error as error:
            self.fallar(self.partida.linea, str(error))
            self.posicion = ajedrez.Posicion.de_fen(ajedrez.INICIAL)
        self.partida.inicial = self.posicion.fen()

    def jugar(self, linea, texto):
        san = texto.rstrip("!?")
        if self.error:
            return
        if san:     # else a mark that stands apart from its move
            try:
                coordenadas = self.posicion.leer_san(san)
            except ajedrez.Error as error:
                self.fallar(linea, f"{error} after {len(self.partida.jugadas)} half-moves")
                return
            san = self.posicion.san(coordenadas)
            self.posicion = self.posicion.jugar(coordenadas)
            self.partida.jugadas.append(Jugada(san, coordenadas, self.posicion.fen()))
            self.partida.texto.append(("jugada", san))
        signo = SIGNOS.get(texto[len(texto.rstrip("!?")):])
        if signo:
            self.partida.texto.append(("nag", signo))

    def acabar(self, linea, resultado=None):
        partida = self.partida
        if partida is not None:
            if self.posicion is None:
                self.colocar(linea)
            if self.abiertos:
                self.fallar(linea, "a variation is not closed")
            partida.resultado = resultado or partida.etiquetas.get("Result", "*")
            partida.final = self.posicion.terminada()
            if not self.error and not partida.jugadas and partida.final:
                self.fallar(linea, f"no legal move: {partida.final}")
            if self.error:
                motivo = f"game {partida.numero} ({partida.nombre()}): {self.error[1]}"
                self.lectura.saltadas.append((self.archivo, self.error[0], motivo))
            else:
                self.lectura.partidas.append(partida)
        self.nueva()

    def leer(self, texto):
        linea, anterior = 1, 0
        for signo in SIGNO_PGN.finditer(texto):
            linea, anterior = linea + texto.count("\n", anterior, signo.start()), signo.start()
            clase = signo.lastgroup if signo["nombre"] is None else "etiqueta"
            if clase == "escape":
                continue
            if clase == "etiqueta":
                if self.posicion is not None:   # the game before has no result
                    self.acabar(linea)
                self.empezar(linea)
                self.partida.etiquetas[signo["nombre"]] = re.sub(r"\\(.)", r"\1", signo["valor"])
                continue
            self.empezar(linea)
            if self.posicion is None:
                self.colocar(linea)
            self.signo(clase, signo, linea, texto)
        self.acabar(linea)

    def signo(self, clase, signo, linea, texto):
        """One sign of the moves."""
        if clase == "abre":
            self.abiertos += 1
            if self.abiertos == 1:
                self.variante = signo.start()
        elif clase == "cierra":
            self.abiertos -= 1
            if self.abiertos < 0:
                self.fallar(linea, "a variation is closed that was not opened")
                self.abiertos = 0
            elif self.abiertos == 0:
                self.partida.texto.append(("variante", " ".join(texto[self.variante:signo.end()].split())))
        elif self.abiertos:
            pass
        elif clase == "resultado":
            self.acabar(linea, signo[0])
        elif clase == "jugada":
            self.jugar(linea, signo[0])
        elif clase in ("comentario", "linea"):
            limpio = signo[0].strip("{};").replace("}", "").strip()
            self.partida.texto.append(("comentario", " ".join(limpio.split())))
        elif clase == "nag":
            self.partida.texto.append(("nag", signo[0]))
        elif clase == "ajeno":
            self.fallar(linea, f"unexpected {signo[0]}")


def leer(nombres):
    """Reads all files. A collection is known by its name, or by a tag or move number where it begins."""
    lectura = Lectura()
    for nombre in nombres:
        texto = leer_texto(nombre)
        if re.search(r"\.pgn(\.\w+)?$", nombre) or re.match(r"\s*(\[\s*\w+\s+\"|\{|1\.)", texto):
            LectorPgn(nombre, lectura).leer(texto)
        else:
            leer_filas(nombre, texto, lectura)
    return lectura
