// The pages of the help viewer as rich text: a topic, the contents, search results.
#pragma once

#include <QString>

#include "help/help_file.h"

namespace desktop {

QString TopicPage(const help::HelpTopic& topic);
QString ContentsPage(const help::HelpFile& file);
QString FoundPage(const help::HelpFile& file, const QString& words);
// A single message.
QString NoticePage(const QString& text);

// The link address of a topic, and the topic of a link address; 0 for any other address.
QString AddressOf(int topic);
int TopicOf(const QString& address);

}  // namespace desktop
