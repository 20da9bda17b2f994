#include "platform/windows/QtDesktop.h"

#include "platform/WaveFile.h"
#include "platform/windows/PageWindow.h"
#include "platform/windows/QtText.h"

#include <QApplication>
#include <QAudioDevice>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QMediaDevices>
#include <QPrinterInfo>
#include <QProcess>
#include <QSoundEffect>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace {

constexpr int MaxMillisecondsToAsk = 3000;

// Never the current one, which is the program's.
QString FolderForDocuments() {
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

bool HasProgram(const char* name) {
  return !QStandardPaths::findExecutable(QLatin1StringView(name)).isEmpty();
}

}  // namespace

QtDesktop::QtDesktop() = default;

QtDesktop::~QtDesktop() = default;

// Paths are bytes all the way: the toolkit's own way to start a program would decode them.
Desktop::Result QtDesktop::Open(const std::string& target) {
  const bool option = target.starts_with('-');
  return !option && PosixFile::StartDetached("xdg-open", {target}) ? Started : Refused;
}

bool QtDesktop::HasViewer(const std::string& mimeType) {
  auto& known = viewers_[mimeType];
  if (!known)
    known = AskForViewer(mimeType);
  return *known;
}

bool QtDesktop::AskForViewer(const std::string& mimeType) {
  if (!HasProgram("xdg-open"))
    return false;
  // The desktop's opener also takes a browser that no desktop file names.
  if (mimeType == "text/html" && HasProgram("x-www-browser"))
    return true;
  QProcess query;
  query.start(QStringLiteral("xdg-mime"), {QStringLiteral("query"), QStringLiteral("default"),
                                           QString::fromStdString(mimeType)});
  return query.waitForFinished(MaxMillisecondsToAsk) &&
         !query.readAllStandardOutput().trimmed().isEmpty();
}

void QtDesktop::ShowPage(const std::string& path) {
  PageWindow window(QApplication::activeWindow(), path);
  window.exec();
}

Desktop::Result QtDesktop::StartProgram(const std::string& path, const std::string& folder) {
  return PosixFile::StartDetached(path, {}, folder) ? Started : Refused;
}

bool QtDesktop::LoopSound(const std::string& path) {
  StopSound();
  auto file = std::make_unique<PosixFile::OpenFile>(path);
  if (!WaveFile::IsPlayable(*file))
    return false;
  if (QMediaDevices::defaultAudioOutput().isNull())
    return true;
  soundFile_ = std::move(file);
  sound_ = std::make_unique<QSoundEffect>();
  sound_->setSource(QUrl::fromLocalFile(QString::fromStdString(soundFile_->Alias())));
  sound_->setLoopCount(QSoundEffect::Infinite);
  sound_->play();
  return true;
}

void QtDesktop::StopSound() {
  sound_.reset();
  soundFile_.reset();
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

std::string QtDesktop::AskPdfToWrite(TextView caption, TextView suggestedName) {
  const QString ending = QStringLiteral(".pdf");
  QFileDialog dialog(QApplication::activeWindow(), QtText::ToQt(caption), FolderForDocuments(),
                     QStringLiteral("PDF (*.pdf)"));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(ending);
  dialog.selectFile(QtText::ToQt(suggestedName));
  while (dialog.exec() == QDialog::Accepted) {
    const QString file = dialog.selectedFiles().value(0);
    if (file.endsWith(ending, Qt::CaseInsensitive))
      return QFile::encodeName(file).toStdString();
    // The dialog has asked whether the other name shall be overwritten.
    dialog.selectFile(file + ending);
    if (!QFile::exists(file + ending))
      return QFile::encodeName(file + ending).toStdString();
  }
  return {};
}
