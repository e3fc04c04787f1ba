// Calls any exported function over arrays of lanes, by its place in the catalogue.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::harness {

struct invoker_arguments {
  const void* const* inputs;
  void* result;
  void* second;
  std::size_t lanes;
};
using invoker = void (*)(void* address, const invoker_arguments&);

class function {
 public:
  function(void* address, invoker calls) : address_(address), invoker_(calls) {}

  // One call for every vector of the arrays. `lanes` counts the lanes that the vectors occupy, a multiple of
  // padded(width). `second` receives the second result, through a pointer or from a pair.
  void call(const void* const* inputs, void* result, void* second, std::size_t lanes) const {
    invoker_(address_, {inputs, result, second, lanes});
  }
  const void* address() const { return address_; }

 private:
  void* address_;
  invoker invoker_;
};

std::string symbol(const operation& o, int width, variant v, const level& at = levels[0]);

// The path of the library that was installed or built with this program.
std::string default_library();

// Whether this processor has what a level needs.
bool has_instructions(const level& l);

// A loaded library, or a companion for wider registers. Its functions live as long as it does.
class library {
 public:
  explicit library(const std::string& path);
  ~library();
  library(const library&) = delete;
  library& operator=(const library&) = delete;

  // Empty if the library does not export it.
  std::optional<function> find(std::size_t operation_index, variant v, int width) const;
  const level& of_level() const { return *level_; }

 private:
  void* handle_;
  const level* level_ = &levels[0];
};

// Bit patterns: the arguments of one lane, and its results.
using arguments = std::array<std::uint64_t, 3>;
struct outcome {
  std::uint64_t first = 0, second = 0;
  bool operator==(const outcome&) const = default;
};

// The function on each tuple, packed into vectors of its width. At width 3 every fourth lane holds `junk`.
std::vector<outcome> evaluate(const operation& o, const function& f, int width, std::span<const arguments> tuples,
                              std::uint64_t junk = 0);

// For messages, with all of the lane's digits.
std::string hexadecimal(lane l, std::uint64_t bits);
std::string text_of(const operation& o, const arguments& tuple);
std::string text_of(const operation& o, const outcome& got);

}  // namespace lanemath::harness
