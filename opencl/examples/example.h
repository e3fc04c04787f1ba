// What the example programs share: observations from a file, a device that times kernels, and whose built-ins it runs.
#pragma once

#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#define CL_HPP_TARGET_OPENCL_VERSION 120
#include <CL/opencl.hpp>

#include <functional>
#include <string>
#include <vector>

namespace example {

// A column of numbers under a title, in ascending order.
std::vector<double> read_observations(const std::string& path);

class device {
 public:
  // Kernels of the source are compiled with `real` as a float vector of this width.
  device(const char* source, int width);

  std::string name() const;
  cl::Kernel kernel(const char* name) const { return cl::Kernel(program_, name); }
  // Kernels do not keep the buffers that are their arguments alive.
  cl::Buffer input(const std::vector<float>& values) const;
  cl::Buffer output(std::size_t count) const;
  std::vector<float> read(const cl::Buffer& buffer, std::size_t count) const;

  // The shortest time in nanoseconds.
  double time(const cl::Kernel& kernel, const cl::NDRange& items, int repetitions) const;

  // Says whose built-in the kernels run, by many arguments from an interval. If lanemath is loaded every result must
  // have the bits of its function for eight lanes: `function` is `expf` for the built-in `exp`.
  std::string who_answers(const std::string& builtin, const std::string& function, float low, float high) const;

 private:
  cl::Context context_;
  cl::CommandQueue queue_;
  cl::Program program_;
};

// Runs the program, and tells on standard error what stopped it.
int guarded(const std::function<int()>& program);

}  // namespace example
