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

// The indices of four 32-bit lanes, two at a time.
struct index_pair {
  std::uint32_t first, second;
  LANEMATH_INLINE explicit index_pair(long long both)
      : first(std::uint32_t(both)), second(std::uint32_t(std::uint64_t(both) >> 32)) {}
};

// A group larger than 16 bytes is looked up in pieces of 16. What is known of each piece is joined in pairs, and
// registers to larger ones.
template <class P>
struct two_pieces {
  P low, high;
};
template <class P>
LANEMATH_INLINE auto join(const P& low, const P& high) {
  if constexpr (requires { instructions<2 * sizeof(P)>::joined(low, high); })
    return instructions<2 * sizeof(P)>::joined(low, high);
  else
    return two_pieces<P>{low, high};
}
template <class F, class P>
LANEMATH_INLINE auto on_pieces(F f, const P& of_piece) {
  if constexpr (requires { of_piece.low; })
    return join(on_pieces(f, of_piece.low), on_pieces(f, of_piece.high));
  else
    return f(of_piece);
}
template <class F, class P>
LANEMATH_INLINE auto on_both_pieces(F f, const P& first, const P& second) {
  if constexpr (requires { first.low; })
    return join(on_both_pieces(f, first.low, second.low), on_both_pieces(f, first.high, second.high));
  else
    return f(first, second);
}
// The pair of indices number `pair` for the first piece, and for each further one that `step` pairs on.
template <int Bytes, int W>
LANEMATH_INLINE auto indices(const lanes<std::int32_t, W>& index, int pair, int step) {
  if constexpr (Bytes == 16) {
    using on = typename lanes<std::int32_t, W>::on_group;
    constexpr int pieces = lanes<std::int32_t, W>::group_bytes / 16;
    const auto group = on::piece(std::bit_cast<typename on::integers>(index.g[pair / 2 / pieces]), pair / 2 % pieces);
    return index_pair(pair % 2 ? _mm_extract_epi64(group, 1) : _mm_cvtsi128_si64(group));
  } else {
    return join(indices<Bytes / 2>(index, pair, step), indices<Bytes / 2>(index, pair + step * Bytes / 32, step));
  }
}

}  // namespace lanes_detail

// The entries at the lanes' indices, which must all be inside the table. One load per lane.
template <class T, std::size_t Size, int W>
LANEMATH_INLINE looked_up<lanes<T, W>> look_up(const two_part<T> (&table)[Size], const lanes<std::int32_t, W>& index) {
  using namespace lanes_detail;
  looked_up<lanes<T, W>> result;
  using group = typename lanes<T, W>::group;
  using on = typename lanes<T, W>::on_group;
  constexpr int bytes = lanes<T, W>::group_bytes;
  if constexpr (W == 1) {
    const auto& entry = table[std::uint32_t(index.g[0])];
    result.hi = entry.hi;
    result.lo = entry.lo;
  } else if constexpr (sizeof(T) == 4) {
    for (int i = 0; i < result.hi.groups; ++i) {
      const auto two = [&](const index_pair& at) LANEMATH_LAMBDA {
        const auto first = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&table[at.first]));
        return _mm_loadh_pi(_mm_castsi128_ps(first), reinterpret_cast<const __m64*>(&table[at.second]));
      };
      const auto low = on_pieces(two, indices<bytes>(index, bytes / 8 * i, 2));
      const auto high = W == 2 ? low : on_pieces(two, indices<bytes>(index, bytes / 8 * i + 1, 2));
      result.hi.g[i] = std::bit_cast<group>(on::evens(low, high));
      result.lo.g[i] = std::bit_cast<group>(on::odds(low, high));
    }
  } else {
    for (int i = 0; i < result.hi.groups; ++i) {
      const auto at = indices<bytes>(index, bytes / 16 * i, 1);
      const auto first =
          on_pieces([&](const index_pair& p) LANEMATH_LAMBDA { return _mm_loadu_pd(&table[p.first].hi); }, at);
      const auto second =
          on_pieces([&](const index_pair& p) LANEMATH_LAMBDA { return _mm_loadu_pd(&table[p.second].hi); }, at);
      result.hi.g[i] = std::bit_cast<group>(on::unpacklo_pd(first, second));
      result.lo.g[i] = std::bit_cast<group>(on::unpackhi_pd(first, second));
    }
  }
  return result;
}

// The same for a table of single values.
template <class T, std::size_t Size, int W>
LANEMATH_INLINE lanes<T, W> look_up(const T (&table)[Size], const lanes<std::int32_t, W>& index) {
  using namespace lanes_detail;
  lanes<T, W> result;
  using group = typename lanes<T, W>::group;
  using piece = typename lanes<T, 16 / sizeof(T)>::group;
  constexpr int bytes = lanes<T, W>::group_bytes;
  if constexpr (W == 1) {
    result = table[std::uint32_t(index.g[0])];
  } else if constexpr (sizeof(T) == 4) {
    for (int i = 0; i < result.groups; ++i) {
      const auto low = indices<bytes>(index, bytes / 8 * i, 2);
      const auto high = W == 2 ? low : indices<bytes>(index, bytes / 8 * i + 1, 2);
      result.g[i] = std::bit_cast<group>(on_both_pieces(
          [&](const index_pair& p, const index_pair& q) LANEMATH_LAMBDA {
            return piece{table[p.first], table[p.second], table[q.first], table[q.second]};
          },
          low, high));
    }
  } else {
    for (int i = 0; i < result.groups; ++i) {
      const auto at = indices<bytes>(index, bytes / 16 * i, 1);
      result.g[i] = std::bit_cast<group>(on_pieces(
          [&](const index_pair& p) LANEMATH_LAMBDA {
            return piece{table[p.first], table[p.second]};
          },
          at));
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
  using namespace lanes_detail;
  looked_up_triple<lanes<float, W>> result;
  if constexpr (W == 1) {
    const auto& entry = table[std::uint32_t(index.g[0])];
    result.first = entry.first;
    result.second = entry.second;
    result.third = entry.third;
  } else {
    using group = typename lanes<float, W>::group;
    using on = typename lanes<float, W>::on_group;
    constexpr int bytes = lanes<float, W>::group_bytes;
    for (int i = 0; i < result.first.groups; ++i) {
      const auto low = indices<bytes>(index, bytes / 8 * i, 2);
      const auto high = W == 2 ? low : indices<bytes>(index, bytes / 8 * i + 1, 2);
      const auto entry = [&](std::uint32_t at) LANEMATH_LAMBDA { return _mm_load_ps(&table[at].first); };
      const auto first = [&](const index_pair& p) LANEMATH_LAMBDA { return entry(p.first); };
      const auto second = [&](const index_pair& p) LANEMATH_LAMBDA { return entry(p.second); };
      const auto a = on_pieces(first, low), b = on_pieces(second, low);
      const auto c = on_pieces(first, high), d = on_pieces(second, high);
      const auto ab = on::unpacklo_ps(a, b), cd = on::unpacklo_ps(c, d);
      result.first.g[i] = std::bit_cast<group>(on::low_pairs(ab, cd));
      result.second.g[i] = std::bit_cast<group>(on::high_pairs(ab, cd));
      result.third.g[i] = std::bit_cast<group>(on::low_pairs(on::unpackhi_ps(a, b), on::unpackhi_ps(c, d)));
    }
  }
  return result;
}

namespace lanes_detail {

// Transposes Count columns of two or four rows into lanes. Count is 2 or 4 for 32-bit values, 1 or 2 for 64-bit ones.
// The rows are pointers, or for a larger group pieces of them.
template <class T, class On, std::size_t Count, class Row>
LANEMATH_INLINE void turn_columns(std::array<typename On::floats, Count>& column, Row a, Row b, Row c, Row d) {
  using floats = typename On::floats;
  using doubles = typename On::doubles;
  const auto whole = [](Row row) LANEMATH_LAMBDA {
    return on_pieces([](const T* from) LANEMATH_LAMBDA { return _mm_loadu_ps(reinterpret_cast<const float*>(from)); },
                     row);
  };
  const auto halves = [](Row low, Row high) LANEMATH_LAMBDA {
    return on_both_pieces(
        [](const T* p, const T* q) LANEMATH_LAMBDA {
          return _mm_loadh_pi(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))),
                              reinterpret_cast<const __m64*>(q));
        },
        low, high);
  };
  if constexpr (sizeof(T) == 8 && Count == 2) {
    const auto first = std::bit_cast<doubles>(whole(a)), second = std::bit_cast<doubles>(whole(b));
    column = {std::bit_cast<floats>(On::unpacklo_pd(first, second)),
              std::bit_cast<floats>(On::unpackhi_pd(first, second))};
  } else if constexpr (sizeof(T) == 8) {
    column = {halves(a, b)};
  } else if constexpr (Count == 4) {
    const auto low = On::unpacklo_ps(whole(a), whole(b)), more_low = On::unpacklo_ps(whole(c), whole(d));
    const auto high = On::unpackhi_ps(whole(a), whole(b)), more_high = On::unpackhi_ps(whole(c), whole(d));
    column = {On::low_pairs(low, more_low), On::high_pairs(low, more_low), On::low_pairs(high, more_high),
              On::high_pairs(high, more_high)};
  } else {
    static_assert(Count == 2);
    const auto first = halves(a, b), second = halves(c, d);
    column = {On::evens(first, second), On::odds(first, second)};
  }
}

}  // namespace lanes_detail

// The columns of the rows at the lanes' indices, which must all be inside the table. The number of 32-bit columns is
// even.
template <class T, std::size_t Size, std::size_t Columns, int W>
LANEMATH_INLINE std::array<lanes<T, W>, Columns> look_up_row(const T (&table)[Size][Columns],
                                                             const lanes<std::int32_t, W>& index) {
  using namespace lanes_detail;
  std::array<lanes<T, W>, Columns> result;
  if constexpr (W == 1) {
    for (std::size_t c = 0; c < Columns; ++c) result[c].g[0] = table[std::uint32_t(index.g[0])][c];
  } else {
    constexpr std::size_t at_once = 16 / sizeof(T), rest = Columns % at_once;
    constexpr int bytes = lanes<T, W>::group_bytes, step = sizeof(T) == 4 ? 2 : 1;
    using group = typename lanes<T, W>::group;
    using on = typename lanes<T, W>::on_group;
    for (int i = 0; i < result[0].groups; ++i) {
      const auto first = indices<bytes>(index, step * bytes / 16 * i, step);
      const auto second = sizeof(T) == 4 && W > 2 ? indices<bytes>(index, step * bytes / 16 * i + 1, step) : first;
      const auto turn = [&](auto count, std::size_t column) LANEMATH_LAMBDA {
        std::array<typename on::floats, count> turned;
        const auto one = [&](const index_pair& p) LANEMATH_LAMBDA { return table[p.first] + column; };
        const auto other = [&](const index_pair& p) LANEMATH_LAMBDA { return table[p.second] + column; };
        turn_columns<T, on>(turned, on_pieces(one, first), on_pieces(other, first), on_pieces(one, second),
                            on_pieces(other, second));
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
