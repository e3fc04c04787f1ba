// How kernels reach the library, in LLVM IR.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <array>
#include <bit>

#include "opencl_forms.h"

namespace {

using namespace lanemath;

constexpr std::string_view head = R"(; How kernels reach the library. Made by the generator.
;
; lanemath_expf8: by value. What the library takes in memory is copied here, so that the memory lives only during the
;   call; in a kernel it would be kept for each call and work item. What it gives in memory is read a register at a
;   time, as it was written: a wider load would wait for the stores.
; lanemath_expf8_by_pointer: for the built-in. Inlined into the kernel, where nothing is left of the pointers.
; lanemath_expf1: for a scalar built-in. The attribute tells the loop vectoriser its vector forms; it stands on a
;   function of our own, for calls in kernels are marked as not to be replaced. The vector forms are called, since the
;   runtime's linker copies only what is called. The calls vanish as unused; the addresses in an empty instruction keep
;   the vector forms, and keep constant arguments from being moved into the function.
; The library's functions are called by their addresses, without the detour by a linkage table, and with the upper halves
; of registers cleared, which would slow its code down.
; lanemath_exp2_lane_by_lane: a vector form where the library's has an algorithm of its own, and so other bits.
; lanemath_sincosf1_packed: the same with two results in one value, since the vectoriser knows no more: an i64, or an
;   fp128 for the sake of its register.

target datalayout = "e-m:e-p270:32:32-p271:32:32-p272:64:64-i64:64-f80:128-n8:16:32:64-S128"
target triple = "x86_64-pc-linux-gnu"

declare void @llvm.x86.avx.vzeroupper()
)";

constexpr std::string_view pure = "#0", with_memory = "#1", own = "#2", inlined = "#3";

void write_attributes(std::FILE* out, const machine& on) {
  const auto processor = fmt::format("\"target-cpu\"=\"{}\"", on.processor);
  fmt::print(out,
             "\nattributes {} = {{ nonlazybind nounwind readnone willreturn }}\n"
             "attributes {} = {{ nonlazybind nounwind argmemonly willreturn }}\n"
             "attributes {} = {{ noinline nounwind readnone willreturn {} }}\n"
             "attributes {} = {{ alwaysinline nounwind argmemonly willreturn {} }}\n",
             pure, with_memory, own, processor, inlined, processor);
}

constexpr std::array names{"x", "y", "z"};

std::string ir_type(lane l, int width) {
  constexpr std::array<std::string_view, 7> scalars{"", "float", "double", "i32", "i32", "i64", "i64"};
  const auto scalar = scalars[std::size_t(l)];
  return width == 1 ? std::string(scalar) : fmt::format("<{} x {}>", padded(width), scalar);
}
std::string constant(lane l, double value) {
  if (!is_floating(l)) return fmt::format("{}", std::int64_t(value));
  return fmt::format("0x{:016X}", std::bit_cast<std::uint64_t>(l == lane::f32 ? double(float(value)) : value));
}
// A vector in memory, aligned as the stack is.
std::string room_type(lane l, int width) { return fmt::format("[{} x {}]", padded(width), ir_type(l, 1)); }

class writer {
 public:
  writer(std::FILE* out, const form& f, const machine& on) : out_(out), f_(f), s_(f.sig()), on_(on) {}

  void declare() {
    if (f_.is_filled()) return;  // the form of four lanes declares it
    std::vector<std::string> types;
    if (!f_.is_in_register(s_.result))
      types.push_back(fmt::format("ptr sret({}) align 16", room_type(s_.result, f_.width)));
    for (int i = 0; i < s_.arity(); ++i) types.push_back(passed_to_library(i));
    if (f_.has_second()) types.push_back("ptr");
    fmt::print(out_, "\ndeclare {} @{}({}) {}\n", returned_by_library(), f_.function(), fmt::join(types, ", "),
               in_registers_only() ? pure : with_memory);
  }

  void define_by_value() {
    define(f_.by_value(), result_type());
    if (crossing_of(f_) == crossing::in_pieces) {
      auto rooms = arguments([&](int i) { return "ptr " + store(names[i], s_.arguments[i]); });
      fmt::print(out_, "  %rooms = alloca {}\n", ir_type(s_.result, f_.width));
      fmt::print(out_, "  call void @{}(ptr %rooms, {})\n", f_.by_pointer(), rooms);
      fmt::print(out_, "  %result = load {}, ptr %rooms\n", ir_type(s_.result, f_.width));
    } else {
      clear_upper_halves(padded(f_.width) * int(std::max(size_of(s_.result), size_of(s_.second))));
      call_library();
    }
    return_results();
  }

  void define_packed() {
    define(f_.packed(), packed_type(f_.width));
    clear_upper_halves(f_.width * half() / 4);
    call_library();
    pack();
  }

  void define_lane_by_lane() {
    define(f_.lane_by_lane(), result_type());
    std::string joined = "poison";
    for (int lane = 0; lane < f_.width; ++lane) {
      const auto passed = arguments([&](int i) {
        fmt::print(out_, "  %{}{} = extractelement {} %{}, i64 {}\n", names[i], lane,
                   ir_type(s_.arguments[i], f_.width), names[i], lane);
        return fmt::format("{} %{}{}", ir_type(s_.arguments[i], 1), names[i], lane);
      });
      const auto scalar = ir_type(s_.result, 1);
      fmt::print(
          out_,
          "  %result{0} = call {1} @{2}({3}) {4}\n  %joined{0} = insertelement {5} {6}, {1} %result{0}, i64 {0}\n",
          lane, scalar, form{on_, f_.op, f_.variant, 1}.function(), passed, pure, result_type(), joined);
      joined = fmt::format("%joined{}", lane);
    }
    fmt::print(out_, "  ret {} {}\n}}\n", result_type(), joined);
  }

  void define_scalar_of_loops(const std::vector<int>& lane_counts) {
    std::vector<std::string> mappings, addresses, constraints;
    const auto own_name = f_.has_second() ? f_.packed() : f_.by_value();
    for (int lanes : lane_counts) {
      const auto function = loop_function({on_, f_.op, f_.variant, lanes});
      mappings.push_back(
          fmt::format("_ZGV_LLVM_N{}{}_{}({})", lanes, std::string(s_.arity(), 'v'), own_name, function));
      addresses.push_back("ptr @" + function);
    }
    addresses.push_back("ptr @" + own_name);
    constraints.assign(addresses.size(), "r");

    const auto type = f_.has_second() ? packed_type(1) : result_type();
    define(own_name, type, fmt::format(" \"vector-function-abi-variant\"=\"{}\"", fmt::join(mappings, ",")));
    for (int lanes : lane_counts)
      fmt::print(out_, "  %unused{} = call {} @{}({}) {}\n", lanes,
                 f_.has_second() ? packed_type(lanes) : ir_type(s_.result, lanes),
                 loop_function({on_, f_.op, f_.variant, lanes}),
                 arguments([&](int i) { return ir_type(s_.arguments[i], lanes) + " zeroinitializer"; }), pure);
    fmt::print(out_, "  call void asm sideeffect \"\", \"{}\"({})\n", fmt::join(constraints, ","),
               fmt::join(addresses, ", "));
    call_library();
    if (f_.has_second())
      pack();
    else
      return_results();
  }

  void define_by_pointer() {
    fmt::print(out_, "\ndefine void @{}(ptr %to, {}{}) {} {{\n", f_.by_pointer(),
               f_.has_second() ? "ptr %second_to, " : "",
               arguments([](int i) { return fmt::format("ptr %{}_at", names[i]); }), inlined);
    if (crossing_of(f_) == crossing::in_pieces) {
      in_pieces();
    } else {
      for (int i = 0; i < s_.arity(); ++i) {
        const lane l = s_.arguments[i];
        fmt::print(out_, "  %{}{} = load {}, ptr %{}_at\n", names[i], f_.is_filled() ? "_three" : "",
                   ir_type(l, f_.width), names[i]);
        if (f_.is_filled())
          fmt::print(out_, "  %{0} = insertelement {1} %{0}_three, {2} {3}, i64 3\n", names[i], ir_type(l, f_.width),
                     ir_type(l, 1), constant(l, f_.op.filler));
      }
      if (f_.width == 1) {
        fmt::print(out_, "  %packed = call {} @{}({}) {}\n", packed_type(1), f_.packed(), values(), pure);
        unpack();
      } else if (f_.has_second()) {
        fmt::print(out_, "  %both = call {} @{}({}) {}\n", result_type(), f_.by_value(), values(), pure);
        fmt::print(out_, "  %result = extractvalue {0} %both, 0\n  %second = extractvalue {0} %both, 1\n",
                   result_type());
      } else {
        fmt::print(out_, "  %result = call {} @{}({}) {}\n", result_type(),
                   in_registers_only() ? f_.function() : f_.by_value(), values(), pure);
      }
      if (f_.has_second()) fmt::print(out_, "  store {} %second, ptr %second_to\n", ir_type(s_.second, f_.width));
      fmt::print(out_, "  store {} %result, ptr %to\n", ir_type(s_.result, f_.width));
    }
    fmt::print(out_, "  ret void\n}}\n");
  }

 private:
  bool in_registers_only() const { return crossing_of(f_) == crossing::whole && !f_.has_second(); }

  template <class Write>
  std::string arguments(Write write) const {
    std::vector<std::string> all;
    for (int i = 0; i < s_.arity(); ++i) all.push_back(write(i));
    return fmt::format("{}", fmt::join(all, ", "));
  }
  std::string values() const {
    return arguments([&](int i) { return fmt::format("{} %{}", ir_type(s_.arguments[i], f_.width), names[i]); });
  }
  std::string passed_to_library(int i) const {
    const lane l = s_.arguments[i];
    return f_.is_in_register(l) ? ir_type(l, f_.width) : fmt::format("ptr byval({}) align 16", room_type(l, f_.width));
  }
  std::string returned_by_library() const {
    return f_.is_in_register(s_.result) ? ir_type(s_.result, f_.width) : "void";
  }
  std::string result_type() const {
    const auto first = ir_type(s_.result, f_.width);
    return f_.has_second() ? fmt::format("{{ {}, {} }}", first, ir_type(s_.second, f_.width)) : first;
  }

  void define(const std::string& name, const std::string& type, const std::string& more = "") {
    fmt::print(out_, "\ndefine {} @{}({}) {}{} {{\n", type, name, values(), own, more);
  }

  // Room on the stack; its name.
  std::string room(std::string_view name, lane l) {
    fmt::print(out_, "  %{}_room = alloca {}, align 16\n", name, room_type(l, f_.width));
    return fmt::format("%{}_room", name);
  }
  std::string store(std::string_view name, lane l) {
    auto at = room(name, l);
    fmt::print(out_, "  store {} %{}, ptr {}, align 16\n", ir_type(l, f_.width), name, at);
    return at;
  }

  // The compiler does so if an argument has upper halves, but not if only what is returned has them.
  void clear_upper_halves(int bytes_returned) {
    const bool from_registers = std::all_of(s_.arguments.begin(), s_.arguments.begin() + s_.arity(),
                                            [&](lane l) { return f_.is_in_register(l); });
    const bool narrow = f_.from().register_bytes == 16;
    if (narrow && on_.register_size > 16 && bytes_returned > 16 && from_registers)
      fmt::print(out_, "  call void @llvm.x86.avx.vzeroupper()\n");
  }

  // From the arguments to %result and %second.
  void call_library() {
    std::vector<std::string> passed;
    const bool result_in_memory = !f_.is_in_register(s_.result);
    if (result_in_memory)
      passed.push_back(
          fmt::format("ptr sret({}) align 16 {}", room_type(s_.result, f_.width), room("result", s_.result)));
    for (int i = 0; i < s_.arity(); ++i)
      passed.push_back(
          passed_to_library(i) + " " +
          (f_.is_in_register(s_.arguments[i]) ? fmt::format("%{}", names[i]) : store(names[i], s_.arguments[i])));
    if (f_.has_second()) passed.push_back("ptr " + room("second", s_.second));
    fmt::print(out_, "  {}call {} @{}({}) {}\n", result_in_memory ? "" : "%result = ", returned_by_library(),
               f_.function(), fmt::join(passed, ", "), in_registers_only() ? pure : with_memory);
    if (result_in_memory) load("result", s_.result);
    if (f_.has_second()) load("second", s_.second);
  }

  // A vector that the library has left in a room on the stack.
  void load(std::string_view name, lane l) {
    const int lanes = int(16 / size_of(l));
    if (padded(f_.width) <= lanes) {
      fmt::print(out_, "  %{0} = load {1}, ptr %{0}_room, align 16\n", name, ir_type(l, f_.width));
      return;
    }
    fmt::print(out_, "  %{}_joined = alloca {}, align 16\n", name, room_type(l, f_.width));
    for (int offset = 0; offset < padded(f_.width) * int(size_of(l)); offset += 16) {
      fmt::print(out_, "  %{0}{1}_from = getelementptr i8, ptr %{0}_room, i64 {1}\n", name, offset);
      fmt::print(out_, "  %{0}{1}_to = getelementptr i8, ptr %{0}_joined, i64 {1}\n", name, offset);
      fmt::print(out_, "  %{0}{1} = load volatile {2}, ptr %{0}{1}_from, align 16\n", name, offset, ir_type(l, lanes));
      fmt::print(out_, "  store {2} %{0}{1}, ptr %{0}{1}_to, align 16\n", name, offset, ir_type(l, lanes));
    }
    fmt::print(out_, "  %{0} = load {1}, ptr %{0}_joined, align 16\n", name, ir_type(l, f_.width));
  }

  void return_results() {
    if (!f_.has_second()) {
      fmt::print(out_, "  ret {} %result\n}}\n", result_type());
      return;
    }
    fmt::print(out_, "  %first = insertvalue {} poison, {} %result, 0\n", result_type(), ir_type(s_.result, f_.width));
    fmt::print(out_, "  %both = insertvalue {} %first, {} %second, 1\n", result_type(), ir_type(s_.second, f_.width));
    fmt::print(out_, "  ret {} %both\n}}\n", result_type());
  }

  // The first result is in the low half.
  int half() const { return size_of(s_.result) == 4 ? 32 : 64; }
  std::string packed_type(int width) const {
    const std::string_view scalar = half() == 32 ? "i64" : "fp128";
    return width == 1 ? std::string(scalar) : fmt::format("<{} x {}>", width, scalar);
  }
  std::string halves_type(int width) const { return ir_type(half() == 32 ? lane::u32 : lane::u64, width); }

  void pack() {
    const auto halves = halves_type(f_.width);
    fmt::print(out_, "  %low = bitcast {} %result to {}\n", ir_type(s_.result, f_.width), halves);
    fmt::print(out_, "  %high = {} {} %second to {}\n",
               size_of(s_.second) * 8 == std::size_t(half()) ? "bitcast" : "zext", ir_type(s_.second, f_.width),
               halves);
    if (f_.width == 1) {
      fmt::print(out_,
                 "  %first = insertelement {0} poison, {1} %low, i64 0\n  %both = insertelement {0} %first, {1} %high, "
                 "i64 1\n",
                 halves_type(2), halves);
    } else {
      std::vector<std::string> order;
      for (int i = 0; i < f_.width; ++i) order.push_back(fmt::format("i32 {}, i32 {}", i, f_.width + i));
      fmt::print(out_, "  %both = shufflevector {0} %low, {0} %high, <{1} x i32> <{2}>\n", halves, 2 * f_.width,
                 fmt::join(order, ", "));
    }
    fmt::print(out_, "  %packed = bitcast {} %both to {}\n  ret {} %packed\n}}\n", halves_type(2 * f_.width),
               packed_type(f_.width), packed_type(f_.width));
  }
  // In a kernel's loop, where the vectoriser knows integers but no vectors.
  void unpack() {
    const auto whole = fmt::format("i{}", 2 * half());
    fmt::print(out_, "  %bits = bitcast {} %packed to {}\n", packed_type(1), whole);
    fmt::print(out_, "  %high = lshr {} %bits, {}\n", whole, half());
    for (auto [name, from, l] : {std::tuple("result", "bits", s_.result), std::tuple("second", "high", s_.second)}) {
      const auto bits = fmt::format("i{}", 8 * size_of(l));
      fmt::print(out_, "  %{0}_bits = trunc {1} %{2} to {3}\n  %{0} = bitcast {3} %{0}_bits to {4}\n", name, whole,
                 from, bits, ir_type(l, 1));
    }
  }

  void in_pieces() {
    const int lanes = f_.lanes_of_a_register();
    const form piece{on_, f_.op, f_.variant, lanes};
    for (int k = 0; k * lanes < f_.width; ++k) {
      const auto at = [&](std::string_view pointer, lane l) {
        auto name = fmt::format("%{}{}", pointer, k);
        fmt::print(out_, "  {} = getelementptr i8, ptr %{}, i64 {}\n", name, pointer, k * lanes * int(size_of(l)));
        return name;
      };
      const auto passed = arguments([&](int i) {
        const lane l = s_.arguments[i];
        const auto type = ir_type(l, lanes), from = at(fmt::format("{}_at", names[i]), l);
        // The third lane twice: junk in the fourth could be costly.
        if ((k + 1) * lanes > f_.width)
          fmt::print(out_,
                     "  %last_{0} = load {1}, ptr {2}\n  %low_{0} = insertelement {3} poison, {1} %last_{0}, i64 0\n"
                     "  %{0}{4} = insertelement {3} %low_{0}, {1} %last_{0}, i64 1\n",
                     names[i], ir_type(l, 1), from, type, k);
        else
          fmt::print(out_, "  %{}{} = load {}, ptr {}\n", names[i], k, type, from);
        return fmt::format("{} %{}{}", type, names[i], k);
      });
      const auto type = ir_type(s_.result, lanes);
      fmt::print(out_, "  %result{} = call {} @{}({}) {}\n", k, type, piece.function(), passed, pure);
      const auto to = at("to", s_.result);
      fmt::print(out_, "  store {} %result{}, ptr {}\n", type, k, to);
    }
  }

  std::FILE* out_;
  const form& f_;
  const signature& s_;
  const machine& on_;
};

// x y + z by the processor's instruction.
void define_fused(std::FILE* out, lane l, int width) {
  constexpr auto suffix = [](lane l) { return l == lane::f32 ? "f32" : "f64"; };
  const auto type = width == 1 ? ir_type(l, 1) : fmt::format("<{} x {}>", width, ir_type(l, 1));
  const auto function =
      width == 1 ? fmt::format("llvm.fma.{}", suffix(l)) : fmt::format("llvm.fma.v{}{}", width, suffix(l));
  fmt::print(out,
             "\ndeclare {0} @{1}({0}, {0}, {0})\n"
             "define void @lanemath_fused_{2}(ptr %to, ptr %x_at, ptr %y_at, ptr %z_at) {3} {{\n"
             "  %x = load {0}, ptr %x_at\n  %y = load {0}, ptr %y_at\n  %z = load {0}, ptr %z_at\n"
             "  %result = call {0} @{1}({0} %x, {0} %y, {0} %z)\n  store {0} %result, ptr %to\n  ret void\n}}\n",
             type, function, opencl_type(l, width), inlined);
}

}  // namespace

void write_opencl_crossings(std::FILE* out, const machine& on, const std::set<std::string>& exported) {
  fmt::print(out, "{}", head);
  for_each_form(on, exported, [&](const form& f) {
    writer text(out, f, on);
    text.declare();
    const auto loops = loop_widths(f.op, on);
    if (f.width == 1) text.define_scalar_of_loops(loops);
    const auto of_loops = std::ranges::find(loops, f.width) != loops.end() ? loop_function(f) : "";
    if (of_loops == f.packed()) text.define_packed();
    if (of_loops == f.lane_by_lane()) text.define_lane_by_lane();
    if (f.width > 1 && (f.has_second() || crossing_of(f) == crossing::in_memory || of_loops == f.by_value()))
      text.define_by_value();
    if (f.width > 1 || f.has_second()) text.define_by_pointer();
  });
  if (on.fuses)
    for (lane l : {lane::f32, lane::f64})
      for (int width : widths) define_fused(out, l, width);
  write_attributes(out, on);
}
