// Builds the pages from headings, paragraphs, lists and links.
#include "desktop/help_page.h"

namespace desktop {
namespace {

QString Escaped(const std::string& utf8) { return QString::fromStdString(utf8).toHtmlEscaped(); }

QString Link(int topic, const QString& words) {
  return QStringLiteral("<a href=\"%1\">%2</a>").arg(AddressOf(topic), words);
}

QString LinkTo(const help::HelpTopic& topic) {
  return topic.Numbers.empty() ? Escaped(topic.Title) : Link(topic.Numbers.front(), Escaped(topic.Title));
}

QString Heading(const QString& words) { return QStringLiteral("<h2>%1</h2>").arg(words); }

QString Words(const help::HelpParagraph& paragraph) {
  QString words;
  for (const help::HelpPiece& piece : paragraph.Pieces) {
    QString text = Escaped(piece.Text);
    words += piece.Link ? Link(piece.Link, text) : text;
  }
  return words;
}

}  // namespace

QString AddressOf(int topic) { return QStringLiteral("topic:%1").arg(topic); }

int TopicOf(const QString& address) { return address.startsWith(QLatin1String("topic:")) ? address.mid(6).toInt() : 0; }

QString NoticePage(const QString& text) { return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped()); }

QString TopicPage(const help::HelpTopic& topic) {
  QString page = QStringLiteral("<p><small>%1</small></p>").arg(Escaped(topic.Chapter)) + Heading(Escaped(topic.Title));
  bool in_list = false;
  for (const help::HelpParagraph& paragraph : topic.Paragraphs) {
    if (paragraph.Item != in_list) page += paragraph.Item ? "<ul>" : "</ul>";
    in_list = paragraph.Item;
    page += QStringLiteral("<%1>%2</%1>").arg(QLatin1String(in_list ? "li" : "p"), Words(paragraph));
  }
  return page + (in_list ? "</ul>" : "");
}

QString ContentsPage(const help::HelpFile& file) {
  QString page = Heading(QStringLiteral("Contents"));
  const std::string* chapter = nullptr;
  for (const help::HelpTopic& topic : file.Topics) {
    if (!chapter || *chapter != topic.Chapter) {
      page += QStringLiteral("%1<h3>%2</h3><ul>").arg(QLatin1String(chapter ? "</ul>" : ""), Escaped(topic.Chapter));
      chapter = &topic.Chapter;
    }
    page += QStringLiteral("<li>%1</li>").arg(LinkTo(topic));
  }
  return page + (chapter ? "</ul>" : "");
}

QString FoundPage(const help::HelpFile& file, const QString& words) {
  QString items;
  for (const help::HelpTopic& topic : file.Topics) {
    if (topic.Contains(words.simplified().toStdString())) items += QStringLiteral("<li>%1</li>").arg(LinkTo(topic));
  }
  QString heading = Heading(QStringLiteral("Topics with \u201c%1\u201d").arg(words.toHtmlEscaped()));
  if (items.isEmpty()) return heading + NoticePage(QStringLiteral("There is none."));
  return heading + QStringLiteral("<ul>%1</ul>").arg(items);
}

}  // namespace desktop
