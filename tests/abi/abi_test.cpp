// Callers of the public header, built by several compilers for several instruction sets, get the lanes that the
// functions return.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

#include "support/lanes_of.h"
#include "support/lone_pages.h"

namespace lanemath::testing {
namespace {

using call_function = void (*)(const void*, const void*, const void*, void*, void*);

bool processor_has(std::string_view instructions) {
  if (instructions == "avx2") return __builtin_cpu_supports("avx2");
  if (instructions == "avx512f") return __builtin_cpu_supports("avx512f");
  if (instructions == "avx512")
    return __builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512vl") &&
           __builtin_cpu_supports("avx512dq") && __builtin_cpu_supports("avx512bw");
  return true;
}

// Callers of a companion are compared with the library, whose bits it has.
bool calls_a_companion(const std::string& path) { return path.find("-level-") != path.npos; }

// The callers' files, as <compiler>-<instructions>.so or <compiler>-level-<level>.so, from a list.
std::vector<std::string> callers(const char* listed) {
  std::vector<std::string> all;
  std::istringstream list(listed);
  for (std::string path; std::getline(list, path, ':');) all.push_back(path);
  return all;
}

class Caller : public ::testing::TestWithParam<std::string> {
 protected:
  void SetUp() override {
    const std::string& path = GetParam();
    const auto instructions = path.substr(path.rfind('-') + 1, path.rfind('.') - path.rfind('-') - 1);
    if (!processor_has(instructions)) GTEST_SKIP() << "this processor lacks " << instructions;
    caller = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_TRUE(caller) << dlerror();
  }
  void TearDown() override {
    if (caller) dlclose(caller);
  }
  void* caller = nullptr;
};

// Calls from a stack that is moved by so many bytes: a caller may not rely on more than its alignment to 16.
[[gnu::noinline]] void call_lower(std::size_t bytes, call_function call, std::array<std::array<std::byte, 128>, 5>& b) {
  const volatile auto room = __builtin_alloca(bytes);
  (void)room;
  call(&b[0], &b[1], &b[2], &b[3], &b[4]);
}

// Compares what a caller gets with what the function returns. Returns whether the caller has such a call.
bool compare(void* caller, std::size_t index, variant v, int width, const harness::library& library) {
  const auto& o = catalogue[index];
  const auto name = fmt::format("{}{}{}", o.name(), width, suffix(v));
  const auto address = dlsym(caller, ("call_" + name).c_str());
  if (!address) return false;
  const auto call = reinterpret_cast<call_function>(address);
  const auto tuples = mixed_tuples(o, 16 * 3 * 20);
  const auto due = harness::evaluate(o, library.find(index, v, width).value(), width, tuples);

  for (std::size_t n = 0; n < tuples.size(); n += width) {
    alignas(128) std::array<std::array<std::byte, 128>, 5> buffers{};
    for (int lane = 0; lane < width; ++lane)
      for (int i = 0; i < o.sig.arity(); ++i) {
        const auto size = size_of(o.sig.arguments[i]);
        std::memcpy(&buffers[i][lane * size], &tuples[n + lane][i], size);
      }
    call_lower(16 * (n / width % 4), call, buffers);
    for (int lane = 0; lane < width; ++lane) {
      outcome got;
      const auto size = size_of(o.sig.result), second_size = size_of(o.sig.second);
      std::memcpy(&got.first, &buffers[3][lane * size], size);
      if (second_size) std::memcpy(&got.second, &buffers[4][lane * second_size], second_size);
      EXPECT_EQ(got, due[n + lane]) << name << " lane " << lane << " of " << text_of(o, tuples[n + lane]);
      if (got != due[n + lane]) return true;
    }
  }
  return true;
}

TEST_P(Caller, GetsEveryLaneOfEveryShape) {
  const harness::library library(calls_a_companion(GetParam()) ? LANEMATH_LIBRARY : LANEMATH_PROBE);
  std::size_t called = 0;
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (int width : widths) called += compare(caller, index, variant::standard, width, library);
  EXPECT_EQ(called, 22u * widths.size());
}

// At both ends of a page, and at any alignment next to bytes that must stay.
void expect_exact_access(void* caller) {
  const lone_pages from, to;
  for (auto l : {lane::f32, lane::f64, lane::i32, lane::u32, lane::i64, lane::u64})
    for (int width : widths) {
      const auto type = fmt::format("{}{}", type_name(l), width);
      const auto call = [&](const char* what, const void* in, void* out) {
        reinterpret_cast<void (*)(const void*, void*)>(dlsym(caller, (what + type).c_str()))(in, out);
      };
      ASSERT_TRUE(dlsym(caller, ("copy_" + type).c_str()) && dlsym(caller, ("fill_" + type).c_str())) << type;
      const std::size_t size = size_of(l), bytes = size * width;
      std::vector<std::byte> lanes(bytes), filled(bytes);
      for (std::size_t i = 0; i < bytes; ++i) lanes[i] = std::byte(i + 1), filled[i] = std::byte(i % size + 1);

      const auto expect_copy = [&](std::byte* in, std::byte* out) {
        std::memcpy(in, lanes.data(), bytes);
        call("copy_", in, out);
        EXPECT_EQ(std::memcmp(out, lanes.data(), bytes), 0) << type;
        call("fill_", lanes.data(), out);
        EXPECT_EQ(std::memcmp(out, filled.data(), bytes), 0) << type;
      };
      expect_copy(from.begin(), to.begin());
      expect_copy(from.end() - bytes, to.end() - bytes);
      for (std::size_t shift = 1; shift <= 16; ++shift) {
        std::array<std::byte, 256> in, out;
        out.fill(std::byte(0xEE));
        expect_copy(&in[shift], &out[shift]);
        for (std::size_t i = 0; i < out.size(); ++i)
          EXPECT_TRUE((i >= shift && i < shift + bytes) || out[i] == std::byte(0xEE)) << type << " at " << i - shift;
      }
    }
}

TEST_P(Caller, LoadsStoresAndFillsExactlyTheLanes) { expect_exact_access(caller); }

class CppCaller : public Caller {
 protected:
  bool call(const char* name) const {
    const auto address = dlsym(caller, name);
    return address && reinterpret_cast<bool (*)()>(address)();
  }
};

TEST_P(CppCaller, GetsEveryLaneOfEveryFunction) {
  const harness::library library(LANEMATH_LIBRARY);
  for (std::size_t index = 0; index < catalogue.size(); ++index)
    for (auto v : variants)
      for (int width : widths)
        EXPECT_EQ(compare(caller, index, v, width, library), catalogue[index].has(v)) << catalogue[index].name();
}

TEST_P(CppCaller, LoadsStoresAndFillsExactlyTheLanes) { expect_exact_access(caller); }

TEST_P(CppCaller, WorksOverAllTypesAndWidths) { EXPECT_TRUE(call("generic_code_works")); }

TEST_P(CppCaller, FindsResultsByName) { EXPECT_TRUE(call("names_are_right")); }

std::string name_of(const ::testing::TestParamInfo<std::string>& info) {
  std::string name = info.param.substr(info.param.rfind('/') + 1);
  name = name.substr(0, name.rfind('.'));
  std::replace_if(
      name.begin(), name.end(), [](unsigned char c) { return !std::isalnum(c); }, '_');
  return name;
}
INSTANTIATE_TEST_SUITE_P(Compilers, Caller, ::testing::ValuesIn(callers(LANEMATH_CALLERS)), name_of);
INSTANTIATE_TEST_SUITE_P(Compilers, CppCaller, ::testing::ValuesIn(callers(LANEMATH_CPP_CALLERS)), name_of);

}  // namespace
}  // namespace lanemath::testing
