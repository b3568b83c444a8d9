// The failure report: the failure's name and file, then in plain words what it means, what is safe and what to do.
#pragma once

#include <QMessageBox>

#include "runtime/failure.h"

namespace desktop {

class FailureBox final : public QMessageBox {
 public:
  enum class Choice { Close, StartAgain };

  // Folder: of the collection.
  FailureBox(const runtime::Failure& failure, const QString& folder, QWidget* parent);
  // Shows the box and waits. Esc and the close box close.
  Choice Ask();

 private:
  QPushButton* start_again_;
};

}  // namespace desktop
