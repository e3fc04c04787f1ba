// nan: a quiet NaN whose payload is the low bits of an integer. The integer's highest bit becomes the sign.
#include "numeric/fields.h"

namespace lanemath {
namespace {

template <class T>
struct nan_of {
  using pattern = typename format<T>::pattern;
  using signature = T(pattern);
  static auto kernel(auto payload) { return as<T>(payload | (format<T>::infinity | format<T>::implicit_bit >> 1)); }
};

}  // namespace

LANEMATH_EXPORT(nanf, nan_of<float>)
LANEMATH_EXPORT(nan, nan_of<double>)

}  // namespace lanemath
