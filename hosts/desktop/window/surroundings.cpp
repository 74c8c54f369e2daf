#include "hosts/desktop/window/surroundings.h"

#include <utility>

#include "hosts/desktop/window/file_chooser.h"
#include "hosts/version.h"

namespace awizo::desktop {

Surroundings::Surroundings(const GivenParts& given, QWidget& widget,
                           std::function<void(std::string_view)> propertyChanged)
    : waiting(widget),
      face(waiting),
      assistedFace(face),
      locale(chosenLocale(given.locale)),
      network({[this] {
                 waiting.goOn();
                 return !face.ending();
               },
               ""}),
      host(std::move(propertyChanged)),
      platform{.xml = xml,
               .http = given.http != nullptr ? *given.http : network,
               .page = given.page,
               .bag = given.bag,
               .host = host,
               .settings = given.settings,
               .files = files,
               .clock = given.clock != nullptr ? *given.clock : machineClock,
               .locale = locale,
               .screenFace = assistedFace,
               .version = programVersion} {
  helpToChooseFiles(face, files, given.settings);
}

std::string chosenLocale(const std::string& given) {
  return given.empty() ? IcuLocale::environmentName() : given;
}

}  // namespace awizo::desktop
