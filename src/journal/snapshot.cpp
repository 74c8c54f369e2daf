#include "journal/snapshot.h"

#include <cstddef>
#include <functional>

#include "platform/forms/table.h"
#include "session/record/header_fields.h"

namespace awizo::journal {
namespace {

template <class Session>
auto plainMembers(Session& s) {
  return std::tie(s.IsoCheckOk, s.IsoCheckCode, s.AllPacked, s.SendQuestionAsked, s.LineCount,
                  s.LastFilePath, s.OffLinePathValue, s.DecimalSeparator, s.LocalizationsLoaded,
                  s.ProductCatalogLoaded, s.UserInfoLoaded, s.PartnerInfoLoaded, s.SellerILN,
                  s.SellerNIP, s.SellerName, s.SellerAccount, s.BuyerILN, s.BuyerNIP, s.BuyerName,
                  s.BuyerAccount, s.WaitCursor, s.IloscPozycjiOpak, s.EditRow, s.IsoResult);
}

template <class Session>
auto packageMembers(Session& s) {
  return std::tie(s.ParentSerials, s.ParentDescriptions, s.ParentLevels);
}

/// Goes over all parts in one order: what takes a control's or form's part, and what takes members.
template <class TakePart, class TakeMembers>
void overAll(AwizoWysylki& control, TakePart&& takePart, TakeMembers&& takeMembers) {
  for (Form* form : control.forms()) {
    takePart(*form);
    for (Control* part : form->controls()) takePart(*part);
  }
  takeMembers(plainMembers(control.editor.session));
  takeMembers(packageMembers(control.editor.session));
}

std::vector<std::string> headerOf(AwizoWysylki& control) {
  std::vector<std::string> texts;
  for (const HeaderField& field : headerFields(control.form)) texts.push_back(valueText(field));
  return texts;
}

}  // namespace

Snapshot snapshotOf(AwizoWysylki& control, const Snapshot& earlier) {
  Snapshot snapshot;
  snapshot.parts.reserve(earlier.parts.size());
  const auto before = [&]() -> KeptPart {
    const std::size_t at = snapshot.parts.size();
    return at < earlier.parts.size() ? earlier.parts[at] : nullptr;
  };
  overAll(
      control, [&](const auto& part) { snapshot.parts.push_back(part.keep(before())); },
      [&](const auto& members) { snapshot.parts.push_back(keptOf(before(), members)); });
  snapshot.header = headerOf(control);
  snapshot.cursor = control.screen.cursor();
  return snapshot;
}

void putBack(AwizoWysylki& control, const Snapshot& snapshot) {
  // What is the same already shares its part and is left alone.
  const Snapshot now = snapshotOf(control, snapshot);
  std::size_t at = 0;
  std::vector<std::function<void()>> changed;
  const auto isToChange = [&] { return now.parts[at] != snapshot.parts[at]; };
  overAll(
      control,
      [&](auto& part) {
        if (isToChange()) {
          part.putBack(*snapshot.parts[at]);
          changed.emplace_back([&part] { part.tellAll(); });
        }
        ++at;
      },
      [&](const auto& members) {
        if (isToChange()) putBackInto(members, *snapshot.parts[at]);
        ++at;
      });
  control.screen.setCursor(snapshot.cursor);
  for (const auto& tell : changed) tell();
}

bool holdsDocumentOf(AwizoWysylki& control, const Snapshot& then) {
  if (headerOf(control) != then.header) return false;
  const AwizoForm& form = control.form;
  std::size_t at = 0;
  bool same = true;
  overAll(
      control,
      [&](const auto& part) {
        for (const Table* table : {&form.grdPozycje, &form.grdOpakowania}) {
          if (static_cast<const void*>(&part) != static_cast<const Control*>(table)) continue;
          same = same && table->holdsTextsOf(*then.parts[at]);
        }
        ++at;
      },
      [&](const auto&) { ++at; });
  return same;
}

}  // namespace awizo::journal
