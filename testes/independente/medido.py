"""Sprinklers from measurements, computed a second time and shared with nothing in src/.

What PerfilForm (radial test), Form_EC (moving profile measured in the field), Perfil and FormUnifo
(overlap of what was measured) show, as pure functions: they take the texts that the boxes and grids
hold and give back the texts to be shown. Behind Perfil the screens are the catalogue's, fed from its
captions: calculo.py and uniformidade.py.

Symbols. r distance (m); i intensity; s spacing of the collectors (m); c number of collectors on each
side; L lines of collectors; V speed (m/h); Q flow (m3/h); R reach (m); E spacing between lanes (m).
Depths are mm, intensities mm/h, but m/h in the table of the radial test.

Products and quotients are evaluated left to right as written, a square is x * x and a cube x * x * x.
Where the order isn't fixed (a straight line between two points) the last bit is free: every number
that is written as a text is kept in numeros beside its pattern, so that firme() can tell whether its
text hangs on that bit.
"""

import re
from contextlib import contextmanager
from dataclasses import dataclass, field
from math import atan, isfinite, sin, sqrt, tan

import calculo
import uniformidade as u
from calculo import DOIS_PI, PI, formatar, ler
from uniformidade import ErroDeExecucao, dividir, soma, texto

# What a run-time error says after its name, where an input explains it.
LEITURAS_DO_FIM = "são precisas duas leituras ao menos, e diferentes as duas últimas"
LAMINAS_DO_PERFIL = ("confira a velocidade e as lâminas: é preciso ter água em duas posições de cada lado, com lâminas "
                     "diferentes nas duas últimas")
SEM_UNIFORMIDADE = "confira as lâminas e o espaçamento: todas são zero, ou são poucas demais"
SEM_LAMINA_CALCULADA = "confira a velocidade e o espaçamento"


@contextmanager
def explicado(explicacao):
    try:
        yield
    except ErroDeExecucao as erro:
        raise ErroDeExecucao(f"{erro}: {explicacao}") from None

# The radial test has literals of its own.
PI_DO_ENSAIO = 3.141592654
DOIS_PI_DO_ENSAIO = 6.283185308

SIM, NAO = "sim", "não"

ESTIMAR = ("Insira um valor de vazão. Caso você não o faça, o programa estimará a vazão a partir do perfil "
           "radial!")
DIFERIU = ("A vazão estimada diferiu em 10% a vazão aplicada, recomenda-se repetir o ensaio. Caso continue, os "
           "valores de intensidade de precipitação sofrerão alterações!")
SEM_ANGULO = "aviso: Ângulo do jato não informado: a simulação usa 0º."

MM_H, MM, ML = "mm/h", "mm", "ml"


# ---- texts ----------------------------------------------------------------------------------

_NUMERO = re.compile(r"\s*[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?\s*")


def numerico(t):
    """Whether the strict conversion takes the text."""
    return _NUMERO.fullmatch(t) is not None and isfinite(float(t))


def firme(valor, padrao):
    """Whether the text of the value survives a change of its last digits."""
    folga = 1e-9 * max(1.0, abs(valor))
    return formatar(valor - folga, padrao) == formatar(valor + folga, padrao)


def celula(digitado, padrao):
    """What a cell shows of a text typed into it: numbers in its format, junk as it stands."""
    return formatar(float(digitado), padrao) if numerico(digitado) else digitado


class Recusa(Exception):
    """The operation ends after its message."""


class Conversa:
    """The boxes that an operation shows, with the answers that it gets."""

    def __init__(self, *respostas):
        self.respostas = list(respostas)
        self.usadas = []
        self.saida = []

    def recusar(self, mensagem):
        self.saida.append(f"mensagem: {mensagem}")
        raise Recusa

    def perguntar(self, pergunta):
        resposta = self.respostas.pop(0)
        self.usadas.append(resposta)
        self.saida.append(f"pergunta: {pergunta} -> {resposta}")
        return resposta == SIM


# ---- Perfil ---------------------------------------------------------------------------------

@dataclass
class Perfil:
    """What the screen shows of a sprinkler. Lists that the screen counts from 1 hold a None at 0."""
    label11: str = ""       # sprinkler
    label13: str = ""       # nozzles
    label1: str = ""        # pressure
    label2: str = ""        # flow, a bare number
    label17: str = ""       # reach, a bare number
    titulo: str = None      # None from Form_EC
    angulo: str = ""        # PerfilForm's Text8
    nome: str = ""          # PerfilForm's Text7
    lblRaio: list = field(default_factory=list)
    lblIntensidade: list = field(default_factory=list)
    label6: list = None     # None where the last bits decide
    label7: list = None
    R: float = 0.0
    imedia: float = 0.0
    relativos: list = field(default_factory=list)   # 22 points
    numeros: list = field(default_factory=list)

    def escrever(self, valor, padrao):
        self.numeros.append((valor, padrao))
        return formatar(valor, padrao)

    def firme(self):
        return all(firme(valor, padrao) for valor, padrao in self.numeros)


def reamostrar(pontos):
    """The 22 points of a relative profile given as a polyline from 0 to 1."""
    saida = [(0.0, pontos[0][1])]
    x = 0.025
    for _ in range(20):
        for (r1, i1), (r2, i2) in zip(pontos, pontos[1:]):
            if r1 <= x <= r2:
                saida.append((x, i1 + (x - r1) * (i2 - i1) / (r2 - r1)))
                break
        x = x + 0.05
    return saida + [(1.0, 0.0)]


def escreverPerfil(p, relativos, R, Q, pi, formatoRaio):
    """The 22 points, the reach and the chart's captions."""
    p.R = R
    p.imedia = dividir(Q * 1000, pi * (R * R))
    p.relativos = relativos
    p.label17 = p.escrever(R, "##0.00")
    p.lblRaio = [None] + [p.escrever(R * x, formatoRaio) for x, _ in relativos]
    p.lblIntensidade = [None] + [p.escrever(p.imedia * y, "##0.000") for _, y in relativos]

    passos = {formatar(alcance / 9, "#0.0") for alcance in (R, ler(p.label17))}
    if len(passos) == 1 and firme(R / 9, "#0.0"):
        passoR = ler(passos.pop())
        p.label6 = [formatar(0.0 + passoR * k, "#0.0") for k in range(11)]

    x = [None] + [ponto[0] for ponto in relativos]
    y = [None] + [ponto[1] for ponto in relativos]
    antes = max([0.0] + [v * p.imedia for v in y[1:]])
    calculo.amostrar(x, y)
    depois = max([0.0] + [v * p.imedia for v in y[1:]])
    # The largest of the 22 points, or of the ordinates as the sampling leaves them: shown where it is the same.
    passos = {formatar(maior / 3, "#0.0") for maior in (antes, depois)}
    if len(passos) == 1 and firme(antes / 3, "#0.0"):
        passoI = ler(passos.pop())
        p.label7 = [formatar(0.0 + passoI * k, "#0.0") for k in range(7)]


def leituraDoPerfil(p, x, y):
    """Label15 and Label16 with the mouse inside the chart, in its pixels."""
    assert 77 <= x <= 427 and 28 <= y <= 238
    r = ler(p.label6[10]) * (x - 77) / 350
    i = ler(p.label7[6]) * (238 - y) / 210
    return f"r = {formatar(r, '0.000')} m", f"i = {formatar(i, '0.000')} mm/h"


# ---- PerfilForm: the radial test ------------------------------------------------------------

@dataclass
class EnsaioRadial:
    """PerfilForm's boxes and cells, as texts."""
    unidade: str = MM_H
    aspersor: str = ""      # Text7
    bocais: str = ""        # Text9
    pressao: str = ""       # Text2
    angulo: str = ""        # Text8
    vazao: str = ""         # Text1
    tempo: str = ""         # Text4
    diametro: str = ""      # Text3
    r: list = field(default_factory=list)
    leituras: list = field(default_factory=list)


def positivo(t):
    return numerico(t) and float(t) > 0


def conferirCampos(e, conversa):
    if e.unidade == MM and not positivo(e.tempo):
        e.tempo = ""
        conversa.recusar("Tempo de ensaio com valor numérico inválido!")
    if e.unidade == ML and not (positivo(e.diametro) and positivo(e.tempo)):
        e.diametro = e.tempo = ""
        conversa.recusar("Área do coletor ou tempo de ensaio com valor numérico inválido!")
    if e.angulo != "":
        angulo, e.angulo = e.angulo, ""
        if not numerico(angulo):
            conversa.recusar("Ângulo do jato com valor numérico inválido!")
        if not 10 <= float(angulo) <= 60:
            conversa.recusar("O valor de ângulo do jato deve estar entre 10 - 60º!")
        e.angulo = angulo


def conferirGrade(e, conversa):
    for coluna in (e.r, e.leituras):
        anterior = None
        for t in coluna:
            if t == "":
                conversa.recusar("Há alguma célula da planilha vazia!")
            if not numerico(t):
                conversa.recusar("Insira valores numéricos!")
            if coluna is e.r:
                if anterior is not None and not float(t) > anterior:
                    conversa.recusar("O valores de distância ao aspersor devem ser crescentes!")
                anterior = float(t)
    if float(e.r[0]) == 0:
        conversa.recusar("O primeiro valor de distância ao aspersor deve ser diferente de zero!")
    if float(e.leituras[-1]) == 0:
        conversa.recusar("O último valor de intensidade de precipitação deve ser diferente de zero!")


def intensidades(e):
    """The readings in m/h."""
    valores = [float(t) for t in e.leituras]
    if e.unidade == MM_H:
        return [v / 1000 for v in valores]
    tempo = float(e.tempo)
    if e.unidade == MM:
        return [v / ((tempo / 60) * 1000) for v in valores]
    D = float(e.diametro)
    A = (PI_DO_ENSAIO * (D * D)) / 4
    return [v / (A * ((tempo / 60) * 100)) for v in valores]


def reta(p1, p2):
    """Slope and intercept of the line through two points."""
    (r1, i1), (r2, i2) = p1, p2
    b = dividir(i2 - i1, r2 - r1)
    return b, i1 - b * r1


def noAspersor(pontos, imax):
    """The intensity at the sprinkler, from the first two readings."""
    _, a = reta(pontos[0], pontos[1])
    if a <= 0:
        return 2 * pontos[0][1]
    return imax if a > 2 * imax else a


def alcanceDoEnsaio(pontos):
    """Where the last line reaches zero, at most a quarter of the last spacing beyond the last reading."""
    (r1, _), (r2, _) = pontos[-2:]
    b, a = reta(pontos[-2], pontos[-1])
    R = dividir(-a, b)
    limite = 0.25 * (r2 - r1) + r2
    return min(R, limite)


def volume(pontos):
    """The flow (m3/h) of a profile of m and m/h: the volume under its lines."""
    total = 0.0
    for p1, p2 in zip(pontos, pontos[1:]):
        b, a = reta(p1, p2)
        r1, r2 = p1[0], p2[0]
        total = total + DOIS_PI_DO_ENSAIO * ((a * (r2 * r2) / 2 + b * (r2 * r2 * r2) / 3)
                                             - (a * (r1 * r1) / 2 + b * (r1 * r1 * r1) / 3))
    return total


def conferirRazao(razao, conversa):
    """Asks on where the estimated flow is more than a tenth away from the given one."""
    if (razao > 1.1 or razao < 0.9) and not conversa.perguntar(DIFERIU):
        raise Recusa


def perfilFechado(e):
    """The points from the sprinkler to the reach, and the reach."""
    i = intensidades(e)
    pontos = list(zip([float(t) for t in e.r], i))
    R = alcanceDoEnsaio(pontos)
    return [(0.0, noAspersor(pontos, max(i)))] + pontos + [(R, 0.0)], R


def avancar(e, conversa):
    """The road to Perfil; raises Recusa or ErroDeExecucao where it ends early, with e's boxes as they are left."""
    conferirCampos(e, conversa)
    conferirGrade(e, conversa)
    with explicado(LEITURAS_DO_FIM):
        pontos, R = perfilFechado(e)
    if R < 12:
        conversa.recusar("Para as simulações, o raio de alcance deve ser superior a 12 m!")
    qest = volume(pontos)
    p = Perfil(angulo=e.angulo, nome=e.aspersor)
    if e.vazao == "":
        if conversa.perguntar(ESTIMAR):
            raise Recusa
        e.vazao = p.escrever(qest, "0.000")
    if not numerico(e.vazao):
        e.vazao = ""
        conversa.recusar("Insira valores numéricos!")
    if float(e.vazao) <= 0:
        e.vazao = ""
        conversa.recusar("Valor numérico de vazão inválido!")
    Q = float(e.vazao)
    conferirRazao(qest / Q, conversa)
    relativos = [(r / R, dividir(PI_DO_ENSAIO * i * (R * R), qest)) for r, i in pontos]
    escreverPerfil(p, reamostrar(relativos), R, Q, PI_DO_ENSAIO, "##0.000")
    p.label11 = f"Aspersor: {e.aspersor or 'Não especificado'}"
    p.titulo = f"Características Técnicas do Aspersor {e.aspersor or 'não Especificado'}"
    p.label13 = f"Bocais: {e.bocais} mm" if e.bocais else "Bocais: N/E"
    p.label1 = f"Pressão: {e.pressao} m.c.a." if e.pressao else "Pressão: N/E"
    p.label2 = e.vazao
    return p


CODIGOS = {MM_H: "1", MM: "2", ML: "3"}


def linhasDoArquivoRadial(e):
    """The radial test file, line by line; empty boxes as they are saved."""
    linhas = [e.aspersor or "Não Especificado"]
    linhas += [t or "N/E" for t in (e.bocais, e.pressao, e.angulo, e.vazao)]
    linhas += [str(len(e.r)), CODIGOS[e.unidade]]
    if e.unidade != MM_H:
        linhas.append(e.tempo)
    if e.unidade == ML:
        linhas.append(e.diametro)
    return linhas + [f"{r}\t{i}" for r, i in zip(e.r, e.leituras)]


def depoisDeLido(e):
    """The screen's boxes and cells after the file of a test has been read."""
    def caixa(t, vazia="N/E"):
        return t or vazia
    return EnsaioRadial(e.unidade, caixa(e.aspersor, "Não Especificado"), caixa(e.bocais), caixa(e.pressao),
                        caixa(e.angulo), caixa(e.vazao), e.tempo if e.unidade != MM_H else "",
                        e.diametro if e.unidade == ML else "",
                        [celula(t, "0.00") for t in e.r], [celula(t, "0.000") for t in e.leituras])


# ---- Form_EC: the moving profile ------------------------------------------------------------

@dataclass
class EnsaioMovel:
    """Form_EC's boxes, lists and cells, as texts.

    leituras: 2c rows of L texts, the left side first, its farthest collector at the top; the right
    side goes on from the nearest to the farthest.
    """
    unidade: str = MM
    aspersor: str = ""      # Text6
    bocais: str = ""        # Text8
    pressao: str = ""       # Text13
    anguloJato: str = ""    # Text1
    vazao: str = ""         # Text12
    velocidade: str = ""    # Text11
    giro: str = ""          # Text9
    ventoVelocidade: str = ""   # Text2
    ventoDirecao: str = ""      # Text3
    diametro: str = ""      # Text7
    linhas: str = "3"       # Combo1
    distancia: str = "6.0"  # Combo2
    lados: str = "20"       # Combo3
    espacamento: str = "2.0"    # Combo4
    leituras: list = field(default_factory=list)


PARA_PERFIL = (1, 1.5, 2, 3, 6), "O espaçamento entre coletores deve ser 1, 1.5, 2, 3 ou 6 m!"
PARA_SOBREPOR = (2, 3, 6), "O espaçamento entre coletores deve ser 2, 3 ou 6 m!"


def conferirMovel(e, conversa, espacamentos, mensagem, vazaoPodeFaltar):
    if e.unidade == ML and not numerico(e.diametro):
        e.diametro = ""
        conversa.recusar("Diâmetro do coletor com valor numérico inválido!")
    if ler(e.espacamento) not in espacamentos:
        conversa.recusar(mensagem)
    celulas = [t for linha in e.leituras for t in linha]
    if "" in celulas:
        conversa.recusar("Há alguma célula da planilha vazia!")
    if not all(numerico(t) for t in celulas):
        conversa.recusar("Insira valores numéricos!")
    if not (numerico(e.vazao) or vazaoPodeFaltar and e.vazao == ""):
        conversa.recusar("Insira um valor numérico de vazão!")
    if not numerico(e.velocidade):
        conversa.recusar("Insira um valor numérico de velocidade!")


def laminas(e):
    """The readings as depths, row by row as the grid has them."""
    valores = [[float(t) for t in linha] for linha in e.leituras]
    if e.unidade == MM:
        return valores
    d = float(e.diametro)
    a = PI * (d * d) / 4
    with explicado("confira o diâmetro do coletor e os volumes"):
        return [[dividir(10 * v, a) for v in linha] for linha in valores]


def ladosMedidos(profundidades):
    """Right and left side, each a list of rows from the lane outward."""
    c = len(profundidades) // 2
    return profundidades[c:], profundidades[c - 1::-1]


def cordaCheia(x, r):
    return 0.0 if x / r >= 1 else sqrt(r * r - x * x)


def cordaSetor(x, r, alfa):
    if x / r >= 1:
        return 0.0
    if x / r < sin(alfa):
        return x / tan(alfa)
    return sqrt(r * r - x * x)


def centroSegmento(r, x):
    corda = sqrt(r * r - x * x)
    return 2 * (r * r - x * x) ** 1.5 / (3 * (r * r * atan(corda / x) - x * corda))


@dataclass
class Aneis:
    R: float
    x: list                 # 1 to c
    intensidade: list       # 1 to c + 1
    raioAnel: list          # 1 to c + 1


def ultimaMolhada(D):
    """Index from 1 of the last mean depth above 0."""
    for c in range(len(D), 0, -1):
        if D[c - 1] > 0:
            return c
    raise ErroDeExecucao("Índice fora dos limites")


def descascar(D, s, alfa, V, conversa=None):
    """The rings' intensities (mm/h) from mean depths D (mm) at s * (j - 0.5): from the rim to the centre."""
    if any(d < 0 for d in D):
        conversa.recusar("Os valores de lâmina devem ser positivos!")
    c = ultimaMolhada(D)
    if c == 1:
        raise ErroDeExecucao("Índice fora dos limites")
    D = [None] + list(D)
    x = [None] + [s * (j - 0.5) for j in range(1, len(D))]
    if D[c - 1] < D[c]:
        conversa.recusar("A média do penúltimo valor deve ser maior que o último valor em cada lado da linha!")
    m, b = reta((x[c - 1], D[c - 1]), (x[c], D[c]))
    R = max(dividir(-b, m), x[c] + 0.25 * s)

    i, raio = [0.0] * (c + 2), [0.0] * (c + 2)
    i[c] = dividir(D[c], dividir(cordaCheia(x[c], R) + cordaSetor(x[c], R, alfa), V))
    raio[c] = centroSegmento(R, x[c])
    i[c + 1], raio[c + 1] = 0.0, R
    for j in range(c - 1, 0, -1):
        raio[j] = centroSegmento(x[j + 1], x[j])
        t = (cordaSetor(x[j], x[j + 1], alfa) + cordaCheia(x[j], x[j + 1])) / V
        S = 0.0
        for k in range(c, j, -1):
            fora = R if k == c else x[k + 1]
            tk = ((cordaSetor(x[j], fora, alfa) - cordaSetor(x[j], x[k], alfa))
                  + (cordaCheia(x[j], fora) - cordaCheia(x[j], x[k]))) / V
            S = S + tk * i[k]
        i[j] = dividir(D[j] - S, t)
    return Aneis(R, x[:c + 1], i, raio)


def vazaoDosAneis(a):
    """The sum of the volumes between consecutive rings, without the disc inside the first (L/h)."""
    total = 0.0
    for k in range(1, len(a.raioAnel) - 1):
        r1, r2 = a.raioAnel[k], a.raioAnel[k + 1]
        m, b = reta((r1, a.intensidade[k]), (r2, a.intensidade[k + 1]))
        total = total + DOIS_PI * ((m * (r2 * r2 * r2) / 3 + b * (r2 * r2) / 2)
                                   - (m * (r1 * r1 * r1) / 3 + b * (r1 * r1) / 2))
    return total


def mediasDosLados(profundidades):
    direita, esquerda = ladosMedidos(profundidades)
    return [(soma(e) / len(e) + soma(d) / len(d)) / 2 for e, d in zip(esquerda, direita)]


def perfilRadialDoMovel(e, conversa):
    """Form_EC's road to Perfil; raises Recusa or ErroDeExecucao where it ends early."""
    conferirMovel(e, conversa, *PARA_PERFIL, vazaoPodeFaltar=True)
    V = float(e.velocidade)
    alfa = ((360 - float(e.giro)) / 2) * PI / 180
    D = mediasDosLados(laminas(e))
    with explicado(LAMINAS_DO_PERFIL):
        a = descascar(D, ler(e.espacamento), alfa, V, conversa)
    somaV = vazaoDosAneis(a)
    p = Perfil()
    if e.vazao == "":
        conversa.perguntar(ESTIMAR)
        e.vazao = p.escrever(somaV, "0.000")
    if float(e.vazao) <= 0:
        conversa.recusar("Valor numérico de vazão inválido!")
    Q = float(e.vazao)
    conferirRazao(somaV / 1000 / Q, conversa)
    pontos = [(r / a.R, dividir(PI * i * (a.R * a.R), somaV)) for r, i in zip(a.raioAnel[1:], a.intensidade[1:])]
    # Inside the first ring the profile is level.
    escreverPerfil(p, reamostrar([(0.0, pontos[0][1])] + pontos), a.R, Q, PI, "#0.0")
    p.label7 = None     # left to a roteiro of its own
    p.label11 = f"Aspersor: {e.aspersor or 'Não especificado'}"
    p.label13 = f"Bocais: {e.bocais} mm" if e.bocais else "Bocais: N/E"
    p.label1 = f"Pressão de Serviço: {e.pressao} m.c.a." if e.pressao else "Pressão de Serviço: N/E"
    p.label2 = p.escrever(Q, "0.000")
    return p


def linhasDoArquivoMovel(e):
    """The travelling test file, line by line; empty boxes as they are saved."""
    linhas = [e.aspersor or "Não Especificado"]
    linhas += [t or "N/E" for t in (e.bocais, e.pressao, e.anguloJato, e.vazao, e.velocidade, e.giro)]
    linhas += [e.linhas, e.distancia, e.lados, e.espacamento, e.ventoVelocidade, e.ventoDirecao]
    linhas += ["1"] if e.unidade == MM else ["2", e.diametro]
    return linhas + ["\t".join(linha) for linha in e.leituras]


def cabecalhoDoMovel(e):
    unidade = "mm" if e.unidade == MM else "ml"
    return [f"Linha {k} - I({unidade})" for k in range(1, int(e.linhas) + 1)]


def posicoesDoMovel(e):
    """The row headers: the left side's farthest collector first."""
    c, s = int(e.lados), ler(e.espacamento)
    esquerda = [f"Ce{j} = {texto((j - 0.5) * s)} m" for j in range(c, 0, -1)]
    return esquerda + [f"Cd{j} = {texto((j - 0.5) * s)} m" for j in range(1, c + 1)]


# ---- FormUnifo: overlap of the measured profile ---------------------------------------------

def listaDoMovel(lados, s):
    """The list of spacings: the wetted width of the test in the place of twice the reach."""
    itens, _ = u.listaDeEspacamentos(lados * s)
    return itens[1:] if itens and itens[0] == "0" else itens


def sobreporLinhas(profundidades, E, s):
    """The overlapped depths, a list for each line, and their mean by position."""
    n = u.posicoes(E, s)
    direita, esquerda = ladosMedidos(profundidades)
    L = len(profundidades[0])
    linhas = [u.sobrepor([h[k] for h in direita], [h[k] for h in esquerda], n)[0] for k in range(L)]
    return linhas, [soma(linha[p] for linha in linhas) / L for p in range(n)]


@dataclass
class Detalhe:
    """What sobreporMovel writes."""
    flexGrid_B: list
    label16: str        # CUC
    label33: str        # UD
    label17: str        # mean


@dataclass
class SobreposicaoMovel:
    e: EnsaioMovel
    itens: list = field(default_factory=list)
    flexGrid_A: list = field(default_factory=list)
    melhor: str = None
    numeros: list = field(default_factory=list)

    def escrever(self, valor, padrao):
        self.numeros.append((valor, padrao))
        return formatar(valor, padrao)

    def firme(self):
        return all(firme(valor, padrao) for valor, padrao in self.numeros)

    def sobrepor(self, textoE):
        """sobreporMovel at the spacing of the list's box."""
        E, s = ler(textoE), ler(self.e.espacamento)
        linhas, media = sobreporLinhas(laminas(self.e), E, s)
        grade = []
        d = s / 2
        for p, m in enumerate(media):
            grade.append((formatar(d, "0.00"), *(self.escrever(linha[p], "0.000") for linha in linhas),
                          self.escrever(m, "0.000")))
            d = d + s
        valores = [h for linha in linhas for h in linha]
        m = len(valores)
        _, ud, cuc = u.estatisticas(valores, u.quarto(m) if 0.25 * m >= 0.5 else 0)
        coletado = self.escrever(soma(media) / len(media), "##0.00")
        self.numeros.append((soma(valores) / m, "##0.00"))
        dividir(1000 * float(self.e.vazao), E * float(self.e.velocidade))
        return Detalhe(grade, self.escrever(cuc, "##0.00"), self.escrever(ud, "##0.00"), coletado)


def recusaDoEspacamentoMovel(textoE):
    return "O espaçamento deve ser múltiplo de seis!" if u.inteiro(ler(textoE)) % 6 != 0 else None


def prepararSobreposicao(e, conversa):
    """Form_EC's road to FormUnifo, but for the detail of the best spacing."""
    conferirMovel(e, conversa, *PARA_SOBREPOR, vazaoPodeFaltar=False)
    profundidades, s = laminas(e), ler(e.espacamento)
    r = SobreposicaoMovel(e, listaDoMovel(int(e.lados), s))
    maior, q = "0", 0
    for item in r.itens:
        linhas, _ = sobreporLinhas(profundidades, ler(item), s)
        valores = [h for linha in linhas for h in linha]
        if 0.25 * len(valores) >= 0.5:
            q = u.quarto(len(valores))
        with explicado(SEM_UNIFORMIDADE):
            media, ud, cuc = u.estatisticas(valores, q)
        r.flexGrid_A.append((formatar(ler(item), "0"), *(r.escrever(v, "0.00") for v in (cuc, ud, media))))
        if cuc > ler(maior):
            maior, r.melhor = r.escrever(cuc, "##0.00"), item
    return r


# ---- the screens behind Perfil --------------------------------------------------------------

class AspersorMedido:
    """A Perfil with the names by which Form7 reads a sprinkler."""

    modelo, principal, auxiliar, pressao = "", "", "", ""

    def __init__(self, p):
        self.lblRaioAlcance, self.lblVazao, self.lblIntensidade = p.label17, p.label2, p.lblIntensidade


class Form7Ou(calculo.Form7):
    """Form7 fed from Perfil, and for the jet angle from PerfilForm."""

    def __init__(self, p):
        super().__init__(AspersorMedido(p))
        self.angulo = p.angulo
        self.titulo = f"Perfil Transversal de Aplicação de Água com Vento - Aspersor {p.nome or 'não Especificado'}"
        self.legendas.update(Label20=p.label11, Label19=p.label13, Label18=p.label1)

    def vento(self):
        v = super().vento()
        v.anguloJato = (ler(self.angulo) * PI) / 180
        return v

    def aviso(self):
        return [SEM_ANGULO] if self.angulo == "" else []
