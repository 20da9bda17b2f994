#pragma once

#include "check/Check.h"
#include "check/Edits.h"
#include "check/Fixes.h"
#include "mapdata/files/FileSystem.h"
#include "platform/Windows1252.h"
#include "support/TemporaryFolder.h"

#include <set>
#include <string>

/// A small world without a mistake, of which a test changes one file.
class CheckedWorld {
 public:
  CheckedWorld() {
    for (const char* region : {"arvenna", "skaldor", "sarrakh", "ostrakh", "ancestors"}) {
      Write(std::string(region) + ".data", "[NPC]\nBerta=1,2\n");
      Write(std::string(region) + ".jpg", "2048x1536");
    }
    Write("arvenna.data",
          "[NPC]\nAlrik=512,300\n[smiths]\nBaldrun=10,20\n*Wolf=7,8\nTor nach Sarrakh=9,9\n"
          "B\xE4r im B\xE4rental=11,12\n");
    Write("info.data", "[info]\nBerta=She waits.\n");
    Write("orvalis.html", "Help");
    Write("readme.html", "Read");
    Write("orvalis.ini", "[special]\nNoExtras=yes\nPlayMusic=no\n");
  }

  void Write(const std::string& file, const std::string& bytes) const {
    folder_.Write(file, bytes);
  }

  [[nodiscard]] std::string Read(const std::string& file) const { return folder_.Read(file); }

  [[nodiscard]] Check::Question Question() const {
    Check::Question question;
    question.folder = folder_.Folder();
    question.pictureOf = &SizeOf;
    return question;
  }

  [[nodiscard]] std::unique_ptr<Check::Answer> Answer() const { return Check::Run(Question()); }

  /// Writes what can be mended.
  void Mend(bool unsafe) const {
    const auto answer = Answer();
    for (const Fixes::Change& change : Fixes::Plan(Question(), *answer, unsafe))
      Write(NativePath::ToBytes(change.source->name), change.bytes);
  }

  [[nodiscard]] const TemporaryFolder& Folder() const { return folder_; }

 private:
  // The "picture" is the text of its size.
  static std::optional<PictureSize> SizeOf(TextView path) {
    const auto resolved = FileSystem::Resolve(path);
    std::ifstream file(resolved.value_or(""));
    PictureSize size;
    char by = 0;
    if (file >> size.width >> by >> size.height)
      return size;
    return std::nullopt;
  }

  TemporaryFolder folder_;
};
