#pragma once

#include "app/MenuTable.h"
#include "support/TemporaryFolder.h"

#include <QSize>

#include <ctime>
#include <string>

/// A program folder for measurements of the map, gone with its object: every region has a picture
/// of 4096 x 3072 pixels and a data file of 1 MB whose measured category links 81 entities; the
/// information file has 20,000 entries in 3.4 MB.
class MapWorld {
 public:
  static constexpr QSize PictureSize = {4096, 3072};
  static constexpr int Regions = 5;
  static constexpr int Entities = 81;

  MapWorld();

  [[nodiscard]] Text Folder() const { return folder_.Folder(); }

  [[nodiscard]] std::string Native() const { return folder_.Native(""); }

  [[nodiscard]] Text InfoData() const { return folder_.Path(u"info.data"); }

  [[nodiscard]] Text Picture(int region) const;

  [[nodiscard]] Text Data(int region) const;

  /// The name of an entity; the numbers below `Entities` are those of the measured category.
  [[nodiscard]] static std::string EntityName(size_t number);

  /// Gives the file another time, as an edit does.
  void Touch(int region) const { Touch(Data(region)); }

  void TouchInfoData() const { Touch(InfoData()); }

  /// The menu's command whose category is measured: names shown, all of its entities links.
  [[nodiscard]] static const MenuRow& Measured(int region);

 private:
  void Touch(const Text& path) const;

  // Files of a world are old: new ones are read again at each event.
  void Write(const std::string& name, const std::string& bytes) const;

  TemporaryFolder folder_;
  mutable time_t touched_ = 1'000'000'000;
};
