// The printer and the paper that the user chose last, kept in the user's settings for the next run.
#pragma once

#include <QLocale>
#include <QPageLayout>
#include <QPrinter>
#include <memory>

namespace desktop {

// The paper of a PDF file: Letter where people measure in inches, A4 elsewhere.
QPageLayout HomePaper(const QLocale& locale = QLocale::system());

// The printer that was remembered, else the machine's default one; a printer of PDF files if there is none.
std::unique_ptr<QPrinter> RememberedPrinter();

// PDF files count as a printer; the file is not remembered. Paper: the layout too, else the remembered one stays.
void RememberPrinter(const QPrinter& printer, bool paper);

}  // namespace desktop
