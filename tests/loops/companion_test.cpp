// What the companion library's file shows to the outside.
#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <memory>
#include <regex>

#include "harness/harness.h"
#include "support/elf_file.h"

namespace lanemath::testing {
namespace {

TEST(Companion, NeedsTheLibraryBesideItAndNothingElse) {
  std::vector<std::string> seen;
  for (const auto& d : elf_file(LANEMATH_LOOPS).dynamic())
    if (d.tag == DT_NEEDED || d.tag == DT_SONAME || d.tag == DT_RUNPATH) seen.push_back(d.text);
  EXPECT_EQ(seen, (std::vector<std::string>{"__ocl_lanemath_h8.so.3.5", "liblanemath_loops.so.3", "$ORIGIN"}));
}

TEST(Companion, ExportsArrayFunctionsAndVectorFormsAndNothingElse) {
  std::size_t arrays = 0, entries = 0;
  for (const auto& name : elf_file(LANEMATH_LOOPS).exported(SHT_DYNSYM))
    if (std::regex_match(name, std::regex("lanemath_[a-z0-9]+_array(_native|_half|_rm)?")))
      ++arrays;
    else if (std::regex_match(name, std::regex("_ZGV[bcde]N[0-9]+v+___ocl_lanemath_h8_.*")))
      ++entries;
    else
      ADD_FAILURE() << name;
  std::size_t loop_functions = 0;
  for (const auto& o : catalogue)
    for (auto v : variants) loop_functions += o.has(v) && o.sig.how == delivery::none;
  EXPECT_EQ(arrays, std::size_t(pair_count()));
  EXPECT_EQ(entries, 4 * loop_functions);
}

// A vector form may use the instructions that its letter stands for, everything else those of any x86-64 processor.
TEST(Companion, UsesTheInstructionsOfItsCallers) {
  const std::string command = std::string(LANEMATH_OBJDUMP) + " -d --no-show-raw-insn " + LANEMATH_LOOPS;
  const std::unique_ptr<FILE, int (*)(FILE*)> out(popen(command.c_str(), "r"), pclose);
  ASSERT_TRUE(out);
  const std::regex function("^[0-9a-f]+ <(.*)>:\n"), avx(R"(\tv\w)"),
      avx2(R"(\tv(p(?!erm2f128|ermilp|test).*%ymm|\w*i128|broadcasts[sd]\s+%xmm))"),
      avx512("%zmm|%k[0-7]|%[xyz]mm(1[6-9]|[23][0-9])");
  std::map<char, std::size_t> count;
  char level = 'b';
  for (char line[1024]; std::fgets(line, sizeof line, out.get());) {
    std::cmatch match;
    if (std::regex_match(line, match, function)) {
      const auto name = match[1].str();
      level = name.starts_with("_ZGV") ? name[4] : 'b';
      ++count[level];
    }
    EXPECT_FALSE(level == 'b' && std::regex_search(line, avx)) << line;
    EXPECT_FALSE(level == 'c' && std::regex_search(line, avx2)) << line;
    EXPECT_FALSE(level <= 'd' && std::regex_search(line, avx512)) << line;
  }
  for (char each : {'b', 'c', 'd', 'e'}) EXPECT_GT(count[each], 300u) << each;
}

}  // namespace
}  // namespace lanemath::testing
