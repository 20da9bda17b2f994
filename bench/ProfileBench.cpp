// A data file of 1 MB read anew, and the 81 entities of a category looked up in it: the program's
// reader and others. They understand less of the format, so that only times are compared.

#include "MapWorld.h"
#include "Ratios.h"
#include "mapdata/files/IniOps.h"
#include "platform/windows/QtText.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>
#include <QSettings>

#ifdef ORVALIS_WITH_GLIB
#include <glib.h>
#endif
#ifdef ORVALIS_WITH_INIH
#include <ini.h>

#include <map>
#endif

namespace {

constexpr int Rounds = 7;

const MapWorld& World() {
  static const MapWorld world;
  return world;
}

const Text& Category() {
  static const Text category(MapWorld::Measured(0).category);
  return category;
}

void ReadWithIniOps(benchmark::State& state) {
  for (auto _ : state) {
    IniOps::Cache cache;
    IniOps::Snapshot files(cache);
    for (const Text& key : files.IniReadFile(World().Data(0), Category()))
      benchmark::DoNotOptimize(files.IniRead(World().Data(0), u"all", key, u""));
  }
}

BENCHMARK(ReadWithIniOps)->Repetitions(Rounds);

// A file of 60,000 keys, whose names `nameOf` makes of their numbers, and one look-up in it.
template <typename NameOf>
void LookUpOnce(benchmark::State& state, NameOf nameOf) {
  std::string bytes = "[a]\n";
  for (unsigned key = 0; key < 60'000; ++key)
    bytes += nameOf(key) + "=1,2\n";
  for (auto _ : state) {
    const ProfileFile file{std::string(bytes)};
    benchmark::DoNotOptimize(file.Value("a", "none"));
  }
}

void LookUpAmongOrdinaryNames(benchmark::State& state) {
  LookUpOnce(state, [](unsigned key) { return "Name " + std::to_string(10'000'000'000 + key); });
}

// Signs that differ in the one bit that tells capital letters from small ones.
void LookUpAmongSigns(benchmark::State& state) {
  LookUpOnce(state, [](unsigned key) {
    std::string name(16, '^');
    for (unsigned bit = 0; bit < name.size(); ++bit)
      if ((key >> bit & 1U) != 0)
        name[bit] = '~';
    return name;
  });
}

BENCHMARK(LookUpAmongOrdinaryNames)->Repetitions(Rounds);
BENCHMARK(LookUpAmongSigns)->Repetitions(Rounds);

// The names of a million keys whose lines end so.
void ListKeys(benchmark::State& state, const std::string& lineEnd) {
  std::string bytes = "[a]" + lineEnd;
  for (int key = 0; key < 1'000'000; ++key)
    bytes += "k=1" + lineEnd;
  for (auto _ : state) {
    const ProfileFile file{std::string(bytes)};
    benchmark::DoNotOptimize(file.KeyNames("a"));
  }
}

void ListKeysOfLines(benchmark::State& state) {
  ListKeys(state, "\n");
}

// As the oldest editors ended them: nothing may look for a "\n" behind every line.
void ListKeysOfOldLines(benchmark::State& state) {
  ListKeys(state, "\r");
}

BENCHMARK(ListKeysOfLines)->Repetitions(Rounds);
BENCHMARK(ListKeysOfOldLines)->Repetitions(Rounds);

void ReadWithQSettings(benchmark::State& state) {
  // QSettings shares what it has read until nobody holds it, and then keeps it for a while.
  for (auto _ : state) {
    QSettings settings(QtText::ToQt(World().Data(0)), QSettings::IniFormat);
    settings.sync();
    settings.beginGroup(QtText::ToQt(Category()));
    const QStringList keys = settings.childKeys();
    settings.endGroup();
    for (const QString& key : keys)
      benchmark::DoNotOptimize(settings.value(QStringLiteral("all/") + key));
    state.PauseTiming();
    World().Touch(0);
    state.ResumeTiming();
  }
}

BENCHMARK(ReadWithQSettings)->Repetitions(Rounds);

#ifdef ORVALIS_WITH_GLIB
void ReadWithGKeyFile(benchmark::State& state) {
  const std::string path = NativePath::ToBytes(World().Data(0));
  const std::string category = NativePath::ToBytes(Category());
  for (auto _ : state) {
    GKeyFile* file = g_key_file_new();
    g_key_file_load_from_file(file, path.c_str(), G_KEY_FILE_NONE, nullptr);
    char** keys = g_key_file_get_keys(file, category.c_str(), nullptr, nullptr);
    for (char** key = keys; key && *key; ++key)
      g_free(g_key_file_get_value(file, "all", *key, nullptr));
    g_strfreev(keys);
    g_key_file_free(file);
  }
}

BENCHMARK(ReadWithGKeyFile)->Repetitions(Rounds);
#endif

#ifdef ORVALIS_WITH_INIH
using Values = std::map<std::string, std::string>;

int Keep(void* values, const char* section, const char* key, const char* value) {
  (*static_cast<Values*>(values))[std::string(section) + '/' + key] = value;
  return 1;
}

void ReadWithInih(benchmark::State& state) {
  const std::string path = NativePath::ToBytes(World().Data(0));
  for (auto _ : state) {
    Values values;
    ini_parse(path.c_str(), Keep, &values);
    for (size_t i = 0; i < MapWorld::Entities; ++i)
      benchmark::DoNotOptimize(values.find("all/" + MapWorld::EntityName(i)));
  }
}

BENCHMARK(ReadWithInih)->Repetitions(Rounds);
#endif

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int onlyName = 1;
  const QGuiApplication forPictures(onlyName, argv);
  const Ratios::Ratio ratios[] = {{"LookUpAmongSigns", "LookUpAmongOrdinaryNames", 2},
                                  {"ListKeysOfOldLines", "ListKeysOfLines", 2},
                                  {"ReadWithIniOps", "ReadWithGKeyFile", 1},
                                  {"ReadWithIniOps", "ReadWithInih", 1},
                                  {"ReadWithIniOps", "ReadWithQSettings", 1}};
  return Ratios::Run(argc, argv, ratios);
}
