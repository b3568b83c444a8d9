// One application object for all players.
#include "tests/desktop/widget_players.h"

#include <QApplication>
#include <iostream>
#include <memory>

#include "desktop/application_look.h"
#include "tests/desktop/widget_player.h"

namespace story {
namespace {

// Without a display the toolkit keeps saying that it cannot raise a window.
void SayWhatMatters(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (!text.startsWith("This plugin does not support"))
    std::cerr << qFormatLogMessage(type, context, text).toStdString() << "\n";
}

struct Toolkit {
  explicit Toolkit(char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(SayWhatMatters);
    Application = std::make_unique<QApplication>(Arguments, argv);
    desktop::SetUpLook();
  }
  int Arguments = 1;
  std::unique_ptr<QApplication> Application;
};

}  // namespace

PlayerFactory WidgetPlayers(char** argv) {
  auto toolkit = std::make_shared<std::unique_ptr<Toolkit>>();
  return [toolkit, argv](Program& program) -> std::unique_ptr<Player> {
    if (!*toolkit) *toolkit = std::make_unique<Toolkit>(argv);
    return std::make_unique<WidgetPlayer>(program);
  };
}

}  // namespace story
