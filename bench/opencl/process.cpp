#include "process.h"

#include <fmt/format.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <system_error>

namespace lanemath::bench::opencl {

process::process(std::string name, std::vector<std::string> command, const environment& more) : name_(std::move(name)) {
  std::vector<char*> arguments;
  for (auto& part : command) arguments.push_back(part.data());
  arguments.push_back(nullptr);

  int ends[2];
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0)
    throw std::system_error(errno, std::generic_category(), "socketpair");
  id_ = fork();
  if (id_ == 0) {
    dup2(ends[1], STDIN_FILENO);
    dup2(ends[1], STDOUT_FILENO);
    for (const auto& [variable, value] : more) setenv(variable.c_str(), value.c_str(), true);
    execv(arguments[0], arguments.data());
    fmt::print(stderr, "{}: {}\n", command[0], std::strerror(errno));
    _exit(127);
  }
  close(ends[1]);
  socket_ = ends[0];
  answers_ = fdopen(socket_, "r");
  if (id_ < 0 || !answers_) throw std::system_error(errno, std::generic_category(), "fork");
}

process::~process() {
  std::fclose(answers_);
  if (id_ > 0) waitpid(id_, nullptr, 0);
}

std::string process::read() {
  std::string line;
  int c;
  while ((c = std::getc(answers_)) != EOF && c != '\n') line += char(c);
  if (c == '\n') return line;
  throw std::runtime_error(std::ferror(answers_) && errno == EINTR ? "interrupted" : end());
}

std::string process::ask(const std::string& question) {
  // If writing fails, reading finds the reason.
  dprintf(socket_, "%s\n", question.c_str());
  return read();
}

std::string process::end() {
  int status = 0;
  waitpid(std::exchange(id_, -1), &status, 0);
  if (WIFSIGNALED(status)) return fmt::format("{} was ended by signal: {}", name_, strsignal(WTERMSIG(status)));
  return fmt::format("{} ended with status {}", name_, WEXITSTATUS(status));
}

}  // namespace lanemath::bench::opencl
