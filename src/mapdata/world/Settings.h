#pragma once

#include "mapdata/files/ProfileFile.h"
#include "platform/Text.h"

#include <array>

/// The settings file `orvalis.ini` in the program folder: every key with its default. A missing
/// file or key, or an empty value, gives the default.
namespace Settings {

/// What a setting's value is.
enum class Kind { YesNo, Folder, Address, Name };

/// Where one setting stands.
struct Entry {
  TextView section;
  TextView key;
  Kind kind;
  TextView defaultValue;
};

inline constexpr Entry Language = {u"general", u"language", Kind::Name, u""};
inline constexpr Entry ExtrasFolder = {u"folders", u"extras", Kind::Folder, u"EXTRAS"};
inline constexpr Entry PicturesFolder = {u"folders", u"pics", Kind::Folder, u"PICS"};
inline constexpr Entry LanguageRoot = {u"folders", u"lang", Kind::Folder, u"LANG"};
inline constexpr Entry NoExtras = {u"special", u"NoExtras", Kind::YesNo, u"no"};
inline constexpr Entry NoLang = {u"special", u"NoLang", Kind::YesNo, u"no"};
inline constexpr Entry LocalizedString = {u"special", u"LocalizedString", Kind::Name, u""};
inline constexpr Entry PlayMusic = {u"special", u"PlayMusic", Kind::YesNo, u"yes"};
/// Empty addresses stand for the built-in ones.
inline constexpr Entry Download = {u"urls", u"Download", Kind::Address, u""};
inline constexpr Entry TranslatorKit = {u"urls", u"tranlatorsdk", Kind::Address, u""};
inline constexpr Entry GamePatch = {u"urls", u"duskholdpatch", Kind::Address, u""};

/// Every setting there is.
inline constexpr std::array All = {Language, ExtrasFolder,  PicturesFolder,  LanguageRoot,
                                   NoExtras, NoLang,        LocalizedString, PlayMusic,
                                   Download, TranslatorKit, GamePatch};

/// The setting's value in that settings file.
[[nodiscard]] Text Read(const ProfileFile& settings, const Entry& entry);

/// Whether the setting is "yes" in any letter case, with or without spaces around it.
[[nodiscard]] bool IsYes(const ProfileFile& settings, const Entry& entry);

}  // namespace Settings
