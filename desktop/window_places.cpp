// A section for each window. What is no place is passed over.
#include "desktop/window_places.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>

namespace desktop {
namespace {

constexpr auto AreaKey = "/Area";
constexpr auto MaximizedKey = "/Maximized";
constexpr int TitleBar = 40;  // room for it, in pixels

std::int64_t Shown(const QRect& area, const QRect& screen) {
  QRect part = area & screen;
  return part.isEmpty() ? 0 : std::int64_t{part.width()} * part.height();
}

}  // namespace

WindowPlaces::WindowPlaces()
    : file_(QDir(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation))
                .filePath(QStringLiteral("reelora-prima/windows.ini"))) {}

std::optional<WindowPlace> WindowPlaces::Of(const QString& window) const {
  QSettings settings(file_, QSettings::IniFormat);
  QRect area = settings.value(window + AreaKey).toRect();
  if (area.isEmpty()) return std::nullopt;
  return WindowPlace{area, settings.value(window + MaximizedKey).toBool()};
}

void WindowPlaces::Keep(const QString& window, const WindowPlace& place) {
  QSettings settings(file_, QSettings::IniFormat);
  settings.setValue(window + AreaKey, place.Area);
  settings.setValue(window + MaximizedKey, place.Maximized);
}

QRect InSight(const QRect& area, const QList<QRect>& screens) {
  const QRect& screen = *std::ranges::max_element(
      screens, [](std::int64_t left, std::int64_t right) { return left < right; },
      [&](const QRect& one) { return Shown(area, one); });
  QSize size = area.size().boundedTo(screen.size() - QSize(0, TitleBar));
  return {std::clamp(area.x(), screen.x(), screen.x() + screen.width() - size.width()),
          std::clamp(area.y(), screen.y(), screen.y() + screen.height() - TitleBar - size.height()), size.width(),
          size.height()};
}

}  // namespace desktop
