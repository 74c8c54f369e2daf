#include "formats/saving.h"

#include <string>

#include "formats/despatch_advice_writer.h"
#include "formats/header_validation.h"
#include "platform/forms/report_errors.h"
#include "platform/text.h"
#include "tables/columns/columns.h"
#include "tables/row.h"

namespace awizo {
namespace {

bool isPacked(const Row& line) {
  return line.cell(GRD_POZ_QTY_DESPATCHED) == line.cell(GRD_POZ_PACKED_QTY);
}

/// A separator of paths in the document's number would put the file into another folder.
std::string proposedFileName(const std::string& documentNumber) {
  const std::string name = "Подтверждение_отгрузки_" + documentNumber + ".xml";
  return replaceAll(replaceAll(name, "/", "_"), "\\", "_");
}

void saveDocument(Editor& editor, DlgWczytajZapisz& dialog) {
  if (!ValidateHeader(editor)) return;
  CheckAllPacked(editor);
  if (!editor.session.AllPacked && !wantsPartlyPacked(editor)) return;
  AwizoForm& form = editor.form;
  form.setEnabled(false);
  dialog.setUpForSaving(proposedFileName(form.txtNrAwiza.text()));
  dialog.showModal();
  const std::string& path = editor.session.LastFilePath;
  if (!path.empty()) {
    const std::unique_ptr<XmlDocument> document = MakeDesAdv(editor);
    if (document) {
      editor.platform.files.replace(path, document->fileBytes());
      form.deeds.tell({Deed::Kind::saved, path});
    }
  }
  form.setEnabled(true);
}

}  // namespace

void CheckAllPacked(Editor& editor) {
  SessionState& session = editor.session;
  if (session.LineCount < 1) return;
  session.AllPacked = true;
  for (int row = 1; row <= session.LineCount; ++row) {
    if (!isPacked(lineRow(editor, row))) {
      session.AllPacked = false;
      return;
    }
  }
  if (session.IloscPozycjiOpak == 0) session.AllPacked = false;
}

/// The words speak of sending when a document is saved too: it is meant to be sent.
bool wantsPartlyPacked(Work& work) {
  const Answer answer =
      work.screen().messageBox({"Отгруженный товар упакован не полностью.\r\n"
                                "Вы уверены, что хотите отправить документ в таком виде?",
                                "VIRD", BoxIcon::none, BoxButtons::yesNo});
  return answer == Answer::yes;
}

void btnZapisz_Click(Editor& editor, DlgWczytajZapisz& dialog) {
  const bool ended = reportErrors(editor.screen(), "Произошла ошибка в btnZapisz_Click()",
                                  [&] { saveDocument(editor, dialog); });
  if (!ended) editor.form.setEnabled(true);
}

}  // namespace awizo
