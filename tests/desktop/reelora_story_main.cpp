// The story runner: plays stories on the bare forms, or with --desktop on the drawn widgets. Needs no display.
#include <QApplication>
#include <iostream>
#include <memory>

#include "desktop/application_look.h"
#include "tests/desktop/widget_player.h"
#include "tests/story/story_main.h"

namespace {

// Without a display the toolkit keeps saying that it cannot raise a window.
void SayWhatMatters(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith("This plugin does not support"))
    std::cerr << qFormatLogMessage(type, context, text).toStdString() << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  int qt_argc = 1;
  std::unique_ptr<QApplication> application;
  // The toolkit starts with the first story that needs it; the bare forms do not.
  auto make_widget_player = [&](Program& program) -> std::unique_ptr<story::Player> {
    if (!application) {
      if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
      qInstallMessageHandler(SayWhatMatters);
      application = std::make_unique<QApplication>(qt_argc, argv);
      desktop::SetUpLook();
    }
    return std::make_unique<story::WidgetPlayer>(program);
  };
  return story::RunStories(argc, argv, make_widget_player);
}
