#include "Gallery.h"

#include <QImage>
#include <atomic>
#include <functional>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

#include "map/RegionPainter.h"
#include "pictures/Subject.h"

namespace Gallery {

namespace {

namespace fs = std::filesystem;

constexpr int MapQuality = 93;
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
        MapQuality);
  }
}

void AddSubjects(Easel& easel, const fs::path& world, const fs::path& out) {
  const std::vector<std::string> values = WorldData::DataFile(world / "PICS/pic.ini").values();
  for (const std::string& name : std::set<std::string>(values.begin(), values.end())) {
    easel.add(
        out / name, [name] { return Pictures::PaintSubject(name); }, PortraitQuality);
  }
}

}  // namespace

std::string PaintAll(const fs::path& world, const fs::path& out) {
  Easel easel;
  AddRegions(easel, world, out / "program");
  AddSubjects(easel, world, out / "program/PICS");
  return easel.run();
}

}  // namespace Gallery
