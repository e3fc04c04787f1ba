// The error of exported functions, in units in the last place.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "accuracy/errors.h"
#include "accuracy/reference.h"
#include "harness/harness.h"

namespace lanemath::accuracy {

struct tally {
  double largest_error = -1;  // ulp; infinite for a NaN instead of a number or the reverse; -1 before any lane
  arguments input{};          // where it occurs
  std::uint64_t lanes = 0;
  std::uint64_t correctly_rounded = 0;

  void add(double error, const arguments& at, bool correct) { merge({error, at, 1, correct}); }
  void merge(const tally& other) {
    lanes += other.lanes;
    correctly_rounded += other.correctly_rounded;
    // Of equal errors the one at the least pattern counts, whatever the order.
    if (other.largest_error > largest_error || (other.largest_error == largest_error && other.input < input)) {
      largest_error = other.largest_error;
      input = other.input;
    }
  }
};

unsigned cores();

// A form to be measured.
struct form {
  harness::function f;
  int width;
  bool unguarded = false;  // zeros, denormals and infinities are not its arguments
};

// What was found of a form: the tally of all lanes and of the parts that the reference names, and the largest error in
// each eighth of a binade of the reference's abscissa.
struct finding {
  tally all{};
  std::map<std::string, tally, std::less<>> parts{};
  std::map<int, double> curve{};

  void add_to_curve(double abscissa, double error);
  void merge(const finding& other);
};

struct judgement {
  double error;  // ulp of the exact value's binade; below the normals, of the smallest step
  bool correct;  // the nearest number of the type
};
// A result of a lane type against the exact value. An infinite one counts as 2^128 or 2^1024.
judgement judge(lane type, const mpfr_t exact, double got);

// A value of a lane type as text, the number and its pattern; and all arguments of a lane.
std::string text_of(lane type, std::uint64_t pattern);
std::string text_of(const operation& o, const arguments& input);

// Argument tuples drawn from a range, half of them evenly over the values and half over the bit patterns.
std::vector<arguments> sample(const operation& o, const range& r, std::size_t count, std::uint64_t seed);
// Random bit patterns.
std::vector<arguments> sample_patterns(const operation& o, std::size_t count, std::uint64_t seed);
// The neighbourhoods of the operation's and the format's bounds, of both signs.
std::vector<arguments> around_bounds(const operation& o, const reference& r, std::size_t count, std::uint64_t seed);

// The function's largest error over these arguments, by MPFR.
tally measure(const operation& o, const reference& r, const harness::function& f, int width,
              const std::vector<arguments>& inputs);
// The same for one tuple, in every lane.
tally measure_at(const operation& o, const reference& r, const harness::function& f, int width, const arguments& input);

// The same for a double function on this core, by a faster stand-in that is within 2^-60 of the exact value,
// relatively. MPFR judges the lanes whose rounding that leaves open, those whose error may be the largest above 1/2,
// and one in 256 of the others. Throws if it finds the stand-in to be worse than that.
tally measure_by_stand_in(const operation& o, const reference& r, const harness::function& f, int width,
                          std::span<const arguments> inputs, long double (*near)(const arguments& at));

// The largest error found by climbing from a place: rounds of tuples around the worst so far, at distances of every
// size, until round after round finds nothing larger.
tally climb(const operation& o, const reference& r, const harness::function& f, int width, const arguments& from,
            std::size_t lanes_a_round, std::uint64_t seed, unsigned threads = cores());

// One of some equal portions of the work.
struct portion {
  std::uint64_t number = 0, of = 1;
};

// The forms of an operation over its ranges, its bounds, its patterns and, with one argument, magnitudes from 2^-20 to
// 2^20: so many tuples of each, other ones in each portion. The value is computed once for all forms.
std::vector<finding> search(const operation& o, const reference& r, std::span<const form> forms, std::size_t lanes,
                            portion which, unsigned threads);

// Whether there is a fast stand-in for all results of a function of one float.
bool can_sweep(const operation& o, const reference& r);
// Which floats are measured then, in words.
std::string_view swept_inputs(const operation& o, variant v);

// The forms of such an operation over all 2^32 floats, or a portion of these. The stand-in is computed once for all
// forms; MPFR judges where it leaves the rounding open, where the error may be the largest, and one lane in 2^14.
// Throws if the stand-in is found to be worse than it should be. `progress` receives the share that is done.
std::vector<finding> sweep(const operation& o, const reference& r, std::span<const form> forms, portion which,
                           unsigned threads, const std::function<void(double)>& progress);

}  // namespace lanemath::accuracy
