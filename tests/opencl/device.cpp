#include "device.h"

#include <fmt/format.h>
#include <stdlib.h>

#include <array>
#include <cstdio>
#include <regex>
#include <sstream>
#include <stdexcept>

kernel_cache::kernel_cache() {
  auto name = (std::filesystem::temp_directory_path() / "lanemath-conformance-XXXXXX").string();
  if (!mkdtemp(name.data())) throw std::runtime_error("cannot make a folder " + name);
  folder_ = name;
  setenv("LANEMATH_KERNEL_CACHE", name.c_str(), true);
  setenv("POCL_LEAVE_KERNEL_COMPILER_TEMP_FILES", "1", true);
}

kernel_cache::~kernel_cache() {
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

std::filesystem::path kernel_cache::bitcode_of(const std::string& kernel) const {
  // <folder>/<program>/<more of it>/<kernel>/<sizes>/parallel.bc
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder_))
    if (const auto& path = entry.path();
        path.filename() == "parallel.bc" && path.parent_path().parent_path().filename() == kernel)
      return path;
  throw std::runtime_error(fmt::format("the runtime left no bitcode of the kernel {}", kernel));
}

int guarded(const std::function<int()>& program) try { return program(); } catch (const cl::Error& error) {
  fmt::print(stderr, "OpenCL: {} gave error {}\n", error.what(), error.err());
  return 1;
} catch (const std::exception& error) {
  fmt::print(stderr, "{}\n", error.what());
  return 1;
}

device::device() try : context_(CL_DEVICE_TYPE_ALL), queue_(context_) {
} catch (const cl::Error& error) {
  throw std::runtime_error(fmt::format("no OpenCL device: {} gave error {}", error.what(), error.err()));
}

cl::Program device::build(const std::string& source) const {
  cl::Program program(context_, source);
  try {
    program.build("-w");  // the compiler warns of each wide vector in a kernel for a machine with narrower registers
  } catch (const cl::BuildError& error) {
    for (const auto& [where, log] : error.getBuildLog()) fmt::print(stderr, "{}\n{}\n", source, log);
    throw;
  }
  return program;
}

void device::run(const cl::Program& program, const std::string& kernel, std::size_t items, std::size_t items_per_group,
                 const std::vector<bytes>& inputs, std::vector<bytes>& outputs) const {
  cl::Kernel compiled(program, kernel.c_str());
  std::vector<cl::Buffer> buffers;
  const auto pass = [&](const bytes& memory) {
    buffers.emplace_back(context_, CL_MEM_READ_WRITE | CL_MEM_COPY_HOST_PTR, memory.size(),
                         const_cast<std::byte*>(memory.data()));
    compiled.setArg(cl_uint(buffers.size() - 1), buffers.back());
  };
  for (const auto& memory : inputs) pass(memory);
  for (const auto& memory : outputs) pass(memory);
  queue_.enqueueNDRangeKernel(compiled, cl::NullRange, cl::NDRange(items), cl::NDRange(items_per_group));
  for (std::size_t i = 0; i < outputs.size(); ++i)
    queue_.enqueueReadBuffer(buffers[inputs.size() + i], CL_TRUE, 0, outputs[i].size(), outputs[i].data());
}

std::set<std::string> device::called_by(const std::string& kernel, const std::string& disassembler) const {
  const auto command = fmt::format("'{}' -o - '{}'", disassembler, cache_.bitcode_of(kernel).string());
  std::FILE* const pipe = popen(command.c_str(), "r");
  if (!pipe) throw std::runtime_error("cannot run " + command);
  std::string text;
  for (std::array<char, 1 << 16> piece; const auto size = std::fread(piece.data(), 1, piece.size(), pipe);)
    text.append(piece.data(), size);
  if (pclose(pipe) != 0) throw std::runtime_error(command + " failed");

  // Only calls in the launched function count: others mention the same names and may not even be called.
  const auto begin_of_kernel = fmt::format("@_pocl_kernel_{}_workgroup(", kernel);
  static const std::regex call(R"(\bcall [^@]*@([\w.]+)\()");
  std::set<std::string> called;
  bool in_kernel = false, kernel_seen = false;
  std::string line;
  for (std::istringstream lines(text); std::getline(lines, line);) {
    if (line.starts_with("define ")) kernel_seen |= in_kernel = line.find(begin_of_kernel) != line.npos;
    if (std::smatch match; in_kernel && std::regex_search(line, match, call)) called.insert(match[1]);
  }
  if (!kernel_seen) throw std::runtime_error(fmt::format("no code of the kernel {} in its bitcode", kernel));
  return called;
}
