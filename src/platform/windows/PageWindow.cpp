#include "platform/windows/PageWindow.h"

#include "mapdata/files/FileSystem.h"
#include "platform/NativePath.h"
#include "platform/PageLimits.h"
#include "platform/PosixFile.h"
#include "platform/Text.h"
#include "platform/windows/QtText.h"
#include "platform/windows/WindowTitle.h"

#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

#include <optional>
#include <utility>

namespace {

constexpr size_t MaxFileSize = size_t{16} * 1024 * 1024;
constexpr QSize StartSize(720, 600);

class Browser : public QTextBrowser {
 public:
  Browser(QWidget* parent, std::string folder) : QTextBrowser(parent), folder_(std::move(folder)) {
    setObjectName(QStringLiteral("txtPage"));
    setOpenLinks(false);
    connect(this, &QTextBrowser::anchorClicked, this, [this](const QUrl& link) {
      if (link.path().isEmpty() && link.hasFragment())
        scrollToAnchor(link.fragment());
    });
  }

  // A page may name anything; only files beside it are read.
  QVariant loadResource(int, const QUrl& name) override {
    const Text file = QtText::FromQt(name.path());
    if (!name.isRelative() || file.starts_with(u'/') || file.find(u"..") != Text::npos)
      return {};
    const auto found = FileSystem::Resolve(NativePath::FromBytes(folder_) + file);
    const auto contents = found ? PosixFile::Read(*found, MaxFileSize) : std::nullopt;
    return contents ? QByteArray::fromStdString(contents->bytes) : QVariant();
  }

 private:
  std::string folder_;
};

}  // namespace

PageWindow::PageWindow(QWidget* parent, const std::string& path) : QDialog(parent) {
  setObjectName(QStringLiteral("pageWindow"));
  const std::string folder = PosixFile::FolderOf(path) + '/';
  auto* browser = new Browser(this, folder);
  const auto page = PosixFile::Read(path, MaxFileSize);
  // Pages are UTF-8 or, as everything else in the program's folder, Windows-1252.
  const Text text = NativePath::EntryName(page ? page->bytes : std::string());
  if (PageLimits::Hold(text))
    browser->setHtml(QtText::ToQt(text));
  else
    browser->setPlainText(QtText::ToQt(text.substr(0, PageLimits::Characters)));
  const QString title = browser->documentTitle();
  const Text name =
      NativePath::EntryName(path.substr(path.starts_with(folder) ? folder.size() : 0));
  const Text shown = title.isEmpty() ? name : QtText::FromQt(title);
  WindowTitle::Set(*this, shown);
  browser->setAccessibleName(QtText::ToQt(shown));
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(browser);
  resize(StartSize);
}
