"""From the transversal profile to the whole strip, computed a second time and shared with nothing in src/.

What the screens Form4 (overlap at the centre), Form5 (the strip), Form8 (its table), Form_grafFinal
(its map), Form9 (efficiencies) and Form_grafVen (map of the plane) show, as pure functions: they take
the numbers as the screens hold them, texts already rounded, and give back the texts to be shown.

Symbols. s spacing of the points (m); E spacing between lanes (m); n positions between two lanes; N
points of one side of the profile; V speed (m/h); Q flow (m3/h); R reach (m); Cc length of the carrier
lane (m); Ci, Cf lengths by which the strip begins before and ends behind it (m); Tpi, Tpf stops at the
start and at the end; P positions of the cart; M rows of the field. Depths are mm, intensities mm/h.

Sums run left to right in the order of the indexes, products and quotients as written. Python lists
count from 0, so row a of the screens is element a - 1 here; the rows of a band keep the screens' numbers.
"""

from dataclasses import dataclass, field
from math import cos, exp, floor, sin, sqrt

from calculo import DOIS_PI, Contagem, formatar, intensidadeEmPonto, ler, pontosPorLado, simples

IGUAL, MOVIMENTO, OUTRO = "Igual ao Raio", "Movimentação", "Outro Valor"
COMECOS = {IGUAL: IGUAL, MOVIMENTO: "Início da Movimentação", OUTRO: OUTRO}
FINS = {IGUAL: IGUAL, MOVIMENTO: "Fim da Movimentação", OUTRO: OUTRO}

BRANCO, AZUL = 16777215, 16711680

VALOR_INVALIDO = "Valor Inválido!"
FORA_DO_RAIO = "Valor deve estar: entre zero e o raio de alcance!"
NUMERICO = "Insira um valor numérico!"
MUITO_LONGO = "O comprimento do carreador deve ser menor que 1000 m!"


class ErroDeExecucao(Exception):
    """A run-time error that ends an operation where it arises."""


def dividir(a, b):
    if b == 0:
        raise ErroDeExecucao("Estouro" if a == 0 else "Divisão por zero")
    return a / b


def texto(valor):
    """The plain conversion of a number: at most 15 significant digits."""
    return f"{float(valor) + 0.0:.15g}"


def inteiro(valor):
    """Conversion to a whole number, half to even."""
    return round(valor)


# ---- overlap and statistics -----------------------------------------------------------------

def lados(laminas):
    """The depths of flexA's 2N rows, each side from the lane outward: right, left."""
    N = len(laminas) // 2
    return laminas[N:], laminas[N - 1::-1]


def posicoes(E, s):
    return inteiro(E / s)


def sobrepor(direita, esquerda, n):
    """Depths at the n positions between two lanes: all, of the right sides, of the left sides."""
    if n < 1:
        raise ErroDeExecucao("Índice fora dos limites")
    total, soDireita, soEsquerda = [0.0] * n, [0.0] * n, [0.0] * n
    p = 0
    for h in direita:
        total[p] = total[p] + h
        soDireita[p] = soDireita[p] + h
        p = p + 1 if p + 1 < n else 0
    p = n - 1
    for h in esquerda:
        total[p] = total[p] + h
        soEsquerda[p] = soEsquerda[p] + h
        p = p - 1 if p > 0 else n - 1
    return total, soDireita, soEsquerda


def quarto(n):
    """How many values the lowest quarter of n holds."""
    parte = 0.25 * n
    return floor(parte) + 1 if parte - floor(parte) >= 0.5 else floor(parte)


def soma(valores):
    total = 0.0
    for valor in valores:
        total = total + valor
    return total


def estatisticas(valores, q):
    """Mean, UD and CUC of the values, with the lowest q of them as the quarter."""
    m = len(valores)
    media = dividir(soma(valores), m)
    menores = dividir(soma(sorted(valores)[:q]), q)
    ud = dividir(100 * menores, media)
    cuc = 100 * (1 - dividir(soma(abs(media - x) for x in valores), media * m))
    return media, ud, cuc


# ---- Form4: the centre of the strip ---------------------------------------------------------

def listaDeEspacamentos(R):
    """cmbEspaçamento's items, and the index that is selected."""
    itens = []
    E = 6 * floor(2 * R * 0.4 / 6)
    while E <= 2 * R:
        itens.append(texto(E))
        E = E + 6
    return itens, floor((len(itens) + 1) / 2)


@dataclass
class MaiorCUC:
    flexGrid_A: list = field(default_factory=list)
    label6: str = "0"
    label5: str = None
    label26: list = field(default_factory=list)


def calcularMaiorCUC(itens, laminas, s):
    direita, esquerda = lados(laminas)
    r = MaiorCUC()
    q = 0
    for item in itens:
        E = ler(item)
        n = posicoes(E, s)
        total, _, _ = sobrepor(direita, esquerda, n)
        if 0.25 * n >= 0.5:
            q = quarto(n)
        media, ud, cuc = estatisticas(total, q)
        r.flexGrid_A.append((formatar(E, "0"), formatar(cuc, "0.00"), formatar(ud, "0.00"), formatar(media, "0.00")))
        if cuc > ler(r.label6):
            r.label6 = formatar(cuc, "##0.00")
            r.label5 = f"Espaçamento:  {texto(E)}  m"
    x0, x1 = ler(itens[0]) - 6, ler(itens[-1]) + 6
    t = ler(formatar((x1 - x0) / 8, "#0.0"))
    r.label26 = [formatar(x0 + i * t, "#0.0") for i in range(9)]
    return r


def recusaDoEspacamento(textoE, s):
    """The message with which Command9 refuses a spacing, None where it goes on."""
    if inteiro(ler(textoE)) % 6 != 0:
        return "O valor de espaçamento deve ser múltiplo de seis!"
    if ler(textoE) / s == 0:
        return "Valor de espaçamento inválido!"
    return None


@dataclass
class Sobreposicao:
    flexGrid_B: list = field(default_factory=list)
    label16: str = None     # CUC
    label33: str = None     # UD
    label17: str = None     # mean
    label22: list = None    # 1 to 9; element 0 stays as the screen has it
    label23: list = None    # 1 to 6
    erro: str = None


def sobreporEspacamento(textoE, laminas, s):
    n = posicoes(ler(textoE), s)
    r = Sobreposicao()
    total, soDireita, soEsquerda = sobrepor(*lados(laminas), n)
    d = s / 2
    for k in range(n):
        r.flexGrid_B.append((formatar(d, "0.00"), formatar(soDireita[k], "#0.000"),
                             formatar(soEsquerda[k], "#0.000"), formatar(total[k], "#0.000")))
        d = d + s
    try:
        media, ud, cuc = estatisticas(total, quarto(n) if 0.25 * n >= 0.5 else 0)
    except ErroDeExecucao as erro:
        r.erro = str(erro)
        return r
    r.label17, r.label33, r.label16 = (formatar(v, "##0.00") for v in (media, ud, cuc))
    tx = ler(formatar(s * n / 9, "#0.0"))
    ty = ler(formatar(max(total) / 6, "#0.0"))
    r.label22 = [None] + [formatar(0 + i * tx, "#0.0") for i in range(1, 10)]
    r.label23 = [None] + [formatar(0 + i * ty, "#0.0") for i in range(1, 7)]
    return r


def leituraDaSobreposicao(r, x, y):
    """Label21 and Label30 with the mouse at (x, y) of Picture1."""
    if not (63 <= x <= 378 and 7 <= y <= 217):
        return "", ""
    d = ler(r.label22[9]) * (x - 63) / 315
    i = ler(r.label23[6]) * (217 - y) / 210
    return f"d = {formatar(d, '0.000')} m", f"I = {formatar(i, '0.000')} mm"


# ---- Form5: the strip -----------------------------------------------------------------------

def indiceDistancia(origem, distancia, passo):
    p = floor(abs(distancia) / passo + 0.5)
    return origem + p + 1 if distancia > 0 else origem - p + 1


def indiceDistanciaPositiva(origem, distancia, passo):
    return origem + floor(distancia / passo + 0.5) if distancia > 0 else 0


@dataclass
class Faixa:
    """The boxes of Form5, as texts."""
    Cc: str = "300"
    comeco: str = MOVIMENTO
    fim: str = MOVIMENTO
    Ci: str = "0"
    Cf: str = "0"
    Tpi: str = ""
    Tpf: str = ""


def sugestaoDeParada(comprimento, V):
    return f"Insira um valor de tempo de parada! O programa sugere: {formatar(60 * ler(comprimento) / V, '#0')} min!"


def menorCarreador(R, s):
    return s * 2 * (1 + floor(R / s))


def recusaDoCarreador(textoCc, R, s):
    """The message that refuses a numeric length of the carrier lane, None where it is good."""
    if ler(textoCc) >= 1000:
        return MUITO_LONGO
    if ler(textoCc) < menorCarreador(R, s):
        return f"O comprimento do carreador deve ser maior ou igual a: {texto(menorCarreador(R, s))} m!"
    return None


def recusaDoComprimento(f, R):
    """The message of the routine itself on the lengths of "Outro Valor", None where they are good."""
    for modo, comprimento in ((f.comeco, f.Ci), (f.fim, f.Cf)):
        if modo == OUTRO:
            if comprimento == "":
                return VALOR_INVALIDO
            if ler(comprimento) < 0 or ler(comprimento) > R:
                return FORA_DO_RAIO
    return None


def pegada(v, s, N, intensidades):
    """footprint(i, k): i along the lane, k across, both rising; and the notices' counts."""
    contagem = Contagem()
    anguloGiro = 360 - (v.anguloSecoI + v.anguloSecoII)
    cosseno, seno = cos(v.rotVento), sin(v.rotVento)
    w1 = (N - 0.5) * s
    linhas = []
    for i in range(2 * N):
        u = i * s - w1
        linha = []
        for k in range(2 * N):
            t = k * s - w1
            x = u * cosseno - t * seno
            y = u * seno + t * cosseno
            linha.append(intensidadeEmPonto(v, x, y, anguloGiro, intensidades, contagem))
        linhas.append(linha)
    return linhas, contagem


def campoInvertido(impressao, P, passo, Tpi, Tpf):
    """The depths that the cart leaves on P positions, one row for each step along the lane.

    passo: the time of one step, h; Tpi, Tpf: the stops, h. The first position has the end's stop and
    the last the start's, because the rows are turned round behind. Rows that see only full steps are
    the same sum, and are one list here.
    """
    nn = len(impressao)
    M = nn + P
    meio = [[passo * h for h in linha] for linha in impressao]
    cheia = None
    campo = []
    for a in range(1, M + 1):
        primeira, ultima = max(1, a - nn + 1), min(P, a)
        inteira = primeira > 1 and ultima < P and ultima - primeira + 1 == nn
        if inteira and cheia is not None:
            campo.append(cheia)
            continue
        linha = [0.0] * nn
        for p in range(primeira, ultima + 1):
            i = a - p
            if p == 1:
                linha = [c + Tpf * h for c, h in zip(linha, impressao[i])]
            elif p == P:
                linha = [c + Tpi * h for c, h in zip(linha, impressao[i])]
            else:
                linha = [c + h for c, h in zip(linha, meio[i])]
        if inteira:
            cheia = linha
        campo.append(linha)
    return campo[::-1]


def sobreporLinha(linha, n):
    """One row of the strip, and the mean of its curve.

    The mean takes each position as it stands when the left side has just been added to it, at every
    visit.
    """
    N = len(linha) // 2
    faixa = [0.0] * n
    p = 0
    for j in range(N, 2 * N):
        faixa[p] = faixa[p] + linha[j]
        p = p + 1 if p + 1 < n else 0
    p = n - 1
    S = 0.0
    c = 0
    for j in range(N - 1, -1, -1):
        faixa[p] = faixa[p] + linha[j]
        S = S + faixa[p]
        c = c + 1
        p = p - 1 if p > 0 else n - 1
    return faixa, S / c


def bandas(f, N, s, R):
    """a0, a1, a2, a3: rows counted from 1."""
    Cc = ler(f.Cc)
    antes = {IGUAL: -R, MOVIMENTO: 0, OUTRO: -ler(f.Ci)}[f.comeco]
    depois = {IGUAL: Cc + R, MOVIMENTO: Cc, OUTRO: Cc + ler(f.Cf)}[f.fim]
    return (indiceDistancia(N, antes, s), indiceDistanciaPositiva(N, R, s),
            indiceDistancia(N, Cc - R, s), indiceDistanciaPositiva(N, depois, s))


@dataclass
class Campo:
    """The overlapped field: faixa(a, P), y(a) and the curve's means."""
    N: int
    n: int
    faixa: list
    y: list
    curva: list


def campoDaFaixa(f, impressao, s, E, V):
    nn = len(impressao)
    N = nn // 2
    P = floor(ler(f.Cc) / s)
    Tpf = simples(ler(f.Tpf) / 60)
    Tpi = ler(f.Tpi) / 60
    n = posicoes(E, s)
    w1 = (N - 0.5) * s
    feitas = {}
    faixa, curva = [], []
    for linha in campoInvertido(impressao, P, s / V, Tpi, Tpf):
        if id(linha) not in feitas:
            feitas[id(linha)] = (linha, sobreporLinha(linha, n))
        depositos, media = feitas[id(linha)][1]
        faixa.append(depositos)
        curva.append(media)
    return Campo(N, n, faixa, [a * s - w1 for a in range(nn + P)], curva)


@dataclass
class ResultadoDaFaixa:
    campo: Campo = None
    form5: dict = field(default_factory=dict)
    form8: dict = field(default_factory=dict)
    label33: list = None
    label34: list = None
    cabecalho: tuple = ()
    flexGrid_C: list = field(default_factory=list)
    erro: str = None


def calcularFaixa(f, impressao, s, E, V, R, centro):
    """centro: Form4's three captions CUC, mean, UD."""
    r = ResultadoDaFaixa(campo=campoDaFaixa(f, impressao, s, E, V))
    c = r.campo
    a0, a1, a2, a3 = bandas(f, c.N, s, R)

    def banda(b0, b1):
        if b0 < 1 or b1 > len(c.faixa):
            raise ErroDeExecucao("Índice fora dos limites")
        valores = [h for linha in c.faixa[b0 - 1:b1] for h in linha]
        return [formatar(v, "##0.00") for v in estatisticas(valores, quarto(c.n * (1 + b1 - b0)))]

    try:
        r.form5["Label1"], r.form5["Label58"], r.form5["Label2"] = banda(a0, a1)
        r.form5["Label4"], r.form5["Label60"], r.form5["Label3"] = banda(a2, a3)
        r.form5["Label5"], r.form5["Label7"], r.form5["Label66"] = centro
        media, ud, cuc = banda(a0, a3)
    except ErroDeExecucao as erro:
        r.erro = str(erro)
        return r
    r.form5["Label8"], r.form5["Label63"], r.form5["Label6"] = media, ud, cuc
    r.form8["Label1"] = f"CUC = {cuc} %"
    r.form8["Label2"] = f"Imédio = {media} mm"
    r.form8["Label3"] = f"UD = {ud} %"
    r.form8["Label4"] = f"Início da Faixa Irrigada: {texto((a0 - c.N - 0.5) * s)} m"
    r.form8["Label5"] = f"Final da Faixa Irrigada: {texto((a3 - c.N - 0.5) * s)} m"

    ty = ler(formatar(max(c.curva) / 6, "0.0"))
    if ty == 0:
        raise ErroDeExecucao("Divisão por zero")
    r.label34 = [formatar(i * ty, "#0.0") for i in range(7)]
    tx = ler(formatar((abs(c.y[0]) + c.y[-1]) / 8, "#0")) + 1
    r.label33 = [formatar(c.y[0], "#0")]
    r.label33 += [formatar(ler(r.label33[0]) + i * tx, "#0") for i in range(1, 9)]

    r.cabecalho = ("",) + tuple(f"{texto((p - 0.5) * s)}  m" for p in range(1, c.n + 1))
    r.flexGrid_C = [(f"{texto(y)}  m", *(formatar(h, "0.000") for h in linha)) for y, linha in zip(c.y, c.faixa)]
    return r


# ---- Form_grafFinal: the map of the strip ---------------------------------------------------

def legendasDoMapa(campo, form5, textoE):
    """The captions that hang on the field alone."""
    n = len(campo.faixa) * campo.n
    media = soma(h for linha in campo.faixa for h in linha) / n
    return {"Label7": f"{formatar(media, '0.000')} mm",
            "Label16": f"CUC - Toda: {form5['Label6']}%",
            "Label2": f"UD - Toda: {form5['Label63']}%",
            "Label17": f"Imédio - Toda: {form5['Label8']} mm",
            "Label1": f"Espaçamento do Carreador: {texto(ler(textoE))} m"}


def _expandir(valores, lugares):
    """Linear interpolation of a row of values at fractional indexes."""
    fim = len(valores) - 1
    saida = []
    for q in lugares:
        k = min(max(floor(q), 0), fim - 1) if fim else 0
        saida.append(valores[k] + (valores[min(k + 1, fim)] - valores[k]) * (q - k))
    return saida


def rasterDaFaixa(faixa, lugaresLinha, lugaresColuna):
    porColuna, feitas = [], {}
    for linha in faixa:
        if id(linha) not in feitas:
            feitas[id(linha)] = _expandir(linha, lugaresColuna)
        porColuna.append(feitas[id(linha)])
    fim = len(porColuna) - 1
    saida = []
    for q in lugaresLinha:
        k = min(max(floor(q), 0), fim - 1)
        z, a, b = q - k, porColuna[k], porColuna[k + 1]
        saida.append([x + (y - x) * z for x, y in zip(a, b)])
    return saida


def deBordaABorda(celulas, amostras):
    return [c * (celulas - 1) / (amostras - 1) for c in range(amostras)]


def noMeioDaAmostra(celulas, amostras):
    return [min(max((c + 0.5) * celulas / amostras - 0.5, 0), celulas - 1) for c in range(amostras)]


def maiorDoMapa(faixa):
    """The text of Label15, or None where it hangs on the places at which the raster samples.

    Tried are the largest depth itself, and rasters of 500 by 300 that run from the first cell to the
    last, that stop one sample short of the last, and that hold each sample's middle.
    """
    M, n = len(faixa), len(faixa[0])
    maiores = [max(h for linha in faixa for h in linha)]
    for lugares in (deBordaABorda, noMeioDaAmostra):
        raster = rasterDaFaixa(faixa, lugares(M, 500), lugares(n, 300))
        maiores.append(max(h for linha in raster for h in linha))
        maiores.append(max(h for linha in raster[:-1] for h in linha[:-1]))
    textos = {(formatar(m, "0.0"), floor(m) + 1) for m in maiores}
    return f"Maior Precipitação: {textos.pop()[0]} mm/h" if len(textos) == 1 else None


# ---- Form9: efficiencies --------------------------------------------------------------------

@dataclass
class Eficiencia:
    legendas: dict = field(default_factory=dict)    # Label3 to Label6
    flexA: list = field(default_factory=list)
    T: list = field(default_factory=list)           # 49 rows, columns 1 to 8 at indexes 0 to 7


def laminasCandidatas(media, cv):
    candidatas = []
    x = 0.99
    for _ in range(49):
        L = 1 + (cv / 0.1975) * (x ** 0.135 - (1 - x) ** 0.135)
        if L <= 0:
            outro = x + 0.02 - 0.005
            L = 1 + (cv / 0.1975) * (outro ** 0.135 - (1 - outro) ** 0.135)
        candidatas.append(media * L)
        x = x - 0.02
    return candidatas


def areaEstimada(z):
    """Upper tail of the normal distribution, by Hastings' polynomial."""
    t = dividir(1, 1 + 0.2316419 * z)
    phi = (1 / sqrt(DOIS_PI)) * exp(-(z * z) / 2)
    p = phi * (0.31938153 * t - 0.356563782 * t ** 2 + 1.781477937 * t ** 3 - 1.821255978 * t ** 4
               + 1.330274429 * t ** 5)
    area = p if p >= 0 else 1 - p
    return min(area, 1)


def primeiraLinha(candidatas, ic):
    """The first row shown, counted from 1; one past the last where none is."""
    if ic > candidatas[0]:
        return 1
    for r in range(1, len(candidatas)):
        if candidatas[r - 1] >= ic >= candidatas[r]:
            return r if candidatas[r - 1] == ic else r + 1
    return len(candidatas) + 1


def analisarEficiencia(f, flexGrid_C, N, s, R, V, Q, ic):
    """flexGrid_C: its rows of texts, the distance in column 0."""
    r = Eficiencia()
    A = s * s
    a0, _, _, a3 = bandas(f, N, s, R)
    Vg = Vp = S = 0.0
    c = 0
    daFaixa = []
    for a, linha in enumerate(flexGrid_C, 1):
        for celula in linha[1:]:
            d = float(celula)
            Vg = Vg + d / 1000 * A
            if a0 <= a <= a3:
                S = S + d
                c = c + 1
                daFaixa.append(d)
            else:
                Vp = Vp + d / 1000 * A
    tempo = ler(f.Cc) / V + ler(f.Tpi) / 60 + ler(f.Tpf) / 60
    Vt = tempo * Q
    r.legendas = {"Label3": f"Volume Total Aplicado: {formatar(Vt, '#0.00')} m³",
                  "Label4": f"Tempo de Irrigação: {formatar(tempo, '#0.00')} h",
                  "Label5": f"Erro Volumétrico: {formatar(100 * abs(Vt - Vg) / Vt, '#0.00')} %",
                  "Label6": f"Volume Perdido nas Extremidades: {formatar(Vp, '#0.00')} m³"}

    media = dividir(S, c)
    desvio = sqrt(soma((d - media) * (d - media) for d in daFaixa) / c)
    area = soma(A for _ in daFaixa)
    for ir in laminasCandidatas(media, dividir(desvio, media)):
        adequada = util = excesso = deficit = 0.0
        for d in daFaixa:
            if d >= ir:
                adequada = adequada + A
                excesso = excesso + A * (d - ir) / 1000
                util = util + A * ir / 1000
            else:
                util = util + A * d / 1000
                deficit = deficit + A * (ir - d) / 1000
        z = dividir(ir - media, desvio)
        r.T.append((ir, 100 * adequada / area, util, 100 * util / Vt, 100 * util / (ir / 1000 * area),
                    excesso, deficit, areaEstimada(z)))
    primeira = primeiraLinha([linha[0] for linha in r.T], ic)
    for numero, linha in enumerate(r.T[primeira - 1:], 1):
        r.flexA.append((str(numero), *(formatar(linha[k], "#0.00") for k in (0, 1, 3, 4, 5, 6))))
    return r


# ---- Form_grafVen: the map of the plane -----------------------------------------------------

@dataclass
class MapaDoPlano:
    legendas: dict = field(default_factory=dict)    # Label7 to Label9
    label15: list = None
    label3: list = None
    label4: list = None
    topo: int = 0
    S: float = 0.0
    campo: list = None                              # M(j, i): j along the lane from the top, i across


def desenharIntensidades(v, S, intensidades, label17, label2):
    N = 2 * pontosPorLado(v, S, intensidades)
    anguloGiro = 360 - (v.anguloSecoI + v.anguloSecoII)
    cosseno, seno = cos(v.rotVento), sin(v.rotVento)
    xmax = S * (N / 2 - 0.5)
    campo = [[0.0] * N for _ in range(N)]
    maior = 0.0
    for i in range(N):
        y = -xmax + simples(i * S)
        for j in range(N):
            x = xmax - simples(j * S)
            X = x * cosseno - y * seno
            Y = y * cosseno + x * seno
            campo[j][i] = intensidadeEmPonto(v, X, Y, anguloGiro, intensidades)
            maior = max(maior, campo[j][i])
    topo = floor(maior) + 1
    marcas = [formatar(-xmax + k * ((2 * xmax) / 6), "0.0") for k in range(7)]
    return MapaDoPlano(
        {"Label7": f"Maior Precipitação: {formatar(maior, '0.000')} mm/h",
         "Label8": f"Velocidade do Vento: {label17} m/s", "Label9": f"Direção do Vento: {label2}º"},
        ["0.0 mm/h", f"{formatar(topo / 2, '0.0')} mm/h", f"{formatar(topo, '0.0')} mm/h"],
        marcas, list(marcas), topo, S, campo)


def amostrarPlano(campo, S):
    """Z, 200 by 200: the field after both passes.

    Each pass carries its position on by adding the step, at least one sample for each pair of cells:
    where the last position comes out beyond the last cell its sample is never taken and stays 0.
    """
    N = len(campo)
    xmax = S * (N / 2 - 0.5)
    posicao = [-xmax + k * S for k in range(N)]
    passo = (2 * xmax) / 199
    T = [[0.0] * N for _ in range(200)]
    for i in range(N):
        u, c = -xmax, 0
        for k in range(N - 1):
            while True:
                T[c][i] = campo[k][i] + ((campo[k + 1][i] - campo[k][i]) * (u - posicao[k])) / S
                u = u + passo
                c = c + 1
                if not posicao[k] <= u <= posicao[k + 1]:
                    break
    Z = [[0.0] * 200 for _ in range(200)]
    descida = [xmax - k * S for k in range(N)]
    for c in range(200):
        w, r = xmax, 0
        for k in range(N - 1):
            while True:
                Z[c][r] = T[c][k + 1] + ((T[c][k] - T[c][k + 1]) * (w - descida[k + 1])) / S
                w = w - passo
                r = r + 1
                if not descida[k] >= w >= descida[k + 1]:
                    break
    return Z


def canais(cor):
    return cor & 255, (cor & 65280) // 256, (cor & 16711680) // 65536


def corDoMapa(valor, topo):
    """The colour of an intensity between white at 0 and blue at topo, as red, green, blue."""
    return tuple(inteiro(a + valor * ((b - a) / topo)) for a, b in zip(canais(BRANCO), canais(AZUL)))
