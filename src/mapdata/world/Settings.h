#pragma once

#include "mapdata/files/ProfileFile.h"
#include "platform/Text.h"

/// The settings file `orvalis.ini` in the program folder: every key with its default. A missing
/// file or key, or an empty value, gives the default.
namespace Settings {

/// Where one setting stands.
struct Entry {
  TextView section;
  TextView key;
  TextView defaultValue;
};

inline constexpr Entry ExtrasFolder = {u"folders", u"extras", u"EXTRAS"};
inline constexpr Entry PicturesFolder = {u"folders", u"pics", u"PICS"};
inline constexpr Entry LanguageRoot = {u"folders", u"lang", u"LANG"};
inline constexpr Entry NoExtras = {u"special", u"NoExtras", u"no"};
inline constexpr Entry NoLang = {u"special", u"NoLang", u"no"};
inline constexpr Entry LocalizedString = {u"special", u"LocalizedString", u""};
inline constexpr Entry Language = {u"general", u"language", u""};
inline constexpr Entry PlayMusic = {u"special", u"PlayMusic", u"yes"};
/// Addresses of the web; empty for the built-in ones.
inline constexpr Entry Download = {u"urls", u"Download", u""};
inline constexpr Entry TranslatorKit = {u"urls", u"tranlatorsdk", u""};
inline constexpr Entry GamePatch = {u"urls", u"duskholdpatch", u""};

/// The setting's value in that settings file.
[[nodiscard]] Text Read(const ProfileFile& settings, const Entry& entry);

/// Whether the setting is "yes", whatever its letter case and the spaces around it.
[[nodiscard]] bool IsYes(const ProfileFile& settings, const Entry& entry);

}  // namespace Settings
