#include "Ratios.h"
#include "StartedLanguage.h"
#include "app/MenuTable.h"
#include "i18n/InterfaceTexts.h"
#include "platform/Windows1252.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <filesystem>
#include <random>
#include <unordered_map>

using IniOps::Snapshot;

namespace {

constexpr size_t Keys = 5000;
constexpr size_t Names = 32765;

const std::vector<std::string> Trades = {"H\xE4ndler", "Schmied", "J\xE4ger", "Koch",
                                         "Alchemist",  "Druide",  "Wolf",     "Truhe"};
const std::vector<std::string> Syllables = {"ma", "ra",  "bor", "kel", "in", "tha",
                                            "ul", "gor", "fen", "dis", "ho", "wen"};

// A language of 5,000 names and 32,765 names to translate, as a world would have them: a trade and
// a person's name.
class World {
 public:
  World() {
    std::mt19937 random(5);
    std::string language =
        "[general]\r\nlanguage=English\r\n[entities]\r\nTempel von=Temple of\r\n";
    while (keys.size() < Keys) {
      const std::string name = NewName(random);
      language.append(name).append("=").append(NewName(random)).append("\r\n");
      keys.push_back(Windows1252::Decode(name));
    }
    Write("English/English.lng", language);
    for (size_t i = 0; i < Names; ++i)
      names.push_back(keys[random() % Keys]);
  }

  [[nodiscard]] Text Root() const { return folder_.Path(u""); }

  [[nodiscard]] Text File() const { return folder_.Path(u"English/English.lng"); }

  std::vector<Text> keys;
  std::vector<Text> names;

 private:
  static std::string NewName(std::mt19937& random) {
    std::string name = Trades[random() % Trades.size()] + ' ';
    for (int n = 0; n < 4; ++n)
      name += Syllables[random() % Syllables.size()];
    return name;
  }

  // Files of a world are old: new ones are read again at each event.
  void Write(const std::string& name, const std::string& bytes) const {
    folder_.Write(name, bytes);
    std::filesystem::last_write_time(
        folder_.Native(name),
        std::filesystem::file_time_type::clock::now() - std::chrono::hours(1));
  }

  TemporaryFolder folder_;
};

const World& TheWorld() {
  static const World world;
  return world;
}

void LookUpInHash(benchmark::State& state) {
  const World& world = TheWorld();
  std::unordered_map<Text, size_t> numbers;
  for (size_t i = 0; i < world.keys.size(); ++i)
    numbers.emplace(world.keys[i], i);
  for (auto _ : state)
    for (const Text& name : world.names)
      benchmark::DoNotOptimize(numbers.find(name));
}

void Translate(benchmark::State& state, size_t count) {
  const World& world = TheWorld();
  IniOps::Cache cache;
  Snapshot start(cache);
  StartedLanguage language(start, world.Root(), u"English");
  for (auto _ : state) {
    Snapshot files(cache);
    const auto nameFile = language.NameFile(files);
    for (size_t i = 0; i < count; ++i)
      benchmark::DoNotOptimize(language.LocalizeEntityName(nameFile, world.names[i]));
  }
}

void TranslateAllNames(benchmark::State& state) {
  Translate(state, Names);
}

void TranslateQuarter(benchmark::State& state) {
  Translate(state, Names / 4);
}

void ReadLanguageFile(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(IniOps::IniRead(TheWorld().File(), u"entities", u"Tempel von", u""));
}

void SwitchLanguage(benchmark::State& state) {
  const auto menus = MenuTable::Captions();
  LOCAL::Language language(ProgramPaths{});
  for (auto _ : state) {
    IniOps::Cache cache;
    Snapshot files(cache);
    language.Choose(files, TheWorld().File());
    benchmark::DoNotOptimize(Translate_UI(files, language, menus));
    language.CacheTranslationTable(files);
  }
}

constexpr int Rounds = 7;

BENCHMARK(LookUpInHash)->Repetitions(Rounds);
BENCHMARK(TranslateAllNames)->Repetitions(Rounds);
BENCHMARK(TranslateQuarter)->Repetitions(Rounds);
BENCHMARK(ReadLanguageFile)->Repetitions(Rounds);
BENCHMARK(SwitchLanguage)->Repetitions(Rounds);

}  // namespace

int main(int argc, char** argv) {
  const Ratios::Ratio ratios[] = {
      {"TranslateAllNames", "LookUpInHash", 8},
      {"TranslateAllNames", "TranslateQuarter", 5},
      {"SwitchLanguage", "ReadLanguageFile", 2},
  };
  return Ratios::Run(argc, argv, ratios);
}
