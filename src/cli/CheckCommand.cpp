#include "check/Check.h"
#include "check/Fixes.h"
#include "check/Words.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Diff.h"
#include "cli/Pictures.h"
#include "cli/Watch.h"
#include "cli/WorldFolder.h"
#include "cli/reports/Reports.h"
#include "mapdata/files/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>

namespace {

constexpr int Clean = 0;
constexpr int Faults = 1;
// Fixes bring to light what other mistakes had hidden.
constexpr int MostRounds = 5;

struct CheckOptions {
  std::vector<std::string> files;
  std::string world;
  std::string language = "all";
  std::string format = "text";
  std::vector<std::string> select;
  std::vector<std::string> ignore;
  std::string minimum = "error";
  std::string explain;
  bool strict = false;
  bool fix = false;
  bool unsafeFixes = false;
  bool diff = false;
  bool watch = false;
  bool listRules = false;
  bool verbose = false;
};

bool AreRules(const std::vector<Text>& numbers) {
  return std::ranges::all_of(numbers, [](const Text& number) {
    const bool known = std::ranges::any_of(Rules::All(), [&number](const Rules::Rule& rule) {
      return Check::IsOneOf({number}, rule);
    });
    if (!known)
      Console::Complain("there is no rule \"" + NativePath::ToBytes(number) + "\"");
    return known;
  });
}

// Only those of the files that were asked for.
void Narrow(Check::Answer& answer, const std::vector<Text>& names) {
  if (names.empty() || std::ranges::find(names, Text()) != names.end())
    return;
  std::erase_if(answer.findings, [&names](const Finding& finding) {
    return std::ranges::none_of(names, [&finding](const Text& name) {
      return finding.file == name || finding.file.starts_with(Texts::Join(name, u"/"));
    });
  });
}

class CheckRun {
 public:
  CheckRun(const CheckOptions& options, const Text& world) : options_(options) {
    question_.folder = world;
    question_.pictureOf = &Pictures::SizeOf;
    question_.select = Console::FromArguments(options.select);
    question_.ignore = Console::FromArguments(options.ignore);
    const Text language = NativePath::FromBytes(options.language);
    question_.wantsLanguage = [language](TextView folder) {
      return language == u"all" || (language != u"none" && folder == language);
    };
  }

  int Run() {
    if (!AreRules(question_.select) || !AreRules(question_.ignore) || !ReadNames())
      return Commands::WrongUse;
    if (options_.fix && !Fix())
      return Commands::WrongUse;
    return Report();
  }

 private:
  bool ReadNames() {
    for (const std::string& file : options_.files) {
      const auto name = WorldFolder::NameIn(question_.folder, file);
      if (!name) {
        Console::Complain(file + " is not in the world " + NativePath::ToBytes(question_.folder));
        return false;
      }
      names_.push_back(*name);
    }
    return true;
  }

  std::unique_ptr<Check::Answer> Ask() {
    auto answer = Check::Run(question_);
    Narrow(*answer, names_);
    return answer;
  }

  bool Fix() {
    for (int round = 0; round < MostRounds; ++round) {
      const auto answer = Ask();
      const auto changes = Fixes::Plan(question_, *answer, options_.unsafeFixes);
      if (changes.empty())
        return true;
      for (const Fixes::Change& change : changes)
        if (!Write(change))
          return false;
    }
    return true;
  }

  static bool Write(const Fixes::Change& change) {
    const auto path = FileSystem::Resolve(change.source->path);
    const auto now = path ? PosixFile::Read(*path, IniOps::LargestFile) : std::nullopt;
    if (now && now->bytes == change.source->Bytes() && PosixFile::Replace(*path, change.bytes))
      return true;
    Console::Complain(NativePath::ToBytes(change.source->path) + " could not be written");
    return false;
  }

  int Report() {
    const auto answer = Ask();
    if (!HasLanguage(*answer)) {
      Console::Complain("there is no language \"" + options_.language + "\" in this world");
      return Commands::WrongUse;
    }
    const Console::Style style = Console::OfOutput();
    std::string report;
    if (options_.diff)
      for (const Fixes::Change& change : Fixes::Plan(question_, *answer, options_.unsafeFixes))
        report += Diff::Of(change, style);
    else if (options_.format == "json")
      report = Reports::AsJson(*answer);
    else if (options_.format == "sarif")
      report = Reports::AsSarif(*answer);
    else if (options_.format == "short")
      report = Reports::AsShort(*answer, style);
    else
      report = Reports::AsText(*answer, style, options_.verbose);
    if (!Console::Write(report)) {
      Console::Complain("the report could not be written");
      return Commands::WrongUse;
    }
    return StatusOf(*answer);
  }

  [[nodiscard]] bool HasLanguage(const Check::Answer& answer) const {
    const Text language = NativePath::FromBytes(options_.language);
    return !answer.index.languages.empty() || language == u"all" || language == u"none" ||
           language == LOCAL::German;
  }

  [[nodiscard]] int StatusOf(const Check::Answer& answer) const {
    const auto least = options_.strict
                           ? Rules::Severity::Note
                           : Rules::SeverityOf(NativePath::FromBytes(options_.minimum)).value();
    return std::ranges::any_of(
               answer.findings,
               [least](const Finding& finding) { return finding.severity <= least; })
               ? Faults
               : Clean;
  }

  const CheckOptions& options_;
  Check::Question question_;
  std::vector<Text> names_;
};

std::string Row(const Rules::Rule& rule, const Console::Style& style) {
  const auto print = [&style](TextView text) { return Console::Printable(text, style); };
  std::string severity = print(Rules::NameOf(rule.severity));
  severity.resize(8, ' ');
  return print(rule.number) + "  " + severity + print(rule.name) + ": " + print(rule.example) +
         "\n";
}

int ListRules() {
  const Console::Style style = Console::OfOutput();
  std::string list;
  for (const Rules::Rule& rule : Rules::All())
    list += Row(rule, style);
  return Console::Write(list) ? Clean : Commands::WrongUse;
}

std::string FixingOf(const Rules::Rule& rule) {
  switch (rule.fixing) {
    case Rules::Fixing::Safe:
      return "--fix does it, where it changes nothing else";
    case Rules::Fixing::Unsafe:
      return "--fix --unsafe-fixes does it, where a better text can be told";
    case Rules::Fixing::Proved:
      return "--fix does it, where it can be shown that nothing else changes";
    case Rules::Fixing::None:
      break;
  }
  return "only you can";
}

int Explain(const std::string& number) {
  const Rules::Rule* rule = Rules::Find(NativePath::FromBytes(number));
  if (!rule) {
    Console::Complain("there is no rule \"" + number + "\"");
    return Commands::WrongUse;
  }
  const Console::Style style = Console::OfOutput();
  const auto print = [&style](TextView text) { return Console::Printable(text, style); };
  const std::string guess =
      rule->confidence == Rules::Confidence::Guess ? " (a guess: look at it)" : "";
  const std::string words =
      print(rule->number) + " " + print(rule->name) + ", " + print(Rules::NameOf(rule->severity)) +
      guess + "\n  example: " + print(rule->example) + "\n  result:  " + print(rule->consequence) +
      "\n  advice:  " + print(rule->advice) + "\n  mending: " + FixingOf(*rule) + "\n";
  return Console::Write(words) ? Clean : Commands::WrongUse;
}

int Run(const CheckOptions& options) {
  if (options.listRules)
    return ListRules();
  if (!options.explain.empty())
    return Explain(options.explain);
  const auto world = WorldFolder::Find(options.world, options.files);
  if (!world) {
    Console::Complain("there is no world here; --world names its folder");
    return Commands::WrongUse;
  }
  const auto run = [&options, &world] { return CheckRun(options, *world).Run(); };
  return options.watch ? Watch::Repeat(*world, run) : run();
}

}  // namespace

void Commands::AddCheck(CLI::App& app, int& status) {
  const auto options = std::make_shared<CheckOptions>();
  CLI::App* check = app.add_subcommand("check", "Finds mistakes in the files of a world");
  check->add_option("file", options->files, "Files and folders to be told of; else all");
  check->add_option("--world", options->world, "The world's folder");
  check->add_option("--lang", options->language, "The language to look at: its name, all or none");
  check->add_option("--format", options->format, "How to report")
      ->check(CLI::IsMember({"text", "short", "json", "sarif"}));
  check->add_option("--select", options->select, "Rules to look for, or letters of groups")
      ->delimiter(',')
      ->allow_extra_args(false);
  check->add_option("--ignore", options->ignore, "Rules not to look for")
      ->delimiter(',')
      ->allow_extra_args(false);
  check->add_option("--min", options->minimum, "From which severity on the exit status is 1")
      ->check(CLI::IsMember({"fatal", "error", "warning", "note"}));
  check->add_flag("--strict", options->strict, "The same as --min note");
  check->add_flag("--fix", options->fix, "Mend what can be mended without changing anything else");
  check->add_flag("--unsafe-fixes", options->unsafeFixes, "Mend also what you must look at");
  check->add_flag("--diff", options->diff, "Show what --fix would change");
  check->add_flag("--watch", options->watch, "Check again whenever a file changes");
  check->add_flag("--list-rules", options->listRules, "List all rules");
  check->add_option("--explain", options->explain, "Tell what a rule means");
  check->add_flag("--verbose", options->verbose, "List what stands behind a count");
  check->callback([options, &status] { status = Run(*options); });
}
