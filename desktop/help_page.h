// The pages of the help viewer as rich text: a topic, the contents, what a search has found.
#pragma once

#include <QString>

#include "help/help_file.h"

namespace desktop {

QString TopicPage(const help::HelpTopic& topic);
QString ContentsPage(const help::HelpFile& file);
QString FoundPage(const help::HelpFile& file, const QString& words);
// A page that only says something.
QString NoticePage(const QString& text);

// A link's address for a topic, and the topic of such an address; 0 for any other.
QString AddressOf(int topic);
int TopicOf(const QString& address);

}  // namespace desktop
