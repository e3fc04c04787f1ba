// Gamma, single precision.
//
// Each lane is computed by itself in double arithmetic: from 1 to 2 a polynomial for each quarter; from 2 on a product
// of quadratics for each stretch of eight integers, with the recurrence down to it. Negative arguments are reflected.
//
// Largest errors found, in ulp:
//   tgammaf: default 0.502912
//
// Looks odd and is meant, see docs/design.md: odd integers below -2^22.
#include "special/tgamma.h"

namespace lanemath::special {
namespace {

// Polynomials between 1 and 2, highest power first: in y - 1, from 1.25 to 1.5 in the distance from the minimum.
constexpr double from_1[] = {0xBFD9909648921868_f64, 0x3FE96FFEEEA8520F_f64, 0xBFEE3720F7720B4D_f64,
                             0x3FEF4857A010CA3B_f64, 0xBFED0800D93449B8_f64, 0x3FEFA648D144911C_f64,
                             0xBFE2788CCD545AA4_f64, 0x3FEFFFFFFFE9209E_f64};
constexpr double at_minimum[] = {0xBFB421236426936C_f64, 0x3FAF237514F36691_f64, 0xBFB7E7F83A546EBE_f64,
                                 0x3FC496A01A545163_f64, 0xBFC0BADE710A10B9_f64, 0x3FDB6C5465BBEF1F_f64,
                                 0xBDEE86A39D8452EB_f64, 0x3FEC56DC82A39AA2_f64};
constexpr double from_1_5[] = {0xBF94730B51795867_f64, 0x3FBF4203E3816C7B_f64, 0xBFD59D31BE3AB42A_f64,
                               0x3FE3C90CC8F09147_f64, 0xBFE85B427DBD23E4_f64, 0x3FEE65557AB26771_f64,
                               0xBFE245971DF735B8_f64, 0x3FEFFC613AE7FBC8_f64};
constexpr double to_2[] = {0xBF7746A85137617E_f64, 0x3FA96E37D09735F3_f64, 0xBFC6F0E707560916_f64,
                           0x3FDB262D949175BE_f64, 0xBFE3C24AC40AC0BB_f64, 0x3FEC56A80A977CA5_f64,
                           0xBFE1C1AEDFB25495_f64, 0x3FEFEE1E644B2022_f64};

double below_2(double y) {
  if (y >= 1.75) return horner(y - 1.0, to_2);
  if (y >= 1.5) return horner(y - 1.0, from_1_5);
  if (y >= 1.25) return horner(y - 1.46163214496836236, at_minimum);
  return horner(y - 1.0, from_1);
}

// sin(pi t) / pi for t up to 1/2.
double sine(double t) {
  const double s = t * t;
  return t + t * s * (2.5312174041370274e-7 * s - 2.058547508625216e-6) *
                 (s * s - 11.490335210033116 * s + 85.02878854883525) *
                 (s * s + 1.9808040471127208 * s + 231.17374146315635) *
                 (s * s - 9.917192693332629 * s + 40.65211141238636);
}

struct tgammaf_lane {
  using real = double;
  static constexpr int stretch = 8;
  static constexpr auto& rows = tgammaf_rows;
  static constexpr float tiny = 0x00200000_f32;
  static constexpr float least = -43.0f;
  static constexpr status of_underflow = status::underflow;
  static constexpr double overflow = 0x4041852200000000_f64;  // 35.0401
  // The last row is scaled down by this factor, and so must its reciprocal be.
  static constexpr float last_row = -40.0f;
  static constexpr double last_row_scale = 5.546450927971236e-46;

  static double below_2(double y) { return special::below_2(y); }
  static double sine(double t) { return special::sine(t); }
};

LANEMATH_RARE tgammaf_rare(const float* px, float* py) { return gamma<tgammaf_lane>(*px, *py); }

}  // namespace

LANEMATH_EXPORT(tgammaf, scalar_gamma<tgammaf_rare>)

}  // namespace lanemath::special
