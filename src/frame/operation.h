// What the catalogue knows of an operation: its signature, its accuracy variants, and properties of its results.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>

namespace lanemath {

inline constexpr std::string_view symbol_prefix = "__ocl_lanemath_h8_";
inline constexpr std::array widths{1, 2, 3, 4, 8, 16};

// The levels of instructions that kernels are compiled for: the library's own, and those of its companions.
struct level {
  std::string_view name, symbol_prefix;
  std::size_t register_bytes;
};
inline constexpr std::array levels{level{"", symbol_prefix, 16}, level{"avx2", "lanemath_avx2_", 32},
                                   level{"avx512", "lanemath_avx512_", 64}};

enum class lane : std::uint8_t { none, f32, f64, i32, u32, i64, u64 };

constexpr bool is_floating(lane l) { return l == lane::f32 || l == lane::f64; }
constexpr bool is_unsigned(lane l) { return l == lane::u32 || l == lane::u64; }
constexpr std::size_t size_of(lane l) {
  return l == lane::none ? 0 : l == lane::f64 || l == lane::i64 || l == lane::u64 ? 8 : 4;
}
constexpr std::string_view type_name(lane l) {
  return std::array<std::string_view, 7>{"", "float", "double", "int", "uint", "long", "ulong"}[std::size_t(l)];
}

namespace operation_detail {
template <lane L>
constexpr auto value_of() {
  if constexpr (L == lane::f32) return float{};
  if constexpr (L == lane::f64) return double{};
  if constexpr (L == lane::i32) return std::int32_t{};
  if constexpr (L == lane::u32) return std::uint32_t{};
  if constexpr (L == lane::i64) return std::int64_t{};
  if constexpr (L == lane::u64) return std::uint64_t{};
}
}  // namespace operation_detail
template <lane L>
using type_of = decltype(operation_detail::value_of<L>());

// The number of lanes that a vector takes up.
constexpr int padded(int width) { return width == 3 ? 4 : width; }

// How a second result reaches the caller.
enum class delivery : std::uint8_t { none, pointer, pair };

struct signature {
  lane result{};
  std::array<lane, 3> arguments{};
  lane second{};
  delivery how{};

  constexpr int arity() const {
    int n = 0;
    while (n < 3 && arguments[n] != lane::none) ++n;
    return n;
  }
  constexpr std::size_t widest_lane() const {
    std::size_t bytes = std::max(size_of(result), size_of(second));
    for (lane each : arguments) bytes = std::max(bytes, size_of(each));
    return bytes;
  }
  constexpr bool operator==(const signature&) const = default;
};

enum class variant : std::uint8_t { standard, native, half, rm };
inline constexpr std::array variants{variant::standard, variant::native, variant::half, variant::rm};
constexpr std::string_view suffix(variant v) {
  return std::array<std::string_view, 4>{"", "_native", "_half", "_rm"}[std::size_t(v)];
}
// The variant with this suffix. Where a constant is required, any other text does not compile.
constexpr variant variant_of(std::string_view text) {
  std::size_t i = 0;
  while (suffix(variants.at(i)) != text) ++i;
  return variants[i];
}

enum class family : std::uint8_t {
  exponential,
  logarithm,
  power,
  trigonometric,
  inverse_trigonometric,
  hyperbolic,
  root,
  special,
  manipulation,
  conversion,
  integer_division
};

// How a value is rounded; the numbers are those that control the rounding instruction.
enum class direction : std::uint8_t { nearest = 0, down = 1, up = 2, zero = 3, current = 4, current_quietly = 12 };

// f(-x) is -f(x), or f(x), to the last bit.
enum class parity : std::uint8_t { none, odd, even };

// Arguments that programs commonly pass, away from the rare lanes.
struct range {
  double low, high;
  bool logarithmic = false;  // every binade equally often
};

struct operation {
  char spelling[24]{};
  signature sig{};
  family group{};
  std::string_view brief{};
  double filler = 0.75;  // for every argument, converted to its type
  std::array<range, 3> typical{};

  std::uint8_t variant_bits = 1;                    // bit i: variants[i] exists
  std::uint8_t untested_bits = 0;                   // bit i: variants[i] is unguarded
  std::array<variant, 4> shared = variants;         // variants[i] is this one under another name
  std::array<std::uint8_t, 4> standalone_widths{};  // bit k of [i]: variants[i] is standalone at widths[k]

  bool always_scalar = false;  // every lane goes to the rare routine

  parity symmetry{};
  double symmetric_to = std::numeric_limits<double>::infinity();

  // Of conversions.
  direction rounding{};
  bool saturates = false;

  // The name in OpenCL C, and the one that follows `native_` and `half_` there; empty where there is none.
  std::string_view opencl_name{}, opencl_stem{};

  constexpr std::string_view name() const { return spelling; }
  constexpr bool has(variant v) const { return variant_bits >> int(v) & 1; }

  // The name alone is not enough: erf and modf are double precision.
  constexpr bool single() const { return sig.result == lane::f32 || sig.arguments[0] == lane::f32; }
  // The name without the f of single precision, the same for both precisions of an operation.
  constexpr std::string_view base_name() const {
    const bool closes = single() && group != family::conversion;
    return name().substr(0, name().size() - closes);
  }

  // Whether this form has an algorithm of its own, so that a lane may differ from the same lane at another width. All
  // variants that are standalone at a width share one algorithm.
  constexpr bool is_standalone(int width, variant v) const {
    for (std::size_t k = 0; k < widths.size(); ++k)
      if (widths[k] == width) return standalone_widths[std::size_t(v)] >> k & 1;
    return false;
  }
  // The variant whose function serves this form.
  constexpr variant served_by(int width, variant v) const {
    if (is_standalone(width, v)) {
      for (auto first : variants)
        if (is_standalone(width, first)) return first;
    }
    const variant other = shared[std::size_t(v)];
    return is_standalone(width, other) ? v : other;
  }
  // Whether the companions of wider registers have this form: it is computed in vectors, some of which are wider than
  // the library's registers. Three lanes are not: the fourth costs nothing in a register.
  constexpr bool is_wide(int width) const { return !always_scalar && width != 3 && width * sig.widest_lane() > 16; }
  constexpr bool is_at(const level& l, int width) const { return l.name.empty() || is_wide(width); }
  // Whether callers must keep to the variant's range: it has no rare test, and its results outside are unspecified.
  constexpr bool is_unguarded(variant v) const { return untested_bits >> int(v) & 1; }
};

}  // namespace lanemath
