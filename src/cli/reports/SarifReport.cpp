#include "cli/reports/Reports.h"
#include "cli/reports/ShownText.h"
#include "platform/ProgramInfo.h"

#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QUrl>

#include <algorithm>

namespace {

constexpr size_t MostResults = 5000;

QJsonObject Message(TextView text) {
  return {{QStringLiteral("text"), ShownText(text)}};
}

QString LevelOf(Rules::Severity severity) {
  switch (severity) {
    case Rules::Severity::Fatal:
    case Rules::Severity::Error:
      return QStringLiteral("error");
    case Rules::Severity::Warning:
      return QStringLiteral("warning");
    case Rules::Severity::Note:
      break;
  }
  return QStringLiteral("note");
}

QJsonObject OfRule(const Rules::Rule& rule) {
  const Text help = Texts::Join(rule.example, u": ", rule.consequence, u". ", rule.advice, u".");
  return {{QStringLiteral("id"), ShownText(rule.number)},
          {QStringLiteral("name"), ShownText(rule.name)},
          {QStringLiteral("shortDescription"), Message(rule.name)},
          {QStringLiteral("help"), Message(help)},
          {QStringLiteral("defaultConfiguration"),
           QJsonObject{{QStringLiteral("level"), LevelOf(rule.severity)}}}};
}

QJsonObject FileAddress(TextView name) {
  const QString address = QString::fromLatin1(QUrl::toPercentEncoding(ShownText(name), "/"));
  return {{QStringLiteral("uri"), address}, {QStringLiteral("uriBaseId"), QStringLiteral("WORLD")}};
}

QJsonObject Region(const Source& source, size_t offset, size_t length) {
  const Place begin = source.PlaceOf(offset);
  const Place end = source.PlaceOf(offset + length);
  return {{QStringLiteral("startLine"), static_cast<qint64>(begin.line)},
          {QStringLiteral("startColumn"), static_cast<qint64>(begin.column)},
          {QStringLiteral("endLine"), static_cast<qint64>(end.line)},
          {QStringLiteral("endColumn"), static_cast<qint64>(end.column)}};
}

QJsonObject LocationOf(const Finding& finding) {
  QJsonObject physical = {{QStringLiteral("artifactLocation"), FileAddress(finding.file)}};
  if (finding.source)
    physical[QStringLiteral("region")] = Region(*finding.source, finding.offset, finding.length);
  return {{QStringLiteral("physicalLocation"), physical}};
}

// The same for a finding whose line moved.
QString FingerprintOf(const Finding& finding) {
  const Text words = Texts::Join(Rules::Of(finding.rule).number, u"\n", finding.file, u"\n",
                                 finding.section, u"\n", finding.key);
  return QString::fromLatin1(
      QCryptographicHash::hash(ShownText(words).toUtf8(), QCryptographicHash::Sha256).toHex());
}

QJsonArray FixesOf(const Finding& finding) {
  QJsonArray replacements;
  for (const Edit& edit : finding.edits)
    replacements.append(QJsonObject{
        {QStringLiteral("deletedRegion"), Region(*edit.source, edit.offset, edit.length)},
        {QStringLiteral("insertedContent"),
         QJsonObject{{QStringLiteral("binary"),
                      QString::fromLatin1(QByteArray::fromStdString(edit.bytes).toBase64())}}}});
  const QJsonObject change = {
      {QStringLiteral("artifactLocation"), FileAddress(finding.edits.front().source->name)},
      {QStringLiteral("replacements"), replacements}};
  return {QJsonObject{{QStringLiteral("description"), Message(finding.advice)},
                      {QStringLiteral("artifactChanges"), QJsonArray{change}}}};
}

QJsonObject ResultOf(const Finding& finding) {
  const Text words = Texts::Join(finding.message, u": ", finding.consequence);
  QJsonObject result = {
      {QStringLiteral("ruleId"), ShownText(Rules::Of(finding.rule).number)},
      {QStringLiteral("ruleIndex"), static_cast<int>(finding.rule)},
      {QStringLiteral("level"), LevelOf(finding.severity)},
      {QStringLiteral("message"), Message(words)},
      {QStringLiteral("locations"), QJsonArray{LocationOf(finding)}},
      {QStringLiteral("partialFingerprints"),
       QJsonObject{{QStringLiteral("orvalisFinding/v1"), FingerprintOf(finding)}}}};
  if (!finding.edits.empty())
    result[QStringLiteral("fixes")] = FixesOf(finding);
  return result;
}

}  // namespace

std::string Reports::AsSarif(const Check::Answer& answer) {
  QJsonArray rules;
  for (const Rules::Rule& rule : Rules::All())
    rules.append(OfRule(rule));
  QJsonArray results;
  const size_t count = std::min(answer.findings.size(), MostResults);
  for (size_t i = 0; i < count; ++i)
    results.append(ResultOf(answer.findings[i]));
  const QJsonObject driver = {{QStringLiteral("name"), QStringLiteral("orvalis-world")},
                              {QStringLiteral("version"), ShownText(ProgramInfo::Version)},
                              {QStringLiteral("rules"), rules}};
  const QJsonObject run = {
      {QStringLiteral("tool"), QJsonObject{{QStringLiteral("driver"), driver}}},
      {QStringLiteral("columnKind"), QStringLiteral("utf16CodeUnits")},
      {QStringLiteral("results"), results}};
  const QJsonObject report = {
      {QStringLiteral("$schema"), QStringLiteral("https://json.schemastore.org/sarif-2.1.0.json")},
      {QStringLiteral("version"), QStringLiteral("2.1.0")},
      {QStringLiteral("runs"), QJsonArray{run}}};
  return QJsonDocument(report).toJson().toStdString();
}
