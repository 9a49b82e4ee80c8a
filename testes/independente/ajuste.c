/* The search for the six wind parameters, computed a second time and shared with nothing in src/.
 *
 * Start, simplex, descent, Newton, and both objectives: the collectors of a grid, and the positions
 * across the lane of a travelling sprinkler. What the screens hold is read and written by ajuste.py,
 * which compiles this file and talks to it by standard input and output, numbers in hexadecimal.
 *
 * The search is chaotic: products, quotients and sums run left to right as written, a square is x * x,
 * and nothing may be contracted (-ffp-contract=off).
 *
 * Symbols. R reach (m); W wind speed (m/s); p the parameters A to F times R; g turn angle (degrees);
 * e spacing (m); v speed of the cart (m/h). Intensities are mm/h, depths mm. Arrays that carry the
 * numbering of the screens leave their element 0 unused.
 */

#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define PI 3.14159265358979
#define PARAMETROS 6
#define VERTICES 7
#define VALOR 7 /* the column of a vertex that holds its sum */

static const char ESTOURO[] = "Estouro";
static const char DIVISAO[] = "Divisão por zero";

typedef struct {
  double W;
  int posicoes;             /* collectors of a grid, or positions across the lane */
  int passos;               /* sprinkler positions that pass by each; 0 for a grid */
  double cosseno, seno;     /* of the wind's rotation */
  double g, e, v;           /* travelling tests only */
  double *observado;        /* rescaled to the flow: mm/h, or mm */
  double *x, *y;            /* wind-frame points, passos (or 1) for each position */
} Ensaio;

static double R, anguloJato;
static double perfil[22];
static int nEnsaios;
static Ensaio *ensaios;
static int ordemDasSomas; /* of the factorisation, see PRODUTOS */
static double melhorDesvio = 100000;
static long avaliacoes;

/* ---- failures ------------------------------------------------------------------------------- */

static void falhar(const char *nome)
{
  printf("erro %s\n", nome);
  exit(0);
}

static double dividir(double a, double b)
{
  if (b == 0)
    falhar(a == 0 ? ESTOURO : DIVISAO);
  return a / b;
}

static double finito(double valor)
{
  if (!isfinite(valor))
    falhar(ESTOURO);
  return valor;
}

/* ---- wind model ----------------------------------------------------------------------------- */

typedef struct {
  double j11, j12, j21, j22;
} Matriz;

static Matriz matriz(double x, double y, double r, double q, double W, const double *p)
{
  const double B = p[2], C = p[3], D = p[4], E = p[5], F = p[6];
  const double seno = sin(anguloJato), s2 = seno * seno;
  if (x == 0 || y == 0)
    falhar(DIVISAO);
  const double g1 = B / r + 2 * C / R;
  const double g2 = F / (R * R) - D / (r * r);
  const double g3 = D / (r * r) + E / (R * r) + F / (R * R);
  const double g4 = D + E * r / R + F * (r * r) / (R * R);
  Matriz m;
  m.j11 = 1 - (W * x / R) * (g1 + g2 * q * x + g3 * (x * s2 / q) + g4 * (q / x));
  m.j12 = (-y * W / R) * (g1 + g2 * q * x + g3 * (x / q));
  m.j21 = (-W * y * x / R) * (g2 * q + g3 * (s2 / q));
  m.j22 = 1 - (W * y / R) * (g2 * q * y + g3 * (y / q) + g4 * (q / y));
  return m;
}

static double razaoDoAngulo(double x, double y, double r)
{
  const double seno = sin(anguloJato);
  return sqrt(seno * seno * (x * x) + y * y) / r;
}

/* Where the drop that lands at (x0, y0) would land without wind. */
static void pontoSemVento(double x0, double y0, double W, const double *p, double *xs, double *ys)
{
  const double A = p[1], B = p[2], C = p[3], D = p[4], E = p[5], F = p[6];
  double x = x0, y = y0, residuo;
  int passadas = 0;
  do {
    const double r = sqrt(x * x + y * y);
    if (r == 0)
      falhar(DIVISAO);
    const double q = razaoDoAngulo(x, y, r);
    const double T = (A + B * (r / R) + C * ((r / R) * (r / R))) * W;
    const double P = D / (r * R) + E / (R * R) + F * r / (R * R * R);
    const double f1 = -((x - T - P * q * r * x * W) - x0);
    const double f2 = -((y - P * W * q * r * y) - y0);
    const Matriz m = matriz(x, y, r, q, W, p);
    const double det = m.j11 * m.j22 - m.j12 * m.j21;
    if (det == 0)
      falhar(DIVISAO);
    x = x + (f1 * m.j22 - f2 * m.j12) / det;
    y = y + (f2 * m.j11 - f1 * m.j21) / det;
    residuo = fabs(f1) + fabs(f2);
    finito(residuo);
    passadas = passadas + 1;
    if (passadas > 25)
      residuo = 1e-20;
  } while (residuo > 0.01);
  *xs = finito(x);
  *ys = finito(y);
}

/* Intensity (mm/h) at a relative distance; 0 beyond 1. */
static double intensidadeRelativa(double u)
{
  static const double limites[22] = {0,     0.025, 0.075, 0.125, 0.175, 0.225, 0.275, 0.325,
                                     0.375, 0.425, 0.475, 0.525, 0.575, 0.625, 0.675, 0.725,
                                     0.775, 0.825, 0.875, 0.925, 0.975, 1};
  for (int k = 0; k < 21; k++) {
    const int ultimo = k == 20;
    if (u >= limites[k] && (u < limites[k + 1] || (ultimo && u == 1))) {
      const double largura = k == 0 || ultimo ? 0.025 : 0.05;
      return (u - limites[k]) * (perfil[k + 1] - perfil[k]) / largura + perfil[k];
    }
  }
  return 0;
}

/* The same at a ground-frame point of a sprinkler that turns g degrees, dry ahead. */
static double intensidadeSetor(double u, double w, double g)
{
  const double beta = PI * ((360 - g) / 2) / 180;
  double rho = 0;
  if (u < 0)
    rho = sqrt(u * u + w * w);
  if (u > 0) {
    rho = sqrt(u * u + w * w);
    if (fabs(w) / R < sin(beta) && fabs(w) * (1 / tan(beta)) < fabs(u) && fabs(u) < sqrt(R * R - w * w))
      rho = 5 * R;
  }
  return intensidadeRelativa(rho / R) * (360 / g);
}

static double intensidadeEstimada(const Ensaio *t, int ponto, const double *p)
{
  double x, y;
  pontoSemVento(t->x[ponto], t->y[ponto], t->W, p, &x, &y);
  const double r = sqrt(x * x + y * y);
  if (r >= R)
    return 0;
  double i0;
  if (t->passos) {
    const double u = x * t->cosseno + y * t->seno;
    const double w = y * t->cosseno - x * t->seno;
    i0 = intensidadeSetor(u, w, t->g);
  } else {
    i0 = intensidadeRelativa(r / R);
  }
  if (i0 == 0)
    return 0;
  if (r == 0)
    falhar(DIVISAO);
  const Matriz m = matriz(x, y, r, razaoDoAngulo(x, y, r), t->W, p);
  return finito(dividir(i0, m.j11 * m.j22));
}

/* ---- the objective -------------------------------------------------------------------------- */

static double estimado(const Ensaio *t, int posicao, const double *p)
{
  if (!t->passos)
    return intensidadeEstimada(t, posicao, p);
  double total = 0;
  for (int k = 0; k < t->passos; k++)
    total = total + intensidadeEstimada(t, posicao * t->passos + k, p);
  return total * t->e / t->v;
}

/* The sum of squared deviations; m counts those above 0. */
static double somar(const double *p, long *m)
{
  double soma = 0;
  long contados = 0;
  avaliacoes++;
  for (int t = 0; t < nEnsaios; t++) {
    for (int j = 0; j < ensaios[t].posicoes; j++) {
      const double diferenca = ensaios[t].observado[j] - estimado(&ensaios[t], j, p);
      const double quadrado = diferenca * diferenca;
      contados += quadrado > 0;
      soma = soma + quadrado;
    }
  }
  if (m)
    *m = contados;
  return finito(soma);
}

/* ---- progress ------------------------------------------------------------------------------- */

static void mostrarDesvio(double soma, long m)
{
  const double desvio = sqrt(dividir(soma, (double)m));
  if (melhorDesvio > desvio) {
    melhorDesvio = desvio;
    printf("rotulo %a\n", melhorDesvio);
  }
}

static void mostrarBarra(double valor)
{
  printf("barra %a\n", valor);
}

static void contarEtapa(const char *nome, const double *linha)
{
  printf("etapa %s", nome);
  for (int k = 1; k <= VALOR; k++)
    printf(" %a", linha[k]);
  printf(" %ld\n", avaliacoes);
}

/* ---- stage 1: simplex ----------------------------------------------------------------------- */

typedef double Tabela[VERTICES + 1][VALOR + 1];

static const double PARTIDA[VERTICES + 1][PARAMETROS + 1] = {
    {0},
    {0, 0.205, 5.217, -4.763, 3.827, 2.466, -3.674},
    {0, 3, 0, -1.1, 0, 12, -8.8},
    {0, 0.12, 3.5, -2.9, 1.95, 5, -4.25},
    {0, 1.4, -0.4, 0.9, 2.7, 2.5, -2.3},
    {0, 1.1, 2.5, -2.5, -1.7, 16.7, -12.1},
    {0, 1, 0.7, -0.2, 2.8, 2.6, -2.5},
    {0, 0.4, 2.7, -2.6, 3, 1.9, -2.1},
};

/* S into M, ascending; ties are settled by the very sequence of swaps. */
static void ordenar(Tabela S, Tabela M)
{
  for (int a = 1; a <= VERTICES; a++) {
    memcpy(M[a], S[a], sizeof M[a]);
    for (int b = a; b <= VERTICES; b++) {
      if (M[a][VALOR] >= S[b][VALOR]) {
        double troca[VALOR + 1];
        memcpy(troca, M[a], sizeof troca);
        memcpy(M[a], S[b], sizeof troca);
        memcpy(S[b], troca, sizeof troca);
      }
    }
  }
}

static void substituirPior(Tabela M, const double *ponto, double valor)
{
  for (int k = 1; k <= PARAMETROS; k++)
    M[VERTICES][k] = ponto[k];
  M[VERTICES][VALOR] = valor;
}

/* fa * a + fb * b, of which only whole and half factors are asked. */
static void combinar(double fa, const double *a, double fb, const double *b, double *saida)
{
  for (int k = 1; k <= PARAMETROS; k++)
    saida[k] = fa * a[k] + fb * b[k];
}

static void moverPior(Tabela M)
{
  double C[7], Rf[7], Ex[7], T[7];
  for (int k = 1; k <= PARAMETROS; k++) {
    C[k] = 0;
    for (int v = 1; v <= VERTICES; v++)
      C[k] = C[k] + M[v][k];
    C[k] = C[k] / 7;
  }
  combinar(2, C, -1, M[7], Rf);
  const double Fr = somar(Rf, NULL);
  const double F1 = M[1][VALOR], F6 = M[6][VALOR], F7 = M[7][VALOR];
  if (Fr >= F1 && Fr < F6) {
    substituirPior(M, Rf, Fr);
    return;
  }
  if (Fr < F1) {
    combinar(2, Rf, -1, C, Ex);
    const double Fe = somar(Ex, NULL);
    if (Fe < F1)
      substituirPior(M, Ex, Fe);
    else
      substituirPior(M, Rf, Fr);
    return;
  }
  combinar(0.5, Fr < F7 ? Rf : M[7], 0.5, C, T);
  const double Ft = somar(T, NULL);
  if (Ft < F7)
    substituirPior(M, T, Ft);
  else
    substituirPior(M, C, Fr); /* the centre is never evaluated: it carries the reflection's sum */
}

static double simplex(Tabela S)
{
  double progresso = 0;
  for (int v = 1; v <= VERTICES; v++) {
    memcpy(S[v], PARTIDA[v], sizeof PARTIDA[v]);
    S[v][VALOR] = somar(S[v], NULL);
  }
  for (int iteracao = 1; iteracao <= 100; iteracao++) {
    Tabela M;
    long m;
    ordenar(S, M);
    moverPior(M);
    memcpy(S, M, sizeof M);
    const double soma = somar(S[1], &m);
    mostrarDesvio(soma, m);
    progresso = progresso + 0.25;
    mostrarBarra(progresso);
  }
  return progresso;
}

/* ---- stage 2: steepest descent -------------------------------------------------------------- */

static const double H = 0.001;

static double somarDeslocado(const double *p, int k, double dk, int l, double dl)
{
  double q[7];
  memcpy(q, p, sizeof q);
  q[k] = p[k] + dk;
  if (l)
    q[l] = p[l] + dl;
  return somar(q, NULL);
}

static double somarAoLongo(const double *p, double passo, const double *g)
{
  double q[7];
  for (int k = 1; k <= PARAMETROS; k++)
    q[k] = p[k] - passo * g[k];
  return somar(q, NULL);
}

static void guardarSeMelhor(double *melhor, double soma, const double *p, double *linha)
{
  if (*melhor >= soma) {
    *melhor = soma;
    for (int k = 1; k <= PARAMETROS; k++)
      linha[k] = p[k];
  }
}

static void descer(double *linha, double *melhor, double progresso, double tolerancia)
{
  double p[7], g[7];
  memcpy(p, linha, sizeof p);
  for (int conta = 0; conta <= 20; conta++) {
    const double S0 = somar(p, NULL);
    double norma = 0;
    for (int k = 1; k <= PARAMETROS; k++) {
      const double derivada = (somarDeslocado(p, k, H, 0, 0) - somarDeslocado(p, k, -H, 0, 0)) / 0.002;
      g[k] = 2 * S0 * derivada;
      norma = norma + g[k] * g[k];
    }
    norma = finito(sqrt(norma));
    if (norma == 0)
      break;
    for (int k = 1; k <= PARAMETROS; k++)
      g[k] = g[k] / norma;

    double lambda = 1, Sa = somarAoLongo(p, lambda, g);
    int curto = 0;
    while (Sa >= S0 && !curto) {
      lambda = lambda / 2;
      Sa = somarAoLongo(p, lambda, g);
      curto = lambda < tolerancia / 2;
    }
    if (curto)
      break;

    const double mi = lambda / 2, Sb = somarAoLongo(p, mi, g);
    const double c1 = (Sb - S0) / mi;
    const double c2 = (Sa - Sb) / (lambda - mi);
    const double c3 = (c2 - c1) / lambda;
    const double tau = finito(0.5 * (mi - dividir(c1, c3)));
    const double St = somarAoLongo(p, tau, g);
    const double passo = Sa > St ? tau : lambda;
    for (int k = 1; k <= PARAMETROS; k++)
      p[k] = p[k] - passo * g[k];

    long m;
    const double soma = somar(p, &m);
    mostrarDesvio(soma, m);
    if (fabs(St - S0) < tolerancia)
      progresso = 35;
    guardarSeMelhor(melhor, soma, p, linha);
    progresso = progresso + 0.5;
    mostrarBarra(progresso);
  }
  mostrarBarra(35);
}

/* ---- stage 3: Newton ------------------------------------------------------------------------ */

/* How the sums of the factorisation run. In SOMA_ANTES the products L L D, from the left, are added up and
 * their sum leaves the element; the others are there to find the fits in which this shows. */
enum { SOMA_ANTES, PRODUTOS, L_POR_LD, LD_POR_L, SEM_DIVIDIR };

/* a less the products x(k) y(k) z(k), k = 1 to n; z NULL leaves it out. */
static double subtrair(double a, int n, const double *x, const double *y, const double *z)
{
  double soma = 0;
  for (int k = 1; k <= n; k++) {
    double produto = x[k] * y[k];
    if (z)
      produto = ordemDasSomas == L_POR_LD ? x[k] * (y[k] * z[k]) : ordemDasSomas == LD_POR_L ? x[k] * z[k] * y[k] : produto * z[k];
    if (ordemDasSomas == SOMA_ANTES)
      soma = soma + produto;
    else
      a = a - produto;
  }
  return a - soma;
}

/* LDL' of the symmetric matrix in columns 1 to 6, without pivoting; column 7 is the right-hand side. */
static void resolverSimetrico(double a[7][8], double *x)
{
  double L[7][7] = {{0}}, D[7] = {0}, z[7] = {0};
  double U[7][7] = {{0}}; /* L before its division by D */
  for (int j = 1; j <= 6; j++) {
    for (int i = j; i <= 6; i++) {
      U[i][j] = ordemDasSomas == SEM_DIVIDIR ? subtrair(a[i][j], j - 1, L[i], U[j], NULL)
                                             : subtrair(a[i][j], j - 1, L[i], L[j], D);
      if (i == j)
        D[j] = U[j][j];
      else
        L[i][j] = finito(dividir(U[i][j], D[j]));
    }
  }
  for (int i = 1; i <= 6; i++)
    z[i] = subtrair(a[i][7], i - 1, L[i], z, NULL);
  for (int i = 1; i <= 6; i++)
    z[i] = dividir(z[i], D[i]);
  for (int i = 6; i >= 1; i--) {
    double coluna[7] = {0}, depois[7] = {0};
    for (int k = i + 1; k <= 6; k++) {
      coluna[k - i] = L[k][i];
      depois[k - i] = x[k];
    }
    x[i] = finito(subtrair(z[i], 6 - i, coluna, depois, NULL));
  }
}

static void montarSistema(const double *p, double a[7][8])
{
  const double S0 = somar(p, NULL);
  for (int k = 1; k <= 6; k++) {
    const double mais = somarDeslocado(p, k, H, 0, 0), menos = somarDeslocado(p, k, -H, 0, 0);
    a[k][k] = (mais - 2 * S0 + menos) / 1e-6;
    a[k][7] = -((mais - menos) / 0.002);
  }
  for (int k = 1; k <= 6; k++) {
    for (int l = k + 1; l <= 6; l++) {
      const double maisMais = somarDeslocado(p, k, H, l, H), maisMenos = somarDeslocado(p, k, H, l, -H);
      const double menosMais = somarDeslocado(p, k, -H, l, H), menosMenos = somarDeslocado(p, k, -H, l, -H);
      a[k][l] = ((maisMais - maisMenos) - (menosMais - menosMenos)) / 4e-6;
      a[l][k] = a[k][l];
    }
  }
}

static void newton(double *linha, double *melhor)
{
  double p[7], x[7], progresso = 35, fator = 2, Sn;
  int k = 0;
  memcpy(p, linha, sizeof p);
  do {
    double a[7][8] = {{0}};
    long m;
    montarSistema(p, a);
    resolverSimetrico(a, x);
    for (int c = 1; c <= 6; c++)
      p[c] = p[c] + x[c];
    Sn = somar(p, &m);
    guardarSeMelhor(melhor, Sn, p, linha);
    if (Sn > fator * *melhor)
      break;
    fator = fator - 0.1;
    k = k + 1;
    mostrarDesvio(Sn, m);
    progresso = progresso + 2;
    mostrarBarra(progresso);
    if (k >= 10)
      Sn = 1e-20;
  } while (Sn > 1e-15);
  mostrarBarra(56);
}

/* ---- input and output ----------------------------------------------------------------------- */

static double lerNumero(void)
{
  double valor;
  if (scanf("%la", &valor) != 1) {
    fprintf(stderr, "a number is missing\n");
    exit(1);
  }
  return valor;
}

static double *lerNumeros(int quantos)
{
  double *valores = malloc(sizeof *valores * (size_t)quantos);
  for (int k = 0; k < quantos; k++)
    valores[k] = lerNumero();
  return valores;
}

static void lerProblema(void)
{
  R = lerNumero();
  anguloJato = lerNumero();
  for (int k = 0; k < 22; k++)
    perfil[k] = lerNumero();
  nEnsaios = (int)lerNumero();
  ensaios = malloc(sizeof *ensaios * (size_t)nEnsaios);
  for (int t = 0; t < nEnsaios; t++) {
    Ensaio *e = &ensaios[t];
    e->W = lerNumero();
    e->posicoes = (int)lerNumero();
    e->passos = (int)lerNumero();
    e->cosseno = lerNumero();
    e->seno = lerNumero();
    e->g = lerNumero();
    e->e = lerNumero();
    e->v = lerNumero();
    e->observado = lerNumeros(e->posicoes);
    const int pontos = e->posicoes * (e->passos ? e->passos : 1);
    e->x = lerNumeros(pontos);
    e->y = lerNumeros(pontos);
  }
}

static void escrever(const char *nome, const double *valores, int quantos)
{
  printf("%s", nome);
  for (int k = 1; k <= quantos; k++)
    printf(" %a", valores[k]);
  printf("\n");
}

static void ajustar(void)
{
  Tabela S = {{0}};
  ordemDasSomas = (int)lerNumero();
  const double tolerancia = lerNumero();
  lerProblema();
  const double progresso = simplex(S);
  contarEtapa("simplex", S[1]);
  double melhor = S[1][VALOR];
  descer(S[1], &melhor, progresso, tolerancia);
  S[1][VALOR] = melhor;
  contarEtapa("descida", S[1]);
  newton(S[1], &melhor);
  S[1][VALOR] = melhor;
  contarEtapa("newton", S[1]);
  escrever("parametros", S[1], PARAMETROS);
  printf("desvio %a\n", melhorDesvio);
}

static void mostrarSoma(void)
{
  double p[7] = {0};
  long m;
  for (int k = 1; k <= PARAMETROS; k++)
    p[k] = lerNumero();
  lerProblema();
  const double soma = somar(p, &m);
  printf("soma %a %ld\n", soma, m);
}

static void mostrarSolucao(void)
{
  double a[7][8] = {{0}}, x[7] = {0};
  ordemDasSomas = (int)lerNumero();
  for (int i = 1; i <= 6; i++)
    for (int j = 1; j <= 7; j++)
      a[i][j] = lerNumero();
  resolverSimetrico(a, x);
  escrever("solucao", x, 6);
}

static void mostrarOrdem(void)
{
  Tabela S = {{0}}, M = {{0}};
  for (int v = 1; v <= VERTICES; v++)
    for (int k = 1; k <= VALOR; k++)
      S[v][k] = lerNumero();
  ordenar(S, M);
  for (int v = 1; v <= VERTICES; v++)
    escrever("vertice", M[v], VALOR);
}

static void mostrarSetor(void)
{
  R = lerNumero();
  for (int k = 0; k < 22; k++)
    perfil[k] = lerNumero();
  const double g = lerNumero(), u = lerNumero(), w = lerNumero();
  printf("setor %a\n", intensidadeSetor(u, w, g));
}

int main(void)
{
  static const struct {
    const char *nome;
    void (*faz)(void);
  } tarefas[] = {{"ajustar", ajustar}, {"somar", mostrarSoma}, {"resolver", mostrarSolucao},
                 {"ordenar", mostrarOrdem}, {"setor", mostrarSetor}};
  char nome[16];
  if (scanf("%15s", nome) == 1) {
    for (size_t k = 0; k < sizeof tarefas / sizeof *tarefas; k++) {
      if (strcmp(nome, tarefas[k].nome) == 0) {
        tarefas[k].faz();
        return 0;
      }
    }
  }
  fprintf(stderr, "unknown task\n");
  return 1;
}
