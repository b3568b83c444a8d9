// The style of the program against the one that it is made of.
#include "desktop/application_look.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOption>
#include <memory>

#include "desktop/contrast.h"

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

QImage BarLine(QStyle::State state) {
  QImage image(80, 24, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  QStyleOptionMenuItem line;
  line.rect = image.rect();
  line.state = state;
  line.palette = QApplication::palette();
  line.text = "File";
  QApplication::style()->drawControl(QStyle::CE_MenuBarItem, &line, &painter);
  return image;
}

TEST(ApplicationLook, TheChosenLineOfTheBarShowsBeforeItsMenuIsOpen) {
  desktop::SetUpLook();
  EXPECT_NE(BarLine(QStyle::State_Enabled | QStyle::State_Selected), BarLine(QStyle::State_Enabled));
}

TEST(ApplicationLook, LinksAndHintsCanBeReadOnADarkDesktop) {
  QPalette before = QApplication::palette();
  QApplication::setPalette(QPalette(Qt::black, QColor(0x20, 0x20, 0x20)));
  desktop::SetUpLook();
  QPalette dark = QApplication::palette();
  QApplication::setPalette(before);
  for (QPalette::ColorRole role : {QPalette::Link, QPalette::PlaceholderText})
    EXPECT_GE(desktop::Contrast(dark.color(role), dark.color(QPalette::Base)), desktop::TextContrast) << role;
}

}  // namespace
