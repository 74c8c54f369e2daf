#pragma once

#include <exception>
#include <new>
#include <string>
#include <utility>

#include "hosts/protocol/values/json.h"
#include "platform/forms/form.h"
#include "platform/forms/screen_face.h"
#include "platform/run_time_error.h"

namespace awizo::protocol {

// What is sent to a client: how a line of its own ended, and what happens meanwhile.

/// The closing line of a line that was done, with the line's own id.
Json success(const Json& line, const Json& result);
Json failure(const Json& line, const std::string& error);
Json failure(const Json& line, const RunTimeError& error);

/// Does the work that `text` asks for, read into a line, and returns the closing line.
template <class Work>
Json closingLineOf(const std::string& text, Work&& work) {
  Json line;
  try {
    line = parseLine(text);
    return success(line, work(std::as_const(line)));
  } catch (const RunTimeError& error) {
    return failure(line, error);
  } catch (const std::bad_alloc&) {
    return failure(line, errors::outOfMemory());
  } catch (const std::exception& error) {
    return failure(line, error.what());
  }
}

/// The button that a line presses. Throws BadLine, or Refused where the box has no such button.
Answer answerIn(const Json& line, BoxButtons buttons);

Json boxEvent(const MessageBox& box);
/// "modal" for a form that is shown now, "hidden" for one that isn't.
Json formEvent(const Form& form);
Json propertyEvent(std::string_view property);
Json endEvent();

}  // namespace awizo::protocol
