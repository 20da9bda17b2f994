#pragma once

#include "platform/Text.h"

#include <QByteArray>

#include <map>
#include <optional>

/// The pictures of a page, each once, numbered in the order in which they were asked for.
class PagePictures {
 public:
  /// The number of the picture in the file; none if the viewer would show none.
  [[nodiscard]] std::optional<int> NumberOf(const Text& path);

  /// Their elements of the page, a line each.
  [[nodiscard]] const QByteArray& Elements() const { return elements_; }

 private:
  std::map<Text, std::optional<int>> numbers_;
  QByteArray elements_;
  int count_ = 0;
};
