"""The road of the catalogue sprinkler, computed a second time and shared with nothing in src/.

From the choice of nozzles and pressure to the transversal profile under wind, with the captions,
charts and mouse read-outs that the screens form1 and Form7 show on the way.

Symbols. R reach (m); W wind speed (m/s); A to F the wind parameters times R; S spacing of the
collectors (m); V speed of the cart (m/h); Q flow (m3/h); K flow coefficient; Pe effective
pressure (m.c.a.). Intensities are mm/h, depths mm. Wind-frame points have x towards the place the
wind comes from; ground-frame points have x ahead along the lane and y to the right.

Every product and quotient is evaluated left to right as written, a square is x * x and a cube
x * x * x: near the limit of the solver's convergence the last bit of a term shows in the result.
Lists that carry the numbering of the screens (1 to 22) hold a None at index 0.
"""

import re
import struct
from dataclasses import dataclass, field
from decimal import ROUND_HALF_UP, Context, Decimal
from math import atan, cos, floor, isfinite, sin, sqrt

import tabelas

# The literals of pi; their truncation is part of the numbers.
PI = 3.14159265358979
DOIS_PI = 6.28318530717958
TRES_MEIOS_PI = 4.712388980384685

MODELOS = ("TX15", "TX20", "TX30")
ESPACAMENTOS = (1.5, 2.0, 3.0, 6.0)
PARAMETROS_PADRAO = ("0.0362", "0.0131", "-0.0097", "0.0026", "0.4003", "-0.3361")
ANGULO_JATO = "24"

BRANCO, PRETO, AZUL = "#ffffff", "#000000", "#0000ff"


# ---- text and numbers -----------------------------------------------------------------------

_CONTEXTO = Context(prec=400)


def formatar(valor, padrao):
    """Format: 0 a digit that always stands, # one that stands when significant.

    Decimal(valor) is the exact binary value, so only an exact tie is rounded away from zero.
    """
    inteiro, _, fracao = padrao.partition(".")
    casas = Decimal(1).scaleb(-len(fracao))
    arredondado = Decimal(valor).quantize(casas, rounding=ROUND_HALF_UP, context=_CONTEXTO)
    digitos, _, decimais = f"{abs(arredondado):f}".partition(".")
    texto = digitos.lstrip("0").rjust(inteiro.count("0"), "0")
    if fracao:
        texto += "." + decimais
    return ("-" if arredondado < 0 else "") + texto


_PREFIXO = re.compile(r"\s*([-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?)")


def ler(texto):
    """The longest numeric prefix; 0 for junk."""
    achado = _PREFIXO.match(texto)
    return float(achado.group(1)) if achado else 0.0


def simples(valor):
    """The value as a single-precision variable holds it."""
    return struct.unpack("f", struct.pack("f", valor))[0]


def menorTexto(valor):
    """The shortest text that reads back to the same double: the shorter of fixed and scientific."""
    valor = float(valor)
    sinal, digitos, expoente = Decimal(repr(valor)).normalize().as_tuple()
    mantissa = "".join(map(str, digitos))
    if mantissa == "0":
        fixo = cientifico = "0"
    else:
        # Whole numbers beyond the shortest digits are written out in full in the fixed form.
        fixo = str(int(abs(valor))) if expoente >= 0 else f"{abs(Decimal(repr(valor))):f}"
        if expoente < 0 and "." in fixo:
            fixo = fixo.rstrip("0").rstrip(".")
        potencia = expoente + len(mantissa) - 1
        cientifico = mantissa[0] + ("." + mantissa[1:] if len(mantissa) > 1 else "")
        cientifico += f"e{'-' if potencia < 0 else '+'}{abs(potencia):02d}"
    return ("-" if sinal else "") + (fixo if len(fixo) <= len(cientifico) else cientifico)


# ---- catalogue: flow, reach, effective pressure ---------------------------------------------

def vazao(modelo, auxiliar, principal, pressao):
    if modelo == "TX30":
        return tabelas.COEF_VAZAO_TX30[principal] * sqrt(pressao)
    return tabelas.COEF_VAZAO[modelo][principal][auxiliar] * sqrt(pressao)


def _parabola(coeficientes, pressao):
    a, b, c = coeficientes
    return a * (pressao * pressao) + b * pressao + c


def raio(modelo, principal, pressao):
    return _parabola(tabelas.RAIO[modelo][principal], pressao)


def raioAuxiliar(auxiliar, pressao):
    return _parabola(tabelas.RAIO_AUXILIAR[auxiliar], pressao) if auxiliar else 0.0


def pressaoEfetiva(modelo, auxiliar, principal, pressao):
    """The pressure at which each of two jets on one supply acts; pressao itself with one jet."""
    coeficientes = tabelas.COEF_VAZAO[modelo]
    k12 = coeficientes[principal][auxiliar]
    razao = k12 / (coeficientes[0][auxiliar] + coeficientes[principal][0])
    return razao * razao * pressao


def intensidadeMedia(q, alcance):
    return (q / (alcance * alcance * PI)) * 1000


# ---- catalogue: radial profile --------------------------------------------------------------

@dataclass
class Aspersor:
    """What form1 shows of a sprinkler, and the unrounded numbers behind its chart."""
    modelo: str
    principal: int
    auxiliar: int
    pressao: int
    q: float = 0.0
    pe: float = 0.0
    r: float = 0.0
    imedia: float = 0.0
    imediaPrincipal: float = 0.0
    lblVazao: str = ""
    lblRaioAlcance: str = ""
    lblInt: str = ""
    lblRaio: list = field(default_factory=list)
    lblIntensidade: list = field(default_factory=list)
    ordenadas: list = field(default_factory=list)    # y(1..22), as the sampling leaves them
    amostras: list = field(default_factory=list)     # 62 points (relative distance, ratio)
    label6: list = field(default_factory=list)
    label7: list = field(default_factory=list)
    tracos: list = field(default_factory=list)


def distanciasRelativas(modelo):
    rel = [None, 0.0]
    if modelo == "TX30":
        x = 0.025
        for _ in range(20):
            rel.append(x)
            x = x + 0.05
    else:
        rel += [0.025 + (k - 2) * 0.05 for k in range(2, 22)]
    return rel + [1.0]


def linhasDaPressao(linhas, pressao):
    """The rows below and above a pressure, and the pressure of the lower one."""
    pressoes = sorted(linhas)
    if pressao < pressoes[0]:
        return linhas[pressoes[0]], linhas[pressoes[0]], pressoes[0]
    if pressao > pressoes[-1]:
        raise IndexError("pressure above the catalogue's")
    baixa = max(p for p in pressoes[:-1] if p <= pressao)
    return linhas[baixa], linhas[baixa + 10], baixa


def razoesNaPressao(linhas, pressao):
    baixa, alta, base = linhasDaPressao(linhas, pressao)
    return [None] + [((a - b) * (pressao - base)) / 10 + b for a, b in zip(alta, baixa)]


def aspersorDoCatalogo(modelo, principal, auxiliar, pressao):
    """One evaluation of the sprinkler with everything that form1 shows of it."""
    a = Aspersor(modelo, principal, auxiliar, pressao)
    rel = distanciasRelativas(modelo)
    if modelo == "TX30":
        _perfilDeUmJato(a, rel)
    else:
        _perfilDeDoisJatos(a, rel)
    a.amostras = amostrar(rel, a.ordenadas)
    _graficoDoPerfil(a)
    return a


def _escreverResumo(a):
    a.lblVazao = formatar(a.q, "##0.00")
    a.lblRaioAlcance = formatar(a.r, "##0.00")
    a.lblInt = formatar(a.imedia, "##0.00")


def _perfilDeUmJato(a, rel):
    a.q = vazao("TX30", 0, a.principal, a.pressao)
    a.pe = float(a.pressao)
    a.r = raio("TX30", a.principal, a.pressao)
    a.imedia = intensidadeMedia(a.q, a.r)
    _escreverResumo(a)
    # This model multiplies by the reach as shown, with its two decimals.
    alcanceMostrado = ler(a.lblRaioAlcance)
    a.ordenadas = razoesNaPressao(tabelas.PERFIL["TX30"][a.principal], a.pressao)
    a.lblRaio = [None] + [formatar(rel[k] * alcanceMostrado, "##0.000") for k in range(1, 23)]
    a.lblIntensidade = [None] + [formatar(a.ordenadas[k] * a.imedia, "#0.000") for k in range(1, 23)]


def _perfilDeDoisJatos(a, rel):
    a.q = vazao(a.modelo, a.auxiliar, a.principal, a.pressao)
    a.pe = pressaoEfetiva(a.modelo, a.auxiliar, a.principal, a.pressao)
    qPrincipal = vazao(a.modelo, 0, a.principal, a.pe)
    a.r = raio(a.modelo, a.principal, a.pe)
    a.imedia = intensidadeMedia(a.q, a.r)
    a.imediaPrincipal = intensidadeMedia(qPrincipal, a.r)
    _escreverResumo(a)

    r = [None] + [rel[k] * a.r for k in range(1, 23)]
    razoes = razoesNaPressao(tabelas.PERFIL[a.modelo][a.principal], a.pe)
    i = [None] + [razoes[k] * a.imediaPrincipal for k in range(1, 23)]
    if a.auxiliar:
        qAuxiliar = vazao(a.modelo, a.auxiliar, 0, a.pe)
        raioAux = raioAuxiliar(a.auxiliar, a.pe)
        imediaAuxiliar = (qAuxiliar / (PI * (raioAux * raioAux))) * 1000
        razoesAux = razoesNaPressao(tabelas.PERFIL_AUXILIAR[a.auxiliar], a.pe)
        ia = [None] + [razoesAux[k] * imediaAuxiliar for k in range(1, 23)]
        ra = [None] + [rel[k] * raioAux for k in range(1, 23)]
        for k in range(1, 23):
            if r[k] <= raioAux:
                extra = 0.0
                for j in range(1, 22):      # to the end: at a shared radius the last one stays
                    if ra[j] <= r[k] <= ra[j + 1]:
                        extra = ia[j] + ((r[k] - ra[j]) * (ia[j + 1] - ia[j])) / (ra[j + 1] - ra[j])
                i[k] = i[k] + extra

    a.lblRaio = [None] + [formatar(r[k], "##0.000") for k in range(1, 23)]
    a.lblIntensidade = [None] + [formatar(i[k], "#0.000") for k in range(1, 23)]
    a.ordenadas = [None] + [i[k] / a.imedia for k in range(1, 23)]


def derivadasSegundas(x, y):
    """Natural cubic spline through points 1 to 22: the second derivatives, 0 at both ends."""
    diagonal, direito = [None] * 23, [None] * 23
    for k in range(2, 22):
        diagonal[k] = 2 * (x[k + 1] - x[k - 1])
        direito[k] = 6 * ((y[k + 1] - y[k]) / (x[k + 1] - x[k]) - (y[k] - y[k - 1]) / (x[k] - x[k - 1]))
    for k in range(3, 22):
        h = x[k] - x[k - 1]
        fator = h / diagonal[k - 1]
        diagonal[k] = diagonal[k] - fator * h
        direito[k] = direito[k] - fator * direito[k - 1]
    m = [None] + [0.0] * 22
    for k in range(21, 1, -1):
        m[k] = (direito[k] - (x[k + 1] - x[k]) * m[k + 1]) / diagonal[k]
    return m


def amostrar(x, y):
    """The 62 points of the chart.

    The value is written back over y(j), so a later sample of the segment starts from the
    earlier one's value and not from the table's; the chart carries this shape.
    """
    m = derivadasSegundas(x, y)
    amostras = []
    for j in range(1, 22):
        h = x[j + 1] - x[j]
        ponto = x[j]
        while ponto <= x[j + 1]:
            a = (x[j + 1] - ponto) / h
            b = 1 - a
            c = (a * a - 1) * (a / 6) * h * h
            d = (b * b - 1) * (b / 6) * h * h
            y[j] = b * y[j + 1] + a * y[j] + c * m[j] + d * m[j + 1]
            amostras.append((ponto, y[j]))
            ponto = ponto + 0.01875
    amostras.append((1.0, 0.0))
    assert len(amostras) == 62
    return amostras


def linha(x1, y1, x2, y2, cor, largura):
    return "linha " + " ".join(menorTexto(v) for v in (x1, y1, x2, y2)) + f" {cor} {largura}"


def _graficoDoPerfil(a):
    """Axis captions and strokes of form1's Picture1, in twips: 1155 to 6405 by 420 to 3570."""
    imax = 0.0
    for k in range(1, 23):
        imax = max(imax, a.ordenadas[k] * a.imedia)
    passoR = ler(formatar(ler(a.lblRaioAlcance) / 9, "#0.0"))
    passoI = ler(formatar(imax / 5, "#0.0"))
    a.label6 = [formatar(0.0 + passoR * k, "#0.0") for k in range(11)]
    a.label7 = [formatar(0.0 + passoI * k, "#0.0") for k in range(7)]
    escalaR, escalaI = ler(a.label6[10]), ler(a.label7[6])

    for k in range(24):
        a.tracos.append(linha(1365 + 210 * k, 420, 1365 + 210 * k, 3570, BRANCO, 1))
    for k in range(14):
        a.tracos.append(linha(1155, 630 + 210 * k, 6405, 630 + 210 * k, BRANCO, 1))
    for k in range(9):
        a.tracos.append(linha(1680 + 525 * k, 420, 1680 + 525 * k, 3570, PRETO, 1))
    for k in range(5):
        a.tracos.append(linha(1155, 945 + 525 * k, 6405, 945 + 525 * k, PRETO, 1))
    pontos = [(1155 + 5250 * (x * a.r) / escalaR, 3570 - 3150 * (y * a.imedia) / escalaI)
              for x, y in a.amostras]
    for (x1, y1), (x2, y2) in zip(pontos, pontos[1:]):
        a.tracos.append(linha(x1, y1, x2, y2, AZUL, 2))


def leituraDoPerfil(a, x, y):
    """Label15 and Label16 with the mouse at (x, y); None outside the chart, where they stay."""
    if not (1155 <= x <= 6405 and 420 <= y <= 3570):
        return None
    r = ler(a.label6[10]) * (x - 1155) / 5250
    i = ler(a.label7[6]) * (3570 - y) / 3150
    return f"r = {formatar(r, '0.000')} m", f"i = {formatar(i, '0.000')} mm/h"


def pressaoMostrada(pressao, unidade):
    if unidade == "optKG":
        return formatar(pressao / 10, "#.0")
    if unidade == "optKPA":
        return formatar(pressao * 9.80665, "#")
    return str(pressao)


# ---- reading the radial profile -------------------------------------------------------------

# Lower bounds of the segments, then the reach.
_LIMITES = (0.0, 0.025, 0.075, 0.125, 0.175, 0.225, 0.275, 0.325, 0.375, 0.425, 0.475, 0.525,
            0.575, 0.625, 0.675, 0.725, 0.775, 0.825, 0.875, 0.925, 0.975, 1.0)
_LARGURAS = (0.025,) + (0.05,) * 19 + (0.025,)


def perfilRadialEm(rho, anguloGiro, intensidades):
    """Intensity (mm/h) at a relative distance; 0 outside [0, 1).

    intensidades: the 22 captions as numbers. A sprinkler that turns anguloGiro degrees applies
    360 / anguloGiro times the full circle's intensity.
    """
    valor = 0.0
    for s in range(21):
        if _LIMITES[s] <= rho < _LIMITES[s + 1]:
            i1, i2 = intensidades[s], intensidades[s + 1]
            valor = (rho - _LIMITES[s]) * (i2 - i1) / _LARGURAS[s] + i1
            break
    return valor * (360 / anguloGiro)


# ---- wind model -----------------------------------------------------------------------------

LIMITE_DE_PASSOS = 26
TOLERANCIA = 10.0 ** -2     # m, on the sum of both residuals


@dataclass
class Vento:
    """One setting of the model. Angles in degrees, but anguloJato and rotVento in radians."""
    R: float
    W: float
    A: float
    B: float
    C: float
    D: float
    E: float
    F: float
    anguloSecoI: float
    anguloSecoII: float
    rotacao: float
    anguloJato: float
    rotVento: float


@dataclass
class Contagem:
    """How many points of a field the model left without physical meaning."""
    naoConvergiu: int = 0
    areaNaoPositiva: int = 0


def termos(v, x, y):
    """sin(anguloJato)^2, q and the four terms that the matrix shares."""
    R, B, C, D, E, F = v.R, v.B, v.C, v.D, v.E, v.F
    seno = sin(v.anguloJato)
    s2 = seno * seno
    r = sqrt(x * x + y * y)
    q = sqrt(s2 * (x * x) + y * y) / r
    g1 = B / r + 2 * C / R
    g2 = F / (R * R) - D / (r * r)
    g3 = D / (r * r) + E / (R * r) + F / (R * R)
    g4 = D + E * r / R + F * (r * r) / (R * R)
    return s2, q, g1, g2, g3, g4


def comVento(v, x, y):
    """Where the drop that lands at (x, y) without wind lands with it."""
    R, W = v.R, v.W
    seno = sin(v.anguloJato)
    r = sqrt(x * x + y * y)
    q = sqrt(seno * seno * (x * x) + y * y) / r
    T = (v.A + v.B * (r / R) + v.C * ((r / R) * (r / R))) * W
    P = v.D / (r * R) + v.E / (R * R) + v.F * r / (R * R * R)
    return x - T - P * q * r * x * W, y - P * W * q * r * y


def matriz(v, x, y):
    """The partial derivatives of comVento: J11 and J12 of its x, J21 and J22 of its y."""
    R, W = v.R, v.W
    s2, q, g1, g2, g3, g4 = termos(v, x, y)
    j11 = 1 - (W * x / R) * (g1 + g2 * q * x + g3 * (x * s2 / q) + g4 * (q / x))
    j12 = (-y * W / R) * (g1 + g2 * q * x + g3 * (x / q))
    j21 = (-W * y * x / R) * (g2 * q + g3 * (s2 / q))
    j22 = 1 - (W * y / R) * (g2 * q * y + g3 * (y / q) + g4 * (q / y))
    return j11, j12, j21, j22


def pontoSemVento(v, x0, y0):
    """Newton's method on comVento(x, y) = (x0, y0), from (x0, y0).

    Returns the point after the last step and whether its pass met the tolerance: the residual
    tested is that of the point before the step.
    """
    x, y = x0, y0
    for _ in range(LIMITE_DE_PASSOS):
        xv, yv = comVento(v, x, y)
        f1, f2 = -(xv - x0), -(yv - y0)
        j11, j12, j21, j22 = matriz(v, x, y)
        det = j11 * j22 - j12 * j21
        x = x + (f1 * j22 - f2 * j12) / det
        y = y + (f2 * j11 - f1 * j21) / det
        residuo = abs(f1) + abs(f2)
        if not residuo > TOLERANCIA:
            break
    if not (isfinite(x) and isfinite(y) and isfinite(residuo)):
        raise OverflowError("the solution left the doubles")
    return x, y, residuo <= TOLERANCIA


def distanciaNoSetor(anguloSecoI, anguloSecoII, rotacao, xs, ys, R):
    """Distance of a ground-frame point from the sprinkler, 0 out of the wetted sector or reach."""
    d = sqrt(xs * xs + ys * ys)
    if d >= R:
        return 0.0
    rad1 = ((anguloSecoI + rotacao) * PI) / 180
    rad2 = (((360 - anguloSecoII) + rotacao) * PI) / 180
    if xs == 0 or ys == 0:
        return 0.0
    if ys < 0:
        theta = PI / 2 + atan(xs / ys)
    else:
        theta = atan(xs / ys) + TRES_MEIOS_PI
    if rad2 > DOIS_PI and theta < rad2 - DOIS_PI:
        theta = theta + DOIS_PI
    elif rad1 < 0 and theta > rad1 + DOIS_PI:
        theta = theta - DOIS_PI
    return d if rad1 <= theta <= rad2 else 0.0


def intensidadeEmPonto(v, x0, y0, anguloGiro, intensidades, contagem=None):
    """Intensity (mm/h) that falls on a wind-frame point.

    The intensity at the point of origin is divided by the change of area, of which only the
    diagonal J11 * J22 enters.
    """
    x, y, convergiu = pontoSemVento(v, x0, y0)
    if contagem is not None and not convergiu:
        contagem.naoConvergiu += 1
    if sqrt(x * x + y * y) >= v.R:
        return 0.0
    xs = x * cos(v.rotVento) + y * sin(v.rotVento)
    ys = y * cos(v.rotVento) - x * sin(v.rotVento)
    d = distanciaNoSetor(v.anguloSecoI, v.anguloSecoII, v.rotacao, xs, ys, v.R)
    if d / v.R == 0:
        return 0.0
    i = perfilRadialEm(d / v.R, anguloGiro, intensidades)
    if i == 0:
        return 0.0
    j11, _, _, j22 = matriz(v, x, y)
    if contagem is not None and j11 * j22 <= 0:
        contagem.areaNaoPositiva += 1
    return i / (j11 * j22)


# ---- Form7: its captions and the transversal profile ----------------------------------------

def espacamentoInicial(lblRaioAlcance):
    """The spacing nearest 5 % of the reach, the larger one on a tie."""
    alvo = ler(lblRaioAlcance) * 0.05
    melhor = ESPACAMENTOS[0]
    for espacamento in ESPACAMENTOS:
        if (alvo - melhor) * (alvo - melhor) >= (alvo - espacamento) * (alvo - espacamento):
            melhor = espacamento
    return formatar(melhor, "0.0")


class Form7:
    """The captions of Form7, and its results once calcular() has run."""

    def __init__(self, a):
        self.aspersor = a
        self.combo2 = espacamentoInicial(a.lblRaioAlcance)
        self.text1 = "50"
        self.parametros = list(PARAMETROS_PADRAO)
        self.barras = {"HScroll1": 0, "HScroll2": 0, "HScroll3": 60, "HScroll4": 60, "HScroll5": 0}
        nome = a.modelo
        bocais = f"Bocal: {a.principal} mm" if nome == "TX30" else f"Bocais: {a.principal} x {a.auxiliar} mm"
        self.legendas = {
            "Label20": f"ASPERSOR: KELMO-{nome}", "Label19": bocais,
            "Label18": f"Pressão: {a.pressao} m.c.a.",
            "Label27": f"Vazão: {a.lblVazao} m³/h", "Label28": f"Raio: {a.lblRaioAlcance} m",
            "Label2": "0", "Label17": "0.0", "Label29": "Vento: 0.0 m/s",
            "Label24": "60", "Label33": "60", "Label35": "240",
            "Label36": "0", "Label37": "Rotação = 0º",
            "Label39": " 60º", "Label41": "60º", "Labelang": "240º",
            "Label23": "Velocidade = 50 m/h",
        }

    def digitarVelocidade(self, texto):
        self.text1 = texto
        self.legendas["Label23"] = f"Velocidade = {texto} m/h"

    def rolar(self, barra, valor):
        """A bar set to the value that it already has raises no event, and its captions stay."""
        if self.barras[barra] == valor:
            return
        self.barras[barra] = valor
        l = self.legendas
        if barra == "HScroll1":
            l["Label2"] = formatar(valor, "0")
        elif barra == "HScroll2":
            l["Label17"] = formatar(valor / 10, "0.0")
            l["Label29"] = f"Vento: {l['Label17']} m/s"
        elif barra == "HScroll5":
            l["Label36"] = str(valor)
            l["Label37"] = f"Rotação: {valor}º"
        else:
            seco, noDesenho = ("Label24", "Label39") if barra == "HScroll3" else ("Label33", "Label41")
            l[seco] = str(valor)
            l["Label35"] = formatar(360 - (ler(l["Label24"]) + ler(l["Label33"])), "0")
            l["Labelang"] = l["Label35"] + "º"
            l[noDesenho] = l[seco] + "º"

    def vento(self):
        """The setting as read from the captions, with their rounding."""
        l = self.legendas
        R = ler(self.aspersor.lblRaioAlcance)
        return Vento(R, simples(ler(l["Label17"])), *(ler(p) * R for p in self.parametros),
                     anguloSecoI=ler(l["Label24"]), anguloSecoII=ler(l["Label33"]),
                     rotacao=ler(l["Label36"]), anguloJato=(ler(ANGULO_JATO) * PI) / 180,
                     rotVento=DOIS_PI - (ler(l["Label2"]) * PI) / 180)

    def calcular(self):
        """The transversal profile; returns the notices that it gives."""
        v = self.vento()
        S = simples(ler(self.combo2))
        V = ler(self.text1)
        intensidades = [float(t) for t in self.aspersor.lblIntensidade[1:]]
        N = 2 * pontosPorLado(v, S, intensidades)
        self.distancias, self.laminas, contagem = perfilTransversal(v, S, V, N, intensidades)
        self.flexA = [(str(i + 1), formatar(d, "0.00"), formatar(h, "0.000"))
                      for i, (d, h) in enumerate(zip(self.distancias, self.laminas))]
        self._grafico(S, N)
        avisos = []
        fim = "os valores podem não ter sentido físico."
        if contagem.naoConvergiu:
            avisos.append(f"aviso: em {contagem.naoConvergiu} de {N * N} pontos o modelo de vento não convergiu; {fim}")
        if contagem.areaNaoPositiva:
            avisos.append(f"aviso: em {contagem.areaNaoPositiva} de {N * N} pontos o fator de área do modelo não é positivo; {fim}")
        return avisos

    def _grafico(self, S, N):
        """Axis captions and strokes of Picture2, in pixels: 68 to 348 by 28 to 203."""
        maior = max([0.0] + self.laminas)
        passo = ler(formatar(maior / 4, "0.0"))
        if passo == 0:
            raise ZeroDivisionError("the largest depth is below 0.2 mm: the chart has no scale")
        self.label4 = [formatar(passo * k, "0.0") for k in range(6)]
        meiaLargura = (N / 2 - 0.5) * S
        self.label3 = [formatar(-meiaLargura + k * (2 * meiaLargura / 8), "0.0") for k in range(9)]
        topo = 5 * passo
        largura = 2 * S * (N / 2 - 0.5)

        self.tracos = []
        for k in range(19):
            self.tracos.append(linha(82 + 14 * k, 28, 82 + 14 * k, 203, BRANCO, 1))
        for k in range(12):
            self.tracos.append(linha(68, 35 + 14 * k, 348, 35 + 14 * k, BRANCO, 1))
        for k in range(7):
            self.tracos.append(linha(103 + 35 * k, 28, 103 + 35 * k, 203, PRETO, 1))
        for k in range(4):
            self.tracos.append(linha(68, 63 + 35 * k, 348, 63 + 35 * k, PRETO, 1))
        pontos = [(68 + (280 * (d - self.distancias[0])) / largura, 203 - (h * 175) / topo)
                  for d, h in zip(self.distancias, self.laminas)]
        for (x1, y1), (x2, y2) in zip(pontos, pontos[1:]):
            self.tracos.append(linha(x1, y1, x2, y2, AZUL, 2))

    def leitura(self, x, y):
        """Label14d and Label14I with the mouse at (x, y)."""
        d = i = 0.0
        if 68 <= x <= 348 and 28 <= y <= 203:
            d = (ler(self.label3[8]) * (x - 208)) / 140
            i = (ler(self.label4[5]) * (203 - y)) / 175
        return f"d = {formatar(d, '0.000')} m", f"I = {formatar(i, '0.000')} mm"


def pontosPorLado(v, S, intensidades):
    """Half the points of a side: enough that the point straight downwind stays dry."""
    N = floor(v.R / S)
    while True:
        N = N + 1
        if not intensidadeEmPonto(v, -(S * (N - 0.5)), S / 2, 360, intensidades) > 0:
            return N


def perfilTransversal(v, S, V, N, intensidades):
    """Distances from the lane and depths, from the leftmost distance to the rightmost."""
    anguloGiro = 360 - (v.anguloSecoI + v.anguloSecoII)
    cosseno, seno = cos(v.rotVento), sin(v.rotVento)
    contagem = Contagem()
    totais = [0.0] * N
    distancias = []
    for i in range(N):
        xi = S * (N / 2 - 0.5) - i * S
        distancias.append(-xi)
        for j in range(N):
            yj = S * (-N / 2 + 0.5) + simples(j * S)
            X = xi * cosseno - yj * seno
            Y = yj * cosseno + xi * seno
            # Along the lane x falls from ahead to behind, the order in which each total adds.
            totais[j] = totais[j] + intensidadeEmPonto(v, X, Y, anguloGiro, intensidades, contagem)
    laminas = [(total * S) / V for total in totais]
    return distancias, laminas, contagem
