#pragma once

#include <optional>
#include <string>
#include <vector>

#include "assistants/assistance.h"
#include "journal/state_digest.h"
#include "numbers/store_in_memory.h"
#include "support/control/taped_control.h"
#include "tables/columns/columns.h"

namespace awizo::test {

/// A recorded user off line whom assistants help, with a range of package numbers.
struct AssistedSession {
  explicit AssistedSession(std::string_view localeName = "ru_RU")
      : taped(&record, {}, between(), localeName) {
    startOffLine(taped);
    numbers.setRange(range);
  }

  TapedControl::Between between() {
    return [this](ScreenFace& real) -> ScreenFace& { return face.emplace(real); };
  }

  const NumberRange range{"3", "9520001", 1, 10'000, 1};
  MemoryRecord record;
  std::optional<AssistedFace> face;
  TapedControl taped;
  journal::History history{taped.tape, taped.desk.control};
  AwizoWysylki& control = taped.desk.control;
  AwizoForm& form = control.form;
  ScriptedScreen& screen = taped.desk.face;
  StoreInMemory store;
  GivenNumbers numbers{store, taped.desk.clock};
  NumberOffer offer{numbers, control.editor, control.dlgSzczegoly};
  const Assistance assistance{*face, control, history, &offer};

  std::string number(std::uint64_t serial) const { return containerNumber(range, serial); }
  int packageCount() const { return control.editor.session.IloscPozycjiOpak; }
  std::string cell(int row, int column) const { return form.grdOpakowania.cell(row, column); }

  /// All cells of a table, row by row.
  static std::vector<std::string> cells(const Table& table) {
    std::vector<std::string> texts;
    for (int row = 0; row < table.rows(); ++row) {
      for (int column = 0; column < table.columns(); ++column) {
        texts.push_back(table.cell(row, column));
      }
    }
    return texts;
  }

  std::uint64_t digest() { return journal::stateDigest(control); }
  /// The state that a replay of the record comes to.
  std::uint64_t digestOfReplay() {
    TapedControl replayed(nullptr, sessionIn(record).records);
    const journal::History again(replayed.tape, replayed.desk.control);
    replayed.recording->start();
    return journal::stateDigest(replayed.desk.control);
  }
};

}  // namespace awizo::test
