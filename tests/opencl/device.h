// The OpenCL device, and what its runtime compiles.
#pragma once

#define CL_HPP_ENABLE_EXCEPTIONS
#define CL_HPP_MINIMUM_OPENCL_VERSION 120
#define CL_HPP_TARGET_OPENCL_VERSION 120
#include <CL/opencl.hpp>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <set>
#include <string>
#include <vector>

using bytes = std::vector<std::byte>;

// A fresh folder for the runtime's compiled kernels, so that everything in it comes from this run.
class kernel_cache {
 public:
  kernel_cache();
  ~kernel_cache();
  kernel_cache(const kernel_cache&) = delete;
  kernel_cache& operator=(const kernel_cache&) = delete;

  // The optimised LLVM bitcode of a kernel that has run.
  std::filesystem::path bitcode_of(const std::string& kernel) const;

 private:
  std::filesystem::path folder_;
};

// Runs a program, and says on standard error what stopped it.
int guarded(const std::function<int()>& program);

class device {
 public:
  device();

  std::string name() const { return queue_.getInfo<CL_QUEUE_DEVICE>().getInfo<CL_DEVICE_NAME>(); }
  cl::Program build(const std::string& source) const;

  // The kernel's parameters are the inputs, then the outputs, whose initial contents it finds in its memory too.
  void run(const cl::Program& program, const std::string& kernel, std::size_t items, std::size_t items_per_group,
           const std::vector<bytes>& inputs, std::vector<bytes>& outputs) const;

  // The functions that the compiled form of a kernel calls, after it has run.
  std::set<std::string> called_by(const std::string& kernel, const std::string& disassembler) const;

 private:
  kernel_cache cache_;
  cl::Context context_;
  cl::CommandQueue queue_;
};
