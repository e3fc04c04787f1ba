// What the finished files show to the outside: the library's own, and its companions'.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "harness/harness.h"
#include "support/disassembly.h"
#include "support/elf_file.h"

namespace lanemath::testing {
namespace {

// The file of each level that was built.
const std::map<std::string_view, std::string> paths{{"", LANEMATH_LIBRARY} LANEMATH_COMPANIONS};

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
  std::set<std::string> all(names.begin(), names.end());
  if (!GetParam().name.empty()) all.insert(std::string(GetParam().symbol_prefix) + "version");
  EXPECT_EQ(file().exported(SHT_DYNSYM), all);
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
  EXPECT_EQ(names, std::vector{name.empty() ? "__ocl_lanemath_h8.so.3.5" : "liblanemath_" + name + ".so.3"});
  EXPECT_TRUE(path().ends_with("/" + names.at(0)));
}

// By which a program that loads a companion knows it for one of its own version.
TEST_P(FinishedFile, ACompanionTellsItsVersion) {
  if (GetParam().name.empty()) return;
  void* const companion = dlopen(path().c_str(), RTLD_NOW);
  ASSERT_TRUE(companion) << dlerror();
  const auto symbol = std::string(GetParam().symbol_prefix) + "version";
  const auto version = reinterpret_cast<const char* (*)()>(dlsym(companion, symbol.c_str()));
  ASSERT_TRUE(version);
  EXPECT_STREQ(version(), LANEMATH_VERSION);
  dlclose(companion);
}

TEST_P(FinishedFile, RunsNothingOnLoadingAndNeedsNoRelocation) {
  for (const auto& d : file().dynamic())
    for (std::int64_t tag : {DT_INIT, DT_FINI, DT_INIT_ARRAY, DT_FINI_ARRAY, DT_PREINIT_ARRAY, DT_RELA, DT_REL, DT_RELR,
                             DT_JMPREL, DT_TEXTREL})
      EXPECT_NE(d.tag, tag);
}

TEST_P(FinishedFile, HoldsNoPathOfTheMachineThatBuiltIt) {
  const auto bytes = file().bytes();
  std::istringstream texts(LANEMATH_FOLDERS ":/usr/:.cpp");
  for (std::string text; std::getline(texts, text, ':');) EXPECT_EQ(bytes.find(text), bytes.npos) << text;
}

// As debuggers compute it for the link to a file of symbols.
std::uint32_t checksum(std::string_view bytes) {
  std::uint32_t sum = 0xFFFFFFFF;
  for (const unsigned char byte : bytes) {
    sum ^= byte;
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
  }
  return ~sum;
}

TEST_P(FinishedFile, LeavesItsInternalNamesToAFileBesideIt) {
  EXPECT_TRUE(file().symbols(SHT_SYMTAB).empty());
  if (!GetParam().name.empty()) return;  // a companion's are not kept
  const elf_file symbols(std::string(LANEMATH_LIBRARY) + ".debug");
  const auto internal = symbols.symbols(SHT_SYMTAB);
  EXPECT_TRUE(std::ranges::any_of(internal, [](const auto& s) { return s.name.find("pow_rare") != s.name.npos; }));
  EXPECT_EQ(symbols.contents(".note.gnu.build-id"), file().contents(".note.gnu.build-id"));

  const auto link = file().contents(".gnu_debuglink");
  ASSERT_GT(link.size(), 4u);
  EXPECT_STREQ(link.data(), "__ocl_lanemath_h8.so.3.5.debug");
  std::uint32_t sum;
  std::memcpy(&sum, &link[link.size() - 4], 4);
  EXPECT_EQ(sum, checksum(symbols.bytes()));
}

// Every return goes to where the call was: so says the note that lets a program with shadow stacks load the file.
TEST_P(FinishedFile, AllowsShadowStacks) {
  const auto note = file().contents(".note.gnu.property");
  std::array<std::uint32_t, 7> words;  // three sizes, the owner, the kind, its size, its bits
  ASSERT_GE(note.size(), sizeof words);
  std::memcpy(words.data(), note.data(), sizeof words);
  EXPECT_EQ(words[2], std::uint32_t(NT_GNU_PROPERTY_TYPE_0));
  EXPECT_EQ(words[4], GNU_PROPERTY_X86_FEATURE_1_AND);
  EXPECT_EQ(words[6], GNU_PROPERTY_X86_FEATURE_1_SHSTK);
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
  const std::regex later(
      "pcmpgtq|pcmp[ei]str[im]q?|crc32.*|popcnt.*|lzcnt.*|tzcnt.*|aes.*|pclmul.*|sha[0-9].*|andn|bextr.*|bls.*|bzhi.*|"
      "mulx|pdep|pext|rorx|sarx|shlx|shrx|adcx|adox|movbe.*|gf2p8.*|extrq|insertq|movnts[sd]|rdrand|rdseed");
  const std::regex other_bits("vf(n?m|m)(add|sub).*|vr(cp|sqrt)(14|28).*|vdpp[sd]");
  const std::regex later_vectors(
      "vcvtp[hs]2p[hs]x?|v.*[ps]h|v(aes|pclmul|gf2p8|pconflict|plzcnt|pmadd52|pdp|pop|4f).*|"
      "vperm[it]?2?b|vpmultishift.*|vpshld.*|vpshrd.*|vp(compress|expand)[bw]|vpshufbitqmb");
  const std::regex of_avx512("%(zmm|[xy]mm(1[6-9]|[23][0-9])|k[0-7])");
  const std::string_view level = GetParam().name;
  std::map<std::string, std::string> mnemonics;  // with the operands of one
  std::size_t wide = 0;
  for (const auto& [address, each] : disassembled(path())) {
    mnemonics.emplace(each.name, each.operands);
    const bool is_vex = each.name.starts_with('v') || each.name.starts_with('k');
    const bool on_vectors = each.operands.find("mm") != std::string::npos;
    EXPECT_TRUE(level.empty() ? !is_vex : is_vex || !on_vectors) << each.name << ' ' << each.operands;
    EXPECT_FALSE(level == "avx2" && on_vectors && std::regex_search(each.operands, of_avx512)) << each.operands;
    wide += each.operands.find(level == "avx2" ? "%ymm" : "%zmm") != std::string::npos;
  }
  EXPECT_GT(mnemonics.size(), 50u);
  EXPECT_EQ(wide > 100, !level.empty()) << wide;
  for (const auto& [mnemonic, operands] : mnemonics)
    for (const auto& excluded : {later, other_bits, later_vectors})
      EXPECT_FALSE(std::regex_match(mnemonic, excluded)) << mnemonic << ' ' << operands;
}

}  // namespace
}  // namespace lanemath::testing
