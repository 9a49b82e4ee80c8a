#!/usr/bin/env python3
"""Checks medido.py against hand-worked values and against laws that it must obey.

    python3 verificar_medido.py
"""

from math import cos, isclose, pi, radians, sin, sqrt

import calculo as c
import medido as m
import uniformidade as u
from medido import ML, MM, MM_H, NAO, SIM, Conversa, EnsaioMovel, EnsaioRadial, Recusa


def termina(tipo, funcao, *argumentos):
    """What the exception says with which the call ends; None where it ends well."""
    try:
        funcao(*argumentos)
    except tipo as erro:
        return str(erro)
    return None


def perto(a, b, tolerancia=1e-9):
    return all(isclose(x, y, rel_tol=tolerancia, abs_tol=tolerancia) for x, y in zip(a, b, strict=True))


def ensaio(r, i, **campos):
    return EnsaioRadial(r=list(r), leituras=list(i), **campos)


def textos():
    for t, sim in (("1", True), (" -2.5 ", True), ("+.5", True), ("1e3", True), ("3.", True), ("", False), ("1,5", False),
                   ("1 2", False), ("inf", False), ("nan", False), ("0x10", False), ("1e400", False), ("N/E", False)):
        assert m.numerico(t) == sim, t
    assert m.celula("2.345", "0.00") == "2.35" and m.celula("1.3575", "0.000") == "1.357" and m.celula("x", "0.00") == "x"
    assert m.celula("", "0.000") == ""
    assert m.firme(0.1234, "0.000") and not m.firme(0.1235, "0.000") and not m.firme(12.425 - 1e-12, "0.00")


def fechamento():
    # 6 mm/h at 10 m and 3 at 20: 9 at the sprinkler; the line ends at 30 m, the limit at 22.5.
    e = ensaio(("10.00", "20.00"), ("6.000", "3.000"))
    pontos, R = m.perfilFechado(e)
    assert R == 22.5 and perto([x for p in pontos for x in p], (0, 0.009, 10, 0.006, 20, 0.003, 22.5, 0))
    # 2 pi (9 r^2/2 - 0.3 r^3/3) to 20 m, and 2 pi (27 r^2/2 - 1.2 r^3/3) from there: 2000 pi and 156.25 pi.
    assert isclose(m.volume(pontos), 2156.25 * pi / 1000, rel_tol=1e-8)
    # A steeper end: the line reaches zero at 20 + 10/9 m, before the limit.
    assert isclose(m.perfilFechado(ensaio(("10.00", "20.00"), ("10.000", "1.000")))[1], 20 + 10 / 9)
    # Rising so that the line passes below 0 at the sprinkler; and above twice the largest reading.
    assert m.noAspersor([(5, 1.0), (6, 3.0)], 3.0) == 2.0 and m.noAspersor([(5, 2.0), (10, 4.0)], 4.0) == 4.0
    assert m.noAspersor([(5, 20.0), (6, 15.0)], 20.0) == 20.0
    assert m.noAspersor([(5, 2.0), (10, 1.0)], 2.0) == 3.0 and m.noAspersor([(1, 3.0), (2, 1.0)], 2.4) == 2.4
    assert m.noAspersor([(4, 3.0), (8, 1.0)], 2.5) == 5.0       # exactly twice stays
    assert termina(m.ErroDeExecucao, m.alcanceDoEnsaio, [(3, 1.0), (6, 1.0)]) == "Divisão por zero"
    # A cone sampled anywhere is closed to the same cone.
    for r in ((2, 5, 11, 23, 29), (10, 28), (1, 2, 3, 29.5)):
        cone = ensaio([f"{x:.2f}" for x in r], [f"{12 * (1 - x / 30):.6f}" for x in r])
        pontos, R = m.perfilFechado(cone)
        assert isclose(R, 30, rel_tol=1e-5) and isclose(pontos[0][1], 0.012, rel_tol=1e-5)
        assert isclose(m.volume(pontos), pi * 0.012 * 30 * 30 / 3, rel_tol=1e-4)


def unidades():
    mmh = [7.1, 7.3, 6.9, 5.2, 2.4]
    r = ("4.00", "8.00", "12.00", "16.00", "20.00")
    A = pi * 8.2 * 8.2 / 4                              # cm2: 1 mm is A / 10 ml
    horas = 37.5 / 60
    em = {MM_H: m.intensidades(ensaio(r, [f"{v:.12f}" for v in mmh])),
          MM: m.intensidades(ensaio(r, [f"{v * horas:.12f}" for v in mmh], unidade=MM, tempo="37.5")),
          ML: m.intensidades(ensaio(r, [f"{v * horas * A / 10:.12f}" for v in mmh], unidade=ML, tempo="37.5", diametro="8.2"))}
    for valores in em.values():
        assert perto(valores, [v / 1000 for v in mmh], 1e-8)


def radial():
    # With the estimated flow the 22 points are the readings' own line, within the rounding of the flow.
    e = ensaio(("10.00", "20.00"), ("6.000", "3.000"))
    p = m.avancar(e, Conversa(NAO))
    assert e.vazao == p.label2 == "6.774" and p.label17 == "22.50"
    assert p.lblIntensidade[1] == "9.000" and p.lblIntensidade[2] == "8.831" and p.lblIntensidade[22] == "0.000"
    assert p.lblRaio[1] == "0.000" and p.lblRaio[3] == "1.688" and p.lblRaio[22] == "22.500"
    assert p.label11 == "Aspersor: Não especificado" and p.titulo == "Características Técnicas do Aspersor não Especificado"
    assert p.label13 == "Bocais: N/E" and p.label1 == "Pressão: N/E"
    assert p.label6[:3] == ["0.0", "2.5", "5.0"] and p.label6[10] == "25.0"
    # Twice the flow, once the box is answered: twice the intensities.
    e = ensaio(("10.00", "20.00"), ("6.000", "3.000"), vazao="13.548", aspersor="A", bocais="20 x 6", pressao="50")
    conversa = Conversa(SIM)
    dobro = m.avancar(e, conversa)
    assert conversa.saida == [f"pergunta: {m.DIFERIU} -> sim"]
    assert perto([float(t) for t in dobro.lblIntensidade[1:]], [2 * float(t) for t in p.lblIntensidade[1:]], 1.1e-3)
    assert (dobro.label11, dobro.label13, dobro.label1) == ("Aspersor: A", "Bocais: 20 x 6 mm", "Pressão: 50 m.c.a.")
    # The volume under the relative profile is that of a mean of 1, and under the shown one the flow.
    e = ensaio([f"{2 * k}.00" for k in range(1, 13)], [f"{9 - 0.05 * k * k:.3f}" for k in range(1, 13)], vazao="14")
    pontos, R = m.perfilFechado(e)
    q = m.volume(pontos)
    relativos = [(r / R, m.PI_DO_ENSAIO * i * R * R / q) for r, i in pontos]
    assert isclose(sum((y1 * (2 * x1 + x2) + y2 * (x1 + 2 * x2)) * (x2 - x1) / 3
                       for (x1, y1), (x2, y2) in zip(relativos, relativos[1:])), 1, rel_tol=1e-8)
    p = m.avancar(e, Conversa(SIM))
    mostrado = [(float(r), float(i) / 1000) for r, i in zip(p.lblRaio[1:], p.lblIntensidade[1:])]
    assert isclose(m.volume(mostrado), 14, rel_tol=3e-3)
    # Each of the 20 middle points lies on the polyline.
    for x, y in m.reamostrar(relativos)[1:21]:
        (x1, y1), (x2, y2) = next((a, b) for a, b in zip(relativos, relativos[1:]) if a[0] <= x <= b[0])
        assert isclose(y, y1 * (x2 - x) / (x2 - x1) + y2 * (x - x1) / (x2 - x1))


def recusas():
    def mensagem(e, *respostas):
        conversa = Conversa(*respostas)
        assert termina(Recusa, m.avancar, e, conversa) is not None
        return conversa.saida[-1].split(": ", 1)[1]

    r, i = ("4.00", "8.00", "15.00"), ("6.000", "5.000", "2.000")
    assert mensagem(ensaio(r, i, unidade=MM, tempo="0")) == "Tempo de ensaio com valor numérico inválido!"
    e = ensaio(r, i, unidade=ML, tempo="60", diametro="x")
    assert mensagem(e) == "Área do coletor ou tempo de ensaio com valor numérico inválido!" and e.tempo == e.diametro == ""
    for angulo in ("9.99", "60.01", "x"):
        e = ensaio(r, i, angulo=angulo)
        mensagem(e)
        assert e.angulo == ""
    assert mensagem(ensaio(r, ("6.000", "", "2.000"))) == "Há alguma célula da planilha vazia!"
    assert mensagem(ensaio(("4.00", "4.00", "15.00"), i)) == "O valores de distância ao aspersor devem ser crescentes!"
    assert mensagem(ensaio(("0.00", "8.00", "15.00"), i)).startswith("O primeiro valor de distância")
    assert mensagem(ensaio(r, ("6.000", "5.000", "0.000"))).startswith("O último valor de intensidade")
    assert mensagem(ensaio(("2.00", "4.00", "7.00"), i)).startswith("Para as simulações, o raio")
    for angulo in ("10", "60"):
        assert m.avancar(ensaio(r, i, angulo=angulo), Conversa(NAO)).angulo == angulo
    e = ensaio(r, i, vazao="-1")
    assert mensagem(e) == "Valor numérico de vazão inválido!" and e.vazao == ""
    e = ensaio(r, i)
    assert mensagem(e, SIM) == f"{m.ESTIMAR} -> sim" and e.vazao == ""
    e = ensaio(r, i, vazao="40")
    assert mensagem(e, NAO) == f"{m.DIFERIU} -> não" and e.vazao == "40"


def cordas():
    # A full circle of 5 m at 3 m from the lane: two halves of 4 m.
    assert m.cordaCheia(3, 5) == m.cordaSetor(3, 5, 0.0) == 4 and m.cordaCheia(5, 5) == m.cordaSetor(6, 5, 0.3) == 0
    # Half of a dry angle of 30º: the edge of the wedge cuts the chord at 3 / tan 30º, while sin 30º is above x / r.
    assert isclose(m.cordaSetor(1, 5, radians(30)), sqrt(3)) and m.cordaSetor(3, 5, radians(30)) == 4
    # The chords of both halves, summed over x, are half of the wetted area.
    for graus in (0, 20, 45, 60, 89.9):
        alfa, passos = radians(graus), 20000
        area = sum((m.cordaCheia(x, 5) + m.cordaSetor(x, 5, alfa)) * 5 / passos
                   for x in (5 * (k + 0.5) / passos for k in range(passos)))
        assert isclose(2 * area, 25 * (pi - alfa), rel_tol=1e-4)
    # The centroid of a segment, by cutting it into strips.
    for r, x in ((5, 3), (19.5, 19), (2, 0.001), (12, 10)):
        passos = 20000
        fatias = [(t, 2 * sqrt(r * r - t * t)) for t in (x + (r - x) * (k + 0.5) / passos for k in range(passos))]
        assert isclose(m.centroSegmento(r, x), sum(t * h for t, h in fatias) / sum(h for _, h in fatias), rel_tol=1e-4)
    assert isclose(m.centroSegmento(3, 1e-9), 4 * 3 / (3 * pi), rel_tol=1e-6)


def laminasDosAneis(intensidades, limites, x, alfa, V):
    """The depths that rings of even intensity leave at distances x; limites: the bounds, R last."""
    def corda(a, b):
        return (sqrt(b * b - a * a) if b > a else 0.0) + (
            0.0 if b <= a else a / sin(alfa) * cos(alfa) if a < b * sin(alfa) else sqrt(b * b - a * a))
    return [sum(i * (corda(a, fora) - corda(a, dentro)) / V for i, dentro, fora in zip(intensidades, limites, limites[1:]))
            for a in x]


def inverso():
    # Rings of any intensity come back; the last but one is strong, so that the reach is a quarter of a step past the last.
    for s, alfa, V, i in ((2.0, 0.0, 50.0, [9, 8, 7, 7.5, 4, 9, 1]), (3.0, radians(60), 20.0, [5, 12, 3, 0, 8, 1]),
                          (1.5, radians(10), 33.3, [4, 4, 4, 4, 4, 4, 9, 0.5]), (6.0, radians(90), 70.0, [3, 9, 1])):
        c0 = len(i)
        x = [s * (j - 0.5) for j in range(1, c0 + 1)]
        R = x[-1] + 0.25 * s
        D = laminasDosAneis(i, x + [R], x, alfa, V)
        a = m.descascar(D + [0.0, 0.0], s, alfa, V)
        assert isclose(a.R, R) and perto(a.intensidade[1:c0 + 1], i, 1e-8) and a.intensidade[c0 + 1] == 0
        assert a.raioAnel[c0 + 1] == a.R and sorted(a.raioAnel) == a.raioAnel
        # What the collectors tell of the water and what the rings do: the same up to the rule of the sum.
        area = [(pi - alfa) * (fora * fora - dentro * dentro) for dentro, fora in zip([0] + x[1:], x[1:] + [R])]
        assert isclose(2 * sum(D) * s * V, sum(k * b for k, b in zip(i, area)), rel_tol=0.15)
    # A uniform circle of 20 m, its moving profile from chords: the rim, whose reach is only estimated, is off, and the
    # farther in a ring lies, the closer it comes.
    D = [8 * 2 * sqrt(400 - x * x) / 40 for x in (2 * (j - 0.5) for j in range(1, 11))]
    a = m.descascar(D, 2.0, 0.0, 40.0)
    erros = [abs(i - 8) for i in a.intensidade[1:11]]
    assert erros == sorted(erros) and max(erros[:4]) < 0.02 * 8
    # The reach where the last line reaches zero, when that lies farther out: 12 to 4 over 2 m, 1 m more.
    assert isclose(m.descascar([15.0, 12.0, 4.0], 2.0, 0.0, 40.0).R, 6) and \
        isclose(m.descascar([15.0, 14.0, 4.0], 2.0, 0.0, 40.0).R, 5.8)
    assert isclose(m.descascar([15.0, 14.0, 0.5], 2.0, 0.0, 40.0).R, 5.5)
    # The flow of a cone of rings, without the disc inside the first: by hand 2 pi (r^2/2 - r^3/60) from 5 to 20.
    cone = m.Aneis(20.0, [], [0.0, 0.75, 0.5, 0.0], [0.0, 5.0, 10.0, 20.0])
    assert isclose(m.vazaoDosAneis(cone), 2 * pi * ((200 - 400 / 3) - (12.5 - 125 / 60)), rel_tol=1e-9)
    # A volume of 1 ml on 10 cm2 is 1 mm.
    d = sqrt(40 / pi)
    e = EnsaioMovel(unidade=ML, diametro=f"{d:.12f}", leituras=[["1.000", "2.500"]])
    assert perto(m.laminas(e)[0], (1.0, 2.5), 1e-9)
    assert termina(m.ErroDeExecucao, m.descascar, [3.0, 3.0], 2.0, 0.0, 40.0) == "Divisão por zero"
    assert termina(m.ErroDeExecucao, m.descascar, [3.0, 0.0], 2.0, 0.0, 40.0) == "Índice fora dos limites"


def movel():
    def ensaioMovel(**campos):
        return EnsaioMovel(**{**dict(velocidade="40", giro="360", linhas="1", lados="3", espacamento="6.0", vazao="20",
                                     leituras=[["4.000"], ["12.000"], ["15.000"], ["15.000"], ["12.000"], ["4.000"]]),
                              **campos})

    # The left side's first row is its farthest collector.
    direita, esquerda = m.ladosMedidos([[1], [2], [3], [40], [50], [60]])
    assert esquerda == [[3], [2], [1]] and direita == [[40], [50], [60]]
    assert m.mediasDosLados([[1, 2], [3, 4], [5, 8], [9, 12]]) == [5.0, 6.0]
    # An empty flow is estimated before its division by 1000, whatever the answer; the second box always follows.
    for resposta in (SIM, NAO):
        e, conversa = ensaioMovel(vazao=""), Conversa(resposta, SIM)
        p = m.perfilRadialDoMovel(e, conversa)
        assert conversa.saida == [f"pergunta: {m.ESTIMAR} -> {resposta}", f"pergunta: {m.DIFERIU} -> sim"]
        assert p.label2 == e.vazao and float(e.vazao) > 1000 and p.label17 == "18.00"
    # The scale comes from the flow alone; inside the first ring the profile is level.
    vinte = m.perfilRadialDoMovel(ensaioMovel(), Conversa(SIM))
    quarenta = m.perfilRadialDoMovel(ensaioMovel(vazao="40"), Conversa(SIM))
    assert perto([float(t) for t in quarenta.lblIntensidade[1:]], [2 * float(t) for t in vinte.lblIntensidade[1:]], 1.1e-3)
    assert vinte.lblIntensidade[1] == vinte.lblIntensidade[2] == vinte.lblIntensidade[3] and vinte.lblRaio[2] == "0.5"
    assert vinte.label1 == "Pressão de Serviço: N/E" and vinte.label2 == "20.000" and vinte.label13 == "Bocais: N/E"
    # Half of the circle in half of the time: the same test at twice the intensity.
    inteiro, meio = (m.descascar([15.0, 12.0, 4.0], 6.0, alfa, 40.0) for alfa in (0.0, m.PI / 2))
    assert perto(meio.intensidade[1:], [2 * i for i in inteiro.intensidade[1:]], 1e-9)
    # A turn of 240º leaves 60º dry on each side of the lane's direction.
    a = m.descascar([15.0, 12.0, 4.0], 6.0, radians(60), 40.0)
    aneis = zip([0.0] + a.raioAnel[1:], a.intensidade[1:2] + a.intensidade[1:])
    relativos = m.reamostrar([(r / a.R, pi * i * a.R * a.R / m.vazaoDosAneis(a)) for r, i in aneis])
    p = m.perfilRadialDoMovel(ensaioMovel(giro="240"), Conversa(SIM))
    assert perto([y for _, y in p.relativos], [y for _, y in relativos], 1e-9)
    crescente = Conversa()
    assert termina(Recusa, m.perfilRadialDoMovel, ensaioMovel(leituras=[["4.000"], ["3.999"], ["15.000"], ["15.000"],
                                                                                   ["3.999"], ["4.000"]]), crescente) == ""
    assert crescente.saida[-1] == "mensagem: A média do penúltimo valor deve ser maior que o último valor em cada lado da linha!"
    negativa = Conversa()
    assert termina(Recusa, m.perfilRadialDoMovel, ensaioMovel(leituras=[["-4.000"], ["1.000"], ["1.000"]] * 2), negativa) == ""
    assert negativa.saida == ["mensagem: Os valores de lâmina devem ser positivos!"]
    e = EnsaioMovel(lados="2", espacamento="1.5", linhas="2")
    assert m.posicoesDoMovel(e) == ["Ce2 = 2.25 m", "Ce1 = 0.75 m", "Cd1 = 0.75 m", "Cd2 = 2.25 m"]
    assert m.cabecalhoDoMovel(e) == ["Linha 1 - I(mm)", "Linha 2 - I(mm)"]


def sobreposicao():
    assert m.listaDoMovel(20, 2.0) == ["30", "36", "42", "48", "54", "60", "66", "72", "78"]
    assert m.listaDoMovel(3, 2.0) == ["6", "12"] and m.listaDoMovel(5, 3.0) == ["12", "18", "24", "30"]
    # 1 3 5 | 5 3 1 at 2 m: even at 6 m; at 12 m 5 3 1 1 3 5, whose mean is 3 and whose lowest two are 1.
    e = EnsaioMovel(vazao="30", velocidade="50", lados="3", espacamento="2.0", linhas="1",
                    leituras=[[f"{v}.000"] for v in (1, 3, 5, 5, 3, 1)])
    r = m.prepararSobreposicao(e, Conversa())
    assert r.melhor == "6" and r.flexGrid_A == [("6", "100.00", "100.00", "6.00"), ("12", "55.56", "33.33", "3.00")]
    d = r.sobrepor("12")
    assert d.flexGrid_B == [(f"{k}.00", f"{v}.000", f"{v}.000") for k, v in zip((1, 3, 5, 7, 9, 11), (5, 3, 1, 1, 3, 5))]
    assert (d.label16, d.label33, d.label17) == ("55.56", "33.33", "3.00")
    # A second line of twice the depth: 12 values, the lowest three 1, 1, 2; mean 4.5, deviations 2 x (3.5 + 1.5 + 0.5)
    # and 2 x (2.5 + 1.5 + 5.5).
    e.linhas, e.leituras = "2", [[a, f"{2 * float(a):.3f}"] for a, in e.leituras]
    d = m.prepararSobreposicao(e, Conversa()).sobrepor("12")
    assert (d.label16, d.label33, d.label17) == (c.formatar(100 * (1 - 30 / 54), "0.00"), c.formatar(100 * 4 / 3 / 4.5, "0.00"), "4.50")
    assert d.flexGrid_B[0] == ("1.00", "5.000", "10.000", "7.500")
    # Overlapping keeps the water, line by line.
    profundidades = [[(7 * a + 3 * b) % 11 + 0.25 for b in range(3)] for a in range(30)]
    for s, E in ((2.0, 6.0), (2.0, 30.0), (3.0, 42.0), (6.0, 96.0)):
        linhas, media = m.sobreporLinhas(profundidades, E, s)
        for k in range(3):
            assert isclose(sum(linhas[k]), sum(h[k] for h in profundidades))
        assert perto(media, [sum(x) / 3 for x in zip(*linhas)]) and len(media) == E / s
    assert m.recusaDoEspacamentoMovel("7") and m.recusaDoEspacamentoMovel("6.4") is None
    assert termina(u.ErroDeExecucao, r.sobrepor, "0") == "Índice fora dos limites"
    assert termina(u.ErroDeExecucao, m.SobreposicaoMovel(EnsaioMovel(
        vazao="1", velocidade="1", espacamento="6.0", leituras=[["1.000"], ["1.000"]])).sobrepor, "6") == "Estouro"


def arquivos():
    e = ensaio(("4.00", "15.00"), ("6.000", "2.000"), unidade=ML, tempo="60", diametro="8", pressao="50")
    assert "\r\n".join(m.linhasDoArquivoRadial(e)) == \
        "Não Especificado\r\nN/E\r\n50\r\nN/E\r\nN/E\r\n2\r\n3\r\n60\r\n8\r\n4.00\t6.000\r\n15.00\t2.000"
    lido = m.depoisDeLido(e)
    assert (lido.aspersor, lido.bocais, lido.pressao, lido.vazao) == ("Não Especificado", "N/E", "50", "N/E")
    e = EnsaioMovel(unidade=ML, bocais="20", vazao="9", velocidade="40", giro="240", diametro="8", linhas="2", lados="1",
                    ventoVelocidade="2", leituras=[["1.000", "2.000"], ["3.000", "4.000"]])
    assert "\r\n".join(m.linhasDoArquivoMovel(e)) == ("Não Especificado\r\n20\r\nN/E\r\nN/E\r\n9\r\n40\r\n240\r\n2\r\n6.0\r\n1\r\n"
                                                      "2.0\r\n2\r\n\r\n2\r\n8\r\n1.000\t2.000\r\n3.000\t4.000")


def simulacao():
    # A catalogue sprinkler's profile, entered as a radial test, simulates to the same depths.
    for modelo, principal, auxiliar, pressao in (("TX15", 18, 6, 50), ("TX20", 28, 0, 60), ("TX30", 38, 0, 50)):
        a = c.aspersorDoCatalogo(modelo, principal, auxiliar, pressao)
        R = c.ler(a.lblRaioAlcance)
        r = [f"{float(t):.2f}" for t in a.lblRaio[2:22]] + [f"{R - 0.01:.2f}"]
        e = ensaio(r, a.lblIntensidade[2:22] + ["0.001"], angulo="24", vazao=a.lblVazao)
        p = m.avancar(e, Conversa(SIM))
        assert abs(c.ler(p.label17) - R) < 0.02
        telas = []
        for tela in (c.Form7(a), m.Form7Ou(p)):
            tela.rolar("HScroll1", 70)
            tela.rolar("HScroll2", 20)
            assert tela.calcular() == []
            telas.append(tela.laminas)
        assert max(abs(x - y) for x, y in zip(*telas, strict=True)) < 0.02 * max(telas[0]), modelo
    assert m.Form7Ou(p).aviso() == [] and m.Form7Ou(m.Perfil()).aviso() == [m.SEM_ANGULO]
    assert m.Form7Ou(p).vento().anguloJato == 24 * c.PI / 180 and m.Form7Ou(p).legendas["Label20"] == "Aspersor: Não especificado"


if __name__ == "__main__":
    for verificacao in (textos, fechamento, unidades, radial, recusas, cordas, inverso, movel, sobreposicao, arquivos, simulacao):
        verificacao()
        print(f"{verificacao.__name__}: ok")
