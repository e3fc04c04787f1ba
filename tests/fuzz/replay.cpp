// Replays a kept corpus, one input in hexadecimal digits a line, without a fuzzer: fuzz-replay CORPUS
#include <cstdint>
#include <cstdio>
#include <exception>
#include <fstream>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerInitialize(int*, char***);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) try {
  if (argc != 2) return 2;
  LLVMFuzzerInitialize(&argc, &argv);
  std::ifstream in(argv[1]);
  int inputs = 0;
  for (std::string line; std::getline(in, line); ++inputs) {
    std::vector<std::uint8_t> bytes;
    for (std::size_t i = 0; i < line.size(); i += 2)
      bytes.push_back(std::uint8_t(std::stoi(line.substr(i, 2), nullptr, 16)));
    if (LLVMFuzzerTestOneInput(bytes.data(), bytes.size()) != 0) return 2;
  }
  std::printf("%d inputs\n", inputs);
  return inputs ? 0 : 2;
} catch (const std::exception& e) {
  std::fprintf(stderr, "%s: %s\n", argv[0], e.what());
  return 2;
}
