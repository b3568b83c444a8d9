// Finds the grid that fits the paper, deals the pages out to sheets and draws the characters.
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
// Keeps a line that fits exactly from being lost to rounding.
constexpr double Rounding = 1e-6;

}  // namespace

PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution) {
  std::size_t columns = Columns;
  std::size_t lines = 1;
  for (const runtime::PrintedPage& page : job.Pages) {
    if (page.Lines.size() <= LongestPage) lines = std::max(lines, page.Lines.size());
    for (const runtime::PrintedLine& line : page.Lines) columns = std::max(columns, line.From - 1 + line.Text.size());
  }
  double steps = static_cast<double>(lines - 1);
  double size = job.FontSize * resolution / PointsPerInch;
  size = std::min({size, area.width() / (CellPart * static_cast<double>(columns)), area.height() / (steps + LinePart)});
  double pitch = LinePart * size;
  if (steps > 0) pitch = std::min(pitch, (area.height() - LinePart * size) / steps);
  double further = std::max(0.0, (area.height() - LinePart * size) / pitch + Rounding);
  return {size, CellPart * size, AscentPart * size, pitch, 1 + static_cast<std::size_t>(further)};
}

std::vector<Sheet> SheetsOf(const runtime::PrintJob& job, std::size_t lines) {
  std::vector<Sheet> sheets;
  for (const runtime::PrintedPage& page : job.Pages) {
    Sheet rest(page.Lines);
    while (page.Lines.size() > LongestPage && rest.size() > lines) {
      sheets.push_back(rest.first(lines));
      rest = rest.subspan(lines);
    }
    sheets.push_back(rest);
  }
  if (sheets.empty()) sheets.emplace_back();
  return sheets;
}

std::vector<Sheet> Chosen(const std::vector<Sheet>& sheets, const SheetChoice& choice) {
  std::vector<Sheet> once;
  for (std::size_t at = 0; at < sheets.size(); ++at) {
    if (choice.Pages.isEmpty() || choice.Pages.contains(static_cast<int>(at) + 1)) once.push_back(sheets[at]);
  }
  if (choice.LastFirst) std::reverse(once.begin(), once.end());
  if (once.empty()) return once;
  auto copies = static_cast<std::size_t>(std::max(choice.Copies, 1));
  std::vector<Sheet> all;
  for (std::size_t at = 0; at < once.size() * copies; ++at)
    all.push_back(choice.Collated ? once[at % once.size()] : once[at / copies]);
  return all;
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

void PagePainter::Paint(QPainter& painter, Sheet sheet) {
  double base_line = grid_.Ascent;
  for (const runtime::PrintedLine& line : sheet) {
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

Painted PaintPages(const runtime::PrintJob& job, QPagedPaintDevice& device, const SheetChoice& choice,
                   const Progress& progress) {
  int resolution = device.logicalDpiX();
  PagePainter pages(job, device.pageLayout().paintRectPixels(resolution).size(), resolution);
  std::vector<Sheet> sheets = Chosen(SheetsOf(job, pages.LinesOnSheet()), choice);
  if (sheets.empty()) return Painted::Nothing;
  QPainter painter;
  if (!painter.begin(&device)) return Painted::Failed;
  for (std::size_t at = 0; at < sheets.size(); ++at) {
    if (progress) progress(static_cast<double>(at) / static_cast<double>(sheets.size()));
    if (at > 0 && !device.newPage()) return Painted::Failed;
    pages.Paint(painter, sheets[at]);
  }
  return painter.end() ? Painted::Done : Painted::Failed;
}

}  // namespace desktop
