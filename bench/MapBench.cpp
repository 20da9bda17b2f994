#include "Frame.h"
#include "MapWorld.h"
#include "Ratios.h"
#include "StartedLanguage.h"
#include "app/Context.h"
#include "app/windows/frmMain.h"
#include "mapdata/windows/MapArea.h"
#include "mapdata/windows/MapGestures.h"
#include "mapdata/windows/MapView.h"
#include "platform/PosixFile.h"
#include "platform/windows/PictureReader.h"
#include "platform/windows/QtText.h"
#include "support/GermanNames.h"
#include "support/RecordingDesktop.h"

#include <benchmark/benchmark.h>

#include <QAction>
#include <QEventLoop>
#include <QImageReader>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>

#include <fstream>

#include <malloc.h>

using QtText::ToQt;

namespace {

constexpr int Rounds = 7;
constexpr QSize Screen = {1920, 1080};

const MapWorld& Source() {
  static const MapWorld world;
  return world;
}

// The program's main window over the measured world, as large as the screen.
class Window {
 public:
  Window() {
    window_.resize(Screen);
    window_.show();
    QApplication::processEvents();
  }

  [[nodiscard]] frmMain& Widget() { return window_; }

  [[nodiscard]] QWidget& Map() { return *window_.findChild<QWidget*>(QStringLiteral("imgMap")); }

  [[nodiscard]] MapView& View() { return *window_.findChild<MapView*>(); }

  /// Chooses the region's measured category in the menu; the seconds until it is on the screen,
  /// and not those of what is done after that.
  double Show(int region) {
    auto* action = window_.findChild<QAction*>(ToQt(MapWorld::Measured(region).name));
    const double seconds = Frame::Seconds(Map(), [action] { action->trigger(); });
    QApplication::processEvents();
    return seconds;
  }

  /// One step of a resize by dragging.
  double Step(int number) {
    return Frame::Seconds(
        Map(), [this, number] { window_.resize(Screen - QSize(40, 30) * (number % 8 + 1)); });
  }

 private:
  RecordingDesktop desktop_;
  World world_{Source().Folder()};
  Context context_{world_, desktop_};
  frmMain window_{context_};
};

void ReadJpegAtWindowSize(benchmark::State& state) {
  for (auto _ : state) {
    const double start = ProcessSeconds();
    QImageReader reader(ToQt(Source().Picture(0)));
    reader.setScaledSize(Screen);
    benchmark::DoNotOptimize(reader.read());
    state.SetIterationTime(ProcessSeconds() - start);
  }
}

void ShowNewRegion(benchmark::State& state) {
  for (auto _ : state) {
    Window window;
    state.SetIterationTime(window.Show(0));
  }
}

void ShowKnownRegion(benchmark::State& state) {
  Window window;
  window.Show(0);
  window.Show(1);
  int region = 0;
  for (auto _ : state) {
    state.SetIterationTime(window.Show(region));
    region = 1 - region;
  }
}

void ResizeWithMarkers(benchmark::State& state) {
  Window window;
  window.Show(0);
  int step = 0;
  for (auto _ : state)
    state.SetIterationTime(window.Step(step++));
}

void ResizePictureAlone(benchmark::State& state) {
  Window window;
  window.View().Change(Source().Picture(0), Source().Data(0), u"no category");
  int step = 0;
  for (auto _ : state)
    state.SetIterationTime(window.Step(step++));
}

// A widget that knows nothing but its picture.
class PlainPicture : public QWidget {
 public:
  PlainPicture() {
    QImageReader reader(ToQt(Source().Picture(0)));
    reader.setScaledSize(MapWorld::PictureSize / 2);
    picture_ = reader.read().convertToFormat(QImage::Format_RGB32);
    resize(Screen);
    show();
  }

  double Step(int number) {
    return Frame::Seconds(*this,
                          [this, number] { resize(Screen - QSize(40, 30) * (number % 8 + 1)); });
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), picture_);
  }

 private:
  QImage picture_;
};

void PaintPlainPicture(benchmark::State& state) {
  PlainPicture widget;
  int step = 0;
  for (auto _ : state)
    state.SetIterationTime(widget.Step(step++));
}

// A widget that paints a part of the picture, from the pixels that a view of this scale needs.
class PlainPart : public QWidget {
 public:
  explicit PlainPart(double scale)
      : picture_(PictureReader::Read(Source().Picture(0), Screen * scale)), length_(1 / scale) {
    resize(Screen);
    show();
    QApplication::processEvents();
  }

  double Step(int number) {
    return Frame::Seconds(*this, [this, number] {
      left_ = 0.1 + 0.01 * (number % 2);
      update();
    });
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(rect()), picture_,
                      {left_ * picture_.width(), 0.1 * picture_.height(),
                       length_ * picture_.width(), length_ * picture_.height()});
  }

 private:
  QImage picture_;
  double length_;
  double left_ = 0;
};

template <int Percent>
void PaintPart(benchmark::State& state) {
  PlainPart widget(Percent / 100.0);
  int step = 0;
  for (auto _ : state)
    state.SetIterationTime(widget.Step(step++));
}

// The main window with 81 markers and their names, in a closer view that is as sharp as it gets.
class CloserWindow : public Window {
 public:
  explicit CloserWindow(double scale) {
    Show(0);
    Zoom(scale);
    WaitForSharpFrame();
  }

  void Zoom(double factor) { Q_EMIT Gestures().ZoomWanted(View().rect().center(), factor); }

  void Pan(const QPoint& by) { Q_EMIT Gestures().PanWanted(by); }

  /// The processor time until what a zoom left to do is on the screen.
  double WaitForSharpFrame() {
    QApplication::processEvents();
    const double start = ProcessSeconds();
    QEventLoop untilPainted;
    QTimer::singleShot(MaximumMilliseconds, &untilPainted, &QEventLoop::quit);
    const QuitOnPaint quit(Map(), untilPainted);
    untilPainted.exec();
    return ProcessSeconds() - start;
  }

 private:
  static constexpr int MaximumMilliseconds = 2000;

  class QuitOnPaint : public QObject {
   public:
    QuitOnPaint(QWidget& widget, QEventLoop& loop) : loop_(loop) {
      widget.installEventFilter(this);
    }

   protected:
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::Paint)
        loop_.quit();
      return false;
    }

   private:
    QEventLoop& loop_;
  };

  MapGestures& Gestures() { return *View().findChild<MapGestures*>(); }
};

template <int Percent>
void ZoomStep(benchmark::State& state) {
  CloserWindow window(Percent / 100.0);
  double factor = 1.02;
  for (auto _ : state) {
    state.SetIterationTime(
        Frame::Seconds(window.Map(), [&window, factor] { window.Zoom(factor); }));
    factor = 1 / factor;
  }
}

template <int Percent>
void PanStep(benchmark::State& state) {
  CloserWindow window(Percent / 100.0);
  int by = 20;
  for (auto _ : state) {
    state.SetIterationTime(Frame::Seconds(window.Map(), [&window, by] { window.Pan({by, by}); }));
    by = -by;
  }
}

void SharpFrame(benchmark::State& state) {
  CloserWindow window(4);
  for (auto _ : state) {
    window.Zoom(0);
    static_cast<void>(window.WaitForSharpFrame());
    window.Zoom(4);
    state.SetIterationTime(window.WaitForSharpFrame());
  }
}

void ReadWholeJpeg(benchmark::State& state) {
  for (auto _ : state) {
    const double start = ProcessSeconds();
    QImageReader reader(ToQt(Source().Picture(0)));
    benchmark::DoNotOptimize(reader.read());
    state.SetIterationTime(ProcessSeconds() - start);
  }
}

// 81 names in another language, from a file of 5,000 names.
const Text& LanguageRoot() {
  static const TemporaryFolder folder;
  static const Text root = [] {
    std::string file = "[general]\r\nlanguage=English\r\n[entities]\r\n";
    for (size_t number = 5000; number-- > 0;)
      file += MapWorld::EntityName(number) + "=Translated " + std::to_string(number) + "\r\n";
    folder.Write("English/English.lng", file);
    const auto old = std::filesystem::file_time_type::clock::now() - std::chrono::hours(1);
    std::filesystem::last_write_time(folder.Native("English/English.lng"), old);
    return folder.Path(u"");
  }();
  return root;
}

void ShowMarkers(benchmark::State& state, const EntityNames& names) {
  IniOps::Cache cache;
  MapView view(cache, names);
  view.resize(Screen);
  view.show();
  for (auto _ : state) {
    const double start = ProcessSeconds();
    view.ChangeMulti(Source().Picture(0), Source().Data(0), Text(MapWorld::Measured(0).category),
                     u"Names", false);
    QApplication::processEvents();
    state.SetIterationTime(ProcessSeconds() - start);
  }
}

void ShowGermanMarkers(benchmark::State& state) {
  GermanNames names;
  ShowMarkers(state, names);
}

void ShowTranslatedMarkers(benchmark::State& state) {
  IniOps::Cache cache;
  IniOps::Snapshot files(cache);
  StartedLanguage names(files, LanguageRoot(), u"English");
  ShowMarkers(state, names);
}

// A map with all names shown, and the pointer that moves over it.
class HoveredMap {
 public:
  HoveredMap() {
    view_.resize(Screen);
    view_.ChangeMulti(Source().Picture(0), Source().Data(0), Text(MapWorld::Measured(0).category),
                      u"Names", false);
    view_.show();
    QApplication::processEvents();
  }

  void MoveOver(QLatin1StringView control, int slot) {
    auto* widget = view_.findChild<QWidget*>(QStringLiteral("%1(%2)").arg(control).arg(slot));
    const QPointF at(2, 2);
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
  }

  [[nodiscard]] QString ToolTip(int slot) {
    return view_.findChild<QLabel*>(QStringLiteral("lblDOT(%1)").arg(slot))->toolTip();
  }

 private:
  IniOps::Cache cache_;
  GermanNames names_{Source().InfoData()};
  MapView view_{cache_, names_};
};

constexpr QLatin1StringView Label("lblDOT");
constexpr QLatin1StringView Marker("DOT");

double SecondsOf(HoveredMap& map, int slot) {
  const double start = ProcessSeconds();
  map.MoveOver(Label, slot);
  return ProcessSeconds() - start;
}

void ReadInfoFile(benchmark::State& state) {
  const std::string path = Source().Native() + "info.data";
  for (auto _ : state) {
    const double start = ProcessSeconds();
    benchmark::DoNotOptimize(PosixFile::Read(path, IniOps::LargestFile));
    state.SetIterationTime(ProcessSeconds() - start);
  }
}

// The window system may have had the pointer on a name before: an edit makes the next move a first.
void FirstMoveOverName(benchmark::State& state) {
  HoveredMap map;
  for (auto _ : state) {
    Source().TouchInfoData();
    state.SetIterationTime(SecondsOf(map, 0));
    if (map.ToolTip(0).isEmpty())
      state.SkipWithError("the name has no description");
  }
}

void FurtherMoveOverName(benchmark::State& state) {
  HoveredMap map;
  map.MoveOver(Label, 0);
  int slot = 0;
  for (auto _ : state) {
    slot = (slot + 1) % MapWorld::Entities;
    state.SetIterationTime(SecondsOf(map, slot));
  }
}

// What the process has read so far, from files and otherwise.
long long BytesRead() {
  std::ifstream counters("/proc/self/io");
  std::string name;
  long long bytes = 0;
  counters >> name >> bytes;
  return bytes;
}

// What an action reads: the counter of it is a file too.
template <typename Action>
double BytesReadBy(Action action) {
  const long long before = BytesRead();
  const long long ofCounting = BytesRead() - before;
  const long long start = BytesRead();
  action();
  return static_cast<double>(std::max(0LL, BytesRead() - start - ofCounting));
}

double BytesReadByHovering() {
  HoveredMap map;
  map.MoveOver(Label, 0);
  return BytesReadBy([&map] {
    for (int slot = 0; slot < MapWorld::Entities; ++slot) {
      map.MoveOver(Marker, slot);
      map.MoveOver(Label, slot);
    }
  });
}

// A step wakes the event loop, which reads that from a descriptor of its own: what a plain widget's
// steps read does not count.
double BytesReadByResizing() {
  constexpr int steps = 10;
  Window window;
  window.Show(0);
  const double read = BytesReadBy([&window] {
    for (int step = 0; step < steps; ++step)
      window.Step(step);
  });
  PlainPicture plain;
  return read - BytesReadBy([&plain] {
           for (int step = 0; step < steps; ++step)
             plain.Step(step);
         });
}

void Measure(const char* name, void (*measurement)(benchmark::State&), int iterations) {
  benchmark::RegisterBenchmark(name, measurement)
      ->UseManualTime()
      ->Iterations(iterations)
      ->Repetitions(Rounds)
      ->Unit(benchmark::kMicrosecond);
}

}  // namespace

int main(int argc, char** argv) {
  // Every large block is the system's anew, as in a program that shows one region: else what is
  // repeated most finds its memory ready.
  ::mallopt(M_MMAP_THRESHOLD, 128 * 1024);
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" ORVALIS_BENCH_SCREEN);
  int onlyName = 1;
  const QApplication application(onlyName, argv);
  Measure("ReadJpegAtWindowSize", ReadJpegAtWindowSize, 1);
  Measure("ReadInfoFile", ReadInfoFile, 1);
  Measure("ShowNewRegion", ShowNewRegion, 1);
  Measure("ShowKnownRegion", ShowKnownRegion, 1);
  Measure("ResizeWithMarkers", ResizeWithMarkers, 8);
  Measure("ResizePictureAlone", ResizePictureAlone, 8);
  Measure("PaintPlainPicture", PaintPlainPicture, 8);
  Measure("ZoomStepAt125", ZoomStep<125>, 8);
  Measure("PanStepAt125", PanStep<125>, 8);
  Measure("PaintPartAt125", PaintPart<125>, 8);
  Measure("ZoomStepAt400", ZoomStep<400>, 8);
  Measure("PanStepAt400", PanStep<400>, 8);
  Measure("PaintPartAt400", PaintPart<400>, 8);
  Measure("SharpFrame", SharpFrame, 1);
  Measure("ReadWholeJpeg", ReadWholeJpeg, 1);
  Measure("ShowGermanMarkers", ShowGermanMarkers, 8);
  Measure("ShowTranslatedMarkers", ShowTranslatedMarkers, 8);
  Measure("FirstMoveOverName", FirstMoveOverName, 1);
  Measure("FurtherMoveOverName", FurtherMoveOverName, MapWorld::Entities);
  const Ratios::Ratio ratios[] = {
      {"ShowNewRegion", "ReadJpegAtWindowSize", 1.5},
      {"ShowKnownRegion", "ShowNewRegion", 0.2},
      {"ResizeWithMarkers", "PaintPlainPicture", 2},
      {"ResizeWithMarkers", "ResizePictureAlone", 3},
      {"ZoomStepAt125", "PaintPartAt125", 1.5},
      {"PanStepAt125", "PaintPartAt125", 1.5},
      {"ZoomStepAt400", "PaintPartAt400", 1.5},
      {"PanStepAt400", "PaintPartAt400", 1.5},
      {"SharpFrame", "ReadWholeJpeg", 1.3},
      {"ShowTranslatedMarkers", "ShowGermanMarkers", 1.5},
      {"FirstMoveOverName", "ReadInfoFile", 12},
      {"FurtherMoveOverName", "FirstMoveOverName", 0.01},
  };
  const int timed = Ratios::Run(argc, argv, ratios);
  const bool hover = Ratios::Holds({"BytesReadByHovering", "one byte", 0}, BytesReadByHovering());
  const bool resize = Ratios::Holds({"BytesReadByResizing", "one byte", 0}, BytesReadByResizing());
  return timed == 0 && hover && resize ? 0 : 1;
}
