// The control words that a caller may have set: every direction of MXCSR, flush to zero, denormals as zeros, every
// precision and direction of x87 arithmetic.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include <set>

#include "support/call.h"
#include "support/effort.h"

namespace lanemath::testing {
namespace {

// What a result may follow.
enum mode : unsigned { nothing = 0, direction = 1, flushing = 2, zeroing = 4, x87_direction = 8, x87_precision = 16 };

// The control words, each field counted from 0, which is the default.
struct control {
  std::uint32_t rounding = 0, flush = 0, zero = 0, x87_rounding = 0, x87_precision_lost = 0;

  control only(unsigned modes) const {
    return {modes & direction ? rounding : 0, modes & flushing ? flush : 0, modes & zeroing ? zero : 0,
            modes & x87_direction ? x87_rounding : 0, modes & x87_precision ? x87_precision_lost : 0};
  }
  std::uint32_t mxcsr() const { return 0x1F80 | rounding << 13 | flush << 15 | zero << 6; }
  std::uint16_t x87() const {
    constexpr std::uint16_t precisions[] = {0x300, 0x200, 0};
    return std::uint16_t(0x7F | x87_rounding << 10 | precisions[x87_precision_lost]);
  }
  void set() const {
    _mm_setcsr(mxcsr());
    const auto word = x87();
    asm volatile("fldcw %0" ::"m"(word));
  }
  bool is_in_force() const {
    std::uint16_t word;
    asm volatile("fnstcw %0" : "=m"(word));
    return (_mm_getcsr() & 0xFFC0) == mxcsr() && word == x87();
  }
  auto operator<=>(const control&) const = default;
};

std::vector<control> all_controls() {
  std::vector<control> all;
  for (std::uint32_t n = 0; n < 4 * 2 * 2 * 4 * 3; ++n)
    all.push_back({n % 4, n / 4 % 2, n / 8 % 2, n / 16 % 4, n / 64});
  return all;
}

// The modes that the bits of an operation's results follow; they do not change with any other.
struct followed {
  unsigned usually, with_denormals_flushed;  // in whichever way
  unsigned in(const control& c) const { return c.flush || c.zero ? with_denormals_flushed : usually; }
};
followed followed_by(const operation& o) {
  constexpr unsigned arithmetic = direction | flushing | zeroing;
  static const struct {
    std::set<std::string_view> names;  // of both precisions, unless a row before has one
    unsigned modes;
  } rows[] = {
      // Bits are moved.
      {{"fabs", "copysign", "nan"}, nothing},
      // A rounding of its own, for which a denormal is like zero.
      {{"trunc", "round"}, nothing},
      // A rounding of its own, a comparison, or an exponent: exact, but a denormal may be read as zero.
      {{"ceil", "floor", "fmax", "fmin", "maxmag", "minmag", "ilogb", "logb"}, zeroing},
      // Exact, but denormals are normalised or reached by arithmetic.
      {{"frexp", "nextafter"}, flushing | zeroing},
      {{"rint", "nearbyint"}, direction | zeroing},
      // x87 arithmetic, in the precision of the word or, of doubles, in full precision.
      {{"lgammaf", "lgammarf"}, arithmetic | x87_direction | x87_precision},
      {{"tgammaf"}, arithmetic},
      {{"lgamma", "lgammar", "tgamma", "fma"}, arithmetic | x87_direction},
  };
  if (o.group == family::integer_division) return {nothing, nothing};
  if (o.group == family::conversion) {
    const bool to_integer = !is_floating(o.sig.result), from_integer = !is_floating(o.sig.arguments[0]);
    const auto rounding = o.rounding;
    // Upward or downward, the least denormal may become an integer beside zero.
    const bool steps = rounding == lanemath::direction::up || rounding == lanemath::direction::down;
    if (to_integer) return steps ? followed{zeroing, zeroing} : followed{nothing, nothing};
    // All but one pair of types end in a sum, whose error a step corrects as if it had been made to nearest. A zero is
    // the difference of equals, which is negative downward. Every `int` is a double.
    if (o.sig.arguments[0] == lane::i32 && !o.single()) return {nothing, nothing};
    if (from_integer) return {direction, direction};
    // A step after narrowing makes up for the direction, if denormals are there to step from.
    if (rounding != lanemath::direction::nearest) return {nothing, arithmetic};
  }
  for (const auto& [names, modes] : rows)
    if (names.contains(o.name()) || names.contains(o.base_name())) return {modes, modes};
  return {arithmetic, arithmetic};
}

TEST(Modes, ResultsFollowThoseOnlyThatTheyShouldAndControlWordsStay) {
  const auto controls = all_controls();
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    const auto modes = followed_by(o);
    auto tuples = mixed_tuples(o, effort(96, 4800));
    std::mt19937_64 random(index);
    for (std::size_t n = 0; n < tuples.size(); n += 2)
      for (int i = 0; i < o.sig.arity(); ++i) {
        const auto& points = harness::turning_points(o.sig.arguments[i]);
        tuples[n][i] = points[random() % points.size()];
      }
    for (int width : widths) {
      const auto f = library().find(index, v, width).value();
      std::map<control, std::vector<outcome>> due;
      for (const auto& each : controls) {
        const control base = each.only(modes.in(each));
        each.set();
        auto got = harness::evaluate(o, f, width, tuples);
        const bool kept = each.is_in_force();
        control{}.set();
        ASSERT_TRUE(kept) << o.name() << width << suffix(v);
        const auto& want = due.try_emplace(base, got).first->second;  // the default of what is not followed comes first
        for (std::size_t n = 0; n < tuples.size(); ++n)
          if (got[n] != want[n]) {
            ADD_FAILURE() << o.name() << width << suffix(v) << " of " << text_of(o, tuples[n]) << " is "
                          << text_of(o, got[n]) << ", not " << text_of(o, want[n])
                          << fmt::format(", with MXCSR {:#x} and x87 word {:#x}", each.mxcsr(), each.x87());
            return;
          }
      }
    }
  });
}

// What a function gives for one lane in a mode.
outcome in_mode(const control& c, std::string_view name, int width, const arguments& lane) {
  const auto& o = catalogue[index_of(name)];
  const auto f = library().find(index_of(name), standard, width).value();
  const std::vector lanes(width, lane);
  c.set();
  const auto got = harness::evaluate(o, f, width, lanes);
  control{}.set();
  return got.back();
}

constexpr int c_directions[] = {FE_TONEAREST, FE_DOWNWARD, FE_UPWARD, FE_TOWARDZERO};  // as the words number them

template <class T>
class EitherWord : public ::testing::Test {
 protected:
  static constexpr bool single = sizeof(T) == 4;
  // Calls visit(control) for every direction of one word with every direction of the other, until it fails.
  static void in_all_directions(auto visit) {
    for (std::uint32_t mxcsr = 0; mxcsr < 4; ++mxcsr)
      for (std::uint32_t x87 = 0; x87 < 4 && !HasFatalFailure(); ++x87)
        visit(control{.rounding = mxcsr, .x87_rounding = x87});
  }
  std::mt19937_64 random{7};
  // With few significant bits, or with all of them.
  T number(int exponents) {
    const double fraction = random() % 2 ? double(random() % 32) : double(std::int64_t(random()));
    return std::ldexp(T(fraction) * (random() % 2 ? T(1) : T(-1)),
                      int(random() % unsigned(2 * exponents + 1)) - exponents - (fraction < 32 ? 4 : 62));
  }
};
using floating_types = ::testing::Types<float, double>;
TYPED_TEST_SUITE(EitherWord, floating_types);

// The C library's, computed when it is called and not before.
template <class T>
T nearbyint_in(std::uint32_t direction, T x) {
  const volatile T late = x;
  return in_direction(c_directions[direction], [&] { return std::nearbyint(late); });
}

TYPED_TEST(EitherWord, RintFollowsMxcsr) {
  using T = TypeParam;
  for (std::size_t n = 0; n < effort(500, 50'000); ++n) {
    const T x = this->number(20);
    this->in_all_directions([&](const control& c) {
      const T due = nearbyint_in(c.rounding, x);
      for (auto name : {this->single ? "rintf" : "rint", this->single ? "nearbyintf" : "nearbyint"})
        ASSERT_EQ(in_mode(c, name, n % 2 ? 1 : 4, {pattern(x)}).first, pattern(due)) << name << " of " << x;
    });
  }
}

// Where all steps are exact: the quotient is the nearest integer, and of two that are as near the one in MXCSR's
// direction. A remainder of zero is negative downward, and has the sign of x otherwise.
TYPED_TEST(EitherWord, RemainderAndQuotientFollowMxcsrInTies) {
  using T = TypeParam;
  for (std::size_t n = 0; n < effort(500, 50'000); ++n) {
    const int y = int(1 + this->random() % 99) * (this->random() % 2 ? 1 : -1);
    const int x = int(this->random() % 2000 * (n % 2 ? 1 : unsigned(std::abs(y)))) / 2 * (n % 4 < 2 ? 1 : -1);
    if (2 * std::abs(x) < std::abs(y)) continue;  // the quotient may be rounded to one in place of zero
    const T scale = std::ldexp(T(1), int(this->random() % 61) - 30);
    this->in_all_directions([&](const control& c) {
      const double ratio = double(x) / y;  // of such integers, a tie shows in the double
      const bool tie = std::fabs(ratio - std::trunc(ratio)) == 0.5;
      const double quotient = nearbyint_in(tie ? c.rounding : 0, ratio);
      const int rest = x - int(quotient) * y;
      const T sign = c.rounding == 1 || x < 0 ? T(-1) : T(1);
      const T due = rest == 0 ? std::copysign(T(0), sign) : T(rest) * scale;
      const arguments lane{pattern(T(x) * scale), pattern(T(y) * scale)};
      const int width = n % 2 ? 1 : 4;
      const auto got = in_mode(c, this->single ? "remquof" : "remquo", width, lane);
      ASSERT_EQ(got, (outcome{pattern(due), u32(int(quotient))})) << x << " / " << y << " in " << c.rounding;
      ASSERT_EQ(in_mode(c, this->single ? "remainderf" : "remainder", width, lane).first, got.first);
    });
  }
}

// x87 arithmetic's direction, but MXCSR's where the product or the sum is exact in any case, and for what overflows.
TYPED_TEST(EitherWord, FmaFollowsTheX87Word) {
  using T = TypeParam;
  using limits = std::numeric_limits<T>;
  for (std::size_t n = 0; n < effort(1000, 100'000); ++n) {
    const int range = n % 3 ? 8 : limits::max_exponent;
    // Volatile, so that the model computes when it should.
    const volatile T x = n % 17 ? this->number(range) : T(1), y = n % 23 ? this->number(range) : T(-1);
    volatile T z = n % 29 ? this->number(range) : T(0);
    if (n % 5 == 0) z = -x * y;
    if (!std::isfinite(x) || !std::isfinite(y) || !std::isfinite(z)) continue;
    this->in_all_directions([&](const control& c) {
      const auto by_mxcsr = [&](auto f) { return in_direction(c_directions[c.rounding], f); };
      const bool plain = x == 0 || y == 0 || z == 0 || std::fabs(x) == 1 || std::fabs(y) == 1;
      const T due = plain ? by_mxcsr([&] { return x * y + z; }) : in_direction(c_directions[c.x87_rounding], [&] {
        std::feclearexcept(FE_ALL_EXCEPT);
        const T fused = std::fma(x, y, z);
        if (!std::fetestexcept(FE_OVERFLOW)) return fused;
        const volatile T largest = std::copysign(limits::max(), fused);
        return by_mxcsr([&] { return largest * limits::max(); });
      });
      const auto got = in_mode(c, this->single ? "fmaf" : "fma", n % 2 ? 1 : 4, {pattern(x), pattern(y), pattern(z)});
      ASSERT_EQ(got.first, pattern(due)) << fmt::format("fma({:a}, {:a}, {:a}), MXCSR {}, x87 {}", x, y, z, c.rounding,
                                                        c.x87_rounding);
    });
  }
}

}  // namespace
}  // namespace lanemath::testing
