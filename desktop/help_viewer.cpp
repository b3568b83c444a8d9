// Lays out the viewer and moves between pages.
#include "desktop/help_viewer.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QShortcut>
#include <QStyle>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>

#include "desktop/accessible.h"
#include "desktop/help_page.h"
#include "runtime/whole_io.h"

namespace desktop {
namespace {

constexpr QRect StartPlace(256, 256, 512, 512);
constexpr int PageMargin = 12;
// In points.
constexpr int SmallestScale = -4;
constexpr int LargestScale = 24;
constexpr std::int64_t LongestFile = 4 * 1024 * 1024;  // bytes

QString HelpFile() {
  return QString::fromUtf8(help::HelpFileName.data(), static_cast<qsizetype>(help::HelpFileName.size()));
}

// Throws a Failure.
std::string TextOfFile(const std::string& folder) {
  runtime::RealDisk disk(folder);
  const runtime::OpenFile file(disk, std::string(help::HelpFileName), runtime::Disk::Mode::Read);
  const std::int64_t length = file.Length();
  if (length > LongestFile) throw runtime::Failure{runtime::PathError, file.Name()};
  std::string text(static_cast<std::size_t>(length), '\0');
  text.resize(file.Read(text.data(), text.size(), 0));
  return text;
}

}  // namespace

QRect PlaceOn(const QRect& screen, QRect place) {
  place.setSize(place.size().boundedTo(screen.size()));
  place.moveLeft(std::clamp(place.left(), screen.left(), screen.right() + 1 - place.width()));
  place.moveTop(std::clamp(place.top(), screen.top(), screen.bottom() + 1 - place.height()));
  return place;
}

HelpViewer::HelpViewer(std::string folder)
    : folder_(std::move(folder)),
      contents_(QStringLiteral("&Contents"), this),
      back_(QStringLiteral("&Back"), this),
      search_(QStringLiteral("&Search"), this),
      search_line_(this),
      page_(this) {
  InstallAccessibility();
  setWindowTitle(QStringLiteral("Reelora Prima Help"));
  setGeometry(StartPlace);
  LayOut();
  SetUpKeys();
  connect(&contents_, &QPushButton::clicked, this, [this] { ShowContents(); });
  connect(&back_, &QPushButton::clicked, this, [this] { GoBack(); });
  connect(&search_, &QPushButton::clicked, this, [this] { Search(search_line_.text()); });
  connect(&search_line_, &QLineEdit::returnPressed, this, [this] { Search(search_line_.text()); });
  // The toolkit paints the text anew when the focus comes or goes, but not its frame.
  connect(qApp, &QApplication::focusChanged, &page_, qOverload<>(&QWidget::update));
  connect(&page_, &QTextBrowser::anchorClicked, this, [this](const QUrl& url) { GoTo(TopicOf(url.toString())); });
  connect(&page_, &QTextBrowser::cursorPositionChanged, this, [this] { SayLinks(); });
  page_.Tabbed = [this] { SayLinks(); };
}

void HelpViewer::LayOut() {
  auto row = std::make_unique<QHBoxLayout>();
  row->addWidget(&contents_);
  row->addWidget(&back_);
  row->addWidget(&search_line_, 1);
  row->addWidget(&search_);
  auto column = std::make_unique<QVBoxLayout>();
  column->addLayout(row.release());
  column->addWidget(&page_, 1);
  setLayout(column.release());
  setTabOrder(&search_line_, &search_);
  setTabOrder(&search_, &page_);
  auto hint = QStringLiteral("Search for words");
  QFontMetrics letters(search_line_.font());
  search_line_.setPlaceholderText(hint);
  search_line_.setMinimumWidth(letters.horizontalAdvance(hint) + letters.height());
  search_line_.setAccessibleName(QStringLiteral("Words to search for"));
  page_.setAccessibleName(QStringLiteral("Help text"));
  page_.setOpenLinks(false);
  page_.setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  page_.document()->setDocumentMargin(PageMargin);
}

void HelpViewer::SetUpKeys() {
  // The underlined letter leads to the line: without words in it the button has nothing to do.
  search_.setShortcut({});
  auto key = [this](const QKeySequence& keys, auto doing) {
    connect(std::make_unique<QShortcut>(keys, this).release(), &QShortcut::activated, this, doing);
  };
  for (const char* keys : {"Ctrl+F", "Alt+S"}) key(QKeySequence(keys), [this] { GoToSearchLine(); });
  key(QKeySequence("Alt+Left"), [this] { GoBack(); });
  // The plus without Shift is on the key of the equals sign.
  for (const char* keys : {"Ctrl++", "Ctrl+="}) key(QKeySequence(keys), [this] { Scale(1); });
  key(QKeySequence("Ctrl+-"), [this] { Scale(-1); });
  key(QKeySequence("Ctrl+0"), [this] { Scale(-scale_); });
}

void HelpViewer::ReadFile() {
  try {
    file_ = help::ParseHelp(TextOfFile(folder_));
    trouble_.clear();
  } catch (const runtime::Failure& failure) {
    trouble_ = failure.Name == runtime::FileNotFound ? QStringLiteral("is missing") : QStringLiteral("cannot be read");
  }
}

void HelpViewer::Open(int topic) {
  ReadFile();
  GoTo(topic);
  page_.setFocus();
  FitOnScreen();
  GoAboveModalWindow();
  show();
  raise();
  activateWindow();
}

void HelpViewer::ShowContents() { GoTo(0); }

void HelpViewer::Search(const QString& words) {
  if (words.simplified().isEmpty()) return;
  GoTo(words.simplified());
  page_.setFocus();
}

void HelpViewer::GoToSearchLine() {
  search_line_.setFocus(Qt::ShortcutFocusReason);
  search_line_.selectAll();
}

void HelpViewer::Scale(int steps) {
  int scale = std::clamp(scale_ + steps, SmallestScale, LargestScale);
  page_.zoomIn(scale - std::exchange(scale_, scale));
}

// A modal window takes the input of all others except its own, so the help becomes one of its own.
void HelpViewer::GoAboveModalWindow() {
  winId();
  const QWidget* modal = QApplication::activeModalWidget();
  QWindow* owner = modal ? modal->window()->windowHandle() : nullptr;
  if (windowHandle()->transientParent() == owner) return;
  hide();
  windowHandle()->setTransientParent(owner);
}

// The title bar counts too; before the window has one, the style tells about how high it will be.
void HelpViewer::FitOnScreen() {
  QMargins frame(geometry().left() - frameGeometry().left(), geometry().top() - frameGeometry().top(),
                 frameGeometry().right() - geometry().right(), frameGeometry().bottom() - geometry().bottom());
  if (frame.isNull()) frame.setTop(style()->pixelMetric(QStyle::PM_TitleBarHeight));
  setGeometry(PlaceOn(screen()->availableGeometry().marginsRemoved(frame), geometry()));
}

void HelpViewer::GoTo(Place place) {
  if (visited_.empty() || visited_.back() != place) visited_.push_back(std::move(place));
  Show(visited_.back());
}

void HelpViewer::GoBack() {
  if (visited_.size() < 2) return;
  visited_.pop_back();
  Show(visited_.back());
}

void HelpViewer::Show(const Place& place) {
  page_.setHtml(PageOf(place));
  SayPage();
  back_.setEnabled(visited_.size() > 1);
  for (QWidget* part :
       {static_cast<QWidget*>(&contents_), static_cast<QWidget*>(&search_line_), static_cast<QWidget*>(&search_)})
    part->setEnabled(trouble_.isEmpty());
}

// Chapter and title, or the heading.
void HelpViewer::SayPage() {
  QStringList lines = page_.toPlainText().split(u'\n');
  for (const QString& line : lines.first(std::min<qsizetype>(2, lines.size()))) speech_.Add(line);
  speech_.Say();
  caret_ = 0;
}

void HelpViewer::SayLinks() {
  QTextCursor now = page_.textCursor();
  for (const QString& words : LinksReached(now, std::exchange(caret_, now.selectionStart())))
    speech_.Add(QStringLiteral("Link %1").arg(words));
  speech_.Say();
}

QString HelpViewer::PageOf(const Place& place) const {
  if (!trouble_.isEmpty()) return NoticePage(QStringLiteral("The help file %1 %2.").arg(HelpFile(), trouble_));
  if (const QString* words = std::get_if<QString>(&place)) return FoundPage(file_, *words);
  const help::HelpTopic* topic = file_.Find(std::get<int>(place));
  return topic ? TopicPage(*topic) : ContentsPage(file_);
}

void HelpViewer::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
  } else if (event->key() == Qt::Key_F1) {
    ShowContents();
  } else {
    QWidget::keyPressEvent(event);
  }
}

}  // namespace desktop
