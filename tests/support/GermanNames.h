#pragma once

#include "mapdata/world/EntityNames.h"

/// German: names are their keys. Descriptions come from one file.
class GermanNames : public EntityNames {
 public:
  explicit GermanNames(Text infoFile = {}) : infoFile_(std::move(infoFile)) {}

  [[nodiscard]] Text Shown(IniOps::Snapshot&, TextView key) override { return Text(key); }

  [[nodiscard]] Text Key(TextView shown) override { return Text(shown); }

  [[nodiscard]] Text InfoFile() override { return infoFile_; }

 private:
  Text infoFile_;
};
