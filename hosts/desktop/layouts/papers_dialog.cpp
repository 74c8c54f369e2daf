#include "desk/papers_dialog.h"

#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "adapters/qt_paper/qt_paper.h"
#include "desk/layout_words.h"
#include "hosts/desktop/layouts/dialog_layouts.h"
#include "hosts/desktop/layouts/fields.h"
#include "hosts/desktop/layouts/paper_view.h"

namespace awizo::desktop {

PaperView::PaperView(const PapersDialog& form) : form_(form) {
  const int unit = fontMetrics().height();
  setMinimumSize(unit * 26, unit * 26);
  setAccessibleName(fromText(words::paperPreview));
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
  auto* holder = new QWidget;
  Fields fields(faces, holder);
  fields.grid()->setContentsMargins(0, 0, 0, 0);
  fields.add(0, 0, fromText(form.cboPaper.caption()), form.cboPaper);
  fields.add(0, 1, fromText(form.cboPackages.caption()), form.cboPackages);
  fields.add(1, 0, fromText(form.cboSize.caption()), form.cboSize);
  fields.add(1, 1, fromText(form.cboCopies.caption()), form.cboCopies);
  fields.add(2, 0, fromText(form.cboPrinter.caption()), form.cboPrinter);
  rows->addWidget(holder);
  auto* view = new PaperView(form);
  form.onSheet = [view] { view->update(); };
  rows->addWidget(view, 1);
  static_cast<QLabel*>(faces.widget(form.lblNotes))->setWordWrap(true);
  rows->addWidget(faces.widget(form.lblNotes));
  auto* feet = makeRow(
      {faces.widget(form.btnPrevious), faces.widget(form.lblSheet), faces.widget(form.btnNext)});
  feet->addStretch(1);
  for (const Control* button :
       {static_cast<const Control*>(&form.btnPdf), static_cast<const Control*>(&form.btnPrint),
        static_cast<const Control*>(&form.btnClose)}) {
    feet->addWidget(faces.widget(*button));
  }
  rows->addLayout(feet);
}

}  // namespace awizo::desktop
