#include "service/transport.h"

#include <exception>
#include <new>

#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view errorLogText = "Bі№d w SendXMLDOMRequest():";
constexpr std::string_view errorTitle = "Bі№d w SendXMLDOMRequest()!";

void reportStep(Editor& editor, const RunTimeError& error) {
  DebugLog& log = editor.session.log;
  if (log.writes(2)) log.WriteDebugLine(joined({errorLogText, error.description()}), 2);
  editor.screen().showCritical(error.description(), errorTitle);
}

/// Runs one step. An error in it is told to the user, and the exchange goes on with the next step.
template <class Step>
void resumeNext(Editor& editor, Step&& step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    reportStep(editor, error);
  } catch (const std::bad_alloc&) {
    reportStep(editor, errors::outOfMemory());
  }
}

HttpRequest& made(const std::unique_ptr<HttpRequest>& request) {
  if (!request) throw errors::objectNotSet();
  return *request;
}

/// The reply's text; empty where it can't be read. A reply can be large, so nothing else holds it.
std::string exchangeTexts(Editor& editor, std::string_view url, XmlDocument& request) {
  std::unique_ptr<HttpRequest> http;
  std::string reply;
  resumeNext(editor, [&] { http = editor.platform.http.createRequest(); });
  resumeNext(editor, [&] { made(http).open("POST", url); });
  resumeNext(editor, [&] { made(http).setHeader("Cookie", editor.session.SessionCookie); });
  resumeNext(editor, [&] { made(http).send(request.node().xml()); });
  resumeNext(editor, [&] { reply = made(http).responseText(); });
  return reply;
}

}  // namespace

std::string GetNodeValue(const XmlNode& node, std::string_view xpath, bool blankOnMissing) {
  if (node) {
    try {
      if (const XmlNode found = node.selectSingle(xpath)) return found.text();
    } catch (const std::exception&) {
      // Whatever failed, the value counts as missing.
    }
  }
  return blankOnMissing ? "" : "-1";
}

std::unique_ptr<XmlDocument> SendXMLDOMRequest(Editor& editor, std::string_view url,
                                               XmlDocument& request) {
  DebugLog& log = editor.session.log;
  // Messages are made only for a log that takes them: a reply can be many megabytes.
  if (log.writes(4)) {
    const std::string message = joined({"Request: ", url, " ", editor.session.SessionCookie});
    resumeNext(editor, [&] { log.WriteDebugXml(message, request.node(), 4); });
  }

  std::unique_ptr<XmlDocument> response;
  {
    const std::string reply = exchangeTexts(editor, url, request);
    if (log.writes(4)) {
      resumeNext(editor, [&] { log.WriteDebugLine(joined({"Response: ", reply}), 4); });
    }
    resumeNext(editor, [&] {
      response = editor.platform.xml.createDocument();
      response->loadText(reply);
    });
  }
  // The log drops its own errors, so one of a document that isn't there is told to nobody.
  log.WriteDebugXml("ResponseParsed: ", response ? response->node() : XmlNode(), 4);
  return response;
}

}  // namespace awizo
