#!/usr/bin/env python3
"""Starts of both programs and the largest road: medians of 21 runs, and the memory that the largest one took.

    bancada/estradas.py PASTA_DA_CONSTRUÇÃO
"""

import os
import resource
import statistics
import subprocess
import sys
import tempfile
import time

pasta = sys.argv[1]
aqui = os.path.dirname(os.path.abspath(__file__))
roteiro = os.path.join(aqui, "maior_estrada.roteiro")
pronto = tempfile.NamedTemporaryFile(mode="w", suffix=".roteiro")
pronto.write("mostrar Form3.TX20B\n")
pronto.flush()
console = [os.path.join(pasta, "varenta-roteiro")]
janelas = [os.path.join(pasta, "src/janelas/varenta"), "--roteiro"]


def medir(nome, comando):
    """Wall time and processor time of the whole program; the largest memory of all children so far."""
    paredes, processador = [], []
    for _ in range(21):
        antes = resource.getrusage(resource.RUSAGE_CHILDREN)
        inicio = time.perf_counter()
        subprocess.run(comando, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                       env={**os.environ, "QT_QPA_PLATFORM": "offscreen"})
        paredes.append(time.perf_counter() - inicio)
        depois = resource.getrusage(resource.RUSAGE_CHILDREN)
        processador.append(depois.ru_utime + depois.ru_stime - antes.ru_utime - antes.ru_stime)
    memoria = resource.getrusage(resource.RUSAGE_CHILDREN).ru_maxrss / 1024
    print(f"| {nome} | {statistics.median(paredes) * 1e3:.1f} | {statistics.median(processador) * 1e3:.1f} "
          f"| {memoria:.0f} |")


# From the smallest to the largest, so that the memory told is each one's own.
print("| Programa | ms | ms de processador | MB |\n|---|---|---|---|")
medir("varenta-roteiro, o menu", console + [pronto.name])
medir("varenta-roteiro, a maior estrada", console + [roteiro])
medir("varenta, o menu", janelas + [pronto.name])
medir("varenta, a maior estrada", janelas + [roteiro])
