#!/usr/bin/env python3
"""Writes casos/uniformidade-*: the road from Form7 to the strip's table, maps and efficiencies.

    python3 gerar_uniformidade.py [FOLDER]

What each roteiro must print comes from calculo.py and uniformidade.py. The draw has a fixed seed: two
runs give the same bytes. Settings of which the wind model leaves a single point without physical
meaning are drawn again, so that no notice depends on which operations repeat a field.
"""

import sys
from pathlib import Path

import calculo
import uniformidade as u
from calculo import formatar, ler, simples
from gerar import AUXILIARES, PRESSAO_MINIMA, Caso, Sorteio, sortearAnguloSeco
from uniformidade import COMECOS, FINS, IGUAL, MOVIMENTO, OUTRO, Faixa, texto

SEMENTE = 3607
ARQUIVOS = ("TX15", 3, 27), ("TX20", 3, 27), ("TX30", 2, 26)

CABECALHO_A = ("E (m)", "CUC (%)", "UD (%)", "I médio (mm)")
CABECALHO_B = ("Distância (m)", "I direita (mm)", "I esquerda (mm)", "I total (mm)")
CABECALHO_9 = ("No", "Lâmina (mm)", "Área Ad. Irrigada (%)", "Ef. Aplicação (%)", "Ef. Armazenamento (%)",
               "Vol. Excesso (m³)", "Vol. Déficit (m³)")
LEGENDAS_FORM5 = ("Label5", "Label7", "Label66", "Label2", "Label1", "Label58", "Label3", "Label4", "Label60",
                  "Label6", "Label8", "Label63")
# What a person must be told on choosing "Outro Valor".
PEDIDOS = {"Combo1": "Insira um valor de comprimento inicial (Ci) de faixa, entre 0 e o raio de alcance!",
           "Combo2": "Insira um valor de comprimento final (Cf) de faixa, entre 0 e o raio de alcance!"}
SEM_COMPRIMENTO = {"chkParada": "Insira uma distância inicial!", "Check2": "Insira uma distância final!"}
INICIO = dict(combo="Combo1", comprimento="txtOutro", parada="chkParada", tempo="txtParada", textos=COMECOS)
FIM = dict(combo="Combo2", comprimento="Text3", parada="Check2", tempo="Text4", textos=FINS)


class Inviavel(Exception):
    """A setting that no case can use."""


class Percurso:
    """One setting on its way through the screens: what is done and what must show."""

    def __init__(self, caso, ajuste):
        self.caso, self.ajuste = caso, ajuste
        modelo = ajuste["modelo"]
        self.a = calculo.aspersorDoCatalogo(modelo, ajuste["principal"], ajuste["auxiliar"], ajuste["pressao"])
        self.form7 = calculo.Form7(self.a)
        self.form7.combo2, self.form7.text1 = ajuste["espacamento"], ajuste["velocidade"]
        if ajuste["parametros"]:
            self.form7.parametros = ajuste["parametros"]
        for barra, nome in (("HScroll1", "direcao"), ("HScroll2", "vento"), ("HScroll3", "secoI"),
                            ("HScroll4", "secoII"), ("HScroll5", "rotacao")):
            self.form7.rolar(barra, ajuste[nome])
        try:
            if self.form7.calcular():
                raise Inviavel
        except (ZeroDivisionError, OverflowError):
            raise Inviavel from None
        self.laminas = [float(linha[2]) for linha in self.form7.flexA]
        self.s = simples(ler(ajuste["espacamento"]))
        self.R = ler(self.a.lblRaioAlcance)
        self.V = ler(ajuste["velocidade"])
        self.Q = ler(self.a.lblVazao)
        self.itens, self.indice = u.listaDeEspacamentos(self.R)
        self._pegada = None

    # Form3 to Form7

    def abrir(self, numero):
        caso, ajuste = self.caso, self.ajuste
        caso.comandos += ["", f"# {numero}"]
        caso.faz("clicar", f"Form3.{ajuste['modelo']}B")
        caso.faz("escolher", "form1.Combo1", f"{ajuste['principal']} mm")
        if ajuste["modelo"] != "TX30":
            caso.faz("escolher", "form1.Combo2", f"{ajuste['auxiliar']} mm")
        caso.faz("rolar", "form1.hsbPressão", ajuste["pressao"])
        if ajuste["unidade"] != "optMCA":
            caso.faz("clicar", f"form1.{ajuste['unidade']}")
        caso.faz("clicar", "form1.Command3")
        caso.faz("escolher", "Form7.Combo2", ajuste["espacamento"])
        caso.faz("digitar", "Form7.Text1", ajuste["velocidade"])
        for k, parametro in enumerate(ajuste["parametros"] or ()):
            caso.faz("digitar", f"Form7.Text{k + 2}", parametro)
        for barra, nome in (("HScroll1", "direcao"), ("HScroll2", "vento"), ("HScroll3", "secoI"),
                            ("HScroll4", "secoII"), ("HScroll5", "rotacao")):
            caso.faz("rolar", f"Form7.{barra}", ajuste[nome])
        caso.faz("clicar", "Form7.Command2")

    def mapaDoPlano(self):
        l = self.form7.legendas
        mapa = u.desenharIntensidades(self.form7.vento(), self.s, self._intensidades(), l["Label17"], l["Label2"])
        self.caso.faz("clicar", "Form7.Command3")
        for controle in ("Label7", "Label8", "Label9"):
            self.caso.mostra(f"Form_grafVen.{controle}", mapa.legendas[controle])
        self.caso.mostra("Form_grafVen.Label15", mapa.label15)
        self.caso.mostra("Form_grafVen.Label3", mapa.label3)
        self.caso.mostra("Form_grafVen.Label4", mapa.label4)
        self.caso.faz("clicar", "Form_grafVen.Command1")

    def _intensidades(self):
        return [float(t) for t in self.a.lblIntensidade[1:]]

    # Form4

    def centro(self, legendas):
        caso = self.caso
        caso.faz("clicar", "Form7.cmdUniformidade")
        self.textoE = self.itens[self.indice]
        caso.mostra("Form4.cmbEspaçamento", self.textoE)
        caso.comandos.append("mostrar Form4.cmbEspaçamento.itens")
        caso.saida.append("Form4.cmbEspaçamento.itens = " + "\t".join(self.itens))
        if legendas:
            for controle, valor in self._legendasDaCorrida().items():
                caso.mostra(f"Form4.{controle}", valor)
        r = u.calcularMaiorCUC(self.itens, self.laminas, self.s)
        caso.faz("clicar", "Form4.Command8")
        caso.mostraGrade("Form4.flexGrid_A", CABECALHO_A, r.flexGrid_A)
        caso.mostra("Form4.Label6", r.label6)
        if r.label5 is not None:
            caso.mostra("Form4.Label5", r.label5)
        caso.mostra("Form4.Label26", r.label26)
        caso.mostra("Form4.cmbEspaçamento", self.textoE)

    def _legendasDaCorrida(self):
        l = self.form7.legendas
        return {"Label1": f"Pressão: {self.a.pressao} m.c.a.", "Label2": l["Label19"],
                "Label3": f"Ângulo: {l['Label35']} graus", "Label4": f"Velocidade: {self.form7.text1} m/h",
                "Label8": f"Vazão: {self.a.lblVazao} m³/h", "Label7": f"Raio: {self.a.lblRaioAlcance} m",
                "Label37": f"Velocidade do Vento: {l['Label17']} m/s", "Label38": f"Direção do Vento: {l['Label2']}º"}

    def escolherEspacamento(self, textoE):
        self.caso.faz("escolher" if textoE in self.itens else "digitar", "Form4.cmbEspaçamento",
                      textoE if textoE else '""')
        self.textoE = textoE
        self.E = ler(textoE)

    def sobrepor(self):
        """Command9 at the spacing in the box; False where it is refused or fails."""
        caso = self.caso
        caso.faz("clicar", "Form4.Command9")
        recusa = u.recusaDoEspacamento(self.textoE, self.s)
        if recusa:
            caso.saida.append(f"mensagem: {recusa}")
            self.textoE = self.itens[0]
            caso.mostra("Form4.cmbEspaçamento", self.textoE)
            return False
        self.b = r = u.sobreporEspacamento(self.textoE, self.laminas, self.s)
        if r.erro:
            caso.saida.append(f"erro: {r.erro}")
        caso.mostraGrade("Form4.flexGrid_B", CABECALHO_B, r.flexGrid_B)
        if r.erro:
            return False
        caso.mostra("Form4.Label16", r.label16)
        caso.mostra("Form4.Label33", r.label33)
        caso.mostra("Form4.Label17", r.label17)
        for k in range(1, 10):
            caso.mostra(f"Form4.Label22({k})", r.label22[k])
        for k in range(1, 7):
            caso.mostra(f"Form4.Label23({k})", r.label23[k])
        return True

    def leituraDoCentro(self, x, y):
        d, i = u.leituraDaSobreposicao(self.b, x, y)
        self.caso.faz("mover", "Form4.Picture1", x, y)
        self.caso.mostra("Form4.Label21", d)
        self.caso.mostra("Form4.Label30", i)

    # Form5

    def abrirFaixa(self, legendas):
        caso = self.caso
        caso.faz("clicar", "Form4.Command5")
        self.f = Faixa()
        self.marcado = {"chkParada": False, "Check2": False}
        for controle, valor in (("Label5", self.b.label16), ("Label7", self.b.label17), ("Label66", self.b.label33),
                                ("txtMan", "300"), ("Combo1", COMECOS[MOVIMENTO]), ("Combo2", FINS[MOVIMENTO])):
            caso.mostra(f"Form5.{controle}", valor)
        if legendas:
            l, corrida = self.form7.legendas, self._legendasDaCorrida()
            for controle, valor in (
                    ("Label43", self.ajuste["espacamento"]),
                    ("Label37", corrida["Label1"]), ("Label38", corrida["Label2"]), ("Label40", corrida["Label3"]),
                    ("Label39", f"Espaçamento: {self.textoE} m"), ("Label50", corrida["Label8"]),
                    ("Label51", corrida["Label7"]), ("Label52", corrida["Label4"]), ("Label53", corrida["Label37"]),
                    ("Label54", corrida["Label38"]), ("Label68", f"E = {self.textoE} m"),
                    ("Label69", f"{l['Label35']}º")):
                caso.mostra(f"Form5.{controle}", valor)

    def carreador(self, Cc):
        self.caso.faz("digitar", "Form5.txtMan", Cc if Cc else '""')
        self.f.Cc = Cc

    def extremo(self, lado, modo):
        """Picks how the strip begins or ends; the stop goes off.

        An entry is never picked twice in a row: whether that is an event is the list's own affair.
        """
        caso = self.caso
        atual = self.f.comeco if lado is INICIO else self.f.fim
        if modo == atual:
            caso.faz("escolher", f"Form5.{lado['combo']}", lado["textos"][IGUAL if modo == MOVIMENTO else MOVIMENTO])
        caso.faz("escolher", f"Form5.{lado['combo']}", lado["textos"][modo])
        comprimento = {IGUAL: formatar(self.R, "#0"), MOVIMENTO: "0", OUTRO: ""}[modo]
        if modo == OUTRO:
            caso.saida.append(f"mensagem: {PEDIDOS[lado['combo']]}")
        self._guardar(lado, modo, comprimento, "")
        caso.mostra(f"Form5.{lado['comprimento']}", comprimento)

    def _guardar(self, lado, modo=None, comprimento=None, tempo=None):
        f, inicio = self.f, lado is INICIO
        if modo is not None:
            setattr(f, "comeco" if inicio else "fim", modo)
        if comprimento is not None:
            setattr(f, "Ci" if inicio else "Cf", comprimento)
        if tempo is not None:
            setattr(f, "Tpi" if inicio else "Tpf", tempo)

    def comprimento(self, lado, valor):
        self.caso.faz("digitar", f"Form5.{lado['comprimento']}", valor if valor else '""')
        self._guardar(lado, comprimento=valor)

    def parada(self, lado):
        """The check box turned on, with a length in its box or without."""
        caso = self.caso
        caso.faz("clicar", f"Form5.{lado['parada']}")
        comprimento = self.f.Ci if lado is INICIO else self.f.Cf
        if comprimento == "":
            caso.saida.append(f"mensagem: {SEM_COMPRIMENTO[lado['parada']]}")
        else:
            caso.saida.append(f"mensagem: {u.sugestaoDeParada(comprimento, self.V)}")
        self._guardar(lado, tempo="")
        caso.mostra(f"Form5.{lado['tempo']}", "")

    def tempo(self, lado, valor):
        self.caso.faz("digitar", f"Form5.{lado['tempo']}", valor)
        self._guardar(lado, tempo=valor)

    def mostrarFaixa(self, controles=LEGENDAS_FORM5):
        for controle in controles:
            self.caso.mostra(f"Form5.{controle}", self.r.form5[controle])

    def calcular(self, mostrar=True):
        """Command10 with boxes that pass; False where it ends with a run-time error."""
        caso = self.caso
        caso.faz("clicar", "Form5.Command10")
        if self._pegada is None:
            self._pegada, contagem = u.pegada(self.form7.vento(), self.s, len(self.laminas) // 2, self._intensidades())
            if contagem.naoConvergiu or contagem.areaNaoPositiva:
                raise Inviavel
        try:
            self.r = r = u.calcularFaixa(self.f, self._pegada, self.s, self.E, self.V, self.R,
                                         (self.b.label16, self.b.label17, self.b.label33))
        except u.ErroDeExecucao:
            raise Inviavel from None
        if r.erro:
            if r.erro != "Índice fora dos limites" or "Label2" not in r.form5 or "Label3" in r.form5:
                raise Inviavel
            caso.saida.append(f"erro: {r.erro}")
            self.mostrarFaixa(("Label2", "Label1", "Label58"))
            return False
        if mostrar:
            self.mostrarFaixa()
            for k in range(1, 6):
                caso.mostra(f"Form8.Label{k}", r.form8[f"Label{k}"])
            caso.mostra("Form5.Label33", r.label33)
            caso.mostra("Form5.Label34", r.label34)
        return True

    def recusar(self, mensagem=None):
        """Command10 with boxes that don't pass."""
        self.caso.faz("clicar", "Form5.Command10")
        if mensagem:
            self.caso.saida.append(f"mensagem: {mensagem}")

    # Form8, Form9, Form_grafFinal

    def tabela(self):
        caso = self.caso
        caso.faz("clicar", "Form5.Command3")
        caso.mostraGrade("Form8.flexGrid_C", self.r.cabecalho, self.r.flexGrid_C)
        caso.faz("clicar", "Form8.Command3")

    def eficiencias(self):
        caso, campo = self.caso, self.r.campo
        r = u.analisarEficiencia(self.f, self.r.flexGrid_C, campo.N, self.s, self.R, self.V, self.Q,
                                 ler(self.r.form5["Label7"]))
        caso.faz("clicar", "Form5.Command12")
        caso.mostraGrade("Form9.flexA", CABECALHO_9, r.flexA)
        for k in range(3, 7):
            caso.mostra(f"Form9.Label{k}", r.legendas[f"Label{k}"])
        caso.faz("clicar", "Form9.Command3")

    def mapaDaFaixa(self):
        caso = self.caso
        caso.faz("clicar", "Form5.Command15")
        for controle, valor in u.legendasDoMapa(self.r.campo, self.r.form5, self.textoE).items():
            caso.mostra(f"Form_grafFinal.{controle}", valor)
        maior = u.maiorDoMapa(self.r.campo.faixa)
        if maior:
            caso.mostra("Form_grafFinal.Label15", maior)
        caso.faz("clicar", "Form_grafFinal.Command1")
        return maior is not None

    def fechar(self, tela):
        self.caso.faz("clicar", {"Form5": "Form5.Command2", "Form4": "Form4.Command4"}[tela])


# ---- the draw -------------------------------------------------------------------------------

def sortearAjuste(s, modelo, par, espacamento):
    parametros = None
    if s.chance(1 / 4):
        parametros = [f"{float(p) * s.entre(0.85, 1.15):.4f}" for p in calculo.PARAMETROS_PADRAO]
    return dict(
        modelo=modelo, principal=par[0], auxiliar=par[1], pressao=s.inteiro(PRESSAO_MINIMA[modelo], 70),
        unidade=s.um(("optMCA", "optMCA", "optKG", "optKPA")), espacamento=espacamento,
        velocidade=s.um((str(s.inteiro(20, 120)), f"{s.entre(20, 120):.1f}", f"{s.entre(20, 90):.2f}")),
        parametros=parametros, vento=s.um((0, s.inteiro(0, 60), s.inteiro(0, 60), s.inteiro(0, 60), s.inteiro(1, 40))),
        direcao=s.um((s.inteiro(0, 360), s.inteiro(0, 360), 90 * s.inteiro(0, 4))),
        secoI=sortearAnguloSeco(s), secoII=sortearAnguloSeco(s), rotacao=s.um((s.inteiro(-360, 360), 0, 0)))


def sortearEspacamento(s, p):
    """Mostly one of the list; else typed: another multiple of six, or a number that rounds to one."""
    if s.chance(0.75):
        return s.um(p.itens)
    seis = 6 * s.inteiro(3, int(p.R * 2.4) // 6)
    return s.um((str(seis), str(seis), f"{seis + s.entre(-0.4, 0.4):.1f}"))


def sortearComprimento(s, p):
    return s.um((str(s.inteiro(0, int(p.R))), str(s.inteiro(0, int(p.R))), f"{s.entre(0, p.R - 0.1):.1f}",
                 p.a.lblRaioAlcance, "0"))


def sortearTempo(s):
    return s.um((str(s.inteiro(1, 90)), str(s.inteiro(1, 30)), f"{s.entre(1, 60):.1f}", "0"))


def sortearCarreador(s, p, curto):
    minimo = u.menorCarreador(p.R, p.s)
    if curto:
        return s.um((texto(minimo), str(int(minimo) + s.inteiro(1, 60)), f"{minimo + s.entre(0, 60):.1f}"))
    return s.um(("300", str(int(minimo) + s.inteiro(1, 300)), str(s.inteiro(300, 999)), f"{s.entre(250, 999):.1f}",
                 "999.9", texto(minimo)))


def sortearExtremos(s, p):
    """Both ends, each with a length and perhaps a stop where it takes one."""
    for lado in (INICIO, FIM):
        modo = s.um((IGUAL, MOVIMENTO, OUTRO, OUTRO))
        if modo == MOVIMENTO and s.chance(0.5):
            continue        # as the screen opens
        p.extremo(lado, modo)
        if modo == OUTRO:
            if lado is INICIO and s.chance(0.2):
                p.parada(lado)      # without a length: turned off again
            p.comprimento(lado, sortearComprimento(s, p))
            if s.chance(0.75):
                p.parada(lado)
                p.tempo(lado, sortearTempo(s))


def escreverCenario(s, caso, numero, modelo, par, contas):
    """Draws until the setting can be used, then writes it with the stages that its number asks for."""
    comFaixa = numero % 5 not in (0, 3)
    comGrade = comFaixa and numero % 2 == 0
    espacamento = s.um(("3.0", "6.0") if comGrade else ("1.5", "2.0", "2.0", "3.0", "3.0", "6.0"))
    while True:
        comandos, saida = len(caso.comandos), len(caso.saida)
        try:
            p = Percurso(caso, sortearAjuste(s, modelo, par, espacamento))
            p.abrir(numero)
            feitas = ["centro"]
            if numero % 6 in (1, 2) and numero % 4 < 2:
                p.mapaDoPlano()
                feitas.append("plano")
            p.centro(legendas=numero % 7 == 0)
            if s.chance(0.3):
                p.escolherEspacamento(sortearEspacamento(s, p))
                p.sobrepor()
            p.escolherEspacamento(sortearEspacamento(s, p))
            if not p.sobrepor():
                raise Inviavel
            if s.chance(0.2):
                p.leituraDoCentro(s.inteiro(64, 377), s.inteiro(8, 216))
                p.leituraDoCentro(s.inteiro(20, 60), s.inteiro(8, 216))
            if not comFaixa:
                p.fechar("Form4")
            else:
                p.abrirFaixa(legendas=numero % 7 == 1)
                p.carreador(sortearCarreador(s, p, comGrade and espacamento == "3.0"))
                sortearExtremos(s, p)
                feitas.append("faixa")
                if not p.calcular():
                    p.extremo(FIM, MOVIMENTO)
                    if not p.calcular():
                        raise Inviavel
                    feitas.append("erro")
                if comGrade:
                    p.tabela()
                    feitas.append("grade")
                if numero % 20 not in (1, 4, 9, 12):
                    p.eficiencias()
                    feitas.append("eficiencia")
                if numero % 4 == 1 or numero % 10 == 4:
                    feitas.append("mapa")
                    feitas += ["mapa com maior"] * p.mapaDaFaixa()
                if s.chance(0.2):
                    p.carreador(sortearCarreador(s, p, False))
                    sortearExtremos(s, p)
                    if p.calcular():
                        p.eficiencias()
                p.fechar("Form5")
        except Inviavel:
            del caso.comandos[comandos:], caso.saida[saida:]
            contas["sorteado de novo"] = contas.get("sorteado de novo", 0) + 1
            continue
        contar(contas, feitas)
        return


def contar(contas, feitas):
    for etapa in feitas:
        contas[etapa] = contas.get(etapa, 0) + 1


# ---- chosen by hand -------------------------------------------------------------------------

BASE = dict(modelo="TX15", principal=18, auxiliar=6, pressao=50, unidade="optMCA", espacamento="3.0", velocidade="50",
            parametros=None, vento=0, direcao=0, secoI=60, secoII=60, rotacao=0)


def cantosDoCentro(caso, contas):
    """Form4: what it refuses, and spacings where a rule changes."""
    p = Percurso(caso, dict(BASE, vento=20, direcao=90))
    p.abrir(1)
    p.centro(legendas=True)
    for recusado in ("7", "0", "abc", "51.4", "50"):
        p.escolherEspacamento(recusado)
        assert not p.sobrepor()
    for aceito in ("6.4", "12", "18", "24", "30", "48", "48.4", "47.6", "180"):
        p.escolherEspacamento(aceito)
        assert p.sobrepor()
    p.fechar("Form4")
    contar(contas, ["centro"])

    # Two points between the lanes, and one, which has no lowest quarter.
    p = Percurso(caso, dict(BASE, espacamento="6.0"))
    p.abrir(2)
    p.centro(legendas=False)
    for textoE, serve in (("12", True), ("18", True), ("6", False), ("24", True), ("30", True), ("36", True),
                          ("42", True), ("48", True), ("54", True), ("60", True)):
        p.escolherEspacamento(textoE)
        assert p.sobrepor() == serve
    p.fechar("Form4")
    contar(contas, ["centro"])

    for numero, ajuste in enumerate((
            dict(BASE, secoI=0, secoII=0), dict(BASE, espacamento="1.5"), dict(BASE, unidade="optKPA", vento=35, direcao=270),
            dict(BASE, secoI=178, secoII=0, vento=10, direcao=180), dict(BASE, principal=14, auxiliar=7, pressao=30),
            dict(BASE, modelo="TX30", principal=44, auxiliar=0, pressao=70, espacamento="6.0"),
            dict(BASE, modelo="TX20", principal=22, auxiliar=5, espacamento="2.0", velocidade="30.5", vento=60, direcao=45)), 3):
        p = Percurso(caso, ajuste)
        p.abrir(numero)
        p.mapaDoPlano()
        p.centro(legendas=True)
        for textoE in (p.itens[0], p.itens[-1]):
            p.escolherEspacamento(textoE)
            p.sobrepor()
        p.leituraDoCentro(64, 216)
        p.leituraDoCentro(379, 100)
        p.fechar("Form4")
        contar(contas, ["centro", "plano"])


def abrirFaixa(caso, numero, ajuste, textoE, contas, *etapas):
    p = Percurso(caso, ajuste)
    p.abrir(numero)
    p.centro(legendas=False)
    p.escolherEspacamento(textoE)
    assert p.sobrepor()
    p.abrirFaixa(legendas=True)
    contar(contas, ("centro", "faixa") + etapas)
    return p


def cantosDaFaixa(caso, contas):
    """Form5: no stop and long stops, both limits of every length, and what it refuses."""
    # The positions at both ends add nothing without a stop; a long one makes a ridge.
    p = abrirFaixa(caso, 1, BASE, "48", contas, "grade", "eficiencia", "mapa")
    p.carreador("120")
    assert p.calcular()
    p.tabela()
    p.eficiencias()
    p.mapaDaFaixa()
    for lado in (INICIO, FIM):
        p.extremo(lado, OUTRO)
        p.comprimento(lado, "20")
        p.parada(lado)
        p.tempo(lado, "240")
        assert p.calcular()
        p.tabela()
        p.eficiencias()
        p.mapaDaFaixa()
    p.fechar("Form5")

    # Every pair of ends, with the length at nothing and at the reach.
    p = abrirFaixa(caso, 2, dict(BASE, espacamento="6.0", vento=25, direcao=135), "54", contas, "grade", "eficiencia")
    for comeco in (IGUAL, MOVIMENTO, OUTRO):
        for fim in (IGUAL, MOVIMENTO, OUTRO):
            for comprimento in ("0", p.a.lblRaioAlcance) if OUTRO in (comeco, fim) else ("",):
                for lado, modo in ((INICIO, comeco), (FIM, fim)):
                    p.extremo(lado, modo)
                    if modo == OUTRO:
                        p.comprimento(lado, comprimento)
                        p.parada(lado)
                        p.tempo(lado, "7.5")
                if p.calcular():
                    p.eficiencias()
    p.tabela()
    p.fechar("Form5")

    # The ends of the carrier lane's range, and what is refused.
    p = abrirFaixa(caso, 3, BASE, "48", contas, "eficiencia", "mapa")
    menor = u.menorCarreador(p.R, p.s)
    for Cc in (texto(menor), texto(menor + 0.1), "999", "999.99"):
        p.carreador(Cc)
        assert u.recusaDoCarreador(Cc, p.R, p.s) is None and p.calcular()
        p.eficiencias()
        p.mapaDaFaixa()
    for Cc, mensagem in (("1000", u.MUITO_LONGO), ("1e4", u.MUITO_LONGO),
                         (texto(menor - 0.1), u.recusaDoCarreador(texto(menor - 0.1), p.R, p.s)),
                         ("0", u.recusaDoCarreador("0", p.R, p.s)), ("abc", u.NUMERICO), ("", None)):
        p.carreador(Cc)
        p.recusar(mensagem)
        if mensagem and mensagem != u.NUMERICO:
            p.f.Cc = "300"
            caso.mostra("Form5.txtMan", "300")
        p.mostrarFaixa()
    p.carreador("300")
    assert p.calcular()
    p.fechar("Form5")

    # Lengths and times that are refused leave the figures as they stand.
    p = abrirFaixa(caso, 4, dict(BASE, modelo="TX20", principal=26, auxiliar=5, espacamento="6.0"), "60", contas, "eficiencia")
    assert p.calcular()
    acima = formatar(p.R + 0.01, "0.00")
    for lado in (INICIO, FIM):
        p.extremo(lado, OUTRO)
        p.parada(lado)
        for comprimento in ("", "-1", acima):
            p.comprimento(lado, comprimento)
            p.recusar(u.recusaDoComprimento(p.f, p.R))
            p.mostrarFaixa()
        p.comprimento(lado, p.a.lblRaioAlcance)
        assert p.calcular()
        p.parada(lado)
        p.tempo(lado, "dez")
        p.recusar(u.NUMERICO)
        p.mostrarFaixa()
        p.tempo(lado, "10")
        assert p.calcular()
        # A stop without a time is turned off.
        p.tempo(lado, '""')
        p._guardar(lado, tempo="")
        assert p.calcular()
        caso.mostra(f"Form5.{lado['tempo']}", "")
        p.eficiencias()
    p.fechar("Form5")

    # The dry wedge lies downwind, so the field ends early, and the strip a row past it: only the start has figures.
    p = abrirFaixa(caso, 5, dict(BASE, pressao=55, direcao=180), "48", contas, "erro")
    p.extremo(FIM, IGUAL)
    p.carreador("302.9")
    assert not p.calcular()
    p.carreador("300")
    assert p.calcular()
    p.fechar("Form5")

    # A spacing that the points don't divide, and one so wide that the middle stays dry.
    for numero, textoE in ((6, "48.4"), (7, "150")):
        p = abrirFaixa(caso, numero, BASE, textoE, contas, "grade", "eficiencia", "mapa")
        p.carreador("150")
        assert p.calcular()
        p.tabela()
        p.eficiencias()
        p.mapaDaFaixa()
        p.fechar("Form5")

    # The largest field.
    p = abrirFaixa(caso, 8, dict(BASE, modelo="TX30", principal=44, auxiliar=0, pressao=70, espacamento="1.5"), "90", contas,
                   "eficiencia", "mapa")
    p.carreador("999")
    p.extremo(INICIO, OUTRO)
    p.comprimento(INICIO, "30")
    p.parada(INICIO)
    p.tempo(INICIO, "36")
    p.extremo(FIM, IGUAL)
    assert p.calcular()
    p.eficiencias()
    p.mapaDaFaixa()
    p.fechar("Form5")


def main():
    pasta = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent / "casos"
    pasta.mkdir(parents=True, exist_ok=True)
    contas = {}

    def gravar(nome, caso):
        (pasta / f"uniformidade-{nome}.roteiro").write_bytes(("\n".join(caso.comandos) + "\n").encode())
        (pasta / f"uniformidade-{nome}.esperado").write_bytes(("\n".join(caso.saida) + "\n").encode())
        print(nome, flush=True)

    for nome, titulo, escrever in (("centro", "Uniformity at the centre: chosen settings", cantosDoCentro),
                                   ("faixa", "Strip: chosen settings", cantosDaFaixa)):
        caso = Caso(titulo)
        escrever(caso, contas)
        gravar(nome, caso)

    s = Sorteio(SEMENTE)
    numero = 0
    for modelo, partes, quantos in ARQUIVOS:
        pares = []
        for principal in sorted(calculo.tabelas.PERFIL[modelo]):
            pares += [(principal, 0)] if modelo == "TX30" else [(principal, a) for a in AUXILIARES]
        s.embaralhar(pares)
        feitos = 0
        for parte in range(1, partes + 1):
            caso = Caso(f"Uniformity: drawn settings of the {modelo}, {parte} of {partes}")
            for _ in range(quantos):
                numero += 1
                escreverCenario(s, caso, numero, modelo, pares[feitos % len(pares)], contas)
                feitos += 1
            gravar(f"{modelo.lower()}-{parte}", caso)
    print(", ".join(f"{etapa} {n}" for etapa, n in contas.items()))


if __name__ == "__main__":
    main()
