#pragma once

#include "app/AllTexts.h"
#include "app/World.h"
#include "check/Source.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/Regions.h"

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>

/// What the header of a picture file tells.
struct PictureSize {
  int width = 0;
  int height = 0;
};

/// The size of the picture at a path that the viewer would show; none if it shows none.
using PictureOf = std::function<std::optional<PictureSize>(TextView path)>;

/// What is made once of a world because several checks need it.
class Index {
 public:
  /// A section that a command of the region shows.
  struct Category {
    TextView section;
    /// Shown by a list, one entity at a time; else by up to 81 markers.
    bool isList = false;
    bool isPerk = false;
  };

  /// A line that a key list of a data file gives.
  struct Entity {
    size_t region = 0;
    size_t section = 0;
    size_t line = 0;
    std::string_view name;

    [[nodiscard]] bool IsDisabled() const { return name.starts_with(';'); }
  };

  /// A language beside German.
  struct Language {
    Text folder;
    /// The name that it declares; "" if there is none.
    Text name;
    const Source* file = nullptr;
    /// Its descriptions, if it has some of its own.
    const Source* info = nullptr;
    /// As start-up would choose it.
    std::unique_ptr<LOCAL::Language> spoken;
  };

  /// Other bytes than those of a file that is there.
  struct Assumed {
    Text path;
    std::string bytes;
  };

  /// Opens the world in that folder, with the languages that `wanted` holds for.
  Index(const Text& folder, PictureOf pictureOf, const std::function<bool(TextView)>& wanted,
        std::span<const Assumed> assumed);
  Index(const Index&) = delete;
  Index& operator=(const Index&) = delete;

  /// Names of entities that are switched on, each once, in the order of their bytes.
  [[nodiscard]] const std::vector<std::string_view>& Names() const { return names_; }

  /// Whether an entity that is switched on bears the name, whatever its letter case.
  [[nodiscard]] bool IsName(std::string_view name) const;

  /// Whether a line that is switched off bears the name.
  [[nodiscard]] bool IsSwitchedOff(std::string_view name) const;

  /// The category that shows the section of the region; none if no command does.
  [[nodiscard]] const Category* CategoryOf(size_t region, std::string_view section) const;

  /// The same for the section of an entity.
  [[nodiscard]] const Category* CategoryOf(const Entity& entity) const {
    return shown_[entity.region][entity.section];
  }

  /// A file of the world that several checks look at.
  const Source& Open(Source::Kind kind, const Text& path);

  ::World world;
  IniOps::Snapshot files;
  const ProgramPaths& paths;
  /// Every text that a language can have.
  const std::vector<TextRow> texts = AllTexts();
  /// The world's folder, with a separator at its end.
  const Text& base;
  PictureOf pictureOf;
  std::deque<Source> sources;
  const Source* settings = nullptr;
  const Source* info = nullptr;
  const Source* portraits = nullptr;
  std::array<const Source*, Regions.size()> data{};
  std::array<std::vector<Category>, Regions.size()> categories;
  std::vector<Entity> entities;
  /// The sections of each region that links name, in lower case.
  std::array<std::unordered_set<std::string>, Regions.size()> linkTargets;
  std::vector<Language> languages;

 private:
  void AddCategories();
  void AddEntities(size_t region);
  void AddNames();
  void AddLanguages(const std::function<bool(TextView)>& wanted);

  std::array<std::vector<const Category*>, Regions.size()> shown_;
  std::vector<std::string_view> names_;
  std::unordered_map<std::string, bool> isOn_;
};
