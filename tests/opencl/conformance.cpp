// Shows that the library answers the built-ins of OpenCL kernels: each one runs at every width over special values
// and random bits, and every lane must have the bits that a direct call of the library gives.
#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#define CL_HPP_TARGET_OPENCL_VERSION 120
#include <fmt/format.h>
#include <CL/opencl.hpp>

#include <CLI/CLI.hpp>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "generate/opencl.h"
#include "harness/harness.h"

namespace {

using namespace lanemath;

constexpr std::size_t lanes_per_item = 16;
constexpr std::size_t items_per_group = 64;
constexpr std::size_t lanes = 128 * items_per_group * lanes_per_item;

using bytes = std::vector<std::byte>;

// How a kernel calls a built-in, beyond its name.
struct manner {
  std::string address_space;  // of the second result's pointer, if there is one
  bool scalar_last = false;   // the last argument is one scalar for all lanes
};

template <class Bits>
constexpr auto special_bits() {
  using real = std::conditional_t<sizeof(Bits) == 4, float, double>;
  using limits = std::numeric_limits<real>;
  std::vector<Bits> all{0, 1, 2, 3, 31, 32, 63, 64, ~Bits(0), std::numeric_limits<Bits>::max() / 2};
  for (double value : {0.5,
                       1.0,
                       1.5,
                       2.0,
                       2.5,
                       3.0,
                       10.0,
                       0.1,
                       88.0,
                       89.0,
                       104.0,
                       127.0,
                       128.0,
                       150.0,
                       709.0,
                       745.0,
                       1023.0,
                       1024.0,
                       1075.0,
                       8388608.0,
                       2147483648.0,
                       4294967296.0,
                       9223372036854775808.0,
                       1e19})
    all.push_back(std::bit_cast<Bits>(real(value)));
  for (real value : {limits::infinity(), limits::quiet_NaN(), limits::signaling_NaN(), limits::max(), limits::min(),
                     limits::denorm_min(), limits::epsilon()})
    all.push_back(std::bit_cast<Bits>(value));
  const std::size_t positive = all.size();
  for (std::size_t i = 0; i < positive; ++i) all.push_back(all[i] ^ Bits(1) << (8 * sizeof(Bits) - 1));
  return all;
}

// A third each of special values, of random bits, and of ordinary values or small integers.
template <class Bits>
void fill(bytes& out, bool integers, std::mt19937_64& random) {
  using real = std::conditional_t<sizeof(Bits) == 4, float, double>;
  const auto specials = special_bits<Bits>();
  std::uniform_real_distribution<double> ordinary(-40, 40);
  for (std::size_t i = 0; i < lanes; ++i) {
    Bits bits = Bits(random());
    if (const auto kind = random() % 3; kind == 0)
      bits = specials[random() % specials.size()];
    else if (kind == 1)
      bits = integers ? Bits(std::int64_t(ordinary(random))) : std::bit_cast<Bits>(real(ordinary(random)));
    std::memcpy(out.data() + i * sizeof bits, &bits, sizeof bits);
  }
}

bytes inputs_of(lane l, std::mt19937_64& random) {
  bytes all(lanes * size_of(l));
  const bool integers = l != lane::f32 && l != lane::f64;
  if (size_of(l) == 4)
    fill<std::uint32_t>(all, integers, random);
  else
    fill<std::uint64_t>(all, integers, random);
  return all;
}

// The first lane of each work item's share, in all its lanes.
void spread_first_lanes(bytes& values, std::size_t lane_size) {
  for (std::size_t i = 0; i < lanes; ++i)
    std::memcpy(values.data() + i * lane_size, values.data() + i / lanes_per_item * lanes_per_item * lane_size,
                lane_size);
}

// One kernel for all widths. Each work item has 16 lanes, and each width its own part of the results.
std::string kernel_source(const operation& o, variant v, std::size_t name_index, const manner& how) {
  constexpr std::array names{"x", "y", "z"};
  std::string parameters, body;
  for (int i = 0; i < o.sig.arity(); ++i)
    parameters += fmt::format("global const {}* {}, ", opencl_type(o.sig.arguments[i], 1), names[i]);
  parameters += fmt::format("global {}* result", opencl_type(o.sig.result, 1));
  const bool has_pointer = o.sig.how == delivery::pointer;
  if (has_pointer) parameters += fmt::format(", global {}* second", opencl_type(o.sig.second, 1));
  if (how.address_space == "local")
    body += fmt::format("  local {} delivered[{}];\n", opencl_type(o.sig.second, 16), items_per_group);

  for (std::size_t place = 0; place < widths.size(); ++place) {
    const int width = widths[place];
    std::string call = opencl_names(o, v, width)[name_index] + "(";
    for (int i = 0; i < o.sig.arity(); ++i) {
      const bool scalar = how.scalar_last && i + 1 == o.sig.arity();
      call += fmt::format("{}*(global const {}*)({} + {})", i ? ", " : "",
                          opencl_type(o.sig.arguments[i], scalar ? 1 : width), names[i], scalar ? "first" : "i");
    }
    const auto second = opencl_type(o.sig.second, width);
    const auto in_global = fmt::format("(global {}*)(second + {} * lanes + i)", second, place);
    std::string before, after;
    if (how.address_space == "global") {
      call += ", " + in_global;
    } else if (how.address_space == "local") {
      const auto in_local = fmt::format("(local {}*)&delivered[get_local_id(0)]", second);
      call += ", " + in_local;
      after = fmt::format(" *{} = *{};", in_global, in_local);
    } else if (how.address_space == "private") {
      call += ", &delivered";
      before = fmt::format("{} delivered; ", second);
      after = fmt::format(" *{} = delivered;", in_global);
    }
    body += fmt::format(
        "  for (size_t i = first; i < first + {}; i += {}) {{ {}*(global {}*)(result + {} * lanes + i) = {});{} }}\n",
        lanes_per_item, padded(width), before, opencl_type(o.sig.result, width), place, call, after);
  }
  return fmt::format(
      "kernel void conformance({}) {{\n"
      "  const size_t lanes = {}, first = {} * get_global_id(0);\n{}}}\n",
      parameters, lanes, lanes_per_item, body);
}

class device {
 public:
  device() : context_(CL_DEVICE_TYPE_ALL), queue_(context_) {}

  std::string name() const { return queue_.getInfo<CL_QUEUE_DEVICE>().getInfo<CL_DEVICE_NAME>(); }

  void run(const std::string& source, std::vector<bytes>& inputs, bytes& result, bytes& second) {
    cl::Program program(context_, source);
    try {
      program.build();
    } catch (const cl::BuildError& error) {
      for (const auto& [where, log] : error.getBuildLog()) fmt::print(stderr, "{}\n{}\n", source, log);
      throw;
    }
    cl::Kernel kernel(program, "conformance");
    std::vector<cl::Buffer> buffers;
    const auto pass = [&](bytes& memory) {
      buffers.emplace_back(context_, CL_MEM_READ_WRITE | CL_MEM_COPY_HOST_PTR, memory.size(), memory.data());
      kernel.setArg(cl_uint(buffers.size() - 1), buffers.back());
    };
    for (auto& input : inputs) pass(input);
    pass(result);
    if (!second.empty()) pass(second);
    queue_.enqueueNDRangeKernel(kernel, cl::NullRange, cl::NDRange(lanes / lanes_per_item),
                                cl::NDRange(items_per_group));
    queue_.enqueueReadBuffer(buffers[inputs.size()], CL_TRUE, 0, result.size(), result.data());
    if (!second.empty()) queue_.enqueueReadBuffer(buffers.back(), CL_TRUE, 0, second.size(), second.data());
  }

 private:
  cl::Context context_;
  cl::CommandQueue queue_;
};

std::string hexadecimal(const std::byte* lane, std::size_t size) {
  std::uint64_t bits = 0;
  std::memcpy(&bits, lane, size);
  return fmt::format("{:#0{}x}", bits, 2 + 2 * size);
}

// How many lanes differ; the first that does is printed.
std::size_t differences(const std::string& what, int width, lane l, const std::byte* kernel, const std::byte* direct,
                        const std::vector<bytes>& inputs, const signature& s) {
  const std::size_t size = size_of(l);
  std::size_t count = 0;
  for (std::size_t i = 0; i < lanes; ++i) {
    if (width == 3 && i % 4 == 3) continue;
    if (std::memcmp(kernel + i * size, direct + i * size, size) == 0 || ++count > 1) continue;
    fmt::print("{} at width {}: {} for", what, width, hexadecimal(kernel + i * size, size));
    for (std::size_t a = 0; a < inputs.size(); ++a) {
      const std::size_t input_size = size_of(s.arguments[a]);
      fmt::print(" {}", hexadecimal(inputs[a].data() + i * input_size, input_size));
    }
    fmt::print(" instead of {}\n", hexadecimal(direct + i * size, size));
  }
  return count;
}

}  // namespace

int main(int argc, char** argv) try {
  std::string path, only;
  std::uint64_t seed = 1;
  CLI::App app("Compares the maths built-ins of OpenCL kernels with direct calls of the library, bit for bit.");
  app.add_option("library", path, "the shared object")->required()->check(CLI::ExistingFile);
  app.add_option("--operation", only, "only this one, by its name in the catalogue");
  app.add_option("--seed", seed, "of the random inputs")->capture_default_str();
  CLI11_PARSE(app, argc, argv);

  const harness::library library(path);
  device device;
  std::mt19937_64 random(seed);
  std::size_t builtins = 0, wrong = 0;

  for (std::size_t index = 0; index < catalogue.size(); ++index) {
    const auto& o = catalogue[index];
    if (!only.empty() && o.name() != only) continue;
    for (auto v : variants) {
      if (!o.has(v) || !library.find(index, v, 1)) continue;
      const auto names = opencl_names(o, v, 1);
      for (std::size_t n = 0; n < names.size(); ++n) {
        std::vector<manner> manners(1);
        if (o.sig.how == delivery::pointer) manners = {{"global"}, {"local"}, {"private"}};
        if (opencl_scalar_last(names[n])) manners.push_back({"", true});

        for (const auto& how : manners) {
          std::vector<bytes> inputs;
          for (int i = 0; i < o.sig.arity(); ++i) inputs.push_back(inputs_of(o.sig.arguments[i], random));
          if (how.scalar_last) spread_first_lanes(inputs.back(), size_of(o.sig.arguments[o.sig.arity() - 1]));
          const std::size_t result_part = lanes * size_of(o.sig.result);
          const std::size_t second_part = lanes * size_of(o.sig.second);
          bytes result(widths.size() * result_part), second(widths.size() * second_part);
          device.run(kernel_source(o, v, n, how), inputs, result, second);

          std::array<const void*, 3> pointers{};
          for (std::size_t i = 0; i < inputs.size(); ++i) pointers[i] = inputs[i].data();
          const auto what = fmt::format("{}{}{}", names[n], how.address_space.empty() ? "" : ", pointer to ",
                                        how.scalar_last ? ", scalar last" : how.address_space);
          for (std::size_t place = 0; place < widths.size(); ++place) {
            const int width = widths[place];
            bytes direct(result_part), direct_second(second_part);
            library.find(index, v, width)->call(pointers.data(), direct.data(), direct_second.data(), lanes);
            std::size_t bad = differences(what, width, o.sig.result, result.data() + place * result_part, direct.data(),
                                          inputs, o.sig);
            if (second_part)
              bad += differences(what + ", second result", width, o.sig.second, second.data() + place * second_part,
                                 direct_second.data(), inputs, o.sig);
            wrong += bad != 0;
            ++builtins;
          }
        }
      }
    }
  }
  fmt::print("{}: {} of {} built-ins give the library's bits in all of {} lanes\n", device.name(), builtins - wrong,
             builtins, lanes);
  return builtins != 0 && wrong == 0 ? 0 : 1;
} catch (const cl::Error& error) {
  fmt::print(stderr, "OpenCL: {} gave error {}\n", error.what(), error.err());
  return 1;
} catch (const std::exception& error) {
  fmt::print(stderr, "{}\n", error.what());
  return 1;
}
