#include "check/Check.h"

#include "check/Checks.h"
#include "check/Ignores.h"

#include <algorithm>
#include <tuple>

namespace {

constexpr auto All = {&Checks::World,        &Checks::Files,     &Checks::Sections,
                      &Checks::Positions,    &Checks::Links,     &Checks::Names,
                      &Checks::Descriptions, &Checks::Portraits, &Checks::Languages,
                      &Checks::Translations};

bool IsWanted(const Check::Question& question, const Finding& finding) {
  const Rules::Rule& rule = Rules::Of(finding.rule);
  return (question.select.empty() || Check::IsOneOf(question.select, rule)) &&
         !Check::IsOneOf(question.ignore, rule);
}

}  // namespace

namespace Check {

bool IsOneOf(const std::vector<Text>& numbers, const Rules::Rule& rule) {
  return std::ranges::any_of(numbers, [&rule](const Text& number) {
    const Text wanted = Texts::Lower(number);
    const Text own = Texts::Lower(rule.number);
    return wanted == own || (wanted.size() == 1 && wanted.front() == own.front());
  });
}

std::unique_ptr<Answer> Run(const Question& question) {
  auto answer = std::make_unique<Answer>(question);
  Findings findings;
  for (const auto check : All)
    check(answer->index, findings);
  std::erase_if(findings.all,
                [&question](const Finding& finding) { return !IsWanted(question, finding); });
  const Ignores ignores(answer->index);
  std::erase_if(findings.all,
                [&ignores](const Finding& finding) { return ignores.Covers(finding); });
  std::ranges::stable_sort(findings.all, {}, [](const Finding& finding) {
    return std::tie(finding.severity, finding.file, finding.offset, finding.rule);
  });
  answer->findings = std::move(findings.all);
  return answer;
}

std::array<size_t, 4> Answer::Counts() const {
  std::array<size_t, 4> counts{};
  for (const Finding& finding : findings)
    ++counts[static_cast<size_t>(finding.severity)];
  return counts;
}

}  // namespace Check
