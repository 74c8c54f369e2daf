#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "platform/forms/button.h"
#include "platform/forms/form.h"
#include "platform/forms/table.h"
#include "platform/locale.h"
#include "session/record/session_state.h"

namespace awizo {

/// The modal list of all countries. Its table is also what a typed country is checked against.
class DlgIsoCodes : public Form {
  template <class Self>
  static auto members(Self& self) {
    return std::tuple_cat(common(self),
                          std::tie(self.PickedIndex, self.ShiftHeld, self.MouseHeld, self.loaded_));
  }

 public:
  DlgIsoCodes(Screen& screen, SessionState& session);

  Table grdISO;
  Button btnAccept, btnCancel;

  /// Runs Form_Load at the first call: every reader of the table goes through here.
  DlgIsoCodes& touch();
  bool loaded() const { return loaded_; }

  /// Flat index in grdISO of the first code that matches; nothing where none does. The country's
  /// name stands in the cell before it.
  std::optional<int> findCode(const std::function<bool(const std::string& code)>& matches);

  std::int16_t PickedIndex = 0;  ///< flat index of the code picked last
  bool ShiftHeld = false;
  bool MouseHeld = false;

  KeptPart keep(const KeptPart& earlier) const override;
  void putBack(const Kept& kept) override;

 private:
  void Form_Load();
  void btnAccept_Click();
  void btnCancel_Click();
  void hold(bool& mark);
  void release(bool& mark);
  void keepOneRow();

  SessionState& session_;
  bool loaded_ = false;
};

/// Checks a typed country against the table. `text` becomes upper case; IsoCheckOk and
/// IsoCheckCode of the session hold the outcome. The empty text is a right country without code.
void CheckIsoCountry(SessionState& session, DlgIsoCodes& dialog, const Locale& locale,
                     std::string& text);

}  // namespace awizo
