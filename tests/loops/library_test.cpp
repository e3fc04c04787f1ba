// What the file of the library for arrays and loops shows to the outside, and which companions it calls.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <regex>

#include "harness/harness.h"
#include "support/elf_file.h"

namespace lanemath::testing {
namespace {

TEST(LoopsLibrary, NeedsTheLibraryBesideItAndNothingElse) {
  std::vector<std::string> seen;
  for (const auto& d : elf_file(LANEMATH_LOOPS).dynamic())
    if (d.tag == DT_NEEDED || d.tag == DT_SONAME || d.tag == DT_RUNPATH) seen.push_back(d.text);
  EXPECT_EQ(seen, (std::vector<std::string>{"__ocl_lanemath_h8.so.3.5", "liblanemath_loops.so.3", "$ORIGIN"}));
}

TEST(LoopsLibrary, ExportsArrayFunctionsAndVectorFormsAndNothingElse) {
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

// A vector form may use the instructions that its letter stands for, a level's array function those of the level,
// everything else those of any x86-64 processor.
TEST(LoopsLibrary, UsesTheInstructionsOfItsCallers) {
  const std::string command = std::string(LANEMATH_OBJDUMP) + " -d --no-show-raw-insn " + LANEMATH_LOOPS;
  const std::unique_ptr<FILE, int (*)(FILE*)> out(popen(command.c_str(), "r"), pclose);
  ASSERT_TRUE(out);
  const std::regex function("^[0-9a-f]+ <(.*)>:\n"), avx(R"(\tv\w)"),
      avx2(R"(\tv(p(?!erm2f128|ermilp|test).*%ymm|\w*i128|broadcasts[sd]\s+%xmm))"),
      avx512("%zmm|%k[0-7]|%[xyz]mm(1[6-9]|[23][0-9])");
  std::map<char, std::size_t> count;
  char level = 'b';
  bool for_arrays = false, upper_halves = false;
  for (char line[1024]; std::fgets(line, sizeof line, out.get());) {
    std::cmatch match;
    if (std::regex_match(line, match, function)) {
      const auto name = match[1].str();
      const auto is_of = [&](const char* prefix) { return name.find(prefix) != name.npos; };
      level = name.starts_with("_ZGV")    ? name[4]
              : is_of("lanemath_avx512_") ? 'e'
              : is_of("lanemath_avx2_")   ? 'd'
                                          : 'b';
      for_arrays = level > 'c' && !name.starts_with("_ZGV");
      upper_halves = false;
      ++count[level];
    }
    EXPECT_FALSE(level == 'b' && std::regex_search(line, avx)) << line;
    EXPECT_FALSE(level == 'c' && std::regex_search(line, avx2)) << line;
    EXPECT_FALSE(level <= 'd' && std::regex_search(line, avx512)) << line;
    // Whoever calls with vectors in registers has such instructions; array functions are called by anyone.
    const std::string_view text = line;
    const auto has = [&](const char* part) { return text.find(part) != text.npos; };
    if (has("vzeroupper") || has("\tcall"))  // which clears all but what it returns
      upper_halves = false;
    else if (for_arrays && (has("%ymm") || has("%zmm")))
      upper_halves = true;
    EXPECT_FALSE(upper_halves && has("\tret")) << "leaves upper halves: " << line;
  }
  for (char each : {'b', 'c', 'd', 'e'}) EXPECT_GT(count[each], 300u) << each;
}

#ifdef LANEMATH_EMPTY_LEVELS
namespace fs = std::filesystem;

// Whether exponentials are 0, as they are in the companions made for this test, in a program whose library finds these
// files beside it.
bool calls_companion(std::initializer_list<std::pair<fs::path, fs::path>> companions) {
  auto name = (fs::temp_directory_path() / "lanemath-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("cannot make a folder " + name);
  const fs::path folder = name, loops = LANEMATH_LOOPS;
  for (const auto& file : {loops, loops.parent_path() / "__ocl_lanemath_h8.so.3.5"})
    fs::create_symlink(file, folder / file.filename());
  for (const auto& [as, file] : companions) fs::create_symlink(file, folder / as);
  const int status = std::system(("LD_LIBRARY_PATH=" + name + " " LANEMATH_EXPONENTIALS).c_str());
  fs::remove_all(folder);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) <= 1) << status;
  return status == 0;
}

TEST(LoopsLibrary, CallsOnlyCompanionsOfItsVersionWhoseLevelTheProcessorHas) {
  const fs::path empty = LANEMATH_EMPTY_LEVELS;
  const fs::path avx2 = "liblanemath_avx2.so.3", avx512 = "liblanemath_avx512.so.3";
  EXPECT_EQ(calls_companion({{avx2, empty / "own-avx2.so"}}), bool(__builtin_cpu_supports("avx2")));
  EXPECT_EQ(calls_companion({{avx512, empty / "own-avx512.so"}}), bool(__builtin_cpu_supports("avx512bw")));
  EXPECT_FALSE(calls_companion({{avx2, empty / "other-avx2.so"}, {avx512, empty / "other-avx512.so"}}));
  EXPECT_FALSE(calls_companion({{avx2, __FILE__}, {avx512, fs::temp_directory_path()}})) << "no companions";
  EXPECT_FALSE(calls_companion({}));
}
#endif

}  // namespace
}  // namespace lanemath::testing
