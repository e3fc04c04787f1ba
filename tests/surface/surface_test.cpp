// What the finished file shows to the outside.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <regex>
#include <set>
#include <sstream>

#include "harness/harness.h"
#include "support/disassembly.h"
#include "support/elf_file.h"

namespace lanemath::testing {
namespace {

const elf_file& library() {
  static const elf_file file(LANEMATH_LIBRARY);
  return file;
}

std::multiset<std::string> names_of_the_catalogue() {
  std::multiset<std::string> all;
  for (const auto& o : catalogue)
    for (auto v : variants)
      if (o.has(v))
        for (int width : widths) all.insert(harness::symbol(o, width, v));
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

TEST(FinishedFile, ExportsTheCatalogueAndNothingElse) {
  const auto names = names_of_the_catalogue();
  EXPECT_EQ(library().exported(SHT_DYNSYM), (std::set<std::string>(names.begin(), names.end())));
}

TEST(FinishedFile, ExportsFunctionsOnlyAndImportsNothing) {
  for (const auto& s : library().symbols(SHT_DYNSYM)) {
    EXPECT_TRUE(s.defined) << s.name << " is imported";
    EXPECT_EQ(s.type, STT_FUNC) << s.name;
  }
  for (const auto& d : library().dynamic()) EXPECT_NE(d.tag, DT_NEEDED) << d.text;
}

TEST(FinishedFile, RecordsItsName) {
  std::vector<std::string> names;
  for (const auto& d : library().dynamic())
    if (d.tag == DT_SONAME) names.push_back(d.text);
  EXPECT_EQ(names, std::vector<std::string>{"__ocl_lanemath_h8.so.3.5"});
  EXPECT_TRUE(std::string(LANEMATH_LIBRARY).ends_with("/__ocl_lanemath_h8.so.3.5"));
}

TEST(FinishedFile, RunsNothingOnLoadingAndNeedsNoRelocation) {
  for (const auto& d : library().dynamic())
    for (std::int64_t tag : {DT_INIT, DT_FINI, DT_INIT_ARRAY, DT_FINI_ARRAY, DT_PREINIT_ARRAY, DT_RELA, DT_REL, DT_RELR,
                             DT_JMPREL, DT_TEXTREL})
      EXPECT_NE(d.tag, tag);
}

TEST(FinishedFile, HoldsNoPathOfTheMachineThatBuiltIt) {
  const auto bytes = library().bytes();
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

TEST(FinishedFile, LeavesItsInternalNamesToAFileBesideIt) {
  EXPECT_TRUE(library().symbols(SHT_SYMTAB).empty());
  const elf_file symbols(std::string(LANEMATH_LIBRARY) + ".debug");
  const auto internal = symbols.symbols(SHT_SYMTAB);
  EXPECT_TRUE(std::ranges::any_of(internal, [](const auto& s) { return s.name.find("pow_rare") != s.name.npos; }));
  EXPECT_EQ(symbols.contents(".note.gnu.build-id"), library().contents(".note.gnu.build-id"));

  const auto link = library().contents(".gnu_debuglink");
  ASSERT_GT(link.size(), 4u);
  EXPECT_STREQ(link.data(), "__ocl_lanemath_h8.so.3.5.debug");
  std::uint32_t sum;
  std::memcpy(&sum, &link[link.size() - 4], 4);
  EXPECT_EQ(sum, checksum(symbols.bytes()));
}

// Every return goes to where the call was: so says the note that lets a program with shadow stacks load the file.
TEST(FinishedFile, AllowsShadowStacks) {
  const auto note = library().contents(".note.gnu.property");
  std::array<std::uint32_t, 7> words;  // three sizes, the owner, the kind, its size, its bits
  ASSERT_GE(note.size(), sizeof words);
  std::memcpy(words.data(), note.data(), sizeof words);
  EXPECT_EQ(words[2], std::uint32_t(NT_GNU_PROPERTY_TYPE_0));
  EXPECT_EQ(words[4], GNU_PROPERTY_X86_FEATURE_1_AND);
  EXPECT_EQ(words[6], GNU_PROPERTY_X86_FEATURE_1_SHSTK);
}

TEST(FinishedFile, HasNoVersionsNoWritableDataAndNoExecutableStack) {
  for (const auto& s : library().sections()) {
    const auto name = library().name(s);
    EXPECT_NE(s.sh_type, std::uint32_t(SHT_GNU_versym)) << name;
    EXPECT_NE(s.sh_type, std::uint32_t(SHT_GNU_verdef)) << name;
    EXPECT_NE(s.sh_type, std::uint32_t(SHT_GNU_verneed)) << name;
    // The loader's own table is written once, before the relro segment is sealed.
    EXPECT_TRUE(name == ".dynamic" || !s.sh_size || !(s.sh_flags & SHF_WRITE)) << name;
  }
  bool stack = false, relro = false;
  for (const auto& s : library().segments()) {
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

// The disassembler's mnemonics: all of AVX begin with v, and otherwise only those of virtualisation do. The rest are
// the later additions to the scalar and 128-bit sets.
TEST(FinishedFile, HasNoInstructionAboveSse41) {
  const std::regex later(
      "v.*|pcmpgtq|pcmp[ei]str[im]q?|crc32.*|popcnt.*|lzcnt.*|tzcnt.*|aes.*|pclmul.*|sha[0-9].*|andn|bextr.*|bls.*|"
      "bzhi.*|"
      "mulx|pdep|pext|rorx|sarx|shlx|shrx|adcx|adox|movbe.*|gf2p8.*|extrq|insertq|movnts[sd]|rdrand|rdseed");
  const auto code = disassembled(LANEMATH_LIBRARY);
  for (const auto& [address, each] : code)
    EXPECT_FALSE(std::regex_match(each.name, later)) << each.name << ' ' << each.operands;
  EXPECT_GT(code.size(), 100u);
}

}  // namespace
}  // namespace lanemath::testing
