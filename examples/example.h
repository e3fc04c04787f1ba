// What the example programs share: observations from a file, a device that times kernels, and whose built-ins it runs.
#pragma once

#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#define CL_HPP_TARGET_OPENCL_VERSION 120
#include <CL/opencl.hpp>

#include <CLI/CLI.hpp>
#include <functional>
#include <string>
#include <vector>

namespace example {

// A column of numbers under a title.
std::vector<double> read_column(const std::string& path);
// The column in ascending order.
std::vector<double> read_observations(const std::string& path);

// Positive values, one for every year in turn, from lines of YEAR,VALUE under a title.
struct years {
  int first_year;
  std::vector<double> values;
};
years read_years(const std::string& path, std::size_t fewest);

class device {
 public:
  // Kernels of the source are compiled with `real` as a vector of this type and width.
  device(const char* source, int width, const std::string& type = "float");

  std::string name() const;
  cl::Kernel kernel(const char* name) const { return cl::Kernel(program_, name); }
  // Kernels do not keep the buffers that are their arguments alive.
  template <class T = float>
  cl::Buffer input(const std::vector<T>& values) const {
    return cl::Buffer(context_, CL_MEM_READ_ONLY | CL_MEM_COPY_HOST_PTR, values.size() * sizeof(T),
                      const_cast<T*>(values.data()));
  }
  template <class T = float>
  cl::Buffer output(std::size_t count) const {
    return cl::Buffer(context_, CL_MEM_WRITE_ONLY, count * sizeof(T));
  }
  template <class T = float>
  std::vector<T> read(const cl::Buffer& buffer, std::size_t count) const {
    std::vector<T> all(count);
    queue_.enqueueReadBuffer(buffer, CL_TRUE, 0, count * sizeof(T), all.data());
    return all;
  }

  void run(const cl::Kernel& kernel, const cl::NDRange& items) const {
    queue_.enqueueNDRangeKernel(kernel, cl::NullRange, items, cl::NullRange);
  }
  // The shortest time in nanoseconds.
  double time(const cl::Kernel& kernel, const cl::NDRange& items, int repetitions) const;

  // Finds out whose built-in the kernels run, from many arguments in an interval. If lanemath is loaded, every result
  // must have the bits of its function for eight lanes: `function` is `expf` for the built-in `exp`.
  std::string who_answers(const std::string& builtin, const std::string& function, float low, float high) const;

 private:
  cl::Context context_;
  cl::CommandQueue queue_;
  cl::Program program_;
};

// The options that the programs share.
struct options {
  std::string data;
  std::size_t points;
  int width = 4, repetitions = 10;
  bool time_only = false;
};
void add_options(CLI::App& app, options& given, const std::string& data, const std::string& points, int most_points,
                 const std::string& timed);

// Runs the program, and says on standard error what stopped it.
int guarded(const std::function<int()>& program);

}  // namespace example
