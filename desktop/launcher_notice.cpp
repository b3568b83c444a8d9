#include "desktop/launcher_notice.h"

#include "desktop/notices.h"
#include "desktop/stack_view.h"

namespace desktop {

QString TakeLauncherNotice() {
  QString text = qEnvironmentVariable(LauncherNoticeVariable);
  qunsetenv(LauncherNoticeVariable);
  return text;
}

void ShowLauncherNotice(StackView& view, const QString& text) {
  if (!text.isEmpty()) view.Notices().Show(text, {}, LauncherNotice);
}

}  // namespace desktop
