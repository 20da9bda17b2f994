// Stands in for the fuzzer in ordinary builds: gives every file of the folders named on the command
// line to the target once.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size);

int main(int argc, char** argv) {
  int inputs = 0;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
      std::ifstream file(entry.path(), std::ios::binary);
      const std::string bytes{std::istreambuf_iterator<char>(file), {}};
      std::printf("%s\n", entry.path().c_str());
      static_cast<void>(std::fflush(stdout));
      LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size());
      ++inputs;
    }
  }
  return inputs > 0 ? 0 : 1;
}
