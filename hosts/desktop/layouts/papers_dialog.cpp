#include "desk/papers_dialog.h"

#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

#include "adapters/qt_paper/qt_paper.h"
#include "desk/layout_words.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"
#include "hosts/desktop/layouts/flowing_groups.h"
#include "hosts/desktop/layouts/paper_view.h"
#include "hosts/desktop/layouts/wrapping.h"

namespace awizo::desktop {

PaperView::PaperView(const PapersDialog& form) : form_(form) {
  setMinimumSize(QSize(1, 1) * (fontMetrics().height() * 8));
  setAccessibleName(fromText(words::paperPreview));
}

QSize PaperView::sizeHint() const {
  const int line = fontMetrics().height();
  // On a small screen it leaves room for what is above and below it.
  return QSize(1, 1) * std::min(line * 26, roomFor(*this).height() - line * 13);
}

void PaperView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Mid));
  const papers::Page* page = form_.page();
  if (page == nullptr) return;
  constexpr int margin = 8;
  const double scale = std::min((width() - 2 * margin) / page->size.width,
                                (height() - 2 * margin) / page->size.height);
  const QSizeF size(page->size.width * scale, page->size.height * scale);
  painter.translate((width() - size.width()) / 2, (height() - size.height()) / 2);
  painter.fillRect(QRectF(QPointF(), size), Qt::white);
  painter.setRenderHint(QPainter::TextAntialiasing);
  paintPage(painter, *page, scale);
}

void layOut(PapersDialog& form, FormDialog& dialog) {
  FormFace& faces = dialog.faces();
  auto* rows = new QVBoxLayout(&dialog);
  rows->setSpacing(8);
  auto* choices = new FlowingGroups;
  choices->setSpacing(20);
  choices->addGroup(makeColumn(faces, form.cboPaper, form.cboSize, form.cboPrinter), 1);
  choices->addGroup(makeColumn(faces, form.cboPackages, form.cboCopies), 1);
  rows->addLayout(choices);
  auto* view = new PaperView(form);
  form.onSheet = [view] { view->update(); };
  rows->addWidget(view, 1);
  static_cast<QLabel*>(faces.widget(form.lblNotes))->setWordWrap(true);
  rows->addWidget(faces.widget(form.lblNotes));
  // The words come after the window has taken its room.
  QWidget* sheet = faces.widget(form.lblSheet);
  sheet->setMinimumWidth(sheet->fontMetrics().averageCharWidth() * 17);
  QHBoxLayout* sheets = makeRow(
      {faces.widget(form.btnPrevious), faces.widget(form.lblSheet), faces.widget(form.btnNext)});
  sheets->addStretch(1);
  QHBoxLayout* ways = makeRow(
      {faces.widget(form.btnPdf), faces.widget(form.btnPrint), faces.widget(form.btnClose)});
  ways->insertStretch(0, 1);
  auto* feet = new FlowingGroups;
  feet->setSpacing(6);
  for (QHBoxLayout* row : {sheets, ways}) {
    row->setContentsMargins(0, 0, 0, 0);
    auto* group = new QWidget;
    group->setLayout(row);
    feet->addGroup(group, 1);
  }
  rows->addLayout(feet);
}

}  // namespace awizo::desktop
