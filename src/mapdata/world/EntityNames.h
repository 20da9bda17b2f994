#pragma once

#include "mapdata/files/IniOps.h"
#include "mapdata/files/ProfileFile.h"
#include "platform/Text.h"

#include <memory>

/// What the map knows of the interface language: names as they are shown, the keys behind them, and
/// the file of descriptions. In German a name is its key.
class EntityNames {
 public:
  EntityNames() = default;
  virtual ~EntityNames() = default;
  EntityNames(const EntityNames&) = delete;
  EntityNames& operator=(const EntityNames&) = delete;

  /// The file that `Shown` takes translations from, as this event sees it; null while a name is
  /// its key.
  [[nodiscard]] virtual std::shared_ptr<const ProfileFile> NameFile(
      IniOps::Snapshot& files) const = 0;

  /// The name to show for the key of an entity data file, translated by the `NameFile`.
  [[nodiscard]] virtual Text Shown(const std::shared_ptr<const ProfileFile>& nameFile,
                                   TextView key) const = 0;

  /// The key behind a name that `Shown` gave.
  [[nodiscard]] virtual Text Key(TextView shown) const = 0;

  /// The path of the information file that holds the descriptions for this language.
  [[nodiscard]] virtual Text InfoPath() const = 0;
};
