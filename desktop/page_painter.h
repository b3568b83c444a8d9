// Draws the pages of a job on paper, into a PDF or as a picture: every character in its cell of the grid, from tables
// of glyphs that are looked up once, because shaping each text anew takes most of the time of a long report.
#pragma once

#include <QFont>
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
  double Ascent;  // from the top of the area to the first base line
  double Pitch;   // from one line to the next
};

// The size that the job asks for, or the largest below it with which 80 columns, the widest line and the longest page
// stand inside the area, in pixels at that resolution (dots an inch). The lines move together before the size goes
// down.
PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution);

class PagePainter {
 public:
  // For that area, in pixels at that resolution.
  PagePainter(const runtime::PrintJob& job, QSizeF area, double resolution);
  // From the painter's origin on.
  void Paint(QPainter& painter, const runtime::PrintedPage& page);

 private:
  // A weight of the font, and the glyph of each character of the code page.
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
  // Of the line at hand; kept for their memory.
  QList<quint32> glyphs_;
  QList<QPointF> places_;
};

// Draws all pages inside the margins of the device's page layout; tells whether every page went through.
bool PaintPages(const runtime::PrintJob& job, QPagedPaintDevice& device);

}  // namespace desktop
