#pragma once

#include <optional>

#include "formats/order_reader.h"
#include "support/logged.h"
#include "tables/columns/columns.h"

namespace awizo::test {

inline constexpr const char* fullHeader =
    "<Order-Header><OrderNumber>ORD-7</OrderNumber><OrderDate>2026-11-02</OrderDate>"
    "<ExpectedDeliveryDate>2026-12-01</ExpectedDeliveryDate>"
    "<ExpectedDeliveryTime>14:30</ExpectedDeliveryTime><Currency>EUR</Currency></Order-Header>"
    "<Order-Parties><Buyer><ILN>1</ILN></Buyer><Seller><ILN>2</ILN>"
    "<CodeByBuyer>77</CodeByBuyer></Seller>"
    "<DeliveryPoint><ILN>9520002000026</ILN></DeliveryPoint></Order-Parties>";

inline std::string line(const std::string& values) {
  return "<Line><Line-Item>" + values + "</Line-Item></Line>";
}

/// A form as the start-up leaves it before an order is read.
struct OrderReader : ::testing::Test {
  TestEditor test;
  AwizoForm& form = test.form;
  Table& table = test.form.grdPozycje;
  std::unique_ptr<XmlDocument> order;

  explicit OrderReader(const char* locale = "ru_RU") : test(locale) {
    SessionState& session = test.session;
    session.BuyerILN = "9520002000019";
    session.BuyerName = "Покупатель";
    session.SellerILN = "9520001000010";
    session.SellerName = "Продавец";
    for (const char* row : {"first", "second", "third"}) form.cboxPackageDescription.addRow(row);
  }

  void read(const std::string& text) {
    order = test.document(text);
    Wczytaj_Zamowienie(test.editor, order);
  }

  void readHeader(const std::string& header) {
    read("<Document-Order>" + header + "<Order-Lines/></Document-Order>");
  }

  void readLines(const std::string& lines) {
    read("<Document-Order><Order-Lines>" + lines + "</Order-Lines></Document-Order>");
  }

  const std::string& cell(int row, int column) const { return table.cell(row, column); }

  void expectNoBox() { EXPECT_THAT(describe(test.face.boxes()), ::testing::IsEmpty()); }

  void expectFailure(const std::string& description) {
    EXPECT_THAT(describe(test.face.takeBoxes()),
                ::testing::ElementsAre("Произошла ошибка в Wczytaj_Zamowienie()|critical|OK|" +
                                       description));
    EXPECT_TRUE(form.enabled());
  }
};

struct OrderReaderInAPointLocale : OrderReader {
  OrderReaderInAPointLocale() : OrderReader("en_US") {}
};

}  // namespace awizo::test
