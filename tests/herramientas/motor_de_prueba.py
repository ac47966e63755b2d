"""A stand-in UCI engine. Argument: a folder. There it notes each search in "searches"; a file that it finds there tells
it what to do at the FEN that the file holds: "die" always, "die-once" (the file goes), "hang", "illegal".
"""
import os
import pathlib
import sys
import time

carpeta = pathlib.Path(sys.argv[1])
fen = ""


def manda(orden):
    fichero = carpeta / orden
    return fichero.exists() and fichero.read_text(encoding="utf-8") == fen


for linea in sys.stdin:
    palabra, _, resto = linea.strip().partition(" ")
    if palabra == "uci":
        print("id name Stand-in\noption name Hash type spin default 1 min 1 max 9\nuciok", flush=True)
    elif palabra == "isready":
        print("readyok", flush=True)
    elif palabra == "position":
        fen = resto.removeprefix("fen ")
    elif palabra == "go":
        with open(carpeta / "searches", "a", encoding="utf-8") as fichero:
            fichero.write(fen + "\n")
        if manda("die-once"):
            (carpeta / "die-once").unlink()
            os.kill(os.getpid(), 9)
        if manda("die"):
            sys.exit(7)
        if manda("hang"):
            time.sleep(60)
        blancas = fen.split()[1] == "w"
        valor = (900 if "n2n2" in fen else 30) * (1 if blancas else -1)    # two black knights in play lose
        jugada = {"7k": "g6g7", "3q": "d1d8"}.get(fen[:2], "a2a3" if blancas else "a7a6")
        jugada = "a1a1" if manda("illegal") else jugada
        time.sleep(0.02)
        print("info depth 1 score cp -40 time 1 nodes 10 pv h2h3\ninfo string chatter score cp 7 pv a2a3")
        print(f"info depth 2 score cp {valor} time 2 nodes 20 pv {jugada}")
        print(f"info depth 3 score cp 5 lowerbound nodes 30 time 3 pv {jugada}\nbestmove {jugada}", flush=True)
    elif palabra == "quit":
        break
