#pragma once

#include "app/Twips2Pixel_Module.h"
#include "mapdata/display/ViewState.h"
#include "mapdata/display/Viewport.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityFile.h"
#include "platform/Text.h"

#include <QWidget>

#include <memory>

class EntityNames;
class MapControls;
class MapFocus;
class MapGestures;
class MapLook;
class MapPointer;
class QPainter;

/// The map of the main window: one region's picture, and on it the list of a category with a marker
/// for the entity picked, or all of its entities as markers, or one entity that was searched for. A
/// state is planned, the plan is laid out in the part of the picture that is shown, and the widgets
/// are moved there.
class MapView : public QWidget {
  Q_OBJECT

 public:
  /// The size of the map area when the program starts, in twips.
  static constexpr Twips2Pixel_Module::Twips StartSize = {15360, 11535};

  /// One entity that was searched for.
  struct Hit {
    /// Path of the region's picture, and where the entity stands.
    Text Map;
    Text DataFile;
    Text CategoryKey;
    EntityFile::Position at;
    /// Its name in the search, and as it is shown.
    Text Name;
    Text ShownName;
    /// Shown as the name's tooltip.
    Text Description;
    /// As it is shown.
    Text Heading;
  };

  /// Without a region the map shows the start picture, or the built-in one if that can't be read.
  MapView(IniOps::Cache& cache, const EntityNames& names, QWidget* parent = nullptr,
          const Text& startPicture = {});
  ~MapView() override;

  /// Sets the list's first row, which begins with a blank and shows when the list is next filled,
  /// and the information button's tooltip. A screen reader says `highlighted` of a highlighted
  /// marker and `spokenPrompt` of the list.
  void SetTexts(const Text& prompt, const Text& infoToolTip, const Text& highlighted,
                const Text& spokenPrompt);

  /// Hides and resets everything on the map; the picture stays.
  void ClearUI();

  /// Clears the map down to the start-up picture; a resize then shows nothing else.
  void ShowNoRegion();

  /// Shows the picture `Map` and the entities of section `KindX` of the data file as a list. A
  /// picture that can't be read leaves the start-up picture and nothing on it.
  void Change(const Text& Map, const Text& Data, const Text& KindX);

  /// Shows the picture `Map` and the entities of section `KindX` of the data file as markers with a
  /// heading, whose "&" signs are left out. A picture that can't be read leaves the start-up
  /// picture and nothing on it.
  void ChangeMulti(const Text& Map, const Text& Data, const Text& KindX, const Text& Heading,
                   bool LabelsOnHover);

  /// Shows one entity with its name and a heading. Where the hidden list has a row of its name,
  /// that is selected. A picture that can't be read leaves the start-up picture and nothing on it.
  void ShowHit(const Hit& hit);

  /// Shows the same once more, from the files as they stand now.
  void Repeat();

  /// Opens the information window for this name.
  void InfoMulti(const Text& nameX);

  /// The name of the entity that the information window shows; blanks around it don't count.
  [[nodiscard]] const Text& InfoEntityName() const { return infoEntityName_; }

  /// The map's size in twips.
  [[nodiscard]] Twips2Pixel_Module::Twips MapSize() const { return Part().MapSize(); }

  /// The part of the picture that is shown.
  [[nodiscard]] const Viewport& Part() const;

  /// Paints the map as it is displayed, in pixels of the screen: the picture with all its pixels,
  /// and what stands on it as sharp as the painter's device allows.
  void Paint(QPainter& painter);

  /// The text in the top right corner; "" while there is none.
  [[nodiscard]] const Text& Heading() const;

  /// The keyboard on the markers.
  [[nodiscard]] MapFocus& Focus() { return *focus_; }

  /// The pointer on the markers.
  [[nodiscard]] const MapPointer& Pointer() const { return *pointer_; }

 Q_SIGNALS:
  /// Something is on the map that can be printed.
  void Displayed();
  /// The information window is wanted for `InfoEntityName`.
  void InfoRequested();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void ConnectControls();
  [[nodiscard]] bool Begin(const ViewState& view);
  [[nodiscard]] bool Load();
  void ShowPlan();
  void Form_Resize();
  void FillList();
  void cboItems_Click();
  void btnInfo_Click();

  void lblCaption_DblClick() { btnInfo_Click(); }

  IniOps::Cache& cache_;
  const EntityNames& names_;
  Text prompt_;

  Text infoEntityName_;
  ViewState view_;
  MapFocus* focus_;
  std::unique_ptr<MapControls> controls_;
  MapGestures* gestures_;
  MapLook* look_;
  MapPointer* pointer_;
};
