// Integers to floating-point lanes. An integer is cut into fields that fit the significand. Or-ed into the pattern of a
// power of two, which is then subtracted, a field becomes its exact value. The sum of the fields is rounded once. For
// the directed roundings the error of the sum, which is exact too, decides whether the pattern moves by one unit.
//
// These steps assume that the current direction is to nearest; in another one the sums follow it.
#include <type_traits>

#include "convert/convert.h"

namespace lanemath {
namespace {

// The powers of two that the fields of an integer are or-ed into, one field wide each.
template <class T>
struct field_powers : format<T> {
  using format<T>::fraction_bits;
  static constexpr T P0 = power_of_two<T>(fraction_bits);      // of the lowest field
  static constexpr T P1 = power_of_two<T>(2 * fraction_bits);  // of the next
};
constexpr float P2 = power_of_two<float>(3 * format<float>::fraction_bits);  // of the highest of three
// Subtracted from the pattern of a power of two, gives the pattern of half a unit in its last place.
constexpr std::int32_t HALFULP = (format<float>::fraction_bits + 1) << format<float>::fraction_bits;

// P plus a field in P's lowest bits.
template <class U, int W>
LANEMATH_INLINE auto placed(auto p, const lanes<U, W>& field) {
  return from_bits(field | std::bit_cast<U>(p));
}
template <class U, int W>
LANEMATH_INLINE auto field_value(auto p, const lanes<U, W>& field) {
  return placed(p, field) - p;
}

// The magnitude of an integer and, in lanes of the result's size, the sign bit and the step on the pattern to the next
// larger value: 1, or -1 for negative lanes. The magnitude of the least integer is right as an unsigned number.
template <class I, class T, int W>
struct taken_apart {
  using word = lanes<int_of_size<sizeof(T)>, W>;
  lanes<std::make_unsigned_t<I>, W> m;
  word sign{0}, step{1};

  LANEMATH_INLINE explicit taken_apart(const lanes<I, W>& x) {
    if constexpr (std::is_signed_v<I>) {
      const auto negative = x >> (8 * int(sizeof(I)) - 1);
      m = as<std::make_unsigned_t<I>>((x ^ negative) - negative);
      if constexpr (sizeof(I) == sizeof(T))
        sign = x;
      else
        sign = upper(x);
      step = (sign >> (8 * int(sizeof(T)) - 1)) | 1;
      sign = sign & std::numeric_limits<typename word::value_type>::min();
    } else {
      m = x;
    }
  }
};

// Every 32-bit integer is exact in double.
template <std::size_t Index>
struct to_double : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    if constexpr (std::is_signed_v<typename V::value_type>)
      return convert<double>(x);
    else
      return field_value(field_powers<double>::P0, widen(x));
  }
};

// Integers as wide as the result: two fields.
template <std::size_t Index>
struct from_two_fields : conversion<Index> {
  static constexpr int groups_at_once = 2;
  template <class V>
  static auto kernel(V x) {
    using T = typename conversion<Index>::to;
    using c = field_powers<T>;
    constexpr direction D = conversion<Index>::rounding;
    const taken_apart<typename V::value_type, T, V::width> from(x);
    const auto lo = field_value(c::P0, from.m & c::fraction);
    const auto hi = field_value(c::P1, from.m >> c::fraction_bits);
    const auto s = hi + lo;
    if constexpr (D == direction::nearest) {
      return with_bits(s, from.sign);
    } else if constexpr (D == direction::zero) {
      const auto above = lo < s - hi;
      return with_bits(from_bits(bits(s) + above), from.sign);
    } else {
      const auto signed_lo = with_bits(lo, from.sign), signed_s = with_bits(s, from.sign);
      const auto added = signed_s - with_bits(hi, from.sign);
      if constexpr (D == direction::down)
        return from_bits(bits(signed_s) - (from.step & (signed_lo < added)));
      else
        return from_bits(bits(signed_s) + (from.step & (added < signed_lo)));
    }
  }
};

// 64-bit integers to float: three fields.
template <class V>
struct three_fields {
  using c = field_powers<float>;
  using field = lanes<std::uint32_t, V::width>;
  field low;
  lanes<float, V::width> middle, high;

  LANEMATH_INLINE explicit three_fields(const V& m)
      : low(as<std::uint32_t>(lower(m)) & c::fraction),
        middle(field_value(c::P1, as<std::uint32_t>(lower(m >> 23)) & c::fraction)),
        high(field_value(P2, as<std::uint32_t>(upper(m)) >> 14)) {}
};

// The low field is left out of the first sum and added at the end. Where the first sum rounded a tie down although the
// low field is not zero, its last bit is set, so that the final rounding goes up.
template <std::size_t Index>
struct from_three_fields_to_nearest : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    using c = field_powers<float>;
    const taken_apart<typename V::value_type, float, V::width> from(x);
    const three_fields fields(from.m);
    const auto minus_low = c::P0 - placed(c::P0, fields.low);
    const auto s = fields.high + fields.middle;
    const auto error = fields.middle + (fields.high - s);
    const auto half_unit = (bits(s) & ~std::int32_t(c::fraction)) - HALFULP;
    const auto tie = (bits(error) == half_unit) & (bits(minus_low) >> 31) & 1;
    return with_bits(with_bits(s, tie) - minus_low, from.sign);
  }
};

template <std::size_t Index>
struct from_three_fields : conversion<Index> {
  template <class V>
  static auto kernel(V x) {
    using I = typename V::value_type;
    constexpr direction D = conversion<Index>::rounding;
    const taken_apart<typename V::value_type, float, V::width> from(x);
    const three_fields fields(from.m);
    const auto low = field_value(field_powers<float>::P0, fields.low);
    const auto s1 = fields.middle + low;
    const auto error1 = low + (fields.middle - s1);
    const auto s2 = fields.high + s1;
    const auto error2 = s1 + (fields.high - s2);
    const auto error = error1 + error2;

    if constexpr (D == direction::zero || (D == direction::down && std::is_unsigned_v<I>)) {
      return with_bits(from_bits(bits(s2) + (bits(error) >> 31)), from.sign);
    } else if constexpr (std::is_unsigned_v<I>) {
      return from_bits(bits(s2) - (bits(0.0f - error) >> 31));
    } else {
      const auto signed_s = with_bits(s2, from.sign);
      const auto signed_error = flipped(error, from.sign);
      if constexpr (D == direction::down)
        return from_bits(bits(signed_s) - (from.step & (signed_error < 0.0f)));
      else
        return from_bits(bits(signed_s) + (from.step & (0.0f < signed_error)));
    }
  }
};

}  // namespace

LANEMATH_CONVERSION(cvti32tofprte, to_double)
LANEMATH_CONVERSION(cvti32tofprtn, to_double)
LANEMATH_CONVERSION(cvti32tofprtp, to_double)
LANEMATH_CONVERSION(cvti32tofprtz, to_double)
LANEMATH_CONVERSION(cvtu32tofprte, to_double)
LANEMATH_CONVERSION(cvtu32tofprtn, to_double)
LANEMATH_CONVERSION(cvtu32tofprtp, to_double)
LANEMATH_CONVERSION(cvtu32tofprtz, to_double)
LANEMATH_CONVERSION(cvti32tofprtef, from_two_fields)
LANEMATH_CONVERSION(cvti32tofprtnf, from_two_fields)
LANEMATH_CONVERSION(cvti32tofprtpf, from_two_fields)
LANEMATH_CONVERSION(cvti32tofprtzf, from_two_fields)
LANEMATH_CONVERSION(cvtu32tofprtef, from_two_fields)
LANEMATH_CONVERSION(cvtu32tofprtnf, from_two_fields)
LANEMATH_CONVERSION(cvtu32tofprtpf, from_two_fields)
LANEMATH_CONVERSION(cvtu32tofprtzf, from_two_fields)
LANEMATH_CONVERSION(cvti64tofprte, from_two_fields)
LANEMATH_CONVERSION(cvti64tofprtn, from_two_fields)
LANEMATH_CONVERSION(cvti64tofprtp, from_two_fields)
LANEMATH_CONVERSION(cvti64tofprtz, from_two_fields)
LANEMATH_CONVERSION(cvtu64tofprte, from_two_fields)
LANEMATH_CONVERSION(cvtu64tofprtn, from_two_fields)
LANEMATH_CONVERSION(cvtu64tofprtp, from_two_fields)
LANEMATH_CONVERSION(cvtu64tofprtz, from_two_fields)
LANEMATH_CONVERSION(cvti64tofprtef, from_three_fields_to_nearest)
LANEMATH_CONVERSION(cvti64tofprtnf, from_three_fields)
LANEMATH_CONVERSION(cvti64tofprtpf, from_three_fields)
LANEMATH_CONVERSION(cvti64tofprtzf, from_three_fields)
LANEMATH_CONVERSION(cvtu64tofprtef, from_three_fields_to_nearest)
LANEMATH_CONVERSION(cvtu64tofprtnf, from_three_fields)
LANEMATH_CONVERSION(cvtu64tofprtpf, from_three_fields)
LANEMATH_CONVERSION(cvtu64tofprtzf, from_three_fields)

}  // namespace lanemath
