#pragma once

#include <QDialog>

#include <string>

/// A page of HTML for where no browser can be started: modal, titled by the page. Links lead to
/// places of the page only, pictures come from its folder only.
class PageWindow : public QDialog {
  Q_OBJECT

 public:
  /// `path` is that of the page, in the system's bytes; one that can't be read is an empty page.
  PageWindow(QWidget* parent, const std::string& path);
};
