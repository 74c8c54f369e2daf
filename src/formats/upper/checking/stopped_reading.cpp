#include "formats/upper/checking/stopped_reading.h"

namespace awizo {

Finding stoppedReading(const DocumentMap& map, TracedDocument& document,
                       const RunTimeError& error) {
  const XmlNode last = document.last();
  std::string why = "ошибка " + quoted(error.description());
  const auto is = [&](const RunTimeError& other) { return error.number() == other.number(); };
  if (is(errors::typeMismatch())) {
    why = quoted(last.text()) + " не дата и не время";
  } else if (is(errors::dateOutsidePicker())) {
    why = "даты " + quoted(last.text()) + " нет в календаре поля";
  } else if (is(errors::overflow())) {
    // A row that has no room fails before anything of it is looked at.
    return map.finding(last, "больше таблица не вмещает, чтение за этим местом прервётся");
  }
  return map.finding(last, why + ", чтение здесь прервётся");
}

}  // namespace awizo
