// The references by family of operations: a file and a line for each.
#pragma once

#include "accuracy/reference.h"

namespace lanemath::accuracy {

std::vector<reference> exponential_references();
std::vector<reference> inverse_trigonometric_references();
std::vector<reference> trigonometric_references();
std::vector<reference> manipulation_references();
std::vector<reference> logarithm_references();
std::vector<reference> power_references();
std::vector<reference> root_references();
std::vector<reference> hyperbolic_references();
std::vector<reference> special_references();

// An MPFR function of one argument, as an exact function.
template <auto F>
void unary(mpfr_t result, const mpfr_t* x) {
  F(result, x[0], MPFR_RNDN);
}
template <auto F>
void binary(mpfr_t result, const mpfr_t* x) {
  F(result, x[0], x[1], MPFR_RNDN);
}

}  // namespace lanemath::accuracy
