#include "accuracy/reference.h"

#include "accuracy/references/families.h"

namespace lanemath::accuracy {
namespace {

const std::vector<reference>& references() {
  static const std::vector<reference> all = [] {
    std::vector<reference> joined;
    for (const auto family : {
             exponential_references,
             inverse_trigonometric_references,
             trigonometric_references,
             manipulation_references,
             logarithm_references,
             power_references,
             root_references,
             hyperbolic_references,
             special_references,
         })
      for (auto& each : family()) joined.push_back(std::move(each));
    return joined;
  }();
  return all;
}

}  // namespace

const reference* find_reference(const operation& o) {
  for (const auto& each : references())
    if (each.name == o.base_name()) return &each;
  return nullptr;
}

}  // namespace lanemath::accuracy
