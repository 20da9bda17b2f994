#pragma once

#include "mapdata/windows/MapView.h"
#include "support/GermanNames.h"
#include "support/Windows.h"

#include <QApplication>

#include <gtest/gtest.h>

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
