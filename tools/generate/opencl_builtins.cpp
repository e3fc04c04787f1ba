// The built-ins in OpenCL C: each passes its vectors on by pointers, a scalar by value. Exact ones for which the
// runtime gives different bits are written out in opencl/exact.h.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <array>

#include "opencl_forms.h"

namespace {

using namespace lanemath;

constexpr std::array parameter_names{"x", "y", "z"};
constexpr std::array address_spaces{"global", "local", "private"};

struct builtin {
  form of;
  std::string name;

  std::string result() const { return opencl_type(of.sig().result, of.width); }
  std::string second() const { return opencl_type(of.sig().second, of.width); }

  // `write` makes the text of each argument from its type and name.
  template <class Write>
  std::string arguments(Write write) const {
    std::vector<std::string> all;
    for (int i = 0; i < of.sig().arity(); ++i)
      all.push_back(write(opencl_type(of.sig().arguments[i], of.width), parameter_names[i]));
    return fmt::format("{}", fmt::join(all, ", "));
  }
  std::string parameters() const {
    return arguments([](auto type, auto name) { return fmt::format("{} {}", type, name); });
  }
};

void define_by_pointers(std::FILE* out, const builtin& b) {
  const auto references = b.arguments([](auto, auto name) { return fmt::format("&{}", name); });
  const auto function = b.of.by_pointer();
  if (!b.of.has_second()) {
    fmt::print(out, "BUILTIN {0} _cl_{1}({2}) {{ {0} result; {3}(&result, {4}); return result; }}\n", b.result(),
               b.name, b.parameters(), function, references);
    return;
  }
  for (auto space : address_spaces)
    fmt::print(out,
               "BUILTIN {0} _cl_{1}({2}, {3} {4}* second) {{\n"
               "  {0} result;\n"
               "  {4} delivered;\n"
               "  {5}(&result, &delivered, {6});\n"
               "  *second = delivered;\n"
               "  return result;\n"
               "}}\n",
               b.result(), b.name, b.parameters(), space, b.second(), function, references);
}

void define_with_scalar_last(std::FILE* out, const builtin& b) {
  const auto type = opencl_type(b.of.sig().arguments[1], b.of.width);
  fmt::print(out, "BUILTIN {0} _cl_{1}({0} x, {2} y) {{ return _cl_{1}(x, ({3})(y)); }}\n", b.result(), b.name,
             opencl_type(b.of.sig().arguments[1], 1), type);
}

// Where the compiler's own answer has different bits from the library's.
void define_exact(std::FILE* out, const operation& o, int width) {
  const auto base = o.base_name();
  const auto type = [&](lane l) { return opencl_type(l, width); };
  const auto real = type(o.sig.arguments[0]);
  const bool single = o.single();
  if (base == "maxmag") {
    fmt::print(out, "EXACT_MAXMAG({})\n", real);
  } else if (base == "minmag") {
    fmt::print(out, "EXACT_MINMAG({})\n", real);
  } else if (base == "fma") {
    fmt::print(out, "EXACT_FMA({})\n", real);
  } else if (base == "fract") {
    for (auto space : address_spaces)
      fmt::print(out, "EXACT_FRACT({}, {}, {}, {}, {})\n", space, real, type(single ? lane::u32 : lane::u64),
                 single ? "0x80000000" : "0x8000000000000000", single ? "0x1.fffffep-1f" : "0x1.fffffffffffffp-1");
  } else if (base == "ldexp" && width > 1) {
    fmt::print(out, "EXACT_LDEXP({}, {}, {}, {})\n", real, type(lane::i32), type(single ? lane::i32 : lane::i64),
               single ? "24, -126" : "53, -1022");
  } else if (o.name() == "frexp" && width >= 8) {
    for (auto space : address_spaces)
      fmt::print(out, "EXACT_FREXP({}, {}, {}, {}, {})\n", space, real, type(lane::i32),
                 opencl_type(lane::f64, width / 2), opencl_type(lane::i32, width / 2));
  } else if (is_unsigned_without_saturation(o)) {
    const bool narrow = o.sig.result == lane::u32;
    // The conversion itself rounds toward zero.
    const auto rounded = std::array{"__builtin_elementwise_roundeven(x)", "__builtin_elementwise_floor(x)",
                                    "__builtin_elementwise_ceil(x)", "x"}
                             .at(std::size_t(o.rounding));
    for (const auto& builtin_name : opencl_names(o, variant::standard, width))
      fmt::print(out, "EXACT_TO_UNSIGNED({}, {}, {}, {}, {}, {}, {}, {})\n", builtin_name, real, type(o.sig.result),
                 type(narrow ? lane::i32 : lane::i64), width == 1 ? "CAST" : "__builtin_convertvector", rounded,
                 narrow ? "0x1p32f" : "0x1p64f", narrow ? "0x80000000" : "0x8000000000000000");
  }
}

}  // namespace

void write_opencl_builtins(std::FILE* out, const machine& on, const std::set<std::string>& exported) {
  fmt::print(out, "#include \"exact.h\"\n");
  for (const auto& o : catalogue)
    for (int width : widths)
      if (left_to_compiler(o, variant::standard, on)) define_exact(out, o, width);
  for_each_form(on, exported, [&](const form& f) {
    builtin b{f, ""};
    const bool by_value = f.width == 1 && !f.has_second();
    if (by_value) {
      fmt::print(out, "\n__attribute__((const)) {} {}({});\n", b.result(), f.by_value(), b.parameters());
    } else {
      const auto pointers = b.arguments([](auto type, auto name) { return fmt::format("const {}* {}", type, name); });
      fmt::print(out, "\nvoid {}({}* result, {}{});\n", f.by_pointer(), b.result(),
                 f.has_second() ? b.second() + "* second, " : "", pointers);
    }
    for (const auto& name : opencl_names(f.op, f.variant, f.width)) {
      b.name = name;
      if (by_value)
        fmt::print(out, "BUILTIN {} _cl_{}({}) {{ return {}({}); }}\n", b.result(), name, b.parameters(), f.by_value(),
                   b.arguments([](auto, auto parameter) { return parameter; }));
      else
        define_by_pointers(out, b);
      if (f.width > 1 && opencl_scalar_last(name)) define_with_scalar_last(out, b);
    }
  });
}
