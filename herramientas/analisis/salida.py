"""What a run leaves: a table (CSV), EPD, annotated games (PGN) and a page to look at (HTML)."""

import csv
import html
import io
import json
import os
import pathlib
import re

import ajedrez

# A move is marked by what it gives away of the expected score (1 a win, 0 a loss): pawns count less in won games.
# A pawn at an even score is worth some 0.14.
MARCAS = ((0.25, "??", "$4"), (0.15, "?", "$2"), (0.08, "?!", "$6"))    # least loss, sign, its number in PGN
ESCALA = 400            # centipawns that make the expected score ten to one
TOPE = 1000             # centipawns beyond which a score counts no further in the average loss
MATE = 32767            # centipawns that EPD gives to a mate on the board; less a half-move each
LINEA_MAX = 12          # half-moves of a line that is shown
ANCHO_PGN = 100
COLUMNAS = ("file", "line", "game", "ply", "id", "fen", "played", "mark", "best", "move", "score_cp", "mate", "depth",
            "nodes", "pv", "expected", "solved", "solved_depth", "solved_nodes", "error", "time_ms")


def esperado(valor):
    """The share of the point that a score promises to the side that it is for: (centipawns, mate in moves or None)."""
    centipeones, mate = valor
    if mate is not None:
        return 1.0 if mate > 0 else 0.0
    return 1 / (1 + 10 ** (-centipeones / ESCALA))


def recortado(valor):
    centipeones, mate = valor
    return max(-TOPE, min(TOPE, centipeones if mate is None else TOPE if mate > 0 else -TOPE))


def para_blancas(resultado, blancas):
    """The score from White's side, or None when there is none."""
    if resultado is None or not {"cp", "mate"} & set(resultado):
        return None
    signo = 1 if blancas else -1
    return (signo * resultado.get("cp", 0), signo * resultado["mate"] if "mate" in resultado else None)


def texto_valor(valor):
    """A score as PGN's [%eval] has it."""
    return f"#{valor[1]}" if valor[1] is not None else f"{valor[0] / 100:.2f}"


def linea_san(fen, coordenadas, maximo=LINEA_MAX):
    """A line in the notation of PGN, as far as it is legal."""
    posicion, jugadas = ajedrez.Posicion.de_fen(fen), []
    for coordenada in coordenadas[:maximo]:
        try:
            jugadas.append(posicion.san(coordenada))
        except ajedrez.Error:
            break
        posicion = posicion.jugar(coordenada)
    return jugadas


def numerada(fen, jugadas):
    """Moves with their numbers, as a text."""
    campos = fen.split()
    numero, blancas, palabras = int(campos[5]), campos[1] == "w", []
    for lugar, jugada in enumerate(jugadas):
        if blancas or lugar == 0:
            palabras.append(f"{numero}{'.' if blancas else '...'}")
        palabras.append(jugada)
        numero, blancas = numero + (not blancas), not blancas
    return " ".join(palabras)


class Informe:
    """The results of a run beside what was read."""

    def __init__(self, lectura, resultados, ajustes):
        self.lectura, self.ajustes = lectura, ajustes
        self.resultados = {fen: self.comprobar(resultados[fen]) for fen in lectura.posiciones() if fen in resultados}
        self.fallos = []    # (file, line, reason) of the rows that have no result
        for archivo, linea, fen, nombre in self.puestos():
            resultado = self.resultados.get(fen)
            if resultado is None or "error" in resultado:
                motivo = resultado["error"] if resultado else "no answer from any host"
                self.fallos.append((archivo, linea, f"{nombre}: {motivo}"))
        self.filas = [self.juzgar_fila(fila) for fila in lectura.filas]
        self.partidas = [self.juzgar_partida(partida) for partida in lectura.partidas]

    def puestos(self):
        for fila in self.lectura.filas:
            yield fila.archivo, fila.linea, fila.fen, fila.nombre
        for partida in self.lectura.partidas:
            fens = [partida.inicial] + [jugada.fen for jugada in partida.jugadas]
            for ply, fen in enumerate(fens[:-1] if partida.final else fens):
                yield partida.archivo, partida.linea, fen, f"game {partida.numero}, half-move {ply}"

    @staticmethod
    def comprobar(resultado):
        """A result with its move and line in the notation of PGN too, or with what is wrong with it."""
        if "error" in resultado:
            return resultado
        san = linea_san(resultado["fen"], resultado["pv"])
        mejor = linea_san(resultado["fen"], [resultado["move"]])
        if not mejor:
            return {"fen": resultado["fen"], "error": f"the engine answered {resultado['move'] or 'no move'}"}
        return {**resultado, "best": mejor[0], "san": san}

    def juzgar_fila(self, fila):
        """What a row of a test suite got: (row, result, solved or None, depth, nodes and time of the solution)."""
        resultado = self.resultados.get(fila.fen)
        if not (fila.buenas or fila.malas) or resultado is None or "error" in resultado:
            return fila, resultado, None, (None, None, None)

        def acierta(jugada):
            return jugada not in fila.malas and (not fila.buenas or jugada in fila.buenas)
        if not acierta(resultado["move"]):
            return fila, resultado, False, (None, None, None)
        cuando = (resultado.get("depth"), resultado.get("time"), resultado.get("nodes"))
        for profundidad, tiempo, nodos, jugada in reversed(resultado["trail"]):
            if not acierta(jugada):
                break
            cuando = (profundidad, tiempo, nodos)
        return fila, resultado, True, cuando

    def juzgar_partida(self, partida):
        """A game with, for each of its positions, (result, score for White), and for each move its mark and loss."""
        fens = [partida.inicial] + [jugada.fen for jugada in partida.jugadas]
        valores = []
        for fen in fens:
            valores.append(para_blancas(self.resultados.get(fen), fen.split()[1] == "w"))
        if partida.final == "mate":
            valores[-1] = (0, -1 if fens[-1].split()[1] == "w" else 1)
        elif partida.final:
            valores[-1] = (0, None)
        marcas, perdidas = [], []
        for jugada, fen, antes, despues in zip(partida.jugadas, fens, valores, valores[1:]):
            resultado, signo = self.resultados.get(fen, {}), 1 if fen.split()[1] == "w" else -1
            perdida = marca = None
            if antes and despues:
                perdida = max(0, signo * (recortado(antes) - recortado(despues)))
                cede = signo * (esperado(antes) - esperado(despues))
                if jugada.coordenadas == resultado.get("move"):
                    perdida = 0
                else:
                    marca = next((signos for minimo, *signos in MARCAS if cede >= minimo), None)
            marcas.append(marca)
            perdidas.append(perdida)
        return partida, fens, valores, marcas, perdidas

    def resumen(self):
        """One line for the person who waits."""
        partes = [f"{len(self.resultados)} positions"]
        if self.partidas:
            faltas = [marca[0] for _, _, _, marcas, _ in self.partidas for marca in marcas if marca]
            partes.append(f"{len(self.partidas)} games with " + ", ".join(
                f"{faltas.count(signo)} {signo}" for _, signo, _ in MARCAS))
        pruebas = [resuelta for _, _, resuelta, _ in self.filas if resuelta is not None]
        if pruebas:
            partes.append(f"{sum(pruebas)} of {len(pruebas)} solved")
        repetidas = sum(1 for resultado in self.resultados.values() if resultado.get("retried"))
        if repetidas:
            partes.append(f"{repetidas} at the second try")
        saltadas = len(self.lectura.saltadas) + len(self.fallos)
        if saltadas:
            partes.append(f"{saltadas} skipped")
        return ", ".join(partes)


def columnas(resultado):
    """The columns that each result fills."""
    resultado = resultado or {"error": "no answer from any host"}
    return {"best": resultado.get("best"), "move": resultado.get("move"), "score_cp": resultado.get("cp"),
            "mate": resultado.get("mate"), "depth": resultado.get("depth"), "nodes": resultado.get("nodes"),
            "pv": " ".join(resultado.get("pv", ())), "error": resultado.get("error"), "time_ms": resultado.get("time")}


def escribir_csv(informe):
    salida = io.StringIO()
    tabla = csv.DictWriter(salida, COLUMNAS, lineterminator="\n")
    tabla.writeheader()
    for fila, resultado, resuelta, (profundidad, _, nodos) in informe.filas:
        esperadas = [f"{clave} {fila.operaciones[clave]}" for clave in ("bm", "am") if clave in fila.operaciones]
        tabla.writerow({"file": fila.archivo, "line": fila.linea, "id": fila.nombre, "fen": fila.fen,
                        **columnas(resultado), "expected": "; ".join(esperadas),
                        "solved": "" if resuelta is None else int(resuelta), "solved_depth": profundidad,
                        "solved_nodes": nodos})
    for partida, fens, valores, marcas, _ in informe.partidas:
        for ply, fen in enumerate(fens):
            jugada = partida.jugadas[ply] if ply < len(partida.jugadas) else None
            ultima = ply == len(fens) - 1 and partida.final
            tabla.writerow({"file": partida.archivo, "line": partida.linea, "game": partida.numero, "ply": ply,
                            "id": partida.nombre(), "fen": fen, "played": jugada.san if jugada else partida.final,
                            "mark": marcas[ply][0] if jugada and marcas[ply] else "",
                            **({} if ultima else columnas(informe.resultados.get(fen)))})
    return salida.getvalue()


def escribir_epd(informe):
    """Rows as they were read and with what the engine found; positions of games with the engine's move as "bm"."""
    lineas = []

    def anadir(fen, resultado, operaciones):
        if resultado is None or "error" in resultado:
            return
        valor, mate = resultado.get("cp"), resultado.get("mate")
        if mate is not None:
            valor = MATE + 1 - 2 * mate if mate > 0 else -MATE - 2 * mate
        propias = {"acd": resultado.get("depth"), "acn": resultado.get("nodes"), "ce": valor,
                   "dm": mate if mate and mate > 0 else None, "pv": " ".join(resultado["san"])}
        mejor = "pm" if {"bm", "am"} & set(operaciones) else "bm"
        operaciones = {**operaciones, mejor: resultado["best"],
                       **{clave: valor for clave, valor in propias.items() if valor is not None}}
        textos = [f"{clave} {valor}".strip() + ";" for clave, valor in operaciones.items()]
        lineas.append(" ".join([" ".join(fen.split()[:4])] + textos))

    for fila, resultado, _, _ in informe.filas:
        anadir(fila.fen, resultado, fila.operaciones)
    for partida, fens, _, _, _ in informe.partidas:
        for ply, fen in enumerate(fens):
            nombre = f"{partida.archivo}:{partida.linea} {ply}".replace('"', "'")
            anadir(fen, informe.resultados.get(fen), {"id": f'"{nombre}"'})
    return "".join(linea + "\n" for linea in lineas)


def escribir_pgn(informe):
    return "\n".join(map(lambda juicio: partida_pgn(informe, *juicio), informe.partidas))


def partida_pgn(informe, partida, fens, valores, marcas, _):
    """A game as it was, comments and variations too, with scores, marks and what would have been better."""
    etiquetas = {**partida.etiquetas, "Annotator": informe.ajustes["name"]}
    lineas = [f'[{nombre} "' + re.sub(r'(["\\])', r"\\\1", valor) + '"]' for nombre, valor in etiquetas.items()]
    palabras, ply, pendiente, numero = [], 0, [], True

    def comentar(texto):
        if texto:
            palabras.extend(f"{{ {texto} }}".split())

    for clase, texto in partida.texto + [("fin", "")]:
        if clase == "nag":
            palabras.append(texto)
            if texto in pendiente[:1]:
                del pendiente[0]    # the annotator thought so too
            continue
        if pendiente:       # behind the move's own marks, before anything else
            palabras.extend(pendiente)
            pendiente, numero = [], True
        if clase == "jugada":
            campos = fens[ply].split()
            if campos[1] == "w" or numero:
                palabras.append(campos[5] + ("." if campos[1] == "w" else "..."))
            palabras.append(texto)
            pendiente, numero = nota(informe, fens, valores, marcas, ply), False
            ply += 1
        elif clase == "comentario":
            comentar(re.sub(r"\[%eval [^]]*\]\s*", "", texto).strip())
        elif clase == "variante":
            palabras.extend(texto.split())
        numero = numero or clase != "jugada"
    palabras.append(partida.resultado)
    renglon = ""
    lineas.append("")
    for palabra in palabras:
        if renglon and len(renglon) + 1 + len(palabra) > ANCHO_PGN:
            lineas.append(renglon)
            renglon = ""
        renglon += (" " if renglon else "") + palabra
    return "\n".join(lineas + [renglon]) + "\n"


def nota(informe, fens, valores, marcas, ply):
    """The words behind a move: its mark, the score after it and, when it is marked, a better line."""
    palabras = [marcas[ply][1]] if marcas[ply] else []
    if valores[ply + 1] and fens[ply + 1] in informe.resultados:
        palabras.append(f"{{ [%eval {texto_valor(valores[ply + 1])}] }}")
    if marcas[ply]:
        linea = numerada(fens[ply], informe.resultados[fens[ply]]["san"]).split()
        palabras += ["(" + linea[0], *linea[1:-1], linea[-1] + ")"]
    return palabras


def escribir_html(informe):
    """One page that needs nothing else: the data as JSON in a page that a script draws."""
    partidas = []
    for partida, fens, valores, marcas, perdidas in informe.partidas:
        plies = []
        for ply, fen in enumerate(fens):
            resultado = informe.resultados.get(fen) or {}
            plies.append({"fen": fen, "value": valores[ply], "best": resultado.get("move"),
                          "depth": resultado.get("depth"), "line": numerada(fen, resultado.get("san", ())),
                          "error": resultado.get("error")})
            if ply:
                jugada = partida.jugadas[ply - 1]
                plies[-1].update(san=jugada.san, move=jugada.coordenadas, loss=perdidas[ply - 1],
                                 mark=marcas[ply - 1][0] if marcas[ply - 1] else "")
        partidas.append({"tags": partida.etiquetas, "result": partida.resultado, "end": partida.final, "plies": plies,
                         "where": f"{partida.archivo}:{partida.linea}"})
    filas = []
    for fila, resultado, resuelta, (profundidad, tiempo, nodos) in informe.filas:
        resultado = resultado or {"error": "no answer from any host"}
        blancas = fila.fen.split()[1] == "w"
        filas.append({"id": fila.nombre, "where": f"{fila.archivo}:{fila.linea}", "fen": fila.fen,
                      "good": fila.buenas, "bad": fila.malas,
                      "expected": "; ".join(f"{clave} {fila.operaciones[clave]}" for clave in ("bm", "am")
                                            if clave in fila.operaciones),
                      "solved": resuelta, "at": [profundidad, tiempo, nodos], "best": resultado.get("best"),
                      "move": resultado.get("move"), "value": para_blancas(resultado, blancas),
                      "depth": resultado.get("depth"), "nodes": resultado.get("nodes"), "time": resultado.get("time"),
                      "line": numerada(fila.fen, resultado.get("san", ())), "error": resultado.get("error")})
    datos = {"settings": informe.ajustes, "summary": informe.resumen(), "games": partidas, "rows": filas,
             "skipped": informe.lectura.saltadas + informe.fallos}
    crudo = json.dumps(datos, ensure_ascii=False, separators=(",", ":")).replace("<", "\\u003c")
    pagina = pathlib.Path(__file__).with_name("informe.html").read_text(encoding="utf-8")
    titulo = html.escape(", ".join(os.path.basename(nombre) for nombre in informe.ajustes["files"]))
    return pagina.replace("@TITLE@", titulo).replace('"@DATA@"', crudo)


FORMATOS = {"csv": ("results.csv", escribir_csv), "epd": ("results.epd", escribir_epd),
            "pgn": ("annotated.pgn", escribir_pgn), "html": ("report.html", escribir_html)}


def escribir(informe, formatos, carpeta):
    """Writes each result beside its place first, so that a failure leaves the old one. Returns the names."""
    nombres = []
    for formato in formatos:
        nombre, hacer = FORMATOS[formato]
        destino = os.path.join(carpeta, nombre)
        with open(destino + ".new", "w", encoding="utf-8", newline="") as fichero:
            fichero.write(hacer(informe))
        os.replace(destino + ".new", destino)
        nombres.append(destino)
    return nombres
