#include "session/record/header_panel.h"

#include <array>
#include <optional>

#include "platform/forms/report_errors.h"
#include "session/record/countries.h"

namespace awizo {
namespace {

// The package's serial bears the same heading as the number that is made of it; only the latter is
// ever visible.
constexpr std::array<std::string_view, 14> packageHeadings{
    "№ п.п", "", "ID упаковки", "Описание упаковки", "Уровень", "", "", "", "", "", "",
    "",      "", "ID упаковки"};

// The hidden columns bear the table's own field names.
constexpr std::array<std::string_view, 22> lineHeadings{"№ п.п",
                                                        "EAN продукта",
                                                        "Название продукта",
                                                        "Количество заказа",
                                                        "Количество отгружено",
                                                        "Цена",
                                                        "CodeByBuer",
                                                        "CodeBySeller",
                                                        "Weight",
                                                        "UnitOfMeasure",
                                                        "OrderLineNumber",
                                                        "NetAmount",
                                                        "TaxRate",
                                                        "TaxCategoryCode",
                                                        "ExpiryDate",
                                                        "CountryOfOryginCode",
                                                        "CustomsDeclarationNumber",
                                                        "ProductionDate",
                                                        "Period",
                                                        "PeriodFormat",
                                                        "",
                                                        "Упакованное кол-во"};

// The last heading is one of the lines' table; its column is never visible.
constexpr std::array<std::string_view, 3> totalHeadings{
    "Количество строк", "Общее количество отгруженного", "Название продукта"};

template <std::size_t size>
void writeHeadings(Table& table, const std::array<std::string_view, size>& headings) {
  table.setRow(0);
  for (std::size_t column = 0; column < size; ++column) {
    table.setColumn(static_cast<int>(column));
    table.setText(headings[column]);
    table.setAlignment(0, table.column(), Alignment::centre);
  }
}

void alignTotals(Table& table) {
  table.setRow(1);
  for (int column = static_cast<int>(totalHeadings.size()) - 1; column >= 0; --column) {
    table.setColumn(column);
    table.setAlignment(1, column, Alignment::right);
  }
}

}  // namespace

std::string symbolKraj(std::int16_t index, std::string_view typedText) {
  if (index == -1) return std::string(typedText);
  const auto place = static_cast<std::size_t>(index);
  return index >= 0 && place < fixedCountries().size() ? std::string(fixedCountries()[place].code)
                                                       : std::string();
}

std::int16_t indexKraj(std::string_view code) {
  std::int16_t index = 0;
  for (const FixedCountry& country : fixedCountries()) {
    if (country.code == code) return index;
    ++index;
  }
  return -1;
}

void UstawNaglowki(Editor& editor) {
  reportErrors(editor.screen(), "Произошла ошибка в  UstawNaglowki()", [&] {
    writeHeadings(editor.form.grdOpakowania, packageHeadings);
    writeHeadings(editor.form.grdPozycje, lineHeadings);
    writeHeadings(editor.form.grdSuma, totalHeadings);
    alignTotals(editor.form.grdSuma);
  });
}

void showParties(Editor& editor) {
  const SessionState& session = editor.session;
  editor.form.lblILNKupWart.setCaption(session.BuyerILN);
  editor.form.lblNameKupWart.setCaption(session.BuyerName);
  editor.form.lblILNSprzedWart.setCaption(session.SellerILN);
  editor.form.lblNameSprzedWart.setCaption(session.SellerName);
}

void SetHeader(Editor& editor) {
  reportErrors(editor.screen(), "Произошла ошибка в : SetHeader()", [&] {
    AwizoForm& form = editor.form;
    showParties(editor);
    form.txtDataAwiza.setDate(editor.platform.clock.today());
    form.txtDespatchAdviceTime.setTime(std::nullopt);
    form.cboxPackageDescription.setIndex(2);
    form.txtGoodsIdentity.setText("0");
    form.btnUsun.setEnabled(true);
    form.btnEdytuj.setEnabled(true);
  });
}

}  // namespace awizo
