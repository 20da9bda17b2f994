#include "app/windows/Program.h"

#include "app/Context.h"
#include "app/MenuTable.h"
#include "app/ProgramTexts.h"
#include "app/windows/frmMain.h"
#include "i18n/InterfaceTexts.h"
#include "i18n/LOCAL.h"
#include "i18n/Registry_Module.h"
#include "mapdata/files/IniOps.h"
#include "platform/Desktop.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"
#include "platform/windows/ShowMessage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QWindow>

namespace {

constexpr int LongestWait = 500;

// A dialog stands over the middle of its window, once the desktop has placed that.
void WaitUntilShown(const QWidget& window) {
  QElapsedTimer waiting;
  waiting.start();
  while (!window.windowHandle()->isExposed() && waiting.elapsed() < LongestWait)
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 20);
}

}  // namespace

Program::Program(Context& context) : context_(context) {}

Program::~Program() = default;

bool Program::Start() {
  PosixFile::ChangeFolder(NativePath::ToBytes(context_.world.paths.programFolder));
  const Text chosen = context_.world.ChosenLanguage();
  if (!CheckFiles(chosen))
    return false;
  window_ = std::make_unique<frmMain>(context_);
  window_->show();
  ChooseLanguage(chosen);
  return true;
}

bool Program::CheckFiles(const Text& chosenLanguage) {
  const auto missing = context_.world.MissingFile();
  if (!missing)
    return true;
  ShowMessage(nullptr, MessageIcon::Critical,
              ProgramTexts::FileNotFound(context_.world, chosenLanguage, *missing));
  return false;
}

void Program::ChooseLanguage(const Text& chosenLanguage) {
  IniOps::Snapshot files(context_.world.cache);
  LOCAL::Language& language = context_.world.language;
  language.Start(files, chosenLanguage);
  window_->ShowTexts(language.IsGerman() ? Translate_UI_DE()
                                         : Translate_UI(files, language, MenuTable::Captions()));
  language.CacheTranslationTable(files);
  const Text systemLanguage = Registry_Module::ReadRegistryValue(Registry_Module::InternationalKey,
                                                                 Registry_Module::LanguageValue,
                                                                 context_.desktop.UserLanguage());
  if (!language.IsToBeOffered(systemLanguage))
    return;
  WaitUntilShown(*window_);
  window_->ChooseLanguage();
}
