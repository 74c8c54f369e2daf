#include "service/transport.h"

#include <exception>
#include <new>

#include "platform/at_exit.h"
#include "platform/text.h"

namespace awizo {
namespace {

constexpr std::string_view errorLogText = "Bі№d w SendXMLDOMRequest():";
constexpr std::string_view errorTitle = "Bі№d w SendXMLDOMRequest()!";

void reportStep(Work& work, const RunTimeError& error) {
  DebugLog& log = work.session.log;
  if (log.writes(2)) log.WriteDebugLine(joined({errorLogText, error.description()}), 2);
  work.screen().showError(error, errorTitle);
}

/// Runs one step. An error in it is shown to the user, and the exchange goes on with the next step.
template <class Step>
void resumeNext(Work& work, Step&& step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    reportStep(work, error);
  } catch (const std::bad_alloc&) {
    reportStep(work, errors::outOfMemory());
  }
}

HttpRequest& made(const std::unique_ptr<HttpRequest>& request) {
  if (!request) throw errors::objectNotSet();
  return *request;
}

/// Whether the request never left this machine, or not to where it should go.
bool reachedNobody(const RunTimeError& error) {
  return error.number() == errors::hostNotFound().number() ||
         error.number() == errors::badCertificate().number();
}

void sendRequest(SessionState& session, HttpRequest& http, XmlDocument& request) {
  session.RequestMayHaveArrived = false;
  try {
    http.send(request.node().xml());
  } catch (const RunTimeError& error) {
    session.RequestMayHaveArrived = !reachedNobody(error);
    throw;
  }
  session.RequestMayHaveArrived = true;
}

/// The reply's text; empty where it can't be read. A reply can be large, so nothing else holds it.
std::string exchangeTexts(Work& work, std::string_view url, XmlDocument& request) {
  std::unique_ptr<HttpRequest> http;
  std::string reply;
  resumeNext(work, [&] { http = work.platform.http.createRequest(); });
  resumeNext(work, [&] { made(http).open("POST", url); });
  resumeNext(work, [&] { made(http).setHeader("Cookie", work.session.SessionCookie); });
  resumeNext(work, [&] { sendRequest(work.session, made(http), request); });
  resumeNext(work, [&] { reply = made(http).responseText(); });
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

std::unique_ptr<XmlDocument> SendXMLDOMRequest(Work& work, std::string_view url,
                                               XmlDocument& request) {
  DebugLog& log = work.session.log;
  // Messages are made only for a log that takes them: a reply can be many megabytes.
  if (log.writes(4)) {
    const std::string message = joined({"Request: ", url, " ", work.session.SessionCookie});
    resumeNext(work, [&] { log.WriteDebugXml(message, request.node(), 4); });
  }

  std::unique_ptr<XmlDocument> response;
  {
    const std::string reply = exchangeTexts(work, url, request);
    if (log.writes(4)) {
      resumeNext(work, [&] { log.WriteDebugLine(joined({"Response: ", reply}), 4); });
    }
    resumeNext(work, [&] {
      response = work.platform.xml.createDocument();
      response->loadText(reply);
    });
  }
  // The log drops its own errors, so one of a document that isn't there is shown to nobody.
  log.WriteDebugXml("ResponseParsed: ", response ? response->node() : XmlNode(), 4);
  return response;
}

std::string_view wordsOf(Exchange exchange) {
  switch (exchange) {
    case Exchange::partnerInfo:
      return "Загрузка данных партнёра…";
    case Exchange::productCatalogue:
      return "Загрузка каталога…";
    case Exchange::deliveryPlaces:
      return "Загрузка мест доставки…";
    case Exchange::order:
      return "Получение заказа…";
    case Exchange::sending:
      break;
  }
  return "Отправка документа…";
}

std::unique_ptr<XmlDocument> runExchange(Work& work, Exchange exchange, std::string_view url,
                                         XmlDocument& request) {
  work.session.RunningExchange = exchange;
  const AtExit end([&] { work.session.RunningExchange.reset(); });
  std::unique_ptr<XmlDocument> response;
  work.screen().during(wordsOf(exchange),
                       [&] { response = SendXMLDOMRequest(work, url, request); });
  return response;
}

}  // namespace awizo
