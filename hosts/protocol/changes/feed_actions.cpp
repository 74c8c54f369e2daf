#include "hosts/protocol/changes/feed_actions.h"

#include <vector>

namespace awizo::protocol {

namespace {

/// The forms that the line names; all where it names none.
std::vector<Form*> formsIn(const Json& line, const FormDirectory& forms) {
  if (!line.contains("forms")) return forms.forms();
  const Json& names = member(line, "forms");
  if (!names.is_array()) throw BadLine("\"forms\" must be an array.");
  std::vector<Form*> named;
  for (const Json& name : names) named.push_back(&forms.form(textOf(name, "forms")));
  return named;
}

RowRange rowsIn(const Json& line) {
  const RowRange rows{integerMember(line, "first"), integerMember(line, "count")};
  if (rows.first < 0 || rows.count < 0) throw BadLine("There are no such rows.");
  return rows;
}

}  // namespace

void addFeedActions(Dispatcher& dispatcher, const FormDirectory& forms, ChangeFeed& feed) {
  dispatcher.clientActions["subscribe"] = [&](const Json& line) {
    for (Form* form : formsIn(line, forms)) feed.subscribe(*form);
  };
  dispatcher.clientActions["unsubscribe"] = [&](const Json& line) {
    for (const Form* form : formsIn(line, forms)) feed.unsubscribe(*form);
  };
  dispatcher.clientActions["see"] = [&](const Json& line) {
    const Control& control = forms.control(textMember(line, "on"));
    feed.show(control, rowsIn(line));
  };
}

}  // namespace awizo::protocol
