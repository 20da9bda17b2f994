#pragma once

#include "mapdata/files/IniOps.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <vector>

/// The translation of entity names as its rules state it: every question read from the file, every
/// search a scan in file order. Slow, and what the program's own has to agree with.
class ScannedNames {
 public:
  explicit ScannedNames(Text languageFile) : file_(std::move(languageFile)) {}

  void CacheTranslationTable(IniOps::Snapshot& files) {
    keys_ = files.IniReadFile(file_, u"entities");
    translations_.clear();
    for (const Text& key : keys_)
      translations_.push_back(files.IniRead(file_, u"entities", key, u""));
  }

  [[nodiscard]] Text LocalizeEntityName(IniOps::Snapshot& files, TextView name) {
    Text shown(Texts::Trim(name));
    for (size_t i = 0; i < Words.size(); ++i) {
      words_[i] = files.IniRead(file_, u"entities", Words[i], Words[i]);
      shown = Replaced(shown, Words[i], words_[i]);
    }
    for (const Text& key : keys_)
      if (shown.starts_with(key))
        return UnlessBlank(Replaced(shown, key, files.IniRead(file_, u"entities", key, u"")),
                           shown);
    return shown;
  }

  [[nodiscard]] Text UnlocalizeEntityName(TextView text) {
    Text name(Texts::Trim(text));
    for (size_t i = 0; i < Words.size(); ++i)
      name = Replaced(name, words_[i], Words[i]);
    for (size_t i = 0; i < keys_.size(); ++i) {
      if (Texts::Trim(translations_[i]).empty())
        translations_[i].assign(1, u';');
      if (name.starts_with(translations_[i]))
        return UnlessBlank(Replaced(name, translations_[i], keys_[i]), name);
    }
    return name;
  }

 private:
  static constexpr std::array<TextView, 5> Words = {u"Arvenna", u"Skaldor", u"Sarrakh", u"Ostrakh",
                                                    u"Tempel von"};

  // Nothing is replaced that would make a text longer than four values.
  [[nodiscard]] static Text Replaced(const Text& text, TextView part, TextView by) {
    Text replaced = Texts::ReplaceAll(text, part, by);
    const bool fits = replaced.size() <= std::max(text.size(), 4 * ProfileFile::LongestValue);
    return fits ? replaced : text;
  }

  [[nodiscard]] static Text UnlessBlank(const Text& replaced, const Text& otherwise) {
    return Texts::Trim(replaced).empty() ? otherwise : replaced;
  }

  Text file_;
  std::vector<Text> keys_;
  std::vector<Text> translations_;
  std::array<Text, 5> words_;
};
