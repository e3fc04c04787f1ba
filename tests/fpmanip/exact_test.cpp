// The operations that take numbers apart, choose among them or leave remainders, bit for bit against exact scalar
// arithmetic, in every direction of rounding.
#include <gtest/gtest.h>
#include <mpfr.h>
#include <xmmintrin.h>

#include <bit>
#include <cfenv>
#include <limits>

#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

constexpr int modes[] = {FE_TONEAREST, FE_UPWARD, FE_DOWNWARD, FE_TOWARDZERO};

template <class T>
struct model {
  using U = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;
  using limits = std::numeric_limits<T>;
  static constexpr U sign = U(1) << (8 * sizeof(T) - 1);
  static constexpr U quiet = U(1) << (limits::digits - 2);

  static U bits(T v) { return std::bit_cast<U>(v); }
  static T value(U v) { return std::bit_cast<T>(v); }
  static T signed_zero(T x) { return std::copysign(T(0), x); }
  static T hushed(T nan) { return value(bits(nan) | quiet); }
  static T default_nan() { return value(bits(limits::infinity()) | sign | quiet); }

  template <T F(T)>
  static outcome rounded(T x, T) {
    return {bits(std::isnan(x) ? hushed(x) : F(x))};
  }
  static outcome fabs(T x, T) { return {bits(x) & ~sign}; }
  static outcome copysign(T x, T y) { return {(bits(x) & ~sign) | (bits(y) & sign)}; }

  // A number before a NaN, the second of two NaNs; `otherwise` chooses among numbers.
  template <class F>
  static outcome chosen(T x, T y, F otherwise) {
    if (std::isnan(x)) return {bits(y)};
    return {bits(std::isnan(y) ? x : otherwise())};
  }
  static outcome fmax(T x, T y) {
    return chosen(x, y, [=] { return x > y ? x : y; });
  }
  static outcome fmin(T x, T y) {
    return chosen(x, y, [=] { return x < y ? x : y; });
  }
  // Of equal magnitudes the positive or the negative one; of zeros the first.
  static outcome maxmag(T x, T y) {
    return chosen(x, y, [=] {
      if (std::fabs(x) == std::fabs(y)) return y > x ? y : x;
      return std::fabs(x) > std::fabs(y) ? x : y;
    });
  }
  static outcome minmag(T x, T y) {
    return chosen(x, y, [=] {
      if (std::fabs(x) == std::fabs(y)) return y < x ? y : x;
      return std::fabs(x) < std::fabs(y) ? x : y;
    });
  }
  static outcome fdim(T x, T y) {
    if (std::isnan(x) || std::isnan(y)) return {bits(std::isnan(y) ? y : x)};
    return {bits(x > y ? x - y : T(0))};
  }

  static outcome fract(T x, T) {
    if (std::isnan(x)) return {bits(x), bits(x)};
    if (std::isinf(x) || x == 0) return {bits(signed_zero(x)), bits(x)};
    const T floor = std::floor(x), below_one = value(bits(T(1)) - 1);
    const T rest = x - floor;
    return {bits(rest < below_one ? rest : below_one), bits(floor)};
  }
  static outcome modf(T x, T) {
    if (std::isnan(x)) return {bits(hushed(x)), bits(hushed(x))};
    T integral;
    const T fraction = std::modf(x, &integral);
    return {bits(fraction), bits(integral)};
  }
  static outcome frexp(T x, T) {
    if (!std::isfinite(x)) return {bits(std::isnan(x) ? hushed(x) : x), 0};
    int exponent;
    const T significand = std::frexp(x, &exponent);
    return {bits(significand), std::uint32_t(exponent)};
  }
  static outcome ilogb(T x, T) {
    if (x == 0) return {0x80000000};
    return {std::isfinite(x) ? std::uint32_t(std::ilogb(x)) : 0x7FFFFFFF};
  }
  static outcome logb(T x, T) { return {bits(std::isnan(x) ? value(bits(x) & ~sign) : std::logb(x))}; }
  static outcome nextafter(T x, T y) {
    if (std::isnan(x) || std::isnan(y)) return {bits(hushed(std::isnan(x) ? x : y))};
    return {bits(x == y ? y : std::nextafter(x, y))};
  }

  static outcome fmod(T x, T y) {
    if (std::isnan(x) || std::isnan(y)) return {bits(hushed(std::isnan(y) ? y : x))};
    if (std::isinf(x) || y == 0) return {bits(default_nan())};
    // A whole multiple of one that is large, yet has room for a fraction, leaves +0.
    const T least = T(sizeof(T) == 4 ? 0x1p12 : 0x1p26), end = std::ldexp(T(1), limits::digits - 1);
    if (std::fabs(y) == 1 && std::fabs(x) >= least && std::fabs(x) < end && std::trunc(x) == x) return {0};
    return {bits(std::fmod(x, y))};
  }

  // The quotient's low 31 bits, with its sign.
  static outcome remquo(T x, T y) {
    if (std::isnan(x) || std::isnan(y)) return {bits(hushed(std::isnan(x) ? x : y)), 0};
    if (std::isinf(x) || y == 0) return {bits(default_nan()), 0};
    mpfr_t a, b, r;
    mpfr_inits2(53, a, b, r, nullptr);
    mpfr_set_d(a, x, MPFR_RNDN);
    mpfr_set_d(b, y, MPFR_RNDN);
    long quotient;
    mpfr_remquo(r, &quotient, a, b, MPFR_RNDN);
    const T remainder = T(mpfr_get_d(r, MPFR_RNDN));
    mpfr_clears(a, b, r, nullptr);
    const auto low = std::int32_t(std::labs(quotient) & 0x7FFFFFFF);
    const bool negative = std::signbit(x) != std::signbit(y);
    return {bits(remainder == 0 ? signed_zero(x) : remainder), std::uint32_t(negative ? -low : low)};
  }
  static outcome remainder(T x, T y) { return {remquo(x, y).first}; }
};

template <class T>
struct row {
  std::string_view name;
  outcome (*due)(T, T);
  bool any_direction = true;
};

template <class T>
const std::vector<row<T>>& rows() {
  using m = model<T>;
  static const std::vector<row<T>> all{
      {"ceil", m::template rounded<std::ceil>},
      {"floor", m::template rounded<std::floor>},
      {"trunc", m::template rounded<std::trunc>},
      {"rint", m::template rounded<std::rint>},
      {"nearbyint", m::template rounded<std::nearbyint>},
      {"round", m::template rounded<std::round>},
      {"fabs", m::fabs},
      {"copysign", m::copysign},
      {"fdim", m::fdim},
      {"fmax", m::fmax},
      {"fmin", m::fmin},
      {"maxmag", m::maxmag},
      {"minmag", m::minmag},
      {"fract", m::fract},
      {"modf", m::modf, false},  // x - x is -0 downward, and has its sign set in any case
      {"frexp", m::frexp},
      {"ilogb", m::ilogb},
      {"logb", m::logb},
      {"nextafter", m::nextafter},
      {"fmod", m::fmod, false},
      {"remainder", m::remainder, false},
      {"remquo", m::remquo, false},
  };
  return all;
}

// Numbers that lie near one another or a simple multiple apart, with many zeros or ones in their fractions, among
// ordinary values and patterns of every class.
template <class T>
std::vector<arguments> operands(const operation& o, std::size_t count) {
  using U = typename model<T>::U;
  auto all = mixed_tuples(o, count);
  std::mt19937_64 random(count + 1);
  const auto number = [&](int exponent) {
    U fraction = U(random());
    const int cut = int(random() % std::numeric_limits<T>::digits);
    if (random() % 2) fraction = random() % 2 ? fraction >> cut << cut : fraction | ((U(1) << cut) - 1);
    const T one_and_some = std::bit_cast<T>((fraction & (model<T>::quiet * 2 - 1)) | std::bit_cast<U>(T(1)));
    return std::ldexp(random() % 2 ? one_and_some : -one_and_some, exponent);
  };
  constexpr int range = std::numeric_limits<T>::max_exponent;
  for (std::size_t n = 0; n < count; n += 2) {
    const int exponent = random() % 2 ? int(random() % 64) - 32 : int(random() % (2 * range + 64)) - range - 64;
    const T x = number(exponent);
    T y = number(exponent - int(random() % 40));
    if (random() % 4 == 0) y = x / T(int(random() % 64) + 1) * (random() % 2 ? T(0.5) : T(2));
    all[n][0] = std::bit_cast<U>(x);
    all[n][1] = std::bit_cast<U>(y);
  }
  return all;
}

template <class T>
class ExactOperations : public ::testing::Test {};
using floating_types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(ExactOperations, floating_types);

TYPED_TEST(ExactOperations, GiveTheExactResultInEveryDirection) {
  using T = TypeParam;
  using U = typename model<T>::U;
  for (const auto& [name, due, any_direction] : rows<T>()) {
    const auto index = index_of(std::string(name) + (sizeof(T) == 4 ? "f" : ""));
    const auto& o = catalogue[index];
    const auto tuples = operands<T>(o, 40'000);
    for (int mode : modes) {
      if (mode != FE_TONEAREST && !any_direction) continue;
      ASSERT_EQ(std::fesetround(mode), 0);
      const unsigned control = _mm_getcsr() & 0xFFC0;
      const auto got = harness::evaluate(o, *library().find(index, variant::standard, 4), 4, tuples);
      const unsigned control_after = _mm_getcsr() & 0xFFC0;
      std::vector<outcome> want(tuples.size());
      for (std::size_t n = 0; n < tuples.size(); ++n)
        want[n] = due(std::bit_cast<T>(U(tuples[n][0])), std::bit_cast<T>(U(tuples[n][1])));
      std::fesetround(FE_TONEAREST);
      EXPECT_EQ(control_after, control);
      for (std::size_t n = 0; n < tuples.size(); ++n)
        ASSERT_EQ(got[n], want[n]) << o.name() << " of " << text_of(o, tuples[n]) << " in direction " << mode
                                   << fmt::format(": {:X} {:X}, due {:X} {:X}", got[n].first, got[n].second,
                                                  want[n].first, want[n].second);
    }
  }
}

// The pattern of a function's result in one lane, the other lanes holding the same.
template <class T, class... A>
T value_at_width(int width, std::string_view name, A... a) {
  const auto index = index_of(name);
  const std::vector<arguments> tuples(width, arguments{std::uint64_t(a)...});
  const auto f = library().find(index, variant::standard, width).value();
  return std::bit_cast<T>(typename model<T>::U(harness::evaluate(catalogue[index], f, width, tuples)[0].first));
}

TYPED_TEST(ExactOperations, LdexpRoundsOnceInEveryDirection) {
  using T = TypeParam;
  using m = model<T>;
  const auto index = index_of(sizeof(T) == 4 ? "ldexpf" : "ldexp");
  const auto& o = catalogue[index];
  auto tuples = operands<T>(o, 60'000);
  std::mt19937_64 random(5);
  constexpr int range = std::numeric_limits<T>::max_exponent;
  for (std::size_t n = 0; n < tuples.size(); ++n) {
    const T x = std::bit_cast<T>(typename m::U(tuples[n][0]));
    const int exponent = std::isfinite(x) && x != 0 ? std::ilogb(x) : 0;
    // To where the result overflows, is denormal or vanishes; and far beyond.
    const int target = n % 2 ? -range - int(random() % 60) + 5 : range - int(random() % 4);
    if (n % 8) tuples[n][1] = std::uint32_t(target - exponent);
  }
  for (int mode : modes) {
    ASSERT_EQ(std::fesetround(mode), 0);
    const auto got = harness::evaluate(o, *library().find(index, variant::standard, 16), 16, tuples);
    std::vector<std::uint64_t> want(tuples.size());
    for (std::size_t n = 0; n < tuples.size(); ++n) {
      const T x = std::bit_cast<T>(typename m::U(tuples[n][0]));
      // A signalling NaN stays one in single precision.
      want[n] = std::isnan(x) ? m::bits(sizeof(T) == 4 ? x : m::hushed(x))
                              : m::bits(std::ldexp(x, std::int32_t(tuples[n][1])));
    }
    std::fesetround(FE_TONEAREST);
    for (std::size_t n = 0; n < tuples.size(); ++n)
      ASSERT_EQ(got[n].first, want[n]) << text_of(o, tuples[n]) << " in direction " << mode;
  }
}

TYPED_TEST(ExactOperations, FmaRoundsOnceInEveryDirection) {
  using T = TypeParam;
  using m = model<T>;
  using U = typename m::U;
  const auto index = index_of(sizeof(T) == 4 ? "fmaf" : "fma");
  const auto& o = catalogue[index];
  auto tuples = operands<T>(o, 100'000);
  std::mt19937_64 random(6);
  const auto argument = [&](std::size_t n, int i) { return std::bit_cast<T>(U(tuples[n][i])); };
  constexpr int digits = std::numeric_limits<T>::digits;
  for (std::size_t n = 0; n < tuples.size(); ++n) {
    // A summand that cancels the product, or lies a few bits or all of them from it.
    const T product = argument(n, 0) * argument(n, 1);
    if (n % 4 == 0 && std::isfinite(product))
      tuples[n][2] = m::bits(-product) + random() % 3 - 1;
    else if (n % 4 == 2 && std::isfinite(product))
      tuples[n][2] = m::bits(std::ldexp(product, int(random() % (6 * digits)) - 3 * digits)) ^ (random() % 8);
    tuples[n][2] &= ~U(0);
  }
  for (int mode : modes) {
    ASSERT_EQ(std::fesetround(mode), 0);  // of both control words
    const auto got = harness::evaluate(o, *library().find(index, variant::standard, 8), 8, tuples);
    std::vector<U> want(tuples.size());
    for (std::size_t n = 0; n < tuples.size(); ++n) {
      const T x = argument(n, 0), y = argument(n, 1), z = argument(n, 2);
      const bool product_is_plain = x == 0 || y == 0 || std::fabs(x) == 1 || std::fabs(y) == 1 || z == 0;
      want[n] = m::bits(std::isnan(x)      ? m::hushed(x)
                        : std::isnan(y)    ? m::hushed(y)
                        : std::isnan(z)    ? m::hushed(z)
                        : product_is_plain ? x * y + z
                                           : std::fma(x, y, z));
    }
    std::fesetround(FE_TONEAREST);
    for (std::size_t n = 0; n < tuples.size(); ++n)
      ASSERT_EQ(got[n].first, want[n]) << text_of(o, tuples[n]) << " in direction " << mode
                                       << fmt::format(": {:X}, due {:X}", got[n].first, want[n]);
  }
}

// The direction is the x87 control word's, which is left as it was; overflow is MXCSR's.
TEST(Fma, RoundsAsTheX87ControlWordSays) {
  const auto fma_of = [](std::uint16_t direction, float x, float y, float z) {
    std::uint16_t before, after;
    asm volatile("fnstcw %0" : "=m"(before));
    const std::uint16_t control = (before & ~0xC00) | direction;
    asm volatile("fldcw %0" ::"m"(control));
    const auto pattern = [](float v) { return std::bit_cast<std::uint32_t>(v); };
    const float result = value_at_width<float>(4, "fmaf", pattern(x), pattern(y), pattern(z));
    asm volatile("fnstcw %0\n\tfldcw %1" : "=m"(after) : "m"(before));
    EXPECT_EQ(after, control);
    return result;
  };
  constexpr std::uint16_t nearest = 0, down = 0x400, up = 0x800, zero = 0xC00;
  for (auto direction : {nearest, down, up, zero}) {
    EXPECT_EQ(std::signbit(fma_of(direction, 2, 3, -6)), direction == down);
    const float inexact = fma_of(direction, 3, 1 + 0x1p-23f, 0x1p-60f);  // 3 + 3 units of 2^-23 and a little
    EXPECT_EQ(inexact, direction == up || direction == nearest ? 3 + 0x1p-21f : 3 + 0x1p-22f);
    EXPECT_EQ(fma_of(direction, 0x1p100f, 0x1p100f, 1), std::numeric_limits<float>::infinity());
    EXPECT_EQ(fma_of(direction, 1, 3, 0x1p-60f), 3);  // a factor of one: the plain sum
  }
}

TEST(ExactValues, ThatAreStated) {
  const auto f = [](float v) { return std::bit_cast<std::uint32_t>(v); };
  const auto d = [](double v) { return std::bit_cast<std::uint64_t>(v); };
  for (int width : widths) {
    EXPECT_EQ(f(value_at_width<float>(width, "fmodf", f(-4096), f(1))), 0u);
    EXPECT_EQ(f(value_at_width<float>(width, "fmodf", f(-2048), f(1))), 0x80000000u);
    EXPECT_EQ(f(value_at_width<float>(width, "fmodf", f(-0x1p23f), f(1))), 0x80000000u);
    EXPECT_EQ(d(value_at_width<double>(width, "fma", d(1 + 0x1p-30), d(1 - 0x1p-30), d(-1))), d(-0x1p-60));
    EXPECT_EQ(f(value_at_width<float>(width, "fmaf", 1, 0x80000001, 0)), 0u);
    EXPECT_EQ(f(value_at_width<float>(width, "fmaxf", 0, 0x80000000)), 0x80000000u);
    EXPECT_EQ(f(value_at_width<float>(width, "maxmagf", 0, 0x80000000)), 0u);
    EXPECT_EQ(f(value_at_width<float>(width, "fractf", f(-1e-10f))), 0x3F7FFFFFu);
    // The integer's bits stay as they are, also where they reach the sign.
    EXPECT_EQ(f(value_at_width<float>(width, "nanf", 0x80012345)), 0xFFC12345u);
    EXPECT_EQ(d(value_at_width<double>(width, "nan", 0x123456789)), 0x7FF8000123456789u);
  }
}

}  // namespace
}  // namespace lanemath::testing
