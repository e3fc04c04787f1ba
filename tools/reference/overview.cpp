// The page that says what holds for all functions.
#include <fmt/format.h>

#include <algorithm>

#include "generate/families.h"
#include "reference/pages.h"

namespace lanemath::reference {

document overview(const std::vector<document>& pages_of_functions) {
  document page{"lanemath", {"lanemath"}, "vectorised maths functions for OpenCL kernels, C and C++", 7, {}};
  page.blocks = {
      heading{"Description"},
      paragraph{
          "lanemath is a shared library for x86-64 Linux, `__ocl_lanemath_h8.so.3.5`, of maths functions on scalars "
          "and on vectors of 2, 3, 4, 8 and 16 lanes. It needs a processor with SSE4.1 and nothing else: it imports "
          "nothing, allocates nothing and holds no state."},
      code{{"#include <lanemath/lanemath.h>", "",
            "void density(const float* u, float* y, size_t n) {  /* n a multiple of 8 */",
            "  for (size_t i = 0; i < n; i += 8) {", "    const lanemath_float8 v = lanemath_load_float8(u + i);",
            "    lanemath_store_float8(y + i, lanemath_expf8(v * v * -0.5f));", "  }", "}", "",
            "cc -O2 density.c $(pkg-config --cflags --libs lanemath)"}},
      heading{"Names and types"},
      paragraph{
          "A function is `lanemath_<operation><width><variant>`: `lanemath_expf4_native` is the native variant of "
          "`expf` on four floats. An operation that ends in f has single precision. The digits run together: "
          "`lanemath_exp2` is `exp` on two doubles, and `lanemath_exp21` is `exp2` on one."},
      paragraph{
          "`lanemath_float4` and the like are vectors of float, double, int and uint (32 bits), long and ulong (64 "
          "bits), with the ordinary operators and with v[i]. A vector of three is one of four whose last lane means "
          "nothing."},
      paragraph{
          "`<lanemath/lanemath.hpp>` has the functions for C++, which find theirs by the types: `lanemath::exp(v)`, "
          "`lanemath::native::exp(v)`. In the library lanemath_loops, `<lanemath/arrays.h>` (in C++20 "
          "`<lanemath/arrays.hpp>`) has functions of whole arrays, and `<lanemath/loops.h>` lets GCC vectorise loops "
          "that call functions of width 1."},
      heading{"Accuracy variants"},
      paragraph{
          "The default variant serves every argument and is within one or two units in the last place for most "
          "operations. `_native` is faster and keeps 11 to 16 bits of a float, 27 to 42 of a double for most "
          "operations; `_half` and `_rm` mostly are other names of it. Each page states what its variants promise."},
      heading{"The same bits everywhere"},
      paragraph{
          "A result is the same bit pattern whichever compiler built the library and whichever processor runs it, and "
          "at every width, except in the standalone forms that the pages name. Only the forms that start from the "
          "processor's estimate of a reciprocal or a root differ in their last bits between vendors of processors. "
          "The last bits of a lane depend on its neighbours in `atan2f`, `acoshf` and `asinhf` at width 4 alone."},
      heading{"Threads and signals"},
      paragraph{
          "Any number of threads may call any function at once. There are no locks and no writable data, so signal "
          "handlers may call them too. No function raises a signal while floating-point exceptions are masked, as "
          "they are unless a program unmasks them."},
      heading{"Floating-point environment"},
      paragraph{
          "Exception flags are not part of the contract: functions may raise flags that the result does not call for, "
          "and may leave others out. None sets errno."},
      paragraph{
          "The bounds of errors and the special values hold where the caller rounds to nearest. In other directions "
          "functions return, but their errors are not bounded. `rint`, `nearbyint`, `remainder` and `remquo` follow "
          "the direction in force, and so do the rte conversions from integers and from double to float; `fma` "
          "follows that of the x87 control word. Conversions to integers, `ceil`, `floor`, `trunc`, `round`, `fabs`, "
          "`copysign`, `fmax`, `fmin`, `maxmag`, `minmag` and integer division do not depend on it."},
      paragraph{
          "Functions leave the control words as they found them. They serve denormals, but with flush-to-zero or "
          "denormals-are-zero switched on the processor takes denormal arguments, results and intermediate values for "
          "zeros, and results may differ."},
      heading{"Memory"},
      paragraph{
          "A function reads its arguments and writes its results, and touches no other memory but its own stack. "
          "Vectors of more than 16 bytes are passed in memory, aligned to 16 bytes; a second result is stored at an "
          "address of any alignment. Nothing is promised about the time that a call takes: it depends on the "
          "arguments, so values that must stay secret do not belong here."},
      heading{"OpenCL"},
      paragraph{
          "`lanemath-opencl PROGRAM` runs a program with the maths built-ins of its kernels answered by this library."},
      heading{"Compatibility"},
      paragraph{
          "The names of all functions, the file's recorded name and the bits of every result stay as they are in all "
          "releases 3.5.x."},
  };
  page.blocks.insert(
      page.blocks.end(),
      {heading{"Documents"},
       paragraph{"Installed with this page: accuracy.md has the errors that were measured and where, "
                 "performance.md the speed compared with other libraries, design.md how the library is built "
                 "and the results that look odd. `lanemath-accuracy`(1), `lanemath-compare`(1) and "
                 "`lanemath-benchmark`(1) measure a library."},
       heading{"Functions"}});
  for (const auto& each : families) {
    listing of_family;
    for (const auto& function : pages_of_functions)
      if (std::ranges::any_of(catalogue, [&](const operation& o) {
            return o.group == each.group && "lanemath_" + page_of(o) == function.name;
          }))
        of_family.pages.emplace_back(function.name, function.brief);
    page.blocks.insert(page.blocks.end(), {paragraph{fmt::format("{}:", each.title)}, of_family});
  }
  return page;
}

}  // namespace lanemath::reference
