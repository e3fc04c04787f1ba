// Another process that answers line by line.
#pragma once

#include <sys/types.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace lanemath::bench::opencl {

class process {
 public:
  using environment = std::vector<std::pair<std::string, std::string>>;

  // `name` is what messages call it. The environment is added to this process's own.
  process(std::string name, std::vector<std::string> command, const environment& more);
  ~process();
  process(const process&) = delete;
  process& operator=(const process&) = delete;

  // The next line that it writes. If there is none, the exception says how the process ended.
  std::string read();
  std::string ask(const std::string& question);

 private:
  std::string end();

  std::string name_;
  int socket_;
  std::FILE* answers_;
  pid_t id_;
};

}  // namespace lanemath::bench::opencl
