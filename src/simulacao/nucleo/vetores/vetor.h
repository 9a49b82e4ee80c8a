#pragma once

#include <immintrin.h>

#include <cstddef>

/// Vectors of doubles with one face for the three widths of x86-64: `VARENTA_BITS` says how many bits this
/// file is compiled for (128: SSE2; 256: AVX2 and FMA; 512: AVX-512F). Every operation is that of doubles,
/// lane by lane, with the same rounding.
///
/// All of it has internal linkage, so that one source can be compiled for each width into one program without
/// the linker ever taking one width's copy for another's.
namespace varenta {
namespace {

// The instructions. `Registro` is the register, `Inteiros` a whole number and `Marcas` a truth value for each
// of its lanes. `deTabela` reads the doubles in these places of a table of 24.
#if VARENTA_BITS == 512
using Registro = __m512d;
using Inteiros = __m256i;
using Marcas = __mmask8;
inline Registro repetir(double a) { return _mm512_set1_pd(a); }
inline Registro ler(const double* de) { return _mm512_loadu_pd(de); }
inline void gravar(double* em, Registro a) { _mm512_storeu_pd(em, a); }
inline Registro raiz(Registro a) { return _mm512_maskz_sqrt_pd(0xff, a); }
inline Registro módulo(Registro a) { return _mm512_abs_pd(a); }
inline Inteiros truncar(Registro a) { return _mm512_maskz_cvttpd_epi32(0xff, a); }
inline Registro deTabela(const double* tabela, Inteiros k) {
    const __m512i lugar = _mm512_maskz_cvtepi32_epi64(0xff, k);
    const Registro primeiros = _mm512_permutex2var_pd(ler(tabela), lugar, ler(tabela + 8));
    const Registro últimos = _mm512_maskz_permutexvar_pd(0xff, lugar, ler(tabela + 16));
    return _mm512_mask_blend_pd(_mm512_cmpge_epi64_mask(lugar, _mm512_set1_epi64(16)), primeiros, últimos);
}
inline Registro vezesMais(Registro a, Registro b, Registro c) { return _mm512_fmadd_pd(a, b, c); }
inline Marcas menor(Registro a, Registro b) { return _mm512_cmp_pd_mask(a, b, _CMP_LT_OQ); }
inline Marcas menorOuIgual(Registro a, Registro b) { return _mm512_cmp_pd_mask(a, b, _CMP_LE_OQ); }
inline Marcas igual(Registro a, Registro b) { return _mm512_cmp_pd_mask(a, b, _CMP_EQ_OQ); }
inline Marcas e(Marcas a, Marcas b) { return a & b; }
inline Marcas ou(Marcas a, Marcas b) { return a | b; }
inline Marcas ouUm(Marcas a, Marcas b) { return a ^ b; }
inline Marcas não(Marcas a) { return static_cast<Marcas>(~a); }
inline unsigned emBits(Marcas a) { return a; }
inline unsigned contar(Marcas a) { return static_cast<unsigned>(__builtin_popcount(a)); }
inline Registro escolher(Marcas m, Registro sim, Registro não) { return _mm512_mask_blend_pd(m, não, sim); }
#elif VARENTA_BITS == 256
using Registro = __m256d;
using Inteiros = __m128i;
using Marcas = __m256d;
inline Registro repetir(double a) { return _mm256_set1_pd(a); }
inline Registro ler(const double* de) { return _mm256_loadu_pd(de); }
inline void gravar(double* em, Registro a) { _mm256_storeu_pd(em, a); }
inline Registro raiz(Registro a) { return _mm256_sqrt_pd(a); }
inline Registro módulo(Registro a) { return _mm256_andnot_pd(_mm256_set1_pd(-0.0), a); }
inline Inteiros truncar(Registro a) { return _mm256_cvttpd_epi32(a); }
inline Registro deTabela(const double* tabela, Inteiros k) {
    const Registro zero = _mm256_setzero_pd();
    return _mm256_mask_i32gather_pd(zero, tabela, k, _mm256_cmp_pd(zero, zero, _CMP_EQ_OQ), 8);
}
inline Registro vezesMais(Registro a, Registro b, Registro c) { return _mm256_fmadd_pd(a, b, c); }
inline Marcas menor(Registro a, Registro b) { return _mm256_cmp_pd(a, b, _CMP_LT_OQ); }
inline Marcas menorOuIgual(Registro a, Registro b) { return _mm256_cmp_pd(a, b, _CMP_LE_OQ); }
inline Marcas igual(Registro a, Registro b) { return _mm256_cmp_pd(a, b, _CMP_EQ_OQ); }
inline Marcas e(Marcas a, Marcas b) { return _mm256_and_pd(a, b); }
inline Marcas ou(Marcas a, Marcas b) { return _mm256_or_pd(a, b); }
inline Marcas ouUm(Marcas a, Marcas b) { return _mm256_xor_pd(a, b); }
inline Marcas não(Marcas a) { return _mm256_xor_pd(a, _mm256_cmp_pd(a, a, _CMP_TRUE_UQ)); }
inline unsigned emBits(Marcas a) { return static_cast<unsigned>(_mm256_movemask_pd(a)); }
inline unsigned contar(Marcas a) { return static_cast<unsigned>(__builtin_popcount(emBits(a))); }
inline Registro escolher(Marcas m, Registro sim, Registro não) { return _mm256_blendv_pd(não, sim, m); }
#else
using Registro = __m128d;
using Inteiros = __m128i;
using Marcas = __m128d;
inline Registro repetir(double a) { return _mm_set1_pd(a); }
inline Registro ler(const double* de) { return _mm_loadu_pd(de); }
inline void gravar(double* em, Registro a) { _mm_storeu_pd(em, a); }
inline Registro raiz(Registro a) { return _mm_sqrt_pd(a); }
inline Registro módulo(Registro a) { return _mm_andnot_pd(_mm_set1_pd(-0.0), a); }
inline Inteiros truncar(Registro a) { return _mm_cvttpd_epi32(a); }
inline Registro deTabela(const double* tabela, Inteiros k) {
    return _mm_setr_pd(tabela[_mm_cvtsi128_si32(k)], tabela[_mm_cvtsi128_si32(_mm_srli_si128(k, 4))]);
}
inline Marcas menor(Registro a, Registro b) { return _mm_cmplt_pd(a, b); }
inline Marcas menorOuIgual(Registro a, Registro b) { return _mm_cmple_pd(a, b); }
inline Marcas igual(Registro a, Registro b) { return _mm_cmpeq_pd(a, b); }
inline Marcas e(Marcas a, Marcas b) { return _mm_and_pd(a, b); }
inline Marcas ou(Marcas a, Marcas b) { return _mm_or_pd(a, b); }
inline Marcas ouUm(Marcas a, Marcas b) { return _mm_xor_pd(a, b); }
inline Marcas não(Marcas a) { return _mm_xor_pd(a, _mm_castsi128_pd(_mm_set1_epi32(-1))); }
inline unsigned emBits(Marcas a) { return static_cast<unsigned>(_mm_movemask_pd(a)); }
inline unsigned contar(Marcas a) { return (emBits(a) & 1) + (emBits(a) >> 1); }
inline Registro escolher(Marcas m, Registro sim, Registro não) {
    return _mm_or_pd(_mm_and_pd(m, sim), _mm_andnot_pd(m, não));
}
/// Without the lower 26 bits of the significand.
inline Registro bitsAltos(Registro a) { return _mm_and_pd(a, _mm_castsi128_pd(_mm_set1_epi64x(-(1 << 26)))); }
/// a where b is the same, NaN elsewhere.
inline Registro iguaisOuNaN(Registro a, Registro b) { return _mm_or_pd(a, _mm_cmpneq_pd(a, b)); }
#endif

inline constexpr std::size_t faixas = sizeof(Registro) / sizeof(double);

/// A truth value for each lane.
struct Máscara {
    Marcas m;

    friend Máscara operator&(Máscara a, Máscara b) { return {e(a.m, b.m)}; }
    friend Máscara operator|(Máscara a, Máscara b) { return {ou(a.m, b.m)}; }
    friend Máscara operator^(Máscara a, Máscara b) { return {ouUm(a.m, b.m)}; }
    friend Máscara operator!(Máscara a) { return {não(a.m)}; }
    /// The first lane in the lowest bit.
    unsigned bits() const { return emBits(m); }
    bool alguma() const { return bits() != 0; }
    std::size_t quantas() const { return contar(m); }
    bool todas() const { return bits() == (1u << faixas) - 1; }
};

/// A double in each lane. A plain double stands for itself in all of them.
struct Vetor {
    Registro v;

    Vetor() = default;
    Vetor(Registro registro) : v{registro} {}
    Vetor(double a) : v{repetir(a)} {}

    static Vetor lido(const double* de) { return ler(de); }
    void gravar(double* em) const { varenta::gravar(em, v); }

    friend Vetor operator-(Vetor a) { return -a.v; }
    friend Vetor operator+(Vetor a, Vetor b) { return a.v + b.v; }
    friend Vetor operator-(Vetor a, Vetor b) { return a.v - b.v; }
    friend Vetor operator*(Vetor a, Vetor b) { return a.v * b.v; }
    friend Vetor operator/(Vetor a, Vetor b) { return a.v / b.v; }
    friend Vetor sqrt(Vetor a) { return raiz(a.v); }
    friend Vetor fabs(Vetor a) { return módulo(a.v); }
    friend Máscara operator<(Vetor a, Vetor b) { return {menor(a.v, b.v)}; }
    friend Máscara operator<=(Vetor a, Vetor b) { return {menorOuIgual(a.v, b.v)}; }
    friend Máscara operator>(Vetor a, Vetor b) { return b < a; }
    friend Máscara operator>=(Vetor a, Vetor b) { return b <= a; }
    friend Máscara operator==(Vetor a, Vetor b) { return {igual(a.v, b.v)}; }
};

/// `sim` in the lanes where `m` is true, `não` in the others.
inline Vetor onde(Máscara m, Vetor sim, Vetor não) { return escolher(m.m, sim.v, não.v); }

/// The whole part of each lane.
inline Inteiros truncar(Vetor a) { return truncar(a.v); }

/// False in all lanes.
inline Máscara nenhuma() { return Vetor{0.0} < Vetor{0.0}; }

/// Neither infinite nor NaN.
inline Máscara finitas(Vetor a) { return a - a == Vetor{0.0}; }

#if VARENTA_BITS == 128
/// A divisor b that is the same for a whole batch. A division is what takes longest of all, but without fused
/// operations its remainder takes pains. With b = b' + b", both of 26 bits, and p- and p+ a little below and
/// above 1 / b, by 2^-49 of it:
///
///     q = the upper 27 bits of a p+    s = (a - q b') - q b"    a / b between q + s p- and q + s p+
///
/// For q b' and q b" have 53 bits at the most, so that they and the first difference are exact; s is off by
/// half a unit in its last place, which with the roundings of p and s p makes less than 2^-51 of s / b. Where
/// both bounds round to the same double so does the quotient, and that double is the division instruction's.
/// Where they don't, once in some millions, the result is NaN, for which see `duvidoso`.
///
/// Magnitudes within 2^-900 and 2^900 for a, b, 1 / b and a / b are safe; a must not be 0.
struct DivisorConhecido : Vetor {
    Vetor alto, baixo, abaixo, acima;

    explicit DivisorConhecido(Vetor b) : Vetor{b} {
        const Vetor t = b * Vetor{0x8000001p0}, p = Vetor{1.0} / b;
        alto = t - (t - b);
        baixo = b - alto;
        abaixo = p * Vetor{1 - 0x1p-49};
        acima = p * Vetor{1 + 0x1p-49};
    }

    friend Vetor operator/(Vetor a, const DivisorConhecido& b) {
        const Vetor q = bitsAltos((a * b.acima).v);
        const Vetor s = (a - q * b.alto) - q * b.baixo;
        return iguaisOuNaN((q + s * b.abaixo).v, (q + s * b.acima).v);
    }
};

/// A divisor of several numbers that lasts no longer than these.
using DivisorRepetido = Vetor;

/// Whether what was made from quotients by known divisors is to be made again by true division.
inline bool duvidoso(Vetor a) { return !finitas(a).todas(); }

/// Here and now: see below.
inline void nãoAdiar(Vetor) {}
#else
/// a b + c, rounded once.
inline Vetor vezesMais(Vetor a, Vetor b, Vetor c) { return vezesMais(a.v, b.v, c.v); }

/// A divisor b of several numbers: one true division, for its reciprocal, and for each number a
///
///     p = RN(1 / b)    q = RN(a p)    s = RN(a - q b)    a / b = RN(q + s p)
///
/// with a single rounding in each. The result is the correctly rounded quotient, that of the division
/// instruction bit for bit, if a isn't 0 and nothing leaves the range of normal numbers on the way. For then
/// b and a can be scaled to 1 <= b < 2 and 1 <= a < 2 (b of 1 is trivial). With u = 2^-53:
///
/// - |p - 1/b| <= u/2, so that q is off a / b by less than one unit in the last place where a >= b. Where
///   a < b that unit is u, and q is off by less than (a + 1) u / 2 < 1.5 u.
/// - The final sum is off a / b by |s| |p - 1/b|, plus |p| times what the rounding of s loses. That can only
///   change the rounding if a middle M of two neighbouring doubles lies between both; no quotient lies on
///   one.
/// - If M is the middle next to q, half a unit off, then s is exact. Let b = B 2^-52 and s = m 2^-52 units:
///   a / b is beyond M if 2 m > B, so by one in whole numbers at least, and s p = (s / b)(1 + d) with
///   |d| <= b u / 2, too little to undo a difference of one in B, as B (B + 1) < 2^106.
/// - If M is a unit and a half off, a and b must be the two doubles next to 2 and below it, a first. These
///   give q = 1, s = -2^-52 and the right quotient.
///
/// Which range is safe the caller must know: magnitudes within 2^-900 and 2^900 for a, b, 1 / b and a / b
/// are.
struct DivisorConhecido : Vetor {
    Vetor recíproco;

    explicit DivisorConhecido(Vetor b) : Vetor{b}, recíproco{Vetor{1.0} / b} {}

    friend Vetor operator/(Vetor a, const DivisorConhecido& b) {
        const Vetor q = a * b.recíproco;
        return vezesMais(vezesMais(-q, b, a), b.recíproco, q);
    }
};
using DivisorRepetido = DivisorConhecido;

/// No quotient is ever in doubt.
inline bool duvidoso(Vetor) { return false; }

/// Has the divisor made here and now. Clang puts off what isn't needed yet, even if the processor has
/// nothing else to do meanwhile.
inline void nãoAdiar(const DivisorRepetido& b) {
#if defined(__clang__)
    asm volatile("" : : "v"(b.recíproco.v) : "memory");
#else
    static_cast<void>(b);
#endif
}
#endif

} // namespace
} // namespace varenta
