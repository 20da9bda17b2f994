#include "check/Words.h"
#include "cli/reports/Reports.h"
#include "cli/reports/ShownText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject OfEdit(const Edit& edit) {
  const QByteArray bytes = QByteArray::fromStdString(edit.bytes);
  return {{QStringLiteral("file"), ShownText(edit.source->name)},
          {QStringLiteral("offset"), static_cast<qint64>(edit.offset)},
          {QStringLiteral("length"), static_cast<qint64>(edit.length)},
          {QStringLiteral("bytes"), QString::fromLatin1(bytes.toBase64())}};
}

QJsonValue FixOf(const Finding& finding) {
  if (finding.edits.empty())
    return {};
  QJsonArray edits;
  for (const Edit& edit : finding.edits)
    edits.append(OfEdit(edit));
  return QJsonObject{{QStringLiteral("applicability"),
                      finding.isSafe ? QStringLiteral("safe") : QStringLiteral("unsafe")},
                     {QStringLiteral("edits"), edits}};
}

void AddPlace(QJsonObject& object, const Finding& finding) {
  Place begin{0, 0};
  Place end{0, 0};
  if (finding.source) {
    begin = finding.source->PlaceOf(finding.offset);
    end = finding.source->PlaceOf(finding.offset + finding.length);
  }
  object[QStringLiteral("line")] = static_cast<qint64>(begin.line);
  object[QStringLiteral("column")] = static_cast<qint64>(begin.column);
  object[QStringLiteral("endLine")] = static_cast<qint64>(end.line);
  object[QStringLiteral("endColumn")] = static_cast<qint64>(end.column);
}

QJsonObject OfFinding(const Finding& finding) {
  const Rules::Rule& rule = Rules::Of(finding.rule);
  const bool sure = rule.confidence == Rules::Confidence::Sure;
  QJsonObject object = {
      {QStringLiteral("rule"), ShownText(rule.number)},
      {QStringLiteral("name"), ShownText(rule.name)},
      {QStringLiteral("severity"), ShownText(Rules::NameOf(finding.severity))},
      {QStringLiteral("confidence"), sure ? QStringLiteral("sure") : QStringLiteral("guess")},
      {QStringLiteral("file"), ShownText(finding.file)},
      {QStringLiteral("section"), ShownText(finding.section)},
      {QStringLiteral("key"), ShownText(finding.key)},
      {QStringLiteral("message"), ShownText(finding.message)},
      {QStringLiteral("consequence"), ShownText(finding.consequence)},
      {QStringLiteral("advice"), ShownText(finding.advice)},
      {QStringLiteral("fix"), FixOf(finding)}};
  AddPlace(object, finding);
  if (!finding.details.empty()) {
    QJsonArray details;
    for (const Text& detail : finding.details)
      details.append(ShownText(detail));
    object[QStringLiteral("details")] = details;
  }
  return object;
}

}  // namespace

std::string Reports::AsJson(const Check::Answer& answer) {
  QJsonArray findings;
  for (const Finding& finding : answer.findings)
    findings.append(OfFinding(finding));
  QJsonObject summary;
  const auto counts = answer.Counts();
  for (size_t severity = 0; severity < counts.size(); ++severity)
    summary[ShownText(Rules::NameOf(static_cast<Rules::Severity>(severity)))] =
        static_cast<qint64>(counts[severity]);
  const QJsonObject report = {{QStringLiteral("world"), ShownText(answer.index.base)},
                              {QStringLiteral("findings"), findings},
                              {QStringLiteral("summary"), summary}};
  return QJsonDocument(report).toJson().toStdString();
}
