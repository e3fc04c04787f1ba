#include "kernels.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

using namespace lanemath;

namespace {

constexpr std::size_t members_per_group = 8;
constexpr std::array<std::string_view, 3> argument_names{"x", "y", "z"};

void add(std::vector<group>& groups, const manner& how, const builtin& b) {
  const auto& s = b.operation().sig;
  const auto has_room = [&](const group& g) {
    return g.signature == s && g.how == how && g.members.size() < members_per_group;
  };
  auto place = std::ranges::find_if(groups, has_room);
  if (place == groups.end()) place = groups.insert(place, {s, how, {}});
  place->members.push_back(b);
}

// One argument of a call, as an expression.
std::string argument(const group& g, const kernel& k, std::size_t member, int position) {
  const bool last = position + 1 == g.signature.arity();
  const auto l = g.signature.arguments[position];
  const auto name = argument_names[position];
  if (k.form == shape::chain && member % 2) return fmt::format("result{}", member - 1);
  if (k.form == shape::constant && last) return fmt::format("({}){}", opencl_type(l, 1), constant_argument);
  if (g.how.scalar_last && last) return fmt::format("{0}[i / {1} * {1}]", name, lanes_per_share);
  return fmt::format("*(global const {}*)({} + i)", opencl_type(l, k.width), name);
}

// Calls a member and stores its result.
std::string statement(const group& g, const kernel& k, std::size_t member) {
  const auto type = opencl_type(g.signature.result, k.width), second = opencl_type(g.signature.second, k.width);
  const auto to_results = fmt::format("*(global {}*)(results + {} * lanes + i)", type, member);
  const auto to_seconds = fmt::format("(global {}*)(seconds + {} * lanes + i)", second, member);

  std::string arguments, before, after;
  for (int a = 0; a < g.signature.arity(); ++a) arguments += (a ? ", " : "") + argument(g, k, member, a);
  if (g.how.address_space == "global") {
    arguments += ", " + to_seconds;
  } else if (g.how.address_space == "local") {
    const auto delivered = fmt::format("(local {}*)&delivered[get_local_id(0)]", second);
    arguments += ", " + delivered;
    after = fmt::format(" *{} = *{};", to_seconds, delivered);
  } else if (g.how.address_space == "private") {
    arguments += fmt::format(", &second{}", member);
    before = fmt::format("{} second{}; ", second, member);
    after = fmt::format(" *{} = second{};", to_seconds, member);
  }
  return fmt::format("    {}const {} result{} = {}({}); {} = result{};{}\n", before, type, member,
                     g.members[member].name(k.width), arguments, to_results, member, after);
}

}  // namespace

std::string builtin::name(int width) const { return opencl_names(operation(), variant, width)[name_index]; }

std::vector<group> groups_of(const harness::library& library, std::string_view only) {
  std::vector<group> groups;
  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    if (!only.empty() && o.name() != only) continue;
    for (auto v : variants) {
      if (!o.has(v) || !library.find(index, v, 1)) continue;
      for (std::size_t n = 0; n < opencl_names(o, v, 1).size(); ++n) {
        const builtin b{index, v, n};
        if (o.sig.how == delivery::pointer)
          for (auto space : {"global", "local", "private"}) add(groups, {space}, b);
        else
          add(groups, {}, b);
        if (opencl_scalar_last(b.name(1))) add(groups, {"", true}, b);
      }
    }
  }
  return groups;
}

std::vector<kernel> kernels_of(const group& g, std::string_view name_prefix) {
  std::vector<kernel> all;
  const auto add = [&](std::string_view form_name, shape form, int width) {
    all.push_back({fmt::format("{}_{}{}", name_prefix, form_name, width), form, width});
  };
  for (int width : widths)
    if (width > 1 || !g.how.scalar_last) add("plain", shape::plain, width);
  if (g.how.scalar_last) return all;

  const auto& s = g.signature;
  add("scalar", shape::scalar, 1);
  add("branch", shape::branch, 1);
  if (s.arity() > 1) add("constant", shape::constant, 1);
  if (s == signature{s.result, {s.result}} && g.members.size() > 1) add("chain", shape::chain, 1);
  return all;
}

std::string source_of(const group& g, const kernel& k) {
  const auto& s = g.signature;
  const bool has_pointer = s.how == delivery::pointer;
  std::string parameters;
  for (int a = 0; a < s.arity(); ++a)
    parameters += fmt::format("global const {}* {}, ", opencl_type(s.arguments[a], 1), argument_names[a]);
  if (k.form == shape::branch) parameters += "global const int* flags, ";
  parameters += fmt::format("global {}* results", opencl_type(s.result, 1));
  if (has_pointer) parameters += fmt::format(", global {}* seconds", opencl_type(s.second, 1));

  std::string body = fmt::format("  const size_t lanes = {};\n", lanes);
  if (g.how.address_space == "local")
    body += fmt::format("  local {} delivered[{}];\n", opencl_type(s.second, k.width), items_per_group);
  if (k.form == shape::scalar)
    body += fmt::format(
        "  const size_t first = {0} * get_global_id(0);\n"
        "  #pragma clang loop vectorize(disable) unroll(disable)\n"
        "  for (size_t i = first; i < first + {0}; ++i)",
        lanes_per_share);
  else
    body += fmt::format("  const size_t i = {} * get_global_id(0);\n ", padded(k.width));
  if (k.form == shape::branch) body += " if (flags[i])";
  body += " {\n";
  for (std::size_t member = 0; member < g.members.size(); ++member) body += statement(g, k, member);
  return fmt::format("kernel void {}({}) {{\n{}  }}\n}}\n", k.name, parameters, body);
}
