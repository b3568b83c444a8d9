// Windows open where the user left them, and always in sight.
#include "desktop/window_places.h"

#include <gtest/gtest.h>

#include <QFile>

#include "tests/desktop/drawn_window.h"
#include "tests/kit/fresh_folder.h"

namespace desktop {
namespace {

const QRect Left(0, 0, 1000, 800);
const QRect Right(1000, 0, 1000, 800);

TEST(InSight, ThatIsWhereItWasLeft) {
  for (const QRect& area : {QRect(100, 100, 500, 400), QRect(1100, 300, 500, 400), QRect(0, 0, 1000, 760)})
    EXPECT_EQ(InSight(area, {Left, Right}), area);
}

TEST(InSight, OfAScreenThatIsGoneComesToTheOneThatIsThere) {
  EXPECT_EQ(InSight({1100, 300, 500, 400}, {Left}), QRect(500, 300, 500, 400));
  EXPECT_EQ(InSight({-3000, -2000, 500, 400}, {Left}), QRect(0, 0, 500, 400));
  EXPECT_EQ(InSight({300, 5000, 500, 400}, {Left}), QRect(300, 360, 500, 400));
}

TEST(InSight, BelongsToTheScreenThatShowsMost) {
  EXPECT_EQ(InSight({900, 100, 500, 400}, {Left, Right}), QRect(1000, 100, 500, 400));
  EXPECT_EQ(InSight({600, 100, 500, 400}, {Left, Right}), QRect(500, 100, 500, 400));
}

TEST(InSight, IsMadeSmallerForASmallScreen) {
  EXPECT_EQ(InSight({200, 200, 2000, 1500}, {Left}), QRect(0, 0, 1000, 760));
}

class Remembered : public testing::Test {
 protected:
  QString File() const { return QString::fromStdString((Folder.Path() / "windows.ini").string()); }
  // A run of the program that the user ends with the small window in that state.
  template <typename Use>
  void Run(Use use) {
    WindowPlaces places(File());
    DrawnPlaces window(places);
    use(window.Drawn());
  }

  class DrawnPlaces : public kit::SmallScreen {
   public:
    explicit DrawnPlaces(WindowPlaces& places) {
      View.RememberPlaces(places);
      Window.Show();
      View.Sync();
    }
    StackView View{Windows, [](const std::function<void()>& event) { event(); }};
    FormView& Drawn() { return *View.ViewOf(Window); }
  };

  kit::FreshFolder Folder;
};

TEST_F(Remembered, SizeAndPlaceOfTheLastRun) {
  Run([](FormView& view) {
    view.resize(700, 500);
    view.move(33, 44);
  });
  Run([](FormView& view) {
    EXPECT_EQ(view.size(), QSize(700, 500));
    EXPECT_EQ(view.pos(), QPoint(33, 44));
  });
}

TEST_F(Remembered, OfAWindowThatWasHidden) {
  WindowPlaces places(File());
  {
    DrawnPlaces screen(places);
    screen.Drawn().move(33, 44);
    screen.Window.Hide();
    screen.View.Sync();
    screen.Drawn().move(0, 0);
  }
  EXPECT_EQ(places.Of("Small")->Area.topLeft(), QPoint(33, 44));
}

TEST_F(Remembered, AMaximizedWindowIsSoAgain) {
  QRect before;
  Run([&](FormView& view) {
    before = view.geometry();
    view.showMaximized();
    QApplication::processEvents();
  });
  Run([&](FormView& view) {
    EXPECT_TRUE(view.isMaximized());
    view.showNormal();
    QApplication::processEvents();
    EXPECT_EQ(view.size(), before.size());
  });
}

TEST_F(Remembered, ComesInSight) {
  WindowPlaces(File()).Keep("Small", {QRect(-5000, -5000, 500, 400), false});
  Run([](FormView& view) {
    EXPECT_TRUE(view.screen()->availableGeometry().contains(view.geometry())) << view.x() << " " << view.y();
  });
}

TEST_F(Remembered, IsNeverSmallerThanTheFormCanBe) {
  WindowPlaces(File()).Keep("Small", {QRect(10, 10, 1, 1), false});
  Run([](FormView& view) { EXPECT_EQ(view.size(), view.minimumSize()); });
}

TEST_F(Remembered, WithoutTheNoticeLine) {
  QSize without;
  Run([&](FormView& view) { without = view.size(); });
  WindowPlaces places(File());
  {
    DrawnPlaces screen(places);
    screen.View.Notices().Show("A notice", {}, "key");
    EXPECT_GT(screen.Drawn().height(), without.height());
  }
  Run([&](FormView& view) { EXPECT_EQ(view.size(), without); });
}

TEST_F(Remembered, NothingOfADamagedFile) {
  QFile file(File());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("[Small]\nArea=nonsense\nMaximized=perhaps\n");
  file.close();
  EXPECT_EQ(WindowPlaces(File()).Of("Small"), std::nullopt);
  EXPECT_EQ(WindowPlaces(File()).Of("Other"), std::nullopt);
}

TEST_F(Remembered, ByNobodyWhoWasNotAskedTo) {
  DrawnWindow window;
  window.Drawn().move(1, 1);
  EXPECT_EQ(window.View.Places(), nullptr);
}

}  // namespace
}  // namespace desktop
