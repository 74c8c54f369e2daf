#include "hosts/desktop/faces/spin_face.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "hosts/desktop/faces/text.h"
#include "platform/forms/face_words.h"

namespace awizo::desktop {

SpinFace::SpinFace(FormFace& form, SpinButtons& spin, QWidget* parent)
    : Face(form, spin, new QWidget(parent)), spin_(spin) {
  auto* column = new QVBoxLayout(widget());
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  for (const int by : {1, -1}) {
    auto* arrow = new QToolButton(widget());
    arrow->setObjectName(by > 0 ? "up" : "down");
    arrow->setAccessibleName(fromText(by > 0 ? words::spinUp : words::spinDown));
    arrow->setArrowType(by > 0 ? Qt::UpArrow : Qt::DownArrow);
    arrow->setFocusPolicy(Qt::NoFocus);
    arrow->setAutoRepeat(true);
    arrow->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored);
    connect(arrow, &QToolButton::clicked, this, [this, by] { act([&] { spin_.userSpin(by); }); });
    column->addWidget(arrow);
  }
}

}  // namespace awizo::desktop
