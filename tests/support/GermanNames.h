#pragma once

#include "mapdata/world/EntityNames.h"

/// German: names are their keys. Descriptions come from one file.
class GermanNames : public EntityNames {
 public:
  explicit GermanNames(Text infoPath = {}) : infoPath_(std::move(infoPath)) {}

  [[nodiscard]] std::shared_ptr<const ProfileFile> NameFile(IniOps::Snapshot&) const override {
    return nullptr;
  }

  [[nodiscard]] Text Shown(const std::shared_ptr<const ProfileFile>&, TextView key) const override {
    return Text(key);
  }

  [[nodiscard]] Text Key(TextView shown) const override { return Text(shown); }

  [[nodiscard]] Text InfoPath() const override { return infoPath_; }

 private:
  Text infoPath_;
};
