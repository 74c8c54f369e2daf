#pragma once

#include "support/control/desk.h"

namespace awizo::test {

inline constexpr const char* noNumber = "VIRD|exclamation|OK|Неправильная нумерическая величина.";

/// Three lines, of which 5 pieces each were ordered.
class InTableEditing : public ::testing::Test, public Desk {
 protected:
  explicit InTableEditing(const char* localeName = "ru_RU") : Desk(localeName) {
    putLines(3);
    for (int row = 1; row <= 3; ++row) {
      lines.setCell(row, GRD_POZ_QTY_ORDERED, editor.conversions.FormatFixed("5", 3));
      lines.setCell(row, GRD_POZ_QTY_DESPATCHED, editor.conversions.FormatFixed("1", 3));
      lines.setCell(row, GRD_POZ_NET_AMOUNT, editor.conversions.FormatFixed("2", 2));
    }
  }

  TextField& field = form.txtEdycja;

  void openEditor(int row) {
    lines.userCell(row, GRD_POZ_QTY_DESPATCHED);
    lines.userDoubleClick();
  }
  const std::string& quantity(int row) const { return lines.cell(row, GRD_POZ_QTY_DESPATCHED); }
  void expectCurrent(int row, int column) {
    EXPECT_EQ(lines.row(), row);
    EXPECT_EQ(lines.column(), column);
  }
};

struct InTableEditingInAPointLocale : InTableEditing {
  InTableEditingInAPointLocale() : InTableEditing("en_US") {}
};

}  // namespace awizo::test
