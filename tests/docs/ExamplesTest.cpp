// Runs the examples of the manuals: a block with "file" is a file of the program folder, a block
// with "shows" is what the program makes of the chapter's files so far.
#include "app/MenuTable.h"
#include "app/ProgramTexts.h"
#include "docs/Document.h"
#include "i18n/InterfaceTexts.h"
#include "i18n/LOCAL.h"
#include "mapdata/files/FileSystem.h"
#include "mapdata/world/EntityFile.h"
#include "mapdata/world/InfoFile.h"
#include "mapdata/world/Portraits.h"
#include "mapdata/world/Settings.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"
#include "support/TemporaryFolder.h"

#include <functional>
#include <memory>
#include <optional>

#include <gtest/gtest.h>

namespace {

using Lines = std::vector<std::string>;
using Attributes = std::map<std::string, std::string>;

constexpr auto* Wide = &NativePath::FromBytes;

std::string Encoded(TextView text) {
  return Windows1252::Encode(text).value();
}

Lines NarrowAll(const std::vector<Text>& texts) {
  Lines lines;
  for (const Text& text : texts)
    lines.push_back(Narrow(text));
  return lines;
}

std::string Shown(const EntityFile::Position& position) {
  return std::to_string(position.x) + "," + std::to_string(position.y);
}

// The program in the folder of one chapter, asked as its windows ask it.
class Program {
 public:
  Program(const TemporaryFolder& folder, Attributes example)
      : folder_(folder), example_(std::move(example)), world_(folder.Folder()) {
    const Text named = Wide(example_["language"]);
    language_.Start(files_, named.empty() ? world_.ChosenLanguage() : named);
    language_.CacheTranslationTable(files_);
  }

  Lines Markers() {
    Lines lines;
    for (const auto& marker : EntityFile::ReadMarkers(Data(), Section(), files_, language_, 81))
      lines.push_back(marker.disabled ? Narrow(marker.key) + " -> nothing"
                                      : Narrow(marker.name) + " -> " + Shown(marker.position) +
                                            (marker.highlighted ? " green" : ""));
    return lines;
  }

  Lines List() { return NarrowAll(EntityFile::ReadNames(Data(), Section(), files_, language_)); }

  Lines Sections() { return NarrowAll(files_.IniSectionNames(File())); }

  Lines Caption() { return {Narrow(ProgramTexts::Caption(world_.edition))}; }

  Lines Missing() {
    const auto missing = world_.MissingFile();
    return {missing ? Narrow(missing->substr(folder_.Folder().size() + 1)) : "nothing"};
  }

  std::string Value(const Text& key) {
    return Narrow(files_.IniRead(File(), Section(), key, u"(default)"));
  }

  std::string Picked(const Text& name) {
    const auto position = EntityFile::ReadPicked(Data(), Section(), language_.Key(name));
    return position ? Shown(*position) : "nothing";
  }

  std::string Found(const Text& key) {
    const std::string bytes = Encoded(key);
    if (EntityFile::IsDisabled(bytes) || EntityFile::IsHiddenFromSearch(bytes))
      return "not found";
    const auto entity = EntityFile::Read(Data(), Encoded(Section()), bytes);
    const auto position = EntityFile::FoundPosition(entity);
    return position ? Shown(*position) : "invalid link to " + std::string(*entity.link);
  }

  std::string NameOf(const Text& key) {
    return Narrow(language_.Shown(language_.NameFile(files_), key));
  }

  std::string KeyOf(const Text& shown) { return Narrow(language_.Key(shown)); }

  std::string LanguageOf(const Text& folder) {
    language_.Start(files_, folder);
    return Narrow(language_.CurrentLanguage());
  }

  std::string MenuCaptionOf(const Text& key) {
    const auto captions = MenuTable::Captions();
    const InterfaceTexts texts = Translate_UI(files_, language_, captions);
    for (size_t i = 0; i < captions.size(); ++i)
      if (captions[i].key == key)
        return Narrow(texts.menus[i]);
    return "no such menu";
  }

  std::string DescriptionOf(const Text& name) {
    const auto key = [&](TextView shown) { return language_.Key(Texts::Trim(shown)); };
    const Text text = InfoFile::ReadRedirected(Descriptions(), key(name), key);
    return text.empty() ? "nothing" : Narrow(Texts::ReplaceAll(text, u"\\n", u" / "));
  }

  std::string ToolTipOf(const Text& name) {
    const Text key = Texts::Lower(language_.Key(name));
    return Narrow(InfoFile::TooltipOf(InfoFile::ReadEntry(Descriptions(), key)));
  }

  std::string PortraitOf(const Text& key) {
    const ProfileFile& list = files_.File(Portraits::ListPath(world_.paths.picturesFolder));
    const Text file = Portraits::PicturePath(list, world_.paths.picturesFolder, key);
    const auto native = FileSystem::Resolve(file);
    return native && FileSystem::FileExists(file) ? native->substr(folder_.Native("").size())
                                                  : "placeholder";
  }

 private:
  const ProfileFile& Data() { return files_.File(File()); }

  const ProfileFile& Descriptions() { return files_.File(language_.InfoPath()); }

  [[nodiscard]] Text File() const { return folder_.Path(Wide(example_.at("of"))); }

  [[nodiscard]] Text Section() const { return Wide(example_.at("section")); }

  const TemporaryFolder& folder_;
  Attributes example_;
  World world_;
  IniOps::Snapshot files_{world_.cache};
  LOCAL::Language& language_ = world_.language;
};

// Examples that show everything there is, line by line.
const std::map<std::string, Lines (Program::*)()> Listings = {
    {"markers", &Program::Markers},   {"list", &Program::List},
    {"sections", &Program::Sections}, {"caption", &Program::Caption},
    {"missing", &Program::Missing},
};

// Examples of lines "question -> answer".
const std::map<std::string, std::string (Program::*)(const Text&)> Questions = {
    {"value", &Program::Value},         {"picked", &Program::Picked},
    {"found", &Program::Found},         {"names", &Program::NameOf},
    {"keys", &Program::KeyOf},          {"language", &Program::LanguageOf},
    {"menus", &Program::MenuCaptionOf}, {"description", &Program::DescriptionOf},
    {"tooltip", &Program::ToolTipOf},   {"portrait", &Program::PortraitOf},
};

void Write(const TemporaryFolder& folder, const Document::Block& block) {
  std::string utf8;
  for (const std::string& line : block.body)
    utf8 += line + "\r\n";
  const bool asUtf8 = block.attributes.contains("encoding");
  folder.Write(block.attributes.at("file"), asUtf8 ? utf8 : Encoded(Wide(utf8)));
}

void Check(const TemporaryFolder& folder, const Document::Block& block) {
  const std::string& shows = block.attributes.at("shows");
  Program program(folder, block.attributes);
  if (const auto listing = Listings.find(shows); listing != Listings.end()) {
    EXPECT_EQ(block.body, (program.*listing->second)());
    return;
  }
  const auto question = Questions.find(shows);
  ASSERT_NE(question, Questions.end()) << shows;
  for (const std::string& line : block.body) {
    const size_t arrow = line.find(" -> ");
    ASSERT_NE(arrow, std::string::npos) << line;
    EXPECT_EQ(line.substr(arrow + 4), (program.*question->second)(Wide(line.substr(0, arrow))))
        << line;
  }
}

class Examples : public testing::TestWithParam<const char*> {};

}  // namespace

TEST_P(Examples, DoWhatThePageSays) {
  const Document document = Document::Read(GetParam());
  std::unique_ptr<TemporaryFolder> folder;
  size_t chapter = 0;
  size_t shown = 0;
  for (const Document::Block& block : document.blocks) {
    SCOPED_TRACE(std::string(GetParam()) + ":" + std::to_string(block.line));
    if (!folder || block.chapter != chapter)
      folder = std::make_unique<TemporaryFolder>();
    chapter = block.chapter;
    if (block.attributes.contains("file")) {
      Write(*folder, block);
    } else {
      ASSERT_TRUE(block.attributes.contains("shows")) << "an example that nothing checks";
      Check(*folder, block);
      ++shown;
    }
  }
  EXPECT_GT(shown, 5U);
}

INSTANTIATE_TEST_SUITE_P(Manuals, Examples, testing::Values("map-authors.md", "translators.md"));
