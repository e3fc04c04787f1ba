// How much of the stack a call uses: what the finished file's instructions can reach, and what calls were seen to
// write.
#include <gtest/gtest.h>

#include <algorithm>

#include "border/border.h"
#include "support/call.h"
#include "support/disassembly.h"
#include "support/effort.h"
#include "support/elf_file.h"
#include "support/stack_bound.h"

namespace lanemath::testing {
namespace {

// Follows every path from the beginning of a function. The stack pointer moves by constants only, and there are no
// indirect jumps or calls; anything else is reported, so that the figures hold on all paths.
class stack_use {
 public:
  explicit stack_use(const std::string& path) : code_(disassembled(path)) {}

  // The bytes below the stack pointer before the call that the function at this address may touch.
  std::size_t of(std::uint64_t entry) {
    const auto [found, is_new] = known_.try_emplace(entry, in_progress);
    if (found->second == in_progress && !is_new) fail(entry, "calls itself");
    if (is_new) found->second = followed_from(entry);
    return known_.at(entry);
  }

 private:
  static constexpr std::size_t in_progress = std::size_t(-1);

  [[noreturn]] static void fail(std::uint64_t at, const char* why) {
    throw std::runtime_error(fmt::format("the instruction at {:#x} {}", at, why));
  }

  std::size_t followed_from(std::uint64_t entry) {
    static const std::regex below_the_pointer(R"(-(\w+)\(%rsp)");
    std::map<std::uint64_t, std::int64_t> depths;  // below the stack pointer before the call, at each instruction
    std::vector<std::pair<std::uint64_t, std::int64_t>> ahead{{entry, 8}};
    std::int64_t deepest = 0;
    while (!ahead.empty()) {
      auto [at, depth] = ahead.back();
      ahead.pop_back();
      if (const auto [seen, is_new] = depths.try_emplace(at, depth); !is_new) {
        if (seen->second != depth) fail(at, "is reached with different depths of the stack");
        continue;
      }
      // The disassembler takes a wait for the x87 unit for a part of the next instruction, to which jumps may lead.
      const auto found = std::prev(code_.upper_bound(at));
      if (found->first != at && found->first + 1 != at) fail(at, "is within an instruction");
      const std::string &name = found->second.name, &operands = found->second.operands;
      const auto is = [&](std::string_view begin) { return name.starts_with(begin); };
      const auto target = [&] { return std::stoul(operands, nullptr, 16); };

      if (std::smatch match; std::regex_search(operands, match, below_the_pointer))
        deepest = std::max(deepest, depth + std::stol(match[1], nullptr, 0));
      if (is("push")) {
        depth += 8;
      } else if (is("pop")) {
        depth -= 8;
      } else if (operands.ends_with(",%rsp")) {
        const bool constant = operands[0] == '$' && (is("add") || is("sub"));
        if (!constant && !is("cmp") && !is("test")) fail(at, "moves the stack pointer");
        const auto by = constant ? std::int64_t(std::stoul(operands.substr(1), nullptr, 0)) : 0;
        depth += is("sub") ? by : -by;
      } else if (is("leave") || is("enter")) {
        fail(at, "moves the stack pointer");
      }
      deepest = std::max(deepest, depth);

      const bool jumps = is("j"), calls = is("call");
      if ((jumps || calls) && operands.find('*') != std::string::npos) fail(at, "is indirect");
      if (calls) deepest = std::max(deepest, depth + std::int64_t(of(target())));
      if (jumps) ahead.push_back({target(), depth});
      if (is("ret")) {
        if (depth != 8) fail(at, "returns from elsewhere");
      } else if (!is("jmp") && !is("ud2") && !is("hlt")) {
        ahead.push_back({std::next(found)->first, depth});
      }
    }
    return std::size_t(deepest);
  }

  std::map<std::uint64_t, instruction> code_;
  std::map<std::uint64_t, std::size_t> known_;
};

TEST(Stack, IsBoundedOnEveryPathAndNoCallWritesBeyondTheBoundOfItsFunction) {
  stack_use use(LANEMATH_LIBRARY);
  std::map<std::string, std::uint64_t> addresses;
  for (const auto& s : elf_file(LANEMATH_LIBRARY).symbols(SHT_DYNSYM)) addresses[s.name] = s.value;
  std::size_t deepest = 0, deepest_seen = 0;
  std::string which;
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    for (int width : widths) {
      const auto name = harness::symbol(o, width, v);
      const std::size_t bound = use.of(addresses.at(name));
      if (bound > deepest) deepest = bound, which = name;

      const std::size_t calls = effort(16, 800);
      const auto tuples = mixed_tuples(o, width * calls);
      const auto f = library().find(index, v, width).value();
      for (std::size_t n = 0; n < calls; ++n) {
        const auto seen = call_across(o, width, f.address(), {&tuples[n * width], std::size_t(width)}, {}).stack;
        deepest_seen = std::max(deepest_seen, seen);
        ASSERT_LE(seen, (bound + 7) / 8 * 8) << name << " of " << text_of(o, tuples[n * width]);
      }
    }
  });
  fmt::print("the deepest: {} bytes, in {}; seen: {}\n", deepest, which, deepest_seen);
  EXPECT_LE(deepest, stack_bound) << which;
  EXPECT_GT(deepest_seen, deepest / 2) << "the calls hardly reach the deepest routines";
}

}  // namespace
}  // namespace lanemath::testing
