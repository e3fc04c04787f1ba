// Files that the tools read and write.
#pragma once

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <new>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace lanemath::harness {

namespace files_detail {

[[noreturn]] inline void fail(const std::string& path) {
  throw std::system_error(errno, std::generic_category(), "cannot write " + path);
}

// A device or a pipe, such as /dev/stdout, which is written to as it is; anything else is replaced.
inline bool is_replaced(const std::string& path) {
  const auto status = std::filesystem::status(path);
  return !std::filesystem::exists(status) || !std::filesystem::is_other(status);
}

inline std::string target_of(const std::string& path) {
  return std::filesystem::is_symlink(path) ? std::filesystem::weakly_canonical(path).string() : path;
}

inline bool write_and_close(int file, std::string_view text, bool sync = false) {
  while (!text.empty()) {
    const auto n = write(file, text.data(), text.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) break;
    text.remove_prefix(std::size_t(n));
  }
  const int failure = text.empty() && (!sync || fsync(file) == 0) ? 0 : errno;
  const bool closed = close(file) == 0;
  if (failure) errno = failure;
  return closed && !failure;
}

}  // namespace files_detail

// Replaces a file by way of a temporary one in the same folder, so that it is complete at every moment.
inline void replace_file(const std::string& path, std::string_view text) {
  if (!files_detail::is_replaced(path)) {
    const int file = open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (file < 0 || !files_detail::write_and_close(file, text)) files_detail::fail(path);
    return;
  }
  const auto target = files_detail::target_of(path);
  std::string temporary = target + ".XXXXXX";
  const int file = mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) files_detail::fail(path);
  if (fchmod(file, 0644) == 0 && files_detail::write_and_close(file, text, true) &&
      std::rename(temporary.c_str(), target.c_str()) == 0)
    return;
  const int failure = errno;
  std::remove(temporary.c_str());
  errno = failure;
  files_detail::fail(path);
}

// Throws if replace_file could not write there: for programs that work for hours before they do.
inline void check_writable(const std::string& path) {
  if (!files_detail::is_replaced(path)) {
    if (access(path.c_str(), W_OK) != 0) files_detail::fail(path);
    return;
  }
  errno = EISDIR;
  if (std::filesystem::is_directory(path)) files_detail::fail(path);
  std::string temporary = files_detail::target_of(path) + ".XXXXXX";
  const int file = mkostemp(temporary.data(), O_CLOEXEC);
  if (file < 0) files_detail::fail(path);
  close(file);
  std::remove(temporary.c_str());
}

// Throws if anything that was printed did not arrive.
inline void finish_output() {
  if (std::fflush(stdout) != 0 || std::ferror(stdout)) files_detail::fail("to standard output");
}

// What a program writes, all of it or nothing.
class whole_output {
 public:
  whole_output() : memory_(open_memstream(&text_, &size_)) {
    if (!memory_) throw std::bad_alloc();
  }
  ~whole_output() {
    if (memory_) std::fclose(memory_);
    std::free(text_);
  }
  whole_output(const whole_output&) = delete;
  whole_output& operator=(const whole_output&) = delete;

  std::FILE* stream() const { return memory_; }

  // To a file, or to standard output if the path is empty.
  void write(const std::string& path) {
    const bool failed = std::ferror(memory_);
    if (std::fclose(std::exchange(memory_, nullptr)) != 0 || failed) throw std::bad_alloc();
    if (!path.empty()) return replace_file(path, {text_, size_});
    std::fwrite(text_, 1, size_, stdout);
    finish_output();
  }

 private:
  char* text_ = nullptr;
  std::size_t size_ = 0;
  std::FILE* memory_;
};

// The file after `--output` at the end of the arguments, which are removed; empty if there is none.
inline std::string take_output_path(int& argc, char** argv) {
  if (argc < 3 || argv[argc - 2] != std::string_view("--output")) return "";
  argc -= 2;
  return argv[argc + 1];
}

// A file that is installed with the program, at this place relative to the program's folder; a program that is not
// installed finds it where it was built.
inline std::string installed_or_built(const std::string& relative, const std::string& built) {
  std::error_code failed;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", failed);
  const auto installed = program.parent_path() / relative;
  return !failed && std::filesystem::exists(installed, failed) ? installed.lexically_normal().string() : built;
}

}  // namespace lanemath::harness
