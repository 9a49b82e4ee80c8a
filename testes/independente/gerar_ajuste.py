#!/usr/bin/env python3
"""Writes ajustes/: the fits of the wind model, from the menu to the saved parameters.

    python3 gerar_ajuste.py [FOLDER]

Sample tests come from the model at parameters near the defaults of Form7, with a few per cent of
noise; their files go to FOLDER/dados-ajuste. What each roteiro must print comes from ajuste.py. The
draw has a fixed seed: two runs give the same bytes.

NAME.esperado is what a run prints, NAME.progresso what it prints with --progresso. A fit whose texts
change with the way in which the sums of the Newton stage's factorisation are ordered is set apart in
ajuste-sensiveis: of these the order is part of what is tested.
"""

import sys
from pathlib import Path

import ajuste as a
import calculo
import medido
from ajuste import EnsaioMalha, EnsaioMovel
from calculo import formatar, ler
from gerar import AUXILIARES, PRESSAO_MINIMA, Caso, Sorteio

SEMENTE = 6205
DADOS = "dados-ajuste"
# What the person is told after the name of a run-time error of the search.
CONSELHO = (": o ajuste não pôde continuar com estes ensaios. Em geral ajuda informar um vento acima de 0 m/s e coletores que "
            "alcancem além da área molhada, nenhum deles no lugar do aspersor.")
LEGENDAS = ("Label18", "Label19", "Label21", "Label23", "Label25", "Label27")
PERGUNTA = "O arquivo deve estar na extensão: *.TXT separado por tabulações!"
RECUSADO = "O arquivo não pode ser aberto, consulte a ajuda!"

# Captions of the result screens that have no name of their own.
DESVIO_MALHA, OBSERVADA_MALHA, ESTIMADA_MALHA = "Label17", "Label13", "Label15"
DESVIO_MOVEL, INTENSIDADE_MOVEL, OBSERVADA_MOVEL = "Label17", "Label13", "Label15"

MALHA = dict(menu="c", tela="Form_E", abrir=("Command4", "Command3", "Command6"), ajustar="Command5",
             resultados=("Command8", "Command9", "Command10"), grafico="Form_graf")
MOVEL = dict(menu="d", tela="Form_MiE", abrir=("Command11", "Command12", "Command13"), ajustar="Command17",
             resultados=("Command14", "Command15", "Command16"), grafico="Form_MIgraf")
OPCOES_DE_QUANTOS = {1: "Option5", 2: "Option6", 3: "Option7"}
OPCAO_DO_MODO = {EnsaioMalha: {"mm/h": "Option1", "mm": "Option4", "mL": "Option3"},
                 EnsaioMovel: {"mm": "Option4", "mL": "Option3"}}
CODIGO_DO_MODO = {EnsaioMalha: {"mm/h": 1, "mm": 2, "mL": 3}, EnsaioMovel: {"mm": 1, "mL": 2}}


# ---- drawing sprinklers and tests -----------------------------------------------------------

class SorteioComRuido(Sorteio):
    def normal(self):
        """About the normal distribution, from random() alone."""
        return sum(self._fonte.random() for _ in range(12)) - 6


class Aspersor:
    """A catalogue sprinkler as chosen on form_AjVen."""

    chamador = "form_AjVen"

    def __init__(self, modelo, principal, auxiliar, pressao):
        self.modelo, self.principal, self.auxiliar, self.pressao = modelo, principal, auxiliar, pressao
        self.a = calculo.aspersorDoCatalogo(modelo, principal, auxiliar, pressao)
        self.fonte = a.fonteDoCatalogo(self.a)
        self.nome = f"KELMO-{modelo}"
        self.bocais = f"{principal}" if modelo == "TX30" else f"{principal} x {auxiliar}"

    def escolher(self, caso, metodo):
        caso.faz("clicar", f"Form3.{self.modelo}{metodo['menu']}")
        caso.faz("escolher", "form_AjVen.Combo1", f"{self.principal} mm")
        if self.modelo != "TX30":
            caso.faz("escolher", "form_AjVen.Combo2", f"{self.auxiliar} mm")
        caso.faz("rolar", "form_AjVen.hsbPressão", self.pressao)
        for controle, valor in (("lblVazão", self.fonte.vazao), ("lblRaioAlcance", self.fonte.alcance)):
            caso.mostra(f"form_AjVen.{controle}", valor)

    def legendasDoEnsaio(self):
        bocais = f"Bocal: {self.bocais} mm" if self.modelo == "TX30" else f"Bocais: {self.bocais} mm"
        return {"Label18": f"Pressão: {self.pressao} m.c.a.", "Label20": f"ASPERSOR: {self.nome}", "Label19": bocais}


def sortearAspersor(s, modelo):
    principal = s.um(sorted(calculo.tabelas.PERFIL[modelo]))
    auxiliar = 0 if modelo == "TX30" else s.um(AUXILIARES)
    return Aspersor(modelo, principal, auxiliar, s.inteiro(PRESSAO_MINIMA[modelo], 70))


def sortearParametros(s, fonte):
    return [float(p) * s.entre(0.9, 1.1) * fonte.R for p in calculo.PARAMETROS_PADRAO]


def sortearVento(s):
    """Wind speed and bearing as their captions show them."""
    velocidade = formatar(s.inteiro(10, 42) / 10, "0.0")
    return velocidade, str(s.um((s.inteiro(0, 360), s.inteiro(0, 360), 90 * s.inteiro(0, 4))))


def sortearMalha(s, R, maiorLado=26):
    e = s.um((2.0, 3.0, 3.0, 6.0, 6.0))
    N = min(maiorLado, max(6, 2 * round(R * s.entre(0.7, 1.1) / e)))
    modo = s.um(("mm/h", "mm", "mL"))
    w, direcao = sortearVento(s)
    return EnsaioMalha(str(N), formatar(e, "0.0"), w, direcao, modo,
                       "" if modo == "mm/h" else s.um(("60", "45", "90", "37.5")),
                       s.um(("8", "10.5", "11.28")) if modo == "mL" else "", [["1"] * N for _ in range(N)])


def sortearMovel(s, R, maiorLado=16):
    e = s.um(("1.5", "2.0", "3.0", "3.0", "6.0"))
    lado = min(maiorLado, max(3, round(R * s.entre(0.6, 1.1) / float(e))))
    L = s.inteiro(1, 4)
    modo = s.um(("mm", "mL"))
    w, direcao = sortearVento(s)
    return EnsaioMovel(str(L), "6.0", str(lado), e, str(180 + 30 * s.inteiro(0, 6)),
                       s.um((str(s.inteiro(15, 120)), f"{s.entre(15, 200):.1f}")), w, direcao, modo,
                       s.um(("8", "10.5", "11.28")) if modo == "mL" else "", [["1"] * L for _ in range(2 * lado)])


def preencher(s, fonte, ensaio, parametros):
    """Readings from the model, with noise; False where it leaves a point without physical meaning."""
    try:
        _, _, estimado, contagem = a.estimativas(fonte, ensaio, parametros)
    except (ZeroDivisionError, OverflowError):
        return False
    if contagem.naoConvergiu or contagem.areaNaoPositiva or min(estimado) < 0:
        return False
    ruido, fator = s.entre(0.01, 0.05), ensaio.fator()
    colunas = len(ensaio.leituras[0])

    def leitura(valor):
        return formatar(max(0.0, valor / fator * (1 + ruido * s.normal())), "0.000")

    if isinstance(ensaio, EnsaioMalha):
        ensaio.leituras = [[leitura(estimado[i * colunas + j]) for j in range(colunas)] for i in range(colunas)]
    else:
        ensaio.leituras = [[leitura(valor) for _ in range(colunas)] for valor in estimado]
    return True


def sortearEnsaios(s, fonte, sortear, quantos):
    """Tests of one truth, under winds of their own."""
    parametros, ensaios = sortearParametros(s, fonte), []
    while len(ensaios) < quantos:
        ensaio = sortear(s, fonte.R)
        if preencher(s, fonte, ensaio, parametros):
            ensaios.append(ensaio)
    return ensaios


# ---- files of tests and of parameters -------------------------------------------------------

def linhasDaMalha(t, aspersor):
    fonte = aspersor.fonte
    linhas = [aspersor.nome, aspersor.bocais, str(aspersor.pressao), fonte.anguloJato, fonte.vazao,
              t.lado, t.espacamento, t.vento, t.direcao, str(CODIGO_DO_MODO[EnsaioMalha][t.modo])]
    linhas += [valor for valor in (t.tempo, t.diametro) if valor]
    return linhas + ["\t".join(linha) for linha in t.leituras]


def linhasDoMovel(t, aspersor):
    fonte = aspersor.fonte
    linhas = [aspersor.nome, aspersor.bocais, str(aspersor.pressao), fonte.anguloJato, fonte.vazao, t.velocidade,
              t.giro, t.linhas, t.entreLinhas, t.lado, t.espacamento, t.vento, t.direcao,
              str(CODIGO_DO_MODO[EnsaioMovel][t.modo])]
    linhas += [t.diametro] if t.diametro else []
    return linhas + ["\t".join(linha) for linha in t.leituras]


def arquivoDoEnsaio(t, aspersor):
    """A grid's lines each end in CR LF; the travelling file has nothing after its last reading."""
    if isinstance(t, EnsaioMalha):
        return "\r\n".join(linhasDaMalha(t, aspersor)) + "\r\n"
    return "\r\n".join(linhasDoMovel(t, aspersor))


def arquivoDeParametros(aspersor, legendas):
    """Each item with its line end, and the one that the print adds."""
    fonte = aspersor.fonte
    itens = [aspersor.nome, aspersor.bocais, str(aspersor.pressao), fonte.vazao, fonte.alcance, *legendas]
    return "".join(item + "\r\n" for item in itens) + "\r\n"


# ---- a roteiro of fits ----------------------------------------------------------------------

class CasoDeAjuste(Caso):
    """saida holds the progress too; the plain expected output leaves it out."""

    def __init__(self, nome, titulo, pasta):
        super().__init__(titulo)
        self.nome, self.pasta, self.arquivos, self.cenas = nome, pasta, 0, 0

    def faz(self, comando, *argumentos):
        super().faz(comando, *('""' if a == "" else a for a in argumentos))

    def diz(self, mensagem):
        self.saida.append(f"mensagem: {mensagem}")

    def estado(self, controle, texto):
        self.comandos.append(f"estado {controle}")
        self.saida.append(f"{controle}: {texto}")

    def cena(self, titulo):
        self.cenas += 1
        self.comandos += ["", f"# {titulo}"]

    def guardar(self, texto):
        """Writes a data file; returns its path as the roteiro names it."""
        self.arquivos += 1
        caminho = f"{DADOS}/{self.nome.removeprefix('ajuste-')}-{self.arquivos}.txt"
        (self.pasta / caminho).write_bytes(texto.encode())
        return caminho

    def escreverArquivos(self):
        semProgresso = [linha for linha in self.saida if not linha.startswith("progresso: ")]
        (self.pasta / f"{self.nome}.roteiro").write_bytes(("\n".join(self.comandos) + "\n").encode())
        (self.pasta / f"{self.nome}.esperado").write_bytes(("\n".join(semProgresso) + "\n").encode())
        if len(semProgresso) < len(self.saida):
            (self.pasta / f"{self.nome}.progresso").write_bytes(("\n".join(self.saida) + "\n").encode())


class Cena:
    """One sprinkler, one method, and what is done with them on the calling screen and behind it."""

    def __init__(self, caso, aspersor, metodo, titulo):
        self.caso, self.aspersor, self.metodo = caso, aspersor, metodo
        self.chamador, self.fonte = aspersor.chamador, aspersor.fonte
        self.quantos = 1
        caso.cena(titulo)
        aspersor.escolher(caso, metodo)

    def clicar(self, controle):
        self.caso.faz("clicar", f"{self.chamador}.{controle}")

    def escolherQuantos(self, quantos):
        self.quantos = quantos
        self.clicar(OPCOES_DE_QUANTOS[quantos])

    def tela(self, k):
        return f"{self.metodo['tela']}{k}"

    def abrirTela(self, k):
        self.clicar(self.metodo["abrir"][k - 1])
        return self.tela(k)

    def carregar(self, k, ensaio, caminho=None, mostrar=True):
        """Opens the screen of test k and loads a file into it."""
        caso, tela = self.caso, self.abrirTela(k)
        caminho = caminho or caso.guardar(arquivoDoEnsaio(ensaio, self.aspersor))
        responderArquivo(caso, caminho)
        caso.faz("clicar", f"{tela}.Option5")
        dizerArquivo(caso, caminho)
        if mostrar:
            mostrarEnsaio(caso, tela, ensaio)

    def digitar(self, k, t):
        """Types a whole test."""
        caso, tela = self.caso, self.abrirTela(k)
        if isinstance(t, EnsaioMalha):
            escolhas = {"Combo2": t.lado, "Combo1": t.espacamento}
            textos = {"Text6": t.tempo, "Text7": t.diametro}
        else:
            escolhas = {"Combo1": t.linhas, "Combo2": t.entreLinhas, "Combo3": t.lado, "Combo4": t.espacamento,
                        "Combo6": t.giro}
            textos = {"Text1": t.velocidade, "Text7": t.diametro}
        for controle, texto in escolhas.items():
            caso.faz("escolher", f"{tela}.{controle}", texto)
        caso.faz("rolar", f"{tela}.HScroll2", round(ler(t.vento) * 10))
        caso.faz("rolar", f"{tela}.HScroll1", t.direcao)
        caso.faz("clicar", f"{tela}.{OPCAO_DO_MODO[type(t)][t.modo]}")
        for controle, texto in textos.items():
            if texto:
                caso.faz("digitar", f"{tela}.{controle}", texto)
        for i, linha in enumerate(t.leituras, 1):
            for j, texto in enumerate(linha, 1):
                caso.faz("celula", f"{tela}.flex_A", i, j, texto)

    def ajustar(self, ensaios, r=None):
        """The fit and all that it writes."""
        caso = self.caso
        self.r = r = r or a.ajustar(self.fonte, ensaios)
        self.clicar(self.metodo["ajustar"])
        if r.aviso:
            caso.diz(r.aviso)
        caso.saida += [f"progresso: {linha}" for linha in r.progresso]
        if r.erro:
            caso.saida.append(f"erro: {r.erro}" + (CONSELHO if r.aviso else ""))
            return r
        caso.diz(r.mensagem)
        self.mostrarLegendas(r.legendas)
        for k in range(1, len(ensaios) + 1):
            self.mostrarDesvioGeral(k)
        return r

    def mostrarDesvioGeral(self, k):
        unidade = a.UNIDADE_DO_DESVIO[a.MALHA if self.metodo is MALHA else a.MOVEL]
        self.caso.mostra(f"{self.metodo['grafico']}{k}.Label16", f"Desvio Médio Geral: {self.r.desvio}{unidade}")

    def mostrarLegendas(self, legendas):
        for controle, texto in zip(LEGENDAS, legendas):
            self.caso.mostra(f"{self.chamador}.{controle}", texto)

    def mostrarBotoes(self, ajustado):
        """The button that saves, and one for each test's result."""
        habilitados = ["Command7", *self.metodo["resultados"][:self.quantos]] if ajustado else []
        for controle in ("Command7", *self.metodo["resultados"]):
            self.caso.estado(f"{self.chamador}.{controle}",
                             f"visível {'habilitado' if controle in habilitados else 'desabilitado'}")

    def recusar(self, mensagem):
        self.clicar(self.metodo["ajustar"])
        self.caso.diz(mensagem)

    def fechar(self):
        self.caso.faz("fechar", self.chamador)


def responderArquivo(caso, caminho):
    caso.faz("responder", "sim")
    caso.faz("arquivo", caminho)


def dizerArquivo(caso, caminho):
    caso.saida += [f"pergunta: {PERGUNTA} -> sim", f"arquivo para abrir: {caminho}"]


def mostrarEnsaio(caso, tela, t):
    malha = isinstance(t, EnsaioMalha)
    controles = dict(Combo2=t.lado, Combo1=t.espacamento) if malha else dict(
        Combo1=t.linhas, Combo3=t.lado, Combo4=t.espacamento, Combo6=t.giro, Text1=t.velocidade)
    for controle, texto in {**controles, "Label17": t.vento, "Label2": t.direcao}.items():
        caso.mostra(f"{tela}.{controle}", texto)


def mostraAOrdem(fonte, ensaios, r):
    """Whether a text of the fit changes with the order of the factorisation's sums."""
    outros = (a.ajustar(fonte, ensaios, ordem) for ordem in a.ORDENS_DAS_SOMAS[1:])
    return any((x.erro, x.legendas, x.desvio, x.progresso) != (r.erro, r.legendas, r.desvio, r.progresso) for x in outros)


class Contas:
    """What the draws came to."""

    def __init__(self):
        self.malha = self.movel = self.erros = self.recusados = 0


def sortearAjuste(s, contas, fonte, sortear, quantos, sensivel=False):
    """Tests and their fit, drawn until no order of the sums shows (or, with sensivel, one does)."""
    while True:
        ensaios = sortearEnsaios(s, fonte, sortear, quantos)
        r = a.ajustar(fonte, ensaios)
        if r.erro:
            contas.erros += 1
        elif mostraAOrdem(fonte, ensaios, r) == sensivel:
            return ensaios, r
        else:
            contas.recusados += 1


# ---- the files ------------------------------------------------------------------------------

def ajustesSorteados(s, contas, nome, titulo, pasta, metodo, quantos, sensivel):
    caso = CasoDeAjuste(nome, titulo, pasta)
    sortear = sortearMalha if metodo is MALHA else sortearMovel
    for numero in range(1, quantos + 1):
        aspersor = sortearAspersor(s, calculo.MODELOS[numero % 3])
        n = s.um((1, 1, 2, 3))
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, n, sensivel)
        cena = Cena(caso, aspersor, metodo, str(numero))
        if n > 1:
            cena.escolherQuantos(n)
        for k, ensaio in enumerate(ensaios, 1):
            cena.carregar(k, ensaio)
        cena.ajustar(ensaios, r)
        cena.mostrarBotoes(ajustado=True)
        cena.fechar()
    if metodo is MALHA:
        contas.malha += quantos
    else:
        contas.movel += quantos
    return caso


def digitados(s, contas, pasta):
    """Tests typed cell by cell."""
    caso = CasoDeAjuste("ajuste-digitados", "Tests typed by hand", pasta)
    for metodo, sortear, modelo, n in ((MALHA, lambda s, R: sortearMalha(s, R, 8), "TX15", 1),
                                       (MALHA, lambda s, R: sortearMalha(s, R, 6), "TX30", 2),
                                       (MOVEL, lambda s, R: sortearMovel(s, R, 6), "TX20", 1)):
        aspersor = sortearAspersor(s, modelo)
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, n)
        cena = Cena(caso, aspersor, metodo, f"{modelo}, {n}")
        if n > 1:
            cena.escolherQuantos(n)
        for k, ensaio in enumerate(ensaios, 1):
            cena.digitar(k, ensaio)
            for controle, texto in aspersor.legendasDoEnsaio().items():
                caso.mostra(f"{cena.tela(k)}.{controle}", texto)
        cena.ajustar(ensaios, r)
        cena.fechar()
    contas.malha += 2
    contas.movel += 1
    return caso


class OutroAspersor:
    """A sprinkler typed on PerfilForm, in mm/h, close enough to its flow to raise no question."""

    chamador = "Form_AjvenOu"
    PI, DOIS_PI = 3.141592654, 6.283185308

    def __init__(self, nome, bocais, pressao, angulo, desvioDaVazao, leituras):
        self.nome, self.bocais, self.pressao, self.angulo = nome, bocais, pressao, angulo
        self.leituras = leituras
        pontos = [(ler(r), ler(i) / 1000) for r, i in leituras]
        imax = max(i for _, i in pontos)
        inclinacao, corte = self._reta(*pontos[:2])
        centro = 2 * pontos[0][1] if corte <= 0 else imax if corte > 2 * imax else corte
        inclinacao, corte = self._reta(*pontos[-2:])
        limite = 0.25 * (pontos[-1][0] - pontos[-2][0]) + pontos[-1][0]
        R = min(-corte / inclinacao, limite)
        tabela = [(0.0, centro), *pontos, (R, 0.0)]
        qest = 0.0
        for p1, p2 in zip(tabela, tabela[1:]):
            b, a0 = self._reta(p1, p2)
            qest = qest + self.DOIS_PI * (self._volume(a0, b, p2[0]) - self._volume(a0, b, p1[0]))
        self.vazao = formatar(qest * desvioDaVazao, "0.00")
        relativa = [(r / R, self.PI * i * (R * R) / qest) for r, i in tabela]
        media = ler(self.vazao) * 1000 / (self.PI * (R * R))
        perfil = [relativa[0][1], *(self._em(relativa, 0.025 + 0.05 * k) for k in range(20)), 0.0]
        self.fonte = a.Fonte(formatar(R, "##0.00"), self.vazao, angulo,
                             [formatar(media * i, "##0.000") for i in perfil])

    @staticmethod
    def _reta(p1, p2):
        b = (p2[1] - p1[1]) / (p2[0] - p1[0])
        return b, p1[1] - b * p1[0]

    @staticmethod
    def _volume(a0, b, r):
        return a0 * (r * r) / 2 + b * (r * r * r) / 3

    @staticmethod
    def _em(pontos, x):
        for p1, p2 in zip(pontos, pontos[1:]):
            if p1[0] <= x <= p2[0]:
                return p1[1] + (x - p1[0]) * (p2[1] - p1[1]) / (p2[0] - p1[0])
        raise ValueError(x)

    def escolher(self, caso, metodo):
        malha = metodo is MALHA
        self.digitar(caso, "Form3.Ou_aspC" if malha else "Form3.OuAsp_Auto")
        caso.faz("clicar", f"PerfilForm.{'Command6' if malha else 'Command7'}")
        f = self.fonte
        for controle, valor in (("lblRaioAlcance", f.alcance), ("Label17", f.vazao), ("Label11", f.anguloJato)):
            caso.mostra(f"Form_AjvenOu.{controle}", valor)
        caso.mostra("Form_AjvenOu.lblIntensidade", f.perfil, base=1)

    def digitar(self, caso, item):
        """PerfilForm filled by hand."""
        caso.faz("clicar", item)
        for controle, texto in (("Text7", self.nome), ("Text9", self.bocais), ("Text2", self.pressao),
                                ("Text8", self.angulo), ("Text1", self.vazao), ("Text5", str(len(self.leituras)))):
            caso.faz("digitar", f"PerfilForm.{controle}", texto)
        for i, linha in enumerate(self.leituras, 1):
            for j, texto in enumerate(linha, 1):
                caso.faz("celula", "PerfilForm.flexGrid", i, j, texto)


OUTROS = (
    ("Canhão A", "20 x 6", "45", "24", 1.04, [("2", "6.1"), ("6", "5.8"), ("10", "6.4"), ("14", "7.2"), ("18", "7.9"),
                                             ("22", "8.4"), ("26", "7.1"), ("30", "4.6"), ("34", "1.5")]),
    ("Canhão B", "24", "50", "21.5", 0.97, [("3", "9.5"), ("6", "8.8"), ("9", "8.1"), ("12", "7.7"), ("15", "7.2"),
                                           ("18", "6.3"), ("21", "5.1"), ("24", "3.2"), ("27", "1.2")]),
)


def outrosAspersores(s, contas, pasta):
    caso = CasoDeAjuste("ajuste-outro", "Sprinklers out of the catalogue", pasta)
    for metodo, n, dados in ((MALHA, 1, OUTROS[0]), (MALHA, 2, OUTROS[1]), (MALHA, 3, OUTROS[0]), (MOVEL, 1, OUTROS[0]),
                             (MOVEL, 2, OUTROS[1])):
        aspersor = OutroAspersor(*dados)
        sortear = sortearMalha if metodo is MALHA else sortearMovel
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, n)
        cena = Cena(caso, aspersor, metodo, f"{aspersor.nome}, {n}")
        if n > 1:
            cena.escolherQuantos(n)
        for k, ensaio in enumerate(ensaios, 1):
            cena.carregar(k, ensaio)
        cena.ajustar(ensaios, r)
        cena.fechar()
    contas.malha += 3
    contas.movel += 2
    return caso


def outrosSimulados(pasta):
    """Sprinklers out of the catalogue fitted, and simulated with the captions typed by hand."""
    caso = CasoDeAjuste("ajuste-outro-simulado", "A fit of a sprinkler out of the catalogue, and a simulation with it", pasta)
    s, contas = SorteioComRuido(SEMENTE + 1), Contas()
    for metodo, sortear, dados in ((MALHA, sortearMalha, OUTROS[0]), (MOVEL, sortearMovel, OUTROS[1])):
        aspersor = OutroAspersor(*dados)
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, 1)
        cena = Cena(caso, aspersor, metodo, aspersor.nome)
        cena.carregar(1, ensaios[0])
        cena.ajustar(ensaios, r)
        cena.fechar()
        simularOutro(caso, aspersor, r.legendas, ensaios[0])
    return caso


def simularOutro(caso, aspersor, legendas, ensaio):
    aspersor.digitar(caso, "Form3.Ou_aspB")
    radial = medido.EnsaioRadial(medido.MM_H, aspersor.nome, aspersor.bocais, aspersor.pressao, aspersor.angulo, aspersor.vazao,
                                 r=[medido.celula(r, "0.00") for r, _ in aspersor.leituras],
                                 leituras=[medido.celula(i, "0.000") for _, i in aspersor.leituras])
    perfil = medido.avancar(radial, medido.Conversa())
    caso.faz("clicar", "PerfilForm.Command8")
    form7 = medido.Form7Ou(perfil)
    caso.faz("clicar", "Perfil.Command6")
    caso.saida += form7.calcular()
    for k, texto in enumerate(legendas, 2):
        caso.faz("digitar", f"Form7.Text{k}", texto)
    form7.parametros = legendas
    for barra, valor in (("HScroll2", round(ler(ensaio.vento) * 10)), ("HScroll1", int(ensaio.direcao))):
        caso.faz("rolar", f"Form7.{barra}", valor)
        form7.rolar(barra, valor)
    caso.faz("clicar", "Form7.Command8")
    caso.saida += form7.calcular()
    for controle in ("Label20", "Label19", "Label18"):
        caso.mostra(f"Form7.{controle}", form7.legendas[controle])
    caso.mostraGrade("Form7.flexA", ("No", "Distância (m)", "Lâmina (mm)"), form7.flexA)
    caso.faz("clicar", "Form7.cmdSair")


def saltaPara35(r):
    """Whether two sums of the descent came so near each other that its bar went ahead."""
    barras = [float(linha.split(" ", 1)[0]) for linha in r.progresso]
    return any(y == 35.5 and y - x > 0.5 for x, y in zip(barras, barras[1:]))


def poucaAgua(s, contas, pasta):
    """A sprinkler of so little water that sums of the descent differ by less than its tolerance."""
    caso = CasoDeAjuste("ajuste-pouca-agua", "Fits of which the descent's bar goes ahead", pasta)
    nome, bocais, pressao, angulo, desvio, leituras = OUTROS[0]
    aspersor = OutroAspersor("Gotejante", "4", pressao, angulo, desvio,
                             [(r, formatar(ler(i) / 30, "0.000")) for r, i in leituras])
    for metodo, sortear in ((MALHA, lambda s, R: sortearMalha(s, R, 10)), (MALHA, lambda s, R: sortearMalha(s, R, 10)),
                            (MOVEL, lambda s, R: sortearMovel(s, R, 6))):
        while True:
            ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, 1)
            if saltaPara35(r):
                break
        cena = Cena(caso, aspersor, metodo, "The bar goes ahead")
        cena.carregar(1, ensaios[0])
        cena.ajustar(ensaios, r)
        cena.fechar()
    contas.malha += 2
    contas.movel += 1
    return caso


def sortearBorda(s, contas, fonte, outraFonte, sortear):
    """Two tests with the fits of the first alone, of both, and of both for another sprinkler."""
    while True:
        (primeiro, segundo), dois = sortearAjuste(s, contas, fonte, sortear, 2)
        sozinho, outro = a.ajustar(fonte, [primeiro]), a.ajustar(outraFonte, [primeiro, segundo])
        if not (sozinho.erro or outro.erro or mostraAOrdem(fonte, [primeiro], sozinho)
                or mostraAOrdem(outraFonte, [primeiro, segundo], outro)):
            assert len({tuple(r.legendas) for r in (sozinho, dois, outro)}) == 3
            return primeiro, segundo, (sozinho, dois, outro)


def bordas(s, contas, pasta):
    """Which tests are read, what empties the captions, ends of the ranges."""
    caso = CasoDeAjuste("ajuste-bordas", "Which tests a fit reads, what discards it, ends of the ranges", pasta)
    aspersor, novo = Aspersor("TX15", 18, 6, 50), Aspersor("TX15", 20, 6, 60)
    for metodo, sortear in ((MALHA, lambda s, R: sortearMalha(s, R, 12)), (MOVEL, lambda s, R: sortearMovel(s, R, 8))):
        primeiro, segundo, (sozinho, dois, outro) = sortearBorda(s, contas, aspersor.fonte, novo.fonte, sortear)
        cena = Cena(caso, aspersor, metodo, "With one test the second screen's data are not read")
        cena.mostrarBotoes(ajustado=False)
        cena.escolherQuantos(2)
        cena.carregar(1, primeiro)
        cena.carregar(2, segundo)
        cena.escolherQuantos(1)
        cena.ajustar([primeiro], sozinho)
        cena.mostrarBotoes(ajustado=True)
        caso.comandos.append("# The number of tests discards a fit")
        cena.escolherQuantos(2)
        cena.mostrarLegendas([""] * 6)
        cena.mostrarBotoes(ajustado=False)
        cena.ajustar([primeiro, segundo], dois)
        caso.comandos.append("# Nozzle and pressure don't")
        caso.faz("rolar", "form_AjVen.hsbPressão", 60)
        caso.saida.append("aviso: Os parâmetros foram ajustados com outro bocal ou pressão.")
        caso.faz("escolher", "form_AjVen.Combo1", "20 mm")
        cena.mostrarLegendas(dois.legendas)
        cena.mostrarBotoes(ajustado=True)
        caso.comandos.append("# A second fit takes the new flow and reach")
        cena.ajustar([primeiro, segundo], outro)
        cena.fechar()
    contas.malha += 3
    contas.movel += 3
    return caso


def extremos(s, contas, pasta):
    """Turn angles, bearings on the axes, the strongest sizes of the lists."""
    caso = CasoDeAjuste("ajuste-extremos", "Ends of the lists", pasta)
    aspersor = Aspersor("TX30", 44, 0, 70)

    def malha(N, e, direcao):
        return lambda s, R: EnsaioMalha(N, e, sortearVento(s)[0], direcao, "mm/h", "", "", [["1"] * int(N)] * int(N))

    def movel(lado, e, giro, velocidade, direcao):
        return lambda s, R: EnsaioMovel("10", "12.0", lado, e, giro, velocidade, sortearVento(s)[0], direcao, "mm", "",
                                        [["1"] * 10] * (2 * int(lado)))

    for metodo, sortear, titulo in (
            (MALHA, malha("6", "6.0", "0"), "The smallest grid"),
            (MALHA, malha("60", "2.0", "360"), "The largest grid"),
            (MALHA, malha("20", "6.0", "180"), "Far beyond the reach"),
            (MOVEL, movel("3", "6.0", "360", "200", "0"), "The shortest line, the full circle, the highest speed"),
            (MOVEL, movel("40", "1.5", "180", "0.5", "270"), "The longest line, half a circle, the lowest speed")):
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, 1)
        cena = Cena(caso, aspersor, metodo, titulo)
        cena.carregar(1, ensaios[0])
        cena.ajustar(ensaios, r)
        cena.fechar()
    contas.malha += 3
    contas.movel += 2
    return caso


def sortearComparavel(s, contas, fonte, sortear, quantos):
    """A fit whose rounded parameters leave every point of every test with physical meaning."""
    while True:
        ensaios, r = sortearAjuste(s, contas, fonte, sortear, quantos)
        comparacoes = [a.comparar(fonte, t, r.legendas) for t in ensaios]
        if not any(c.contagem.naoConvergiu or c.contagem.areaNaoPositiva for c in comparacoes):
            return ensaios, r, comparacoes


def abrirResultado(cena, k):
    cena.clicar(cena.metodo["resultados"][k - 1])
    cena.mostrarDesvioGeral(k)


def cabecalhosDaLista(t):
    """The list of estimates has a blank before each column's header, the entry grid has none."""
    N, e = int(t.lado), ler(t.espacamento)
    colunas = [f" Co{j} = {formatar(x, '0.0')} m " for j, x in enumerate(a.abscissas(N, e), 1)]
    linhas = [f"Li{i} = {formatar(y, '0.0')} m" for i, y in enumerate(a.ordenadas(N, e), 1)]
    return colunas, linhas


def tabelas(s, contas, pasta):
    """Form_graf and Form_ajuste1: what every collector would have got."""
    caso = CasoDeAjuste("ajuste-tabelas", "Estimates of every collector", pasta)
    for modelo, n in (("TX15", 1), ("TX20", 2), ("TX30", 3)):
        aspersor = sortearAspersor(s, modelo)
        ensaios, r, comparacoes = sortearComparavel(s, contas, aspersor.fonte, sortearMalha, n)
        cena = Cena(caso, aspersor, MALHA, modelo)
        if n > 1:
            cena.escolherQuantos(n)
        for k, ensaio in enumerate(ensaios, 1):
            cena.carregar(k, ensaio, mostrar=False)
        cena.ajustar(ensaios, r)
        for k, (ensaio, c) in enumerate(zip(ensaios, comparacoes), 1):
            abrirResultado(cena, k)
            caso.faz("clicar", f"Form_graf{k}.Command2")
            caso.mostra("Form_ajuste1.Caption", f"Dados de Precipitação Estimados no Ensaio {k}")
            caso.mostra("Form_ajuste1.Frame4", f"Dados Estimados - Ensaio {k}")
            colunas, linhas = cabecalhosDaLista(ensaio)
            N = len(colunas)
            celulas = [formatar(i, "0.000") for i in c.intensidades]
            caso.mostraGrade("Form_ajuste1.flex_A", ["", *colunas],
                             [[linhas[i], *celulas[i * N:(i + 1) * N]] for i in range(N)])
        cena.fechar()
    contas.malha += 3
    return caso


def comparacoes(s, contas, pasta):
    """The captions of Form_graf and Form_MIgraf."""
    caso = CasoDeAjuste("ajuste-comparacao", "Deviations and greatest values of the result screens", pasta)
    for metodo, modelo, n in ((MALHA, "TX15", 2), (MALHA, "TX20", 1), (MALHA, "TX30", 3), (MOVEL, "TX15", 1),
                              (MOVEL, "TX20", 2), (MOVEL, "TX30", 3)):
        aspersor = sortearAspersor(s, modelo)
        sortear = sortearMalha if metodo is MALHA else sortearMovel
        ensaios, r, lista = sortearComparavel(s, contas, aspersor.fonte, sortear, n)
        cena = Cena(caso, aspersor, metodo, f"{modelo}, {n}")
        if n > 1:
            cena.escolherQuantos(n)
        for k, ensaio in enumerate(ensaios, 1):
            cena.carregar(k, ensaio, mostrar=False)
        cena.ajustar(ensaios, r)
        for k, c in enumerate(lista, 1):
            abrirResultado(cena, k)
            tela = f"{metodo['grafico']}{k}"
            if metodo is MALHA:
                legendas = {OBSERVADA_MALHA: f"Maior Precipitação: {c.maiorObservada} mm/h",
                            ESTIMADA_MALHA: f"Maior Precipitação: {c.maiorIntensidade} mm/h",
                            DESVIO_MALHA: f"Desvio Médio no Ensaio {k}: {c.desvio} mm/h"}
            else:
                legendas = {"Label18": "Estimadas", "Label19": "Observadas",
                            "Label20": f"Maior Lâmina Estimada: {c.maiorEstimada} mm",
                            OBSERVADA_MOVEL: f"Maior Lâmina Observada: {c.maiorObservada} mm",
                            INTENSIDADE_MOVEL: f"Maior Precipitação: {c.maiorIntensidade} mm/h",
                            DESVIO_MOVEL: f"Desvio Médio no Ensaio {k}: {c.desvio} mm"}
            for controle, texto in legendas.items():
                caso.mostra(f"{tela}.{controle}", texto)
        cena.fechar()
    contas.malha += 3
    contas.movel += 3
    return caso


def salvos(s, contas, pasta):
    """Parameters saved, read by Form7, and simulated with; what was saved must equal parametros-k.txt."""
    caso = CasoDeAjuste("ajuste-salvar", "A fit saved, and simulated with", pasta)
    for k, (modelo, metodo, sortear) in enumerate((("TX15", MALHA, sortearMalha), ("TX20", MOVEL, sortearMovel),
                                                   ("TX30", MALHA, sortearMalha)), 1):
        aspersor = sortearAspersor(s, modelo)
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, 1)
        cena = Cena(caso, aspersor, metodo, modelo)
        cena.carregar(1, ensaios[0])
        cena.ajustar(ensaios, r)
        (pasta / DADOS / f"parametros-{k}.txt").write_bytes(arquivoDeParametros(aspersor, r.legendas).encode())
        salvo = f"{DADOS}/saida-{k}.txt"
        caso.faz("arquivo", "cancelar")
        cena.clicar("Command7")
        caso.saida.append("arquivo para salvar: cancelado")
        caso.faz("arquivo", salvo)
        cena.clicar("Command7")
        caso.saida.append(f"arquivo para salvar: {salvo}")
        cena.fechar()
        simular(caso, aspersor, r.legendas, salvo, ensaios[0])
    contas.malha += 2
    contas.movel += 1
    return caso


def simular(caso, aspersor, legendas, arquivo, ensaio):
    caso.faz("clicar", f"Form3.{aspersor.modelo}B")
    caso.faz("escolher", "form1.Combo1", f"{aspersor.principal} mm")
    if aspersor.modelo != "TX30":
        caso.faz("escolher", "form1.Combo2", f"{aspersor.auxiliar} mm")
    caso.faz("rolar", "form1.hsbPressão", aspersor.pressao)
    caso.faz("clicar", "form1.Command3")
    form7 = calculo.Form7(aspersor.a)
    caso.saida += form7.calcular()
    responderArquivo(caso, arquivo)
    caso.faz("clicar", "Form7.Command1")
    dizerArquivo(caso, arquivo)
    form7.legendas["Label19"] = f"Bocais: {aspersor.bocais} mm"
    for controle in ("Label20", "Label19", "Label18", "Label27", "Label28"):
        caso.mostra(f"Form7.{controle}", form7.legendas[controle])
    form7.parametros = legendas
    for k, texto in enumerate(legendas, 2):
        caso.mostra(f"Form7.Text{k}", texto)
    for barra, valor in (("HScroll2", round(ler(ensaio.vento) * 10)), ("HScroll1", int(ensaio.direcao))):
        caso.faz("rolar", f"Form7.{barra}", valor)
        form7.rolar(barra, valor)
    caso.faz("clicar", "Form7.Command2")
    caso.saida += form7.calcular()
    caso.mostraGrade("Form7.flexA", ("No", "Distância (m)", "Lâmina (mm)"), form7.flexA)
    caso.faz("clicar", "Form7.cmdSair")


def preencherCelulas(caso, tela, linhas, colunas, texto):
    for i in range(1, linhas + 1):
        for j in range(1, colunas + 1):
            caso.faz("celula", f"{tela}.flex_A", i, j, texto)


def recusas(pasta):
    """What stops a fit before it begins."""
    caso = CasoDeAjuste("ajuste-recusas", "What stops a fit before it begins", pasta)
    aspersor = Aspersor("TX15", 18, 6, 50)

    cena = Cena(caso, aspersor, MALHA, "Grid: time, diameter, cells, in this order")
    tela = cena.abrirTela(1)
    cena.recusar("Há alguma célula da planilha do Ensaio 1 vazia!")
    caso.faz("clicar", f"{tela}.Option4")
    cena.recusar("Valor de tempo inválido no Ensaio 1!")
    recusarTexto(caso, cena, tela, "Text6", "1h", "Valor de tempo inválido no Ensaio 1!")
    caso.faz("digitar", f"{tela}.Text6", "60")
    cena.recusar("Há alguma célula da planilha do Ensaio 1 vazia!")
    caso.mostra(f"{tela}.Text6", "60")
    caso.faz("clicar", f"{tela}.Option3")
    caso.mostra(f"{tela}.Text6", "")
    cena.recusar("Valor de tempo inválido no Ensaio 1!")
    recusarTexto(caso, cena, tela, "Text6", "abc", "Valor de tempo inválido no Ensaio 1!")
    caso.faz("digitar", f"{tela}.Text6", "60")
    cena.recusar("Valor de diâmetro do coletor inválido no Ensaio 1!")
    recusarTexto(caso, cena, tela, "Text7", "8,5", "Valor de diâmetro do coletor inválido no Ensaio 1!")
    caso.mostra(f"{tela}.Text6", "60")
    caso.faz("digitar", f"{tela}.Text7", "8.5")
    cena.recusar("Há alguma célula da planilha do Ensaio 1 vazia!")
    caso.faz("escolher", f"{tela}.Combo2", "6")
    preencherCelulas(caso, tela, 6, 6, "1")
    caso.faz("celula", f"{tela}.flex_A", 6, 6, "x")
    cena.recusar("Insira valores numéricos na planilha do Ensaio 1!")
    cena.mostrarLegendas([""] * 6)
    cena.mostrarBotoes(ajustado=False)
    cena.fechar()

    for metodo, lado, linhas, colunas in ((MALHA, "Combo2", 6, 6), (MOVEL, "Combo3", 6, 1)):
        cena = Cena(caso, aspersor, metodo, "Which test fails is told")
        cena.escolherQuantos(3)
        for k in (1, 2, 3):
            tela = cena.abrirTela(k)
            if metodo is MOVEL:
                caso.faz("escolher", f"{tela}.Combo1", "1")
            caso.faz("escolher", f"{tela}.{lado}", "6" if metodo is MALHA else "3")
            cena.recusar(f"Há alguma célula da planilha do Ensaio {k} vazia!")
            preencherCelulas(caso, tela, linhas, colunas, "1")
            if metodo is MOVEL:
                caso.faz("digitar", f"{tela}.Text1", "50")
                caso.faz("escolher", f"{tela}.Combo6", "240")
        caso.faz("celula", f"{tela}.flex_A", 1, 1, "?")
        cena.recusar("Insira valores numéricos na planilha do Ensaio 3!")
        cena.mostrarBotoes(ajustado=False)
        cena.fechar()

    cena = Cena(caso, aspersor, MOVEL, "Travelling: diameter, cells, speed, turn angle, in this order")
    tela = cena.abrirTela(1)
    caso.faz("escolher", f"{tela}.Combo1", "1")
    caso.faz("escolher", f"{tela}.Combo3", "3")
    caso.faz("digitar", f"{tela}.Combo6", "170")
    caso.faz("clicar", f"{tela}.Option3")
    cena.recusar("Valor de diâmetro do coletor inválido no Ensaio 1!")
    recusarTexto(caso, cena, tela, "Text7", "dez", "Valor de diâmetro do coletor inválido no Ensaio 1!")
    caso.faz("digitar", f"{tela}.Text7", "10")
    cena.recusar("Há alguma célula da planilha do Ensaio 1 vazia!")
    preencherCelulas(caso, tela, 6, 1, "12")
    for texto in ("", "rápido"):
        if texto:
            caso.faz("digitar", f"{tela}.Text1", texto)
        cena.recusar("Valor de velocidade do aspersor inválido no Ensaio 1!")
        caso.mostra(f"{tela}.Text1", "")
    for texto in ("0", "-3", "200.1"):
        recusarTexto(caso, cena, tela, "Text1", texto,
                     "Ensaio 1: a velocidade do aspersor deve estar entre 0 - 200 m/h!")
    caso.faz("digitar", f"{tela}.Text1", "200")
    cena.recusar("Ensaio 1: o ângulo de giro do aspersor deve estar entre 180 - 360º!")
    cena.mostrarLegendas([""] * 6)
    cena.mostrarBotoes(ajustado=False)
    cena.fechar()
    return caso


def recusarTexto(caso, cena, tela, controle, texto, mensagem):
    """A box that is answered, emptied and given the focus."""
    caso.faz("digitar", f"{tela}.{controle}", texto)
    cena.recusar(mensagem)
    caso.mostra(f"{tela}.{controle}", "")
    caso.comandos.append("foco")
    caso.saida.append(f"foco: {tela}.{controle}")


PADROES_MALHA = {"Combo2": "14", "Combo1": "6.0", "Label17": "3.0", "Label2": "45", "Text6": "", "Text7": ""}
PADROES_MOVEL = {"Combo1": "3", "Combo2": "6.0", "Combo3": "20", "Combo4": "2.0", "Label17": "3.0"}


def arquivosRecusados(pasta):
    """Files that are refused as a whole, and what saving asks for."""
    caso = CasoDeAjuste("ajuste-arquivos", "Refused files of tests, and what saving asks for", pasta)
    aspersor = Aspersor("TX15", 18, 6, 50)
    malha = EnsaioMalha("6", "3.0", "2.0", "30", "mL", "60", "8", [["1.500"] * 6] * 6)
    movel = EnsaioMovel("2", "3.0", "4", "3.0", "270", "40", "2.0", "30", "mL", "8", [["20.000"] * 2] * 8)
    for metodo, bom, padroes, estragos in (
            (MALHA, malha, PADROES_MALHA, ((6, "0"), (6, "seis"), (6, ""), (7, "0"), (7, "três"), (8, "10.5"), (8, "-0.1"),
                                           (8, "x"), (9, "norte"), (10, "4"), (10, ""), (11, ""), (12, ""))),
            (MOVEL, movel, PADROES_MOVEL, ((6, "0"), (6, "x"), (7, "170"), (7, "361"), (7, ""), (8, "0"), (9, "0"),
                                           (10, "0"), (11, "0"), (12, "10.1"), (13, "361"), (13, "-1"), (14, "3")))):
        cena = Cena(caso, aspersor, metodo, "Refused files")
        tela = cena.abrirTela(1)
        caso.faz("responder", "não")
        caso.faz("clicar", f"{tela}.Option5")
        caso.saida.append(f"pergunta: {PERGUNTA} -> não")
        caso.estado(f"{tela}.Option2", "visível habilitado marcado")
        caso.faz("responder", "sim")
        caso.faz("arquivo", "cancelar")
        caso.faz("clicar", f"{tela}.Option5")
        dizerArquivo(caso, "cancelado")
        caso.estado(f"{tela}.Option2", "visível habilitado marcado")
        linhas = arquivoDoEnsaio(bom, aspersor).removesuffix("\r\n").split("\r\n")
        textos = ["\r\n".join(linhas[:n - 1] + [valor] + linhas[n:]) + "\r\n" for n, valor in estragos]
        textos.append("\r\n".join(linhas[:8]) + "\r\n")
        for texto in textos:
            caminho = caso.guardar(texto)
            responderArquivo(caso, caminho)
            caso.faz("clicar", f"{tela}.Option5")
            dizerArquivo(caso, caminho)
            caso.diz(RECUSADO)
            for controle, padrao in padroes.items():
                caso.mostra(f"{tela}.{controle}", padrao)
            caso.estado(f"{tela}.Option2", "visível habilitado marcado")
        caso.comandos.append("# LF alone, blank lines at the end")
        caminho = caso.guardar("\n".join(linhas) + "\n\n\n")
        responderArquivo(caso, caminho)
        caso.faz("clicar", f"{tela}.Option5")
        dizerArquivo(caso, caminho)
        mostrarEnsaio(caso, tela, bom)
        caso.mostra(f"{tela}.Label20", f"ASPERSOR: {aspersor.nome}")
        caso.mostra(f"{tela}.Label19", f"Bocais: {aspersor.bocais} mm")
        caso.mostra(f"{tela}.Label18", f"Pressão: {aspersor.pressao} m.c.a.")
        caso.mostra(f"{tela}.Text7", "8")
        cena.fechar()

    cena = Cena(caso, aspersor, MALHA, "What saving asks for")
    tela = cena.abrirTela(1)
    caso.faz("escolher", f"{tela}.Combo2", "6")

    def salvar(mensagem, **textos):
        for controle, texto in textos.items():
            caso.faz("digitar", f"{tela}.{controle}", texto)
        caso.faz("clicar", f"{tela}.Command1")
        caso.diz(mensagem)

    salvar("Existem células em branco na planilha, verifique!")
    caso.faz("clicar", f"{tela}.Option4")
    salvar("Insira um valor numérico de tempo!")
    salvar("Valor numérico inválido!", Text6="uma hora")
    caso.faz("clicar", f"{tela}.Option3")
    salvar("Ausência de valor numérico de tempo ou diâmetro do coletor!", Text6="60")
    salvar("Valor numérico de tempo ou diâmetro do coletor inválido!", Text6="60", Text7="x")
    caso.faz("clicar", f"{tela}.Option1")
    preencherCelulas(caso, tela, 6, 6, "2")
    caso.faz("celula", f"{tela}.flex_A", 3, 4, "dois")
    salvar("Insira um valores numéricos!")
    cena.fechar()
    return caso


def idaEVolta(s, contas, pasta):
    """A typed test saved, cleared, loaded again and fitted."""
    caso = CasoDeAjuste("ajuste-ida-e-volta", "Typed tests saved and loaded again", pasta)
    for k, (metodo, sortear) in enumerate(((MALHA, lambda s, R: sortearMalha(s, R, 8)),
                                           (MOVEL, lambda s, R: sortearMovel(s, R, 6))), 1):
        aspersor = sortearAspersor(s, "TX20")
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, 1)
        cena = Cena(caso, aspersor, metodo, "Saved, cleared, loaded")
        cena.digitar(1, ensaios[0])
        caminho = f"{DADOS}/saida-ensaio-{k}.txt"
        caso.faz("arquivo", caminho)
        caso.faz("clicar", f"{cena.tela(1)}.Command1")
        caso.saida.append(f"arquivo para salvar: {caminho}")
        caso.faz("clicar", f"{cena.tela(1)}.Command2")
        cena.recusar("Há alguma célula da planilha do Ensaio 1 vazia!")
        cena.carregar(1, ensaios[0], caminho)
        cena.ajustar(ensaios, r)
        cena.fechar()
    contas.malha += 1
    contas.movel += 1
    return caso


def errosDeExecucao(s, contas, pasta):
    """Fits that a run-time error ends; the captions of the fit before stay."""
    caso = CasoDeAjuste("ajuste-erros", "Fits that a run-time error ends", pasta)
    aspersor = Aspersor("TX20", 28, 6, 50)
    for metodo, sortear in ((MALHA, lambda s, R: sortearMalha(s, R, 8)), (MOVEL, lambda s, R: sortearMovel(s, R, 6))):
        ensaios, r = sortearAjuste(s, contas, aspersor.fonte, sortear, 1)
        cena = Cena(caso, aspersor, metodo, "No wind")
        tela = cena.tela(1)
        cena.carregar(1, ensaios[0])
        cena.ajustar(ensaios, r)
        caso.faz("rolar", f"{tela}.HScroll2", 0)
        parado = a.ajustar(aspersor.fonte, [type(ensaios[0])(**{**vars(ensaios[0]), "vento": "0.0"})])
        assert parado.erro
        cena.ajustar(ensaios, parado)
        cena.mostrarLegendas(r.legendas)
        cena.mostrarBotoes(ajustado=True)
        cena.fechar()

    boa = dict(lado="6", espacamento="6.0", vento="3.0", direcao="45", tempo="", diametro="", modo="mm/h",
               leituras=[["2.000"] * 6] * 6)
    for titulo, mudanca in (("No water at all", dict(leituras=[["0.000"] * 6] * 6)),
                            ("A time of 0", dict(modo="mm", tempo="0")),
                            ("A diameter of 0", dict(modo="mL", tempo="60", diametro="0"))):
        ensaio = EnsaioMalha(**{**boa, **mudanca})
        cena = Cena(caso, aspersor, MALHA, titulo)
        cena.carregar(1, ensaio)
        assert cena.ajustar([ensaio]).erro
        cena.mostrarLegendas([""] * 6)
        cena.mostrarBotoes(ajustado=False)
        cena.fechar()

    movel = dict(linhas="1", entreLinhas="6.0", lado="3", espacamento="6.0", giro="240", velocidade="50", vento="3.0",
                 direcao="45", modo="mm", diametro="", leituras=[["10.000"]] * 6)
    for titulo, mudanca in (("No water at all", dict(leituras=[["0.000"]] * 6)),
                            ("A diameter of 0", dict(modo="mL", diametro="0"))):
        ensaio = EnsaioMovel(**{**movel, **mudanca})
        cena = Cena(caso, aspersor, MOVEL, titulo)
        cena.carregar(1, ensaio)
        assert cena.ajustar([ensaio]).erro
        cena.mostrarLegendas([""] * 6)
        cena.mostrarBotoes(ajustado=False)
        cena.fechar()
    return caso


def main():
    pasta = Path(sys.argv[1]) if len(sys.argv) > 1 else Path(__file__).parent / "ajustes"
    (pasta / DADOS).mkdir(parents=True, exist_ok=True)
    s, contas = SorteioComRuido(SEMENTE), Contas()

    def escrever(caso):
        caso.escreverArquivos()
        print(f"{caso.nome}: {caso.cenas}", flush=True)

    for nome, titulo, metodo, quantos, sensivel in (
            *((f"ajuste-malha-{k}", f"Drawn grid fits, {k} of 4", MALHA, 15, False) for k in range(1, 5)),
            *((f"ajuste-movel-{k}", f"Drawn travelling fits, {k} of 3", MOVEL, 15, False) for k in range(1, 4)),
            ("ajuste-sensiveis-malha", "Grid fits in which the order of the sums shows", MALHA, 10, True),
            ("ajuste-sensiveis-movel", "Travelling fits in which the order of the sums shows", MOVEL, 5, True)):
        escrever(ajustesSorteados(s, contas, nome, titulo, pasta, metodo, quantos, sensivel))
    for faz in (digitados, outrosAspersores, bordas, extremos, tabelas, comparacoes, salvos, idaEVolta):
        escrever(faz(s, contas, pasta))
    (pasta / "ajuste-salvar.gravados").write_bytes(
        "".join(f"{DADOS}/saida-{k}.txt\t{DADOS}/parametros-{k}.txt\n" for k in (1, 2, 3)).encode())
    escrever(outrosSimulados(pasta))
    escrever(poucaAgua(s, contas, pasta))
    escrever(recusas(pasta))
    escrever(arquivosRecusados(pasta))
    escrever(errosDeExecucao(s, contas, pasta))
    print(f"{contas.malha} grid fits, {contas.movel} travelling fits; drawn again: {contas.recusados} where an order "
          f"of the sums shows, {contas.erros} that a run-time error ended")


if __name__ == "__main__":
    main()
