"""The referee of the long runs. Argument: the folder of the tools."""
import pathlib
import random
import sys
import unittest

sys.path.insert(0, str(pathlib.Path(sys.argv[1]).resolve()))
import partidas     # noqa: E402  pylint: disable=wrong-import-position
import reloj        # noqa: E402  pylint: disable=wrong-import-position
import ajedrez      # noqa: E402  pylint: disable=wrong-import-position

PLANES = (      # clock, increment, moves to go, plies played, milliseconds planned
    (60000, 0, 0, 20, 795), (15000, 100, 0, 0, 100), (15000, 0, 0, 0, 1000), (5000, 0, 0, 0, 500), (5000, 2000, 0, 0, 2000),
    (60000, 1000, 40, 0, 2100), (10000, 0, 0, 0, 327), (20000, 0, 0, 140, 10250), (477, 0, 1, 78, 477))
TORRES = "4k3/8/8/8/8/5b2/8/R3K2R b KQ - 0 1"
ENROQUES = (    # position, moves, castling, whether it is legal, whether only the capture of a rook forbids it
    ("4k3/8/8/8/8/8/8/R3K2R w KQ - 0 1", "", "e1g1", True, False),
    (TORRES, "f3h1 a1a2 h1f3 a2h2 f3a8 h2h1 a8b7", "e1g1", False, True),
    (TORRES, "f3h1 a1a2 h1f3 a2h2 f3a8 h2h1 a8b7", "e1c1", False, False),   # the rook of a1 has moved
    (TORRES, "f3h1 a1a2 h1f3 a2h2 f3a8 h2g2 a8b7", "e1g1", False, False))   # no rook stands there


class Arbitro(unittest.TestCase):
    def test_el_plan_sigue_las_reglas_del_reloj(self):
        for tiempo, incremento, movimientos, jugadas, plan in PLANES:
            limite = reloj.Limite(None, tiempo, incremento, movimientos)
            self.assertEqual(reloj.presupuesto(limite, jugadas)[1], plan, limite)
        self.assertEqual(reloj.presupuesto(reloj.Limite(1000), 0)[1], 750)

    def test_un_retraso_es_de_la_regla_de_la_maquina_o_del_motor(self):
        for tiempo, trabajo, espera, clase in (
                (477, 470, 0, reloj.DE_REGLA), (5000, 400, 4590, reloj.MAQUINA), (5000, 4000, 900, reloj.CULPA),
                (5000, 400, 0, reloj.CULPA), (5000, 400, 4400, reloj.CULPA)):     # it blocked
            limite = reloj.Limite(None, tiempo, 0, 1 if tiempo < 500 else 0)
            self.assertEqual(reloj.explicar(limite, False, 0, tiempo + 1, trabajo, espera)[0], clase)

    def test_juzga_enroques(self):
        for fen, jugadas, enroque, legal, de_mas in ENROQUES:
            partida = partidas.Partida(random.Random(1), True)
            partida.posicion = ajedrez.Posicion.de_fen(fen)
            partida.derechos = set(partida.posicion.enroques)
            for jugada in jugadas.split():
                self.assertTrue(partida.es_legal(jugada))
                partida.jugar(jugada)
            self.assertEqual((partida.es_legal(enroque), partida.enroque_de_mas(enroque)), (legal, de_mas or legal))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
