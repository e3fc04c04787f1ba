// Many threads at once, and signal handlers that call the library while their thread is in it, get the bits that one
// thread gets alone.
#include <gtest/gtest.h>
#include <signal.h>
#include <time.h>
#include <ucontext.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <span>
#include <thread>

#include "support/effort.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

constexpr std::size_t lanes = 128;

// A function with arguments for a few calls, and the results that one thread got. Trying it again allocates nothing, so
// that handlers may.
class task {
 public:
  task(const operation& o, const harness::function& f, std::span<const arguments, lanes> tuples) : function_(f) {
    for (int i = 0; i < o.sig.arity(); ++i) {
      const auto size = size_of(o.sig.arguments[i]);
      for (std::size_t n = 0; n < lanes; ++n) std::memcpy(&inputs_[i][n * size], &tuples[n][i], size);
    }
    due_ = run();
  }

  bool gives_the_same_again() const { return run() == due_; }
  std::uint64_t address() const { return reinterpret_cast<std::uint64_t>(function_.address()); }

 private:
  struct alignas(16) vectors : std::array<std::byte, 8 * lanes> {};
  using results = std::array<vectors, 2>;

  results run() const {
    results got{};
    const std::array<const void*, 3> from{&inputs_[0], &inputs_[1], &inputs_[2]};
    function_.call(from.data(), &got[0], &got[1], lanes);
    return got;
  }

  harness::function function_;
  std::array<vectors, 3> inputs_{};
  results due_;
};

// All threads work on the same function, half of them with each task, until enough signals have come while one of them
// was in the library; then all go on to the next.
std::vector<std::array<task, 2>> functions;
std::uint64_t first_address, last_address;
std::size_t interruptions_due;
std::atomic<std::size_t> current, interruptions, wrong_in_handlers, wrong_in_threads;
thread_local std::size_t which;

void on_timer(int, siginfo_t*, void* context) {
  const std::size_t n = current;
  if (n >= functions.size()) return;
  wrong_in_handlers += !functions[n][!which].gives_the_same_again();
  const auto at = std::uint64_t(static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_RIP]);
  if (at >= first_address && at <= last_address && ++interruptions % interruptions_due == 0) ++current;
}

// While this lives, its thread is sent signals.
class interrupted_often {
 public:
  interrupted_often() {
    sigevent event{};
    event.sigev_notify = SIGEV_THREAD_ID;
    event.sigev_signo = SIGALRM;
    event._sigev_un._tid = gettid();
    const itimerspec often{{0, 50'000}, {0, 50'000}};
    if (timer_create(CLOCK_MONOTONIC, &event, &timer_) != 0 || timer_settime(timer_, 0, &often, nullptr) != 0)
      std::abort();
  }
  ~interrupted_often() { timer_delete(timer_); }
  interrupted_often(const interrupted_often&) = delete;
  interrupted_often& operator=(const interrupted_often&) = delete;

 private:
  timer_t timer_;
};

TEST(Threads, AndSignalHandlersWithinTheLibraryGetTheSameBits) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    const auto tuples = mixed_tuples(o, 2 * lanes);
    for (int width : widths) {
      const auto f = library().find(index, v, width).value();
      functions.push_back({task(o, f, std::span(tuples).first<lanes>()), task(o, f, std::span(tuples).last<lanes>())});
    }
  });
  const auto [first, last] = std::ranges::minmax(functions, {}, [](const auto& f) { return f[0].address(); });
  first_address = first[0].address(), last_address = last[0].address();
  interruptions_due = effort(3, 100);

  struct sigaction handling {
  }, before;
  handling.sa_sigaction = on_timer;
  handling.sa_flags = SA_SIGINFO | SA_RESTART;
  sigaction(SIGALRM, &handling, &before);
  std::vector<std::thread> threads;
  for (std::size_t t = 0; t < 64; ++t)
    threads.emplace_back([t] {
      which = t % 2;
      const interrupted_often interrupted;
      for (std::size_t n; (n = current) < functions.size();)
        wrong_in_threads += !functions[n][which].gives_the_same_again();
    });
  for (auto& thread : threads) thread.join();
  sigaction(SIGALRM, &before, nullptr);

  EXPECT_EQ(wrong_in_threads, 0u);
  EXPECT_EQ(wrong_in_handlers, 0u);
}

}  // namespace
}  // namespace lanemath::testing
