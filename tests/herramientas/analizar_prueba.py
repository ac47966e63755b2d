"""analizar with a stand-in engine, and with ours. Arguments: the tool, our engine."""
import csv
import json
import os
import pathlib
import re
import shlex
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest

ANALIZAR = pathlib.Path(sys.argv[1]).resolve()
sys.path.insert(0, str(ANALIZAR.with_name("analisis")))
import ajedrez      # noqa: E402  pylint: disable=wrong-import-position

TAMREK = sys.argv[2]
MOTOR = pathlib.Path(__file__).resolve().with_name("motor_de_prueba.py")
CUATRO = "8/2p5/3p4/KP5r/1R3p1k/8/4P1P1/8 w - - 0 1"
PERFT = (   # position, depth, published total
    ("r3k2r/p1ppqpb1/bn2pnp1/3PN3/1p2P3/2N2Q1p/PPPBBPPP/R3K2R w KQkq - 0 1", 2, 2039),
    (CUATRO, 3, 2812),
    ("r3k2r/Pppp1ppp/1b3nbN/nP6/BBP1P3/q4N2/Pp1P2PP/R2Q1RK1 w kq - 0 1", 2, 264),
    ("rnbq1k1r/pp1Pbppp/2p5/8/2B5/8/PPP1NnPP/RNBQK2R w KQ - 1 8", 2, 1486),
    (ajedrez.INICIAL, 3, 8902),
    ("r4rk1/1pp1qppp/p1np1n2/2b1p1B1/2B1P1b1/P1NP1N2/1PP1QPPP/R4RK1 w - - 0 10", 2, 2079),
)
SAN = (     # position, coordinates, PGN
    ("4k3/8/8/8/8/8/8/R3K2R w KQ - 0 1", "e1c1", "O-O-O"), ("5k2/8/8/8/8/8/8/4K2R w K - 0 1", "e1g1", "O-O+"),
    ("4k3/8/8/8/8/8/8/R3K2R w KQ - 0 1", "h1g1", "Rg1"), ("4k3/8/8/8/8/Q7/8/Q1Q1K3 w - - 0 1", "a1b2", "Qa1b2"),
    ("4k3/8/8/R7/8/8/8/R3K3 w - - 0 1", "a1a3", "R1a3"), ("4k3/8/8/8/8/8/R6R/4K3 w - - 0 1", "a2d2", "Rad2"),
    ("4k3/8/8/8/4r3/8/4R2R/4K3 w - - 0 1", "h2h3", "Rh3"), ("7k/P7/6K1/8/8/8/8/8 w - - 0 1", "a7a8r", "a8=R#"),
    ("4k3/8/8/3pP3/8/8/8/4K3 w - d6 0 2", "e5d6", "exd6"),
    ("4k3/8/8/8/1b6/2N5/8/4K1N1 w - - 0 1", "g1e2", "Ne2"),    # the other knight is pinned
)
EPD = """# a suite
7k/5Q2/6K1/8/8/8/8/8 b - - bm Kh1; id "no.mate";
7k/8/6Q1/6K1/8/8/8/8 w - - bm Qh6+; id "wrong; maybe";
3q3k/8/8/8/8/8/8/3R3K w - - am Rxd8+; c0 "avoid";
3q3k/8/8/8/8/8/8/3R2K1 w - - bm Rd8; id "right";
8/8/8 w - -
7k/8/8/8/8/8/8/K6K w - - 0 1
3q3k/8/8/8/8/8/8/3R3K w - - bm Rh8; id "no such move"
"""
SALTADAS = {2: "no legal move: stalemate", 6: "not 8 rows", 7: "needs one king", 8: "illegal move Rh8"}
PGN = """[White "A \\"x\\""]
[Black "B"]
[Result "1-0"]

1.e4 {first [%eval 0.30]} e5 (1... c5 {open} 2. Nf3 (2. c3)) 2. Qh5 $5 Nc6 ; a rest
3. Bc4?! Nf6?? 4. Qxf7# 1-0

[White "Illegal"]
1. e4 e5 2. Ke3 *

[White "Short"]
[FEN "7k/8/6Q1/6K1/8/8/8/8 w - - 0 1"]

1. Qf7 1/2-1/2
"""
ANOTADA = ("1. e4 { [%eval 0.30] } { first } 1... e5 { [%eval 0.30] } (1... c5 {open} 2. Nf3 (2. c3)) 2. Qh5 $5 "
           "{ [%eval 0.30] } 2... Nc6 { [%eval 0.30] } { a rest } 3. Bc4 $6 { [%eval 0.30] } 3... Nf6 $4 "
           "{ [%eval 9.00] } (3... a6) 4. Qxf7# 1-0")
LIMITES = (     # options, exit status, depth and nodes at most
    (["-n3000"], 0, 64, 3500), (["-d3", "-t3600000"], 0, 3, 10**6), (["-d60", "-n3000"], 0, 60, 3500),
    (["-d3", "-e", TAMREK], 0, 3, 10**6), (["-n3000", "-e", TAMREK], 1, 0, 0), (["-d3", "-t300", "-e", TAMREK], 1, 0, 0)
)


class Reglas(unittest.TestCase):
    def test_cuentan_como_esta_publicado(self):
        def contar(posicion, profundidad):
            return sum(contar(posicion.jugar(jugada), profundidad - 1) if profundidad > 1 else 1
                       for jugada in posicion.legales())
        for fen, profundidad, total in PERFT:
            with self.subTest(fen):
                self.assertEqual(contar(ajedrez.Posicion.de_fen(fen), profundidad), total)

    def test_notacion(self):
        for fen, coordenadas, san in SAN:
            with self.subTest(san):
                posicion = ajedrez.Posicion.de_fen(fen)
                self.assertEqual(posicion.san(coordenadas), san)
                self.assertEqual({posicion.leer_san(san), posicion.leer_san(coordenadas)}, {coordenadas})


class Analizar(unittest.TestCase):
    def setUp(self):
        carpeta = tempfile.TemporaryDirectory()
        self.addCleanup(carpeta.cleanup)
        self.carpeta = pathlib.Path(carpeta.name)

    def escribir(self, nombre, texto):
        (self.carpeta / nombre).write_text(texto, encoding="utf-8")

    def leer(self, nombre):
        return (self.carpeta / nombre).read_text(encoding="utf-8")

    def orden(self, *opciones):
        motor = shlex.join([sys.executable, str(MOTOR), str(self.carpeta)])
        return [sys.executable, str(ANALIZAR), "-d3", "-e", motor, "-j2", *opciones]

    def analizar(self, *opciones):
        return subprocess.run(self.orden(*opciones), cwd=self.carpeta, capture_output=True, text=True, check=False,
                              timeout=300)

    def filas(self, carpeta):
        with open(self.carpeta / carpeta / "results.csv", encoding="utf-8") as fichero:
            return list(csv.DictReader(fichero))

    def test_una_prueba(self):
        self.escribir("suite.epd", EPD)
        fin = self.analizar("suite.epd", "-o", "s", "--print", "epd")
        self.assertEqual(fin.returncode, 3, fin.stderr)
        for linea, motivo in SALTADAS.items():
            self.assertRegex(fin.stderr, f"suite.epd:{linea}: skipped: .*{motivo}")
        self.assertEqual(fin.stdout, self.leer("s/results.epd"))
        self.assertEqual(fin.stdout.splitlines()[2], '3q3k/8/8/8/8/8/8/3R2K1 w - - bm Rd8; id "right"; pm Rxd8+; '
                         "acd 2; acn 30; ce 30; pv Rxd8+;")
        self.assertEqual([(fila["id"], fila["solved"], fila["solved_depth"]) for fila in self.filas("s")],
                         [("wrong; maybe", "0", ""), ("suite.epd:4", "0", ""), ("right", "1", "2")])
        datos = json.loads(re.search(r"const DATA = (.*);\n", self.leer("s/report.html"))[1])
        self.assertEqual(datos["rows"][2]["at"], [2, 2, 20])
        self.assertNotRegex(self.leer("s/report.html"), r"(src|href)=|https?:")

    def test_partidas(self):
        self.escribir("games.pgn", PGN)
        fin = self.analizar("games.pgn", "-o", "g")
        self.assertEqual(fin.returncode, 3, fin.stderr)
        self.assertIn('games.pgn:9: skipped: game 2 (Illegal - ?): illegal move Ke3', fin.stderr)
        anotada = self.leer("g/annotated.pgn")
        self.assertIn('[White "A \\"x\\""]', anotada)
        self.assertIn(ANOTADA, anotada.replace("\n", " "))
        self.assertEqual([fila["played"] for fila in self.filas("g")],
                         ["e4", "e5", "Qh5", "Nc6", "Bc4", "Nf6", "Qxf7#", "mate", "Qf7", "stalemate"])

    def test_un_motor_que_falla(self):
        """Each fault costs its own row at most, and the next run tries only what it is told to."""
        fens = [f"3q3k/8/8/8/8/8/8/3R3K w - - {numero} 1" for numero in range(5)]
        self.escribir("list.fen", "\n".join(fens))
        for orden, fen in zip(("die-once", "die", "illegal"), fens):
            self.escribir(orden, fen)
        fin = self.analizar("list.fen", "-o", "f", "--chunk", "5")
        self.assertEqual(fin.returncode, 3, fin.stderr)
        errores = ["", "the engine ended with status 7, twice", "the engine answered a1a1", "", ""]
        self.assertEqual([fila["error"] for fila in self.filas("f")], errores)
        self.assertIn(f"list.fen:2: skipped: list.fen:2: {errores[1]}", fin.stderr)
        self.assertIn("1 at the second try, 2 skipped", fin.stderr)
        (self.carpeta / "die").unlink()
        antes = self.leer("searches")
        self.assertEqual(self.analizar("list.fen", "-o", "f").returncode, 3)
        self.assertEqual(self.leer("searches"), antes)
        self.analizar("list.fen", "-o", "f", "--retry", "--timeout", "99")    # more patience too
        self.assertEqual([fila["error"] for fila in self.filas("f")], ["", "", *errores[2:]])

    def test_un_motor_que_calla(self):
        self.escribir("one.fen", CUATRO)
        self.escribir("hang", CUATRO)
        self.analizar("one.fen", "-o", "h", "--timeout", "2")
        self.assertEqual(self.filas("h")[0]["error"], "no bestmove within 2 s, twice")

    def test_nuestro_motor_cumple_cada_limite(self):
        self.escribir("one.fen", CUATRO)
        shutil.copytree(ANALIZAR.parent, self.carpeta / "herramientas")
        programa = self.carpeta / "build" / "release" / "tamrek"
        programa.parent.mkdir(parents=True)
        programa.symlink_to(TAMREK)
        for numero, (opciones, codigo, hondo, nodos) in enumerate(LIMITES):
            with self.subTest(opciones):
                orden = [sys.executable, "herramientas/analizar", "one.fen", "-j1", "--timeout=20", "-o", str(numero)]
                fin = subprocess.run(orden + opciones, cwd=self.carpeta, capture_output=True, text=True, check=False)
                self.assertEqual(fin.returncode, codigo, fin.stderr)
                for fila in self.filas(str(numero)) if codigo == 0 else ():
                    self.assertLessEqual(int(fila["depth"]), hondo)
                    self.assertLessEqual(int(fila["nodes"]), nodos)

    def test_interrumpido_sigue_donde_estaba(self):
        fens = [f"3q3k/8/8/8/8/8/8/3R3K w - - {numero} 1" for numero in range(60)]
        self.escribir("list.fen", "\n".join(fens))
        ordenes = {"whole": self.analizar("list.fen", "-o", "whole")}
        self.assertEqual(ordenes["whole"].returncode, 0, ordenes["whole"].stderr)
        (self.carpeta / "searches").unlink()
        for numero, senal, codigo, antes in ((12, signal.SIGKILL, -9, []), (28, signal.SIGINT, 130, []),
                                             (44, signal.SIGTERM, 130, []), (50, signal.SIGHUP, 0, ["nohup"])):
            with subprocess.Popen(antes + self.orden("list.fen", "-o", "parts", "--chunk", "3"), cwd=self.carpeta,
                                  stderr=subprocess.DEVNULL) as proceso:
                diario = self.carpeta / "parts" / "journal.jsonl"
                while proceso.poll() is None and (not diario.exists() or diario.read_bytes().count(b"\n") < numero):
                    time.sleep(0.01)
                proceso.send_signal(senal)
            self.assertEqual(proceso.returncode, codigo)
            with open(diario, "ab") as fichero:
                fichero.write(b'{"fen": "cut')
        fin = self.analizar("list.fen", "-o", "parts")
        self.assertEqual(fin.returncode, 0, fin.stderr)
        self.assertEqual(self.leer("parts/results.csv"), self.leer("whole/results.csv"))
        self.assertEqual(len(set(self.leer("parts/journal.jsonl").splitlines())), 61)
        # Only what was being searched when the run ended is searched again: a job of 3 on each of 2 cores.
        self.assertLessEqual(self.leer("searches").count("\n"), 60 + 3 * 2 * 3)

    def test_lo_que_no_puede_ser_se_dice(self):
        self.escribir("one.fen", CUATRO)
        self.analizar("one.fen", "-o", "a")
        (self.carpeta / "damaged.gz").write_bytes(b"\x1f\x8b\x08" + bytes(7) + b"\xff" * 20)
        for opciones, codigo, motivo in (
                (["one.fen", "-o", "a", "-d4"], 1, "made with other settings"),
                (["one.fen", "-O", "Hush=1"], 1, "Stand-in has no option Hush; it has Hash"),
                (["missing.pgn"], 1, "missing.pgn"), (["one.fen", "-d0"], 2, "must be 1 or more"),
                (["one.fen", "damaged.gz"], 1, "cannot read damaged.gz: "),
                (["one.fen", "-o", "/dev/null"], 1, "/dev/null"), (["one.fen", "-e", "/bin/false"], 1, "status 1"),
                (["one.fen", "-o", "b", "--parallel=--nonsense"], 1, "no position could be analysed")):
            with self.subTest(opciones):
                fin = self.analizar(*opciones)
                self.assertEqual(fin.returncode, codigo, fin.stderr)
                self.assertIn(motivo, fin.stderr)
                self.assertNotIn("Traceback", fin.stderr)


os.environ["PYTHONDONTWRITEBYTECODE"] = "1"
unittest.main(argv=sys.argv[:1])
