// Puts the texts together.
#include "desktop/notices.h"

#include <QDir>
#include <QList>
#include <QLocale>
#include <QStringList>

namespace desktop {
namespace {

constexpr qsizetype MaxNamed = 4;

QString NameOf(char32_t character) {
  if (character == U'\n' || character == U'\r') return QStringLiteral("A line break");
  if (character == U'\t') return QStringLiteral("A tab");
  if (QChar::isPrint(character) && !QChar::isMark(character) && !QChar::isSpace(character))
    return QString::fromUcs4(&character, 1);
  return QStringLiteral("The character U+") +
         QString::number(static_cast<uint>(character), 16).toUpper().rightJustified(4, '0');
}

}  // namespace

QString SavedText(const QString& path) { return QStringLiteral("Saved as %1").arg(QDir::toNativeSeparators(path)); }

QString SentText(const QString& queue) { return QStringLiteral("Sent to the printer %1").arg(queue); }

QString NothingPrintedText() {
  return QStringLiteral("Nothing was printed: this report has none of the pages chosen in Setup Printer");
}

QString CopiedText(const QString& file, const QString& disk, char drive, std::int64_t bytes) {
  QString where = disk.isEmpty() ? QStringLiteral("drive %1").arg(QLatin1Char(drive))
                                 : QStringLiteral("the disk %1 in drive %2").arg(disk, QChar(QLatin1Char(drive)));
  return QStringLiteral("Copied %1 to %2: %3 bytes")
      .arg(file, where, QLocale().toString(static_cast<qlonglong>(bytes)));
}

QString NotStoredText(const QString& characters) {
  QStringList names;
  for (char32_t character : characters.toUcs4())
    if (QString name = NameOf(character); !names.contains(name)) names.append(name);
  qsizetype more = names.size() - MaxNamed;
  if (more > 1) {
    names.resize(MaxNamed);
    names.append(QStringLiteral("%1 other characters").arg(more));
  }
  QString last = names.takeLast();
  return (names.isEmpty() ? last : names.join(QStringLiteral(", ")) + QStringLiteral(" and ") + last) +
         QStringLiteral(" cannot be stored");
}

}  // namespace desktop
