// The texts of the notices, and the keys under which they stand in the notice line.
#pragma once

#include <QString>
#include <cstdint>

namespace desktop {

inline const QString ReportNotice = QStringLiteral("report");
inline const QString CopyNotice = QStringLiteral("copy");
inline const QString DraftNotice = QStringLiteral("draft");
inline const QString CharacterNotice = QStringLiteral("characters");
inline const QString LauncherNotice = QStringLiteral("launcher");

QString SavedText(const QString& path);
QString SentText(const QString& queue);
// A report has none of the pages that the user chose.
QString NothingPrintedText();
// Disk: its name, "" for none; drive: its letter.
QString CopiedText(const QString& file, const QString& disk, char drive, std::int64_t bytes);
// Names the characters that were not taken, each once; at least one.
QString NotStoredText(const QString& characters);

}  // namespace desktop
