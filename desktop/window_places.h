// Where the user left each window and how large, kept in the user's settings and not in the collection.
#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <optional>

namespace desktop {

struct WindowPlace {
  QRect Area;  // as it is when not maximized; the frame is left out of the size
  bool Maximized = false;
  bool operator==(const WindowPlace&) const = default;
};

class WindowPlaces {
 public:
  // Of this user.
  WindowPlaces();
  explicit WindowPlaces(QString file) : file_(std::move(file)) {}

  // Nothing if it is not known.
  std::optional<WindowPlace> Of(const QString& window) const;
  void Keep(const QString& window, const WindowPlace& place);

 private:
  QString file_;
};

// The area moved, and made smaller if it must be, so that it is on the screen that shows most of it; on the first one
// if none shows any. At least one screen.
QRect InSight(const QRect& area, const QList<QRect>& screens);

}  // namespace desktop
