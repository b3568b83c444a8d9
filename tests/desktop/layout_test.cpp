// The record screen at 100 % and 200 %: nothing is cut off, nothing overlaps.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

#include "tests/desktop/widget_player.h"
#include "tests/kit/fresh_folder.h"
#include "tests/kit/source_tree.h"
#include "tests/story/planned_desk.h"
#include "tests/story/set_up.h"

namespace story {
namespace {

class Layout : public testing::TestWithParam<int> {
 protected:
  Layout() {
    LayOutFolder(world_, kit::DeliveredFolder());
    program_.StartRecordScreen();
    view_.Sync();
    QWidget& surface = Form().Surface();
    Form().resize(QSize(577, 480) * GetParam() + Form().size() - surface.size());
    QApplication::processEvents();
  }

  desktop::FormView& Form() { return *view_.Front(); }

  // The visible widgets, except the toolbar strip and transparent labels.
  std::vector<QWidget*> Shown() {
    std::vector<QWidget*> shown;
    for (const forms::Control* control : program_.RecordScreen.Controls()) {
      bool opaque = !control->Look().Transparent && control->Kind != forms::Kind::Strip;
      if (opaque && control->Kind != forms::Kind::MenuItem && control->Visible())
        shown.push_back(&Form().ViewOf(*control)->Widget());
    }
    return shown;
  }

  void ExpectNothingOverlaps() {
    std::vector<QWidget*> shown = Shown();
    for (QWidget* one : shown) {
      EXPECT_TRUE(Form().Surface().rect().contains(one->geometry())) << NameOf(*one);
      for (QWidget* other : shown) {
        bool apart = one == other || !one->geometry().intersects(other->geometry());
        EXPECT_TRUE(apart) << NameOf(*one) << " and " << NameOf(*other);
      }
    }
  }

  void ExpectNothingCutOff() {
    for (QWidget* widget : Shown()) {
      auto* label = dynamic_cast<QLabel*>(widget);
      if (!label || label->text().isEmpty()) continue;
      QFontMetrics metrics(label->font());
      QRect needed =
          metrics.boundingRect(QRect(0, 0, label->contentsRect().width(), 0), Qt::TextWordWrap, label->text());
      EXPECT_LE(needed.width(), label->contentsRect().width()) << NameOf(*label);
      EXPECT_LE(needed.height() - metrics.descent(), label->contentsRect().height()) << NameOf(*label);
      EXPECT_GE(label->font().pixelSize(), 9 * GetParam()) << NameOf(*label);
    }
  }

  std::string NameOf(const QWidget& widget) {
    for (const forms::Control* control : program_.RecordScreen.Controls())
      if (desktop::ControlView* view = Form().ViewOf(*control); view && &view->Widget() == &widget)
        return control->Name;
    return "?";
  }

  kit::FreshFolder fresh_;
  World world_{fresh_.Path()};
  PlannedDesk desk_{world_};
  runtime::RealDisk disk_{fresh_.Path().string()};
  Program program_{desk_, disk_};
  desktop::StackView view_{program_.Windows, [this](const std::function<void()>& event) { program_.Deliver(event); }};
};

TEST_P(Layout, PageOneIsWholeAndNeat) {
  ExpectNothingOverlaps();
  ExpectNothingCutOff();
}

TEST_P(Layout, PageTwoIsWholeAndNeat) {
  view_.Deliver([&] { program_.RecordScreen.UserClick(program_.RecordScreen.optnoteson); });
  ASSERT_TRUE(program_.RecordScreen.txtProducer.Visible());
  ExpectNothingOverlaps();
  ExpectNothingCutOff();
}

TEST_P(Layout, EveryFieldAndButtonHasANameToBeSpoken) {
  for (const forms::Control* control : program_.RecordScreen.Controls()) {
    if (!control->CanHoldFocus() || !control->Visible()) continue;
    EXPECT_FALSE(Form().ViewOf(*control)->Widget().accessibleName().isEmpty()) << control->Name;
  }
  EXPECT_EQ(Form().ViewOf(program_.RecordScreen.txtGenre)->Widget().accessibleName(), "Genre Click box");
  EXPECT_EQ(Form().ViewOf(program_.RecordScreen.cmdNew)->Widget().accessibleName(), "New");
}

INSTANTIATE_TEST_SUITE_P(Scales, Layout, testing::Values(1, 2),
                         [](const auto& scale) { return "Times" + std::to_string(scale.param); });

}  // namespace
}  // namespace story
