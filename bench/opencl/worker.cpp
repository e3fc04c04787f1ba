#include "worker.h"

#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#define CL_HPP_TARGET_OPENCL_VERSION 120
#include <dlfcn.h>
#include <fmt/format.h>
#include <CL/opencl.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <iostream>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "../arguments.h"
#include "builtins.h"

namespace lanemath::bench::opencl {
namespace {

// Three arguments and a result of 8-byte lanes are 256 KiB: a level-2 cache holds them.
constexpr std::size_t array_lanes = 8192;
constexpr std::size_t lanes_per_group = 256;

// A launch lasts at least this long, so that its own cost of a few microseconds does not show.
constexpr double launch_nanoseconds = 1e6;
// The first launch of a turn finds the caches full of the other process's work.
constexpr int launches_per_turn = 3;

// The arguments and the results of a kernel. No two arrays lie a multiple of 4096 bytes apart: a processor assumes that
// a load depends on an earlier store whose address differs only in the upper bits.
struct alignas(4096) arrays {
  struct alignas(128) array {
    std::byte lanes[array_lanes * 8 + 640];
  };
  array all[5];
};

class device {
 public:
  device() : context_(CL_DEVICE_TYPE_ALL), queue_(context_, CL_QUEUE_PROFILING_ENABLE) {}

  std::string name() const { return queue_.getInfo<CL_QUEUE_DEVICE>().getInfo<CL_DEVICE_NAME>(); }

  void prepare(const builtin& b, const std::vector<int>& widths) {
    std::string source;
    for (int width : widths) source += kernel_source(b, width);
    cl::Program program(context_, source);
    try {
      program.build();
    } catch (const cl::BuildError& error) {
      for (const auto& [where, log] : error.getBuildLog()) fmt::print(stderr, "{}\n{}\n", source, log);
      throw;
    }

    const auto& sig = b.op->sig;
    buffers_.clear();
    for (int i = 0; i < sig.arity(); ++i) fill(sig.arguments[i], next_array(), array_lanes, b.op->typical[i], i);
    next_array();
    if (sig.how == delivery::pointer) next_array();

    launches_.clear();
    for (int width : widths) {
      launch l{cl::Kernel(program, kernel_name(width).c_str()), std::size_t(width)};
      for (std::size_t i = 0; i < buffers_.size(); ++i) l.kernel.setArg(cl_uint(i), buffers_[i]);
      run(l);  // the first run compiles
      while (run(l) < launch_nanoseconds) l.repetitions *= 2;
      launches_[width] = l;
    }
  }

  double time(int width) const {
    const auto& l = launches_.at(width);
    double best = HUGE_VAL;
    for (int i = 0; i < launches_per_turn; ++i) best = std::min(best, run(l));
    return best / double(l.repetitions * array_lanes);
  }

 private:
  struct launch {
    cl::Kernel kernel;
    std::size_t width, repetitions = 1;
  };

  std::byte* next_array() {
    auto* lanes = arrays_.all[buffers_.size()].lanes;
    buffers_.emplace_back(context_, CL_MEM_READ_WRITE | CL_MEM_USE_HOST_PTR, array_lanes * 8, lanes);
    return lanes;
  }

  // Kernels use only the first dimension: along the second one the same work is repeated.
  double run(const launch& l) const {
    cl::Event event;
    queue_.enqueueNDRangeKernel(l.kernel, cl::NullRange, cl::NDRange(array_lanes / l.width, l.repetitions),
                                cl::NDRange(lanes_per_group / l.width, 1), nullptr, &event);
    event.wait();
    return double(event.getProfilingInfo<CL_PROFILING_COMMAND_END>() -
                  event.getProfilingInfo<CL_PROFILING_COMMAND_START>());
  }

  arrays arrays_{};
  cl::Context context_;
  cl::CommandQueue queue_;
  std::vector<cl::Buffer> buffers_;
  std::map<int, launch> launches_;
};

template <class... T>
void answer(fmt::format_string<T...> format, T&&... values) {
  fmt::print(format, std::forward<T>(values)...);
  std::fflush(stdout);
}

}  // namespace

void obey() try {
  const auto builtins = all_builtins();
  const auto device = std::make_unique<opencl::device>();
  const bool loaded = dlsym(RTLD_DEFAULT, fmt::format("{}expf1", symbol_prefix).c_str());
  answer("{} {}\n", loaded ? "lanemath" : "own", device->name());

  for (std::string order; std::cin >> order;) {
    if (order == "prepare") {
      std::size_t index, count;
      std::cin >> index >> count;
      std::vector<int> widths(count);
      for (int& width : widths) std::cin >> width;
      device->prepare(builtins.at(index), widths);
      answer("ready\n");
    } else {
      int width;
      std::cin >> width;
      answer("{}\n", device->time(width));
    }
  }
} catch (const cl::Error& error) {
  throw std::runtime_error(fmt::format("OpenCL: {} gave error {}", error.what(), error.err()));
}

}  // namespace lanemath::bench::opencl
