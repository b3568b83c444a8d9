// Sets captions, and finds the font size at which a caption fits.
#include "desktop/label_view.h"

#include <QFontMetrics>
#include <QPainter>
#include <QRegularExpression>
#include <utility>

#include "desktop/artwork.h"
#include "desktop/face.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr int SmallestFont = 6;  // pixels

// Folds short runs of blanks in a tag; a long run stood for a line break.
QString Unpadded(std::string_view caption) {
  static const QRegularExpression LineBreak(QStringLiteral("   +"));
  QStringList lines = Shown(caption).trimmed().split(LineBreak);
  for (QString& line : lines) line = line.simplified();
  return lines.join('\n');
}

}  // namespace

LabelView::LabelView(forms::Label& label, QWidget& parent, bool tag)
    : QLabel(&parent), ControlView(label), label_(label), tag_(tag) {
  setTextFormat(Qt::PlainText);
  setWordWrap(true);
  setMargin(0);
  bool left = label.Look().Lines == forms::Align::Left;
  setAlignment((left ? Qt::AlignLeft : Qt::AlignHCenter) | (tag ? Qt::AlignTop : Qt::AlignVCenter));
}

void LabelView::ApplyLook(const Grid& grid) {
  const forms::Look& look = label_.Look();
  full_size_ = grid.Font(look);
  if (tag_) full_size_.setBold(false);
  QPalette colours = palette();
  colours.setColor(QPalette::WindowText, ToColour(look.Fore));
  colours.setColor(QPalette::Window, ToColour(look.Back));
  setPalette(colours);
  fitted_ = false;
}

void LabelView::ApplyContent() {
  QString wanted = tag_ ? Unpadded(label_.Caption()) : Shown(label_.Caption()).remove('\r');
  if (wanted != text()) {
    setText(wanted);
    // An empty figure has no box.
    if (label_.Look().Border) setFrameStyle(wanted.isEmpty() ? QFrame::NoFrame : QFrame::Box | QFrame::Plain);
    setAccessibleName(AccessibleName(label_));
    fitted_ = false;
  }
  // Each font size costs time when it is first used: an empty label needs none.
  if (std::exchange(fitted_, true) || wanted.isEmpty()) return;
  FitFont();
}

// A label of the window's own colour paints no ground, so that a band of the window shows through.
void LabelView::paintEvent(QPaintEvent* event) {
  QColor back = palette().color(QPalette::Window);
  if (!label_.Look().Transparent && back != parentWidget()->palette().color(QPalette::Window))
    QPainter(this).fillRect(rect(), back);
  QLabel::paintEvent(event);
}

void LabelView::FitFont() {
  QFont font = full_size_;
  QRect place = contentsRect();
  while (font.pixelSize() > SmallestFont) {
    QRect needed =
        QFontMetrics(font).boundingRect(QRect(0, 0, place.width(), 0), Qt::TextWordWrap | Qt::AlignHCenter, text());
    // A caption may overhang by half a descent: the line height includes more room than the text needs.
    if (needed.height() - QFontMetrics(font).descent() / 2 <= place.height() && needed.width() <= place.width()) break;
    font.setPixelSize(font.pixelSize() - 1);
  }
  if (font != this->font()) setFont(font);
}

StripView::StripView(forms::Control& strip, QWidget& parent) : QWidget(&parent), ControlView(strip) {
  setAutoFillBackground(true);
}

void StripView::ApplyLook(const Grid&) {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, ToColour(Control().Look().Back));
  setPalette(colours);
}

void StripView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QColor back = Lit(palette().color(QPalette::Window));
  painter.fillRect(rect(), back);
  painter.fillRect(0, height() - 1, width(), 1, EdgeOn(back, Qt::black));
}

PictureView::PictureView(forms::Picture& picture, QWidget& parent)
    : QWidget(&parent), ControlView(picture), picture_(picture) {
  setAccessibleName(AccessibleName(picture));
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QSize size = ArtworkSize(picture_.Icon).scaled(this->size(), Qt::KeepAspectRatio);
  QRect area(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), size);
  painter.drawPixmap(area, Artwork(picture_.Icon, size, devicePixelRatioF()));
}

}  // namespace desktop
