// Every form has the bits that it had when its line was entered in kept_bits.csv: callers rely on them, and a wrong
// digit of a table or a shifted threshold changes bits long before it breaks an error bound.
#include <gtest/gtest.h>
#include <immintrin.h>

#include <fstream>
#include <map>
#include <sstream>

#include "harness/rounding.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

using u64 = std::uint64_t;

class checksum {
 public:
  void add(u64 v) { sum_ = (sum_ ^ v) * 0x9E3779B97F4A7C15, sum_ ^= sum_ >> 29; }
  std::string text() const { return fmt::format("{:016X}", sum_); }

 private:
  u64 sum_ = 0;
};

// The lanes do not come from the harness: its lists grow, and these must stay as they are. Every random number is drawn
// in a statement of its own, so that all compilers draw them in the same order.
u64 any_pattern(lane l, std::mt19937_64& random) {
  const bool narrow = size_of(l) == 4;
  const u64 kind = random() % 8, all = random(), size = random() % 64, more = random();
  const u64 sign = all & u64(1) << 63, step = more % 5 - 2;
  if (!is_floating(l)) {
    const u64 v = kind < 4 ? u64(std::int64_t(all) >> size) : kind < 6 ? (u64(1) << size) + step : step;
    return narrow ? std::uint32_t(v) : v;
  }
  const auto with_exponent = [&](int exponent) {  // often with a short fraction
    const u64 fraction = more % 4 ? all : all & ~u64(0) << (51 - size / 4);
    return std::bit_cast<double>(sign | (fraction & 0xFFFFFFFFFFFFF) | u64(1023 + exponent) << 52);
  };
  double v = 0;
  switch (kind) {
    case 0: return narrow ? all >> 32 : all;
    case 1: v = with_exponent(int(more % 100) - 70); break;
    case 2: v = double(more % 3 ? 1 : int(more % 200) - 100) + with_exponent(-1 - int(size / 2)); break;
    case 3: v = double(std::int64_t(all) >> (63 - size / 5)) / 4; break;
    case 4:  // a power of two, zero and infinity among them, or next to one
      if (narrow) return std::uint32_t((sign >> 32 | (all & 0xFF) << 23) + step);
      return (sign | (all & 0x7FF) << 52) + step;
    case 5:  // a denormal
      return narrow ? sign >> 32 | all % (1 << 23) >> size / 3 : sign | all % (u64(1) << 52) >> size / 2;
    default: v = with_exponent(int(more % 16) - 5);
  }
  return narrow ? std::bit_cast<std::uint32_t>(float(v)) : std::bit_cast<u64>(v);
}

std::vector<arguments> tuples_of(const operation& o, int seed) {
  std::mt19937_64 random(seed);
  std::vector<arguments> all(48'000);
  for (auto& tuple : all)
    for (int i = 0; i < o.sig.arity(); ++i) tuple[i] = any_pattern(o.sig.arguments[i], random);
  return all;
}

// The processor's estimates, on which the bits of some forms depend.
std::string checksum_of_estimates() {
  checksum sum;
  for (std::uint32_t p = 0x3F800000; p < 0x40800000; p += 0x100) {
    const auto x = _mm_set1_ps(std::bit_cast<float>(p));
    sum.add(std::bit_cast<std::uint32_t>(_mm_cvtss_f32(_mm_rcp_ps(x))));
    sum.add(std::bit_cast<std::uint32_t>(_mm_cvtss_f32(_mm_rsqrt_ps(x))));
  }
  return sum.text();
}

struct kept {
  std::string checksum;
  bool estimated;  // has these bits only with the estimates that the file was written with
};
std::map<std::string, kept> kept_checksums() {
  std::ifstream file(LANEMATH_KEPT_BITS);
  std::map<std::string, kept> all;
  for (std::string line, name, sum; std::getline(file, line);) {
    std::istringstream columns(line);
    std::getline(std::getline(columns, name, ','), sum, ',');
    all[name] = {sum, line.ends_with(",estimated")};
  }
  return all;
}

TEST(BuiltFunctions, HaveTheBitsThatTheyHadBefore) {
  const auto due = kept_checksums();
  const bool same_estimates = due.at("estimates").checksum == checksum_of_estimates();
  if (!same_estimates) fmt::print("other estimates: {}\n", checksum_of_estimates());
  std::size_t compared = 1;
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    for (int width : widths) {
      if ((width != 16 && !o.is_standalone(width, v)) || o.served_by(width, v) != v) continue;
      const auto name = fmt::format("{}{}{}", o.name(), width, suffix(v));
      const auto line = due.find(name);
      compared += line != due.end();
      if (line != due.end() && line->second.estimated && !same_estimates) continue;
      const auto f = library().find(index, v, width);
      ASSERT_TRUE(f) << name;
      checksum sum;
      for (const auto& d : harness::directions) {
        const auto tuples = tuples_of(o, d.mode);
        const harness::rounding in_force(d.mode);
        for (const auto& got : harness::evaluate(o, *f, width, tuples)) sum.add(got.first), sum.add(got.second);
      }
      EXPECT_EQ(line == due.end() ? "" : line->second.checksum, sum.text())
          << "the line would be, with ',estimated' after it if the form uses the processor's estimates\n"
          << name << ',' << sum.text();
    }
  });
  EXPECT_EQ(compared, due.size()) << "lines of forms that no longer exist";
}

}  // namespace
}  // namespace lanemath::testing
