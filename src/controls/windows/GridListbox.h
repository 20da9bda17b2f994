#pragma once

#include "platform/Text.h"

#include <QPixmap>
#include <QWidget>

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

class GridListView;
class QKeyEvent;
class QMouseEvent;

/// A list of texts, each with a picture of 16 x 16 pixels and a hidden tag where it is given them,
/// in one column with a header. Rows are counted from 1; what names no row is passed over.
///
/// Colours are red + 256 x green + 65536 x blue, or one of the system colours 0x80000005 (window
/// background), 0x80000008 (window text) and 0x8000000F (button face).
class GridListbox : public QWidget {
  Q_OBJECT

 public:
  /// A row as the host sees it.
  struct Row {
    ::Text Text;
    ::Text Tag;
    /// Position of the row's picture among all that were ever added, from 1; 0 without one.
    int SmallIcon = 0;
  };

  explicit GridListbox(QWidget* parent = nullptr);

  /// Adds a row: at the end, or at its place where rows are sorted.
  void AddItem(TextView sText, const QPixmap& spPicture = {}, TextView Tag = {});

  /// Removes the row.
  void RemoveItem(int Index);

  /// Removes all rows; later pictures still count on.
  void Clear();

  /// Paints the list again.
  void Refresh();

  /// All pictures that were ever added.
  [[nodiscard]] std::span<const QPixmap> Pictures() const { return ImageList; }

  /// The picture at this position of a list of them, from 1; a null one if there is none.
  [[nodiscard]] static QPixmap GetImage(std::span<const QPixmap> ilPictures, int iIndex);

  /// There is nothing to tell about the control.
  void About() const {}

  /// The row; none if there is no such row.
  [[nodiscard]] std::optional<Row> Rows(int Index) const;

  [[nodiscard]] int ListCount() const;

  /// The selected row's number; 0 if none is selected.
  [[nodiscard]] int ListIndex() const;

  /// Makes the row the selected one.
  void Select(int Index);

  /// The row's text, "" if there is no such row; row 0 is row 1.
  [[nodiscard]] ::Text List(int Index) const;

  /// The selected row's text; "" if none is selected.
  [[nodiscard]] ::Text Text() const;

  /// Selects the first row that is this text or begins with it as a whole word, letter case not
  /// counting; the selection stays if there is none.
  void SetText(TextView text);

  [[nodiscard]] bool Sorted() const { return sorted_; }

  /// Keeps rows in the order of the German alphabet without regard to letter case.
  void SetSorted(bool sorted);

  [[nodiscard]] bool Enabled() const;

  /// Greys the list, or gives it back the colours that it had when it was last shown.
  void SetEnabled(bool enabled);

  [[nodiscard]] bool NoHeader() const;
  void SetNoHeader(bool hidden);

  [[nodiscard]] const ::Text& Caption() const { return caption_; }

  /// The header's text, and the list's name for a screen reader while the header is shown.
  void SetCaption(TextView caption);

  [[nodiscard]] uint32_t ForeColor() const { return foreColor_; }

  void SetForeColor(uint32_t color);

  [[nodiscard]] uint32_t BackColor() const { return backColor_; }

  void SetBackColor(uint32_t color);

 Q_SIGNALS:
  /// A row was pressed with any button, or reached by dragging or with the keyboard.
  void RowClick(int Index);
  /// A key, as Qt::Key, with 1 for Shift, 2 for Ctrl, 4 for Alt. The list receives the key that
  /// the host leaves in `KeyCode`, nothing for 0.
  void KeyDown(int& KeyCode, int Shift);
  /// A character was typed; the list receives what the host leaves in `KeyAscii`, nothing for 0.
  void KeyPress(int& KeyAscii);
  void KeyUp(int& KeyCode, int Shift);
  /// Mouse events: buttons 1 left, 2 right, 4 middle; the point is in pixels of the list.
  void MouseDown(int Button, int Shift, float X, float Y);
  void MouseMove(int Button, int Shift, float X, float Y);
  void MouseUp(int Button, int Shift, float X, float Y);
  /// The left button clicked the list, whether on a row or not.
  void DblClick();
  void Click();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ConnectList();
  void ApplyColors();
  void ShowCaption();
  [[nodiscard]] bool HandleKey(QKeyEvent& event);
  void HandleMouse(const QMouseEvent& event);

  GridListView* lvListView;
  std::vector<QPixmap> ImageList;
  ::Text caption_ = u"<caption>";
  bool sorted_ = false;
  uint32_t foreColor_ = 0x80000008;
  uint32_t backColor_ = 0x80000005;
  uint32_t savedForeColor_ = foreColor_;
  uint32_t savedBackColor_ = backColor_;
};
