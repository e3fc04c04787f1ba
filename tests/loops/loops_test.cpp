// Ordinary loops over the functions of width 1, compiled by GCC for several sets of instructions: they call the vector
// forms, and every element has the bits of width 1.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/elf_file.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

struct caller {
  std::string_view instructions;
  char letter;  // of the instructions in the vector function ABI
  const char* path;
  bool runs_here;
};
const caller callers[] = {
    {"sse2", 'b', LANEMATH_LOOPS_CALLER_sse2, true},
    {"avx", 'c', LANEMATH_LOOPS_CALLER_avx, bool(__builtin_cpu_supports("avx"))},
    {"avx2", 'd', LANEMATH_LOOPS_CALLER_avx2, bool(__builtin_cpu_supports("avx2"))},
    {"avx512f", 'e', LANEMATH_LOOPS_CALLER_avx512f, bool(__builtin_cpu_supports("avx512f"))},
};

class Loop : public ::testing::TestWithParam<caller> {
 protected:
  // Calls visit(operation, its index, variant) for each function that the callers loop over.
  template <class F>
  void for_each_function(F visit) {
    for (std::size_t index = 0; index < catalogue.size(); ++index)
      for (auto v : variants)
        if (catalogue[index].has(v) && catalogue[index].sig.how == delivery::none) visit(catalogue[index], index, v);
  }
};

TEST_P(Loop, CallsTheVectorForm) {
  const auto symbols = elf_file(GetParam().path).symbols(SHT_DYNSYM);
  for_each_function([&](const operation& o, std::size_t, variant v) {
    const auto begin = fmt::format("_ZGV{}N", GetParam().letter), end = "v_" + harness::symbol(o, 1, v);
    EXPECT_TRUE(std::ranges::any_of(
        symbols, [&](const auto& s) { return !s.defined && s.name.starts_with(begin) && s.name.ends_with(end); }))
        << o.name() << suffix(v);
  });
}

TEST_P(Loop, GivesTheBitsOfWidthOne) {
  if (!GetParam().runs_here) GTEST_SKIP() << "this processor lacks " << GetParam().instructions;
  void* caller = dlopen(GetParam().path, RTLD_NOW | RTLD_LOCAL);
  ASSERT_TRUE(caller) << dlerror();
  for_each_function([&](const operation& o, std::size_t index, variant v) {
    const auto address = dlsym(caller, fmt::format("loop_{}{}", o.name(), suffix(v)).c_str());
    ASSERT_TRUE(address) << o.name();
    // Lengths with and without a remainder, up to several of the widest vectors.
    for (std::size_t n : {0, 1, 3, 4, 7, 16, 31, 1000}) {
      const auto tuples = mixed_tuples(o, n);
      const auto due = harness::evaluate(o, *library().find(index, v, 1), 1, tuples);
      std::array<std::vector<std::byte>, 3> x;
      for (int i = 0; i < o.sig.arity(); ++i) {
        const auto size = size_of(o.sig.arguments[i]);
        x[i].resize(n * size);
        for (std::size_t at = 0; at < n; ++at) std::memcpy(&x[i][at * size], &tuples[at][i], size);
      }
      const auto size = size_of(o.sig.result);
      std::vector<std::byte> y(n * size);
      switch (o.sig.arity()) {
        case 1: reinterpret_cast<void (*)(void*, void*, std::size_t)>(address)(x[0].data(), y.data(), n); break;
        case 2:
          reinterpret_cast<void (*)(void*, void*, void*, std::size_t)>(address)(x[0].data(), x[1].data(), y.data(), n);
          break;
        default:
          reinterpret_cast<void (*)(void*, void*, void*, void*, std::size_t)>(address)(x[0].data(), x[1].data(),
                                                                                       x[2].data(), y.data(), n);
      }
      for (std::size_t at = 0; at < n; ++at) {
        outcome got;
        std::memcpy(&got.first, &y[at * size], size);
        ASSERT_EQ(got, due[at]) << o.name() << suffix(v) << "(" << text_of(o, tuples[at]) << "), element " << at
                                << " of " << n;
      }
    }
  });
  dlclose(caller);
}

INSTANTIATE_TEST_SUITE_P(Instructions, Loop, ::testing::ValuesIn(callers),
                         [](const auto& info) { return std::string(info.param.instructions); });

}  // namespace
}  // namespace lanemath::testing
