// ln(1 + x), both precisions.
//
// w is the sum 1 + x, and l = 1 + x - w what it lacks. Default: w is truncated unless x is tiny, so that the product of
// its mantissa g and n, an integer near 1 / g, is exact; ln(1 + x) is the sum of the biased exponent times ln 2, -ln n
// from a table that also takes off the bias, and a short polynomial in z = (w + l) n 2^j - 1, where 2^j scales w to g.
// The native form: the native logarithm of w, with l added to its residual. The result takes the sign of x, for -0.
//
// Largest errors found, in ulp:
//   log1p: default 0.744526 (0.8 on any processor); _native 2.0947e6 (5.5e6 on any processor)
//   log1pf: default 1.00001; _native 1567.74
#include "log/logarithm_double.h"
#include "log/logarithm_rare.h"
#include "log/logarithm_single.h"

namespace lanemath {
namespace {

template <class T>
struct log1p_rows {
  using pattern = int_of_size<sizeof(T)>;
  T TINY;         // below it w keeps all its bits,
  pattern MASKH;  // above it only these upper ones
  int SMALL;      // exponent of the mantissa g
  pattern EXPC;   // sum of the exponent fields of w and of the scale that turns it into g
  T NEG1, BIG;    // arguments outside of [NEG1, BIG] are rare
  T LN2H, LN2L;   // ln 2, high and low part
};
constexpr log1p_rows<float> log1pf_table{
    .TINY = 0x1p-12f,
    .MASKH = std::int32_t(0xFFFFFF00),
    .SMALL = -8,
    .EXPC = 0x7B000000,
    .NEG1 = 0xBF7FFFFF_f32,
    .BIG = 0x1p118f,
    .LN2H = 0x3F317200_f32,
    .LN2L = 0x35BFBE00_f32,
};
constexpr log1p_rows<double> log1p_table{
    .TINY = 0x1p-31,
    .MASKH = std::int64_t(0xFFFFFFFFFFFFFC00),
    .SMALL = -10,
    .EXPC = 0x7F40000000000000,
    .NEG1 = 0xBFEFFFFFFFFFFFFF_f64,
    .BIG = 0x7F3FFFFFFFFFF000_f64,
    .LN2H = 0x3FE62E42FEFA0000_f64,
    .LN2L = 0x3D7CF79ABC9E0000_f64,
};
constexpr float C3 = 0x3EAAAB39_f32, C2 = 0xBF000036_f32;

template <class T>
constexpr auto& rows_of() {
  if constexpr (sizeof(T) == 4)
    return log1pf_table;
  else
    return log1p_table;
}

// w = g / scale, with n an integer near 1 / g.
template <class V>
struct scaled_sum {
  using T = typename V::value_type;
  using pattern = int_of_size<sizeof(T)>;
  lanes<float, V::width> near;
  V g, n, f;  // f is n times the scale

  LANEMATH_INLINE explicit scaled_sum(V w) {
    constexpr auto& c = rows_of<T>();
    g = with_exponent(w, c.SMALL);
    near = integer_near_reciprocal(g);
    if constexpr (sizeof(T) == 4)
      n = near;
    else
      n = convert<double>(near);
    f = n * from_bits(c.EXPC - (bits(w) & pattern(format<T>::infinity)));
  }
};

template <class T, auto Routine>
struct log1p_guards {
  using signature = T(T);
  static constexpr int groups_at_once = most_groups;
  static constexpr auto rare = Routine;
  template <class V>
  static auto rare_test(V x) {
    constexpr auto& c = rows_of<T>();
    return ~((x >= c.NEG1) & (x <= c.BIG));
  }
};

template <class T, auto Routine>
struct log1p_form : log1p_guards<T, Routine> {
  template <class V>
  static V kernel(V x) {
    constexpr auto& c = rows_of<T>();
    const one_plus<V> sum(x);
    const V w = from_bits(bits(sum.w()) & ((magnitude(x) < c.TINY) | c.MASKH));
    const V l = sum.lost_by(w);
    const scaled_sum<V> a(w);
    const V t1 = a.g * a.n - sum.one;
    const V t2 = l * a.f;
    const V z = t1 + t2;
    const V d = t2 - (z - t1);
    const V e = convert<T>(top_word(w) >> format<T>::top_shift);
    const auto [hi, lo] = minus_ln_of(a.near);
    const V H = e * c.LN2H + hi;
    const V L = e * c.LN2L + lo;
    const V s = z + H;
    const V r = z - (s - H);
    const V y = z * z;
    if constexpr (sizeof(T) == 4) {
      const V q = (C3 * z + C2) * y + d;
      return with_bits(((L + r) + q) + s, sign_of(x));
    } else {
      constexpr auto& p = log_table;
      const V q = ((p.P5 * z + p.P4) * y + (p.P3 * z + p.P2)) * y + (L + d);
      return with_bits((r + q) + s, sign_of(x));
    }
  }

 private:
  LANEMATH_INLINE static auto minus_ln_of(auto n) {
    if constexpr (sizeof(T) == 4)
      return look_up(log1pf_of_integers, (bits(n) >> 16) - 0x4300);  // 128
    else
      return look_up(log1p_of_integers, index_of_integer(n));
  }
};
using log1pf_standard = log1p_form<float, log1pf_rare>;
using log1p_standard = log1p_form<double, log1p_rare>;

struct log1pf_native {
  using signature = float(float);
  static constexpr auto rare = log1pf_rare;
  // Marks lanes whose sum is not a positive normal number or is above 2^127.
  static auto rare_test(auto x) { return outside(bits(x + 1.0f), 0x00800000, 0x7EFFFFFF); }

  template <class V>
  static V kernel(V x) {
    const one_plus<V> sum(x);
    const V w = sum.w();
    const V l = sum.lost_by(w);
    const centred_mantissa<V> a(w);
    const V c = from_bits(0x3F800000 - (a.k << 23));  // 2^-k
    const V y = ln_of_one_plus(a.r + l * c, native_ln_polynomial);
    return with_bits(convert<float>(a.k) * LN2_F32 + y, sign_of(x));
  }
};

struct log1p_native : log1p_guards<double, log1p_rare> {
  template <class V>
  static V kernel(V x) {
    const one_plus<V> sum(x);
    const V w = sum.w();
    const V l = sum.lost_by(w);
    const scaled_sum<V> a(w);
    const V z = (a.g * a.n - 1.0) + l * a.f;
    const V y = z + (log_table.P3 * z + log_table.P2) * (z * z);
    return with_bits(with_exponent_term<log_table, ln_of_integers>(y, exponent_of_positive(w), a.near), sign_of(x));
  }
};

}  // namespace

LANEMATH_EXPORT(log1pf, log1pf_standard)
LANEMATH_EXPORT(log1pf, log1pf_native, _native)
LANEMATH_EXPORT(log1p, log1p_standard)
LANEMATH_EXPORT(log1p, log1p_native, _native)

}  // namespace lanemath
