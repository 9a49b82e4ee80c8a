#!/usr/bin/env python3
"""Checks calculo.py and uniformidade.py against hand-worked values and against properties of the model.

    python3 verificar.py
"""

from math import cos, erfc, floor, hypot, isclose, pi, sin, sqrt

import calculo as c
import uniformidade as u


def vento(W=0.0, direcao=0, secoI=0, secoII=0, rotacao=0, R=43.0, parametros=c.PARAMETROS_PADRAO):
    return c.Vento(R, c.simples(W), *(float(p) * R for p in parametros), secoI, secoII, rotacao,
                   24 * c.PI / 180, c.DOIS_PI - direcao * c.PI / 180)


def tela(a, espacamento="2.0", velocidade="50", vento=0, direcao=0, secoI=60, secoII=60):
    t = c.Form7(a)
    t.combo2, t.text1 = espacamento, velocidade
    for barra, valor in (("HScroll1", direcao), ("HScroll2", vento), ("HScroll3", secoI), ("HScroll4", secoII)):
        t.rolar(barra, valor)
    t.calcular()
    return t


def formatos():
    for valor, padrao, texto in (
            (10.2 / 4, "0.0", "2.5"), (0.125, "0.00", "0.13"), (2.675, "0.00", "2.67"), (-0.125, "0.00", "-0.13"),
            (-0.0004, "0.000", "0.000"), (0.5, "#.0", ".5"), (0, "#", ""), (0, "#0.0", "0.0"), (7, "##0.00", "7.00"),
            (5.0, "#.0", "5.0"), (-2.5, "0", "-3"), (1234.5, "##0.00", "1234.50")):
        assert c.formatar(valor, padrao) == texto, (valor, padrao, c.formatar(valor, padrao))
    for valor, texto in ((68.0, "68"), (0.1, "0.1"), (1e5, "1e+05"), (6405.0, "6405"), (12345.0, "12345"), (0.001, "0.001"),
                         (0.0001, "1e-04"), (0.00012, "0.00012"), (-2.5, "-2.5"), (0.0, "0"), (1 / 3, "0.3333333333333333")):
        assert c.menorTexto(valor) == texto, (valor, c.menorTexto(valor))
    assert c.pressaoMostrada(50, "optKG") == "5.0" and c.pressaoMostrada(70, "optKPA") == "686"
    assert [c.ler(t) for t in ("3.0", " -.5x", "", "º", "80 m", "1e")] == [3, -0.5, 0, 0, 80, 1]


def catalogo():
    a = c.aspersorDoCatalogo("TX15", 18, 0, 50)
    assert a.pe == 50 and a.lblVazao == "26.51" and a.lblRaioAlcance == "43.11"
    assert isclose(a.r, 43.1058, rel_tol=1e-12)
    assert a.lblIntensidade[1] == c.formatar(1.3099 * a.imediaPrincipal, "#0.000")
    for modelo in ("TX15", "TX20"):
        for principal in c.tabelas.PERFIL[modelo]:
            assert c.aspersorDoCatalogo(modelo, principal, 0, 47).lblIntensidade[22] == "0.000"
            for auxiliar in (5, 6, 7):
                assert c.pressaoEfetiva(modelo, auxiliar, principal, 50) < 50
    # Below the lowest row the profile changes in scale only.
    b, d = c.aspersorDoCatalogo("TX20", 22, 7, 30), c.aspersorDoCatalogo("TX20", 22, 7, 30.5)
    assert b.pe < d.pe < 30
    linhas = c.tabelas.PERFIL["TX20"][22]
    assert c.razoesNaPressao(linhas, b.pe) == c.razoesNaPressao(linhas, d.pe) == [None, *linhas[30]]
    assert c.razoesNaPressao(linhas, 35)[1] == (linhas[40][0] - linhas[30][0]) * 5 / 10 + linhas[30][0]
    # Ties go to the larger spacing.
    assert [c.espacamentoInicial(t) for t in ("35.00", "34.99", "50.00", "49.99", "90.00")] == ["2.0", "1.5", "3.0", "2.0", "6.0"]
    # The spline's moments satisfy its system, and the samples are 2, 3 each, 2 and the closing one.
    x, y = c.distanciasRelativas("TX15"), list(a.ordenadas)
    m = c.derivadasSegundas(x, y)
    for k in range(2, 22):
        h1, h2 = x[k] - x[k - 1], x[k + 1] - x[k]
        lado = h1 * m[k - 1] + 2 * (h1 + h2) * m[k] + h2 * m[k + 1]
        assert isclose(lado, 6 * ((y[k + 1] - y[k]) / h2 - (y[k] - y[k - 1]) / h1), abs_tol=1e-9)
    contagem = [sum(x[j] <= p < x[j + 1] for p, _ in a.amostras) for j in range(1, 22)]
    assert contagem == [2] + [3] * 19 + [2] and len(a.amostras) == 62
    # The profile as tabulated carries the sprinkler's flow: rings of width 0.05 R.
    for modelo, principal, auxiliar in (("TX15", 18, 0), ("TX20", 30, 0), ("TX30", 40, 0), ("TX15", 22, 6), ("TX20", 28, 7)):
        a = c.aspersorDoCatalogo(modelo, principal, auxiliar, 50)
        q = sum(2 * pi * float(a.lblRaio[k]) * float(a.lblIntensidade[k]) * 0.05 * a.r for k in range(2, 22)) / 1000
        assert isclose(q, a.q, rel_tol=0.02), (modelo, q, a.q)


def leituraDoPerfilRadial():
    i = [10.0 + k * k for k in range(1, 23)]
    i3, i2 = i[2], i[1]
    assert c.perfilRadialEm(0.05, 360, i) == (0.05 - 0.025) * (i3 - i2) / 0.05 + i2
    assert c.perfilRadialEm(0.975, 360, i) == i[20]
    assert isclose(c.perfilRadialEm(0.9749999, 360, i), i[20], rel_tol=1e-5)
    assert c.perfilRadialEm(0, 360, i) == i[0]
    assert c.perfilRadialEm(-0.001, 360, i) == 0 == c.perfilRadialEm(1, 360, i)
    for rho in (0, 0.01, 0.3, 0.99):
        assert isclose(c.perfilRadialEm(rho, 240, i), 1.5 * c.perfilRadialEm(rho, 360, i), rel_tol=1e-15)


def modelo():
    i = [5.0] * 22
    assert c.pontoSemVento(vento(), 3.5, -7.25) == (3.5, -7.25, True)
    assert c.pontoSemVento(vento(W=4, parametros=("0",) * 6), 3.5, -7.25) == (3.5, -7.25, True)
    assert c.matriz(vento(), 3.5, -7.25) == (1, 0, 0, 1)
    v = vento(W=3.3)
    for x, y in ((10.0, 5.0), (-20.0, 13.0), (4.0, -30.0), (-7.0, -2.0)):
        # The matrix is the derivative of the forward model.
        passo = 1e-5
        j11, j12, j21, j22 = c.matriz(v, x, y)
        a, b = c.comVento(v, x + passo, y), c.comVento(v, x - passo, y)
        assert isclose(j11, (a[0] - b[0]) / (2 * passo), abs_tol=1e-6)
        assert isclose(j21, (a[1] - b[1]) / (2 * passo), abs_tol=1e-6)
        a, b = c.comVento(v, x, y + passo), c.comVento(v, x, y - passo)
        assert isclose(j12, (a[0] - b[0]) / (2 * passo), abs_tol=1e-6)
        assert isclose(j22, (a[1] - b[1]) / (2 * passo), abs_tol=1e-6)
        # The solution, sent back with the wind, lands where it should.
        xs, ys, convergiu = c.pontoSemVento(v, x, y)
        assert convergiu and hypot(*(p - q for p, q in zip(c.comVento(v, xs, ys), (x, y)))) < 0.01
    # The sector: theta from straight ahead, growing through negative y.
    def noSetor(graus, secoI=60, secoII=60, rotacao=0):
        t = graus * pi / 180
        return c.distanciaNoSetor(secoI, secoII, rotacao, 10 * cos(t), -10 * sin(t), 43)
    assert noSetor(30) == 0 and isclose(noSetor(91), 10) and noSetor(330) == 0 and isclose(noSetor(299), 10)
    assert isclose(noSetor(20, rotacao=90), 10) and noSetor(40, rotacao=90) == 0        # wraps beyond 2 pi
    assert isclose(noSetor(340, rotacao=-90), 10) and noSetor(320, rotacao=-90) == 0    # wraps below 0
    assert c.distanciaNoSetor(0, 0, 0, 0.0, 5.0, 43) == 0 == c.distanciaNoSetor(0, 0, 0, 5.0, 0.0, 43)
    assert c.distanciaNoSetor(0, 0, 0, 43.0, 1.0, 43) == 0
    seco = vento(secoI=60, secoII=60)
    t = 30 * pi / 180
    assert c.intensidadeEmPonto(seco, 10 * cos(t), -10 * sin(t), 240, i) == 0
    assert c.intensidadeEmPonto(seco, 0.001, -10.0, 240, i) == 7.5


def perfil():
    a = c.aspersorDoCatalogo("TX15", 18, 6, 50)
    # The water that falls is the water that leaves: sum of depths times S = Q / V.
    secos, cheio = tela(a), tela(a, secoI=0, secoII=0)
    for t in (secos, cheio):
        assert isclose(sum(t.laminas) * 2.0 / 1000, a.q / 50, rel_tol=0.02)
        assert len(t.laminas) % 2 == 0 and t.distancias[0] == -t.distancias[-1] < 0
    assert all(isclose(x, y, rel_tol=1e-9, abs_tol=1e-12) for x, y in zip(cheio.laminas, reversed(cheio.laminas)))
    assert all(isclose(x, 2 * y, rel_tol=1e-12) for x, y in zip(secos.laminas, tela(a, velocidade="100").laminas))
    # Wind from the right carries the water to the left, and from the left to the right.
    def centro(t):
        return sum(d * h for d, h in zip(t.distancias, t.laminas)) / sum(t.laminas)
    assert centro(tela(a, vento=30, direcao=90, secoI=0, secoII=0)) < -1
    assert centro(tela(a, vento=30, direcao=270, secoI=0, secoII=0)) > 1
    assert abs(centro(tela(a, vento=30, secoI=0, secoII=0))) < 1e-6
    # The chart: depths 10.0 and 10.2 both give steps of 2.5 and a top of 12.5.
    for maior in (10.0, 10.2):
        secos.laminas = [min(h, maior) for h in secos.laminas]
        secos.laminas[5] = maior
        secos._grafico(2.0, len(secos.laminas))
        assert secos.label4 == ["0.0", "2.5", "5.0", "7.5", "10.0", "12.5"]
        assert (f" {63 if maior == 10.0 else c.menorTexto(203 - 10.2 * 175 / 12.5)} #0000ff 2") in "\n".join(secos.tracos)
    assert secos.leitura(68, 203) == (f"d = -{secos.label3[8]}00 m", "I = 0.000 mm")
    assert secos.leitura(349, 100) == ("d = 0.000 m", "I = 0.000 mm")


def falha(texto, funcao, *argumentos):
    try:
        funcao(*argumentos)
    except u.ErroDeExecucao as erro:
        return str(erro) == texto
    return False


def sobreposicao():
    assert u.estatisticas([2.5] * 8, 2) == (2.5, 100, 100)
    media, ud, cuc = u.estatisticas([4.0, 1.0, 3.0, 2.0], 1)
    assert (media, ud) == (2.5, 40) and isclose(cuc, 60)
    assert [u.quarto(n) for n in range(2, 13)] == [1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3]
    assert u.quarto(1) == 0 and falha("Estouro", u.estatisticas, [7.0], 0) and falha("Estouro", u.estatisticas, [0.0] * 4, 1)
    # From the lane outward, and round: four points a side over two and over three positions.
    direita, esquerda = u.lados([40.0, 30.0, 20.0, 10.0, 1.0, 2.0, 3.0, 4.0])
    assert (direita, esquerda) == ([1, 2, 3, 4], [10, 20, 30, 40])
    assert u.sobrepor(direita, esquerda, 2) == ([64, 46], [4, 6], [60, 40])
    assert u.sobrepor(direita, esquerda, 3) == ([35, 22, 53], [5, 2, 3], [30, 20, 50])
    # Narrower than the spacing: the middle stays dry and counts.
    total, _, _ = u.sobrepor(direita, esquerda, 10)
    assert total == [1, 2, 3, 4, 0, 0, 40, 30, 20, 10]
    assert u.estatisticas(total, 3)[:2] == (11, 100 * (1 / 3) / 11)
    # Half to even, after the checks.
    assert [u.posicoes(E, 3.0) for E in (48, 48.4, 6.4, 7.5, 10.5)] == [16, 16, 2, 2, 4]
    assert u.recusaDoEspacamento("6.4", 3.0) is None and "seis" in u.recusaDoEspacamento("7", 3.0)
    assert u.recusaDoEspacamento("0", 3.0) == "Valor de espaçamento inválido!"

    assert u.listaDeEspacamentos(42.7) == (["30", "36", "42", "48", "54", "60", "66", "72", "78", "84"], 5)
    assert u.listaDeEspacamentos(42.0)[0][-1] == "84" and u.listaDeEspacamentos(41.99)[0][-1] == "78"
    # Equal CUC: the smaller spacing stays. One that beats the rounded text alone takes its place.
    assert u.calcularMaiorCUC(["24", "36", "48"], [1.0] * 48, 6.0).label5 == "Espaçamento:  24  m"
    r = u.calcularMaiorCUC(["12", "24"], [0.0] * 4 + [1.09995, 0.90005, 0.99997, 1.00003], 6.0)
    assert r.label6 == "95.00" and r.label5 == "Espaçamento:  24  m" and r.flexGrid_A[0][1] == "95.00"
    # The step of 8.25 is written 8.3.
    r = u.calcularMaiorCUC([str(E) for E in range(24, 79, 6)], [1.0] * 48, 6.0)
    assert r.label26 == ["18.0", "26.3", "34.6", "42.9", "51.2", "59.5", "67.8", "76.1", "84.4"]
    r = u.sobreporEspacamento("6", [1.0] * 8, 6.0)
    assert r.erro == "Estouro" and r.label16 is None and r.flexGrid_B == [("3.00", "4.000", "4.000", "8.000")]


def faixa():
    # On a line of cells of 3 m around cell 15.
    assert [u.indiceDistancia(15, d, 3) for d in (-42.7, -1.5, -1.4, 0, 1.4, 1.5, 42.7)] == [2, 15, 16, 16, 16, 17, 30]
    assert [u.indiceDistanciaPositiva(15, d, 3) for d in (-3, 0, 1.4, 1.5, 42.7)] == [0, 0, 15, 16, 29]
    f = u.Faixa(Cc="300", comeco=u.IGUAL, fim=u.OUTRO, Ci="43", Cf="20")
    assert u.bandas(f, 15, 3.0, 42.7) == (2, 29, 102, 122)
    f.comeco, f.fim = u.OUTRO, u.IGUAL
    assert u.bandas(f, 15, 3.0, 42.7) == (2, 29, 102, 129)
    f.comeco = f.fim = u.MOVIMENTO
    assert u.bandas(f, 15, 3.0, 42.7) == (16, 29, 102, 115)
    assert u.recusaDoCarreador("90", 42.7, 3.0) is None and u.recusaDoCarreador("999.9", 42.7, 3.0) is None
    assert u.recusaDoCarreador("89.9", 42.7, 3.0).endswith("igual a: 90 m!") and u.recusaDoCarreador("1000", 42.7, 3.0) == u.MUITO_LONGO
    for Ci, mensagem in (("", u.VALOR_INVALIDO), ("-0.1", u.FORA_DO_RAIO), ("42.71", u.FORA_DO_RAIO), ("42.7", None), ("0", None)):
        assert u.recusaDoComprimento(u.Faixa(comeco=u.OUTRO, Ci=Ci), 42.7) == mensagem
    assert u.sugestaoDeParada("20", 50).endswith("sugere: 24 min!") and u.sugestaoDeParada("0", 50).endswith("sugere: 0 min!")
    assert [u.texto(x) for x in (48.0, 48.4, 0.1 + 0.2, -43.5, 1 / 3, 1234567.0)] == ["48", "48.4", "0.3", "-43.5", "0.333333333333333", "1234567"]

    a = c.aspersorDoCatalogo("TX15", 18, 6, 50)
    t = tela(a, espacamento="3.0", vento=20, direcao=135)
    intensidades = [float(x) for x in a.lblIntensidade[1:]]
    N, R, V, s = len(t.laminas) // 2, float(a.lblRaioAlcance), 50.0, 3.0
    impressao, contagem = u.pegada(t.vento(), s, N, intensidades)
    assert contagem == c.Contagem()
    # Summed along the lane, the footprint is the transversal profile.
    for k in range(2 * N):
        assert isclose(sum(linha[k] for linha in impressao) * s / V, t.laminas[k], rel_tol=1e-9, abs_tol=1e-12)
    # The loops as they are told, position after position.
    for P, tpi, tpf in ((34, 0.5, 0.25), (60, 0.0, 0.0), (3, 0.1, 0.2)):
        campo = [[0.0] * (2 * N) for _ in range(2 * N + P)]
        for p in range(1, P + 1):
            w = tpf if p == 1 else tpi if p == P else s / V
            for k in range(2 * N):
                for i in range(1, 2 * N + 1):
                    campo[p - 2 + i][k] += w * impressao[i - 1][k]
        assert u.campoInvertido(impressao, P, s / V, tpi, tpf) == campo[::-1]
    # Far from both ends a row is the centre's overlap, from depths not yet rounded.
    f = u.Faixa(Cc="300")
    c1 = u.campoDaFaixa(f, impressao, s, 48.0, V)
    total, _, _ = u.sobrepor(*u.lados(t.laminas), 16)
    assert all(isclose(x, y, rel_tol=1e-9) for x, y in zip(c1.faixa[len(c1.faixa) // 2], total))
    # Without stops the first and the last position leave nothing.
    assert not any(c1.faixa[0]) and not any(c1.faixa[1]) and not any(c1.faixa[-1])
    assert len(c1.faixa) == len(c1.y) == 2 * N + 100 and c1.y[0] == -(N - 0.5) * s
    # A position that the left half visits twice counts at each visit as it then stands.
    assert u.sobreporLinha([4.0, 3.0, 2.0, 1.0, 0.0, 0.0, 0.0, 0.0], 2) == ([6, 4], (1 + 2 + 4 + 6) / 4)
    # All the water: flow times the time of all steps and stops.
    centro = ("0.00", "0.00", "0.00")
    f = u.Faixa(Cc="300", comeco=u.OUTRO, fim=u.OUTRO, Ci="20", Cf="20", Tpi="24", Tpf="12")
    com = u.calcularFaixa(f, impressao, s, 48.0, V, R, centro)
    volume = sum(h for linha in com.campo.faixa for h in linha) * s * s / 1000
    assert isclose(volume, a.q * ((100 - 2) * s / V + 36 / 60), rel_tol=0.03)
    assert com.form8["Label4"] == "Início da Faixa Irrigada: -19.5 m" and com.form8["Label5"] == "Final da Faixa Irrigada: 319.5 m"
    # A long stop spoils its own end and little of the whole.
    f.Tpf = "90"
    longa = u.calcularFaixa(f, impressao, s, 48.0, V, R, centro)
    antes, depois = ({k: float(x) for k, x in r.form5.items()} for r in (com, longa))
    assert depois["Label3"] < antes["Label3"] - 10 and depois["Label2"] == antes["Label2"]
    assert depois["Label3"] < depois["Label6"] and antes["Label6"] - depois["Label6"] < (antes["Label3"] - depois["Label3"]) / 2
    # A stop that isn't exact in binary: the end's in single precision, the start's not.
    f.Tpi = f.Tpf = "10"
    assert c.simples(10 / 60) != 10 / 60
    assert u.campoDaFaixa(f, impressao, s, 48.0, V).faixa == [u.sobreporLinha(x, 16)[0] for x in
                                                              u.campoInvertido(impressao, 100, s / V, 10 / 60, c.simples(10 / 60))]


def mapas():
    a = c.aspersorDoCatalogo("TX15", 18, 6, 50)
    t = tela(a, espacamento="3.0", secoI=0, secoII=0)
    intensidades = [float(x) for x in a.lblIntensidade[1:]]
    m = u.desenharIntensidades(t.vento(), 3.0, intensidades, "0.0", "0")
    Z = u.amostrarPlano(m.campo, m.S)
    lado = [k for k in range(200) if any(Z[k])]
    assert all(isclose(Z[k][j], Z[199 - k][199 - j], abs_tol=1e-9) and isclose(Z[k][j], Z[j][k], abs_tol=1e-9)
               for k in lado[1:-1] for j in lado[1:-1])
    maior = max(max(linha) for linha in m.campo)
    assert max(max(linha) for linha in Z) <= maior < m.topo == floor(maior) + 1
    # Some extents lose the last sample of each pass to the rounding of the positions; it stays 0.
    perdas = {}
    for n in range(20, 80, 2):
        for S in (1.5, 2.0, 3.0, 6.0):
            Z = u.amostrarPlano([[1.0] * n for _ in range(n)], S)
            fim = Z[199][0], Z[0][199]
            assert fim in ((0, 0), (1, 1)) and all(isclose(Z[k][j], 1) for k in range(199) for j in range(199))
            perdas[fim] = perdas.get(fim, 0) + 1
    assert len(perdas) == 2
    # White at 0, blue at the top, half to even between.
    assert u.canais(u.BRANCO) == (255, 255, 255) and u.canais(u.AZUL) == (0, 0, 255)
    assert u.corDoMapa(0, 11) == (255, 255, 255) and u.corDoMapa(11, 11) == (0, 0, 255)
    assert u.corDoMapa(1, 2) == (128, 128, 255) and u.corDoMapa(3, 34) == (232, 232, 255)
    # The strip's map: a dry field has one colour, and a peak between samples has no sure height.
    seco = [[0.0] * 8 for _ in range(40)]
    assert u.maiorDoMapa(seco) == "Maior Precipitação: 0.0 mm/h" and u.corDoMapa(0.0, 1) == (255, 255, 255)
    pico = [[0.0] * 8 for _ in range(700)]
    pico[301][3] = 50.0
    assert u.maiorDoMapa(pico) is None
    legendas = u.legendasDoMapa(u.Campo(4, 8, [[1.0] * 4 + [2.0] * 4] * 40, [], []), dict(Label6="a", Label63="b", Label8="c"), "48")
    assert legendas["Label7"] == "1.500 mm" and legendas["Label1"] == "Espaçamento do Carreador: 48 m"


def eficiencia():
    # Hastings' polynomial on both sides of the mean, and where its denominator passes through 0.
    for k in range(-10, 41):
        assert isclose(u.areaEstimada(k / 10), erfc(k / 10 / sqrt(2)) / 2, abs_tol=0.001 if k < 0 else 1e-7)
    assert u.areaEstimada(-4.4) == 1 and 0 <= u.areaEstimada(-4.3) <= 1 and 0 <= u.areaEstimada(-5) <= 1
    r = u.laminasCandidatas(20.0, 0.25)
    assert len(r) == 49 and all(x > y for x, y in zip(r, r[1:])) and isclose(r[24], 20 * (1 + 0.25 / 0.1975 * (0.51 ** 0.135 - 0.49 ** 0.135)))
    assert isclose(r[48], 20 * (1 + 0.25 / 0.1975 * (0.03 ** 0.135 - 0.97 ** 0.135)), rel_tol=1e-9)
    # A candidate at or below 0 is taken 0.015 further up.
    alto = u.laminasCandidatas(20.0, 0.55)
    assert isclose(alto[48], 20 * (1 + 0.55 / 0.1975 * (0.045 ** 0.135 - 0.955 ** 0.135)), rel_tol=1e-9) and alto[48] > 0
    assert 1 + 0.55 / 0.1975 * (0.03 ** 0.135 - 0.97 ** 0.135) <= 0
    # Which rows are shown.
    assert [u.primeiraLinha([5.0, 4.0, 3.0], ic) for ic in (6, 5, 4.5, 4, 3.5, 3, 2.9)] == [1, 1, 2, 2, 3, 3, 4]
    # The water adds up: what is of use and what is too much, what is of use and what is missing.
    grade = [("0  m", *(f"{10 + (3 * a + p) % 7}.000" for p in range(16))) for a in range(130)]
    f = u.Faixa(Cc="300", Tpi="10", Tpf="20")
    r = u.analisarEficiencia(f, grade, 15, 3.0, 42.7, 50.0, 29.2, 15.0)
    faixa = [float(x) for linha in grade[15:115] for x in linha[1:]]
    for ir, area, util, _, armazenada, excesso, deficit, _ in r.T:
        assert isclose(util + excesso, sum(faixa) * 9 / 1000) and isclose(util + deficit, ir * len(faixa) * 9 / 1000)
        assert isclose(area, 100 * sum(d >= ir for d in faixa) / len(faixa)) and armazenada <= 100 + 1e-9
    assert r.legendas["Label3"] == "Volume Total Aplicado: 189.80 m³" and r.legendas["Label4"] == "Tempo de Irrigação: 6.50 h"
    assert r.flexA[0][0] == "1" and float(r.flexA[0][1]) <= 15 and len(r.flexA) == sum(linha[0] <= 15 for linha in r.T)
    # Rows beyond the band count as lost, and a uniform field has no spread.
    fora = sum(float(x) for linha in grade[:15] + grade[115:] for x in linha[1:])
    assert r.legendas["Label6"].split(": ")[1] == f"{c.formatar(fora * 9 / 1000, '#0.00')} m³"
    igual = [("0  m",) + ("12.000",) * 16] * 130
    assert falha("Estouro", u.analisarEficiencia, f, igual, 15, 3.0, 42.7, 50.0, 29.2, 15.0)


if __name__ == "__main__":
    for verificacao in (formatos, catalogo, leituraDoPerfilRadial, modelo, perfil, sobreposicao, faixa, mapas, eficiencia):
        verificacao()
        print(f"{verificacao.__name__}: ok")
