"""The rules of chess for the tools: FEN, legal moves, and moves in the notation of PGN.

Squares count from 0 = a8 to 63 = h1. Pieces are the letters of FEN, "." is an empty square. A move is a text of
coordinates, as in UCI ("e2e4", "e7e8q"); castling is the king's move of two squares.
"""

import re

INICIAL = "rnbqkbnr/pppppppp/8/8/8/8/PPPPPPPP/RNBQKBNR w KQkq - 0 1"
NOMBRES = [columna + fila for fila in "87654321" for columna in "abcdefgh"]
NUMEROS = {nombre: numero for numero, nombre in enumerate(NOMBRES)}
RECTAS = ((0, -1), (0, 1), (-1, 0), (1, 0))           # (rows down, files to the right)
DIAGONALES = ((-1, -1), (-1, 1), (1, -1), (1, 1))
SALTOS = ((-2, -1), (-2, 1), (-1, -2), (-1, 2), (1, -2), (1, 2), (2, -1), (2, 1))
PASOS = {"N": SALTOS, "B": DIAGONALES, "R": RECTAS, "Q": RECTAS + DIAGONALES, "K": RECTAS + DIAGONALES}
# The rook's road of each castling, and the letters that a move from or to a square takes from the rights.
ENROQUES = {"e1g1": ("K", "h1", "f1"), "e1c1": ("Q", "a1", "d1"), "e8g8": ("k", "h8", "f8"), "e8c8": ("q", "a8", "d8")}
PIERDE = {"e1": "KQ", "h1": "K", "a1": "Q", "e8": "kq", "h8": "k", "a8": "q"}
SAN = re.compile(r"([NBRQK]?)([a-h]?)([1-8]?)[-x:]?([a-h][1-8])=?\(?([NBRQnbrq]?)\)?")


class Error(ValueError):
    """Text that is no position or no legal move; the message says why."""


def es_blanca(ficha):
    return ficha.isupper()


def rayo(casilla, paso, largo):
    """The squares from one in a direction, up to the edge or the given number of steps."""
    fila, columna = divmod(casilla, 8)
    for _ in range(largo):
        fila, columna = fila + paso[0], columna + paso[1]
        if not (0 <= fila < 8 and 0 <= columna < 8):
            return
        yield fila * 8 + columna


RAYOS = {tipo: [[tuple(rayo(casilla, paso, 1 if tipo in "NK" else 7)) for paso in pasos] for casilla in range(64)]
         for tipo, pasos in PASOS.items()}


class Posicion:
    """A position; nothing changes it once made."""

    def __init__(self, casillas, blancas, enroques, al_paso, reglas):
        self.casillas = casillas    # list of 64 letters
        self.blancas = blancas      # True when White is to move
        self.enroques = enroques    # letters of FEN, empty when none
        self.al_paso = al_paso      # square that a double step has just passed, or None
        self.reglas = reglas        # (half-moves since the last capture or pawn move, number of the move)

    @staticmethod
    def de_fen(texto):
        """Reads a FEN; its last two fields may be missing, as in EPD. Error when no game can go on from it."""
        campos = texto.split()
        if not 4 <= len(campos) <= 6:
            raise Error("not a FEN: it needs 4 to 6 fields")
        casillas = list(re.sub(r"\d", lambda cifra: "." * int(cifra[0]), campos[0].replace("/", "")))
        filas = campos[0].split("/")
        if len(filas) != 8 or len(casillas) != 64 or any(
                sum(int(signo) if signo.isdigit() else 1 for signo in fila) != 8 for fila in filas):
            raise Error("not a FEN: the board is not 8 rows of 8 squares")
        if set(casillas) - set(".PNBRQKpnbrqk"):
            raise Error("not a FEN: unknown piece")
        if casillas.count("K") != 1 or casillas.count("k") != 1:
            raise Error("a side needs one king")
        if set("Pp") & set(casillas[:8] + casillas[56:]):
            raise Error("a pawn stands on the first or last rank")
        if campos[1] not in ("w", "b"):
            raise Error("not a FEN: the side to move is w or b")
        if not re.fullmatch(r"-|K?Q?k?q?", campos[2]):
            raise Error("not a FEN: castling is a choice of KQkq, or -")
        if not re.fullmatch(r"-|[a-h][36]", campos[3]):
            raise Error("not a FEN: bad en passant square")
        if not all(re.fullmatch(r"\d{1,4}", numero) for numero in campos[4:]):
            raise Error("not a FEN: bad move counters")
        reglas = tuple(map(int, campos[4:])) + (0, 1)[len(campos) - 4:]
        posicion = Posicion(casillas, campos[1] == "w", campos[2].replace("-", ""), NUMEROS.get(campos[3]), reglas)
        posicion.enroques = "".join(letra for letra in posicion.enroques if posicion._enroque_posible(letra))
        if posicion.atacada(posicion.rey(not posicion.blancas), posicion.blancas):
            raise Error("the side that is not to move stands in check")
        return posicion

    def _enroque_posible(self, letra):
        """Rights without king and rook on their squares are dropped: engines differ on what they would mean."""
        movimiento = next(clave for clave, (derecho, _, _) in ENROQUES.items() if derecho == letra)
        rey, torre = ("K", "R") if letra.isupper() else ("k", "r")
        return (self.casillas[NUMEROS[movimiento[:2]]] == rey
                and self.casillas[NUMEROS[ENROQUES[movimiento][1]]] == torre)

    def epd(self):
        """The first four fields of FEN."""
        tablero = "/".join("".join(self.casillas[fila:fila + 8]) for fila in range(0, 64, 8))
        tablero = re.sub(r"\.+", lambda vacias: str(len(vacias[0])), tablero)
        al_paso = "-" if self.al_paso is None else NOMBRES[self.al_paso]
        return f"{tablero} {'w' if self.blancas else 'b'} {self.enroques or '-'} {al_paso}"

    def fen(self):
        return f"{self.epd()} {self.reglas[0]} {self.reglas[1]}"

    def rey(self, blanco):
        return self.casillas.index("K" if blanco else "k")

    def en_jaque(self):
        return self.atacada(self.rey(self.blancas), not self.blancas)

    def atacada(self, casilla, por_blancas):
        """Whether a side attacks a square."""
        for tipo, rayos in RAYOS.items():
            ficha = tipo if por_blancas else tipo.lower()
            for camino in rayos[casilla]:
                for lugar in camino:
                    if self.casillas[lugar] != ".":
                        if self.casillas[lugar] == ficha:
                            return True
                        break
        ficha, detras = ("P", 8) if por_blancas else ("p", -8)
        return any(0 <= casilla + detras + lado < 64 and abs((casilla + lado) % 8 - casilla % 8) == 1
                   and self.casillas[casilla + detras + lado] == ficha for lado in (-1, 1))

    def _peon(self, casilla):
        adelante, inicio, fin = (-8, 6, 0) if self.blancas else (8, 1, 7)
        llegadas = []
        if self.casillas[casilla + adelante] == ".":
            llegadas.append(casilla + adelante)
            if casilla // 8 == inicio and self.casillas[casilla + 2 * adelante] == ".":
                llegadas.append(casilla + 2 * adelante)
        for lado in (-1, 1):
            lugar = casilla + adelante + lado
            if abs(lugar % 8 - casilla % 8) == 1:
                ficha = self.casillas[lugar]
                if ficha != "." and es_blanca(ficha) != self.blancas or lugar == self.al_paso and ficha == ".":
                    llegadas.append(lugar)
        for lugar in llegadas:
            for corona in "qrbn" if lugar // 8 == fin else ("",):
                yield NOMBRES[casilla] + NOMBRES[lugar] + corona

    def _enroques(self):
        for movimiento, (letra, torre, paso) in ENROQUES.items():
            if letra not in self.enroques or letra.isupper() != self.blancas:
                continue
            rey, esquina = NUMEROS[movimiento[:2]], NUMEROS[torre]
            entre = range(min(rey, esquina) + 1, max(rey, esquina))
            if all(self.casillas[lugar] == "." for lugar in entre) and not any(
                    self.atacada(lugar, not self.blancas) for lugar in (rey, NUMEROS[paso])):
                yield movimiento    # legality looks at the square of arrival

    def _posibles(self, tipos):
        """Moves of the pieces of these kinds, whether or not they leave the king in check."""
        for casilla, ficha in enumerate(self.casillas):
            tipo = ficha.upper()
            if ficha == "." or es_blanca(ficha) != self.blancas or tipo not in tipos:
                continue
            if tipo == "P":
                yield from self._peon(casilla)
                continue
            for camino in RAYOS[tipo][casilla]:
                for lugar in camino:
                    if self.casillas[lugar] == "." or es_blanca(self.casillas[lugar]) != self.blancas:
                        yield NOMBRES[casilla] + NOMBRES[lugar]
                    if self.casillas[lugar] != ".":
                        break
        if "K" in tipos:
            yield from self._enroques()

    def legales(self, tipos="PNBRQK", hasta=""):
        """The legal moves, of pieces of these kinds only, and to this square only when one is given."""
        for movimiento in self._posibles(tipos):
            if hasta not in ("", movimiento[2:4]):
                continue
            despues = self.jugar(movimiento)
            if not despues.atacada(despues.rey(self.blancas), not self.blancas):
                yield movimiento

    def jugar(self, movimiento):
        """The position after a move of the right form; nobody asks here whether it is legal."""
        desde, hasta = NUMEROS[movimiento[:2]], NUMEROS[movimiento[2:4]]
        casillas = self.casillas.copy()
        ficha, tomada = casillas[desde], casillas[hasta]
        corona = movimiento[4:]
        casillas[desde], casillas[hasta] = ".", (corona.upper() if self.blancas else corona) or ficha
        al_paso = None
        if ficha in "Pp":
            if hasta == self.al_paso:
                casillas[hasta + (8 if self.blancas else -8)] = "."
            elif abs(hasta - desde) == 16:
                al_paso = (desde + hasta) // 2
        elif ficha in "Kk" and abs(hasta - desde) == 2 and movimiento in ENROQUES:
            _, torre, paso = ENROQUES[movimiento]
            casillas[NUMEROS[paso]], casillas[NUMEROS[torre]] = casillas[NUMEROS[torre]], "."
        perdidos = PIERDE.get(movimiento[:2], "") + PIERDE.get(movimiento[2:4], "")
        enroques = "".join(letra for letra in self.enroques if letra not in perdidos)
        quietas = 0 if ficha in "Pp" or tomada != "." else self.reglas[0] + 1
        return Posicion(casillas, not self.blancas, enroques, al_paso,
                        (quietas, self.reglas[1] + (not self.blancas)))

    def terminada(self):
        """"mate" or "stalemate" when the side to move has no legal move, else None."""
        if any(True for _ in self.legales()):
            return None
        return "mate" if self.en_jaque() else "stalemate"

    def san(self, movimiento):
        """A legal move in the notation of PGN. Error when it is not legal."""
        desde, hasta = movimiento[:2], movimiento[2:4]
        ficha = self.casillas[NUMEROS.get(desde, 0)].upper()
        iguales = list(self.legales(ficha, hasta)) if ficha != "." else []
        if movimiento not in iguales:
            raise Error(f"illegal move {movimiento}")
        toma = self.casillas[NUMEROS[hasta]] != "." or ficha == "P" and desde[0] != hasta[0]
        otras = {otro[:2] for otro in iguales} - {desde}
        if movimiento in ENROQUES and ficha == "K":
            texto = "O-O" if hasta[0] == "g" else "O-O-O"
        elif ficha == "P":
            texto = (desde[0] + "x" if toma else "") + hasta + ("=" + movimiento[4].upper() if movimiento[4:] else "")
        else:
            if not otras:
                aclara = ""
            elif all(otra[0] != desde[0] for otra in otras):
                aclara = desde[0]
            elif all(otra[1] != desde[1] for otra in otras):
                aclara = desde[1]
            else:
                aclara = desde
            texto = ficha + aclara + ("x" if toma else "") + hasta
        despues = self.jugar(movimiento)
        return texto + ({"mate": "#"}.get(despues.terminada(), "+") if despues.en_jaque() else "")

    def leer_san(self, texto):
        """The legal move that a text of PGN, or of coordinates, means. Error when there is none or more than one."""
        limpio = texto.rstrip("+#!?").replace("0", "O").replace("e.p.", "")
        if limpio in ("O-O", "O-O-O"):
            movimiento = ("e1" if self.blancas else "e8") + ("g" if limpio == "O-O" else "c") + "18"[not self.blancas]
            candidatos = [legal for legal in self.legales("K", movimiento[2:4]) if legal == movimiento]
        else:
            partes = SAN.fullmatch(limpio)
            if partes is None:
                raise Error(f"not a move: {texto}")
            tipo, columna, fila, hasta, corona = partes.groups()
            completa = not tipo and columna and fila    # coordinates, of any piece
            candidatos = [legal for legal in self.legales("PNBRQK" if completa else tipo or "P", hasta)
                          if legal[0] in (columna or legal[0]) and legal[1] in (fila or legal[1])
                          and legal[4:] == corona.lower() and not (tipo == "K" and legal in ENROQUES)]
        if len(candidatos) != 1:
            raise Error(f"{'ambiguous' if candidatos else 'illegal'} move {texto}")
        return candidatos[0]
