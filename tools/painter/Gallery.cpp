#include "Gallery.h"

#include <QImage>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "map/RegionPainter.h"
#include "map/Sheet.h"
#include "pictures/Subject.h"
#include "program/Banner.h"
#include "program/Icons.h"

namespace Gallery {

namespace {

namespace fs = std::filesystem;

constexpr int PortraitQuality = 95;

/// Pictures still to be painted; each is made and written by the thread that takes it.
class Easel {
 public:
  using Job = std::function<QImage()>;

  void add(const fs::path& file, Job job, int quality = -1) {
    jobs_.push_back({file, std::move(job), quality});
  }

  [[nodiscard]] std::string run() {
    for (const Entry& entry : jobs_) {
      std::error_code ignored;
      fs::create_directories(entry.file.parent_path(), ignored);
    }
    {
      const std::jthread second([this] { work(); });
      work();
    }
    return failed_;
  }

 private:
  struct Entry {
    fs::path file;
    Job paint;
    int quality;
  };

  void work() {
    for (std::size_t i = next_++; i < jobs_.size(); i = next_++) {
      const Entry& entry = jobs_[i];
      const QString name = QString::fromStdString(entry.file.string());
      if (!entry.paint().save(name, nullptr, entry.quality)) {
        const std::lock_guard lock(mutex_);
        failed_ = entry.file.string();
      }
    }
  }

  std::vector<Entry> jobs_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;
  std::string failed_;
};

void AddRegions(Easel& easel, const fs::path& world, const fs::path& out) {
  for (const Terrain::Shape& shape : Terrain::Shapes()) {
    const std::string name(shape.name);
    easel.add(
        out / (name + ".jpg"),
        [&shape, data = WorldData::DataFile(world / (name + ".data"))] {
          return Map::PaintRegion(shape, data);
        },
        Gallery::MapQuality);
  }
}

void AddSubjects(Easel& easel, const fs::path& world, const fs::path& out) {
  const std::vector<std::string> values = WorldData::DataFile(world / "PICS/pic.ini").values();
  for (const std::string& name : std::set<std::string>(values.begin(), values.end())) {
    easel.add(
        out / name, [name] { return Pictures::PaintSubject(name); }, PortraitQuality);
  }
}

/// The world's map, painted when first asked for and shared by all that shows a piece of it.
class SharedSheet {
 public:
  [[nodiscard]] const QImage& get() {
    std::call_once(painted_, [this] { sheet_ = Map::PaintWorldSheet(); });
    return sheet_;
  }

 private:
  std::once_flag painted_;
  QImage sheet_;
};

void AddWithDouble(Easel& easel, const fs::path& folder, const std::string& stem,
                   const std::function<QImage(int scale)>& paint) {
  easel.add(folder / (stem + ".png"), [paint] { return paint(1); });
  easel.add(folder / (stem + "@2x.png"), [paint] { return paint(2); });
}

void AddSigns(Easel& easel, const fs::path& out) {
  using Program::Sign;
  constexpr std::pair<const char*, Sign> Signs[] = {
      {"info", Sign::Info},      {"document", Sign::Document}, {"perk-1", Sign::Fight},
      {"perk-2", Sign::Hunting}, {"perk-3", Sign::Magic},      {"perk-4", Sign::Smith},
      {"perk-5", Sign::Thief},   {"perk-6", Sign::Alchemy},    {"perk-7", Sign::Other},
      {"perk-8", Sign::Perk},    {"perk-9", Sign::Root}};
  for (const auto& [name, sign] : Signs) {
    AddWithDouble(easel, out, name,
                  [sign = sign](int scale) { return Program::PaintSign(sign, scale); });
  }
  for (const int side : {16, 24, 32, 48, 64, 128, 256, 512}) {
    easel.add(out / ("orvalis-" + std::to_string(side) + ".png"),
              [side] { return Program::PaintProgramIcon(side); });
  }
}

void AddFlags(Easel& easel, const fs::path& languages, const fs::path& builtin) {
  using Program::Flag;
  const auto flag = [](Flag which) {
    return [which](int scale) { return Program::PaintFlag(which, scale); };
  };
  AddWithDouble(easel, builtin, "flag-de", flag(Flag::German));
  AddWithDouble(easel, builtin, "flag-none", flag(Flag::None));
  easel.add(languages / "English/English.bmp", [=] { return flag(Flag::English)(1); });
  easel.add(languages / "Français/Français.bmp", [=] { return flag(Flag::French)(1); });
}

void AddProgramPictures(Easel& easel, SharedSheet& sheet, const fs::path& out) {
  easel.add(out / "fallback.jpg", Pictures::PaintFallback, PortraitQuality);
  AddWithDouble(easel, out, "banner-about",
                [&sheet](int scale) { return Program::PaintAboutBanner(sheet.get(), scale); });
  AddWithDouble(easel, out, "banner-print",
                [&sheet](int scale) { return Program::PaintPrintBanner(sheet.get(), scale); });
}

}  // namespace

std::string PaintAll(const fs::path& world, const fs::path& out) {
  Easel easel;
  SharedSheet sheet;
  easel.add(
      out / "builtin/overview.jpg", [&sheet] { return Map::PaintOverview(sheet.get()); },
      MapQuality);
  AddRegions(easel, world, out / "program");
  AddSubjects(easel, world, out / "program/PICS");
  AddProgramPictures(easel, sheet, out / "builtin");
  AddSigns(easel, out / "builtin");
  AddFlags(easel, out / "program/LANG", out / "builtin");
  return easel.run();
}

}  // namespace Gallery
