"""The two fits of the wind model, computed a second time and shared with nothing in src/.

What the screens form_AjVen and Form_AjvenOu show of a fit, by the grid method (tests of Form_E1 to
Form_E3) and by the travelling method (Form_MiE1 to Form_MiE3): the factors told before the search,
the sequence of labels and bar values, the six captions, the deviation; then what the result screens
compare. The search itself is ajuste.c, compiled here on first use.

A test holds the texts of its screen, as the calculations read them. Lists count from 0.
Symbols. R reach (m); Q flow (m3/h), in single precision; W wind speed (m/s); e spacing (m); f what
turns a reading into mm/h or mm; V flow (m3/h) that a test accounts for; v speed of the cart (m/h);
g turn angle (degrees); T test time (min); d diameter of the collectors (cm).
"""

import atexit
import os
import shutil
import subprocess
import tempfile
from dataclasses import dataclass, field
from math import cos, sin, sqrt, tan
from pathlib import Path

import calculo
from calculo import DOIS_PI, PI, Contagem, Vento, formatar, ler, matriz, menorTexto, simples
from uniformidade import ErroDeExecucao, dividir

MALHA, MOVEL = "malha", "móvel"
TOLERANCIA_DA_DESCIDA = {MALHA: 1e-5, MOVEL: 1e-7}
UNIDADE_DO_DESVIO = {MALHA: " mm/h", MOVEL: " mm"}
PRIMEIRO_ROTULO = "Desvio médio:"

# How the sums of the factorisation run, as ajuste.c numbers them; the first is the one followed.
ORDENS_DAS_SOMAS = range(5)


# ---- what the screens hold ------------------------------------------------------------------

@dataclass
class Fonte:
    """The calling screen: texts of reach, flow and jet angle, and the 22 captions of the profile."""
    alcance: str
    vazao: str
    anguloJato: str
    perfil: list

    @property
    def R(self):
        return ler(self.alcance)

    @property
    def alfa(self):
        return (ler(self.anguloJato) * PI) / 180

    @property
    def intensidades(self):
        return [float(t) for t in self.perfil]


def fonteDoCatalogo(aspersor):
    return Fonte(aspersor.lblRaioAlcance, aspersor.lblVazao, calculo.ANGULO_JATO, aspersor.lblIntensidade[1:])


@dataclass
class EnsaioMalha:
    """A square grid of collectors. modo: "mm/h", "mm" (with tempo), "mL" (with tempo and diametro)."""
    lado: str                   # Combo2, N
    espacamento: str            # Combo1
    vento: str                  # Label17
    direcao: str                # Label2
    modo: str
    tempo: str
    diametro: str
    leituras: list              # N rows of N texts

    def fator(self):
        if self.modo == "mm/h":
            return 1.0
        if self.modo == "mm":
            return dividir(60, ler(self.tempo))
        return dividir(600, ler(self.tempo) * area(self.diametro))


@dataclass
class EnsaioMovel:
    """Lines of collectors across the lane. modo: "mm" or "mL" (with diametro)."""
    linhas: str                 # Combo1, L
    entreLinhas: str            # Combo2, eL
    lado: str                   # Combo3, collectors on each side
    espacamento: str            # Combo4
    giro: str                   # Combo6
    velocidade: str             # Text1
    vento: str
    direcao: str
    modo: str
    diametro: str
    leituras: list              # 2 x lado rows of L texts

    def fator(self):
        return 1.0 if self.modo == "mm" else dividir(10, area(self.diametro))


def area(diametro):
    d = ler(diametro)
    return PI * (d * d) / 4


def rotacaoDoVento(ensaio):
    return DOIS_PI - (ler(ensaio.direcao) * PI) / 180


def abscissas(n, e):
    return [e * (-n / 2 + 0.5) + e * (j - 1) for j in range(1, n + 1)]


def ordenadas(n, e):
    return [e * (n / 2 - 0.5) - e * (i - 1) for i in range(1, n + 1)]


@dataclass
class Preparado:
    """One test as the search takes it; observado is what was read, before and after the rescaling."""
    W: float
    passos: int
    cosseno: float
    seno: float
    g: float
    e: float
    v: float
    observado: list
    x: list
    y: list
    c: float


def preparar(ensaio, fonte):
    teta = rotacaoDoVento(ensaio)
    partes = prepararMalha if isinstance(ensaio, EnsaioMalha) else prepararMovel
    return partes(ensaio, simples(ler(fonte.vazao)), cos(teta), sin(teta))


def rescalonar(observado, Q, V):
    c = dividir(Q, V)
    return [valor * c for valor in observado], c


def prepararMalha(t, Q, cosseno, seno):
    N, e, f = int(ler(t.lado)), ler(t.espacamento), t.fator()
    xs = [simples(x) for x in abscissas(N, e)]
    observado, X, Y, V = [], [], [], 0.0
    for i, y in enumerate(ordenadas(N, e)):
        for j, x in enumerate(xs):
            X.append(y * cosseno - x * seno)
            Y.append(x * cosseno + y * seno)
            P = ler(t.leituras[i][j]) * f
            observado.append(P)
            V = V + P * e * e / 1000
    observado, c = rescalonar(observado, Q, V)
    return Preparado(ler(t.vento), 0, cosseno, seno, 360.0, e, 1.0, observado, X, Y, c)


def prepararMovel(t, Q, cosseno, seno):
    Nc, Nl = 2 * int(ler(t.lado)), int(ler(t.linhas))
    e, v, f = ler(t.espacamento), ler(t.velocidade), t.fator()
    observado, X, Y, V = [], [], [], 0.0
    for j, x in enumerate(abscissas(Nc, e)):
        soma = 0.0
        for k in range(Nl):
            soma = soma + ler(t.leituras[j][k])
        O = soma / Nl * f
        observado.append(O)
        V = V + O * e * v / 1000
        for y in ordenadas(Nc, e):
            X.append(y * cosseno - x * seno)
            Y.append(x * cosseno + y * seno)
    observado, c = rescalonar(observado, Q, V)
    return Preparado(ler(t.vento), Nc, cosseno, seno, ler(t.giro), e, v, observado, X, Y, c)


# ---- the search -----------------------------------------------------------------------------

_programa = None


def programa():
    """The compiled search; -ffp-contract=off keeps every product and sum apart."""
    global _programa
    if _programa is None:
        pasta = tempfile.mkdtemp(prefix="ajuste-")
        atexit.register(shutil.rmtree, pasta, ignore_errors=True)
        _programa = os.path.join(pasta, "ajuste")
        subprocess.run(["cc", "-std=c99", "-O2", "-ffp-contract=off", "-o", _programa,
                        str(Path(__file__).with_name("ajuste.c")), "-lm"], check=True)
    return _programa


def executar(tarefa, numeros):
    """Lines that the program answers with, split at blanks."""
    entrada = tarefa + "\n" + "\n".join(float(n).hex() for n in numeros) + "\n"
    saida = subprocess.run([programa()], input=entrada, capture_output=True, text=True, check=True)
    return [linha.split(" ", 1) for linha in saida.stdout.splitlines()]


def problema(fonte, preparados):
    numeros = [fonte.R, fonte.alfa, *fonte.intensidades, len(preparados)]
    for t in preparados:
        numeros += [t.W, len(t.observado), t.passos, t.cosseno, t.seno, t.g, t.e, t.v, *t.observado, *t.x, *t.y]
    return numeros


def reais(texto):
    return [float.fromhex(t) for t in texto.split()]


def somar(fonte, preparados, p):
    """The sum of squared deviations at a parameter vector, and how many are above 0."""
    nome, resto = executar("somar", [*p, *problema(fonte, preparados)])[0]
    if nome == "erro":
        raise ErroDeExecucao(resto)
    soma, m = resto.split()
    return float.fromhex(soma), int(m)


@dataclass
class Ajuste:
    """What a fit shows. erro: the name of the run-time error that ended it."""
    aviso: str = None               # the factors, told before the search
    progresso: list = field(default_factory=list)
    etapas: dict = field(default_factory=dict)
    parametros: list = None         # A to F
    legendas: list = None           # A/R to F/R, as shown
    desvioMinimo: float = None
    desvio: str = None
    mensagem: str = None
    erro: str = None


def avisoDosFatores(preparados):
    c = [formatar(t.c, "0.000") for t in preparados]
    inicio = "Para que as precipitações do Ensaio "
    meio = " coicidam com a vazão do aspersor, estes valores serão multiplicados"
    if len(c) == 1:
        return f"{inicio}1{meio} por: {c[0]} !"
    if len(c) == 2:
        return f"{inicio}1 e 2{meio}, respectivamente, por: {c[0]} e {c[1]} !"
    return f"{inicio}1, 2 e 3{meio}, respectivamente, por: {c[0]}, {c[1]} e {c[2]} !"


class Progresso:
    """Form_AjCar: a line for each change of its bar or its label."""

    def __init__(self):
        self.barra, self.rotulo, self.linhas = 0.0, PRIMEIRO_ROTULO, []

    def _mudar(self, barra, rotulo):
        if (barra, rotulo) != (self.barra, self.rotulo):
            self.barra, self.rotulo = barra, rotulo
            self.linhas.append(f"{menorTexto(barra)} {rotulo}")

    def mostrarBarra(self, valor):
        self._mudar(valor, self.rotulo)

    def mostrarRotulo(self, texto):
        self._mudar(self.barra, texto)


def conselho(t, numero):
    """What the person is told after the name of an error that ends the preparation of a test."""
    try:
        t.fator()
    except ErroDeExecucao:
        caixas = "o diâmetro do coletor"
        if isinstance(t, EnsaioMalha):
            caixas = "o tempo" if t.modo == "mm" else "o tempo e o diâmetro do coletor"
        return f"confira {caixas} do Ensaio {numero}"
    return f"as leituras do Ensaio {numero} não somam água que se possa igualar à vazão do aspersor"


def ajustar(fonte, ensaios, ordemDasSomas=0):
    metodo = MALHA if isinstance(ensaios[0], EnsaioMalha) else MOVEL
    r = Ajuste()
    preparados = []
    for numero, t in enumerate(ensaios, 1):
        try:
            preparados.append(preparar(t, fonte))
        except ErroDeExecucao as erro:
            r.erro = f"{erro}: {conselho(t, numero)}"
            return r
    r.aviso = avisoDosFatores(preparados)
    tela = Progresso()
    r.progresso = tela.linhas
    tolerancia = TOLERANCIA_DA_DESCIDA[metodo]
    for nome, resto in executar("ajustar", [ordemDasSomas, tolerancia, *problema(fonte, preparados)]):
        if nome == "barra":
            tela.mostrarBarra(float.fromhex(resto))
        elif nome == "rotulo":
            desvio = formatar(float.fromhex(resto), "0.000")
            tela.mostrarRotulo(f"Desvio Médio: {desvio}{UNIDADE_DO_DESVIO[metodo]}")
        elif nome == "etapa":
            etapa, *linha, avaliacoes = resto.split()
            r.etapas[etapa] = [float.fromhex(t) for t in linha], int(avaliacoes)
        elif nome == "parametros":
            r.parametros = reais(resto)
        elif nome == "desvio":
            r.desvioMinimo = float.fromhex(resto)
        elif nome == "erro":
            r.erro = resto
            return r
    r.legendas = [formatar(dividir(p, fonte.R), "0.0000") for p in r.parametros]
    r.desvio = formatar(r.desvioMinimo, "0.000")
    r.mensagem = f"O melhor ajuste apresentou um desvio médio igual a {r.desvio} mm/h"
    return r


# ---- observed and estimated -----------------------------------------------------------------

def perfilRelativo(u, intensidades):
    """perfilRadialEm on a full circle, with u = 1 in its last segment."""
    if u == 1:
        return (u - 0.975) * (intensidades[21] - intensidades[20]) / 0.025 + intensidades[20]
    return calculo.perfilRadialEm(u, 360, intensidades)


def vento(fonte, ensaio, parametros):
    """The wind model's setting; its sector stays unused, for both fits have their own."""
    return Vento(fonte.R, ler(ensaio.vento), *parametros, anguloSecoI=0.0, anguloSecoII=0.0, rotacao=0.0,
                 anguloJato=fonte.alfa, rotVento=rotacaoDoVento(ensaio))


def estimar(v, x, y, calma, contagem):
    """Intensity at a wind-frame point; calma gives the one of the point where the water came from."""
    xs, ys, convergiu = calculo.pontoSemVento(v, x, y)
    contagem.naoConvergiu += not convergiu
    r = sqrt(xs * xs + ys * ys)
    if r >= v.R:
        return 0.0
    i0 = calma(xs, ys, r)
    if i0 == 0:
        return 0.0
    j11, _, _, j22 = matriz(v, xs, ys)
    contagem.areaNaoPositiva += j11 * j22 <= 0
    return i0 / (j11 * j22)


def precipitacaoEstimada(v, x, y, intensidades, contagem):
    return estimar(v, x, y, lambda xs, ys, r: perfilRelativo(r / v.R, intensidades), contagem)


def noSetorSeco(u, w, g, R):
    beta = PI * ((360 - g) / 2) / 180
    return (u > 0 and abs(w) / R < sin(beta) and abs(w) * (1 / tan(beta)) < abs(u)
            and abs(u) < sqrt(R * R - w * w))


def intensidadeSetor(u, w, g, R, intensidades):
    ro = 0.0 if u == 0 else sqrt(u * u + w * w)
    if noSetorSeco(u, w, g, R):
        ro = 5 * R
    return perfilRelativo(ro / R, intensidades) * (360 / g)


def intensidadePonto(v, x, y, g, intensidades, contagem):
    cosseno, seno = cos(v.rotVento), sin(v.rotVento)

    def calma(xs, ys, _):
        return intensidadeSetor(xs * cosseno + ys * seno, ys * cosseno - xs * seno, g, v.R, intensidades)

    return estimar(v, x, y, calma, contagem)


@dataclass
class Comparacao:
    """A result screen. intensidades are of every collector, or of every pass of every position."""
    desvio: str
    maiorIntensidade: str           # estimated
    maiorEstimada: str              # the depth; the same as the intensity for a grid
    maiorObservada: str
    intensidades: list
    laminas: list
    contagem: Contagem


def parametrosDasLegendas(fonte, legendas):
    """A to F as the result screens take them: from the captions, with their rounding."""
    return [ler(t) * fonte.R for t in legendas]


def estimativas(fonte, ensaio, parametros):
    """Intensity at every point of a test, and what it adds up to at every position."""
    t = preparar(ensaio, fonte)
    v, perfil, contagem = vento(fonte, ensaio, parametros), fonte.intensidades, Contagem()
    if not t.passos:
        valores = [precipitacaoEstimada(v, x, y, perfil, contagem) for x, y in zip(t.x, t.y)]
        return t, valores, valores, contagem
    valores = [intensidadePonto(v, x, y, t.g, perfil, contagem) for x, y in zip(t.x, t.y)]
    laminas = []
    for j in range(len(t.observado)):
        total = 0.0
        for i in valores[j * t.passos:(j + 1) * t.passos]:
            total = total + i
        laminas.append(total * t.e / t.v)
    return t, valores, laminas, contagem


def somaDosDesvios(observado, estimado):
    soma, n = 0.0, 0
    for o, l in zip(observado, estimado):
        quadrado = (l - o) * (l - o)
        n += quadrado > 0
        soma = soma + quadrado
    return soma, n


def comparar(fonte, ensaio, legendas):
    t, valores, laminas, contagem = estimativas(fonte, ensaio, parametrosDasLegendas(fonte, legendas))
    soma, n = somaDosDesvios(t.observado, laminas)
    maior = lambda numeros: formatar(max([0.0, *numeros]), "0.000")
    return Comparacao(formatar(sqrt(dividir(soma, n)), "0.000"), maior(valores), maior(laminas), maior(t.observado),
                      valores, laminas, contagem)
