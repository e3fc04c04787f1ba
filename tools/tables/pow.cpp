// Tables of the powers, each entry exact and rounded once.
#include "table_writer.h"

namespace {

real log2(const real& x) { return apply(mpfr_log2, x); }
real exp2(const real& x) { return apply(mpfr_exp2, x); }

template <std::size_t N>
void write_stage(table_writer& out, std::string_view name, const float (&reciprocals)[N], double scale, int stepped) {
  out.triples<float>(name, "a reciprocal r, and the base-2 logarithm that it removes in two parts", N, [&](int i) {
    const real removed = log2(real(scale)) - log2(real(reciprocals[i])) - real(i >= stepped);
    const auto [hi, lo] = split<float>(removed, 17);
    return std::tuple(reciprocals[i], hi, lo);
  });
}

}  // namespace

void write_pow_tables(table_writer& out) {
  // For the kernel in double with float results.
  const real ln_2 = apply(mpfr_log, real(2));
  const real bias(0x1.ffffffc27dd9ep-1);
  out.values<double>("exp2_biased_2048", "2^(j/2048), less half of what a chord lies above the curve", 2048,
                     [&](int j) { return (exp2(real(j) / real(2048)) * bias).nearest<double>(); });

  // For the kernel in pairs of floats.
  out.wide_triples<float>("ln_65", "-ln C in two parts, and C, the short reciprocal of 1 + j/64", 65, [](int j) {
    const auto reciprocal = on_grid<float>(real(64) / real(64 + j), 8);
    const auto [hi, lo] = split<float>(real(0) - apply(mpfr_log, real(reciprocal)), 14, mpfr_rint_floor);
    return std::tuple(hi, lo, reciprocal);
  });

  // For the scalar routine in pairs of floats. The scale of the third stage is near 1 / ln 2.
  write_stage(out, "log2_stage_1",
              {1.0f, 0.890625f, 0.796875f, 0.7265625f, 0.6640625f, 0.6171875f, 0.5703125f, 0.53125f, 0.5f}, 1, 4);
  // Values just below 1 share the indices of values just above: the wrap is between the third and the fourth.
  write_stage(out, "log2_stage_2", {1.0f, 0.96875f, 0.9375f, 1.078125f, 1.0625f, 1.046875f, 1.03125f, 1.015625f, 1.0f},
              1, 9);
  write_stage(out, "log2_stage_3",
              {1.44140625f, 1.435546875f, 1.4296875f, 1.423828125f, 1.419921875f, 1.47265625f, 1.470703125f,
               1.466796875f, 1.46484375f, 1.4609375f, 1.458984375f, 1.455078125f, 1.453125f, 1.44921875f, 1.447265625f,
               1.443359375f, 1.44140625f},
              1.44140625, 17);
  out.pairs<float>("exp2_short_128", "2^(j/128): rounded to 22 fraction bits, and what is left", 128,
                   [](int j) { return split<float>(exp2(real(j) / real(128)), 22); });

  // Double precision. The reciprocals carry a scale near 1 / ln 2.
  const real scale(0x1.71547400000p+0);
  const auto reciprocal = [&](int i) { return real((scale * real(1024) / real(1024 + i)).nearest<float>()); };
  out.values<double>("scaled_reciprocal_1024", "c / (1 + i/1024) as a float, c near 1 / ln 2", 1025,
                     [&](int i) { return reciprocal(i).nearest<double>(); });
  out.pairs<double>("log2_1024", "log2 of what the reciprocals take away, less 1 from the middle on", 1025,
                    [&](int i) { return split<double>(log2(scale / reciprocal(i)) - real(i >= 512), 32); });
  const auto two_doubles = [](const real& x) {
    const double hi = x.nearest<double>();
    return std::pair(hi, (x - real(hi)).nearest<double>());
  };
  out.pairs<double>("exp2_pair_128", "2^(j/128): the nearest double, and what is left", 128,
                    [&](int j) { return two_doubles(exp2(real(j) / real(128))); });

  // For the scalar routine in pairs of doubles.
  out.pairs<double>("log2_series", "coefficients of the powers of w in log2(1 + w/c); of the first, less 1", 9,
                    [&](int n) {
                      if (n == 0) return std::pair(0.0, 0.0);
                      real power = ln_2 * real(n % 2 ? n : -n);
                      for (int i = 0; i < n; ++i) power = power * scale;
                      return two_doubles(real(1) / power - real(n == 1));
                    });
  out.pairs<double>("exp2_series", "coefficients of the powers of v in 2^v", 8, [&](int n) {
    real power(1);
    for (int i = 1; i <= n; ++i) power = power * ln_2 / real(i);
    return two_doubles(power);
  });
}
