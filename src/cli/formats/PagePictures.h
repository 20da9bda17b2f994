#pragma once

#include "platform/Text.h"

#include <QByteArrayList>

#include <map>
#include <optional>

/// The pictures of a page, each once, numbered in the order in which they were asked for.
class PagePictures {
 public:
  /// The number of the picture in the file; none if the viewer would show none.
  [[nodiscard]] std::optional<int> NumberOf(const Text& path);

  /// Their elements of the page, a line each, in parts: together they are most of the page.
  [[nodiscard]] const QByteArrayList& Elements() const { return elements_; }

 private:
  std::map<Text, std::optional<int>> numbers_;
  QByteArrayList elements_;
  int count_ = 0;
};
