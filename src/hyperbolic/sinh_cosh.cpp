// sinh x and cosh x, double precision, by the method in addition_theorems.h. sinh: A = (n / 128) ln 2; the table holds
// 2^(-j/128) / 2 and the difference between 2^(j/128) / 2 and it, so that nothing is lost where A is small. cosh: A =
// (n / 256) ln 2; both powers come from one table, read from its two ends, and sinh r is shorter.
//
// Largest errors found, in ulp:
//   sinh: default, _native 2.11755
//   cosh: default, _native 1.53384
#include "hyperbolic/addition_theorems.h"
#include "tables/hyperbolic.h"

namespace lanemath {
namespace {

constexpr ln2_rows<double> sinh_reduction{.K = 0x3FF71547652B82FE_f64,
                                          .S = 0x1.8p45,  // leaves 7 fraction bits
                                          .L1 = 0x3FE62E42FEFA0000_f64,
                                          .L2 = 0x3D7CF79ABC9E3B3A_f64};
constexpr ln2_rows<double> cosh_reduction{.K = 0x3FF71547652B82FE_f64,
                                          .S = 0x1.8p44,                 // leaves 8 fraction bits
                                          .L1 = 0x3FE62E42FEFC0000_f64,  // above ln 2
                                          .L2 = 0xBDAC610CA86C3899_f64};

constexpr double SINH3 = 0x3FC55555555554AD_f64, SINH5 = 0x3F8111115712F425_f64;  // sinh r
constexpr double SHORT_SINH3 = 0x3FC5555570813E14_f64;
constexpr double COSH2 = 0x3FDFFFFFFFFFFDBD_f64, COSH4 = 0x3FA55555CF16D299_f64;  // cosh r - 1

LANEMATH_RARE sinh_rare(const double* x, double* y) { return sinh_rare_lane(x, y); }
LANEMATH_RARE cosh_rare(const double* x, double* y) { return cosh_rare_lane(x, y); }

constexpr std::int32_t BOUND = 0x40861D99;  // 707.7

struct sinh_standard : rare_above<double(double), sinh_rare, BOUND> {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    const ln2_multiple<V> a(magnitude(x), sinh_reduction);
    const auto e = (bits(a.shifted) & ~std::int64_t(127)) << 45;
    const auto [falling, difference] = look_up(sinh_128, lower(a.shifted) & 127);
    const V up = from_bits(bits(falling) + e), down = from_bits(bits(falling) - e);
    const V more = from_bits(bits(difference) + e);  // e^A / 2 = up + more
    const V sinh_r = a.r + (SINH5 * a.r2 + SINH3) * a.r2 * a.r;
    const V cosh_r_less_1 = (COSH4 * a.r2 + COSH2) * a.r2;
    return with_bits(added((up - down) + more, more + (up + down), sinh_r, cosh_r_less_1), sign_of(x));
  }
};

struct cosh_standard : rare_above<double(double), cosh_rare, BOUND> {
  template <class V>
  LANEMATH_INLINE static V kernel(V x) {
    constexpr std::int64_t exponents = 0x7FF0000000000000, exponent_unit = 0x0010000000000000;
    const ln2_multiple<V> a(magnitude(x), cosh_reduction);
    const auto e = (bits(a.shifted) << 44) & exponents;
    const auto j = lower(a.shifted) & 255;
    const V up = from_bits(bits(look_up(cosh_256, j)) + e);
    const V down = from_bits(bits(look_up(cosh_256, 256 - j)) - (e + exponent_unit));
    const V sinh_r = a.r + SHORT_SINH3 * a.r2 * a.r;
    const V cosh_r_less_1 = (COSH4 * a.r2 + COSH2) * a.r2;
    return added(up + down, up - down, sinh_r, cosh_r_less_1);
  }
};

}  // namespace

LANEMATH_EXPORT(sinh, sinh_standard)
LANEMATH_SAME(sinh, , _native)
LANEMATH_EXPORT(cosh, cosh_standard)
LANEMATH_SAME(cosh, , _native)

}  // namespace lanemath
