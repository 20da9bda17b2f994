#include "app/windows/frmMain.h"

#include "app/Context.h"
#include "app/MenuTable.h"
#include "app/ProgramTexts.h"
#include "app/windows/Commands.h"
#include "app/windows/MenuBar.h"
#include "controls/windows/WidgetTwips.h"
#include "i18n/InterfaceTexts.h"
#include "mapdata/windows/MapView.h"
#include "platform/Text.h"
#include "platform/windows/WindowTitle.h"

namespace {

QSize StartSize(const QWidget& widget) {
  const auto screen = WidgetTwips::ScreenOf(widget);
  return {WidgetTwips::ToPixelsX(screen, MapView::StartSize.x),
          WidgetTwips::ToPixelsY(screen, MapView::StartSize.y)};
}

}  // namespace

frmMain::frmMain(Context& context)
    : context_(context),
      menus_(new MenuBar(this)),
      map_(new MapView(context.world.cache, context.world.language, this,
                       context.world.paths.programFolder + u"overview.jpg")),
      commands_(new Commands(context, *map_, *this)) {
  setObjectName(QLatin1StringView("frmMain"));
  WindowTitle::Set(*this, ProgramTexts::Caption(context.world.edition));
  setMenuBar(menus_);
  setCentralWidget(map_);
  const QSize map = StartSize(*this);
  resize(map.width(), map.height() + menus_->sizeHint().height());
  menus_->SetShown(u"mnuExtras", !context.world.edition.withoutExtras);
  menus_->SetShown(u"mnuLanguage", !context.world.edition.withoutLanguages);
  connect(menus_, &MenuBar::CategoryChosen, this, &frmMain::RunCategory);
  connect(menus_, &MenuBar::CommandChosen, commands_, &Commands::Run);
  connect(map_, &MapView::Displayed, this, [this] { menus_->SetEnabled(u"miPrint", true); });
  connect(map_, &MapView::InfoRequested, commands_, &Commands::ShowInfo);
  connect(commands_, &Commands::SearchStarted, this,
          [this] { menus_->SetEnabled(u"miFindAgain", true); });
  connect(commands_, &Commands::LanguageChanged, this, [this](const InterfaceTexts& texts) {
    ShowTexts(texts);
    map_->ShowNoRegion();
  });
}

void frmMain::ShowTexts(const InterfaceTexts& texts) {
  toolkitTexts_.Speak(context_.world.language.CurrentLanguage());
  menus_->SetCaptions(texts.menus);
  map_->SetTexts(texts.prompt, texts.infoToolTip, texts.highlighted, texts.spokenPrompt);
}

void frmMain::RunCategory(const MenuRow& row) {
  const auto& region = context_.world.paths.Of(*row.region);
  const Text category(row.category);
  if (row.mode == DisplayMode::List || row.listFirst)
    map_->Change(region.picture, region.data, category);
  if (row.mode != DisplayMode::List)
    map_->ChangeMulti(region.picture, region.data, category, menus_->Heading(row),
                      row.mode == DisplayMode::LabelsOnHover);
}

void frmMain::ChooseLanguage() {
  commands_->ChooseLanguage();
}
