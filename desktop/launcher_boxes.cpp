// The application object is made for the first window only: most starts need none.
#include "desktop/launcher_boxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <array>
#include <cstdio>

#include "desktop/application_look.h"
#include "desktop/collection_dialog.h"
#include "desktop/text.h"

namespace desktop {
namespace {

constexpr auto Title = "Reelora Prima";
constexpr auto PlatformVariable = "QT_QPA_PLATFORM";
constexpr auto NoDisplay = "offscreen";

// The toolkit aborts where the display that is named does not answer. With a platform to fall back on it goes on, and
// says which one it took.
std::unique_ptr<QApplication> OpenDisplay() {
  static int count = 1;
  static std::array<char, 14> name{"reelora-prima"};  // the windows are those of the program
  static std::array<char*, 2> arguments{name.data(), nullptr};
  if (!LauncherBoxes::CanHaveDisplay()) return nullptr;
  if (!qEnvironmentVariableIsEmpty(PlatformVariable)) return std::make_unique<QApplication>(count, arguments.data());
  bool wayland = qgetenv("XDG_SESSION_TYPE") == "wayland";
  qputenv(PlatformVariable, wayland ? "wayland;xcb;offscreen" : "xcb;wayland;offscreen");
  auto application = std::make_unique<QApplication>(count, arguments.data());
  qunsetenv(PlatformVariable);
  return QGuiApplication::platformName() == NoDisplay ? nullptr : std::move(application);
}

}  // namespace

LauncherBoxes::LauncherBoxes() = default;
LauncherBoxes::~LauncherBoxes() = default;

bool LauncherBoxes::CanHaveDisplay() {
  return !qEnvironmentVariableIsEmpty(PlatformVariable) || !qEnvironmentVariableIsEmpty("DISPLAY") ||
         !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

bool LauncherBoxes::HasDisplay() {
  if (QCoreApplication::instance()) return true;
  application_ = OpenDisplay();
  if (application_) SetUpLook();
  return application_ != nullptr;
}

launcher::Choice LauncherBoxes::Ask(const launcher::Question& question) {
  if (HasDisplay()) return CollectionDialog(question).Ask();
  Tell("There is no display to ask on. Name a folder: reelora FOLDER");
  return {};
}

bool LauncherBoxes::MayFill(const std::string& folder) {
  const std::string text = "The folder " + folder + " has other files in it, and no collection.";
  if (!HasDisplay()) {
    Tell(text);
    return false;
  }
  QMessageBox box(QMessageBox::Question, Title, Breakable(QString::fromStdString(text)), QMessageBox::Cancel);
  box.setTextFormat(Qt::PlainText);
  box.setInformativeText(QStringLiteral("Shall a new collection be put among them?"));
  QPushButton* put = box.addButton(QStringLiteral("&Put it there"), QMessageBox::AcceptRole);
  box.setDefaultButton(QMessageBox::Cancel);
  box.exec();
  return box.clickedButton() == put;
}

void LauncherBoxes::Tell(const std::string& text) {
  has_told_ = true;
  std::fprintf(stderr, "reelora: %s\n", text.c_str());
  if (!HasDisplay()) return;
  QMessageBox box(QMessageBox::Warning, Title, Breakable(QString::fromStdString(text)), QMessageBox::Ok);
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.exec();
}

}  // namespace desktop
