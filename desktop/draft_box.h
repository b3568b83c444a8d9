// The box that asks at the start about a film that was being typed when the program stopped.
#pragma once

#include <QMessageBox>

#include "forms/desk.h"

namespace desktop {

// Esc and the close box answer Later.
class DraftBox final : public QMessageBox {
 public:
  DraftBox(const QString& title, const QString& film, QWidget* parent);
  forms::DraftAnswer Ask();

 private:
  QPushButton* keep_;
  QPushButton* drop_;
};

}  // namespace desktop
