#include "platform/windows/QtDesktop.h"

#include "platform/windows/PageWindow.h"
#include "platform/windows/QtText.h"

#include <QApplication>
#include <QAudioDevice>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLocale>
#include <QMediaDevices>
#include <QPrinterInfo>
#include <QProcess>
#include <QSoundEffect>
#include <QStandardPaths>
#include <QUrl>

namespace {

constexpr int MostMillisecondsToAsk = 3000;

QString FromBytes(const std::string& bytes) {
  return QFile::decodeName(QByteArray::fromStdString(bytes));
}

bool HasProgram(const char* name) {
  return !QStandardPaths::findExecutable(QLatin1StringView(name)).isEmpty();
}

}  // namespace

QtDesktop::QtDesktop() = default;

QtDesktop::~QtDesktop() = default;

Desktop::Result QtDesktop::Open(const std::string& target) {
  const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
  if (opener.isEmpty() || target.starts_with('-'))
    return Refused;
  return QProcess::startDetached(opener, {FromBytes(target)}) ? Started : Refused;
}

bool QtDesktop::HasViewer(const std::string& mimeType) {
  if (!HasProgram("xdg-open"))
    return false;
  // The desktop's opener also takes a browser that no desktop file names.
  if (mimeType == "text/html" && HasProgram("x-www-browser"))
    return true;
  QProcess query;
  query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                           QString::fromStdString(mimeType)});
  return query.waitForFinished(MostMillisecondsToAsk) &&
         !query.readAllStandardOutput().trimmed().isEmpty();
}

void QtDesktop::ShowPage(const std::string& path) {
  PageWindow window(QApplication::activeWindow(), path);
  window.exec();
}

Desktop::Result QtDesktop::StartProgram(const std::string& path, const std::string& folder) {
  return QProcess::startDetached(FromBytes(path), {}, FromBytes(folder)) ? Started : Refused;
}

void QtDesktop::LoopSound(const std::string& path) {
  if (QMediaDevices::defaultAudioOutput().isNull())
    return;
  sound_ = std::make_unique<QSoundEffect>();
  sound_->setSource(QUrl::fromLocalFile(FromBytes(path)));
  sound_->setLoopCount(QSoundEffect::Infinite);
  sound_->play();
}

void QtDesktop::StopSound() {
  sound_.reset();
}

void QtDesktop::Beep() {
  QApplication::beep();
}

Text QtDesktop::UserLanguage() {
  const QStringList languages = QLocale::system().uiLanguages();
  if (languages.isEmpty())
    return {};
  const auto language = QLocale(languages.front()).language();
  return QtText::FromQt(QLocale::languageToCode(language, QLocale::ISO639Part3));
}

std::vector<Text> QtDesktop::Printers() {
  std::vector<Text> names;
  for (const QString& name : QPrinterInfo::availablePrinterNames())
    names.push_back(QtText::FromQt(name));
  return names;
}

std::string QtDesktop::AskFileToWrite(TextView caption, TextView suggestedName) {
  const QString start = QDir(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation))
                            .filePath(QtText::ToQt(suggestedName));
  return QFile::encodeName(QFileDialog::getSaveFileName(QApplication::activeWindow(),
                                                        QtText::ToQt(caption), start))
      .toStdString();
}
