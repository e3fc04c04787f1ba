// How the rows of the catalogue are written.
#pragma once

#include "frame/operation.h"

namespace lanemath::catalogue_detail {

// The shapes of signatures, over the row's floating type T.
enum class shape : std::uint8_t {
  unary,
  binary,
  ternary,
  with_int,
  to_int,
  second,
  second_int,
  binary_second_int,
  pair,
  from_bits
};

constexpr signature of(shape s, bool single) {
  const lane t = single ? lane::f32 : lane::f64;
  const lane i = lane::i32;
  switch (s) {
    case shape::unary: return {t, {t}};
    case shape::binary: return {t, {t, t}};
    case shape::ternary: return {t, {t, t, t}};
    case shape::with_int: return {t, {t, i}};
    case shape::to_int: return {i, {t}};
    case shape::second: return {t, {t}, t, delivery::pointer};
    case shape::second_int: return {t, {t}, i, delivery::pointer};
    case shape::binary_second_int: return {t, {t, t}, i, delivery::pointer};
    case shape::pair: return {t, {t}, t, delivery::pair};
    case shape::from_bits: return {t, {single ? lane::u32 : lane::u64}};
  }
  return {};
}

using variant_set = std::uint8_t;
constexpr variant_set set_of(variant v) { return variant_set(1 << int(v)); }
inline constexpr variant_set D = set_of(variant::standard), N = set_of(variant::native), H = set_of(variant::half),
                             R = set_of(variant::rm);

enum class precision : std::uint8_t { doubles, floats, both };

constexpr range magnitudes(double low, double high) { return {low, high, true}; }
constexpr range between(double low, double high) { return {low, high}; }
constexpr range around_zero(double bound) { return {-bound, bound}; }

// One row for both precisions. Unless it says otherwise an operation has the default variant alone, one algorithm for
// all widths, and its own name in OpenCL C.
class row {
  // The row with a change to both precisions or to one.
  constexpr row with(auto change) const { return with(precision::both, change); }
  constexpr row with(precision p, auto change) const {
    row changed = *this;
    if (p != precision::floats) change(changed.of_precision[0]);
    if (p != precision::doubles) change(changed.of_precision[1]);
    return changed;
  }

 public:
  std::array<operation, 2> of_precision;  // double, single

  template <class... Ranges>
  constexpr row(family group, std::string_view name, shape form, std::string_view brief, Ranges... typical) {
    for (bool single : {false, true}) {
      auto& o = of_precision[single];
      char* end = o.spelling;
      for (char c : name) *end++ = c;
      if (single) *end = 'f';
      o.sig = of(form, single);
      o.group = group;
      o.brief = brief;
      o.typical = {typical...};
      o.opencl_name = o.opencl_stem = name;
    }
  }

  // The variants besides the default.
  constexpr row variants(variant_set of_doubles, variant_set of_floats) const {
    return with([=](operation& o) { o.variant_bits |= o.single() ? of_floats : of_doubles; });
  }
  // These variants are other names of another one, except at a width where either is standalone.
  constexpr row same(precision p, variant_set these, variant_set other) const {
    return with(p, [=](operation& o) {
      for (auto v : lanemath::variants)
        for (auto w : lanemath::variants)
          if ((set_of(v) & these) && set_of(w) == other) o.shared[std::size_t(v)] = w;
    });
  }
  // These variants share an algorithm of their own at this width.
  constexpr row standalone(precision p, int width, variant_set these = D) const {
    return with(p, [=](operation& o) {
      for (auto v : lanemath::variants)
        for (std::size_t k = 0; k < widths.size(); ++k)
          if ((set_of(v) & these) && widths[k] == width) o.standalone_widths[std::size_t(v)] |= std::uint8_t(1 << k);
    });
  }
  constexpr row filler(double value) const {
    return with([=](operation& o) { o.filler = value; });
  }
  constexpr row always_scalar() const {
    return with([](operation& o) { o.always_scalar = true; });
  }
  // To the last bit. Beyond the limit a float may have another result, because there the reduction depends on the sign.
  constexpr row odd(double limit = std::numeric_limits<double>::infinity()) const {
    return symmetric(parity::odd, limit);
  }
  constexpr row even(double limit = std::numeric_limits<double>::infinity()) const {
    return symmetric(parity::even, limit);
  }
  constexpr row unguarded(precision p, variant_set these) const {
    return with(p, [=](operation& o) { o.untested_bits |= these; });
  }
  constexpr row opencl(std::string_view name) const { return opencl(name, name); }
  constexpr row opencl(std::string_view name, std::string_view stem) const {
    return with([=](operation& o) {
      o.opencl_name = name;
      o.opencl_stem = stem;
    });
  }

 private:
  constexpr row symmetric(parity symmetry, double limit) const {
    return with([=](operation& o) {
      o.symmetry = symmetry;
      if (o.single()) o.symmetric_to = limit;
    });
  }
};

}  // namespace lanemath::catalogue_detail
