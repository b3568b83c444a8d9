// The toolkit lets no exception through its event loop, so it is caught before that.
#include "desktop/application.h"

#include <new>

namespace desktop {

bool Application::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::bad_alloc&) {
    if (!report_) throw;
    report_();
    return false;
  }
}

}  // namespace desktop
