// The instructions of a file, as the disassembler writes them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <memory>
#include <regex>
#include <stdexcept>
#include <string>

namespace lanemath::testing {

struct instruction {
  std::string name, operands;  // without prefixes, spaces and comments
};

// By address.
inline std::map<std::uint64_t, instruction> disassembled(const std::string& path) {
  const std::string command = LANEMATH_OBJDUMP " -d --no-show-raw-insn " + path;
  const std::unique_ptr<FILE, int (*)(FILE*)> out(popen(command.c_str(), "r"), pclose);
  if (!out) throw std::runtime_error("cannot run " + command);
  const std::regex form(
      R"(^\s*([0-9a-f]+):\s+(?:(?:repz|repnz|rep|lock|data16|cs|ds|notrack|\{[a-z0-9]+\})\s+)*(\S+)\s*([^#\n]*))");
  const std::regex space(" +");
  std::map<std::uint64_t, instruction> all;
  char line[1024];
  while (std::fgets(line, sizeof line, out.get())) {
    std::cmatch match;
    if (std::regex_search(line, match, form))
      all[std::strtoull(match[1].first, nullptr, 16)] = {match[2].str(), std::regex_replace(match[3].str(), space, "")};
  }
  return all;
}

}  // namespace lanemath::testing
