#include "pictures/Subject.h"

#include <QFontMetricsF>
#include <algorithm>
#include <string>
#include <vector>

#include "map/Lettering.h"
#include "pictures/Creature.h"
#include "pictures/Portrait.h"
#include "pictures/Scene.h"
#include "pictures/Thing.h"

namespace Pictures {

namespace {

std::vector<std::string> Parts(std::string_view fileName) {
  const std::string_view stem = fileName.substr(0, fileName.rfind('.'));
  std::vector<std::string> parts(1);
  for (const char letter : stem) {
    if (letter == '-' && parts.size() < 4) {
      parts.emplace_back();
    } else {
      parts.back() += letter;
    }
  }
  return parts;
}

void PaintLetter(Canvas& canvas, QChar letter) {
  canvas.backdrop({196, 178, 140}, {112, 92, 66});
  const QFont font = Map::MapFont(64, true, false);
  QPainterPath path;
  path.addText(QPointF(0, 0), font, QString(letter.toUpper()));
  const QRectF box = path.boundingRect();
  canvas.body(path.translated(QPointF(50, 50) - box.center()), {92, 52, 36});
}

bool PaintKnown(Canvas& canvas, const std::vector<std::string>& parts) {
  const auto part = [&parts](std::size_t index) {
    return index < parts.size() ? std::string_view(parts[index]) : std::string_view();
  };
  if (part(0) == "person" && parts.size() > 3) {
    const std::string_view name = part(3).substr(0, part(3).find('-'));
    const std::string_view marks = part(3).substr(std::min(name.size() + 1, part(3).size()));
    PaintPerson(canvas, MakePerson(part(1), part(2), name, marks));
    return true;
  }
  if (part(0) == "creature") {
    return PaintCreature(canvas, part(1));
  }
  if (part(0) == "place") {
    return PaintScene(canvas, part(1), part(2));
  }
  return part(0) == "object" && PaintThing(canvas, part(1));
}

}  // namespace

QImage PaintSubject(std::string_view fileName) {
  const std::vector<std::string> parts = Parts(fileName);
  return Framed([&parts](Canvas& canvas) {
    if (!PaintKnown(canvas, parts)) {
      const std::string& last = parts.back();
      PaintLetter(canvas, last.empty() ? QChar(u'?') : QChar::fromLatin1(last.front()));
    }
  });
}

QImage PaintFallback() {
  return Framed(PaintStranger);
}

}  // namespace Pictures
