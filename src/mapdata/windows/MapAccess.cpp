#include "mapdata/windows/MapAccess.h"

#include "mapdata/windows/MapArea.h"
#include "mapdata/windows/MapFocus.h"
#include "mapdata/windows/MapPointer.h"
#include "mapdata/windows/MapView.h"
#include "mapdata/windows/ctlLocation.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace {

QAccessibleInterface* InterfaceOf(QWidget* widget) {
  return QAccessible::queryAccessibleInterface(widget);
}

class ParentAccess : public QAccessibleWidget {
 public:
  using QAccessibleWidget::QAccessibleWidget;

  [[nodiscard]] int childCount() const override { return static_cast<int>(Children().size()); }

  [[nodiscard]] QAccessibleInterface* child(int index) const override {
    const auto children = Children();
    const auto at = static_cast<size_t>(index);
    return index >= 0 && at < children.size() ? InterfaceOf(children[at]) : nullptr;
  }

  [[nodiscard]] int indexOfChild(const QAccessibleInterface* wanted) const override {
    const auto children = Children();
    const auto found = std::find(children.begin(), children.end(), wanted->object());
    return found == children.end() ? -1 : static_cast<int>(found - children.begin());
  }

 private:
  [[nodiscard]] virtual std::vector<QWidget*> Children() const = 0;
};

// Everything on the map but the markers and their names: heading, list, button and the picture.
class ViewAccess : public ParentAccess {
 public:
  explicit ViewAccess(MapView* view) : ParentAccess(view, QAccessible::Client) {}

 private:
  [[nodiscard]] std::vector<QWidget*> Children() const override {
    std::vector<QWidget*> children;
    for (const char* name : {"lblMultiInfo", "cboItems", "btnInfo", "imgMap"}) {
      auto* const child =
          widget()->findChild<QWidget*>(QLatin1String(name), Qt::FindDirectChildrenOnly);
      if (child && !child->isHidden())
        children.push_back(child);
    }
    return children;
  }
};

// The picture, named by its heading, or by the window where there is none.
class ListAccess : public ParentAccess {
 public:
  explicit ListAccess(MapArea* area) : ParentAccess(area, QAccessible::List) {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    const QString text = ParentAccess::text(kind);
    return kind == QAccessible::Name && text.isEmpty() ? widget()->window()->windowTitle() : text;
  }

 private:
  [[nodiscard]] std::vector<QWidget*> Children() const override {
    const auto markers = static_cast<MapView*>(widget()->parentWidget())->Focus().Markers();
    return {markers.begin(), markers.end()};
  }
};

class MarkerAccess : public QAccessibleWidget {
 public:
  MarkerAccess(ctlLocation* marker, MapView* view)
      : QAccessibleWidget(marker, QAccessible::ListItem), marker_(marker), view_(view) {}

  [[nodiscard]] QAccessibleInterface* parent() const override {
    return InterfaceOf(view_->findChild<MapArea*>());
  }

  [[nodiscard]] QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Description ? view_->Pointer().SpokenDescription(*marker_)
                                            : QAccessibleWidget::text(kind);
  }

  [[nodiscard]] QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = true;
    state.selectable = true;
    state.selected = marker_->hasFocus();
    return state;
  }

  [[nodiscard]] QStringList actionNames() const override {
    return {pressAction(), setFocusAction()};
  }

  void doAction(const QString& action) override {
    // The window that opens is modal: the caller does not wait for its end.
    if (action == pressAction())
      QMetaObject::invokeMethod(marker_, &ctlLocation::DblClick, Qt::QueuedConnection);
    else
      QAccessibleWidget::doAction(action);
  }

 private:
  ctlLocation* marker_;
  MapView* view_;
};

QAccessibleInterface* Create(const QString&, QObject* object) {
  if (auto* const view = qobject_cast<MapView*>(object))
    return new ViewAccess(view);
  if (auto* const area = qobject_cast<MapArea*>(object))
    return new ListAccess(area);
  auto* const marker = qobject_cast<ctlLocation*>(object);
  auto* const view = marker ? qobject_cast<MapView*>(marker->parentWidget()) : nullptr;
  return view ? new MarkerAccess(marker, view) : nullptr;
}

}  // namespace

namespace MapAccess {

void Install() {
  QAccessible::installFactory(&Create);
}

}  // namespace MapAccess
