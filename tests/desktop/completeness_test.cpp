#include <QLayout>
#include <QPushButton>
#include <set>

#include "control_on_desktop.h"
#include "hosts/desktop/faces/make_face.h"

namespace awizo::test {
namespace {

/// What the widget needs so that no text of it is cut off.
QSize neededSize(const QWidget& widget) {
  if (const auto* button = qobject_cast<const QPushButton*>(&widget)) {
    return button->fontMetrics().size(Qt::TextShowMnemonic, button->text()) + QSize(8, 4);
  }
  return widget.minimumSizeHint();
}

class CompletenessOnDesktop : public testing::Test, public ControlOnDesktop {
 protected:
  std::vector<Form*> dialogs() {
    return {&control.dlgIsoCodes.touch(), &control.dlgdodajPule, &control.dlgDodaj.touch(),
            &control.dlgSzczegoly.touch(), &control.dlgWczytajZapisz};
  }
};

TEST_F(CompletenessOnDesktop, EveryKindOfControlHasAFace) {
  std::set<ControlKind> kinds;
  std::vector<Form*> forms = dialogs();
  forms.push_back(&form);
  for (const Form* one : forms) {
    for (const Control* shown : one->controls()) kinds.insert(shown->kind());
  }
  // The control's forms have controls of all kinds, and each has made a face.
  EXPECT_EQ(kinds.size(), static_cast<std::size_t>(ControlKind::frame) + 1);
  for (const Form* one : forms) {
    for (const Control* shown : one->controls()) {
      EXPECT_NE(face(*shown).widget(), nullptr) << one->name() << "." << shown->name();
    }
  }
}

TEST_F(CompletenessOnDesktop, EveryControlOfADialogStandsInItsLayout) {
  control.dlgWczytajZapisz.touch();
  for (Form* form_ : dialogs()) {
    then([this, form_] {
      // On a small screen the dialog shows a part of it and scrolls.
      QWidget& content = dialog(*form_).content();
      settle();
      for (const Control* shown : form_->controls()) {
        const std::string name = form_->name() + "." + shown->name();
        const QWidget* shownAs = widget(*shown);
        EXPECT_EQ(shownAs->isVisible(), shown->visible() && !shown->covered()) << name;
        if (!shownAs->isVisible()) continue;
        EXPECT_TRUE(shownAs->parentWidget() != &content ||
                    content.layout()->indexOf(shownAs) >= 0 || !shownAs->pos().isNull())
            << name << " stands in no layout";
        const QRect place(shownAs->mapTo(&content, QPoint()), shownAs->size());
        EXPECT_TRUE(content.rect().contains(place)) << name << " is cut off";
        const QSize needed = neededSize(*shownAs);
        EXPECT_GE(place.height(), needed.height()) << name;
        EXPECT_GE(place.width(), needed.width()) << name;
      }
      press(Qt::Key_Escape);
    });
    form_->showModal();
  }
}

TEST_F(CompletenessOnDesktop, NoTwoFacesOfADialogOverlap) {
  for (Form* form_ : dialogs()) {
    then([this, form_] {
      QWidget& window = dialog(*form_);
      settle();
      std::vector<std::pair<std::string, QRect>> places;
      for (const Control* shown : form_->controls()) {
        const QWidget* shownAs = widget(*shown);
        if (!shownAs->isVisible() || shown->kind() == ControlKind::frame) continue;
        const QRect place(shownAs->mapTo(&window, QPoint()), shownAs->size());
        for (const auto& [name, other] : places) {
          EXPECT_FALSE(place.intersects(other))
              << form_->name() << ": " << shown->name() << " and " << name;
        }
        places.emplace_back(shown->name(), place);
      }
      press(Qt::Key_Escape);
    });
    form_->showModal();
  }
}

}  // namespace
}  // namespace awizo::test
