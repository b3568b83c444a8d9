// Draws the pages of a job on paper or into a PDF: every character in its cell of the grid, from tables of glyphs that
// are looked up once, because shaping each text anew takes most of the time of a long report.
#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <array>

#include "runtime/print_job.h"

namespace desktop {

// How large the text of a job stands on paper, in device pixels; the same on all its pages.
struct PaperGrid {
  double Size;    // of the font
  double Cell;    // from one column to the next
  double Ascent;  // from the top of the paper's printable area to the first base line
  double Pitch;   // from one line to the next
};

// The size that the job asks for, or the largest below it with which 80 columns, the widest line and the longest page
// stand inside the area, in pixels at that resolution (dots an inch). The lines move together before the size goes down.
PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution);

class PagePainter {
 public:
  // The device's page layout is what the pages are fitted to.
  PagePainter(const runtime::PrintJob& job, QPagedPaintDevice& device);
  // Tells whether every page went through.
  bool Paint();

 private:
  // A weight of the font, and the glyph of each character of the code page; no glyph for a blank.
  struct Typeface {
    QRawFont Font;
    std::array<quint32, 256> Glyphs;
    std::array<bool, 256> Blank;
  };
  Typeface MakeTypeface(QFont::Weight weight) const;
  void PaintPage(const runtime::PrintedPage& page);
  void PaintLine(const runtime::PrintedLine& line, double base_line);

  const runtime::PrintJob& job_;
  QPagedPaintDevice& device_;
  PaperGrid grid_;
  Typeface plain_;
  Typeface bold_;
  QPainter painter_;
  // Of the line at hand; kept for their memory.
  QList<quint32> glyphs_;
  QList<QPointF> places_;
};

}  // namespace desktop
