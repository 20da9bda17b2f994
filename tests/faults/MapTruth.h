#pragma once

#include "app/World.h"
#include "i18n/InterfaceTexts.h"
#include "mapdata/world/EntityFile.h"
#include "search/Search.h"

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <string>

class QMainWindow;
class QWidget;
struct MenuRow;

/// What the map has to show after all that was done to the program, worked out beside it: from the
/// files as they stand, the commands, picks, hits, hovers and resizes that it hears of, and the
/// rules. Nothing is asked of the map but the places that its widgets have.
class MapTruth : public QObject {
 public:
  explicit MapTruth(QMainWindow& window);

  /// To be called for each dialog of the program when it opens.
  void Watch(QWidget& dialog);

  /// To be called before each step: what the keyboard is on, which a zoom by key leaves in place.
  void Begin();

  /// What is wrong with what the window shows, or with its focus; "" if nothing is.
  [[nodiscard]] std::string Fault();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  enum class Kind { Nothing, List, Markers, Hit };

  // A marker and its name as they are to be seen.
  struct Spot {
    // Its position in the frame, and how many twips before that its corner stands.
    QPoint point;
    int before = 0;
    QString name;
    QString caption;
    bool highlighted = false;
    bool markerShown = true;
    bool labelShown = true;
    // -1 for the single marker, whose name stands right of it if it can.
    int slot = -1;
  };

  void Connect();
  void Category(const MenuRow& row);
  void ShowList(const Text& picture, const Text& data, const Text& category);
  void ShowMarkers(const Text& picture, const Text& data, const Text& category,
                   const QString& heading, bool onHover);
  void Pick(const QString& name);
  void ShowHit(const Search::Outcome& outcome);
  void Resized();
  void Repeated();
  void SpeakAs(const InterfaceTexts& texts, const Text& file);
  [[nodiscard]] bool IsReadable(const Text& picture);
  [[nodiscard]] std::vector<Spot> MarkersOfCategory();
  [[nodiscard]] std::vector<Spot> Spots();
  void ShowWhole();
  void Zoom(const QPoint& at, double factor);
  void Pan(double right, double down);
  void BringIntoView(const QPoint& corner);
  void Clamp();
  // Where a position is on the picture at this scale, on the map, and the corner of its marker; in
  // twips.
  [[nodiscard]] QPoint OnPicture(int x, int y, double scale) const;
  [[nodiscard]] QPoint InView(const Spot& spot) const;
  [[nodiscard]] int Inside(const Spot& spot) const;
  [[nodiscard]] std::string FaultOf(const Spot& spot) const;
  [[nodiscard]] std::string FaultOfShown(const std::vector<Spot>& spots) const;
  [[nodiscard]] std::string FaultOfList() const;
  [[nodiscard]] std::string FaultOfFocus() const;
  [[nodiscard]] QWidget& Part(const QString& name) const;
  [[nodiscard]] QPoint BesideMarker(const Spot& spot, int width) const;

  QMainWindow& window_;
  QWidget& map_;
  // Opened from the same folder; nothing is shared with the program's own.
  World world_;
  std::vector<Text> captions_;
  QString prompt_;
  Search::State search_;
  std::map<Text, bool> readable_;

  Kind kind_ = Kind::Nothing;
  Text picture_;
  // Of what is shown; of the list also while that is hidden.
  Text data_;
  Text category_;
  QString heading_;
  bool onHover_ = false;
  int hovered_ = -1;
  // The row of the list; "" where none is selected.
  QString listed_;
  QStringList rows_;
  // Where the single marker stands and what its name says; none if there is nothing to see of it.
  std::optional<Spot> item_;
  double scale_ = 1;
  // What lies left of and above the map, in twips.
  double left_ = 0;
  double top_ = 0;
  QSize size_;
  QPoint anchor_;
  // The entity shown last, which a resize goes by where the list has no row selected.
  QString found_;
};
