#pragma once

#include "i18n/PrefixIndex.h"
#include "i18n/TextRow.h"
#include "mapdata/files/IniOps.h"
#include "mapdata/files/ProfileFile.h"
#include "mapdata/world/EntityNames.h"
#include "mapdata/world/ProgramPaths.h"
#include "platform/Text.h"

#include <array>
#include <memory>
#include <optional>
#include <vector>

/// The interface language: built-in German, or a folder under the language root with a language
/// file of texts.
namespace LOCAL {

/// The name of the built-in language, compared exactly.
inline constexpr TextView German = u"Deutsch";

/// Stands for the path of a language file while German is the user's choice.
inline constexpr TextView BuiltIn = u"*";

/// A file of a language folder that bears the folder's name; `suffix` as ".lng".
[[nodiscard]] Text FileOfLanguage(TextView root, TextView folder, TextView suffix);

/// The one language state of the program: `CurrentLanguage` chooses texts and the folder of the
/// descriptions, `LanguageFolder` documents and flag, `LanguageFile` the look-ups.
class Language : public EntityNames {
 public:
  /// German, until another language is chosen.
  explicit Language(const ProgramPaths& paths);

  /// The declared name of the active language.
  [[nodiscard]] const Text& CurrentLanguage() const { return currentLanguage_; }

  /// The chosen language's folder name.
  [[nodiscard]] const Text& LanguageFolder() const { return languageFolder_; }

  /// The folder of all languages, with a separator at its end.
  [[nodiscard]] const Text& LanguageRoot() const { return languageRoot_; }

  /// The active language's file; "*" after German was chosen.
  [[nodiscard]] const Text& LanguageFile() const { return languageFile_; }

  [[nodiscard]] bool IsGerman() const { return currentLanguage_ == German; }

  /// The text that a window shows: the German one while German is active, else `Translated`.
  [[nodiscard]] Text Lookup(IniOps::Snapshot& files, const TextRow& row) const;

  /// The entry of the language file, the English default where that is missing or empty.
  [[nodiscard]] Text Translated(IniOps::Snapshot& files, const TextRow& row) const;

  /// Chooses the language of a folder under the language root; German if that holds no language
  /// file which declares its name.
  void Start(IniOps::Snapshot& files, const Text& folder);

  /// Chooses the language of a language file, or German with `BuiltIn`. The name it declares may
  /// be empty until the table of entity names is built.
  void Choose(IniOps::Snapshot& files, const Text& file);

  /// Whether start-up asks for the language: German is active and the system's language, a
  /// three-letter abbreviation, is another or unknown.
  [[nodiscard]] bool IsToBeOffered(TextView systemLanguage) const;

  /// Builds the table of entity names for the current language; German leaves it as it was.
  void CacheTranslationTable(IniOps::Snapshot& files);

  /// The name shown for an entity key in a language that is not German, by its language file.
  [[nodiscard]] Text LocalizeEntityName(const std::shared_ptr<const ProfileFile>& nameFile,
                                        TextView name) const;

  /// The entity key behind a name that `LocalizeEntityName` gave.
  [[nodiscard]] Text UnlocalizeEntityName(TextView text) const;

  [[nodiscard]] std::shared_ptr<const ProfileFile> NameFile(IniOps::Snapshot& files) const override;
  [[nodiscard]] Text Shown(const std::shared_ptr<const ProfileFile>& nameFile,
                           TextView key) const override;
  [[nodiscard]] Text Key(TextView shown) const override;
  [[nodiscard]] Text InfoPath() const override;

 private:
  struct RegionWord {
    TextView word;
    // Empty while the word stays as it is.
    Text translation;
  };

  void Refresh(const std::shared_ptr<const ProfileFile>& nameFile) const;
  const Text& ValueOf(size_t key) const;
  void IndexTranslations() const;

  Text germanInfoPath_;
  Text currentLanguage_{German};
  Text languageFolder_{German};
  Text languageRoot_;
  Text languageFile_{BuiltIn};
  PrefixIndex EntityKeys_;
  mutable std::array<RegionWord, Regions.size()> RegionWords_;
  // The language file that the region words and the values so far were read from.
  mutable std::shared_ptr<const ProfileFile> file_;
  mutable std::vector<std::optional<Text>> values_;
  // The file that the table was built from, until the way back is first asked: most events never
  // do.
  mutable std::shared_ptr<const ProfileFile> tableFile_;
  mutable PrefixIndex EntityTranslations_;
};

}  // namespace LOCAL
