#include "platform/windows/ToolkitTexts.h"

#include "platform/windows/QtText.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

#include <algorithm>

namespace {

QLocale LocaleOf(const QString& languageName) {
  const auto named = [&](const QLocale& locale) {
    return locale.nativeLanguageName().compare(languageName, Qt::CaseInsensitive) == 0;
  };
  // Spares most worlds the way through all locales.
  const QLocale german(QLocale::German);
  if (named(german))
    return german;
  const auto all =
      QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyCountry);
  const auto found = std::find_if(all.begin(), all.end(), named);
  return found == all.end() ? QLocale::c() : *found;
}

}  // namespace

void ToolkitTexts::Speak(TextView languageName) {
  QCoreApplication::removeTranslator(&translator_);
  const QLocale locale = LocaleOf(QtText::ToQt(Texts::Trim(languageName)));
  if (locale.language() != QLocale::C &&
      translator_.load(locale, QStringLiteral("qtbase"), QStringLiteral("_"),
                       QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&translator_);
}
