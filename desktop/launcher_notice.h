// How `reelora` hands the program what the notice line shall say: by an environment variable, since the collection may
// be full or read-only.
#pragma once

#include <QString>

namespace desktop {

class StackView;

inline constexpr auto LauncherNoticeVariable = "REELORA_NOTICE";

// Takes the variable away, so that a program that is started again does not repeat it.
QString TakeLauncherNotice();
// Does nothing for an empty text.
void ShowLauncherNotice(StackView& view, const QString& text);

}  // namespace desktop
