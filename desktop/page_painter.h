// Draws the pages of a job on paper, into a PDF or as a picture. Every character has its cell of a grid, and glyphs are
// looked up once: shaping each text would take most of the time of a long report.
#pragma once

#include <QFont>
#include <QList>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QRawFont>
#include <array>
#include <functional>

#include "runtime/print_job.h"

namespace desktop {

// Text measures of a job in device pixels; the same on all its pages.
struct PaperGrid {
  double Size;    // of the font
  double Cell;    // from one column to the next
  double Ascent;  // from the top of the area to the first base line
  double Pitch;   // from one line to the next
};

// Uses the job's font size, or the largest smaller one at which 80 columns, the widest line and the longest page fit
// the area. Line spacing shrinks before the font does. Area in pixels; resolution in dots per inch.
PaperGrid FitGrid(const runtime::PrintJob& job, QSizeF area, double resolution);

class PagePainter {
 public:
  // Area in pixels; resolution in dots per inch.
  PagePainter(const runtime::PrintJob& job, QSizeF area, double resolution);
  // Draws from the painter's origin.
  void Paint(QPainter& painter, const runtime::PrintedPage& page);

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

// Draws all pages inside the margins of the device's page layout; false if one failed.
bool PaintPages(const runtime::PrintJob& job, QPagedPaintDevice& device, const Progress& progress = {});

}  // namespace desktop
