"""crear_libro, the tool named as argument, with small collections."""
import itertools
import os
import sqlite3
import subprocess
import sys
import tempfile
import unittest

CONSULTA = "SELECT Partida FROM Book WHERE Partida LIKE 'e2e4%' LIMIT 15"


def partida(jugadas, elo=2500, resultado="1-0", etiquetas=""):
    return (f'[WhiteElo "{elo}"]\n[BlackElo "2600"]\n[Result "{resultado}"]\n{etiquetas}\n{jugadas} {resultado}\n\n')


COLECCION = (
    partida("1. e4 {best} e5 2. Nf3 (2. f4 exf4) Nc6 3. Bb5 a6", 2200)
    + partida("1. e4 e5 2. Nf3 Nc6 3. Bc4", resultado="0-1")
    + partida("1. e4 c5 2. Nf3", resultado="1/2-1/2")
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
    (["-v1", "-r0-1", "-r1/2-1/2"], {ITALIANA, SICILIANA}),
)


class CrearLibro(unittest.TestCase):
    def setUp(self):
        carpeta = tempfile.TemporaryDirectory()
        self.addCleanup(carpeta.cleanup)
        self.libro, self.origen = (os.path.join(carpeta.name, nombre) for nombre in ("Book.db", "origen"))

    def crear(self, texto, *opciones):
        with open(self.origen, "w", encoding="utf-8") as fichero:
            fichero.write(texto)
        return subprocess.run([sys.executable, sys.argv[1], "-o", self.libro, *opciones, self.origen],
                              capture_output=True, check=False).returncode

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

    def test_las_primeras_filas_son_una_muestra(self):
        """Three replies in the proportion 8 : 4 : 3, small without index and large with it."""
        jugadas = ["".join(letras) for letras in itertools.product("abcdefgh", "12345678", repeat=2)]
        respuestas = ["a7a6"] * 8 + ["c7c5"] * 4 + ["e7e5"] * 3
        for numero in (300, 24000):
            finales = itertools.islice(itertools.product(jugadas, jugadas[:8]), numero)
            lineas = [f"e2e4 {respuesta} {' '.join(final)}"
                      for respuesta, final in zip(itertools.cycle(respuestas), finales)]
            self.crear("# a comment\n\n" + "\n".join(lineas), "--lineas")
            self.assertCountEqual(self.leer(), lineas)
            self.assertEqual("INDEX Book_Partida" in self.leer("EXPLAIN QUERY PLAN " + CONSULTA)[0], numero == 24000)
            muestra = [fila[5:9] for fila in self.leer(CONSULTA)]
            self.assertEqual(set(muestra), set(respuestas))
            if numero == 300:
                self.assertCountEqual(muestra, respuestas)


unittest.main(argv=sys.argv[:1])
