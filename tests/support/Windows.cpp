#include "support/Windows.h"

#include <QApplication>
#include <QTimer>

#include <gtest/gtest.h>

std::vector<Text> RowsOf(const GridListbox& list) {
  std::vector<Text> rows;
  for (int row = 1; row <= list.ListCount(); ++row)
    rows.push_back(list.List(row));
  return rows;
}

void ShowActive(QWidget& window) {
  window.show();
  window.activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
}

std::vector<std::string> Opened(const std::function<void()>& action,
                                const std::function<void(QWidget&)>& answer) {
  std::vector<std::string> names;
  const QWidget* seen = nullptr;
  QTimer watch;
  watch.callOnTimeout([&] {
    QWidget* window = QApplication::activeModalWidget();
    if (window == seen)
      return;
    seen = window;
    if (!window)
      return;
    const QString text = window->property("text").toString();
    if (text.isEmpty()) {
      names.push_back(window->objectName().toStdString());
      answer(*window);
    } else {
      names.push_back((window->windowTitle() + u'|' + text).toStdString());
      window->close();
    }
  });
  watch.start(1);
  action();
  return names;
}

void Paint(const TemporaryFolder& folder, const std::string& name, const QColor& color,
           const QSize& size, const char* format) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(color);
  ASSERT_TRUE(picture.save(QString::fromStdString(folder.Native(name)), format));
}
