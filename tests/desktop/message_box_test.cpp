// Message boxes: what answers a question, and what does not.
#include "desktop/message_box.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>

namespace desktop {
namespace {

void PressEsc(QWidget& box) {
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(&box, &key);
}

// Shows the box, lets the user act on it, and returns its answer.
template <typename Act>
forms::Answer AnswerOf(MessageBox& box, Act act) {
  QTimer::singleShot(0, &box, act);
  return box.Ask();
}

TEST(MessageBox, EscAndTheCloseBoxLeaveAQuestionStanding) {
  MessageBox box(forms::Icon::Question, "Title", "Save?", forms::Buttons::YesNo, nullptr);
  bool stands_after_esc = false;
  bool stands_after_close = false;
  forms::Answer answer = AnswerOf(box, [&] {
    PressEsc(box);
    stands_after_esc = box.isVisible();
    box.close();
    stands_after_close = box.isVisible();
    box.button(QMessageBox::Yes)->click();
  });
  EXPECT_TRUE(stands_after_esc);
  EXPECT_TRUE(stands_after_close);
  EXPECT_EQ(answer, forms::Answer::Yes);
}

TEST(MessageBox, NoIsAnsweredByItsButton) {
  MessageBox box(forms::Icon::Question, "Title", "Save?", forms::Buttons::YesNo, nullptr);
  EXPECT_EQ(AnswerOf(box, [&] { box.button(QMessageBox::No)->click(); }), forms::Answer::No);
}

TEST(MessageBox, EscClosesAMessage) {
  MessageBox box(forms::Icon::Warning, "Title", "End of file!", forms::Buttons::Ok, nullptr);
  EXPECT_EQ(AnswerOf(box, [&] { PressEsc(box); }), forms::Answer::Ok);
}

}  // namespace
}  // namespace desktop
