#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/xml.h"
#include "session/record/work.h"

namespace awizo {

/// The text of the first node that the path selects from `node`. Where there is none, or anything
/// fails (an empty `node`, an invalid path), returns the empty text if `blankOnMissing`, else "-1".
/// For a node without text returns the empty text either way. Raises nothing.
std::string GetNodeValue(const XmlNode& node, std::string_view xpath, bool blankOnMissing);

/// Posts the document to the service under the session's cookie and returns the reply, parsed. An
/// empty document means that no reply could be parsed; an HTTP status is not looked at. Each step
/// that fails shows a critical box, and the next step runs all the same. Raises nothing.
std::unique_ptr<XmlDocument> SendXMLDOMRequest(Work& work, std::string_view url,
                                               XmlDocument& request);

/// What the user is shown while it runs.
std::string_view wordsOf(Exchange exchange);

/// SendXMLDOMRequest for one exchange, which is the session's RunningExchange while it runs and is
/// shown to the user.
std::unique_ptr<XmlDocument> runExchange(Work& work, Exchange exchange, std::string_view url,
                                         XmlDocument& request);

}  // namespace awizo
