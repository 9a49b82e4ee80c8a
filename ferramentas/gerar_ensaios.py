#!/usr/bin/env python3
"""Writes the sample tests under wind of exemplos/: what a TX20 leaves under the wind parameters that Form7
starts from, each reading changed by a few percent of noise. The same bytes every time.
"""
import random
import sys
from math import cos, pi, radians, sin
from pathlib import Path

RAIZ = Path(__file__).resolve().parent.parent
sys.path.insert(0, str(RAIZ / "testes" / "independente"))
import calculo  # noqa: E402

PARAMETROS = (0.0362, 0.0131, -0.0097, 0.0026, 0.4003, -0.3361)
RUIDO = 0.03
MODELO, PRINCIPAL, AUXILIAR, PRESSAO = "TX20", 28, 6, 50
ANGULO_DO_JATO = 24


def vento(aspersor, velocidade, direcao, anguloSeco):
    R = float(aspersor.lblRaioAlcance)
    return calculo.Vento(R, velocidade, *(p * R for p in PARAMETROS), anguloSeco, anguloSeco, 0,
                         radians(ANGULO_DO_JATO), 2 * pi - radians(direcao))


def intensidade(aspersor, v, y, x, anguloGiro):
    """What falls at y ahead of the sprinkler and x to its right, mm/h."""
    intensidades = [float(i) for i in aspersor.lblIntensidade[1:]]
    return calculo.intensidadeEmPonto(v, y * cos(v.rotVento) - x * sin(v.rotVento),
                                      x * cos(v.rotVento) + y * sin(v.rotVento), anguloGiro, intensidades)


def medir(valor, sorteio):
    return f"{max(0, valor * (1 + sorteio.gauss(0, RUIDO))):.2f}"


def lugares(e, n):
    return [e * (j - (n - 1) / 2) for j in range(n)]


def gravar(nome, aspersor, cabecalho, linhas):
    inicio = ["KELMO-" + MODELO, f"{PRINCIPAL} x {AUXILIAR}", PRESSAO, ANGULO_DO_JATO, aspersor.lblVazao]
    texto = "\r\n".join([str(linha) for linha in inicio + cabecalho] + ["\t".join(l) for l in linhas])
    (RAIZ / "exemplos" / nome).write_bytes((texto + "\r\n").encode())


def malha(nome, semente, aspersor, n, e, velocidade, direcao, modo, porMilimetroPorHora):
    """A grid test: modo is the line of the mode and those that follow it, the last argument what a collector
    reads for each mm/h."""
    sorteio = random.Random(semente)
    v = vento(aspersor, velocidade, direcao, 0)
    linhas = [[medir(intensidade(aspersor, v, y, x, 360) * porMilimetroPorHora, sorteio)
               for x in lugares(e, n)] for y in reversed(lugares(e, n))]
    gravar(nome, aspersor, [n, f"{e:.1f}", f"{velocidade:.1f}", direcao] + modo, linhas)


def movel(nome, semente, aspersor, cadaLado, e, marcha, giro, L, velocidade, direcao, modo, porMilimetro):
    """A travelling test of L lines; the last argument is what a collector reads for each mm."""
    sorteio = random.Random(semente)
    v = vento(aspersor, velocidade, direcao, (360 - giro) / 2)
    posicoes = lugares(e, 2 * cadaLado)
    laminas = [sum(intensidade(aspersor, v, y, x, giro) for y in posicoes) * e / marcha for x in posicoes]
    linhas = [[medir(lamina * porMilimetro, sorteio) for _ in range(L)] for lamina in laminas]
    gravar(nome, aspersor, [marcha, giro, L, "6.0", cadaLado, f"{e:.1f}", f"{velocidade:.1f}", direcao] + modo,
           linhas)


def area(diametro):
    """Of a collector, cm²."""
    return pi * diametro ** 2 / 4


def main():
    a = calculo.aspersorDoCatalogo(MODELO, PRINCIPAL, AUXILIAR, PRESSAO)
    malha("ensaio_malha_1.txt", 1, a, 18, 6, 3.0, 45, ["1"], 1)
    malha("ensaio_malha_2.txt", 2, a, 20, 6, 2.0, 120, ["2", "90"], 90 / 60)
    malha("ensaio_malha_3.txt", 3, a, 18, 6, 4.0, 300, ["3", "60", "8"], 60 * area(8) / 600)
    movel("ensaio_movel_1.txt", 4, a, 20, 3, 40, 240, 3, 3.0, 90, ["1"], 1)
    movel("ensaio_movel_2.txt", 5, a, 10, 6, 30, 210, 2, 2.5, 30, ["2", "8"], area(8) / 10)


main()
