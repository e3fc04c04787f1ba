// What the finished files show to the outside: the library's own, and its companions'.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <memory>
#include <regex>
#include <set>

#include "harness/harness.h"
#include "support/elf_file.h"

namespace lanemath::testing {
namespace {

// The file of each level that was built.
const std::map<std::string_view, std::string> paths{{"", LANEMATH_LIBRARY}, LANEMATH_COMPANIONS};

class FinishedFile : public ::testing::TestWithParam<level> {
 protected:
  const std::string& path() const { return paths.at(GetParam().name); }
  const elf_file& file() const { return file_; }

 private:
  elf_file file_{path()};
};
std::vector<level> built_levels() {
  std::vector<level> built;
  std::ranges::copy_if(levels, std::back_inserter(built), [](const auto& l) { return paths.contains(l.name); });
  return built;
}
INSTANTIATE_TEST_SUITE_P(, FinishedFile, ::testing::ValuesIn(built_levels()),
                         [](const auto& l) { return std::string(l.param.name.empty() ? "library" : l.param.name); });

std::multiset<std::string> names_of_the_catalogue(const level& l = levels[0]) {
  std::multiset<std::string> all;
  for (const auto& o : catalogue)
    for (auto v : variants)
      if (o.has(v))
        for (int width : widths)
          if (o.is_at(l, width)) all.insert(harness::symbol(o, width, v, l));
  return all;
}

TEST(Catalogue, NamesAreUniqueAndReadAsTheyAreMeant) {
  const auto names = names_of_the_catalogue();
  const std::set<std::string> all(names.begin(), names.end());
  EXPECT_EQ(all.size(), names.size());
  const auto symbol = [](std::string_view name, int width, variant v = variant::standard) {
    return harness::symbol(catalogue[index_of(name)], width, v);
  };
  EXPECT_EQ(symbol("exp2", 1), "__ocl_lanemath_h8_exp21");
  EXPECT_EQ(symbol("exp", 2), "__ocl_lanemath_h8_exp2");
  EXPECT_EQ(symbol("exp10", 16), "__ocl_lanemath_h8_exp1016");
  EXPECT_EQ(symbol("expf", 4, variant::native), "__ocl_lanemath_h8_expf4_native");
  EXPECT_FALSE(catalogue[index_of("ceil")].has(variant::native));
  EXPECT_TRUE(all.contains("__ocl_lanemath_h8_cvtfptoi64rtzsatf16"));
  EXPECT_TRUE(all.contains("__ocl_lanemath_h8_atan22"));
}

TEST_P(FinishedFile, ExportsTheCatalogueAndNothingElse) {
  const auto names = names_of_the_catalogue(GetParam());
  EXPECT_EQ(file().exported(SHT_DYNSYM), (std::set<std::string>(names.begin(), names.end())));
}

TEST_P(FinishedFile, ExportsFunctionsOnlyAndImportsNothing) {
  for (const auto& s : file().symbols(SHT_DYNSYM)) {
    EXPECT_TRUE(s.defined) << s.name << " is imported";
    EXPECT_EQ(s.type, STT_FUNC) << s.name;
  }
  for (const auto& d : file().dynamic()) EXPECT_NE(d.tag, DT_NEEDED) << d.text;
}

TEST_P(FinishedFile, RecordsItsName) {
  std::vector<std::string> names;
  for (const auto& d : file().dynamic())
    if (d.tag == DT_SONAME) names.push_back(d.text);
  const std::string name(GetParam().name);
  EXPECT_EQ(names, std::vector{name.empty() ? "__ocl_lanemath_h8.so.3.5" : "liblanemath_" + name + ".so"});
  EXPECT_TRUE(path().ends_with("/" + names.at(0)));
}

TEST_P(FinishedFile, RunsNothingOnLoadingAndNeedsNoRelocation) {
  for (const auto& d : file().dynamic())
    for (std::int64_t tag :
         {DT_INIT, DT_FINI, DT_INIT_ARRAY, DT_FINI_ARRAY, DT_PREINIT_ARRAY, DT_RELA, DT_REL, DT_JMPREL, DT_TEXTREL})
      EXPECT_NE(d.tag, tag);
}

TEST_P(FinishedFile, HasNoVersionsNoWritableDataAndNoExecutableStack) {
  for (const auto& s : file().sections()) {
    const auto name = file().name(s);
    EXPECT_NE(s.sh_type, std::uint32_t(SHT_GNU_versym)) << name;
    EXPECT_NE(s.sh_type, std::uint32_t(SHT_GNU_verdef)) << name;
    EXPECT_NE(s.sh_type, std::uint32_t(SHT_GNU_verneed)) << name;
    // The loader's own table is written once, before the relro segment is sealed.
    EXPECT_TRUE(name == ".dynamic" || !s.sh_size || !(s.sh_flags & SHF_WRITE)) << name;
  }
  bool stack = false, relro = false;
  for (const auto& s : file().segments()) {
    if (s.p_type == PT_GNU_STACK) {
      stack = true;
      EXPECT_FALSE(s.p_flags & PF_X);
    }
    relro |= s.p_type == PT_GNU_RELRO;
    EXPECT_FALSE(s.p_type == PT_LOAD && (s.p_flags & PF_W) && (s.p_flags & PF_X));
  }
  EXPECT_TRUE(stack);
  EXPECT_TRUE(relro);
}

// The disassembler's mnemonics. All of AVX begin with v, and otherwise only those of virtualisation do; the rest are
// the later additions to the scalar and 128-bit sets. In a companion every vector instruction begins with v, because
// changing between the two kinds stalls some processors, and none multiplies and adds at once or estimates otherwise
// than the library's: its bits would differ.
TEST_P(FinishedFile, HasNoInstructionAboveItsLevel) {
  const std::string command = std::string(LANEMATH_OBJDUMP) + " -d --no-show-raw-insn " + path();
  const std::unique_ptr<FILE, int (*)(FILE*)> out(popen(command.c_str(), "r"), pclose);
  ASSERT_TRUE(out);
  const std::regex instruction(
      R"(^\s*[0-9a-f]+:\s+(?:(?:repz|repnz|rep|lock|data16|cs|ds|notrack|\{[a-z0-9]+\})\s+)*(\S+)\s*(.*))");
  const std::regex later(
      "pcmpgtq|pcmp[ei]str[im]q?|crc32.*|popcnt.*|lzcnt.*|tzcnt.*|aes.*|pclmul.*|sha[0-9].*|andn|bextr.*|bls.*|"
      "bzhi.*|"
      "mulx|pdep|pext|rorx|sarx|shlx|shrx|adcx|adox|movbe.*|gf2p8.*|extrq|insertq|movnts[sd]|rdrand|rdseed");
  const std::regex other_bits("vf(n?m|m)(add|sub).*|vr(cp|sqrt)(14|28).*|vdpp[sd]");
  const std::regex later_vectors(
      "vcvtp[hs]2p[hs]x?|v.*ph|v.*sh|v(aes|pclmul|gf2p8|pconflict|plzcnt|pmadd52|pdp|pop|4f).*|"
      "vperm[it]?2?b|vpmultishift.*|vpshld.*|vpshrd.*|vp(compress|expand)[bw]|vpshufbitqmb");
  const std::regex registers_of_avx512(R"(.*%(zmm|[xy]mm(1[6-9]|2|3)|k[0-7]).*)");
  const bool is_companion = !GetParam().name.empty();
  std::size_t count = 0, wide = 0;
  char line[1024];
  while (std::fgets(line, sizeof line, out.get())) {
    std::cmatch match;
    if (!std::regex_search(line, match, instruction)) continue;
    ++count;
    const std::string mnemonic = match[1], operands = match[2];
    const bool is_vex = mnemonic.starts_with('v') || mnemonic.starts_with('k');
    EXPECT_FALSE(std::regex_match(mnemonic, later)) << line;
    EXPECT_TRUE(is_companion || !is_vex) << line;
    if (!is_companion) continue;
    EXPECT_TRUE(is_vex || operands.find("mm") == std::string::npos) << line;
    EXPECT_FALSE(std::regex_match(mnemonic, other_bits) || std::regex_match(mnemonic, later_vectors)) << line;
    EXPECT_FALSE(GetParam().name == "avx2" && std::regex_match(operands, registers_of_avx512)) << line;
    wide += operands.find(GetParam().name == "avx2" ? "%ymm" : "%zmm") != std::string::npos;
  }
  EXPECT_GT(count, 100u);
  EXPECT_TRUE(!is_companion || wide > 100) << wide;
}

}  // namespace
}  // namespace lanemath::testing
