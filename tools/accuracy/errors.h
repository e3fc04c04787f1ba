// The largest errors that were found, from errors.csv in this folder, and the bounds that follow from them. The public
// headers state the bounds, the tests hold every form to them, and docs/accuracy.md lists the errors.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "frame/catalogue.h"

namespace lanemath::accuracy {

using arguments = std::array<std::uint64_t, 3>;  // bit patterns

// As the file and users of the tool name it: default, native ...
std::string_view name_of(variant v);

// The width of a standalone form; 0 for the forms that share the code of the other widths.
int own_width(const operation& o, variant v, int width);

// A line of the file. Results that round to a denormal or overflow are measured in the format's smallest step there.
struct error_record {
  std::size_t index = 0;            // of the operation in the catalogue
  std::vector<variant> variants{};  // those that share the code
  int width = 0;                    // of a standalone form, or 0
  std::string part{};               // of the arguments, in words; empty: all of them
  double error = 0;                 // ulp, rounded up to six digits
  std::optional<arguments> at{};
  std::string search{};             // how it was found, in words
  std::optional<double> rounded{};  // percent of all inputs whose results are correctly rounded
  // The bound on any processor, of a form that starts from the processor's estimate of a reciprocal or a root: with
  // the largest error of an estimate that vendors allow, 1.5 * 2^-12.
  std::optional<double> anywhere{};

  bool has(variant v) const;
  bool is_of(const operation& o, variant v, int width) const;
  // What is stated: the error rounded up to three digits, or what holds on any processor.
  double bound() const;
};

// The file's lines. A malformed file throws std::runtime_error, which names the line.
std::vector<error_record> read_errors(const std::string& path);
void write_errors(const std::string& path, std::vector<error_record> records);
// The path of the file, in the source folder or installed, and its lines.
const std::string& errors_path();
const std::vector<error_record>& recorded_errors();

// Enters a measured error: if it is larger than that of its line of `records`, or the largest of all inputs, it
// replaces it, with its place. The error of a part counts for all arguments too. Throws if a bound that should hold on
// every processor is broken.
void merge(std::vector<error_record>& records, const error_record& found);

// A line of shares.csv beside that file: how many results are correctly rounded, of how many that were measured in a
// part of the arguments of a default form.
struct share {
  static constexpr std::uint64_t block = 1'000'000;  // lanes are measured in blocks

  std::size_t index = 0;
  int width = 0;  // of a standalone form, or 0
  std::string part{};
  std::uint64_t lanes = 0, rounded = 0;
  double error = 0;  // the largest, in ulp, rounded up to six digits
  arguments at{};
};
std::vector<share> read_shares(const std::string& path);
void write_shares(const std::string& path, std::vector<share> lines);
std::string shares_path();

// The bit patterns of an operation's arguments, as in the file: "0x3F7FB84A 0x47982860".
arguments place_in(std::string_view text, const signature& sig);

std::string text_of_place(const operation& o, const arguments& at);

// The error rounded up to so many significant digits; the error as text.
double rounded_up(double error, int digits);
std::string text_of_error(double error);

}  // namespace lanemath::accuracy

namespace lanemath {

// Families whose operations are exact unless they have a line: each result is what the operation's rule gives.
constexpr bool is_exact(family f) {
  return f == family::conversion || f == family::integer_division || f == family::manipulation;
}

// The bound of a function, or nothing if none is stated.
std::optional<double> bound_of(const operation& o, variant v, int width);

}  // namespace lanemath
