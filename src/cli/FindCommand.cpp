#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/OpenedWorld.h"
#include "cli/formats/Csv.h"
#include "cli/formats/Json.h"
#include "platform/NativePath.h"
#include "share/Find.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <memory>

namespace {

constexpr int Found = 0;
constexpr int NothingFound = 1;

struct FindOptions {
  OpenedWorld::Choice choice;
  std::string term;
  std::vector<std::string> in = {"names", "descriptions"};
  std::string format = "text";
  bool exact = false;
};

Share::Query QueryOf(const FindOptions& options) {
  const auto isIn = [&options](const char* texts) {
    return std::ranges::find(options.in, texts) != options.in.end();
  };
  return {NativePath::FromBytes(options.term), options.exact, isIn("names"), isIn("descriptions"),
          isIn("sections")};
}

std::string Line(const Share::Hit& hit, TextView term, const Console::Style& style) {
  const auto print = [&style](TextView text) { return Console::Printable(text, style); };
  const auto& position = hit.entity->position;
  std::string line = print(hit.entity->name) + "\t" + print(hit.map->caption) + "\t" +
                     print(hit.category->section) + "\t";
  if (position)
    line += std::to_string(position->x) + "," + std::to_string(position->y);
  return line + "\t" + print(Share::Excerpt(hit.entity->description, term)) + "\n";
}

std::string AsText(const std::vector<Share::Hit>& hits, TextView term) {
  const Console::Style style = Console::OfOutput();
  std::string lines;
  for (const Share::Hit& hit : hits)
    lines += Line(hit, term, style);
  return lines;
}

int Run(const FindOptions& options) {
  const auto contents = OpenedWorld::Read(options.choice);
  if (!contents)
    return Commands::WrongUse;
  const Share::Query query = QueryOf(options);
  const auto hits = Share::Find(contents->maps, query);
  const std::string answer = options.format == "csv"    ? Csv::OfHits(hits)
                             : options.format == "json" ? Json::OfHits(hits)
                                                        : AsText(hits, query.term);
  if (!Console::Put("-", answer))
    return Commands::WrongUse;
  return hits.empty() ? NothingFound : Found;
}

}  // namespace

void Commands::AddFind(CLI::App& app, int& status) {
  const auto options = std::make_shared<FindOptions>();
  CLI::App* find =
      app.add_subcommand("find", "Finds entities by a part of their names and descriptions");
  find->add_option("term", options->term, "What to look for, whatever its case and accents")
      ->required();
  find->add_flag("--exact", options->exact, "As the viewer searches: letter by letter");
  find->add_option("--in", options->in, "Where to look: names, descriptions, sections")
      ->delimiter(',')
      ->allow_extra_args(false)
      ->check(CLI::IsMember({"names", "descriptions", "sections"}));
  OpenedWorld::AddOptions(*find, options->choice);
  find->add_option("--format", options->format, "How to answer")
      ->check(CLI::IsMember({"text", "csv", "json"}));
  find->callback([options, &status] { status = Run(*options); });
}
