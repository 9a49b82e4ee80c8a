#!/usr/bin/env python3
"""Writes the roteiros of casos/ and what each must print, as computed by calculo.py.

    python3 gerar.py [FOLDER]

The draw has a fixed seed: two runs give the same bytes.
"""

import random
import sys
from pathlib import Path

import calculo

SEMENTE = 1504
AUXILIARES = (0, 5, 6, 7)
PRESSAO_MINIMA = {"TX15": 30, "TX20": 30, "TX30": 40}
ARQUIVOS_POR_MODELO = ("tx15", 4), ("tx20", 5), ("tx30", 2)

MOSTRAR_FORM1 = ("lblPressão", "lblVazão", "lblRaioAlcance", "lblInt", "lblRaio", "lblIntensidade",
                 "Label6", "Label7")
MOSTRAR_FORM7 = ("flexA", "Label3", "Label4", "Label20", "Label19", "Label18", "Label27", "Label28",
                 "Label2", "Label17", "Label29", "Label24", "Label33", "Label35", "Label36", "Label37",
                 "Label39", "Label41", "Labelang", "Label23", "Combo2")


class Sorteio:
    """Draws built on random() alone, the one generator method whose sequence never changes."""

    def __init__(self, semente):
        self._fonte = random.Random(semente)

    def inteiro(self, minimo, maximo):
        return minimo + int(self._fonte.random() * (maximo - minimo + 1))

    def um(self, opcoes):
        return opcoes[self.inteiro(0, len(opcoes) - 1)]

    def chance(self, p):
        return self._fonte.random() < p

    def entre(self, a, b):
        return a + (b - a) * self._fonte.random()

    def embaralhar(self, lista):
        for k in range(len(lista) - 1, 0, -1):
            outro = self.inteiro(0, k)
            lista[k], lista[outro] = lista[outro], lista[k]


def sortearAnguloSeco(s):
    return s.um((s.inteiro(0, 178), s.inteiro(0, 178), s.inteiro(0, 90), 60, 0))


def sortearAjuste(s, modelo, principal, auxiliar):
    """One setting of both screens; parametros None keeps the boxes as they open."""
    parametros = None
    if s.chance(1 / 3):
        parametros = [f"{float(p) * s.entre(0.8, 1.2):.4f}" for p in calculo.PARAMETROS_PADRAO]
    velocidade = s.um((
        str(s.inteiro(20, 300)), str(s.inteiro(20, 100)),
        f"{s.entre(20, 120):.1f}", f"{s.entre(20, 300):.2f}"))
    return dict(
        modelo=modelo, principal=principal, auxiliar=auxiliar,
        pressao=s.inteiro(PRESSAO_MINIMA[modelo], 70),
        unidade=s.um(("optMCA", "optKG", "optKPA")),
        espacamento=s.um(("1.5", "2.0", "2.0", "3.0", "3.0", "3.0", "6.0", "6.0")),
        velocidade=velocidade, parametros=parametros,
        vento=s.inteiro(0, 60),
        direcao=s.um((s.inteiro(0, 360), s.inteiro(0, 360), s.inteiro(0, 360), 90 * s.inteiro(0, 4))),
        secoI=sortearAnguloSeco(s), secoII=sortearAnguloSeco(s),
        rotacao=s.um((s.inteiro(-360, 360), s.inteiro(-360, 360), 0)))


def sortearModelo(s, modelo):
    """Every pair of nozzles of a model three times; the nozzle of a TX30 eight times."""
    pares = []
    for principal in sorted(calculo.tabelas.PERFIL[modelo]):
        pares += [(principal, 0)] * 8 if modelo == "TX30" else [(principal, a) for a in AUXILIARES] * 3
    s.embaralhar(pares)
    return [sortearAjuste(s, modelo, *par) for par in pares]


def cantos():
    """Settings at the ends of the ranges, and at the angles where a rule changes."""
    base = dict(unidade="optMCA", espacamento="2.0", velocidade="50", parametros=None, vento=0,
                direcao=0, secoI=60, secoII=60, rotacao=0)
    tx15 = dict(base, modelo="TX15", principal=18, auxiliar=6, pressao=50)
    tx20 = dict(base, modelo="TX20", principal=28, auxiliar=6, pressao=50)
    tx30 = dict(base, modelo="TX30", principal=38, auxiliar=0, pressao=50)
    return [
        dict(tx15),
        dict(tx20),
        dict(tx30),
        dict(tx15, auxiliar=0),
        dict(tx15, auxiliar=0, unidade="optKG", secoI=0, secoII=0),
        dict(tx15, principal=14, auxiliar=7, pressao=30, unidade="optKPA"),
        dict(tx15, principal=28, auxiliar=0, pressao=70, unidade="optKPA", velocidade="300"),
        dict(tx20, principal=22, auxiliar=7, pressao=30, vento=60, espacamento="3.0"),
        dict(tx20, principal=38, auxiliar=0, pressao=70, vento=60, direcao=360, espacamento="3.0"),
        dict(tx30, principal=34, pressao=40, vento=35, direcao=90, espacamento="3.0"),
        dict(tx30, principal=44, pressao=70, vento=35, direcao=270, espacamento="3.0"),
        dict(tx30, pressao=60, vento=25, direcao=180, unidade="optKG"),
        dict(tx15, secoI=178, secoII=178, vento=10, direcao=1),
        dict(tx15, secoI=178, secoII=0, vento=20, direcao=359),
        dict(tx15, secoI=0, secoII=178, vento=20, direcao=91),
        dict(tx20, rotacao=360, vento=30, direcao=200, espacamento="3.0"),
        dict(tx20, rotacao=-360, vento=30, direcao=200, espacamento="3.0"),
        dict(tx20, rotacao=180, vento=30, direcao=0, espacamento="6.0"),
        dict(tx20, rotacao=61, vento=1, direcao=30),
        dict(tx20, rotacao=-61, vento=1, direcao=330),
        dict(tx30, secoI=0, secoII=0, vento=40, direcao=45, espacamento="6.0"),
        dict(tx30, secoI=0, secoII=0, vento=40, direcao=135, espacamento="6.0"),
        dict(tx15, parametros=["0.0000"] * 6, vento=50, direcao=120),
        dict(tx15, velocidade="20", espacamento="1.5", vento=15, direcao=250),
    ]


class Caso:
    """A roteiro and its expected output, written side by side."""

    def __init__(self, titulo):
        self.comandos, self.saida = [f"# {titulo}"], []

    def faz(self, comando, *argumentos):
        palavras = [f'"{a}"' if " " in a else a for a in map(str, argumentos)]
        self.comandos.append(" ".join([comando] + palavras))

    def mostra(self, controle, valor, base=0):
        """A text, or the texts of a control array numbered from base."""
        self.comandos.append(f"mostrar {controle}")
        if isinstance(valor, str):
            self.saida.append(f"{controle} = {valor}")
        else:
            self.saida += [f"{controle}({k}) = {texto}" for k, texto in enumerate(valor, base)]

    def mostraGrade(self, controle, cabecalho, linhas):
        self.comandos.append(f"mostrar {controle}")
        self.saida.append(f"{controle}: {len(linhas) + 1} linhas x {len(cabecalho)} colunas")
        self.saida += ["\t".join(celulas) for celulas in [cabecalho] + linhas]

    def mostraDesenho(self, controle, tracos):
        self.comandos.append(f"mostrar {controle}")
        self.saida.append(f"{controle}: {len(tracos)} linhas, 0 caixas, 0 arcos")
        self.saida += tracos


def mostrarForm1(caso, a, unidade):
    valores = {
        "lblPressão": calculo.pressaoMostrada(a.pressao, unidade), "lblVazão": a.lblVazao,
        "lblRaioAlcance": a.lblRaioAlcance, "lblInt": a.lblInt,
        "lblRaio": a.lblRaio[1:], "lblIntensidade": a.lblIntensidade[1:],
        "Label6": a.label6, "Label7": a.label7,
    }
    for controle in MOSTRAR_FORM1:
        caso.mostra(f"form1.{controle}", valores[controle], base=1 if controle in ("lblRaio", "lblIntensidade") else 0)


def mostrarForm7(caso, tela, controles):
    for controle in controles:
        nome = f"Form7.{controle}"
        if controle == "flexA":
            caso.mostraGrade(nome, ("No", "Distância (m)", "Lâmina (mm)"), tela.flexA)
        elif controle == "Label3":
            caso.mostra(nome, tela.label3)
        elif controle == "Label4":
            caso.mostra(nome, tela.label4)
        elif controle == "Combo2":
            caso.mostra(nome, tela.combo2)
        else:
            caso.mostra(nome, tela.legendas[controle])


def escreverAjuste(caso, s, ajuste, numero, desenhos):
    """One setting, from the menu item to Form7's &Fechar."""
    modelo = ajuste["modelo"]
    caso.comandos += ["", f"# {numero}"]

    caso.faz("clicar", f"Form3.{modelo}B")
    caso.faz("escolher", "form1.Combo1", f"{ajuste['principal']} mm")
    if modelo != "TX30":
        caso.faz("escolher", "form1.Combo2", f"{ajuste['auxiliar']} mm")
    caso.faz("rolar", "form1.hsbPressão", ajuste["pressao"])
    if ajuste["unidade"] != "optMCA":
        caso.faz("clicar", f"form1.{ajuste['unidade']}")
    a = calculo.aspersorDoCatalogo(modelo, ajuste["principal"], ajuste["auxiliar"], ajuste["pressao"])
    mostrarForm1(caso, a, ajuste["unidade"])
    if desenhos:
        caso.mostraDesenho("form1.Picture1", a.tracos)
    if s.chance(0.25):
        leitura = ("r =", "i =")
        for _ in range(2):
            x, y = s.inteiro(1000, 6500), s.inteiro(350, 3650)
            caso.faz("mover", "form1.Picture1", x, y)
            leitura = calculo.leituraDoPerfil(a, x, y) or leitura
            caso.mostra("form1.Label15", leitura[0])
            caso.mostra("form1.Label16", leitura[1])

    tela = calculo.Form7(a)
    caso.faz("clicar", "form1.Command3")
    caso.saida += tela.calcular()
    mostrarForm7(caso, tela, ("flexA", "Label3", "Label4", "Label17", "Label39", "Label37", "Combo2"))

    caso.faz("escolher", "Form7.Combo2", ajuste["espacamento"])
    tela.combo2 = ajuste["espacamento"]
    caso.faz("digitar", "Form7.Text1", ajuste["velocidade"])
    tela.digitarVelocidade(ajuste["velocidade"])
    if ajuste["parametros"]:
        for k, texto in enumerate(ajuste["parametros"]):
            caso.faz("digitar", f"Form7.Text{k + 2}", texto)
        tela.parametros = ajuste["parametros"]
    for barra, nome in (("HScroll1", "direcao"), ("HScroll2", "vento"), ("HScroll3", "secoI"),
                        ("HScroll4", "secoII"), ("HScroll5", "rotacao")):
        caso.faz("rolar", f"Form7.{barra}", ajuste[nome])
        tela.rolar(barra, ajuste[nome])
    caso.faz("clicar", "Form7.Command2")
    avisos = tela.calcular()
    caso.saida += avisos
    mostrarForm7(caso, tela, MOSTRAR_FORM7)
    if desenhos:
        caso.mostraDesenho("Form7.Picture2", tela.tracos)
    if s.chance(0.25):
        for _ in range(2):
            x, y = s.inteiro(60, 356), s.inteiro(20, 210)
            caso.faz("mover", "Form7.Picture2", x, y)
            d, i = tela.leitura(x, y)
            caso.mostra("Form7.Label14d", d)
            caso.mostra("Form7.Label14I", i)
    caso.faz("clicar", "Form7.cmdSair")
    return avisos


def repartir(lista, partes):
    return [lista[len(lista) * k // partes:len(lista) * (k + 1) // partes] for k in range(partes)]


def main():
    pasta = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent / "casos"
    pasta.mkdir(parents=True, exist_ok=True)
    s = Sorteio(SEMENTE)
    arquivos = [("cantos", "Ends of the ranges", cantos())]
    for prefixo, partes in ARQUIVOS_POR_MODELO:
        ajustes = sortearModelo(s, prefixo.upper())
        for k, parte in enumerate(repartir(ajustes, partes), 1):
            arquivos.append((f"{prefixo}-{k}", f"Drawn settings of the {prefixo.upper()}, {k} of {partes}", parte))

    total = comAviso = 0
    for nome, titulo, ajustes in arquivos:
        caso = Caso(titulo)
        for numero, ajuste in enumerate(ajustes, 1):
            avisos = escreverAjuste(caso, s, ajuste, numero, desenhos=numero == 3)
            total += 1
            comAviso += bool(avisos)
        (pasta / f"{nome}.roteiro").write_bytes(("\n".join(caso.comandos) + "\n").encode())
        (pasta / f"{nome}.esperado").write_bytes(("\n".join(caso.saida) + "\n").encode())
        print(f"{nome}: {len(ajustes)}", flush=True)
    print(f"{total} settings, {comAviso} with notices")


if __name__ == "__main__":
    main()
