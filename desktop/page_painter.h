// Draws the pages of a job on paper, into a PDF or as a picture. Every character has its cell of a grid, and glyphs are
// looked up once: shaping each text would take most of the time of a long report.
#pragma once

#include <QFont>
#include <QList>
#include <QPageRanges>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <functional>
#include <span>
#include <vector>

#include "runtime/print_job.h"

namespace desktop {

// The most lines that count as one page. A longer page is of a job that was left unended, which grows; it goes on
// further sheets, so that it does not make the type of the other pages small.
inline constexpr std::size_t LongestPage = 62;

// Text measures of a job in device pixels; the same on all its sheets.
struct PaperGrid {
  double Size;        // of the font
  double Cell;        // from one column to the next
  double Ascent;      // from the top of the area to the first base line
  double Pitch;       // from one line to the next
  std::size_t Lines;  // that fit on a sheet
};

// Uses the job's font size, or the largest smaller one at which 80 columns, the widest line and every page up to the
// longest fit the area. Line spacing shrinks before the font does. Area in pixels; resolution in dots per inch.
PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution);

// The lines of one sheet of paper; they point into the job.
using Sheet = std::span<const runtime::PrintedLine>;
// One for each page, at least one; of a page longer than the longest as many as it needs, with that many lines each.
std::vector<Sheet> SheetsOf(const runtime::PrintJob& job, std::size_t lines);

// Which sheets of a job are printed. Pages: empty for all.
struct SheetChoice {
  QPageRanges Pages = {};
  int Copies = 1;
  bool Collated = true;
  bool LastFirst = false;
};
std::vector<Sheet> Chosen(const std::vector<Sheet>& sheets, const SheetChoice& choice);

class PagePainter {
 public:
  // Area in pixels; resolution in dots per inch.
  PagePainter(const runtime::PrintJob& job, QSizeF area, double resolution);
  // Draws from the painter's origin.
  void Paint(QPainter& painter, Sheet sheet);
  std::size_t LinesOnSheet() const { return grid_.Lines; }

 private:
  // One weight of the font, with the glyph of each character of the code page.
  struct Typeface {
    QRawFont Font;
    std::array<quint32, 256> Glyphs;
    std::array<bool, 256> Blank;
  };
  static Typeface MakeTypeface(const runtime::PrintJob& job, QFont::Weight weight, double size);
  void PaintLine(QPainter& painter, const runtime::PrintedLine& line, double base_line);

  PaperGrid grid_;
  Typeface plain_;
  Typeface bold_;
  // Of the current line; members only to reuse their memory.
  QList<quint32> glyphs_;
  QList<QPointF> places_;
};

// Gets the part that is done, from 0 to 1.
using Progress = std::function<void(double done)>;

// Nothing: the job has none of the chosen pages, and the device was not begun.
enum class Painted { Done, Nothing, Failed };
// Draws the chosen sheets inside the margins of the device's page layout.
Painted PaintPages(const runtime::PrintJob& job, QPagedPaintDevice& device, const SheetChoice& choice = {},
                   const Progress& progress = {});

}  // namespace desktop
