#pragma once

#include "app/Twips2Pixel_Module.h"
#include "mapdata/display/ViewState.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/world/EntityNames.h"

#include <QWidget>

class MapArea;
class MapFocus;
class MarkerSlots;
class NameLabel;
class QComboBox;
class QFrame;
class QPainter;
class QToolButton;
class ctlLocation;

/// The map of the main window with everything that stands on it: one region's picture, and either
/// the list of a category with one marker for the entity picked, or all of its entities as markers.
class MapView : public QWidget {
  Q_OBJECT

 public:
  /// The size of the map area when the program starts, in twips.
  static constexpr Twips2Pixel_Module::Twips StartSize = {15360, 11535};

  MapView(IniOps::Cache& files, const EntityNames& names, QWidget* parent = nullptr);

  /// Sets the first row of the list, which begins with a blank, and the information button's
  /// tooltip. The row shows when the list is filled the next time. `highlighted` is what a screen
  /// reader says of a highlighted marker, `spokenPrompt` what it says of the list.
  void SetTexts(const Text& prompt, const Text& infoToolTip, const Text& highlighted,
                const Text& spokenPrompt);

  /// Hides and resets everything on the map; the picture stays.
  void ClearUI();

  /// Clears the map down to the start-up picture; a resize then shows nothing else.
  void ShowNoRegion();

  /// Shows the picture `Map` and the entities of section `KindX` of the data file as a list. A
  /// picture that can't be read leaves the start-up picture and nothing on it.
  void Change(const Text& Map, const Text& Data, const Text& KindX);

  /// Shows the picture `Map` and the entities of section `KindX` of the data file as markers with
  /// a heading, whose "&" signs are left out. A picture that can't be read leaves the start-up
  /// picture and nothing on it.
  void ChangeMulti(const Text& Map, const Text& Data, const Text& KindX, const Text& Heading,
                   bool LabelsOnHover);

  /// Opens the information window for this name.
  void InfoMulti(const Text& nameX);

  /// The map's size in twips.
  [[nodiscard]] Twips2Pixel_Module::Twips MapSize() const;

  /// Paints the map as it is displayed, in pixels of the screen: the picture with all its pixels,
  /// and what stands on it as sharp as the painter's device allows.
  void Paint(QPainter& painter);

  /// The name of the entity that the information window shows; blanks around it don't count.
  Text InfoEntityName;

  /// What a resize draws again.
  ViewState View;

  // The steps that the display of a search hit is made of, besides those above.

  /// Shows the picture in the map area; false, and the start-up picture, if it can't be read.
  [[nodiscard]] bool LoadPicture(const Text& path);

  /// The point of the map, in twips, for a position of the 1024 x 768 frame.
  [[nodiscard]] Twips2Pixel_Module::Twips PointAt(int x, int y) const;

  /// Puts the single marker with its top left corner at this point (twips) and names it.
  void PlaceItem(const Twips2Pixel_Module::Twips& at, const Text& name);

  /// Puts the single name beside the single marker, wherever that stands, and shows both.
  void PlaceCaption(const Text& caption);

  /// The single entity's name label.
  [[nodiscard]] NameLabel& Caption() { return *lblCaption; }

  /// Shows the text in the top right corner.
  void ShowHeading(const Text& caption);

  /// The text in the top right corner; "" while there is none.
  [[nodiscard]] Text Heading() const;

  /// The way of the keyboard over the markers.
  [[nodiscard]] MapFocus& Focus() { return *focus_; }

  /// What a screen reader tells of a marker beside its name: whether it is highlighted, and the
  /// start of the entity's description.
  [[nodiscard]] QString SpokenDescription(const ctlLocation& marker);

  /// The entity list, which keeps its rows while it is hidden.
  [[nodiscard]] QComboBox& Items() { return *cboItems; }

  /// Makes a section of a data file the one that the list's handler reads.
  void SetCategory(const Text& dataFile, const Text& categoryKey);

  /// Places marker and name for the list's text, or hides both for the prompt.
  void cboItems_Click();

 Q_SIGNALS:
  /// Something is on the map that can be printed.
  void Displayed();
  /// The information window is wanted for `InfoEntityName`.
  void InfoRequested();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  [[nodiscard]] int WindowWidth() const;
  void CreateControls();
  void ConnectControls();
  void FillItems(const std::vector<Text>& names);
  void Form_Resize();
  void PlaceHeading();
  void HideItem();
  void btnInfo_Click();
  void lblCaption_DblClick();
  void lblCaption_MouseMove();
  void DOT_MouseMove(int index);
  void DOT_DblClick(int index);
  void lblDOT_MouseMove(int index);
  void lblDOT_DblClick(int index);
  [[nodiscard]] QString Description(const NameLabel& label);
  void ShowDescription(NameLabel& label);

  IniOps::Cache& files_;
  const EntityNames& names_;
  Text prompt_;
  Text highlighted_;
  Text dataFile_;
  Text categoryKey_;
  Twips2Pixel_Module::Twips itemAt_;

  MapArea* imgMap;
  QFrame* linMenuSep;
  NameLabel* lblCaption;
  ctlLocation* ITEM;
  MarkerSlots* slots_;
  MapFocus* focus_;
  NameLabel* lblMultiInfo;
  QComboBox* cboItems;
  QToolButton* btnInfo;
};
