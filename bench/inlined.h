// What libraries of inlined functions share: a table of loops over arrays.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>

#include "peers.h"

namespace lanemath::bench {

struct inlined_row {
  std::string_view operation;
  peer function;
};

// Over<F>::run<T>(result, lanes, inputs...) computes a whole array of T by F. Such a loop takes no groups of lanes, but
// counts as 16, the widest that it is compared with.
template <class T, template <class> class Over, std::size_t... I, class F>
inlined_row inlined_loop(std::string_view library, std::string_view operation, std::index_sequence<I...>, F) {
  return {operation,
          {library, 16,
           harness::function(nullptr,
                             [](void*, const harness::invoker_arguments& given) {
                               Over<F>::template run<T>(static_cast<T*>(given.result), given.lanes,
                                                        static_cast<const T*>(given.inputs[I])...);
                             }),
           std::nullopt}};
}

template <std::size_t Rows>
std::optional<peer> find_inlined(const inlined_row (&rows)[Rows], std::string_view operation) {
  for (const auto& row : rows)
    if (row.operation == operation) return row.function;
  return std::nullopt;
}

// Rows for both precisions.
#define LANEMATH_INLINED(library, operation, arity, Over, ...)                                     \
  inlined_loop<double, Over>(library, #operation, std::make_index_sequence<arity>(), __VA_ARGS__), \
      inlined_loop<float, Over>(library, #operation "f", std::make_index_sequence<arity>(), __VA_ARGS__)

}  // namespace lanemath::bench
