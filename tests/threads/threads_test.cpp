// Many threads at once, and signal handlers that call the library while their thread is in it, get the bits that one
// thread gets alone.
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/time.h>
#include <ucontext.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <thread>

#include "support/effort.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

// A function, arguments for a few calls, and the results that one thread got. Trying it again allocates nothing, so
// that handlers may.
class task {
 public:
  task(const operation& o, const harness::function& f) : function_(f) {
    const auto tuples = mixed_tuples(o, lanes);
    for (int i = 0; i < o.sig.arity(); ++i) {
      const auto size = size_of(o.sig.arguments[i]);
      for (std::size_t n = 0; n < lanes; ++n) std::memcpy(&inputs_[i][n * size], &tuples[n][i], size);
    }
    due_ = run();
  }

  bool gives_the_same_again() const { return run() == due_; }
  std::uint64_t address() const { return reinterpret_cast<std::uint64_t>(function_.address()); }

 private:
  static constexpr std::size_t lanes = 32;
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

std::vector<task> tasks;
std::uint64_t first_address, last_address;
std::atomic<std::size_t> next_of_handler, interruptions, wrong_in_handlers, wrong_in_threads;

void on_timer(int, siginfo_t*, void* context) {
  const auto at = std::uint64_t(static_cast<ucontext_t*>(context)->uc_mcontext.gregs[REG_RIP]);
  interruptions += at >= first_address && at <= last_address;
  wrong_in_handlers += !tasks[next_of_handler++ % tasks.size()].gives_the_same_again();
}

TEST(Threads, AndSignalHandlersWithinTheLibraryGetTheSameBits) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    for (int width : widths) tasks.emplace_back(o, library().find(index, v, width).value());
  });
  const auto [first, last] = std::ranges::minmax_element(tasks, {}, &task::address);
  first_address = first->address(), last_address = last->address();

  // The signal goes to the threads, since this one blocks it.
  sigset_t timer, before;
  sigemptyset(&timer);
  sigaddset(&timer, SIGALRM);
  pthread_sigmask(SIG_BLOCK, &timer, &before);
  struct sigaction handling {
  }, handling_before;
  handling.sa_sigaction = on_timer;
  handling.sa_flags = SA_SIGINFO | SA_RESTART;
  sigaction(SIGALRM, &handling, &handling_before);
  const itimerval often{{0, 100}, {0, 100}}, never{};
  setitimer(ITIMER_REAL, &often, nullptr);

  constexpr std::size_t thread_count = 64;
  std::vector<std::thread> threads;
  for (std::size_t t = 0; t < thread_count; ++t)
    threads.emplace_back([&, t] {
      pthread_sigmask(SIG_UNBLOCK, &timer, nullptr);
      for (std::size_t n = 0; n < tasks.size() * effort(2, 100); ++n)
        wrong_in_threads += !tasks[(n + t * tasks.size() / thread_count) % tasks.size()].gives_the_same_again();
    });
  for (auto& thread : threads) thread.join();

  setitimer(ITIMER_REAL, &never, nullptr);
  handling.sa_handler = SIG_IGN;  // and with it a signal that is still due
  handling.sa_flags = 0;
  sigaction(SIGALRM, &handling, nullptr);
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  sigaction(SIGALRM, &handling_before, nullptr);

  EXPECT_EQ(wrong_in_threads, 0u);
  EXPECT_EQ(wrong_in_handlers, 0u);
  EXPECT_GT(interruptions, 100u) << "of functions of the library, of " << next_of_handler << " signals";
}

}  // namespace
}  // namespace lanemath::testing
