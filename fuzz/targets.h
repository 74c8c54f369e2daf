#pragma once

#include <array>
#include <string_view>

namespace awizo::fuzz {

// What takes bytes from outside. Each target hands arbitrary bytes to one reader and demands what
// the reader promises of any of them; a broken promise ends the program with a message on its error
// output. A target starts from scratch at each call.

/// A waiting order: read on line, then written as a despatch advice.
void order(std::string_view bytes);
/// A product catalogue: the order is completed by it, the line dialog chooses from it.
void catalogue(std::string_view bytes);
/// The delivery places: the package dialog chooses from them.
void places(std::string_view bytes);
/// The user's file, the partner's file, and the service's word on the partner.
void identity(std::string_view bytes);
/// A despatch advice in a file, read, written and read again.
void despatchAdvice(std::string_view bytes);
/// A despatch advice or an order that is checked: what is found wanting in none is read without a
/// word.
void checking(std::string_view bytes);
/// A package reference string: to a table and back, to XML and back.
void packageReferences(std::string_view bytes);
/// A customs number: taken apart and put together.
void customsNumber(std::string_view bytes);
/// A number or a date as a user types it, in both locales: read, written and read again.
void numbersAndDates(std::string_view bytes);
/// A record of a session, damaged or made up: replayed where there is nothing else.
void records(std::string_view bytes);
/// Lines to awizo-headless.
void lines(std::string_view bytes);

using Target = void (*)(std::string_view bytes);

struct NamedTarget {
  std::string_view name;
  Target run;
};

inline constexpr std::array<NamedTarget, 11> targets{{
    {"order", order},
    {"catalogue", catalogue},
    {"places", places},
    {"identity", identity},
    {"despatch-advice", despatchAdvice},
    {"checking", checking},
    {"package-references", packageReferences},
    {"customs-number", customsNumber},
    {"numbers-and-dates", numbersAndDates},
    {"records", records},
    {"lines", lines},
}};

/// The target of this name, or none.
Target findTarget(std::string_view name);

/// Ends the program where a promise is broken.
void require(bool holds, std::string_view promise);

}  // namespace awizo::fuzz
