#include "check/Finding.h"

#include "check/Words.h"

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

void Findings::AddNoSection(Rules::Id rule, const Source& source, TextView section) {
  Finding& finding = Add(rule, source, source.Bytes().substr(0, 0));
  finding.message = Texts::Join(u"this file has no section ", Words::Quoted(section));
  finding.consequence +=
      Texts::Join(u": ", Words::Count(source.EntryCount(), u"line", u"lines"), u" never read");
}
