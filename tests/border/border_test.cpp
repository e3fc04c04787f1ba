// Every function at the binary interface: what it leaves in registers, control words and memory, and that nothing but
// its arguments decides its results. Functions that break the rules show that a breach is seen.
#include "border/border.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "support/call.h"
#include "support/effort.h"

namespace lanemath::testing {
namespace {

using breaches = std::map<rule, std::string>;  // with the first call that showed it

// Lane patterns that an operation computing on them would show in its results or in the exceptions.
u64 junk_of(lane l, std::size_t n) {
  const auto& special = special_patterns(l);
  return n % 2 ? signalling_nan(l) : special[n / 2 % special.size()];
}

// Pairs of calls on the same lanes, one in tidy surroundings and one in others, in all directions and precisions. The
// results lie at every offset from either end of a page, the stack at every multiple of 16 from its end.
breaches examine(const operation& o, int width, const void* function, std::size_t rounds,
                 const harness::function* usual_call = nullptr) {
  std::mt19937_64 random(width);
  const auto tuples = mixed_tuples(o, width * rounds);
  breaches found;
  for (std::size_t n = 0; n < rounds; ++n) {
    const std::span of_call(&tuples[n * width], width);
    surroundings tidy{
        .others = 0x3F80'0000'3F80'0000, .stack = n % 4 * 16, .hidden_shift = n % 4 * 16, .second_shift = n % 64};
    for (int i = 0; i < o.sig.arity(); ++i)
      tidy.junk[i] = size_of(o.sig.arguments[i]) == 4 ? pattern(1.0f) : pattern(1.0);
    const bool usual_modes = n % 2 == 0;
    if (!usual_modes) {
      const auto bits = std::uint32_t(random());
      constexpr std::uint16_t precisions[] = {0, 0x200, 0x300};
      tidy.mxcsr |= (bits & 0xE040);  // the direction, flush to zero, denormals are zero
      tidy.x87 = std::uint16_t(0x7F | (bits & 0xC00) | precisions[(bits >> 16) % 3]);
    }
    surroundings other = tidy;
    for (int i = 0; i < o.sig.arity(); ++i) other.junk[i] = junk_of(o.sig.arguments[i], n);
    other.others = random();
    other.stack = (n + 2) % 4 * 16;
    other.at_end = true;

    const auto a = call_across(o, width, function, of_call, tidy), b = call_across(o, width, function, of_call, other);
    const auto note = [&](rule r, bool in_tidy) {
      found.try_emplace(r, fmt::format("call {} in {} surroundings, MXCSR {:#x}, x87 word {:#x}, first lane {}", n,
                                       in_tidy ? "tidy" : "other", tidy.mxcsr, tidy.x87, text_of(o, of_call[0])));
    };
    for (auto r : a.broken) note(r, true);
    for (auto r : b.broken) note(r, false);
    if (a.lanes.empty() || b.lanes.empty()) continue;  // one of them did not return
    if (a.lanes != b.lanes) note(rule::ignores_junk_in_results, false);
    if (a.exceptions != b.exceptions) note(rule::ignores_junk_in_flags, false);
    if (usual_call && usual_modes && a.lanes != harness::evaluate(o, *usual_call, width, of_call))
      note(rule::ignores_junk_in_results, true);
  }
  return found;
}

class Border : public ::testing::TestWithParam<int> {};

TEST_P(Border, IsKeptByEveryFunction) {
  const int width = GetParam();
  int examined = 0;
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    const auto f = library().find(index, v, width).value();
    for (const auto& [r, where] : examine(o, width, f.address(), effort(64, 3200), &f))
      ADD_FAILURE() << o.name() << width << suffix(v) << " breaks rule " << int(r) << " first in " << where;
    ++examined;
  });
  EXPECT_EQ(examined, pair_count());
}
INSTANTIATE_TEST_SUITE_P(AtWidth, Border, ::testing::ValuesIn(widths));

// What the functions of broken.S break, each in the shape of an operation at a width.
#define OFFENDERS(X)                                                                          \
  X(changes_rbx, "expf", 4, keeps_registers)                                                  \
  X(changes_rbp, "expf", 4, keeps_registers)                                                  \
  X(changes_r12, "expf", 4, keeps_registers)                                                  \
  X(changes_r13, "expf", 4, keeps_registers)                                                  \
  X(changes_r14, "expf", 4, keeps_registers)                                                  \
  X(changes_r15, "expf", 4, keeps_registers)                                                  \
  X(leaves_the_stack_pointer, "expf", 4, keeps_stack_pointer)                                 \
  X(sets_the_direction_flag, "exp", 2, clears_direction_flag)                                 \
  X(changes_mxcsr, "exp", 2, keeps_mxcsr)                                                     \
  X(changes_the_x87_word, "expf", 4, keeps_x87_word)                                          \
  X(leaves_an_x87_register, "expf", 4, empties_x87_registers)                                 \
  X(turns_the_x87_stack, "expf", 4, empties_x87_registers)                                    \
  X(adds_the_last_lane, "expf", 3, ignores_junk_in_results)                                   \
  X(multiplies_all_of_xmm0, "expf", 1, ignores_junk_in_flags)                                 \
  X(multiplies_all_of_xmm0, "expf", 2, ignores_junk_in_flags)                                 \
  X(multiplies_all_of_xmm0, "expf", 3, ignores_junk_in_flags)                                 \
  X(multiplies_all_of_ymm0, "expf", 4, ignores_junk_in_flags)                                 \
  X(adds_a_register_never_written, "expf", 4, ignores_junk_in_results)                        \
  X(trusts_the_upper_half_of_an_int, "nanf", 1, ignores_junk_in_results)                      \
  X(forgets_the_hidden_pointer, "expf", 8, returns_hidden_pointer)                            \
  X(writes_beyond_its_result, "expf", 8, writes_results_only, touches_nothing_else)           \
  X(writes_before_its_result, "expf", 8, writes_results_only, touches_nothing_else)           \
  X(reads_beyond_its_arguments, "expf", 8, touches_nothing_else)                              \
  X(writes_beyond_its_arguments, "expf", 8, keeps_callers_stack, touches_nothing_else)        \
  X(wants_more_alignment_of_the_stack, "expf", 8, touches_nothing_else)                       \
  X(uses_much_stack, "expf", 8, bounds_its_stack)                                             \
  X(wants_an_aligned_second_result, "sincosf", 4, touches_nothing_else)                       \
  X(writes_beyond_its_second_result, "sincosf", 4, writes_results_only, touches_nothing_else) \
  X(writes_before_its_second_result, "sincosf", 4, writes_results_only, touches_nothing_else) \
  X(reads_beyond_its_second_result, "sincosf", 4, touches_nothing_else)                       \
  X(reads_before_its_second_result, "sincosf", 4, touches_nothing_else)                       \
  X(forgets_a_lane_of_its_second_result, "sincosf", 4, ignores_junk_in_results)

#define DECLARE(name, ...) extern "C" void broken_##name();
OFFENDERS(DECLARE)

TEST(BorderControls, EveryBreachIsSeen) {
  using enum rule;
  struct {
    std::string_view name;
    void (*function)();
    std::string_view shape;
    int width;
    std::set<rule> broken;
  } const offenders[] = {
#define ROW(name, shape, width, ...) {#name, broken_##name, shape, width, {__VA_ARGS__}},
      OFFENDERS(ROW)};
  for (const auto& each : offenders) {
    if (each.name == "multiplies_all_of_ymm0" && !__builtin_cpu_supports("avx")) continue;
    std::set<rule> broken;
    const auto& o = catalogue[index_of(each.shape)];
    for (const auto& [r, where] : examine(o, each.width, reinterpret_cast<const void*>(each.function), 64))
      broken.insert(r);
    EXPECT_EQ(broken, each.broken) << each.name << " at width " << each.width;
  }
}

}  // namespace
}  // namespace lanemath::testing
