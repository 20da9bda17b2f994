#include "check/Finding.h"

Finding& Findings::Count(Finding finding) {
  ++counts_[static_cast<size_t>(finding.rule)];
  const Rules::Rule& rule = Rules::Of(finding.rule);
  finding.severity = rule.severity;
  finding.isSafe = rule.fixing == Rules::Fixing::Safe;
  finding.consequence = rule.consequence;
  finding.advice = rule.advice;
  return all.emplace_back(std::move(finding));
}

Finding& Findings::Add(Rules::Id rule, const Source& source, std::string_view words) {
  Finding finding;
  finding.rule = rule;
  finding.file = source.name;
  finding.source = &source;
  finding.offset = source.Offset(words);
  finding.length = words.size();
  return Count(std::move(finding));
}

Finding& Findings::Add(Rules::Id rule, Text file) {
  Finding finding;
  finding.rule = rule;
  finding.file = std::move(file);
  return Count(std::move(finding));
}
