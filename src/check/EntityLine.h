#pragma once

#include "check/Finding.h"
#include "check/Index.h"

/// One line of a data file, as every reader takes it.
class EntityLine {
 public:
  EntityLine(Index& index, const Index::Entity& entity)
      : index_(index), entity_(entity), source_(*index.data[entity.region]) {}

  [[nodiscard]] const Source& File() const { return source_; }

  [[nodiscard]] const Source::Line& Line() const { return source_.Lines()[entity_.line]; }

  [[nodiscard]] const Source::Section& Section() const {
    return source_.Sections()[entity_.section];
  }

  /// The line's own value, without quotes.
  [[nodiscard]] std::string_view Value() const {
    return ProfileLines::Unquoted(Line().entry.value);
  }

  /// What all readers of positions begin with.
  [[nodiscard]] EntityFile::Entity Read() const {
    return EntityFile::Read(source_.File(), Section().name, entity_.name);
  }

  /// Whether look-ups of this name in this section find this line.
  [[nodiscard]] bool IsFound() const;

  /// Whether keys and values of the section come from one place, and this line from there.
  [[nodiscard]] bool IsSound() const {
    return Section().IsSound() && Line().section == entity_.section;
  }

  /// Whether the search reads the line.
  [[nodiscard]] bool IsSearched() const;

  /// The category that shows the line; null if no command does.
  [[nodiscard]] const Index::Category* Category() const;

  /// What markers, list and search make of the line, in words.
  [[nodiscard]] Text Seen() const;

  /// A finding in these words of the line.
  Finding& Tell(Findings& findings, Rules::Id rule, std::string_view words, Text message) const;

 private:
  [[nodiscard]] Text SeenOnMap() const;
  [[nodiscard]] Text SeenBySearch() const;

  Index& index_;
  const Index::Entity& entity_;
  const Source& source_;
};
