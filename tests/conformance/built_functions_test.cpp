// What holds for every function in the library, whatever it computes.
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
      if (o.is_standalone(width, v)) continue;
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

// A standalone form treats all lanes alike too, except those forms in which a lane out of range, such as zero, sends
// its neighbours another way.
TEST(BuiltFunctions, GiveTheSameLaneAtEveryPlaceOfAVector) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    for (int width : widths) {
      if (!o.is_standalone(width, v)) continue;
      const auto f = library().find(index, v, width);
      ASSERT_TRUE(f) << full_name(o, width, v);
      const bool heeds_neighbours = o.name() == "atan2f" || o.name() == "acoshf" || o.name() == "asinhf";
      const auto tuples = mixed_tuples(o, 4'000);
      const auto mixed = harness::evaluate(o, *f, width, tuples);
      for (std::size_t n = 0; n < tuples.size(); ++n) {
        SCOPED_TRACE(full_name(o, width, v) + " of " + text_of(o, tuples[n]));
        std::vector<arguments> lanes(width, tuples[n]);
        const auto alone = harness::evaluate(o, *f, width, lanes);
        for (const auto& each : alone) ASSERT_EQ(each, alone[0]);
        if (heeds_neighbours && alone[0] != mixed[n]) {
          lanes.back() = {};
          ASSERT_EQ(harness::evaluate(o, *f, width, lanes)[0], mixed[n]);
        } else {
          ASSERT_EQ(alone[0], mixed[n]);
        }
      }
    }
  });
}

TEST(BuiltFunctions, StayWithinTheirStatedErrorBounds) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    const auto* reference = accuracy::find_reference(o);
    for (int width : widths) {
      if (width != 16 && !o.is_standalone(width, v)) continue;
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
      if (o.is_unguarded(v)) continue;
      expect_within("bounds", accuracy::around_bounds(o, *reference, 4'000, 7));
      expect_within("patterns", accuracy::sample_patterns(o, 4'000, 7));
    }
  });
}

TEST(BuiltFunctions, AreOneFunctionWhereTheirVariantsAreOneAndTheSame) {
  for_each_built(library(), [](std::size_t index, const operation& o, variant v) {
    for (int width : widths) {
      const auto first = o.served_by(width, v);
      EXPECT_EQ(library().find(index, v, width).value().address(),
                library().find(index, first, width).value().address())
          << full_name(o, width, v) << " and " << full_name(o, width, first);
    }
  });
}

// Whichever compiler built them.
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
