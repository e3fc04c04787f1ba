// Tables, and look-up of the entries at the lanes' indices.
#pragma once

#include <array>

#include "frame/lanes.h"

namespace lanemath {

// A high and a low part, side by side so that one load fetches both from a table.
template <class T>
struct two_part {
  T hi, lo;
};
template <class V>
struct looked_up {
  V hi, lo;
};

namespace lanes_detail {

// The indices of a group of four 32-bit lanes, two at a time.
struct index_pair {
  std::uint32_t first, second;
  LANEMATH_INLINE explicit index_pair(long long both)
      : first(std::uint32_t(both)), second(std::uint32_t(std::uint64_t(both) >> 32)) {}
};
template <int W>
LANEMATH_INLINE index_pair indices(const lanes<std::int32_t, W>& index, int pair) {
  const auto group = std::bit_cast<__m128i>(index.g[pair / 2]);
  return index_pair(pair % 2 ? _mm_extract_epi64(group, 1) : _mm_cvtsi128_si64(group));
}

}  // namespace lanes_detail

// The entries at the lanes' indices, which must all be inside the table. One load per lane.
template <class T, std::size_t Size, int W>
LANEMATH_INLINE looked_up<lanes<T, W>> look_up(const two_part<T> (&table)[Size], const lanes<std::int32_t, W>& index) {
  looked_up<lanes<T, W>> result;
  using group = typename lanes<T, W>::group;
  if constexpr (W == 1) {
    const auto& entry = table[std::uint32_t(index.g[0])];
    result.hi = entry.hi;
    result.lo = entry.lo;
  } else if constexpr (sizeof(T) == 4) {
    for (int i = 0; i < result.hi.groups; ++i) {
      const auto two = [&](lanes_detail::index_pair at) LANEMATH_LAMBDA {
        const auto first = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&table[at.first]));
        return _mm_loadh_pi(_mm_castsi128_ps(first), reinterpret_cast<const __m64*>(&table[at.second]));
      };
      const auto low = two(lanes_detail::indices(index, 2 * i));
      const auto high = W == 2 ? low : two(lanes_detail::indices(index, 2 * i + 1));
      result.hi.g[i] = std::bit_cast<group>(_mm_shuffle_ps(low, high, _MM_SHUFFLE(2, 0, 2, 0)));
      result.lo.g[i] = std::bit_cast<group>(_mm_shuffle_ps(low, high, _MM_SHUFFLE(3, 1, 3, 1)));
    }
  } else {
    for (int i = 0; i < result.hi.groups; ++i) {
      const auto at = lanes_detail::indices(index, i);
      const auto first = _mm_loadu_pd(&table[at.first].hi), second = _mm_loadu_pd(&table[at.second].hi);
      result.hi.g[i] = std::bit_cast<group>(_mm_unpacklo_pd(first, second));
      result.lo.g[i] = std::bit_cast<group>(_mm_unpackhi_pd(first, second));
    }
  }
  return result;
}

// The same for a table of single values.
template <class T, std::size_t Size, int W>
LANEMATH_INLINE lanes<T, W> look_up(const T (&table)[Size], const lanes<std::int32_t, W>& index) {
  lanes<T, W> result;
  if constexpr (W == 1) {
    result = table[std::uint32_t(index.g[0])];
  } else if constexpr (sizeof(T) == 4) {
    for (int i = 0; i < result.groups; ++i) {
      const auto low = lanes_detail::indices(index, 2 * i);
      const auto high = W == 2 ? low : lanes_detail::indices(index, 2 * i + 1);
      result.g[i] =
          typename lanes<T, W>::group{table[low.first], table[low.second], table[high.first], table[high.second]};
    }
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto at = lanes_detail::indices(index, i);
      result.g[i] = typename lanes<T, W>::group{table[at.first], table[at.second]};
    }
  }
  return result;
}

// A table entry of three values in the space of four, so that one load fetches them all.
template <class T>
struct alignas(4 * sizeof(T)) triple {
  T first, second, third;
};
template <class V>
struct looked_up_triple {
  V first, second, third;
};

template <std::size_t Size, int W>
LANEMATH_INLINE looked_up_triple<lanes<float, W>> look_up(const triple<float> (&table)[Size],
                                                          const lanes<std::int32_t, W>& index) {
  looked_up_triple<lanes<float, W>> result;
  if constexpr (W == 1) {
    const auto& entry = table[std::uint32_t(index.g[0])];
    result.first = entry.first;
    result.second = entry.second;
    result.third = entry.third;
  } else {
    using group = typename lanes<float, W>::group;
    for (int i = 0; i < result.first.groups; ++i) {
      const auto low = lanes_detail::indices(index, 2 * i);
      const auto high = W == 2 ? low : lanes_detail::indices(index, 2 * i + 1);
      const auto entry = [&](std::uint32_t at) LANEMATH_LAMBDA { return _mm_load_ps(&table[at].first); };
      const auto a = entry(low.first), b = entry(low.second), c = entry(high.first), d = entry(high.second);
      const auto ab = _mm_unpacklo_ps(a, b), cd = _mm_unpacklo_ps(c, d);
      result.first.g[i] = std::bit_cast<group>(_mm_movelh_ps(ab, cd));
      result.second.g[i] = std::bit_cast<group>(_mm_movehl_ps(cd, ab));
      result.third.g[i] = std::bit_cast<group>(_mm_movelh_ps(_mm_unpackhi_ps(a, b), _mm_unpackhi_ps(c, d)));
    }
  }
  return result;
}

namespace lanes_detail {

// Transposes Count columns of two or four rows into lanes. Count is 2 or 4 for 32-bit values, 1 or 2 for 64-bit ones.
template <std::size_t Count, class T>
LANEMATH_INLINE void turn_columns(std::array<__m128, Count>& column, const T* a, const T* b, const T* c, const T* d) {
  const auto whole = [](const T* from) LANEMATH_LAMBDA { return _mm_loadu_ps(reinterpret_cast<const float*>(from)); };
  const auto halves = [](const T* low, const T* high) LANEMATH_LAMBDA {
    return _mm_loadh_pi(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(low))),
                        reinterpret_cast<const __m64*>(high));
  };
  if constexpr (sizeof(T) == 8 && Count == 2) {
    const auto first = _mm_castps_pd(whole(a)), second = _mm_castps_pd(whole(b));
    column = {_mm_castpd_ps(_mm_unpacklo_pd(first, second)), _mm_castpd_ps(_mm_unpackhi_pd(first, second))};
  } else if constexpr (sizeof(T) == 8) {
    column = {halves(a, b)};
  } else if constexpr (Count == 4) {
    const auto low = _mm_unpacklo_ps(whole(a), whole(b)), more_low = _mm_unpacklo_ps(whole(c), whole(d));
    const auto high = _mm_unpackhi_ps(whole(a), whole(b)), more_high = _mm_unpackhi_ps(whole(c), whole(d));
    column = {_mm_movelh_ps(low, more_low), _mm_movehl_ps(more_low, low), _mm_movelh_ps(high, more_high),
              _mm_movehl_ps(more_high, high)};
  } else {
    static_assert(Count == 2);
    const auto first = halves(a, b), second = halves(c, d);
    column = {_mm_shuffle_ps(first, second, _MM_SHUFFLE(2, 0, 2, 0)),
              _mm_shuffle_ps(first, second, _MM_SHUFFLE(3, 1, 3, 1))};
  }
}

}  // namespace lanes_detail

// The columns of the rows at the lanes' indices, which must all be inside the table. The number of 32-bit columns is
// even.
template <class T, std::size_t Size, std::size_t Columns, int W>
LANEMATH_INLINE std::array<lanes<T, W>, Columns> look_up_row(const T (&table)[Size][Columns],
                                                             const lanes<std::int32_t, W>& index) {
  std::array<lanes<T, W>, Columns> result;
  if constexpr (W == 1) {
    for (std::size_t c = 0; c < Columns; ++c) result[c].g[0] = table[std::uint32_t(index.g[0])][c];
  } else {
    constexpr std::size_t at_once = 16 / sizeof(T), rest = Columns % at_once;
    using group = typename lanes<T, W>::group;
    for (int i = 0; i < result[0].groups; ++i) {
      const auto first = lanes_detail::indices(index, sizeof(T) == 4 ? 2 * i : i);
      const auto second = sizeof(T) == 4 && W > 2 ? lanes_detail::indices(index, 2 * i + 1) : first;
      const auto turn = [&](auto count, std::size_t column) LANEMATH_LAMBDA {
        std::array<__m128, count> turned;
        lanes_detail::turn_columns(turned, table[first.first] + column, table[first.second] + column,
                                   table[second.first] + column, table[second.second] + column);
        for (std::size_t c = 0; c < count; ++c) result[column + c].g[i] = std::bit_cast<group>(turned[c]);
      };
      for (std::size_t c = 0; c + at_once <= Columns; c += at_once)
        turn(std::integral_constant<std::size_t, at_once>(), c);
      if constexpr (rest != 0) turn(std::integral_constant<std::size_t, rest>(), Columns - rest);
    }
  }
  return result;
}

}  // namespace lanemath
