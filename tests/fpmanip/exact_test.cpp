// The operations that take numbers apart, choose among them or leave remainders, bit for bit against exact scalar
// arithmetic, in every rounding direction.
#include <gtest/gtest.h>
#include <mpfr.h>
#include <xmmintrin.h>

#include <limits>

#include "support/call.h"

namespace lanemath::testing {
namespace {

template <class T>
struct model {
  using U = std::conditional_t<sizeof(T) == 4, u32, u64>;
  using limits = std::numeric_limits<T>;
  static constexpr U sign = U(1) << (8 * sizeof(T) - 1);
  static constexpr U quiet = U(1) << (limits::digits - 2);

  static U bits(T v) { return U(pattern(v)); }
  static T signed_zero(T x) { return std::copysign(T(0), x); }
  static T hushed(T nan) { return testing::value<T>(bits(nan) | quiet); }
  static T default_nan() { return testing::value<T>(bits(limits::infinity()) | sign | quiet); }

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
    const T floor = std::floor(x), below_one = testing::value<T>(bits(T(1)) - 1);
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
  static outcome logb(T x, T) { return {bits(std::isnan(x) ? testing::value<T>(bits(x) & ~sign) : std::logb(x))}; }
  static outcome nextafter(T x, T y) {
    if (std::isnan(x) || std::isnan(y)) return {bits(hushed(std::isnan(x) ? x : y))};
    return {bits(x == y ? y : std::nextafter(x, y))};
  }

  static outcome fmod(T x, T y) {
    if (std::isnan(x) || std::isnan(y)) return {bits(hushed(std::isnan(y) ? y : x))};
    if (std::isinf(x) || y == 0) return {bits(default_nan())};
    // A large integer leaves +0 on division by 1 or -1, as long as there is room for a fraction.
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

// Numbers that are close together or a simple multiple apart, with many zeros or ones in their fractions, among
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

std::string told(const operation& o, const arguments& tuple, const outcome& got, const outcome& due,
                 const harness::direction& d) {
  return fmt::format("{} of {}, rounding {}: {}, due {}", o.name(), text_of(o, tuple), d.name, text_of(o, got),
                     text_of(o, due));
}

TYPED_TEST(ExactOperations, GiveTheExactResultInEveryDirection) {
  using T = TypeParam;
  for (const auto& [base, due, any_direction] : rows<T>()) {
    const auto name = std::string(base) + (sizeof(T) == 4 ? "f" : "");
    const auto& o = catalogue[index_of(name)];
    const auto tuples = operands<T>(o, 40'000);
    for (const auto& direction : harness::directions) {
      if (direction.mode != FE_TONEAREST && !any_direction) continue;
      const harness::rounding in_force(direction.mode);
      const unsigned control = _mm_getcsr() & 0xFFC0;
      const auto got = call(name, standard, 4, tuples);
      EXPECT_EQ(_mm_getcsr() & 0xFFC0, control);
      for (std::size_t n = 0; n < tuples.size(); ++n) {
        const outcome want = due(value<T>(tuples[n][0]), value<T>(tuples[n][1]));
        ASSERT_EQ(got[n], want) << told(o, tuples[n], got[n], want, direction);
      }
    }
  }
}

TYPED_TEST(ExactOperations, LdexpRoundsOnceInEveryDirection) {
  using T = TypeParam;
  using m = model<T>;
  const std::string_view name = sizeof(T) == 4 ? "ldexpf" : "ldexp";
  const auto& o = catalogue[index_of(name)];
  auto tuples = operands<T>(o, 60'000);
  std::mt19937_64 random(5);
  constexpr int range = std::numeric_limits<T>::max_exponent;
  for (std::size_t n = 0; n < tuples.size(); ++n) {
    const T x = value<T>(tuples[n][0]);
    const int exponent = std::isfinite(x) && x != 0 ? std::ilogb(x) : 0;
    // As far as the result overflows, is denormal or vanishes; and far beyond.
    const int target = n % 2 ? -range - int(random() % 60) + 5 : range - int(random() % 4);
    if (n % 8) tuples[n][1] = std::uint32_t(target - exponent);
  }
  for (const auto& direction : harness::directions) {
    const harness::rounding in_force(direction.mode);
    const auto got = call(name, standard, 16, tuples);
    for (std::size_t n = 0; n < tuples.size(); ++n) {
      const T x = value<T>(tuples[n][0]);
      // A signalling NaN stays one in single precision.
      const T want = !std::isnan(x) ? std::ldexp(x, std::int32_t(tuples[n][1])) : sizeof(T) == 4 ? x : m::hushed(x);
      ASSERT_EQ(got[n].first, m::bits(want)) << told(o, tuples[n], got[n], outcome{m::bits(want)}, direction);
    }
  }
}

TYPED_TEST(ExactOperations, FmaRoundsOnceInEveryDirection) {
  using T = TypeParam;
  using m = model<T>;
  using U = typename m::U;
  const std::string_view name = sizeof(T) == 4 ? "fmaf" : "fma";
  const auto& o = catalogue[index_of(name)];
  auto tuples = operands<T>(o, 100'000);
  std::mt19937_64 random(6);
  const auto argument = [&](std::size_t n, int i) { return value<T>(tuples[n][i]); };
  constexpr int digits = std::numeric_limits<T>::digits;
  for (std::size_t n = 0; n < tuples.size(); ++n) {
    // A summand that cancels the product, or lies a few bits or a full width away from it.
    const T product = argument(n, 0) * argument(n, 1);
    if (n % 4 == 0 && std::isfinite(product))
      tuples[n][2] = m::bits(-product) + random() % 3 - 1;
    else if (n % 4 == 2 && std::isfinite(product))
      tuples[n][2] = m::bits(std::ldexp(product, int(random() % (6 * digits)) - 3 * digits)) ^ (random() % 8);
    tuples[n][2] &= ~U(0);
  }
  for (const auto& direction : harness::directions) {
    const harness::rounding in_force(direction.mode);  // of both control words
    const auto got = call(name, standard, 8, tuples);
    for (std::size_t n = 0; n < tuples.size(); ++n) {
      const T x = argument(n, 0), y = argument(n, 1), z = argument(n, 2);
      const bool product_is_plain = x == 0 || y == 0 || std::fabs(x) == 1 || std::fabs(y) == 1 || z == 0;
      const T want = std::isnan(x)      ? m::hushed(x)
                     : std::isnan(y)    ? m::hushed(y)
                     : std::isnan(z)    ? m::hushed(z)
                     : product_is_plain ? x * y + z
                                        : std::fma(x, y, z);
      ASSERT_EQ(got[n].first, m::bits(want)) << told(o, tuples[n], got[n], outcome{m::bits(want)}, direction);
    }
  }
}

// The direction is the x87 control word's, which is left as it was; overflow is MXCSR's.
TEST(Fma, RoundsAsTheX87ControlWordSays) {
  const auto fma_of = [](std::uint16_t direction, float x, float y, float z) {
    std::uint16_t before, after;
    asm volatile("fnstcw %0" : "=m"(before));
    const std::uint16_t control = (before & ~0xC00) | direction;
    asm volatile("fldcw %0" ::"m"(control));
    const float result = value_of<float>("fmaf", standard, 4, x, y, z);
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
  for (int width : widths) {
    EXPECT_EQ(bits_of("fmodf", standard, width, -4096.0f, 1.0f), 0u);
    EXPECT_EQ(bits_of("fmodf", standard, width, -2048.0f, 1.0f), 0x80000000u);
    EXPECT_EQ(bits_of("fmodf", standard, width, -0x1p23f, 1.0f), 0x80000000u);
    EXPECT_EQ(value_of<double>("fma", standard, width, 1 + 0x1p-30, 1 - 0x1p-30, -1.0), -0x1p-60);
    EXPECT_EQ(bits_of("fmaf", standard, width, 1, 0x80000001, 0), 0u);
    EXPECT_EQ(bits_of("fmaxf", standard, width, 0, 0x80000000), 0x80000000u);
    EXPECT_EQ(bits_of("maxmagf", standard, width, 0, 0x80000000), 0u);
    EXPECT_EQ(bits_of("fractf", standard, width, -1e-10f), 0x3F7FFFFFu);
    // The integer's bits stay unchanged, even where they reach the sign.
    EXPECT_EQ(bits_of("nanf", standard, width, 0x80012345), 0xFFC12345u);
    EXPECT_EQ(bits_of("nan", standard, width, 0x123456789), 0x7FF8000123456789u);
  }
}

}  // namespace
}  // namespace lanemath::testing
