// The same reads and look-ups by the desktop's own reader of such files, which takes UTF-8.

#include "GeneratedWorld.h"
#include "platform/NativePath.h"

#include <benchmark/benchmark.h>

#include <glib.h>

#include <memory>

namespace {

using KeyFile = std::unique_ptr<GKeyFile, decltype(&g_key_file_free)>;

struct Free {
  void operator()(char* text) const { g_free(text); }

  void operator()(char** texts) const { g_strfreev(texts); }
};

using Chars = std::unique_ptr<char, Free>;
using Names = std::unique_ptr<char*, Free>;

struct Record {
  Chars name;
  Chars description;
  int x;
  int y;
};

KeyFile Load(const Text& path) {
  KeyFile file(g_key_file_new(), &g_key_file_free);
  char* bytes = nullptr;
  gsize size = 0;
  g_file_get_contents(NativePath::ToBytes(path).c_str(), &bytes, &size, nullptr);
  const Chars read(bytes);
  gsize length = 0;
  const Chars text(g_convert(bytes, static_cast<gssize>(size), "UTF-8", "WINDOWS-1252", nullptr,
                             &length, nullptr));
  g_key_file_load_from_data(file.get(), text.get(), length, G_KEY_FILE_NONE, nullptr);
  return file;
}

Chars Value(const KeyFile& file, const char* group, const char* key) {
  return Chars(g_key_file_get_value(file.get(), group, key, nullptr));
}

Chars Description(const KeyFile& info, const char* key) {
  Chars text = Value(info, "info", key);
  return text && *text.get() == '#' ? Value(info, "info", text.get() + 1) : std::move(text);
}

void ReadSection(const KeyFile& data, const KeyFile& info, const char* section,
                 std::vector<Record>& records) {
  const Names keys(g_key_file_get_keys(data.get(), section, nullptr, nullptr));
  for (char** key = keys.get(); *key; ++key) {
    Chars value = Value(data, section, *key);
    if (g_str_has_prefix(value.get(), "#,"))
      value = Value(data, value.get() + 2, *key);
    const Names fields(g_strsplit(value.get(), ",", 0));
    records.push_back({Chars(g_strdup(*key)), Description(info, *key),
                       static_cast<int>(g_ascii_strtoll(fields.get()[0], nullptr, 10)),
                       static_cast<int>(g_ascii_strtoll(fields.get()[1], nullptr, 10))});
  }
}

void FillByKeyFile(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<Record> records;
    const KeyFile info = Load(MeasuredWorld().Paths().infoData);
    for (const ProgramPaths::RegionFiles& region : MeasuredWorld().Paths().regions) {
      const KeyFile data = Load(region.data);
      const Names sections(g_key_file_get_groups(data.get(), nullptr));
      for (char** section = sections.get(); *section; ++section)
        ReadSection(data, info, *section, records);
    }
    benchmark::DoNotOptimize(records.data());
  }
}

BENCHMARK(FillByKeyFile)->Repetitions(7);

}  // namespace
