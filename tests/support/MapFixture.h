#pragma once

#include "controls/windows/WidgetTwips.h"
#include "mapdata/windows/MapView.h"
#include "support/GermanNames.h"
#include "support/Windows.h"

#include <QApplication>

#include <gtest/gtest.h>

/// The pixel of something whose left and top edge are so many twips before a position of the frame.
inline QPoint PixelOnMap(const MapView& map, int x, int y, int before = 65) {
  const auto screen = WidgetTwips::ScreenOf(map);
  const auto point = Twips2Pixel_Module::PointOnMap(screen, map.MapSize(), x, y);
  return {WidgetTwips::ToPixelsX(screen, point.x - before),
          WidgetTwips::ToPixelsY(screen, point.y - before)};
}

/// A map over one data file, with the category "t", and one description, that of a wolf.
class MapFixture : public testing::Test {
 protected:
  explicit MapFixture(const std::string& entities) {
    Paint(folder, "a.jpg", Qt::darkGreen);
    folder.Write("a.data", entities);
    folder.Write("info.data", "[info]\r\nwolf=a < b und c > d\r\n");
    view.SetTexts(u"  ----- Bitte Auswählen -----", u"Tip", u"hervorgehoben", u"Bitte");
    view.resize(1000, 700);
    view.show();
    QApplication::setActiveWindow(&view);
  }

  void Multi(bool onHover = false, const Text& category = u"t") {
    view.ChangeMulti(map, data, category, u"&Arvenna: &Lehrer", onHover);
  }

  void List(const Text& category = u"t") { view.Change(map, data, category); }

  QWidget& At(const char* name) { return Part(view, name); }

  TemporaryFolder folder;
  Text map = folder.Path(u"a.jpg");
  Text data = folder.Path(u"a.data");
  IniOps::Cache cache;
  GermanNames names{folder.Path(u"info.data")};
  MapView view{cache, names};
};
