#include "cli/formats/Page.h"

#include "cli/formats/PagePictures.h"
#include "i18n/PageTexts.h"
#include "platform/windows/QtText.h"

#include <QByteArrayList>
#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>

#include <map>
#include <numeric>
#include <stdexcept>

using QtText::ToQt;

namespace {

// What stands for a name, in parts.
using Values = std::map<QByteArray, QByteArrayList>;

// A file that was built into the program.
QByteArray BuiltIn(const char* name) {
  QFile file(QStringLiteral(":/page/") + QLatin1StringView(name));
  if (!file.open(QIODevice::ReadOnly))
    throw std::runtime_error("the page's own files are not in this program");
  return file.readAll();
}

// A browser would ask for the source's map, which the last comment names.
QByteArray WithoutSourceMap(QByteArray code) {
  constexpr qsizetype OpeningSlashes = 2;
  if (const qsizetype name = code.lastIndexOf("# sourceMappingURL"); name >= OpeningSlashes)
    code.truncate(name - OpeningSlashes);
  return code;
}

QByteArray HashesOf(std::initializer_list<QByteArray> parts) {
  QByteArray hashes;
  for (const QByteArray& part : parts)
    hashes +=
        " 'sha256-" + QCryptographicHash::hash(part, QCryptographicHash::Sha256).toBase64() + "'";
  return hashes;
}

// In one pass: nothing that is put in is looked at again.
std::string Filled(const QByteArray& page, const Values& values) {
  QByteArrayList parts;
  qsizetype at = 0;
  for (qsizetype begin = page.indexOf("{{"); begin >= 0; begin = page.indexOf("{{", at)) {
    const qsizetype end = page.indexOf("}}", begin);
    parts << page.mid(at, begin - at) << values.at(page.mid(begin + 2, end - begin - 2));
    at = end + 2;
  }
  parts << page.mid(at);
  std::string filled;
  filled.reserve(std::accumulate(
      parts.begin(), parts.end(), size_t{0},
      [](size_t sum, const QByteArray& part) { return sum + static_cast<size_t>(part.size()); }));
  for (const QByteArray& part : parts)
    filled.append(part.constData(), static_cast<size_t>(part.size()));
  return filled;
}

QByteArray Escaped(const QString& text) {
  return text.toHtmlEscaped().toUtf8();
}

// Language files tell no tag: the language is known by its own name or by its English one.
QString TagOf(TextView language) {
  const QString name = ToQt(language).toLower();
  for (int number = QLocale::C + 1; number <= QLocale::LastLanguage; ++number) {
    const auto each = static_cast<QLocale::Language>(number);
    const QLocale locale(each);
    if (locale.language() == each && (QLocale::languageToString(each).toLower() == name ||
                                      locale.nativeLanguageName().toLower() == name))
      return QLocale::languageToCode(each);
  }
  return {};
}

class WorldObject {
 public:
  WorldObject(World& world, const Page::Options& options)
      : world_(world), options_(options), files_(world.cache) {}

  QJsonObject Make(std::span<const Share::RegionMap> maps) {
    QJsonArray regions;
    std::vector<QJsonObject> begun;
    for (const Share::RegionMap& map : maps)
      begun.push_back(RegionOf(map));
    for (size_t number = 0; number < begun.size(); ++number) {
      begun[number].insert(QStringLiteral("categories"), CategoriesOf(maps[number]));
      regions.append(begun[number]);
    }
    return {{QStringLiteral("title"), ToQt(options_.title)},
            {QStringLiteral("language"), TagOf(world_.language.CurrentLanguage())},
            {QStringLiteral("words"), Words()},
            {QStringLiteral("regions"), regions}};
  }

  [[nodiscard]] const QByteArrayList& Pictures() const { return pictures_.Elements(); }

 private:
  QJsonObject Words() {
    QJsonObject words;
    for (const TextRow& row : PageTexts::Table)
      words.insert(ToQt(row.key), ToQt(world_.language.Lookup(files_, row)));
    return words;
  }

  void AddPicture(QJsonObject& object, const QString& name, const Text& path) {
    if (const auto number = pictures_.NumberOf(path))
      object.insert(name, *number);
  }

  QJsonObject RegionOf(const Share::RegionMap& map) {
    QJsonObject region = {{QStringLiteral("key"), ToQt(map.key)},
                          {QStringLiteral("caption"), ToQt(map.caption)}};
    if (options_.pictures)
      AddPicture(region, QStringLiteral("picture"), map.picture);
    return region;
  }

  QJsonArray CategoriesOf(const Share::RegionMap& map) {
    QJsonArray categories;
    for (const Share::Category& category : map.categories) {
      QJsonArray entities;
      for (const Share::Entity& entity : category.entities)
        entities.append(EntityOf(entity));
      categories.append(QJsonObject{{QStringLiteral("section"), ToQt(category.section)},
                                    {QStringLiteral("caption"), ToQt(category.caption)},
                                    {QStringLiteral("group"), ToQt(category.group)},
                                    {QStringLiteral("entities"), entities}});
    }
    return categories;
  }

  QJsonObject EntityOf(const Share::Entity& entity) {
    QJsonObject object = {{QStringLiteral("key"), ToQt(entity.key)},
                          {QStringLiteral("name"), ToQt(entity.name)}};
    if (entity.position) {
      object.insert(QStringLiteral("x"), entity.position->x);
      object.insert(QStringLiteral("y"), entity.position->y);
    }
    if (!entity.link.empty())
      object.insert(QStringLiteral("home"), ToQt(entity.link));
    if (entity.highlighted)
      object.insert(QStringLiteral("mark"), true);
    if (!entity.description.empty())
      object.insert(QStringLiteral("text"), ToQt(entity.description));
    if (options_.portraits && !entity.portrait.empty())
      AddPicture(object, QStringLiteral("portrait"), entity.portrait);
    return object;
  }

  World& world_;
  const Page::Options& options_;
  IniOps::Snapshot files_;
  PagePictures pictures_;
};

}  // namespace

namespace Page {

std::string Of(World& world, std::span<const Share::RegionMap> maps, const Options& options) {
  WorldObject object(world, options);
  const QJsonObject made = object.Make(maps);
  const QByteArray leaflet = WithoutSourceMap(BuiltIn("leaflet.min.js"));
  const QByteArray leafletStyle = WithoutSourceMap(BuiltIn("leaflet.css"));
  const QByteArray script = BuiltIn("page.js");
  const QByteArray style = BuiltIn("page.css");
  const QByteArray policy =
      "default-src 'none'; img-src data:; script-src" + HashesOf({leaflet, script}) +
      "; style-src" + HashesOf({leafletStyle, style}) + "; base-uri 'none'; form-action 'none'";
  const QJsonObject words = made[QStringLiteral("words")].toObject();
  const QByteArray data = QJsonDocument(made).toJson(QJsonDocument::Compact);
  return Filled(BuiltIn("page.html"),
                {{"language", {Escaped(made[QStringLiteral("language")].toString())}},
                 {"title", {Escaped(ToQt(options.title))}},
                 {"policy", {policy}},
                 {"leaflet-licence", {BuiltIn("leaflet-licence.txt")}},
                 {"leaflet-style", {leafletStyle}},
                 {"leaflet", {leaflet}},
                 {"style", {style}},
                 {"script", {script}},
                 {"no-script", {Escaped(words[QStringLiteral("noScript")].toString())}},
                 {"world", {QByteArray(data).replace("<", "\\u003c")}},
                 {"pictures", object.Pictures()}});
}

}  // namespace Page
