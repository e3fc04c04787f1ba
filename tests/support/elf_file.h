// An object or shared object, as its reader sees it.
#pragma once

#include <elf.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lanemath::testing {

class elf_file {
 public:
  struct symbol {
    std::string name;
    unsigned char type, binding, visibility;
    bool defined;
    std::uint64_t value;
  };

  explicit elf_file(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    bytes_.assign(std::istreambuf_iterator<char>(in), {});
    if (bytes_.size() < sizeof(Elf64_Ehdr) || std::memcmp(bytes_.data(), ELFMAG, SELFMAG) != 0)
      throw std::runtime_error(path + " is not an ELF file");
    sections_ = records<Elf64_Shdr>(header().e_shoff, header().e_shnum);
    segments_ = records<Elf64_Phdr>(header().e_phoff, header().e_phnum);
  }

  const std::vector<Elf64_Shdr>& sections() const { return sections_; }
  const std::vector<Elf64_Phdr>& segments() const { return segments_; }
  std::string name(const Elf64_Shdr& s) const { return text(sections_.at(header().e_shstrndx), s.sh_name); }

  std::string_view bytes() const { return {bytes_.data(), bytes_.size()}; }
  // What is in the section of this name; empty if there is none.
  std::string_view contents(std::string_view section) const {
    for (const auto& s : sections_)
      if (name(s) == section) return bytes().substr(s.sh_offset, s.sh_size);
    return {};
  }

  // For a symbol table: SHT_DYNSYM in a shared object, SHT_SYMTAB in an object.
  std::vector<symbol> symbols(std::uint32_t table) const {
    std::vector<symbol> all;
    for (const auto& section : sections_)
      if (section.sh_type == table)
        for (const auto& s : records<Elf64_Sym>(section.sh_offset, section.sh_size / sizeof(Elf64_Sym)))
          if (s.st_name)
            all.push_back({text(sections_.at(section.sh_link), s.st_name), std::uint8_t(ELF64_ST_TYPE(s.st_info)),
                           std::uint8_t(ELF64_ST_BIND(s.st_info)), std::uint8_t(ELF64_ST_VISIBILITY(s.st_other)),
                           s.st_shndx != SHN_UNDEF, s.st_value});
    return all;
  }

  // Names that are defined and visible to others.
  std::set<std::string> exported(std::uint32_t table) const {
    std::set<std::string> names;
    for (const auto& s : symbols(table))
      if (s.defined && s.binding != STB_LOCAL && s.visibility == STV_DEFAULT) names.insert(s.name);
    return names;
  }

  struct dynamic_entry {
    std::int64_t tag;
    std::uint64_t value;
    std::string text;  // the value as a name
  };
  std::vector<dynamic_entry> dynamic() const {
    std::vector<dynamic_entry> all;
    for (const auto& section : sections_)
      if (section.sh_type == SHT_DYNAMIC)
        for (const auto& d : records<Elf64_Dyn>(section.sh_offset, section.sh_size / sizeof(Elf64_Dyn))) {
          const auto& strings = sections_.at(section.sh_link);
          all.push_back({d.d_tag, d.d_un.d_val, d.d_un.d_val < strings.sh_size ? text(strings, d.d_un.d_val) : ""});
        }
    return all;
  }

 private:
  const Elf64_Ehdr& header() const { return *reinterpret_cast<const Elf64_Ehdr*>(bytes_.data()); }
  std::string text(const Elf64_Shdr& strings, std::size_t at) const { return &bytes_.at(strings.sh_offset + at); }
  template <class T>
  std::vector<T> records(std::size_t offset, std::size_t count) const {
    if (offset + count * sizeof(T) > bytes_.size()) throw std::runtime_error("a table ends outside its file");
    std::vector<T> all(count);
    if (count) std::memcpy(all.data(), &bytes_[offset], count * sizeof(T));
    return all;
  }

  std::vector<char> bytes_;
  std::vector<Elf64_Shdr> sections_;
  std::vector<Elf64_Phdr> segments_;
};

}  // namespace lanemath::testing
