// The style of the program against the one that it is made of.
#include "desktop/application_look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QStyle>
#include <QStyleFactory>
#include <memory>

namespace {

QImage MenuArrow(const QStyle& style) {
  return style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton).pixmap(16, 16).toImage();
}

TEST(ApplicationLook, TheArrowOfANarrowMenuBarIsThatOfTheStyle) {
  desktop::SetUpLook();
  const std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
  EXPECT_FALSE(MenuArrow(*fusion).isNull());
  EXPECT_EQ(MenuArrow(*QApplication::style()), MenuArrow(*fusion));
}

}  // namespace
