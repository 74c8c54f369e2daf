#include "demo/demo_service.h"

#include <sys/socket.h>

#include <fstream>
#include <sstream>
#include <utility>

namespace awizo::demo {

namespace {

constexpr const char* xmlType = "text/xml; charset=utf-8";
constexpr const char* htmlType = "text/html; charset=utf-8";
constexpr const char* textType = "text/plain; charset=utf-8";
constexpr const char* pagePath = "/vird/page/editor.html";
/// As strict as a portal's may be: the page takes nothing from elsewhere, no style within it
/// counts.
constexpr const char* pagePolicy =
    "default-src 'none'; script-src 'self' 'wasm-unsafe-eval'; style-src 'self'; img-src 'self'; "
    "connect-src 'self'; worker-src 'self'; base-uri 'none'; form-action 'none'";
constexpr int patienceSeconds = 60;

std::optional<std::string> header(const httplib::Request& request, const char* name) {
  if (!request.has_header(name)) return std::nullopt;
  return request.get_header_value(name);
}

/// Bytes of which no XML parser and no character set makes sense.
std::string garbage() {
  std::string bytes = "<<\xFF\xFE not XML &\x01";
  bytes.push_back('\0');
  for (int i = 0; i < 512; ++i) bytes.push_back(static_cast<char>(i * 37 + 129));
  return bytes;
}

void fillFaulty(FaultKind kind, httplib::Response& response) {
  switch (kind) {
    case FaultKind::drop:
      response.status = statusOfNoReply;
      break;
    case FaultKind::garbage:
      response.set_content(garbage(), xmlType);
      break;
    case FaultKind::empty:
      response.set_content("", xmlType);
      break;
    default:
      response.status = 500;
      response.set_content(
          "<html><head><title>Server Error</title><body>"
          "<h1>Ошибка сервера<hr>Обработка запроса прервана.<br></body></html>",
          htmlType);
  }
}

/// Announces the whole reply and breaks the connection in its middle.
void fillCut(std::string reply, httplib::Response& response) {
  const std::size_t size = reply.size();
  response.set_content_provider(
      size, xmlType, [reply = std::move(reply)](size_t, size_t, httplib::DataSink& sink) {
        sink.write(reply.data(), reply.size() / 2);
        return false;
      });
}

std::string typeOf(std::string_view file) {
  if (file.ends_with(".html")) return htmlType;
  if (file.ends_with(".mjs")) return "text/javascript";
  if (file.ends_with(".png")) return "image/png";
  if (file.ends_with(".svg")) return "image/svg+xml";
  return file.ends_with(".wasm") ? "application/wasm" : xmlType;
}

bool replacesReply(FaultKind kind) {
  return kind == FaultKind::drop || kind == FaultKind::garbage || kind == FaultKind::empty ||
         kind == FaultKind::status500;
}

/// Returns the lines of `text` as settings; nothing if one of them isn't a setting.
std::optional<std::vector<FaultSetting>> faultSettings(const std::string& text) {
  std::vector<FaultSetting> settings;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const auto setting = parseFaultSetting(line);
    if (!setting) return std::nullopt;
    settings.push_back(*setting);
  }
  return settings;
}

}  // namespace

DemoService::DemoService(const Options& options)
    : replies_(options.dataFolder), posted_(options.postedFolder) {
  if (!std::filesystem::is_directory(options.dataFolder)) {
    throw std::runtime_error("no data folder '" + options.dataFolder.string() + "'");
  }
  for (const FaultSetting& setting : options.faults) faults_.set(setting);
  offerCommands();
  offerPage(options.pageFolder);
  offerExchanges();
  // Two services on one port would share its requests without a word.
  server_.set_socket_options([](socket_t socket) {
    const int on = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
  });
  server_.set_read_timeout(patienceSeconds);
  server_.set_write_timeout(patienceSeconds);
  const std::string loopback = "127.0.0.1";
  if (options.port == 0) {
    port_ = server_.bind_to_any_port(loopback);
  } else if (server_.bind_to_port(loopback, options.port)) {
    port_ = options.port;
  }
  if (port_ <= 0) throw std::runtime_error("can't take port " + std::to_string(options.port));
  listener_ = std::thread([this] { server_.listen_after_bind(); });
  while (!server_.is_running()) std::this_thread::yield();
}

DemoService::~DemoService() {
  faults_.releaseForGood();
  server_.endAll();
  listener_.join();
}

std::string DemoService::pageUrl() const {
  return "http://127.0.0.1:" + std::to_string(port_) + pagePath;
}

void DemoService::offerExchanges() {
  server_.Post("/.*", [this](const httplib::Request& request, httplib::Response& response) {
    answer(request, response);
  });
}

void DemoService::offerPage(const std::filesystem::path& folder) {
  server_.Get("/", [](const httplib::Request&, httplib::Response& response) {
    response.set_redirect(pagePath);
  });
  server_.Get(R"(/(?:.*/)?page/((?:guide/(?:images/)?)?[\w-]+\.(?:html|mjs|png|svg|wasm|xml)))",
              [folder](const httplib::Request& request, httplib::Response& response) {
                const std::string name = request.matches[1];
                std::ifstream file(folder / name, std::ios::binary);
                std::ostringstream content;
                if (file) content << file.rdbuf();
                if (!file) response.status = 404;
                if (name.ends_with(".html")) {
                  response.set_header("Set-Cookie", "vird-demo=1; Path=/");
                  response.set_header("Content-Security-Policy", pagePolicy);
                }
                response.set_content(content.str(), typeOf(name));
              });
}

void DemoService::offerCommands() {
  server_.Post("/_faults", [this](const httplib::Request& request, httplib::Response& response) {
    const auto settings = faultSettings(request.body);
    if (!settings) {
      response.status = 400;
      response.set_content("EXCHANGE=KIND is wanted on each line\n", textType);
      return;
    }
    for (const FaultSetting& setting : *settings) faults_.set(setting);
  });
  server_.Delete("/_faults",
                 [this](const httplib::Request&, httplib::Response&) { faults_.clear(); });
  server_.Get("/_held", [this](const httplib::Request&, httplib::Response& response) {
    const int held = faults_.waitUntilHeld(std::chrono::seconds(patienceSeconds / 2));
    response.set_content(std::to_string(held) + "\n", textType);
  });
  server_.Post("/_release",
               [this](const httplib::Request&, httplib::Response&) { faults_.release(); });
  server_.Get("/_requests", [this](const httplib::Request&, httplib::Response& response) {
    response.set_content(requests_.asJson(), "application/json");
  });
  server_.Post("/_reset", [this](const httplib::Request&, httplib::Response&) {
    replies_.putOrderBack();
    faults_.clear();
    requests_.clear();
  });
}

void DemoService::answer(const httplib::Request& request, httplib::Response& response) {
  const auto exchange = exchangeAt(request.path);
  const bool wantsXml =
      exchange != Exchange::partnerInfo || request.get_param_value("format") == "xml";
  if (!exchange || !wantsXml) {
    response.status = 404;
    return;
  }
  requests_.add({std::string(exchangeName(*exchange)), request.target, header(request, "Cookie"),
                 header(request, "Content-Type"), request.body});
  const Fault fault = faults_.at(*exchange);
  if (replacesReply(fault.kind)) {
    fillFaulty(fault.kind, response);
    return;
  }
  std::string reply = replyTo(*exchange, request.body);
  if (fault.kind == FaultKind::slow) faults_.hold(fault);
  if (fault.kind == FaultKind::cut) {
    fillCut(std::move(reply), response);
  } else {
    response.set_content(std::move(reply), xmlType);
  }
}

std::string DemoService::replyTo(Exchange exchange, const std::string& document) {
  switch (exchange) {
    case Exchange::partnerInfo:
      return replies_.partnerInfo(document);
    case Exchange::productCatalogue:
      return replies_.productCatalogue(document);
    case Exchange::deliveryPlaces:
      return replies_.deliveryPlaces(document);
    case Exchange::order:
      return replies_.order(document);
    default:
      return submissionReply(posted_.accept(document));
  }
}

}  // namespace awizo::demo
