// What holds for every function that is built, whatever it computes.
#include <gtest/gtest.h>

#include <filesystem>

#include "accuracy/errors.h"
#include "accuracy/measure.h"
#include "support/lanes_of.h"
#include "support/library.h"

namespace lanemath::testing {
namespace {

std::string full_name(const operation& o, int width, variant v) {
  return fmt::format("{}{}{}", o.name(), width, suffix(v));
}

TEST(BuiltFunctions, GiveTheSameLaneAtEveryWidth) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    const auto tuples = mixed_tuples(o, 48'000);
    std::vector<outcome> first;
    std::string first_name;
    for (int width : widths) {
      if (is_standalone(o.name(), width, v)) continue;
      const auto f = library().find(index, v, width);
      ASSERT_TRUE(f) << full_name(o, width, v);
      const auto got = harness::evaluate(o, *f, width, tuples, signalling_nan(o.sig.arguments[0]));
      if (first.empty()) {
        first = got;
        first_name = full_name(o, width, v);
      }
      for (std::size_t n = 0; n < tuples.size(); ++n)
        ASSERT_EQ(got[n], first[n]) << full_name(o, width, v) << " and " << first_name << " of "
                                    << text_of(o, tuples[n]);
    }
  });
}

// A standalone form makes no difference between lanes either, but for those in which a lane out of range, such as zero,
// sends its neighbours another way.
TEST(BuiltFunctions, GiveTheSameLaneAtEveryPlaceOfAVector) {
  for (const auto& form : standalone_forms) {
    const auto index = index_of(form.operation);
    const auto f = library().find(index, form.of, form.width);
    if (!f) continue;
    const bool heeds_neighbours =
        form.operation == "atan2f" || form.operation == "acoshf" || form.operation == "asinhf";
    const auto& o = catalogue[index];
    const auto tuples = mixed_tuples(o, 4'000);
    const auto mixed = harness::evaluate(o, *f, form.width, tuples);
    for (std::size_t n = 0; n < tuples.size(); ++n) {
      SCOPED_TRACE(full_name(o, form.width, form.of) + " of " + text_of(o, tuples[n]));
      std::vector<arguments> lanes(form.width, tuples[n]);
      const auto alone = harness::evaluate(o, *f, form.width, lanes);
      for (const auto& each : alone) ASSERT_EQ(each, alone[0]);
      if (heeds_neighbours && alone[0] != mixed[n]) {
        lanes.back() = {};
        ASSERT_EQ(harness::evaluate(o, *f, form.width, lanes)[0], mixed[n]);
      } else {
        ASSERT_EQ(alone[0], mixed[n]);
      }
    }
  }
}

TEST(BuiltFunctions, StayWithinTheirStatedErrorBounds) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    const auto* reference = accuracy::find_reference(o);
    for (int width : widths) {
      if (width != 16 && !is_standalone(o.name(), width, v)) continue;
      const auto bound = bound_of(o, v, width);
      ASSERT_TRUE(bound) << full_name(o, width, v) << " states no error bound";
      if (!reference) {
        ASSERT_EQ(*bound, 0) << full_name(o, width, v) << " has an error and no reference to measure it by";
        continue;
      }
      const auto f = library().find(index, v, width);
      ASSERT_TRUE(f) << full_name(o, width, v);
      const auto expect_within = [&](std::string_view range, const std::vector<arguments>& inputs) {
        const auto found = accuracy::measure(o, *reference, *f, width, inputs);
        EXPECT_LE(found.largest_error, *bound)
            << full_name(o, width, v) << " in range " << range << " at " << text_of(o, found.input);
      };
      for (const auto& range : reference->ranges) expect_within(range.name, accuracy::sample(o, range, 4'000, 7));
      if (is_unguarded(o, v)) continue;
      expect_within("bounds", accuracy::around_bounds(o, *reference, 4'000, 7));
      expect_within("patterns", accuracy::sample_patterns(o, 4'000, 7));
    }
  });
}

// Variants that have one algorithm between them agree bit for bit.
TEST(BuiltFunctions, AgreeWhereTheirVariantsAreOneAndTheSame) {
  constexpr auto standard = variant::standard, native = variant::native, half = variant::half, rm = variant::rm;
  struct pair {
    std::string_view name;
    variant one, other;
    int width = 0;  // of this alone
  };
  constexpr pair pairs[] = {{"cosf", native, half},
                            {"cosf", native, rm},
                            {"sinf", native, half},
                            {"sinf", native, rm},
                            {"tanf", native, half},
                            {"tanf", native, rm},
                            {"divf", native, half},
                            {"divf", native, rm},
                            {"invf", native, half},
                            {"invf", native, rm},
                            {"exp10f", native, half},
                            {"exp10f", native, rm},
                            {"expf", native, half},
                            {"exp2f", native, half},
                            {"exp2f", standard, rm, 2},
                            {"exp2f", standard, rm, 3},
                            {"exp2f", standard, rm, 8},
                            {"exp2f", standard, rm, 16},
                            {"logf", standard, rm},
                            {"log2f", native, half},
                            {"log2f", standard, rm},
                            {"log10f", native, half},
                            {"powrf", native, half},
                            {"rsqrtf", native, half},
                            {"powf", native, rm},
                            {"sincosf", native, rm},
                            {"fmaf", standard, rm},
                            {"cosh", standard, native},
                            {"sinh", standard, native},
                            {"tanh", standard, native},
                            {"tanhf", standard, native},
                            {"acoshf", standard, native, 4},
                            {"asinhf", standard, native, 4},
                            {"acosh", standard, native, 2},
                            {"asinh", standard, native, 2}};
  for (const auto& p : pairs)
    for (int width : widths) {
      if (p.width && p.width != width) continue;
      const auto index = index_of(p.name);
      const auto& o = catalogue[index];
      const auto one = library().find(index, p.one, width), other = library().find(index, p.other, width);
      if (!one || !other) continue;
      const auto tuples = mixed_tuples(o, 12'000);
      EXPECT_EQ(harness::evaluate(o, *one, width, tuples), harness::evaluate(o, *other, width, tuples))
          << full_name(o, width, p.one) << " and " << full_name(o, width, p.other);
    }
}

// Whatever compiler made them.
TEST(BuiltFunctions, GiveTheBitsOfAnotherCompilersLibrary) {
  const std::string path = LANEMATH_OTHER_LIBRARY;
  if (path.empty() || !std::filesystem::exists(path)) GTEST_SKIP() << "no other library to compare with";
  const harness::library other(path);
  for_each_built(library(), [&](std::size_t index, const operation& o, variant v) {
    for (int width : widths) {
      const auto tuples = mixed_tuples(o, 48'000);
      const auto due = other.find(index, v, width);
      ASSERT_TRUE(due) << full_name(o, width, v);
      const auto one = harness::evaluate(o, *library().find(index, v, width), width, tuples);
      const auto two = harness::evaluate(o, *due, width, tuples);
      for (std::size_t n = 0; n < tuples.size(); ++n)
        ASSERT_EQ(one[n], two[n]) << full_name(o, width, v) << " of " << text_of(o, tuples[n]);
    }
  });
}

}  // namespace
}  // namespace lanemath::testing
