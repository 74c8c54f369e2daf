#include "service/upper/sending/sending.h"

#include <optional>

#include "formats/despatch_advice_writer.h"
#include "formats/header_validation.h"
#include "formats/saving.h"
#include "platform/forms/boxes.h"
#include "platform/forms/report_errors.h"
#include "service/exchanges.h"
#include "service/transport.h"
#include "session/record/properties.h"
#include "tables/upper/editing/in_table_editing.h"

namespace awizo {
namespace {

/// Whether the document may be built: header, lines, and the user's will to send it as packed.
bool mayBeBuilt(Editor& editor) {
  if (!ValidateHeader(editor)) return false;
  if (editor.session.LineCount < 1) {
    editor.screen().showExclamation("Нет позиции в документе .", "VIRD");
    return false;
  }
  CheckAllPacked(editor);
  editor.session.SendQuestionAsked = false;
  if (editor.session.AllPacked) return true;
  editor.session.SendQuestionAsked = true;
  return wantsPartlyPacked(editor);
}

/// Whether the finished document goes out. A user who was asked about the packages is asked again
/// only when the number was sent before.
bool maySend(Editor& editor) {
  AwizoForm& form = editor.form;
  if (form.txtNrAwiza.text() == form.LastSentNumber) {
    if (!isConfirmed(editor.screen(),
                     "Вы пытаетесь отослать документ с уже существующим номером.\r"
                     "Продолжить?")) {
      return false;
    }
    form.grdPozycje.refresh();
    form.grdSuma.refresh();
    return true;
  }
  if (editor.session.SendQuestionAsked) return true;
  return isConfirmed(editor.screen(), "Выслать составленный документ подтверждения отгрузки?");
}

void post(Editor& editor, XmlDocument& document) {
  AwizoForm& form = editor.form;
  const auto reply = runExchange(editor, Exchange::sending, form.UploadUrl, document);
  const std::string status =
      GetNodeValue(reply ? reply->node() : XmlNode(), submissionStatusPath, false);
  if (status == "OK") {
    editor.screen().messageBox(
        {"Документ отправлен.", "VIRD", BoxIcon::information, BoxButtons::ok});
    form.LastSentNumber = form.txtNrAwiza.text();
    form.deeds.tell({Deed::Kind::sent});
  } else {
    const bool hasAnswer = status != noStatus;
    if (!hasAnswer && editor.session.RequestMayHaveArrived) {
      form.deeds.tell({Deed::Kind::unanswered});
    }
    editor.screen().showCritical(std::string(refusalWords) + status, "VIRD");
  }
}

}  // namespace

void btnPrzeslij_Click(Editor& editor) {
  std::optional<Cursor> earlier;
  reportErrors(editor.screen(), "Произошла ошибка в btnPrzeslij_Click()", [&] {
    closeOpenEdits(editor);
    if (!mayBeBuilt(editor)) return;
    earlier = editor.screen().setCursor(editor.session.WaitCursor);
    editor.form.setEnabled(false);
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(editor);
    // A writer that refused the content has shown the user why.
    if (!isOffLine(editor.form.OnLine) && document && maySend(editor)) post(editor, *document);
  });
  editor.form.setEnabled(true);
  if (earlier) editor.screen().setCursor(*earlier);
}

}  // namespace awizo
