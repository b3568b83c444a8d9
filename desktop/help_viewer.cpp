// Reads and shows the help file.
#include "desktop/help_viewer.h"

#include <QFile>
#include <utility>

namespace desktop {
namespace {

constexpr char HelpFile[] = "Reelora4.HLP";
constexpr QRect StartPlace(256, 256, 512, 512);

}  // namespace

HelpViewer::HelpViewer(std::string folder) : folder_(std::move(folder)) {
  setWindowTitle(QStringLiteral("Reelora Prima Help"));
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setGeometry(StartPlace);
}

void HelpViewer::Open() {
  QFile file(QStringLiteral("%1/%2").arg(QFile::decodeName(folder_.c_str()), QLatin1String(HelpFile)));
  bool there = file.open(QIODevice::ReadOnly);
  setPlainText(there ? QString::fromUtf8(file.readAll())
                     : QStringLiteral("The help file %1 is missing.").arg(QLatin1String(HelpFile)));
  show();
  raise();
  activateWindow();
}

}  // namespace desktop
