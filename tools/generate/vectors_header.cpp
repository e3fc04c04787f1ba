// The public header of vector types, with what loads, stores and fills them.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <vector>

#include "documentation.h"
#include "generate.h"
#include "names.h"

namespace {

using namespace lanemath;

void write_types(std::FILE* out, lane l, int width) {
  const std::string name(type_name(l)), vector = fmt::format("lanemath_{}{}", name, width);
  const auto bytes = size_of(l) * padded(width);
  if (width == 1)
    fmt::print(out, "{}typedef lanemath_{} {};\n", documentation(fmt::format("One {}.", name)), name, vector);
  else
    // Three lanes have attributes of their own: a typedef of the typedef of four would lose the alignment.
    fmt::print(
        out,
        "{0}typedef lanemath_{1} {2} __attribute__((vector_size({3}), aligned({4})));\n"
        "typedef lanemath_{1} lanemath_alias_{1}{5} "
        "__attribute__((vector_size({3}), aligned(1), may_alias));\n",
        documentation(fmt::format("{} lanes of {}{}.", width, name, width == 3 ? ", with the room of four" : "")), name,
        vector, bytes, std::min<std::size_t>(bytes, 16), width);
  if (width == 3) {
    for (auto type : {"lanemath_{0}{1}_pair", "lanemath_border_{0}{1}", "lanemath_border_{0}{1}_pair"})
      fmt::print(out, "typedef {} {};\n", fmt::format(fmt::runtime(type), name, 4),
                 fmt::format(fmt::runtime(type), name, 3));
    return;
  }
  if (is_wide(l, width))
    fmt::print(out,
               "typedef struct {{\n  lanemath_{0} lane[{1}];\n}} "
               "__attribute__((aligned(16), may_alias)) lanemath_border_{0}{1};\n",
               name, width);
  else
    fmt::print(out, "typedef {0} lanemath_border_{1}{2};\n", vector, name, width);
  for (auto border : {"", "border_"})
    fmt::print(out, "typedef struct {{\n  lanemath_{0}{1}{2} first, second;\n}} lanemath_{0}{1}{2}_pair;\n", border,
               name, width);
  if (width == 1) return;
  if (!is_wide(l, width)) {
    fmt::print(out, "typedef {0} lanemath_wide_{1}{2};\n", vector, name, width);
    return;
  }
  // Aligned as the level's registers are, whether it is a vector or a structure. Companions ask for that only where
  // they return a pair; but memory that is aligned so has the caller's stores and their loads in one piece, and a
  // vector of less alignment would lose that in templates.
  fmt::print(out,
             "#if LANEMATH_REGISTERS >= {0}\n"
             "typedef lanemath_{1} lanemath_wide_{1}{2} __attribute__((vector_size({0})));\n",
             bytes, name, width);
  if (bytes > 32)
    fmt::print(out,
               "#elif LANEMATH_REGISTERS > 16\ntypedef struct {{\n  lanemath_{0} lane[{1}];\n}} "
               "__attribute__((aligned(LANEMATH_REGISTERS), may_alias)) lanemath_wide_{0}{1};\n",
               name, width);
  fmt::print(out,
             "#else\ntypedef lanemath_border_{0}{1} lanemath_wide_{0}{1};\n#endif\n"
             "typedef struct {{\n  lanemath_wide_{0}{1} first, second;\n}} "
             "__attribute__((aligned(LANEMATH_REGISTERS))) lanemath_wide_{0}{1}_pair;\n",
             name, width);
}

// What one of the three helpers is, for one type: for wide vectors, also a macro.
struct helper {
  std::string name, about, result, parameters, names;
};

void write_macro(std::FILE* out, const helper& h, const std::string& expression) {
  fmt::print(out, "{0}LANEMATH_INLINE {1} {2}({3}) {{\n  {4}{5};\n}}\n#define {2}({6}) {5}\n", documentation(h.about),
             h.result, h.name, h.parameters, h.result == "void" ? "" : "return ", expression, h.names);
}

void write_function(std::FILE* out, const helper& h, const std::string& body) {
  fmt::print(out, "{}LANEMATH_INLINE {} {}({}) {{\n{}}}\n", documentation(h.about), h.result, h.name, h.parameters,
             body);
}

void write_helpers(std::FILE* out, lane l, int width) {
  const std::string name(type_name(l)), type = vector_name(l, width), scalar = "lanemath_" + name,
                                        vector = "lanemath_" + type;
  const auto lanes = width == 1 ? "one " + name : fmt::format("{} lanes of {}", width, name);
  const helper load{"lanemath_load_" + type, fmt::format("Reads {} from memory of any alignment.", lanes), vector,
                    fmt::format("const {}* from", scalar), "from"};
  const helper store{"lanemath_store_" + type, fmt::format("Writes {} to memory of any alignment.", lanes), "void",
                     fmt::format("{}* to, {} v", scalar, vector), "to, v"};
  const helper fill{"lanemath_fill_" + type, fmt::format("{}, all of them x.", width == 1 ? "One " + name : lanes),
                    vector, scalar + " x", "x"};

  if (is_wide(l, width)) {
    const auto kind = width == 3 ? "_THREE" : "";
    const auto types = width == 3 ? name : fmt::format("{}, {}", name, type);
    const auto part = vector_name(l, int(16 / size_of(l)));
    write_macro(out, load, fmt::format("LANEMATH_LOAD{}({}, from)", kind, types));
    write_macro(out, store, fmt::format("LANEMATH_STORE{}({}, to, v)", kind, types));
    write_macro(out, fill, fmt::format("LANEMATH_FILL({0}, {1}, lanemath_fill_{0}(x))", part, type));
    return;
  }
  if (width == 3) {
    write_function(out, load,
                   fmt::format("  const {} v = {{from[0], from[1], from[2], from[2]}};\n  return v;\n", vector));
    write_function(out, store, "  to[0] = v[0];\n  to[1] = v[1];\n  to[2] = v[2];\n");
  } else {
    write_function(out, load, fmt::format("  {} v;\n  memcpy(&v, from, sizeof v);\n  return v;\n", vector));
    write_function(out, store, "  memcpy(to, &v, sizeof v);\n");
  }
  write_function(out, fill,
                 width == 1 ? "  return x;\n"
                            : fmt::format("  const {} v = {{{}}};\n  return v;\n", vector,
                                          fmt::join(std::vector<char>(padded(width), 'x'), ", ")));
}

}  // namespace

void write_vectors_header(std::FILE* out) {
  fmt::print(out,
             "{}#ifndef LANEMATH_VECTORS_H\n#define LANEMATH_VECTORS_H\n\n#include <lanemath/types.h>\n\n"
             "#pragma GCC system_header\n\nLANEMATH_BEGIN\n",
             head("Vector types, and what loads, stores and fills them. Loading three lanes reads three, and "
                  "repeats the last as the fourth; storing writes three.\n\nlanemath_<type>_pair holds two vectors. "
                  "lanemath_border_<type> is how a type crosses the library's border, "
                  "lanemath_wide_<type> how it crosses to what serves wide vectors, and lanemath_alias_<type> is a "
                  "vector anywhere in memory."));
  for (auto l : {lane::f32, lane::f64, lane::i32, lane::u32, lane::i64, lane::u64}) {
    fmt::print(out, "\n");
    for (int width : {1, 2, 4, 3, 8, 16}) write_types(out, l, width);  // three is made of four
    for (int width : widths) write_helpers(out, l, width);
  }
  fmt::print(out, "\nLANEMATH_END\n\n#endif\n");
}
