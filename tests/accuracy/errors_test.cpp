// The file of recorded errors, from which the stated bounds follow.
#include "accuracy/errors.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>

namespace lanemath::testing {
namespace {

using accuracy::error_record;

const std::string head = "operation,variants,width,part,error,at,search,rounded,anywhere\n";

class ErrorFile : public ::testing::Test {
 protected:
  ErrorFile() { std::filesystem::create_directory(folder_); }
  ~ErrorFile() override { std::filesystem::remove_all(folder_); }

  std::vector<error_record> read(const std::string& lines) {
    std::ofstream(path_) << head << lines;
    return accuracy::read_errors(path_);
  }
  std::string rewritten(std::vector<error_record> records) {
    accuracy::write_errors(path_, std::move(records));
    std::ostringstream text;
    text << std::ifstream(path_).rdbuf();
    return text.str();
  }

  const std::filesystem::path folder_ = ::testing::TempDir() + "errors_test_" + std::to_string(getpid());
  const std::string path_ = folder_ / "errors.csv";
};

TEST_F(ErrorFile, ComesBackAsItWasRead) {
  const std::string lines =
      "exp,native,,,2.97172e7,0xC028F56E43C32D26,some lanes,,\n"
      "expf,default,,,0.568234,0x429DF799,all inputs,99.9304,\n"
      "pownf,default,,,8014.1,0x3F7AB00F 0x00001045,directed search,,\n"
      "pownf,default,,random arguments,6.06,,,,\n"
      "atanf,default,4,,3.75197,0x3F736EC0,all inputs,,\n"
      "sqrtf,half,,,4156.38,0x016F97FF,all inputs,50.4115,6150\n";
  EXPECT_EQ(rewritten(read(lines)), head + lines);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 1);
}

TEST_F(ErrorFile, IsRefusedWhereItIsNotAsItShouldBe) {
  for (const auto* line :
       {"expf,default,,,0.5,0x429DF799,,", "expg,default,,,0.5,,,,", "exp,half,,,0.5,,,,", "expf,default,4,,0.5,,,,",
        "expf,default,,,-1,,,,", "expf,default,,,nan,,,,", "expf,default,,,0.5ulp,,,,", "expf,default,,,inf,,,,",
        "expf,default,,,0.5,0x429DF7,,,", "expf,default,,,0.5,0x429DF799 0x00000000,,,",
        "expf,default,,,0.5,0x429DF79G,,,", "expf,default,,,2,,,,1", "expf,default,,a part,0.5,,,,",
        "expf,default,,,0.5,,,,\nexpf,default,,,0.6,,,,", "expf,default,,,0.5,,,,\nexpf,default,,a part,0.6,,,,", ""})
    EXPECT_THROW(read(std::string(line) + '\n'), std::runtime_error) << line;
  std::ofstream(path_) << "something else\n";
  EXPECT_THROW(accuracy::read_errors(path_), std::runtime_error);
  EXPECT_THROW(accuracy::read_errors(folder_), std::runtime_error);
}

TEST_F(ErrorFile, OfSharesIsReadAlike) {
  const std::string head_of_shares = "operation,width,part,lanes,rounded,error,at\n";
  const auto read_shares = [&](const std::string& lines) {
    std::ofstream(path_) << head_of_shares << lines;
    return accuracy::read_shares(path_);
  };
  const std::string lines =
      "pown,,rare lanes,2000000,1999999,0.500141,0x3FF0026DD36E0DB2 0x001242F9\n"
      "asinh,2,some,1000000,0,1.8,0x3FD6F5A153CBC738\n";
  accuracy::write_shares(path_, read_shares(lines));
  std::ostringstream text;
  text << std::ifstream(path_).rdbuf();
  EXPECT_EQ(text.str(), head_of_shares + lines);
  for (const auto* line :
       {"pow,,,1000000,1,0.5,0x3FF0026DD36E0DB2", "asinh,4,,1000000,1,0.5,0x3FF0026DD36E0DB2",
        "sinh,,,1000001,1,0.5,0x3FF0026DD36E0DB2", "sinh,,,1000000,1000001,0.5,0x3FF0026DD36E0DB2",
        "sinh,,,1000000,1,-1,0x3FF0026DD36E0DB2", "sinh,,,1000000,1,0.5,", "sinh,,,1000000,1,0.5", ""})
    EXPECT_THROW(read_shares(std::string(line) + '\n'), std::runtime_error) << line;
}

TEST_F(ErrorFile, KeepsTheLargerErrorAndItsPlace) {
  auto records = read("expf,native half,,,2,0x00000001,all inputs,50.0000,\n");
  const auto found = [](double error, std::uint64_t at) {
    return error_record{
        .index = index_of("expf"), .variants = {variant::half}, .error = error, .at = {{at}}, .search = "here"};
  };
  accuracy::merge(records, found(1.5, 2));
  EXPECT_EQ(rewritten(records), head + "expf,native half,,,2,0x00000001,all inputs,50.0000,\n");
  accuracy::merge(records, found(2.0000001, 3));
  EXPECT_EQ(rewritten(records), head + "expf,native half,,,2.00001,0x00000003,here,,\n");

  // What was found at all inputs is the largest.
  auto whole = found(1.5, 5);
  whole.rounded = 60;
  accuracy::merge(records, whole);
  EXPECT_EQ(rewritten(records), head + "expf,native half,,,1.5,0x00000005,here,60.0000,\n");

  auto part = found(3, 4);
  part.part = "some";
  accuracy::merge(records, part);
  EXPECT_EQ(rewritten(records), head +
                                    "expf,native half,,,3,0x00000004,here,,\n"
                                    "expf,half,,some,3,0x00000004,here,,\n");
  EXPECT_THROW(accuracy::merge(records, found(std::numeric_limits<double>::infinity(), 5)), std::runtime_error);
}

TEST_F(ErrorFile, TakesNothingAboveTheBoundOfEveryProcessor) {
  auto records = read("log10f,default,,,0.77,0x00000001,all inputs,,0.8\n");
  EXPECT_EQ(records[0].bound(), 0.8);
  const error_record found{.index = index_of("log10f"), .variants = {variant::standard}, .error = 0.81};
  EXPECT_THROW(accuracy::merge(records, found), std::runtime_error);
}

TEST(Bounds, AreErrorsRoundedUp) {
  EXPECT_EQ(accuracy::rounded_up(0.568234, 3), 0.569);
  EXPECT_EQ(accuracy::rounded_up(0.568, 3), 0.568);
  EXPECT_EQ(accuracy::rounded_up(9.995, 3), 10);
  EXPECT_EQ(accuracy::rounded_up(6.14232e7, 3), 6.15e7);
  EXPECT_EQ(accuracy::rounded_up(0.5, 3), 0.5);
  EXPECT_EQ(accuracy::rounded_up(0, 3), 0);
  EXPECT_EQ(accuracy::text_of_error(6.14232e7), "6.14232e7");
  EXPECT_EQ(accuracy::text_of_error(0.5), "0.5");
}

}  // namespace
}  // namespace lanemath::testing
