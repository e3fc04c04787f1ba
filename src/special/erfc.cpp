// The complementary error function, 1 - erf(x).
//
// Value and slope at the nearest point m of a grid and an expansion in d = |x| - m, as for erf. The table is scaled by
// a power of two that keeps the far right tail normal, so that a denormal result is rounded only by the last
// multiplication. Left of 0 the result is 2 - erfc(|x|): one more summand and the sign of the multiplier. The native
// form: a grid of half as many points and a shorter expansion.
//
// Rare lanes: arguments whose result rounds to zero, and NaNs.
//
// Largest errors found, in ulp:
//   erfc: default 2.12615; _native 6.77614e6
//   erfcf: default 1.76298; _native 404.452
#include "numeric/exceptional.h"
#include "numeric/polynomial.h"
#include "special/erf_grid.h"

namespace lanemath::special {
namespace {

// From here on the result is rare: less than half of the smallest denormal, except for the first float.
constexpr float erfcf_bound = 0x4120DDFB_f32;
constexpr double erfc_bound = 0x403B39DC41E48BFD_f64;

// Constants that follow from the table's scale, 2^48 or 2^128.
template <class T>
struct erfc_scale;
template <>
struct erfc_scale<float> {
  static constexpr float up = 0x1p48f, down = 0x1p-48f;
};
template <>
struct erfc_scale<double> {
  static constexpr double up = 0x1p128, down = 0x1p-128;
};

// Reduces x to a grid whose last point is `cap`, and assembles the result.
template <class V>
struct erfc_parts {
  using T = typename V::value_type;
  using scale = erfc_scale<T>;

  V k;  // 0 or minus twice the scale
  V f;  // the inverse of the scale, with the sign of x
  grid_point<V> at;
  V d, w, z;

  template <std::size_t Size>
  LANEMATH_INLINE erfc_parts(V x, const two_part<T> (&grid)[Size], T cap, T shifter) {
    const V b = minimum(magnitude(x), cap);
    at = nearest_point(grid, shifter, b);
    const auto g = sign_of(x);
    k = with_bits(V(scale::up), g) - scale::up;
    f = with_bits(V(scale::down), g);
    d = maximum(b, scale::down) - at.m;
    w = at.m * d;
    z = d * d;
  }
  // `drop` is the decrease of the value from the grid point on.
  LANEMATH_INLINE V result(V drop) const { return ((at.E - drop) + k) * f; }
};

template <class T>
LANEMATH_RARE erfc_rare(const T* px, T* py) {
  const T x = *px;
  if (!(x < std::numeric_limits<T>::infinity())) {
    *py = x != x ? x * x : zero_v<T>;
    return status::ordinary;
  }
  if (sizeof(T) == 4 && double(x) < 0x40241BBF700DC3FB_f64) {  // a single float
    *py = std::numeric_limits<T>::denorm_min();
    return status::ordinary;
  }
  *py = underflowed<T>();
  return status::underflow;
}

struct erfcf_guard {
  using signature = float(float);
  static constexpr auto rare = erfc_rare<float>;
  static auto rare_test(auto x) { return ~(x < erfcf_bound); }
};
struct erfc_guard {
  using signature = double(double);
  static constexpr auto rare = erfc_rare<double>;
  static auto rare_test(auto x) { return ~(x < erfc_bound); }
};

struct erfcf_standard : erfcf_guard {
  template <class V>
  static V kernel(V x) {
    const erfc_parts<V> part(x, erfcf_grid, 10.0625f, 0x1p17f);
    const V w = part.w;
    const V p = ((0x3E08A7CA_f32 * w + 0xBEAACF22_f32) * w + 0x3F2AAAA6_f32) * w + 0xBF7FFFFC_f32;
    const V q = 0x3F005B36_f32 * w + 0xBEAB4EDB_f32;
    const V u = (w * p + q * part.z) * part.at.D;
    const V v = part.at.D + u;
    return part.result(part.d * v);
  }
};

struct erfcf_native : erfcf_guard {
  template <class V>
  static V kernel(V x) {
    const erfc_parts<V> part(x, erfcf_native_grid, 10.0625f, 0x1p18f);
    const V w = part.w;
    const V p = (0xBEAB6147_f32 * w + 0x3F2B4F03_f32) * w + 0xBF7FFF8B_f32;
    const V u = (w * p) * part.at.D;
    const V v = part.at.D + u;
    return part.result(part.d * v);
  }
};

struct erfc_standard : erfc_guard {
  template <class V>
  static V kernel(V x) {
    const erfc_parts<V> part(x, erfc_grid, 27.2421875, 0x1p45);
    const V w = part.w, z = part.z;
    const V P =
        horner(w, {0xBF2282C89A04C65F_f64, 0x3F472360BAC04E70_f64, 0xBF6A019F4F234617_f64, 0x3F8A019F5AEED25F_f64,
                   0xBFA6C16C16D06420_f64, 0x3FC11111111AB082_f64, 0xBFD555555555548A_f64, 0x3FE55555555554CF_f64});
    const V Q = horner(w, {0xBF8441DF86900A46_f64, 0x3FA117ABF1FEA28C_f64, 0xBFB8618412BC79EC_f64,
                           0x3FCC71C4B73B20B6_f64, 0xBFD9999999F3D838_f64, 0x3FE0000000379730_f64});
    const V R =
        horner(w, {0xBFB56433674BA5C2_f64, 0x3FC256E8E6045CDF_f64, 0xBFC5554E249FF4A7_f64, 0x3FB9998F9D0729DA_f64}) *
            z +
        0xBFD5555555554ADD_f64;
    const V u = z * (Q * w + R) - w;
    const V p = P * (w * w) + u;
    const V v = part.d * part.at.D;
    return part.result(v + p * v);
  }
};

struct erfc_native : erfc_guard {
  template <class V>
  static V kernel(V x) {
    const erfc_parts<V> part(x, erfc_native_grid, 27.234375, 0x1p46);
    const V w = part.w, z = part.z;
    const V P = horner(w, {0xBF6A1FDD30652EA1_f64, 0x3F8A1F05F5094FB6_f64, 0xBFA6C15C3DA087D4_f64,
                           0x3FC111066671A484_f64, 0xBFD555555ADC4EA0_f64, 0x3FE555555933BC54_f64});
    const V Q =
        horner(w, {0x3FCCBC5887DF9127_f64, 0xBFD9E0A0FBE743D2_f64, 0x3FDFFF6F976A22C5_f64, 0xBFD554EE2F28F34D_f64});
    const V p = P * (w * w) + (w * 0xBFEFFFFFFFFEB794_f64 + Q * z);
    const V v = part.d * part.at.D;
    return part.result(v + p * v);
  }
};

}  // namespace

LANEMATH_EXPORT(erfcf, erfcf_standard)
LANEMATH_EXPORT(erfcf, erfcf_native, _native)
LANEMATH_EXPORT(erfc, erfc_standard)
LANEMATH_EXPORT(erfc, erfc_native, _native)

}  // namespace lanemath::special
