#include "desk/bringing.h"

#include <algorithm>
#include <vector>

#include "desk/partners.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view documentEnding = ".xml";

Question replacingQuestion(std::string_view name) {
  return {.text = joined({"В папке уже есть другой файл ", name, ". Заменить его?"}),
          .choices = {Choice::replace, Choice::cancel},
          .harmless = Choice::cancel};
}

bool endsSo(std::string_view name, std::string_view wanted) {
  return name.size() >= wanted.size() &&
         std::ranges::equal(name.substr(name.size() - wanted.size()), wanted, {}, lowerLatin);
}

/// The name without its ending and without what would hide the file from lists.
std::string stemOf(std::string_view name) {
  name.remove_prefix(std::min(name.find_first_not_of('.'), name.size()));
  if (endsSo(name, documentEnding)) name.remove_suffix(documentEnding.size());
  return replaceAll(replaceAll(name, "\\", "_"), "/", "_");
}

std::string freeName(const std::vector<std::string>& taken, const std::string& stem) {
  std::string name = joined({stem, documentEnding});
  for (int number = 2; std::ranges::find(taken, name) != taken.end(); ++number) {
    name = joined({stem, " (", std::to_string(number), ")", documentEnding});
  }
  return name;
}

}  // namespace

BroughtPlace bring(Files& files, std::string_view folder, const BroughtFile& file,
                   const std::function<Choice(const Question&)>& ask) {
  const std::vector<std::string> taken = files.files(folder, documentEnding);
  const std::string known = nameInFolder(file.name);
  const std::string name = known.empty() ? freeName(taken, stemOf(file.name)) : known;
  BroughtPlace place{.path = joined({folder, "\\", name}), .isNamed = !known.empty()};
  const bool isThere = std::ranges::find(taken, name) != taken.end();
  if (isThere && files.readAll(place.path) == file.bytes) return place;
  if (isThere && ask(replacingQuestion(name)) != Choice::replace) {
    place.path.clear();
    return place;
  }
  files.replace(place.path, file.bytes);
  return place;
}

}  // namespace awizo
