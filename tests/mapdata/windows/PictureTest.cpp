#include "mapdata/windows/MapPicture.h"
#include "platform/windows/PictureReader.h"
#include "support/Windows.h"

#include <QPainter>

#include <sys/stat.h>

#include <gtest/gtest.h>

TEST(PictureReader, ReadsWhatAPictureIsWhateverItsName) {
  const TemporaryFolder folder;
  for (const char* format : {"jpeg", "bmp", "png"}) {
    Paint(folder, "picture.gif", Qt::green, {40, 30}, format);
    EXPECT_EQ(PictureReader::Read(folder.Path(u"PICTURE.GIF")).size(), QSize(40, 30)) << format;
  }
}

TEST(PictureReader, RefusesWhatIsNone) {
  const TemporaryFolder folder;
  Paint(folder, "small", Qt::green, {8, 8}, "bmp");
  std::string huge = folder.Read("small");
  huge.replace(18, 8, std::string("\x20\x4E\0\0\x20\x4E\0\0", 8));
  folder.Write("huge", huge);
  folder.Write("empty", "");
  folder.Write("text", "no picture");
  Paint(folder, "whole", Qt::green, {400, 300});
  folder.Write("cut", folder.Read("whole").substr(0, 60));
  folder.Write("svg", "<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>");
  folder.Write("folder/x", "");
  ASSERT_EQ(::mkfifo(folder.Native("fifo").c_str(), 0600), 0);
  for (const char16_t* name :
       {u"huge", u"empty", u"text", u"cut", u"svg", u"folder", u"fifo", u"missing", u""})
    EXPECT_TRUE(PictureReader::Read(folder.Path(name)).isNull()) << NativePath::ToBytes(name);
}

TEST(PictureReader, ReadsOnlyAsManyPixelsAsTheScreenNeeds) {
  const TemporaryFolder folder;
  Paint(folder, "a.jpg", Qt::green, {2001, 1501}, "jpeg");
  const auto size = [&](const QSize& cover) {
    return PictureReader::Read(folder.Path(u"a.jpg"), cover).size();
  };
  EXPECT_EQ(size({1001, 751}), QSize(1001, 751));
  EXPECT_EQ(size({1002, 100}), QSize(2001, 1501));
  EXPECT_EQ(size({10, 10}), QSize(251, 188));
  EXPECT_EQ(size({}), QSize(2001, 1501));
}

TEST(MapPicture, ReadsAnewWhatChangedAndKeepsWhatWorked) {
  const TemporaryFolder folder;
  const QSize view(100, 75);
  const Text path = folder.Path(u"a.jpg");
  MapPicture picture;
  EXPECT_FALSE(picture.Load(path, view, view));
  EXPECT_TRUE(picture.At(view).isNull());
  Paint(folder, "a.jpg", Qt::red, {400, 300});
  ASSERT_TRUE(picture.Load(path, view, view));
  EXPECT_EQ(picture.At(view).pixelColor(50, 30), QColor(Qt::red));
  EXPECT_EQ(picture.At({300, 200}).size(), QSize(300, 200));
  Paint(folder, "a.jpg", Qt::blue, {400, 301});
  ASSERT_TRUE(picture.Load(path, view, view));
  EXPECT_EQ(picture.At(view).pixelColor(50, 30), QColor(Qt::blue));
  folder.Write("a.jpg", "broken");
  EXPECT_FALSE(picture.Load(path, view, {9, 9}));
  EXPECT_EQ(picture.At(view).pixelColor(50, 30), QColor(Qt::blue)) << "nothing changes";
  EXPECT_GT(picture.SizeInBytes(), 0);
  folder.Write("b.jpg", "broken too");
  EXPECT_FALSE(picture.Load(folder.Path(u"b.jpg"), view, view));
  EXPECT_EQ(picture.Pixels().pixelColor(50, 30), QColor(Qt::blue));
}

TEST(MapPicture, ReadsForACloserViewWhatItNeedsAndNoMore) {
  const TemporaryFolder folder;
  const QSize view(400, 300);
  const auto bytes = [](int width) { return qsizetype{width} * (width * 3 / 4) * 4; };
  const auto part = [](double scale) { return QRectF(0.5 / scale, 0, 1 / scale, 1 / scale); };
  Paint(folder, "a.jpg", Qt::green, {3200, 2400}, "jpeg");
  MapPicture picture;
  ASSERT_TRUE(picture.Load(folder.Path(u"a.jpg"), view, view));

  const std::tuple<double, bool, int> steps[] = {{1.25, true, 800}, {2, false, 800},
                                                 {4, true, 1600},   {8, true, 3200},
                                                 {4, false, 3200},  {3, true, 1600}};

  for (const auto& [scale, reads, level] : steps) {
    EXPECT_EQ(picture.Sharpen(view, part(scale)), reads) << scale;
    EXPECT_EQ(picture.SizeInBytes(), bytes(400) + bytes(level));
  }
  EXPECT_FALSE(picture.Sharpen(view, part(3))) << "it is there";
  static_cast<void>(picture.Sharpen(view, {0, 0, 1, 1}));
  EXPECT_EQ(picture.SizeInBytes(), bytes(400));
}

TEST(MapPicture, MixesNoOtherFilesPixelsIntoACloserView) {
  const TemporaryFolder folder;
  const QSize view(400, 300);
  const QRectF part(0.25, 0.25, 0.25, 0.25);
  for (const QSize& other : {QSize(100, 80), QSize(1600, 1200), QSize()}) {
    Paint(folder, "a.jpg", Qt::red, {3200, 2400}, "jpeg");
    MapPicture picture;
    ASSERT_TRUE(picture.Load(folder.Path(u"a.jpg"), view, view));
    folder.Write("a.jpg", "broken");
    if (!other.isEmpty())
      Paint(folder, "a.jpg", Qt::blue, other, "jpeg");
    EXPECT_FALSE(picture.Sharpen(view, part));
    QImage shown(view, QImage::Format_RGB32);
    QPainter painter(&shown);
    picture.Paint(painter, shown.rect(), view, part);
    EXPECT_GT(shown.pixelColor(200, 150).red(), 250);
  }
}

TEST(MapPicture, GoesBackToAPictureWithoutReadingItFirst) {
  const TemporaryFolder folder;
  const QSize view(100, 75);
  Paint(folder, "a.png", Qt::red, {400, 300});
  Paint(folder, "b.png", Qt::blue, {400, 300});
  MapPicture picture;
  ASSERT_TRUE(picture.Load(folder.Path(u"a.png"), view, view));
  static_cast<void>(picture.At(view));
  ASSERT_TRUE(picture.Load(folder.Path(u"b.png"), view, view));
  EXPECT_GT(picture.SizeInBytes(), 0);
  ASSERT_TRUE(picture.Load(folder.Path(u"a.png"), view, view));
  EXPECT_EQ(picture.SizeInBytes(), 0);
  EXPECT_EQ(picture.At(view).pixelColor(0, 0), QColor(Qt::red));
  EXPECT_EQ(picture.Pixels().size(), QSize(400, 300));
}
