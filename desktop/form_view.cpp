// Mirrors one window: creates its widgets and keeps them up to date.
#include "desktop/form_view.h"

#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QWindow>
#include <algorithm>
#include <unordered_set>
#include <utility>

#include "desktop/accessible.h"
#include "desktop/artwork.h"
#include "desktop/notice_line.h"
#include "desktop/notices.h"
#include "desktop/stack_view.h"
#include "desktop/text.h"
#include "forms/window_stack.h"

namespace desktop {
namespace {

constexpr double StartScale = 1.6;  // of the grid at 96 dots an inch
constexpr double SmallestScale = 0.6;
constexpr double RoomOnDisplay = 0.9;  // for title bar and frame on a small display

QSize Scaled(const forms::Window& window, double scale) {
  return QSizeF(window.Width * PixelsPerTwip * scale, window.Height * PixelsPerTwip * scale).toSize();
}

// The labels that name a field.
std::unordered_set<const forms::Control*> TagsOf(const forms::Window& window) {
  std::unordered_set<const forms::Control*> tags;
  for (const forms::Control* control : window.Controls())
    if (control->Kind == forms::Kind::TextBox)
      if (const forms::Label* tag = static_cast<const forms::TextBox*>(control)->Tag) tags.insert(tag);
  return tags;
}

}  // namespace

FormView::FormView(forms::Window& window, StackView& all)
    : window_(window),
      stack_(all),
      input_(*this, all),
      surface_(*this, window),
      menu_(
          window, *this, [this](forms::MenuItem& item) { stack_.Deliver([&] { window_.UserClick(item); }); },
          [this](forms::MenuItem& item) { stack_.Deliver([&] { window_.Owner().Desk.Help(item.Ids.HelpId); }); },
          [this] { stack_.Sync(); }),
      list_(*this) {
  InstallAccessibility();
  auto tags = TagsOf(window);
  for (forms::Control* control : window.Controls())
    if (control->Kind != forms::Kind::MenuItem) slots_.push_back({control, tags.contains(control), nullptr, {}});
  if (window.Modal) setWindowModality(Qt::ApplicationModal);
  input_.Watch(*this);
  input_.Watch(surface_);
  setMinimumSize(Scaled(window, SmallestScale).boundedTo(StartSize()));
  resize(StartSize());
  LayOut();
  // Not before its font is set, or it measures its items in the default font, too.
  menu_.Bar().setVisible(!menu_.Empty());
  resize(width(), height() + surface_.y());
  move(screen()->availableGeometry().center() - rect().center());
  TakePlace();
}

FormView::~FormView() { KeepPlace(); }

void FormView::Sync() {
  if (!window_.InSight()) {
    KeepPlace();
    hide();
    return;
  }
  SyncFrame();
  menu_.Sync();
  if (!isVisible()) LayOut();
  MirrorControls();
  SyncFocus();
  for (ControlView* view : changed_) view->Withdraw();
  show();
}

void FormView::MirrorControls() {
  changed_.clear();
  for (std::size_t index = 0; index < slots_.size(); ++index) {
    Slot& slot = slots_[index];
    if (!slot.View && !slot.Control->Visible()) continue;
    if (!slot.View) MakeView(index);
    if (slot.View->UpToDate()) continue;
    slot.View->Mirror(grid_);
    changed_.push_back(slot.View.get());
    Hear(slot);
  }
}

// What the program writes is spoken when it comes up or changes, and a pick list when it opens.
void FormView::Hear(Slot& slot) {
  const forms::Control& control = *slot.Control;
  bool list = control.Kind == forms::Kind::ListBox;
  if (slot.Tag || !(list || control.Kind == forms::Kind::Label)) return;
  QString words;
  if (control.Visible())
    words = list ? OpenedWords(static_cast<const forms::ListBox&>(control)) : AccessibleName(control);
  bool news = list ? slot.Heard.isEmpty() : slot.Heard != words;
  slot.Heard = words;
  if (news) speech_.Add(words);
}

// Later controls lie over earlier ones, in whatever order they are first shown.
void FormView::MakeView(std::size_t index) {
  Slot& slot = slots_[index];
  slot.View = desktop::MakeView(*slot.Control, surface_, slot.Tag,
                                [this](const QString& characters) { input_.Refuse(characters); });
  auto above = std::find_if(slots_.begin() + static_cast<std::ptrdiff_t>(index) + 1, slots_.end(),
                            [](const Slot& other) { return other.View != nullptr; });
  if (above != slots_.end()) slot.View->Widget().stackUnder(&above->View->Widget());
  input_.Watch(*slot.View);
}

ControlView* FormView::ViewOf(const forms::Control& control) const {
  auto found = std::find_if(slots_.begin(), slots_.end(), [&](const Slot& slot) { return slot.Control == &control; });
  return found == slots_.end() ? nullptr : found->View.get();
}

void FormView::SyncFrame() {
  if (title_ != window_.Caption() || windowTitle().isNull()) {
    title_ = window_.Caption();
    setWindowTitle(Shown(title_));
  }
  surface_.Sync();
  QColor back = ToColour(window_.BackColor());
  if (surface_.palette().color(QPalette::Window) == back) return;
  QPalette colours = surface_.palette();
  colours.setColor(QPalette::Window, back);
  surface_.setPalette(colours);
  update();
}

// While the user moves through the menu bar by keyboard, it keeps the toolkit's focus.
void FormView::SyncFocus() {
  if (menu_.InKeyboardUse()) return;
  forms::Control* holder = window_.Focus();
  ControlView* view = holder ? ViewOf(*holder) : nullptr;
  QWidget* wanted = view ? &view->Widget() : this;
  if (focusWidget() != wanted) wanted->setFocus(Qt::OtherFocusReason);
  if (focus_ == holder) return;
  focus_ = holder;
  stack_.ClearNotice(CharacterNotice);
  if (view) view->Entered();
}

void FormView::LayOut() {
  int bar_height = 0;
  Grid grid = Grid::Of({width(), height() - notices_height_}, window_.Width, window_.Height);
  if (!menu_.Empty()) {
    menu_.Scale(grid);
    bar_height = menu_.Bar().heightForWidth(width());
    menu_.Bar().setGeometry(0, 0, width(), bar_height);
  }
  if (notices_) {
    notices_->Scale(grid);
    notices_height_ = notices_->HeightFor(width());
    notices_->setGeometry(0, height() - notices_height_, width(), notices_height_);
  }
  surface_.setGeometry(SurfaceIn({0, bar_height, width(), height() - bar_height - notices_height_}));
  grid = Grid::Of(surface_.size(), window_.Width, window_.Height);
  if (grid == grid_) return;
  grid_ = grid;
  for (Slot& slot : slots_)
    if (slot.View) slot.View->Forget();
}

// Pictures keep their shape, so a window with pictures does too: what stands beside a picture stays there.
QRect FormView::SurfaceIn(const QRect& room) const {
  const auto& all = window_.Controls();
  if (std::none_of(all.begin(), all.end(), [](const auto* one) { return one->Kind == forms::Kind::Picture; }))
    return room;
  QSize size = QSize(window_.Width, window_.Height).scaled(room.size(), Qt::KeepAspectRatio);
  return {room.x() + (room.width() - size.width()) / 2, room.y() + (room.height() - size.height()) / 2, size.width(),
          size.height()};
}

void FormView::PlaceNotices(NoticeLine* line) {
  if (std::exchange(notices_, line) != line && line) {
    line->setParent(this);
    line->Scale(grid_);
  }
  int height = line ? line->HeightFor(width()) : 0;
  int more = height - std::exchange(notices_height_, height);
  if (more > 0) Grow(more);
  if (more < 0) Grow(-std::min(grown_, height > 0 ? -more : grown_));
  LayOut();
  if (line) line->setVisible(height > 0);
}

QFont FormView::TextFont() const {
  QFont font = QApplication::font();
  font.setPixelSize(std::max(grid_.Pixels(TextPoints), QFontInfo(font).pixelSize()));
  return font;
}

void FormView::LieOver(FormView& other) {
  winId();
  if (windowHandle()->transientParent() == other.windowHandle()) return;
  hide();
  windowHandle()->setTransientParent(other.windowHandle());
}

// Moves up if the display has no room below. Never shrinks by more than it has grown.
void FormView::Grow(int pixels) {
  if (isMaximized() || isFullScreen()) return;
  QRect room = screen()->availableGeometry();
  pixels = std::min(pixels, std::max(0, room.height() - frameGeometry().height()));
  int above = frameGeometry().bottom() + pixels - room.bottom();
  if (pixels > 0 && above > 0) move(x(), std::max(room.top(), y() - above));
  grown_ += pixels;
  resize(width(), height() + pixels);
}

QSize FormView::StartSize() const {
  QSize room = screen()->availableSize() * RoomOnDisplay;
  QSize wanted = Scaled(window_, StartScale);
  return wanted.boundedTo(wanted.scaled(room, Qt::KeepAspectRatio));
}

// Where the user left the window in an earlier run.
void FormView::TakePlace() {
  if (!stack_.Places()) return;
  std::optional<WindowPlace> place = stack_.Places()->Of(QString::fromStdString(window_.Name));
  if (!place) return;
  QList<QRect> screens;
  for (const QScreen* one : QGuiApplication::screens()) screens.append(one->availableGeometry());
  QRect area = InSight(place->Area, screens);
  resize(area.size().expandedTo(minimumSize()));
  move(area.topLeft());
  if (place->Maximized) setWindowState(Qt::WindowMaximized);
}

// Without what the notice line has added. A maximized window keeps the area that it goes back to.
void FormView::KeepPlace() {
  if (!stack_.Places() || !isVisible()) return;
  QRect area(pos(), size());
  if (isMaximized()) area = normalGeometry().translated(pos() - geometry().topLeft());
  area.setHeight(area.height() - grown_);
  stack_.Places()->Keep(QString::fromStdString(window_.Name), {area, isMaximized()});
}

void FormView::resizeEvent(QResizeEvent*) {
  if (!window_.InSight() || !isVisible() || stack_.Stopped()) return;
  LayOut();
  MirrorControls();
  for (ControlView* view : changed_) view->Withdraw();
}

void FormView::paintEvent(QPaintEvent*) { QPainter(this).fillRect(rect(), ToColour(window_.BackColor())); }

void FormView::closeEvent(QCloseEvent* event) {
  event->ignore();
  stack_.Deliver([this] { window_.UserClose(); });
}

}  // namespace desktop
