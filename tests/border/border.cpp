#include "border/border.h"

#include <setjmp.h>
#include <signal.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <stdexcept>

#include "support/lone_pages.h"
#include "support/stack_bound.h"

// What border_call reads and writes, by its order.
struct alignas(16) processor_state {
  std::uint64_t general[16];  // by their numbers in instructions
  std::uint64_t flags;
  std::uint32_t mxcsr;
  struct {
    std::uint16_t control, unused, status, unused_too, tags, unused_as_well;
    std::uint32_t pointers[4];
  } x87;
  alignas(16) std::byte vectors[16][32];
};
static_assert(offsetof(processor_state, x87) == 140 && offsetof(processor_state, vectors) == 176);

extern "C" {
processor_state border_before, border_after;
const void* border_target;
bool border_has_avx = __builtin_cpu_supports("avx");
void border_call();
}

namespace lanemath::testing {
namespace {

enum : std::size_t { rax = 0, rbx = 3, rsp = 4, rbp = 5, rsi = 6, rdi = 7 };
constexpr std::size_t callee_saved[] = {rbx, rbp, 12, 13, 14, 15}, integer_order[] = {rdi, rsi, 2, 1, 8, 9};

// Where a value of some bytes travels.
struct place {
  enum { general, vector, memory } kind;
  std::size_t at;  // the register's number, or the offset on the stack
};

// The System V convention for the functions of the catalogue, told anew rather than taken from the library.
class convention {
 public:
  convention(const operation& o, int width) : o_(o), width_(width) {
    first_size = padded(width) * size_of(o.sig.result);
    second_size = padded(width) * size_of(o.sig.second);
    const bool pair = o.sig.how == delivery::pair;
    hidden = pair ? first_size + second_size > 16 : first_size > 16;
    if (hidden) hidden_pointer = next_general();
    for (int i = 0; i < o.sig.arity(); ++i) {
      const std::size_t size = padded(width) * size_of(o.sig.arguments[i]);
      if (size > 16) {
        arguments[i] = {place::memory, stack_size};
        stack_size += size;
      } else if (width == 1 && !is_floating(o.sig.arguments[i])) {
        arguments[i] = {place::general, next_general()};
      } else {
        arguments[i] = {place::vector, vectors_++};
      }
    }
    if (o.sig.how == delivery::pointer) second_pointer = next_general();
  }

  std::array<place, 3> arguments{};
  std::size_t stack_size = 0, first_size, second_size;
  bool hidden;
  std::size_t hidden_pointer = 0, second_pointer = 0;

  // The bytes of the results that come in registers.
  void results(const processor_state& after, std::byte* first, std::byte* second) const {
    if (hidden) return;
    const bool pair = o_.sig.how == delivery::pair, in_general = width_ == 1 && !is_floating(o_.sig.result);
    const auto* low = in_general ? reinterpret_cast<const std::byte*>(&after.general[rax]) : after.vectors[0];
    std::memcpy(first, low, first_size);
    // A pair of 32-bit lanes shares a register, others have one each.
    if (pair) std::memcpy(second, first_size == 4 ? low + 4 : after.vectors[1], second_size);
  }

 private:
  std::size_t next_general() { return integer_order[generals_++]; }
  const operation& o_;
  int width_;
  std::size_t generals_ = 0, vectors_ = 0;
};

// A call that faults comes back here, from a handler on another stack.
sigjmp_buf back;
extern "C" void leave(int) { siglongjmp(back, 1); }

bool returns() {
  if (sigsetjmp(back, 0)) return false;
  border_call();
  return true;
}

class fault_handler {
 public:
  fault_handler() {
    const stack_t stack{.ss_sp = stack_.data(), .ss_flags = 0, .ss_size = stack_.size()};
    sigaltstack(&stack, &stack_before_);
    struct sigaction leaving {};
    leaving.sa_handler = leave;
    leaving.sa_flags = SA_ONSTACK | SA_NODEFER;
    for (std::size_t i = 0; i < std::size(signals); ++i) sigaction(signals[i], &leaving, &before_[i]);
  }
  ~fault_handler() {
    for (std::size_t i = 0; i < std::size(signals); ++i) sigaction(signals[i], &before_[i], nullptr);
    sigaltstack(&stack_before_, nullptr);
  }

 private:
  static constexpr int signals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGTRAP};
  std::array<char, 1 << 16> stack_;
  stack_t stack_before_;
  struct sigaction before_[std::size(signals)];
};

// The part of a page that is looked at around a result.
struct window {
  std::byte *begin, *end, *result;
  std::size_t size;

  window(const lone_pages& pages, std::size_t bytes, bool at_end, std::size_t shift, std::byte paint)
      : result(at_end ? pages.end() - bytes - shift : pages.begin() + shift), size(bytes) {
    begin = std::max(pages.begin(), result - 64);
    end = std::min(pages.end(), result + bytes + 64);
    std::fill(begin, end, paint);
  }
  bool is_clean_around(std::byte paint) const {
    const auto painted = [=](std::byte b) { return b == paint; };
    return std::all_of(begin, result, painted) && std::all_of(result + size, end, painted);
  }
};

}  // namespace

answer call_across(const operation& o, int width, const void* function, std::span<const harness::arguments> tuples,
                   const surroundings& around) {
  static const lone_pages stack(2), first_page, second_page;
  static const fault_handler in_force;
  const convention c(o, width);
  const auto paint = std::byte(around.others | 1);

  // Everything that is no argument is junk.
  auto& before = border_before;
  before.mxcsr = around.mxcsr;
  before.x87.control = around.x87;
  for (std::size_t n = 0; n < 16; ++n) {
    before.general[n] = around.others * (2 * n + 1);
    for (std::size_t at = 0; at < 32; at += 8) std::memcpy(&before.vectors[n][at], &before.general[n], 8);
  }

  // The stack: painted, the arguments, what lies between them and the end of the page.
  constexpr std::uint64_t stack_paint = 0xB5A3'91F7'0D6C'2E48;
  for (auto* at = stack.begin(); at < stack.end(); at += 8) std::memcpy(at, &stack_paint, 8);
  auto* const top = stack.end() - around.stack - c.stack_size;
  before.general[rsp] = reinterpret_cast<std::uint64_t>(top);

  for (int i = 0; i < o.sig.arity(); ++i) {
    const auto size = size_of(o.sig.arguments[i]);
    const auto [kind, at] = c.arguments[i];
    auto* to = kind == place::memory    ? top + at
               : kind == place::general ? reinterpret_cast<std::byte*>(&before.general[at])
                                        : before.vectors[at];
    if (kind == place::vector)
      for (std::size_t free = 0; free < 32; free += size) std::memcpy(to + free, &around.junk[i], size);
    for (int lane = 0; lane < padded(width); ++lane)
      std::memcpy(to + lane * size, lane < width ? &tuples[lane][i] : &around.junk[i], size);
  }

  const std::size_t hidden_size = c.first_size + (o.sig.how == delivery::pair ? c.second_size : 0);
  const window first(first_page, hidden_size, around.at_end, around.hidden_shift, paint);
  const window second(second_page, c.second_size, around.at_end, around.second_shift, paint);
  if (c.hidden) before.general[c.hidden_pointer] = reinterpret_cast<std::uint64_t>(first.result);
  if (o.sig.how == delivery::pointer) before.general[c.second_pointer] = reinterpret_cast<std::uint64_t>(second.result);

  border_target = function;
  answer got;
  const auto expect = [&](bool kept, rule r) {
    if (!kept) got.broken.push_back(r);
  };
  if (!returns()) {
    expect(false, rule::touches_nothing_else);
    return got;
  }

  const auto& after = border_after;
  expect(std::ranges::all_of(callee_saved, [&](auto n) { return after.general[n] == before.general[n]; }),
         rule::keeps_registers);
  expect(after.general[rsp] == before.general[rsp], rule::keeps_stack_pointer);
  expect(!(after.flags & 0x400), rule::clears_direction_flag);
  expect((after.mxcsr & 0xFFC0) == around.mxcsr, rule::keeps_mxcsr);
  expect(after.x87.control == around.x87, rule::keeps_x87_word);
  expect(after.x87.tags == 0xFFFF && (after.x87.status & 0x3800) == 0, rule::empties_x87_registers);
  if (c.hidden) {
    expect(after.general[rax] == before.general[c.hidden_pointer], rule::returns_hidden_pointer);
    expect(first.is_clean_around(paint), rule::writes_results_only);
  }
  if (o.sig.how == delivery::pointer) expect(second.is_clean_around(paint), rule::writes_results_only);

  const auto is_painted = [&](const std::byte* at) { return std::memcmp(at, &stack_paint, 8) == 0; };
  for (const auto* at = stack.end() - around.stack; at < stack.end(); at += 8)
    if (!is_painted(at)) {
      expect(false, rule::keeps_callers_stack);
      break;
    }
  const auto* lowest = stack.begin();
  while (lowest < top && is_painted(lowest)) lowest += 8;
  got.stack = std::size_t(top - lowest);
  expect(got.stack <= stack_bound, rule::bounds_its_stack);

  got.exceptions = (after.mxcsr & 0x3F) | (after.x87.status & 0x3Fu) << 6;
  std::array<std::byte, 256> in_registers;
  std::byte *one = first.result, *other = second.result;
  if (!c.hidden) one = in_registers.data();
  if (o.sig.how == delivery::pair) other = one + c.first_size;
  c.results(after, one, other);
  got.lanes.resize(width);
  for (int lane = 0; lane < width; ++lane) {
    std::memcpy(&got.lanes[lane].first, one + lane * size_of(o.sig.result), size_of(o.sig.result));
    std::memcpy(&got.lanes[lane].second, other + lane * size_of(o.sig.second), size_of(o.sig.second));
  }
  return got;
}

}  // namespace lanemath::testing
