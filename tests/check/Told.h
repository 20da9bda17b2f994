#pragma once

#include "check/CheckedWorld.h"

#include <set>
#include <string>

/// A language's file, in which tests put what they are about.
inline const std::string LanguageFile = "LANG/L/L.lng";

/// The text of that file: these lines behind what every language says of itself.
inline std::string Lng(const std::string& lines) {
  return "[general]\nlanguage=L\nversion=1\nauthor=A\n" + lines;
}

/// Whether worlds as small as these are told the rule, whatever is wrong with them.
inline bool IsNoise(const Text& rule) {
  static const std::set<Text> noise = {u"S08", u"I07", u"T05", u"T06",
                                       u"T11", u"T20", u"T21", u"T22"};
  return noise.contains(rule);
}

/// What is told of a world.
struct Told {
  std::set<std::string> rules;
  /// A line each, with the file before it.
  std::string results;
};

/// What is told beside noise, of which only the rule in question counts.
inline Told Tell(const CheckedWorld& world, const std::string& about = {}) {
  Told told;
  const auto answer = world.Answer();
  for (const Finding& finding : answer->findings) {
    const Text rule(Rules::Of(finding.rule).number);
    if (IsNoise(rule) && NativePath::ToBytes(rule) != about)
      continue;
    told.rules.insert(NativePath::ToBytes(rule));
    told.results +=
        NativePath::ToBytes(Texts::Join(finding.file, u": ", finding.consequence, u"\n"));
  }
  return told;
}
