// A list box as a native list.
#pragma once

#include <QListWidget>
#include <string>
#include <vector>

#include "desktop/control_view.h"

namespace desktop {

class ListView final : public QListWidget, public ControlView {
 public:
  ListView(forms::ListBox& list, QWidget& parent);
  QWidget& Widget() override { return *this; }
  QWidget& Face() override { return *viewport(); }
  forms::ListBox& List() const { return list_; }
  bool Mirroring() const { return mirroring_; }

 protected:
  void ApplyLook(const Grid& grid) override;
  void ApplyContent() override;
  void focusInEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void ShowWholeRows();
  void NameDrives();

  forms::ListBox& list_;
  std::vector<std::string> shown_;
  bool mirroring_ = false;
};

}  // namespace desktop
