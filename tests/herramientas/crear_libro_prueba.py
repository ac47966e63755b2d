"""crear_libro, the tool named as argument, with small collections."""
import itertools
import lzma
import os
import sqlite3
import subprocess
import sys
import tempfile
import unittest

CREAR_LIBRO = os.path.realpath(sys.argv[1])
CONSULTA = "SELECT Partida FROM Book WHERE Partida LIKE 'e2e4%' LIMIT 15"


def partida(jugadas, elo=2500, resultado="1-0", etiquetas=""):
    return (f'[WhiteElo "{elo}"]\n[BlackElo "2600"]\n[Result "{resultado}"]\n{etiquetas}\n{jugadas} {resultado}\n\n')


COLECCION = (
    partida("1. e4 {best} e5 2. Nf3 (2. f4 exf4) Nc6 3. Bb5 a6", 2200)
    + partida("1. e4 e5 2. Nf3 Nc6 3. Bc4", resultado="0-1")
    + partida("1. e4 c5 2. Nf3", resultado="1/2-1/2", etiquetas='[SetUp "0"]\n')
    + partida("1. h4 g5 2. hxg5 h6 3. gxh6 Nf6 4. h7 Ng8 5. hxg8=Q d5")
    + partida("1. d4 d5 2. Ke2 Kd7")                    # not a legal game
    + partida("1. a8=Q+ Kd7", etiquetas='[SetUp "1"]\n[FEN "4k3/P7/8/8/8/8/8/4K3 w - - 0 1"]\n'))
ESPANOLA, ITALIANA, SICILIANA = "e2e4 e7e5 g1f3 b8c6 f1b5 a7a6", "e2e4 e7e5 g1f3 b8c6 f1c4", "e2e4 c7c5 g1f3"
CORONACION = "h2h4 g7g5 h4g5 h7h6 g5h6 g8f6 h6h7 f6g8"
CASOS = (   # options, lines of the book
    (["-v1"], {ESPANOLA, ITALIANA, SICILIANA, CORONACION}),
    (["-v1", "-p2"], {"e2e4 e7e5", "e2e4 c7c5", "h2h4 g7g5"}),
    (["-v2"], {"e2e4 e7e5 g1f3 b8c6"}),
    (["-v3"], {"e2e4"}),
    (["-v1", "-e2300"], {ITALIANA, SICILIANA, CORONACION}),
    (["-v1", "-m4"], {ESPANOLA, ITALIANA, CORONACION}),
    (["-v1", "-r0-1", "-r1/2-1/2"], {ITALIANA, SICILIANA}),
)
SALTADAS = "4 games used, 4 skipped: 2 unrated, 1 not from the start position, 1 illegal"
DISPARATES = (  # options, what is said
    (["-e0"], "--elo: must be a number from 1 to"), (["-v0"], "--times: must be"), (["-p21"], "from 1 to 20"),
    (["-p2", "-m3"], "--minimum is more than --plies"), (["-o", "/nowhere/Book.db"], "/nowhere/Book.db"),
    (["-o", "/"], "/ is a folder"), (["nothing.pgn"], "nothing.pgn"), (["--list"], "not a database"),
)


class CrearLibro(unittest.TestCase):
    def setUp(self):
        carpeta = tempfile.TemporaryDirectory()
        self.addCleanup(carpeta.cleanup)
        self.libro, self.origen = (os.path.join(carpeta.name, nombre) for nombre in ("Book.db", "origen"))

    def crear(self, texto, *opciones):
        with open(self.origen, "w", encoding="utf-8") as fichero:
            fichero.write(texto)
        return self.llamar("-o", self.libro, *opciones, self.origen).returncode

    @staticmethod
    def llamar(*argumentos):
        return subprocess.run([sys.executable, CREAR_LIBRO, *argumentos], capture_output=True, text=True, check=False)

    def leer(self, consulta="SELECT Partida FROM Book"):
        base = sqlite3.connect(self.libro)
        self.addCleanup(base.close)
        return [fila[-1] for fila in base.execute(consulta)]

    def test_filtros(self):
        for opciones, lineas in CASOS:
            with self.subTest(opciones):
                self.assertEqual(self.crear(COLECCION * 2 if opciones == ["-v1"] else COLECCION, *opciones), 0)
                self.assertCountEqual(self.leer(), lineas)
        self.assertNotEqual(self.crear(COLECCION, "-v50"), 0)    # a failure leaves the old book
        self.assertEqual(len(self.leer()), 2)

    def test_dice_lo_que_deja_y_lee_comprimidos(self):
        with lzma.open(self.origen + ".pgn.xz", "wt", encoding="utf-8") as fichero:
            fichero.write(COLECCION + partida("1. e4 e6", "?") + partida("1. e4 d6", "-"))
        fin = self.llamar("-v1", "-e1000", "-o", self.libro, self.origen + ".pgn.xz")
        self.assertIn(SALTADAS, fin.stderr)
        self.assertRegex(fin.stderr, r"origen.pgn.xz:\d+: skipped: illegal move 2. Ke2")
        self.assertCountEqual(self.leer(), {ESPANOLA, ITALIANA, SICILIANA, CORONACION})

    def test_une_libros_y_los_cuenta(self):
        otro, union = self.libro + ".2", self.libro + ".3"
        self.crear(COLECCION, "-v1")
        self.crear(f"{ESPANOLA} e1g1\nd2d4 g8f6", "--lines", "-o", otro)
        self.assertEqual(self.llamar("-o", union, self.libro, otro).returncode, 0)
        lista = self.llamar("--list", union, "--after", "e2e4 e7e5")
        self.assertIn("5 lines of up to 8", lista.stdout)
        self.assertRegex(lista.stdout, r"2 lines go on after e2e4 e7e5\n  g1f3 +2 100.0 %   the engine sees 2 of 2")

    def test_lo_que_no_puede_ser_se_dice(self):
        self.crear(COLECCION)
        danado = self.origen + ".gz"
        with open(danado, "wb") as fichero:
            fichero.write(b"\x1f\x8b\x08" + bytes(7) + b"\xff" * 20)
        for opciones, motivo in (*DISPARATES, ([danado], f"cannot read {danado}: ")):
            with self.subTest(opciones):
                fin = self.llamar("-o", self.libro, self.origen, *opciones)
                self.assertNotEqual(fin.returncode, 0)
                self.assertIn(motivo, fin.stderr)
                self.assertNotIn("Traceback", fin.stderr)

    def test_las_primeras_filas_son_una_muestra(self):
        """Three replies in the proportion 8 : 4 : 3, small without index and large with it."""
        jugadas = ["".join(letras) for letras in itertools.product("abcdefgh", "12345678", repeat=2)]
        respuestas = ["a7a6"] * 8 + ["c7c5"] * 4 + ["e7e5"] * 3
        for numero in (300, 24000):
            finales = itertools.islice(itertools.product(jugadas, jugadas[:8]), numero)
            lineas = [f"e2e4 {respuesta} {' '.join(final)}"
                      for respuesta, final in zip(itertools.cycle(respuestas), finales)]
            self.crear("# a comment\n\n" + "\n".join(lineas), "--lines")
            self.assertCountEqual(self.leer(), lineas)
            self.assertEqual("INDEX Book_Partida" in self.leer("EXPLAIN QUERY PLAN " + CONSULTA)[0], numero == 24000)
            muestra = [fila[5:9] for fila in self.leer(CONSULTA)]
            self.assertEqual(set(muestra), set(respuestas))
            if numero == 300:
                self.assertCountEqual(muestra, respuestas)


unittest.main(argv=sys.argv[:1])
