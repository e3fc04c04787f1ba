// The array functions: the bits of width 16 at any length and address, in place, and nothing touched outside.
#include <dlfcn.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>
#include <lanemath/arrays.hpp>

#include <algorithm>
#include <bit>
#include <cfenv>

#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

// Room whose end, and whose beginning, lie at a page that must not be touched.
class fenced_room {
 public:
  fenced_room() : page_(std::size_t(sysconf(_SC_PAGESIZE))) {
    void* all = mmap(nullptr, 3 * page_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (all == MAP_FAILED || mprotect(static_cast<std::byte*>(all) + page_, page_, PROT_READ | PROT_WRITE) != 0)
      throw std::runtime_error("no memory");
    begin_ = static_cast<std::byte*>(all) + page_;
  }
  ~fenced_room() { munmap(begin_ - page_, 3 * page_); }
  fenced_room(const fenced_room&) = delete;
  fenced_room& operator=(const fenced_room&) = delete;

  std::byte* first() const { return begin_; }
  std::byte* last(std::size_t bytes) const { return begin_ + page_ - bytes; }

 private:
  std::size_t page_;
  std::byte* begin_;
};

// Calls an array function, whose parameters are pointers to the arguments, then to the results, and the length.
void call(void* f, std::vector<std::byte*> p, std::size_t n) {
  using b = std::byte*;
  using size = std::size_t;
  switch (p.size()) {
    case 2: return reinterpret_cast<void (*)(b, b, size)>(f)(p[0], p[1], n);
    case 3: return reinterpret_cast<void (*)(b, b, b, size)>(f)(p[0], p[1], p[2], n);
    default: return reinterpret_cast<void (*)(b, b, b, b, size)>(f)(p[0], p[1], p[2], p[3], n);
  }
}

// The sizes of the elements of each of a function's arrays; the arguments come first.
std::vector<std::size_t> element_sizes(const signature& s) {
  std::vector<std::size_t> all;
  for (int i = 0; i < s.arity(); ++i) all.push_back(size_of(s.arguments[i]));
  all.push_back(size_of(s.result));
  if (s.how != delivery::none) all.push_back(size_of(s.second));
  return all;
}

enum class placing { first_bytes, last_bytes, in_place };

TEST(Arrays, HaveTheBitsOfWidth16AndStayInBounds) {
  std::array<fenced_room, 4> rooms;
  std::size_t called = 0;
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    const auto name = fmt::format("lanemath_{}_array{}", o.name(), suffix(v));
    const auto f = dlsym(RTLD_DEFAULT, name.c_str());
    ASSERT_TRUE(f) << name;
    ++called;
    const auto sizes = element_sizes(o.sig);
    const std::size_t arity = std::size_t(o.sig.arity());
    const auto tuples = mixed_tuples(o, 100);
    auto due = harness::evaluate(o, *library().find(index, v, 16), 16, tuples);
    for (auto where : {placing::first_bytes, placing::last_bytes, placing::in_place})
      for (std::size_t n : {0, 1, 2, 15, 16, 17, 33, 100}) {
        std::vector<std::byte*> arrays;
        for (std::size_t i = 0; i < sizes.size(); ++i) {
          // In place, results take the places of the arguments one by one, if the size is the same.
          const bool replaces =
              where == placing::in_place && i >= arity && i - arity < arity && sizes[i] == sizes[i - arity];
          arrays.push_back(replaces                        ? arrays[i - arity]
                           : where == placing::first_bytes ? rooms[i].first()
                                                           : rooms[i].last(n * sizes[i]));
        }
        // The last elements of the tuples, so that an element meets many places.
        const std::size_t skipped = tuples.size() - n;
        for (std::size_t i = 0; i < arity; ++i)
          for (std::size_t at = 0; at < n; ++at)
            std::memcpy(arrays[i] + at * sizes[i], &tuples[skipped + at][i], sizes[i]);
        call(f, arrays, n);
        for (std::size_t at = 0; at < n; ++at) {
          outcome got;
          std::memcpy(&got.first, arrays[arity] + at * sizes[arity], sizes[arity]);
          if (sizes.size() > arity + 1)
            std::memcpy(&got.second, arrays[arity + 1] + at * sizes[arity + 1], sizes[arity + 1]);
          ASSERT_EQ(got, due[skipped + at])
              << name << "(" << text_of(o, tuples[skipped + at]) << "), element " << at << " of " << n;
        }
      }
  });
  EXPECT_EQ(called, std::size_t(pair_count()));
}

// Zeros there would divide by zero, or go to the rare routines.
TEST(Arrays, FillUnusedLanesWithOrdinaryNumbers) {
  for_each_built(library(), [&](std::size_t, const operation& o, variant v) {
    const auto name = fmt::format("lanemath_{}_array{}", o.name(), suffix(v));
    std::array<std::array<std::byte, 16 * 8>, 4> rooms{};
    std::vector<std::byte*> arrays;
    for (std::size_t i = 0; i < element_sizes(o.sig).size(); ++i) arrays.push_back(rooms[i].data());
    for (int i = 0; i < o.sig.arity(); ++i) {
      const lane l = o.sig.arguments[i];
      const auto element = l == lane::f32   ? std::bit_cast<std::uint32_t>(float(o.filler))
                           : l == lane::f64 ? std::bit_cast<std::uint64_t>(o.filler)
                                            : std::uint64_t(o.filler);
      for (std::size_t at = 0; at < 16; ++at) std::memcpy(&rooms[i][at * size_of(l)], &element, size_of(l));
    }
    const auto raised = [&](std::size_t n) {
      std::feclearexcept(FE_ALL_EXCEPT);
      call(dlsym(RTLD_DEFAULT, name.c_str()), arrays, n);
      return std::fetestexcept(FE_INVALID | FE_DIVBYZERO | FE_OVERFLOW | FE_UNDERFLOW);
    };
    const int by_all = raised(16);
    EXPECT_EQ(raised(1), by_all) << name;
  });
}

template <class T>
std::vector<T> results(void (*f)(const T*, T*, std::size_t), const std::vector<T>& x) {
  std::vector<T> y(x.size());
  f(x.data(), y.data(), x.size());
  return y;
}

TEST(Spans, ChooseTheFunctionByTypeAndNamespace) {
  const std::vector<float> x(21, 0.3f);
  const std::vector<double> wide(21, 0.3);
  std::vector<float> y(21), z(21);
  std::vector<double> wide_y(21);

  lanemath::exp(x, y);
  EXPECT_EQ(y, results(lanemath_expf_array, x));
  lanemath::exp(wide, wide_y);
  EXPECT_EQ(wide_y, results(lanemath_exp_array, wide));
  lanemath::native::exp(x, y);
  EXPECT_EQ(y, results(lanemath_expf_array_native, x));
  lanemath::rm::exp(x, y);
  EXPECT_EQ(y, results(lanemath_expf_array_rm, x));
  lanemath::half::log(x, y);
  EXPECT_EQ(y, results(lanemath_logf_array_half, x));
  lanemath::sincos(x, y, z);
  EXPECT_NEAR(y[20], 0.29552021f, 1e-7);
  EXPECT_NEAR(z[20], 0.95533649f, 1e-7);
}

TEST(Spans, OfDifferentLengthsAreRefusedBeforeAnythingIsWritten) {
  const std::vector<float> x(8, 1.0f);
  std::vector<float> y(7, 5.0f), z(8, 5.0f);
  EXPECT_THROW(lanemath::exp(x, y), std::length_error);
  EXPECT_THROW(lanemath::pow(x, y, z), std::length_error);
  EXPECT_THROW(lanemath::sincos(x, z, y), std::length_error);
  EXPECT_TRUE(std::ranges::count(y, 5.0f) == 7 && std::ranges::count(z, 5.0f) == 8);
}

}  // namespace
}  // namespace lanemath::testing
