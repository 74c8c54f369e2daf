#include "hosts/desktop/program/addresses.h"

#include <QUrl>

#include "hosts/desktop/faces/text.h"

namespace awizo::desktop {

AddressParts splitAddress(std::string_view url) {
  const QUrl parsed(fromText(url));
  AddressParts parts;
  if (!parsed.isValid() || parsed.host().isEmpty()) return parts;
  parts.scheme = toText(parsed.scheme());
  parts.origin = toText(parsed
                            .adjusted(QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment |
                                      QUrl::RemoveUserInfo)
                            .toString());
  parts.wellFormed = QUrl(fromText(url), QUrl::StrictMode).isValid();
  return parts;
}

}  // namespace awizo::desktop
