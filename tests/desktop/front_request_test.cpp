// A second start asks the first for its window.
#include "desktop/front_request.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDir>

#include "tests/desktop/drawn_window.h"
#include "tests/kit/fresh_folder.h"

namespace desktop {
namespace {

// A runtime folder of its own.
class FrontRequest : public testing::Test {
 protected:
  FrontRequest() : old_(qgetenv("XDG_RUNTIME_DIR")) {
    ::chmod(Runtime.Path().c_str(), 0700);
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(Runtime.Path().string()));
  }
  ~FrontRequest() override { old_.isNull() ? qunsetenv("XDG_RUNTIME_DIR") : qputenv("XDG_RUNTIME_DIR", old_); }

  QString Folder() const { return QString::fromStdString(Films.Path().string()); }
  QStringList Sockets() const {
    return QDir(QString::fromStdString(Runtime.Path().string())).entryList(QDir::System | QDir::Files);
  }

  kit::FreshFolder Runtime, Films;

 private:
  QByteArray old_;
};

TEST_F(FrontRequest, ReachesTheRunOnTheSameFolder) {
  int asked = 0;
  FrontListener listener(Folder(), [&] { ++asked; });
  EXPECT_TRUE(AskForFront(Folder() + "/."));
  QApplication::processEvents();
  EXPECT_EQ(asked, 1);
}

TEST_F(FrontRequest, ReachesNobodyOnAnotherFolder) {
  kit::FreshFolder other;
  FrontListener listener(Folder(), [] { FAIL() << "asked for another folder"; });
  EXPECT_FALSE(AskForFront(QString::fromStdString(other.Path().string())));
  EXPECT_FALSE(AskForFront("/no/such/folder"));
  QApplication::processEvents();
}

TEST_F(FrontRequest, NothingIsLeftOfARun) {
  {
    FrontListener listener(Folder(), [] {});
  }
  EXPECT_EQ(Sockets(), QStringList());
  EXPECT_FALSE(AskForFront(Folder()));
}

TEST_F(FrontRequest, AKilledRunIsInNobodysWay) {
  std::filesystem::path kept = Runtime.Path() / "kept", name;
  {
    FrontListener killed(Folder(), [] {});
    ASSERT_EQ(Sockets().size(), 1);
    name = Runtime.Path() / Sockets()[0].toStdString();
    std::filesystem::create_hard_link(name, kept);
  }
  std::filesystem::rename(kept, name);  // as a kill leaves it
  EXPECT_FALSE(AskForFront(Folder()));
  int asked = 0;
  FrontListener listener(Folder(), [&] { ++asked; });
  EXPECT_TRUE(AskForFront(Folder()));
  QApplication::processEvents();
  EXPECT_EQ(asked, 1);
}

TEST_F(FrontRequest, BringsAMinimizedWindowBack) {
  DrawnWindow window;
  window.Drawn().setWindowState(Qt::WindowMinimized);
  window.View.BringToFront();
  EXPECT_FALSE(window.Drawn().isMinimized());
}

}  // namespace
}  // namespace desktop
