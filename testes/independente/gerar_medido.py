#!/usr/bin/env python3
"""Writes casos/medido-*: sprinklers from measurements, and the roads that go on from them.

    python3 gerar_medido.py [FOLDER]

What each roteiro must print comes from medido.py, and behind Perfil from calculo.py and uniformidade.py.
The draw has a fixed seed: two runs give the same bytes. A setting is drawn again where a text hangs on the
last bit of an operation whose order is free, or where the wind model leaves a point without meaning.
"""

import sys
from pathlib import Path

import medido
import uniformidade as u
from calculo import formatar, ler, simples
from gerar import MOSTRAR_FORM7, Caso, Sorteio, mostrarForm7, sortearAnguloSeco
from gerar_uniformidade import (CABECALHO_A, Inviavel, Percurso, contar, sortearCarreador,
                                sortearEspacamento, sortearExtremos)
from medido import (ML, MM, MM_H, NAO, SIM, AspersorMedido, Conversa, EnsaioMovel, EnsaioRadial, Form7Ou, Recusa,
                    celula)
from uniformidade import ErroDeExecucao

SEMENTE = 4211
ABRIR = "O arquivo deve estar na extensão: *.TXT separado por tabulações!"
NAO_ABRE = "O arquivo não pode ser aberto, consulte a ajuda!"

# The buttons of the other sprinkler's road behind Perfil.
BOTOES_OU = {"Form7.Command2": "Form7.Command8", "Form7.Command3": "Form7.Command7",
             "Form7.cmdUniformidade": "Form7.Command9", "Form4.Command5": "Form4.Command10",
             "Form5.Command10": "Form5.Command9", "Form5.Command12": "Form5.Command11",
             "Form5.Command15": "Form5.Command16"}

OPCAO_RADIAL = {MM_H: "Option5", MM: "Option4", ML: "Option3"}
LEITURA_RADIAL = {MM_H: "Intensidade - i (mm/h)", MM: "Intensidade - i (mm)", ML: "Intensidade - i (ml)"}
CAIXAS_RADIAL = {"Text7": "aspersor", "Text9": "bocais", "Text2": "pressao", "Text8": "angulo", "Text1": "vazao",
                 "Text4": "tempo", "Text3": "diametro"}
OPCAO_MOVEL = {MM: "Option4", ML: "Option3"}
CAIXAS_MOVEL = {"Text6": "aspersor", "Text8": "bocais", "Text13": "pressao", "Text1": "anguloJato", "Text12": "vazao",
                "Text11": "velocidade", "Text9": "giro", "Text2": "ventoVelocidade", "Text3": "ventoDirecao",
                "Text7": "diametro"}
LISTAS_MOVEL = {"Combo1": "linhas", "Combo2": "distancia", "Combo3": "lados", "Combo4": "espacamento"}


class CasoMedido(Caso):
    """A roteiro on the other sprinkler's road."""

    def faz(self, comando, *argumentos):
        argumentos = [BOTOES_OU.get(a, a) if k == 0 else a for k, a in enumerate(map(str, argumentos))]
        palavras = [f'"{a}"' if a == "" or " " in a else a for a in argumentos]
        self.comandos.append(" ".join([comando] + palavras))

    def clica(self, controle, conversa=None):
        """A click, with the answers that it will ask for; what it shows."""
        for resposta in conversa.usadas if conversa else ():
            self.faz("responder", resposta)
        self.faz("clicar", controle)
        self.saida += conversa.saida if conversa else []

    def estado(self, controle, texto):
        self.faz("estado", controle)
        self.saida.append(f"{controle}: {texto}")

    def foco(self, controle):
        self.faz("foco")
        self.saida.append(f"foco: {controle}")

    def bloco(self, titulo):
        self.comandos += ["", f"# {titulo}"]


# ---- PerfilForm -----------------------------------------------------------------------------

def abrirRadial(caso, e, digitados=None):
    """PerfilForm filled by hand; digitados: the texts typed into the cells, where they differ from e's."""
    caso.clica("Form3.Ou_aspB")
    preencherRadial(caso, e, digitados)


def preencherRadial(caso, e, digitados=None):
    caso.clica(f"PerfilForm.{OPCAO_RADIAL[e.unidade]}")
    for controle, campo in CAIXAS_RADIAL.items():
        if getattr(e, campo):
            caso.faz("digitar", f"PerfilForm.{controle}", getattr(e, campo))
    caso.faz("digitar", "PerfilForm.Text5", len(e.r))
    for linha, (r, i) in enumerate(digitados or zip(e.r, e.leituras), 1):
        if r:
            caso.faz("celula", "PerfilForm.flexGrid", linha, 1, r)
        if i:
            caso.faz("celula", "PerfilForm.flexGrid", linha, 2, i)


def lerRadial(caso, arquivo):
    """Option2 with a file chosen."""
    caso.faz("responder", SIM)
    caso.faz("arquivo", arquivo)
    caso.clica("PerfilForm.Option2")
    caso.saida += [f"pergunta: {ABRIR} -> sim", f"arquivo para abrir: {arquivo}"]


def mostrarGradeRadial(caso, e):
    caso.mostraGrade("PerfilForm.flexGrid", ("No", "Distância - r (m)", LEITURA_RADIAL[e.unidade]),
                     [(str(k), r, i) for k, (r, i) in enumerate(zip(e.r, e.leituras), 1)])


def mostrarCaixasRadial(caso, e, controles=tuple(CAIXAS_RADIAL)):
    for controle in controles:
        caso.mostra(f"PerfilForm.{controle}", getattr(e, CAIXAS_RADIAL[controle]))


def avancar(caso, e, *respostas):
    """Command8; the Perfil that it fills, None where it ends before."""
    conversa = Conversa(*respostas)
    perfil = None
    try:
        perfil = medido.avancar(e, conversa)
    except Recusa:
        pass
    except ErroDeExecucao as erro:
        conversa.saida.append(f"erro: {erro}")
    caso.clica("PerfilForm.Command8", conversa)
    return perfil


def mostrarPerfil(caso, p):
    if not p.firme():
        raise Inviavel
    if p.titulo:
        caso.mostra("Perfil.Caption", p.titulo)
    for nome in ("Label11", "Label13", "Label1", "Label2", "Label17"):
        caso.mostra(f"Perfil.{nome}", getattr(p, nome.lower()))
    caso.mostra("Perfil.lblRaio", p.lblRaio[1:], base=1)
    caso.mostra("Perfil.lblIntensidade", p.lblIntensidade[1:], base=1)
    for nome, valores in (("Label6", p.label6), ("Label7", p.label7)):
        if valores:
            caso.mostra(f"Perfil.{nome}", valores)


# ---- behind Perfil --------------------------------------------------------------------------

class PercursoOu(Percurso):
    """The catalogue's road behind form1, taken from Perfil."""

    def __init__(self, caso, p, ajuste):
        self.caso, self.p, self.ajuste = caso, p, ajuste
        self.a = AspersorMedido(p)
        self.form7 = Form7Ou(p)
        self.R, self.Q = ler(p.label17), ler(p.label2)
        self.itens, self.indice = u.listaDeEspacamentos(self.R)
        self._pegada = None

    def _calcular(self, botao, controles):
        self.caso.clica(botao)
        try:
            if self.form7.calcular():
                raise Inviavel
        except (ZeroDivisionError, OverflowError):
            raise Inviavel from None
        self.caso.saida += self.form7.aviso()
        mostrarForm7(self.caso, self.form7, controles)
        self.laminas = [float(linha[2]) for linha in self.form7.flexA]
        self.s = simples(ler(self.form7.combo2))
        self.V = ler(self.form7.text1)

    def avancar(self):
        """Perfil's "&Avançar >>"."""
        self._calcular("Perfil.Command6", ("flexA", "Label3", "Label4", "Label20", "Label19", "Label18", "Label27",
                                           "Label28", "Label2", "Label17", "Label39", "Label37", "Combo2", "Label23"))
        self.caso.mostra("Form7.Caption", self.form7.titulo)

    def recalcular(self):
        """Form7 with the setting's wind, angles, speed and spacing."""
        caso, tela, ajuste = self.caso, self.form7, self.ajuste
        caso.faz("escolher", "Form7.Combo2", ajuste["espacamento"])
        tela.combo2 = ajuste["espacamento"]
        caso.faz("digitar", "Form7.Text1", ajuste["velocidade"])
        tela.digitarVelocidade(ajuste["velocidade"])
        for barra, nome in (("HScroll1", "direcao"), ("HScroll2", "vento"), ("HScroll3", "secoI"),
                            ("HScroll4", "secoII"), ("HScroll5", "rotacao")):
            caso.faz("rolar", f"Form7.{barra}", ajuste[nome])
            tela.rolar(barra, ajuste[nome])
        self._calcular("Form7.Command2", MOSTRAR_FORM7)

    def _legendasDaCorrida(self):
        l = self.form7.legendas
        return {"Label1": self.p.label1, "Label2": l["Label19"],
                "Label3": f"Ângulo: {l['Label35']} graus", "Label4": f"Velocidade: {self.form7.text1} m/h",
                "Label8": f"Vazão: {self.p.label2} m³/h", "Label7": f"Raio: {self.p.label17} m",
                "Label37": f"Velocidade do Vento: {l['Label17']} m/s", "Label38": f"Direção do Vento: {l['Label2']}º"}

    def centro(self, legendas):
        super().centro(legendas)
        self.caso.mostra("Form4.Caption", self._titulo("Uniformidade no Centro da Faixa com Vento"))

    def abrirFaixa(self, legendas):
        super().abrirFaixa(legendas)
        self.caso.mostra("Form5.Caption", self._titulo("Uniformidade ao Longo da Faixa Irrigada com Vento"))

    def _titulo(self, comeco):
        return f"{comeco} - Aspersor {self.p.nome or 'não Especificado'}"


class PercursoDoMovel(PercursoOu):
    """The same from Form_EC, but for Form4's caption of the pressure."""

    def _legendasDaCorrida(self):
        legendas = super()._legendasDaCorrida()
        del legendas["Label1"]
        return legendas


def sortearForm7(s):
    return dict(espacamento=s.um(("1.5", "2.0", "3.0", "3.0", "6.0")),
                velocidade=s.um((str(s.inteiro(10, 60)), f"{s.entre(10, 80):.1f}", f"{s.entre(10, 60):.2f}")),
                vento=s.um((0, s.inteiro(1, 50), s.inteiro(1, 50))),
                direcao=s.um((s.inteiro(0, 360), s.inteiro(0, 360), 90 * s.inteiro(0, 4))),
                secoI=sortearAnguloSeco(s), secoII=sortearAnguloSeco(s), rotacao=s.um((s.inteiro(-360, 360), 0, 0)))


def simular(caso, s, percurso, comCentro, legendas=True):
    """Form7 twice, and on to Form4 or back to the main window."""
    percurso.avancar()
    percurso.recalcular()
    if not comCentro:
        caso.clica("Form7.cmdSair")
        return
    percurso.centro(legendas)
    percurso.escolherEspacamento(sortearEspacamento(s, percurso))
    if not percurso.sobrepor():
        raise Inviavel
    percurso.fechar("Form4")


# ---- drawing a radial test ------------------------------------------------------------------

NOMES = ("", "Canhão Araçá", "Jato 80", "Experimental nº 3", "P-150", "Gigante do Vale")
BOCAIS = ("", "20 x 6", "24", "18.5 x 5", "30 x 7 x 4")
PRESSOES = ("", "50", "45.5", "60", "38")


def sortearFormaRadial(s):
    """Distances and intensities (mm/h) of a plausible profile, with its oddities."""
    R = s.entre(14, 46)
    passo = s.um((1.0, 1.5, 2.0, 2.0, 2.5, 3.0, 4.0))
    while R / passo > 20:
        passo = passo * 2
    r = s.um((passo, passo / 2, passo))
    distancias = []
    while r < R - 0.3:
        distancias.append(r)
        r = r + passo * (s.entre(0.6, 1.4) if s.chance(0.1) else 1)
    topo, expoente, onda = s.entre(3, 18), s.entre(1.2, 5), s.entre(-0.4, 0.4)
    valores = []
    for r in distancias:
        x = r / R
        ondas = 1 + onda * (2 * x * (1 - x) * 4 - 1)
        valores.append(max(0.06, topo * (1 - x ** expoente) * ondas * s.entre(0.93, 1.07)))
    if s.chance(0.2):
        valores[0] = valores[0] * s.entre(2, 5)         # steep: the point at the sprinkler is the peak
    elif s.chance(0.2):
        valores[0] = valores[0] * s.entre(0.1, 0.5)     # falling to the sprinkler: twice the first reading
    return distancias, valores


def sortearRadial(s, unidade, decimais=None):
    """A test and the texts typed for its cells; the flow is chosen by vazaoRadial."""
    e = EnsaioRadial(unidade, s.um(NOMES), s.um(BOCAIS), s.um(PRESSOES),
                     s.um(("24", "22.5", "18", "10", "60", "26", "24.0", "")))
    if unidade != MM_H:
        e.tempo = s.um(("60", "30", "45", "90", "37.5", "120"))
    if unidade == ML:
        e.diametro = s.um(("8", "8.2", "10", "16", "11.28"))
    digitados = []
    for r, i in zip(*sortearFormaRadial(s)):
        v = i
        if unidade == MM:
            v = i * float(e.tempo) / 60
        elif unidade == ML:
            D = float(e.diametro)
            v = i / 1000 * (3.14 * D * D / 4) * float(e.tempo) / 60 * 100
        casas = s.um((1, 2, 3, 3, 4, 5)) if decimais is None else decimais
        textoR = f"{r:.{s.um((2, 2, 3, 4))}f}" if s.chance(0.5) else f"{r:g}"
        digitados.append((textoR, f"{v:.{casas}f}"))
    e.r = [celula(r, "0.00") for r, _ in digitados]
    e.leituras = [celula(i, "0.000") for _, i in digitados]
    return e, digitados


def vazaoRadial(s, e):
    """Chooses the flow; the answers to the boxes that then come."""
    qest = medido.volume(medido.perfilFechado(e)[0])
    modo = s.um(("estimar", "perto", "perto", "longe"))
    if modo == "estimar":
        return [NAO]
    if modo == "perto":
        e.vazao = f"{qest * s.entre(0.93, 1.07):.{s.um((1, 2, 3))}f}"
        return []
    e.vazao = f"{qest * s.um((s.entre(0.5, 0.85), s.entre(1.2, 2))):.{s.um((1, 2, 3))}f}"
    return [SIM]


def tentar(caso, contas, escrever, etapas=()):
    """Draws until the setting can be used, then keeps what it wrote."""
    while True:
        comandos, saida = len(caso.comandos), len(caso.saida)
        try:
            escrever()
        except (Inviavel, ErroDeExecucao, Recusa):
            del caso.comandos[comandos:], caso.saida[saida:]
            contar(contas, ["sorteado de novo"])
            continue
        contar(contas, etapas)
        return


def casoRadial(caso, s, numero, unidade):
    caso.bloco(numero)
    e, digitados = sortearRadial(s, unidade)
    respostas = vazaoRadial(s, e)
    abrirRadial(caso, e, digitados)
    if numero % 5 == 1:
        mostrarGradeRadial(caso, e)
    p = avancar(caso, e, *respostas)
    if p is None or not p.label6:
        raise Inviavel
    mostrarPerfil(caso, p)
    if numero % 6 == 2:
        caso.estado("Perfil.Command2", "visível habilitado")
        caso.clica("Perfil.Command2")
        mostrarCaixasRadial(caso, e)
        mostrarGradeRadial(caso, e)
        # The flow stands in its box now: nothing is asked that was not asked of a flow.
        p = avancar(caso, e, SIM)
        mostrarPerfil(caso, p)
    percurso = PercursoOu(caso, p, sortearForm7(s))
    simular(caso, s, percurso, comCentro=numero % 4 != 0)


def casoRadialArquivo(caso, s, numero, unidade, dados):
    caso.bloco(numero)
    e, digitados = sortearRadial(s, unidade)
    if not e.angulo or not e.vazao and s.chance(0.5):
        e.angulo = e.angulo or "24"
    respostas = vazaoRadial(s, e)
    noArquivo = EnsaioRadial(**vars(e))
    noArquivo.r, noArquivo.leituras = map(list, zip(*digitados))
    nome = f"radial-{numero:02d}.TXT"
    dados[nome] = emBytes(medido.linhasDoArquivoRadial(noArquivo), numero)
    lido = medido.depoisDeLido(noArquivo)
    caso.clica("Form3.Ou_aspB")
    lerRadial(caso, f"dados/{nome}")
    mostrarCaixasRadial(caso, lido)
    caso.mostra("PerfilForm.Text5", str(len(lido.r)))
    caso.estado(f"PerfilForm.{OPCAO_RADIAL[unidade]}", "visível habilitado marcado")
    caso.estado("PerfilForm.Option2", "visível habilitado marcado")
    mostrarGradeRadial(caso, lido)
    if lido.vazao == "N/E":
        # What stood empty was saved as a text, and is no number now.
        assert avancar(caso, lido) is None
        mostrarCaixasRadial(caso, lido, ("Text1",))
    p = avancar(caso, lido, *respostas)
    if p is None or not p.label6:
        raise Inviavel
    mostrarPerfil(caso, p)
    percurso = PercursoOu(caso, p, sortearForm7(s))
    simular(caso, s, percurso, comCentro=numero % 3 != 0)


def emBytes(linhas, variante, fimFinal=True):
    """A file as one of several editors would leave it."""
    quebra = "\n" if variante % 5 == 3 else "\r\n"
    conteudo = quebra.join(linhas) + (quebra if fimFinal else "")
    if variante % 7 == 5:
        conteudo += quebra * 3
    if variante % 6 == 4:
        return b"\xef\xbb\xbf" + conteudo.encode()
    return conteudo.encode("cp1252" if variante % 4 == 2 else "utf-8")


# ---- PerfilForm: what it refuses, and where a rule changes ----------------------------------

def base(**mudancas):
    """A good test in mm/h; reach 24 m or so."""
    campos = dict(unidade=MM_H, aspersor="Jato 80", bocais="20 x 6", pressao="50", angulo="24",
                  r=["3.00", "6.00", "9.00", "12.00", "15.00", "18.00", "21.00"],
                  leituras=["7.100", "7.300", "6.900", "6.400", "5.200", "3.300", "1.200"])
    campos.update(mudancas)
    return EnsaioRadial(**campos)


def trocar(lista, indice, valor):
    return lista[:indice] + [valor] + lista[indice + 1:]


def fecharRadial(caso):
    caso.clica("PerfilForm.Command3")


def recusasDoRadial(caso, contas):
    r, i = base().r, base().leituras

    caso.bloco("the time of a reading in mm")
    abrirRadial(caso, base(unidade=MM))
    for tempo in ("", "abc", "0", "-5"):
        if tempo:
            caso.faz("digitar", "PerfilForm.Text4", tempo)
        e = base(unidade=MM, tempo=tempo)
        assert avancar(caso, e) is None
        mostrarCaixasRadial(caso, e, ("Text4",))
        caso.foco("PerfilForm.Text4")
    fecharRadial(caso)

    caso.bloco("time and diameter of a volume")
    abrirRadial(caso, base(unidade=ML))
    for tempo, diametro in (("", ""), ("60", ""), ("", "8"), ("abc", "8"), ("60", "x"), ("0", "8"), ("60", "-8"), ("60", "0")):
        for controle, t in (("Text4", tempo), ("Text3", diametro)):
            if t:
                caso.faz("digitar", f"PerfilForm.{controle}", t)
        e = base(unidade=ML, tempo=tempo, diametro=diametro)
        assert avancar(caso, e) is None
        mostrarCaixasRadial(caso, e, ("Text4", "Text3"))
    fecharRadial(caso)

    caso.bloco("jet angle")
    abrirRadial(caso, base())
    for angulo in ("abc", "9", "9.99", "60.01", "61", "0", "-24", "24º", "N/E"):
        caso.faz("digitar", "PerfilForm.Text8", angulo)
        e = base(angulo=angulo)
        assert avancar(caso, e) is None
        mostrarCaixasRadial(caso, e, ("Text8",))
        caso.foco("PerfilForm.Text8")
    fecharRadial(caso)

    # One fault at a time: which of two is told first is no question then.
    for titulo, e in (
            ("an empty distance", base(r=trocar(r, 2, ""))),
            ("an empty reading", base(leituras=trocar(i, 3, ""))),
            ("an empty last reading", base(leituras=trocar(i, 6, ""))),
            ("a distance that is no number", base(r=trocar(r, 0, "três"))),
            ("a reading that is no number", base(leituras=trocar(i, 5, "1,5"))),
            ("equal distances", base(r=trocar(r, 3, "9.00"))),
            ("a falling distance", base(r=trocar(r, 6, "17.99"))),
            ("a reading at the sprinkler", base(r=trocar(r, 0, "0.00"))),
            ("a dry last collector", base(leituras=trocar(i, 6, "0.000"))),
            ("a reach below 12 m", base(r=[f"{float(t) / 2:.2f}" for t in r])),
            ("a level end", base(leituras=trocar(i, 6, "3.300"))),
            ("a rising end", base(leituras=trocar(i, 6, "3.400"))),
            ("all empty", base(r=[""] * 7, leituras=[""] * 7))):
        caso.bloco(titulo)
        abrirRadial(caso, e)
        assert avancar(caso, e) is None
        mostrarCaixasRadial(caso, e, ("Text7", "Text8", "Text1"))
        mostrarGradeRadial(caso, e)
        fecharRadial(caso)
        contar(contas, ["recusa"])

    caso.bloco("flow")
    abrirRadial(caso, base())
    e = base()
    assert avancar(caso, e, SIM) is None
    mostrarCaixasRadial(caso, e, ("Text1",))
    for vazao in ("abc", "0", "-3", "12,5", "N/E"):
        caso.faz("digitar", "PerfilForm.Text1", vazao)
        e = base(vazao=vazao)
        assert avancar(caso, e) is None
        mostrarCaixasRadial(caso, e, ("Text1",))
        caso.foco("PerfilForm.Text1")
    for vazao in ("4", "40"):
        caso.faz("digitar", "PerfilForm.Text1", vazao)
        e = base(vazao=vazao)
        assert avancar(caso, e, NAO) is None
        mostrarCaixasRadial(caso, e, ("Text1",))
    p = avancar(caso, e, SIM)
    mostrarPerfil(caso, p)
    caso.clica("Perfil.Command1")

    caso.bloco("a flow that rounds to nothing")
    e = base(leituras=[f"{k / 1000:.3f}" for k in (1, 1, 1, 1, 1, 2, 1)])
    abrirRadial(caso, e)
    assert avancar(caso, e, NAO, NAO) is None
    mostrarCaixasRadial(caso, e, ("Text1",))
    fecharRadial(caso)

    caso.bloco("number of rows")
    caso.clica("Form3.Ou_aspB")
    caso.faz("digitar", "PerfilForm.Text5", 2)
    vazia = base(r=[""] * 2, leituras=[""] * 2)
    mostrarGradeRadial(caso, vazia)
    for linhas in ("0", "-1", "-0.5"):
        caso.faz("digitar", "PerfilForm.Text5", linhas)
        caso.saida.append("mensagem: O valor deve ser maior que zero!")
        caso.mostra("PerfilForm.Text5", "")
        caso.foco("PerfilForm.Text5")
        mostrarGradeRadial(caso, vazia)
    caso.faz("digitar", "PerfilForm.Text5", "abc")
    mostrarGradeRadial(caso, vazia)
    caso.faz("digitar", "PerfilForm.Text5", 3)
    mostrarGradeRadial(caso, base(r=[""] * 3, leituras=[""] * 3))
    fecharRadial(caso)

    caso.bloco("units")
    caso.clica("Form3.Ou_aspB")
    caso.faz("digitar", "PerfilForm.Text5", 1)
    for unidade, tempo, diametro in ((ML, True, True), (MM, True, False), (MM_H, False, False), (ML, True, True)):
        caso.clica(f"PerfilForm.{OPCAO_RADIAL[unidade]}")
        mostrarGradeRadial(caso, EnsaioRadial(unidade, r=[""], leituras=[""]))
        for controle, visivel in (("Text4", tempo), ("Text3", diametro)):
            caso.mostra(f"PerfilForm.{controle}", "")
            caso.estado(f"PerfilForm.{controle}", f"{'visível' if visivel else 'oculto'} habilitado")
            if visivel:
                caso.faz("digitar", f"PerfilForm.{controle}", "12")
    fecharRadial(caso)

    caso.bloco("&Limpar")
    e = base(unidade=ML, tempo="60", diametro="8", vazao="9")
    abrirRadial(caso, e)
    caso.clica("PerfilForm.Command1")
    limpa = EnsaioRadial(ML, r=[""] * 7, leituras=[""] * 7)
    mostrarCaixasRadial(caso, limpa)
    caso.mostra("PerfilForm.Text6", "")
    mostrarGradeRadial(caso, limpa)
    caso.estado("PerfilForm.Option1", "visível habilitado marcado")
    fecharRadial(caso)


def limitesDoRadial(caso, s, contas):
    """Tests at the places where a rule of the closing changes."""
    r, i = base().r, base().leituras
    exemplos = (
        ("falling to the sprinkler: twice the first reading", base(leituras=["1.100", "6.300"] + i[2:])),
        ("steep at the sprinkler: the peak", base(leituras=["30.700", "7.300"] + i[2:])),
        ("rising to the sprinkler, below twice the peak", base(leituras=["12.700", "7.300"] + i[2:])),
        ("a flat start", base(leituras=["7.300", "7.300"] + i[2:])),
        ("a slow end: a quarter of the spacing past the last reading", base(leituras=i[:5] + ["1.300", "1.250"])),
        ("a steep end: where the line reaches zero", base(leituras=i[:5] + ["4.850", "0.310"])),
        ("a reach a little above 12 m", base(r=["2.00", "4.00", "6.00", "8.00", "10.00", "11.00", "12.00"],
                                             leituras=i[:6] + ["0.250"])),
        ("two readings", base(r=["9.00", "17.00"], leituras=["6.200", "2.700"])),
        ("two readings, flat but for a little", base(r=["6.00", "13.00"], leituras=["5.000", "4.990"])),
        ("an end that rises steeply: the line's zero lies before the last reading",
         base(leituras=i[:5] + ["0.100", "2.000"])),
        ("the widest jet", base(angulo="60")),
        ("the flattest jet", base(angulo="10")),
        ("nothing told of the sprinkler", base(aspersor="", bocais="", pressao="")),
        ("a dry place in the middle", base(leituras=trocar(i, 3, "0.000"))),
        ("a flow 10 % off, still good", base(vazao="limite")),
        ("distances far apart", base(r=["1.00", "2.00", "20.00", "21.00", "35.00", "44.52", "45.00"],
                                     leituras=["9.000", "8.950", "6.000", "5.900", "2.000", "0.700", "0.650"])))
    for titulo, e in exemplos:
        caso.bloco(titulo)
        if e.vazao == "limite":
            e.vazao = formatar(medido.volume(medido.perfilFechado(e)[0]) / 1.0999, "0.000")
        respostas = [] if e.vazao else [NAO]
        abrirRadial(caso, e)
        p = avancar(caso, e, *respostas)
        if p is None or not p.firme():
            raise AssertionError(titulo)
        mostrarPerfil(caso, p)
        contar(contas, ["radial", "canto"])
        if "rises" in titulo:
            caso.clica("Perfil.Command1")
            continue
        percurso = PercursoOu(caso, p, sortearForm7(s))
        comandos, saida = len(caso.comandos), len(caso.saida)
        try:
            simular(caso, s, percurso, comCentro=False)
        except Inviavel:
            # Kept up to Perfil: the drawn wind leaves a point without meaning.
            del caso.comandos[comandos:], caso.saida[saida:]
            caso.clica("Perfil.Command1")

    caso.bloco("the mouse over Perfil's chart")
    e = base(vazao="9")
    abrirRadial(caso, e)
    p = avancar(caso, e, SIM)
    mostrarPerfil(caso, p)
    for x, y in ((77, 238), (427, 28), (252, 133), (100, 200), (300, 50)):
        if p.label7:
            leitura = medido.leituraDoPerfil(p, x, y)
            caso.faz("mover", "Perfil.Picture1", x, y)
            caso.mostra("Perfil.Label15", leitura[0])
            caso.mostra("Perfil.Label16", leitura[1])
    caso.clica("Perfil.Command1")


def arquivosRecusados(caso, contas, dados):
    """Files that PerfilForm refuses, each with one fault."""
    boas = medido.linhasDoArquivoRadial(base(vazao="9"))
    mm = medido.linhasDoArquivoRadial(base(unidade=MM, tempo="60", vazao="9"))
    ml = medido.linhasDoArquivoRadial(base(unidade=ML, tempo="60", diametro="8", vazao="9"))
    duas, faltam = ("A arquivo *.TXT apresenta mais de duas colunas!",
                    "O número de colunas do arquivo não coicide com o número de colunas especificado!")
    emR = "Há valores não numéricos nos dados de distância ao aspersor!"
    emI = "Há valores não numéricos nos dados de precipitação!"
    ordem = "Os valores de distância ao aspersor devem estar em ordem crescente!"
    exemplos = [(f"linha-{k}-vazia", trocar(boas, k - 1, ""), NAO_ABRE) for k in range(1, 7)]
    exemplos += [
        ("linha-6-texto", trocar(boas, 5, "sete"), NAO_ABRE), ("linha-6-zero", trocar(boas, 5, "0"), NAO_ABRE),
        ("linha-6-negativa", trocar(boas, 5, "-7"), NAO_ABRE), ("termina-na-linha-4", boas[:4], NAO_ABRE),
        ("vazio", [], NAO_ABRE),
        ("mm-sem-tempo", trocar(mm, 7, ""), NAO_ABRE), ("mm-tempo-texto", trocar(mm, 7, "uma hora"), NAO_ABRE),
        ("ml-sem-diametro", trocar(ml, 8, ""), NAO_ABRE), ("ml-diametro-texto", trocar(ml, 8, "oito"), NAO_ABRE),
        ("ml-sem-linha-9", ml[:8] + ml[9:], NAO_ABRE), ("ml-sem-tempo", trocar(ml, 7, ""), NAO_ABRE),
        ("tres-colunas", trocar(boas, 9, "9.00\t6.900\t1.000"), duas),
        ("uma-coluna", trocar(boas, 9, "9.00"), faltam), ("espaco-por-tab", trocar(boas, 9, "9.00 6.900"), faltam),
        ("r-texto", trocar(boas, 9, "nove\t6.900"), emR), ("r-com-virgula", trocar(boas, 9, "9,00\t6.900"), emR),
        ("i-texto", trocar(boas, 9, "9.00\tmuito"), emI), ("i-vazia", trocar(boas, 9, "9.00\t"), emI),
        ("r-igual", trocar(boas, 9, "6.00\t6.900"), ordem), ("r-menor", trocar(boas, 9, "5.00\t6.900"), ordem)]
    for nome, linhas, mensagem in exemplos:
        caso.bloco(nome)
        arquivo = f"radial-{nome}.TXT"
        dados[arquivo] = ("\r\n".join(linhas) + "\r\n" if linhas else "").encode()
        caso.clica("Form3.Ou_aspB")
        lerRadial(caso, f"dados/{arquivo}")
        caso.saida.append(f"mensagem: {mensagem}")
        caso.estado("PerfilForm.Option1", "visível habilitado marcado")
        caso.estado("PerfilForm.Option2", "visível habilitado desmarcado")
        if mensagem == NAO_ABRE:
            mostrarCaixasRadial(caso, EnsaioRadial(), ("Text7", "Text9", "Text2", "Text8", "Text1"))
        # The screen takes entry again, with rows of its own.
        caso.faz("digitar", "PerfilForm.Text5", 1)
        e = base(vazao="limite")
        e.vazao = formatar(medido.volume(medido.perfilFechado(e)[0]), "0.000")
        preencherRadial(caso, e)
        p = avancar(caso, e)
        mostrarPerfil(caso, p)
        caso.clica("Perfil.Command1")
        contar(contas, ["arquivo recusado"])

    caso.bloco("the box is answered with No, the dialog is left")
    e = base(vazao="9")
    abrirRadial(caso, e)
    caso.faz("responder", NAO)
    caso.clica("PerfilForm.Option2")
    caso.saida.append(f"pergunta: {ABRIR} -> não")
    mostrarCaixasRadial(caso, e)
    mostrarGradeRadial(caso, e)
    caso.estado("PerfilForm.Option1", "visível habilitado marcado")
    caso.faz("responder", SIM)
    caso.faz("arquivo", "cancelar")
    caso.clica("PerfilForm.Option2")
    caso.saida += [f"pergunta: {ABRIR} -> sim", "arquivo para abrir: cancelado"]
    mostrarCaixasRadial(caso, EnsaioRadial())
    mostrarGradeRadial(caso, e)
    caso.estado("PerfilForm.Option1", "visível habilitado marcado")
    fecharRadial(caso)


# ---- Form_EC --------------------------------------------------------------------------------

def abrirMovel(caso, e, item):
    """Form_EC filled by hand from a menu item."""
    caso.clica(f"Form3.{item}")
    preencherMovel(caso, e)


def preencherMovel(caso, e):
    caso.clica(f"Form_EC.{OPCAO_MOVEL[e.unidade]}")
    for controle, campo in LISTAS_MOVEL.items():
        caso.faz("escolher", f"Form_EC.{controle}", getattr(e, campo))
    for controle, campo in CAIXAS_MOVEL.items():
        if getattr(e, campo):
            caso.faz("digitar", f"Form_EC.{controle}", getattr(e, campo))
    for linha, textos in enumerate(e.leituras, 1):
        for coluna, t in enumerate(textos, 1):
            if t:
                caso.faz("celula", "Form_EC.flex_A", linha, coluna, t)


def lerMovel(caso, arquivo):
    caso.faz("responder", SIM)
    caso.faz("arquivo", arquivo)
    caso.clica("Form_EC.Option2")
    caso.saida += [f"pergunta: {ABRIR} -> sim", f"arquivo para abrir: {arquivo}"]


def mostrarMovel(caso, e, listas=True):
    for controle, campo in CAIXAS_MOVEL.items():
        caso.mostra(f"Form_EC.{controle}", getattr(e, campo))
    for controle, campo in LISTAS_MOVEL.items() if listas else ():
        caso.mostra(f"Form_EC.{controle}", getattr(e, campo))


def mostrarGradeMovel(caso, e):
    """The corner of the grid has no text of its own."""
    caso.mostraGrade("Form_EC.flex_A", [""] + medido.cabecalhoDoMovel(e),
                     [(posicao, *linha) for posicao, linha in zip(medido.posicoesDoMovel(e), e.leituras)])


def perfilDoMovel(caso, e, *respostas):
    conversa = Conversa(*respostas)
    perfil = None
    try:
        perfil = medido.perfilRadialDoMovel(e, conversa)
    except Recusa:
        pass
    except ErroDeExecucao as erro:
        conversa.saida.append(f"erro: {erro}")
    caso.clica("Form_EC.Command6", conversa)
    return perfil


def sortearMovel(s, espacamentos, maximo, linhas, grao=lambda L: 0.001):
    """A test of a sprinkler with a plausible profile, its readings scattered; the flow stays open.

    grao: to what the depths of L lines are read, mm.
    """
    e = EnsaioMovel(s.um((MM, MM, ML)), s.um(NOMES), s.um(BOCAIS), s.um(PRESSOES), s.um(("", "24", "22")))
    e.velocidade = s.um((str(s.inteiro(15, 80)), f"{s.entre(15, 80):.1f}"))
    e.giro = s.um(("360", "360", "330", "300", "270", "240", "210", "200", "180", str(s.inteiro(180, 360)),
                   f"{s.entre(180, 360):.1f}"))
    if e.unidade == ML:
        e.diametro = s.um(("8", "8.2", "10", "16"))
    if s.chance(0.4):
        e.ventoVelocidade, e.ventoDirecao = f"{s.entre(0, 3):.1f}", str(s.inteiro(0, 360))
    e.espacamento = s.um(espacamentos)
    passo = float(e.espacamento)
    c = s.inteiro(max(3, int(13 / passo) + 1), min(maximo, max(4, int(48 / passo))))
    e.lados, e.linhas, e.distancia = str(c), str(s.inteiro(1, linhas)), f"{s.inteiro(1, 12)}.0"
    R = passo * (c - s.um((0.0, 0.0, 0.2, 0.4, 1.3, 2.4)) - s.entre(0, 0.4))
    topo, expoente, V = s.entre(3, 14), s.entre(1.5, 5), float(e.velocidade)
    alfa = (360 - float(e.giro)) / 360 * medido.PI
    dispersao = s.um((0.01, 0.03, 0.06))
    menor = grao(int(e.linhas))

    def lamina(x):
        total, raios = 0.0, [R * k / 60 for k in range(1, 61)]
        anterior = 0.0
        for r in raios:
            corda = medido.cordaCheia(x, r) + medido.cordaSetor(x, r, alfa)
            total = total + topo * (1 - ((r - R / 120) / R) ** expoente) * (corda - anterior) / V
            anterior = corda
        return total

    def leitura(x):
        h = lamina(x) * (1 + dispersao * s.entre(-1, 1))
        if e.unidade == MM:
            return f"{round(h / menor) * menor:.3f}"
        return f"{h * 3.1416 * float(e.diametro) ** 2 / 40:.3f}"

    posicoes = [passo * (j - 0.5) for j in range(c, 0, -1)]
    e.leituras = [[leitura(x) for _ in range(int(e.linhas))] for x in posicoes + posicoes[::-1]]
    return e


def vazaoDoMovel(s, e):
    """Chooses the flow; the answers to the boxes that then come."""
    D = medido.mediasDosLados(medido.laminas(e))
    alfa = ((360 - float(e.giro)) / 2) * medido.PI / 180
    Qe = medido.vazaoDosAneis(medido.descascar(D, ler(e.espacamento), alfa, float(e.velocidade), Conversa())) / 1000
    modo = s.um(("perto", "perto", "perto", "longe", "longe", "estimar"))
    if modo == "estimar":
        return [s.um((SIM, NAO)), SIM]
    fator = s.entre(0.93, 1.07) if modo == "perto" else s.um((s.entre(0.4, 0.85), s.entre(1.2, 2.5)))
    e.vazao = f"{Qe * fator:.{s.um((1, 2, 3))}f}"
    if not 0.2 < float(e.vazao):
        raise Inviavel
    return [SIM] if modo == "longe" else []


def casoMovel(caso, s, numero, dados=None):
    """A moving profile, typed or from a file, to the radial profile and the simulation."""
    caso.bloco(numero)
    e = sortearMovel(s, ("1.0", "1.5", "2.0", "2.0", "3.0", "6.0"), 16 if dados is None else 36, 2 if dados is None else 4)
    respostas = vazaoDoMovel(s, e)
    if dados is None:
        abrirMovel(caso, e, "PerfRad")
    else:
        if not e.vazao:
            raise Inviavel      # an empty flow is a text in the file
        e = abrirArquivoMovel(caso, e, numero, "PerfRad", dados)
    p = perfilDoMovel(caso, e, *respostas)
    if p is None or not p.label6:
        raise Inviavel
    mostrarPerfil(caso, p)
    if numero % 6 == 1:
        caso.estado("Perfil.Command5", "visível habilitado")
        caso.clica("Perfil.Command5")
        mostrarMovel(caso, e)
        p = perfilDoMovel(caso, e, SIM, SIM)
        mostrarPerfil(caso, p)
    percurso = PercursoDoMovel(caso, p, sortearForm7(s))
    simular(caso, s, percurso, comCentro=numero % 3 == 0, legendas=True)


def abrirArquivoMovel(caso, e, numero, item, dados):
    """Form_EC filled from a file of the test; the screen's boxes after it."""
    nome = f"movel-{numero:02d}.TXT"
    dados[nome] = emBytes(medido.linhasDoArquivoMovel(e), numero, fimFinal=numero % 2 == 0)
    e = lidoDoMovel(e)
    caso.clica(f"Form3.{item}")
    lerMovel(caso, f"dados/{nome}")
    mostrarMovel(caso, e)
    caso.estado(f"Form_EC.{OPCAO_MOVEL[e.unidade]}", "visível habilitado marcado")
    caso.estado("Form_EC.Option2", "visível habilitado marcado")
    return e


def lidoDoMovel(e):
    lido = EnsaioMovel(**vars(e))
    lido.aspersor = e.aspersor or "Não Especificado"
    for campo in ("bocais", "pressao", "anguloJato", "vazao", "velocidade", "giro"):
        setattr(lido, campo, getattr(e, campo) or "N/E")
    return lido


# ---- FormUnifo ------------------------------------------------------------------------------

def mostrarDetalhe(caso, r, d, grade=True):
    if grade:
        cabecalho = ["Distância (m)"] + [f"Linha  {k} - I(mm)" for k in range(1, int(r.e.linhas) + 1)] + ["Média - I(mm)"]
        caso.mostraGrade("FormUnifo.flexGrid_B", cabecalho, d.flexGrid_B)
    for nome in ("Label16", "Label33", "Label17"):
        caso.mostra(f"FormUnifo.{nome}", getattr(d, nome.lower()))


def sobreporMovel(caso, r, textoE):
    """cmdCUC at a spacing; False where it is refused."""
    caso.faz("escolher" if textoE in r.itens else "digitar", "FormUnifo.cmbEspaçamento", textoE)
    caso.clica("FormUnifo.cmdCUC")
    recusa = medido.recusaDoEspacamentoMovel(textoE)
    if recusa:
        caso.saida.append(f"mensagem: {recusa}")
        return False
    d = r.sobrepor(textoE)
    if not r.firme():
        raise Inviavel
    mostrarDetalhe(caso, r, d)
    return True


def abrirSobreposicao(caso, e):
    conversa = Conversa()
    r = medido.prepararSobreposicao(e, conversa)
    if r.melhor is None:
        raise Inviavel
    caso.clica("Form_EC.Command4", conversa)
    d = r.sobrepor(r.melhor)
    if not r.firme():
        raise Inviavel
    caso.mostra("FormUnifo.cmbEspaçamento", r.melhor)
    caso.comandos.append("mostrar FormUnifo.cmbEspaçamento.itens")
    caso.saida.append("FormUnifo.cmbEspaçamento.itens = " + "\t".join(r.itens))
    caso.mostraGrade("FormUnifo.flexGrid_A", CABECALHO_A, r.flexGrid_A)
    mostrarDetalhe(caso, r, d)
    return r, d


def graoDaSobreposicao(L):
    """Depths of which no mean over the lines falls between two texts of three decimals."""
    return 0.02 if L % 2 == 0 else 0.001


def casoSobreposicao(caso, s, numero, dados=None):
    caso.bloco(numero)
    e = sortearMovel(s, ("2.0", "3.0", "3.0", "6.0"), 12 if dados is None else 40, 3 if dados is None else 6,
                     graoDaSobreposicao)
    e.vazao = s.um((str(s.inteiro(5, 60)), f"{s.entre(5, 60):.2f}"))
    if dados is None:
        abrirMovel(caso, e, "EnsCampo")
    else:
        e = abrirArquivoMovel(caso, e, numero, "EnsCampo", dados)
    r, d = abrirSobreposicao(caso, e)
    for _ in range(s.inteiro(1, 3)):
        sobreporMovel(caso, r, s.um(r.itens))
    if s.chance(0.3):
        seis = 6 * s.inteiro(2, 8)
        sobreporMovel(caso, r, f"{seis + s.entre(-0.4, 0.4):.1f}")
    if s.chance(0.3):
        # A spacing that is refused leaves the figures.
        d = r.sobrepor(r.itens[0])
        sobreporMovel(caso, r, r.itens[0])
        for textoE in ("7", "20", "8.5"):
            assert not sobreporMovel(caso, r, textoE)
            mostrarDetalhe(caso, r, d, grade=False)
    if s.chance(0.3):
        caso.clica("FormUnifo.Command2")
        mostrarMovel(caso, e)
        abrirSobreposicao(caso, e)
    caso.clica("FormUnifo.Command4")


# ---- Form_EC: what it refuses ---------------------------------------------------------------

def baseMovel(**mudancas):
    """A good test in mm, three collectors on each side, two lines."""
    campos = dict(aspersor="Jato 80", bocais="20 x 6", pressao="50", anguloJato="24", vazao="20", velocidade="40",
                  giro="240", linhas="2", distancia="5.0", lados="3", espacamento="6.0",
                  leituras=[["3.120", "2.940"], ["9.420", "9.680"], ["12.240", "11.860"],
                            ["12.520", "12.140"], ["9.920", "9.360"], ["3.340", "2.900"]])
    campos.update(mudancas)
    return EnsaioMovel(**campos)


def mudarCelula(e, linha, coluna, t):
    e.leituras = [list(x) for x in e.leituras]
    e.leituras[linha - 1][coluna - 1] = t
    return e


def medidos(laminas, linhas=1):
    """The rows of a grid whose both sides hold the same depths, from the lane outward."""
    lado = [[f"{h:.3f}"] * linhas for h in laminas]
    return lado[::-1] + lado


def limitesDoMovel(caso, contas):
    """Moving profiles at the places where a rule of the inverse method changes."""
    def circulo(c, s, R):
        return [8 * 2 * max(0.0, R * R - x * x) ** 0.5 / 40 for x in (s * (j + 0.5) for j in range(c))]

    exemplos = [
        ("the last line reaches zero within a quarter of a step", "2.0", [15, 14.8, 13.1, 12.4, 10.7, 6.3, 0.4], "360"),
        ("the last line reaches zero farther out", "3.0", [15, 14.8, 13.1, 9.7, 6.3], "300"),
        ("dry collectors at the end", "2.0", [13, 12.9, 12, 11.3, 9.9, 7.7, 4.1, 0, 0, 0], "360"),
        ("a depth that rises again outward", "3.0", [9, 8.2, 6.1, 7.7, 8.9, 3.3], "270"),
        ("little water near the lane: negative intensities", "6.0", [2, 9, 12.1, 4.3], "360"),
        ("half a circle", "3.0", [15, 14.8, 13.1, 9.7, 6.3, 2.2], "180"),
        ("a narrow turn", "3.0", [15, 14.8, 13.1, 9.7, 6.3, 2.2], "120"),
        ("collectors a metre apart", "1.0", [9, 9.1, 8.8, 8.9, 8.2, 7.9, 7.8, 6.9, 6.1, 5.8, 4.1, 3.3, 2.9, 1.7, 0.7], "330"),
        ("collectors a metre and a half apart", "1.5", [9, 9.1, 8.8, 8.9, 8.2, 7.9, 7.8, 6.9, 6.1, 3.8, 2.1, 0.63], "210"),
        ("a uniform circle", "2.0", circulo(10, 2.0, 19.9), "360"),
        ("forty collectors on each side", "1.0", circulo(40, 1.0, 37.4), "360"),
        ("only two wet", "6.0", [8.3, 3.1, 0.0], "360")]
    for titulo, espacamento, laminas, giro in exemplos:
        caso.bloco(titulo)
        e = baseMovel(espacamento=espacamento, lados=str(len(laminas)), linhas="1", giro=giro, leituras=medidos(laminas))
        abrirMovel(caso, e, "PerfRad")
        p = perfilDoMovel(caso, e, SIM)
        if p is None or not p.firme():
            raise AssertionError(titulo)
        mostrarPerfil(caso, p)
        comandos, saida = len(caso.comandos), len(caso.saida)
        try:
            PercursoDoMovel(caso, p, {}).avancar()
            caso.clica("Form7.cmdSair")
        except Inviavel:
            del caso.comandos[comandos:], caso.saida[saida:]
            caso.clica("Perfil.Command1")
        contar(contas, ["movel", "canto"])

    caso.bloco("ten lines, scattered; the estimate of the flow in place of the flow, both answers")
    e = baseMovel(linhas="10", vazao="", lados="4", espacamento="3.0", leituras=[
        [f"{h * (0.9 + (3 * k + 7 * j) % 10 / 50):.3f}" for k in range(10)]
        for j, h in enumerate((2.3, 6.1, 9.2, 10.4, 10.1, 9.4, 5.8, 2.1))])
    abrirMovel(caso, e, "PerfRad")
    assert perfilDoMovel(caso, e, SIM, NAO) is None
    caso.mostra("Form_EC.Text12", e.vazao)
    caso.estado("Form_EC.Option1", "visível habilitado marcado")
    caso.faz("digitar", "Form_EC.Text12", "")
    e.vazao = ""
    mostrarPerfil(caso, perfilDoMovel(caso, e, NAO, SIM))
    caso.clica("Perfil.Command5")
    caso.mostra("Form_EC.Text12", e.vazao)
    caso.clica("Form_EC.Command5")


def recusasDoMovel(caso, contas):
    comuns = [
        ("an empty cell", lambda: mudarCelula(baseMovel(), 2, 1, "")),
        ("a cell that is no number", lambda: mudarCelula(baseMovel(), 5, 2, "9,3")),
        ("a diameter that is no number", lambda: baseMovel(unidade=ML, diametro="oito")),
        ("no diameter", lambda: baseMovel(unidade=ML)),
        ("a flow that is no number", lambda: baseMovel(vazao="muita")),
        ("a speed that is no number", lambda: baseMovel(velocidade="40 m/h")),
        ("no speed", lambda: baseMovel(velocidade=""))]
    doPerfil = [
        ("a negative mean", lambda: mudarCelula(baseMovel(), 6, 2, "-20.000")),
        ("a last mean above the one before", lambda: baseMovel(leituras=baseMovel().leituras[3:] + baseMovel().leituras[:3])),
        ("two equal last means", lambda: baseMovel(leituras=[["3.000", "3.000"], ["3.000", "3.000"], ["9.000", "9.500"],
                                                            ["9.000", "9.000"], ["3.000", "3.000"], ["3.000", "3.000"]])),
        ("a speed of 0", lambda: baseMovel(velocidade="0")),
        ("a diameter of 0", lambda: baseMovel(unidade=ML, diametro="0")),
        ("a flow of 0", lambda: baseMovel(vazao="0")),
        ("a negative flow", lambda: baseMovel(vazao="-20")),
        ("a flow far off, not gone on with", lambda: baseMovel(vazao="80")),
        ("no flow, not gone on with", lambda: baseMovel(vazao=""))]
    daSobreposicao = [("no flow", lambda: baseMovel(vazao="")),
                      ("1.5 m between collectors", lambda: baseMovel(espacamento="1.5")),
                      ("1 m between collectors", lambda: baseMovel(espacamento="1.0"))]
    for item, botao, exemplos in (("PerfRad", "Command6", comuns + doPerfil), ("EnsCampo", "Command4", comuns + daSobreposicao)):
        for titulo, fazer in exemplos:
            caso.bloco(f"{botao}: {titulo}")
            e = fazer()
            abrirMovel(caso, e, item)
            if botao == "Command6":
                assert perfilDoMovel(caso, e, *([SIM, NAO] if not e.vazao else [NAO])) is None, titulo
            else:
                conversa = Conversa()
                try:
                    medido.prepararSobreposicao(e, conversa)
                    raise AssertionError(titulo)
                except Recusa:
                    caso.clica("Form_EC.Command4", conversa)
            mostrarMovel(caso, e)
            if "not gone on" in titulo:
                caso.estado("Form_EC.Option1", "visível habilitado marcado")
            caso.clica("Form_EC.Command5")
            contar(contas, ["recusa do movel"])

    caso.bloco("a spacing that is not in the list")
    for item, botao, mensagem in (("PerfRad", "Command6", medido.PARA_PERFIL[1]), ("EnsCampo", "Command4", medido.PARA_SOBREPOR[1])):
        abrirMovel(caso, baseMovel(), item)
        caso.faz("digitar", "Form_EC.Combo4", "2.5")
        caso.clica(f"Form_EC.{botao}")
        caso.saida.append(f"mensagem: {mensagem}")
        caso.mostra("Form_EC.Combo4", "2.5")
        caso.clica("Form_EC.Command5")

    for titulo, mensagem, mudancas in (
            ("flow", "Insira um valor numérico de vazão!", dict(vazao="muita")),
            ("speed", "Insira um valor numérico de velocidade!", dict(velocidade="x")),
            ("no turn", "Valor de vazão, velocidade ou ângulo de giro inexistente!", dict(giro="")),
            ("flow 0", "Valor de vazão, velocidade ou ângulo de giro nulo!", dict(vazao="0")),
            ("speed 0", "Valor de vazão, velocidade ou ângulo de giro nulo!", dict(velocidade="0.0")),
            ("turn 0", "Valor de vazão, velocidade ou ângulo de giro nulo!", dict(giro="0")),
            ("wind", "Insira um valor numérico de velocidade do vento!", dict(ventoVelocidade="brisa", ventoDirecao="90")),
            ("wind direction", "Insira um valor numérico de direção do vento!", dict(ventoVelocidade="2", ventoDirecao="leste")),
            ("wind 10.1", "O valor de velocidade do vento deve estar entre 0 - 10 m/s!",
             dict(ventoVelocidade="10.1", ventoDirecao="90")),
            ("wind -1", "O valor de velocidade do vento deve estar entre 0 - 10 m/s!",
             dict(ventoVelocidade="-1", ventoDirecao="90")),
            ("wind from 361", "O valor de direção do vento deve estar entre 0 - 360º!",
             dict(ventoVelocidade="2", ventoDirecao="361")),
            ("wind from -1", "O valor de direção do vento deve estar entre 0 - 360º!",
             dict(ventoVelocidade="2", ventoDirecao="-1")),
            ("a cell", "Insira um valores numéricos!", dict(leituras=[["x", "1.000"]] + baseMovel().leituras[1:])),
            ("an empty cell", "Insira um valores numéricos!", dict(leituras=[["", "1.000"]] + baseMovel().leituras[1:]))):
        caso.bloco(f"&Salvar: {titulo}")
        e = baseMovel(**mudancas)
        abrirMovel(caso, e, "EnsCampo")
        caso.clica("Form_EC.Command1")
        caso.saida.append(f"mensagem: {mensagem}")
        mostrarMovel(caso, e)
        caso.clica("Form_EC.Command5")
        contar(contas, ["recusa do movel"])

    caso.bloco("&Salvar, the dialog left")
    e = baseMovel(ventoVelocidade="10", ventoDirecao="360")
    abrirMovel(caso, e, "EnsCampo")
    caso.faz("arquivo", "cancelar")
    caso.clica("Form_EC.Command1")
    caso.saida.append("arquivo para salvar: cancelado")
    mostrarMovel(caso, e)

    caso.bloco("&Limpar")
    caso.clica("Form_EC.Command2")
    mostrarMovel(caso, EnsaioMovel(), listas=False)
    # No cell is filled any more.
    caso.clica("Form_EC.Command4")
    caso.saida.append("mensagem: Há alguma célula da planilha vazia!")
    caso.clica("Form_EC.Command5")

    caso.bloco("the file: the box answered with No, the dialog left")
    abrirMovel(caso, baseMovel(), "PerfRad")
    caso.faz("responder", NAO)
    caso.clica("Form_EC.Option2")
    caso.saida.append(f"pergunta: {ABRIR} -> não")
    mostrarMovel(caso, baseMovel())
    caso.estado("Form_EC.Option1", "visível habilitado marcado")
    caso.faz("responder", SIM)
    caso.faz("arquivo", "cancelar")
    caso.clica("Form_EC.Option2")
    caso.saida += [f"pergunta: {ABRIR} -> sim", "arquivo para abrir: cancelado"]
    mostrarMovel(caso, EnsaioMovel(), listas=False)
    caso.estado("Form_EC.Option1", "visível habilitado marcado")
    caso.clica("Form_EC.Command5")


def arquivosDoMovelRecusados(caso, contas, dados):
    boas = medido.linhasDoArquivoMovel(baseMovel(ventoVelocidade="2.0", ventoDirecao="90"))

    def comEspacamento(espacamento, lados):
        leituras = [["1.000"]] * (2 * lados)
        return medido.linhasDoArquivoMovel(baseMovel(espacamento=espacamento, lados=str(lados), linhas="1", leituras=leituras))

    maior = "O número de coletores em cada linha deve ser maior que"
    exemplos = [(f"linha-{k}-texto", trocar(boas, k - 1, "três"), NAO_ABRE) for k in range(8, 12)]
    exemplos += [(f"linha-{k}-vazia", trocar(boas, k - 1, ""), NAO_ABRE) for k in (8, 10)]
    exemplos += [("1-m-3-coletores", comEspacamento("1.0", 3), f"{maior} 4!"),
                 ("1.5-m-2-coletores", comEspacamento("1.5", 2), f"{maior} 3!"),
                 ("2-m-2-coletores", comEspacamento("2.0", 2), f"{maior} 3!"),
                 ("3-m-1-coletor", comEspacamento("3.0", 1), f"{maior} 2"),
                 ("6-m-0-coletores", comEspacamento("6.0", 0), f"{maior} 1!")]
    for nome, linhas, mensagem in exemplos:
        caso.bloco(nome)
        arquivo = f"movel-{nome}.TXT"
        dados[arquivo] = "\r\n".join(linhas).encode()
        caso.clica("Form3.EnsCampo")
        lerMovel(caso, f"dados/{arquivo}")
        caso.saida.append(f"mensagem: {mensagem}")
        for controle, padrao in (("Combo1", "3"), ("Combo2", "6.0"), ("Combo3", "20"), ("Combo4", "2.0")):
            caso.mostra(f"Form_EC.{controle}", padrao)
        caso.estado("Form_EC.Option4", "visível habilitado marcado")
        caso.estado("Form_EC.Option1", "visível habilitado marcado")
        caso.clica("Form_EC.Command5")
        contar(contas, ["arquivo recusado"])

    # The least number of collectors that each spacing takes.
    for nome, espacamento, lados in (("1-m-4-coletores", "1.0", 4), ("1.5-m-3-coletores", "1.5", 3),
                                     ("2-m-3-coletores", "2", 3), ("3-m-2-coletores", "3", 2),
                                     ("6-m-1-coletor", "6", 1)):
        caso.bloco(nome)
        arquivo = f"movel-{nome}.TXT"
        dados[arquivo] = "\r\n".join(comEspacamento(espacamento, lados)).encode()
        caso.clica("Form3.EnsCampo")
        lerMovel(caso, f"dados/{arquivo}")
        caso.mostra("Form_EC.Combo4", f"{float(espacamento):.1f}")
        caso.mostra("Form_EC.Combo3", str(lados))
        caso.clica("Form_EC.Command5")


# ---- files written and read again -----------------------------------------------------------

def gravar(caso, botao, arquivo, linhas, dados, fimFinal):
    """A save; beside the file that the roteiro writes stands what it must hold."""
    caso.faz("arquivo", f"dados/gravado-{arquivo}")
    caso.clica(botao)
    caso.saida.append(f"arquivo para salvar: dados/gravado-{arquivo}")
    dados[f"esperado-{arquivo}"] = ("\r\n".join(linhas) + ("\r\n" if fimFinal else "")).encode()


def gravacoes(caso, dados, contas):
    cheio = dict(vazao="8.75")
    for k, e in enumerate((
            base(**cheio), base(unidade=MM, tempo="45", **cheio), base(unidade=ML, tempo="37.5", diametro="8.2", **cheio),
            base(aspersor="", bocais="", pressao="", angulo="", vazao=""),
            base(unidade=ML, tempo="60", diametro="16", aspersor="Canhão Araçá nº 3", bocais="", angulo="")), 1):
        caso.bloco(f"radial test {k}")
        abrirRadial(caso, e)
        gravar(caso, "PerfilForm.Command4", f"radial-{k}.TXT", medido.linhasDoArquivoRadial(e), dados, True)
        mostrarCaixasRadial(caso, e)
        fecharRadial(caso)
        caso.clica("Form3.Ou_aspB")
        lerRadial(caso, f"dados/gravado-radial-{k}.TXT")
        lido = medido.depoisDeLido(e)
        mostrarCaixasRadial(caso, lido)
        caso.mostra("PerfilForm.Text5", "7")
        caso.estado(f"PerfilForm.{OPCAO_RADIAL[e.unidade]}", "visível habilitado marcado")
        mostrarGradeRadial(caso, lido)
        fecharRadial(caso)
        contar(contas, ["gravado"])

    caso.bloco("radial test: what is not saved")
    e = base()
    abrirRadial(caso, e)
    caso.faz("arquivo", "cancelar")
    caso.clica("PerfilForm.Command4")
    caso.saida.append("arquivo para salvar: cancelado")
    caso.faz("celula", "PerfilForm.flexGrid", 4, 2, "x")
    caso.clica("PerfilForm.Command4")
    caso.saida.append("mensagem: Insira valores numéricos!")
    caso.faz("celula", "PerfilForm.flexGrid", 4, 2, e.leituras[3])
    for r in ("9", "8.99", "18"):
        caso.faz("celula", "PerfilForm.flexGrid", 4, 1, r)
        caso.clica("PerfilForm.Command4")
        caso.saida.append("mensagem: Os valores de distância ao aspersor devem estar em ordem crescente!")
    caso.faz("digitar", "PerfilForm.Text5", "")
    caso.clica("PerfilForm.Command4")
    caso.saida.append("mensagem: Informe o número de linhas da planilha!")
    mostrarCaixasRadial(caso, e)
    fecharRadial(caso)
    for unidade, tentativas in (
            (MM, (("", "", "Insira um valor numérico de tempo!"), ("abc", "", "Valor numérico inválido!"),
                  ("0", "", "Valor numérico inválido!"), ("-1", "", "Valor numérico inválido!"))),
            (ML, (("", "", "Ausência de valor numérico de tempo ou diâmetro do coletor!"),
                  ("abc", "8", "Valor numérico de tempo ou diâmetro do coletor inválido!"),
                  ("60", "0", "Valor numérico de tempo ou diâmetro do coletor inválido!"),
                  ("0", "8", "Valor numérico de tempo ou diâmetro do coletor inválido!")))):
        abrirRadial(caso, base(unidade=unidade))
        for tempo, diametro, mensagem in tentativas:
            for controle, valor in (("Text4", tempo), ("Text3", diametro)):
                if valor:
                    caso.faz("digitar", f"PerfilForm.{controle}", valor)
            caso.clica("PerfilForm.Command4")
            caso.saida.append(f"mensagem: {mensagem}")
            mostrarCaixasRadial(caso, EnsaioRadial(), ("Text4", "Text3") if unidade == ML else ("Text4",))
        fecharRadial(caso)

    for k, e in enumerate((
            baseMovel(ventoVelocidade="1.5", ventoDirecao="270"), baseMovel(unidade=ML, diametro="8.2"),
            baseMovel(aspersor="", bocais="", pressao="", anguloJato="", espacamento="3.0"),
            baseMovel(linhas="1", lados="4", espacamento="1.5", aspersor="Canhão Araçá",
                      leituras=[[f"{v}00"] for v in (1.3, 4.1, 7.2, 9.3, 9.5, 8.1, 5.2, 2.1)])), 1):
        caso.bloco(f"moving profile {k}")
        abrirMovel(caso, e, "PerfRad")
        gravar(caso, "Form_EC.Command1", f"movel-{k}.TXT", medido.linhasDoArquivoMovel(e), dados, False)
        mostrarMovel(caso, e)
        caso.clica("Form_EC.Command5")
        caso.clica("Form3.PerfRad")
        lerMovel(caso, f"dados/gravado-movel-{k}.TXT")
        lido = lidoDoMovel(e)
        mostrarMovel(caso, lido)
        caso.estado(f"Form_EC.{OPCAO_MOVEL[e.unidade]}", "visível habilitado marcado")
        p = perfilDoMovel(caso, lido, SIM)
        mostrarPerfil(caso, p)
        linhas = [lido.aspersor, lido.bocais, lido.pressao, lido.anguloJato, lido.vazao, "22", "1"]
        linhas += [f"{r}\t{i}" for r, i in zip(p.lblRaio[1:], p.lblIntensidade[1:])]
        gravar(caso, "Perfil.Command4", f"perfil-{k}.TXT", linhas, dados, True)
        caso.clica("Perfil.Command1")
        caso.clica("Form3.Ou_aspB")
        lerRadial(caso, f"dados/gravado-perfil-{k}.TXT")
        e = EnsaioRadial(MM_H, *linhas[:5], r=[celula(r, "0.00") for r in p.lblRaio[1:]],
                         leituras=[celula(i, "0.000") for i in p.lblIntensidade[1:]])
        mostrarCaixasRadial(caso, e)
        mostrarGradeRadial(caso, e)
        fecharRadial(caso)
        contar(contas, ["gravado"])


# ---- to the strip ---------------------------------------------------------------------------

def casoFaixa(caso, s, numero):
    """Another sprinkler from the radial test to the efficiencies and the maps."""
    caso.bloco(numero)
    e, digitados = sortearRadial(s, s.um((MM_H, MM, ML)))
    e.angulo = e.angulo or "24"
    respostas = vazaoRadial(s, e)
    abrirRadial(caso, e, digitados)
    p = avancar(caso, e, *respostas)
    if p is None or not p.label6:
        raise Inviavel
    mostrarPerfil(caso, p)
    ajuste = sortearForm7(s)
    ajuste["espacamento"] = s.um(("3.0", "6.0") if numero % 3 == 0 else ("1.5", "2.0", "3.0", "3.0"))
    percurso = PercursoOu(caso, p, ajuste)
    percurso.avancar()
    percurso.recalcular()
    if numero % 3 == 1:
        percurso.mapaDoPlano()
    percurso.centro(legendas=True)
    percurso.escolherEspacamento(sortearEspacamento(s, percurso))
    if not percurso.sobrepor():
        raise Inviavel
    percurso.abrirFaixa(legendas=True)
    percurso.carreador(sortearCarreador(s, percurso, numero % 3 == 0))
    sortearExtremos(s, percurso)
    if not percurso.calcular():
        raise Inviavel
    if numero % 3 == 0:
        percurso.tabela()
        caso.mostra("Form8.Caption", "Distribuição de Água na Faixa Irrigada")
    percurso.eficiencias()
    if numero % 2 == 0:
        percurso.mapaDaFaixa()
    percurso.fechar("Form5")


# ---- choices that could have fallen otherwise -----------------------------------------------

def duvidas(gravarCaso, dados):
    """Each in a roteiro of its own, since the others don't hang on it."""

    def um(nome, titulo):
        caso = CasoMedido(titulo)
        gravarCaso(f"duvidas-{nome}", caso)
        return caso

    caso = um("um-dado", "A radial test of a single reading: there is no second one for the slope")
    abrirRadial(caso, base(r=["14.00"], leituras=["5.000"]))
    caso.clica("PerfilForm.Command8")
    caso.saida.append(f"erro: Índice fora dos limites: {medido.LEITURAS_DO_FIM}")

    caso = um("fora-do-grafico", "Outside Perfil's chart the read-out stays as it was")
    e = base(vazao="9")
    abrirRadial(caso, e)
    p = avancar(caso, e, SIM)
    leitura = medido.leituraDoPerfil(p, 200, 100)
    for x, y in ((200, 100), (76, 100), (428, 100), (200, 27), (200, 239)):
        caso.faz("mover", "Perfil.Picture1", x, y)
        caso.mostra("Perfil.Label15", leitura[0])
        caso.mostra("Perfil.Label16", leitura[1])

    caso = um("tempo-zero-no-arquivo", "A time of 0 refuses a file like one that is no number")
    linhas = medido.linhasDoArquivoRadial(base(unidade=MM, tempo="0", vazao="9"))
    dados["radial-mm-tempo-zero.TXT"] = ("\r\n".join(linhas) + "\r\n").encode()
    caso.clica("Form3.Ou_aspB")
    lerRadial(caso, "dados/radial-mm-tempo-zero.TXT")
    caso.saida.append(f"mensagem: {NAO_ABRE}")

    caso = um("linha-recusada", "A row that is refused leaves the header's texts in their boxes")
    e = base(vazao="9")
    caso.clica("Form3.Ou_aspB")
    lerRadial(caso, "dados/radial-r-texto.TXT")
    caso.saida.append("mensagem: Há valores não numéricos nos dados de distância ao aspersor!")
    mostrarCaixasRadial(caso, e)
    caso.estado("PerfilForm.Option5", "visível habilitado marcado")

    caso = um("uma-molhada", "Only the first collectors are wet")
    e = baseMovel(leituras=[["0.000"] * 2] * 2 + [["4.000"] * 2] * 2 + [["0.000"] * 2] * 2)
    abrirMovel(caso, e, "PerfRad")
    perfilDoMovel(caso, e)

    caso = um("nada-molhado", "Every collector is dry")
    e = baseMovel(leituras=[["0.000"] * 2] * 6)
    abrirMovel(caso, e, "PerfRad")
    perfilDoMovel(caso, e)

    caso = um("sem-giro", "An empty turn angle counts as 0")
    e = baseMovel(giro="0", vazao="40")
    abrirMovel(caso, baseMovel(giro="", vazao="40"), "PerfRad")
    mostrarPerfil(caso, perfilDoMovel(caso, e, SIM))

    caso = um("grade-do-movel", "Form_EC's grid: its headers, and readings typed with more decimals than the cell shows")
    e = baseMovel(espacamento="1.5", leituras=[["1.23456", "2"]] + baseMovel().leituras[1:])
    abrirMovel(caso, e, "PerfRad")
    e.leituras = [[celula(t, "0.000") for t in linha] for linha in e.leituras]
    mostrarGradeMovel(caso, e)

    caso = um("grafico-do-movel", "From Form_EC, Perfil's vertical step is the largest intensity / 5")
    e = baseMovel(vazao="40")
    abrirMovel(caso, e, "PerfRad")
    p = perfilDoMovel(caso, e, SIM)
    passo = ler(formatar(max(p.imedia * y for _, y in p.relativos) / 5, "#0.0"))
    caso.mostra("Perfil.Label7", [formatar(passo * k, "#0.0") for k in range(7)])

    caso = um("pressao-no-form4", "From Form_EC, Form4 shows Perfil's text of the pressure")
    e = baseMovel(vazao="40")
    abrirMovel(caso, e, "PerfRad")
    p = perfilDoMovel(caso, e, SIM)
    percurso = PercursoOu(caso, p, dict(espacamento="3.0", velocidade="40", vento=0, direcao=0, secoI=60, secoII=60,
                                        rotacao=0))
    percurso.avancar()
    percurso.recalcular()
    percurso.centro(legendas=True)

    caso = um("caixas-do-arquivo-recusado", "A refused file of a moving profile leaves what was read in the boxes")
    caso.clica("Form3.EnsCampo")
    lerMovel(caso, "dados/movel-2-m-2-coletores.TXT")
    caso.saida.append("mensagem: O número de coletores em cada linha deve ser maior que 3!")
    mostrarMovel(caso, baseMovel(linhas="3", distancia="6.0", lados="20", espacamento="2.0"))

    caso = um("legendas-da-sobreposicao", "FormUnifo's ticks bear Form4's names, and its title tells the spacing")
    e = baseMovel()
    abrirMovel(caso, e, "EnsCampo")
    r, _ = abrirSobreposicao(caso, e)
    sobreporMovel(caso, r, r.itens[1])
    caso.mostra("FormUnifo.Caption", f"Sobreposição para o Espaçamento: {r.itens[1]} m")
    x0, x1 = ler(r.itens[0]) - 6, ler(r.itens[-1]) + 6
    t = ler(formatar((x1 - x0) / 8, "#0.0"))
    caso.mostra("FormUnifo.Label26", [formatar(x0 + k * t, "#0.0") for k in range(9)])
    d = r.sobrepor(r.itens[1])
    tx = ler(formatar(6.0 * len(d.flexGrid_B) / 9, "#0.0"))
    ty = ler(formatar(max(float(linha[-1]) for linha in d.flexGrid_B) / 6, "#0.0"))
    for k in range(1, 10):
        caso.mostra(f"FormUnifo.Label22({k})", formatar(k * tx, "#0.0"))
    for k in range(1, 7):
        caso.mostra(f"FormUnifo.Label23({k})", formatar(k * ty, "#0.0"))

    caso = um("espacamento-zero", "A spacing of 0 is a multiple of six, and is refused as at the centre of the strip")
    e = baseMovel()
    abrirMovel(caso, e, "EnsCampo")
    abrirSobreposicao(caso, e)
    caso.faz("digitar", "FormUnifo.cmbEspaçamento", "0")
    caso.clica("FormUnifo.cmdCUC")
    caso.saida.append("mensagem: Valor de espaçamento inválido!")

    caso = um("um-so-valor", "One line and one position between lanes: no lowest quarter")
    e = baseMovel(linhas="1", leituras=[linha[:1] for linha in baseMovel().leituras])
    abrirMovel(caso, e, "EnsCampo")
    abrirSobreposicao(caso, e)
    caso.faz("digitar", "FormUnifo.cmbEspaçamento", "6")
    caso.clica("FormUnifo.cmdCUC")
    caso.saida.append(f"erro: Estouro: {medido.SEM_UNIFORMIDADE}")

    caso = um("sobreposicao-seca", "An overlap of dry collectors has no lowest quarter over its mean")
    abrirMovel(caso, baseMovel(leituras=[["0.000"] * 2] * 6), "EnsCampo")
    caso.clica("Form_EC.Command4")
    caso.saida.append(f"erro: Estouro: {medido.SEM_UNIFORMIDADE}")

    caso = um("sobreposicao-parada", "A speed of 0 has no depth to be calculated")
    abrirMovel(caso, baseMovel(velocidade="0"), "EnsCampo")
    caso.clica("Form_EC.Command4")
    caso.saida.append(f"erro: Divisão por zero: {medido.SEM_LAMINA_CALCULADA}")


def main():
    pasta = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent / "casos"
    (pasta / "dados").mkdir(parents=True, exist_ok=True)
    contas, dados, casos = {}, {}, []
    s = Sorteio(SEMENTE)

    def guardar(nome, caso):
        casos.append((nome, caso))

    for parte, inicio in enumerate((0, 20, 40), 1):
        caso = CasoMedido(f"Radial tests typed in: drawn settings, {parte} of 3")
        for numero in range(inicio + 1, inicio + 21):
            unidade = (MM_H, MM, ML)[numero % 3]
            tentar(caso, contas, lambda: casoRadial(caso, s, numero, unidade), ("radial", "Form7"))
        guardar(f"radial-{parte}", caso)

    for parte, inicio in enumerate((0, 12), 1):
        caso = CasoMedido(f"Radial tests from files: drawn settings, {parte} of 2")
        for numero in range(inicio + 1, inicio + 13):
            unidade = (MM_H, MM, ML)[numero % 3]
            tentar(caso, contas, lambda: casoRadialArquivo(caso, s, numero, unidade, dados), ("radial de arquivo", "Form7"))
        guardar(f"radial-arquivos-{parte}", caso)

    caso = CasoMedido("Radial tests: what is refused")
    recusasDoRadial(caso, contas)
    guardar("radial-recusas", caso)

    caso = CasoMedido("Radial tests: where a rule changes")
    limitesDoRadial(caso, s, contas)
    guardar("radial-limites", caso)

    caso = CasoMedido("Radial tests: files that are refused")
    arquivosRecusados(caso, contas, dados)
    guardar("radial-arquivos-recusados", caso)

    for parte, inicio in enumerate((0, 15), 1):
        caso = CasoMedido(f"Moving profiles typed in, to the radial profile: drawn settings, {parte} of 2")
        for numero in range(inicio + 1, inicio + 16):
            tentar(caso, contas, lambda: casoMovel(caso, s, numero), ("movel", "Form7"))
        guardar(f"movel-{parte}", caso)

    caso = CasoMedido("Moving profiles from files, to the radial profile: drawn settings")
    for numero in range(1, 16):
        tentar(caso, contas, lambda: casoMovel(caso, s, numero, dados), ("movel de arquivo", "Form7"))
    guardar("movel-arquivos", caso)

    for parte, inicio in enumerate((0, 15), 1):
        caso = CasoMedido(f"Moving profiles typed in, overlapped: drawn settings, {parte} of 2")
        for numero in range(inicio + 1, inicio + 16):
            tentar(caso, contas, lambda: casoSobreposicao(caso, s, numero), ("sobreposição",))
        guardar(f"sobreposicao-{parte}", caso)

    caso = CasoMedido("Moving profiles from files, overlapped: drawn settings")
    for numero in range(16, 31):
        tentar(caso, contas, lambda: casoSobreposicao(caso, s, numero, dados), ("sobreposição de arquivo",))
    guardar("sobreposicao-arquivos", caso)

    caso = CasoMedido("Moving profiles: what is refused")
    recusasDoMovel(caso, contas)
    guardar("movel-recusas", caso)

    caso = CasoMedido("Moving profiles: where a rule changes")
    limitesDoMovel(caso, contas)
    guardar("movel-limites", caso)

    caso = CasoMedido("Moving profiles: files that are refused")
    arquivosDoMovelRecusados(caso, contas, dados)
    guardar("movel-arquivos-recusados", caso)

    caso = CasoMedido("Measurements written to files and read again")
    gravacoes(caso, dados, contas)
    guardar("gravados", caso)

    for parte, inicio in enumerate((0, 6), 1):
        caso = CasoMedido(f"Another sprinkler to the strip, its table, maps and efficiencies, {parte} of 2")
        for numero in range(inicio + 1, inicio + 7):
            tentar(caso, contas, lambda: casoFaixa(caso, s, numero), ("radial", "Form7", "faixa"))
        guardar(f"faixa-{parte}", caso)

    duvidas(guardar, dados)

    for nome, caso in casos:
        (pasta / f"medido-{nome}.roteiro").write_bytes(("\n".join(caso.comandos) + "\n").encode())
        (pasta / f"medido-{nome}.esperado").write_bytes(("\n".join(caso.saida) + "\n").encode())
    gravados = [nome.removeprefix("esperado-") for nome in dados if nome.startswith("esperado-")]
    (pasta / "medido-gravados.gravados").write_bytes(
        "".join(f"dados/gravado-{nome}\tdados/esperado-{nome}\n" for nome in gravados).encode())
    for nome, conteudo in dados.items():
        (pasta / "dados" / nome).write_bytes(conteudo)
    print(f"{len(casos)} roteiros, {len(dados)} data files")
    print(", ".join(f"{etapa} {n}" for etapa, n in contas.items()))


if __name__ == "__main__":
    main()
