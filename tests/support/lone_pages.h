// Memory next to which nothing can be touched.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <new>

namespace lanemath::testing {

// Pages between two that cannot be accessed.
class lone_pages {
 public:
  explicit lone_pages(std::size_t count = 1)
      : size_(count * page()), all_(mmap(nullptr, size_ + 2 * page(), PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)) {
    if (all_ == MAP_FAILED || mprotect(begin(), size_, PROT_READ | PROT_WRITE)) throw std::bad_alloc();
  }
  ~lone_pages() { munmap(all_, size_ + 2 * page()); }
  lone_pages(const lone_pages&) = delete;
  lone_pages& operator=(const lone_pages&) = delete;
  std::byte* begin() const { return static_cast<std::byte*>(all_) + page(); }
  std::byte* end() const { return begin() + size_; }

 private:
  static std::size_t page() { return std::size_t(sysconf(_SC_PAGESIZE)); }
  std::size_t size_;
  void* all_;
};

}  // namespace lanemath::testing
