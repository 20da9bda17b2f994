#include "app/windows/Commands.h"

#include "app/Context.h"
#include "auxwin/WebCommands.h"
#include "auxwin/windows/frmAbout.h"
#include "auxwin/windows/frmExtras.h"
#include "auxwin/windows/frmPrint.h"
#include "i18n/windows/frmLang.h"
#include "mapdata/windows/MapView.h"
#include "mapdata/windows/frmInfo.h"
#include "perks/windows/frmPerks.h"
#include "platform/Text.h"

#include <QPainter>

Commands::Commands(Context& context, MapView& map, QWidget& mainWindow)
    : QObject(&mainWindow),
      context_(context),
      map_(map),
      mainWindow_(mainWindow),
      search_(map, context.world, context.search) {
  connect(&search_, &SearchCommands::SearchStarted, this, &Commands::SearchStarted);
  // At once, and not after what still waits in the event loop.
  connect(&search_, &SearchCommands::EndRequested, &mainWindow, &QWidget::close);
}

void Commands::Run(const MenuRow& row) {
  WebCommands web(context_.world, context_.launching);
  switch (row.action) {
    case Action::Print:
      return Print();
    case Action::Language:
      return ChooseLanguage();
    case Action::Find:
      return search_.miFind_Click();
    case Action::FindAgain:
      return search_.miFindAgain_Click();
    case Action::Perks:
      return ShowPerks(*row.region);
    case Action::Extras:
      return ShowExtras();
    case Action::About:
      return ShowAbout();
    case Action::Help:
      return web.miHelp_Click();
    case Action::ReadMe:
      return web.miReadMe_Click();
    case Action::Quit:
      mainWindow_.close();
      return;
    case Action::WebSite:
      return web.OpenWebSite(row.name);
    case Action::None:
      return;
  }
}

void Commands::ShowInfo() {
  frmInfo(&mainWindow_, context_.world, map_.InfoEntityName()).exec();
}

void Commands::ChooseLanguage() {
  frmLang dialog(&mainWindow_, context_.world, context_.launching, captions_);
  connect(&dialog, &frmLang::LanguageChanged, this, &Commands::LanguageChanged);
  dialog.exec();
}

void Commands::Print() {
  const Printout printout{[this] { return map_.MapSize(); },
                          [this](QPainter& painter) { map_.Paint(painter); },
                          [this] { return map_.Heading(); }};
  frmPrint(&mainWindow_, context_.world, context_.desktop, printout).exec();
}

void Commands::ShowExtras() {
  frmExtras(&mainWindow_, context_.world, context_.launching).exec();
}

void Commands::ShowAbout() {
  frmAbout(&mainWindow_, context_.world, context_.desktop, context_.launching).exec();
}

void Commands::ShowPerks(Region region) {
  const Text& perksData = context_.world.paths.Of(region).data;
  frmPerks viewer(&mainWindow_, perksData, context_.world);
  connect(&viewer, &frmPerks::TeachersChosen, &map_,
          [this](const Text& picture, const Text& data, const Text& category, const Text& heading) {
            map_.ChangeMulti(picture, data, category, heading, false);
          });
  viewer.exec();
}
