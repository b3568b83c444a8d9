// Finds the grid that fits the paper and draws the characters on it.
#include "desktop/page_painter.h"

#include <QGlyphRun>
#include <algorithm>

#include "desktop/text.h"

namespace desktop {
namespace {

constexpr double PointsPerInch = 72;
constexpr int Columns = 80;
// Courier's metrics relative to its size: ten characters per inch at 12 points; ascent and descent of a line.
constexpr double CellPart = 0.6;
constexpr double AscentPart = 0.8333;
constexpr double DescentPart = 0.3;
constexpr double LinePart = AscentPart + DescentPart;

}  // namespace

PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution) {
  std::size_t columns = Columns;
  std::size_t lines = 1;
  for (const runtime::PrintedPage& page : job.Pages) {
    lines = std::max(lines, page.Lines.size());
    for (const runtime::PrintedLine& line : page.Lines) columns = std::max(columns, line.From - 1 + line.Text.size());
  }
  double steps = static_cast<double>(lines - 1);
  double size = job.FontSize * resolution / PointsPerInch;
  size = std::min({size, area.width() / (CellPart * static_cast<double>(columns)), area.height() / (steps + LinePart)});
  double pitch = LinePart * size;
  if (steps > 0) pitch = std::min(pitch, (area.height() - LinePart * size) / steps);
  return {size, CellPart * size, AscentPart * size, pitch};
}

PagePainter::PagePainter(const runtime::PrintJob& job, QSizeF area, double resolution)
    : grid_(FitGrid(job, area, resolution)),
      plain_(MakeTypeface(job, QFont::Normal, grid_.Size)),
      bold_(MakeTypeface(job, QFont::Bold, grid_.Size)) {}

PagePainter::Typeface PagePainter::MakeTypeface(const runtime::PrintJob& job, QFont::Weight weight, double size) {
  QFont font(Shown(job.FontName));
  font.setStyleHint(QFont::Monospace);
  font.setFixedPitch(true);
  font.setWeight(weight);
  Typeface face{QRawFont::fromFont(font), {}, {}};
  face.Font.setPixelSize(size);
  for (std::size_t code = 0; code < face.Glyphs.size(); ++code) {
    char character = static_cast<char>(code);
    QString shown = Shown({&character, 1});
    face.Blank[code] = shown[0].isSpace() || !shown[0].isPrint();
    face.Glyphs[code] = face.Font.glyphIndexesForString(shown).value(0);
  }
  return face;
}

void PagePainter::Paint(QPainter& painter, const runtime::PrintedPage& page) {
  double base_line = grid_.Ascent;
  for (const runtime::PrintedLine& line : page.Lines) {
    if (!line.Text.empty()) PaintLine(painter, line, base_line);
    base_line += grid_.Pitch;
  }
}

void PagePainter::PaintLine(QPainter& painter, const runtime::PrintedLine& line, double base_line) {
  const Typeface& face = line.Bold ? bold_ : plain_;
  double left = (line.From - 1) * grid_.Cell;
  glyphs_.clear();
  places_.clear();
  for (std::size_t at = 0; at < line.Text.size(); ++at) {
    auto code = static_cast<unsigned char>(line.Text[at]);
    if (face.Blank[code]) continue;
    glyphs_.append(face.Glyphs[code]);
    places_.append(QPointF(left + static_cast<double>(at) * grid_.Cell, 0));
  }
  QGlyphRun run;
  run.setRawFont(face.Font);
  run.setRawData(glyphs_.constData(), places_.constData(), static_cast<int>(glyphs_.size()));
  painter.drawGlyphRun(QPointF(0, base_line), run);
  if (!line.Underline) return;
  painter.fillRect(QRectF(left, base_line + face.Font.underlinePosition(),
                          static_cast<double>(line.Text.size()) * grid_.Cell, face.Font.lineThickness()),
                   Qt::black);
}

bool PaintPages(const runtime::PrintJob& job, QPagedPaintDevice& device, const Progress& progress) {
  int resolution = device.logicalDpiX();
  PagePainter pages(job, device.pageLayout().paintRectPixels(resolution).size(), resolution);
  QPainter painter;
  if (!painter.begin(&device)) return false;
  std::size_t drawn = 0;
  for (const runtime::PrintedPage& page : job.Pages) {
    if (progress) progress(static_cast<double>(drawn) / static_cast<double>(job.Pages.size()));
    if (drawn++ > 0 && !device.newPage()) return false;
    pages.Paint(painter, page);
  }
  return painter.end();
}

}  // namespace desktop
