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

/// A list of texts in one column with a header; a row may have a picture of 16 x 16 pixels and a
/// hidden tag. Rows are counted from 1; a number of no row is ignored. Colours are red + 256 x
/// green + 65536 x blue, or one of the system's, such as 0x80000005 (window background), 0x80000008
/// (window text) and 0x8000000F (button face).
class GridListbox : public QWidget {
  Q_OBJECT
  Q_PROPERTY(QFont Font READ Font WRITE SetFont RESET ResetFont)
  Q_PROPERTY(uint32_t ForeColor READ ForeColor WRITE SetForeColor RESET ResetForeColor)
  Q_PROPERTY(uint32_t BackColor READ BackColor WRITE SetBackColor RESET ResetBackColor)
  Q_PROPERTY(int ListCount READ ListCount STORED false)
  Q_PROPERTY(int ListIndex READ ListIndex STORED false)
  Q_PROPERTY(bool Sorted READ Sorted WRITE SetSorted RESET ResetSorted)
  Q_PROPERTY(bool Enabled READ Enabled WRITE SetEnabled RESET ResetEnabled)
  Q_PROPERTY(bool NoHeader READ NoHeader WRITE SetNoHeader RESET ResetNoHeader)
  Q_PROPERTY(QString Caption READ ShownCaption WRITE ShowCaption RESET ResetCaption)

 public:
  /// The number of the error that a property can't be set while the program runs.
  static constexpr int SetNotSupportedAtRuntime = 382;
  static constexpr uint32_t SystemWindow = 0x80000005;
  static constexpr uint32_t SystemWindowText = 0x80000008;
  static constexpr uint32_t SystemButtonFace = 0x8000000F;
  static constexpr const char16_t* DefaultCaption = u"<caption>";

  /// A row as the host sees it.
  struct Row {
    int Index = 0;
    ::Text Text;
    ::Text Tag;
    /// Position of the row's picture among all that were ever added, from 1; 0 without one.
    int SmallIcon = 0;
  };

  /// A picture that was added to a row; its key is "Key", a blank and its position.
  struct Picture {
    ::Text Key;
    QPixmap Pixmap;
  };

  explicit GridListbox(QWidget* parent = nullptr);

  /// The picture as the list shows it on a screen of this many device pixels a pixel.
  [[nodiscard]] static QPixmap Sized(const QPixmap& picture, double pixelRatio);

  /// Adds a row: at the end, or at its place where rows are sorted. A picture of any size is made
  /// 16 x 16 pixels, as fine as the screen shows them.
  void AddItem(TextView sText, const QPixmap& spPicture = {}, TextView Tag = {});

  /// Removes the row.
  void RemoveItem(int Index);

  /// Removes all rows; later pictures still count on.
  void Clear();

  /// Paints the list again.
  void Refresh();

  /// All pictures that were ever added.
  [[nodiscard]] std::span<const Picture> Pictures() const { return ImageList; }

  /// The picture at this position of a list of them, from 1; a null one if there is none.
  [[nodiscard]] static QPixmap GetImage(std::span<const Picture> ilPictures, int iIndex);

  /// There is nothing to tell about the control.
  void About() const {}

  /// The row; none if there is no such row.
  [[nodiscard]] std::optional<Row> Rows(int Index) const;

  [[nodiscard]] int ListCount() const;

  /// Neither can be set while the program runs: the answer is the number of that error.
  [[nodiscard]] static int SetListCount(int) { return SetNotSupportedAtRuntime; }

  [[nodiscard]] static int SetListIndex(int) { return SetNotSupportedAtRuntime; }

  /// The selected row's number; 0 if none is selected.
  [[nodiscard]] int ListIndex() const;

  /// Makes the row the selected one.
  void Select(int Index);

  /// The row's text, "" if there is no such row; row 0 is row 1.
  [[nodiscard]] ::Text List(int Index) const;

  /// The selected row's text; "" if none is selected.
  [[nodiscard]] ::Text Text() const;

  /// Selects the first row that is this text or begins with it as a whole word, ignoring letter
  /// case; the selection stays if there is none.
  void SetText(TextView text);

  [[nodiscard]] bool Sorted() const { return sorted_; }

  /// Keeps rows in the order of the German alphabet, ignoring letter case.
  void SetSorted(bool sorted);

  void ResetSorted() { SetSorted(false); }

  [[nodiscard]] bool Enabled() const;

  /// Greys the list, or gives it back the colours that it had when it was last shown.
  void SetEnabled(bool enabled);

  void ResetEnabled() { SetEnabled(true); }

  [[nodiscard]] bool NoHeader() const;
  void SetNoHeader(bool hidden);

  void ResetNoHeader() { SetNoHeader(true); }

  [[nodiscard]] const ::Text& Caption() const { return caption_; }

  /// The header's text, and the list's name for a screen reader while the header is shown.
  void SetCaption(TextView caption);

  void ResetCaption() { SetCaption(DefaultCaption); }

  [[nodiscard]] uint32_t ForeColor() const { return foreColor_; }

  void SetForeColor(uint32_t color);

  void ResetForeColor() { SetForeColor(SystemWindowText); }

  [[nodiscard]] uint32_t BackColor() const { return backColor_; }

  void SetBackColor(uint32_t color);

  void ResetBackColor() { SetBackColor(SystemWindow); }

  /// The font of the rows and the header.
  [[nodiscard]] QFont Font() const;

  void SetFont(const QFont& font);

  /// The font of what stands around the list.
  void ResetFont() { SetFont(QFont()); }

 Q_SIGNALS:
  /// A row was pressed with any button, or reached by dragging or with the keyboard.
  void RowClick(const GridListbox::Row& Item);
  /// A key with its classic code, and 1 for Shift, 2 for Ctrl, 4 for Alt. The list receives the key
  /// that the host leaves in `KeyCode`, nothing for 0.
  void KeyDown(int16_t& KeyCode, int16_t& Shift);
  /// A character was typed; the list receives what the host leaves in `KeyAscii`, nothing for 0.
  void KeyPress(int16_t& KeyAscii);
  void KeyUp(int16_t& KeyCode, int16_t& Shift);
  /// Mouse events: buttons 1 left, 2 right, 4 middle; the point is in twips of the list.
  void MouseDown(int16_t& Button, int16_t& Shift, float& X, float& Y);
  void MouseMove(int16_t& Button, int16_t& Shift, float& X, float& Y);
  void MouseUp(int16_t& Button, int16_t& Shift, float& X, float& Y);
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
  [[nodiscard]] QString ShownCaption() const;
  void ShowCaption(const QString& caption);
  void NameList();
  [[nodiscard]] bool HandleKey(QKeyEvent& event);
  [[nodiscard]] bool HandleKeyDown(QKeyEvent& event);
  void HandleMouse(const QMouseEvent& event);

  GridListView* lvListView;
  std::vector<Picture> ImageList;
  ::Text caption_ = DefaultCaption;
  bool sorted_ = false;
  bool afterDoubleClick_ = false;
  uint32_t foreColor_ = SystemWindowText;
  uint32_t backColor_ = SystemWindow;
  uint32_t savedForeColor_ = foreColor_;
  uint32_t savedBackColor_ = backColor_;
};
