#include "Ratios.h"
#include "perks/PerkCatalogue.h"
#include "perks/windows/frmPerks.h"
#include "support/TemporaryFolder.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QHeaderView>
#include <QTreeWidget>

#include <fcntl.h>
#include <sys/stat.h>

namespace {

constexpr int Rounds = 7;
constexpr size_t RegionBytes = 1'000'000;

// A region of one megabyte with a section for every perk among its other sections.
class LargeRegion {
 public:
  LargeRegion() {
    std::string data;
    for (const PerkCatalogue::Perk& perk : PerkCatalogue::Perks) {
      data += Section(std::string(perk.key.begin(), perk.key.end()));
      data += Section("category " + std::to_string(data.size()));
    }
    folder_.Write("skaldor.data", data);
    const timespec longAgo[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
    ::utimensat(AT_FDCWD, folder_.Native("skaldor.data").c_str(), longAgo, 0);
  }

  [[nodiscard]] Text Folder() const { return folder_.Folder(); }

 private:
  static std::string Section(const std::string& name) {
    constexpr size_t Share = RegionBytes / PerkCatalogue::Perks.size() / 2;
    std::string section = '[' + name + "]\r\n";
    for (int line = 0; section.size() < Share; ++line)
      section += "Teacher of many things " + std::to_string(line) + "=512,384\r\n";
    return section;
  }

  TemporaryFolder folder_;
};

const LargeRegion& TheRegion() {
  static const LargeRegion region;
  return region;
}

void ShowOnce(QDialog& window) {
  window.show();
  QApplication::processEvents();
}

// The file is read each time, as at the first opening.
void OpenViewer(benchmark::State& state) {
  for (auto _ : state) {
    World world(TheRegion().Folder());
    frmPerks window(nullptr, world.paths.Of(Region::Skaldor).data, world);
    ShowOnce(window);
  }
}

void OpenReadyMadeTree(benchmark::State& state) {
  World world(TheRegion().Folder());
  const frmPerks model(nullptr, world.paths.Of(Region::Skaldor).data, world);
  const auto* tree = model.findChild<QTreeWidget*>();
  for (auto _ : state) {
    Dialog window(nullptr, model.Design());
    auto* copy = window.findChild<QTreeWidget*>();
    copy->header()->hide();
    copy->addTopLevelItem(tree->topLevelItem(0)->clone());
    copy->expandAll();
    ShowOnce(window);
  }
}

BENCHMARK(OpenViewer)->Repetitions(Rounds);
BENCHMARK(OpenReadyMadeTree)->Repetitions(Rounds);

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int onlyName = 1;
  const QApplication application(onlyName, argv);
  const Ratios::Ratio ratios[] = {{"OpenViewer", "OpenReadyMadeTree", 2}};
  return Ratios::Run(argc, argv, ratios);
}
