// Stated results of the logarithms at stated inputs, and of their rare routines where no kernel leads to them.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string_view>
#include <vector>

#include "log/log2_rare.h"
#include "support/call.h"

namespace lanemath::testing {
namespace {

// Compares the result at x with what it should be, in the operation's precision.
void expect(std::string_view name, variant v, int width, double x, double due) {
  EXPECT_EQ(bits_of(name, v, width, pattern_of(name, x)), pattern_of(name, due)) << x;
}

constexpr double infinity = std::numeric_limits<double>::infinity();

const std::vector<std::string_view> logarithms{"logf", "log2f", "log10f", "log", "log2", "log10"};
const std::vector<std::string_view> logarithms_of_sums{"log1pf", "log1p"};

// What zero divided by zero gives.
u64 default_nan(std::string_view name) { return is_single(name) ? 0xFFC00000 : 0xFFF8000000000000; }

TEST(Logarithms, OfOneZerosInfinitiesAndNegativeValues) {
  for_each_form(logarithms, [](std::string_view name, variant v, int width) {
    expect(name, v, width, 1, 0);
    expect(name, v, width, 0, -infinity);
    expect(name, v, width, -0.0, -infinity);
    expect(name, v, width, infinity, infinity);
    for (double negative : {-1.0, -1e30, -1e-30, -infinity, is_single(name) ? -0x1p-149 : -0x1p-1074})
      EXPECT_EQ(bits_of(name, v, width, pattern_of(name, negative)), default_nan(name)) << negative;
  });
  for_each_form(logarithms_of_sums, [](std::string_view name, variant v, int width) {
    expect(name, v, width, 0, 0);
    expect(name, v, width, -0.0, -0.0);
    expect(name, v, width, -1, -infinity);
    expect(name, v, width, infinity, infinity);
    for (double below : {-1.0000001, -2.0, -1e30, -infinity})
      EXPECT_EQ(bits_of(name, v, width, pattern_of(name, below)), default_nan(name)) << below;
  });
}

TEST(Logarithms, OfNaNs) {
  const auto each = [](std::string_view name, variant v, int width) {
    const bool single = is_single(name), moves_bits = name == "log2" && v == standard && width == 2;
    const u64 sign = single ? 0x80000000 : u64(1) << 63;
    const u64 nan = single ? 0x7F800000 : 0x7FF0000000000000, quiet = single ? 0x00400000 : u64(1) << 51;
    for (u64 payload : {quiet, quiet | 0x12345, u64(1), u64(0x12345), quiet - 1})
      for (u64 x : {nan | payload, nan | payload | sign})
        EXPECT_EQ(bits_of(name, v, width, x), moves_bits ? x : x | quiet) << fmt::format("0x{:X}", x);
  };
  for_each_form(logarithms, each);
  for_each_form(logarithms_of_sums, each);
}

TEST(Logarithms, ToBaseTwoAreExactAtPowersOfTwo) {
  for_each_form({"log2f"}, [](std::string_view name, variant v, int width) {
    for (int k = -149; k < 128; ++k) expect(name, v, width, std::ldexp(1.0, k), k);
  });
  for_each_form({"log2"}, [](std::string_view name, variant v, int width) {
    for (int k = -1074; k < 1024; k += k < -1000 ? 1 : 37) expect(name, v, width, std::ldexp(1.0, k), k);
  });
}

// At inputs where a step in another order or an unrounded product shows. Forms whose bits depend on the processor's
// estimates are left out, except for their rare lanes.
TEST(Logarithms, HaveTheirStatedBits) {
  constexpr struct {
    std::string_view name;
    variant form;
    int width;
    u64 x, y;
  } results[] = {
      {"logf", standard, 4, 0x3FAABE66, 0x3E938640},
      {"logf", standard, 4, 0x3FAAAAAA, 0x3E934B0E},  // 4/3 from below and above: the exponent steps
      {"logf", standard, 4, 0x3FAAAAAB, 0x3E934B12},
      {"logf", standard, 4, 0x00003350, 0xC2BB9777},  // a denormal: ln 2 is not split
      {"logf", half, 4, 0x3F61FEBA, 0xBDFF5018},
      {"logf", native, 4, 0x3F475FC3, 0xBE80025C},
      {"log2f", standard, 4, 0x3FAAB675, 0x3ED4B2D4},
      {"log2f", native, 4, 0x3F8B9599, 0x3E00000E},
      {"log10f", native, 4, 0x3FAAAABB, 0x3DFFE41A},
      {"log10f", standard, 4, 0x00000001, 0xC23369F4},
      {"log1pf", native, 4, 0xBE627F6C, 0xBE800160},
      {"log1pf", standard, 4, 0xBF7FFFFF, 0xC1851592},  // the last float above -1
      {"log1pf", standard, 4, 0x7A800000, 0x42A3952E},  // the last float that is not rare, and the next
      {"log1pf", standard, 4, 0x7A800001, 0x42A3952E},
      {"log1pf", standard, 4, 0x00000001, 0x00000001},
      {"log2", standard, 2, 0x3FEFEFF06A66426D, 0xBF673195B4175629},
      {"log2", standard, 4, 0x0000000000000003, 0xC090C1A8FF971811},
      {"log", standard, 4, 0x0000000000000001, 0xC0874385446D71C3},
      {"log10", standard, 4, 0x0000000000000001, 0xC07434E6420F4374},
      {"log1p", standard, 4, 0xBFEFFFFFFFFFFFFF, 0xC0425E4F7B2737FA},
      {"log1p", standard, 4, 0x7FEFFFFFFFFFFFFF, 0x40862E42FEFA39EF},
  };
  for (const auto& r : results)
    EXPECT_EQ(bits_of(r.name, r.form, r.width, r.x), r.y)
        << fmt::format("{}{}{} of 0x{:X}", r.name, r.width, suffix(r.form), r.x);
}

TEST(Logarithms, TablesHaveTheirStatedEntries) {
  EXPECT_EQ(pattern(log10f_of_integers[0].hi), 0xC217B87Cu);
  EXPECT_EQ(pattern(log10f_of_integers[0].lo), 0x39C7CA28u);
  EXPECT_EQ(pattern(log10f_of_integers[128].hi), 0xC218ECBEu);
  EXPECT_EQ(pattern(log10f_of_integers[128].lo), 0x39C96014u);
  EXPECT_EQ(pattern(log1pf_of_integers[0].hi), 0xC2AEAC38u);
  EXPECT_EQ(pattern(log1pf_of_integers[0].lo), 0xB93CBF08u);
  EXPECT_EQ(pattern(log1p_of_integers[0].hi), 0xC086232BDD7A8300u);
  EXPECT_EQ(pattern(log1p_of_integers[0].lo), 0xBE1CE91EEF3FB100u);
  EXPECT_EQ(pattern(ln_of_integers[0]), 0u);
  EXPECT_EQ(pattern(ln_of_integers[512]), 0u);
  // The other q from 725 on keeps the entries small at both ends.
  EXPECT_NEAR(ln_of_integers[212], std::log(512.0 / 724), 1e-15);
  EXPECT_NEAR(ln_of_integers[213], std::log(1024.0 / 725), 1e-15);
  EXPECT_EQ(logf_reciprocals[64][0], 0.5f);
  EXPECT_EQ(pattern(logf_reciprocals[64][1]), 0x3F317200u);
  EXPECT_EQ(pattern(logf_reciprocals[64][2]), 0x35BFBE8Eu);
}

// Over all positive arguments; the kernels pass on only the denormals. Near 1 some terms cancel.
template <class T>
void expect_good(status (*routine)(const T*, T*), long double (*exact)(long double), double ulp, double near_one) {
  std::mt19937_64 random(3);
  for (int n = 0; n < 200'000; ++n) {
    const int spread = int(random() % std::numeric_limits<T>::digits);
    const T beside_one = 1 + T(std::ldexp(double(std::int64_t(random())), -64 - spread));
    const T anywhere = value<T>(random() % (pattern(std::numeric_limits<T>::max()) + 1));
    for (T x : {beside_one, anywhere}) {
      T y;
      const auto met = routine(&x, &y);
      const long double due = exact(x);
      if (x == 0) continue;
      EXPECT_EQ(met, status::ordinary);
      const double unit = due == 0 ? 1 : std::ldexp(1.0, std::ilogb(due) - std::numeric_limits<T>::digits + 1);
      const bool near = std::fabs(double(x) - 1) < 1;
      ASSERT_LE(double(std::fabs(y - due)) / unit, near ? near_one : ulp) << fmt::format("at {:a}", x);
    }
  }
}

TEST(RareLogarithms, AreGoodEverywhere) {
  expect_good<float>(logf_rare, std::log, 1.54, 1.54);
  expect_good<float>(log2f_rare, std::log2, 4, 400);
  expect_good<float>(log10f_rare, std::log10, 4, 600);
  expect_good<double>(log_rare, std::log, 0.51, 0.51);
  expect_good<double>(log2_rare, std::log2, 0.51, 0.51);
  expect_good<double>(log10_rare, std::log10, 0.52, 0.52);
}

TEST(RareLogarithms, TellWhatHappened) {
  constexpr auto nan = std::numeric_limits<double>::quiet_NaN();
  struct {
    double x;
    status met;
  } constexpr cases[] = {{1, status::ordinary},   {0x1p-149, status::ordinary}, {infinity, status::ordinary},
                         {nan, status::ordinary}, {0, status::singular},        {-0.0, status::singular},
                         {-1, status::domain},    {-infinity, status::domain}};
  for (const auto& [x, met] : cases) {
    const float xf = float(x);
    float yf;
    double y;
    for (auto routine : {logf_rare, log2f_rare, log10f_rare}) EXPECT_EQ(routine(&xf, &yf), met) << x;
    for (auto routine : {log_rare, log2_rare, log10_rare}) EXPECT_EQ(routine(&x, &y), met) << x;
  }
  const double one = 1;
  double y = -1;
  log2_rare(&one, &y);
  EXPECT_EQ(pattern(y), 0u);
}

}  // namespace
}  // namespace lanemath::testing
