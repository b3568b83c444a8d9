// One notice for each record.
#include "desktop/put_back_notice.h"

#include "desktop/stack_view.h"
#include "desktop/text.h"
#include "runtime/text.h"

namespace desktop {
namespace {

QString KeyOf(const store::KeptFilm& kept) { return QStringLiteral("record %1").arg(kept.Slot); }

QString TitleOf(const store::KeptFilm& kept) { return Shown(runtime::Trim(kept.Film.Get(store::FilmField::Title))); }

}  // namespace

void PutBackNotice::Deliver(const std::function<void()>& event) {
  program_.Deliver([&] {
    event();
    for (const store::KeptFilm& kept : films_.TakeLost())
      Offer(QStringLiteral("Record %1 held %2.").arg(QString::number(kept.Slot), TitleOf(kept)), kept);
  });
}

void PutBackNotice::Offer(const QString& text, const store::KeptFilm& kept) {
  if (!view_) return;
  auto put_back = [this, kept] { view_->Deliver([&] { PutBack(kept); }); };
  view_->Notices().Show(text, {{QStringLiteral("Put back"), put_back}}, KeyOf(kept));
}

void PutBackNotice::PutBack(const store::KeptFilm& kept) {
  films_.PutBack(kept);
  QString text = QStringLiteral("%1 is back in record %2.").arg(TitleOf(kept), QString::number(kept.Slot));
  view_->Notices().Show(text, {}, KeyOf(kept));
  // The film that had taken its place can be put back in its turn.
  for (const store::KeptFilm& other : films_.TakeLost())
    Offer(QStringLiteral("%1 It held %2.").arg(text, TitleOf(other)), other);
}

}  // namespace desktop
