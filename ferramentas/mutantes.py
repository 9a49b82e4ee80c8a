#!/usr/bin/env python3
"""Plants faults in the core, one at a time, and tells which of them the tests don't notice.

A fault (a mutant) changes one operator, constant, condition, index, argument or statement of src/, windows and mains left
out. Its source is changed in a copy; it and what includes it are compiled, the tests linked with that and run until the
first that fails: those of the same file, of the core, the roteiros and what else there is. A mutant that makes the same
machine code as the original, or none at all, gives its place to another.

What each mutant came to is kept in build/mutantes/andamento.jsonl, so that a run that is interrupted goes on where it was;
a source that changes since is tried anew. Survivors stand in build/mutantes/sobreviventes.txt, which --sobreviventes takes.
"""
import argparse
import json
import os
import queue
import random
import re
import shlex
import shutil
import signal
import subprocess
import sys
import threading
import time
import zlib
from collections import Counter, defaultdict
from concurrent.futures import ThreadPoolExecutor
from dataclasses import dataclass
from pathlib import Path

RAIZ = Path(__file__).resolve().parent.parent
PASTA = RAIZ / "build" / "mutantes"
BASE = PASTA / "base"
ANDAMENTO = PASTA / "andamento.jsonl"
SOBREVIVENTES = PASTA / "sobreviventes.txt"

SEM_MUTANTES = re.compile(r"src/janelas/|src/roteiro/(principal|plataforma_roteiro)\.cpp")
# Measured numbers: a test of each would be the table once more.
DE_DADOS = {"src/aspersor/perfis_catalogo.cpp", "src/aspersor/catalogo.cpp"}
PESO_DOS_DADOS = 0.1
# What so many sources include is tried as rarely: nearly all of it declares screens, and each fault takes minutes.
INCLUSOES_DEMAIS = 40
# The names of controls have a test of their own with the windows.
NOMES = re.compile(r"^\s*visita\(.*$", re.M)
# A test that takes longer than this runs last.
SEGUNDOS_DE_UM_TESTE_LENTO = 0.1
MEMORIA_KIB = 4 << 20
NINGUEM = 65534

NUCLEO, ROTEIRO, FALTAS, HOSTIS, REPETIR = (
    "testes/testes_nucleo", "testes/roteiro/testes_roteiro", "testes/faltas/testes_faltas",
    "testes/fuzz/testes_hostis", "testes/fuzz/repetir")
PROGRAMA, COMPARAR = "varenta-roteiro", "testes/roteiro/comparar_roteiros"
PROGRAMAS = (NUCLEO, ROTEIRO, FALTAS, HOSTIS, REPETIR, PROGRAMA, COMPARAR)


# The faults.

@dataclass(frozen=True)
class Mutante:
    arquivo: str
    linha: int
    coluna: int
    inicio: int
    fim: int
    especie: str
    antes: str
    depois: str

    def __str__(self):
        curto = " ".join
        return (f"{self.arquivo}:{self.linha}:{self.coluna}: {self.especie}: "
                f"«{curto(self.antes.split())}» → «{curto(self.depois.split())}»")


LEXICO = re.compile(
    r'(?P<texto>R"(?P<d>[^()\s]*)\(.*?\)(?P=d)"|"(?:\\.|[^"\\\n])*")|(?P<comentario>//[^\n]*|/\*.*?\*/)'
    r"|(?P<diretiva>^[ \t]*\#(?:\\\n|[^\n])*)|(?P<numero>(?<![\w.])\d[\w']*(?:\.[\d']*)?(?:(?<=[eE])[+-]\d+)?\w*)"
    r"|(?P<letra>'(?:\\.|[^'\\\n])+')|(?P<palavra>\w+)", re.S | re.M)


def mascarar(fonte):
    """The source with what no fault is planted in blanked: every character keeps its place."""
    apagar = lambda trecho: re.sub(r"[^\n]", " ", trecho)

    def trocar(m):
        if m["comentario"] or m["diretiva"]:
            return apagar(m[0])
        if m["texto"] or m["letra"]:
            return re.sub(r"[^\n]", "\x01", m[0])
        return m[0]

    mascara = NOMES.sub(lambda m: apagar(m[0]), LEXICO.sub(trocar, fonte))
    for m in list(re.finditer(r"\bstatic_assert\s*\(", mascara)):
        fim = fechamento(mascara, m.end() - 1) + 1
        mascara = mascara[:m.start()] + apagar(mascara[m.start():fim]) + mascara[fim:]
    return mascara


def fechamento(mascara, abre):
    """Where the bracket that opens at `abre` closes; the end where it doesn't."""
    pares = {"(": ")", "[": "]", "{": "}"}
    pilha = []
    for i in range(abre, len(mascara)):
        if mascara[i] in pares:
            pilha.append(pares[mascara[i]])
        elif pilha and mascara[i] == pilha[-1]:
            pilha.pop()
            if not pilha:
                return i
    return len(mascara) - 1


def fim_da_instrucao(mascara, inicio):
    """The semicolon that ends the statement; its beginning, where that is no statement of its own."""
    nivel = 0
    for i in range(inicio, len(mascara)):
        if mascara[i] in "([{":
            nivel += 1
        elif mascara[i] in ")]}":
            nivel -= 1
        if nivel < 0:
            return inicio
        if mascara[i] == ";" and nivel == 0:
            return i
    return inicio


def dividir(mascara, inicio, fim, separador):
    """The stretches between the separators that stand outside of brackets."""
    trechos, nivel, comeco = [], 0, inicio
    for i in range(inicio, fim):
        if mascara[i] in "([{":
            nivel += 1
        elif mascara[i] in ")]}":
            nivel -= 1
        elif mascara[i] == separador and nivel == 0:
            trechos.append((comeco, i))
            comeco = i + 1
    return trechos + [(comeco, fim)]


OPERADORES = {"+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"], "+=": ["-="], "-=": ["+="], "*=": ["/="],
              "/=": ["*="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="],
              "!=": ["=="], "&&": ["||"], "||": ["&&"]}
OPERADOR = re.compile(r"(?<=\s)(?:" + "|".join(map(re.escape, sorted(OPERADORES, key=len, reverse=True))) + r")(?=\s)")
NUMERO = re.compile(r"(?<![\w.'])(\d[\d']*(?:\.[\d']*)?(?:[eE][+-]?\d+)?)([uUlLzZfF]*)(?![\w.'>])")
CONDICAO = re.compile(r"\b(?:if|while) \(")
INDICE = re.compile(r"(?<=[\w)\]])\[")
CHAMADA = re.compile(r"(?<=\w)\(")
PALAVRAS_COM_PARENTESES = {"if", "while", "for", "switch", "catch", "return", "sizeof", "decltype", "noexcept",
                           "alignas", "operator", "requires"}
DESTINO = r"[*(]*[\w:]+(?:\([^()]*\))?(?:(?:\.|->|::)\w+|\[[^\]]*\]|\([^()]*\))*\)*"
INSTRUCAO = re.compile(rf"(?:{DESTINO} (?:=|[-+*/|&]=) |(?:\+\+|--)|{DESTINO}\(|{DESTINO}(?:\+\+|--)?$)")
SEM_TIRAR = re.compile(r"(return|throw|break|continue|using|case|default|if|for|while|else|do|switch|public|private|"
                       r"friend|static_cast|template|namespace|goto|co_\w+)\b")


def constante(numero, sufixo):
    inteiro = re.fullmatch(r"\d[\d']*", numero)
    if inteiro:
        return f"{int(numero.replace(chr(39), '')) + 1}{sufixo}"
    valor = float(numero.replace("'", ""))
    return f"{1.0 if valor == 0 else valor * 1.01!r}{sufixo}"


def trocas(fonte):
    """The places of every fault that can be planted, as (start, end, kind, replacement)."""
    m_ = mascarar(fonte)
    for m in OPERADOR.finditer(m_):
        for novo in OPERADORES[m[0]]:
            yield m.start(), m.end(), "operador", novo
    for m in NUMERO.finditer(m_):
        yield m.start(), m.end(), "constante", constante(m[1], m[2])
    for m in CONDICAO.finditer(m_):
        inicio, fim = dividir(m_, m.end(), fechamento(m_, m.end() - 1), ";")[-1]
        declara = re.match(r"\s*(?:const )?auto\b", m_[inicio:fim])
        if not declara:
            yield inicio, fim, "condição negada", f" !({fonte[inicio:fim].strip()})"
    for m in INDICE.finditer(m_):
        inicio, fim = m.end(), fechamento(m_, m.end() - 1)
        if fonte[inicio:fim].strip():
            for sinal in "+-":
                yield inicio, fim, "índice", f"({fonte[inicio:fim]}) {sinal} 1"
    for m in CHAMADA.finditer(m_):
        nome = re.search(r"\w+$", m_[:m.start()])[0]
        argumentos = dividir(m_, m.end(), fechamento(m_, m.end() - 1), ",")
        if nome in PALAVRAS_COM_PARENTESES or len(argumentos) < 2:
            continue
        (a, b), (c, d) = argumentos[:2]
        primeiro, segundo = fonte[a:b].strip(), fonte[c:d].strip()
        if m_[a:b].strip().startswith("\x01") != m_[c:d].strip().startswith("\x01"):
            continue
        # Parameters of a declaration: a type and a name.
        if primeiro != segundo and not re.search(r"^(const )?[\w:<> ]+[\s&*]+\w+$", primeiro):
            yield a, d, "argumentos trocados", f"{segundo}, {primeiro}"
    for m in re.finditer(r"[;{})]\s*(?=[\w*(+-])", m_):
        inicio = m.end()
        fim = fim_da_instrucao(m_, inicio)
        texto = m_[inicio:fim]
        if m_[m.start()] == ")" and "\n" not in m[0]:
            continue
        if INSTRUCAO.match(texto) and not SEM_TIRAR.match(texto):
            yield inicio, fim, "instrução tirada", ""


def mutantes_de(arquivo):
    fonte = (RAIZ / arquivo).read_text(encoding="utf-8")
    for inicio, fim, especie, depois in trocas(fonte):
        linha = fonte.count("\n", 0, inicio) + 1
        coluna = inicio - (fonte.rfind("\n", 0, inicio) + 1) + 1
        yield Mutante(arquivo, linha, coluna, inicio, fim, especie, fonte[inicio:fim], depois)


def sortear(arquivo, semente):
    """The mutants of a file in the order of their turn: one of each line, then a second of each."""
    por_linha = defaultdict(list)
    for mutante in mutantes_de(arquivo):
        por_linha[mutante.linha].append(mutante)
    sorteio = random.Random(f"{semente} {arquivo}")
    linhas = list(por_linha.values())
    sorteio.shuffle(linhas)
    for linha in linhas:
        sorteio.shuffle(linha)
    ordem = [linha[vez] for vez in range(max(map(len, linhas), default=0)) for linha in linhas if vez < len(linha)]
    return ordem, len(linhas)


def repartir(quantos, pesos):
    """So many in proportion to the weights, the rounding given to the largest remainders."""
    total = sum(pesos.values())
    exatas = {nome: quantos * peso / total for nome, peso in pesos.items()}
    cotas = {nome: int(parte) for nome, parte in exatas.items()}
    sobras = sorted(exatas, key=lambda nome: (cotas[nome] - exatas[nome], nome))
    for nome in sobras[:quantos - sum(cotas.values())]:
        cotas[nome] += 1
    return cotas


# The build, and its commands for a mutant.

def sair(mensagem):
    sys.exit(f"mutantes.py: {mensagem}")


def construir():
    opcoes = ["-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O1", "-DCMAKE_CXX_FLAGS=-w", "-DVARENTA_JANELAS=OFF"]
    if shutil.which("ld.lld"):
        opcoes.append("-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld")
    for comando in (["cmake", "-S", RAIZ, "-B", BASE, "-G", "Ninja"] + opcoes,
                    ["ninja", "-j2", "-C", BASE, *PROGRAMAS]):
        feito = subprocess.run(comando, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                               env=dict(os.environ, CCACHE_DISABLE="1"))
        if feito.returncode:
            sair("a construção falhou:\n" + feito.stdout[-3000:])


class Construcao:
    """What ninja knows: who includes a file, how an object is compiled, how a program is linked."""

    def __init__(self):
        self.compilar, self.ligar, self.biblioteca = {}, {}, {}
        for comando in self._ninja("commands", *PROGRAMAS):
            comando = comando.replace(": && ", "").split(" && ")
            for parte in comando:
                palavras = shlex.split(parte)
                if "-c" in palavras:
                    self.compilar[palavras[palavras.index("-o") + 1]] = palavras
                elif "-o" in palavras:
                    self.ligar[palavras[palavras.index("-o") + 1]] = palavras
                elif "qc" in palavras:
                    arquivo, *objetos = palavras[palavras.index("qc") + 1:]
                    self.biblioteca.update({objeto: arquivo for objeto in objetos})
        self.incluem = defaultdict(list)
        objeto = None
        for linha in self._ninja("deps"):
            if linha.startswith(" "):
                if objeto in self.compilar:
                    self.incluem[os.path.normpath(BASE / linha.strip())].append(objeto)
            elif linha:
                objeto = linha.split(": #deps")[0]

    @staticmethod
    def _ninja(ferramenta, *nomes):
        return subprocess.run(["ninja", "-C", BASE, "-t", ferramenta, *nomes], check=True, capture_output=True,
                              text=True).stdout.splitlines()

    def objetos_de(self, arquivo):
        return self.incluem[str(RAIZ / arquivo)]


class Falhou(Exception):
    pass


class Oficina:
    """A copy of the sources in which one mutant at a time is made and tried."""

    def __init__(self, numero, construcao, passos):
        self.pasta = PASTA / f"oficina-{numero}"
        self.construcao, self.passos = construcao, passos
        self.segundos = 0.0
        shutil.rmtree(self.pasta, ignore_errors=True)
        shutil.copytree(RAIZ / "src", self.pasta / "src", copy_function=shutil.copy2)
        (self.pasta / "tmp").mkdir()
        (self.pasta / "tmp").chmod(0o777)

    def experimentar(self, mutante):
        """What the mutant comes to: (result, what found it)."""
        arquivo = self.pasta / mutante.arquivo
        fonte = arquivo.read_text(encoding="utf-8")
        arquivo.write_text(fonte[:mutante.inicio] + mutante.depois + fonte[mutante.fim:], encoding="utf-8")
        try:
            objetos = self._compilar(mutante.arquivo)
            if objetos is None:
                return "não compila", ""
            if not objetos:
                return "igual", ""
            return self._testar(mutante, objetos)
        finally:
            arquivo.write_text(fonte, encoding="utf-8")

    def _compilar(self, arquivo):
        """The objects that come out otherwise than the original's; None where one doesn't compile."""
        shutil.rmtree(self.pasta / "objetos", ignore_errors=True)
        outros = {}
        for objeto in self.construcao.objetos_de(arquivo):
            novo = self.pasta / "objetos" / objeto
            novo.parent.mkdir(parents=True, exist_ok=True)
            palavras, comando = iter(self.construcao.compilar[objeto]), []
            for palavra in palavras:
                if palavra in ("-MT", "-MF"):
                    next(palavras)
                elif palavra != "-MD":
                    comando.append(str(novo) if palavra == objeto
                                   else palavra.replace(f"{RAIZ}/src", f"{self.pasta}/src"))
            try:
                if self._executar(comando, 300)[0] != 0:
                    return None
            except subprocess.TimeoutExpired:
                return None
            if novo.read_bytes() != (BASE / objeto).read_bytes():
                outros[objeto] = str(novo)
        return outros

    def _ligar(self, programa, objetos):
        """The program with these objects in the place of its own: a library's member whose symbols are all there
        already is passed over. Where none is of the program it is the original."""
        comando = self.construcao.ligar[programa]
        bibliotecas = {palavra for palavra in comando if palavra.endswith(".a")}
        membros = [novo for objeto, novo in objetos.items() if self.construcao.biblioteca.get(objeto) in bibliotecas]
        if not membros and not any(palavra in objetos for palavra in comando):
            return BASE / programa
        novo = self.pasta / Path(programa).name
        palavras = [str(novo) if p == programa else objetos.get(p, p) for p in comando]
        primeira = next(i for i, palavra in enumerate(palavras) if palavra.endswith(".a"))
        palavras[primeira:primeira] = membros
        # Where the fault does away with a symbol that others ask for, the library's member comes in besides.
        palavras.append("-Wl,--allow-multiple-definition")
        estado, saida = self._executar(palavras, 120)
        if estado != 0:
            raise Falhou(f"{programa} não liga: {saida[-1500:]}")
        return novo

    def _testar(self, mutante, objetos):
        programas = {}
        for passo in self.passos.para(mutante.arquivo):
            for programa in passo.programas:
                if programa not in programas:
                    programas[programa] = self._ligar(programa, objetos)
            if all(programas[programa] == BASE / programa for programa in passo.programas):
                continue
            try:
                estado, saida = self.rodar(passo, programas)
            except subprocess.TimeoutExpired:
                return "apanhado", f"{passo.nome}: não termina"
            if estado != 0:
                falha = re.search(r"\[  FAILED  \] (\S+)", saida)
                return "apanhado", f"{passo.nome}: {falha[1].rstrip(',') if falha else f'estado {estado}'}"
        return "sobreviveu", ""

    def rodar(self, passo, programas):
        """Runs a step with limits of time and memory and, for the harm that a program with a fault could do, without
        the rights of the superuser."""
        limites = f"ulimit -c 0; ulimit -v {MEMORIA_KIB}; ulimit -t {passo.limite}; exec \"$@\""
        sem_direitos = ["setpriv", f"--reuid={NINGUEM}", f"--regid={NINGUEM}", "--clear-groups"] if os.geteuid() == 0 else []
        comando = ["sh", "-c", limites, "sh", *sem_direitos, *passo.comando({p: str(c) for p, c in programas.items()})]
        estado, saida = self._executar(comando, 60 + 20 * passo.limite,
                                       TMPDIR=str(self.pasta / "tmp"), GTEST_FAIL_FAST="1", GTEST_BRIEF="1")
        if estado in (126, 127):
            raise Falhou(f"{passo.nome} não começa: {saida[-1500:]}")
        for resto in (self.pasta / "tmp").iterdir():
            shutil.rmtree(resto, ignore_errors=True) if resto.is_dir() else resto.unlink()
        return estado, saida

    def _executar(self, comando, prazo, **ambiente):
        """Exit status and output of a command, whose processes all end with it. Counts their processor time."""
        with open(self.pasta / "saida.txt", "w+", encoding="utf-8", errors="replace") as saida:
            processo = subprocess.Popen(comando, cwd=BASE, stdin=subprocess.DEVNULL, stdout=saida,
                                        stderr=subprocess.STDOUT, start_new_session=True,
                                        env=dict(os.environ, CCACHE_DISABLE="1", **ambiente))
            acabou, esgotou = threading.Event(), threading.Event()

            def vigiar():
                # Counted second by second: while all this is suspended, no time passes.
                if not any(acabou.wait(1) for _ in range(prazo)):
                    esgotou.set()
                    os.killpg(processo.pid, signal.SIGKILL)

            vigia = threading.Thread(target=vigiar)
            vigia.start()
            _, estado, uso = os.wait4(processo.pid, 0)
            acabou.set()
            vigia.join()
            processo.returncode = os.waitstatus_to_exitcode(estado)
            self.segundos += uso.ru_utime + uso.ru_stime
            if esgotou.is_set():
                raise subprocess.TimeoutExpired(comando, prazo)
            saida.seek(0)
            return processo.returncode, saida.read()


# The tests, from the nearest to the farthest.

class Passo:
    def __init__(self, nome, programas, comando, limite=60):
        self.nome, self.programas, self.comando, self.limite = nome, programas, comando, limite


def de_gtest(nome, programa, filtro, limite=60):
    return Passo(nome, [programa], lambda c: [c[programa], "--gtest_filter=" + filtro], limite)


def roteiros(nome, *pastas):
    return Passo(nome, [PROGRAMA], lambda c: [str(BASE / COMPARAR), c[PROGRAMA], str(RAIZ), *pastas])


class Passos:
    def __init__(self):
        self.lentos = set()
        self.suites = defaultdict(set)
        for arquivo in (RAIZ / "testes").glob("*/*_teste.cpp"):
            for suite in re.findall(r"^TEST\w*\((\w+),", arquivo.read_text(encoding="utf-8"), re.M):
                self.suites[arquivo.parent.name].add((arquivo.name, suite))
        corpos = sorted((RAIZ / "testes" / "fuzz" / "corpos").iterdir())
        self.ultimos = [
            roteiros("roteiros", "testes/roteiros", "testes/independente/casos", "exemplos"),
            de_gtest("testes_roteiro", ROTEIRO, "*"),
            de_gtest("testes_faltas", FALTAS, "*"),
            # Without those that hold a refusal against the clock: on a busy machine they fail by themselves.
            de_gtest("testes_hostis", HOSTIS, "-*QueNãoSãoTextos*:RoteirosHostis.*"),
            *(Passo(f"corpo {c.name}", [REPETIR], lambda p, c=c: [p[REPETIR], c.name, str(c)]) for c in corpos),
            roteiros("ajustes", "testes/independente/ajustes"),
        ]

    def medir(self, oficina):
        """Runs every step on the program without a fault: all must pass; the times give the limits and the slow tests."""
        originais = {programa: BASE / programa for programa in PROGRAMAS}
        tudo = Passo("testes_nucleo", [NUCLEO], lambda c: [c[NUCLEO], "--gtest_brief=0"], 600)
        for passo in [tudo] + self.ultimos:
            antes = oficina.segundos
            passo.limite = 600
            estado, saida = oficina.rodar(passo, originais)
            if estado != 0:
                sair(f"sem defeito nenhum, {passo.nome} já falha:\n{saida[-3000:]}")
            passo.limite = 3 + int(4 * (oficina.segundos - antes))
            if passo is tudo:
                tempos = re.findall(r"\[       OK \] (\S+) \((\d+) ms\)", saida)
                self.lentos = {nome for nome, ms in tempos if int(ms) > 1000 * SEGUNDOS_DE_UM_TESTE_LENTO}
        self.limite = tudo.limite

    def para(self, arquivo):
        pasta, nome = Path(arquivo).parent.parts[1], Path(arquivo).stem
        proprias = sorted(s + ".*" for a, s in self.suites[pasta] if a.startswith(nome))
        da_pasta = sorted(s + ".*" for _, s in self.suites[pasta])
        lentos = ":".join(sorted(self.lentos))
        passos = []
        if pasta == "roteiro":
            passos.append(self.ultimos[1])
        else:
            if proprias:
                passos.append(de_gtest("do arquivo", NUCLEO, f"{':'.join(proprias)}:-{lentos}", 5))
            passos.append(de_gtest("da pasta", NUCLEO, f"{':'.join(da_pasta)}:-{lentos}", 5))
        passos += [de_gtest("testes_nucleo", NUCLEO, f"-{lentos}", 10), *self.ultimos]
        return passos + [de_gtest("testes lentos", NUCLEO, lentos, self.limite)]


# The run.

class Andamento:
    """What is known of each mutant, kept as it comes. A mutant of a source that was changed since is unknown."""

    def __init__(self):
        self.resultados = {}
        self.somas = {}
        if ANDAMENTO.exists():
            for linha in ANDAMENTO.read_text(encoding="utf-8").splitlines():
                registro = json.loads(linha)
                self.resultados[registro["mutante"], registro["soma"]] = registro
        self.arquivo = open(ANDAMENTO, "a", encoding="utf-8")
        self.tranca = threading.Lock()

    def chave(self, mutante):
        if mutante.arquivo not in self.somas:
            self.somas[mutante.arquivo] = zlib.crc32((RAIZ / mutante.arquivo).read_bytes())
        return str(mutante), self.somas[mutante.arquivo]

    def de(self, mutante):
        return self.resultados.get(self.chave(mutante))

    def anotar(self, mutante, resultado, por, segundos):
        nome, soma = self.chave(mutante)
        registro = dict(mutante=nome, soma=soma, resultado=resultado, por=por, segundos=round(segundos, 2))
        with self.tranca:
            self.resultados[nome, soma] = registro
            self.arquivo.write(json.dumps(registro, ensure_ascii=False) + "\n")
            self.arquivo.flush()
            if resultado == "sobreviveu":
                print(f"sobreviveu {nome}", flush=True)


def experimentar(mutantes, oficinas, andamento):
    livres = queue.SimpleQueue()
    for oficina in oficinas:
        livres.put(oficina)

    def um(mutante):
        oficina = livres.get()
        try:
            antes = oficina.segundos
            resultado, por = oficina.experimentar(mutante)
            andamento.anotar(mutante, resultado, por, oficina.segundos - antes)
        finally:
            livres.put(oficina)

    with ThreadPoolExecutor(len(oficinas)) as todos:
        # list() raises what a thread has raised.
        list(todos.map(um, mutantes))


def conta(registro):
    return registro is not None and registro["resultado"] in ("apanhado", "sobreviveu")


def escolher_e_experimentar(quantos, semente, so, construcao, oficinas, andamento):
    """Tries until each file has its share of mutants that count, as far as it has any."""
    filas, pesos = {}, {}
    for caminho in sorted((RAIZ / "src").rglob("*.*")):
        arquivo = str(caminho.relative_to(RAIZ))
        if caminho.suffix not in (".cpp", ".h") or SEM_MUTANTES.search(arquivo) or not re.search(so, arquivo):
            continue
        filas[arquivo], linhas = sortear(arquivo, semente)
        leve = arquivo in DE_DADOS or len(construcao.objetos_de(arquivo)) > INCLUSOES_DEMAIS
        pesos[arquivo] = linhas * (PESO_DOS_DADOS if leve else 1)
    if not sum(pesos.values()):
        sair("nenhum arquivo de src/ serve")
    cotas = repartir(quantos, pesos)
    escolhidos = {arquivo: [] for arquivo in filas}
    while True:
        vez = []
        for arquivo, fila in filas.items():
            contam = sum(conta(andamento.de(m)) for m in escolhidos[arquivo])
            for _ in range(min(cotas[arquivo] - contam, len(fila))):
                vez.append(fila.pop(0))
                escolhidos[arquivo].append(vez[-1])
        if not vez:
            return [m for lista in escolhidos.values() for m in lista]
        novos = [m for m in vez if andamento.de(m) is None]
        experimentar(novos, oficinas, andamento)


def procurar(lista):
    """The mutants that a list names, a line each."""
    pedidos = [linha.strip() for linha in lista.read_text(encoding="utf-8").splitlines() if linha.strip()]
    arquivos = {pedido.split(":")[0] for pedido in pedidos}
    conhecidos = {str(m): m for a in arquivos if (RAIZ / a).is_file() for m in mutantes_de(a)}
    for pedido in pedidos:
        if pedido not in conhecidos:
            print(f"não há mais: {pedido}")
    return [conhecidos[pedido] for pedido in pedidos if pedido in conhecidos]


def relatar(mutantes, andamento):
    registros = [(m, andamento.de(m)) for m in mutantes]
    contados = [(m, r) for m, r in registros if conta(r)]
    sobreviventes = [m for m, r in contados if r["resultado"] == "sobreviveu"]
    SOBREVIVENTES.write_text("".join(f"{m}\n" for m in sobreviventes), encoding="utf-8")
    for m in sobreviventes:
        print(m)
    if not contados:
        sair("nenhum mutante")
    por_especie = Counter(m.especie for m, _ in contados)
    vivos = Counter(m.especie for m in sobreviventes)
    for especie, quantos in sorted(por_especie.items()):
        print(f"  {especie}: {quantos - vivos[especie]} de {quantos}")
    outros = Counter(r["resultado"] for _, r in registros if r and not conta(r))
    print(f"Deixados: {outros['não compila']} que não compilam, {outros['igual']} com o mesmo código de máquina")
    tempo = sum(r["segundos"] for _, r in registros if r) / len(contados)
    print(f"Tempo de processador por mutante: {tempo:.1f} s")
    parte = 100 * (len(contados) - len(sobreviventes)) / len(contados)
    print(f"Mutantes: {len(contados)}, apanhados: {len(contados) - len(sobreviventes)} ({parte:.1f} %), "
          f"sobreviventes: {len(sobreviventes)} ({SOBREVIVENTES.relative_to(RAIZ)})")
    return parte


def main():
    opcoes = argparse.ArgumentParser(description="Planta defeitos no núcleo e diz quais deles os testes não apanham.")
    opcoes.add_argument("--quantos", type=int, default=500, help="mutantes a experimentar (500)")
    opcoes.add_argument("--semente", type=int, default=1, help="do sorteio (1)")
    opcoes.add_argument("--oficinas", type=int, default=2, help="quantos ao mesmo tempo (2)")
    opcoes.add_argument("--so", default="", metavar="EXPRESSÃO", help="só os arquivos cujo caminho a contém")
    opcoes.add_argument("--minimo", type=float, default=90, help="parte a apanhar, em %% (90)")
    opcoes.add_argument("--sobreviventes", type=Path, metavar="LISTA", help="experimenta de novo os que a lista nomeia")
    opcoes.add_argument("--recomecar", action="store_true", help="esquece o que já foi experimentado")
    pedido = opcoes.parse_args()

    PASTA.mkdir(parents=True, exist_ok=True)
    if pedido.recomecar:
        ANDAMENTO.unlink(missing_ok=True)
    inicio = time.time()
    construir()
    construcao, passos, andamento = Construcao(), Passos(), Andamento()
    oficinas = [Oficina(n + 1, construcao, passos) for n in range(pedido.oficinas)]
    passos.medir(oficinas[0])
    print(f"Preparado em {time.time() - inicio:.0f} s", flush=True)
    if pedido.sobreviventes:
        mutantes = procurar(pedido.sobreviventes)
        experimentar(mutantes, oficinas, andamento)
    else:
        mutantes = escolher_e_experimentar(pedido.quantos, pedido.semente, pedido.so, construcao, oficinas, andamento)
    parte = relatar(mutantes, andamento)
    sys.exit(parte < pedido.minimo)


if __name__ == "__main__":
    main()
