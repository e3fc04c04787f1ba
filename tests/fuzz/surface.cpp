// One input of the fuzzer: a function, control words and lanes, on which what holds for every function is demanded.
//
// Two bytes choose the function, one the modes; the bytes that follow fill the lanes, again and again until all have a
// pattern. At every width the call leaves the control words and what lies around its results as they were. Lanes do not
// depend on the width, except in standalone forms; and another build of the library, if there is one, gives the same
// bits at each.
#include <fmt/format.h>
#include <xmmintrin.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "harness/harness.h"

namespace {

using namespace lanemath;
using harness::arguments;
using harness::outcome;
using harness::text_of;

constexpr std::size_t lane_count = 16, greatest_room = 24;  // at width 3 six vectors of four lanes
using results = std::array<outcome, lane_count>;

struct form {
  std::size_t index;
  variant v;
  std::vector<harness::function> ours, others;  // by width
};
std::vector<form> forms;
std::uint64_t lanes_computed = 0;

template <class... A>
[[noreturn]] void fail(fmt::format_string<A...> text, A&&... values) {
  fmt::print(stderr, text, std::forward<A>(values)...);
  fmt::print(stderr, "\n");
  std::abort();
}

// Control words by the bits of a byte: direction, flush to zero and denormals are zero of MXCSR; direction and
// precision of the x87 unit.
struct modes {
  unsigned sse;
  std::uint16_t x87;

  explicit modes(std::uint8_t of)
      : sse(_MM_MASK_MASK | (of & 3) << 13 | (of & 4) << 13 | (of & 8) << 3),
        x87(0x007F | (of >> 4 & 3) << 10 | (of >> 6 == 1 ? 3 : of >> 6) << 8) {}
};

// Runs f under these control words, and tells whether it left them, and an empty x87 stack.
template <class F>
bool leaves(const modes& m, F f) {
  const unsigned sse = _mm_getcsr();
  std::uint16_t x87, after[14], again = m.x87;
  asm volatile("fnstcw %0" : "=m"(x87));
  _mm_setcsr(m.sse);
  asm volatile("fldcw %0" ::"m"(again));
  f();
  asm volatile("fnstenv %0" : "=m"(after));
  const unsigned sse_after = _mm_getcsr();
  asm volatile("fldcw %0" ::"m"(x87));
  _mm_setcsr(sse);
  constexpr unsigned flags = 0x3F;
  return (sse_after & ~flags) == m.sse && after[0] == m.x87 && after[4] == 0xFFFF;
}

// Room for results, and what lies around it.
class guarded {
 public:
  void* clear() {
    bytes_.fill(untouched);
    return &bytes_[guard];
  }
  bool holds_only(std::size_t size) const {
    for (std::size_t i = 0; i < bytes_.size(); ++i)
      if (i - guard >= size && bytes_[i] != untouched) return false;
    return true;
  }

 private:
  static constexpr std::size_t guard = 64;
  static constexpr std::uint8_t untouched = 0xA5;
  alignas(64) std::array<std::uint8_t, guard + greatest_room * 8 + guard> bytes_;
};

// What is asked of a function at every width.
struct question {
  const operation& o;
  variant v;
  std::uint8_t modes_of;
  std::array<arguments, lane_count> tuples{};
  std::uint64_t junk = 0;  // in the fourth lane at width 3
};

results answer(const question& q, const harness::function& f, int width) {
  const auto& o = q.o;
  const std::size_t vectors = (lane_count + width - 1) / width, room = vectors * padded(width);
  const auto place = [&](std::size_t n) { return n / width * padded(width) + n % width; };

  alignas(64) static std::uint8_t inputs[3][greatest_room * 8];
  for (int i = 0; i < o.sig.arity(); ++i) {
    const auto size = size_of(o.sig.arguments[i]);
    for (std::size_t n = 0; n < room; ++n) std::memcpy(&inputs[i][n * size], &q.junk, size);
    for (std::size_t n = 0; n < lane_count; ++n) std::memcpy(&inputs[i][place(n) * size], &q.tuples[n][i], size);
  }
  const void* const given[] = {inputs[0], inputs[1], inputs[2]};

  static guarded first_room, second_room;
  auto* const first = static_cast<std::uint8_t*>(first_room.clear());
  auto* const second = static_cast<std::uint8_t*>(second_room.clear());
  const auto size = size_of(o.sig.result), second_size = o.sig.how == delivery::none ? 0 : size_of(o.sig.second);
  if (!leaves(modes(q.modes_of), [&] { f.call(given, first, second, room); }))
    fail("{}{} leaves other control words", o.name(), width);
  if (!first_room.holds_only(room * size) || !second_room.holds_only(room * second_size))
    fail("{}{} writes beside its results", o.name(), width);
  lanes_computed += vectors * width;

  results got{};
  for (std::size_t n = 0; n < lane_count; ++n) {
    std::memcpy(&got[n].first, first + place(n) * size, size);
    std::memcpy(&got[n].second, second + place(n) * second_size, second_size);
  }
  return got;
}

void demand_same(const question& q, int width, const results& one, std::string_view what, const results& two) {
  for (std::size_t n = 0; n < lane_count; ++n)
    if (one[n] != two[n])
      fail("{}{}{} and {}, modes {:#x}: {} and {} of {}", q.o.name(), width, suffix(q.v), what, q.modes_of,
           text_of(q.o, one[n]), text_of(q.o, two[n]), text_of(q.o, q.tuples[n]));
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  static const harness::library library(LANEMATH_LIBRARY);
  static std::optional<harness::library> other;
  if (const std::string path = LANEMATH_OTHER_LIBRARY; std::filesystem::exists(path)) other.emplace(path);
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (auto v : variants) {
      if (!catalogue[index].has(v)) continue;
      auto& added = forms.emplace_back(form{index, v, {}, {}});
      for (int width : widths) {
        added.ours.push_back(library.find(index, v, width).value());
        if (other) added.others.push_back(other->find(index, v, width).value());
      }
    }
  std::atexit([] { fmt::print(stderr, "{} lanes\n", lanes_computed); });
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 4) return -1;
  const auto& which = forms[(data[0] | data[1] << 8) % forms.size()];
  question q{.o = catalogue[which.index], .v = which.v, .modes_of = data[2]};
  data += 3;
  size -= 3;

  std::size_t next = 0;
  const auto pattern = [&](lane type) {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < size_of(type); ++i) bits |= std::uint64_t(data[next++ % size]) << 8 * i;
    return bits;
  };
  for (auto& tuple : q.tuples)
    for (int i = 0; i < q.o.sig.arity(); ++i) tuple[i] = pattern(q.o.sig.arguments[i]);
  q.junk = pattern(lane::u64);

  std::optional<results> common;
  for (std::size_t i = 0; i < widths.size(); ++i) {
    const int width = widths[i];
    const auto got = answer(q, which.ours[i], width);
    if (!q.o.is_standalone(width, q.v)) {
      if (common) demand_same(q, width, got, "a smaller width", *common);
      common = got;
    }
    if (!which.others.empty()) demand_same(q, width, got, "another build", answer(q, which.others[i], width));
  }
  return 0;
}
